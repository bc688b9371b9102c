// Getting the library in place at start: the delivered puzzle files are copied to
// the user's data folder once, and on the first run every puzzle gets an empty log
// record.
#pragma once

#include <string_view>

#include "library/library_files.h"
#include "grid/notifier.h"

namespace tavi {

inline constexpr std::string_view kFirstRunTitle = "Tavi Sudoku - 1st run initiation";
inline constexpr std::string_view kFirstRunText =
    "A number of logfiles has to be created, normally this must be done only once on first run "
    "of Tavi Sudoku. Depend on the speed of your PC, this can take a few minutes.";
inline constexpr std::string_view kLogfileFailureTitle = "Logfile creation failure";
inline constexpr std::string_view kCouldNotOpenSource = "Could not open source file ";

// Copies each level's `.sds` file from AppFolder to DataFolder where DataFolder
// has none. A library the user has changed is never overwritten; a copy that
// fails leaves no half file behind.
void CopyLibraryFiles(const LibraryFolders& folders);

// Makes the nine `.sdl` files afresh, one empty log record per puzzle. Stops with
// false at the first level whose `.sds` file is missing or holds no whole record (after saying
// which), or when a log file can't be written; a level already done stays done,
// and the next start does them all again.
bool MaakSudLog(const LibraryFolders& folders, Notifier& notifier);

}  // namespace tavi
