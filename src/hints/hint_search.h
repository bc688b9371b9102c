// SPDX-License-Identifier: GPL-3.0-or-later
// The walk of Hint and Autosolve over the ladder: the fixed head, then the rungs
// from position 8 on in the user's TechniqueOrder, each only if TechniqueOnOff
// has it on. Hint stops at the first hit and changes nothing; Autosolve applies
// each hit until a rung marked as a halt finds one.
#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "settings/technique_tables.h"
#include "solver/ladder.h"

namespace tavi {

// The names written as "Scanning for " + name + " - Please be patient" before
// each rung, from the technique catalog: Hint's and Autosolve's words differ for
// three techniques.
std::string_view HintScanName(const Rung& rung);
std::string_view AutosolveScanName(const Rung& rung);
std::string ScanningText(std::string_view name);

// The rungs in the order Hint and Autosolve walk them with these tables.
RungOrder HintWalk(const TechniqueTables& tables);
// The mode a rung runs in when Hint asks it: look, don't touch.
SolveMode HintMode(SolveMode base, const Rung& rung);

// One press of Hint on the ladder: runs the walk under HintOnly (with ForceZet
// for Bifurcation, whose trials must change the board) and answers the rung that
// filled ctx.hint, or null. The mode is as it was afterwards. `scanning` hears
// each rung's name before it runs.
const Rung* FindHint(SolveContext& ctx, const TechniqueTables& tables,
                     const std::function<void(std::string_view)>& scanning = {});

inline constexpr std::string_view kNoLogicalHints =
    "No logical hints, you'll have to guess more than once...";

}  // namespace tavi
