// SPDX-License-Identifier: GPL-3.0-or-later
// Multi colours: two separate clusters of one digit, each coloured as for simple
// colours. A colour that sees both colours of the other cluster is false (type 1,
// which decides the clusters); two colours that see each other cannot both hold,
// so their opposites leave a trap (type 2).
#include "solver/chains/chain_links.h"
#include "solver/techniques.h"

namespace tavi {

using namespace chains;

namespace {

constexpr int kNothing = -1;
enum Flag { kAC = 1, kAD = 2, kBC = 4, kBD = 8 };

// The links between the colours of groups i and j.
int CompareGroups(const Colouring& col, int a, int b, int c, int d) {
    int flags = 0;
    for (int k = 0; k < col.count; ++k) {
        const int ck = col.colour[k];
        if (ck != a && ck != b) continue;
        for (int m = 0; m < col.count; ++m) {
            if (m == k || !SeesCell(col.cells[k], col.cells[m])) continue;
            const int cm = col.colour[m];
            const int f = ck == a ? (cm == c   ? kAC
                                     : cm == d ? kAD
                                               : 0)
                                  : (cm == c   ? kBC
                                     : cm == d ? kBD
                                               : 0);
            if (f) {
                flags |= f;
                break;
            }
        }
    }
    return flags;
}

// Type 1: the false colours lose the digit and their opposites are placed, in one
// walk over the list. Every cell of a false colour has a conjugate partner of the
// opposite colour, so the placements take the digit from it; a removal is made
// only where no placement does it. The result counts the placed cells.
// The record of MultiColoringType1: HintNumber the digit, each coloured cell coded as cell
// + 81 x colour (0..3), the false colours in HintCells, the others in HintValues.
// MultiColoringType2 (Trap): HintCells all coloured cells in the same code, HintValues[1]
// and [2] the two cells whose common peers lose the digit.
int Decide(SolveContext& ctx, int digit, const Colouring& col, const int (&colours)[4],
           int falseMask) {
    HintRecord& h = ctx.hint;
    h.HintCellCount = h.HintValueCount = 0;
    int placed = 0;
    CellSet placing;
    for (int e = 0; e < col.count; ++e)
        for (int k = 0; k < 4; ++k)
            if (col.colour[e] == colours[k] && (falseMask >> (k ^ 1) & 1))
                placing.Add(col.cells[e]);
    for (int e = 0; e < col.count; ++e) {
        for (int k = 0; k < 4; ++k) {
            if (col.colour[e] != colours[k]) continue;
            const int cell = col.cells[e];
            const bool isFalse = falseMask >> k & 1;
            const bool isTrue = falseMask >> (k ^ 1) & 1;
            if (isTrue) {
                PlaceDigit(ctx, digit, cell);
                ++placed;
            }
            if (isFalse && !PeerSet(cell).Intersects(placing)) VerwijderKnop(ctx, digit, cell);
            if (isFalse)
                h.HintCells[++h.HintCellCount] = cell + 81 * k;
            else
                h.HintValues[++h.HintValueCount] = cell + 81 * k;
        }
    }
    if (ctx.HintOnly()) {
        h.HintNumber = digit;
        h.HintKind = HintKind::MultiColoringType1;
    }
    return placed;
}

// Type 2: each pair of cells of colours x and y traps the cells that see both.
bool Trap(SolveContext& ctx, int digit, const Colouring& col, const int (&colours)[4], int x,
          int y) {
    for (int k = 0; k < col.count; ++k) {
        if (col.colour[k] != colours[x]) continue;
        for (int m = 0; m < col.count; ++m) {
            if (col.colour[m] != colours[y]) continue;
            if (!RemoveSeenByBoth(ctx, col.cells[k], col.cells[m], digit)) continue;
            if (ctx.HintOnly()) {
                HintRecord& h = ctx.hint;
                h.HintNumber = digit;
                h.HintCellCount = 0;
                for (int e = 0; e < col.count; ++e)
                    for (int c = 0; c < 4; ++c)
                        if (col.colour[e] == colours[c])
                            h.HintCells[++h.HintCellCount] = col.cells[e] + 81 * c;
                h.HintValues[1] = col.cells[k];
                h.HintValues[2] = col.cells[m];
                h.HintValueCount = 2;
                h.HintKind = HintKind::MultiColoringType2;
            }
            return true;
        }
    }
    return false;
}

}  // namespace

int MultiColor(SolveContext& ctx) {
    std::array<Colouring, 10> colourings;
    for (int d = 1; d <= 9; ++d)
        colourings[d] = ColourDigit(ctx.board, d);
    // Type 1 rows: the flags, then the false colours as bits of A, B, C, D.
    struct Row {
        int flags, falseMask;
    };
    constexpr Row kType1[] = {
        {kAC | kAD | kBC, 1 | 4}, {kAC | kAD | kBD, 1 | 8}, {kAC | kBC | kBD, 2 | 4},
        {kAD | kBC | kBD, 2 | 8}, {kAC | kAD, 1},           {kBC | kBD, 2},
        {kAC | kBC, 4},           {kAD | kBD, 8},
    };
    // Type 2: the single flag and the opposite colours whose cells trap.
    struct Single {
        int flag, x, y;
    };
    constexpr Single kType2[] = {{kAC, 1, 3}, {kAD, 1, 2}, {kBC, 0, 3}, {kBD, 0, 2}};
    for (int d = 1; d <= 9; ++d) {
        const Colouring& col = colourings[d];
        for (int i = 1; i < col.groups; ++i)
            for (int j = i + 1; j <= col.groups; ++j) {
                const int colours[4] = {2 * i - 1, 2 * i, 2 * j - 1, 2 * j};
                const int flags =
                    CompareGroups(col, colours[0], colours[1], colours[2], colours[3]);
                if (!flags) continue;
                if (flags == (kAC | kAD | kBC | kBD)) break;
                const Row* row = nullptr;
                for (const Row& r : kType1)
                    if ((flags & r.flags) == r.flags) {
                        row = &r;
                        break;
                    }
                if (row) return Decide(ctx, d, col, colours, row->falseMask);
                for (const Single& s : kType2) {
                    if (!(flags & s.flag)) continue;
                    if (Trap(ctx, d, col, colours, s.x, s.y)) {
                        return 0;
                    }
                    break;
                }
            }
    }
    return kNothing;
}

}  // namespace tavi
