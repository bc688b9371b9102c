// SPDX-License-Identifier: GPL-3.0-or-later
// Simple colours: the conjugate pairs of one digit joined into clusters of two
// alternating colours. Two cells of one colour in one house make that colour false
// (a wrap); a cell that sees both colours loses the digit (a trap).
#include "solver/chains/chain_links.h"
#include "solver/techniques.h"

namespace tavi {

using namespace chains;

namespace {

// The record of SimpleColorsTrap and SimpleColorsWrap: HintNumber the digit, HintCell and
// HintVariant the two cells that make the hit, HintCells[1..HintCellCount] the cells of one
// colour, HintValues[1..HintValueCount] those of the other.
void FillColoursHint(SolveContext& ctx, HintKind kind, int digit, const Colouring& col, int group,
                     int cellK, int cellM) {
    HintRecord& h = ctx.hint;
    h.HintNumber = digit;
    h.HintCell = cellK;
    h.HintVariant = cellM;
    h.HintCellCount = h.HintValueCount = 0;
    for (int e = 0; e < col.count; ++e) {
        if (col.colour[e] == 2 * group - 1) h.HintCells[++h.HintCellCount] = col.cells[e];
        if (col.colour[e] == 2 * group) h.HintValues[++h.HintValueCount] = col.cells[e];
    }
    h.HintKind = kind;
}

// Two cells of one colour in one house: that whole colour goes.
bool ColourWrap(SolveContext& ctx, int digit, const Colouring& col, int group) {
    const int a = 2 * group - 1, b = 2 * group;
    for (int k = 0; k + 1 < col.count; ++k) {
        const int ck = col.colour[k];
        if (ck != a && ck != b) continue;
        for (int m = k + 1; m < col.count; ++m) {
            if (col.colour[m] != ck || !SeesCell(col.cells[k], col.cells[m])) continue;
            for (int e = 0; e < col.count; ++e)
                if (col.colour[e] == ck) VerwijderKnop(ctx, digit, col.cells[e]);
            if (ctx.HintOnly())
                FillColoursHint(ctx, HintKind::SimpleColorsWrap, digit, col, group, col.cells[k],
                                col.cells[m]);
            return true;
        }
    }
    return false;
}

// Two cells of opposite colours: whatever sees both loses the digit.
bool ColourTrap(SolveContext& ctx, int digit, const Colouring& col, int group) {
    const int a = 2 * group - 1, b = 2 * group;
    for (int k = 0; k + 1 < col.count; ++k) {
        const int ck = col.colour[k];
        if (ck != a && ck != b) continue;
        for (int m = k + 1; m < col.count; ++m) {
            if (col.colour[m] != Colouring::Opposite(ck)) continue;
            if (!RemoveSeenByBoth(ctx, col.cells[k], col.cells[m], digit)) continue;
            if (ctx.HintOnly())
                FillColoursHint(ctx, HintKind::SimpleColorsTrap, digit, col, group, col.cells[k],
                                col.cells[m]);
            return true;
        }
    }
    return false;
}

}  // namespace

bool SimpleColoring(SolveContext& ctx) {
    for (int digit = 1; digit <= 9; ++digit) {
        const Colouring col = ColourDigit(ctx.board, digit);
        for (int g = 1; g <= col.groups; ++g)
            if (ColourWrap(ctx, digit, col, g) || ColourTrap(ctx, digit, col, g)) {
                return true;
            }
    }
    return false;
}

}  // namespace tavi
