// SPDX-License-Identifier: GPL-3.0-or-later
// What a record read from disk must hold before anything indexes with it. The
// library files may come from elsewhere or be damaged, so every field is checked
// against its range; the answer names the first field that is wrong.
#pragma once

#include <string>

#include "library/records.h"

namespace tavi {

// Empty when the record is sound: puzzle cells 0 to 9, a solution of 1 to 9 in
// every cell that is a filled grid agreeing with every clue, and a best time of
// whole minutes and 0 to 59 seconds.
std::string CheckSudokuRecord(const SudokuRecord& record);

// Empty when the record is sound: cells 0 to 9, a clock whose two fields share a
// sign with 0 to 59 seconds, StepCount 0 to 100, and each stored step a known
// kind on a cell of the board with marks of nine bits. Steps past StepCount are
// dead and not looked at.
std::string CheckSudokuLogRecord(const SudokuLogRecord& record);

}  // namespace tavi
