#include "settings/technique_tables.h"

#include <string>

#include "settings/setting_values.h"

namespace tavi {

namespace {

constexpr std::string_view kSection = "Technique";

std::string Key(std::string_view name, int i) { return std::string(name) + std::to_string(i); }

// A check box holds 0 or 1; anything else is no value of it.
int ReadFlag(const SettingsStore& store, const std::string& key, int fallback) {
    const int value = ReadInt(store, kSection, key, fallback);
    return value == 0 || value == 1 ? value : fallback;
}

}  // namespace

void ReadTechniqueTables(const SettingsStore& store, TechniqueTables& tables) {
    using T = TechniqueTables;
    for (int i = 0; i < kTechniqueCount; ++i) {
        tables.OnOff[i] = i < T::kFirstOptionalTechnique ? 1 : ReadFlag(store, Key("OnOff", i), 1);
        tables.Halt[i] = i < T::kFirstOptionalHalt ? 1 : ReadFlag(store, Key("Halt", i), 0);
        const int order = ReadInt(store, kSection, Key("Order", i), i);
        const bool movable = i >= T::kFirstMovable && i <= T::kLastMovable;
        tables.Order[i] =
            movable && order >= T::kFirstMovable && order <= T::kLastMovable ? order : i;
    }
    for (int i = 1; i < kTechniqueCount - 1; ++i)
        for (int j = i + 1; j < kTechniqueCount; ++j)
            if (tables.Order[i] == tables.Order[j]) {
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
