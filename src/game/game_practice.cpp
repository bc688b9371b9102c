// SPDX-License-Identifier: GPL-3.0-or-later
// Practising a technique: its puzzle opens as a normal game of its level, saved
// and resumed like any other; only the first hint of the technique is marked.
#include <sstream>

#include "game/game.h"
#include "grid/levels.h"
#include "library/library_pair.h"

namespace tavi {

namespace {

// The puzzle practised last, kept in the store so that its game resumes as a
// practice: "level record technique".
constexpr std::string_view kPracticeSection = "Practice";
constexpr std::string_view kPracticeKey = "Puzzle";

}  // namespace

void Game::ResumePractice() {
    practice_.Stop();
    const LibraryPosition& position = session_.position();
    const int level = position.ChosenLevel;
    if (!IsLevel(level)) return;
    std::istringstream kept(services_.store.Read(kPracticeSection, kPracticeKey, ""));
    int keptLevel = 0, technique = 0;
    long record = 0;
    if (kept >> keptLevel >> record >> technique && keptLevel == level &&
        record == position.PuzzleNumber[level] && technique >= kFirstPractised &&
        technique <= kLastPractised)
        practice_.Start(technique);
}

bool Game::StartPractice(int level, long record, int technique) {
    const ChangeScope scope(*this);
    if (busy_ || !IsLevel(level) || record < 1) return false;
    ResetHintStage();
    LeaveBoard();
    LibraryPosition& position = session_.position();
    const int chosen = position.ChosenLevel, number = position.PuzzleNumber[level];
    position.ChosenLevel = level;
    position.PuzzleNumber[level] = int(record);
    if (!LoadPuzzle(true)) {
        // The game on the board stays, and so does the choice it was made with.
        position.ChosenLevel = chosen;
        position.PuzzleNumber[level] = number;
        return false;
    }
    practice_.Start(technique);
    services_.store.Write(
        kPracticeSection, kPracticeKey,
        std::to_string(level) + " " + std::to_string(record) + " " + std::to_string(technique));
    return true;
}

bool Game::StartPractice(const FoundPuzzle& found, int technique) {
    const ChangeScope scope(*this);
    if (busy_ || !IsLevel(found.level)) return false;
    SudokuRecord sudoku;
    sudoku.Puzzle = found.puzzle;
    sudoku.Solution = found.solution;
    long number = 0;
    std::string why;
    if (!AppendToPair(session_.folders().DataFolder, LevelStem(found.level), sudoku, {}, &number,
                      &why)) {
        services_.prompter.Message(kFileErrorTitle,
                                   why.empty() ? std::string(kWriteErrorText) : why);
        return false;
    }
    return StartPractice(found.level, number, technique);
}

}  // namespace tavi
