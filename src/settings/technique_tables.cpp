// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/technique_tables.h"

#include <string>

#include "settings/setting_values.h"

namespace tavi {

namespace {

constexpr std::string_view kSection = "Technique";

std::string Key(std::string_view name, int i) { return std::string(name) + std::to_string(i); }

// A check box holds 0 or 1; anything else is no value of it, and is said.
int ReadFlag(const SettingsStore& store, const std::string& key, int fallback) {
    const std::string text = store.Read(kSection, key, std::to_string(fallback));
    const auto value = ParseWhole(text, 0, 1);
    if (!value) store.NoteUnreadable(kSection, key, text);
    return int(value.value_or(fallback));
}

}  // namespace

void ReadTechniqueTables(const SettingsStore& store, TechniqueTables& tables) {
    using T = TechniqueTables;
    for (int i = 0; i < kTechniqueCount; ++i) {
        // The fixed rungs are read too, so that a value no flag can hold is said;
        // their setting stays.
        const int onOff = ReadFlag(store, Key("OnOff", i), 1);
        const int halt = ReadFlag(store, Key("Halt", i), i < T::kFirstOptionalHalt ? 1 : 0);
        tables.OnOff[i] = i < T::kFirstOptionalTechnique ? 1 : onOff;
        tables.Halt[i] = i < T::kFirstOptionalHalt ? 1 : halt;
        const int order = ReadInt(store, kSection, Key("Order", i), i);
        const bool movable = i >= T::kFirstMovable && i <= T::kLastMovable;
        const bool fits =
            movable ? order >= T::kFirstMovable && order <= T::kLastMovable : order == i;
        if (!fits) store.NoteUnreadable(kSection, Key("Order", i), std::to_string(order));
        tables.Order[i] = fits ? order : i;
    }
    for (int i = 1; i < kTechniqueCount - 1; ++i)
        for (int j = i + 1; j < kTechniqueCount; ++j)
            if (tables.Order[i] == tables.Order[j]) {
                store.NoteUnreadable(kSection, Key("Order", j), std::to_string(tables.Order[j]));
                tables.Order = DefaultTechniqueOrder();
                return;
            }
}

void WriteTechniqueTables(SettingsStore& store, const TechniqueTables& tables) {
    for (int i = 0; i < kTechniqueCount; ++i) {
        WriteInt(store, kSection, Key("OnOff", i), tables.OnOff[i]);
        WriteInt(store, kSection, Key("Halt", i), tables.Halt[i]);
        WriteInt(store, kSection, Key("Order", i), tables.Order[i]);
    }
}

bool IsValidOrder(const TechniqueOrder& order) {
    using T = TechniqueTables;
    std::array<bool, kTechniqueCount> seen{};
    for (int i = 0; i < kTechniqueCount; ++i) {
        const int p = order[i];
        const bool movable = i >= T::kFirstMovable && i <= T::kLastMovable;
        if (!movable && p != i) return false;
        if (movable && (p < T::kFirstMovable || p > T::kLastMovable)) return false;
        if (seen[p]) return false;
        seen[p] = true;
    }
    return true;
}

}  // namespace tavi
