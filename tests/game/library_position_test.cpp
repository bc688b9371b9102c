// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/library_position.h"

#include <gtest/gtest.h>

#include "grid/levels.h"
#include "library/library_test_support.h"

namespace tavi {
namespace {

namespace fs = std::filesystem;
using testing::BusyLog, testing::MakeLevelFiles, testing::RecordOf, testing::TempDir;

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

// What the store keeps of each level on the way out: the record to offer next
// and whether a saved game waits there.
TEST(SaveLastSudoku, NumberAndBusyFollowTheGameOnTheBoard) {
    struct Case {
        const char* name;
        LibraryPosition position;
        const char* number;  // of the level played
        const char* busy;
    };
    LibraryPosition solved = Playing(4, 6, 12), autosolved = Playing(4, 6, 0),
                    closed = Playing(5, 9, 3);
    solved.SudokuSolved = true;
    autosolved.SudokuAutosolved = true;
    closed.OpenLevel = closed.OpenRecord = 0;
    const Case cases[] = {
        {"in progress", Playing(3, 17, 5), "17", "Yes"},
        {"untouched, offered again", Playing(2, 8, 0), "7", "No"},
        {"solved", solved, "6", "No"},
        {"autosolved", autosolved, "6", "No"},
        {"no puzzle open", closed, "9", "No"},
    };
    for (const Case& k : cases) {
        SCOPED_TRACE(k.name);
        MemorySettingsStore store;
        for (int i = 1; i <= 9; ++i)
            store.Write("SudokuLevel" + std::to_string(i), "Busy", "Yes");
        SaveLastSudoku(store, k.position);
        const int level = k.position.ChosenLevel;
        EXPECT_EQ(store.Read("Sudoku", "Level", "?"), std::to_string(level));
        for (int i = 1; i <= 9; ++i) {
            EXPECT_EQ(Number(store, i), i == level ? k.number : std::to_string(10 * i));
            EXPECT_EQ(Busy(store, i), i == level ? k.busy : "No");
        }
    }
}

// A number or a level that can't be read is taken as missing. (The round trip
// through SaveLastSudoku is every resumed game's; the range, the settings fuzz.)
TEST(HaalLaatsteSudoku, ANumberOrLevelThatCantBeReadIsMissing) {
    MemorySettingsStore store;
    SaveLastSudoku(store, Playing(6, 40, 2));
    store.Write("SudokuLevel1", "Number", "lots");
    store.Write("SudokuLevel2", "Number", "-5");
    store.Write("Sudoku", "Level", "12");
    LibraryPosition back;
    HaalLaatsteSudoku(store, back);
    EXPECT_EQ(std::tuple(back.LastLevel, back.PuzzleNumber[1], back.PuzzleNumber[2]),
              std::tuple(0, 0, 0));
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

}  // namespace
}  // namespace tavi
