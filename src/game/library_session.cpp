// The game's reads and writes of the library.
#include "game/library_session.h"

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

void LibrarySession::SaveGame(const SudokuLogRecord& record) {
    if (SaveGameLog(folders_, position_, record, &prompter_)) logRecord_ = record;
}

}  // namespace tavi
