// SPDX-License-Identifier: GPL-3.0-or-later
// Puzzles in the files of other programs, as the import reads them (and the
// game, a text pasted or dropped while a puzzle is made). These layouts are
// understood, line by line and mixed freely:
//  - a line whose first 81 characters are the cells ('1'-'9' a clue; '.', '0',
//    '_', '*' or 'x' an empty cell), anything after them ignored (a rating, a name);
//  - a line of 729 candidate characters, nine per cell, digit d at position d or
//    '.': a cell with one candidate is taken as a clue;
//  - a line with exactly one field of 81 cells among fields separated by blanks:
//    a number ("1.", "12)"), a rating or a name may stand before the puzzle;
//  - a line of 81 cells with blanks, '|', '+' or '-' between them;
//  - nine lines of nine cells each, with '|', '+', '-' and blanks between them as
//    separators, and lines of separators alone between the bands.
// A byte order mark before the first line is passed over. Blank lines and lines
// starting with '#', ';' or "//" are skipped. A line longer than 4,096
// characters is no puzzle line and is passed over unread; binary data ends the
// reading.
#pragma once

#include <functional>
#include <istream>
#include <string>
#include <vector>

#include "grid/board.h"

namespace tavi {

struct ForeignPuzzle {
    int line;  // where it starts, from 1
    Digits puzzle;
};
struct ForeignProblem {
    int line;
    std::string why;
};
struct ForeignPuzzles {
    std::vector<ForeignPuzzle> puzzles;
    std::vector<ForeignProblem> problems;
};

// Line by line, holding one line at a time: `each` for every puzzle (false stops
// the reading), `problem` for every line that is no puzzle. `lines`, when given,
// gets the number of lines read.
void ReadForeignPuzzles(std::istream& in, const std::function<bool(const ForeignPuzzle&)>& each,
                        const std::function<void(const ForeignProblem&)>& problem,
                        int* lines = nullptr);

// All of them at once, for small inputs.
ForeignPuzzles ReadForeignPuzzles(std::istream& in);

}  // namespace tavi
