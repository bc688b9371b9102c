// The two files of a level move together: record k of the `.sdl` file belongs to
// record k of the `.sds` file of the same stem. These routines read, write, add
// and take out records in both files at once, and put the first file back when
// the second can't follow, so a pair never falls out of step through them.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "grid/board.h"
#include "library/library_files.h"
#include "grid/notifier.h"
#include "library/records.h"

namespace tavi {

inline constexpr std::string_view kFileErrorTitle = "File Error";
inline constexpr std::string_view kWriteErrorText = "Error writing sudoku to file !";
// "Source file: Sudoku_Easy.sd* not found!": the star stands for either file.
std::string SourceFileNotFound(std::string_view stem);

// Record `number` of both files. A missing file is reported as "Source file:
// <stem>* not found!", any other failure with what went wrong, both under "File
// Error". Nothing is changed in `sudoku` or `log` unless both were read.
bool ReadPair(const std::filesystem::path& dataFolder, std::string_view stem, long number,
              SudokuRecord& sudoku, SudokuLogRecord& log, Notifier* notifier);

// Both records at `number`, in place or appended at the end of both files.
bool WritePair(const std::filesystem::path& dataFolder, std::string_view stem, long number,
               const SudokuRecord& sudoku, const SudokuLogRecord& log, std::string* why = nullptr);

// Adds both records at count + 1. Refuses when the two files don't hold the same
// number of whole records, or the puzzle file is damaged. `number` gets the new
// record number.
bool AppendToPair(const std::filesystem::path& dataFolder, std::string_view stem,
                  const SudokuRecord& sudoku, const SudokuLogRecord& log, long* number = nullptr,
                  std::string* why = nullptr);

// A maintenance routine for the Outlaw pair: appends the given records to the
// "Exported_Sudokus.sd" pair and takes record `currentSud` out of the Outlaw pair,
// the records after it moving up one. With one record left the Outlaw files go.
// On any failure the Outlaw pair stays as it was.
bool ExportSudoku(const std::filesystem::path& dataFolder, int currentSud,
                  const SudokuRecord& sudoku, const SudokuLogRecord& log, Notifier* notifier);

// After BruteForceSolve answered true: the solution standing in CurrentGrid
// becomes the Solution, CurrentGrid is cleared, and the puzzle's two records are
// written back at `number` in the pair of `level`.
bool WriteBruteForceSolution(const std::filesystem::path& dataFolder, int level, long number,
                             Board& board, SudokuRecord& sudoku, const SudokuLogRecord& log,
                             Notifier* notifier);

}  // namespace tavi
