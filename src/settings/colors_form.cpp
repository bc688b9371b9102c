// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/colors_form.h"

namespace tavi {

// Six rows of eight: pale tints, the light colours of the board, clear ones,
// deep ones, dark ones, and greys from white to black.
const std::array<Color, kPaletteSwatches> kColorPalette = {
    0x00E0E0FF, 0x00C0E0FF, 0x00C0FFFF, 0x00C0FFE0, 0x00FFFFC0, 0x00FFE0C0, 0x00FFC0E0, 0x00F0D0F0,
    0x008080FF, 0x0080C0FF, 0x0080FFFF, 0x0080FF80, 0x00FFFF80, 0x00FFC080, 0x00FF80C0, 0x00E080E0,
    0x000000FF, 0x000080FF, 0x0000FFFF, 0x0000FF00, 0x00FFFF00, 0x00FF8000, 0x00FF0080, 0x00FF00FF,
    0x000000C0, 0x00004080, 0x00008080, 0x00008000, 0x00808000, 0x00800000, 0x00800040, 0x00800080,
    0x00000080, 0x00003060, 0x00004040, 0x00004000, 0x00404000, 0x00400000, 0x00400020, 0x00400040,
    0x00FFFFFF, 0x00E0E0E0, 0x00C0C0C0, 0x00A0A0A0, 0x00808080, 0x00606060, 0x00303030, 0x00000000,
};

ColorsForm ColorsForm::From(const ColorSettings& inForce) {
    ColorsForm form;
    form.colors = inForce;
    return form;
}

void ColorsForm::Select(Part part, int index) {
    const bool valid = part == Part::Hint ? index >= 0 && index < 9 : IsStoredLabel(index);
    if (!valid) return;
    selectedPart = part;
    selected = index;
}

bool ColorsForm::IsSelected(Part part, int index) const {
    return selectedPart == part && selected == index;
}

std::string ColorsForm::Caption(Part part, int index) const {
    return IsSelected(part, index) ? " X" : "";
}

void ColorsForm::Pick(Color color) {
    switch (selectedPart) {
        case Part::LabelBack: colors.LabelBack[selected] = color; break;
        case Part::LabelFore: colors.LabelFore[selected] = color; break;
        case Part::Hint: colors.HintColor[selected] = color; break;
    }
}

void ColorsForm::Defaults() { colors = ColorSettings{}; }

void ColorsForm::Accept(ColorSettings& inForce, SettingsStore& store) const {
    inForce = colors;
    SchrijfKleuren(store, inForce);
    store.Flush();
}

}  // namespace tavi
