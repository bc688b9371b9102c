// SPDX-License-Identifier: GPL-3.0-or-later
// Records of a level written out as text for other programs: one puzzle a line,
// '.' for an empty cell, then the level. The import reads such a file back.
#pragma once

#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include "library/records.h"

namespace tavi {

// "4..7.....<tab>3<tab>Hard<tab>3.4": the puzzle, the level's number and its name,
// and the puzzle's difficulty score with one decimal.
std::string ExportLine(const SudokuRecord& record, int level, double score);

struct ExportResult {
    long written = 0;
    std::vector<std::string> damaged;  // the first kNamedRecords records left out, and why
    long damagedCount = 0;
    std::string failed;  // why the records could not be read or written; empty when they were
};

// Records `from` to `to` of the library of `level` in `folder`, read one at a
// time and scored; a damaged record is left out and named.
ExportResult ExportRecords(const std::filesystem::path& folder, int level, long from, long to,
                           std::ostream& out);

}  // namespace tavi
