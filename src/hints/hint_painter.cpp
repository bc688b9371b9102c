// SPDX-License-Identifier: GPL-3.0-or-later
#include "hints/hint_paint.h"

#include "grid/tables.h"
#include "hints/hint_kinds.h"
#include "hints/paints.h"

namespace tavi {

namespace {

bool ValidCell(int cell) { return cell >= 0 && cell < 81; }

}  // namespace

void HintPainter::WisKleuren() { paints_.push_back({HintPaint::Erase}); }

void HintPainter::ZetHintVak(int cell, HintRole role) {
    if (ValidCell(cell)) paints_.push_back({HintPaint::Cell, cell, 0, role});
}

void HintPainter::ZetHintRij(int row, HintRole role) {
    if (row < 0 || row > 8) return;
    for (int c : UnitCells[row])
        ZetHintVak(c, role);
}

void HintPainter::ZetHintKolom(int column, HintRole role) {
    if (column < 0 || column > 8) return;
    for (int c : UnitCells[9 + column])
        ZetHintVak(c, role);
}

void HintPainter::ZetHintBlok(int leftTop, HintRole role) {
    if (!ValidCell(leftTop)) return;
    for (int c : UnitCells[18 + Global::BoxOfCell[leftTop]])
        ZetHintVak(c, role);
}

void HintPainter::ZetHintNummer(int cell, int digit, HintRole role) {
    if (ValidCell(cell) && digit >= 1 && digit <= 9)
        paints_.push_back({HintPaint::Digit, cell, digit, role});
}

void HintPainter::ZetAttackedCell(int cell, int digit) {
    if (!Holds(digit, cell)) return;
    ZetHintVak(cell, kAttackedCell);
    ZetHintNummer(cell, digit, kAttackedCandidates);
}

std::vector<HintPaint> PaintHint(const HintRecord& hint, const Board& board) {
    const HintFamily family = FamilyOf(hint.HintKind);
    if (family == HintFamily::None) return {};
    HintPainter p(board);
    p.WisKleuren();
    switch (family) {
        case HintFamily::Basic: hints::PaintBasic(p, hint); break;
        case HintFamily::Fish: hints::PaintFish(p, hint); break;
        case HintFamily::Pattern: hints::PaintPattern(p, hint); break;
        case HintFamily::Chain: hints::PaintChain(p, hint); break;
        case HintFamily::Set: hints::PaintSet(p, hint); break;
        case HintFamily::None: break;
    }
    return p.paints();
}

std::string_view RoleName(HintRole role) {
    static constexpr std::string_view kNames[9] = {
        "base candidates",     "chain candidates", "attacking candidates",
        "attacked candidates", "pattern cell",     "base cell",
        "chain cell",          "attacking cell",   "attacked cell"};
    return role >= 0 && role < 9 ? kNames[role] : std::string_view{};
}

std::string DescribePaint(const HintPaint& paint) {
    switch (paint.what) {
        case HintPaint::Erase: return "erase";
        case HintPaint::Cell:
            return "cell " + CellName(paint.cell) + " " + std::string(RoleName(paint.role));
        case HintPaint::Digit:
            return "digit " + std::to_string(paint.digit) + " of " + CellName(paint.cell) + " " +
                   std::string(RoleName(paint.role));
    }
    return {};
}

std::string DescribePaints(const std::vector<HintPaint>& paints) {
    std::string s;
    for (const HintPaint& paint : paints)
        s += (s.empty() ? "" : "; ") + DescribePaint(paint);
    return s;
}

}  // namespace tavi
