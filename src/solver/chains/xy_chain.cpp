// SPDX-License-Identifier: GPL-3.0-or-later
// XY-Chains: a depth-first walk through bi-value cells, each step leaving a cell
// by the digit it did not come in on. A step on digit x joins two cells only when
// they are the only holders of x in the row, column or box between them. Two
// results come out of the one walk: a chain whose ends both hold the target
// digit (what sees both ends loses it), and a Double Implication Chain whose ends
// share a house (every chained cell loses its entry digit).
#include <vector>

#include "solver/chains/chain_links.h"
#include "solver/techniques.h"

namespace tavi {

using namespace chains;

namespace {

struct Link {
    int cell;
    int exit;  // the digit by which the chain leaves the cell
    int step;  // units tried: 0 none, 1 row, 2 column, 3 box
};

struct XYSearch {
    SolveContext& ctx;
    std::array<std::array<std::uint8_t, 10>, 27> unitCount{};  // unit, digit; 3 for more
    std::array<bool, 81> biValue{};
    std::array<int, 10> biValueCount{};
    // Per cell, digit and unit kind (row, column, box): the one bi-value cell the
    // chain can step to on that digit through that unit, or -1.
    std::array<std::array<std::array<std::int8_t, 3>, 10>, 81> partner{};
    std::array<CellSet, 10> hitNodes{};  // by exit digit

    explicit XYSearch(SolveContext& c) : ctx(c) {
        const Board& b = ctx.board;
        std::array<CellSet, 10> holders{};
        for (int d = 1; d <= 9; ++d)
            holders[d] = b.CellsWith(d);
        for (int u = 0; u < 27; ++u)
            for (int d = 1; d <= 9; ++d)
                unitCount[u][d] = std::uint8_t(CountUpTo(holders[d] & UnitSet(u), 2));
        for (int cell = 0; cell < 81; ++cell) {
            for (auto& kinds : partner[cell])
                kinds = {-1, -1, -1};
            if (b.CandidatesOf(cell).Count() != 2) continue;
            biValue[cell] = true;
            for (int d : b.CandidatesOf(cell))
                ++biValueCount[d];
        }
        // Only a bi-value cell stands in a chain, and it leaves by one of its digits.
        for (int cell = 0; cell < 81; ++cell) {
            if (!biValue[cell]) continue;
            for (int x : b.CandidatesOf(cell))
                for (int kind = 0; kind < 3; ++kind) {
                    const int unit = kind == 0   ? RowUnit(cell)
                                     : kind == 1 ? ColumnUnit(cell)
                                                 : BoxUnit(cell);
                    if (unitCount[unit][x] != 2) continue;
                    CellSet other = UnitSet(unit) & holders[x];
                    other.Remove(cell);
                    const int next = other.First();
                    if (!biValue[next]) continue;
                    if (kind == 2 &&
                        (RowUnit(next) == RowUnit(cell) || ColumnUnit(next) == ColumnUnit(cell)))
                        continue;
                    partner[cell][x][kind] = std::int8_t(next);
                }
        }
    }

    int Other(int cell, int digit) const {
        return (ctx.board.CandidatesOf(cell) - DigitSet::Of(digit)).First();
    }

    // The record of XYChain and DoubleImplicationChain: HintNumber the digit, HintCells[k]
    // the chain's cells in order and HintValues[k] the digit each leaves by, both counts
    // its length.
    void FillHint(HintKind kind, int digit, const std::vector<Link>& chain) {
        HintRecord& h = ctx.hint;
        h.HintNumber = digit;
        h.HintCellCount = h.HintValueCount = int(chain.size());
        for (size_t k = 0; k < chain.size(); ++k) {
            h.HintCells[k + 1] = chain[k].cell;
            h.HintValues[k + 1] = chain[k].exit;
        }
        h.HintKind = kind;
    }

    // The tests made after each push: a plain chain first, then a Double
    // Implication Chain.
    bool HitTests(int d, const std::vector<Link>& chain) {
        const int n = int(chain.size());
        const int first = chain.front().cell, last = chain.back().cell;
        const int y = chain.back().exit, x = chain[n - 2].exit;
        if (y == d && RemoveSeenByBoth(ctx, first, last, d)) {
            if (ctx.HintOnly()) FillHint(HintKind::XYChain, d, chain);
            ctx.stepSize.links = n;
            return true;
        }
        if (x == d && (RowUnit(first) == RowUnit(last) || ColumnUnit(first) == ColumnUnit(last) ||
                       BoxUnit(first) == BoxUnit(last))) {
            VerwijderKnop(ctx, d, first);
            VerwijderKnop(ctx, d, last);
            for (int k = 1; k + 1 < n; ++k)
                VerwijderKnop(ctx, chain[k - 1].exit, chain[k].cell);
            if (ctx.HintOnly()) FillHint(HintKind::DoubleImplicationChain, d, chain);
            ctx.stepSize.links = n;
            return true;
        }
        return false;
    }

    // The nodes (cell, exit digit) at which a push from `start` hits: a plain chain
    // ends on d in a cell that shares a victim with the start; a Double
    // Implication Chain enters a peer of the start on d.
    void FindHitNodes(int d, int start) {
        for (auto& cells : hitNodes)
            cells = CellSet();
        const CellSet holders = ctx.board.CellsWith(d);
        const CellSet startPeers = PeerSet(start) & holders;
        for (int c : holders) {
            if (c == start || !biValue[c]) continue;
            CellSet victims = startPeers & PeerSet(c);
            victims.Remove(c);
            if (!victims.Empty()) hitNodes[d].Add(c);
            if (startPeers.Has(c)) hitNodes[Other(c, d)].Add(c);
        }
    }

    // True when no hit can follow the node (cell, exit) however the chain goes on:
    // no node of FindHitNodes is reachable through cells outside the chain. The
    // walk below may come back to a cell by its other digit, which the chain
    // cannot, so it sees every chain there is and more.
    bool Dead(int cell, int exit, const CellSet& inChain) const {
        std::array<CellSet, 10> seen{};
        std::array<std::pair<std::uint8_t, std::uint8_t>, 162> queue;
        int head = 0, tail = 0;
        queue[tail++] = {std::uint8_t(cell), std::uint8_t(exit)};
        seen[exit].Add(cell);
        while (head < tail) {
            const auto [c, x] = queue[head++];
            for (int kind = 0; kind < 3; ++kind) {
                const int next = partner[c][x][kind];
                if (next < 0 || inChain.Has(next)) continue;
                const int y = Other(next, x);
                if (seen[y].Has(next)) continue;
                if (hitNodes[y].Has(next)) return false;
                seen[y].Add(next);
                queue[tail++] = {std::uint8_t(next), std::uint8_t(y)};
            }
        }
        return true;
    }

    bool Search(int d) {
        std::vector<Link> chain;
        chain.reserve(81);
        CellSet inChain;
        for (int start = 0; start < 81; ++start) {
            if (!biValue[start] || !ctx.board.Has(d, start)) continue;
            int targetCells = 1;
            chain.assign(1, Link{start, Other(start, d), 0});
            inChain = CellSet::Of(start);
            FindHitNodes(d, start);
            // A branch from which no hit can be reached is not walked: the first
            // hit stays the first.
            if (Dead(start, chain[0].exit, inChain)) continue;
            while (!chain.empty()) {
                ctx.Yield();
                Link& top = chain.back();
                const int c = top.cell, x = top.exit;
                bool moved = false;
                for (int kind = top.step; kind < 3 && !moved; ++kind) {
                    chain.back().step = kind + 1;
                    if (targetCells >= biValueCount[d]) continue;
                    const int next = partner[c][x][kind];
                    if (next < 0 || inChain.Has(next)) continue;
                    const int y = Other(next, x);
                    if (x == d || y == d) ++targetCells;
                    chain.push_back(Link{next, y, 0});
                    inChain.Add(next);
                    moved = true;
                }
                if (moved) {
                    if (HitTests(d, chain)) return true;
                    if (Dead(chain.back().cell, chain.back().exit, inChain)) chain.back().step = 3;
                    continue;
                }
                // Every unit of the top is tried: step back.
                const int n = int(chain.size());
                if (n > 1 && (chain[n - 1].exit == d || chain[n - 2].exit == d)) --targetCells;
                inChain.Remove(chain.back().cell);
                chain.pop_back();
            }
        }
        return false;
    }
};

}  // namespace

bool XYChain(SolveContext& ctx) {
    XYSearch search(ctx);
    for (int d = 1; d <= 9; ++d)
        if (search.biValueCount[d] > 1 && search.Search(d)) {
            return true;
        }
    return false;
}

}  // namespace tavi
