// SPDX-License-Identifier: GPL-3.0-or-later
// Bifurcation, the last rung: try each candidate of each two-candidate cell and
// keep it when the logic then solves the whole board. A trial that fails proves
// nothing that is used; only a full logical solution counts. Digits are tried in
// turn, each over all cells, so the lowest digit wins and then the lowest cell.
#include "solver/ladder.h"
#include "solver/primitives.h"
#include "solver/techniques.h"

namespace tavi {

bool Bifurcation(SolveContext& ctx) {
    const Board& b = ctx.board;
    int trials = 0;

    for (int digit = 1; digit <= 9; ++digit) {
        for (int cell = 0; cell < 81; ++cell) {
            const CandidateMask entry = b.Candidates[cell];
            if (CountDigits(entry) != 2 || !HasDigit(entry, digit)) continue;

            // Each trial runs on a copy of the context, whose board it changes for
            // real whatever the caller's mode: it never fills the caller's hint
            // record, never reaches the move log, and leaves the board and the
            // level as they were.
            SolveContext trial = ctx;
            trial.listener = nullptr;
            bool solved = false;
            {
                ModeScope forced(
                    trial, trial.Mode().Without(SolveMode::kHintOnly).With(SolveMode::kForceZet));
                solved = BIFSolveSudoku(trial, digit, cell);
            }
            ++trials;
            if (!solved) continue;
            ctx.stepSize = {.links = 0, .trials = trials};

            if (ctx.HintOnly()) {
                // The record of Bifurcation: HintCell the cell and HintNumber the digit
                // placed.
                ctx.hint.HintCell = cell;
                ctx.hint.HintNumber = digit;
                ctx.hint.HintKind = HintKind::Bifurcation;
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
