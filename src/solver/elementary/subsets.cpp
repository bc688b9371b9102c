// Naked and hidden subsets. One routine finds them all: the ladder calls it for
// naked pairs, naked triples, hidden pairs, naked quads, hidden triples and naked
// quints, in that order.
#include "solver/primitives.h"
#include "solver/techniques.h"

namespace tavi {

namespace {

// Calls `visit(set, digits)` for every set of `size` digits out of `pool`, in
// rising lexical order, until it answers true. No allocation: the digits live in
// a fixed array.
template <typename Visit>
bool ForEachDigitSet(CandidateMask pool, int size, Visit&& visit) {
    int digits[5] = {};
    int pick[5] = {};
    int available[9];
    int n = 0;
    for (int d = 1; d <= 9; ++d)
        if (HasDigit(pool, d)) available[n++] = d;
    if (size > n) return false;
    for (int i = 0; i < size; ++i) pick[i] = i;
    while (true) {
        CandidateMask set = 0;
        for (int i = 0; i < size; ++i) {
            digits[i] = available[pick[i]];
            set |= DigitBit(digits[i]);
        }
        if (visit(set, digits)) return true;
        int i = size - 1;
        while (i >= 0 && pick[i] == n - size + i) --i;
        if (i < 0) return false;
        ++pick[i];
        for (int j = i + 1; j < size; ++j) pick[j] = pick[j - 1] + 1;
    }
}

void FillSubsetHint(SolveContext& ctx, int unit, bool naked, int size, const int (&digits)[5],
                    const int (&cells)[5]) {
    HintRecord& h = ctx.hint;
    const int kind = unit / 9;  // 0 row, 1 column, 2 box
    const int first = UnitCells[unit][0];
    if (kind == kRowUnit) h.HintRow = first / 9;
    if (kind == kColumnUnit) h.HintColumn = first % 9;
    if (kind == kBoxUnit) h.HintCell = first;
    h.HintVariant = naked ? kind + 1 : -(kind + 1);
    h.HintCellCount = h.HintValueCount = size;
    for (int i = 0; i < size; ++i) {
        h.HintCells[i + 1] = cells[i];
        h.HintValues[i + 1] = digits[i];
    }
    h.HintKind = 5;
}

// Hidden set: `size` digits of the unit that together stand in exactly `size`
// cells; those cells can hold nothing else.
bool HiddenInUnit(SolveContext& ctx, int unit, int size) {
    const auto& unitCells = UnitCells[unit];
    CandidateMask noted = 0;
    for (int c : unitCells) noted |= ctx.board.Candidates[c];
    return ForEachDigitSet(noted, size, [&](CandidateMask set, const int(&digits)[5]) {
        int cells[5] = {};
        int count = 0;
        for (int c : unitCells) {
            if (!(ctx.board.Candidates[c] & set)) continue;
            if (count == size) return false;
            cells[count++] = c;
        }
        if (count != size) return false;
        bool removed = false;
        for (int i = 0; i < size; ++i)
            for (int d = 1; d <= 9; ++d)
                if (!HasDigit(set, d)) removed |= VerwijderKnop(ctx, d, cells[i]);
        if (!removed) return false;
        if (ctx.HintOnly)
            FillSubsetHint(ctx, unit, false, size, digits, cells);
        else
            ctx.RaiseLevel(3);
        return true;
    });
}

// Naked set: `size` empty cells of the unit whose candidates all lie in `size`
// digits; the other cells of the unit lose those digits.
bool NakedInUnit(SolveContext& ctx, int unit, int size) {
    const auto& unitCells = UnitCells[unit];
    CandidateMask placed = 0;
    int empties = 0;
    for (int c : unitCells) {
        if (ctx.board.CurrentGrid[c])
            placed |= DigitBit(ctx.board.CurrentGrid[c]);
        else
            ++empties;
    }
    // With no empty cell beside the set, there is nothing a naked set could remove.
    if (empties <= size) return false;
    const CandidateMask noted = CandidateMask(kAllCandidates & ~placed);
    return ForEachDigitSet(noted, size, [&](CandidateMask set, const int(&digits)[5]) {
        int cells[5] = {};
        int count = 0;
        for (int c : unitCells) {
            if (ctx.board.CurrentGrid[c] || (ctx.board.Candidates[c] & ~set)) continue;
            if (count == size) return false;
            cells[count++] = c;
        }
        if (count != size) return false;
        if (!Verwijder(ctx, digits, size, cells, unit / 9 + 1)) return false;
        if (ctx.HintOnly)
            FillSubsetHint(ctx, unit, true, size, digits, cells);
        else
            ctx.RaiseLevel(3);
        return true;
    });
}

}  // namespace

bool Verwijder(SolveContext& ctx, const int (&digits)[5], int count, const int (&cells)[5],
               int kind) {
    const int cell = cells[0];
    const int unit = kind == 1 ? cell / 9 : kind == 2 ? 9 + cell % 9 : 18 + Global::BoxOfCell[cell];
    bool removed = false;
    for (int c : UnitCells[unit]) {
        bool inSet = false;
        for (int i = 0; i < count; ++i) inSet |= cells[i] == c;
        if (inSet) continue;
        for (int i = 0; i < count; ++i) removed |= VerwijderKnop(ctx, digits[i], c);
    }
    return removed;
}

// Rows 0..8, then columns, then boxes; the first set that removes something is the hit.
bool NakedHidden(SolveContext& ctx, bool naked, int size) {
    if (naked ? (size < 2 || size > 5) : (size < 2 || size > 3)) return false;
    for (int unit = 0; unit < 27; ++unit)
        if (naked ? NakedInUnit(ctx, unit, size) : HiddenInUnit(ctx, unit, size)) return true;
    return false;
}

}  // namespace tavi
