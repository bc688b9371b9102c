#include "solver/primitives.h"

namespace tavi {

void PlaceDigit(SolveContext& ctx, int digit, int cell, int level) {
    if (ctx.AutosolveActive && !ctx.ForceZet && ctx.listener)
        ctx.listener->ZetAuto(ctx.board, digit, cell);
    else
        Zet(ctx.board, digit, cell);
    ctx.board.CurrentGrid[cell] = std::uint8_t(digit);
    if (ctx.trace) ctx.trace->push_back({BoardChange::Placed, cell, digit});
    ctx.RaiseLevel(level);
}

}  // namespace tavi
