// SPDX-License-Identifier: GPL-3.0-or-later
// Keeping a pair whole through kills and damage. Every writer that changes a
// pair leaves, at any instant, either the old pair or the new one:
//
// - an append writes the log record first and the puzzle record last, so the
//   puzzle file's length says what is in the pair; a torn tail is cut off on open;
// - a record written over another goes through a note (record_journal.h);
// - a rewrite writes both files anew beside the old ones, then puts down a commit
//   mark and renames them over the old ones; a kill before the mark leaves the old
//   pair (the new files are dropped on open), after it the new one (the renames
//   are finished on open).
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "library/records.h"

namespace tavi {

// Finishes what a kill left: a rewrite, a note, a dead run's moves
// (move_journal.h), torn tails. A missing log file is made, a short one gets
// empty records (nothing is lost), one with more is cut to the puzzle file's
// count; a log file without its puzzle file is moved aside and the level starts
// empty. Before a repair that changes a file beyond taking back a stopped
// append, a copy of the file as it was is kept beside it. A pair whose files
// don't read as their kinds, or a puzzle file of more than kMaxLibraryRecords,
// is refused and left as it is (`refused` is then set).
// Answers the number of records the pair holds, or -1 when there is no pair;
// `message` says what was repaired or refused, and stays empty when nothing was.
long OpenPair(const std::filesystem::path& folder, std::string_view stem,
              std::string* message = nullptr, bool* refused = nullptr);

// Gives record `number` (1 to count) of the new pair.
using PairSource =
    std::function<bool(long number, SudokuRecordBytes& sudoku, SudokuLogRecordBytes& log)>;

// Replaces the pair by `count` records from `source`, as a whole. With count 0
// both files go. On a failure the old pair stays and `why` says what went wrong.
bool RewritePair(const std::filesystem::path& folder, std::string_view stem, long count,
                 const PairSource& source, std::string* why = nullptr);

}  // namespace tavi
