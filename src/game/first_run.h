// SPDX-License-Identifier: GPL-3.0-or-later
// The log files at start: made on the first run, and the mark that they exist
// written at once, so that a run that fails half way tries again next time.
#pragma once

#include <string_view>

#include "library/library_files.h"
#include "platform/notifier.h"
#include "settings/options.h"
#include "settings/settings_store.h"

namespace tavi {

inline constexpr std::string_view kInitiationFailedTitle = "Initiation failed";
inline constexpr std::string_view kInitiationFailedText =
    "Failed to write sudoku logfiles, program can't continue.";

// Makes the log files when options.LogfilesMade is false, then writes "Logfiles".
// False after the message that the program can't continue: the caller ends it,
// and "Logfiles" stays "False".
bool PrepareLogFiles(const LibraryFolders& folders, Options& options, SettingsStore& store,
                     Notifier& notifier);

}  // namespace tavi
