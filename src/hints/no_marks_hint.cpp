// SPDX-License-Identifier: GPL-3.0-or-later
#include "hints/no_marks_hint.h"

#include "grid/candidates.h"
#include "solver/techniques.h"

namespace tavi {

std::optional<SpecialHit> FindSpecialHint(const Digits& grid,
                                          const std::function<void(std::string_view)>& scanning) {
    // The private table: all candidates, less what the digits on the board forbid.
    SolveContext ctx(Side::Game);
    ctx.board.Puzzle = grid;
    SetupCandidates(ctx.board);

    auto single = [&](bool (*rung)(SolveContext&)) -> std::optional<SpecialHit> {
        ModeScope looking(ctx, ctx.Mode().With(SolveMode::kHintOnly));
        if (!rung(ctx)) return std::nullopt;
        return SpecialHit{9 * ctx.hint.HintRow + ctx.hint.HintColumn, ctx.hint.HintNumber};
    };
    auto say = [&](std::string_view text) {
        if (scanning) scanning(text);
    };
    while (true) {
        say("Scanning for Hidden Single - Please be patient");
        if (auto hit = single(HiddenSingle)) return hit;
        say("Scanning for Naked Single - Please be patient");
        if (auto hit = single(NakedSingle)) return hit;
        // The eliminations work on the private table only, and silently.
        if (PointingPair(ctx) || BoxLine(ctx)) continue;
        if (NakedHidden(ctx, true, 2) || NakedHidden(ctx, true, 3) || NakedHidden(ctx, false, 2) ||
            NakedHidden(ctx, true, 4) || NakedHidden(ctx, false, 3) || NakedHidden(ctx, true, 5))
            continue;
        return std::nullopt;
    }
}

}  // namespace tavi
