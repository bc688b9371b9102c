// SPDX-License-Identifier: GPL-3.0-or-later
// The solution counter: how many solutions a grid of givens has, up to a limit,
// and the first one found. Every place that only needs that answer asks here;
// the brute-force search with its log stays for the workbench and Bifurcation,
// where its steps are shown.
#pragma once

#include "grid/board.h"

namespace tavi {

struct SolutionCount {
    int count = 0;  // 0 .. limit
    // The first solution found; all zero when there is none. With several
    // solutions, which one comes first is not fixed: rely on it when count is 1.
    Digits first{};
};

// Counts the solutions of `givens` (0 for an empty cell), stopping at `limit`
// (at least 1). Givens that clash have no solution. Allocates nothing.
SolutionCount Solutions(const Digits& givens, int limit = 2);

}  // namespace tavi
