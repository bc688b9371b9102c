// SPDX-License-Identifier: GPL-3.0-or-later
#include "solver/brute_force.h"

#include "grid/candidates.h"
#include "solver/ladder.h"

namespace tavi {

void BruteForceSearch::RebuildCell(const Board& board, int cell) {
    int n = 0;
    for (CandidateMask m = board.Candidates[cell]; m; m &= m - 1)
        CellCandidates[cell][n++] = std::uint8_t(LowestDigit(m));
    CellCandidateTotal[cell] = std::uint8_t(n);
}

void BruteForceSearch::RemoveCandidates(Board& board, int cell, int digit, int pointer) {
    const int entry = ++LogPointer;
    LogCell[entry] = std::int8_t(cell);
    LogCandidate[entry] = std::int8_t(digit);
    LogColumnPeers[entry] = LogRowPeers[entry] = LogBoxPeers[entry] = 0;
    const int row = cell / 9, col = cell % 9;
    const CandidateMask bit = DigitBit(digit);
    DeadEnd = false;
    // The cell is no longer open: its other candidates lose a place in its units.
    for (CandidateMask m = CandidateMask(board.Candidates[cell] & ~bit); m; m &= m - 1)
        LosePlace(cell, LowestDigit(m));
    // Only the peers can lose the digit, and of them only the open cells 0..pointer.
    for (int c : Peers[cell]) {
        if (!(board.Candidates[c] & bit)) continue;
        const int at = Position[c];
        if (at > pointer || FreeCells[at] != c) continue;
        if (c / 9 == row)
            LogRowPeers[entry] |= std::uint16_t(1u << (c % 9));
        else if (c % 9 == col)
            LogColumnPeers[entry] |= std::uint16_t(1u << (c / 9));
        else
            LogBoxPeers[entry] |= std::uint16_t(1u << Global::PositionInBoxOfCell[c]);
        board.Candidates[c] &= CandidateMask(~bit);
        RebuildCell(board, c);
        LosePlace(c, digit);
        if (CellCandidateTotal[c] == 0) DeadEnd = true;
    }
}

void BruteForceSearch::LosePlace(int cell, int digit) {
    for (int unit : {cell / 9, 9 + cell % 9, 18 + int(Global::BoxOfCell[cell])})
        if (--Places[unit][digit] == 0) DeadEnd = true;
}

void BruteForceSearch::RegainPlace(int cell, int digit) {
    for (int unit : {cell / 9, 9 + cell % 9, 18 + int(Global::BoxOfCell[cell])})
        ++Places[unit][digit];
}

int BruteForceSearch::ListOpenCells(const Board& board) {
    int n = 0;
    for (int c = 0; c < 81; ++c) {
        if (board.CurrentGrid[c]) continue;
        Position[c] = std::int8_t(n);
        FreeCells[n++] = std::int8_t(c);
        TriedCount[c] = 0;
        RebuildCell(board, c);
    }
    for (auto& unit : Places)
        unit.fill(0);
    for (int c = 0; c < 81; ++c) {
        const CandidateMask m =
            board.CurrentGrid[c] ? DigitBit(board.CurrentGrid[c]) : board.Candidates[c];
        for (CandidateMask k = m; k; k &= k - 1)
            RegainPlace(c, LowestDigit(k));
    }
    return n;
}

void BruteForceSearch::Undo(Board& board, int /*pointer*/) {
    const int entry = LogPointer--;
    const int cell = LogCell[entry];
    const CandidateMask bit = DigitBit(LogCandidate[entry]);
    board.CurrentGrid[cell] = 0;
    const int row = cell / 9, col = cell % 9, leftTop = Global::BoxLeftTopOfCell[cell];
    // Only the cells that get the digit back have a different list; they are open
    // cells of the pointer's range, since they were when they lost it.
    auto restore = [&](int c) {
        board.Candidates[c] |= bit;
        RebuildCell(board, c);
        RegainPlace(c, LogCandidate[entry]);
    };
    for (CandidateMask m = CandidateMask(board.Candidates[cell] & ~bit); m; m &= m - 1)
        RegainPlace(cell, LowestDigit(m));
    for (unsigned m = LogRowPeers[entry]; m; m &= m - 1)
        restore(9 * row + std::countr_zero(m));
    for (unsigned m = LogColumnPeers[entry]; m; m &= m - 1)
        restore(9 * std::countr_zero(m) + col);
    for (unsigned m = LogBoxPeers[entry]; m; m &= m - 1) {
        const int i = std::countr_zero(m);
        restore(leftTop + 9 * (i / 3) + i % 3);
    }
}

int BruteForceSearch::Search(Board& board, Digits& solution, bool& contradiction) {
    // Step 1. List the open cells in rising order with their candidates.
    const int n = ListOpenCells(board);
    for (int j = 0; j < n; ++j) {
        if (CellCandidateTotal[FreeCells[j]] == 0) {
            contradiction = true;
            return 0;
        }
    }

    // Step 2. Depth first: p points at the last open entry; -1 means all filled.
    LogPointer = 0;
    int solutions = 0;
    int p = n - 1;
    while (p < n) {
        if (p == -1) {
            if (++solutions == 2) break;
            solution = board.CurrentGrid;
            ++p;
            continue;
        }
        int c = FreeCells[p];
        if (TriedCount[c] > 0 && TriedCount[c] == CellCandidateTotal[c]) {
            // Every candidate of this cell is spent: back to the cell before.
            Undo(board, p);
            TriedCount[c] = 0;
            ++p;
            continue;
        }
        if (TriedCount[c] > 0) {
            Undo(board, p - 1);
        } else {
            // Entered afresh: take the open cell with the fewest candidates.
            for (int j = 0; j < p; ++j) {
                if (CellCandidateTotal[FreeCells[j]] < CellCandidateTotal[FreeCells[p]]) {
                    std::swap(FreeCells[j], FreeCells[p]);
                    Position[FreeCells[j]] = std::int8_t(j);
                    Position[FreeCells[p]] = std::int8_t(p);
                }
            }
            c = FreeCells[p];
        }
        const int digit = CellCandidates[c][TriedCount[c]++];
        board.CurrentGrid[c] = std::uint8_t(digit);
        RemoveCandidates(board, c, digit, p - 1);
        --p;
        // A dead end: an open cell has nothing left, or a digit has no place left
        // in some unit; this cell then tries its next candidate. Only this step's
        // removals can have made either happen, and RemoveCandidates saw them.
        if (p != -1 && DeadEnd) ++p;
    }
    return solutions;
}

int BruteForceSolutions(SolveContext& ctx, bool& noSolutionFound) {
    Board& b = ctx.board;
    noSolutionFound = false;
    SetupCandidates(b);
    if (GivensClash(b.Puzzle)) {
        noSolutionFound = true;
        return 0;
    }
    int cellsToSolve = b.EmptyCount();
    if (cellsToSolve == 0) return 1;

    // The logic first takes away nearly all the work of an easy puzzle.
    bool solvedByLogic = false;
    {
        ModeScope applying(ctx, ctx.Mode().Without(SolveMode::kHintOnly));
        solvedByLogic = PreSolve(ctx, cellsToSolve, noSolutionFound);
    }
    if (solvedByLogic) return 1;
    if (noSolutionFound) return 0;

    BruteForceSearch search;
    Digits solution{};
    const int found = search.Search(b, solution, noSolutionFound);
    if (found == 1) b.CurrentGrid = solution;
    return found;
}

bool BruteForceSolve(SolveContext& ctx, bool& noSolutionFound) {
    return BruteForceSolutions(ctx, noSolutionFound) == 1;
}

bool BruteForceSolve(SolveContext& ctx) {
    bool noSolutionFound = false;
    return BruteForceSolve(ctx, noSolutionFound);
}

bool UniqueSud(Board& board) {
    Board copy;
    copy.CurrentGrid = board.CurrentGrid;
    if (GivensClash(copy.CurrentGrid)) return false;
    copy.Candidates.fill(kAllCandidates);
    for (int c = 0; c < 81; ++c)
        if (copy.CurrentGrid[c]) Zet(copy, copy.CurrentGrid[c], c);
    BruteForceSearch search;
    Digits solution{};
    bool contradiction = false;
    if (copy.EmptyCount() == 0) return true;
    if (search.Search(copy, solution, contradiction) != 1) return false;
    board.CurrentGrid = solution;
    return true;
}

bool SudMeetRestrictions(const Board& board, Notifier* notifier) {
    auto refuse = [&](std::string_view text) {
        if (notifier) notifier->Message(kRestrictionsTitle, text);
        return false;
    };
    const Digits& g = board.CurrentGrid;
    int filled = 0;
    for (auto d : g)
        filled += d != 0;
    if (filled < 17) return refuse("A minimum of 17 clues is required !");
    if (filled == 81) return refuse("The sudoku is allready solved !");

    for (int i = 0; i < 3; ++i) {
        int rowsWithDigit = 0, columnsWithDigit = 0;
        for (int k = 0; k < 3; ++k) {
            bool rowHas = false, columnHas = false;
            for (int j = 0; j < 9; ++j) {
                rowHas |= g[9 * (3 * i + k) + j] != 0;
                columnHas |= g[9 * j + 3 * i + k] != 0;
            }
            rowsWithDigit += rowHas;
            columnsWithDigit += columnHas;
        }
        if (rowsWithDigit <= 1)
            return refuse("More than one empty row in the same band is not allowed !");
        if (columnsWithDigit <= 1)
            return refuse("More than one empty column in the same stack is not allowed !");
    }

    int emptyBoxes = 0;
    for (int box = 0; box < 9; ++box) {
        bool has = false;
        for (int p = 0; p < 9; ++p)
            has |= g[Global::CellOfBoxPosition[box][p]] != 0;
        emptyBoxes += !has;
    }
    if (emptyBoxes > 4) return refuse("More than four empty boxes are not allowed !");
    return true;
}

}  // namespace tavi
