// SPDX-License-Identifier: GPL-3.0-or-later
// Boards and solver contexts built by hand: a board where every cell is open with
// all nine candidates, a context on a board, and what the solver tells.
#pragma once

#include <ostream>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "grid/candidates.h"
#include "solver/solve_context.h"

namespace tavi {

// A kind in a test's message, by its number.
inline std::ostream& operator<<(std::ostream& out, HintKind kind) {
    return out << KindNumber(kind);
}

}  // namespace tavi

namespace tavi::testing {

// No digit placed, all nine candidates everywhere.
inline Board OpenBoard() {
    Board b;
    b.Candidates.fill(kAllCandidates);
    return b;
}

// A placement or a removal as (cell, digit).
using Removal = std::pair<int, int>;

// The game's move log as the solver sees it: what it was told, in order.
struct RecordingListener : MoveListener {
    std::vector<Removal> placed;   // (cell, digit) through ZetAuto
    std::vector<Removal> removed;  // (cell, digit) as user-visible removals
    void ZetAuto(Board& board, int digit, int cell) override {
        placed.emplace_back(cell, digit);
        Zet(board, digit, cell);
    }
    void CandidateRemoved(int digit, int cell) override { removed.emplace_back(cell, digit); }
};

// A context over `board` on `side`.
inline SolveContext ContextOn(const Board& board, Side side = Side::Workbench) {
    SolveContext ctx(side);
    ctx.board = board;
    return ctx;
}

// A hint record whose every field holds `mark`, to see which fields a kind writes.
inline HintRecord MarkedHint(int mark = -99) {
    HintRecord h;
    h.HintKind = HintKind::None;
    h.HintVariant = h.HintRow = h.HintColumn = h.HintCell = h.HintNumber = mark;
    h.HintCellCount = h.HintValueCount = mark;
    h.HintCells.fill(mark);
    h.HintValues.fill(mark);
    return h;
}

}  // namespace tavi::testing
