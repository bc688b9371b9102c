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
    const int row = cell / 9, col = cell % 9, leftTop = Global::BoxLeftTopOfCell[cell];
    const CandidateMask bit = DigitBit(digit);
    for (int j = 0; j <= pointer; ++j) {
        const int c = FreeCells[j];
        if (!(board.Candidates[c] & bit)) continue;
        if (c / 9 == row)
            LogRowPeers[entry] |= std::uint16_t(1u << (c % 9));
        else if (c % 9 == col)
            LogColumnPeers[entry] |= std::uint16_t(1u << (c / 9));
        else if (Global::BoxLeftTopOfCell[c] == leftTop)
            LogBoxPeers[entry] |= std::uint16_t(1u << Global::PositionInBoxOfCell[c]);
        else
            continue;
        board.Candidates[c] &= CandidateMask(~bit);
        RebuildCell(board, c);
    }
}

void BruteForceSearch::Undo(Board& board, int pointer) {
    const int entry = LogPointer;
    const int cell = LogCell[entry];
    const CandidateMask bit = DigitBit(LogCandidate[entry]);
    board.CurrentGrid[cell] = 0;
    const int row = cell / 9, col = cell % 9, leftTop = Global::BoxLeftTopOfCell[cell];
    for (int i = 0; i < 9; ++i) {
        if (LogRowPeers[entry] >> i & 1) board.Candidates[9 * row + i] |= bit;
        if (LogColumnPeers[entry] >> i & 1) board.Candidates[9 * i + col] |= bit;
        if (LogBoxPeers[entry] >> i & 1) board.Candidates[leftTop + 9 * (i / 3) + i % 3] |= bit;
    }
    --LogPointer;
    // Only the cells that got the digit back have a different list now.
    for (int j = 0; j <= pointer; ++j) {
        const int c = FreeCells[j];
        if (board.Has(LogCandidate[entry], c) &&
            CellCandidateTotal[c] != CountDigits(board.Candidates[c]))
            RebuildCell(board, c);
    }
}

namespace {

// True if `digit` can stand nowhere in `unit`: neither placed there nor a
// candidate of an open cell. (A filled cell keeps its old candidates during the
// search, so only open cells count.)
bool NoPlaceInUnit(const Board& board, int unit, int digit) {
    for (int x : UnitCells[unit]) {
        const int placed = board.CurrentGrid[x];
        if (placed == digit || (placed == 0 && board.Has(digit, x))) return false;
    }
    return true;
}

}  // namespace

bool BruteForceSearch::DigitLostItsPlace(const Board& board, int cell, int digit) const {
    const int entry = LogPointer;
    const int row = cell / 9, col = cell % 9, leftTop = Global::BoxLeftTopOfCell[cell];
    // The cell's own other candidates may have had their last place in it.
    const int box = 18 + Global::BoxOfCell[cell];
    for (CandidateMask m = board.Candidates[cell] & ~DigitBit(digit); m; m &= m - 1) {
        const int other = LowestDigit(m);
        if (NoPlaceInUnit(board, row, other) || NoPlaceInUnit(board, 9 + col, other) ||
            NoPlaceInUnit(board, box, other))
            return true;
    }
    // A peer that lost the digit leaves its two other units to be looked at.
    for (int i = 0; i < 9; ++i) {
        if (LogRowPeers[entry] >> i & 1) {
            const int x = 9 * row + i;
            if (NoPlaceInUnit(board, 9 + i, digit) ||
                NoPlaceInUnit(board, 18 + Global::BoxOfCell[x], digit))
                return true;
        }
        if (LogColumnPeers[entry] >> i & 1) {
            const int x = 9 * i + col;
            if (NoPlaceInUnit(board, i, digit) ||
                NoPlaceInUnit(board, 18 + Global::BoxOfCell[x], digit))
                return true;
        }
        if (LogBoxPeers[entry] >> i & 1) {
            const int x = leftTop + 9 * (i / 3) + i % 3;
            if (NoPlaceInUnit(board, x / 9, digit) || NoPlaceInUnit(board, 9 + x % 9, digit))
                return true;
        }
    }
    return false;
}

int BruteForceSearch::Search(Board& board, Digits& solution, bool& contradiction) {
    // Step 1. List the open cells in rising order with their candidates.
    int n = 0;
    for (int c = 0; c < 81; ++c) {
        if (board.CurrentGrid[c]) continue;
        FreeCells[n++] = std::int8_t(c);
        TriedCount[c] = 0;
        RebuildCell(board, c);
        if (CellCandidateTotal[c] == 0) {
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
                if (CellCandidateTotal[FreeCells[j]] < CellCandidateTotal[FreeCells[p]])
                    std::swap(FreeCells[j], FreeCells[p]);
            }
            c = FreeCells[p];
        }
        const int digit = CellCandidates[c][TriedCount[c]++];
        board.CurrentGrid[c] = std::uint8_t(digit);
        RemoveCandidates(board, c, digit, p - 1);
        --p;
        // A dead end: some open cell has nothing left, or the digit has no place
        // left in a unit of a cell that just lost it; this cell tries its next.
        bool dead = false;
        for (int j = 0; j <= p && !dead; ++j) dead = CellCandidateTotal[FreeCells[j]] == 0;
        if (!dead && p >= 0) dead = DigitLostItsPlace(board, c, digit);
        if (dead) ++p;
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
    const bool hintOnly = ctx.HintOnly;
    ctx.HintOnly = false;
    const bool solvedByLogic = PreSolve(ctx, cellsToSolve, noSolutionFound);
    ctx.HintOnly = hintOnly;
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
    for (auto d : g) filled += d != 0;
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
        for (int p = 0; p < 9; ++p) has |= g[Global::CellOfBoxPosition[box][p]] != 0;
        emptyBoxes += !has;
    }
    if (emptyBoxes > 4) return refuse("More than four empty boxes are not allowed !");
    return true;
}

}  // namespace tavi
