// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/options.h"

#include <string_view>

#include "settings/setting_values.h"

namespace tavi {

namespace {

constexpr std::string_view kOptions = "Options";
constexpr std::string_view kVersion = "Version";

// The option keys in the order they are written, with their variables.
struct OptionKey {
    std::string_view key;
    bool Options::*field;
};
constexpr OptionKey kOptionKeys[] = {
    {"Dimmed", &Options::Dimmed},           {"PencilmarksOff", &Options::PencilmarksOff},
    {"Pencilmarks", &Options::Pencilmarks}, {"Wells", &Options::Wells},
    {"Sounds", &Options::Sounds},           {"HintWindow", &Options::HintWindow},
    {"TimeOn", &Options::TimeOn},           {"TimeShow", &Options::TimeShow},
    {"AutoSave", &Options::AutoSave},       {"AskSave", &Options::AskSave},
    {"AutoErase", &Options::AutoErase},
};
constexpr std::string_view kLogfiles = "Logfiles";

// The highlighting keeps a section of its own, so the keys of "Options" stay as
// they have always been.
constexpr std::string_view kHighlight = "Highlight";
constexpr OptionKey kHighlightKeys[] = {
    {"Houses", &Options::HighlightHouses},
    {"Digit", &Options::HighlightDigit},
};

}  // namespace

void HaalOpties(const SettingsStore& store, Options& options) {
    const Options defaults;
    for (const auto& [key, field] : kOptionKeys)
        options.*field = ReadBool(store, kOptions, key, defaults.*field);
    options.LogfilesMade = ReadBool(store, kOptions, kLogfiles, defaults.LogfilesMade);
    for (const auto& [key, field] : kHighlightKeys)
        options.*field = ReadBool(store, kHighlight, key, defaults.*field);
    options.VersionMain = ReadInt(store, kVersion, "Main", defaults.VersionMain);
    options.VersionSub = ReadInt(store, kVersion, "Sub", defaults.VersionSub);
    ReadTechniqueTables(store, options.techniques);
    HaalKleuren(store, options.colors);
}

void SchrijfOpties(SettingsStore& store, const Options& options) {
    for (const auto& [key, field] : kOptionKeys)
        WriteBool(store, kOptions, key, options.*field);
    for (const auto& [key, field] : kHighlightKeys)
        WriteBool(store, kHighlight, key, options.*field);
    WriteTechniqueTables(store, options.techniques);
}

void SchrijfOptieSudLog(SettingsStore& store, const Options& options) {
    WriteBool(store, kOptions, kLogfiles, options.LogfilesMade);
}

void SchrijfVersie(SettingsStore& store, const Options& options) {
    WriteInt(store, kVersion, "Main", options.VersionMain);
    WriteInt(store, kVersion, "Sub", options.VersionSub);
}

bool PencilmarksOffAt(const Options& options, int level) {
    return options.PencilmarksOff && level < 4;
}

}  // namespace tavi
