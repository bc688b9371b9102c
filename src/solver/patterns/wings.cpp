// SPDX-License-Identifier: GPL-3.0-or-later
// The wings: a stem (or hinge) and bi-value branches that between them force one
// digit into one of the pattern's cells, so that every cell seeing all the cells
// that may hold it loses it. XY-Wing, XYZ-Wing and WXYZ-Wing.
#include "solver/primitives.h"
#include "solver/techniques.h"

namespace tavi {

namespace {

// Takes `digit` from every cell that sees all of `cells`, except `keep`. True if
// any cell held it.
bool RemoveSeenByAll(SolveContext& ctx, const CellSet& cells, const CellSet& keep, int digit) {
    bool removed = false;
    for (int c : CommonPeers(cells) - keep)
        removed |= VerwijderKnop(ctx, digit, c);
    return removed;
}

// The units of a cell that the wings search: row, column, box.
enum WingUnit { kRow = 0, kColumn = 1, kBox = 2 };
int UnitOf(int cell, int which) {
    switch (which) {
        case kRow: return cell / 9;
        case kColumn: return 9 + cell % 9;
        default: return 18 + Global::BoxOfCell[cell];
    }
}

// The six forms of a wing with two branches: the units of the first and of the
// second branch.
constexpr int kForms[6][2] = {{kRow, kColumn}, {kRow, kBox}, {kColumn, kRow},
                              {kColumn, kBox}, {kBox, kRow}, {kBox, kColumn}};

// A two-branch wing around `stem`: calls `act(first, second, form)` for each pair
// of branches with the masks `m1` and `m2`, form by form, positions in unit
// order; stops at the first call that answers true.
template <typename Act>
bool EachBranchPair(const Board& b, int stem, CandidateMask m1, CandidateMask m2, Act act) {
    for (int form = 0; form < 6; ++form) {
        for (int first : UnitCells[UnitOf(stem, kForms[form][0])]) {
            if (first == stem || b.Candidates[first] != m1) continue;
            for (int second : UnitCells[UnitOf(stem, kForms[form][1])]) {
                if (second == stem || b.Candidates[second] != m2) continue;
                if (act(first, second, form + 1)) return true;
            }
        }
    }
    return false;
}

// Which candidate masks stand somewhere on the board, so that a digit set whose
// stem or branches stand nowhere is passed over at once.
struct MasksPresent {
    explicit MasksPresent(const Board& b) {
        for (CandidateMask m : b.Candidates)
            present[m] = true;
    }
    bool operator()(CandidateMask m) const { return present[m]; }
    bool present[512] = {};
};

// The record of the wings: HintNumber the digit that goes, HintCells[1..HintCellCount] the
// stem (the hinge) and then the branches. XYWing keeps its form 1..6 in HintVariant,
// WXYZWing 1 when the hinge holds all four digits and 2 when it holds three; XYZWing no
// form.
void FillWingHint(HintRecord& h, HintKind kind, int digit, std::initializer_list<int> cells) {
    h.HintNumber = digit;
    int n = 0;
    for (int c : cells)
        h.HintCells[++n] = c;
    h.HintCellCount = n;
    h.HintKind = kind;
}

}  // namespace

bool VerwijderXYWing(SolveContext& ctx, int /*checkType*/, int stem, int takVak1, int takVak2,
                     int digit) {
    const CellSet ends = CellSet::Of(takVak1, takVak2);
    CellSet keep = ends;
    if (stem >= 0 && stem < 81) keep.Add(stem);
    return RemoveSeenByAll(ctx, ends, keep, digit);
}

bool VerwijderXYZWing(SolveContext& ctx, int stem, int takVak1, int takVak2, int digit) {
    const CellSet all = CellSet::Of(stem, takVak1, takVak2);
    return RemoveSeenByAll(ctx, all, all, digit);
}

bool VerwijderWXYZWing(SolveContext& ctx, int stem, int takVak1, int takVak2, int takVak3,
                       int digit) {
    const CellSet all = CellSet::Of(stem, takVak1, takVak2, takVak3);
    return RemoveSeenByAll(ctx, all, all, digit);
}

bool VerwijderWXYZWing2(SolveContext& ctx, int stem, int takVak1, int takVak2, int takVak3,
                        int digit) {
    const CellSet branches = CellSet::Of(takVak1, takVak2, takVak3);
    return RemoveSeenByAll(ctx, branches, branches | CellSet::Of(stem), digit);
}

// Stem {x, y}, branches {x, z} and {y, z}: z leaves every cell both branches see.
// Each triple of digits once, three passes each (z the largest, the middle, the
// smallest), stems in cell order.
bool XYWing(SolveContext& ctx) {
    const Board& b = ctx.board;
    int pairs[81], pairCount = 0;
    for (int cell = 0; cell < 81; ++cell)
        if (CountDigits(b.Candidates[cell]) == 2) pairs[pairCount++] = cell;
    if (pairCount < 3) return false;
    const MasksPresent present(b);
    for (int x = 1; x <= 7; ++x)
        for (int y = x + 1; y <= 8; ++y)
            for (int z = y + 1; z <= 9; ++z) {
                const int passes[3][3] = {{x, y, z}, {x, z, y}, {y, z, x}};
                for (const auto& pass : passes) {
                    const int s1 = pass[0], s2 = pass[1], knop = pass[2];
                    const CandidateMask stemMask = DigitBit(s1) | DigitBit(s2);
                    const CandidateMask m1 = DigitBit(s1) | DigitBit(knop);
                    const CandidateMask m2 = DigitBit(s2) | DigitBit(knop);
                    if (!present(stemMask) || !present(m1) || !present(m2)) continue;
                    for (int i = 0; i < pairCount; ++i) {
                        const int stem = pairs[i];
                        if (b.Candidates[stem] != stemMask) continue;
                        const bool hit =
                            EachBranchPair(b, stem, m1, m2, [&](int first, int second, int form) {
                                if (!VerwijderXYWing(ctx, 1, stem, first, second, knop))
                                    return false;
                                if (ctx.HintOnly()) {
                                    ctx.hint.HintVariant = form;
                                    FillWingHint(ctx.hint, HintKind::XYWing, knop,
                                                 {stem, first, second});
                                }
                                return true;
                            });
                        if (hit) return true;
                    }
                }
            }
    return false;
}

// Stem {x, y, z}, branches {k, p} and {k, q} for the common digit k: k leaves
// every cell that sees all three.
bool XYZWing(SolveContext& ctx) {
    const Board& b = ctx.board;
    int stems[81], stemCount = 0;
    for (int cell = 0; cell < 81; ++cell)
        if (CountDigits(b.Candidates[cell]) == 3) stems[stemCount++] = cell;
    if (stemCount == 0) return false;
    const MasksPresent present(b);
    for (int x = 1; x <= 7; ++x)
        for (int y = x + 1; y <= 8; ++y)
            for (int z = y + 1; z <= 9; ++z) {
                const CandidateMask stemMask = DigitBit(x) | DigitBit(y) | DigitBit(z);
                if (!present(stemMask)) continue;
                for (int i = 0; i < stemCount; ++i) {
                    const int stem = stems[i];
                    if (b.Candidates[stem] != stemMask) continue;
                    const int passes[3][3] = {{x, y, z}, {y, x, z}, {z, x, y}};
                    for (const auto& pass : passes) {
                        const int knop = pass[0];
                        const CandidateMask m1 = DigitBit(knop) | DigitBit(pass[1]);
                        const CandidateMask m2 = DigitBit(knop) | DigitBit(pass[2]);
                        if (!present(m1) || !present(m2)) continue;
                        const bool hit =
                            EachBranchPair(b, stem, m1, m2, [&](int first, int second, int) {
                                if (!VerwijderXYZWing(ctx, stem, first, second, knop)) return false;
                                if (ctx.HintOnly())
                                    FillWingHint(ctx.hint, HintKind::XYZWing, knop,
                                                 {stem, first, second});
                                return true;
                            });
                        if (hit) return true;
                    }
                }
            }
    return false;
}

namespace {

// Three bi-value branches around `hinge`, {k, o1}, {k, o2}, {k, o3}, each sought
// in the hinge's row, column and box in turn, nested first to third. All three in
// one unit with the hinge would be a naked quad and is not tried.
template <typename Act>
bool EachBranchTriple(const Board& b, int hinge, const CandidateMask (&masks)[3], Act act) {
    for (int u1 = 0; u1 < 3; ++u1)
        for (int first : UnitCells[UnitOf(hinge, u1)]) {
            if (first == hinge || b.Candidates[first] != masks[0]) continue;
            for (int u2 = 0; u2 < 3; ++u2)
                for (int second : UnitCells[UnitOf(hinge, u2)]) {
                    if (second == hinge || b.Candidates[second] != masks[1]) continue;
                    for (int u3 = 0; u3 < 3; ++u3) {
                        if (u1 == u2 && u2 == u3) continue;
                        for (int third : UnitCells[UnitOf(hinge, u3)]) {
                            if (third == hinge || b.Candidates[third] != masks[2]) continue;
                            if (act(first, second, third)) return true;
                        }
                    }
                }
        }
    return false;
}

}  // namespace

// A hinge and three bi-value branches over four digits w < x < y < z. With the
// hinge holding all four, each digit in turn is the common one and leaves every
// cell that sees all four cells; with the hinge holding three of them, the fourth
// is the common one and leaves every cell that sees the three branches.
bool WXYZWing(SolveContext& ctx) {
    const Board& b = ctx.board;
    int hinges[81], hingeCount = 0, pairCount = 0;
    for (int cell = 0; cell < 81; ++cell) {
        const int k = CountDigits(b.Candidates[cell]);
        if (k == 3 || k == 4) hinges[hingeCount++] = cell;
        pairCount += k == 2;
    }
    if (hingeCount == 0 || pairCount < 3) return false;
    const MasksPresent present(b);
    for (int w = 1; w <= 6; ++w)
        for (int x = w + 1; x <= 7; ++x)
            for (int y = x + 1; y <= 8; ++y)
                for (int z = y + 1; z <= 9; ++z) {
                    const int set[4] = {w, x, y, z};
                    const CandidateMask all = DigitBit(w) | DigitBit(x) | DigitBit(y) | DigitBit(z);
                    bool someHinge = present(all);
                    for (int d : set)
                        someHinge |= present(CandidateMask(all & ~DigitBit(d)));
                    if (!someHinge) continue;
                    for (int i = 0; i < hingeCount; ++i) {
                        const int hinge = hinges[i];
                        const CandidateMask m = b.Candidates[hinge];
                        const bool full = m == all;
                        if (!full && ((m & ~all) != 0 || CountDigits(m) != 3)) continue;
                        for (int k = 0; k < 4; ++k) {
                            // The digits rotated so that the common one comes first.
                            const int order[4] = {set[k], set[(k + 1) % 4], set[(k + 2) % 4],
                                                  set[(k + 3) % 4]};
                            const int knop = order[0];
                            if (!full && HasDigit(m, knop)) continue;
                            const CandidateMask masks[3] = {
                                CandidateMask(DigitBit(knop) | DigitBit(order[1])),
                                CandidateMask(DigitBit(knop) | DigitBit(order[2])),
                                CandidateMask(DigitBit(knop) | DigitBit(order[3]))};
                            if (!present(masks[0]) || !present(masks[1]) || !present(masks[2]))
                                continue;
                            const bool hit = EachBranchTriple(
                                b, hinge, masks, [&](int first, int second, int third) {
                                    const bool removed =
                                        full ? VerwijderWXYZWing(ctx, hinge, first, second, third,
                                                                 knop)
                                             : VerwijderWXYZWing2(ctx, hinge, first, second, third,
                                                                  knop);
                                    if (!removed) return false;
                                    if (ctx.HintOnly()) {
                                        ctx.hint.HintVariant = full ? 1 : 2;
                                        FillWingHint(ctx.hint, HintKind::WXYZWing, knop,
                                                     {hinge, first, second, third});
                                    }
                                    return true;
                                });
                            if (hit) return true;
                        }
                    }
                }
    return false;
}

}  // namespace tavi
