// SPDX-License-Identifier: GPL-3.0-or-later
// The one catalog of the techniques: what each is called wherever a person sees
// it, the level a hit of it reaches, and the hint kinds it fills. The rung table
// of the ladder, the names Hint and Autosolve write while they scan, the rows of
// the Solving Techniques Manager and the technique names of printed pages all
// read it, so a technique's level and names are written here once.
//
// Two tables: one row per technique number (0..39, the index of the technique
// tables and the manager's rows), and one row per rung of the ladder (technique 7,
// the subsets, stands six times).
#pragma once

#include <array>
#include <string_view>

#include "grid/levels.h"
#include "settings/hint_kind.h"
#include "settings/technique_order.h"

namespace tavi {

struct TechniqueEntry {
    int level;                    // what a hit raises SolvingLevel to; 0 for no rung
    std::string_view caption;     // the manager's row, and the name on printed pages
    std::string_view managerTip;  // the manager's tip where it is no level ("" for a level)
};

// Indexed by technique number. Numbers 0 to 2 are error indications of the game,
// not rungs.
inline constexpr std::array<TechniqueEntry, kTechniqueCount> kTechniques = {{
    {0, "Bad Solved Cell", "Error indication"},
    {0, "Missing Candidate", "Error indication"},
    {0, "Solved Cell Exclusion", "Candidate"},
    {1, "Hidden Single", ""},
    {1, "Naked Single", ""},
    {2, "Pointing Pair/Triple", ""},
    {2, "Box-Line Reduction", ""},
    {3, "Naked/Hidden Subset", ""},
    {4, "X-Wing", ""},
    {4, "Swordfish", ""},
    {4, "Multi-value X-Wing", ""},
    {4, "Empty Rectangle", ""},
    {5, "XY-Wing", ""},
    {5, "Two-String Kite", ""},
    {5, "Skyscraper", ""},
    {5, "XYZ-Wing", ""},
    {5, "Simple Colors", ""},
    {6, "Jellyfish", ""},
    {6, "WXYZ-Wing", ""},
    {6, "Multi Colors", ""},
    {6, "Finned X-Wing", ""},
    {6, "3D Medusa", ""},
    {6, "Sue-de-Coq", ""},
    {6, "Aligned Pair Exclusion", ""},
    {6, "Unique Rectangle", ""},
    {6, "Avoidable Rectangle", ""},
    {6, "Extended APE", ""},
    {6, "Bivalue Universal Grave +1", ""},
    {6, "Short Nice Loops", ""},
    {6, "Short AIC's", ""},
    {7, "XY-Chain", ""},
    {7, "Aligned Triple Exclusion", ""},
    {7, "Long Nice Loops", ""},
    {7, "Medium AIC's", ""},
    {7, "ALS - XZ", ""},
    {7, "MultiFish", ""},
    {7, "Forcing Chain", ""},
    {8, "Extended ATE", ""},
    {8, "Long AIC's", ""},
    {8, "Bifurcation", ""},
}};

constexpr int TechniqueLevel(int technique) { return kTechniques[std::size_t(technique)].level; }
constexpr std::string_view TechniqueCaption(int technique) {
    return kTechniques[std::size_t(technique)].caption;
}

inline constexpr std::array<std::string_view, kLevelCount> kLevelTips = {"",
                                                                         "Easy level",
                                                                         "Medium level",
                                                                         "Hard level",
                                                                         "Crazy level",
                                                                         "Insane level",
                                                                         "Kamikaze level",
                                                                         "Extreme level",
                                                                         "Mayhem level"};

// The manager's tip of a technique's boxes: its level, or what its number stands for.
constexpr std::string_view TechniqueTip(int technique) {
    const TechniqueEntry& t = kTechniques[std::size_t(technique)];
    return t.level ? kLevelTips[std::size_t(t.level)] : t.managerTip;
}

// One rung of the ladder. The routine that runs it is paired with this row in the
// solver's rung table, in the same order.
struct RungEntry {
    int number;                     // the technique number
    std::string_view label;         // " - Scanning for ...", the workbench's progress text
    std::string_view hintName;      // "Scanning for " name, while Hint looks
    std::string_view autosolve;     // Autosolve's scanning name where it differs ("" = hintName)
    std::array<HintKind, 2> kinds;  // the kinds a hit fills (the second None when one)
    // The rung's weight in the difficulty score: how hard solvers find the
    // technique, from 1 (a hidden single) to about 9 (a guess). It follows the
    // level only where the techniques do.
    double weight = 0;

    constexpr int Level() const { return TechniqueLevel(number); }
    constexpr std::string_view AutosolveName() const {
        return autosolve.empty() ? hintName : autosolve;
    }
    // The rung's name wherever no window fixes its own wording (the command line,
    // the check window's counts): the manager's caption, and for the six subset
    // rungs their own name, since the manager has one row for all six.
    constexpr std::string_view Name() const {
        return number == 7 ? hintName : TechniqueCaption(number);
    }
};

// Every rung in the ladder's fixed order: the head (3 to 7) first, Bifurcation last.
inline constexpr RungEntry kRungCatalog[] = {
    {3, " - Scanning for Hidden Singles", "Hidden Single", "", {HintKind::HiddenSingle}, 1.2},
    {4, " - Scanning for Naked Singles", "Naked Single", "", {HintKind::NakedSingle}, 1.5},
    {5, " - Scanning for Pointing Pairs", "Pointing Pair", "", {HintKind::PointingPair}, 2.0},
    {6,
     " - Scanning for Box/Line Reductions",
     "Box Line Reduction",
     "",
     {HintKind::BoxLineReduction},
     2.2},
    {7, " - Scanning for Naked Pairs", "Naked Pair", "", {HintKind::Subset}, 2.8},
    {7, " - Scanning for Naked Triplets", "Naked Triple", "", {HintKind::Subset}, 3.3},
    {7, " - Scanning for Hidden Pairs", "Hidden Pair", "", {HintKind::Subset}, 3.0},
    {7, " - Scanning for Naked Quads", "Naked Quad", "", {HintKind::Subset}, 3.9},
    {7, " - Scanning for Hidden Triplets", "Hidden Triple", "", {HintKind::Subset}, 3.5},
    {7, " - Scanning for Naked Quints", "Naked Quint", "", {HintKind::Subset}, 4.4},
    {8, " - Scanning for X-Wing", "X-Wing", "", {HintKind::XWing}, 3.3},
    {9, " - Scanning for Swordfish", "Swordfish", "", {HintKind::Swordfish}, 3.9},
    {10,
     " - Scanning for Multi-value X-Wing",
     "Multi-value X-Wing",
     "",
     {HintKind::MultiValueXWing},
     4.3},
    {11, " - Scanning for Empty Rectangle", "Empty Rectangle", "", {HintKind::EmptyRectangle}, 4.1},
    {12, " - Scanning for XY-Wing", "XY-Wing", "", {HintKind::XYWing}, 4.3},
    {13, " - Scanning for Two String Kite", "Two-String Kite", "", {HintKind::TwoStringKite}, 4.0},
    {14, " - Scanning for Skyscraper", "Skyscraper", "", {HintKind::Skyscraper}, 3.9},
    {15, " - Scanning for XYZ-Wing", "XYZ-Wing", "", {HintKind::XYZWing}, 4.5},
    {16,
     " - Scanning for Simple-Colour",
     "Simple Colors",
     "Simple Coloring",
     {HintKind::SimpleColorsTrap, HintKind::SimpleColorsWrap},
     4.7},
    {17, " - Scanning for Jellyfish", "Jellyfish", "", {HintKind::Jellyfish}, 5.1},
    {18, " - Scanning for WXYZ-Wing", "WXYZ-Wing", "", {HintKind::WXYZWing}, 5.2},
    {19,
     " - Scanning for Multi-Colour",
     "MultiColor",
     "Multi Coloring",
     {HintKind::MultiColoringType1, HintKind::MultiColoringType2},
     5.5},
    {20, " - Scanning for Finned X-Wing", "Finned X-Wing", "", {HintKind::FinnedXWing}, 4.4},
    {21, " - Scanning for 3D Medusa", "3D Medusa", "", {HintKind::Medusa3D}, 5.8},
    {22, " - Scanning for Sue-De-Coq", "Sue-De-Coq", "", {HintKind::SueDeCoq}, 5.6},
    {23,
     " - Scanning for (Aligned) Pair Exclusion",
     "(Aligned) Pair Exclusion",
     "Aligned Pair Exclusion",
     {HintKind::AlignedPairExclusion},
     5.5},
    {24,
     " - Scanning for Unique Rectangle",
     "Unique Rectangle",
     "",
     {HintKind::UniqueRectangle},
     4.6},
    {25,
     " - Scanning for Avoidable Rectangle",
     "Avoidable Rectangle",
     "",
     {HintKind::AvoidableRectangle},
     4.8},
    {26,
     " - Scanning for Extended Aligned Pair Exclusion",
     "Extended Aligned Pair Exclusion",
     "",
     {HintKind::AlignedPairExclusion},
     6.0},
    {27,
     " - Scanning for Bivalue Universal Grave",
     "Bivalue Universal Grave",
     "",
     {HintKind::BivalueUniversalGrave},
     5.4},
    {28, " - Scanning for Nice Loop", "Nice Loops", "", {HintKind::NiceLoop}, 6.0},
    {29,
     " - Scanning for Alternating Inference Chains",
     "Alternating Inference Chains",
     "",
     {HintKind::AIC},
     6.3},
    {30,
     " - Scanning for XY-Chain",
     "XY-Chain",
     "",
     {HintKind::XYChain, HintKind::DoubleImplicationChain},
     6.5},
    {31,
     " - Scanning for Aligned Triple Exclusion",
     "Aligned Triple Exclusion",
     "",
     {HintKind::AlignedTripleExclusion},
     6.9},
    {32, " - Scanning for Nice Loop", "Nice Loops", "", {HintKind::NiceLoop}, 6.7},
    {33,
     " - Scanning for Alternating Inference Chains",
     "Alternating Inference Chains",
     "",
     {HintKind::AIC},
     7.0},
    {34, " - Scanning for ALS-xz", "ALS-xz", "", {HintKind::BiValueALSxz, HintKind::ALSxz}, 6.8},
    {35, " - Scanning for MultiFish", "MultiFish", "", {HintKind::MultiFish}, 7.3},
    {36,
     " - Scanning for Forcing Chain",
     "Forcing Chain",
     "",
     {HintKind::ForcingChainFromCell, HintKind::ForcingChainFromUnit},
     7.6},
    {37,
     " - Scanning for Extended Aligned Triple Exclusion",
     "Extended Aligned Triple Exclusion",
     "",
     {HintKind::AlignedTripleExclusion},
     8.0},
    {38,
     " - Scanning for Alternating Inference Chains",
     "Alternating Inference Chains",
     "",
     {HintKind::AIC},
     7.9},
    {39, " - Scanning for Bifurcation", "Bifurcation", "", {HintKind::Bifurcation}, 8.6},
};

inline constexpr int kRungCount = int(std::size(kRungCatalog));

// The catalog holds together: rungs in rising technique order, every technique
// from 3 on a rung, and every rung a level.
constexpr bool CatalogHoldsTogether() {
    int expected = 3;
    for (const RungEntry& r : kRungCatalog) {
        if (r.number != expected && r.number != expected + 1) return false;
        expected = r.number;
        if (r.Level() < 1) return false;
    }
    return expected == kBifurcationTechnique;
}
static_assert(CatalogHoldsTogether());

}  // namespace tavi
