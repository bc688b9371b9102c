// SPDX-License-Identifier: GPL-3.0-or-later
// The file workbench over libraries in a temporary folder, with the person's
// answers scripted: rerating moves, the report of a check, abort, delete,
// duplicates and the reader of foreign files.
#include "workbench/workbench.h"

#include <gtest/gtest.h>

#include <sstream>

#include "grid/candidates.h"
#include "library/foreign_puzzles.h"
#include "library/library_files.h"
#include "library/library_pair.h"
#include "library/library_setup.h"
#include "library/library_test_support.h"
#include "solver/difficulty_score.h"
#include "solver/ladder.h"
#include "support/boards.h"
#include "support/game_fixture.h"
#include "workbench/import.h"

namespace tavi {
namespace {

namespace fs = std::filesystem;
using testing::ScriptedPrompter;

TEST(CheckReport, EachCaseOfTheTableInItsOrder) {
    using F = LibraryFate;
    struct Case {
        long r, o, u, t;
        LibraryFate fate;
        const char* text;
    } cases[] = {
        {5, 0, 0, 5, F::Delete, "All sudokus solved and rerated !"},
        {0, 4, 0, 4, F::Delete, "No sudokus solved, all rerated as Outlaw !"},
        {0, 0, 0, 3, F::Unchanged, "Not one sudoku was solved by the program !"},
        {0, 0, 3, 3, F::Unchanged, "All sudokus solved, but none of them could be rerated !"},
        {2, 1, 3, 6, F::Compact,
         "5 sudokus solved, 2 rerated, 3 not rerated. 1 unsolved and rated as Outlaw!"},
        {0, 2, 3, 5, F::Compact,
         "3 sudokus solved, but none of them could be rerated. 2 unsolved and rated as Outlaw!"},
        {0, 2, 0, 12345, F::Compact, "2 unsolved and rated as Outlaw!"},
        {2, 0, 3, 5, F::Compact, "All sudokus solved, 2 rerated, 3 not rerated."},
        {2, 0, 0, 5, F::Compact, "2 sudokus solved and rerated."},
        {2, 3, 0, 6, F::Compact, "2 sudokus solved and rerated. 3 unsolved and rated as Outlaw!"},
    };
    for (const Case& k : cases) {
        const CheckReport report = ReportFor(k.r, k.o, k.u, k.t);
        // One case has its title in lower case.
        const char* title = &k == &cases[3] ? "sudoku solve report" : "Sudoku solve report";
        EXPECT_EQ(std::tie(report.fate, report.title, report.text),
                  std::tuple(k.fate, title, k.text));
    }
}

TEST(ForeignPuzzles, LinesCandidatesAndGridsWithTheirProblems) {
    const auto& p = testing::GeneratedPuzzles(1)[0];
    const std::string line = FormatDigits(p.puzzle, '.');
    Board board = BoardFromPuzzle(p.puzzle);
    // 729 characters, a given written as the one candidate of its cell.
    std::string candidates = FormatBoardLine(board).substr(164);
    for (int c = 0; c < 81; ++c)
        if (p.puzzle[c]) candidates[9 * c + p.puzzle[c] - 1] = char('0' + p.puzzle[c]);
    const std::string grid = testing::GridText(line);
    std::istringstream in("# a comment\n" + line + "  3.4 rated elsewhere\n\n" + candidates +
                          "\r\n" + grid + "12345\n" + grid.substr(0, 60) + "\n" + line + "\n");
    const ForeignPuzzles read = ReadForeignPuzzles(in);
    ASSERT_EQ(read.puzzles.size(), 4u);
    EXPECT_EQ(std::tuple(read.puzzles[0].line, read.puzzles[0].puzzle), std::tuple(2, p.puzzle));
    // A candidate line knows a clue as a cell of one candidate: the givens and
    // every naked single of the fresh board.
    for (int c = 0; c < 81; ++c)
        EXPECT_EQ(read.puzzles[1].puzzle[c] != 0,
                  p.puzzle[c] != 0 || CountDigits(board.Candidates[c]) == 1);
    EXPECT_EQ(std::tuple(read.puzzles[2].line, read.puzzles[2].puzzle), std::tuple(5, p.puzzle));
    EXPECT_EQ(read.puzzles[3].puzzle, p.puzzle);
    // "12345", then two rows and a half of a grid.
    ASSERT_EQ(read.problems.size(), 3u);
    EXPECT_EQ(std::tuple(read.problems[0].line, read.problems[0].why),
              std::tuple(16, "no puzzle and no row of nine cells"));
    EXPECT_EQ(std::tuple(read.problems[1].line, read.problems[1].why),
              std::tuple(17, "a grid of 2 rows; a grid needs 9"));
    EXPECT_EQ(read.problems[2].line, 19);
}

// The files collectors keep: a byte order mark, numbered lines, a rating or a
// name before the puzzle, digits with blanks between them, and comments after
// ';' or "//". Over many puzzles, each layout gives back the puzzle written.
TEST(ForeignPuzzles, TheFilesCollectorsHave) {
    const auto& puzzles = testing::GeneratedPuzzles(40, 3);
    std::string text = "\xEF\xBB\xBF";
    for (std::size_t i = 0; i < puzzles.size(); ++i) {
        const std::string line = FormatDigits(puzzles[i].puzzle, i % 2 ? '.' : '0');
        std::string spaced;
        for (char ch : line)
            spaced += std::string(spaced.empty() ? "" : " ") + ch;
        switch (i % 6) {
            case 0: text += line + "\n"; break;  // the first line, behind the mark
            case 1: text += std::to_string(i + 1) + ". " + line + "\n"; break;
            case 2: text += std::to_string(i + 1) + ")\t" + line + " #" + "\n"; break;
            case 3: text += "8.4 Name-" + std::to_string(i) + " " + line + "\n"; break;
            case 4: text += spaced + "\n"; break;
            case 5: text += "; a comment\n// another\n  ;indented\n" + line + "\n"; break;
        }
    }
    // Two fields of 81 cells: which is the puzzle can't be told.
    text += "Name " + FormatDigits(puzzles[1].puzzle, '.') + " " +
            FormatDigits(puzzles[2].puzzle, '.') + "\n";
    std::istringstream in(text);
    int lines = 0;
    std::vector<Digits> read;
    std::vector<int> problems;
    ReadForeignPuzzles(
        in, [&](const ForeignPuzzle& p) { return read.push_back(p.puzzle), true; },
        [&](const ForeignProblem& p) { problems.push_back(p.line); }, &lines);
    ASSERT_EQ(read.size(), puzzles.size());
    for (std::size_t i = 0; i < puzzles.size(); ++i)
        EXPECT_EQ(read[i], puzzles[i].puzzle) << "puzzle " << i;
    EXPECT_EQ(problems, std::vector<int>{lines});
}

// A data folder with libraries made of generated puzzles sorted by their rating.
class WorkbenchTest : public ::testing::Test {
  public:
    WorkbenchTest() {
        for (const auto& p : testing::GeneratedPuzzles(200, 5)) {
            SolveContext ctx = testing::ContextOn(BoardFromPuzzle(p.puzzle));
            (SolveSudoku(ctx, {}) && ctx.SolvingLevel == 1 ? easy : other).push_back(p);
        }
    }

    void Add(int level, const GeneratedPuzzle& p) {
        ASSERT_TRUE(AppendToPair(root, LevelStem(level), {p.puzzle, p.solution, 0, 0}, {}));
    }
    // A puzzle no logic solves: two rows and one digit, with many solutions, one
    // of them on file; relabelled by `i`, so that each is a puzzle of its own.
    GeneratedPuzzle Broken(int i) {
        GeneratedPuzzle p{testing::DigitsOf(testing::kOpenPuzzle),
                          testing::DigitsOf(testing::kOpenSolution)};
        for (int c = 0; c < 81; ++c) {
            if (p.puzzle[c]) p.puzzle[c] = std::uint8_t((p.puzzle[c] + i - 1) % 9 + 1);
            p.solution[c] = std::uint8_t((p.solution[c] + i - 1) % 9 + 1);
        }
        return p;
    }
    long Count(int level) { return WholeRecords(PuzzleFile(root, LevelStem(level)), 166); }
    SudokuRecord At(int level, long n) { return testing::PairAt(root, LevelStem(level), n).first; }
    // Opens `level` at record 1.
    Workbench& Open(int level) {
        prompter.inputs.push_back("1");
        bench.Command1(level);
        return bench;
    }

    testing::TempDir dir;
    const fs::path root = dir.path();
    std::vector<GeneratedPuzzle> easy, other;
    ScriptedPrompter prompter;
    Workbench bench{prompter, root};
};

// Puzzles with no solution or several are not rated: they stay where they are,
// counted in none of the report's counters, and named under their own heading.
TEST_F(WorkbenchTest, PuzzlesWithoutOneSolutionStayAndAreNamedApart) {
    Add(9, Broken(0));
    Add(9, easy[0]);
    Add(9, Broken(1));
    Add(9, {testing::DeadCell(), Digits{}});
    Open(9).CommandCheckAll();
    EXPECT_EQ(prompter.shown.back().text,
              "1 sudokus solved and rerated.\nNo unique solution, not rated and left where they "
              "stand:\n1 without a solution (record 4)\n2 with several solutions (records 1 and "
              "3)");
    EXPECT_EQ(bench.NotUnique(), 3);
    EXPECT_EQ(Count(9), 3);
    EXPECT_EQ(At(9, 1), (SudokuRecord{Broken(0).puzzle, Broken(0).solution, 0, 0}))
        << "not rated, and not rewritten";
    EXPECT_EQ(Count(1), 1);
    EXPECT_EQ(At(1, 1), (SudokuRecord{easy[0].puzzle, easy[0].solution, 0, 0}));
}

TEST_F(WorkbenchTest, AnAbortAfterTheThirdOfTenTreatsOnlyThree) {
    // Ten Hard records: the first five Easy puzzles, then five that fail.
    for (int i = 0; i < 10; ++i)
        Add(3, i < 5 ? easy[i] : Broken(i));
    Open(3);
    bench.SetRedrawEvery(std::chrono::milliseconds(0));
    bench.SetYield([&] {
        if (bench.progress().Bar1 == 3) bench.CommandAbort();
    });
    bench.CommandCheckAll();
    EXPECT_EQ(prompter.shown.back().text, "All sudokus solved and rerated !")
        << "the total of the report is the last number done";
    EXPECT_EQ(Count(3), 7) << "the records the run did not reach stay";
    EXPECT_EQ(Count(1), 3);
    for (long n = 1; n <= 7; ++n)
        EXPECT_EQ(At(3, n).Puzzle, (n <= 2 ? easy[n + 2] : Broken(n + 2)).puzzle);
}

TEST_F(WorkbenchTest, SolveRatesInPlaceOrMovesAndDeleteOfTheOnlyRecordLeavesNoFile) {
    Add(1, easy[0]);
    Add(1, Broken(0));
    Add(1, other[0]);
    Open(1).CommandSolve();
    EXPECT_EQ(prompter.Last(),
              testing::TitleText("Sudoku solved", "Sudoku solved and rated as Easy"));
    EXPECT_EQ(prompter.beeps, 1);
    EXPECT_EQ(Count(1), 3);
    bench.CommandNext();
    bench.CommandSolve();
    EXPECT_EQ(prompter.shown.back().text,
              "This Sudoku has more than one solution: it is not rated and stays where it is.");
    EXPECT_EQ(Count(1), 3);
    EXPECT_EQ(Count(9), 0);
    bench.CommandNext();
    bench.CommandSolve();
    EXPECT_EQ(Count(1), 2) << "a puzzle of another level moves";
    EXPECT_EQ(bench.CurrentNumber(1), 2) << "the last record is shown";
    bench.CommandDelete();
    bench.CommandDelete();
    EXPECT_FALSE(fs::exists(PuzzleFile(root, LevelStem(1))));
    EXPECT_FALSE(fs::exists(LogFile(root, LevelStem(1))));
    EXPECT_FALSE(bench.commands().Delete);
}

// The window hears what each command changed, compared with what it showed, and
// nothing of a command that changed nothing.
TEST_F(WorkbenchTest, TheWindowHearsWhatChangedAndOnlyThat) {
    for (int i = 0; i < 3; ++i)
        Add(2, other[i]);
    std::vector<unsigned> heard;
    bench.SetEvents([&](Changes c) { heard.push_back(c.bits); });
    Open(2);
    bench.CommandPrevious();  // at the first record: nothing to do
    bench.CommandNext();
    bench.CommandNext();   // the last one: Next and Last go off
    bench.CommandAbort();  // no run
    EXPECT_EQ(heard,
              (std::vector<unsigned>{kWorkbenchTitle | kWorkbenchCommands | kWorkbenchRecord,
                                     kWorkbenchTitle | kWorkbenchRecord | kWorkbenchCommands,
                                     kWorkbenchTitle | kWorkbenchRecord | kWorkbenchCommands}));
    // A run tells its progress as it breathes, the table of hardest techniques
    // as it fills, and the frame gone at its end.
    heard.clear();
    bench.SetRedrawEvery(std::chrono::milliseconds(0));
    bench.CommandCheckAll();
    ASSERT_GE(heard.size(), 3u);
    EXPECT_EQ(heard.front(), kWorkbenchProgress | kWorkbenchCommands);
    EXPECT_TRUE(
        std::any_of(heard.begin(), heard.end(), [](unsigned c) { return c & kWorkbenchReport; }));
    EXPECT_TRUE(Changes{heard.back()}.Has(kWorkbenchProgress | kWorkbenchCommands));
}

// Remove Duplicates keeps the first of each group, and passes over damaged
// records: they stay as they stood, and are no duplicate of anything.
TEST_F(WorkbenchTest, BruteForceAnswersAndRemoveDuplicatesKeepsTheFirst) {
    GeneratedPuzzle two = easy[1];
    two.solution = Digits{};  // a record without its solution gets it back
    for (const auto* p : {&two, &easy[2], &easy[1], &easy[1], &easy[2], &easy[1], &easy[2]})
        Add(2, *p);
    SudokuRecord bad{easy[1].puzzle, easy[1].solution, 0, 0};
    bad.BestSeconds = 75;
    ASSERT_TRUE(WriteSudokuRecord(PuzzleFile(root, LevelStem(2)), 4, bad));
    Open(2).CommandSolve(true, false);
    EXPECT_TRUE(prompter.shown.size() == 1) << "a release outside the button does nothing";
    bench.CommandSolve(true, true);
    EXPECT_EQ(prompter.Last(),
              testing::TitleText("Valid Sudoku", "This Sudoku has one unique solution"));
    EXPECT_EQ(At(2, 1).Solution, easy[1].solution);
    bench.CommandRemoveDuplicates();
    EXPECT_EQ(prompter.shown.back().text,
              "4 duplicate sudokus removed. 1 damaged records were passed over and left as they "
              "stand.");
    ASSERT_EQ(Count(2), 3);
    EXPECT_EQ(testing::FileBytes(PuzzleFile(root, LevelStem(2))).size(), 3 * kSudokuRecordSize);
    SudokuRecordBytes bytes;
    ASSERT_TRUE(ReadRecordBytes(PuzzleFile(root, LevelStem(2)), 3, bytes));
    EXPECT_EQ(bytes, ToBytes(bad)) << "the damaged one, as it stood";
    bench.CommandRemoveDuplicates();
    EXPECT_EQ(prompter.shown.back().text,
              "No duplicate sudokus found. 1 damaged records were passed over and left as they "
              "stand.");
}

TEST_F(WorkbenchTest, ImportRatesChecksAndFilesEachPuzzleByItsLevel) {
    Add(1, easy[0]);
    // Two solutions: a puzzle with its clues cut to the first eight.
    Digits loose{};
    for (int c = 0, kept = 0; c < 81 && kept < 8; ++c)
        if (easy[1].puzzle[c]) loose[c] = easy[1].puzzle[c], ++kept;
    Digits clash = easy[3].puzzle;  // no solution: two sevens in row A
    clash[0] = clash[1] = 7;
    std::istringstream file(
        FormatDigits(easy[0].puzzle, '.') + "\n" + FormatDigits(easy[2].puzzle, '.') + " 1.2\n" +
        FormatDigits(clash, '.') + "\n" + FormatDigits(loose, '.') + "\nnot a puzzle\n" +
        FormatDigits(other[3].puzzle, '0') + "\n" + FormatDigits(easy[2].puzzle, '.') + "\n");
    const ImportReport report = ImportPuzzles(root, file);
    SolveContext ctx = testing::ContextOn(BoardFromPuzzle(other[3].puzzle));
    const int level = SolveSudoku(ctx, {}) ? ctx.SolvingLevel : kOutlaw;
    EXPECT_EQ(report.added[1], 1 + (level == 1));
    EXPECT_EQ(report.added[level], level == 1 ? 2 : 1);
    EXPECT_EQ(Count(1), 2 + (level == 1));
    std::string levels = level == 1 ? "2 Easy" : "1 Easy, 1 " + std::string(LevelName(level));
    EXPECT_EQ(report.Text(), "2 sudokus imported: " + levels +
                                 ". Rejected: 1 without a solution (line 3), 1 with several "
                                 "solutions (line 4), 2 already in the library (lines 1, 7), 1 "
                                 "malformed (line 5).");
    EXPECT_EQ(report.FullList(),
              "line 3\twithout a solution\nline 4\twith several solutions\nline 1\talready in "
              "the library\nline 7\talready in the library\nline 5\tmalformed: no puzzle and no "
              "row of nine cells\n");
    EXPECT_EQ(At(1, 2).Solution, easy[2].solution);
}

// A record whose solution does not fit its clues, and a log record with one
// step off the board: neither is solved, moved or rewritten, and a check names
// them (the first ten, then how many more) and leaves them as they stand.
TEST_F(WorkbenchTest, DamagedRecordsAreNamedAndNeverSolvedMovedOrRewritten) {
    Add(3, easy[0]);
    for (int i = 1; i <= 14; ++i) {
        Add(3, easy[i]);
        SudokuRecord bad{easy[i].puzzle, easy[i].solution, 0, 0};
        bad.Solution[0] = bad.Solution[1];
        ASSERT_TRUE(WriteSudokuRecord(PuzzleFile(root, LevelStem(3)), i + 1, bad));
    }
    Add(3, easy[15]);
    SudokuLogRecord game = testing::BusyLog(47);
    game.LogCell[10] = 200;
    ASSERT_TRUE(WriteRecordBytes(LogFile(root, LevelStem(3)), 16, ToBytes(game)));
    const auto sds = testing::FileBytes(PuzzleFile(root, LevelStem(3)));
    const auto sdl = testing::FileBytes(LogFile(root, LevelStem(3)));

    Open(3).CommandNext();
    EXPECT_NE(bench.Damaged().find("Record 2 of Sudoku_Hard.sds is damaged"), std::string::npos);
    bench.CommandSolve();
    bench.CommandSolve(true, true);
    EXPECT_EQ(prompter.shown.back().title, "File Error");
    EXPECT_NE(prompter.shown.back().text.find("Record 2 of Sudoku_Hard.sds"), std::string::npos);
    EXPECT_EQ(testing::FileBytes(PuzzleFile(root, LevelStem(3))), sds);

    bench.CommandCheckAll();
    const std::string report = prompter.shown.back().text;
    EXPECT_NE(report.find("15 records could not be read and were left as they stand:"),
              std::string::npos)
        << report;
    EXPECT_NE(report.find("\nRecord 2 of Sudoku_Hard.sds is damaged"), std::string::npos);
    EXPECT_EQ(report.find("Record 12 of"), std::string::npos) << "ten are named";
    EXPECT_NE(report.find("\nand 5 more."), std::string::npos) << report;
    // Record 1 moved to Easy; the damaged ones stay, bytes and all.
    EXPECT_EQ(Count(1), 1);
    ASSERT_EQ(Count(3), 15);
    const auto left = testing::FileBytes(PuzzleFile(root, LevelStem(3)));
    EXPECT_TRUE(std::equal(left.begin(), left.end(), sds.begin() + kSudokuRecordSize));
    const auto leftLog = testing::FileBytes(LogFile(root, LevelStem(3)));
    EXPECT_TRUE(std::equal(leftLog.begin(), leftLog.end(), sdl.begin() + kSudokuLogRecordSize));
    EXPECT_EQ(bench.Unreadable(), 15);
}

// Moves that fail (here Easy's log is a folder) are said once, in the report,
// with how many puzzles stay where they were; nothing is lost.
TEST_F(WorkbenchTest, FailedMovesAreCountedInTheReportNotBoxedOneByOne) {
    for (int i = 0; i < 5; ++i)
        Add(3, easy[i]);
    Add(3, Broken(0));
    Add(1, easy[9]);
    fs::remove(LogFile(root, LevelStem(1)));
    fs::create_directory(LogFile(root, LevelStem(1)));
    Open(3);
    prompter.shown.clear();
    bench.CommandCheckAll();
    ASSERT_EQ(prompter.shown.size(), 1u) << prompter.shown[0].text;
    const std::string report = prompter.shown[0].text;
    EXPECT_NE(report.find("\n5 sudokus could not be moved to their level and stay where they "
                          "were.\n5 file errors:\n"),
              std::string::npos)
        << report;
    EXPECT_EQ(Count(3), 6) << "the Easy ones stayed, and the one without a unique solution";
    EXPECT_EQ(Count(9), 0);
    EXPECT_EQ(bench.FileErrors(), 5);
}

// Check All that moves every record out of Easy deletes the pair (which the next
// start does not copy back: CopyLibraryFiles' test), and the moves of a later
// check into Easy make the pair anew.
TEST_F(WorkbenchTest, AnEmptiedLevelStaysEmptyAndTakesMovesIn) {
    testing::TempDir app;
    const LibraryFolders folders{app.path(), root};
    WriteSudokuFile(PuzzleFile(app.path(), LevelStem(1)),
                    std::vector<SudokuRecord>{{other[0].puzzle, other[0].solution, 0, 0}});
    WriteSudokuFile(PuzzleFile(app.path(), LevelStem(9)),
                    std::vector<SudokuRecord>{{easy[0].puzzle, easy[0].solution, 0, 0},
                                              {easy[1].puzzle, easy[1].solution, 0, 0}});
    CopyLibraryFiles(folders);
    Open(1).CommandCheckAll();
    EXPECT_EQ(prompter.shown.back().text, "All sudokus solved and rerated !");
    EXPECT_FALSE(fs::exists(PuzzleFile(root, LevelStem(1))));
    EXPECT_FALSE(fs::exists(LogFile(root, LevelStem(1))));
    EXPECT_FALSE(bench.commands().Solve);
    bench.Command1(1);
    EXPECT_EQ(prompter.shown.back().text, "No Easy sudokus found to open");
    Open(9).CommandCheckAll();
    EXPECT_EQ(prompter.shown.back().text, "All sudokus solved and rerated !");
    ASSERT_EQ(Count(1), 2);
    EXPECT_EQ(WholeRecords(LogFile(root, LevelStem(1)), kSudokuLogRecordSize), 2);
    EXPECT_EQ(At(1, 2).Puzzle, easy[1].puzzle);
}

// Export writes the records of a range, '.' for empty cells and the level and
// score after each, and the import reads the file back as the same puzzles.
TEST_F(WorkbenchTest, ExportWritesWhatTheImportReadsBack) {
    for (int i = 0; i < 12; ++i)
        Add(2, other[i]);
    Open(2).CommandExport(root / "out.txt", 3, 10);
    EXPECT_EQ(prompter.shown.back().text, "8 Medium sudokus exported to out.txt.");
    std::ifstream in(root / "out.txt");
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    ASSERT_EQ(lines.size(), 8u);
    EXPECT_EQ(lines[0], FormatDigits(other[2].puzzle, '.') + "\t2\tMedium\t" +
                            FormatScore(RatePuzzleWithScore(other[2].puzzle).score));
    in.clear();
    in.seekg(0);
    const ForeignPuzzles read = ReadForeignPuzzles(in);
    ASSERT_EQ(read.puzzles.size(), 8u);
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(read.puzzles[size_t(i)].puzzle, other[size_t(i + 2)].puzzle);
    EXPECT_TRUE(read.problems.empty());
}

}  // namespace
}  // namespace tavi
