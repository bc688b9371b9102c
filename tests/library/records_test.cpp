// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/records.h"

#include <gtest/gtest.h>

#include "library/library_test_support.h"

namespace tavi {
namespace {

using testing::BusyLog, testing::RecordOf;

int Int16At(const auto& bytes, std::size_t offset) {
    return std::int16_t(bytes[offset] | (bytes[offset + 1] << 8));
}

TEST(SudokuRecordFormat, FieldsStandAtTheirOffsetsLittleEndian) {
    SudokuRecord r = RecordOf(1);
    r.BestMinutes = 0x1234;
    r.BestSeconds = -2;
    const auto bytes = ToBytes(r);
    ASSERT_EQ(bytes.size(), 166u);
    for (int c = 0; c < 81; ++c) {
        EXPECT_EQ(bytes[c], r.Puzzle[c]);
        EXPECT_EQ(bytes[81 + c], r.Solution[c]);
    }
    EXPECT_EQ(std::vector(bytes.begin() + 162, bytes.end()),
              (std::vector<std::uint8_t>{0x34, 0x12, 0xFE, 0xFF}));
    EXPECT_EQ(SudokuRecordFromBytes(bytes), r);
}

TEST(SudokuLogRecordFormat, FieldsStandAtTheirOffsetsLittleEndianAndBytesRoundTrip) {
    const SudokuLogRecord l = BusyLog(5);
    const auto bytes = ToBytes(l);
    ASSERT_EQ(bytes.size(), 1449u);
    for (int c = 0; c < 81; ++c)
        EXPECT_EQ(bytes[c], l.Grid[c]);
    // The 16-bit fields follow the grid at once, at an odd offset.
    EXPECT_EQ(Int16At(bytes, 81), l.ElapsedMinutes);
    EXPECT_EQ(Int16At(bytes, 83), l.ElapsedSeconds);
    for (int c = 0; c < 81; ++c)
        EXPECT_EQ(Int16At(bytes, 85 + 2 * c), l.SavedCandidates[c]);
    EXPECT_EQ(Int16At(bytes, 247), l.StepCount);
    // Then the six lists of the steps, 100 entries each.
    int at = 249;
    for (const auto* steps : {&l.LogDigit, &l.LogCell, &l.LogOwnMarks, &l.LogColumnMarks,
                              &l.LogRowMarks, &l.LogBoxMarks})
        for (int i = 0; i < 100; ++i, at += 2)
            EXPECT_EQ(Int16At(bytes, at), (*steps)[i]);
    EXPECT_EQ(at, 1449);

    // Every byte value in every position comes back as it was.
    SudokuRecordBytes a;
    SudokuLogRecordBytes b;
    for (std::size_t i = 0; i < a.size(); ++i)
        a[i] = std::uint8_t(i * 37 + 11);
    for (std::size_t i = 0; i < b.size(); ++i)
        b[i] = std::uint8_t(i * 53 + 7);
    EXPECT_EQ(ToBytes(SudokuRecordFromBytes(a)), a);
    EXPECT_EQ(ToBytes(SudokuLogRecordFromBytes(b)), b);
}

// The saved minutes and seconds, and the clock read back from them.
auto Saved(const SudokuLogRecord& l) {
    const SavedClock c = ReadClock(l);
    return std::tuple(l.ElapsedMinutes, l.ElapsedSeconds, c.seconds, c.TimeOn, c.TimeShow);
}

TEST(SavedClockSign, TheSignCarriesTheTwoClockOptionsAndALargeClockIsClamped) {
    SudokuLogRecord l;
    SetClock(l, 200, /*timeOn=*/true, /*timeShow=*/false);  // 3:20, hidden
    EXPECT_EQ(Saved(l), std::tuple(-3, -20, 200, true, false));
    SetClock(l, 200, true, true);
    EXPECT_EQ(Saved(l), std::tuple(3, 20, 200, true, true));
    SetClock(l, 200, false, true);
    EXPECT_EQ(Saved(l), std::tuple(0, 0, 0, false, false));
    // A game saved in the first second of a running clock comes back without one.
    SetClock(l, 0, true, true);
    EXPECT_EQ(Saved(l), std::tuple(0, 0, 0, false, false));
    // Minutes and seconds of mixed signs are read as one total.
    l.ElapsedMinutes = 1;
    l.ElapsedSeconds = -70;
    EXPECT_EQ(Saved(l), std::tuple(1, -70, 10, true, false));
    // An enormous clock is clamped, not wrapped.
    SetClock(l, 60 * 40000, true, true);
    EXPECT_EQ(l.ElapsedMinutes, 32767);
    EXPECT_GT(ReadClock(l).seconds, 0);
}

}  // namespace
}  // namespace tavi
