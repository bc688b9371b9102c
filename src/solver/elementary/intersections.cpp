// SPDX-License-Identifier: GPL-3.0-or-later
// Pointing pairs and box/line reductions: where a digit of a box is held to one
// line, or a digit of a line to one box, the rest of the other unit loses it.
#include "solver/primitives.h"
#include "solver/techniques.h"

namespace tavi {

namespace {

// Where each digit stands in each row, column or box: bit i for the unit's cell i
// (a box's cells in reading order). One pass over the board instead of a look at
// every cell for every digit.
struct Places {
    std::uint16_t of[10][9] = {};
    // kind 1 rows, 2 columns, 3 boxes.
    Places(const Board& b, int kind) {
        for (int c = 0; c < 81; ++c) {
            const int unit = kind == 1 ? c / 9 : kind == 2 ? c % 9 : Global::BoxOfCell[c];
            const int i = kind == 1 ? c % 9 : kind == 2 ? c / 9 : 3 * (c / 9 % 3) + c % 3;
            for (CandidateMask m = b.Candidates[c]; m; m &= m - 1)
                of[LowestDigit(m)][unit] |= std::uint16_t(1u << i);
        }
    }
};

int CountPlaces(unsigned places) { return CountDigits(CandidateMask(places)); }

}  // namespace

bool VerwijderPP(SolveContext& ctx, int digit, int leftTop, int segment) {
    bool removed = false;
    const int firstRow = leftTop / 9, firstColumn = leftTop % 9;
    if (segment < 3) {
        const int row = firstRow + segment;
        for (int col = 0; col < 9; ++col)
            if (col < firstColumn || col > firstColumn + 2)
                removed |= VerwijderKnop(ctx, digit, 9 * row + col);
    } else {
        const int col = firstColumn + segment - 3;
        for (int row = 0; row < 9; ++row)
            if (row < firstRow || row > firstRow + 2)
                removed |= VerwijderKnop(ctx, digit, 9 * row + col);
    }
    return removed;
}

bool VerwijderBL(SolveContext& ctx, int digit, int line, int segment, int kind) {
    const int cell = kind == 1 ? 9 * line + 3 * segment : 9 * (3 * segment) + line;
    const int leftTop = Global::BoxLeftTopOfCell[cell];
    bool removed = false;
    for (int p = 0; p < 9; ++p) {
        const int c = leftTop + 9 * (p / 3) + p % 3;
        const bool onLine = kind == 1 ? c / 9 == line : c % 9 == line;
        if (!onLine) removed |= VerwijderKnop(ctx, digit, c);
    }
    return removed;
}

// For each digit, each box in reading order: if the digit's cells of the box lie
// in one segment (a total of one matches its row segment first), the rest of that
// line loses it. A pattern that removes nothing is passed over.
bool PointingPair(SolveContext& ctx) {
    const Places boxes(ctx.board, 3);
    for (int digit = 1; digit <= 9; ++digit) {
        for (int box = 0; box < 9; ++box) {
            const unsigned places = boxes.of[digit][box];
            const int total = CountPlaces(places);
            if (total < 1 || total > 3) continue;
            // Segments 0..2 the box's rows, 3..5 its columns.
            int count[6];
            for (int k = 0; k < 3; ++k) {
                count[k] = CountPlaces(places & (7u << (3 * k)));
                count[3 + k] = CountPlaces(places & (0x49u << k));
            }
            const int leftTop = Global::BoxLeftTop[box];
            for (int segment = 0; segment < 6; ++segment) {
                if (count[segment] != total || !VerwijderPP(ctx, digit, leftTop, segment)) continue;
                // The record of PointingPair: HintCell the box's top left cell, HintVariant
                // the segment (0..2 the box's rows, 3..5 its columns), HintNumber the
                // digit. The sentence writer adds the line (RecordAfterSchrijfHint).
                if (ctx.HintOnly()) {
                    ctx.hint.HintCell = leftTop;
                    ctx.hint.HintVariant = segment;
                    ctx.hint.HintNumber = digit;
                    ctx.hint.HintKind = HintKind::PointingPair;
                }
                return true;
            }
        }
    }
    return false;
}

// All rows for all digits, then all columns: where a digit of a line lies in one
// segment, the other six cells of that box lose it.
bool BoxLine(SolveContext& ctx) {
    for (int kind = 1; kind <= 2; ++kind) {
        const Places lines(ctx.board, kind);
        for (int digit = 1; digit <= 9; ++digit) {
            for (int line = 0; line < 9; ++line) {
                const unsigned places = lines.of[digit][line];
                const int total = CountPlaces(places);
                if (total < 1 || total > 3) continue;
                for (int segment = 0; segment < 3; ++segment) {
                    if (CountPlaces(places & (7u << (3 * segment))) != total ||
                        !VerwijderBL(ctx, digit, line, segment, kind))
                        continue;
                    // The record of BoxLineReduction: HintNumber the digit, HintCell the
                    // box's top left cell, HintVariant 1 for a row and 2 for a column, and
                    // the line in HintRow or HintColumn.
                    if (ctx.HintOnly()) {
                        const int cell = kind == 1 ? 9 * line + 3 * segment : 27 * segment + line;
                        ctx.hint.HintNumber = digit;
                        ctx.hint.HintCell = Global::BoxLeftTopOfCell[cell];
                        ctx.hint.HintVariant = kind;
                        (kind == 1 ? ctx.hint.HintRow : ctx.hint.HintColumn) = line;
                        ctx.hint.HintKind = HintKind::BoxLineReduction;
                    }
                    return true;
                }
            }
        }
    }
    return false;
}

}  // namespace tavi
