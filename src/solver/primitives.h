// The candidate routines as the techniques call them: they honour HintOnly, keep
// the game's move log in step, and record the trace of a step when asked.
#pragma once

#include "grid/candidates.h"
#include "solver/solve_context.h"

namespace tavi {

// Takes `digit` away from `cell`. True if it was a candidate there. Under HintOnly
// nothing changes and the answer is still true, so that a technique learns it
// would have removed something. Outside a hint, and unless ForceZet keeps the
// solver's own trials out of it, the removal is a step of the game's move log.
inline bool VerwijderKnop(SolveContext& ctx, int digit, int cell) {
    if (!ctx.board.Has(digit, cell)) return false;
    if (ctx.HintOnly) return true;
    ctx.board.Candidates[cell] &= CandidateMask(~DigitBit(digit));
    if (ctx.trace) ctx.trace->push_back({BoardChange::Removed, cell, digit});
    if (!ctx.ForceZet && ctx.listener) ctx.listener->CandidateRemoved(digit, cell);
    return true;
}

// Places a digit found by a technique: through the game's ZetAuto while Autosolve
// is placing (and ForceZet is not set), otherwise through Zet; then writes
// CurrentGrid and raises the level. Not for use under HintOnly.
void PlaceDigit(SolveContext& ctx, int digit, int cell, int level);

}  // namespace tavi
