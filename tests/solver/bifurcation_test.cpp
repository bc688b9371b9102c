// SPDX-License-Identifier: GPL-3.0-or-later
// Bifurcation on the boards where the head of the ladder gets stuck. The guess
// that must be taken is worked out trial by trial here, so the tests hold the
// rung to its order and its restore whatever the ladder learns later.
#include <gtest/gtest.h>

#include <optional>

#include "solver/ladder.h"
#include "solver/techniques.h"
#include "support/boards.h"
#include "support/puzzles.h"

namespace tavi {
namespace {

struct Guess {
    int digit, cell;
    bool operator==(const Guess&) const = default;
};

// Boards from generated puzzles as the head of the ladder leaves them.
// Last, two rows and one digit: a two-candidate cell in C1 whose guesses both
// leave the board open, so that every trial fails.
std::vector<Board> StuckBoards(int count) {
    std::vector<Digits> puzzles;
    for (const auto& p : testing::GeneratedPuzzles(count))
        puzzles.push_back(p.puzzle);
    puzzles.push_back(testing::DigitsOf(testing::kOpenPuzzle));
    std::vector<Board> boards;
    for (const Digits& puzzle : puzzles) {
        SolveContext ctx = testing::ContextOn(BoardFromPuzzle(puzzle));
        int cells = ctx.board.EmptyCount();
        bool contradiction = false;
        if (!PreSolve(ctx, cells, contradiction) && !contradiction) boards.push_back(ctx.board);
    }
    return boards;
}

bool TrialSolves(const Board& board, Guess g) {
    SolveContext trial = testing::ContextOn(board);
    ModeScope forced(trial, trial.Mode().With(SolveMode::kForceZet));
    return BIFSolveSudoku(trial, g.digit, g.cell);
}

// The first two-candidate guess that the logic carries to the end, in the given
// order of the loops: digit by digit, or cell by cell.
std::optional<Guess> FirstWorkingGuess(const Board& b, bool digitFirst) {
    for (int i = 0; i < 9 * 81; ++i) {
        const Guess g = digitFirst ? Guess{1 + i / 81, i % 81} : Guess{1 + i % 9, i / 9};
        if (CountDigits(b.Candidates[g.cell]) == 2 && b.Has(g.digit, g.cell) && TrialSolves(b, g))
            return g;
    }
    return std::nullopt;
}

// On each stuck board the rung is run three ways: on the workbench, under a hint
// (with ForceZet set, so the trials run for real) and while Autosolve plays.
TEST(Bifurcation, GuessesDigitByDigitOnEverySideAndKeepsTheTrialsToItself) {
    int placed = 0, orderMatters = 0;
    for (const Board& stuck : StuckBoards(150)) {
        const auto expected = FirstWorkingGuess(stuck, true);
        const auto cellFirst = FirstWorkingGuess(stuck, false);
        SolveContext ctx = testing::ContextOn(stuck);
        const ConclusionList& trace = ctx.hint.Conclusions;
        // Through the rung, which raises the level after the hit.
        ASSERT_EQ(RunRung(ctx, RungsOf(kBifurcationTechnique)[0]).found, expected.has_value());
        Board after = stuck;
        if (expected) {
            ++placed;
            orderMatters += expected != cellFirst;
            Zet(after, expected->digit, expected->cell);
            after.CurrentGrid[expected->cell] = std::uint8_t(expected->digit);
            EXPECT_EQ(ctx.SolvingLevel, 8);
            ASSERT_EQ(trace.size(), 1u) << "the trials leave no trace";
            EXPECT_TRUE(trace[0].placed);
            EXPECT_EQ((Guess{trace[0].digit, trace[0].cell}), *expected);
        } else {
            EXPECT_TRUE(trace.empty());
        }
        ASSERT_EQ(testing::GridAndMarks(ctx.board), testing::GridAndMarks(after))
            << FormatDigits(stuck.CurrentGrid, '.');

        // Under a hint the board comes back as it was and the record names the guess.
        testing::RecordingListener heard;
        SolveContext hint = testing::ContextOn(stuck, Side::Game);
        ModeScope looking(hint, SolveMode{}.With(SolveMode::kHintOnly).With(SolveMode::kForceZet));
        hint.listener = &heard;
        hint.hint = testing::MarkedHint();
        ASSERT_EQ(Bifurcation(hint), expected.has_value());
        EXPECT_TRUE(hint.HintOnly() && hint.ForceZet()) << "the mode is as it was";
        ASSERT_EQ(testing::GridAndMarks(hint.board), testing::GridAndMarks(stuck));
        EXPECT_TRUE(heard.placed.empty() && heard.removed.empty());
        if (!expected) continue;
        const HintRecord& h = hint.hint;
        EXPECT_EQ(h.HintKind, HintKind::Bifurcation);
        EXPECT_EQ((Guess{h.HintNumber, h.HintCell}), *expected);
        EXPECT_EQ(std::tuple(h.HintVariant, h.HintRow), std::tuple(-99, -99));

        // While Autosolve plays, the guess is a move of the game; the trials are not.
        testing::RecordingListener played;
        SolveContext autosolve = testing::ContextOn(stuck, Side::Game);
        ModeScope autosolving(autosolve, autosolve.Mode().With(SolveMode::kAutosolveActive));
        autosolve.listener = &played;
        ASSERT_TRUE(Bifurcation(autosolve));
        EXPECT_EQ(played.placed,
                  (std::vector<testing::Removal>{{expected->cell, expected->digit}}));
        EXPECT_TRUE(played.removed.empty());
        EXPECT_FALSE(autosolve.ForceZet());
    }
    EXPECT_GT(placed, 0);
    EXPECT_GT(orderMatters, 0) << "no board told digit order from cell order";
}

}  // namespace
}  // namespace tavi
