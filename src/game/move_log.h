// SPDX-License-Identifier: GPL-3.0-or-later
// The move log of a game: every step the person or the solver took, with
// exactly the marks it changed, so that a step is undone and redone from the log
// alone whatever the options say by then. Steps up to CurrentStep are on the
// board; the ones after it wait for Redo until a new step wipes them.
#pragma once

#include <vector>

#include "grid/board.h"
#include "library/records.h"

namespace tavi {

// One step of the move log. LogDigit 1..9 a placement, -1..-9 a mark taken
// away, 10..19 Reset Cell (less 10: the digit the cell held), 0 a click of the
// middle button. The mark fields say exactly which marks the step changed.
struct MoveStep {
    int LogDigit = 0;
    int LogCell = 0;
    int LogOwnMarks = 0;     // bit d-1: the cell's own marks that changed
    int LogColumnMarks = 0;  // bit r: the cell of row r in the column lost the mark
    int LogRowMarks = 0;     // bit c: the cell of column c in the row lost the mark
    int LogBoxMarks = 0;     // bit y+3x: the cell at row y, column x of the box lost it

    friend bool operator==(const MoveStep&, const MoveStep&) = default;
};

class MoveLog {
  public:
    int CurrentStep() const { return current_; }
    int LastStep() const { return int(steps_.size()); }
    const std::vector<MoveStep>& Steps() const { return steps_; }
    // Only a step of this board: a logged cell off the board is never replayed.
    bool CanUndo() const {
        return current_ > 0 && current_ <= LastStep() && OnBoard(steps_[size_t(current_ - 1)]);
    }
    bool CanRedo() const {
        return current_ >= 0 && current_ < LastStep() && OnBoard(steps_[size_t(current_)]);
    }

    // No steps at all.
    void Clear();
    // A new step at `cell` after the current one; the redo tail goes.
    MoveStep& BeginStep(int cell);
    // Takes mark `digit` from the column, row and box of `cell` into the step.
    static void TakePeerMarks(Board& board, int digit, int cell, MoveStep& step);
    // Reverses the current step on `board` and steps back.
    void Undo(Board& board);
    // Steps forward and plays that step again on `board`.
    void Redo(Board& board);

    // The steps of a saved game; out-of-range counts are clamped to the record.
    void Restore(const SudokuLogRecord& record);
    // The latest steps up to the current one into the record, as many as it
    // holds (kLogSteps); the redo tail is not kept.
    void WriteTo(SudokuLogRecord& record) const;
    // A log as kept elsewhere (the recovery copy): `current` steps applied.
    void Assign(std::vector<MoveStep> steps, int current);

  private:
    static bool OnBoard(const MoveStep& step) { return step.LogCell >= 0 && step.LogCell <= 80; }
    std::vector<MoveStep> steps_;  // step i at i - 1
    int current_ = 0;
};

}  // namespace tavi
