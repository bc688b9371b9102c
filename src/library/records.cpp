// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/records.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <span>

namespace tavi {

namespace {

void PutInt16(std::span<std::uint8_t> bytes, std::size_t offset, std::int16_t value) {
    const auto u = static_cast<std::uint16_t>(value);
    bytes[offset] = static_cast<std::uint8_t>(u & 0xFF);
    bytes[offset + 1] = static_cast<std::uint8_t>(u >> 8);
}

std::int16_t GetInt16(std::span<const std::uint8_t> bytes, std::size_t offset) {
    return static_cast<std::int16_t>(bytes[offset] | (bytes[offset + 1] << 8));
}

template <std::size_t N>
void PutInt16Array(std::span<std::uint8_t> bytes, std::size_t offset,
                   const std::array<std::int16_t, N>& values) {
    for (std::size_t i = 0; i < N; ++i)
        PutInt16(bytes, offset + 2 * i, values[i]);
}

template <std::size_t N>
void GetInt16Array(std::span<const std::uint8_t> bytes, std::size_t offset,
                   std::array<std::int16_t, N>& values) {
    for (std::size_t i = 0; i < N; ++i)
        values[i] = GetInt16(bytes, offset + 2 * i);
}

void PutDigits(std::span<std::uint8_t> bytes, std::size_t offset, const Digits& digits) {
    std::copy(digits.begin(), digits.end(), bytes.begin() + offset);
}

void GetDigits(std::span<const std::uint8_t> bytes, std::size_t offset, Digits& digits) {
    std::copy_n(bytes.begin() + offset, digits.size(), digits.begin());
}

std::int16_t Clamp16(int value) {
    return static_cast<std::int16_t>(std::clamp<int>(
        value, std::numeric_limits<std::int16_t>::min(), std::numeric_limits<std::int16_t>::max()));
}

}  // namespace

SudokuRecordBytes ToBytes(const SudokuRecord& record) {
    SudokuRecordBytes bytes{};
    PutDigits(bytes, sds_offset::Puzzle, record.Puzzle);
    PutDigits(bytes, sds_offset::Solution, record.Solution);
    PutInt16(bytes, sds_offset::BestMinutes, record.BestMinutes);
    PutInt16(bytes, sds_offset::BestSeconds, record.BestSeconds);
    return bytes;
}

SudokuRecord SudokuRecordFromBytes(const SudokuRecordBytes& bytes) {
    SudokuRecord record;
    GetDigits(bytes, sds_offset::Puzzle, record.Puzzle);
    GetDigits(bytes, sds_offset::Solution, record.Solution);
    record.BestMinutes = GetInt16(bytes, sds_offset::BestMinutes);
    record.BestSeconds = GetInt16(bytes, sds_offset::BestSeconds);
    return record;
}

SudokuLogRecordBytes ToBytes(const SudokuLogRecord& record) {
    SudokuLogRecordBytes bytes{};
    PutDigits(bytes, sdl_offset::Grid, record.Grid);
    PutInt16(bytes, sdl_offset::ElapsedMinutes, record.ElapsedMinutes);
    PutInt16(bytes, sdl_offset::ElapsedSeconds, record.ElapsedSeconds);
    PutInt16Array(bytes, sdl_offset::SavedCandidates, record.SavedCandidates);
    PutInt16(bytes, sdl_offset::StepCount, record.StepCount);
    PutInt16Array(bytes, sdl_offset::LogDigit, record.LogDigit);
    PutInt16Array(bytes, sdl_offset::LogCell, record.LogCell);
    PutInt16Array(bytes, sdl_offset::LogOwnMarks, record.LogOwnMarks);
    PutInt16Array(bytes, sdl_offset::LogColumnMarks, record.LogColumnMarks);
    PutInt16Array(bytes, sdl_offset::LogRowMarks, record.LogRowMarks);
    PutInt16Array(bytes, sdl_offset::LogBoxMarks, record.LogBoxMarks);
    return bytes;
}

SudokuLogRecord SudokuLogRecordFromBytes(const SudokuLogRecordBytes& bytes) {
    SudokuLogRecord record;
    GetDigits(bytes, sdl_offset::Grid, record.Grid);
    record.ElapsedMinutes = GetInt16(bytes, sdl_offset::ElapsedMinutes);
    record.ElapsedSeconds = GetInt16(bytes, sdl_offset::ElapsedSeconds);
    GetInt16Array(bytes, sdl_offset::SavedCandidates, record.SavedCandidates);
    record.StepCount = GetInt16(bytes, sdl_offset::StepCount);
    GetInt16Array(bytes, sdl_offset::LogDigit, record.LogDigit);
    GetInt16Array(bytes, sdl_offset::LogCell, record.LogCell);
    GetInt16Array(bytes, sdl_offset::LogOwnMarks, record.LogOwnMarks);
    GetInt16Array(bytes, sdl_offset::LogColumnMarks, record.LogColumnMarks);
    GetInt16Array(bytes, sdl_offset::LogRowMarks, record.LogRowMarks);
    GetInt16Array(bytes, sdl_offset::LogBoxMarks, record.LogBoxMarks);
    return record;
}

void SetClock(SudokuLogRecord& record, int clockSeconds, bool timeOn, bool timeShow) {
    if (!timeOn) {
        record.ElapsedMinutes = record.ElapsedSeconds = 0;
        return;
    }
    clockSeconds = std::max(clockSeconds, 0);
    const int sign = timeShow ? 1 : -1;
    record.ElapsedMinutes = Clamp16(sign * (clockSeconds / 60));
    record.ElapsedSeconds = static_cast<std::int16_t>(sign * (clockSeconds % 60));
}

SavedClock ReadClock(const SudokuLogRecord& record) {
    const int total = record.ElapsedMinutes * 60 + record.ElapsedSeconds;
    SavedClock clock;
    clock.seconds = std::abs(total);
    clock.TimeOn = total != 0;
    clock.TimeShow = total > 0;
    return clock;
}

bool HasUserDigits(const SudokuRecord& sudoku, const SudokuLogRecord& log) {
    for (int c = 0; c < 81; ++c)
        if (sudoku.Puzzle[c] == 0 && log.Grid[c] > 0) return true;
    return false;
}

}  // namespace tavi
