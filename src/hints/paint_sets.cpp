// SPDX-License-Identifier: GPL-3.0-or-later
// Painting of the almost locked sets, 3D Medusa, the forcing chains and MultiFish.
#include <algorithm>

#include "hints/paints.h"

namespace tavi::hints {

namespace {

void Als(HintPainter& p, const HintRecord& h) {
    const AlsPair pair = AlsPairOf(h);
    for (int c : pair.first)
        p.ZetHintVak(c, kBaseCell);
    for (int c : pair.second)
        p.ZetHintVak(c, kAttackingCell);
    // Only the candidates that are there are shown, restricted and shared alike.
    for (const auto* set : {&pair.first, &pair.second})
        for (int c : *set) {
            if (p.Holds(h.HintNumber, c)) p.ZetHintNummer(c, h.HintNumber, kBaseCandidates);
            if (p.Holds(h.HintVariant, c)) p.ZetHintNummer(c, h.HintVariant, kAttackingCandidates);
        }
    for (const DigitRemoval& r : pair.removals)
        for (int c : r.cells)
            p.ZetAttackedCell(c, r.digit);
}

void Medusa(HintPainter& p, const HintRecord& h) {
    std::vector<MedusaCandidate> coloured;
    std::vector<int> colour;  // the sign of each entry's colour
    for (int i = 1; i <= std::min(h.HintCellCount, HintRecord::kListCapacity); ++i) {
        if (h.HintCells[i] < 0) continue;
        coloured.push_back(DecodeMedusa(h.HintCells[i]));
        colour.push_back(h.HintValues[i] < 0 ? -1 : 1);
    }
    auto colourOf = [&](int cell, int digit) {
        for (size_t i = 0; i < coloured.size(); ++i)
            if (coloured[i].cell == cell && coloured[i].digit == digit) return colour[i];
        return 0;
    };
    auto attackColour = [&](int sign) {
        if (sign == 0) return;
        for (size_t i = 0; i < coloured.size(); ++i)
            if (colour[i] == sign) p.ZetAttackedCell(coloured[i].cell, coloured[i].digit);
    };
    for (const MedusaCandidate& m : coloured)
        p.ZetHintVak(m.cell, kBaseCell);
    for (size_t i = 0; i < coloured.size(); ++i)
        p.ZetHintNummer(coloured[i].cell, coloured[i].digit,
                        colour[i] > 0 ? kBaseCandidates : kChainCandidates);

    const MedusaCandidate a = DecodeMedusa(h.HintRow), b = DecodeMedusa(h.HintColumn);
    switch (h.HintVariant) {
        case 1:  // two candidates of a cell share a colour: that colour is false
            attackColour(colourOf(a.cell, a.digit));
            break;
        case 2:  // a digit twice in a house in one colour: that colour is false
        case 6:  // a bi-value cell sees both its digits in one colour: false too
            attackColour(colourOf(a.cell, h.HintNumber));
            break;
        case 3:  // both colours in one cell: its uncoloured candidates go
            for (int d : DigitsOf(p.board(), b.cell))
                if (colourOf(b.cell, d) == 0) p.ZetAttackedCell(b.cell, d);
            break;
        case 4:
            for (int c : MedusaRule4Cells(h))
                p.ZetAttackedCell(c, h.HintNumber);
            break;
        case 5: p.ZetAttackedCell(b.cell, h.HintNumber); break;
    }
}

// ForcingChainFromCell and ForcingChainFromUnit: the target cell, and the candidates the hit takes
// from it.
void ForcingTarget(HintPainter& p, const HintRecord& h, int target) {
    p.ZetHintVak(target, kPatternCell);
    for (const Conclusion& c : h.Conclusions)
        if (!c.placed) p.ZetAttackedCell(c.cell, c.digit);
}

void ForcingFromUnit(HintPainter& p, const HintRecord& h) {
    if (h.HintVariant == 3 && h.HintRow >= 0 && h.HintRow <= 8)
        p.ZetHintBlok(Global::BoxLeftTop[h.HintRow], kPatternCell);
    else
        PaintHouse(p, h.HintVariant, h.HintRow, h.HintColumn, -1, kPatternCell);
    ForcingTarget(p, h, h.HintCell);
}

void MultiFish(HintPainter& p, const HintRecord& h) {
    const MultiFishPattern fish = MultiFishOf(h, p.board());
    for (int r : fish.truthRows)
        p.ZetHintRij(r, kAttackedCell);
    for (int c : fish.linkColumns)
        p.ZetHintKolom(c, kAttackedCell);
    for (const auto* removals : {&fish.outside, &fish.inLinkCells})
        for (const DigitRemoval& r : *removals)
            for (int c : r.cells) {
                p.ZetHintVak(c, kBaseCell);
                p.ZetHintNummer(c, r.digit, kAttackedCandidates);
            }
    for (int c : fish.linkCells)
        p.ZetHintVak(c, kAttackingCell);
}

}  // namespace

void PaintSet(HintPainter& p, const HintRecord& h) {
    switch (h.HintKind) {
        case HintKind::BiValueALSxz:
        case HintKind::ALSxz: Als(p, h); break;
        case HintKind::Medusa3D: Medusa(p, h); break;
        case HintKind::ForcingChainFromCell:
            p.ZetHintVak(h.HintCell, kAttackingCell);
            PaintCandidates(p, h.HintCell, kAttackingCandidates);
            ForcingTarget(p, h, h.HintCellCount);
            break;
        case HintKind::ForcingChainFromUnit: ForcingFromUnit(p, h); break;
        case HintKind::MultiFish: MultiFish(p, h); break;
        default: break;  // not a kind of this family
    }
}

}  // namespace tavi::hints
