// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/colors.h"

#include <string>

#include "settings/setting_values.h"

namespace tavi {

namespace {
constexpr std::string_view kSection = "Colors";
std::string Key(std::string_view name, int i) { return std::string(name) + std::to_string(i); }
}  // namespace

void HaalKleuren(const SettingsStore& store, ColorSettings& colors) {
    colors.HintColor = kDefaultHintColor;
    for (int i = 1; i <= 9; ++i) {
        if (!IsStoredLabel(i)) continue;
        colors.LabelBack[i] = ReadColor(store, kSection, Key("BColor", i), colors.LabelBack[i]);
        colors.LabelFore[i] = ReadColor(store, kSection, Key("FColor", i), colors.LabelFore[i]);
    }
    for (int i = 0; i < 9; ++i)
        colors.HintColor[i] = ReadColor(store, kSection, Key("HColor", i), colors.HintColor[i]);
}

void SchrijfKleuren(SettingsStore& store, const ColorSettings& colors) {
    for (int i = 1; i <= 9; ++i) {
        if (!IsStoredLabel(i)) continue;
        store.Write(kSection, Key("BColor", i), ColorText(colors.LabelBack[i]));
        store.Write(kSection, Key("FColor", i), ColorText(colors.LabelFore[i]));
    }
    for (int i = 0; i < 9; ++i)
        store.Write(kSection, Key("HColor", i), ColorText(colors.HintColor[i]));
}

}  // namespace tavi
