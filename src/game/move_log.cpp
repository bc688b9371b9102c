// SPDX-License-Identifier: GPL-3.0-or-later
// Undo and redo walk the move log. A step holds exactly the marks it changed, so
// it is reversed and replayed from the log alone, whatever the options say now.
#include "game/move_log.h"

#include <algorithm>

namespace tavi {

namespace {

// Calls `f(cell)` for each peer of `cell` named by the step's three peer masks.
template <typename F>
void ForEachLoggedPeer(const MoveStep& step, F f) {
    const int cell = step.LogCell;
    const int row = cell / 9, col = cell % 9, leftTop = Global::BoxLeftTopOfCell[cell];
    for (int i = 0; i < 9; ++i) {
        if (step.LogColumnMarks >> i & 1) f(col + 9 * i);
        if (step.LogRowMarks >> i & 1) f(9 * row + i);
    }
    for (int x = 0; x < 3; ++x)
        for (int y = 0; y < 3; ++y)
            if (step.LogBoxMarks >> (y + 3 * x) & 1) f(leftTop + 9 * y + x);
}

}  // namespace

void MoveLog::Clear() {
    steps_.clear();
    current_ = 0;
}

MoveStep& MoveLog::BeginStep(int cell) {
    // A new step wipes the redo tail.
    steps_.resize(current_);
    steps_.push_back({});
    ++current_;
    MoveStep& step = steps_.back();
    step.LogCell = cell;
    return step;
}

void MoveLog::TakePeerMarks(Board& board, int digit, int cell, MoveStep& step) {
    const CandidateMask bit = DigitBit(digit);
    auto take = [&](int c, int& field, int index) {
        if (!(board.Candidates[c] & bit)) return;
        board.Candidates[c] &= CandidateMask(~bit);
        field |= 1 << index;
    };
    const int row = cell / 9, col = cell % 9, leftTop = Global::BoxLeftTopOfCell[cell];
    for (int i = 0; i < 9; ++i)
        take(col + 9 * i, step.LogColumnMarks, i);
    for (int i = 0; i < 9; ++i)
        take(9 * row + i, step.LogRowMarks, i);
    for (int x = 0; x < 3; ++x)
        for (int y = 0; y < 3; ++y)
            take(leftTop + 9 * y + x, step.LogBoxMarks, y + 3 * x);
}

void MoveLog::Undo(Board& board) {
    if (!CanUndo()) return;
    const MoveStep& step = steps_[current_ - 1];
    const int v = step.LogDigit, c = step.LogCell;
    auto& candidates = board.Candidates;
    if (v >= -9 && v <= -1) {
        candidates[c] |= DigitBit(-v);
    } else if (v >= 1 && v <= 9) {
        board.CurrentGrid[c] = 0;
        candidates[c] |= CandidateMask(step.LogOwnMarks & kAllCandidates);
        ForEachLoggedPeer(step, [&](int peer) { candidates[peer] |= DigitBit(v); });
    } else if (v >= 10 && v <= 19) {
        candidates[c] &= CandidateMask(~step.LogOwnMarks);
        if (v > 10) board.CurrentGrid[c] = std::uint8_t(v - 10);
    }
    --current_;
}

void MoveLog::Redo(Board& board) {
    if (!CanRedo()) return;
    ++current_;
    const MoveStep& step = steps_[current_ - 1];
    const int v = step.LogDigit, c = step.LogCell;
    auto& candidates = board.Candidates;
    if (v >= -9 && v <= -1) {
        candidates[c] &= CandidateMask(~DigitBit(-v));
    } else if (v >= 1 && v <= 9) {
        board.CurrentGrid[c] = std::uint8_t(v);
        candidates[c] &= CandidateMask(~step.LogOwnMarks);
        ForEachLoggedPeer(step, [&](int peer) { candidates[peer] &= CandidateMask(~DigitBit(v)); });
    } else if (v >= 10 && v <= 19) {
        board.CurrentGrid[c] = 0;
        candidates[c] |= CandidateMask(step.LogOwnMarks & kAllCandidates);
    }
}

void MoveLog::Restore(const SudokuLogRecord& record) {
    const int steps = std::clamp<int>(record.StepCount, 0, kLogSteps);
    current_ = steps;
    steps_.assign(steps, {});
    for (int i = 0; i < steps; ++i)
        steps_[i] = {record.LogDigit[i],       record.LogCell[i],     record.LogOwnMarks[i],
                     record.LogColumnMarks[i], record.LogRowMarks[i], record.LogBoxMarks[i]};
}

void MoveLog::WriteTo(SudokuLogRecord& record) const {
    // A record holds the latest steps up to the current one; older steps of a
    // long game fall off the front, so Undo after a reload reaches back that far.
    const int count = std::min(current_, kLogSteps);
    const int first = current_ - count;
    record.StepCount = std::int16_t(count);
    for (int i = 0; i < count; ++i) {
        const MoveStep& s = steps_[first + i];
        record.LogDigit[i] = std::int16_t(s.LogDigit);
        record.LogCell[i] = std::int16_t(s.LogCell);
        record.LogOwnMarks[i] = std::int16_t(s.LogOwnMarks);
        record.LogColumnMarks[i] = std::int16_t(s.LogColumnMarks);
        record.LogRowMarks[i] = std::int16_t(s.LogRowMarks);
        record.LogBoxMarks[i] = std::int16_t(s.LogBoxMarks);
    }
}

void MoveLog::Assign(std::vector<MoveStep> steps, int current) {
    steps_ = std::move(steps);
    current_ = std::clamp(current, 0, int(steps_.size()));
}

}  // namespace tavi
