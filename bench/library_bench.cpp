// SPDX-License-Identifier: GPL-3.0-or-later
// The library files: making the nine log files of a large library at the first
// run, and moving one record between memory and disk.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <random>
#include <vector>

#include "grid/levels.h"
#include "library/library_files.h"
#include "library/library_setup.h"
#include "solver/generator.h"

namespace tavi {
namespace {

namespace fs = std::filesystem;

struct Quiet : Notifier {
    void Beep() override {}
    void Message(std::string_view, std::string_view) override {}
};

// A data folder with nine `.sds` files of `perLevel` records, made once.
class BenchLibrary {
  public:
    explicit BenchLibrary(long perLevel) {
        folders_.DataFolder =
            fs::temp_directory_path() / ("tavi-bench-" + std::to_string(std::random_device{}()));
        folders_.AppFolder = folders_.DataFolder;
        fs::create_directories(folders_.DataFolder);
        PuzzleGenerator generator(7);
        std::vector<SudokuRecord> distinct;
        for (int i = 0; i < 50; ++i) {
            const GeneratedPuzzle g = generator.Next();
            distinct.push_back({g.puzzle, g.solution, 0, 0});
        }
        std::vector<SudokuRecord> records;
        for (long i = 0; i < perLevel; ++i)
            records.push_back(distinct[i % distinct.size()]);
        for (int level = 1; level <= kLevelCount; ++level)
            WriteSudokuFile(PuzzleFile(folders_.DataFolder, LevelStem(level)), records);
    }
    ~BenchLibrary() {
        std::error_code ec;
        fs::remove_all(folders_.DataFolder, ec);
    }
    const LibraryFolders& folders() const { return folders_; }
    fs::path Puzzles(int level) const { return PuzzleFile(folders_.DataFolder, LevelStem(level)); }
    fs::path Logs(int level) const { return LogFile(folders_.DataFolder, LevelStem(level)); }

  private:
    LibraryFolders folders_;
};

// The first run over nine levels of 10,000 puzzles: some 130 MB of log records.
void BM_MaakSudLog_9x10000(benchmark::State& state) {
    BenchLibrary library(10000);
    Quiet quiet;
    for (auto _ : state) {
        if (!MaakSudLog(library.folders(), quiet)) state.SkipWithError("MaakSudLog failed");
    }
    state.SetItemsProcessed(state.iterations() * 9 * 10000);
    state.SetBytesProcessed(state.iterations() * 9 * 10000 * std::int64_t(kSudokuLogRecordSize));
}
BENCHMARK(BM_MaakSudLog_9x10000)->Unit(benchmark::kMillisecond)->UseRealTime();

// One record at a random number: one open, one seek, one transfer.
void BM_ReadSudokuRecord(benchmark::State& state) {
    BenchLibrary library(10000);
    std::mt19937 rng(1);
    SudokuRecord record;
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            ReadSudokuRecord(library.Puzzles(3), long(rng() % 10000) + 1, record));
    }
}
BENCHMARK(BM_ReadSudokuRecord)->Unit(benchmark::kMicrosecond);

void BM_WriteSudokuRecord(benchmark::State& state) {
    BenchLibrary library(10000);
    std::mt19937 rng(2);
    SudokuRecord record;
    ReadSudokuRecord(library.Puzzles(3), 1, record);
    for (auto _ : state) {
        record.BestSeconds = std::int16_t(rng() % 60);
        benchmark::DoNotOptimize(
            WriteSudokuRecord(library.Puzzles(3), long(rng() % 10000) + 1, record));
    }
}
BENCHMARK(BM_WriteSudokuRecord)->Unit(benchmark::kMicrosecond);

void BM_ReadAndWriteSudokuLogRecord(benchmark::State& state) {
    BenchLibrary library(10000);
    Quiet quiet;
    MaakSudLog(library.folders(), quiet);
    std::mt19937 rng(3);
    SudokuLogRecord log;
    for (auto _ : state) {
        const long n = long(rng() % 10000) + 1;
        ReadSudokuLogRecord(library.Logs(5), n, log);
        log.StepCount = std::int16_t(rng() % 100);
        benchmark::DoNotOptimize(WriteSudokuLogRecord(library.Logs(5), n, log));
    }
}
BENCHMARK(BM_ReadAndWriteSudokuLogRecord)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tavi
