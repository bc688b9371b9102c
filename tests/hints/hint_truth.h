// SPDX-License-Identifier: GPL-3.0-or-later
// Whether a hint tells the truth: what its sentence names and what its colours
// mark, set against what the hit concludes. Shared by the checks over the rung
// cases and over the board states of the hard puzzles.
#pragma once

#include <string>

#include "grid/board.h"
#include "solver/hint_record.h"

namespace tavi::testing {

// Every way in which the hint in `hint`, found on `board`, says or paints
// something its conclusions do not bear out, one per line; empty when it is true.
// (a) the removals and placements the sentence names are exactly the
//     conclusions, for the kinds whose sentence names them, and the loops' claim
//     that the cycle itself keeps its candidates holds wherever it is made;
// (b) every candidate taken away is painted as attacked, and no candidate is so
//     painted that neither goes nor falls to a placement of the hit; and, for
//     the hints that place a digit, the digits painted as the base of a base cell
//     are exactly those placed.
std::string TruthFaults(const HintRecord& hint, const Board& board);

}  // namespace tavi::testing
