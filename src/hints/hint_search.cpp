// SPDX-License-Identifier: GPL-3.0-or-later
#include "hints/hint_search.h"

#include <string>

namespace tavi {

std::string_view HintScanName(const Rung& rung) { return rung.hintName; }

std::string_view AutosolveScanName(const Rung& rung) { return rung.AutosolveName(); }

std::string ScanningText(std::string_view name) {
    return "Scanning for " + std::string(name) + " - Please be patient";
}

RungOrder HintWalk(const TechniqueTables& tables) {
    return OrderedRungs(tables.Order, [&](int technique) { return tables.OnOff[technique] == 1; });
}

SolveMode HintMode(SolveMode base, const Rung& rung) {
    // Bifurcation's trials must change the board, so a hint that reaches it lets
    // them (ForceZet) and keeps its own guess a look.
    return base.With(SolveMode::kHintOnly)
        .With(SolveMode::kForceZet, rung.number == kBifurcationTechnique);
}

const Rung* FindHint(SolveContext& ctx, const TechniqueTables& tables,
                     const std::function<void(std::string_view)>& scanning) {
    const RungOrder rungs = HintWalk(tables);
    const SolveMode base = ctx.Mode();
    LadderWalk walk;
    walk.rungs = rungs.View();
    walk.checkContradiction = false;
    walk.firstHitOnly = true;
    walk.modeFor = [&](const Rung& rung) { return HintMode(base, rung); };
    if (scanning) walk.before = [&](const Rung& rung) { scanning(HintScanName(rung)); };
    int cellsLeft = ctx.board.EmptyCount();
    const WalkResult result = WalkLadder(ctx, walk, cellsLeft);
    return result.end == WalkEnd::Hit ? result.last : nullptr;
}

}  // namespace tavi
