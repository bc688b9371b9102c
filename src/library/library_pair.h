// SPDX-License-Identifier: GPL-3.0-or-later
// The two files of a level move together: record k of the `.sdl` file belongs to
// record k of the `.sds` file of the same stem. These routines read, write, add
// and take out records in both files at once, and put the first file back when
// the second can't follow, so a pair never falls out of step through them.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "grid/board.h"
#include "library/library_files.h"
#include "library/records.h"
#include "platform/notifier.h"

namespace tavi {

inline constexpr std::string_view kFileErrorTitle = "File Error";
inline constexpr std::string_view kWriteErrorText = "Error writing sudoku to file !";
inline constexpr std::string_view kPairRepairedTitle = "Library repaired";
// "Source file: Sudoku_Easy.sd* not found!": the star stands for either file.
std::string SourceFileNotFound(std::string_view stem);

// The pair opened for use (pair_guard.h): what a kill left is finished or cut
// off, with a message under "Library repaired" when something was. The number of
// records, or -1 when a file is missing.
long CheckedPair(const std::filesystem::path& dataFolder, std::string_view stem,
                 Notifier* notifier);

// Record `number` of both files, after CheckedPair. A missing file is reported as "Source file:
// <stem>* not found!", any other failure with what went wrong, both under "File
// Error". Nothing is changed in `sudoku` or `log` unless both were read.
bool ReadPair(const std::filesystem::path& dataFolder, std::string_view stem, long number,
              SudokuRecord& sudoku, SudokuLogRecord& log, Notifier* notifier);

// Both records at `number`: in place under one note, or appended at the end of
// both files, the log first.
bool WritePair(const std::filesystem::path& dataFolder, std::string_view stem, long number,
               const SudokuRecord& sudoku, const SudokuLogRecord& log, std::string* why = nullptr);

// Called with the number an append will take, before anything is written; an
// answer of false stops the append.
using BeforeAppend = std::function<bool(long number)>;

// Adds both records at count + 1, after repairing a pair left out of step or
// half there (then `why` gets what was repaired). Refuses a pair that can't be
// repaired and a pair that holds kMaxLibraryRecords. `number` gets the new
// record number.
bool AppendToPair(const std::filesystem::path& dataFolder, std::string_view stem,
                  const SudokuRecord& sudoku, const SudokuLogRecord& log, long* number = nullptr,
                  std::string* why = nullptr, const BeforeAppend& before = {});

// A maintenance routine for the Outlaw pair: appends the given records to the
// "Exported_Sudokus.sd" pair and takes record `currentSud` out of the Outlaw pair,
// the records after it moving up one. With one record left the Outlaw files go.
// On any failure, or a kill, the Outlaw pair stays as it was or is wholly the new
// one; the puzzle is never in neither pair.
bool ExportSudoku(const std::filesystem::path& dataFolder, int currentSud,
                  const SudokuRecord& sudoku, const SudokuLogRecord& log, Notifier* notifier);

// After BruteForceSolve answered true: the solution standing in CurrentGrid
// becomes the Solution, CurrentGrid is cleared, and the puzzle's two records are
// written back at `number` in the pair of `level`.
bool WriteBruteForceSolution(const std::filesystem::path& dataFolder, int level, long number,
                             Board& board, SudokuRecord& sudoku, const SudokuLogRecord& log,
                             Notifier* notifier);

}  // namespace tavi
