// SPDX-License-Identifier: GPL-3.0-or-later
// Painting of the wings, the aligned exclusions, Sue-de-Coq and the unique and
// avoidable rectangles.
#include <algorithm>

#include "hints/paints.h"

namespace tavi::hints {

namespace {

bool ValidCell(int cell) { return cell >= 0 && cell < 81; }

// XYWing, XYZWing and WXYZWing: the cells that see every holder of the digit among the
// pattern lose it (the hit's removals); the first cell is the stem (or hinge),
// the others branches.
void Wing(HintPainter& p, const HintRecord& h, int size, bool stemHoldsDigit) {
    const auto cells = ListPart(h.HintCells, 1, size);
    if (!std::all_of(cells.begin(), cells.end(), ValidCell)) return;
    const int n = h.HintNumber;
    const std::vector<int> holders(cells.begin() + (stemHoldsDigit ? 0 : 1), cells.end());
    AttackRemovals(p, h);
    p.ZetHintVak(cells[0], kBaseCell);
    for (size_t i = 1; i < cells.size(); ++i)
        p.ZetHintVak(cells[i], kAttackingCell);
    PaintCandidates(p, cells[0], kBaseCandidates);
    for (size_t i = 1; i < cells.size(); ++i)
        PaintCandidates(p, cells[i], kChainCandidates);
    for (int c : holders)
        p.ZetHintNummer(c, n, kAttackingCandidates);
}

void WXYZWing(HintPainter& p, const HintRecord& h) {
    const bool hingeHolds = h.HintVariant == 1;
    Wing(p, h, 4, hingeHolds);
    if (hingeHolds && ValidCell(h.HintCells[1])) p.ZetHintVak(h.HintCells[1], kAttackingCell);
}

// AlignedPairExclusion and AlignedTripleExclusion (the record as FillExclusion
// in patterns/exclusion.cpp writes it): `size` cells of which each loses the
// digits that its tag marks in HintValues; the further cells did the reducing.
void Exclusion(HintPainter& p, const HintRecord& h, int size) {
    const int form = h.HintVariant;
    if (form >= 1 && form <= 4) {
        if (form % 2 == 1)
            p.ZetHintRij(h.HintRow, kPatternCell);
        else
            p.ZetHintKolom(h.HintColumn, kPatternCell);
        p.ZetHintBlok(ExclusionBoxLeftTop(h), kPatternCell);
    }
    const auto cells = ListPart(h.HintCells, 1, size);
    const auto reducers = ListPart(h.HintCells, size + 1, h.HintCellCount);
    for (int c : cells)
        p.ZetHintVak(c, kAttackedCell);
    for (int c : reducers) {
        p.ZetHintVak(c, kChainCell);
        PaintCandidates(p, c, kChainCandidates);
    }
    std::vector<int> eliminated;
    for (int v : ListPart(h.HintValues, 1, h.HintValueCount)) {
        int index = -1, digit = 0;
        if (size == 2)
            index = v > 0 ? 0 : 1, digit = v > 0 ? v : -v;
        else if (v >= 101 && v <= 109)
            index = 2, digit = v - 100;
        else if (v >= 11 && v <= 19)
            index = 1, digit = v - 10;
        else if (v >= 1 && v <= 9)
            index = 0, digit = v;
        if (index < 0 || index >= int(cells.size())) continue;
        p.ZetHintNummer(cells[index], digit, kAttackedCandidates);
        eliminated.push_back(digit);
    }
    for (int c : reducers)
        for (int d : eliminated)
            if (p.Holds(d, c)) p.ZetHintNummer(c, d, kAttackingCandidates);
}

// What the hit takes away, as it noted it.
void AttackRemovals(HintPainter& p, const HintRecord& h) {
    for (const Conclusion& c : h.Conclusions)
        if (!c.placed) p.ZetAttackedCell(c.cell, c.digit);
}

void SueDeCoq(HintPainter& p, const HintRecord& h) {
    const bool row = h.HintRow != -1;
    const int line = row ? h.HintRow : h.HintColumn;
    if (line < 0 || line > 8 || h.HintVariant < 0 || h.HintVariant > 8) return;
    const auto& lineCells = UnitCells[row ? line : 9 + line];
    const auto lineGroup = ListPart(h.HintCells, 1, h.HintCellCount);
    const auto boxGroup = ListPart(h.HintValues, 1, h.HintValueCount);
    const Board& b = p.board();
    auto inBox = [&](int c) { return Global::BoxOfCell[c] == h.HintVariant; };
    std::vector<int> intersection;
    for (int c : lineCells)
        if (inBox(c) && b.Candidates[c] != 0) intersection.push_back(c);

    p.ZetHintBlok(Global::BoxLeftTop[h.HintVariant], kPatternCell);
    if (row)
        p.ZetHintRij(line, kPatternCell);
    else
        p.ZetHintKolom(line, kPatternCell);
    for (int c : intersection) {
        p.ZetHintVak(c, kBaseCell);
        PaintCandidates(p, c, kBaseCandidates);
    }
    for (const auto* group : {&lineGroup, &boxGroup})
        for (int c : *group) {
            p.ZetHintVak(c, kChainCell);
            PaintCandidates(p, c, kChainCandidates);
        }
    AttackRemovals(p, h);
}

// UniqueRectangle and AvoidableRectangle: the corners with the roles of cell and candidate swapped,
// as the chains paint their loops, then what the hit removes.
void Rectangle(HintPainter& p, const HintRecord& h) {
    const auto corners = ListPart(h.HintCells, 1, 4);
    if (!std::all_of(corners.begin(), corners.end(), ValidCell)) return;
    for (int c : corners) {
        p.ZetHintVak(c, kAttackingCandidates);
        for (int d : {h.HintValues[1], h.HintValues[2]})
            if (p.Holds(d, c)) p.ZetHintNummer(c, d, kAttackingCell);
    }
    AttackRemovals(p, h);
}

}  // namespace

void PaintPattern(HintPainter& p, const HintRecord& h) {
    switch (h.HintKind) {
        case HintKind::XYWing: Wing(p, h, 3, false); break;
        case HintKind::XYZWing: Wing(p, h, 3, true); break;
        case HintKind::WXYZWing: WXYZWing(p, h); break;
        case HintKind::AlignedPairExclusion: Exclusion(p, h, 2); break;
        case HintKind::AlignedTripleExclusion: Exclusion(p, h, 3); break;
        case HintKind::SueDeCoq: SueDeCoq(p, h); break;
        case HintKind::UniqueRectangle:
        case HintKind::AvoidableRectangle: Rectangle(p, h); break;
        default: break;  // not a kind of this family
    }
}

}  // namespace tavi::hints
