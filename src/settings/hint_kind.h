// SPDX-License-Identifier: GPL-3.0-or-later
// The 37 kinds of hint, by name. The solver writes a kind into the hint record
// at a hit and the hints read it back to pick the sentence, the colours and the
// caption; the technique catalog lists the kinds each rung fills. The numbers are
// those of the saved and printed hints and of the technique cases, so they never
// change. Beside each enumerator: the technique and the file that fills the
// record, where a comment says which fields the kind uses.
#pragma once

#include <cstdint>

namespace tavi {

enum class HintKind : std::uint8_t {
    None = 0,
    NakedSingle = 1,              // elementary/singles.cpp
    HiddenSingle = 2,             // elementary/singles.cpp
    PointingPair = 3,             // elementary/intersections.cpp
    BoxLineReduction = 4,         // elementary/intersections.cpp
    Subset = 5,                   // naked and hidden subsets, elementary/subsets.cpp
    XWing = 6,                    // elementary/fish.cpp
    Swordfish = 7,                // elementary/fish.cpp
    MultiValueXWing = 8,          // elementary/fish.cpp
    EmptyRectangle = 9,           // elementary/single_digit_patterns.cpp
    XYWing = 10,                  // patterns/wings.cpp
    XYZWing = 11,                 // patterns/wings.cpp
    SimpleColorsTrap = 12,        // chains/simple_colors.cpp
    Jellyfish = 13,               // elementary/fish.cpp
    WXYZWing = 14,                // patterns/wings.cpp
    FinnedXWing = 15,             // elementary/fish.cpp
    AlignedPairExclusion = 16,    // patterns/exclusion.cpp
    AlignedTripleExclusion = 17,  // patterns/exclusion.cpp
    XYChain = 18,                 // chains/xy_chain.cpp
    DoubleImplicationChain = 19,  // chains/xy_chain.cpp
    Bifurcation = 20,             // bifurcation.cpp
    SimpleColorsWrap = 21,        // chains/simple_colors.cpp
    MultiColoringType1 = 22,      // chains/multi_colors.cpp
    MultiColoringType2 = 23,      // chains/multi_colors.cpp
    BivalueUniversalGrave = 24,   // patterns/avoidable_rectangle.cpp
    TwoStringKite = 25,           // elementary/single_digit_patterns.cpp
    Skyscraper = 26,              // elementary/single_digit_patterns.cpp
    SueDeCoq = 27,                // patterns/sue_de_coq.cpp
    NiceLoop = 28,                // chains/nice_loops.cpp
    UniqueRectangle = 29,         // patterns/unique_rectangles.cpp
    AvoidableRectangle = 30,      // patterns/avoidable_rectangle.cpp
    AIC = 31,                     // alternating inference chains, chains/aic.cpp
    BiValueALSxz = 32,            // chains/als_xz.cpp
    ALSxz = 33,                   // chains/als_xz.cpp
    Medusa3D = 34,                // chains/medusa.cpp
    ForcingChainFromCell = 35,    // chains/forcing.cpp
    ForcingChainFromUnit = 36,    // chains/forcing.cpp
    MultiFish = 37,               // chains/multi_fish.cpp
};

inline constexpr int kHintKindCount = 37;

// The kind's number, as the record's readers index their tables with it.
constexpr int KindNumber(HintKind kind) { return int(kind); }

}  // namespace tavi
