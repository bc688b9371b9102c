// SPDX-License-Identifier: GPL-3.0-or-later
// ALS-xz: two almost locked sets (N cells of one unit holding N + 1 digits) joined
// by a restricted common digit x, that is a digit whose holders in one set all see
// its holders in the other. Then a second common digit z is in one of the sets for
// sure, and leaves every cell that sees all of its holders in both. When z is
// restricted as well (the double link), each set becomes a locked set: x and z
// leave every cell that sees all their holders, and each other digit of a set
// leaves every cell that sees all its holders in that set.
//
// The first stage pairs a bi-value cell with one set, the second stage two sets.
// Sets have 2 to 7 cells.
#include <vector>

#include "grid/sets.h"
#include "solver/primitives.h"
#include "solver/techniques.h"

namespace tavi {

namespace {

constexpr int kMaxAlsSize = 7;

// The unit of kind `kind` (1 row, 2 column, 3 box) through `cell`, as 0..26.
int UnitOf(int kind, int cell) {
    switch (kind) {
        case 1: return cell / 9;
        case 2: return 9 + cell % 9;
        default: return 18 + Global::BoxOfCell[cell];
    }
}

// Calls `test` on pool[0] joined by every choice of N - 1 of the other entries,
// for N from 2 to 7, in lexicographic order of positions with the last index
// running fastest. `test` gets the chosen cells and their mask; a true answer
// stops the walk and is returned. A choice whose digits already outnumber N + 1
// is not carried deeper, as nothing below it can pass.
template <typename Test>
bool ForEachSet(SolveContext& ctx, const int* pool, int poolSize, const CandidateMask* digits,
                Test&& test) {
    int chosen[kMaxAlsSize];
    int index[kMaxAlsSize];
    CandidateMask mask[kMaxAlsSize];
    chosen[0] = pool[0];
    mask[0] = digits[pool[0]];
    for (int n = 2; n <= kMaxAlsSize && n <= poolSize; ++n) {
        // index[1..n-1] are positions in pool (from 1), strictly rising.
        int depth = 1;
        index[1] = 1;
        while (depth >= 1) {
            const int limit = poolSize - (n - depth);  // last position this depth may take
            if (index[depth] > limit) {
                --depth;
                if (depth >= 1) ++index[depth];
                continue;
            }
            chosen[depth] = pool[index[depth]];
            mask[depth] = CandidateMask(mask[depth - 1] | digits[chosen[depth]]);
            if (depth == n - 1) {
                ctx.Yield();
                if (CountDigits(mask[depth]) == n + 1 && test(chosen, n, mask[depth])) return true;
                ++index[depth];
            } else if (CountDigits(mask[depth]) > n + 1) {
                // Masks only grow: no set below this choice can be almost locked.
                ++index[depth];
            } else {
                ++depth;
                index[depth] = index[depth - 1] + 1;
            }
        }
    }
    return false;
}

CellSet HoldersIn(const Board& b, int digit, const int* cells, int count) {
    CellSet s;
    for (int i = 0; i < count; ++i)
        if (b.Has(digit, cells[i])) s.Add(cells[i]);
    return s;
}

// The holders of each digit on the board as the search found it.
struct Holders {
    std::array<CellSet, 10> of;
    explicit Holders(const Board& b) {
        for (int d = 1; d <= 9; ++d)
            of[d] = b.CellsWith(d);
    }
};

// ALSxz_Hit: some cell outside the holders holds `digit` and sees every holder.
bool ALSxz_Hit(const Holders& all, const CellSet& holders, int digit) {
    return !((CommonPeers(holders) & all.of[digit]) - holders).Empty();
}

// Takes `digit` from every cell that sees all `holders`.
void RemoveSeeingAll(SolveContext& ctx, const CellSet& holders, int digit) {
    for (int c : CommonPeers(holders) - holders)
        VerwijderKnop(ctx, digit, c);
}

// The first stage: bi-value cell `base` with digits x and z against a set whose
// only x-holder sees it.
bool BiValueStage(SolveContext& ctx, const CandidateMask (&digits)[81], const Holders& all) {
    const Board& b = ctx.board;
    int pool[9];
    for (int base = 0; base < 81; ++base) {
        if (CountDigits(digits[base]) != 2) continue;
        const int lo = LowestDigit(digits[base]);
        const int hi = LowestDigit(CandidateMask(digits[base] & ~DigitBit(lo)));
        for (int j = 0; j < 81; ++j) {
            if (j == base || digits[j] == 0 || !SeesCell(base, j)) continue;
            for (int pass = 0; pass < 2; ++pass) {
                const int x = pass == 0 ? lo : hi, z = pass == 0 ? hi : lo;
                if (!HasDigit(digits[j], x)) continue;
                for (int kind = 1; kind <= 3; ++kind) {
                    const int unit = UnitOf(kind, j);
                    if (unit != UnitOf(kind, base)) continue;
                    int poolSize = 0;
                    pool[poolSize++] = j;
                    for (int c : UnitCells[unit])
                        if (c != j && digits[c] != 0 && !HasDigit(digits[c], x))
                            pool[poolSize++] = c;
                    const bool hit = ForEachSet(
                        ctx, pool, poolSize, digits,
                        [&](const int* set, int n, CandidateMask mask) {
                            CellSet zList = HoldersIn(b, z, set, n);
                            if (zList.Empty()) return false;
                            bool doubleLinked = true;
                            for (int c : zList)
                                doubleLinked &= SeesCell(c, base);
                            zList.Add(base);
                            CellSet xList = HoldersIn(b, x, set, n) & PeerSet(base);
                            xList.Add(base);
                            const DigitSet others = DigitSet(mask) - DigitSet(digits[base]);
                            bool found = ALSxz_Hit(all, zList, z);
                            if (!found && doubleLinked) {
                                found = ALSxz_Hit(all, xList, x);
                                for (int k : others)
                                    if (!found) found = ALSxz_Hit(all, HoldersIn(b, k, set, n), k);
                            }
                            if (!found) return false;

                            RemoveSeeingAll(ctx, zList, z);
                            if (doubleLinked) {
                                RemoveSeeingAll(ctx, xList, x);
                                for (int k : others)
                                    RemoveSeeingAll(ctx, HoldersIn(b, k, set, n), k);
                            }
                            if (ctx.HintOnly()) {
                                // The record of BiValueALSxz: HintCell the bi-value cell,
                                // HintNumber x, HintVariant z, HintRow 1 when doubly
                                // linked, HintCells[1..HintCellCount] the set, HintValues
                                // the holders of z: the bi-value cell, then those of the
                                // set.
                                HintRecord& h = ctx.hint;
                                h.HintCell = base;
                                h.HintNumber = x;
                                h.HintVariant = z;
                                h.HintRow = doubleLinked ? 1 : 0;
                                h.HintCellCount = n;
                                for (int i = 0; i < n; ++i)
                                    h.HintCells[1 + i] = set[i];
                                h.HintValueCount = 0;
                                h.HintValues[++h.HintValueCount] = base;
                                for (int i = 0; i < n; ++i)
                                    if (b.Has(z, set[i])) h.HintValues[++h.HintValueCount] = set[i];
                                h.HintKind = HintKind::BiValueALSxz;
                            }
                            return true;
                        });
                    if (hit) return true;
                }
            }
        }
    }
    return false;
}

// What the second stage found, kept as the hint record keeps it.
struct AlsPairHit {
    int first[kMaxAlsSize], firstCount = 0;
    int second[kMaxAlsSize], secondCount = 0;
    int x = 0, z = 0;
    CandidateMask cands1 = 0, cands2 = 0;
    bool doubleLinked = false;
};

// Prepare_Tip_ALSxz: the record of a hit of the second stage.
// The record of ALSxz: HintNumber x, HintVariant z, HintRow and HintColumn the two sets'
// candidate masks when doubly linked (else 0), HintCells the first set, HintValues the
// second. Neither ALS kind keeps its removals: they are the hit's conclusions.
void Prepare_Tip_ALSxz(HintRecord& h, const AlsPairHit& hit) {
    h.HintNumber = hit.x;
    h.HintVariant = hit.z;
    h.HintRow = hit.doubleLinked ? hit.cands1 : 0;
    h.HintColumn = hit.doubleLinked ? hit.cands2 : 0;
    h.HintCellCount = hit.firstCount;
    for (int i = 0; i < hit.firstCount; ++i)
        h.HintCells[1 + i] = hit.first[i];
    h.HintValueCount = hit.secondCount;
    for (int i = 0; i < hit.secondCount; ++i)
        h.HintValues[1 + i] = hit.second[i];
    h.HintKind = HintKind::ALSxz;
}

// True if all of `cells` lie in one unit.
bool InOneUnit(const CellSet& cells, int anyCell) {
    for (int kind = 1; kind <= 3; ++kind)
        if (cells.SubsetOf(UnitSet(UnitOf(kind, anyCell)))) return true;
    return false;
}

// One almost locked set of the pair search: its cells in pool order, its digits
// and its cells as a set.
struct AlsSet {
    int cells[kMaxAlsSize];
    int count;
    CandidateMask mask;
    CellSet set;

    // Appends the set that ForEachSet hands over to `list`.
    static AlsSet& AddTo(std::vector<AlsSet>& list, const int* set, int n, CandidateMask mask) {
        AlsSet& a = list.emplace_back();
        a.count = n;
        a.mask = mask;
        for (int k = 0; k < n; ++k) {
            a.cells[k] = set[k];
            a.set.Add(set[k]);
        }
        return a;
    }
};

// The almost locked sets that hold cell j in one of its units, taken from all the
// unit's cells with candidates, j first, in the order ForEachSet makes them. A pool
// with some cells left out makes the same sets less those that use a left-out cell,
// in the same order; so one list per unit and cell serves every second set the
// search looks for there. Lists are made when first asked for, for one board.
// The lists live in the context's scratch, so that the next call reuses their memory.
struct SecondSetLists {
    std::array<std::vector<AlsSet>, 27 * 81> lists;
    std::array<std::uint32_t, 27 * 81> stamp{};  // the board each list was made for
    std::uint32_t board = 0;
    std::vector<AlsSet> firstSets[3];  // ALSxz_2's first sets, by kind of unit
};

class SecondSets {
  public:
    SecondSets(const CandidateMask (&digits)[81], SecondSetLists& memo)
        : digits_(digits), lists_(memo.lists), stamp_(memo.stamp), board_(memo.board) {
        if (++board_ == 0) {  // the counter went round: forget every list
            stamp_.fill(0);
            board_ = 1;
        }
    }
    const std::vector<AlsSet>& Of(SolveContext& ctx, int unit, int j) {
        const int key = unit * 81 + j;
        std::vector<AlsSet>& list = lists_[key];
        if (stamp_[key] == board_) return list;
        stamp_[key] = board_;
        list.clear();
        int pool[9];
        int poolSize = 0;
        pool[poolSize++] = j;
        for (int c : UnitCells[unit])
            if (c != j && digits_[c] != 0) pool[poolSize++] = c;
        ForEachSet(ctx, pool, poolSize, digits_, [&](const int* set, int n, CandidateMask mask) {
            AlsSet::AddTo(list, set, n, mask);
            return false;
        });
        return list;
    }

  private:
    const CandidateMask (&digits_)[81];
    std::array<std::vector<AlsSet>, 27 * 81>& lists_;
    std::array<std::uint32_t, 27 * 81>& stamp_;
    std::uint32_t& board_;
};

// ALSxz_3: a second set against the first one (`set1`, generated from `base` in a
// unit of kind `mode1`), joined by x.
bool ALSxz_3(SolveContext& ctx, const Holders& all, const int* set1, int count1,
             const CellSet& first, int x, int base, CandidateMask cands1, int mode1,
             SecondSets& seconds, AlsPairHit& out) {
    const CellSet x1 = first & all.of[x];
    if (mode1 == 3 && !x1.SubsetOf(RowSet(base / 9)) && !x1.SubsetOf(ColumnSet(base % 9)))
        return false;

    // Only an x-holder in a unit with every x-holder of the first set can be joined
    // to it; no other cell passes the test of the join below.
    CellSet joinable;
    const int anyX = x1.First();  // x1 holds the first set's own cell at least
    for (int u : {anyX / 9, 9 + anyX % 9, 18 + Global::BoxOfCell[anyX]})
        if (x1.SubsetOf(UnitSet(u))) joinable |= UnitSet(u);
    joinable &= all.of[x];
    joinable -= x1;

    for (int j : joinable) {
        for (int kind = mode1; kind <= 3; ++kind) {
            const int unit = UnitOf(kind, j);
            if (kind == mode1 && unit == UnitOf(kind, base)) continue;
            // The unit that holds j and every x-holder of the first set: the second
            // set's own unit if it can, else a row, a column or a box.
            CellSet withJ = x1;
            withJ.Add(j);
            int join = -1;
            if (withJ.SubsetOf(UnitSet(unit))) join = unit;
            for (int k = 1; k <= 3 && join < 0; ++k)
                if (withJ.SubsetOf(UnitSet(UnitOf(k, j)))) join = UnitOf(k, j);
            if (join < 0) continue;

            // The second set takes no cell of the first, and no x-holder outside the
            // joining unit.
            const CellSet barred = first | ((all.of[x] & UnitSet(unit)) - UnitSet(join));
            const bool hit = [&] {
                for (const AlsSet& a : seconds.Of(ctx, unit, j)) {
                    ctx.Yield();
                    if (a.set.Intersects(barred)) continue;
                    const int* set2 = a.cells;
                    const int n = a.count;
                    const CandidateMask cands2 = a.mask;
                    // Without a common digit besides x there is no z.
                    if (!(cands1 & cands2 & ~DigitBit(x))) continue;
                    const CellSet& second = a.set;
                    const CellSet both = first | second;
                    if (InOneUnit(both, j)) continue;
                    for (int z : DigitSet(CandidateMask(cands1 & cands2))) {
                        if (z == x) continue;
                        const CellSet zHolders = both & all.of[z];
                        bool doubleLinked = true;
                        for (int c : zHolders)
                            doubleLinked &= (zHolders - CellSet::Of(c)).SubsetOf(PeerSet(c));
                        const CellSet xHolders = x1 | (second & all.of[x]);
                        bool found = ALSxz_Hit(all, zHolders, z);
                        if (!found && doubleLinked) {
                            found = ALSxz_Hit(all, xHolders, x);
                            for (int k = 1; k <= 9 && !found; ++k) {
                                if (k == x || k == z) continue;
                                if (HasDigit(cands1, k))
                                    found = ALSxz_Hit(all, first & all.of[k], k);
                                if (!found && HasDigit(cands2, k))
                                    found = ALSxz_Hit(all, second & all.of[k], k);
                            }
                        }
                        if (!found) continue;
                        out.firstCount = count1;
                        for (int i = 0; i < count1; ++i)
                            out.first[i] = set1[i];
                        out.secondCount = n;
                        for (int i = 0; i < n; ++i)
                            out.second[i] = set2[i];
                        out.x = x;
                        out.z = z;
                        out.cands1 = cands1;
                        out.cands2 = cands2;
                        out.doubleLinked = doubleLinked;
                        // The solver keeps the hit to itself; only a hint shows it.
                        if (ctx.HintOnly()) Prepare_Tip_ALSxz(ctx.hint, out);
                        return true;
                    }
                }
                return false;
            }();
            if (hit) return true;
        }
    }
    return false;
}

// ALSxz_2: every first set, from each cell, each of its digits as x, each unit. The
// sets of a cell and a unit are the same for every x: they are found once, while
// the first x is tried, and replayed in the same order for the others.
//
// A set comes up once from each of its cells, but what ALSxz_3 finds for it and x
// does not depend on the cell it came from (only the order of its cells, kept for
// the record, does). So it is tried only from its lowest x-holder, the first time
// it comes up with x; later times could only find nothing again.
bool ALSxz_2(SolveContext& ctx, const Holders& all, AlsPairHit& out) {
    CandidateMask digits[81];
    for (int c = 0; c < 81; ++c)
        digits[c] = ctx.board.Candidates[c];
    int pool[9];
    auto& memo = ctx.Scratch().Get<SecondSetLists>(SolverScratch::kAlsXz);
    SecondSets seconds(digits, memo);
    std::vector<AlsSet>(&sets)[3] = memo.firstSets;
    for (int i = 0; i < 81; ++i) {
        if (digits[i] == 0) continue;
        bool known[3] = {false, false, false};
        for (int x : DigitSet(digits[i]))
            for (int kind = 1; kind <= 3; ++kind) {
                std::vector<AlsSet>& list = sets[kind - 1];
                if (known[kind - 1]) {
                    for (const AlsSet& f : list) {
                        ctx.Yield();
                        if ((f.set & all.of[x]).First() != i) continue;
                        if (ALSxz_3(ctx, all, f.cells, f.count, f.set, x, i, f.mask, kind, seconds,
                                    out))
                            return true;
                    }
                    continue;
                }
                list.clear();
                int poolSize = 0;
                pool[poolSize++] = i;
                for (int c : UnitCells[UnitOf(kind, i)])
                    if (c != i && digits[c] != 0) pool[poolSize++] = c;
                const bool hit = ForEachSet(
                    ctx, pool, poolSize, digits, [&](const int* set, int n, CandidateMask mask) {
                        const AlsSet& f = AlsSet::AddTo(list, set, n, mask);
                        if ((f.set & all.of[x]).First() != i) return false;
                        return ALSxz_3(ctx, all, f.cells, n, f.set, x, i, mask, kind, seconds, out);
                    });
                if (hit) return true;
                known[kind - 1] = true;
            }
    }
    return false;
}

}  // namespace

bool ALSxz(SolveContext& ctx) {
    CandidateMask digits[81];
    for (int c = 0; c < 81; ++c)
        digits[c] = ctx.board.Candidates[c];
    const Holders all(ctx.board);
    if (BiValueStage(ctx, digits, all)) {
        return true;
    }

    AlsPairHit hit;
    if (!ALSxz_2(ctx, all, hit)) return false;
    // The removal, from what the record keeps.
    const Board& b = ctx.board;
    const CellSet z1 = HoldersIn(b, hit.z, hit.first, hit.firstCount);
    const CellSet z2 = HoldersIn(b, hit.z, hit.second, hit.secondCount);
    const CellSet x12 = HoldersIn(b, hit.x, hit.first, hit.firstCount) |
                        HoldersIn(b, hit.x, hit.second, hit.secondCount);
    // Work out every holder set before the first removal changes the board.
    CellSet perDigit1[10], perDigit2[10];
    for (int k = 1; k <= 9; ++k) {
        perDigit1[k] = HoldersIn(b, k, hit.first, hit.firstCount);
        perDigit2[k] = HoldersIn(b, k, hit.second, hit.secondCount);
    }
    RemoveSeeingAll(ctx, z1 | z2, hit.z);
    if (hit.doubleLinked) {
        RemoveSeeingAll(ctx, x12, hit.x);
        for (int k = 1; k <= 9; ++k) {
            if (k == hit.x || k == hit.z) continue;
            if (HasDigit(hit.cands1, k)) RemoveSeeingAll(ctx, perDigit1[k], k);
            if (HasDigit(hit.cands2, k)) RemoveSeeingAll(ctx, perDigit2[k], k);
        }
    }
    return true;
}

}  // namespace tavi
