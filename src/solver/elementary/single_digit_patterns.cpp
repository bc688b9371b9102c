// SPDX-License-Identifier: GPL-3.0-or-later
// Single-digit patterns built on conjugate pairs, a digit held exactly twice by a
// line: the empty rectangle, the two-string kite and the skyscraper.
#include "solver/primitives.h"
#include "solver/techniques.h"

namespace tavi {

namespace {

// The crossings of a box for one digit: an ER row and an ER column such that all
// of the box's candidates lie on one or the other. Up to two; zero when the box
// has no such shape.
int Crossings(const Board& b, int digit, int leftTop, int (&rows)[2], int (&columns)[2]) {
    int cells[5], total = 0, lineCount[6] = {};
    const int top = leftTop / 9, left = leftTop % 9;
    for (int p = 0; p < 9; ++p) {
        const int cell = leftTop + 9 * (p / 3) + p % 3;
        if (!b.Has(digit, cell)) continue;
        ++lineCount[p / 3];
        ++lineCount[3 + p % 3];
        if (total < 5) cells[total] = cell;
        ++total;
    }
    if (total < 2 || total > 5) return 0;
    auto lineWith = [&](int first, int n) {
        for (int i = first; i < first + 3; ++i)
            if (lineCount[i] == n) return i;
        return -1;
    };
    int n = 0;
    const int rowOf0 = cells[0] / 9, colOf0 = cells[0] % 9;
    switch (total) {
        case 2: {
            const int rowOf1 = cells[1] / 9, colOf1 = cells[1] % 9;
            if (rowOf0 == rowOf1 || colOf0 == colOf1) return 0;
            rows[0] = rowOf0, columns[0] = colOf1;
            rows[1] = rowOf1, columns[1] = colOf0;
            n = 2;
            break;
        }
        case 3: {
            if (lineWith(0, 3) >= 0 || lineWith(3, 3) >= 0) return 0;
            bool someEmpty = false;
            for (int k : lineCount)
                someEmpty |= k == 0;
            if (!someEmpty) return 0;
            const int twoRow = lineWith(0, 2), twoColumn = lineWith(3, 2);
            if (twoRow >= 0) {
                rows[0] = top + twoRow;
                for (int i = 0; i < 3; ++i)
                    if (cells[i] / 9 != rows[0]) columns[0] = cells[i] % 9;
            } else if (twoColumn >= 0) {
                columns[0] = left + twoColumn - 3;
                for (int i = 0; i < 3; ++i)
                    if (cells[i] % 9 != columns[0]) rows[0] = cells[i] / 9;
            } else {
                return 0;
            }
            n = 1;
            break;
        }
        case 4: {
            const int threeRow = lineWith(0, 3), threeColumn = lineWith(3, 3);
            const int twoRow = lineWith(0, 2), twoColumn = lineWith(3, 2);
            if (threeRow >= 0 && twoColumn >= 0)
                rows[0] = top + threeRow, columns[0] = left + twoColumn - 3;
            else if (threeColumn >= 0 && twoRow >= 0)
                rows[0] = top + twoRow, columns[0] = left + threeColumn - 3;
            else
                return 0;
            n = 1;
            break;
        }
        case 5: {
            const int threeRow = lineWith(0, 3), threeColumn = lineWith(3, 3);
            if (threeRow < 0 || threeColumn < 0) return 0;
            rows[0] = top + threeRow, columns[0] = left + threeColumn - 3;
            n = 1;
            break;
        }
    }
    // Every candidate of the box must lie on one axis or the other.
    int kept = 0;
    for (int k = 0; k < n; ++k) {
        bool covers = true;
        for (int p = 0; p < 9; ++p) {
            const int cell = leftTop + 9 * (p / 3) + p % 3;
            if (b.Has(digit, cell) && cell / 9 != rows[k] && cell % 9 != columns[k]) covers = false;
        }
        if (covers) rows[kept] = rows[k], columns[kept] = columns[k], ++kept;
    }
    return kept;
}

}  // namespace

// For each digit and box: the box's candidates lie on a crossing row R and
// column C. A conjugate pair in a column k outside the box, one end on R and the
// other on row m outside the box's band, takes the digit from (m, C): were it
// there, it would rule out (m, k) and so force the far end (R, k), and R and C
// would both be closed to the box. The same across, with rows. The hint names
// the far end, the cell the target would force.
bool EmptyRectangle(SolveContext& ctx) {
    const Board& b = ctx.board;
    int rowCounts[10][9] = {}, columnCounts[10][9] = {}, boxCounts[10][9] = {};
    for (int cell = 0; cell < 81; ++cell)
        for (int digit : b.CandidatesOf(cell)) {
            ++rowCounts[digit][cell / 9];
            ++columnCounts[digit][cell % 9];
            ++boxCounts[digit][Global::BoxOfCell[cell]];
        }
    for (int digit = 1; digit <= 9; ++digit) {
        const int* rowCount = rowCounts[digit];
        const int* columnCount = columnCounts[digit];
        for (int box = 0; box < 9; ++box) {
            if (boxCounts[digit][box] < 2 || boxCounts[digit][box] > 5) continue;
            const int leftTop = Global::BoxLeftTop[box];
            const int top = leftTop / 9, left = leftTop % 9;
            int rows[2], columns[2];
            const int crossings = Crossings(b, digit, leftTop, rows, columns);
            for (int k = 0; k < crossings; ++k) {
                const int R = rows[k], C = columns[k];
                int target = -1, far = -1;
                for (int col = 0; col < 9 && target < 0; ++col) {
                    if (col / 3 == left / 3 || !b.Has(digit, 9 * R + col)) continue;
                    if (columnCount[col] != 2) continue;
                    int m = 0;
                    while (m == R || !b.Has(digit, 9 * m + col))
                        ++m;
                    if (m / 3 == top / 3) continue;
                    if (VerwijderKnop(ctx, digit, 9 * m + C)) target = 9 * m + C, far = 9 * R + col;
                }
                for (int row = 0; row < 9 && target < 0; ++row) {
                    if (row / 3 == top / 3 || !b.Has(digit, 9 * row + C)) continue;
                    if (rowCount[row] != 2) continue;
                    int m = 0;
                    while (m == C || !b.Has(digit, 9 * row + m))
                        ++m;
                    if (m / 3 == left / 3) continue;
                    if (VerwijderKnop(ctx, digit, 9 * R + m)) target = 9 * R + m, far = 9 * row + C;
                }
                if (target < 0) continue;
                if (ctx.HintOnly()) {
                    HintRecord& h = ctx.hint;
                    h.HintNumber = digit;
                    // The record of EmptyRectangle: HintNumber the digit, HintCell the
                    // target, HintCells[1] the far end of the conjugate pair, HintVariant
                    // the box's top left cell, HintRow and HintColumn the crossing.
                    h.HintCell = target;
                    h.HintCells[1] = far;
                    h.HintVariant = leftTop;
                    h.HintRow = R;
                    h.HintColumn = C;
                    h.HintKind = HintKind::EmptyRectangle;
                }
                return true;
            }
        }
    }
    return false;
}

namespace {

// The conjugate pairs of one digit: for each row and column holding it exactly
// twice, its two cells in order along the line; -1 where the line holds no pair.
struct Conjugates {
    int row[9][2], column[9][2];
};

Conjugates ConjugatesOf(const Board& b, int digit) {
    Conjugates cj;
    const CellSet with = b.CellsWith(digit);
    for (int line = 0; line < 9; ++line) {
        cj.row[line][0] = cj.row[line][1] = -1;
        cj.column[line][0] = cj.column[line][1] = -1;
        const CellSet inRow = RowSet(line) & with, inColumn = ColumnSet(line) & with;
        if (inRow.Count() == 2) {
            cj.row[line][0] = inRow.First();
            cj.row[line][1] = (inRow - CellSet::Of(inRow.First())).First();
        }
        if (inColumn.Count() == 2) {
            cj.column[line][0] = inColumn.First();
            cj.column[line][1] = (inColumn - CellSet::Of(inColumn.First())).First();
        }
    }
    return cj;
}

bool InTwoBoxes(const int (&pair)[2]) {
    return pair[0] >= 0 && Global::BoxOfCell[pair[0]] != Global::BoxOfCell[pair[1]];
}

}  // namespace

// A row pair and a column pair of one digit, each in two boxes, with one end of
// each in a shared box, the kite. The kite's two ends can't both be true, so one
// of the two free ends is, and every cell that sees both free ends loses the digit.
bool TwoStringKite(SolveContext& ctx) {
    for (int digit = 1; digit <= 9; ++digit) {
        const Conjugates cj = ConjugatesOf(ctx.board, digit);
        for (int r = 0; r < 9; ++r) {
            if (!InTwoBoxes(cj.row[r])) continue;
            for (int c = 0; c < 9; ++c) {
                if (!InTwoBoxes(cj.column[c])) continue;
                int kiteRow = -1, kiteColumn = -1, freeRow = -1, freeColumn = -1;
                for (int way = 0; way < 4 && kiteRow < 0; ++way) {
                    const int a = cj.row[r][way / 2], bEnd = cj.column[c][way % 2];
                    if (a == bEnd || Global::BoxOfCell[a] != Global::BoxOfCell[bEnd]) continue;
                    kiteRow = a, kiteColumn = bEnd;
                    freeRow = cj.row[r][1 - way / 2], freeColumn = cj.column[c][1 - way % 2];
                }
                if (kiteRow < 0) continue;
                if (!VerwijderXYWing(ctx, 2, -1, freeRow, freeColumn, digit)) continue;
                if (ctx.HintOnly()) {
                    HintRecord& h = ctx.hint;
                    h.HintNumber = digit;
                    // The record of TwoStringKite: HintNumber the digit, HintRow and
                    // HintColumn the two strings, HintVariant the kite's box, HintCells[1]
                    // and [2] the kite's ends, [3] and [4] the free ends, HintCellCount 4.
                    h.HintRow = r;
                    h.HintColumn = c;
                    h.HintVariant = Global::BoxOfCell[kiteRow];
                    h.HintCells[1] = kiteRow;
                    h.HintCells[2] = kiteColumn;
                    h.HintCells[3] = freeRow;
                    h.HintCells[4] = freeColumn;
                    h.HintCellCount = 4;
                    h.HintKind = HintKind::TwoStringKite;
                }
                return true;
            }
        }
    }
    return false;
}

// Two parallel conjugate pairs of one digit with one end of each on a shared
// cross line, the base, and the other two ends on different cross lines. One of
// the free ends holds the digit, so every cell that sees both loses it.
bool Skyscraper(SolveContext& ctx) {
    for (int digit = 1; digit <= 9; ++digit) {
        const Conjugates cj = ConjugatesOf(ctx.board, digit);
        for (int i = 0; i < 8; ++i)
            for (int j = i + 1; j < 9; ++j)
                for (int pass = 1; pass <= 2; ++pass) {
                    const bool rows = pass == 1;
                    const int(&pi)[2] = rows ? cj.row[i] : cj.column[i];
                    const int(&pj)[2] = rows ? cj.row[j] : cj.column[j];
                    if (pi[0] < 0 || pj[0] < 0) continue;
                    // The cross line of a cell: its column for rows, its row for columns.
                    auto cross = [rows](int cell) { return rows ? cell % 9 : cell / 9; };
                    for (int form = 0; form < 4; ++form) {
                        const int baseI = pi[form / 2], baseJ = pj[form % 2];
                        const int freeI = pi[1 - form / 2], freeJ = pj[1 - form % 2];
                        if (cross(baseI) != cross(baseJ) || cross(freeI) == cross(freeJ)) continue;
                        if (!VerwijderXYWing(ctx, 3, -1, freeI, freeJ, digit)) continue;
                        if (ctx.HintOnly()) {
                            HintRecord& h = ctx.hint;
                            // The record of Skyscraper: HintVariant 1 for rows and 2 for
                            // columns, HintNumber the digit, HintRow and HintColumn the two
                            // lines, HintCells[1] and [2] the base ends, [3] and [4] the
                            // free ends, HintCellCount 4.
                            h.HintVariant = pass;
                            h.HintNumber = digit;
                            h.HintRow = i;
                            h.HintColumn = j;
                            h.HintCells[1] = baseI;
                            h.HintCells[2] = baseJ;
                            h.HintCells[3] = freeI;
                            h.HintCells[4] = freeJ;
                            h.HintCellCount = 4;
                            h.HintKind = HintKind::Skyscraper;
                        }
                        return true;
                    }
                }
    }
    return false;
}

}  // namespace tavi
