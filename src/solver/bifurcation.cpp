// Bifurcation, the last rung: try each candidate of each two-candidate cell and
// keep it when the logic then solves the whole board. A trial that fails proves
// nothing that is used; only a full logical solution counts. Digits are tried in
// turn, each over all cells, so the lowest digit wins and then the lowest cell.
#include "solver/ladder.h"
#include "solver/primitives.h"
#include "solver/techniques.h"

namespace tavi {

bool Bifurcation(SolveContext& ctx) {
    Board& b = ctx.board;
    const auto entryCandidates = b.Candidates;
    const auto entryGrid = b.CurrentGrid;

    // The trials change the board for real, whatever the caller's mode: they never
    // fill a hint record, never reach the move log and never show in a trace.
    const bool hintOnly = ctx.HintOnly, forceZet = ctx.ForceZet;
    auto* const trace = ctx.trace;

    for (int digit = 1; digit <= 9; ++digit) {
        for (int cell = 0; cell < 81; ++cell) {
            const CandidateMask entry = entryCandidates[cell];
            if (CountDigits(entry) != 2 || !HasDigit(entry, digit)) continue;

            ctx.HintOnly = false;
            ctx.ForceZet = true;
            ctx.trace = nullptr;
            const bool solved = BIFSolveSudoku(ctx, digit, cell);
            // Put the board back from the entry state, not from a log.
            b.Candidates = entryCandidates;
            b.CurrentGrid = entryGrid;
            ctx.HintOnly = hintOnly;
            ctx.ForceZet = forceZet;
            ctx.trace = trace;
            if (!solved) continue;

            if (ctx.HintOnly) {
                ctx.hint.HintCell = cell;
                ctx.hint.HintNumber = digit;
                ctx.hint.HintKind = 20;
                return true;
            }
            // The guess itself is a step of the game while Autosolve plays.
            ctx.ForceZet = false;
            PlaceDigit(ctx, digit, cell, 8);
            ctx.ForceZet = forceZet;
            return true;
        }
    }
    return false;
}

}  // namespace tavi
