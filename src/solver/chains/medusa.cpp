// SPDX-License-Identifier: GPL-3.0-or-later
// 3D Medusa: one cluster of candidates of every digit, coloured in two colours
// along strong links in a house (a digit held twice) and in a cell (a bi-value
// cell). Every link of the cluster says "exactly one of the two", so one colour is
// true and the other false; six rules read the finished cluster, in their order:
//  1. two candidates of one colour in a cell: that colour is false;
//  2. one digit twice in one colour in a house: that colour is false;
//  3. both colours in a cell: its uncoloured candidates go;
//  4. an uncoloured candidate seeing the digit in both colours goes;
//  5. an uncoloured candidate seeing the digit in one colour, with the other
//     colour in its own cell, goes;
//  6. a bi-value cell with both digits uncoloured, each seen in the same colour:
//     that colour is false.
#include <memory>
#include <vector>

#include "solver/chains/chain_links.h"
#include "solver/techniques.h"

namespace tavi {

using namespace chains;

namespace {

int Code(int cell, int digit) { return cell + 81 * (digit - 1); }

struct MedusaSearch {
    SolveContext& ctx;
    const Board& b;
    // Per unit and digit: the partner of each holder of a strong link in that
    // unit; boxes first, then rows and columns whose pair spans two boxes.
    std::array<std::array<std::array<std::int8_t, 81>, 10>, 3> partner{};
    std::array<std::array<std::int8_t, 10>, 81> colour{};  // +1, -1 or 0
    std::array<bool, 81 * 10> seen{};
    std::vector<int> nodes;  // coloured candidates as codes, in order of colouring
    // The holders of each digit; the board stays as it is until a rule hits.
    std::array<CellSet, 10> holders{};
    // The cells coloured + and - per digit, as the colours say.
    std::array<CellSet, 10> plus{}, minus{};
    CellSet biValues;  // the cells with two candidates

    explicit MedusaSearch(SolveContext& c) : ctx(c), b(c.board) {
        for (auto& kind : partner)
            for (auto& digit : kind)
                digit.fill(-1);
        for (int cell = 0; cell < 81; ++cell)
            if (b.CandidatesOf(cell).Count() == 2) biValues.Add(cell);
        for (int d = 1; d <= 9; ++d) {
            holders[d] = b.CellsWith(d);
            for (int kind = 0; kind < 3; ++kind)
                for (int i = 0; i < 9; ++i) {
                    const int unit = kind == 0 ? 18 + i : kind == 1 ? i : 9 + i;
                    const CellSet in = holders[d] & UnitSet(unit);
                    if (CountUpTo(in, 2) != 2) continue;
                    const int x = in.First();
                    const int y = (in - CellSet::Of(x)).First();
                    if (kind > 0 && BoxUnit(x) == BoxUnit(y)) continue;
                    partner[kind][d][x] = std::int8_t(y);
                    partner[kind][d][y] = std::int8_t(x);
                }
        }
    }

    bool BiValue(int cell) const { return biValues.Has(cell); }
    bool Linked(int cell, int d) const {
        return BiValue(cell) || partner[0][d][cell] >= 0 || partner[1][d][cell] >= 0 ||
               partner[2][d][cell] >= 0;
    }

    void Grow(int start, int d) {
        for (int code : nodes)
            colour[code % 81][code / 81 + 1] = 0;
        nodes.clear();
        plus.fill(CellSet());
        minus.fill(CellSet());
        colour[start][d] = 1;
        nodes.push_back(Code(start, d));
        for (size_t q = 0; q < nodes.size(); ++q) {
            const int cell = nodes[q] % 81, k = nodes[q] / 81 + 1;
            const int sign = colour[cell][k];
            auto link = [&](int to, int digit) {
                if (to < 0 || colour[to][digit]) return;
                colour[to][digit] = std::int8_t(-sign);
                nodes.push_back(Code(to, digit));
            };
            for (int kind = 0; kind < 3; ++kind)
                link(partner[kind][k][cell], k);
            if (BiValue(cell)) link(cell, (b.CandidatesOf(cell) - DigitSet::Of(k)).First());
        }
        for (int code : nodes) {
            const int cell = code % 81, k = code / 81 + 1;
            (colour[cell][k] > 0 ? plus : minus)[k].Add(cell);
        }
    }

    void RemoveColour(int sign) {
        for (int code : nodes)
            if (colour[code % 81][code / 81 + 1] == sign)
                VerwijderKnop(ctx, code / 81 + 1, code % 81);
    }

    // The record of Medusa3D, candidates coded as cell + 81 x (digit - 1): HintVariant the
    // rule 1..6, HintCell the candidate the cluster grew from, HintNumber the digit,
    // HintRow and HintColumn the two candidates of the rule, HintCells[1..HintCellCount]
    // the coloured candidates and HintValues[k] the colour of entry k by its sign. Rule 6
    // puts one more coded candidate in HintValueCount.
    void FillHint(int rule, int start, int d, int number, int row, int column) {
        if (!ctx.HintOnly()) return;
        HintRecord& h = ctx.hint;
        h.HintVariant = rule;
        h.HintCell = Code(start, d);
        h.HintNumber = number;
        h.HintRow = row;
        h.HintColumn = column;
        h.HintCellCount = h.HintValueCount = 0;
        for (int code : nodes) {
            h.HintCells[++h.HintCellCount] = code;
            h.HintValues[++h.HintValueCount] = colour[code % 81][code / 81 + 1];
        }
        h.HintKind = HintKind::Medusa3D;
    }

    // The rules in their order on the cluster grown from (start, d).
    bool Rules(int start, int d) {
        // Rules 1 and 3: two coloured candidates in one cell.
        const CellSet coloured = [&] {
            CellSet all;
            for (int k = 1; k <= 9; ++k)
                all |= plus[k] | minus[k];
            return all;
        }();
        for (int rule : {1, 3})
            for (int cell : coloured)
                for (int x : b.CandidatesOf(cell))
                    for (int y : b.CandidatesOf(cell)) {
                        if (y <= x || !colour[cell][x] || !colour[cell][y]) continue;
                        const bool same = colour[cell][x] == colour[cell][y];
                        if (rule == 1 && same) {
                            RemoveColour(colour[cell][x]);
                            FillHint(1, start, d, x, Code(cell, x), Code(cell, y));
                            return true;
                        }
                        if (rule == 3 && !same) {
                            bool any = false;
                            for (int k : b.CandidatesOf(cell))
                                if (k != x && k != y) any |= VerwijderKnop(ctx, k, cell);
                            if (!any) continue;
                            FillHint(3, start, d, y, Code(cell, x), Code(cell, y));
                            return true;
                        }
                    }
        // Rule 2: one digit twice in one colour in a house.
        for (int k = 1; k <= 9; ++k)
            for (int x : plus[k] | minus[k]) {
                const CellSet& same = colour[x][k] > 0 ? plus[k] : minus[k];
                const int y = NextFrom(same & PeerSet(x), x + 1);
                if (y == 81) continue;
                RemoveColour(colour[x][k]);
                FillHint(2, start, d, k, Code(x, k), Code(y, k));
                return true;
            }
        // Rule 4: an uncoloured candidate that sees the digit in both colours.
        for (int k = 1; k <= 9; ++k) {
            const CellSet uncoloured = holders[k] - plus[k] - minus[k];
            if (uncoloured.Empty()) continue;
            for (int x : plus[k])
                for (int y : minus[k]) {
                    const CellSet victims = PeerSet(x) & PeerSet(y) & uncoloured;
                    if (victims.Empty()) continue;
                    for (int v : victims)
                        VerwijderKnop(ctx, k, v);
                    FillHint(4, start, d, k, Code(std::min(x, y), k), Code(std::max(x, y), k));
                    return true;
                }
        }
        // Rule 5: an uncoloured candidate that sees its digit coloured, with the
        // opposite colour in its own cell.
        for (int cell : coloured) {
            int signs = 0;  // bit 0: a + candidate in the cell, bit 1: a - one
            for (int k : b.CandidatesOf(cell))
                signs |= colour[cell][k] > 0 ? 1 : colour[cell][k] < 0 ? 2 : 0;
            if (!signs) continue;
            for (int k : b.CandidatesOf(cell)) {
                if (colour[cell][k]) continue;
                // A + peer needs a - candidate in the cell, a - peer a + one.
                CellSet opposite;
                if (signs & 2) opposite |= plus[k];
                if (signs & 1) opposite |= minus[k];
                const CellSet sees = PeerSet(cell) & opposite;
                if (sees.Empty()) continue;
                const int e = sees.First();
                VerwijderKnop(ctx, k, cell);
                FillHint(5, start, d, k, Code(e, k), Code(cell, k));
                return true;
            }
        }
        // Rule 6: a bi-value cell whose two digits are seen in one colour.
        for (int cell : biValues) {
            const int x = b.CandidatesOf(cell).First();
            const int y = (b.CandidatesOf(cell) - DigitSet::Of(x)).First();
            if (colour[cell][x] || colour[cell][y]) continue;
            for (int sign : {1, -1}) {
                const CellSet seenX = PeerSet(cell) & (sign > 0 ? plus : minus)[x];
                const CellSet seenY = PeerSet(cell) & (sign > 0 ? plus : minus)[y];
                if (seenX.Empty() || seenY.Empty()) continue;
                const int ex = seenX.First(), ey = seenY.First();
                RemoveColour(sign);
                FillHint(6, start, d, x, Code(ex, x), Code(ey, y));
                if (ctx.HintOnly()) ctx.hint.HintValueCount = Code(cell, x);
                return true;
            }
        }
        return false;
    }

    bool Run() {
        for (int d = 1; d <= 9; ++d)
            for (int cell : holders[d]) {
                // A cluster is the same from each of its nodes: try it once.
                if (seen[Code(cell, d)] || !Linked(cell, d)) continue;
                Grow(cell, d);
                for (int code : nodes)
                    seen[code] = true;
                if (Rules(cell, d)) return true;
            }
        return false;
    }
};

}  // namespace

bool Medusa(SolveContext& ctx) {
    auto search = std::make_unique<MedusaSearch>(ctx);
    if (!search->Run()) return false;
    return true;
}

}  // namespace tavi
