// The nine difficulty levels, 1..9, in the order of their names.
#pragma once

#include <array>
#include <string_view>

namespace tavi {

inline constexpr int kLevelCount = 9;
inline constexpr int kOutlaw = 9;  // what a puzzle gets when the ladder fails

inline constexpr std::array<std::string_view, 10> kLevelNames = {
    "",      "Easy",     "Medium",  "Hard",   "Crazy",
    "Insane", "Kamikaze", "Extreme", "Mayhem", "Outlaw"};

constexpr std::string_view LevelName(int level) {
    return level >= 1 && level <= 9 ? kLevelNames[level] : std::string_view{};
}

}  // namespace tavi
