// SPDX-License-Identifier: GPL-3.0-or-later
// The recovery copy as the game keeps it: written whenever what the window shows
// of the game changed, removed when no game is on the board or the program
// ends normally, and offered back at the start after a run that did not end.
#include <algorithm>

#include "game/display_text.h"
#include "game/game.h"
#include "game/recovery_copy.h"
#include "grid/levels.h"

namespace tavi {

namespace {
constexpr std::string_view kRecoveryTitle = "Game recovery";
}

bool Game::GameOnBoard() const {
    const LibraryPosition& p = position();
    return !makeMode_ && !p.SudokuSolved && p.OpenLevel != 0 && moves_.LastStep() > 0;
}

RecoveryCopy Game::CopyOfGame() const {
    RecoveryCopy copy;
    copy.level = position().OpenLevel;
    copy.record = position().OpenRecord;
    copy.sudoku = sudoku();
    copy.grid = ctx_.board.CurrentGrid;
    copy.marks = ctx_.board.Candidates;
    copy.clockSeconds = std::max(0, clock_.Seconds());
    copy.TimeOn = options_.TimeOn;
    copy.TimeShow = options_.TimeShow;
    copy.autosolved = position().SudokuAutosolved;
    // The latest steps of a very long log, always with the current one.
    const int last = moves_.LastStep(), current = moves_.CurrentStep();
    int first = std::max(0, last - kRecoverySteps);
    if (current < first) first = current;
    const int count = std::min(last - first, kRecoverySteps);
    copy.steps.assign(moves_.Steps().begin() + first, moves_.Steps().begin() + first + count);
    copy.currentStep = current - first;
    return copy;
}

void Game::KeepRecoveryCopy() {
    if (ending_) return;
    const auto& folder = session_.folders().DataFolder;
    if (!GameOnBoard()) {
        if (copyWritten_) RemoveRecoveryCopy(folder);
        copyWritten_.reset();
        return;
    }
    RecoveryCopy copy = CopyOfGame();
    // The clock alone does not rewrite the copy; it goes with the next step.
    if (copyWritten_) {
        RecoveryCopy was = *copyWritten_;
        was.clockSeconds = copy.clockSeconds;
        if (was == copy) return;
    }
    if (WriteRecoveryCopy(folder, copy)) copyWritten_ = std::move(copy);
}

void Game::EndRecoveryCopy() {
    ending_ = true;
    // A game whose puzzle has left the library could not be saved: its copy stays
    // for the next start.
    if (GameOnBoard() && puzzleGone_) return;
    RemoveRecoveryCopy(session_.folders().DataFolder);
    copyWritten_.reset();
}

bool Game::OfferRecoveryCopy() {
    const auto& folder = session_.folders().DataFolder;
    if (!RecoveryCopyExists(folder)) return false;
    std::string why;
    const auto copy = ReadRecoveryCopy(folder, &why);
    Prompter& ask = services_.prompter;
    if (!copy) {
        const auto aside = SetAsideRecoveryCopy(folder);
        ask.Message(kRecoveryTitle,
                    "Tavi Sudoku did not end normally last time, and the copy of "
                    "the game then on the board can't be used: " +
                        why + ". It was set aside as " + aside.string() + ".");
        return false;
    }
    const std::string game =
        std::string(LevelName(copy->level)) + " - " + std::to_string(copy->record) + ", " +
        std::to_string(copy->currentStep) + (copy->currentStep == 1 ? " step" : " steps");
    const Answer a =
        ask.Ask(kRecoveryTitle,
                "Tavi Sudoku did not end normally last time. The game then on the board (" + game +
                    ") was kept.\n\nDo you want to restore it ? No discards it.",
                Buttons::YesNo, Icon::Question);
    if (a != Answer::Yes) {
        RemoveRecoveryCopy(folder);
        return false;
    }
    RestoreCopy(*copy);
    return true;
}

void Game::RestoreCopy(const RecoveryCopy& copy) {
    LibraryPosition& p = session_.position();
    p.ChosenLevel = copy.level;
    p.PuzzleNumber[copy.level] = int(copy.record);
    p.SudokuSolved = false;
    p.SudokuAutosolved = copy.autosolved;
    ClearGrid();
    EnableGrid();
    session_.Adopt(copy.sudoku);
    ctx_.board.Puzzle = copy.sudoku.Puzzle;
    ctx_.board.Solution = copy.sudoku.Solution;
    ctx_.board.CurrentGrid = copy.grid;
    ctx_.board.Candidates = copy.marks;
    for (int c = 0; c < 81; ++c)
        if (copy.grid[c]) ctx_.board.Candidates[c] = 0;
    sudTekst_ = FormatDigits(copy.sudoku.Puzzle, '0');
    moves_.Assign(copy.steps, copy.currentStep);
    longGameSaid_ = longGameDue_ = false;
    ShowStepCount();
    options_.TimeOn = copy.TimeOn;
    options_.TimeShow = copy.TimeShow;
    clock_.SetSeconds(copy.clockSeconds);
    SetPlayingCommands(moves_.CurrentStep() > 0);
    commands_.Redo = moves_.CurrentStep() < moves_.LastStep();
    AfterLoad();
    // The puzzle may have moved in its level meanwhile, or gone.
    if (!session_.FindOpenPuzzle()) puzzleGone_ = true;
    copyWritten_ = copy;
}

}  // namespace tavi
