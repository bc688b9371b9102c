// SPDX-License-Identifier: GPL-3.0-or-later
// Painting of the colours and the chains.
#include <algorithm>

#include "hints/paints.h"

namespace tavi::hints {

namespace {

bool ValidCell(int cell) { return cell >= 0 && cell < 81; }
bool Contains(const std::vector<int>& cells, int c) {
    return std::find(cells.begin(), cells.end(), c) != cells.end();
}

void SimpleColors(HintPainter& p, const HintRecord& h) {
    const int n = h.HintNumber;
    auto first = ListPart(h.HintCells, 1, h.HintCellCount);
    auto second = ListPart(h.HintValues, 1, h.HintValueCount);
    if (h.HintKind == HintKind::SimpleColorsTrap) {
        for (int c : first) {
            p.ZetHintVak(c, kChainCell);
            p.ZetHintNummer(c, n, kBaseCandidates);
        }
    } else {
        // A wrap: the colour of the two cells that see each other is false, and
        // it may be either list; the other colour stays.
        if (Contains(second, h.HintCell)) std::swap(first, second);
        for (int c : first)
            p.ZetAttackedCell(c, n);
    }
    for (int c : second) {
        p.ZetHintVak(c, kChainCell);
        p.ZetHintNummer(c, n, kChainCandidates);
    }
    p.ZetHintVak(h.HintCell, kChainCell);
    p.ZetHintVak(h.HintVariant, kAttackingCell);
    if (h.HintKind != HintKind::SimpleColorsTrap || !ValidCell(h.HintCell) ||
        !ValidCell(h.HintVariant))
        return;
    // A trap: what sees both colours loses the digit.
    const int ends[] = {h.HintCell, h.HintVariant};
    for (int c : SeenByAll(ends))
        if (!Contains(first, c) && !Contains(second, c)) p.ZetAttackedCell(c, n);
}

// XYChain and DoubleImplicationChain. A cell enters the chain by one digit and leaves it by the
// other: the first cell enters by the chain's digit, every later cell by the
// exit digit of the cell before.
void XYChain(HintPainter& p, const HintRecord& h) {
    const auto cells = ListPart(h.HintCells, 1, h.HintCellCount);
    if (cells.empty() || !std::all_of(cells.begin(), cells.end(), ValidCell)) return;
    const int n = h.HintNumber;
    const bool doubleImplication = h.HintKind == HintKind::DoubleImplicationChain;
    for (size_t i = 0; i < cells.size(); ++i) {
        const bool end = i == 0 || i + 1 == cells.size();
        const int entry = i == 0 ? n : h.HintValues[i];
        const int exit = h.HintValues[i + 1];
        if (doubleImplication) {
            p.ZetHintVak(cells[i], end ? kBaseCell : kAttackedCell);
            p.ZetHintNummer(cells[i], entry, kAttackedCandidates);
        } else {
            p.ZetHintVak(cells[i], end ? kAttackingCell : kChainCell);
            p.ZetHintNummer(cells[i], entry, kBaseCandidates);
        }
        p.ZetHintNummer(cells[i], exit, kChainCandidates);
    }
    if (doubleImplication) return;
    p.ZetHintNummer(cells.front(), n, kAttackingCandidates);
    p.ZetHintNummer(cells.back(), n, kAttackingCandidates);
    const int ends[] = {cells.front(), cells.back()};
    AttackSeenByAll(p, ends, n);
}

// MultiColoringType1 and MultiColoringType2 (coded as chains/multi_colors.cpp
// writes them): colours 0 and 1 the first cluster, 2 and 3 the second.
void MultiColors(HintPainter& p, const HintRecord& h) {
    const int n = h.HintNumber;
    const auto entries = ListPart(h.HintCells, 1, h.HintCellCount);
    if (h.HintKind == HintKind::MultiColoringType1) {
        // The colours that are false, then the ones that stay.
        for (int e : entries) {
            if (e < 0) continue;
            p.ZetHintVak(e % 81, e / 81 < 2 ? kChainCell : kBaseCell);
            p.ZetHintNummer(e % 81, n, kAttackedCandidates);
        }
        for (int e : ListPart(h.HintValues, 1, h.HintValueCount))
            if (e >= 0) p.ZetHintNummer(e % 81, n, e / 81 < 2 ? kChainCandidates : kBaseCandidates);
        // The opposites of the false colours are placed: shown as a placement is.
        for (const Conclusion& c : h.Conclusions)
            if (c.placed) {
                p.ZetHintVak(c.cell, kBaseCell);
                p.ZetHintNummer(c.cell, c.digit, kBaseCandidates);
            }
        return;
    }
    for (int e : entries)
        if (e >= 0)
            p.ZetHintNummer(e % 81, n, e / 81 % 2 == 0 ? kBaseCandidates : kChainCandidates);
    const int pair[] = {h.HintValues[1], h.HintValues[2]};
    if (!ValidCell(pair[0]) || !ValidCell(pair[1])) return;
    AttackSeenByAll(p, pair, n);
    for (int c : pair)
        p.ZetHintVak(c, kAttackingCell);
}

// NiceLoop and AIC. Each cell of the loop is painted with the roles of cell and
// candidate swapped (the candidate role for the cell, the cell role for the
// digit); this has always been so and sets the loops apart on the board.
// `digitAt(i)` is the digit of entry i.
template <typename DigitAt>
void Loop(HintPainter& p, const HintRecord& h, DigitAt digitAt) {
    const int count = std::min(h.HintCellCount, HintRecord::kListCapacity);
    const auto cells = ListPart(h.HintCells, 1, count);
    if (count < 2 || !std::all_of(cells.begin(), cells.end(), ValidCell)) return;
    const std::vector<int> loop(cells.begin(), cells.end() - 1);
    for (int i = 1; i < count; ++i) {
        p.ZetHintVak(h.HintCells[i], kAttackingCandidates);
        p.ZetHintNummer(h.HintCells[i], digitAt(i), kAttackingCell);
    }
    switch (h.HintVariant) {
        case 3:  // the last entry sees both ends of the chain and loses its digit
            break;
        case 2:  // the first cell must hold its digit
            p.ZetHintVak(h.HintCells[1], kBaseCell);
            p.ZetHintNummer(h.HintCells[1], digitAt(1), kBaseCandidates);
            break;
        case 1:
            // The houses of the weak links between two cells, off the loop.
            for (int k = 2; k < count; k += 2) {
                const int a = h.HintCells[k], b = h.HintCells[k + 1];
                if (a == b) continue;
                const int units[] = {a / 9, 9 + a % 9, 18 + Global::BoxOfCell[a]};
                const int others[] = {b / 9, 9 + b % 9, 18 + Global::BoxOfCell[b]};
                for (int u = 0; u < 3; ++u) {
                    if (units[u] != others[u]) continue;
                    for (int c : UnitCells[units[u]])
                        if (!Contains(loop, c)) p.ZetHintVak(c, kPatternCell);
                }
            }
            break;
    }
    // Last, every candidate the loop takes away, wherever it stands: in the
    // houses of the weak links, in a cell of a weak link inside a cell, and on the
    // loop itself.
    AttackRemovals(p, h);
}

}  // namespace

void PaintChain(HintPainter& p, const HintRecord& h) {
    switch (h.HintKind) {
        case HintKind::SimpleColorsTrap:
        case HintKind::SimpleColorsWrap: SimpleColors(p, h); break;
        case HintKind::XYChain:
        case HintKind::DoubleImplicationChain: XYChain(p, h); break;
        case HintKind::MultiColoringType1:
        case HintKind::MultiColoringType2: MultiColors(p, h); break;
        case HintKind::NiceLoop: Loop(p, h, [&](int) { return h.HintNumber; }); break;
        case HintKind::AIC: Loop(p, h, [&](int i) { return h.HintValues[i]; }); break;
        default: break;  // not a kind of this family
    }
}

}  // namespace tavi::hints
