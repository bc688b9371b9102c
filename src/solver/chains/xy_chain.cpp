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

constexpr int kLevel = 7;

struct Link {
    int cell;
    int exit;  // the digit by which the chain leaves the cell
    int step;  // units tried: 0 none, 1 row, 2 column, 3 box
};

struct XYSearch {
    SolveContext& ctx;
    std::array<std::array<std::uint8_t, 10>, 27> unitCount{};  // unit, digit
    std::array<bool, 81> biValue{};
    std::array<int, 10> biValueCount{};
    // Per cell, digit and unit kind (row, column, box): the one bi-value cell the
    // chain can step to on that digit through that unit, or -1.
    std::array<std::array<std::array<std::int8_t, 3>, 10>, 81> partner{};

    explicit XYSearch(SolveContext& c) : ctx(c) {
        const Board& b = ctx.board;
        for (int cell = 0; cell < 81; ++cell) {
            for (int d : b.CandidatesOf(cell))
                for (int u : {RowUnit(cell), ColumnUnit(cell), BoxUnit(cell)})
                    ++unitCount[u][d];
            if (b.CandidatesOf(cell).Count() == 2) {
                biValue[cell] = true;
                for (int d : b.CandidatesOf(cell))
                    ++biValueCount[d];
            }
        }
        for (int cell = 0; cell < 81; ++cell)
            for (int x = 1; x <= 9; ++x)
                for (int kind = 0; kind < 3; ++kind) {
                    partner[cell][x][kind] = -1;
                    const int unit = kind == 0   ? RowUnit(cell)
                                     : kind == 1 ? ColumnUnit(cell)
                                                 : BoxUnit(cell);
                    if (unitCount[unit][x] != 2) continue;
                    for (int next : UnitSet(unit) & b.CellsWith(x)) {
                        if (next == cell || !biValue[next]) continue;
                        if (kind == 2 && (RowUnit(next) == RowUnit(cell) ||
                                          ColumnUnit(next) == ColumnUnit(cell)))
                            continue;
                        partner[cell][x][kind] = std::int8_t(next);
                    }
                }
    }

    int Other(int cell, int digit) const {
        return (ctx.board.CandidatesOf(cell) - DigitSet::Of(digit)).First();
    }

    void FillHint(int kind, int digit, const std::vector<Link>& chain) {
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
            if (ctx.HintOnly()) FillHint(18, d, chain);
            return true;
        }
        if (x == d && (RowUnit(first) == RowUnit(last) || ColumnUnit(first) == ColumnUnit(last) ||
                       BoxUnit(first) == BoxUnit(last))) {
            VerwijderKnop(ctx, d, first);
            VerwijderKnop(ctx, d, last);
            for (int k = 1; k + 1 < n; ++k)
                VerwijderKnop(ctx, chain[k - 1].exit, chain[k].cell);
            if (ctx.HintOnly()) FillHint(19, d, chain);
            return true;
        }
        return false;
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
            if (!ctx.HintOnly()) ctx.RaiseLevel(kLevel);
            return true;
        }
    return false;
}

}  // namespace tavi
