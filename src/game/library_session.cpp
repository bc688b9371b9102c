// SPDX-License-Identifier: GPL-3.0-or-later
// The game's reads and writes of the library.
#include "game/library_session.h"

#include <algorithm>

#include "grid/levels.h"
#include "library/library_pair.h"

namespace tavi {

std::filesystem::path LibrarySession::ChosenFile() const {
    return PuzzleFile(folders_.DataFolder, LevelStem(position_.ChosenLevel));
}

long LibrarySession::ChosenCount() const {
    // The pair is opened for use: what a kill left is repaired, and said.
    return CheckedPair(folders_.DataFolder, LevelStem(position_.ChosenLevel), &prompter_);
}

void LibrarySession::NextPuzzle() {
    const long count = ChosenCount();
    int& number = position_.PuzzleNumber[position_.ChosenLevel];
    number = count > number ? number + 1 : 1;
}

bool LibrarySession::ReadChosen() {
    const int level = position_.ChosenLevel;
    const int number = position_.PuzzleNumber[level];
    return ReadPair(folders_.DataFolder, LevelStem(level), number, sudoku_, logRecord_, &prompter_);
}

bool LibrarySession::ReadLast() {
    const int level = position_.ChosenLevel;
    const int number = position_.PuzzleNumber[level];
    if (CheckedPair(folders_.DataFolder, LevelStem(level), &prompter_) <= 0) return false;
    SudokuRecord sudoku;
    SudokuLogRecord log;
    if (!ReadPair(folders_.DataFolder, LevelStem(level), number, sudoku, log, nullptr))
        return false;
    if (log.StepCount == 0) return false;
    sudoku_ = sudoku;
    logRecord_ = log;
    return true;
}

bool LibrarySession::SavedGameAt(int level) const {
    const std::string_view stem = LevelStem(level);
    SudokuLogRecord log;
    return !stem.empty() && position_.PuzzleNumber[level] >= 1 &&
           ReadSudokuLogRecord(LogFile(folders_.DataFolder, stem), position_.PuzzleNumber[level],
                               log) &&
           log.StepCount > 0;
}

bool LibrarySession::HasProgress() const {
    bool goOn = false;
    for (int c = 0; c < 81 && !goOn; ++c)
        goOn = sudoku_.Puzzle[c] == 0 && logRecord_.Grid[c] > 0;
    return goOn;
}

void LibrarySession::Opened() {
    position_.OpenLevel = position_.ChosenLevel;
    position_.OpenRecord = position_.PuzzleNumber[position_.ChosenLevel];
}

void LibrarySession::Closed() {
    position_.OpenLevel = 0;
    position_.OpenRecord = 0;
}

void LibrarySession::Forget() {
    sudoku_ = {};
    logRecord_ = {};
    logRecord_.SavedCandidates.fill(1022);
}

void LibrarySession::SavePosition(int currentStep) {
    position_.CurrentStep = currentStep;
    SaveLastSudoku(store_, position_);
}

bool LibrarySession::SaveGame(const SudokuLogRecord& record) {
    if (!SaveGameLog(folders_, position_, record, &prompter_)) return false;
    logRecord_ = record;
    return true;
}

void LibrarySession::Adopt(const SudokuRecord& sudoku) {
    sudoku_ = sudoku;
    logRecord_ = {};
    logRecord_.Grid = sudoku.Puzzle;
}

bool LibrarySession::FindOpenPuzzle() {
    const std::string_view stem = LevelStem(position_.OpenLevel);
    if (stem.empty() || position_.OpenRecord < 1) return false;
    const auto sds = PuzzleFile(folders_.DataFolder, stem);
    SudokuRecord there;
    if (ReadSudokuRecord(sds, position_.OpenRecord, there) && there.Puzzle == sudoku_.Puzzle)
        return true;
    // Renumbered behind the game's back (the workbench, the command line, another
    // copy of the program): the puzzle is looked for in its level, first place first.
    std::vector<SudokuRecord> all;
    std::vector<std::string> damaged;
    if (!ReadSudokuFile(sds, all, nullptr, nullptr, &damaged)) return false;
    long number = 0;
    if (damaged.empty()) {
        const auto it = std::find_if(all.begin(), all.end(), [&](const SudokuRecord& r) {
            return r.Puzzle == sudoku_.Puzzle;
        });
        if (it != all.end()) number = long(it - all.begin()) + 1;
    } else {
        // Damaged records are left out of `all`: the numbers are counted on disk.
        const long count = WholeRecords(sds, kSudokuRecordSize);
        for (long k = 1; k <= count && number == 0; ++k)
            if (ReadSudokuRecord(sds, k, there) && there.Puzzle == sudoku_.Puzzle) number = k;
    }
    if (number == 0) return false;
    position_.OpenRecord = std::int32_t(number);
    position_.PuzzleNumber[position_.OpenLevel] = int(number);
    return true;
}

}  // namespace tavi
