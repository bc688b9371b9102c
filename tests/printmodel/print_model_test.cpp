// SPDX-License-Identifier: GPL-3.0-or-later
// The print job apart from drawing: the range label, the places on the page,
// which puzzle goes where, and what a read failure does to the job.
#include "printmodel/print_model.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>

#include "grid/candidates.h"
#include "grid/levels.h"
#include "library/library_files.h"
#include "library/library_test_support.h"
#include "settings/technique_manager.h"
#include "support/puzzles.h"

namespace tavi {
namespace {

PrintSettings Settings(int perPageIndex, int pages, int from, bool current = false) {
    PrintSettings s;
    s.PrintPuzzlesPerPageIndex = perPageIndex;
    s.PrintPages = pages;
    s.PrintFrom = from;
    s.PrintCurrent = current;
    return s;
}

TEST(PrintRange, CountsThePlacesAndGivesTheFirstToTheOnScreenPuzzleWhenThereIsOne) {
    EXPECT_EQ(LabelTo(Settings(2, 3, 7)), "to 18");
    EXPECT_EQ(LabelTo(Settings(0, 0, 4)), "to 4");  // the start value counts as one page
    // The on-screen puzzle takes the first place only when there is one.
    PrintSnapshot snapshot;
    snapshot.Number = 42;
    auto slots = PlanJob(Settings(2, 2, 1, true), snapshot);
    ASSERT_EQ(slots.size(), 8u);
    EXPECT_EQ(std::tuple(slots[0].onScreen, slots[0].number, slots[1].number, slots[7].number),
              std::tuple(true, 42, 1, 7));
    EXPECT_EQ(std::tuple(slots[4].page, slots[4].position), std::tuple(2, 0));
    snapshot.Number = 0;  // no game on the screen: the range starts at once
    slots = PlanJob(Settings(2, 1, 1, true), snapshot);
    EXPECT_FALSE(slots[0].onScreen);
    EXPECT_EQ(slots[3].number, 4);
}

TEST(PrintPage, A4GeometryAndPlacesInsideThePrintArea) {
    // A4 at 1200 dots to the inch.
    const PageGeometry g = GeometryOf(9921, 14031);
    EXPECT_EQ(g.PrintMargin, 1181);  // 25 mm
    EXPECT_EQ(g.area.width, 9921 - 2 * g.PrintMargin);
    EXPECT_EQ(PuzzlePlaces(g, 1)[0].board.width, g.area.width);
    EXPECT_EQ(PuzzlePlaces(g, 2)[1].board.width, 10 * g.PrintCentimetre);
    EXPECT_EQ(PuzzlePlaces(g, 4)[3].board.width, 7 * g.PrintCentimetre);
    const Rect heading = HeadingRect(g), number = PageNumberRect(g);
    for (int n : {1, 2, 4}) {
        const auto places = PuzzlePlaces(g, n);
        ASSERT_EQ(int(places.size()), n);
        for (const auto& p : places)
            for (const Rect& r : {p.board, p.caption, p.solution}) {
                EXPECT_GE(r.x, g.area.x);
                EXPECT_LE(r.right(), g.area.right());
                EXPECT_GE(r.y, heading.bottom()) << n;
                EXPECT_LE(r.bottom(), number.y) << n;
            }
        // No two boards overlap, and no board covers a solution.
        for (std::size_t i = 0; i < places.size(); ++i)
            for (std::size_t j = 0; j < places.size(); ++j) {
                const Rect a = places[i].board, b = places[j].solution;
                const bool apart =
                    a.right() <= b.x || b.right() <= a.x || a.bottom() <= b.y || b.bottom() <= a.y;
                EXPECT_TRUE(apart) << n << " " << i << " " << j;
            }
    }
}

class PrintJobTest : public ::testing::Test {
  public:
    PrintJobTest() {
        for (int i = 0; i < 3; ++i) {
            const auto& p = testing::GeneratedPuzzles(3, 5)[i];
            WriteSudokuRecord(PuzzleFile(folder, LevelStem(2)), i + 1,
                              SudokuRecord{p.puzzle, p.solution, 0, 0});
        }
    }

    struct Recorder : PrintSink {
        std::vector<std::string> events;
        std::vector<PrintPuzzle> puzzles;
        void BeginPage(int page) override { events.push_back("begin " + std::to_string(page)); }
        void Puzzle(const PrintSlot& slot, const PrintPuzzle& p) override {
            events.push_back("# " + std::to_string(slot.number));
            puzzles.push_back(p);
        }
        void EndPage(int page) override { events.push_back("end " + std::to_string(page)); }
    };

    testing::TempDir dir;
    const std::filesystem::path folder = dir.path();
};

TEST_F(PrintJobTest, ReadsEachPuzzleWithItsMarksAndStopsAtTheFirstMissingRecord) {
    PrintSettings s = Settings(1, 2, 2);
    s.PrintLevelIndex = 1;
    Recorder r;
    EXPECT_EQ(RunPrintJob(s, {}, folder, r), PrintResult::ReadFailed);
    // Record 4 does not exist: the job ends on page 2, after what was printed.
    EXPECT_EQ(r.events, (std::vector<std::string>{"begin 1", "# 2", "# 3", "end 1", "begin 2"}));
    const auto& p = testing::GeneratedPuzzles(3, 5)[1];
    EXPECT_EQ(std::tie(r.puzzles[0].Grid, r.puzzles[0].Solution, r.puzzles[0].Marks),
              std::tuple(p.puzzle, p.solution, BoardFromPuzzle(p.puzzle).Candidates));
    // A range that starts beyond the library ends on its first read, and the
    // window says so before the job is started.
    s.PrintFrom = 4;
    Recorder none;
    EXPECT_EQ(RunPrintJob(s, {}, folder, none), PrintResult::ReadFailed);
    EXPECT_EQ(none.events, (std::vector<std::string>{"begin 1"}));
    EXPECT_EQ(RangeNote(s, 0), "There are no Medium puzzles");
}

// The on-screen puzzle in its current state keeps its digits, and its marks
// when pencil marks are asked for; every other grid is its clues.
TEST_F(PrintJobTest, PencilmarksChoosesOnlyForTheOnScreenPuzzleInItsCurrentState) {
    const auto& p = testing::GeneratedPuzzles(3, 5)[0];
    PrintSnapshot snap;
    snap.Puzzle = snap.Grid = p.puzzle;
    snap.Solution = p.solution;
    const int open = int(std::find(p.puzzle.begin(), p.puzzle.end(), 0) - p.puzzle.begin());
    snap.Grid[open] = p.solution[open];
    snap.Marks[open + 1] = 0b101;
    snap.Number = 9;
    for (const bool current : {false, true})
        for (const bool state : {false, true})
            for (const bool pencils : {false, true}) {
                PrintSettings s = Settings(1, 1, 1, current);
                s.PrintLevelIndex = 1;
                s.PrintCurrentState = state;
                s.PrintPencils = pencils;
                Recorder r;
                ASSERT_EQ(RunPrintJob(s, snap, folder, r), PrintResult::Done);
                ASSERT_EQ(r.puzzles.size(), 2u);
                EXPECT_EQ(r.puzzles[0].Number == 9, current);
                for (const PrintPuzzle& printed : r.puzzles) {
                    // Every other grid carries the marks its clues leave.
                    const bool asItStands = current && state && printed.Number == 9;
                    const std::array<CandidateMask, 81> expected =
                        !asItStands ? BoardFromPuzzle(printed.Puzzle).Candidates
                        : pencils   ? snap.Marks
                                    : std::array<CandidateMask, 81>{};
                    EXPECT_EQ(printed.Marks, expected) << current << state << pencils;
                    EXPECT_EQ(printed.Grid, asItStands ? snap.Grid : printed.Puzzle);
                    if (printed.Number == 9) {
                        EXPECT_EQ(printed.Puzzle, snap.Puzzle);
                    }
                }
            }
}

TEST(TeachingPrint, TheTechniquesOfTheSolutionInOrderOfFirstUseWithTheirCounts) {
    const auto& p = testing::GeneratedPuzzles(3, 5)[0];
    const auto used = TechniquesNeeded(p.puzzle);
    ASSERT_FALSE(used.empty());
    int steps = 0;
    for (const auto& t : used) {
        EXPECT_GT(t.count, 0) << t.name;
        steps += t.count;
        EXPECT_EQ(std::count_if(used.begin(), used.end(),
                                [&](const TechniqueCount& o) { return o.name == t.name; }),
                  1);
    }
    // Every step places a digit or removes a candidate: never more steps than
    // the empty cells and the candidates of the start together.
    const Board start = BoardFromPuzzle(p.puzzle);
    int marks = 0;
    for (int c = 0; c < 81; ++c)
        marks += std::popcount(unsigned(start.Candidates[c]));
    EXPECT_LE(steps, start.EmptyCount() + marks);
    // Named as the Solving Techniques Manager names them.
    for (const auto& t : used)
        EXPECT_TRUE(std::any_of(kTechniqueRows.begin(), kTechniqueRows.end(),
                                [&](const TechniqueRow& row) { return row.caption == t.name; }))
            << t.name;
    EXPECT_EQ(TeachingText({{"Naked Single", 3}, {"Hidden Single", 1}}),
              "Techniques: Naked Single x 3, Hidden Single x 1");
    EXPECT_EQ(TeachingText({{"Naked Single", 3}, {"Hidden Single", 1}, {"X-Wing", 2}}, 1),
              "Techniques: Naked Single x 3, + 2 more");
    Digits clash = p.puzzle;
    clash[0] = clash[1] = 5;
    EXPECT_TRUE(TechniquesNeeded(clash).empty());
}

}  // namespace
}  // namespace tavi
