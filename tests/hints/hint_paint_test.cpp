// SPDX-License-Identifier: GPL-3.0-or-later
// The colours of representative kinds, judged on the board they leave: the last
// role painted on each cell and candidate. The paints of every rung on real
// boards are pinned by the technique cases (tests/data/rung_cases.txt); these
// are the edges those boards do not reach.
#include "hints/hint_paint.h"

#include <gtest/gtest.h>

#include "hints/hint_records.h"
#include "hints/schrijf_hint.h"
#include "solver/techniques.h"

namespace tavi {
namespace {

using testing::Box, testing::KeepDigitOnlyIn, testing::OpenBoard, testing::PaintedBoard,
    testing::Record, testing::Removal;

HintRecord HintOf(const Board& board, bool (*rung)(SolveContext&)) {
    SolveContext ctx = testing::ContextOn(board, Side::Game);
    ModeScope looking_ctx(ctx, ctx.Mode().With(SolveMode::kHintOnly));
    ctx.hint = testing::MarkedHint();
    EXPECT_TRUE(rung(ctx));
    return ctx.hint;
}

std::vector<int> Cells(std::initializer_list<int> cells) { return cells; }

TEST(PaintHint, APointingPairNeverMarksACandidateThatIsNotThere) {
    Board board = OpenBoard();
    KeepDigitOnlyIn(board, 5, Box(0), {0, 1});
    board.Candidates[5] &= CandidateMask(~DigitBit(5));  // A6 lacks the digit
    const PaintedBoard painted(PaintHint(HintOf(board, PointingPair), board));

    EXPECT_EQ(painted.CellsIn(kAttackingCell), Cells({0, 1}));
    EXPECT_EQ(painted.DigitsIn(kAttackingCandidates), (std::vector<Removal>{{0, 5}, {1, 5}}));
    // The rest of the box stays the pattern, A3 too, which lacks the digit.
    EXPECT_EQ(painted.CellsIn(kPatternCell), Cells({2, 9, 10, 11, 18, 19, 20}));
    EXPECT_EQ(painted.CellsIn(kAttackedCell), Cells({3, 4, 6, 7, 8}));
    EXPECT_EQ(painted.DigitsIn(kAttackedCandidates),
              (std::vector<Removal>{{3, 5}, {4, 5}, {6, 5}, {7, 5}, {8, 5}}));
    EXPECT_EQ(painted.cell[5], -1) << "the line itself is not painted";
}

// Loops paint their cells in the candidate role and their digits in the cell
// role: the swap is deliberate. A real loop keeps its nodes' digit; were one the
// hit's conclusion, the removal shows as one whatever else the cell is.
TEST(PaintHint, ALoopNodeThatLosesItsDigitShowsAsARemoval) {
    // A1 - A5 = E5 - E1 - back to A1 on digit 2.
    const PaintedBoard painted(PaintHint(
        Record(HintKind::NiceLoop).variant(1).number(2).cells({0, 4, 40, 36, 0}).removed(4, 2),
        OpenBoard()));
    EXPECT_EQ(painted.digit[4][2], kAttackedCandidates);
    for (int c : {0, 40, 36}) {
        EXPECT_EQ(painted.cell[c], kAttackingCandidates) << CellName(c);
        EXPECT_EQ(painted.digit[c][2], kAttackingCell) << CellName(c);
    }
}

TEST(PaintHint, ToleratesRecordsOfStaleMarks) {
    // A record whose fields the kind does not fill are left from earlier hints;
    // whatever they hold, painting and writing stay within the board. Outside
    // the kinds nothing is painted.
    const Board board = OpenBoard();
    EXPECT_TRUE(PaintHint(Record(HintKind::None), board).empty());
    EXPECT_TRUE(PaintHint(Record(HintKind(kHintKindCount + 1)), board).empty());
    for (int mark : {-99, 0, 500}) {
        for (int kind = 1; kind <= kHintKindCount; ++kind) {
            HintRecord h = testing::MarkedHint(mark);
            h.HintKind = HintKind(kind);
            const auto paints = PaintHint(h, board);
            ASSERT_FALSE(paints.empty());
            EXPECT_EQ(paints.front().what, HintPaint::Erase);
            for (const HintPaint& p : paints) {
                if (p.what == HintPaint::Erase) continue;
                EXPECT_TRUE(p.cell >= 0 && p.cell < 81) << kind;
                if (p.what == HintPaint::Digit) {
                    EXPECT_TRUE(p.digit >= 1 && p.digit <= 9) << kind;
                }
            }
            SchrijfHint(h, board);
        }
    }
}

}  // namespace
}  // namespace tavi
