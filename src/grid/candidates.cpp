// SPDX-License-Identifier: GPL-3.0-or-later
#include "grid/candidates.h"

namespace tavi {

void Zet(Board& board, int digit, int cell) {
    const CandidateMask keep = CandidateMask(~DigitBit(digit));
    board.Candidates[cell] = 0;
    for (int peer : Peers[cell])
        board.Candidates[peer] &= keep;
}

bool EmptyCell(const Board& board) {
    // Runs before every rung of every pass: one sweep without branches.
    bool empty = false;
    for (int c = 0; c < 81; ++c)
        empty |= (board.CurrentGrid[c] == 0) & (board.Candidates[c] == 0);
    return empty;
}

bool Exclusief(const Board& board, const int (&set)[5], int count, int cell) {
    if (count < 2 || count > 5) return true;
    CandidateMask allowed = 0;
    for (int i = 0; i < count; ++i)
        allowed |= DigitBit(set[i]);
    return (board.Candidates[cell] & ~allowed) == 0;
}

bool Exclude(const Board& board, int digit, int cell) {
    for (int peer : Peers[cell])
        if (board.Has(digit, peer)) return true;
    return false;
}

void SetupCandidates(Board& board) {
    board.Candidates.fill(kAllCandidates);
    for (int c = 0; c < 81; ++c) {
        board.CurrentGrid[c] = board.Puzzle[c];
        if (board.Puzzle[c]) Zet(board, board.Puzzle[c], c);
    }
}

Board BoardFromPuzzle(const Digits& puzzle) {
    Board b;
    b.Puzzle = puzzle;
    SetupCandidates(b);
    return b;
}

}  // namespace tavi

namespace tavi {

bool GivensClash(const Digits& puzzle) {
    for (const auto& unit : UnitCells) {
        CandidateMask seen = 0;
        for (int c : unit) {
            if (puzzle[c] == 0) continue;
            const CandidateMask bit = DigitBit(puzzle[c]);
            if (seen & bit) return true;
            seen |= bit;
        }
    }
    return false;
}

}  // namespace tavi
