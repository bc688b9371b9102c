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

std::vector<const Rung*> HintWalk(const TechniqueTables& tables) {
    std::vector<const Rung*> walk;
    const auto rungs = LadderRungs();
    for (const Rung& r : rungs)
        if (r.number < 8) walk.push_back(&r);
    // At each position the technique whose entry names it; where two entries
    // share a position the later one wins. Bifurcation keeps the last place.
    for (int p = 8; p <= kBifurcationTechnique; ++p) {
        int technique = 0;
        for (int i = 1; i <= kBifurcationTechnique; ++i) {
            const int position = i == kBifurcationTechnique ? i : i < 8 ? i : tables.Order[i];
            if (position == p) technique = i;
        }
        if (technique && tables.OnOff[technique] == 1) walk.push_back(&RungsOf(technique)[0]);
    }
    return walk;
}

const Rung* FindHint(SolveContext& ctx, const TechniqueTables& tables,
                     const std::function<void(std::string_view)>& scanning) {
    const Rung* hit = nullptr;
    for (const Rung* rung : HintWalk(tables)) {
        if (scanning) scanning(HintScanName(*rung));
        ctx.HintOnly = true;
        ctx.ForceZet = rung->number == kBifurcationTechnique;
        if (rung->run(ctx).found) {
            hit = rung;
            break;
        }
    }
    ctx.HintOnly = false;
    ctx.ForceZet = false;
    return hit;
}

}  // namespace tavi
