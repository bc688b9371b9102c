// SPDX-License-Identifier: GPL-3.0-or-later
// Exhaustive search: does a puzzle have exactly one solution, and which?
// The search keeps a log of which peers lost a digit at each trial, so that a
// trial is taken back exactly and without searching.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "grid/board.h"
#include "solver/solve_context.h"

namespace tavi {

class BruteForceSearch {
  public:
    // The cells still to fill: entries 0..pointer are open, those above are on
    // the search path.
    std::array<std::int8_t, 81> FreeCells{};
    std::array<std::uint8_t, 81> CellCandidateTotal{};             // per cell
    std::array<std::array<std::uint8_t, 9>, 81> CellCandidates{};  // per cell, rising
    std::array<std::uint8_t, 81> TriedCount{};                     // per cell
    std::array<std::int8_t, 81> Position{};  // where an open cell stands in FreeCells

    // Lists the open cells of `board` in rising order in FreeCells (with their
    // positions and candidate lists) and answers how many there are. A search
    // built by hand starts here too.
    int ListOpenCells(const Board& board);

    // The search log, 1-based; entry 0 unused. The depth never exceeds 81.
    int LogPointer = 0;
    std::array<std::int8_t, 82> LogCell{};
    std::array<std::int8_t, 82> LogCandidate{};
    std::array<std::uint16_t, 82> LogColumnPeers{};  // bit r: the cell of row r in the column
    std::array<std::uint16_t, 82> LogRowPeers{};     // bit c: the cell of column c in the row
    std::array<std::uint16_t, 82> LogBoxPeers{};     // bit 3a+b: row a, column b of the box

    // For each unit and digit, the places the digit still has there: standing in
    // the unit, or a candidate of an open cell. A count that falls to 0 means the
    // branch holds no solution.
    std::array<std::array<std::uint8_t, 10>, 27> Places{};
    // Set by RemoveCandidates when its removals left an open cell without
    // candidates or a digit without a place in some unit.
    bool DeadEnd = false;

    // After the search filled `cell` with `digit`: the open cells 0..pointer of
    // its row, column and box lose the digit, and the log says which.
    void RemoveCandidates(Board& board, int cell, int digit, int pointer);
    // Takes back the last entry of the log.
    void Undo(Board& board, int pointer);
    // Lists the candidates of `cell` from its mask.
    void RebuildCell(const Board& board, int cell);

    // Searches the open cells of `board` (CurrentGrid and candidates prepared).
    // Answers the number of solutions found, stopping at 2; the first goes to
    // `solution`. `contradiction` is set when an open cell has no candidate at all
    // before the search begins.
    int Search(Board& board, Digits& solution, bool& contradiction);

  private:
    void LosePlace(int cell, int digit);
    void RegainPlace(int cell, int digit);
};

// The number of solutions of Puzzle: 0, 1, or 2 for "two or more". The logic
// of the ladder's head goes first; the search does the rest. With exactly one,
// the solution stands in CurrentGrid. `noSolutionFound` is set for a puzzle
// with an obvious contradiction: givens that clash, or a cell that runs out of
// candidates before the search begins.
int BruteForceSolutions(SolveContext& ctx, bool& noSolutionFound);

// The workbench's uniqueness answer for Puzzle. True if it has exactly one
// solution, which then stands in CurrentGrid. `noSolutionFound` tells a puzzle
// with an obvious contradiction from one with several solutions.
bool BruteForceSolve(SolveContext& ctx, bool& noSolutionFound);
bool BruteForceSolve(SolveContext& ctx);

// The game's uniqueness answer for the digits now in CurrentGrid, on a private
// copy of the board: the candidates are not touched. True if there is exactly
// one solution, which then stands in CurrentGrid.
bool UniqueSud(Board& board);

// Whether a user's entry may be a puzzle at all; says why not through `notifier`.
bool SudMeetRestrictions(const Board& board, Notifier* notifier);
inline constexpr std::string_view kRestrictionsTitle = "Tavi Sudoku";

}  // namespace tavi
