// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/saved_game_check.h"

#include <algorithm>

#include "grid/tables.h"

namespace tavi {

namespace {

// The peers a placement names in its three masks, as the move log reads them.
bool PeerMasksFit(const Digits& puzzle, const SudokuLogRecord& log, int i) {
    const int cell = log.LogCell[i];
    const int row = cell / 9, col = cell % 9, leftTop = Global::BoxLeftTopOfCell[cell];
    for (int k = 0; k < 9; ++k) {
        if ((log.LogColumnMarks[i] >> k & 1) && puzzle[col + 9 * k]) return false;
        if ((log.LogRowMarks[i] >> k & 1) && puzzle[9 * row + k]) return false;
    }
    for (int x = 0; x < 3; ++x)
        for (int y = 0; y < 3; ++y)
            if ((log.LogBoxMarks[i] >> (y + 3 * x) & 1) && puzzle[leftTop + 9 * y + x])
                return false;
    return true;
}

}  // namespace

bool StepFitsPuzzle(const Digits& puzzle, const SudokuLogRecord& log, int step) {
    const int i = step - 1;
    const int cell = log.LogCell[i];
    if (cell < 0 || cell > 80 || puzzle[cell]) return false;
    const int v = log.LogDigit[i];
    if (v >= 1 && v <= 9) return PeerMasksFit(puzzle, log, i);
    return true;
}

SavedGameRepair RepairSavedGame(const SudokuRecord& sudoku, SudokuLogRecord& log) {
    SavedGameRepair repair;
    for (int c = 0; c < 81; ++c)
        if (sudoku.Puzzle[c] && log.Grid[c] != sudoku.Puzzle[c]) {
            log.Grid[c] = sudoku.Puzzle[c];
            ++repair.cluesRestored;
        }
    const int steps = std::clamp<int>(log.StepCount, 0, kLogSteps);
    int kept = 0;
    for (int i = 0; i < steps; ++i) {
        if (!StepFitsPuzzle(sudoku.Puzzle, log, i + 1)) {
            ++repair.droppedSteps;
            continue;
        }
        for (LogSteps* field : {&log.LogDigit, &log.LogCell, &log.LogOwnMarks, &log.LogColumnMarks,
                                &log.LogRowMarks, &log.LogBoxMarks})
            (*field)[kept] = (*field)[i];
        ++kept;
    }
    log.StepCount = std::int16_t(kept);
    return repair;
}

std::string SavedGameRepairedText(std::string_view logFileName, long number,
                                  const SavedGameRepair& repair) {
    std::string text = "Record " + std::to_string(number) + " of " + std::string(logFileName) + ":";
    if (repair.droppedSteps > 0)
        text += " " + std::to_string(repair.droppedSteps) +
                (repair.droppedSteps == 1 ? " step" : " steps") +
                " of its game could not have been played on its puzzle and " +
                (repair.droppedSteps == 1 ? "was" : "were") + " dropped.";
    if (repair.cluesRestored > 0)
        text += " " + std::to_string(repair.cluesRestored) +
                (repair.cluesRestored == 1 ? " clue was" : " clues were") +
                " overwritten in it and " + (repair.cluesRestored == 1 ? "is" : "are") + " back.";
    return text + " The rest of the game is kept.";
}

}  // namespace tavi
