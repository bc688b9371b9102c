// SPDX-License-Identifier: GPL-3.0-or-later
// Two more techniques that rest on the puzzle having one solution: the avoidable
// rectangle, built from digits the solver placed (never from givens, which could
// not be swapped), and the bivalue universal grave.
#include "solver/primitives.h"
#include "solver/techniques.h"

namespace tavi {

namespace {

bool Placed(const Board& b, int c) { return b.CurrentGrid[c] != 0 && b.Puzzle[c] == 0; }

// The record of AvoidableRectangle: HintNumber the digit that goes, HintValues[1] and [2]
// the rectangle's digits (and [3] the digit that goes, HintValueCount 3, in pass two),
// HintCells[1..4] the corners, HintCellCount 4.
void FillRectangle(SolveContext& ctx, int number, int d, int e, int count,
                   const int (&corners)[4]) {
    HintRecord& h = ctx.hint;
    h.HintNumber = number;
    h.HintValues[1] = d;
    h.HintValues[2] = e;
    if (count == 3) h.HintValues[3] = number;
    h.HintValueCount = count;
    for (int k = 0; k < 4; ++k)
        h.HintCells[k + 1] = corners[k];
    h.HintCellCount = 4;
    h.HintKind = HintKind::AvoidableRectangle;
}

// Pass one: two placed cells with the same digit d on a diagonal, a third corner
// placed with e. The fourth corner may not be e: the four would be d, e, e, d,
// none a given, and the two digits could swap.
bool RepeatingCorner(SolveContext& ctx) {
    const Board& b = ctx.board;
    for (int d = 1; d <= 9; ++d)
        for (int i = 0; i < 80; ++i) {
            if (b.CurrentGrid[i] != d || b.Puzzle[i]) continue;
            for (int j = i + 1; j < 81; ++j) {
                if (b.CurrentGrid[j] != d || b.Puzzle[j]) continue;
                const int cornerA = 9 * (i / 9) + j % 9, cornerB = 9 * (j / 9) + i % 9;
                if (b.Puzzle[cornerA] || b.Puzzle[cornerB]) continue;
                const int box = Global::BoxOfCell[i];
                if (box != Global::BoxOfCell[cornerA] && box != Global::BoxOfCell[cornerB])
                    continue;
                const bool solvedA = b.CurrentGrid[cornerA] != 0;
                if (solvedA == (b.CurrentGrid[cornerB] != 0)) continue;
                const int solved = solvedA ? cornerA : cornerB, open = solvedA ? cornerB : cornerA;
                const int e = b.CurrentGrid[solved];
                if (!VerwijderKnop(ctx, e, open)) continue;
                if (ctx.HintOnly()) FillRectangle(ctx, e, d, e, 2, {i, j, solved, open});
                return true;
            }
        }
    return false;
}

// Pass two: placed cells i (d) and j (e) on one line; X, a bi-value cell {e, w}
// across from i, and Y across from j holding d and w. X = e and Y = d would close
// a rectangle of swappable digits, so one of X and Y is w: every cell that sees
// both loses w.
bool ThirdDigit(SolveContext& ctx) {
    const Board& b = ctx.board;
    // The bi-value cells of every pair of digits in turn, all in one list. The flags
    // are rewritten for each pair, so that at the end they mark the cells of the
    // last pair only, {8, 9}: only such a Y is taken. This is how the rung has
    // always worked, and it is kept. 81 entries: a cell is bi-value for one pair.
    int biValue[81];
    int biValueCount = 0;
    CellSet flagged;
    for (int d1 = 1; d1 <= 8; ++d1)
        for (int d2 = d1 + 1; d2 <= 9; ++d2) {
            flagged = CellSet();
            const CandidateMask pair = CandidateMask(DigitBit(d1) | DigitBit(d2));
            for (int c = 0; c < 81; ++c)
                if (b.Candidates[c] == pair) {
                    biValue[biValueCount++] = c;
                    flagged.Add(c);
                }
        }
    for (int i = 0; i < 80; ++i) {
        if (!Placed(b, i)) continue;
        const int d = b.CurrentGrid[i];
        for (int j = i + 1; j < 81; ++j) {
            if (!Placed(b, j) || b.CurrentGrid[j] == d) continue;
            const int e = b.CurrentGrid[j];
            const bool row = i / 9 == j / 9;
            if (!row && i % 9 != j % 9) continue;
            for (int k = 0; k < biValueCount; ++k) {
                const int x = biValue[k];
                if (!b.Has(e, x) || (row ? x % 9 != i % 9 : x / 9 != i / 9)) continue;
                const int y = row ? 9 * (x / 9) + j % 9 : 9 * (j / 9) + x % 9;
                const int w = LowestDigit(CandidateMask(b.Candidates[x] & ~DigitBit(e)));
                if (!b.Has(d, y) || !b.Has(w, y) || !flagged.Has(y)) continue;
                const int box = Global::BoxOfCell[i];
                if (box != Global::BoxOfCell[j] && box != Global::BoxOfCell[x]) continue;
                bool removed = false;
                for (int c : PeerSet(x) & PeerSet(y))
                    removed |= VerwijderKnop(ctx, w, c);
                if (!removed) continue;
                if (ctx.HintOnly()) FillRectangle(ctx, w, d, e, 3, {i, j, y, x});
                return true;
            }
        }
    }
    return false;
}

}  // namespace

bool AvoidableRectangle(SolveContext& ctx) {
    if (!RepeatingCorner(ctx) && !ThirdDigit(ctx)) return false;
    return true;
}

// All unsolved cells bi-value but one: that cell cannot be a digit that stands
// just twice in each of its units. Were it one of those two, the board would be a
// complete grave, every digit twice in every unit, which never has one solution.
// So the grave is checked whole: with the cell cut down to those two digits, every
// digit must stand twice or not at all in every unit; otherwise a digit that
// stands once (a hidden single not yet taken) could make the cut-down board
// solvable, and the removal would be wrong.
bool BUG(SolveContext& ctx) {
    const Board& b = ctx.board;
    int count[27][10] = {};
    int wide = -1;
    for (int c = 0; c < 81; ++c) {
        if (b.CurrentGrid[c]) continue;
        const int n = CountDigits(b.Candidates[c]);
        if (n > 2) {
            if (wide >= 0) return false;
            wide = c;
        } else if (n != 2) {
            return false;
        }
        for (int d : b.CandidatesOf(c)) {
            ++count[c / 9][d];
            ++count[9 + c % 9][d];
            ++count[18 + Global::BoxOfCell[c]][d];
        }
    }
    if (wide < 0) return false;
    const int units[3] = {wide / 9, 9 + wide % 9, 18 + Global::BoxOfCell[wide]};
    DigitSet twice;
    for (int d : b.CandidatesOf(wide))
        if (count[units[0]][d] == 2 && count[units[1]][d] == 2 && count[units[2]][d] == 2)
            twice.Add(d);
    if (twice.Count() != 2) return false;
    for (int d : b.CandidatesOf(wide) - twice)
        for (int u : units)
            --count[u][d];
    for (const auto& unit : count)
        for (int d = 1; d <= 9; ++d)
            if (unit[d] != 0 && unit[d] != 2) return false;
    int gone[2];
    int removed = 0;
    for (int d : twice)
        if (VerwijderKnop(ctx, d, wide)) gone[removed++] = d;
    if (!removed) return false;
    if (ctx.HintOnly()) {
        HintRecord& h = ctx.hint;
        // The record of BivalueUniversalGrave: HintCell the cell of more than two
        // candidates, HintValues[1..HintValueCount] the candidates it loses.
        h.HintCell = wide;
        for (int k = 0; k < removed; ++k)
            h.HintValues[k + 1] = gone[k];
        h.HintValueCount = removed;
        h.HintKind = HintKind::BivalueUniversalGrave;
    }
    return true;
}

}  // namespace tavi
