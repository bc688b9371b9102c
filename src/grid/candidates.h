// SPDX-License-Identifier: GPL-3.0-or-later
// The plain candidate routines of a board. Everything that changes candidates goes
// through these, or through VerwijderKnop of the solver, which adds the hint and
// move-log behaviour on top of WisKnop.
#pragma once

#include "grid/board.h"

namespace tavi {

// Places `digit` in `cell` as far as candidates go: the cell loses all its
// candidates and its row, column and box lose the digit. CurrentGrid is left to
// the caller, who writes it directly before or after.
void Zet(Board& board, int digit, int cell);

// True if `digit` is still a candidate (a visible mark in the game) of `cell`.
inline bool KnopAan(const Board& board, int digit, int cell) { return board.Has(digit, cell); }

// Takes `digit` away from `cell`; true if it was there.
inline bool WisKnop(Board& board, int digit, int cell) {
    const CandidateMask bit = DigitBit(digit);
    if (!(board.Candidates[cell] & bit)) return false;
    board.Candidates[cell] &= CandidateMask(~bit);
    return true;
}

// The contradiction test: true if some cell without a digit has no candidate left.
bool EmptyCell(const Board& board);

// True if `cell` has no candidate outside the first `count` digits of `set`
// (count 2..5; any other count answers true). The cell need not hold them all.
bool Exclusief(const Board& board, const int (&set)[5], int count, int cell);

// True if `digit` is a candidate of some other cell of the row, column or box of `cell`.
bool Exclude(const Board& board, int digit, int cell);

// Builds CurrentGrid and the candidates from Puzzle: all candidates, then each
// given placed in turn.
void SetupCandidates(Board& board);

// A board with `puzzle` laid on it and its candidates set up.
Board BoardFromPuzzle(const Digits& puzzle);

}  // namespace tavi

namespace tavi {

// True if two givens of the same digit share a unit. Such a puzzle has no
// solution, yet no cell of it runs out of candidates, so the solvers ask first.
bool GivensClash(const Digits& puzzle);

}  // namespace tavi
