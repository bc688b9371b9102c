// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/first_run.h"

#include <gtest/gtest.h>

#include "grid/levels.h"
#include "library/library_setup.h"
#include "library/library_test_support.h"

namespace tavi {
namespace {

namespace fs = std::filesystem;
using testing::MakeLevelFiles, testing::RecordingNotifier, testing::TempDir;

// Remembers whether the keys were pushed out before the start went on.
struct FlushingStore : MemorySettingsStore {
    int flushes = 0;
    void Flush() override { ++flushes; }
};

TEST(FirstRun, AMissingOrEmptyLibraryStopsTheStartAndTheNextStartTriesAgain) {
    for (const bool empty : {false, true}) {
        TempDir app, data;
        const LibraryFolders folders{app.path(), data.path()};
        for (int level = 1; level <= 9; ++level)
            if (level != 8) MakeLevelFiles(app.path(), LevelStem(level), 2, false);
        if (empty) MakeLevelFiles(app.path(), LevelStem(8), 0, false);
        FlushingStore store;

        // The start as it runs: copy, read the options, make the logs.
        CopyLibraryFiles(folders);
        Options options;
        HaalOpties(store, options);
        RecordingNotifier notifier;
        EXPECT_FALSE(PrepareLogFiles(folders, options, store, notifier));
        ASSERT_EQ(notifier.messages.size(), 3u);
        EXPECT_EQ(notifier.messages[0].first, "Tavi Sudoku - 1st run initiation");
        EXPECT_EQ(notifier.messages[1].first, "Logfile creation failure");
        EXPECT_EQ(notifier.messages[1].second,
                  "Could not open source file " + PuzzleFile(data.path(), LevelStem(8)).string());
        EXPECT_EQ(notifier.messages[2].first, "Initiation failed");
        EXPECT_EQ(notifier.messages[2].second,
                  "Failed to write sudoku logfiles, program can't continue.");
        // The levels before it were done, the ones after it not.
        for (int level = 1; level <= 9; ++level)
            EXPECT_EQ(FileExists(LogFile(data.path(), LevelStem(level))), level < 8) << level;
        EXPECT_FALSE(options.LogfilesMade);
        EXPECT_EQ(store.Read("Options", "Logfiles", "False"), "False");

        // The library is mended; the next start does all nine levels.
        MakeLevelFiles(data.path(), LevelStem(8), 3, false);
        Options again;
        HaalOpties(store, again);
        RecordingNotifier second;
        ASSERT_TRUE(PrepareLogFiles(folders, again, store, second));
        EXPECT_EQ(second.messages.size(), 1u);
        EXPECT_TRUE(again.LogfilesMade);
        EXPECT_EQ(store.Read("Options", "Logfiles", ""), "True");
        EXPECT_EQ(store.flushes, 1);
        for (int level = 1; level <= 9; ++level)
            EXPECT_EQ(WholeRecords(LogFile(data.path(), LevelStem(level)), 1449),
                      level == 8 ? 3 : 2);
        // (That a start after that makes nothing and says nothing: every game
        // test's second start, whose first box is the game's own.)
    }
}

}  // namespace
}  // namespace tavi
