// SPDX-License-Identifier: GPL-3.0-or-later
// One puzzle in many clothes: relabelling the digits, swapping rows within a band,
// bands, columns within a stack, stacks, and turning the grid over its diagonal all
// give a puzzle that plays the same. The canonical form is one chosen member of all
// of them, so two puzzles are the same up to these symmetries exactly when their
// canonical forms are equal.
#pragma once

#include "grid/board.h"

namespace tavi {

// The smallest of all forms of `puzzle`, compared cell by cell in reading order,
// an empty cell (0) below any digit and the digits relabelled 1, 2, ... in the
// order they first appear. A grid of givens or a full grid alike.
Digits CanonicalForm(const Digits& puzzle);

// The grid's symmetries as one transformation: output cell (r, c) takes the digit
// of input cell (rows[r], columns[c]) (after turning over the diagonal when
// `transpose`), relabelled by `digits` (digits[d] for d, 0 stays 0).
struct GridSymmetry {
    bool transpose = false;
    std::array<std::uint8_t, 9> rows{0, 1, 2, 3, 4, 5, 6, 7, 8};
    std::array<std::uint8_t, 9> columns{0, 1, 2, 3, 4, 5, 6, 7, 8};
    std::array<std::uint8_t, 10> digits{0, 1, 2, 3, 4, 5, 6, 7, 8, 9};

    Digits Apply(const Digits& grid) const;
};

}  // namespace tavi
