// The commands of tavi-sudoku-cli, each over streams so that tests can drive them.
// Every command answers the process exit status: 0, or 1 when some input line was
// no puzzle (the other lines are still processed).
#pragma once

#include <istream>
#include <ostream>

namespace tavi::cli {

struct RateOptions {
    bool summary = false;  // counts per level and puzzles per second to `err`
};

// Per puzzle: the 81 characters, the level 1..9 and its name; the workbench
// ladder in the default order, Outlaw when it fails.
int Rate(std::istream& in, std::ostream& out, std::ostream& err, const RateOptions& options = {});

// Per puzzle: the 81 characters, "unique", "none" or "multiple", and the solution
// or "-". The input is read and answered a block of lines at a time, the block
// shared out over `threads`; the output is the same for any number of them.
int Solve(std::istream& in, std::ostream& out, std::ostream& err, int threads = 1);

// Per puzzle: a line per ladder hit ("step", its number, the technique number,
// the technique's name, the changes), then "result" with "solved" or "unsolved",
// the level and its name.
// With `explain`, each step line ends in the hint sentence of the step: what the
// rung reports under HintOnly on the board before it.
int Steps(std::istream& in, std::ostream& out, std::ostream& err, bool explain = false);

// A deterministic signature of the ladder: per puzzle the 81 characters, the
// level, the number of steps, of digits placed and of candidates removed. Kept
// for a fixed list in the tests, so that no change of behaviour goes unnoticed.
int Signature(std::istream& in, std::ostream& out, std::ostream& err);

// Per puzzle: the 81 characters and the sentence that Hint gives on the fresh
// board with the default options, or "No logical hints, ..."; with `paint`, the
// hint's paints follow, one per line, each after a tab.
int Hint(std::istream& in, std::ostream& out, std::ostream& err, bool paint = false);

}  // namespace tavi::cli
