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
    // Whether the record read holds digits of the user.
    bool HasProgress() const;
    // The record read is the one in play, or none is.
    void Opened();
    void Closed();
    // No puzzle and an empty log record.
    void Forget();

    // The position keys out of the store, and back with `currentStep` steps in
    // play.
    void ReadPosition() { HaalLaatsteSudoku(store_, position_); }
    void SavePosition(int currentStep);
    // The open record's progress erased on disk.
    void EraseProgress() { AutoWisProgress(folders_, position_, sudoku_, logRecord_); }
    // Whether the open record, as it stands on disk, holds a game.
    bool OnDisk() const { return SudInProgress(folders_, position_); }
    // The puzzle record with its best time just changed.
    void SaveBestTime() { BewaarBestTime(folders_, position_, sudoku_, &prompter_); }
    // Writes the game's log record; it becomes the record read when written.
    void SaveGame(const SudokuLogRecord& record);

  private:
    LibraryFolders folders_;
    SettingsStore& store_;
    Prompter& prompter_;
    LibraryPosition position_;
    SudokuRecord sudoku_;
    SudokuLogRecord logRecord_;
};

}  // namespace tavi
