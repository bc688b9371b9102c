// SPDX-License-Identifier: GPL-3.0-or-later
// The candidate routines as the techniques call them: they honour the mode, keep
// the game's move log in step, and write down what a hit concludes.
#pragma once

#include "grid/candidates.h"
#include "solver/solve_context.h"

namespace tavi {

// Takes `digit` away from `cell`. True if it was a candidate there. Under HintOnly
// nothing changes and the answer is still true, so that a technique learns it
// would have removed something. Outside a hint, and unless ForceZet keeps the
// solver's own trials out of it, the removal is a step of the game's move log.
// Either way the removal joins the record's conclusions.
inline bool VerwijderKnop(SolveContext& ctx, int digit, int cell) {
    if (!ctx.board.Has(digit, cell)) return false;
    ctx.hint.Conclusions.Add(cell, digit, false);
    if (ctx.HintOnly()) return true;
    ctx.board.Candidates[cell] &= CandidateMask(~DigitBit(digit));
    if (!ctx.ForceZet() && ctx.listener) ctx.listener->CandidateRemoved(digit, cell);
    return true;
}

// Places a digit found by a technique (the walk raises the level). Under HintOnly it only
// writes the placement down among the conclusions. Otherwise it places through the
// game's ZetAuto while Autosolve is placing (and ForceZet is not set), else through
// Zet, and writes CurrentGrid.
void PlaceDigit(SolveContext& ctx, int digit, int cell);

}  // namespace tavi
