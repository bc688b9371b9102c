// SPDX-License-Identifier: GPL-3.0-or-later
// The library session of the game: which level is chosen, which record is open
// (its puzzle and its log record as read), where the game stands in the
// library, and the reads and writes of the pair's files that a game makes:
// loading, saving, erasing the progress, the best time, and the position keys.
#pragma once

#include <filesystem>

#include "game/library_position.h"
#include "library/library_files.h"
#include "library/records.h"
#include "platform/platform.h"
#include "settings/settings_store.h"

namespace tavi {

class LibrarySession {
  public:
    LibrarySession(LibraryFolders folders, SettingsStore& store, Prompter& prompter)
        : folders_(std::move(folders)), store_(store), prompter_(prompter) {}

    const LibraryFolders& folders() const { return folders_; }
    LibraryPosition& position() { return position_; }
    const LibraryPosition& position() const { return position_; }
    SudokuRecord& sudoku() { return sudoku_; }
    const SudokuRecord& sudoku() const { return sudoku_; }
    const SudokuLogRecord& logRecord() const { return logRecord_; }

    // The puzzle file of the chosen level.
    std::filesystem::path ChosenFile() const;
    // Whole records in the chosen level's puzzle file.
    long ChosenCount() const;
    // New: the next record of the chosen level in file order, back to the first
    // after the last.
    void NextPuzzle();
    // Reads record PuzzleNumber of the chosen level into the session; false
    // after a message when the pair can't be read.
    bool ReadChosen();
    // The game in progress of the last run, when its record holds one; nothing
    // is said when not.
    bool ReadLast();
    // Whether record PuzzleNumber of `level` holds a saved game (steps to undo);
    // nothing is said when it can't be read.
    bool SavedGameAt(int level) const;
    // Whether the record read holds digits of the user.
    bool HasProgress() const;
    // The record read is the one in play, or none is.
    void Opened();
    void Closed();
    // No puzzle and an empty log record.
    void Forget();
    // A puzzle that comes from elsewhere (the recovery copy): the log record read
    // is empty.
    void Adopt(const SudokuRecord& sudoku);
    // Whether record OpenRecord of OpenLevel still holds the puzzle in play. When
    // the level was renumbered meanwhile the puzzle is looked for in its level,
    // and its new number becomes OpenRecord; false when it is nowhere, and then
    // nothing may be written for the game.
    bool FindOpenPuzzle();

    // The position keys out of the store, and back with `currentStep` steps in
    // play.
    void ReadPosition() { HaalLaatsteSudoku(store_, position_); }
    void SavePosition(int currentStep);
    // The open record's progress erased on disk.
    void EraseProgress() {
        if (FindOpenPuzzle()) AutoWisProgress(folders_, position_, sudoku_, logRecord_);
    }
    // Whether the open record, as it stands on disk, holds a game.
    bool OnDisk() const { return SudInProgress(folders_, position_); }
    // The puzzle record with its best time just changed.
    void SaveBestTime() {
        if (FindOpenPuzzle()) BewaarBestTime(folders_, position_, sudoku_, &prompter_);
    }
    // Writes the game's log record at OpenRecord, found by FindOpenPuzzle; it
    // becomes the record read when written.
    bool SaveGame(const SudokuLogRecord& record);

  private:
    LibraryFolders folders_;
    SettingsStore& store_;
    Prompter& prompter_;
    LibraryPosition position_;
    SudokuRecord sudoku_;
    SudokuLogRecord logRecord_;
};

}  // namespace tavi
