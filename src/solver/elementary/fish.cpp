// SPDX-License-Identifier: GPL-3.0-or-later
// The basic fish: X-Wing, Swordfish and Jellyfish. For one digit, a set of rows
// whose candidates all lie in as many columns takes that digit out of those
// columns everywhere else, and the same with rows and columns exchanged.
#include <array>
#include <cstdint>
#include <vector>

#include "solver/primitives.h"
#include "solver/techniques.h"

namespace tavi {

namespace {

// The sets of `size` lines out of nine as bit masks, in rising lexical order.
std::vector<int> LineSets(int size) {
    std::vector<int> sets;
    auto add = [&](auto&& self, int from, int left, int mask) -> void {
        if (left == 0) {
            sets.push_back(mask);
            return;
        }
        for (int line = from; line <= 9 - left; ++line)
            self(self, line + 1, left - 1, mask | (1 << line));
    };
    add(add, 0, size, 0);
    return sets;
}

const std::vector<int>& LineSetsOf(int size) {
    static const std::array<std::vector<int>, 5> kSets = {
        {{}, {}, LineSets(2), LineSets(3), LineSets(4)}};
    return kSets[size];
}

int CellAt(bool rows, int line, int cross) { return rows ? 9 * line + cross : 9 * cross + line; }

// Takes the digit out of the crossing lines `crossSet` at every line not in
// `lineSet`. In the row form the lines are rows and the crossing lines columns;
// each row that is no line of the pattern loses the digit in the columns from
// left to right. The column form visits the columns in the same manner.
bool RemoveFromCrossLines(SolveContext& ctx, int digit, bool rows, int lineSet, int crossSet) {
    bool removed = false;
    for (int line = 0; line < 9; ++line) {
        if (lineSet >> line & 1) continue;
        for (int cross = 0; cross < 9; ++cross)
            if (crossSet >> cross & 1)
                removed |= VerwijderKnop(ctx, digit, CellAt(rows, line, cross));
    }
    return removed;
}

// One fish of `size` lines: the row pass for all digits, then the column pass.
// An X-Wing line must hold the digit in exactly its two crossing lines; a larger
// fish's line in any non-empty part of them.
bool Fish(SolveContext& ctx, int size, HintKind kind) {
    const Board& b = ctx.board;
    const bool exact = size == 2;
    // For each digit the mask of each row by column, and of each column by row.
    int rowMasks[10][9] = {}, columnMasks[10][9] = {};
    for (int cell = 0; cell < 81; ++cell)
        for (int digit : b.CandidatesOf(cell)) {
            rowMasks[digit][cell / 9] |= 1 << (cell % 9);
            columnMasks[digit][cell % 9] |= 1 << (cell / 9);
        }
    for (int pass = 1; pass <= 2; ++pass) {
        const bool rows = pass == 1;
        for (int digit = 1; digit <= 9; ++digit) {
            const int* masks = rows ? rowMasks[digit] : columnMasks[digit];
            // Only lines holding the digit in 2 (X-Wing) or 1..size places can fit.
            int lines[9], lineMasks[9], n = 0;
            for (int line = 0; line < 9; ++line) {
                const int k = CountDigits(CandidateMask(masks[line]));
                if (exact ? k == 2 : k >= 1 && k <= size) {
                    lines[n] = line;
                    lineMasks[n++] = masks[line];
                }
            }
            if (n < size) continue;
            // The pattern's own lines aside, some line must still hold the digit for
            // anything to be removed.
            int holding = 0;
            for (int line = 0; line < 9; ++line)
                holding += masks[line] != 0;
            if (holding <= size) continue;
            // The sets of crossing lines that `size` of these lines can fill: only
            // those are counted, still in their lexical order.
            std::uint64_t wanted[8] = {};
            auto want = [&wanted](int set) { wanted[set >> 6] |= std::uint64_t{1} << (set & 63); };
            if (exact) {
                for (int i = 0; i < n; ++i)
                    want(lineMasks[i]);
            } else {
                auto unite = [&](auto&& self, int from, int left, int set) -> void {
                    if (CountDigits(CandidateMask(set)) > size) return;
                    if (left == 0) {
                        if (CountDigits(CandidateMask(set)) == size) {
                            want(set);
                        } else {
                            for (int s : LineSetsOf(size))
                                if ((set & ~s) == 0) want(s);
                        }
                        return;
                    }
                    for (int i = from; i <= n - left; ++i)
                        self(self, i + 1, left - 1, set | lineMasks[i]);
                };
                unite(unite, 0, size, 0);
            }
            for (int crossSet : LineSetsOf(size)) {
                if (!(wanted[crossSet >> 6] >> (crossSet & 63) & 1)) continue;
                int count = 0, lineSet = 0;
                for (int i = 0; i < n && count <= size; ++i) {
                    const int m = lineMasks[i];
                    if (exact ? m != crossSet : (m & ~crossSet) != 0) continue;
                    if (count < size) lineSet |= 1 << lines[i];
                    ++count;
                }
                if (count != size) continue;
                if (!RemoveFromCrossLines(ctx, digit, rows, lineSet, crossSet)) continue;
                // The record of XWing, Swordfish and Jellyfish: HintNumber the digit,
                // HintVariant 1 for the row pass and 2 for the column pass,
                // HintCells[1..HintCellCount] the crossings of the base and cover lines row
                // by row (4, 9 or 16).
                if (ctx.HintOnly()) {
                    // The square of the pattern, row by row on the board.
                    const int rowSet = rows ? lineSet : crossSet;
                    const int columnSet = rows ? crossSet : lineSet;
                    int corner = 0;
                    for (int r = 0; r < 9; ++r)
                        for (int c = 0; c < 9; ++c)
                            if ((rowSet >> r & 1) && (columnSet >> c & 1))
                                ctx.hint.HintCells[++corner] = 9 * r + c;
                    ctx.hint.HintNumber = digit;
                    ctx.hint.HintVariant = pass;
                    ctx.hint.HintCellCount = corner;
                    ctx.hint.HintKind = kind;
                }
                return true;
            }
        }
    }
    return false;
}

}  // namespace

bool XWing(SolveContext& ctx) { return Fish(ctx, 2, HintKind::XWing); }
bool SwordFish(SolveContext& ctx) { return Fish(ctx, 3, HintKind::Swordfish); }
bool JellyFish(SolveContext& ctx) { return Fish(ctx, 4, HintKind::Jellyfish); }

// An X-Wing whose second line holds one or two extra candidates, the fin, in the
// box of one of its corners. The base line holds the digit exactly twice, in two
// stacks (bands in the column form); the finned line lies in another band and
// holds the digit three or four times. Whichever cell of the base line is true,
// the digit of the fin's box lies in the corner's line or in the fin, so the
// cells of that box on the corner's line, off the finned line, lose it.
bool FinnedXWing(SolveContext& ctx) {
    const Board& b = ctx.board;
    for (int pass = 1; pass <= 2; ++pass) {
        const bool rows = pass == 1;
        // Cells of the pass: `line` is a row in the row form, a column in the other.
        auto at = [rows](int line, int cross) { return CellAt(rows, line, cross); };
        for (int digit = 1; digit <= 9; ++digit) {
            int count[9];
            for (int line = 0; line < 9; ++line) {
                count[line] = 0;
                for (int cross = 0; cross < 9; ++cross)
                    count[line] += b.Has(digit, at(line, cross));
            }
            for (int base = 0; base < 9; ++base) {
                if (count[base] != 2) continue;
                for (int c1 = 0; c1 < 8; ++c1) {
                    if (!b.Has(digit, at(base, c1))) continue;
                    for (int c2 = c1 + 1; c2 < 9; ++c2) {
                        if (!b.Has(digit, at(base, c2)) || c1 / 3 == c2 / 3) continue;
                        for (int finned = 0; finned < 9; ++finned) {
                            if (finned / 3 == base / 3) continue;
                            if (!b.Has(digit, at(finned, c1)) || !b.Has(digit, at(finned, c2)))
                                continue;
                            if (count[finned] != 3 && count[finned] != 4) continue;
                            // The extra cells must all lie in the box of one corner.
                            int inFirst = 0, inSecond = 0;
                            for (int c3 = 0; c3 < 9; ++c3) {
                                if (c3 == c1 || c3 == c2 || !b.Has(digit, at(finned, c3))) continue;
                                inFirst += c3 / 3 == c1 / 3;
                                inSecond += c3 / 3 == c2 / 3;
                            }
                            const int extra = count[finned] - 2;
                            int cf;
                            if (inFirst == extra)
                                cf = c1;
                            else if (inSecond == extra)
                                cf = c2;
                            else
                                continue;
                            // The fin's box, row by row: its cells on the corner's
                            // line and off the finned line.
                            int targets[2], removed = 0;
                            const int leftTop = Global::BoxLeftTopOfCell[at(finned, cf)];
                            for (int p = 0; p < 9; ++p) {
                                const int cell = leftTop + 9 * (p / 3) + p % 3;
                                const int line = rows ? cell / 9 : cell % 9;
                                const int cross = rows ? cell % 9 : cell / 9;
                                if (cross != cf || line == finned) continue;
                                if (VerwijderKnop(ctx, digit, cell) && removed < 2)
                                    targets[removed++] = cell;
                            }
                            if (!removed) continue;
                            if (ctx.HintOnly()) {
                                HintRecord& h = ctx.hint;
                                // The record of FinnedXWing: HintVariant 1 for the row pass
                                // and 2 for the column pass, HintNumber the digit, the
                                // clean base line in HintRow or HintColumn,
                                // HintCells[1..HintCellCount] (one or two) the cells that
                                // lose the digit, HintCells[3..6] the corners, [3] and [4]
                                // on the clean line, [5] and [6] on the finned line.
                                h.HintVariant = pass;
                                h.HintNumber = digit;
                                (rows ? h.HintRow : h.HintColumn) = base;
                                h.HintCellCount = removed;
                                for (int i = 0; i < removed; ++i)
                                    h.HintCells[1 + i] = targets[i];
                                h.HintCells[3] = at(base, c1);
                                h.HintCells[4] = at(base, c2);
                                h.HintCells[5] = at(finned, c1);
                                h.HintCells[6] = at(finned, c2);
                                h.HintKind = HintKind::FinnedXWing;
                            }
                            return true;
                        }
                    }
                }
            }
        }
    }
    return false;
}

namespace {

// The unit of `kind` (0 row, 1 column, 2 box) through `cell`, as an index 0..26.
int UnitThrough(int cell, int kind) {
    return kind == 0 ? cell / 9 : kind == 1 ? 9 + cell % 9 : 18 + Global::BoxOfCell[cell];
}

// The other digit of a two-candidate cell.
int OtherDigit(CandidateMask mask, int digit) {
    return LowestDigit(CandidateMask(mask & ~DigitBit(digit)));
}

// One form of the multi-value X-Wing: two units of kind `unitKind` each hold a
// pair of bi-value cells, p = {a, x} and q = {a, y} in the first, s = {b, x} and
// t = {b, y} in the second, with p and s sharing a unit of kind `clashKind`, and q
// and t another. Were neither p nor s to hold x, p and s would hold a and b, and
// q and t would both be left with y in one unit. So x is in p or s, and y in q or
// t, and their clash units lose them elsewhere.
bool MultiXWingForm(SolveContext& ctx, int form, int unitKind, int clashKind,
                    const CellSet& pairs) {
    const Board& b = ctx.board;
    for (int u1 = 0; u1 < 9; ++u1) {
        // The unit's bi-value cells, in unit order.
        int first[9], n = 0;
        for (int c : pairs& UnitSet(9 * unitKind + u1))
            first[n++] = c;
        for (int i = 0; i + 1 < n; ++i) {
            const int p = first[i];
            for (int j = i + 1; j < n; ++j) {
                const int q = first[j];
                const CandidateMask shared = b.Candidates[p] & b.Candidates[q];
                if (CountDigits(shared) != 1) continue;
                const int a = LowestDigit(shared);
                const int x = OtherDigit(b.Candidates[p], a), y = OtherDigit(b.Candidates[q], a);
                // The second pair's cells can only stand where the second unit
                // crosses the clash units of p and q.
                const CellSet pairsByP = pairs & UnitSet(UnitThrough(p, clashKind));
                const CellSet pairsByQ = pairs & UnitSet(UnitThrough(q, clashKind));
                for (int u2 = u1 + 1; u2 < 9; ++u2) {
                    const CellSet& second = UnitSet(9 * unitKind + u2);
                    const CellSet sCells = pairsByP & second, tCells = pairsByQ & second;
                    if (sCells.Empty() || tCells.Empty()) continue;
                    for (int s : sCells) {
                        if (!HasDigit(b.Candidates[s], x)) continue;
                        const int bDigit = OtherDigit(b.Candidates[s], x);
                        if (bDigit == a || bDigit == y) continue;
                        const CandidateMask tMask = DigitBit(bDigit) | DigitBit(y);
                        for (int t : tCells) {
                            if (t == s || b.Candidates[t] != tMask) continue;
                            bool removed = false;
                            for (int c : UnitCells[UnitThrough(p, clashKind)])
                                if (c != p && c != s) removed |= VerwijderKnop(ctx, x, c);
                            for (int c : UnitCells[UnitThrough(q, clashKind)])
                                if (c != q && c != t) removed |= VerwijderKnop(ctx, y, c);
                            if (!removed) continue;
                            // The record of MultiValueXWing: HintVariant the form 1..6,
                            // HintCells[1..4] the cells p, q, s, t and HintValues[1..4] the
                            // digits a, b, x, y, both counts 4; HintRow and HintColumn the
                            // two boxes where the form names boxes, else the two units.
                            if (ctx.HintOnly()) {
                                HintRecord& h = ctx.hint;
                                h.HintVariant = form;
                                const int cells[] = {p, q, s, t}, values[] = {a, bDigit, x, y};
                                for (int k = 0; k < 4; ++k) {
                                    h.HintCells[1 + k] = cells[k];
                                    h.HintValues[1 + k] = values[k];
                                }
                                h.HintCellCount = h.HintValueCount = 4;
                                if (clashKind == 2) {
                                    h.HintRow = Global::BoxOfCell[p];
                                    h.HintColumn = Global::BoxOfCell[q];
                                } else if (unitKind == 2) {
                                    h.HintRow = u1;
                                    h.HintColumn = u2;
                                }
                                h.HintKind = HintKind::MultiValueXWing;
                            }
                            return true;
                        }
                    }
                }
            }
        }
    }
    return false;
}

}  // namespace

// The six forms in turn: two rows clashing in a column, then in a box; two
// columns in a row, then in a box; two boxes in a row, then in a column.
bool MultiXWing(SolveContext& ctx) {
    CellSet pairs;
    for (int cell = 0; cell < 81; ++cell)
        if (CountDigits(ctx.board.Candidates[cell]) == 2) pairs.Add(cell);
    if (pairs.Count() < 4) return false;
    constexpr int kForms[6][2] = {{0, 1}, {0, 2}, {1, 0}, {1, 2}, {2, 0}, {2, 1}};
    for (int form = 0; form < 6; ++form)
        if (MultiXWingForm(ctx, form + 1, kForms[form][0], kForms[form][1], pairs)) return true;
    return false;
}

}  // namespace tavi
