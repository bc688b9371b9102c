// SPDX-License-Identifier: GPL-3.0-or-later
// The clock of a game over the injected time of day: it runs from the load,
// takes a hint's price at once, pauses while the window is minimised, goes on
// past midnight, and knows the record's best time. Whether it runs and shows is
// the options' TimeOn and TimeShow, read at the start of each game.
#pragma once

#include <string>

#include "library/records.h"
#include "platform/platform.h"
#include "settings/options.h"

namespace tavi {

class GameClock {
  public:
    GameClock(TimeSource& time, const Options& options) : time_(time), options_(options) {}

    // From the seconds already on it (0, or a saved game's): running when the
    // clock option is on, with "00:00" or "TIMER" until the first tick.
    void Start();
    // The timer: the seconds since the start, unless stopped or paused.
    void Tick();
    // Puts `seconds` on the running clock at once (a hint's price).
    void Penalty(int seconds);
    void Pause();   // the window minimised
    void Resume();  // and back
    void Stop() { timerRunning_ = false; }
    // No game: stopped and blank.
    void Off();
    // The seconds a game starts from (a saved game's), before Start.
    void SetSeconds(int seconds) { clockSeconds_ = seconds; }

    int Seconds() const { return clockSeconds_; }
    bool Running() const { return timerRunning_; }
    bool Paused() const { return clockPaused_; }
    // "mm:ss", "TIMER" when the clock is hidden, empty when it is off.
    const std::string& Label() const { return labelTijd_; }

    // The clock after a last tick into a log record, its sign carrying the two
    // clock options.
    void WriteTo(SudokuLogRecord& record);
    // Whether the time on the clock beats the record's best time (or it has
    // none); never with the clock off.
    bool BeatsBest(const SudokuRecord& sudoku) const;
    // The time on the clock as the record's best time.
    void SetBest(SudokuRecord& sudoku) const;
    // " - Time to beat >> mm:ss" for a record with a best time and a shown clock.
    std::string TimeToBeat(const SudokuRecord& sudoku) const;

  private:
    void ShowClock();

    TimeSource& time_;
    const Options& options_;
    int clockSeconds_ = 0;
    int clockStart_ = 0;
    int pausedSeconds_ = 0;
    bool clockPaused_ = false;
    bool timerRunning_ = false;
    std::string labelTijd_{"00:00"};
};

}  // namespace tavi
