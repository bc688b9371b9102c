// SPDX-License-Identifier: GPL-3.0-or-later
// Painting of the fish and of the single-digit patterns.
#include <algorithm>

#include "hints/paints.h"

namespace tavi::hints {

namespace {

int RowOf(int cell) { return cell / 9; }
int ColumnOf(int cell) { return cell % 9; }
bool ValidCell(int cell) { return cell >= 0 && cell < 81; }

// The cells of a row (1), column (2) or box (3, by number) but `a` and `b`.
std::vector<int> UnitBut(int kind, int index, int a, int b) {
    std::vector<int> out;
    if (index < 0 || index > 8) return out;
    for (int c : UnitCells[(kind - 1) * 9 + index])
        if (c != a && c != b) out.push_back(c);
    return out;
}

// XWing, Swordfish and Jellyfish: the base lines and the cross lines, the digit gone from the
// cross lines, and the square's cells as the attackers.
void Fish(HintPainter& p, const HintRecord& h) {
    const FishLines lines = FishLinesOf(h);
    for (int r : lines.rows)
        p.ZetHintRij(r, kPatternCell);
    for (int c : lines.columns)
        p.ZetHintKolom(c, kPatternCell);
    if (h.HintVariant == 1)
        for (int c : lines.columns)
            for (int x : UnitBut(2, c, -1, -1))
                p.ZetAttackedCell(x, h.HintNumber);
    if (h.HintVariant == 2)
        for (int r : lines.rows)
            for (int x : UnitBut(1, r, -1, -1))
                p.ZetAttackedCell(x, h.HintNumber);
    for (int c : ListPart(h.HintCells, 1, h.HintCellCount)) {
        p.ZetHintVak(c, kAttackingCell);
        p.ZetHintNummer(c, h.HintNumber, kAttackingCandidates);
    }
}

void MultiValueXWing(HintPainter& p, const HintRecord& h) {
    const int pc = h.HintCells[1], q = h.HintCells[2], s = h.HintCells[3], t = h.HintCells[4];
    const int a = h.HintValues[1], b = h.HintValues[2], x = h.HintValues[3], y = h.HintValues[4];
    const int form = h.HintVariant;
    if (form < 1 || form > 6 || !ValidCell(pc) || !ValidCell(q) || !ValidCell(s) || !ValidCell(t))
        return;
    // The units that reserve the two digits.
    if (form <= 2) {
        p.ZetHintRij(RowOf(pc), kPatternCell);
        p.ZetHintRij(RowOf(s), kPatternCell);
    } else if (form <= 4) {
        p.ZetHintKolom(ColumnOf(pc), kPatternCell);
        p.ZetHintKolom(ColumnOf(s), kPatternCell);
    } else if (h.HintRow >= 0 && h.HintRow <= 8 && h.HintColumn >= 0 && h.HintColumn <= 8) {
        p.ZetHintBlok(Global::BoxLeftTop[h.HintRow], kPatternCell);
        p.ZetHintBlok(Global::BoxLeftTop[h.HintColumn], kPatternCell);
    }
    for (int c : {pc, q, s, t})
        p.ZetHintVak(c, kAttackingCell);
    // Each forced digit leaves the rest of the unit where the reservations collide.
    std::vector<int> xUnit, yUnit;
    switch (form) {
        case 1:
        case 6:
            xUnit = UnitBut(2, ColumnOf(pc), pc, s), yUnit = UnitBut(2, ColumnOf(q), q, t);
            break;
        case 2:
        case 4: xUnit = UnitBut(3, h.HintRow, pc, s), yUnit = UnitBut(3, h.HintColumn, q, t); break;
        default: xUnit = UnitBut(1, RowOf(pc), pc, s), yUnit = UnitBut(1, RowOf(q), q, t); break;
    }
    for (int c : xUnit)
        p.ZetAttackedCell(c, x);
    for (int c : yUnit)
        p.ZetAttackedCell(c, y);
    for (int c : {pc, q})
        p.ZetHintNummer(c, a, kBaseCandidates);
    for (int c : {s, t})
        p.ZetHintNummer(c, b, kBaseCandidates);
    for (int c : {pc, s})
        p.ZetHintNummer(c, x, kAttackingCandidates);
    for (int c : {q, t})
        p.ZetHintNummer(c, y, kAttackingCandidates);
}

// EmptyRectangle. The target would rule out the near end of the conjugate pair and so
// force the far end; the far end closes one crossing line of the box, the target
// the other.
void EmptyRectangle(HintPainter& p, const HintRecord& h) {
    const int n = h.HintNumber, target = h.HintCell, far = h.HintCells[1], box = h.HintVariant;
    if (!ValidCell(target) || !ValidCell(far) || !ValidCell(box)) return;
    p.ZetHintRij(h.HintRow, kPatternCell);
    p.ZetHintKolom(h.HintColumn, kPatternCell);
    p.ZetHintVak(target, kAttackedCell);
    p.ZetHintNummer(target, n, kAttackedCandidates);
    p.ZetHintVak(far, kChainCell);
    p.ZetHintNummer(far, n, kChainCandidates);
    const auto& boxCells = UnitCells[18 + Global::BoxOfCell[box]];
    for (int c : boxCells)
        if (p.Holds(n, c)) {
            p.ZetHintVak(c, kAttackingCell);
            p.ZetHintNummer(c, n, kAttackingCandidates);
        }
    // The box's three cells on the crossing line of the far end: the line the
    // forced value empties.
    const bool onRow = RowOf(far) == h.HintRow;
    for (int c : boxCells)
        if (onRow ? RowOf(c) == h.HintRow : ColumnOf(c) == h.HintColumn) {
            p.ZetHintVak(c, kBaseCell);
            p.ZetHintNummer(c, n, kBaseCandidates);
        }
}

void FinnedXWing(HintPainter& p, const HintRecord& h) {
    const int n = h.HintNumber;
    const auto corners = ListPart(h.HintCells, 3, 6);
    for (int c : corners)
        if (!ValidCell(c)) return;
    const bool rows = h.HintVariant == 1;
    if (!rows && h.HintVariant != 2) return;
    // Base lines through [3] and [5], cover lines through [3] and [4].
    if (rows) {
        p.ZetHintRij(RowOf(corners[0]), kPatternCell);
        p.ZetHintRij(RowOf(corners[2]), kPatternCell);
        p.ZetHintKolom(ColumnOf(corners[0]), kPatternCell);
        p.ZetHintKolom(ColumnOf(corners[1]), kPatternCell);
    } else {
        p.ZetHintKolom(ColumnOf(corners[0]), kPatternCell);
        p.ZetHintKolom(ColumnOf(corners[2]), kPatternCell);
        p.ZetHintRij(RowOf(corners[0]), kPatternCell);
        p.ZetHintRij(RowOf(corners[1]), kPatternCell);
    }
    // The fin: the other holders of the digit on the finned line.
    for (int c : UnitBut(rows ? 1 : 2, rows ? RowOf(corners[2]) : ColumnOf(corners[2]), corners[2],
                         corners[3]))
        if (p.Holds(n, c)) {
            p.ZetHintVak(c, kAttackingCell);
            p.ZetHintNummer(c, n, kAttackingCandidates);
        }
    for (int c : corners) {
        p.ZetHintVak(c, kBaseCell);
        p.ZetHintNummer(c, n, kBaseCandidates);
    }
    for (int c : ListPart(h.HintCells, 1, std::min(h.HintCellCount, 2)))
        p.ZetAttackedCell(c, n);
}

void TwoStringKite(HintPainter& p, const HintRecord& h) {
    if (h.HintVariant < 0 || h.HintVariant > 8) return;
    p.ZetHintBlok(Global::BoxLeftTop[h.HintVariant], kPatternCell);
    p.ZetHintRij(h.HintRow, kPatternCell);
    p.ZetHintKolom(h.HintColumn, kPatternCell);
    for (int c : ListPart(h.HintCells, 1, 4)) {
        p.ZetHintVak(c, kAttackingCell);
        p.ZetHintNummer(c, h.HintNumber, kAttackingCandidates);
    }
    AttackRemovals(p, h);  // every cell seen by both free ends
}

void Skyscraper(HintPainter& p, const HintRecord& h) {
    const bool rows = h.HintVariant == 1;
    if ((!rows && h.HintVariant != 2) || !ValidCell(h.HintCells[1])) return;
    if (rows) {
        p.ZetHintRij(h.HintRow, kBaseCell);
        p.ZetHintRij(h.HintColumn, kPatternCell);
        p.ZetHintKolom(ColumnOf(h.HintCells[1]), kPatternCell);
    } else {
        p.ZetHintKolom(h.HintRow, kBaseCell);
        p.ZetHintKolom(h.HintColumn, kPatternCell);
        p.ZetHintRij(RowOf(h.HintCells[1]), kPatternCell);
    }
    for (int i : {3, 4}) {
        p.ZetHintVak(h.HintCells[i], kAttackingCell);
        p.ZetHintNummer(h.HintCells[i], h.HintNumber, kAttackingCandidates);
    }
    for (int i : {1, 2}) {
        p.ZetHintVak(h.HintCells[i], kChainCell);
        p.ZetHintNummer(h.HintCells[i], h.HintNumber, kChainCandidates);
    }
    AttackRemovals(p, h);  // every cell seen by both free ends
}

}  // namespace

void PaintFish(HintPainter& p, const HintRecord& h) {
    switch (h.HintKind) {
        case HintKind::XWing:
        case HintKind::Swordfish:
        case HintKind::Jellyfish: Fish(p, h); break;
        case HintKind::MultiValueXWing: MultiValueXWing(p, h); break;
        case HintKind::EmptyRectangle: EmptyRectangle(p, h); break;
        case HintKind::FinnedXWing: FinnedXWing(p, h); break;
        case HintKind::TwoStringKite: TwoStringKite(p, h); break;
        case HintKind::Skyscraper: Skyscraper(p, h); break;
        default: break;  // not a kind of this family
    }
}

}  // namespace tavi::hints
