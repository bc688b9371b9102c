// SPDX-License-Identifier: GPL-3.0-or-later
// The recovery copy: the game on the board as it stands after every step
// (puzzle, digits, marks, clock and move log), kept beside the library so that a
// crash or a kill loses nothing that was on screen. It is no save: the log
// record of the puzzle is written only by Save. A normal end of the program
// removes the copy, so a copy found at start means the last run did not end
// normally, and the game is offered back.
//
// The copy is a short text file, written whole beside the old one and renamed
// over it, so a kill at any instant leaves the old copy or the new one.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "game/move_log.h"
#include "library/records.h"

namespace tavi {

inline constexpr std::string_view kRecoveryFileName = "TaviSud1.recovery";
// The most steps a copy keeps: the latest ones, as a saved game keeps its latest.
inline constexpr int kRecoverySteps = 2000;

struct RecoveryCopy {
    int level = 0;    // 1..9, the level of the puzzle in play
    long record = 0;  // its record number when the game was opened
    SudokuRecord sudoku;
    Digits grid{};
    std::array<CandidateMask, 81> marks{};
    int clockSeconds = 0;
    bool TimeOn = false;
    bool TimeShow = false;
    bool autosolved = false;
    int currentStep = 0;
    std::vector<MoveStep> steps;

    bool operator==(const RecoveryCopy&) const = default;
};

std::string FormatRecoveryCopy(const RecoveryCopy& copy);
// Nothing when the text is not a whole and sound copy; `why` then says what is
// wrong. A copy whose digits or steps contradict its own puzzle is refused too.
std::optional<RecoveryCopy> ParseRecoveryCopy(std::string_view text, std::string* why = nullptr);

std::filesystem::path RecoveryFile(const std::filesystem::path& dataFolder);
bool WriteRecoveryCopy(const std::filesystem::path& dataFolder, const RecoveryCopy& copy);
bool RecoveryCopyExists(const std::filesystem::path& dataFolder);
// The copy in the folder; nothing when there is none or it can't be used (then
// `why` says why).
std::optional<RecoveryCopy> ReadRecoveryCopy(const std::filesystem::path& dataFolder,
                                             std::string* why = nullptr);
void RemoveRecoveryCopy(const std::filesystem::path& dataFolder);
// A copy that can't be read is moved aside under a name of its own, never
// deleted; the new name comes back.
std::filesystem::path SetAsideRecoveryCopy(const std::filesystem::path& dataFolder);

}  // namespace tavi
