// SPDX-License-Identifier: GPL-3.0-or-later
// Kills in the middle of every writer of a pair: a child process appends,
// imports, saves or exports until it is killed at a random instant, and then the
// pair must open whole, as one of the states the writer passes through, with
// every record adding up.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <map>
#include <random>
#include <sstream>

#include "cli/library_commands.h"
#include "game/library_position.h"
#include "grid/candidates.h"
#include "grid/levels.h"
#include "library/library_pair.h"
#include "library/library_test_support.h"
#include "library/move_journal.h"
#include "library/pair_guard.h"
#include "library/pair_rewrite.h"
#include "library/record_journal.h"
#include "solver/ladder.h"

namespace tavi {
namespace {

namespace fs = std::filesystem;
using testing::BusyLog, testing::FileBytes, testing::RecordOf, testing::TempDir;

constexpr int kKills = 200;
constexpr std::string_view kStem = "Sudoku_Hard.sd";

// The bytes of `records`, one after another, as a file holds them.
template <typename Record>
std::vector<char> BytesOf(const std::vector<Record>& records) {
    std::vector<char> all;
    for (const Record& r : records) {
        const auto b = ToBytes(r);
        all.insert(all.end(), b.begin(), b.end());
    }
    return all;
}

// Whether a kill left work for the next open: a note, a rewrite, a torn tail or
// a pair out of step.
bool LeftSomething(const fs::path& folder, std::string_view stem) {
    const fs::path sds = PuzzleFile(folder, stem), sdl = LogFile(folder, stem);
    std::error_code ec;
    if (fs::exists(NoteFile(sds), ec) || fs::exists(folder / (std::string(stem) + "c"), ec) ||
        fs::exists(MoveJournalFile(folder, stem), ec))
        return true;
    for (int level = 1; level <= kLevelCount; ++level)
        if (fs::exists(MoveJournalFile(folder, LevelStem(level)), ec)) return true;
    const auto a = fs::file_size(sds, ec), b = ec ? 0 : fs::file_size(sdl, ec);
    return !ec && (a % kSudokuRecordSize || b != a / kSudokuRecordSize * kSudokuLogRecordSize);
}

// `kKills` times: `reset`, run `writer` in a child until it is killed after a
// random pause, then `check`. How many kills left something to finish (a note, a
// rewrite, a torn or uneven pair) goes to the test's record as "interrupted": it
// depends on the machine's load, so it is reported, not asked for.
void KillRuns(const std::function<void()>& reset, const std::function<void()>& writer,
              const std::function<void()>& check, const fs::path& folder, std::string_view stem,
              int longestPauseMicros, int kills = kKills) {
    std::mt19937 rng(7);
    int interrupted = 0;
    RecordOf(0);  // the puzzles are made once, before the children share them
    for (int k = 0; k < kills && !::testing::Test::HasFatalFailure(); ++k) {
        reset();
        int started[2];
        if (pipe(started) != 0) {
            ADD_FAILURE() << "no pipe";
            return;
        }
        const pid_t child = fork();
        if (child == 0) {
            close(started[0]);
            [[maybe_unused]] const auto sent = write(started[1], "!", 1);
            writer();
            _exit(0);
        }
        // The pause counts from the moment the writer runs, however busy the
        // machine is.
        close(started[1]);
        char ready;
        [[maybe_unused]] const auto got = read(started[0], &ready, 1);
        close(started[0]);
        usleep(useconds_t(rng() % longestPauseMicros));
        kill(child, SIGKILL);
        int status = 0;
        waitpid(child, &status, 0);
        interrupted += LeftSomething(folder, stem);
        check();
    }
    ::testing::Test::RecordProperty("interrupted", interrupted);
}

TEST(KillTest, AppendLeavesEveryRecordWhole) {
    TempDir dir(testing::FastScratch());
    // The pair grows from kill to kill, each writer going on from the repaired
    // pair, and starts again at 200 records.
    const auto writer = [&] {
        for (long j = std::max(OpenPair(dir.path(), kStem), 0L) + 1;; ++j)
            AppendToPair(dir.path(), kStem, RecordOf(int(j)), BusyLog(j % 9), nullptr, nullptr);
    };
    const auto check = [&] {
        const long count = OpenPair(dir.path(), kStem);
        if (count < 0) return;  // killed before the first record
        std::vector<SudokuRecord> sds;
        std::vector<SudokuLogRecord> sdl;
        for (int j = 1; j <= count; ++j) {
            sds.push_back(RecordOf(j));
            sdl.push_back(BusyLog(j % 9));
        }
        ASSERT_EQ(FileBytes(PuzzleFile(dir.path(), kStem)), BytesOf(sds));
        ASSERT_EQ(FileBytes(LogFile(dir.path(), kStem)), BytesOf(sdl));
    };
    const auto reset = [&] {
        if (WholeRecords(PuzzleFile(dir.path(), kStem), kSudokuRecordSize) < 200) return;
        fs::remove(PuzzleFile(dir.path(), kStem));
        fs::remove(LogFile(dir.path(), kStem));
    };
    KillRuns(reset, writer, check, dir.path(), kStem, 10000);
}

TEST(KillTest, ImportLeavesThePuzzlesBeforeTheKillWhole) {
    TempDir dir(testing::FastScratch());
    const auto& puzzles = testing::GeneratedPuzzles(8);
    std::string text;
    for (int i = 0; i < 4000; ++i)
        text += FormatDigits(puzzles[i % 8].puzzle) + "\n";
    const auto writer = [&] {
        std::istringstream in(text);
        std::ostringstream out, err;
        cli::ImportLibrary(in, 3, dir.path(), out, err);
    };
    const auto check = [&] {
        const long count = OpenPair(dir.path(), kStem);
        // A kill in the first add to the level leaves a pair to take back, never
        // a log on its own to be moved aside.
        ASSERT_FALSE(fs::exists(dir / "Sudoku_Hard.sdl.without-puzzles"));
        if (count < 0) return;  // killed before the first record
        std::vector<SudokuRecord> sds;
        for (long j = 0; j < count; ++j)
            sds.push_back(SudokuRecord{puzzles[j % 8].puzzle, puzzles[j % 8].solution, 0, 0});
        ASSERT_EQ(FileBytes(PuzzleFile(dir.path(), kStem)), BytesOf(sds));
        ASSERT_EQ(FileBytes(LogFile(dir.path(), kStem)),
                  std::vector<char>(count * kSudokuLogRecordSize, 0));
    };
    const auto reset = [&] {
        fs::remove(PuzzleFile(dir.path(), kStem));
        fs::remove(LogFile(dir.path(), kStem));
    };
    KillRuns(reset, writer, check, dir.path(), kStem, 6000);
}

// Saves and best times over record 2, by turns: record 2 is always one of the
// states written, whole, and the records beside it never change.
TEST(KillTest, SaveAndBestTimeLeaveTheOldRecordOrTheNew) {
    TempDir dir(testing::FastScratch());
    const LibraryFolders folders{dir.path(), dir.path()};
    LibraryPosition position;
    position.OpenLevel = 3;
    position.OpenRecord = 2;
    const auto reset = [&] { testing::MakeLevelFiles(dir.path(), kStem, 3); };
    const auto writer = [&] {
        for (int j = 0;; ++j) {
            SaveGameLog(folders, position, BusyLog(j % 2 + 1), nullptr);
            BewaarBestTime(folders, position, RecordOf(j % 2 ? 1 : 4), nullptr);
        }
    };
    const auto check = [&] {
        ASSERT_EQ(OpenPair(dir.path(), kStem), 3);
        const auto [s, l] = testing::PairAt(dir.path(), kStem, 2);
        ASSERT_TRUE(s == RecordOf(1) || s == RecordOf(4));
        ASSERT_TRUE(l == SudokuLogRecord{} || l == BusyLog(1) || l == BusyLog(2));
        for (int n : {1, 3})  // the records beside it, as made
            ASSERT_EQ(testing::PairAt(dir.path(), kStem, n),
                      std::pair(RecordOf(n - 1), SudokuLogRecord{}));
    };
    KillRuns(reset, writer, check, dir.path(), kStem, 5000);
}

// A rewrite that keeps two records of three leaves the old pair or the new one,
// record and log in step.
TEST(KillTest, RewriteLeavesTheOldPairOrTheNew) {
    TempDir dir(testing::FastScratch()), made;
    for (int i = 1; i <= 300; ++i) {
        SudokuRecord r;
        r.BestMinutes = std::int16_t(i);
        SudokuLogRecord l;
        l.ElapsedMinutes = std::int16_t(i);
        ASSERT_TRUE(AppendToPair(made.path(), kStem, r, l));
    }
    int old = 0, fresh = 0;
    const auto reset = [&] {
        for (const fs::path& file : {PuzzleFile(dir.path(), kStem), LogFile(dir.path(), kStem)})
            fs::copy_file(made / file.filename().string(), file,
                          fs::copy_options::overwrite_existing);
    };
    const auto writer = [&] { KeepInPair(dir.path(), kStem, [](long n) { return n % 3 != 0; }); };
    const auto check = [&] {
        const long count = OpenPair(dir.path(), kStem);
        ASSERT_TRUE(count == 300 || count == 200) << count;
        // The old pair holds 1..300; the new one the numbers that are not a multiple of 3.
        const auto expected = [&](long k) { return count == 300 ? k + 1 : k / 2 * 3 + k % 2 + 1; };
        std::vector<SudokuRecord> puzzles;
        ASSERT_TRUE(ReadSudokuFile(PuzzleFile(dir.path(), kStem), puzzles));
        for (long k = 0; k < count; ++k)
            ASSERT_EQ(puzzles[k].BestMinutes, expected(k));
        for (long k : {0L, count / 2, count - 1})
            ASSERT_EQ(testing::PairAt(dir.path(), kStem, k + 1).second.ElapsedMinutes, expected(k))
                << "record and log in step";
        ++(count == 300 ? old : fresh);
    };
    KillRuns(reset, writer, check, dir.path(), kStem, 4000);
    EXPECT_GT(old, 0);
    EXPECT_GT(fresh, 0);
}

// Record 1 of Outlaw moved out again and again: the Outlaw pair is always the
// originals from some m on, and the exported pair the originals before m, with
// at most the next one twice (a kill between the copy and the rewrite). Nothing
// is ever in neither.
TEST(KillTest, ExportLosesNoOutlawRecord) {
    TempDir dir(testing::FastScratch());
    constexpr int kCount = 30;
    const std::string_view outlaw = LevelStem(kOutlaw);
    const auto reset = [&] {
        fs::remove(PuzzleFile(dir.path(), kExportedStem));
        fs::remove(LogFile(dir.path(), kExportedStem));
        testing::MakeLevelFiles(dir.path(), outlaw, kCount);
    };
    const auto writer = [&] {
        SudokuRecord s;
        SudokuLogRecord l;
        while (ReadPair(dir.path(), outlaw, 1, s, l, nullptr))
            ExportSudoku(dir.path(), 1, s, l, nullptr);
    };
    const auto check = [&] {
        const long left = std::max(OpenPair(dir.path(), outlaw), 0L);
        const long out = std::max(OpenPair(dir.path(), kExportedStem), 0L);
        const long m = kCount - left;
        ASSERT_TRUE(out == m || out == m + 1) << left << " " << out;
        std::vector<SudokuRecord> kept, moved;
        for (int j = 0; j < kCount; ++j)
            (j < m ? moved : kept).push_back(RecordOf(j));
        if (out == m + 1) moved.push_back(RecordOf(int(m)));
        // A pair of no records may be gone: its bytes are none all the same.
        ASSERT_EQ(FileBytes(PuzzleFile(dir.path(), outlaw)), BytesOf(kept));
        ASSERT_EQ(FileBytes(PuzzleFile(dir.path(), kExportedStem)), BytesOf(moved));
    };
    KillRuns(reset, writer, check, dir.path(), outlaw, 6000);
}

// Check All over a folder, killed at any instant: after the next open of the
// libraries every puzzle stands exactly once, with its own log, and a run to the
// end then puts each at the level of its rating, still once.
TEST(KillTest, CheckLeavesEveryPuzzleExactlyOnce) {
    TempDir dir(testing::FastScratch());
    constexpr int kPuzzles = 48;
    const auto& puzzles = testing::GeneratedPuzzles(kPuzzles);
    std::map<std::string, int> which;  // puzzle bytes -> its index
    std::vector<int> rating(kPuzzles);
    for (int i = 0; i < kPuzzles; ++i) {
        which[std::string(puzzles[i].puzzle.begin(), puzzles[i].puzzle.end())] = i;
        SolveContext ctx(Side::Workbench);
        ctx.board = BoardFromPuzzle(puzzles[i].puzzle);
        rating[i] = SolveSudoku(ctx, WorkbenchRun{}) ? ctx.SolvingLevel : kOutlaw;
    }
    // Most puzzles start in Hard, some in Easy and in Outlaw; log i says which
    // puzzle it belongs to.
    const auto startLevel = [](int i) { return i % 9 == 0 ? 1 : i % 9 == 1 ? kOutlaw : 3; };
    // Every third kill is left for the next run to find: it finishes the dead
    // run's moves itself, and may be killed while it does.
    int kills = 0;
    bool leftOver = false;
    const auto reset = [&] {
        if (leftOver) return;
        for (const auto& entry : fs::directory_iterator(dir.path()))
            fs::remove(entry.path());
        for (int i = 0; i < kPuzzles; ++i)
            ASSERT_TRUE(AppendToPair(dir.path(), LevelStem(startLevel(i)),
                                     {puzzles[i].puzzle, {}, 0, 0}, BusyLog(i)));
    };
    const auto writer = [&] {
        std::ostringstream out, err;
        cli::LibraryCheckCommand(dir.path(), 0, out, err);
    };
    // Every puzzle once, with its log; with `settled`, at the level of its rating.
    const auto count = [&](bool settled) {
        std::vector<int> seen(kPuzzles, 0);
        for (int level = 1; level <= kLevelCount; ++level) {
            const long n = OpenPair(dir.path(), LevelStem(level));
            for (long k = 1; k <= n; ++k) {
                const auto [s, l] = testing::PairAt(dir.path(), LevelStem(level), k);
                const auto found = which.find(std::string(s.Puzzle.begin(), s.Puzzle.end()));
                ASSERT_NE(found, which.end()) << "a puzzle from nowhere";
                const int i = found->second;
                ++seen[i];
                ASSERT_EQ(l, BusyLog(i)) << "the log went its own way";
                if (settled) {
                    ASSERT_EQ(level, rating[i]) << i;
                }
            }
        }
        for (int i = 0; i < kPuzzles; ++i)
            ASSERT_EQ(seen[i], 1) << "puzzle " << i << (settled ? " after the next run" : "");
    };
    const auto check = [&] {
        leftOver = ++kills % 3 == 1;
        if (leftOver) return;
        count(false);
        if (::testing::Test::HasFatalFailure() || kills % 6 != 0) return;
        writer();
        count(true);
    };
    KillRuns(reset, writer, check, dir.path(), LevelStem(3), 30000, 150);
}

}  // namespace
}  // namespace tavi
