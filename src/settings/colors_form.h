// SPDX-License-Identifier: GPL-3.0-or-later
// The colours window works on a copy: a click on a sample label or a hint colour
// selects it (its caption shows " X"), a click on a swatch of the palette gives
// the selected one that colour, Defaults puts back the program's colours, and
// accept takes the copy and writes the keys of section "Colors". Cancel drops it.
#pragma once

#include <array>
#include <string>

#include "settings/colors.h"

namespace tavi {

// The swatches of the palette, in rows of eight.
inline constexpr int kPaletteSwatches = 48;
extern const std::array<Color, kPaletteSwatches> kColorPalette;

// The sample labels of the window: the board's palette labels the user owns.
inline constexpr std::array<int, 7> kSampleLabels = {1, 2, 3, 6, 7, 8, 9};

struct ColorsForm {
    enum class Part { LabelBack, LabelFore, Hint };

    ColorSettings colors;
    Part selectedPart = Part::Hint;
    int selected = 0;  // the label (1..9) or the hint role (0..8)

    static ColorsForm From(const ColorSettings& inForce);

    void Select(Part part, int index);
    bool IsSelected(Part part, int index) const;
    // " X" for the selected label or hint colour, else nothing.
    std::string Caption(Part part, int index) const;
    // A swatch clicked: the selected one takes `color`.
    void Pick(Color color);
    // Command3: the program's colours.
    void Defaults();
    // Command2: the copy goes into `inForce` and the store.
    void Accept(ColorSettings& inForce, SettingsStore& store) const;
};

}  // namespace tavi
