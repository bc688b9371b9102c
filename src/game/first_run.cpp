// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/first_run.h"

#include "library/library_setup.h"

namespace tavi {

namespace {

// Every level's log file is there, record for record with its puzzle file: the
// mark was lost (a settings file that could not be used), not the files.
bool LogFilesInStep(const LibraryFolders& folders) {
    for (int level = 1; level <= kLevelCount; ++level) {
        const std::string_view stem = LevelStem(level);
        const long puzzles = WholeRecords(PuzzleFile(folders.DataFolder, stem), kSudokuRecordSize);
        const auto sdl = LogFile(folders.DataFolder, stem);
        if (puzzles < 1 || !FileExists(sdl) || WholeRecords(sdl, kSudokuLogRecordSize) != puzzles)
            return false;
    }
    return true;
}

}  // namespace

bool PrepareLogFiles(const LibraryFolders& folders, Options& options, SettingsStore& store,
                     Notifier& notifier) {
    if (!options.LogfilesMade && !LogFilesInStep(folders)) {
        if (!MaakSudLog(folders, notifier)) {
            notifier.Message(kInitiationFailedTitle, kInitiationFailedText);
            return false;
        }
    }
    options.LogfilesMade = true;
    SchrijfOptieSudLog(store, options);
    store.Flush();
    return true;
}

}  // namespace tavi
