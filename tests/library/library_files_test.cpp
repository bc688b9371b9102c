// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/library_files.h"

#include <gtest/gtest.h>

#include <limits>

#include "library/library_test_support.h"

namespace tavi {
namespace {

namespace fs = std::filesystem;
using testing::BusyLog, testing::FileBytes, testing::MakeLevelFiles, testing::RecordOf,
    testing::TempDir, testing::WriteBytes;

constexpr std::string_view kStem = "Sudoku_Easy.sd";

// Counts are the length over the record size, a half record counting half; a
// folder, or a path in a missing one, is no file.
TEST(LibraryFiles, CountIsTheLengthOverTheRecordSizeAndFoldersAreNoFiles) {
    TempDir dir;
    const fs::path sds = PuzzleFile(dir.path(), kStem);
    EXPECT_FALSE(RecordCount(sds, kSudokuRecordSize).has_value());
    WriteBytes(sds, std::vector<char>(166 * 3 + 83));  // odd-sized
    EXPECT_DOUBLE_EQ(SudokuCount(sds), 3.5);
    EXPECT_EQ(WholeRecords(sds, kSudokuRecordSize), 3);
    EXPECT_TRUE(FileExists(sds));
    for (const fs::path& none : {dir / "missing" / "Sudoku_Easy.sds", dir.path()}) {
        EXPECT_EQ(SudokuCount(none), 0.0);
        EXPECT_FALSE(FileExists(none));
    }
}

// (A write in the middle of a pair, record and log, and its neighbours left
// alone: KillTest.SaveAndBestTimeLeaveTheOldRecordOrTheNew checks them after
// every run.)
TEST(LibraryRecords, ReadsOutsideTheFileFailWithAReason) {
    TempDir dir;
    MakeLevelFiles(dir.path(), kStem, 2);
    const fs::path sds = PuzzleFile(dir.path(), kStem);
    SudokuRecord r = RecordOf(5);
    std::string why;
    for (long n : {0L, -1L, 3L, 100000L}) {
        why.clear();
        EXPECT_FALSE(ReadSudokuRecord(sds, n, r, &why)) << n;
        EXPECT_NE(why.find("holds 2 whole records"), std::string::npos) << why;
    }
    EXPECT_EQ(r, RecordOf(5));  // untouched by the failed reads

    // The half record at the end of an odd-sized file can't be read.
    auto bytes = FileBytes(sds);
    bytes.resize(166 * 2 + 100);
    WriteBytes(sds, bytes);
    EXPECT_TRUE(ReadSudokuRecord(sds, 2, r));
    EXPECT_FALSE(ReadSudokuRecord(sds, 3, r));

    EXPECT_FALSE(ReadSudokuRecord(dir / "missing.sds", 1, r, &why));
    EXPECT_NE(why.find("missing.sds was not found"), std::string::npos) << why;
}

TEST(LibraryRecords, WritesNeverLeaveAGapGrowADamagedFileOrTakeALongLog) {
    TempDir dir;
    const fs::path sds = dir / "b.sds";
    std::string why;
    EXPECT_FALSE(WriteSudokuRecord(sds, 2, RecordOf(0), &why));  // no record 1 yet
    EXPECT_FALSE(fs::exists(sds));
    EXPECT_TRUE(WriteSudokuRecord(sds, 1, RecordOf(0)));
    EXPECT_FALSE(WriteSudokuRecord(sds, 3, RecordOf(0), &why));
    EXPECT_FALSE(WriteSudokuRecord(sds, 0, RecordOf(0), &why));
    // A number so large that its offset would wrap round to the start.
    EXPECT_FALSE(WriteSudokuRecord(sds, long(std::numeric_limits<std::uintmax_t>::max() / 166 + 2),
                                   RecordOf(3), &why));
    SudokuRecord first;
    ASSERT_TRUE(ReadSudokuRecord(sds, 1, first));
    EXPECT_EQ(first, RecordOf(0));
    EXPECT_EQ(fs::file_size(sds), 166u);

    auto bytes = FileBytes(sds);
    bytes.resize(200);
    WriteBytes(sds, bytes);
    EXPECT_FALSE(WriteSudokuRecord(sds, 2, RecordOf(1), &why));
    EXPECT_NE(why.find("damaged"), std::string::npos) << why;
    EXPECT_EQ(FileBytes(sds), bytes);
    EXPECT_TRUE(WriteSudokuRecord(sds, 1, RecordOf(1)));  // whole records can still change

    // A log of more than a hundred steps is refused and the file kept.
    const fs::path sdl = dir / "c.sdl";
    ASSERT_TRUE(WriteSudokuLogRecord(sdl, 1, BusyLog(1)));
    const auto log = FileBytes(sdl);
    SudokuLogRecord tooLong = BusyLog(2);
    tooLong.StepCount = 101;
    EXPECT_FALSE(WriteSudokuLogRecord(sdl, 1, tooLong, &why));
    EXPECT_NE(why.find("at most 100 steps"), std::string::npos) << why;
    EXPECT_EQ(FileBytes(sdl), log);
    tooLong.StepCount = 100;
    EXPECT_TRUE(WriteSudokuLogRecord(sdl, 1, tooLong));

    // A write that can't open its file changes nothing.
    fs::create_directory(dir / "d.sds");  // a folder where the file should be
    EXPECT_FALSE(WriteSudokuRecord(dir / "d.sds", 1, RecordOf(0)));
    EXPECT_FALSE(WriteSudokuRecord(dir / "no" / "such" / "e.sds", 1, RecordOf(0)));
    EXPECT_FALSE(fs::exists(dir / "no"));
}

}  // namespace
}  // namespace tavi
