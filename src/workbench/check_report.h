// SPDX-License-Identifier: GPL-3.0-or-later
// What a check of a library ends with: what becomes of the two files, and the
// report the workbench gives. The counters: R the puzzles moved to another level,
// O those moved to Outlaw, U those solved and left in place, out of T records.
#pragma once

#include <string>

namespace tavi {

enum class LibraryFate { Unchanged, Compact, Delete };

struct CheckReport {
    LibraryFate fate;
    std::string title;  // "Sudoku solve report", once in lower case
    std::string text;
};

// The first case of the report table that holds for the counters.
CheckReport ReportFor(long moved, long outlaw, long unchanged, long total);

}  // namespace tavi
