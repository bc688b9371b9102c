// SPDX-License-Identifier: GPL-3.0-or-later
// MultiFish: a count over four digits at once. Every row where none of the four
// stands yet must still take all four (the truths); they can only go into empty
// cells where such a row crosses a column free of the four (one digit a cell), or
// into the other columns, once for each of the four a column still lacks (the
// links). When truths and links are equal every link is used: the other rows lose
// the four in the link columns, and the crossing cells keep only the four.
#include "solver/primitives.h"
#include "solver/techniques.h"

namespace tavi {

bool MultiFish(SolveContext& ctx) {
    const Board& b = ctx.board;
    // Which digits stand in each row and each column.
    CandidateMask placedInRow[9] = {}, placedInColumn[9] = {};
    for (int c = 0; c < 81; ++c) {
        const int d = b.CurrentGrid[c];
        if (d < 1 || d > 9) continue;
        placedInRow[c / 9] |= DigitBit(d);
        placedInColumn[c % 9] |= DigitBit(d);
    }

    for (int a = 1; a <= 6; ++a)
        for (int bb = a + 1; bb <= 7; ++bb)
            for (int c3 = bb + 1; c3 <= 8; ++c3)
                for (int d = c3 + 1; d <= 9; ++d) {
                    const CandidateMask four =
                        CandidateMask(DigitBit(a) | DigitBit(bb) | DigitBit(c3) | DigitBit(d));
                    bool rowFree[9], columnFree[9];
                    int freeRows = 0;
                    for (int i = 0; i < 9; ++i) {
                        rowFree[i] = (placedInRow[i] & four) == 0;
                        columnFree[i] = (placedInColumn[i] & four) == 0;
                        freeRows += rowFree[i];
                    }
                    if (freeRows < 3 || freeRows > 5) continue;

                    int crossCells[81], crossCount = 0;
                    for (int c = 0; c < 81; ++c)
                        if (rowFree[c / 9] && columnFree[c % 9] && b.CurrentGrid[c] == 0)
                            crossCells[crossCount++] = c;
                    int columnLinks = 0;
                    for (int col = 0; col < 9; ++col)
                        if (!columnFree[col])
                            columnLinks += 4 - CountDigits(placedInColumn[col] & four);
                    if (4 * freeRows != crossCount + columnLinks) continue;

                    // Something to take: the four off the truth rows in the link
                    // columns, or another digit in a crossing cell.
                    bool any = false;
                    for (int c = 0; c < 81 && !any; ++c)
                        if (!rowFree[c / 9] && !columnFree[c % 9] && (b.Candidates[c] & four))
                            any = true;
                    for (int i = 0; i < crossCount && !any; ++i)
                        if (b.Candidates[crossCells[i]] & ~four & kAllCandidates) any = true;
                    if (!any) continue;

                    const int digits[4] = {a, bb, c3, d};
                    for (int c = 0; c < 81; ++c)
                        if (!rowFree[c / 9] && !columnFree[c % 9])
                            for (int k : digits)
                                VerwijderKnop(ctx, k, c);
                    for (int i = 0; i < crossCount; ++i)
                        for (int k = 1; k <= 9; ++k)
                            if (!HasDigit(four, k)) VerwijderKnop(ctx, k, crossCells[i]);
                    if (ctx.HintOnly()) {
                        // The record of MultiFish: HintVariant 1 and the four digits in
                        // HintValues[1..4]; the truth rows, link columns and link cells
                        // follow from them and the board, the removals are the hit's
                        // conclusions.
                        ctx.hint.HintVariant = 1;
                        ctx.hint.HintValueCount = 4;
                        for (int i = 0; i < 4; ++i)
                            ctx.hint.HintValues[1 + i] = digits[i];
                        ctx.hint.HintKind = HintKind::MultiFish;
                    }
                    return true;
                }
    return false;
}

}  // namespace tavi
