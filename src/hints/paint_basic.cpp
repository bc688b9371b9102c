// SPDX-License-Identifier: GPL-3.0-or-later
// Painting of the singles, the intersections, the subsets, bifurcation and the
// bivalue universal grave.
#include <cstdlib>

#include "hints/paints.h"

namespace tavi::hints {

namespace {

bool InRange(int v, int hi) { return v >= 0 && v <= hi; }

// The cells of a row (1), column (2) or box (3, by top left cell); none when the
// house is out of range.
std::span<const std::uint8_t> HouseCells(int kind, int row, int column, int leftTop) {
    if (kind == 1 && InRange(row, 8)) return UnitCells[row];
    if (kind == 2 && InRange(column, 8)) return UnitCells[9 + column];
    if (kind == 3 && InRange(leftTop, 80)) return UnitCells[18 + Global::BoxOfCell[leftTop]];
    return {};
}

bool InBox(int cell, int leftTop) { return Global::BoxLeftTopOfCell[cell] == leftTop; }

// The single and the guess look alike: the cell and its digit as the base.
void PaintPlacement(HintPainter& p, int cell, int digit) {
    p.ZetHintVak(cell, kBaseCell);
    p.ZetHintNummer(cell, digit, kBaseCandidates);
}

void HiddenSingle(HintPainter& p, const HintRecord& h) {
    if (!InRange(h.HintRow, 8) || !InRange(h.HintColumn, 8)) return;
    const int cell = 9 * h.HintRow + h.HintColumn;
    PaintHouse(p,
               h.HintVariant == 3   ? 3
               : h.HintVariant == 2 ? 2
               : h.HintVariant == 1 ? 1
                                    : 0,
               h.HintRow, h.HintColumn, Global::BoxLeftTopOfCell[cell], kPatternCell);
    PaintPlacement(p, cell, h.HintNumber);
}

// PointingPair: the digit keeps to one line inside the box, so the rest of the line loses it.
void PointingPair(HintPainter& p, const HintRecord& h) {
    if (!InRange(h.HintCell, 80) || !InRange(h.HintVariant, 5)) return;
    p.ZetHintBlok(h.HintCell, kPatternCell);
    const PointingLine line = PointingLineOf(h);
    const auto cells = HouseCells(line.row ? 1 : 2, line.line, line.line, 0);
    for (int c : cells)
        if (!InBox(c, h.HintCell)) p.ZetAttackedCell(c, h.HintNumber);
    for (int c : cells)
        if (InBox(c, h.HintCell) && p.Holds(h.HintNumber, c)) {
            p.ZetHintVak(c, kAttackingCell);
            p.ZetHintNummer(c, h.HintNumber, kAttackingCandidates);
        }
}

// BoxLineReduction: the digit keeps to the box on its line, so the rest of the box loses it.
void BoxLine(HintPainter& p, const HintRecord& h) {
    if (!InRange(h.HintCell, 80)) return;
    const auto line = HouseCells(h.HintVariant, h.HintRow, h.HintColumn, 0);
    if (line.empty()) return;
    PaintHouse(p, h.HintVariant, h.HintRow, h.HintColumn, 0, kPatternCell);
    p.ZetHintBlok(h.HintCell, kPatternCell);
    auto onLine = [&](int c) {
        return h.HintVariant == 1 ? c / 9 == h.HintRow : c % 9 == h.HintColumn;
    };
    for (int c : HouseCells(3, 0, 0, h.HintCell))
        if (!onLine(c)) p.ZetAttackedCell(c, h.HintNumber);
    for (int c : line)
        if (InBox(c, h.HintCell) && p.Holds(h.HintNumber, c)) {
            p.ZetHintVak(c, kAttackingCell);
            p.ZetHintNummer(c, h.HintNumber, kAttackingCandidates);
        }
}

void Subset(HintPainter& p, const HintRecord& h) {
    const int kind = std::abs(h.HintVariant);
    const auto house = HouseCells(kind, h.HintRow, h.HintColumn, h.HintCell);
    if (house.empty()) return;
    PaintHouse(p, kind, h.HintRow, h.HintColumn, h.HintCell, kPatternCell);
    const auto cells = ListPart(h.HintCells, 1, h.HintCellCount);
    const auto digits = ListPart(h.HintValues, 1, h.HintValueCount);
    if (h.HintVariant > 0) {
        // Naked: the set's digits go from the rest of the house.
        for (int d : digits)
            for (int c : house)
                p.ZetAttackedCell(c, d);
        for (int c : cells) {
            p.ZetHintVak(c, kAttackingCell);
            for (int d : digits)
                if (p.Holds(d, c)) p.ZetHintNummer(c, d, kAttackingCandidates);
        }
        return;
    }
    // Hidden: the set's cells lose every other digit.
    for (int c : cells) {
        for (int d = 1; d <= 9; ++d)
            p.ZetAttackedCell(c, d);
        for (int d : digits)
            if (p.Holds(d, c)) p.ZetHintNummer(c, d, kAttackingCandidates);
    }
}

}  // namespace

void PaintBasic(HintPainter& p, const HintRecord& h) {
    switch (h.HintKind) {
        case HintKind::NakedSingle: PaintPlacement(p, h.HintCell, h.HintNumber); break;
        case HintKind::HiddenSingle: HiddenSingle(p, h); break;
        case HintKind::PointingPair: PointingPair(p, h); break;
        case HintKind::BoxLineReduction: BoxLine(p, h); break;
        case HintKind::Subset: Subset(p, h); break;
        case HintKind::Bifurcation: PaintPlacement(p, h.HintCell, h.HintNumber); break;
        case HintKind::BivalueUniversalGrave:
            p.ZetHintVak(h.HintCell, kChainCell);
            for (int d : ListPart(h.HintValues, 1, h.HintValueCount))
                p.ZetHintNummer(h.HintCell, d, kAttackedCandidates);
            break;
        default: break;  // not a kind of this family
    }
}

}  // namespace tavi::hints
