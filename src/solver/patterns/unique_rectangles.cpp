// SPDX-License-Identifier: GPL-3.0-or-later
// Unique rectangles: four unsolved cells on two rows, two columns and two boxes
// that could all come down to the same two digits would let those digits swap,
// and the puzzle would have two solutions. Something has to break the rectangle,
// and what breaks it can be read off the corners. Sound only on puzzles with one
// solution.
#include "solver/primitives.h"
#include "solver/techniques.h"

namespace tavi {

namespace {

// A list of cells with a 1-based feel: `n` entries in cell order. It holds all 81
// cells, so no pair of digits can overflow it.
struct CellList {
    int cells[81];
    int n = 0;
    void Add(int c) { cells[n++] = c; }
    const int* begin() const { return cells; }
    const int* end() const { return cells + n; }
};

struct Lists {
    CellList pair, three, threeFour, more;
    CellSet pairSet, threeSet, moreSet;
};

void BuildLists(const Board& b, int a, int d, Lists& l) {
    const CandidateMask ab = CandidateMask(DigitBit(a) | DigitBit(d));
    for (int c = 0; c < 81; ++c) {
        const CandidateMask m = b.Candidates[c];
        if ((m & ab) != ab) continue;
        const int n = CountDigits(m);
        if (n == 2) l.pair.Add(c), l.pairSet.Add(c);
        if (n == 3) l.three.Add(c), l.threeSet.Add(c);
        if (n == 3 || n == 4) l.threeFour.Add(c);
        if (n > 3) l.more.Add(c), l.moreSet.Add(c);
    }
}

// The floor is two bi-value cells i and j on one line; `rows` says whether that
// line is a row (situations A and B) or a column (C and D), `oneBox` whether they
// share a box (B and D).
struct Floor {
    int i, j;
    bool rows, oneBox;
    int a, b;

    int LineOf(int c) const { return rows ? c / 9 : c % 9; }   // the floor's kind of line
    int CrossOf(int c) const { return rows ? c % 9 : c / 9; }  // the other kind
    int At(int line, int cross) const { return rows ? 9 * line + cross : 9 * cross + line; }

    // The fourth corner when X can be the third, or -1. X lies off the floor's
    // line, on one of its two cross lines, and the rectangle spans two boxes: in
    // one of the floor's boxes when they are two, else in a box of its own.
    int Opposite(int x) const {
        if (x == i || x == j || LineOf(x) == LineOf(i)) return -1;
        const int ci = CrossOf(i), cj = CrossOf(j), cx = CrossOf(x);
        if (cx != ci && cx != cj) return -1;
        const int bx = Global::BoxOfCell[x], bi = Global::BoxOfCell[i], bj = Global::BoxOfCell[j];
        if (oneBox ? bx == bi : bx != bi && bx != bj) return -1;
        return At(LineOf(x), cx == ci ? cj : ci);
    }
};

// The record of UniqueRectangle: HintVariant the type 1..4, or 5 for the hidden form;
// HintValues[1] and [2] the rectangle's digits; HintCells[1..4] the corners, the floor
// first and [3] and [4] the roof; HintCellCount 4. HintNumber the third digit in type 2,
// the digit that goes in types 4 and 5. Type 3 adds the extra digits in HintValues[3] and
// [4] and the cell of the naked pair with the roof in HintCells[5] (counts 4 and 5); the
// hidden form lists its corners as X, the two others, Y.
void FillHint(SolveContext& ctx, const Floor& f, int variant, int x, int y) {
    HintRecord& h = ctx.hint;
    h.HintVariant = variant;
    h.HintValues[1] = f.a;
    h.HintValues[2] = f.b;
    h.HintValueCount = 2;
    h.HintCells[1] = f.i;
    h.HintCells[2] = f.j;
    h.HintCells[3] = x;
    h.HintCells[4] = y;
    h.HintCellCount = 4;
    h.HintKind = HintKind::UniqueRectangle;
}

// Every cell that sees both roof cells loses `digit`.
bool RemoveFromCommonPeers(SolveContext& ctx, int digit, int x, int y) {
    bool removed = false;
    for (int c : PeerSet(x) & PeerSet(y))
        removed |= VerwijderKnop(ctx, digit, c);
    return removed;
}

// Type 1: three bi-value corners; the fourth loses both digits.
bool Type1(SolveContext& ctx, const Floor& f, const Lists& l) {
    for (int x : l.pair) {
        const int y = f.Opposite(x);
        if (y < 0 || !(l.threeSet.Has(y) || l.moreSet.Has(y))) continue;
        VerwijderKnop(ctx, f.a, y);
        VerwijderKnop(ctx, f.b, y);
        if (ctx.HintOnly()) FillHint(ctx, f, 1, x, y);
        return true;
    }
    return false;
}

// Type 2: both roof cells hold the same third digit w; one of them must be w.
bool Type2(SolveContext& ctx, const Floor& f, const Lists& l) {
    if (l.three.n < 2) return false;
    const CandidateMask floor = ctx.board.Candidates[f.i];
    for (int x : l.three) {
        const int y = f.Opposite(x);
        if (y < 0 || ctx.board.Candidates[y] != ctx.board.Candidates[x]) continue;
        const int w = LowestDigit(CandidateMask(ctx.board.Candidates[x] & ~floor));
        if (!RemoveFromCommonPeers(ctx, w, x, y)) continue;
        if (ctx.HintOnly()) {
            FillHint(ctx, f, 2, x, y);
            ctx.hint.HintNumber = w;
        }
        return true;
    }
    return false;
}

// The naked pair of the roof (one of whose cells must hold w1 or w2) with a cell
// of exactly {w1, w2} in `unit`: the rest of the unit loses both.
bool NakedPairWithRoof(SolveContext& ctx, const Floor& f, int x, int y, int unit, int w1, int w2) {
    const CandidateMask wanted = CandidateMask(DigitBit(w1) | DigitBit(w2));
    for (int e : UnitCells[unit]) {
        if (ctx.board.Candidates[e] != wanted) continue;
        bool removed = false;
        for (int c : UnitCells[unit])
            if (c != x && c != y && c != e) {
                removed |= VerwijderKnop(ctx, w1, c);
                removed |= VerwijderKnop(ctx, w2, c);
            }
        if (!removed) continue;
        if (ctx.HintOnly()) {
            FillHint(ctx, f, 3, x, y);
            HintRecord& h = ctx.hint;
            h.HintValues[3] = w1;
            h.HintValues[4] = w2;
            h.HintValueCount = 4;
            h.HintCells[5] = e;
            h.HintCellCount = 5;
        }
        return true;
    }
    return false;
}

// Type 3: the roof's extra digits are exactly two; with a third cell of just
// those two they make a naked pair along the roof's line, or in its box.
bool Type3(SolveContext& ctx, const Floor& f, const Lists& l) {
    if (l.threeFour.n < 2) return false;
    const CandidateMask ab = ctx.board.Candidates[f.i];
    for (int x : l.threeFour) {
        const int y = f.Opposite(x);
        if (y < 0) continue;
        const int ny = CountDigits(ctx.board.Candidates[y]);
        if (ny != 3 && ny != 4) continue;
        const CandidateMask extra =
            CandidateMask((ctx.board.Candidates[x] | ctx.board.Candidates[y]) & ~ab);
        if (CountDigits(extra) != 2) continue;
        const int w1 = LowestDigit(extra), w2 = LowestDigit(CandidateMask(extra & (extra - 1)));
        const int line = f.rows ? x / 9 : 9 + x % 9;
        if (NakedPairWithRoof(ctx, f, x, y, line, w1, w2)) return true;
        if (f.oneBox && NakedPairWithRoof(ctx, f, x, y, 18 + Global::BoxOfCell[x], w1, w2))
            return true;
    }
    return false;
}

// Type 4: where one digit of the rectangle is held to the roof on its line, the
// roof cannot hold the other (both would be needed to break the rectangle).
bool Type4(SolveContext& ctx, const Floor& f, const Lists& l) {
    for (const CellList* list : {&l.three, &l.more}) {
        for (int x : *list) {
            const int y = f.Opposite(x);
            if (y < 0 || !(l.threeSet.Has(y) || l.moreSet.Has(y))) continue;
            bool aElsewhere = false, bElsewhere = false;
            for (int c : UnitCells[f.rows ? x / 9 : 9 + x % 9]) {
                if (c == x || c == y) continue;
                aElsewhere |= ctx.board.Has(f.a, c);
                bElsewhere |= ctx.board.Has(f.b, c);
            }
            int gone = 0;
            if (!aElsewhere)
                gone = f.b;
            else if (!bElsewhere)
                gone = f.a;
            if (!gone) continue;
            VerwijderKnop(ctx, gone, x);
            VerwijderKnop(ctx, gone, y);
            if (ctx.HintOnly()) {
                FillHint(ctx, f, 4, x, y);
                ctx.hint.HintNumber = gone;
            }
            return true;
        }
    }
    return false;
}

bool MainSearch(SolveContext& ctx) {
    for (int a = 1; a <= 8; ++a)
        for (int b = a + 1; b <= 9; ++b) {
            Lists l;
            BuildLists(ctx.board, a, b, l);
            if (l.pair.n < 2) continue;
            for (int p = 0; p < l.pair.n; ++p)
                for (int q = p + 1; q < l.pair.n; ++q) {
                    const int i = l.pair.cells[p], j = l.pair.cells[q];
                    const bool sameBox = Global::BoxOfCell[i] == Global::BoxOfCell[j];
                    // A, B: a row floor in two boxes, then in one; C, D: the same in a column.
                    bool rows;
                    if (i / 9 == j / 9)
                        rows = true;
                    else if (i % 9 == j % 9)
                        rows = false;
                    else
                        continue;
                    const Floor f{i, j, rows, sameBox, a, b};
                    if (sameBox && Type1(ctx, f, l)) return true;
                    if (Type2(ctx, f, l) || Type3(ctx, f, l) || Type4(ctx, f, l)) return true;
                }
        }
    return false;
}

// The hidden form: a bi-value corner X, and opposite it a corner Y on a row and a
// column where t stands only twice. If Y were not t, both lines would put t in
// the other two corners, and X would be u: the rectangle would close on {t, u}.
// So Y cannot be u.
bool HiddenForm(SolveContext& ctx) {
    const Board& bd = ctx.board;
    int rowCount[9][10] = {}, columnCount[9][10] = {};
    for (int c = 0; c < 81; ++c)
        for (int d : bd.CandidatesOf(c)) {
            ++rowCount[c / 9][d];
            ++columnCount[c % 9][d];
        }
    for (int a = 1; a <= 8; ++a)
        for (int b = a + 1; b <= 9; ++b) {
            Lists l;
            BuildLists(bd, a, b, l);
            if (l.pair.n < 1 || l.pair.n + l.more.n <= 3) continue;
            const CellSet corners = l.pairSet | l.moreSet;
            for (int x : l.pair)
                for (int y : l.more) {
                    if (x / 9 == y / 9 || x % 9 == y % 9) continue;
                    for (int t : {a, b}) {
                        const int u = t == a ? b : a;
                        if (rowCount[y / 9][t] != 2 || columnCount[y % 9][t] != 2) continue;
                        const int c1 = 9 * (x / 9) + y % 9, c2 = 9 * (y / 9) + x % 9;
                        if (!corners.Has(c1) || !corners.Has(c2)) continue;
                        const int bx = Global::BoxOfCell[x];
                        if (Global::BoxOfCell[c1] != bx && Global::BoxOfCell[c2] != bx) continue;
                        VerwijderKnop(ctx, u, y);
                        if (ctx.HintOnly()) {
                            HintRecord& h = ctx.hint;
                            h.HintVariant = 5;
                            h.HintNumber = u;
                            h.HintValues[1] = a;
                            h.HintValues[2] = b;
                            h.HintValueCount = 2;
                            h.HintCells[1] = x;
                            h.HintCells[2] = c1;
                            h.HintCells[3] = c2;
                            h.HintCells[4] = y;
                            h.HintCellCount = 4;
                            h.HintKind = HintKind::UniqueRectangle;
                        }
                        return true;
                    }
                }
        }
    return false;
}

}  // namespace

// Pairs of digits a < b; for each pair of bi-value cells {a, b} on one line the
// types 1 (floor in one box only) to 4; the hidden form when all of that found
// nothing.
bool UniqueRectangle(SolveContext& ctx) { return MainSearch(ctx) || HiddenForm(ctx); }

}  // namespace tavi
