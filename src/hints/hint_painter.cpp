#include "hints/hint_paint.h"

#include "grid/tables.h"
#include "hints/paints.h"

namespace tavi {

namespace {

bool ValidCell(int cell) {
    return cell >= 0 && cell < 81;
}

}  // namespace

void HintPainter::WisKleuren() {
    paints_.push_back({HintPaint::Erase});
}

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
    if (hint.HintKind < 1 || hint.HintKind > 37) return {};
    HintPainter p(board);
    p.WisKleuren();
    switch (hint.HintKind) {
        case 1:
        case 2:
        case 3:
        case 4:
        case 5:
        case 20:
        case 24:
            hints::PaintBasic(p, hint);
            break;
        case 6:
        case 7:
        case 8:
        case 9:
        case 13:
        case 15:
        case 25:
        case 26:
            hints::PaintFish(p, hint);
            break;
        case 10:
        case 11:
        case 14:
        case 16:
        case 17:
        case 27:
        case 29:
        case 30:
            hints::PaintPattern(p, hint);
            break;
        case 12:
        case 18:
        case 19:
        case 21:
        case 22:
        case 23:
        case 28:
        case 31:
            hints::PaintChain(p, hint);
            break;
        default:
            hints::PaintSet(p, hint);
            break;
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
        case HintPaint::Erase:
            return "erase";
        case HintPaint::Cell:
            return "cell " + CellName(paint.cell) + " " + std::string(RoleName(paint.role));
        case HintPaint::Digit:
            return "digit " + std::to_string(paint.digit) + " of " + CellName(paint.cell) + " " +
                   std::string(RoleName(paint.role));
    }
    return {};
}

}  // namespace tavi
