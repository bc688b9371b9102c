// SPDX-License-Identifier: GPL-3.0-or-later
// The colours of hint records no real hit leaves, judged on the board they leave:
// the last role painted on each cell and candidate. The paints of every rung on
// real boards are pinned by the technique cases (tests/data/rung_cases.txt).
#include "hints/hint_paint.h"

#include <gtest/gtest.h>

#include "hints/hint_records.h"
#include "hints/schrijf_hint.h"

namespace tavi {
namespace {

using testing::OpenBoard, testing::PaintedBoard, testing::Record;

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
