// SPDX-License-Identifier: GPL-3.0-or-later
// Getting the library in place at start: the delivered puzzle files are copied to
// the user's data folder once, and on the first run every puzzle gets an empty log
// record.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "library/library_files.h"
#include "platform/notifier.h"

namespace tavi {

inline constexpr std::string_view kFirstRunTitle = "Tavi Sudoku - 1st run initiation";
inline constexpr std::string_view kFirstRunText =
    "A number of logfiles has to be created, normally this must be done only once on first run "
    "of Tavi Sudoku. Depend on the speed of your PC, this can take a few minutes.";
inline constexpr std::string_view kLogfileFailureTitle = "Logfile creation failure";
inline constexpr std::string_view kCouldNotOpenSource = "Could not open source file ";

// The file in DataFolder that remembers, one stem a line, the levels whose
// delivered puzzle file was copied once (or that had files of their own).
inline constexpr std::string_view kDeliveredFileName = "Delivered.txt";

// Copies each level's `.sds` file from AppFolder to DataFolder where the level
// never had files: a level that was emptied (every puzzle moved out) stays
// empty, and a library the user has changed is never overwritten. A copy that
// fails leaves no half file behind.
void CopyLibraryFiles(const LibraryFolders& folders);

// Whether the level of `stem` had its files once (see kDeliveredFileName).
bool WasDelivered(const std::filesystem::path& dataFolder, std::string_view stem);

// `count` empty log records as the file `sdl`, through a temporary file: a kill
// leaves no half file under the name.
bool MakeEmptyLog(const std::filesystem::path& sdl, long count);

// Makes the `.sdl` files that are missing, one empty log record per puzzle, and
// brings the ones that are there in step with their puzzle files: an existing
// log is never rewritten or emptied, so a first run taken by mistake loses
// nothing. Stops with false at the first level whose `.sds` file is missing or
// holds no whole record (after saying which), or when a log file can't be
// written.
bool MaakSudLog(const LibraryFolders& folders, Notifier& notifier);

}  // namespace tavi
