// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/library_pair.h"

#include <gtest/gtest.h>

#include <random>

#include "grid/candidates.h"
#include "grid/levels.h"
#include "library/library_test_support.h"
#include "library/pair_guard.h"
#include "library/record_journal.h"
#include "solver/brute_force.h"

namespace tavi {
namespace {

namespace fs = std::filesystem;
using testing::BusyLog, testing::FileBytes, testing::MakeLevelFiles, testing::PairAt,
    testing::RecordingNotifier, testing::RecordOf, testing::TempDir, testing::WriteBytes;

constexpr std::string_view kStem = "Sudoku_Medium.sd";

TEST(ReadPair, AMissingPairOrARecordBeyondTheEndIsSaidAndAWriteIsWholeOrNothing) {
    TempDir dir;
    SudokuRecord r = RecordOf(3);
    SudokuLogRecord l = BusyLog(1);
    RecordingNotifier notifier;
    EXPECT_FALSE(ReadPair(dir.path(), kStem, 1, r, l, &notifier));
    EXPECT_EQ(notifier.messages.back().second, "Source file: Sudoku_Medium.sd* not found!");
    MakeLevelFiles(dir.path(), kStem, 2);
    notifier.messages.clear();
    EXPECT_FALSE(ReadPair(dir.path(), kStem, 3, r, l, &notifier));
    ASSERT_EQ(notifier.messages.size(), 1u);
    EXPECT_EQ(notifier.messages[0].first, "File Error");
    EXPECT_NE(notifier.messages[0].second.find("Record 3"), std::string::npos);
    EXPECT_EQ(std::pair(r, l), std::pair(RecordOf(3), BusyLog(1)));
    EXPECT_EQ(PairAt(dir.path(), kStem, 2), std::pair(RecordOf(1), SudokuLogRecord{}));

    // When the log can't follow, the puzzle record is put back.
    const fs::path sds = PuzzleFile(dir.path(), kStem);
    const auto before = FileBytes(sds);
    SudokuLogRecord tooLong = BusyLog(0);
    tooLong.StepCount = 150;
    std::string why;
    EXPECT_FALSE(WritePair(dir.path(), kStem, 2, RecordOf(6), tooLong, &why));
    EXPECT_EQ(FileBytes(sds), before);
    EXPECT_FALSE(WritePair(dir.path(), kStem, 3, RecordOf(6), tooLong, &why));  // an append
    EXPECT_EQ(FileBytes(sds), before);
}

TEST(AppendToPair, RepairsHalfAPairAndOneOutOfStep) {
    TempDir dir;
    MakeLevelFiles(dir.path(), kStem, 4, /*withLog=*/false);
    std::string why;
    long number = 0;
    ASSERT_TRUE(AppendToPair(dir.path(), kStem, RecordOf(4), {}, &number, &why)) << why;
    EXPECT_EQ(number, 5);
    EXPECT_NE(why.find("was made with 4 empty records"), std::string::npos) << why;
    fs::resize_file(PuzzleFile(dir.path(), kStem), 4 * kSudokuRecordSize);

    // A log two records too long and a torn puzzle tail: cut to the 4 whole
    // puzzles, and the append goes on as record 5.
    WriteBytes(LogFile(dir.path(), kStem), std::vector<char>(6 * kSudokuLogRecordSize, 0));
    std::ofstream(PuzzleFile(dir.path(), kStem), std::ios::app) << "torn";
    ASSERT_TRUE(AppendToPair(dir.path(), kStem, RecordOf(5), BusyLog(5), &number, &why)) << why;
    EXPECT_EQ(number, 5);
    EXPECT_NE(why.find("4 records were kept"), std::string::npos) << why;
    EXPECT_EQ(PairAt(dir.path(), kStem, 5).second, BusyLog(5));
}

struct OutlawLibrary {
    TempDir dir;
    const std::string_view stem = LevelStem(kOutlaw);
    explicit OutlawLibrary(int count) {
        MakeLevelFiles(dir.path(), stem, count);
        for (int i = 1; i <= count; ++i)
            EXPECT_TRUE(WriteSudokuLogRecord(LogFile(dir.path(), stem), i, BusyLog(i)));
    }
    SudokuLogRecord Log(long n) { return PairAt(dir.path(), stem, n).second; }
};

TEST(ExportSudoku, MovesTheRecordOutClosesTheGapAndRefusesANumberOutsideThePair) {
    OutlawLibrary lib(4);
    RecordingNotifier notifier;
    const auto sds = FileBytes(PuzzleFile(lib.dir.path(), lib.stem));
    EXPECT_FALSE(ExportSudoku(lib.dir.path(), 5, RecordOf(0), {}, &notifier));
    EXPECT_FALSE(ExportSudoku(lib.dir.path(), 0, RecordOf(0), {}, &notifier));
    EXPECT_EQ(notifier.messages.size(), 2u);
    EXPECT_EQ(FileBytes(PuzzleFile(lib.dir.path(), lib.stem)), sds);
    EXPECT_FALSE(fs::exists(lib.dir / "Exported_Sudokus.sds"));
    notifier.messages.clear();

    ASSERT_TRUE(ExportSudoku(lib.dir.path(), 2, RecordOf(1), BusyLog(2), &notifier));
    EXPECT_TRUE(notifier.messages.empty());
    EXPECT_EQ(WholeRecords(PuzzleFile(lib.dir.path(), lib.stem), 166), 3);
    EXPECT_EQ(WholeRecords(LogFile(lib.dir.path(), lib.stem), 1449), 3);
    EXPECT_EQ(lib.Log(2), BusyLog(3));
    EXPECT_EQ(lib.Log(3), BusyLog(4));
    EXPECT_EQ(PairAt(lib.dir.path(), "Exported_Sudokus.sd", 1), std::pair(RecordOf(1), BusyLog(2)));
    EXPECT_FALSE(fs::exists(lib.dir / "2Sudoku_Outlaw.sds"));
    EXPECT_FALSE(fs::exists(lib.dir / "2Sudoku_Outlaw.sdl"));

    // The last record takes the files with it (the order of the exported ones:
    // KillTest.ExportLosesNoOutlawRecord).
    for (int n = 3; n >= 1; --n)
        ASSERT_TRUE(ExportSudoku(lib.dir.path(), n, RecordOf(0), BusyLog(1), nullptr));
    EXPECT_FALSE(fs::exists(PuzzleFile(lib.dir.path(), lib.stem)));
    EXPECT_FALSE(fs::exists(LogFile(lib.dir.path(), lib.stem)));
}

// The solution found is the record's, and a write that fails is said. (The write
// is WritePair's; the workbench's Brute Force test sees the solution land in its
// record.)
TEST(WriteBruteForceSolution, TheSolutionIsTheRecordsAndAFailedWriteIsSaid) {
    TempDir dir;
    SolveContext ctx(Side::Workbench);
    ctx.board.Puzzle = RecordOf(1).Puzzle;
    ASSERT_TRUE(BruteForceSolve(ctx));
    SudokuRecord r;
    RecordingNotifier notifier;
    EXPECT_FALSE(WriteBruteForceSolution(dir.path(), 2, 9, ctx.board, r, BusyLog(3), &notifier));
    EXPECT_EQ(r, (SudokuRecord{RecordOf(1).Puzzle, RecordOf(1).Solution, 0, 0}));
    EXPECT_EQ(notifier.messages,
              (std::vector<testing::TitleText>{{"File Error", "Error writing sudoku to file !"}}));
}

// The states a kill can leave a pair in, one by one: each opens as the old pair
// or the new one, whole. An append is cut at every 37th byte; the rewrite
// and the note are stopped between their steps.
TEST(OpenPair, EveryStateAKillCanLeaveOpensAsTheOldPairOrTheNew) {
    TempDir dir;
    const std::string_view stem = "Sudoku_Hard.sd";
    const fs::path sds = PuzzleFile(dir.path(), stem), sdl = LogFile(dir.path(), stem);
    MakeLevelFiles(dir.path(), stem, 3);
    const auto oldSds = FileBytes(sds), oldSdl = FileBytes(sdl);
    const auto s = ToBytes(RecordOf(9));
    const auto l = ToBytes(BusyLog(2));
    for (std::size_t cut = 0; cut < l.size() + s.size(); cut += 37) {
        auto a = oldSdl, b = oldSds;
        a.insert(a.end(), l.begin(), l.begin() + std::min(cut, l.size()));
        if (cut > l.size()) b.insert(b.end(), s.begin(), s.begin() + (cut - l.size()));
        WriteBytes(sdl, a);
        WriteBytes(sds, b);
        ASSERT_EQ(OpenPair(dir.path(), stem), 3) << cut;
        ASSERT_EQ(FileBytes(sds), oldSds);
        ASSERT_EQ(FileBytes(sdl), oldSdl);
    }

    // The first add to a new level, stopped after its log record: the pair is
    // taken back to no records, and no log is left on its own.
    {
        TempDir fresh;
        ASSERT_TRUE(AppendToPair(fresh.path(), stem, RecordOf(1), BusyLog(1)));
        fs::resize_file(PuzzleFile(fresh.path(), stem), 0);
        EXPECT_EQ(OpenPair(fresh.path(), stem), 0);
        EXPECT_EQ(fs::file_size(LogFile(fresh.path(), stem)), 0u);
        EXPECT_EQ(std::distance(fs::directory_iterator(fresh.path()), fs::directory_iterator()), 2);
    }

    // A rewrite to one record (the first), stopped at each step.
    const std::vector<char> newSds(oldSds.begin(), oldSds.begin() + kSudokuRecordSize);
    const std::vector<char> newSdl(oldSdl.begin(), oldSdl.begin() + kSudokuLogRecordSize);
    const fs::path nextSds = dir / "Sudoku_Hard.sds.next", nextSdl = dir / "Sudoku_Hard.sdl.next";
    const fs::path mark = dir / "Sudoku_Hard.sdc";
    enum Step { kHalfWritten, kMarked, kOneRenamed };
    for (const Step step : {kHalfWritten, kMarked, kOneRenamed}) {
        WriteBytes(sds, oldSds);
        WriteBytes(sdl, oldSdl);
        WriteBytes(nextSds, newSds);
        WriteBytes(nextSdl, step == kHalfWritten ? std::vector<char>(100, 1) : newSdl);
        if (step != kHalfWritten) std::ofstream(mark) << "";
        if (step == kOneRenamed) fs::rename(nextSds, sds);
        const bool isNew = step != kHalfWritten;
        ASSERT_EQ(OpenPair(dir.path(), stem), isNew ? 1 : 3);
        EXPECT_EQ(FileBytes(sds), isNew ? newSds : oldSds);
        EXPECT_EQ(FileBytes(sdl), isNew ? newSdl : oldSdl);
        EXPECT_FALSE(fs::exists(mark) || fs::exists(nextSds) || fs::exists(nextSdl));
    }

    // A note cut short is dropped; a whole one is carried out by the next reader.
    const std::vector<std::uint8_t> log(l.begin(), l.end());
    const RecordWrite write{sdl, 1, log};  // the pair holds one record now
    fs::rename(sdl, dir / "away");
    EXPECT_FALSE(WriteRecordsInPlace({&write, 1}));  // the note stays, nothing was written
    fs::rename(dir / "away", sdl);
    const auto note = FileBytes(NoteFile(sdl));
    WriteBytes(NoteFile(sdl), {note.begin(), note.end() - 1});
    SudokuLogRecord read;
    ASSERT_TRUE(ReadSudokuLogRecord(sdl, 1, read));
    EXPECT_EQ(read, SudokuLogRecord{});
    WriteBytes(NoteFile(sdl), note);
    ASSERT_TRUE(ReadSudokuLogRecord(sdl, 1, read));
    EXPECT_EQ(read, BusyLog(2));
    EXPECT_FALSE(fs::exists(NoteFile(sdl)));
}

// Pairs of every shape a kill, a mistake or a foreign tool can leave: sound
// records cut or stretched, a file missing, the two files swapped, noise. After
// the open, a pair is in step or was refused untouched, and no byte the user had
// is gone: a file is as it was, or it lost only the torn end of an append, or a
// copy of it as it was lies beside it.
TEST(OpenPair, RepairsNeverLoseAByteAndNeverMakeRecordsOfTheWrongKind) {
    TempDir dir(testing::FastScratch());
    const std::string_view stem = "Sudoku_Hard.sd";
    const fs::path sds = PuzzleFile(dir.path(), stem), sdl = LogFile(dir.path(), stem);
    std::mt19937 rng(26);
    const auto records = [&](auto make, int count, std::size_t size) {
        std::vector<char> bytes;
        for (int i = 0; i < count; ++i) {
            const auto r = ToBytes(make(i));
            bytes.insert(bytes.end(), r.begin(), r.end());
        }
        bytes.resize(std::min(bytes.size(), bytes.size() - rng() % size));  // a torn end
        return bytes;
    };
    for (int i = 0; i < 300; ++i) {
        for (const auto& entry : fs::directory_iterator(dir.path()))
            fs::remove(entry.path());
        const int puzzles = int(rng() % 6), logs = int(rng() % 8);
        auto a = records([](int k) { return RecordOf(k); }, puzzles, i % 3 ? 1 : 200);
        auto b = records([](int k) { return BusyLog(k); }, logs, i % 4 ? 1 : 1500);
        const int shape = int(rng() % 6);
        if (shape == 0) std::swap(a, b);
        if (shape == 1)
            for (auto& x : a)
                x = char(rng());
        if (shape != 2) WriteBytes(sds, a);
        if (shape != 3) WriteBytes(sdl, b);
        const bool hadSds = shape != 2, hadSdl = shape != 3;

        bool refused = false;
        std::string said;
        const long count = OpenPair(dir.path(), stem, &said, &refused);
        // Every byte is still somewhere: in the file, or in a copy beside it.
        std::vector<std::vector<char>> copies;
        for (const auto& entry : fs::directory_iterator(dir.path()))
            if (entry.path() != sds && entry.path() != sdl)
                copies.push_back(FileBytes(entry.path()));
        const auto kept = [&](const std::vector<char>& before, const fs::path& file,
                              std::size_t tornEnd) {
            const auto now = FileBytes(file);
            if (now == before) return true;
            for (const auto& c : copies)
                if (c == before) return true;
            // Only the end of an append that was stopped: less than one record.
            return now.size() <= before.size() && before.size() - now.size() <= tornEnd &&
                   std::equal(now.begin(), now.end(), before.begin());
        };
        if (hadSds) {
            ASSERT_TRUE(kept(a, sds, kSudokuRecordSize)) << i << " " << said;
        }
        if (hadSdl) {
            ASSERT_TRUE(kept(b, sdl, 2 * kSudokuLogRecordSize)) << i << " " << said;
        }
        if (refused) {
            ASSERT_EQ(count, -1);
            if (hadSds) {
                ASSERT_EQ(FileBytes(sds), a) << "a refused pair is left as it is";
            }
            if (hadSdl) {
                ASSERT_EQ(FileBytes(sdl), b);
            }
            continue;
        }
        if (count < 0) continue;
        ASSERT_EQ(fs::file_size(sdl), std::uintmax_t(count) * kSudokuLogRecordSize) << i;
        ASSERT_EQ(fs::file_size(sds), std::uintmax_t(count) * kSudokuRecordSize) << i;
        // A swapped pair never becomes library records.
        if (shape == 0 && count > 0) ADD_FAILURE() << i << ": the swapped pair opened: " << said;
    }
}

// A puzzle file far beyond any library is refused before anything is written.
// (A log without its puzzle file goes aside: Puzzles.AVanishedPuzzleFile..., and
// the random shapes below keep its bytes.)
TEST(OpenPair, AnOversizedPuzzleFileIsRefused) {
    TempDir dir;
    const std::string_view stem = "Sudoku_Hard.sd";
    const fs::path sds = PuzzleFile(dir.path(), stem), sdl = LogFile(dir.path(), stem);
    std::string said;
    // A sparse puzzle file of more than a million records, and no log.
    WriteBytes(sds, {});
    fs::resize_file(sds, std::uintmax_t(kMaxLibraryRecords + 1) * kSudokuRecordSize);
    bool refused = false;
    EXPECT_EQ(OpenPair(dir.path(), stem, &said, &refused), -1);
    EXPECT_TRUE(refused);
    EXPECT_NE(said.find("is no library"), std::string::npos) << said;
    EXPECT_FALSE(fs::exists(sdl));
    EXPECT_FALSE(AppendToPair(dir.path(), stem, RecordOf(1), {}));
}

}  // namespace
}  // namespace tavi
