// SPDX-License-Identifier: GPL-3.0-or-later
// Typed values over the text of the store. The store may hold anything a person
// or another program put there; a value that can't be read as its type gives the
// default, so a damaged settings file never stops the program, and is noted in
// the store (SettingsStore::Unreadable) so that the program can say so.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "settings/settings_store.h"

namespace tavi {

// "True" and "False" (in any case), or a whole number, non-zero being true.
std::optional<bool> ParseBool(std::string_view text);
// A whole decimal number between `low` and `high`, spaces around it allowed.
std::optional<long long> ParseWhole(std::string_view text, long long low, long long high);

inline std::string BoolText(bool value) { return value ? "True" : "False"; }

bool ReadBool(const SettingsStore& store, std::string_view section, std::string_view key,
              bool fallback);
// A whole number from `low` to `high`.
long long ReadWhole(const SettingsStore& store, std::string_view section, std::string_view key,
                    long long fallback, long long low, long long high);
// A 16-bit whole number.
int ReadInt(const SettingsStore& store, std::string_view section, std::string_view key,
            int fallback);
// A 32-bit colour value, written signed as the old store kept it; the unsigned
// form is read too.
std::uint32_t ReadColor(const SettingsStore& store, std::string_view section, std::string_view key,
                        std::uint32_t fallback);
std::string ColorText(std::uint32_t color);

void WriteBool(SettingsStore& store, std::string_view section, std::string_view key, bool value);
void WriteInt(SettingsStore& store, std::string_view section, std::string_view key,
              long long value);

}  // namespace tavi
