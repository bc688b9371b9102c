// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "cli/cli_run.h"
#include "grid/levels.h"
#include "library/library_files.h"
#include "library/library_pair.h"
#include "library/library_test_support.h"
#include "solver/generator.h"
#include "solver/solutions.h"
#include "support/puzzles.h"

namespace tavi::cli {
namespace {

namespace fs = std::filesystem;
using tavi::testing::Fields, tavi::testing::Lines, tavi::testing::TempDir;

// The same start value gives the same minimal puzzles of one solution, however
// many threads take them out of order.
TEST(CliGenerate, TheSameStartValueGivesTheSameMinimalUniquePuzzles) {
    const Output a = RunGenerate({"--count", "4", "--start", "99"});
    const Output other = RunGenerate({"--count", "4", "--start", "100"});
    EXPECT_EQ(a.status, 0);
    EXPECT_NE(a.out, other.out);
    const auto lines = Lines(a.out);
    ASSERT_EQ(lines.size(), 4u);
    for (const std::string& line : lines) {
        const auto puzzle = ParseDigits(line);
        ASSERT_TRUE(puzzle) << line;
        EXPECT_EQ(line.size(), 81u);
        EXPECT_EQ(Solutions(*puzzle).count, 1);
        for (int c = 0; c < 81; ++c) {  // every clue is needed
            if (!(*puzzle)[c]) continue;
            Digits fewer = *puzzle;
            fewer[c] = 0;
            EXPECT_EQ(Solutions(fewer).count, 2) << line << " cell " << c;
        }
    }

    std::ostringstream one, three;
    ASSERT_EQ(Generate(50, 7, one, 1), 0);
    ASSERT_EQ(Generate(50, 7, three, 3), 0);
    EXPECT_EQ(one.str(), three.str());
    PuzzleGenerator alone(7);
    alone.Skip(49);
    EXPECT_EQ(Lines(one.str()).back(), FormatDigits(alone.Next().puzzle));
    EXPECT_EQ(RunGenerate({"--count", "1", "--threads", "0"}).status, 2);
}

TEST(CliLibrary, BuildWritesNineRatedFilesThatCheckAndReportsTheCounts) {
    TempDir dir;
    const Output o =
        RunLibrary({"build", "--out", dir.path().string(), "--per-level", "2", "--walks", "0"});
    EXPECT_EQ(o.status, 0) << o.err;
    const auto lines = Lines(o.out);
    ASSERT_EQ(lines.size(), 10u) << o.out;
    for (int level = 1; level <= 9; ++level) {
        const fs::path sds = PuzzleFile(dir.path(), LevelStem(level));
        ASSERT_TRUE(FileExists(sds)) << level;
        std::vector<SudokuRecord> records;
        ASSERT_TRUE(ReadSudokuFile(sds, records));
        // Random puzzles fill Easy to Extreme; with no walks allowed the levels
        // above stay empty.
        EXPECT_EQ(records.size(), level <= 7 ? 2u : 0u);
        const auto fields = Fields(lines[level - 1]);
        ASSERT_EQ(fields.size(), 5u) << lines[level - 1];
        EXPECT_EQ(fields[0], LevelName(level));
        EXPECT_EQ(fields[1], std::to_string(records.size()));
        EXPECT_EQ(fields[2], "random");  // no level was searched
        // With its log of empty records: the folder checks and plays at once.
        EXPECT_EQ(fs::file_size(LogFile(dir.path(), LevelStem(level))),
                  records.size() * kSudokuLogRecordSize);
    }
    EXPECT_EQ(Fields(lines[9])[0], "generated");

    // The folder checks without a file error (each record whole, its solution
    // its own), options in any order; a damaged record or a library refused makes
    // the check answer 2 (the workbench's tests have what it says and leaves).
    const std::string d = dir.path().string();
    Output checked = RunLibrary({"check", "--level", "1", d});
    EXPECT_EQ(checked.status, 0) << checked.err;
    EXPECT_EQ(checked.out.find("File Error"), std::string::npos) << checked.out;
    const fs::path easy = PuzzleFile(dir.path(), LevelStem(1));
    SudokuRecord damaged = tavi::testing::RecordOf(2);
    damaged.Solution[5] = damaged.Solution[6];
    ASSERT_TRUE(WriteSudokuRecord(easy, 2, damaged));
    checked = RunLibrary({"check", d, "--level", "1"});
    EXPECT_EQ(checked.status, 2);
    EXPECT_NE(checked.out.find("Record 2 of Sudoku_Easy.sds is damaged"), std::string::npos)
        << checked.out;
    // Swapped files are refused and left as they are.
    fs::rename(easy, dir / "x");
    fs::rename(LogFile(dir.path(), LevelStem(1)), easy);
    fs::rename(dir / "x", LogFile(dir.path(), LevelStem(1)));
    checked = RunLibrary({"check", d});
    EXPECT_EQ(checked.status, 2);
    EXPECT_NE(checked.out.find("do not read as a puzzle file"), std::string::npos) << checked.out;

    // The counts level by level: a level nobody wants stays empty, and no search
    // runs when the random levels suffice. A list that is not nine whole numbers
    // is refused.
    const Output counted =
        RunLibrary({"build", "--out", d + "/counted", "--counts", "3,0,2,0,0,0,0,0,0"});
    EXPECT_EQ(counted.status, 0) << counted.err;
    const auto countedLines = Lines(counted.out);
    ASSERT_EQ(countedLines.size(), 10u) << counted.out;  // no line of a search
    for (int level = 1; level <= 9; ++level) {
        const auto fields = Fields(countedLines[level - 1]);
        EXPECT_EQ(fields[1], level == 1 ? "3" : level == 3 ? "2" : "0") << level;
        EXPECT_EQ(fields[2], "random") << level;
    }
    for (const char* bad : {"1,2,3", "1,2,3,4,5,6,7,8,9,10", "1,2,x,4,5,6,7,8,9"})
        EXPECT_EQ(RunLibrary({"build", "--out", d + "/counted", "--counts", bad}).status, 2) << bad;
}

TEST(CliLibrary, ImportAppendsWithSolutionsAndSkipsBadLinesByNumber) {
    TempDir dir;
    const auto& puzzles = tavi::testing::GeneratedPuzzles(3);
    const Digits twoSolutions = tavi::testing::WithoutFirstClue(puzzles[0].puzzle);
    Digits clash = puzzles[1].puzzle;
    clash[0] = clash[1] = 5;
    const fs::path text = dir / "in.txt";
    std::ofstream(text) << FormatDigits(puzzles[0].puzzle) << "\n"   // 1
                        << "not a puzzle at all\n"                   // 2
                        << FormatDigits(twoSolutions, '.') << "\n"   // 3
                        << "\n"                                      // 4
                        << FormatDigits(clash) << "\n"               // 5
                        << FormatDigits(puzzles[1].puzzle) << "\n";  // 6
    const std::string d = dir.path().string();
    Output o = RunLibrary({"import", text.string(), "--level", "4", "--dir", d});
    EXPECT_EQ(o.status, 2);  // line 2 is no puzzle
    for (const char* said : {"line 2:", "line 3: more than one solution", "line 5: no solution"})
        EXPECT_NE(o.err.find(said), std::string::npos) << o.err;
    EXPECT_EQ(o.out, "added 2 puzzles to Sudoku_Crazy.sds as records 1 to 2\n");

    const fs::path sds = PuzzleFile(dir.path(), LevelStem(4));
    std::vector<SudokuRecord> records;
    ASSERT_TRUE(ReadSudokuFile(sds, records));
    EXPECT_EQ(records, (std::vector<SudokuRecord>{{puzzles[0].puzzle, puzzles[0].solution, 0, 0},
                                                  {puzzles[1].puzzle, puzzles[1].solution, 0, 0}}));
    EXPECT_EQ(WholeRecords(LogFile(dir.path(), LevelStem(4)), kSudokuLogRecordSize), 2);

    // A second import, options in another order, refuses what the level holds;
    // a level without its log gets one, and new puzzles go after the others.
    fs::remove(LogFile(dir.path(), LevelStem(4)));
    std::ofstream(text, std::ios::app) << FormatDigits(puzzles[2].puzzle) << "\n";  // 7
    o = RunLibrary({"import", "--dir", d, text.string(), "--level", "4"});
    EXPECT_EQ(o.out, "added 1 puzzles to Sudoku_Crazy.sds as records 3 to 3\n");
    for (const char* said : {"line 1: already in the level", "line 6: already in the level"})
        EXPECT_NE(o.err.find(said), std::string::npos) << o.err;
    EXPECT_EQ(WholeRecords(LogFile(dir.path(), LevelStem(4)), kSudokuLogRecordSize), 3);

    EXPECT_EQ(RunLibrary({"import", text.string(), "--level", "10", "--dir", d}).status, 2);
}

TEST(CliLibrary, ExportWritesPuzzleSolutionAndBestTimeAndFlagsADamagedFile) {
    TempDir dir;
    const fs::path sds = dir / "x.sds";
    SudokuRecord a = tavi::testing::RecordOf(0), b = tavi::testing::RecordOf(1);
    a.BestMinutes = 3;
    a.BestSeconds = 7;
    b.BestMinutes = b.BestSeconds = 0;
    ASSERT_TRUE(WriteSudokuRecord(sds, 1, a));
    ASSERT_TRUE(WriteSudokuRecord(sds, 2, b));
    Output o = RunLibrary({"export", sds.string()});
    EXPECT_EQ(o.status, 0);
    EXPECT_EQ(o.out, FormatDigits(a.Puzzle, '.') + "\t" + FormatDigits(a.Solution) + "\t3:07\n" +
                         FormatDigits(b.Puzzle, '.') + "\t" + FormatDigits(b.Solution) +
                         "\t0:00\n");

    // Exported lines import again as the same puzzles.
    std::istringstream in(o.out);
    std::ostringstream out, err;
    EXPECT_EQ(ImportLibrary(in, 1, dir.path(), out, err), 0) << err.str();
    std::vector<SudokuRecord> back;
    ASSERT_TRUE(ReadSudokuFile(PuzzleFile(dir.path(), LevelStem(1)), back));
    EXPECT_EQ(back, (std::vector<SudokuRecord>{{a.Puzzle, a.Solution, 0, 0}, b}));

    std::ofstream(sds, std::ios::app) << "tail";
    o = RunLibrary({"export", sds.string()});
    EXPECT_EQ(o.status, 2);
    EXPECT_EQ(Lines(o.out).size(), 2u);
    EXPECT_NE(o.err.find("damaged: 4 bytes"), std::string::npos) << o.err;

    EXPECT_EQ(RunLibrary({"shuffle"}).status, 2);
    EXPECT_EQ(RunGenerate({"--count", "-1"}).status, 2);
}

// --score only adds a fourth field to rate: the first three are rate's own, line
// for line (the practice index checks the score itself); library export --score
// ends each line with that same score.
TEST(CliLibrary, ScoreAddsAFourthFieldToRateAndExportGivesTheSame) {
    TempDir dir;
    std::vector<SudokuRecord> records;
    std::string input;
    for (const GeneratedPuzzle& p : tavi::testing::GeneratedPuzzles(120)) {
        records.push_back({p.puzzle, p.solution, 0, 0});
        input += FormatDigits(p.puzzle) + '\n';
    }
    const std::string clash = FormatDigits(tavi::testing::WithClash(records[0].Puzzle)) + '\n';
    const Output plain = RunRate(input + clash), scored = RunRate(input + clash, {false, true});
    EXPECT_EQ(scored.status, plain.status);
    const auto plainLines = Lines(plain.out), scores = Lines(scored.out);
    ASSERT_EQ(plainLines.size(), scores.size());
    for (std::size_t i = 0; i < plainLines.size(); ++i) {
        if (plainLines[i].find("invalid") != std::string::npos) {
            EXPECT_EQ(scores[i], plainLines[i]);
            continue;
        }
        ASSERT_EQ(scores[i].substr(0, plainLines[i].size() + 1), plainLines[i] + '\t');
    }

    ASSERT_TRUE(WriteSudokuFile(dir / "x.sds", records));
    const Output exported = RunLibrary({"export", (dir / "x.sds").string(), "--score"});
    ASSERT_EQ(exported.status, 0) << exported.err;
    const auto lines = Lines(exported.out);
    ASSERT_EQ(lines.size(), records.size());
    for (std::size_t i = 0; i < lines.size(); ++i)
        EXPECT_EQ(lines[i].substr(lines[i].rfind('\t')), scores[i].substr(scores[i].rfind('\t')));
}

// A check of every level rates each puzzle once: those it moves into a later
// level are not checked and counted there again, so the table of hardest
// techniques adds up to the puzzles of the folder, for any number of threads.
TEST(CliLibrary, CheckOfEveryLevelCountsEachPuzzleOnce) {
    std::string tables;
    for (const char* threads : {"1", "2"}) {
        TempDir dir;
        long count = 0;
        // Puzzles of every level, all filed under Easy: most move to a later level.
        for (const auto& p : tavi::testing::GeneratedPuzzles(60, 17)) {
            ASSERT_TRUE(AppendToPair(dir.path(), LevelStem(1), {p.puzzle, p.solution, 0, 0}, {}));
            ++count;
        }
        const Output o = RunLibrary({"check", "--threads", threads, dir.path().string()});
        ASSERT_EQ(o.status, 0) << o.err;
        const std::string table = o.out.substr(o.out.find("hardest technique"));
        long counted = 0;
        for (const std::string& line : Lines(table))
            if (line.find('\t') != std::string::npos && line.rfind("hardest", 0) != 0)
                counted += std::stol(line.substr(line.rfind('\t') + 1));
        EXPECT_EQ(counted, count) << table;
        if (tables.empty())
            tables = table;
        else
            EXPECT_EQ(table, tables) << "the same for one thread and two";
    }
}

// Nothing is read whole: an export of a sparse file far beyond any library is
// refused at once, and a foreign file of junk lines, imported without a level as
// the workbench reads it, gets a report of bounded length.
TEST(CliLibrary, OversizedInputsAreRefusedOrReportedInBrief) {
    TempDir dir;
    const fs::path sds = dir / "huge.sds";
    std::ofstream(sds).close();
    fs::resize_file(sds, std::uintmax_t(50) << 30);  // 50 GB, sparse
    Output o = RunLibrary({"export", sds.string()});
    EXPECT_EQ(o.status, 2);
    EXPECT_NE(o.err.find("is no library"), std::string::npos) << o.err;
    fs::remove(sds);

    const fs::path junk = dir / "junk.txt";
    {
        std::ofstream out(junk);
        for (int i = 0; i < 5000; ++i)
            out << "junk line " << i << "\n";
        out << std::string(100000, '7') << "\n";  // one line far too long
    }
    o = RunLibrary({"import", "--dir", dir.path().string(), junk.string()});
    EXPECT_EQ(o.status, 2);
    EXPECT_LT(o.out.size() + o.err.size(), 4000u);
    EXPECT_NE(o.out.find("5001 malformed (lines 1, 2, 3"), std::string::npos) << o.out;
    EXPECT_NE(o.out.find("and 4981 more)"), std::string::npos) << o.out;
    EXPECT_NE(o.err.find("junk.txt, line 1: no puzzle"), std::string::npos) << o.err;
    EXPECT_NE(o.err.find("and 4981 more lines like these"), std::string::npos) << o.err;
}

}  // namespace
}  // namespace tavi::cli
