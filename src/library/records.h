// SPDX-License-Identifier: GPL-3.0-or-later
// The two records of the library files. A `.sds` file is a row of SudokuRecords
// (the puzzle, its solution and the best time); the `.sdl` file of the same stem
// holds, record for record, the user's progress on each puzzle. Both are fixed
// length, little-endian and without padding, and are converted field by field at
// fixed offsets, so the layout in memory never leaks into the file.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "grid/board.h"

namespace tavi {

inline constexpr std::size_t kSudokuRecordSize = 166;
inline constexpr std::size_t kSudokuLogRecordSize = 1449;
inline constexpr int kLogSteps = 100;  // steps a log record can hold

// Offsets of the fields in the file.
namespace sds_offset {
inline constexpr std::size_t Puzzle = 0;
inline constexpr std::size_t Solution = 81;
inline constexpr std::size_t BestMinutes = 162;
inline constexpr std::size_t BestSeconds = 164;
}  // namespace sds_offset

namespace sdl_offset {
inline constexpr std::size_t Grid = 0;
inline constexpr std::size_t ElapsedMinutes = 81;
inline constexpr std::size_t ElapsedSeconds = 83;
inline constexpr std::size_t SavedCandidates = 85;
inline constexpr std::size_t StepCount = 247;
inline constexpr std::size_t LogDigit = 249;
inline constexpr std::size_t LogCell = 449;
inline constexpr std::size_t LogOwnMarks = 649;
inline constexpr std::size_t LogColumnMarks = 849;
inline constexpr std::size_t LogRowMarks = 1049;
inline constexpr std::size_t LogBoxMarks = 1249;
}  // namespace sdl_offset

struct SudokuRecord {
    Digits Puzzle{};               // 0 = empty cell
    Digits Solution{};             // all 81 cells 1..9
    std::int16_t BestMinutes = 0;  // 0 with BestSeconds 0: no best time yet
    std::int16_t BestSeconds = 0;

    bool operator==(const SudokuRecord&) const = default;
};

using LogSteps = std::array<std::int16_t, kLogSteps>;  // step i (1-based) at i - 1

struct SudokuLogRecord {
    Digits Grid{};                    // the digit in each cell now, clues included
    std::int16_t ElapsedMinutes = 0;  // the clock, signed as told at SetClock
    std::int16_t ElapsedSeconds = 0;
    std::array<std::int16_t, 81> SavedCandidates{};  // bit d: digit d marked
    std::int16_t StepCount = 0;                      // 0: the record holds no saved game
    LogSteps LogDigit{};
    LogSteps LogCell{};
    LogSteps LogOwnMarks{};
    LogSteps LogColumnMarks{};
    LogSteps LogRowMarks{};
    LogSteps LogBoxMarks{};

    bool operator==(const SudokuLogRecord&) const = default;
};

using SudokuRecordBytes = std::array<std::uint8_t, kSudokuRecordSize>;
using SudokuLogRecordBytes = std::array<std::uint8_t, kSudokuLogRecordSize>;

SudokuRecordBytes ToBytes(const SudokuRecord& record);
SudokuLogRecordBytes ToBytes(const SudokuLogRecord& record);
SudokuRecord SudokuRecordFromBytes(const SudokuRecordBytes& bytes);
SudokuLogRecord SudokuLogRecordFromBytes(const SudokuLogRecordBytes& bytes);

// The clock of a saved game carries the two clock options in its sign: with the
// clock kept and shown the fields hold minutes and seconds, with the clock kept
// but hidden both are negated, and with no clock both are 0.
struct SavedClock {
    int seconds = 0;  // on the clock, never negative
    bool TimeOn = false;
    bool TimeShow = false;
};
void SetClock(SudokuLogRecord& record, int clockSeconds, bool timeOn, bool timeShow);
// A total below 0 means kept and hidden, 0 no clock (so a game saved in its first
// second comes back with the clock off), above 0 kept and shown.
SavedClock ReadClock(const SudokuLogRecord& record);

// Whether the log shows digits of the user: a cell empty in the puzzle with a
// digit in Grid. A log all 0 and a log equal to the puzzle both say no.
bool HasUserDigits(const SudokuRecord& sudoku, const SudokuLogRecord& log);

}  // namespace tavi
