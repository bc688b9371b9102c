// SPDX-License-Identifier: GPL-3.0-or-later
// One complete board: the puzzle, its solution, the digits as they stand now and
// the live candidates. The game and the workbench each own one; the techniques see
// nothing else.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "grid/sets.h"
#include "grid/tables.h"

namespace tavi {

using Digits = std::array<std::uint8_t, 81>;

struct Board {
    Digits Puzzle{};       // the givens, 0 for an empty cell
    Digits Solution{};     // the solution, when known
    Digits CurrentGrid{};  // the digit now standing in each cell, givens included
    std::array<CandidateMask, 81> Candidates{};  // bit d-1: digit d possible; 0 for a filled cell

    bool Has(int digit, int cell) const { return HasDigit(Candidates[cell], digit); }
    DigitSet CandidatesOf(int cell) const { return DigitSet(Candidates[cell]); }
    CellSet CellsWith(int digit) const;  // the cells that have `digit` as a candidate
    int EmptyCount() const;              // cells of CurrentGrid without a digit
};

// Reads the first 81 characters of a line: '1'..'9' a given, '0' or '.' an empty cell.
// Anything else, or a line shorter than 81, gives nothing; `error` then says why.
std::optional<Digits> ParseDigits(std::string_view line, std::string* error = nullptr);

// 81 characters, '0' for an empty cell.
std::string FormatDigits(const Digits& digits, char empty = '0');

// A board as one line of three fields separated by blanks: the 81 givens, the 81
// digits now in the cells (givens included, '0' or '.' for empty), and 729
// characters of candidates, nine per cell in order, digit d at position d when it
// is a candidate and '.' otherwise. The solution is not part of it.
std::string FormatBoardLine(const Board& board);
// Reads such a line. A given that differs from the digit in its cell, a filled
// cell with candidates, or a malformed field gives nothing; `error` then says why.
std::optional<Board> ParseBoardLine(std::string_view line, std::string* error = nullptr);

}  // namespace tavi
