// SPDX-License-Identifier: GPL-3.0-or-later
// The nine difficulty levels, 1..9, in the order of their names, and the files
// that hold each level's puzzles.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace tavi {

inline constexpr int kLevelCount = 9;
inline constexpr int kOutlaw = 9;  // what a puzzle gets when the ladder fails

inline constexpr std::array<std::string_view, 10> kLevelNames = {
    "", "Easy", "Medium", "Hard", "Crazy", "Insane", "Kamikaze", "Extreme", "Mayhem", "Outlaw"};

constexpr bool IsLevel(int level) { return level >= 1 && level <= kLevelCount; }

constexpr std::string_view LevelName(int level) {
    return IsLevel(level) ? kLevelNames[level] : std::string_view{};
}

// A level's files share a stem; the last letter tells them apart: "s" the
// puzzles, "l" the log of the user's progress on each of them.
inline constexpr std::array<std::string_view, 10> kLevelStems = {"",
                                                                 "Sudoku_Easy.sd",
                                                                 "Sudoku_Medium.sd",
                                                                 "Sudoku_Hard.sd",
                                                                 "Sudoku_Crazy.sd",
                                                                 "Sudoku_Insane.sd",
                                                                 "Sudoku_Kamikaze.sd",
                                                                 "Sudoku_Extreme.sd",
                                                                 "Sudoku_Mayhem.sd",
                                                                 "Sudoku_Outlaw.sd"};

// Where puzzles taken out of the Outlaw pair go.
inline constexpr std::string_view kExportedStem = "Exported_Sudokus.sd";

constexpr std::string_view LevelStem(int level) {
    return IsLevel(level) ? kLevelStems[level] : std::string_view{};
}

inline std::string PuzzleFileName(std::string_view stem) { return std::string(stem) + "s"; }
inline std::string LogFileName(std::string_view stem) { return std::string(stem) + "l"; }

}  // namespace tavi
