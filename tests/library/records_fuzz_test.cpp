// SPDX-License-Identifier: GPL-3.0-or-later
// Random and mutated bytes through the readers of the library files: whatever
// they accept holds only values in range, and nothing they read runs outside the
// board or the files. These run under the address and undefined-behaviour
// sanitizers in CI (scripts/test).
#include <gtest/gtest.h>

#include <random>

#include "library/library_pair.h"
#include "library/library_test_support.h"
#include "library/move_journal.h"
#include "library/pair_guard.h"
#include "library/record_checks.h"
#include "library/record_journal.h"

namespace tavi {
namespace {

namespace fs = std::filesystem;
using testing::BusyLog, testing::FileBytes, testing::RecordOf, testing::TempDir,
    testing::WriteBytes;

constexpr int kInputs = 10000;

// Even inputs are random bytes, odd ones `good` with one to four bytes changed.
template <typename Bytes>
Bytes Fuzzed(std::mt19937& rng, const Bytes& good, int i) {
    Bytes b = good;
    if (i % 2 == 0) {
        for (auto& x : b)
            x = static_cast<typename Bytes::value_type>(rng());
        return b;
    }
    for (int n = 1 + int(rng() % 4); n > 0; --n) {
        auto& x = b[rng() % b.size()];
        x = static_cast<typename Bytes::value_type>(rng() % 3 ? x ^ (1u << rng() % 8) : rng());
    }
    return b;
}

bool InRange(const SudokuRecord& r) {
    // A record may have no solution yet: all zeros.
    const bool solved = r.Solution != Digits{};
    for (int c = 0; c < 81; ++c)
        if (r.Puzzle[c] > 9 || (solved && (r.Solution[c] < 1 || r.Solution[c] > 9 ||
                                           (r.Puzzle[c] && r.Puzzle[c] != r.Solution[c]))))
            return false;
    return r.BestMinutes >= 0 && r.BestSeconds >= 0 && r.BestSeconds < 60;
}

bool InRange(const SudokuLogRecord& r) {
    for (int c = 0; c < 81; ++c)
        if (r.Grid[c] > 9) return false;
    if (r.StepCount < 0 || r.StepCount > kLogSteps) return false;
    for (int i = 0; i < r.StepCount; ++i)
        for (int mask : {r.LogOwnMarks[i], r.LogColumnMarks[i], r.LogRowMarks[i], r.LogBoxMarks[i]})
            if (r.LogCell[i] < 0 || r.LogCell[i] > 80 || r.LogDigit[i] < -9 || r.LogDigit[i] > 19 ||
                mask < 0 || mask > 511)
                return false;
    return std::abs(r.ElapsedSeconds) < 60;
}

TEST(RecordFuzz, AcceptedRecordsHoldOnlyValuesInRange) {
    std::mt19937 rng(11);
    int puzzles = 0, logs = 0;
    for (int i = 0; i < kInputs; ++i) {
        const auto s = SudokuRecordFromBytes(Fuzzed(rng, ToBytes(RecordOf(i)), i));
        if (CheckSudokuRecord(s).empty()) {
            ASSERT_TRUE(InRange(s)) << i;
            ++puzzles;
        }
        const auto l = SudokuLogRecordFromBytes(Fuzzed(rng, ToBytes(BusyLog(i % 9)), i));
        if (CheckSudokuLogRecord(l).empty()) {
            ASSERT_TRUE(InRange(l)) << i;
            ++logs;
        }
    }
    // Enough of the mutations pass for the check to mean something.
    EXPECT_GT(puzzles, kInputs / 500);
    EXPECT_GT(logs, kInputs / 50);
}

// Pairs of odd lengths and garbled bytes, with a note or a rewrite left behind:
// opening repairs them into step or says a file is missing, and every read after
// it either fails with a reason or gives a record in range.
TEST(RecordFuzz, PairsOfAnyShapeOpenIntoStep) {
    TempDir dir(testing::FastScratch());
    const std::string_view stem = "Fuzz.sd";
    const auto sds = PuzzleFile(dir.path(), stem), sdl = LogFile(dir.path(), stem);
    // A whole note, to be mutated.
    std::vector<char> note;
    {
        // With the files missing the note is written and stays.
        const auto s = ToBytes(RecordOf(3));
        const auto l = ToBytes(BusyLog(3));
        const RecordWrite both[] = {{sds, 1, {s.begin(), s.end()}}, {sdl, 1, {l.begin(), l.end()}}};
        EXPECT_FALSE(WriteRecordsInPlace(both));
        note = FileBytes(NoteFile(sds));
        ASSERT_FALSE(note.empty());
    }
    // Each case goes through the file system, so fewer of them.
    std::mt19937 rng(12);
    for (int i = 0; i < 1000; ++i) {
        std::vector<char> a(rng() % (3 * kSudokuRecordSize + 2));
        std::vector<char> b(rng() % (3 * kSudokuLogRecordSize + 2));
        if (i % 2) {  // sound records, cut or stretched
            testing::MakeLevelFiles(dir.path(), stem, 3, true, i);
            a = FileBytes(sds);
            b = FileBytes(sdl);
            a.resize(a.size() - rng() % 200);
            b.resize(b.size() + rng() % 3000);
        } else {
            for (auto& x : a)
                x = char(rng());
        }
        WriteBytes(sds, a);
        WriteBytes(sdl, b);
        if (i % 3 == 0) WriteBytes(NoteFile(sds), Fuzzed(rng, note, i));
        if (i % 5 == 0) WriteBytes(dir / "Fuzz.sds.next", b);
        if (i % 7 == 0) std::ofstream(dir / "Fuzz.sdc") << "";

        const long count = OpenPair(dir.path(), stem);
        if (count >= 0) {
            ASSERT_EQ(fs::file_size(sds), std::uintmax_t(count) * kSudokuRecordSize) << i;
            ASSERT_EQ(fs::file_size(sdl), std::uintmax_t(count) * kSudokuLogRecordSize) << i;
        }
        EXPECT_FALSE(fs::exists(NoteFile(sds))) << i;
        for (long n = -1; n <= count + 1; ++n) {
            SudokuRecord r;
            SudokuLogRecord l;
            if (ReadPair(dir.path(), stem, n, r, l, nullptr)) {
                ASSERT_TRUE(InRange(r) && InRange(l)) << i;
            }
        }
        fs::remove(dir / "Fuzz.sdc");
    }
}

// A dead run's move journal, cut, garbled or replaced by noise: finishing it
// never loses a puzzle and never takes one out of its pair that does not stand
// at the number the journal names.
TEST(RecordFuzz, AnyMoveJournalLosesNoPuzzle) {
    TempDir dir(testing::FastScratch());
    const std::string_view from = "Sudoku_Hard.sd", to = "Sudoku_Easy.sd";
    constexpr int kCount = 8;
    // Records 2, 4 and 6 moved; the journal left behind as a kill would.
    testing::MakeLevelFiles(dir.path(), from, kCount);
    {
        MoveJournal journal(dir.path(), from);
        for (long n : {2, 4, 6})
            ASSERT_TRUE(journal.Move(n, to, RecordOf(int(n - 1)), {}));
    }
    const auto journal = FileBytes(MoveJournalFile(dir.path(), from));
    const auto sds = FileBytes(PuzzleFile(dir.path(), from)),
               sdl = FileBytes(LogFile(dir.path(), from));
    const auto easy = FileBytes(PuzzleFile(dir.path(), to)),
               easyLog = FileBytes(LogFile(dir.path(), to));
    std::mt19937 rng(26);
    for (int i = 0; i < 600; ++i) {
        WriteBytes(PuzzleFile(dir.path(), from), sds);
        WriteBytes(LogFile(dir.path(), from), sdl);
        WriteBytes(PuzzleFile(dir.path(), to), easy);
        WriteBytes(LogFile(dir.path(), to), easyLog);
        auto bytes = Fuzzed(rng, journal, i % 3 ? 1 : 0);
        if (i % 5 == 0) bytes.resize(rng() % bytes.size());
        WriteBytes(MoveJournalFile(dir.path(), from), bytes);
        FinishDeadMoves(dir.path(), from);

        std::vector<int> seen(kCount, 0);
        for (const std::string_view stem : {from, to}) {
            std::vector<SudokuRecord> records;
            ASSERT_TRUE(ReadSudokuFile(PuzzleFile(dir.path(), stem), records)) << i;
            ASSERT_EQ(WholeRecords(LogFile(dir.path(), stem), kSudokuLogRecordSize),
                      long(records.size()));
            for (const SudokuRecord& r : records)
                ++seen[r.BestMinutes];  // RecordOf(k) carries k
        }
        for (int k = 0; k < kCount; ++k)
            ASSERT_GE(seen[k], 1) << "input " << i << " lost puzzle " << k;
        ASSERT_FALSE(fs::exists(MoveJournalFile(dir.path(), from))) << i;
    }
}

}  // namespace
}  // namespace tavi
