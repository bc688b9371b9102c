// SPDX-License-Identifier: GPL-3.0-or-later
// Forcing chains: assume in turn every possibility of one choice, let the singles
// run on a scratch table, and keep what all possibilities agree on. The choice is
// either the candidates of one cell or the holders of one digit in one unit. A
// branch that runs into a contradiction simply stops, and its table counts as it
// stands.
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "grid/sets.h"
#include "solver/primitives.h"
#include "solver/techniques.h"

namespace tavi {

namespace {

// One branch's table: per cell and digit 0 nothing known, 1 placed, -1 eliminated.
// Beside it the candidates still open (value 0), by digit as cell sets for the
// hidden singles and by cell as masks for the naked ones, and for each entry the
// number of the single that settled it (the depth of the branch there).
struct ExamGrid {
    std::int8_t value[81][9];
    std::uint8_t depth[81][9];
    int forces = 0;
    CellSet open[9];
    CandidateMask openMask[81];

    void Reset(const CandidateMask (&cellDigits)[81]) {
        forces = 0;
        for (int c = 0; c < 81; ++c) {
            for (int d = 0; d < 9; ++d)
                value[c][d] = 0, depth[c][d] = 0;
            openMask[c] = cellDigits[c];
        }
        for (int d = 0; d < 9; ++d) {
            open[d] = CellSet();
            for (int c = 0; c < 81; ++c)
                if (HasDigit(cellDigits[c], d + 1)) open[d].Add(c);
        }
    }
    void Set(int cell, int digit, int v) {
        value[cell][digit - 1] = std::int8_t(v);
        depth[cell][digit - 1] = std::uint8_t(forces);
        open[digit - 1].Remove(cell);
        openMask[cell] &= CandidateMask(~DigitBit(digit));
    }
};

// Digit `digit` stands in `baseCell`: the cell's other open candidates and the
// open `digit` of every peer are eliminated.
void ApplyForce(int baseCell, int digit, ExamGrid& g) {
    if (g.forces < 255) ++g.forces;
    g.Set(baseCell, digit, 1);
    for (int k : DigitSet(g.openMask[baseCell]))
        g.Set(baseCell, k, -1);
    for (int c : g.open[digit - 1] & PeerSet(baseCell))
        g.Set(c, digit, -1);
}

// Runs the singles after the first ApplyForce until none is left: hidden singles
// first (rows, then columns, then boxes; each digit, each unit), else the first
// cell with one open digit.
void Propagate(int baseCell, ExamGrid& g) {
    for (;;) {
        bool found = false;
        for (int kind = 0; kind < 3 && !found; ++kind)
            for (int d = 1; d <= 9 && !found; ++d)
                for (int u = 9 * kind; u < 9 * kind + 9; ++u) {
                    CellSet holders = g.open[d - 1] & UnitSet(u);
                    holders.Remove(baseCell);
                    if (holders.Empty()) continue;
                    const int only = holders.First();  // the one holder, if one
                    holders.Remove(only);
                    if (!holders.Empty()) continue;
                    ApplyForce(only, d, g);
                    found = true;
                    break;
                }
        if (found) continue;
        for (int c = 0; c < 81; ++c) {
            if (c == baseCell || CountDigits(g.openMask[c]) != 1) continue;
            ApplyForce(c, LowestDigit(g.openMask[c]), g);
            found = true;
            break;
        }
        if (!found) return;
    }
}

struct Verdict {
    int cell = -1, digit = 0, tally = 0;
};

// The first cell and digit, in board order, that all `n` branches agree on and
// whose conclusion takes something away.
Verdict Decide(const int (&tally)[81][9], int n, const Board& b) {
    if (n < 2) return {};
    for (int c = 0; c < 81; ++c)
        for (int d = 1; d <= 9; ++d) {
            const int t = tally[c][d - 1];
            if (std::abs(t) != n) continue;
            // A placement in a cell that holds nothing else would change nothing.
            if (t > 0 && (b.Candidates[c] & ~DigitBit(d) & kAllCandidates) == 0) continue;
            return {c, d, t};
        }
    return {};
}

void Apply(SolveContext& ctx, const Verdict& v) {
    if (v.tally < 0) {
        VerwijderKnop(ctx, v.digit, v.cell);
        return;
    }
    for (int k = 1; k <= 9; ++k)
        if (k != v.digit) VerwijderKnop(ctx, k, v.cell);
}

// The table a branch ends with depends only on the cell and digit it starts
// from, so each is worked out once per call: both forms share them.
class Branches {
  public:
    explicit Branches(const CandidateMask (&cellDigits)[81])
        : cellDigits_(cellDigits), tables_(81 * 9), depths_(81 * 9) {}

    // Adds to `tally` the table of the branch that places `digit` in `cell`.
    void AddTo(int (&tally)[81][9], int cell, int digit) {
        auto& table = tables_[cell * 9 + digit - 1];
        if (table.empty()) {
            g_.Reset(cellDigits_);
            ApplyForce(cell, digit, g_);
            Propagate(cell, g_);
            table.assign(&g_.value[0][0], &g_.value[0][0] + 81 * 9);
            depths_[cell * 9 + digit - 1].assign(&g_.depth[0][0], &g_.depth[0][0] + 81 * 9);
        }
        for (int i = 0; i < 81 * 9; ++i)
            tally[i / 9][i % 9] += table[i];
    }

    // How deep the branch from `digit` in `cell` ran before it settled the verdict.
    int Depth(int cell, int digit, const Verdict& v) const {
        return depths_[cell * 9 + digit - 1][v.cell * 9 + v.digit - 1];
    }

  private:
    const CandidateMask (&cellDigits_)[81];
    std::vector<std::vector<std::int8_t>> tables_;
    std::vector<std::vector<std::uint8_t>> depths_;
    ExamGrid g_;
};

}  // namespace

bool Forcing(SolveContext& ctx) {
    const Board& b = ctx.board;
    CandidateMask cellDigits[81];
    for (int c = 0; c < 81; ++c)
        cellDigits[c] = b.Candidates[c];
    Branches branches(cellDigits);
    int tally[81][9];

    // From a cell: its candidates are the branches.
    for (int base = 0; base < 81; ++base) {
        if (cellDigits[base] == 0) continue;
        const int n = CountDigits(cellDigits[base]);
        if (n < 2) continue;
        for (auto& row : tally)
            for (int& t : row)
                t = 0;
        for (int d : DigitSet(cellDigits[base]))
            branches.AddTo(tally, base, d);
        const Verdict v = Decide(tally, n, b);
        if (v.cell < 0) continue;
        Apply(ctx, v);
        for (int d : DigitSet(cellDigits[base]))
            ctx.stepSize.links += branches.Depth(base, d, v);
        if (ctx.HintOnly()) {
            // The record of ForcingChainFromCell: HintCell the cell whose candidates are
            // tried, HintNumber the digit decided, HintCellCount the cell decided,
            // HintVariant the verdict's tally.
            ctx.hint.HintCell = base;
            ctx.hint.HintNumber = v.digit;
            ctx.hint.HintVariant = v.tally;
            ctx.hint.HintCellCount = v.cell;
            ctx.hint.HintKind = HintKind::ForcingChainFromCell;
        }
        return true;
    }

    // From a unit: the holders of a digit in a row, column or box are the branches.
    for (int digit = 1; digit <= 9; ++digit)
        for (int u = 0; u < 27; ++u) {
            int holders[9], n = 0;
            for (int cell : UnitCells[u])
                if (HasDigit(cellDigits[cell], digit)) holders[n++] = cell;
            if (n < 2) continue;
            for (auto& row : tally)
                for (int& t : row)
                    t = 0;
            for (int i = 0; i < n; ++i)
                branches.AddTo(tally, holders[i], digit);
            const Verdict v = Decide(tally, n, b);
            if (v.cell < 0) continue;
            Apply(ctx, v);
            for (int i = 0; i < n; ++i)
                ctx.stepSize.links += branches.Depth(holders[i], digit, v);
            if (ctx.HintOnly()) {
                // The record of ForcingChainFromUnit: HintVariant the unit, 1 row, 2
                // column, 3 box, with its index in HintRow (row, box) or HintColumn
                // (column); HintCellCount the digit tried through the unit; HintCell and
                // HintNumber the cell and digit decided; HintValueCount the tally, 0 when
                // the decided digit is always false.
                const int kind = u / 9, index = u % 9;
                ctx.hint.HintVariant = kind + 1;
                ctx.hint.HintRow = kind == 1 ? 0 : index;
                ctx.hint.HintColumn = kind == 1 ? index : 0;
                ctx.hint.HintCell = v.cell;
                ctx.hint.HintNumber = v.digit;
                ctx.hint.HintCellCount = digit;
                ctx.hint.HintValueCount = v.tally < 0 ? 0 : v.tally;
                ctx.hint.HintKind = HintKind::ForcingChainFromUnit;
            }
            return true;
        }
    return false;
}

}  // namespace tavi
