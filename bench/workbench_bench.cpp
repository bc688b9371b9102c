// SPDX-License-Identifier: GPL-3.0-or-later
// The workbench over large libraries: a check of 10,000 Easy to Hard puzzles, and
// removing the duplicates of 50,000 records.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <thread>

#include "cli/library_commands.h"
#include "grid/levels.h"
#include "library/library_files.h"
#include "library/library_pair.h"
#include "library/move_journal.h"
#include "library/pair_rewrite.h"
#include "workbench/workbench.h"

namespace tavi {
namespace {

namespace fs = std::filesystem;

// Opens the first record and says nothing.
struct Silent : Prompter {
    void Beep() override {}
    Answer Ask(std::string_view, std::string_view, Buttons, Icon) override { return Answer::Ok; }
    std::optional<std::string> Input(std::string_view, std::string_view,
                                     std::string_view) override {
        return "1";
    }
};

// A Hard library of `count` records drawn in turn from the delivered Easy, Medium
// and Hard libraries, with its log file.
fs::path MakeLibrary(long count) {
    const fs::path folder =
        fs::temp_directory_path() / ("tavi-bench-wb-" + std::to_string(std::random_device{}()));
    fs::create_directories(folder);
    std::vector<SudokuRecord> delivered, records;
    for (int level = 1; level <= 3; ++level) {
        std::vector<SudokuRecord> some;
        ReadSudokuFile(PuzzleFile(TAVI_DATA_DIR, LevelStem(level)), some);
        delivered.insert(delivered.end(), some.begin(), some.end());
    }
    for (long i = 0; i < count && !delivered.empty(); ++i)
        records.push_back(delivered[size_t(i) % delivered.size()]);
    WriteSudokuFile(PuzzleFile(folder, LevelStem(3)), records);
    // Empty log records, one per puzzle.
    std::ofstream(LogFile(folder, LevelStem(3)), std::ios::binary)
        .write(std::vector<char>(records.size() * kSudokuLogRecordSize).data(),
               std::streamsize(records.size() * kSudokuLogRecordSize));
    return folder;
}

// Check All in the window's model on N threads (the argument), with the window's
// redraw pacing: each redraw here costs what a repaint of the window costs
// (about 2 ms), and the count of redraws is reported.
void BM_CheckAll_10000(benchmark::State& state) {
    long redraws = 0;
    for (auto _ : state) {
        state.PauseTiming();
        const fs::path folder = MakeLibrary(10000);
        Silent silent;
        Workbench bench(silent, folder);
        bench.SetThreads(int(state.range(0)));
        bench.SetEvents([&](Changes) {
            ++redraws;
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        });
        bench.Command1(3);
        state.ResumeTiming();
        bench.CommandCheckAll();
        state.PauseTiming();
        fs::remove_all(folder);
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * 10000);
    state.counters["redraws"] = double(redraws);
}
BENCHMARK(BM_CheckAll_10000)
    ->Arg(1)
    ->Arg(2)
    ->Unit(benchmark::kSecond)
    ->Iterations(1)
    ->UseRealTime();

// `library check DIR --level 3 --threads N` over the same library.
void BM_LibraryCheck_10000(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        const fs::path folder = MakeLibrary(10000);
        std::ostringstream out, err;
        state.ResumeTiming();
        cli::LibraryCheckCommand(folder, 3, out, err, int(state.range(0)));
        state.PauseTiming();
        fs::remove_all(folder);
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * 10000);
}
BENCHMARK(BM_LibraryCheck_10000)
    ->Arg(1)
    ->Arg(2)
    ->Unit(benchmark::kSecond)
    ->Iterations(1)
    ->UseRealTime();

void BM_RemoveDuplicates_50000(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        const fs::path folder = MakeLibrary(50000);
        Silent silent;
        Workbench bench(silent, folder);
        bench.Command1(3);
        state.ResumeTiming();
        bench.CommandRemoveDuplicates();
        state.PauseTiming();
        fs::remove_all(folder);
        state.ResumeTiming();
    }
}
BENCHMARK(BM_RemoveDuplicates_50000)->Unit(benchmark::kMillisecond)->Iterations(1);

// What the move journal costs: 6,700 records (the moves of the check above)
// appended to another level, plainly (0) or as journalled moves (1) with the
// rewrite of the old pair at the end.
void BM_Moves_6700(benchmark::State& state) {
    const bool journalled = state.range(0) == 1;
    for (auto _ : state) {
        state.PauseTiming();
        const fs::path folder = MakeLibrary(6700);
        std::vector<SudokuRecord> records;
        ReadSudokuFile(PuzzleFile(folder, LevelStem(3)), records);
        state.ResumeTiming();
        if (journalled) {
            MoveJournal journal(folder, LevelStem(3));
            for (long n = 1; n <= long(records.size()); ++n)
                journal.Move(n, LevelStem(1), records[size_t(n - 1)], {});
            journal.Finish();
        } else {
            for (long n = 1; n <= long(records.size()); ++n)
                AppendToPair(folder, LevelStem(1), records[size_t(n - 1)], {});
            KeepInPair(folder, LevelStem(3), [](long) { return false; });
        }
        state.PauseTiming();
        fs::remove_all(folder);
        state.ResumeTiming();
    }
}
BENCHMARK(BM_Moves_6700)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->Iterations(3);

}  // namespace
}  // namespace tavi
