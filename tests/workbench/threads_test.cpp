// SPDX-License-Identifier: GPL-3.0-or-later
// Check All, Check Some and Import on several threads leave the same files, in
// the same record order, with the same report, as on one thread: over a library
// of every level, puzzles without one solution and a damaged record among them.
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>

#include "grid/candidates.h"
#include "library/library_files.h"
#include "library/library_pair.h"
#include "library/library_test_support.h"
#include "support/game_fixture.h"
#include "support/puzzles.h"
#include "workbench/import.h"
#include "workbench/workbench.h"

namespace tavi {
namespace {

namespace fs = std::filesystem;

// Every file of a folder, by name, with its bytes.
std::map<std::string, std::string> Files(const fs::path& folder) {
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::directory_iterator(folder)) {
        std::ifstream in(entry.path(), std::ios::binary);
        files[entry.path().filename().string()] =
            std::string(std::istreambuf_iterator<char>(in), {});
    }
    return files;
}

// The puzzles of the runs: 150 generated ones of every level, with puzzles
// that have several solutions or none spread among them.
std::vector<SudokuRecord> Records() {
    std::vector<SudokuRecord> records;
    const auto& puzzles = testing::GeneratedPuzzles(150, 91);
    for (std::size_t i = 0; i < puzzles.size(); ++i) {
        records.push_back({puzzles[i].puzzle, puzzles[i].solution, 0, 0});
        if (i % 37 == 5)
            records.push_back({testing::WithoutFirstClue(puzzles[i].puzzle), {}, 0, 0});
        if (i % 53 == 7) records.push_back({testing::DeadCell(), {}, 0, 0});
    }
    return records;
}

struct CheckResult {
    std::map<std::string, std::string> files;
    std::vector<std::string> said;
    HardestCounts hardest{};
};

// Fills Hard with the records (one of them damaged on disk) and checks it on
// `threads` threads, all of it or records 20 to 120.
CheckResult Check(int threads, bool some) {
    testing::TempDir dir;
    for (const SudokuRecord& r : Records())
        EXPECT_TRUE(AppendToPair(dir.path(), LevelStem(3), r, {}));
    // Record 9 gets a clue that its solution contradicts.
    SudokuRecord broken;
    EXPECT_TRUE(ReadSudokuRecord(PuzzleFile(dir.path(), LevelStem(3)), 9, broken));
    for (int c = 0; c < 81; ++c)
        if (!broken.Puzzle[c]) {
            broken.Puzzle[c] = std::uint8_t(broken.Solution[c] % 9 + 1);
            break;
        }
    SudokuRecordBytes bytes = ToBytes(broken);
    EXPECT_TRUE(WriteRecordBytes(PuzzleFile(dir.path(), LevelStem(3)), 9, bytes));

    testing::ScriptedPrompter prompter;
    Workbench bench(prompter, dir.path());
    bench.SetThreads(threads);
    bench.SetRedrawEvery(std::chrono::milliseconds(0));
    prompter.inputs = {"1", "20", "120"};
    bench.Command1(3);
    if (some)
        bench.CommandCheckSome();
    else
        bench.CommandCheckAll();
    CheckResult run{Files(dir.path()), {}, bench.Hardest()};
    for (const auto& shown : prompter.shown)
        run.said.push_back(shown.title + ": " + shown.text);
    return run;
}

TEST(WorkbenchThreads, CheckAllAndCheckSomeLeaveWhatOneThreadLeaves) {
    for (bool some : {false, true}) {
        const CheckResult one = Check(1, some), three = Check(3, some);
        EXPECT_EQ(one.files, three.files) << "some: " << some;
        EXPECT_EQ(one.said, three.said);
        EXPECT_EQ(one.hardest, three.hardest);
        ASSERT_FALSE(one.said.empty());
        EXPECT_NE(one.said.back().find("with several solutions"), std::string::npos)
            << one.said.back();
        EXPECT_EQ(one.said.back().find("could not be read") != std::string::npos, !some)
            << one.said.back();
        // The run moved puzzles out of Hard, so the comparison is of real moves.
        EXPECT_GT(one.files.size(), 2u);
    }
}

// An import on several threads: the same pairs, the same report, a puzzle that
// stands twice in the file refused the second time as on one thread.
TEST(WorkbenchThreads, ImportFilesWhatOneThreadFiles) {
    std::string text;
    const auto records = Records();
    for (std::size_t i = 0; i < records.size(); ++i) {
        text += FormatDigits(records[i].Puzzle, '.') + "\n";
        if (i % 17 == 3) text += FormatDigits(records[i / 2].Puzzle, '.') + "\n";
        if (i % 41 == 0) text += "not a puzzle\n";
    }
    auto import = [&](int threads) {
        testing::TempDir dir;
        std::istringstream in(text);
        ImportRun run;
        run.threads = threads;
        const ImportReport report = ImportPuzzles(dir.path(), in, run);
        return std::pair(Files(dir.path()), report.Text() + "\n" + report.FullList());
    };
    const auto one = import(1), three = import(3);
    EXPECT_EQ(one.first, three.first);
    EXPECT_EQ(one.second, three.second);
    EXPECT_NE(one.second.find("already in the library (lines"), std::string::npos) << one.second;
}

// An import aborted after its third puzzle files three, says so, and counts the
// lines it did not read, for one thread and for several.
TEST(WorkbenchThreads, AnAbortedImportSaysHowManyLinesWereNotRead) {
    std::string text = "# twelve puzzles\n";
    for (int i = 0; i < 12; ++i)
        text += FormatDigits(testing::GeneratedPuzzles(12, 5)[size_t(i)].puzzle, '.') + "\n";
    for (int threads : {1, 3}) {
        testing::TempDir dir;
        std::istringstream in(text);
        ImportRun run;
        run.threads = threads;
        long done = 0;
        run.progress = [&](long n, long) { done = n; };
        run.abort = [&] { return done >= 3; };
        const ImportReport report = ImportPuzzles(dir.path(), in, run);
        long added = 0;
        for (long n : report.added)
            added += n;
        EXPECT_EQ(added, 3);
        EXPECT_TRUE(report.aborted);
        EXPECT_NE(report.Text().find("The import was aborted after line 4; 9 lines were not read."),
                  std::string::npos)
            << report.Text();
    }
}

}  // namespace
}  // namespace tavi
