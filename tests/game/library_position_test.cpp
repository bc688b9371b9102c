#include "game/library_position.h"

#include <gtest/gtest.h>

#include "grid/levels.h"
#include "library/library_test_support.h"

namespace tavi {
namespace {

namespace fs = std::filesystem;
using testing::BusyLog;
using testing::FileBytes;
using testing::MakeLevelFiles;
using testing::RecordingNotifier;
using testing::RecordOf;
using testing::TempDir;

std::string Number(const MemorySettingsStore& s, int level) {
    return s.Read("SudokuLevel" + std::to_string(level), "Number", "?");
}
std::string Busy(const MemorySettingsStore& s, int level) {
    return s.Read("SudokuLevel" + std::to_string(level), "Busy", "?");
}

LibraryPosition Playing(int level, int record, int steps) {
    LibraryPosition p;
    for (int i = 1; i <= 9; ++i)
        p.PuzzleNumber[i] = 10 * i;
    p.ChosenLevel = p.OpenLevel = level;
    p.OpenRecord = record;
    p.PuzzleNumber[level] = record;
    p.CurrentStep = steps;
    p.SudokuSolved = false;
    return p;
}

TEST(SaveLastSudoku, AGameInProgressMarksItsLevelBusy) {
    MemorySettingsStore store;
    SaveLastSudoku(store, Playing(3, 17, 5));
    EXPECT_EQ(store.Read("Sudoku", "Level", "?"), "3");
    for (int i = 1; i <= 9; ++i) {
        EXPECT_EQ(Number(store, i), std::to_string(i == 3 ? 17 : 10 * i));
        EXPECT_EQ(Busy(store, i), i == 3 ? "Yes" : "No");
    }
}

TEST(SaveLastSudoku, AnUntouchedPuzzleIsOfferedAgainAndIsNotBusy) {
    MemorySettingsStore store;
    SaveLastSudoku(store, Playing(2, 1, 0));
    EXPECT_EQ(Number(store, 2), "0");  // the next New opens record 1 again
    EXPECT_EQ(Busy(store, 2), "No");

    SaveLastSudoku(store, Playing(2, 8, 0));
    EXPECT_EQ(Number(store, 2), "7");
}

TEST(SaveLastSudoku, SolvedOrAutosolvedGamesKeepTheirNumberAndAreNotBusy) {
    MemorySettingsStore store;
    LibraryPosition solved = Playing(4, 6, 12);
    solved.SudokuSolved = true;
    SaveLastSudoku(store, solved);
    EXPECT_EQ(Number(store, 4), "6");
    EXPECT_EQ(Busy(store, 4), "No");

    LibraryPosition autosolved = Playing(4, 6, 0);
    autosolved.SudokuAutosolved = true;
    SaveLastSudoku(store, autosolved);
    EXPECT_EQ(Number(store, 4), "6");
    EXPECT_EQ(Busy(store, 4), "No");
}

TEST(SaveLastSudoku, WithNoPuzzleOpenTheNumbersStayAndNothingIsBusy) {
    MemorySettingsStore store;
    for (int i = 1; i <= 9; ++i)
        store.Write("SudokuLevel" + std::to_string(i), "Busy", "Yes");
    LibraryPosition p = Playing(5, 9, 3);
    p.OpenLevel = 0;
    p.OpenRecord = 0;
    SaveLastSudoku(store, p);
    for (int i = 1; i <= 9; ++i) {
        EXPECT_EQ(Number(store, i), std::to_string(i == 5 ? 9 : 10 * i));
        EXPECT_EQ(Busy(store, i), "No");
    }
}

TEST(HaalLaatsteSudoku, ReadsWhatSaveLastSudokuWroteAndDefaultsTheRest) {
    MemorySettingsStore store;
    LibraryPosition p;
    HaalLaatsteSudoku(store, p);
    EXPECT_EQ(p.LastLevel, 0);
    for (int i = 1; i <= 9; ++i) {
        EXPECT_EQ(p.PuzzleNumber[i], 0);
        EXPECT_FALSE(p.LevelBusy[i]);
    }

    SaveLastSudoku(store, Playing(6, 40, 2));
    store.Write("SudokuLevel1", "Number", "lots");  // damaged: taken as missing
    store.Write("SudokuLevel2", "Number", "-5");
    LibraryPosition back;
    HaalLaatsteSudoku(store, back);
    EXPECT_EQ(back.LastLevel, 6);
    EXPECT_EQ(back.StoredNumber[6], 40);
    EXPECT_EQ(back.PuzzleNumber[6], 40);
    EXPECT_EQ(back.PuzzleNumber[9], 90);
    EXPECT_EQ(back.PuzzleNumber[1], 0);
    EXPECT_EQ(back.PuzzleNumber[2], 0);
    EXPECT_TRUE(back.LevelBusy[6]);
    EXPECT_FALSE(back.LevelBusy[5]);

    store.Write("Sudoku", "Level", "12");
    HaalLaatsteSudoku(store, back);
    EXPECT_EQ(back.LastLevel, 0);
}

struct GameLibrary {
    TempDir data;
    LibraryFolders folders{data.path(), data.path()};
    GameLibrary() {
        for (int level = 1; level <= 9; ++level)
            MakeLevelFiles(data.path(), LevelStem(level), 4);
    }
    fs::path Log(int level) const { return LogFile(data.path(), LevelStem(level)); }
    fs::path Puzzles(int level) const { return PuzzleFile(data.path(), LevelStem(level)); }
};

TEST(SudInProgress, FollowsTheStatesOfTheLogRecord) {
    GameLibrary lib;
    LibraryPosition p = Playing(2, 3, 1);
    const SudokuRecord s = RecordOf(2);
    EXPECT_FALSE(SudInProgress(lib.folders, p));  // empty, as the first run made it

    SudokuLogRecord log;
    log.Grid = s.Puzzle;
    int userCell = 0;
    while (s.Puzzle[userCell])
        ++userCell;
    log.Grid[userCell] = s.Solution[userCell];
    log.StepCount = 1;
    ASSERT_TRUE(WriteSudokuLogRecord(lib.Log(2), 3, log));
    EXPECT_TRUE(SudInProgress(lib.folders, p));  // in progress

    ASSERT_TRUE(AutoWisProgress(lib.folders, p, s, log));
    EXPECT_FALSE(SudInProgress(lib.folders, p));  // erased: Grid = Puzzle
    SudokuLogRecord onDisk;
    ASSERT_TRUE(ReadSudokuLogRecord(lib.Log(2), 3, onDisk));
    EXPECT_EQ(onDisk.Grid, s.Puzzle);
    EXPECT_EQ(onDisk.StepCount, 0);
    EXPECT_EQ(onDisk.ElapsedMinutes, 0);
}

TEST(SudInProgress, ReadsChosenLevelAndAnswersNoWhenItCantRead) {
    GameLibrary lib;
    SudokuLogRecord log = BusyLog(1);
    log.Grid = RecordOf(2).Solution;
    ASSERT_TRUE(WriteSudokuLogRecord(lib.Log(2), 3, log));
    LibraryPosition p = Playing(2, 3, 1);
    p.ChosenLevel = 5;  // the list shows another level now
    EXPECT_FALSE(SudInProgress(lib.folders, p));
    p.ChosenLevel = 2;
    EXPECT_TRUE(SudInProgress(lib.folders, p));
    p.OpenRecord = 99;
    EXPECT_FALSE(SudInProgress(lib.folders, p));
    fs::remove(lib.Log(2));
    p.OpenRecord = 3;
    EXPECT_FALSE(SudInProgress(lib.folders, p));
    fs::resize_file(lib.Puzzles(2), 0);
    EXPECT_FALSE(SudInProgress(lib.folders, p));
}

TEST(AutoWisProgress, DoesNothingWithoutAnOpenPuzzle) {
    GameLibrary lib;
    const auto before = FileBytes(lib.Log(1));
    SudokuLogRecord log = BusyLog(1);
    LibraryPosition p = Playing(1, 2, 3);
    p.OpenRecord = 0;
    EXPECT_FALSE(AutoWisProgress(lib.folders, p, RecordOf(1), log));
    EXPECT_EQ(log, BusyLog(1));
    EXPECT_EQ(FileBytes(lib.Log(1)), before);
}

TEST(BewaarBestTime, RewritesTheWholeRecordAtOpenRecord) {
    GameLibrary lib;
    SudokuRecord s = RecordOf(1);
    s.BestMinutes = 4;
    s.BestSeconds = 5;
    ASSERT_TRUE(BewaarBestTime(lib.folders, Playing(7, 2, 9), s, nullptr));
    SudokuRecord back;
    ASSERT_TRUE(ReadSudokuRecord(lib.Puzzles(7), 2, back));
    EXPECT_EQ(back, s);
    ASSERT_TRUE(ReadSudokuRecord(lib.Puzzles(7), 3, back));
    EXPECT_EQ(back, RecordOf(2));

    RecordingNotifier notifier;
    EXPECT_FALSE(BewaarBestTime(lib.folders, Playing(7, 9, 9), s, &notifier));
    ASSERT_EQ(notifier.messages.size(), 1u);
    EXPECT_EQ(notifier.messages[0].first, "File Error");
    EXPECT_EQ(fs::file_size(lib.Puzzles(7)), 4u * 166);
}

TEST(AddMadePuzzle, BecomesRecordCountPlusOneInBothFilesAndTheLevelsNumber) {
    GameLibrary lib;
    LibraryPosition p;
    ASSERT_TRUE(AddMadePuzzle(lib.folders, 8, p, RecordOf(6), SudokuLogRecord{}, nullptr));
    EXPECT_EQ(p.PuzzleNumber[8], 5);
    EXPECT_EQ(WholeRecords(lib.Puzzles(8), 166), 5);
    EXPECT_EQ(WholeRecords(lib.Log(8), 1449), 5);
    SudokuRecord back;
    ASSERT_TRUE(ReadSudokuRecord(lib.Puzzles(8), 5, back));
    EXPECT_EQ(back, RecordOf(6));

    RecordingNotifier notifier;
    fs::remove(lib.Log(3));
    EXPECT_FALSE(AddMadePuzzle(lib.folders, 3, p, RecordOf(6), {}, &notifier));
    EXPECT_EQ(p.PuzzleNumber[3], 0);
    EXPECT_EQ(WholeRecords(lib.Puzzles(3), 166), 4);
    ASSERT_EQ(notifier.messages.size(), 1u);
    EXPECT_EQ(notifier.messages[0].first, "File Error");
}

TEST(SaveGameLog, MoreThanAHundredStepsIsRefusedAndTheSavedGameKept) {
    GameLibrary lib;
    const LibraryPosition p = Playing(1, 2, 101);
    ASSERT_TRUE(SaveGameLog(lib.folders, p, BusyLog(3), nullptr));
    const auto before = FileBytes(lib.Log(1));

    SudokuLogRecord tooLong = BusyLog(4);
    tooLong.StepCount = 101;
    RecordingNotifier notifier;
    EXPECT_FALSE(SaveGameLog(lib.folders, p, tooLong, &notifier));
    ASSERT_EQ(notifier.messages.size(), 1u);
    EXPECT_EQ(notifier.messages[0].first, kStepLimitTitle);
    EXPECT_EQ(FileBytes(lib.Log(1)), before);
}

}  // namespace
}  // namespace tavi
