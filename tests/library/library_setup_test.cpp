// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/library_setup.h"

#include <gtest/gtest.h>

#include "grid/levels.h"
#include "library/library_test_support.h"

namespace tavi {
namespace {

namespace fs = std::filesystem;
using testing::FileBytes, testing::MakeLevelFiles, testing::RecordingNotifier, testing::TempDir,
    testing::WriteBytes;

struct Library {
    TempDir app, data;
    LibraryFolders folders{app.path(), data.path()};
};

// What is missing is copied, nothing is overwritten, and a level emptied (its
// files gone) stays empty at every later start, whether it came delivered or was
// the user's own; a level that never had files gets them once it is delivered.
TEST(CopyLibraryFiles, CopiesWhatIsMissingAndNeverRefillsAnEmptiedLevel) {
    Library lib;
    for (int level = 1; level <= 8; ++level)
        MakeLevelFiles(lib.app.path(), LevelStem(level), level, /*withLog=*/false);
    MakeLevelFiles(lib.data.path(), LevelStem(3), 1, false, 50);  // the user's own Hard
    const auto hard = FileBytes(PuzzleFile(lib.data.path(), LevelStem(3)));
    CopyLibraryFiles(lib.folders);
    for (int level = 1; level <= 8; ++level) {
        EXPECT_EQ(FileBytes(PuzzleFile(lib.data.path(), LevelStem(level))),
                  level == 3 ? hard : FileBytes(PuzzleFile(lib.app.path(), LevelStem(level))));
        EXPECT_FALSE(fs::exists(LogFile(lib.data.path(), LevelStem(level))));
    }
    // The eight puzzle files and the list of the levels that had them.
    EXPECT_EQ(std::distance(fs::directory_iterator(lib.data.path()), fs::directory_iterator()), 9);

    for (int level : {1, 3})
        fs::remove(PuzzleFile(lib.data.path(), LevelStem(level)));
    MakeLevelFiles(lib.app.path(), LevelStem(9), 2, false);  // delivered later
    for (int start = 0; start < 2; ++start) {
        CopyLibraryFiles(lib.folders);
        for (int level = 1; level <= 9; ++level) {
            EXPECT_EQ(FileExists(PuzzleFile(lib.data.path(), LevelStem(level))),
                      level != 1 && level != 3)
                << level;
            EXPECT_TRUE(WasDelivered(lib.data.path(), LevelStem(level))) << level;
        }
    }
    // The first run after that passes over the emptied levels.
    RecordingNotifier notifier;
    EXPECT_TRUE(MaakSudLog(lib.folders, notifier));
    EXPECT_FALSE(FileExists(LogFile(lib.data.path(), LevelStem(1))));
}

TEST(MaakSudLog, MakesOneEmptyLogRecordPerPuzzle) {
    Library lib;
    for (int level = 1; level <= 9; ++level)
        MakeLevelFiles(lib.data.path(), LevelStem(level), level + 1, false);
    // An old log with progress in it is kept and only brought in step: its two
    // records stay, the third puzzle gets an empty one.
    std::vector<char> saved;
    for (int i = 1; i <= 2; ++i) {
        const auto bytes = ToBytes(testing::BusyLog(i));
        saved.insert(saved.end(), bytes.begin(), bytes.end());
    }
    WriteBytes(LogFile(lib.data.path(), LevelStem(2)), saved);
    // A torn puzzle tail gets no log record of its own.
    std::ofstream(PuzzleFile(lib.data.path(), LevelStem(4)), std::ios::app) << std::string(40, 'x');
    RecordingNotifier notifier;

    ASSERT_TRUE(MaakSudLog(lib.folders, notifier));

    ASSERT_EQ(notifier.messages.size(), 2u);
    EXPECT_NE(notifier.messages[1].second.find("3 records were kept, 1 of them with an empty log"),
              std::string::npos);
    // The log as it was is kept beside it, and the message names the copy.
    EXPECT_NE(notifier.messages[1].second.find("kept as Sudoku_Medium.sdl.before-repair"),
              std::string::npos);
    EXPECT_EQ(FileBytes(lib.data / "Sudoku_Medium.sdl.before-repair"), saved);
    auto kept = FileBytes(LogFile(lib.data.path(), LevelStem(2)));
    ASSERT_EQ(kept.size(), 1449u * 3);
    EXPECT_TRUE(std::equal(saved.begin(), saved.end(), kept.begin()));
    WriteBytes(LogFile(lib.data.path(), LevelStem(2)), std::vector<char>(1449 * 3, 0));
    for (int level = 1; level <= 9; ++level) {
        const auto bytes = FileBytes(LogFile(lib.data.path(), LevelStem(level)));
        EXPECT_EQ(bytes.size(), 1449u * (level + 1));
        EXPECT_EQ(std::count(bytes.begin(), bytes.end(), 0), long(bytes.size()));
    }
}

TEST(MaakSudLog, ALogThatCantBeWrittenEndsWithFalseAndKeepsTheOldOne) {
    Library lib;
    for (int level = 1; level <= 9; ++level)
        MakeLevelFiles(lib.data.path(), LevelStem(level), 3, false);
    fs::create_directory(LogFile(lib.data.path(), LevelStem(6)));  // in the way
    RecordingNotifier notifier;
    EXPECT_FALSE(MaakSudLog(lib.folders, notifier));
    ASSERT_EQ(notifier.messages.size(), 2u);  // the opening notice, and the log in the way
    EXPECT_NE(notifier.messages[1].second.find("Sudoku_Kamikaze.sdl"), std::string::npos);
    EXPECT_TRUE(fs::is_directory(LogFile(lib.data.path(), LevelStem(6))));
    EXPECT_FALSE(fs::exists(LogFile(lib.data.path(), LevelStem(7))));
}

}  // namespace
}  // namespace tavi
