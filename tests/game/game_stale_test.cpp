// SPDX-License-Identifier: GPL-3.0-or-later
// Nothing stale on the board: a hint's colours, its text and the headers it
// picked go with the action that made the hint false, and stay while it holds.
#include "support/game_fixture.h"

namespace tavi::testing {
namespace {

class Stale : public GameFixture {
  public:
    bool AnyPaint() const {
        for (int c = 0; c < 81; ++c) {
            if (game->CellPaint(c)) return true;
            for (int d = 1; d <= 9; ++d)
                if (game->MarkPaint(d, c)) return true;
        }
        return false;
    }
    bool HeadersPicked() const {
        return game->SelectedRow() != kNoLine || game->SelectedColumn() != kNoLine;
    }
    // Whether `k` is done on the board.
    bool Done(const Conclusion& k) const {
        const Board& b = game->board();
        return k.placed ? b.CurrentGrid[k.cell] == k.digit
                        : b.CurrentGrid[k.cell] || !b.Has(k.digit, k.cell);
    }
};

// A wrong digit is reported before any technique, with its cell picked and
// painted, for ten seconds.
TEST_F(Stale, AWrongDigitsReportGoesWithTheDigitAndStaysWhileItHolds) {
    Game& g = Playing(2);
    auto [cell, wrong] = WrongCandidate();
    ASSERT_GE(cell, 0);
    g.MarkMouseUp(wrong, cell, MouseButton::Left, true);
    g.CommandHint();
    const std::string report = g.TextHint();
    EXPECT_EQ(report, "Incorrect number (" + std::to_string(wrong) + ") at cell " + CellName(cell) +
                          " - Use [Undo] or [Reset Cell]");
    EXPECT_EQ(std::pair(g.SelectedRow(), g.SelectedColumn()), std::pair(cell / 9, cell % 9));
    EXPECT_EQ(g.CellPaint(cell), options.colors.HintColor[kAttackedCell]);
    EXPECT_EQ(g.ClockSeconds(), 10);
    // A step elsewhere leaves the report true: it stays.
    auto [other, otherWrong] = WrongCandidate();
    ASSERT_GE(other, 0);
    g.MarkMouseUp(otherWrong, other, MouseButton::Right, true);
    EXPECT_EQ(g.TextHint(), report);
    EXPECT_TRUE(g.CellPaint(cell));
    EXPECT_TRUE(HeadersPicked());

    // Undo of the step elsewhere, then of the wrong digit: the report goes.
    g.CommandUndo();
    EXPECT_EQ(g.TextHint(), report);
    g.CommandUndo();
    EXPECT_EQ(g.TextHint(), kPlayingHintText);
    EXPECT_FALSE(AnyPaint());
    EXPECT_FALSE(HeadersPicked());

    // Redone and reported again, Reset Cell ends it the same way.
    g.CommandRedo();
    g.CommandHint();
    EXPECT_EQ(g.TextHint(), report);
    g.CommandResetCell();
    EXPECT_EQ(g.board().CurrentGrid[cell], 0);
    EXPECT_EQ(g.TextHint(), kPlayingHintText);
    EXPECT_FALSE(AnyPaint());
    EXPECT_FALSE(HeadersPicked());
}

TEST_F(Stale, AWrongLastDigitUndoneOntoTheSolvedBoard) {
    Game& g = Playing(1);
    options.Pencilmarks = false;  // every cell keeps its wrong marks
    int last = -1;
    for (int c = 0; c < 81; ++c)
        if (!g.board().CurrentGrid[c]) last = c;
    int wrong = 0;
    for (int d = 1; d <= 9 && !wrong; ++d)
        if (d != g.board().Solution[last] && g.board().Has(d, last)) wrong = d;
    ASSERT_NE(wrong, 0);
    for (int c = 0; c < last; ++c)
        if (!g.board().CurrentGrid[c])
            g.MarkMouseUp(g.board().Solution[c], c, MouseButton::Left, true);
    g.MarkMouseUp(wrong, last, MouseButton::Left, true);
    g.CommandHint();
    EXPECT_TRUE(g.CellPaint(last));
    g.CommandUndo();
    EXPECT_FALSE(AnyPaint());
    EXPECT_FALSE(HeadersPicked());
    g.MarkMouseUp(g.board().Solution[last], last, MouseButton::Left, true);
    EXPECT_TRUE(g.position().SudokuSolved);
    EXPECT_FALSE(AnyPaint());
    EXPECT_EQ(g.TextHint(), kSolvedText);
}

// Over whole games: each hint is taken conclusion by conclusion, by the clicks
// a player makes. Its colours stay while some of it is still to be done and go
// with the last one; an Undo in between takes the hint off too.
TEST_F(Stale, ATechniqueHintStaysUntilItsLastConclusionIsDone) {
    int partial = 0;  // clicks after which some of the hint was still to do
    for (int level : {1, 3, 5}) {
        Game& g = Playing(level);
        int hints = 0;
        for (int round = 0; round < 120 && !g.position().SudokuSolved; ++round) {
            g.CommandHint();
            if (!AnyPaint()) break;  // no hint left for the logic
            const std::string text = g.TextHint();
            std::vector<Conclusion> todo(g.LastHint().Conclusions.begin(),
                                         g.LastHint().Conclusions.end());
            ASSERT_FALSE(todo.empty()) << text;
            ++hints;
            for (size_t i = 0; i < todo.size(); ++i) {
                const Conclusion& k = todo[i];
                if (Done(k)) continue;
                g.MarkMouseUp(k.digit, k.cell, k.placed ? MouseButton::Left : MouseButton::Right,
                              true);
                bool left = false;
                for (const Conclusion& rest : todo)
                    left |= !Done(rest);
                if (left) {
                    ++partial;
                    EXPECT_TRUE(AnyPaint()) << text;
                    EXPECT_EQ(g.TextHint(), text);
                }
            }
            EXPECT_FALSE(AnyPaint()) << text;
            if (!g.position().SudokuSolved) {
                EXPECT_EQ(g.TextHint(), kPlayingHintText);
            }
            if (round == 3) {
                // A hint, then an Undo: the board is not the hint's any more.
                g.CommandHint();
                g.CommandUndo();
                EXPECT_FALSE(AnyPaint());
                g.CommandRedo();
            }
        }
        EXPECT_GT(hints, 5) << level;
    }
    EXPECT_GT(partial, 0);
}

}  // namespace
}  // namespace tavi::testing
