// The clock of a game and the wells beside the board.
#include "game/display_text.h"
#include "game/game.h"

#include <algorithm>

namespace tavi {

namespace {
constexpr int kDay = 86400;
}  // namespace

void Game::StartClock() {
    const int now = services_.clock.SecondOfDay();
    clockStart_ = now - clockSeconds_;
    if (clockSeconds_ > now) clockStart_ += kDay;
    clockPaused_ = false;
    if (options_.TimeOn) {
        timerRunning_ = true;
        labelTijd_ = options_.TimeShow ? "00:00" : "TIMER";
    } else {
        timerRunning_ = false;
        labelTijd_.clear();
    }
}

void Game::Tick() {
    if (!timerRunning_ || clockPaused_) return;
    int now = services_.clock.SecondOfDay();
    if (now < clockStart_) now += kDay;  // past midnight
    clockSeconds_ = now - clockStart_;
    ShowClock();
}

void Game::ShowClock() {
    labelTijd_ = options_.TimeShow
                     ? TwoDigits(clockSeconds_ / 60) + ":" + TwoDigits(clockSeconds_ % 60)
                     : "TIMER";
}

void Game::WindowMinimised() {
    if (position_.SudokuSolved || !options_.TimeOn) return;
    Tick();
    logRecord_.ElapsedMinutes = std::int16_t(std::min(clockSeconds_ / 60, 32767));
    logRecord_.ElapsedSeconds = std::int16_t(clockSeconds_ % 60);
    clockPaused_ = true;
}

void Game::WindowRestored() {
    if (!clockPaused_) return;
    clockSeconds_ = logRecord_.ElapsedMinutes * 60 + logRecord_.ElapsedSeconds;
    clockPaused_ = false;
    const int now = services_.clock.SecondOfDay();
    clockStart_ = now - clockSeconds_;
    if (clockSeconds_ > now) clockStart_ += kDay;
    ShowClock();
}

void Game::SetupWells() {
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
