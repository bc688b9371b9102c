// Undo and redo walk the move log. A step holds exactly the marks it changed, so
// it is reversed and replayed from the log alone, whatever the options say now.
#include "game/game.h"

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

void Game::CommandUndo() {
    if (busy_) return;  // a search is running
    if (position_.CurrentStep <= 0 || position_.CurrentStep > LastStep()) return;
    const MoveStep& step = log_[position_.CurrentStep - 1];
    if (step.LogCell < 0 || step.LogCell > 80) return;  // no step of this board
    ResetHintStage();
    Speel(kSoundUndoRedo);
    commands_.Redo = true;
    const int v = step.LogDigit, c = step.LogCell;
    auto& candidates = ctx_.board.Candidates;
    if (v >= -9 && v <= -1) {
        candidates[c] |= DigitBit(-v);
    } else if (v >= 1 && v <= 9) {
        ctx_.board.CurrentGrid[c] = 0;
        candidates[c] |= CandidateMask(step.LogOwnMarks & kAllCandidates);
        ForEachLoggedPeer(step, [&](int peer) { candidates[peer] |= DigitBit(v); });
    } else if (v >= 10 && v <= 19) {
        candidates[c] &= CandidateMask(~step.LogOwnMarks);
        if (v > 10) ctx_.board.CurrentGrid[c] = std::uint8_t(v - 10);
    }
    --position_.CurrentStep;
    ShowStepCount();
    if (options_.Wells) SetupWells();
    if (position_.CurrentStep == 0) commands_.Undo = false;
}

void Game::CommandRedo() {
    if (busy_) return;  // a search is running
    if (position_.CurrentStep < 0 || position_.CurrentStep >= LastStep()) return;
    if (log_[position_.CurrentStep].LogCell < 0 || log_[position_.CurrentStep].LogCell > 80) return;
    ResetHintStage();
    Speel(kSoundUndoRedo);
    ++position_.CurrentStep;
    ShowStepCount();
    commands_.Undo = true;
    const MoveStep& step = log_[position_.CurrentStep - 1];
    const int v = step.LogDigit, c = step.LogCell;
    auto& candidates = ctx_.board.Candidates;
    if (v >= -9 && v <= -1) {
        candidates[c] &= CandidateMask(~DigitBit(-v));
    } else if (v >= 1 && v <= 9) {
        ctx_.board.CurrentGrid[c] = std::uint8_t(v);
        candidates[c] &= CandidateMask(~step.LogOwnMarks);
        ForEachLoggedPeer(step, [&](int peer) { candidates[peer] &= CandidateMask(~DigitBit(v)); });
    } else if (v >= 10 && v <= 19) {
        ctx_.board.CurrentGrid[c] = 0;
        candidates[c] |= CandidateMask(step.LogOwnMarks & kAllCandidates);
    }
    if (options_.Wells) SetupWells();
    if (position_.CurrentStep == LastStep()) commands_.Redo = false;
}

}  // namespace tavi
