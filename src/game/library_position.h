// SPDX-License-Identifier: GPL-3.0-or-later
// Where the game stands in the library: the level chosen, the puzzle open, the
// last record used per level and whether a level was left with a game in
// progress. The game model owns one of these; the routines here move it between
// the settings store and the library files.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "library/library_files.h"
#include "library/records.h"
#include "platform/notifier.h"
#include "settings/settings_store.h"

namespace tavi {

struct LibraryPosition {
    int ChosenLevel = 2;                 // the level selected in the list
    int OpenLevel = 0;                   // level of the puzzle in play, 0 = none
    std::int32_t OpenRecord = 0;         // its record number, 0 = none
    std::array<int, 10> PuzzleNumber{};  // by level 1..9: last record number used
    std::array<int, 10> StoredNumber{};  // the same, as read at start
    int LastLevel = 0;                   // the level of the last run
    std::array<bool, 10> LevelBusy{};    // by level: left with a game in progress
    std::array<bool, 10> BusyUnread{};   // by level: "Busy" held neither "Yes" nor "No"
    bool LevelUnread = false;            // "Level" held no level
    int CurrentStep = 0;                 // steps of the game in play, as last written
    bool SudokuSolved = true;            // no game going on
    bool SudokuAutosolved = false;
};

// The position keys: "Sudoku"/"Level", and "Number" and "Busy" of "SudokuLevel1"
// to "SudokuLevel9". Values out of range count as missing.
void HaalLaatsteSudoku(const SettingsStore& store, LibraryPosition& position);
// Writes the position keys. A puzzle opened and left untouched gets its number
// back one, so that the next New offers it again; only a game in progress
// (opened, changed, not solved, not autosolved) marks its level "Busy".
void SaveLastSudoku(SettingsStore& store, const LibraryPosition& position);

// Whether record OpenRecord of ChosenLevel, as it stands on disk, holds digits of
// the user. Read errors count as no.
bool SudInProgress(const LibraryFolders& folders, const LibraryPosition& position);

// Erases the progress of the open puzzle: `log` gets StepCount 0, the puzzle's
// clues as its Grid and a clock of 0, and is written at OpenRecord. Does nothing
// with no puzzle open; a failed write is lost silently. True if written.
bool AutoWisProgress(const LibraryFolders& folders, const LibraryPosition& position,
                     const SudokuRecord& sudoku, SudokuLogRecord& log);

// Writes `sudoku`, with its best time just changed, at OpenRecord of OpenLevel.
bool BewaarBestTime(const LibraryFolders& folders, const LibraryPosition& position,
                    const SudokuRecord& sudoku, Notifier* notifier);

// A puzzle the user made: both records at count + 1 of `level`'s pair, and that
// number becomes PuzzleNumber(level).
bool AddMadePuzzle(const LibraryFolders& folders, int level, LibraryPosition& position,
                   const SudokuRecord& sudoku, const SudokuLogRecord& log, Notifier* notifier);

// The last step of a save: `log` at OpenRecord of OpenLevel. A log of more steps
// than a record holds is refused with a message, and the record on disk keeps its
// former state. Nothing happens with no puzzle open.
inline constexpr std::string_view kStepLimitTitle = "Sudoku not saved";
inline constexpr std::string_view kStepLimitText =
    "This sudoku has more than 100 steps and can't be saved. "
    "The last saved state of the sudoku is kept.";
bool SaveGameLog(const LibraryFolders& folders, const LibraryPosition& position,
                 const SudokuLogRecord& log, Notifier* notifier);

}  // namespace tavi
