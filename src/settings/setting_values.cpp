// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/setting_values.h"

#include <algorithm>
#include <cctype>
#include <charconv>

namespace tavi {

namespace {

std::string_view Trim(std::string_view text) {
    while (!text.empty() && std::isspace(static_cast<unsigned char>(text.front())))
        text.remove_prefix(1);
    while (!text.empty() && std::isspace(static_cast<unsigned char>(text.back())))
        text.remove_suffix(1);
    return text;
}

bool EqualsNoCase(std::string_view a, std::string_view b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
               return std::tolower(static_cast<unsigned char>(x)) ==
                      std::tolower(static_cast<unsigned char>(y));
           });
}

}  // namespace

std::optional<bool> ParseBool(std::string_view text) {
    text = Trim(text);
    if (EqualsNoCase(text, "True")) return true;
    if (EqualsNoCase(text, "False")) return false;
    if (const auto n = ParseWhole(text, -32768, 32767)) return *n != 0;
    return std::nullopt;
}

std::optional<long long> ParseWhole(std::string_view text, long long low, long long high) {
    text = Trim(text);
    if (!text.empty() && text.front() == '+') text.remove_prefix(1);
    long long value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    if (value < low || value > high) return std::nullopt;
    return value;
}

bool ReadBool(const SettingsStore& store, std::string_view section, std::string_view key,
              bool fallback) {
    const std::string text = store.Read(section, key, BoolText(fallback));
    const auto value = ParseBool(text);
    if (!value) store.NoteUnreadable(section, key, text);
    return value.value_or(fallback);
}

int ReadInt(const SettingsStore& store, std::string_view section, std::string_view key,
            int fallback) {
    return int(ReadWhole(store, section, key, fallback, -32768, 32767));
}

long long ReadWhole(const SettingsStore& store, std::string_view section, std::string_view key,
                    long long fallback, long long low, long long high) {
    const std::string text = store.Read(section, key, std::to_string(fallback));
    const auto value = ParseWhole(text, low, high);
    if (!value) store.NoteUnreadable(section, key, text);
    return value.value_or(fallback);
}

std::uint32_t ReadColor(const SettingsStore& store, std::string_view section, std::string_view key,
                        std::uint32_t fallback) {
    const auto value = ReadWhole(store, section, key, static_cast<std::int32_t>(fallback),
                                 -2147483648LL, 4294967295LL);
    return static_cast<std::uint32_t>(value);
}

std::string ColorText(std::uint32_t color) {
    return std::to_string(static_cast<std::int32_t>(color));
}

void WriteBool(SettingsStore& store, std::string_view section, std::string_view key, bool value) {
    store.Write(section, key, BoolText(value));
}

void WriteInt(SettingsStore& store, std::string_view section, std::string_view key,
              long long value) {
    store.Write(section, key, std::to_string(value));
}

}  // namespace tavi
