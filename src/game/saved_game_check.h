// SPDX-License-Identifier: GPL-3.0-or-later
// A saved game is checked against its puzzle before it is laid on the board. A
// log record may come from another puzzle (a library renumbered behind the
// game's back) or be damaged: a step that touches a clue cell, or names a clue
// cell among the peers whose mark it took, could not have been played on this
// puzzle, and undoing it would change the givens. Such steps are dropped, the
// rest of the game stays.
#pragma once

#include <string>

#include "library/records.h"

namespace tavi {

struct SavedGameRepair {
    int droppedSteps = 0;   // steps taken out of the log
    int cluesRestored = 0;  // clue cells whose digit in Grid was not the clue

    bool Any() const { return droppedSteps > 0 || cluesRestored > 0; }
};

// Whether `step` (1-based, up to StepCount) of `log` could have been played on
// `puzzle`.
bool StepFitsPuzzle(const Digits& puzzle, const SudokuLogRecord& log, int step);

// Drops the steps that do not fit, keeping the order of the others, and puts
// the clues back into Grid where it held something else.
SavedGameRepair RepairSavedGame(const SudokuRecord& sudoku, SudokuLogRecord& log);

inline constexpr std::string_view kSavedGameRepairedTitle = "Saved game repaired";
// "Record 4 of Sudoku_Easy.sdl: 2 steps of its game could not have been played
// on its puzzle and were dropped. The rest of the game is kept."
std::string SavedGameRepairedText(std::string_view logFileName, long number,
                                  const SavedGameRepair& repair);

}  // namespace tavi
