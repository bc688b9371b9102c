// SPDX-License-Identifier: GPL-3.0-or-later
// The clock of a game.
#include "game/game_clock.h"

#include "game/display_text.h"

namespace tavi {

namespace {
constexpr int kDay = 86400;
}  // namespace

void GameClock::Start() {
    const int now = time_.SecondOfDay();
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

void GameClock::Tick() {
    if (!timerRunning_ || clockPaused_) return;
    int now = time_.SecondOfDay();
    if (now < clockStart_) now += kDay;  // past midnight
    clockSeconds_ = now - clockStart_;
    ShowClock();
}

void GameClock::ShowClock() {
    labelTijd_ = options_.TimeShow
                     ? TwoDigits(clockSeconds_ / 60) + ":" + TwoDigits(clockSeconds_ % 60)
                     : "TIMER";
}

void GameClock::Penalty(int seconds) {
    if (!options_.TimeOn || !timerRunning_) return;
    Tick();
    clockSeconds_ += seconds;
    int now = time_.SecondOfDay();
    if (clockSeconds_ > now) now += kDay;
    clockStart_ = now - clockSeconds_;
    ShowClock();
}

void GameClock::Pause() {
    Tick();
    pausedSeconds_ = clockSeconds_;
    clockPaused_ = true;
}

void GameClock::Resume() {
    if (!clockPaused_) return;
    clockSeconds_ = pausedSeconds_;
    clockPaused_ = false;
    const int now = time_.SecondOfDay();
    clockStart_ = now - clockSeconds_;
    if (clockSeconds_ > now) clockStart_ += kDay;
    ShowClock();
}

void GameClock::Off() {
    timerRunning_ = false;
    labelTijd_.clear();
}

void GameClock::WriteTo(SudokuLogRecord& record) {
    Tick();
    SetClock(record, clockSeconds_, options_.TimeOn, options_.TimeShow);
}

bool GameClock::BeatsBest(const SudokuRecord& sudoku) const {
    const int best = sudoku.BestMinutes * 60 + sudoku.BestSeconds;
    const bool noBest = sudoku.BestMinutes == 0 && sudoku.BestSeconds == 0;
    return options_.TimeOn && (clockSeconds_ < best || noBest);
}

void GameClock::SetBest(SudokuRecord& sudoku) const {
    sudoku.BestMinutes = std::int16_t(clockSeconds_ / 60);
    sudoku.BestSeconds = std::int16_t(clockSeconds_ % 60);
}

std::string GameClock::TimeToBeat(const SudokuRecord& sudoku) const {
    if (options_.TimeOn && options_.TimeShow &&
        (sudoku.BestMinutes >= 1 || sudoku.BestSeconds >= 1))
        return " - Time to beat >> " + TwoDigits(sudoku.BestMinutes) + ":" +
               TwoDigits(sudoku.BestSeconds);
    return {};
}

}  // namespace tavi
