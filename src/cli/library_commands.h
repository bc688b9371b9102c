// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of tavi-sudoku-cli that make puzzles and move them in and out of
// library files: generate, library build, library export and library import.
// Each answers the exit status: 0, 1 when some input was skipped, 2 when the
// command could not do its work.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <istream>
#include <ostream>
#include <string>
#include <vector>

namespace tavi::cli {

// `count` minimal puzzles with one solution each, one per line; the same start
// value gives the same puzzles, whatever the number of threads.
int Generate(long count, std::uint64_t start, std::ostream& out, int threads = 1);

struct BuildOptions {
    std::filesystem::path out;
    std::array<long, 10> counts{};  // puzzles wanted per level 1..9
    std::uint64_t start = 1;        // of the random numbers
    double minutes = 10;            // stop after this long even when levels are short
    int threads = 1;                // the same library whatever the number, time allowing
    long walks = -1;                // walks of the search for hard puzzles at most; -1 no limit
    // Library files whose puzzles the search starts from; no random puzzles then.
    std::vector<std::filesystem::path> from;
};
// Generates and rates puzzles until every level has its count, the levels that
// random puzzles do not reach filled by the search for hard puzzles, or until the
// time is up; then writes the nine `.sds` files (best time 0) and reports per
// level the count, where the puzzles came from and how long they took.
int BuildLibrary(const BuildOptions& options, std::ostream& out, std::ostream& err);

// One line per record: puzzle, tab, solution, tab, best time as m:ss. Damaged
// records and a torn tail are named on `err` (status 2); the sound records are
// still written. With `score`, the difficulty score follows the best time.
int ExportLibrary(const std::filesystem::path& sdsFile, std::ostream& out, std::ostream& err,
                  bool score = false);

// Appends the puzzles of `in` to the pair of `level` in `dir` with their
// brute-force solutions; lines that are no puzzle or have no unique solution are
// reported by line number and skipped. A pair left out of step is repaired first
// and the repair reported.
int ImportLibrary(std::istream& in, int level, const std::filesystem::path& dir, std::ostream& out,
                  std::ostream& err, std::string_view source = "standard input");

// The command lines: args[0] is "generate" or "library".
int GenerateCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);
int LibraryCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

// library check DIR [--level L]: the workbench's Check All over each library of
// the folder (or of level L only): puzzles are rerated and moved, each library's
// report is written, then how many puzzles needed each technique as their hardest.
// library import TEXTFILE --dir DIR: the workbench's import of a foreign file
// (81-character lines, 729-character candidate lines, 9-line grids): each puzzle
// with one solution that is new to the library is rated and appended to the pair
// of its level; the report says where they went and what was refused.
// Both rate on `threads` threads; the files and reports are the same for any number.
int LibraryImportCommand(const std::filesystem::path& file, const std::filesystem::path& folder,
                         std::ostream& out, std::ostream& err, int threads = 1);

int LibraryCheckCommand(const std::filesystem::path& folder, int onlyLevel, std::ostream& out,
                        std::ostream& err, int threads = 1);

}  // namespace tavi::cli
