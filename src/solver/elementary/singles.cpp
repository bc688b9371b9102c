// SPDX-License-Identifier: GPL-3.0-or-later
// Naked and hidden singles: the only rungs that every puzzle needs.
#include "solver/primitives.h"
#include "solver/techniques.h"

namespace tavi {

namespace {

// A single found in `cell`: under HintOnly the record, and the placement itself.
// Both kinds: HintRow, HintColumn the cell, HintNumber the digit; a naked single
// also the cell in HintCell, a hidden single the unit swept in HintVariant (3 box,
// 1 row, 2 column).
void ApplySingle(SolveContext& ctx, int digit, int cell, HintKind kind, int unitVariant) {
    if (ctx.HintOnly()) {
        HintRecord& h = ctx.hint;
        h.HintRow = cell / 9;
        h.HintColumn = cell % 9;
        h.HintNumber = digit;
        if (kind == HintKind::NakedSingle)
            h.HintCell = cell;
        else
            h.HintVariant = unitVariant;
        h.HintKind = kind;
    }
    PlaceDigit(ctx, digit, cell);
}

// Digits that stand as a candidate in exactly one cell of the unit.
CandidateMask DigitsOnce(const Board& board, const std::array<std::uint8_t, 9>& cells) {
    CandidateMask once = 0, more = 0;
    for (int c : cells) {
        const CandidateMask m = board.Candidates[c];
        more |= once & m;
        once |= m;
    }
    return CandidateMask(once & ~more);
}

}  // namespace

// The first empty cell, in reading order, with exactly one candidate.
bool NakedSingle(SolveContext& ctx) {
    const Board& b = ctx.board;
    for (int c = 0; c < 81; ++c) {
        if (b.CurrentGrid[c] == 0 && CountDigits(b.Candidates[c]) == 1) {
            ApplySingle(ctx, LowestDigit(b.Candidates[c]), c, HintKind::NakedSingle, 0);
            return true;
        }
    }
    return false;
}

// A digit with one place left in a unit. Boxes are swept first, then rows, then
// columns; inside a unit the lowest such digit comes first. The game leaves a
// cell that has only one candidate to NakedSingle, so that the player is never
// told a naked single as a hidden one; the rating is the same either way.
bool HiddenSingle(SolveContext& ctx) {
    static constexpr int kSweeps[3][2] = {{18, 3}, {0, 1}, {9, 2}};  // first unit, variant
    const Board& b = ctx.board;
    const bool game = ctx.side == Side::Game;
    for (const auto& [first, variant] : kSweeps) {
        for (int u = first; u < first + 9; ++u) {
            for (CandidateMask once = DigitsOnce(b, UnitCells[u]); once; once &= once - 1) {
                const int digit = LowestDigit(once);
                int cell = 0;
                for (int c : UnitCells[u])
                    if (b.Has(digit, c)) cell = c;
                if (game && CountDigits(b.Candidates[cell]) < 2) continue;
                ApplySingle(ctx, digit, cell, HintKind::HiddenSingle, variant);
                return true;
            }
        }
    }
    return false;
}

}  // namespace tavi
