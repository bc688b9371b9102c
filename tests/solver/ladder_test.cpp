// SPDX-License-Identifier: GPL-3.0-or-later
#include "solver/ladder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "grid/candidates.h"
#include "support/boards.h"
#include "support/puzzles.h"

namespace tavi {
namespace {

// A generated puzzle that the ladder rates `level`, from the test corpus.
const GeneratedPuzzle* PuzzleRated(int level) {
    for (const auto& p : testing::GeneratedPuzzles(400)) {
        SolveContext ctx = testing::ContextOn(BoardFromPuzzle(p.puzzle));
        if (SolveSudoku(ctx, {}) && ctx.SolvingLevel == level) return &p;
    }
    return nullptr;
}

// A run says how it ended, whatever kind of run it is, and its caller speaks; a
// batch (Check All, an import) writes its progress, a run alone shows none.
TEST(WorkbenchLadder, TellsItsOutcomeAndReportsProgressOnlyInABatch) {
    const GeneratedPuzzle* p = PuzzleRated(3);
    ASSERT_NE(p, nullptr);
    struct Case {
        bool import, check;
        const char* progress;  // one of the texts, or null for none
    } cases[] = {
        {false, false, nullptr},
        {false, true, "Solving Sudoku : Rated Easy or higher - Scanning for Naked Singles"},
        {true, false,
         "Solving Imported Sudoku : Rated Easy or higher - Scanning for Pointing Pairs"},
        {true, true, nullptr},
    };
    for (const Case& c : cases) {
        std::vector<std::string> texts;
        SolveContext ctx = testing::ContextOn(BoardFromPuzzle(p->puzzle));
        WorkbenchRun run;
        run.ImportRunning = c.import;
        run.CheckRunning = c.check;
        run.observer.progress = [&](const std::string& t) { texts.push_back(t); };
        const SolveOutcome outcome = SolveSudoku(ctx, run);
        EXPECT_EQ(std::tuple(outcome.solved, outcome.full, outcome.level),
                  std::tuple(true, true, 3));
        EXPECT_EQ(std::tuple(ctx.SolvingLevel, ctx.board.CurrentGrid), std::tuple(3, p->solution));
        EXPECT_EQ(texts.empty(), !c.import && !c.check);
        if (!c.progress) continue;
        // Before anything is found the base text is still empty.
        EXPECT_EQ(texts.front(), " - Scanning for Hidden Singles");
        const std::set<std::string> seen(texts.begin(), texts.end());
        EXPECT_TRUE(seen.count(c.progress));
        if (c.check) {
            EXPECT_TRUE(
                seen.count("Solving Sudoku : Rated Hard or higher - Scanning for Hidden Singles"));
        }
    }
}

TEST(WorkbenchLadder, FullBoardAndContradictions) {
    const auto& p = testing::GeneratedPuzzles(1)[0];
    WorkbenchRun run;

    // All 81 given: nothing to find, no level; the board is full, so its caller
    // beeps, but has no rating to say.
    SolveContext full = testing::ContextOn(BoardFromPuzzle(p.solution));
    const SolveOutcome given = SolveSudoku(full, run);
    EXPECT_EQ(std::tuple(given.solved, given.full, given.level), std::tuple(false, true, 0));

    // A cell with no candidate left ends the run at once.
    SolveContext broken = testing::ContextOn(BoardFromPuzzle(p.puzzle));
    int empty = 0;
    while (p.puzzle[empty])
        ++empty;
    broken.board.Candidates[empty] = 0;
    SolveContext head = broken;
    int cells = head.board.EmptyCount();
    bool contradiction = false;
    EXPECT_FALSE(PreSolve(head, cells, contradiction));
    EXPECT_TRUE(contradiction) << "the head of the ladder flags it for the search";
    EXPECT_FALSE(SolveSudoku(broken, run));
    EXPECT_EQ(broken.SolvingLevel, 0);

    // Two equal givens that see each other have no solution, whatever the candidates say.
    SolveContext clash = testing::ContextOn(BoardFromPuzzle(testing::WithClash(p.puzzle)));
    EXPECT_FALSE(SolveSudoku(clash, run).full);
    EXPECT_FALSE(SolveSudokuGame(clash).full);
}

// The uniqueness rungs rest on a puzzle having one solution. On one with two they
// may take a candidate of either, but the run still ends, and never with a board
// that breaks a rule: it is solved into one of the solutions, or it stops.
TEST(WorkbenchLadder, EndsOnAPuzzleWithTwoSolutions) {
    const Digits twoSolutions = testing::DigitsOf(
        "000040190004000208200050000049000001010090076003000000000019800075400000100070500");
    SolveContext ctx = testing::ContextOn(BoardFromPuzzle(twoSolutions));
    const bool solved = SolveSudoku(ctx, WorkbenchRun{}).solved;
    const Digits& grid = ctx.board.CurrentGrid;
    EXPECT_FALSE(GivensClash(grid)) << FormatDigits(grid, '.');
    EXPECT_TRUE(!solved || std::count(grid.begin(), grid.end(), 0) == 0);
}

// Moving a technique that finds nothing around must not change a rating, and a
// position held by two techniques runs only the higher one.
TEST(WorkbenchLadder, FollowsTheTechniqueOrder) {
    // With the forcing chains on the ladder a generated puzzle hardly ever needs
    // a guess; one whose givens are taken away, first to last, soon does.
    Digits puzzle = testing::GeneratedPuzzles(1)[0].puzzle;
    auto rate = [&](const TechniqueOrder& order) {
        SolveContext ctx = testing::ContextOn(BoardFromPuzzle(puzzle));
        WorkbenchRun run;
        run.order = &order;
        const bool ok = SolveSudoku(ctx, run).solved;
        return ok ? ctx.SolvingLevel : 9;
    };
    TechniqueOrder order = DefaultTechniqueOrder();
    for (int c = 0; c < 81 && rate(order) < 8; ++c)
        puzzle[c] = 0;
    ASSERT_EQ(rate(order), 8) << "no puzzle needs bifurcation";
    std::swap(order[8], order[38]);
    EXPECT_EQ(rate(order), 8);

    // Bifurcation keeps its place whatever the table says about it.
    order = DefaultTechniqueOrder();
    order[39] = 12;
    EXPECT_EQ(rate(order), 8);
}

}  // namespace
}  // namespace tavi
