// Reading puzzles for the command-line companion: one per line, the first 81
// characters are the puzzle, the rest of the line is ignored. Blank lines and
// lines starting with '#' are skipped; a line that is no puzzle is reported with
// its line number and the reading goes on.
#pragma once

#include <functional>
#include <istream>
#include <ostream>
#include <string_view>

#include "grid/board.h"

namespace tavi::cli {

struct PuzzleLine {
    int lineNumber;
    std::string_view text;  // the 81 characters as given
    Digits digits;
};

// Calls `each` for every puzzle of `in`. Bad lines go to `err`. Answers the
// number of bad lines.
int ForEachPuzzle(std::istream& in, std::ostream& err,
                  const std::function<void(const PuzzleLine&)>& each);

}  // namespace tavi::cli
