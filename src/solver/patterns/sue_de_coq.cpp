// SPDX-License-Identifier: GPL-3.0-or-later
// Sue-de-Coq: the unsolved cells where a line crosses a box, with the cells of the
// line and of the box outside the crossing whose digits all lie among the
// crossing's. When the digits split so that the line cells can only take some and
// the box cells only others, and there are exactly as many digits as cells, every
// digit stands once in the pattern: the line's digits leave the rest of the line,
// the box's the rest of the box, and the crossing's own both.
#include "solver/primitives.h"
#include "solver/techniques.h"

namespace tavi {

namespace {

struct Group {
    int cells[9];
    int n = 0;
    CandidateMask mask = 0;
    void Add(int c, CandidateMask m) {
        cells[n++] = c;
        mask |= m;
    }
    bool Has(int c) const {
        for (int k = 0; k < n; ++k)
            if (cells[k] == c) return true;
        return false;
    }
};

// The removals of a pattern: `digits` from the cells of `unit` outside the
// crossing and the group. Answers how many.
int RemoveFrom(SolveContext& ctx, int unit, const Group& crossing, const Group& group,
               CandidateMask digits) {
    int n = 0;
    for (int c : UnitCells[unit]) {
        if (crossing.Has(c) || group.Has(c)) continue;
        for (int d : DigitSet(CandidateMask(ctx.board.Candidates[c] & digits)))
            n += VerwijderKnop(ctx, d, c);
    }
    return n;
}

// One crossing of line `lineUnit` with box `box`; true at a hit.
bool Crossing(SolveContext& ctx, int box, int lineUnit, bool row) {
    const Board& b = ctx.board;
    const int boxUnit = 18 + box;
    Group crossing, lineGroup, boxGroup;
    for (int c : UnitCells[lineUnit])
        if (Global::BoxOfCell[c] == box && !b.CurrentGrid[c]) crossing.Add(c, b.Candidates[c]);
    const int digits = CountDigits(crossing.mask);
    if (crossing.n < 2 || digits < crossing.n + 2) return false;
    auto inside = [&](int c) {
        return !b.CurrentGrid[c] && !crossing.Has(c) && (b.Candidates[c] & ~crossing.mask) == 0;
    };
    for (int c : UnitCells[lineUnit])
        if (inside(c)) lineGroup.Add(c, b.Candidates[c]);
    for (int c : UnitCells[boxUnit])
        if (inside(c)) boxGroup.Add(c, b.Candidates[c]);
    if (!lineGroup.n || !boxGroup.n || digits <= lineGroup.n + boxGroup.n) return false;
    // With as many digits as cells, the line cells and the crossing share the line,
    // the box cells and the crossing the box, and the two groups no digit: so all
    // the pattern's cells hold different digits, each digit once. With more digits
    // than cells a digit could stand outside the pattern, and nothing follows.
    if (digits > crossing.n + lineGroup.n + boxGroup.n) return false;
    if (digits == crossing.n + lineGroup.n + boxGroup.n &&
        (CountDigits(lineGroup.mask) != lineGroup.n + 1 ||
         CountDigits(boxGroup.mask) != boxGroup.n + 1))
        return false;
    if (lineGroup.mask & boxGroup.mask) return false;

    const CandidateMask own = CandidateMask(crossing.mask & ~(lineGroup.mask | boxGroup.mask));
    const CandidateMask lineDigits = CandidateMask(lineGroup.mask | own);
    const CandidateMask boxDigits = CandidateMask(boxGroup.mask | own);
    const int removed = RemoveFrom(ctx, lineUnit, crossing, lineGroup, lineDigits) +
                        RemoveFrom(ctx, boxUnit, crossing, boxGroup, boxDigits);
    if (!removed) return false;
    if (ctx.HintOnly()) {
        HintRecord& h = ctx.hint;
        // The record of SueDeCoq: the line in HintRow or HintColumn (the other -1),
        // HintVariant the box, HintCells[1..HintCellCount] the cells of the line group,
        // HintValues[1..HintValueCount] those of the box group.
        const int line = row ? lineUnit : lineUnit - 9;
        h.HintRow = row ? line : -1;
        h.HintColumn = row ? -1 : line;
        h.HintVariant = box;
        for (int k = 0; k < lineGroup.n; ++k)
            h.HintCells[k + 1] = lineGroup.cells[k];
        h.HintCellCount = lineGroup.n;
        for (int k = 0; k < boxGroup.n; ++k)
            h.HintValues[k + 1] = boxGroup.cells[k];
        h.HintValueCount = boxGroup.n;
        h.HintKind = HintKind::SueDeCoq;
        // The game shows the pattern at once, with what it removes, and asks
        // whether the player sees it; Cancel forgets it and goes on to the next
        // crossing. Never inside the trials of a guess.
        if (ctx.side == Side::Game && !ctx.ForceZet() && ctx.confirmPattern &&
            !ctx.confirmPattern(h)) {
            h.Conclusions.Clear();
            return false;
        }
    }
    return true;
}

}  // namespace

// Box by box: its three rows, then its three columns, so that a pattern that fits
// a row and a column is told as a row.
bool SueDeCoq(SolveContext& ctx) {
    for (int box = 0; box < 9; ++box) {
        for (int k = 0; k < 3; ++k)
            if (Crossing(ctx, box, Global::BoxFirstRow[box] + k, true)) return true;
        for (int k = 0; k < 3; ++k)
            if (Crossing(ctx, box, 9 + Global::BoxFirstColumn[box] + k, false)) return true;
    }
    return false;
}

}  // namespace tavi
