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

    for (int digit = 1; digit <= 9; ++digit) {
        for (int cell = 0; cell < 81; ++cell) {
            const CandidateMask entry = entryCandidates[cell];
            if (CountDigits(entry) != 2 || !HasDigit(entry, digit)) continue;

            // The trials change the board for real, whatever the caller's mode: they
            // never fill a hint record and never reach the move log.
            bool solved = false;
            {
                ModeScope trial(
                    ctx, ctx.Mode().Without(SolveMode::kHintOnly).With(SolveMode::kForceZet));
                solved = BIFSolveSudoku(ctx, digit, cell);
            }
            // Put the board back from the entry state, not from a log.
            b.Candidates = entryCandidates;
            b.CurrentGrid = entryGrid;
            ctx.hint.Conclusions.Clear();
            if (!solved) continue;

            if (ctx.HintOnly()) {
                ctx.hint.HintCell = cell;
                ctx.hint.HintNumber = digit;
                ctx.hint.HintKind = 20;
                PlaceDigit(ctx, digit, cell);
                return true;
            }
            // The guess itself is a step of the game while Autosolve plays.
            ModeScope guess(ctx, ctx.Mode().Without(SolveMode::kForceZet));
            PlaceDigit(ctx, digit, cell);
            return true;
        }
    }
    return false;
}

}  // namespace tavi
