// SPDX-License-Identifier: GPL-3.0-or-later
// Every technique of the ladder, one routine each. A technique reads the
// candidates, stops at its first hit, removes candidates or places a digit through
// the primitives and answers true; the walk then raises SolvingLevel to the rung's
// level in the technique catalog. Under HintOnly it changes nothing and fills the
// hint record instead.
//
#pragma once

#include "solver/solve_context.h"

namespace tavi {

// Singles and intersections.
bool HiddenSingle(SolveContext& ctx);
bool NakedSingle(SolveContext& ctx);
bool PointingPair(SolveContext& ctx);
bool BoxLine(SolveContext& ctx);
// Removes `digit` from the rest of the line through segment `segment` (0..2 the
// box's rows, 3..5 its columns) of the box with top left cell `leftTop`.
bool VerwijderPP(SolveContext& ctx, int digit, int leftTop, int segment);
// Removes `digit` from the other six cells of the box that line `line` crosses at
// its segment `segment` (0..2); `kind` 1 for a row, 2 for a column.
bool VerwijderBL(SolveContext& ctx, int digit, int line, int segment, int kind);

// Naked sets of 2..5 and hidden sets of 2..3 digits.
bool NakedHidden(SolveContext& ctx, bool naked, int size);
// Removes the first `count` digits of `digits` from the cells of a unit other than
// the first `count` of `cells`; `kind` 1 the row of cells[0], 2 its column, 3 its box.
bool Verwijder(SolveContext& ctx, const int (&digits)[5], int count, const int (&cells)[5],
               int kind);

// Fish, wings, patterns and chains.
bool XWing(SolveContext& ctx);
bool SwordFish(SolveContext& ctx);
bool MultiXWing(SolveContext& ctx);
bool EmptyRectangle(SolveContext& ctx);
bool XYWing(SolveContext& ctx);
bool TwoStringKite(SolveContext& ctx);
bool Skyscraper(SolveContext& ctx);
bool XYZWing(SolveContext& ctx);
// Takes `digit` from every cell that sees both branches, other than the stem and
// the branches. `checkType` names the caller (1 XY-Wing, 2 two-string kite, 3
// skyscraper, ...) and is not read; `stem` may be -1 where there is none.
bool VerwijderXYWing(SolveContext& ctx, int checkType, int stem, int takVak1, int takVak2,
                     int digit);
// Takes `digit` from every cell that sees the stem and both branches.
bool VerwijderXYZWing(SolveContext& ctx, int stem, int takVak1, int takVak2, int digit);
bool SimpleColoring(SolveContext& ctx);
bool JellyFish(SolveContext& ctx);
bool WXYZWing(SolveContext& ctx);
// Takes `digit` from every cell that sees the hinge and all three branches.
bool VerwijderWXYZWing(SolveContext& ctx, int stem, int takVak1, int takVak2, int takVak3,
                       int digit);
// Takes `digit` from every cell that sees all three branches (the hinge lacks it).
bool VerwijderWXYZWing2(SolveContext& ctx, int stem, int takVak1, int takVak2, int takVak3,
                        int digit);
// Below 0 nothing found, 0 candidates removed, above 0 that many digits placed.
int MultiColor(SolveContext& ctx);
bool FinnedXWing(SolveContext& ctx);
bool Medusa(SolveContext& ctx);
bool SueDeCoq(SolveContext& ctx);
bool APE(SolveContext& ctx);
bool UniqueRectangle(SolveContext& ctx);
bool AvoidableRectangle(SolveContext& ctx);
bool ExtendedAPE(SolveContext& ctx);
bool BUG(SolveContext& ctx);
// 1 or 3 candidates removed, 2 one digit placed, anything else nothing found.
// NiceLoops with 6 walks the short loops, with 7 the long ones (the level of its rung).
int NiceLoops(SolveContext& ctx, int newLevel);
int AIC(SolveContext& ctx, int chainLimit);
bool XYChain(SolveContext& ctx);
bool ATE(SolveContext& ctx);
bool ALSxz(SolveContext& ctx);
bool MultiFish(SolveContext& ctx);
bool Forcing(SolveContext& ctx);
bool ExtendedATE(SolveContext& ctx);

// The last rung: a guess in a two-candidate cell kept only if the logic then
// solves the whole board.
bool Bifurcation(SolveContext& ctx);

}  // namespace tavi
