// SPDX-License-Identifier: GPL-3.0-or-later
#include "solver/generator.h"

#include <array>

#include "grid/candidates.h"
#include "solver/solutions.h"

namespace tavi {

namespace {

// The digits used per row, column and box, as masks; a cell's candidates are what
// none of its three units uses.
struct UnitMasks {
    std::array<CandidateMask, 9> row{}, column{}, box{};

    CandidateMask Free(int cell) const {
        return CandidateMask(kAllCandidates &
                             ~(row[cell / 9] | column[cell % 9] | box[Global::BoxOfCell[cell]]));
    }
    void Toggle(int cell, int digit) {
        const CandidateMask bit = DigitBit(digit);
        row[cell / 9] ^= bit;
        column[cell % 9] ^= bit;
        box[Global::BoxOfCell[cell]] ^= bit;
    }
};

// Fills a grid depth first, the most constrained cell first, trying the digits in
// the random `order`: the first grid found is the random solved grid. (Counting
// solutions is left to Solutions; this walk only makes the grid, and it stays as
// it is so that a start value keeps giving the same puzzles.)
struct Search {
    Digits grid;
    UnitMasks units;
    int found = 0;
    int limit = 2;
    Digits* first = nullptr;
    const std::array<int, 9>* order = nullptr;

    void Run() {
        int best = -1, bestCount = 10;
        CandidateMask bestMask = 0;
        for (int c = 0; c < 81; ++c) {
            if (grid[c]) continue;
            const CandidateMask m = units.Free(c);
            const int n = CountDigits(m);
            if (n < bestCount) {
                best = c, bestCount = n, bestMask = m;
                if (n <= 1) break;
            }
        }
        if (best < 0) {
            if (found++ == 0 && first) *first = grid;
            return;
        }
        for (int i = 0; i < 9 && found < limit; ++i) {
            const int digit = order ? (*order)[i] : i + 1;
            if (!HasDigit(bestMask, digit)) continue;
            grid[best] = std::uint8_t(digit);
            units.Toggle(best, digit);
            Run();
            units.Toggle(best, digit);
            grid[best] = 0;
        }
    }
};

}  // namespace

Digits PuzzleGenerator::RandomSolvedGrid() {
    std::array<int, 9> order{1, 2, 3, 4, 5, 6, 7, 8, 9};
    for (int i = 8; i > 0; --i)
        std::swap(order[i], order[Below(i + 1)]);
    // Fill the first row at random, then let the search fill the rest with the
    // digits in a random order of preference.
    Search s;
    s.grid = {};
    for (int c = 0; c < 9; ++c) {
        s.grid[c] = std::uint8_t(order[c]);
        s.units.Toggle(c, order[c]);
    }
    for (int i = 8; i > 0; --i)
        std::swap(order[i], order[Below(i + 1)]);
    Digits solved{};
    s.limit = 1;
    s.first = &solved;
    s.order = &order;
    s.Run();
    return solved;
}

GeneratedPuzzle PuzzleGenerator::Next() {
    GeneratedPuzzle g;
    g.solution = RandomSolvedGrid();
    g.puzzle = g.solution;
    std::array<int, 81> cells;
    for (int i = 0; i < 81; ++i)
        cells[i] = i;
    for (int i = 80; i > 0; --i)
        std::swap(cells[i], cells[Below(i + 1)]);
    for (int c : cells) {
        const std::uint8_t kept = g.puzzle[c];
        g.puzzle[c] = 0;
        if (Solutions(g.puzzle, 2).count != 1) g.puzzle[c] = kept;
    }
    return g;
}

}  // namespace tavi
