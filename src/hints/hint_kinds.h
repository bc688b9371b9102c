// SPDX-License-Identifier: GPL-3.0-or-later
// The 37 kinds of hint: the name the hint window shows behind "Hint - " and the
// heads that open the sentences. The colours a hint paints with are the nine
// roles of HintColor (settings/colors.h); a paint names its role, never a colour,
// so that the user's colours apply at the moment the board is painted.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "solver/hint_record.h"

namespace tavi {

inline constexpr int kHintKindCount = 37;

// Names and heads of one kind. A kind with several forms lists them in the order
// its HintVariant (or HintCellCount) picks them; unused entries stay empty.
struct HintKindInfo {
    std::array<std::string_view, 6> names;
    std::array<std::string_view, 6> heads;
};

// Indexed by HintKind; entry 0 is no kind.
inline constexpr std::array<HintKindInfo, kHintKindCount + 1> kHintKinds = {{
    {},
    {{"Naked single"}, {"NAKED SINGLE: "}},
    {{"Hidden single"}, {"HIDDEN SINGLE: "}},
    {{"Pointing Pair"}, {"POINTING PAIR: "}},
    {{"Box Line Reduction"}, {"BOX LINE REDUCTION: "}},
    // Naked by size 2..5, then hidden by size 2..3.
    {{"Naked Pair", "Naked Triple", "Naked Quad", "Naked Quint", "Hidden Pair", "Hidden Triple"},
     {"NAKED PAIR: ", "NAKED TRIPLE: ", "NAKED QUAD: ", "NAKED QUINT: ", "HIDDEN PAIR: ",
      "HIDDEN TRIPLE: "}},
    {{"X-Wing"}, {"X-WING: "}},
    {{"Swordfish"}, {"SWORDFISH: "}},
    {{"Multi-value X-Wing"}, {"MULTI-VALUE X-WING: "}},
    {{"Empty Rectangle"}, {"EMPTY RECTANGLE: "}},
    {{"XY-Wing"}, {"XY-WING: "}},
    {{"XYZ-Wing"}, {"XYZ-WING: "}},
    {{"Simple Colors (Color Trap)"}, {"SIMPLE COLORS - Color Trap: "}},
    {{"Jellyfish"}, {"JELLYFISH: "}},
    {{"WXYZ-Wing"}, {"WXYZ-WING: "}},
    {{"Finned X-Wing"}, {"FINNED X-WING: "}},
    // Heads: no house, plain, extended.
    {{"Aligned Pair Exclusion"},
     {"PAIR EXCLUSION: ", "ALIGNED PAIR EXCLUSION: ", "EXTENDED ALIGNED PAIR EXCLUSION: "}},
    // Heads: plain, extended.
    {{"Aligned Triple Exclusion"},
     {"ALIGNED TRIPLE EXCLUSION: ", "EXTENDED ALIGNED TRIPLE EXCLUSION: "}},
    {{"XY-Chain"}, {"XY-CHAIN: "}},
    {{"Double Implication Chain"}, {"XY-CHAIN (Double Implication Chain): "}},
    {{"Bifurcation"}, {"BIFURCATION: "}},
    {{"Simple Colors (Color Wrap)"}, {"SIMPLE COLORS - Color Wrap: "}},
    {{"Multi Coloring Type 1"}, {"MULTI COLORING: "}},
    {{"Multi Coloring Type 2"}, {"MULTI COLORING: "}},
    {{"Bivalue Universal Grave"}, {"BIVALUE UNIVERSAL GRAVE: "}},
    {{"Two-String-Kite"}, {"TWO-STRING KITE: "}},
    {{"Skyscraper"}, {"SKYSCRAPER: "}},
    {{"Sue-De-Coq"}, {"SUE-DE-COQ: "}},
    {{"Nice Loop - Alternating X-Cycle", "Nice Loop - Strong Discontinuity",
      "Nice Loop - Weak Discontinuity"},
     {"NICE LOOPS: "}},
    // Names by type 1..4, then hidden; heads: types, hidden.
    {{"Unique Rectangle Type 1", "Unique Rectangle Type 2", "Unique Rectangle Type 3",
      "Unique Rectangle Type 4", "Hidden Unique Rectangle"},
     {"UNIQUE RECTANGLE: ", "HIDDEN UNIQUE RECTANGLE: "}},
    {{"Avoidable Rectangle"}, {"AVOIDABLE RECTANGLE: "}},
    {{"AIC - Alternating Cycle", "AIC - Strong Discontinuity", "AIC - Weak Discontinuity"},
     {"AIC: "}},
    // Heads: singly linked, doubly linked.
    {{"Bi-Value ALSxz"}, {"Bi-Value type ALSxz: ", "Double Linked Bi-Value type ALSxz: "}},
    {{"ALSxz"}, {"ALSxz: ", "Double Linked ALSxz: "}},
    {{"3D Medusa"}, {"3D Medusa Rule "}},
    {{"Forcing Chain from Cell"}, {"Forcing Chain : "}},
    {{"Forcing Chain from Unit"}, {"Forcing Chain : "}},
    {{"MultiFish"}, {"MultiFish with candidates "}},
}};

// The families of kinds that share a sentence writer and a painter.
enum class HintFamily { None, Basic, Fish, Pattern, Chain, Set };

constexpr HintFamily FamilyOf(int kind) {
    // clang-format off
    switch (kind) {
        case 1: case 2: case 3: case 4: case 5: case 20: case 24:
            return HintFamily::Basic;
        case 6: case 7: case 8: case 9: case 13: case 15: case 25: case 26:
            return HintFamily::Fish;
        case 10: case 11: case 14: case 16: case 17: case 27: case 29: case 30:
            return HintFamily::Pattern;
        case 12: case 18: case 19: case 21: case 22: case 23: case 28: case 31:
            return HintFamily::Chain;
        case 32: case 33: case 34: case 35: case 36: case 37:
            return HintFamily::Set;
        default:
            return HintFamily::None;
    }
    // clang-format on
}

inline constexpr std::string_view kHintCaptionPrefix = "Hint - ";
// The caption of the hint window whenever it shows anything but a fresh hint.
inline constexpr std::string_view kMainDuplicateCaption = "Main Duplicate";

// The name of the record's technique as the hint window shows it: by HintKind,
// and by HintVariant (kinds 5, 28, 29, 31) and HintCellCount (kind 5). Empty for
// a kind outside 1..37 or a form the kind does not have.
std::string_view HintName(const HintRecord& hint);

// "Hint - " and the name: the caption that ShowHint gives the hint window.
std::string HintCaption(const HintRecord& hint);

}  // namespace tavi
