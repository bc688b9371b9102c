// SPDX-License-Identifier: GPL-3.0-or-later
#include "solver/primitives.h"

namespace tavi {

void PlaceDigit(SolveContext& ctx, int digit, int cell) {
    ctx.hint.Conclusions.Add(cell, digit, true);
    if (ctx.HintOnly()) return;
    if (ctx.AutosolveActive() && !ctx.ForceZet() && ctx.listener)
        ctx.listener->ZetAuto(ctx.board, digit, cell);
    else
        Zet(ctx.board, digit, cell);
    ctx.board.CurrentGrid[cell] = std::uint8_t(digit);
}

}  // namespace tavi
