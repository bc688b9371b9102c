#include "hints/hint_search.h"

#include <string>

namespace tavi {

namespace {

// Hint's names, by rung of the ladder table (the six subsets apart).
constexpr std::string_view kHintNames[] = {
    "Hidden Single",
    "Naked Single",
    "Pointing Pair",
    "Box Line Reduction",
    "Naked Pair",
    "Naked Triple",
    "Hidden Pair",
    "Naked Quad",
    "Hidden Triple",
    "Naked Quint",
    "X-Wing",  // 8
    "Swordfish",
    "Multi-value X-Wing",
    "Empty Rectangle",
    "XY-Wing",
    "Two-String Kite",
    "Skyscraper",
    "XYZ-Wing",
    "Simple Colors",
    "Jellyfish",
    "WXYZ-Wing",
    "MultiColor",  // 19
    "Finned X-Wing",
    "3D Medusa",
    "Sue-De-Coq",
    "(Aligned) Pair Exclusion",
    "Unique Rectangle",
    "Avoidable Rectangle",
    "Extended Aligned Pair Exclusion",
    "Bivalue Universal Grave",
    "Nice Loops",
    "Alternating Inference Chains",
    "XY-Chain",
    "Aligned Triple Exclusion",
    "Nice Loops",
    "Alternating Inference Chains",
    "ALS-xz",
    "MultiFish",
    "Forcing Chain",
    "Extended Aligned Triple Exclusion",
    "Alternating Inference Chains",
    "Bifurcation",  // 39
};
static_assert(std::size(kHintNames) == 42);

size_t IndexOf(const Rung& rung) { return size_t(&rung - LadderRungs().data()); }

}  // namespace

std::string_view HintScanName(const Rung& rung) { return kHintNames[IndexOf(rung)]; }

std::string_view AutosolveScanName(const Rung& rung) {
    switch (rung.number) {
        case 16: return "Simple Coloring";
        case 19: return "Multi Coloring";
        case 23: return "Aligned Pair Exclusion";
        default: return HintScanName(rung);
    }
}

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
