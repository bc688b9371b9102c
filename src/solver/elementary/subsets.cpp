// SPDX-License-Identifier: GPL-3.0-or-later
// Naked and hidden subsets. One routine finds them all: the ladder calls it for
// naked pairs, naked triples, hidden pairs, naked quads, hidden triples and naked
// quints, in that order.
#include <bit>

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
    for (int i = 0; i < size; ++i)
        pick[i] = i;
    while (true) {
        CandidateMask set = 0;
        for (int i = 0; i < size; ++i) {
            digits[i] = available[pick[i]];
            set |= DigitBit(digits[i]);
        }
        if (visit(set, digits)) return true;
        int i = size - 1;
        while (i >= 0 && pick[i] == n - size + i)
            --i;
        if (i < 0) return false;
        ++pick[i];
        for (int j = i + 1; j < size; ++j)
            pick[j] = pick[j - 1] + 1;
    }
}

// The record of Subset: HintVariant the unit, 1 row, 2 column, 3 box, negated for a hidden
// set; the unit in HintRow, HintColumn or HintCell (the box's top left cell); HintCells and
// HintValues the set's cells and digits, HintCellCount and HintValueCount its size.
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
    h.HintKind = HintKind::Subset;
}

// One unit as it stands: per cell its candidates (bits 0-8) and its digit in
// CurrentGrid (bits 9-12). Whether a subset scan of the unit can hit depends on
// nothing else.
struct UnitState {
    std::array<std::uint16_t, 9> cells{};

    UnitState(const Board& b, int unit) {
        for (int i = 0; i < 9; ++i) {
            const int c = UnitCells[unit][i];
            cells[i] = std::uint16_t(b.Candidates[c] | (b.CurrentGrid[c] << 9));
        }
    }
    CandidateMask Candidates(int i) const { return CandidateMask(cells[i] & kAllCandidates); }
    int Digit(int i) const { return cells[i] >> 9; }
    bool operator==(const UnitState&) const = default;
};

// Where each digit stands in a unit: bit i of positions[d] for the unit's cell i.
struct UnitPositions {
    std::array<std::uint16_t, 10> positions{};
    CandidateMask noted = 0;    // digits that are candidates somewhere in the unit
    std::uint16_t empties = 0;  // cells without a digit in CurrentGrid
    CandidateMask placed = 0;   // digits standing in the unit
    std::uint16_t small = 0;    // empty cells with at most `size` candidates

    UnitPositions(const UnitState& s, int size) {
        for (int i = 0; i < 9; ++i) {
            const CandidateMask m = s.Candidates(i);
            noted |= m;
            for (CandidateMask k = m; k; k &= k - 1)
                positions[LowestDigit(k)] |= std::uint16_t(1u << i);
            if (s.Digit(i)) {
                placed |= DigitBit(s.Digit(i));
            } else {
                empties |= std::uint16_t(1u << i);
                if (CountDigits(m) <= size) small |= std::uint16_t(1u << i);
            }
        }
    }
    // The cells holding at least one digit of the set.
    std::uint16_t Holding(CandidateMask set) const {
        std::uint16_t cells = 0;
        for (CandidateMask k = set; k; k &= k - 1)
            cells |= positions[LowestDigit(k)];
        return cells;
    }
};

// The cells of a 9-bit unit mask in unit order; answers how many.
int CellsOf(int unit, std::uint16_t mask, int (&cells)[5]) {
    int n = 0;
    for (; mask && n < 5; mask &= mask - 1)
        cells[n++] = UnitCells[unit][std::countr_zero(unsigned(mask))];
    return n;
}

// Hidden set: `size` digits of the unit that together stand in exactly `size`
// cells; those cells can hold nothing else.
bool HiddenInUnit(SolveContext& ctx, const UnitState& state, int unit, int size) {
    const UnitPositions u(state, size);
    // A digit standing in more than `size` cells of the unit belongs to no hidden set.
    CandidateMask pool = 0;
    for (int d = 1; d <= 9; ++d)
        if (HasDigit(u.noted, d) && CountDigits(u.positions[d]) <= size) pool |= DigitBit(d);
    if (CountDigits(pool) < size) return false;
    return ForEachDigitSet(pool, size, [&](CandidateMask set, const int(&digits)[5]) {
        const std::uint16_t holding = u.Holding(set);
        if (CountDigits(holding) != size) return false;
        // A spent pattern: its cells hold nothing outside the set any more.
        if (!(u.Holding(CandidateMask(kAllCandidates & ~set)) & holding)) return false;
        int cells[5] = {};
        CellsOf(unit, holding, cells);
        for (int i = 0; i < size; ++i)
            for (int d = 1; d <= 9; ++d)
                if (!HasDigit(set, d)) VerwijderKnop(ctx, d, cells[i]);
        if (ctx.HintOnly()) FillSubsetHint(ctx, unit, false, size, digits, cells);
        return true;
    });
}

// Naked set: `size` empty cells of the unit whose candidates all lie in `size`
// digits; the other cells of the unit lose those digits.
bool NakedInUnit(SolveContext& ctx, const UnitState& state, int unit, int size) {
    const UnitPositions u(state, size);
    // With no empty cell beside the set, there is nothing a naked set could remove;
    // and the set's cells each hold at most `size` candidates.
    if (CountDigits(u.empties) <= size || CountDigits(u.small) < size) return false;
    const CandidateMask notPlaced = CandidateMask(kAllCandidates & ~u.placed);
    // A set that hits holds the candidates of its own cells, which are `size` of the
    // small cells. So the sets worth testing are found from the choices of `size`
    // small cells whose candidates fit in `size` free digits; the hit is the one
    // that comes first in rising lexical order, as a scan of every set meets it.
    CandidateMask best = 0;
    auto test = [&](CandidateMask set) {
        const std::uint16_t inside = u.empties & ~u.Holding(CandidateMask(kAllCandidates & ~set));
        if (CountDigits(inside) != size) return;
        // A spent pattern: no other cell holds a digit of the set any more.
        if (!(u.Holding(set) & ~inside)) return;
        // Of two sets of one size, the one with the lowest digit they do not share
        // comes first.
        const CandidateMask differ = CandidateMask(set ^ best);
        if (!best || (set & differ & -differ)) best = set;
    };
    int small[9];
    int smallCount = 0;
    for (std::uint16_t k = u.small; k; k &= k - 1)
        small[smallCount++] = std::countr_zero(unsigned(k));
    // Choices of `size` small cells, each with the union of its candidates.
    auto choose = [&](auto&& self, int from, int left, CandidateMask held) -> void {
        if (CountDigits(held) > size || (held & ~notPlaced)) return;
        if (left == 0) {
            const int missing = size - CountDigits(held);
            if (missing == 0)
                test(held);
            else
                ForEachDigitSet(CandidateMask(notPlaced & ~held), missing,
                                [&](CandidateMask extra, const int(&)[5]) {
                                    test(CandidateMask(held | extra));
                                    return false;
                                });
            return;
        }
        for (int i = from; i <= smallCount - left; ++i)
            self(self, i + 1, left - 1, CandidateMask(held | state.Candidates(small[i])));
    };
    choose(choose, 0, size, 0);
    if (!best) return false;

    const std::uint16_t inside = u.empties & ~u.Holding(CandidateMask(kAllCandidates & ~best));
    int digits[5] = {};
    int n = 0;
    for (CandidateMask k = best; k; k &= k - 1)
        digits[n++] = LowestDigit(k);
    int cells[5] = {};
    CellsOf(unit, inside, cells);
    Verwijder(ctx, digits, size, cells, unit / 9 + 1);
    if (ctx.HintOnly()) FillSubsetHint(ctx, unit, true, size, digits, cells);
    return true;
}

}  // namespace

bool Verwijder(SolveContext& ctx, const int (&digits)[5], int count, const int (&cells)[5],
               int kind) {
    const int cell = cells[0];
    const int unit = kind == 1 ? cell / 9 : kind == 2 ? 9 + cell % 9 : 18 + Global::BoxOfCell[cell];
    bool removed = false;
    for (int c : UnitCells[unit]) {
        bool inSet = false;
        for (int i = 0; i < count; ++i)
            inSet |= cells[i] == c;
        if (inSet) continue;
        for (int i = 0; i < count; ++i)
            removed |= VerwijderKnop(ctx, digits[i], c);
    }
    return removed;
}

// Rows 0..8, then columns, then boxes; the first set that removes something is the hit.
//
// The ladder runs the six subset scans again after every hit of any later rung,
// while most units are as they were. The context's scratch remembers, per unit, the
// state last scanned and which scans came back empty there; an unchanged unit is
// not scanned again by a scan that found nothing in it.
bool NakedHidden(SolveContext& ctx, bool naked, int size) {
    if (naked ? (size < 2 || size > 5) : (size < 2 || size > 3)) return false;
    struct Spent {
        UnitState state{Board{}, 0};
        std::uint8_t scans = 0;  // bit per scan: naked 2..5 at 0..3, hidden 2..3 at 4..5
    };
    auto& spent = ctx.Scratch().Get<std::array<Spent, 27>>(SolverScratch::kSubsets);
    const std::uint8_t scan = std::uint8_t(1u << (naked ? size - 2 : size + 2));
    for (int unit = 0; unit < 27; ++unit) {
        const UnitState state(ctx.board, unit);
        Spent& memo = spent[unit];
        if (memo.state == state) {
            if (memo.scans & scan) continue;
        } else {
            memo.state = state;
            memo.scans = 0;
        }
        if (naked ? NakedInUnit(ctx, state, unit, size) : HiddenInUnit(ctx, state, unit, size))
            return true;
        memo.scans |= scan;
    }
    return false;
}

}  // namespace tavi
