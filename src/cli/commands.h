// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of tavi-sudoku-cli, each over streams so that tests can drive them.
// Every command answers the process exit status (puzzle_lines.h): 0; 1 when some
// puzzle was invalid (clashing givens: reported, not rated); 2 when some input
// line was no puzzle or the input was binary or unreadable (the other lines are
// still processed). `source` names the input in messages.
#pragma once

#include <istream>
#include <ostream>
#include <string_view>

namespace tavi::cli {

struct RateOptions {
    bool summary = false;  // counts per level and puzzles per second to `err`
    bool score = false;    // a fourth field: the difficulty score, one decimal
};

// Per puzzle: the 81 characters, the level 1..9 and its name; the workbench
// ladder in the default order, Outlaw when it fails. A puzzle with clashing
// givens gets "invalid" in place of its level and name; one with no solution or
// several, level 0 and "no unique solution". With `score` the difficulty score of
// the same run follows (solver/difficulty_score.h).
int Rate(std::istream& in, std::ostream& out, std::ostream& err, const RateOptions& options = {},
         std::string_view source = "standard input");

// Per puzzle: the 81 characters, "unique", "none" or "multiple", and the solution
// or "-". The input is read and answered a block of lines at a time, the block
// shared out over `threads`; the output is the same for any number of them.
int Solve(std::istream& in, std::ostream& out, std::ostream& err,
          std::string_view source = "standard input", int threads = 1);

// Per puzzle: a line per ladder hit ("step", its number, the technique number,
// the technique's name, the changes), then "result" with "solved" or "unsolved",
// the level and its name.
// With `explain`, each step line ends in the hint sentence of the step: what the
// rung reports under HintOnly on the board before it.
int Steps(std::istream& in, std::ostream& out, std::ostream& err, bool explain = false,
          std::string_view source = "standard input");

// A deterministic signature of the ladder: per puzzle the 81 characters, the
// level, the number of steps, of digits placed and of candidates removed, and the
// hits of each rung; a last line "hits" adds up the rungs' hits. Kept for a fixed
// list in the tests, so that no change of behaviour goes unnoticed.
int Signature(std::istream& in, std::ostream& out, std::ostream& err,
              std::string_view source = "standard input");

// Per puzzle: the 81 characters and the sentence that Hint gives on the fresh
// board with the default options, or "No logical hints, ..."; with `paint`, the
// hint's paints follow, one per line, each after a tab.
int Hint(std::istream& in, std::ostream& out, std::ostream& err, bool paint = false,
         std::string_view source = "standard input");

// Runs technique `technique` once on each board line (see FormatBoardLine) on the
// workbench side: the givens, a tab, and the changes ("B3-7 A1=5") or "none".
// With `hint` the game side looks instead, and the hint's sentence follows after
// another tab, and with `paint` its colours, joined by "; ", after one more. A
// malformed line is reported with its number; the status is then 2.
int RungCommand(int technique, std::istream& in, std::ostream& out, std::ostream& err,
                bool hint = false, bool paint = false, std::string_view source = "standard input");

// For each puzzle, the board line of every state at which the rating run had to
// go past the fixed head of the ladder (rungs 3 to 7 had nothing): the boards on
// which the ordered techniques work, for the rung command. With `all`, every
// state the run passes through.
int States(std::istream& in, std::ostream& out, std::ostream& err, bool all = false,
           std::string_view source = "standard input");

}  // namespace tavi::cli
