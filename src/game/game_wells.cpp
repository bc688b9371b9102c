// SPDX-License-Identifier: GPL-3.0-or-later
// The game's clock as the window drives it, and the wells beside the board.
#include "game/game.h"

namespace tavi {

void Game::Tick() {
    const ChangeScope scope(*this);
    clock_.Tick();
}

void Game::Penalty(int seconds) {
    const ChangeScope scope(*this);
    clock_.Penalty(seconds);
}

void Game::WindowMinimised() {
    const ChangeScope scope(*this);
    if (position().SudokuSolved || !options_.TimeOn) return;
    clock_.Pause();
}

void Game::WindowRestored() {
    const ChangeScope scope(*this);
    clock_.Resume();
}

void Game::SetupWells() {
    const ChangeScope scope(*this);
    for (auto& digit : wells_)
        digit.fill(false);
    for (int c = 0; c < 81; ++c)
        if (const int d = ctx_.board.CurrentGrid[c]; d >= 1 && d <= 9)
            wells_[d][Global::BoxOfCell[c]] = true;
}

bool Game::DigitCompleted(int digit) const {
    for (bool filled : wells_[digit])
        if (!filled) return false;
    return true;
}

}  // namespace tavi
