// SPDX-License-Identifier: GPL-3.0-or-later
// Cell input: marks clicked to place or take away, the steps they write, the
// digit filter, row and column selection, Reset Cell, and painting with brushes.
#include "game/game.h"
#include "grid/candidates.h"

namespace tavi {

MoveStep& Game::BeginStep(int cell) {
    // While a puzzle is made its clues can't be taken back with Undo.
    if (!makeMode_) commands_.Undo = true;
    commands_.Redo = false;
    MoveStep& step = moves_.BeginStep(cell);
    ShowStepCount();
    // Said once, when the routine that took the game past what a record holds ends.
    if (!makeMode_ && !longGameSaid_ && moves_.CurrentStep() > kLogSteps) longGameDue_ = true;
    return step;
}

void Game::ShowStepCount() { labelStap_ = std::to_string(moves_.CurrentStep()); }

bool Game::BoardSolved() const {
    for (int c = 0; c < 81; ++c) {
        const int d = ctx_.board.CurrentGrid[c];
        if (d == 0 || d != sudoku().Solution[c]) return false;
    }
    return true;
}

// The end of every click on the board: the wells follow, and a full and right
// board ends the game (once).
void Game::EndTest() {
    ForgetStaleHint();
    if (options_.Wells) SetupWells();
    if (!position().SudokuSolved && BoardSolved()) ZetOpgelost();
}

void Game::MarkMouseUp(int digit, int cell, MouseButton button, bool inside) {
    const ChangeScope scope(*this);
    if (busy_ || !gridEnabled_ || digit < 1 || digit > 9 || cell < 0 || cell > 80) return;
    if (!inside) return EndTest();
    if (brushes_.Active()) {
        brushes_.MarkClicked(digit, cell, button);
        return EndTest();
    }
    // Only a mark that is there can be clicked, and a filtered digit not at all.
    if (ctx_.board.CurrentGrid[cell] || !ctx_.board.Has(digit, cell) || !FilterOn(digit))
        return EndTest();
    const bool noMarks = PencilmarksOffAt(options_, position().ChosenLevel);
    if (button == MouseButton::Right && noMarks) return EndTest();

    ResetHintStage();
    MoveStep& step = BeginStep(cell);
    if (button == MouseButton::Left) {
        step.LogDigit = digit;
        step.LogOwnMarks = ctx_.board.Candidates[cell];
        ctx_.board.Candidates[cell] = 0;
        Speel(kSoundPlaced);
        ctx_.board.CurrentGrid[cell] = std::uint8_t(digit);
        if (!noMarks && options_.Pencilmarks)
            tavi::MoveLog::TakePeerMarks(ctx_.board, digit, cell, step);
    } else if (button == MouseButton::Right) {
        Speel(kSoundMarkRemoved);
        step.LogDigit = -digit;
        ctx_.board.Candidates[cell] &= CandidateMask(~DigitBit(digit));
        step.LogOwnMarks = DigitBit(digit);
    }
    // The middle button leaves an empty step, LogDigit 0.
    EndTest();
}

void Game::ZetAuto(Board& board, int digit, int cell) {
    MoveStep& step = BeginStep(cell);
    ResetHintStage();
    step.LogDigit = digit;
    step.LogOwnMarks = board.Candidates[cell];
    board.Candidates[cell] = 0;
    board.CurrentGrid[cell] = std::uint8_t(digit);
    // The solver's placements always update the peers, whatever the options say.
    tavi::MoveLog::TakePeerMarks(board, digit, cell, step);
}

void Game::CandidateRemoved(int digit, int cell) {
    MoveStep& step = BeginStep(cell);
    step.LogDigit = -digit;
    step.LogOwnMarks = DigitBit(digit);
}

void Game::MarkMouseMove(int digit, int cell) {
    const ChangeScope scope(*this);
    const bool onBoard = digit >= 1 && digit <= 9 && cell >= 0 && cell <= 80;
    if (options_.Dimmed) hoverCell_ = onBoard ? (digit - 1) * 81 + cell : kNoHover;
}

void Game::GridMouseMove() {
    const ChangeScope scope(*this);
    hoverCell_ = kNoHover;
}

void Game::GridMouseUp(int cell, MouseButton button, bool inside) {
    const ChangeScope scope(*this);
    if (!gridEnabled_ || !inside || !brushes_.Active() || cell < 0 || cell > 80) return;
    brushes_.CellClicked(cell, button);
}

void Game::RowHeaderUp(int row, MouseButton button, bool inside) {
    const ChangeScope scope(*this);
    if (!inside || row < 0 || row > 8) return;
    if (brushes_.Active()) return brushes_.RowClicked(row, button);
    if (button != MouseButton::Left) return;
    if (selectedRow_ == row) {
        selectedRow_ = kNoLine;
    } else {
        selectedRow_ = row;
        Speel(kSoundHeader);
    }
}

void Game::ColumnHeaderUp(int column, MouseButton button, bool inside) {
    const ChangeScope scope(*this);
    if (!inside || column < 0 || column > 8) return;
    if (brushes_.Active()) return brushes_.ColumnClicked(column, button);
    if (button != MouseButton::Left) return;
    if (selectedColumn_ == column) {
        selectedColumn_ = kNoLine;
    } else {
        selectedColumn_ = column;
        Speel(kSoundHeader);
    }
}

void Game::DigitButtonUp(int digit, MouseButton button, bool inside) {
    const ChangeScope scope(*this);
    if (!inside || digit < 1 || digit > 9) return;
    if (brushes_.Active()) return brushes_.DigitClicked(digit, button);
    if (button != MouseButton::Left || makeMode_) return;
    if (FilterOn(digit))
        brushes_.Hide(digit);
    else
        ToonPencilmarks(digit);
}

void Game::ToonPencilmarks(int digit) {
    const ChangeScope scope(*this);
    brushes_.ToonPencilmarks(digit);
}

void Game::PaletteUp(int index, MouseButton button, bool inside) {
    const ChangeScope scope(*this);
    if (makeMode_ || !inside || index < 0 || index >= kPaletteLabels) return;
    if (button == MouseButton::Middle) return;
    if (index == 4) {
        brushes_.Off();
        textHint_ = std::string(kStandingHintText);
        return;
    }
    if (index == 5) {
        WisKleuren();
        return;
    }
    brushes_.Pick(index, button == MouseButton::Left, options_.colors.LabelBack[index]);
}

void Game::CommandResetCell() {
    const ChangeScope scope(*this);
    if (busy_) return;  // a search is running
    if (selectedRow_ == kNoLine || selectedColumn_ == kNoLine) return;
    ResetHintStage();
    const int cell = selectedRow_ * 9 + selectedColumn_;
    if (sudoku().Puzzle[cell] != 0) return;  // clues can't be reset
    Speel(kSoundResetCell);
    const bool redo = commands_.Redo;
    MoveStep& step = BeginStep(cell);
    commands_.Redo = redo;  // Reset Cell leaves Redo as it stands
    step.LogDigit = ctx_.board.CurrentGrid[cell] + 10;
    // All nine marks come back, also those that the peers forbid.
    step.LogOwnMarks = kAllCandidates & ~ctx_.board.Candidates[cell];
    ctx_.board.Candidates[cell] = kAllCandidates;
    ctx_.board.CurrentGrid[cell] = 0;
    ForgetStaleHint();
    if (options_.Wells) SetupWells();
}

void Game::WisKleuren() {
    const ChangeScope scope(*this);
    brushes_.WisKleuren();
}

}  // namespace tavi
