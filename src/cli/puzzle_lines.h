// SPDX-License-Identifier: GPL-3.0-or-later
// Reading puzzles for the command-line companion: one per line, the first 81
// characters are the puzzle, the rest of the line is ignored. Blank lines and
// lines starting with '#' are skipped; a line that is no puzzle is reported with
// its source and line number and the reading goes on. Binary data ends the
// reading at the line where it starts.
#pragma once

#include <filesystem>
#include <functional>
#include <istream>
#include <ostream>
#include <string>
#include <string_view>

#include "grid/board.h"

namespace tavi::cli {

// The exit status of every command.
inline constexpr int kExitOk = 0;
inline constexpr int kExitSomeInvalid = 1;  // some puzzles are invalid or have no answer
inline constexpr int kExitBadInput = 2;     // bad usage, a file that can't be read, bad lines

inline constexpr std::string_view kStandardInput = "standard input";

// How many lines of one kind a command names on standard error; the rest are
// counted ("and 12 more ...").
inline constexpr std::size_t kNamedLines = 20;

struct PuzzleLine {
    int lineNumber;
    std::string_view text;  // the 81 characters as given
    Digits digits;
};

// Calls `each` for every puzzle of `in`, read from `source`. Bad lines, binary
// data and read errors go to `err` as "source, line N: ...". Answers the number
// of such faults.
int ForEachPuzzle(std::istream& in, std::ostream& err,
                  const std::function<void(const PuzzleLine&)>& each,
                  std::string_view source = kStandardInput);

// Why `file` can't be read as input (missing, a folder, no permission), or empty.
std::string InputFileProblem(const std::filesystem::path& file);

// "source, line N: " for messages about a line.
std::string Where(std::string_view source, int lineNumber);

// A puzzle whose givens clash is reported on `err` as invalid; true if it was.
bool ReportClash(const PuzzleLine& p, std::string_view source, std::ostream& err);

}  // namespace tavi::cli
