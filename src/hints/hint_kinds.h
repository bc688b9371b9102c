// SPDX-License-Identifier: GPL-3.0-or-later
// The 37 kinds of hint (settings/hint_kind.h): the family, the name the hint window shows behind
// "Hint - " and the heads that open the sentences. The colours a hint paints with are the nine
// roles of HintColor (settings/colors.h); a paint names its role, never a colour,
// so that the user's colours apply at the moment the board is painted.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "solver/hint_record.h"

namespace tavi {

// The families of kinds that share a sentence writer and a painter (the files
// sentences_<family>.cpp and paint_<family>.cpp): the singles, intersections and
// subsets with the one-cell conclusions (Basic), the single-digit patterns
// (Fish), the wings, exclusions and rectangles (Pattern), colourings and chains
// (Chain), and the kinds that tell more than the record keeps (Set).
enum class HintFamily { None, Basic, Fish, Pattern, Chain, Set };

// Family, names and heads of one kind. A kind with several forms lists them in
// the order its HintVariant (or HintCellCount) picks them; unused entries stay
// empty.
struct HintKindInfo {
    HintFamily family = HintFamily::None;
    std::array<std::string_view, 6> names;
    std::array<std::string_view, 6> heads;
};

// Indexed by the kind's number; entry 0 is no kind.
inline constexpr std::array<HintKindInfo, kHintKindCount + 1> kHintKinds = {{
    {HintFamily::None, {}, {}},
    {HintFamily::Basic, {"Naked single"}, {"NAKED SINGLE: "}},
    {HintFamily::Basic, {"Hidden single"}, {"HIDDEN SINGLE: "}},
    {HintFamily::Basic, {"Pointing Pair"}, {"POINTING PAIR: "}},
    {HintFamily::Basic, {"Box Line Reduction"}, {"BOX LINE REDUCTION: "}},
    // Naked by size 2..5, then hidden by size 2..3.
    {HintFamily::Basic,
     {"Naked Pair", "Naked Triple", "Naked Quad", "Naked Quint", "Hidden Pair", "Hidden Triple"},
     {"NAKED PAIR: ", "NAKED TRIPLE: ", "NAKED QUAD: ", "NAKED QUINT: ", "HIDDEN PAIR: ",
      "HIDDEN TRIPLE: "}},
    {HintFamily::Fish, {"X-Wing"}, {"X-WING: "}},
    {HintFamily::Fish, {"Swordfish"}, {"SWORDFISH: "}},
    {HintFamily::Fish, {"Multi-value X-Wing"}, {"MULTI-VALUE X-WING: "}},
    {HintFamily::Fish, {"Empty Rectangle"}, {"EMPTY RECTANGLE: "}},
    {HintFamily::Pattern, {"XY-Wing"}, {"XY-WING: "}},
    {HintFamily::Pattern, {"XYZ-Wing"}, {"XYZ-WING: "}},
    {HintFamily::Chain, {"Simple Colors (Color Trap)"}, {"SIMPLE COLORS - Color Trap: "}},
    {HintFamily::Fish, {"Jellyfish"}, {"JELLYFISH: "}},
    {HintFamily::Pattern, {"WXYZ-Wing"}, {"WXYZ-WING: "}},
    {HintFamily::Fish, {"Finned X-Wing"}, {"FINNED X-WING: "}},
    // Heads: no house, plain, extended.
    {HintFamily::Pattern,
     {"Aligned Pair Exclusion"},
     {"PAIR EXCLUSION: ", "ALIGNED PAIR EXCLUSION: ", "EXTENDED ALIGNED PAIR EXCLUSION: "}},
    // Heads: plain, extended.
    {HintFamily::Pattern,
     {"Aligned Triple Exclusion"},
     {"ALIGNED TRIPLE EXCLUSION: ", "EXTENDED ALIGNED TRIPLE EXCLUSION: "}},
    {HintFamily::Chain, {"XY-Chain"}, {"XY-CHAIN: "}},
    {HintFamily::Chain, {"Double Implication Chain"}, {"XY-CHAIN (Double Implication Chain): "}},
    {HintFamily::Basic, {"Bifurcation"}, {"BIFURCATION: "}},
    {HintFamily::Chain, {"Simple Colors (Color Wrap)"}, {"SIMPLE COLORS - Color Wrap: "}},
    {HintFamily::Chain, {"Multi Coloring Type 1"}, {"MULTI COLORING: "}},
    {HintFamily::Chain, {"Multi Coloring Type 2"}, {"MULTI COLORING: "}},
    {HintFamily::Basic, {"Bivalue Universal Grave"}, {"BIVALUE UNIVERSAL GRAVE: "}},
    {HintFamily::Fish, {"Two-String-Kite"}, {"TWO-STRING KITE: "}},
    {HintFamily::Fish, {"Skyscraper"}, {"SKYSCRAPER: "}},
    {HintFamily::Pattern, {"Sue-De-Coq"}, {"SUE-DE-COQ: "}},
    {HintFamily::Chain,
     {"Nice Loop - Alternating X-Cycle", "Nice Loop - Strong Discontinuity",
      "Nice Loop - Weak Discontinuity"},
     {"NICE LOOPS: "}},
    // Names by type 1..4, then hidden; heads: types, hidden.
    {HintFamily::Pattern,
     {"Unique Rectangle Type 1", "Unique Rectangle Type 2", "Unique Rectangle Type 3",
      "Unique Rectangle Type 4", "Hidden Unique Rectangle"},
     {"UNIQUE RECTANGLE: ", "HIDDEN UNIQUE RECTANGLE: "}},
    {HintFamily::Pattern, {"Avoidable Rectangle"}, {"AVOIDABLE RECTANGLE: "}},
    {HintFamily::Chain,
     {"AIC - Alternating Cycle", "AIC - Strong Discontinuity", "AIC - Weak Discontinuity"},
     {"AIC: "}},
    // Heads: singly linked, doubly linked.
    {HintFamily::Set,
     {"Bi-Value ALSxz"},
     {"Bi-Value type ALSxz: ", "Double Linked Bi-Value type ALSxz: "}},
    {HintFamily::Set, {"ALSxz"}, {"ALSxz: ", "Double Linked ALSxz: "}},
    {HintFamily::Set, {"3D Medusa"}, {"3D Medusa Rule "}},
    {HintFamily::Set, {"Forcing Chain from Cell"}, {"Forcing Chain : "}},
    {HintFamily::Set, {"Forcing Chain from Unit"}, {"Forcing Chain : "}},
    {HintFamily::Set, {"MultiFish"}, {"MultiFish with candidates "}},
}};

// The family of a kind: which sentence writer and which painter answer it.
constexpr HintFamily FamilyOf(HintKind kind) {
    const int number = KindNumber(kind);
    return number <= kHintKindCount ? kHintKinds[std::size_t(number)].family : HintFamily::None;
}

inline constexpr std::string_view kHintCaptionPrefix = "Hint - ";
// The caption of the hint window whenever it shows anything but a fresh hint.
inline constexpr std::string_view kMainDuplicateCaption = "Main Duplicate";

// The name of the record's technique as the hint window shows it: by HintKind,
// and by HintVariant (subsets, nice loops, unique rectangles, AIC) and
// HintCellCount (subsets). Empty for no kind or a form the kind does not have.
std::string_view HintName(const HintRecord& hint);

// "Hint - " and the name: the caption that ShowHint gives the hint window.
std::string HintCaption(const HintRecord& hint);

}  // namespace tavi
