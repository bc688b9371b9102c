// SPDX-License-Identifier: GPL-3.0-or-later
// Undo and redo: the move log walks the board back and forth; the game keeps
// the commands, the counter and the wells in step.
#include "game/game.h"

namespace tavi {

void Game::CommandUndo() {
    const ChangeScope scope(*this);
    if (busy_) return;  // a search is running
    if (!moves_.CanUndo()) return;
    ResetHintStage();
    Speel(kSoundUndoRedo);
    commands_.Redo = true;
    moves_.Undo(ctx_.board);
    ForgetStaleHint();
    ShowStepCount();
    if (options_.Wells) SetupWells();
    if (moves_.CurrentStep() == 0) commands_.Undo = false;
}

void Game::CommandRedo() {
    const ChangeScope scope(*this);
    if (busy_) return;  // a search is running
    if (!moves_.CanRedo()) return;
    ResetHintStage();
    Speel(kSoundUndoRedo);
    moves_.Redo(ctx_.board);
    ForgetStaleHint();
    ShowStepCount();
    commands_.Undo = true;
    if (options_.Wells) SetupWells();
    if (moves_.CurrentStep() == moves_.LastStep()) commands_.Redo = false;
}

}  // namespace tavi
