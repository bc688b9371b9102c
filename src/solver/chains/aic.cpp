// Alternating inference chains: the nice loop's walk over nodes that are a cell
#include <memory>
// and a digit, so that the digit may change inside a cell. Links alternate strong
// and weak from the first node; at each position the links inside the cell are
// tried before the links to other cells.
#include "solver/chains/chain_links.h"
#include "solver/techniques.h"

namespace tavi {

using namespace chains;

namespace {

constexpr int kNone = 0, kCycle = 1, kStrong = 2, kWeak = 3;
constexpr int kCounterLimit = 50000;
constexpr int kSameCell = -1, kExhausted = 81;

bool SameCellUnit(int a, int b) {
    return RowUnit(a) == RowUnit(b) || ColumnUnit(a) == ColumnUnit(b) || BoxUnit(a) == BoxUnit(b);
}

struct AicSearch {
    SolveContext& ctx;
    int chainLimit;
    int limitCounter = 0;

    std::array<DigitSet, 81> digits{};
    CellSet biValue, multiValue;
    std::array<DigitLinks, 10> links{};
    std::array<CellSet, 10> biHolders{};  // bi-value cells holding the digit
    std::array<std::array<CellSet, 81>, 10> conjugatePeers{}, linkPeers{};

    // The walk.
    std::array<int, 83> cells{}, chainDigits{}, cellCursor{}, digitCursor{};
    CellSet inChain;
    CellSet seesStartCell;
    std::array<DigitSet, 81> seesStartNode{};

    AicSearch(SolveContext& c, int limit) : ctx(c), chainLimit(limit) {
        const Board& b = ctx.board;
        for (int cell = 0; cell < 81; ++cell) {
            digits[cell] = b.CandidatesOf(cell);
            if (b.CurrentGrid[cell] || b.Puzzle[cell]) continue;
            (digits[cell].Count() == 2 ? biValue : multiValue).Add(cell);
        }
        for (int d = 1; d <= 9; ++d) {
            const CellSet holders = b.CellsWith(d);
            links[d] = LinksOf(holders);
            biHolders[d] = holders & biValue;
            // Any holder may be the cell a link leaves from; only strong nodes
            // are where it arrives.
            for (int u = 0; u < 27; ++u) {
                const CellSet in = links[d].strong & UnitSet(u);
                for (int cell : holders& UnitSet(u)) {
                    if (links[d].conjugate >> u & 1) conjugatePeers[d][cell] |= in;
                    if ((links[d].conjugate | links[d].weak) >> u & 1) linkPeers[d][cell] |= in;
                }
            }
            for (int cell = 0; cell < 81; ++cell) {
                conjugatePeers[d][cell].Remove(cell);
                linkPeers[d][cell].Remove(cell);
            }
        }
    }

    bool MultiStrong(int cell, int d) const {
        return multiValue.Has(cell) && links[d].strong.Has(cell);
    }
    // The in-chain flag of a cell entered from another cell at position p.
    void EnterFromOtherCell(int cell, int p) {
        if (p % 2 == 0 && !biValue.Has(cell))
            inChain.Add(cell);
        else
            inChain.Remove(cell);
    }

    void SetStart(int start, int d) {
        seesStartCell = CellSet();
        seesStartNode.fill(DigitSet());
        if (multiValue.Has(start)) {
            seesStartCell.Add(start);
            seesStartNode[start] = digits[start] - DigitSet::Of(d);
        }
        const int row = RowUnit(start);
        if (links[d].conjugate >> row & 1) return;
        for (int i : RowSet(row) & ctx.board.CellsWith(d)) {
            if (i == start) continue;
            seesStartCell.Add(i);
            seesStartNode[i].Add(d);
        }
    }

    // The closing tests at position p; a hit leaves its node at p.
    int Close(int p, int d) {
        const int start = cells[0], q = cells[p - 1], x = chainDigits[p - 1];
        if (p % 2 == 1) {
            if (p >= 3 && x == d && SharesUnitIn(q, start, links[d].conjugate)) {
                cells[p] = start, chainDigits[p] = d;
                return kStrong;
            }
            return kNone;
        }
        if (p < 4) return kNone;
        if (x == d && q != start && SameCellUnit(q, start)) {
            cells[p] = start, chainDigits[p] = d;
            for (int i = 1; i < p; i += 2) {
                const int a = cells[i], b = cells[i + 1];
                if (a == b ? multiValue.Has(a) : SharesUnitIn(a, b, links[chainDigits[i]].weak))
                    return kCycle;
            }
        }
        for (int i : seesStartCell) {
            if (inChain.Has(i) && i != start) continue;
            if (seesStartNode[i].Has(x) && SeesCell(q, i)) {
                cells[p] = i, chainDigits[p] = x;
                return kWeak;
            }
        }
        return kNone;
    }

    // The next digit from `from` of a link inside the cell at p-1.
    int SameCellLink(int p, int from) const {
        const int q = cells[p - 1], x = chainDigits[p - 1];
        for (int k = from; k <= 9; ++k) {
            if (k == x || !digits[q].Has(k)) continue;
            if (biValue.Has(q)) return k;
            if (p % 2 == 0 && MultiStrong(q, k)) return k;
        }
        return 10;
    }

    // The candidates for a link to another cell at p.
    CellSet OtherCellLinks(int p) const {
        const int q = cells[p - 1], x = chainDigits[p - 1];
        if (p % 2 == 1) return conjugatePeers[x][q] - inChain;
        return ((linkPeers[x][q]) | (biHolders[x] & PeerSet(q))) - inChain;
    }

    // Runs the search for start digit d: a result, or -1 when the counter ran out.
    int Run(int d) {
        inChain = CellSet();
        cellCursor.fill(kSameCell);
        digitCursor.fill(1);
        cellCursor[0] = 0;
        int p = 0;
        bool fresh = true;  // the position is entered, not come back to
        const CellSet starts = biHolders[d] | (links[d].strong & multiValue);
        while (p >= 0) {
            ctx.Yield();
            if (p == 0) {
                const int c = NextFrom(starts, cellCursor[0]);
                cellCursor[0] = c;
                if (c == 81) {
                    p = -1;
                    break;
                }
                cells[0] = c, chainDigits[0] = d;
                EnterFromOtherCell(c, 0);
                SetStart(c, d);
                p = 1, fresh = true;
                continue;
            }
            if (fresh) {
                if (p > chainLimit) {
                    cellCursor[p] = kExhausted;
                    if (++limitCounter >= kCounterLimit) return -1;
                }
                if (const int r = Close(p, d); r != kNone) return Hit(r, p, d);
            }
            bool moved = false;
            if (cellCursor[p] == kSameCell && inChain.Has(cells[p - 1])) cellCursor[p] = 0;
            if (cellCursor[p] == kSameCell) {
                const int k = SameCellLink(p, digitCursor[p]);
                if (k <= 9) {
                    digitCursor[p] = k;
                    cells[p] = cells[p - 1], chainDigits[p] = k;
                    inChain.Add(cells[p]);
                    moved = true;
                } else {
                    inChain.Add(cells[p - 1]);
                    digitCursor[p] = 1;
                    cellCursor[p] = 0;
                }
            }
            if (!moved && cellCursor[p] != kSameCell && cellCursor[p] < kExhausted) {
                const int c = NextFrom(OtherCellLinks(p), cellCursor[p]);
                cellCursor[p] = c;
                if (c < 81) {
                    cells[p] = c, chainDigits[p] = chainDigits[p - 1];
                    EnterFromOtherCell(c, p);
                    moved = true;
                }
            }
            if (moved) {
                ++p;
                cellCursor[p] = kSameCell;
                digitCursor[p] = 1;
                fresh = true;
                continue;
            }
            // Give the position up.
            cellCursor[p] = kSameCell;
            digitCursor[p] = 1;
            --p;
            fresh = false;
            if (p >= 0) {
                inChain.Remove(cells[p]);
                if (cellCursor[p] == kSameCell)
                    ++digitCursor[p];
                else
                    ++cellCursor[p];
            }
        }
        return kNone;
    }

    int Hit(int result, int p, int d) {
        if (result == kCycle) {
            for (int i = 1; i < p; i += 2) {
                const int a = cells[i], b = cells[i + 1];
                if (a == b) {
                    if (!multiValue.Has(a)) continue;
                    for (int k : digits[a])
                        if (k != chainDigits[i] && k != chainDigits[i + 1])
                            VerwijderKnop(ctx, k, a);
                } else {
                    RemoveSeenByBoth(ctx, a, b, chainDigits[i]);
                }
            }
        } else if (result == kStrong) {
            PlaceDigit(ctx, d, cells[0], 0);
        } else {
            VerwijderKnop(ctx, chainDigits[p], cells[p]);
        }
        if (ctx.HintOnly()) {
            HintRecord& h = ctx.hint;
            h.HintVariant = result;
            h.HintCellCount = h.HintValueCount = p + 1;
            for (int i = 0; i <= p; ++i) {
                h.HintCells[i + 1] = cells[i];
                h.HintValues[i + 1] = chainDigits[i];
            }
            h.HintKind = 31;
        }
        return result;
    }
};

}  // namespace

int AIC(SolveContext& ctx, int chainLimit, int newLevel) {
    auto search = std::make_unique<AicSearch>(ctx, chainLimit);
    for (int d = 1; d <= 9; ++d) {
        const int r = search->Run(d);
        if (r < 0) return kNone;  // the counter ends the whole call
        if (r != kNone) {
            if (!ctx.HintOnly()) ctx.RaiseLevel(newLevel);
            return r;
        }
    }
    return kNone;
}

}  // namespace tavi
