// SPDX-License-Identifier: GPL-3.0-or-later
// The painting of each family of kinds, after WisKleuren; PaintHint dispatches
// to them by HintKind. The order of the paints is the order in which the board
// is coloured, and it matters: a later paint replaces an earlier one.
#pragma once

#include <span>

#include "hints/hint_facts.h"
#include "hints/hint_paint.h"

namespace tavi::hints {

// Singles, intersections, subsets, bifurcation and the bivalue grave: 1..5, 20, 24.
void PaintBasic(HintPainter& p, const HintRecord& hint);
// Fish and single-digit patterns: 6..9, 13, 15, 25, 26.
void PaintFish(HintPainter& p, const HintRecord& hint);
// Wings, exclusions, Sue-de-Coq and the rectangles: 10, 11, 14, 16, 17, 27, 29, 30.
void PaintPattern(HintPainter& p, const HintRecord& hint);
// Colours and chains: 12, 18, 19, 21, 22, 23, 28, 31.
void PaintChain(HintPainter& p, const HintRecord& hint);
// Almost locked sets, Medusa, forcing chains and MultiFish: 32..37.
void PaintSet(HintPainter& p, const HintRecord& hint);

// Shared by several families.

// `digit` attacked in every cell outside `cells` that sees them all.
inline void AttackSeenByAll(HintPainter& p, std::span<const int> cells, int digit) {
    for (int c : SeenByAll(cells))
        p.ZetAttackedCell(c, digit);
}
// Every candidate the hit takes away, attacked where it shows.
inline void AttackRemovals(HintPainter& p, const HintRecord& hint) {
    for (const Conclusion& c : hint.Conclusions)
        if (!c.placed) p.ZetAttackedCell(c.cell, c.digit);
}
// Each candidate of `cell` in `role`.
inline void PaintCandidates(HintPainter& p, int cell, HintRole role) {
    for (int d : DigitsOf(p.board(), cell))
        p.ZetHintNummer(cell, d, role);
}
// The unit of a row (1), column (2) or box (3) in `role`; `box` a top left cell.
inline void PaintHouse(HintPainter& p, int kind, int row, int column, int box, HintRole role) {
    if (kind == 1) p.ZetHintRij(row, role);
    if (kind == 2) p.ZetHintKolom(column, role);
    if (kind == 3) p.ZetHintBlok(box, role);
}

}  // namespace tavi::hints
