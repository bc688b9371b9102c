// SPDX-License-Identifier: GPL-3.0-or-later
// The colours the user can change: the nine hint colours by role, and the back
// and fore colour of the board's palette labels. Values are 0x00BBGGRR, the byte
// order of the platform's colour value that the store has always held.
#pragma once

#include <array>
#include <cstdint>

#include "settings/settings_store.h"

namespace tavi {

using Color = std::uint32_t;

// The hint colours are indexed by role (the hint roles), in the order of the
// colour dialog.
inline constexpr std::array<Color, 9> kDefaultHintColor = {
    0x0000FF00,  // green
    0x00FFFF00,  // cyan
    0x0000FFFF,  // yellow
    0x000000FF,  // red
    0x00808000,  // teal
    0x0000FFFF,  // yellow
    0x000080FF,  // orange
    0x00FF00FF,  // magenta
    0x0000FF00,  // green
};

// The palette of the board has ten labels: 0 to 3 brushes for marks, 4 clears the
// brush, 5 wipes the paint, 6 to 9 brushes for cells. 4 and 5 are no colours of
// the user and are never stored.
inline constexpr int kPaletteLabels = 10;
constexpr bool IsStoredLabel(int i) { return i >= 1 && i <= 9 && i != 4 && i != 5; }

// A brush paints in its label's back colour: a mark brush the background of one
// mark, a cell brush a whole cell. Mark brushes are stronger than cell brushes,
// so that a painted mark stands out on a painted cell.
inline constexpr std::array<Color, kPaletteLabels> kDefaultLabelBack = {
    0x0050C8FF, 0x0060D860, 0x00FFA860, 0x00E080E0, 0x00E0E0E0,
    0x00E0E0E0, 0x00A0F0FF, 0x00C0F0C0, 0x00FFE0C0, 0x00F0D0F0};
inline constexpr std::array<Color, kPaletteLabels> kDefaultLabelFore = {
    0x00000000, 0x00000000, 0x00000000, 0x00000000, 0x00000000,
    0x00000000, 0x00000000, 0x00000000, 0x00000000, 0x00000000};

struct ColorSettings {
    std::array<Color, 9> HintColor = kDefaultHintColor;
    std::array<Color, kPaletteLabels> LabelBack = kDefaultLabelBack;  // LabelColor(i).BackColor
    std::array<Color, kPaletteLabels> LabelFore = kDefaultLabelFore;  // LabelColor(i).ForeColor
};

// HintColor back to its defaults, then every key of section "Colors" read with
// the colour now in force as its default: a missing or unreadable key changes
// nothing.
void HaalKleuren(const SettingsStore& store, ColorSettings& colors);
// "BColor" and "FColor" for the stored labels, then "HColor" 0 to 8.
void SchrijfKleuren(SettingsStore& store, const ColorSettings& colors);

}  // namespace tavi
