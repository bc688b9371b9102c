// The checks before the techniques, the stages of a hint without pencil marks,
// and what the hint window is told.
#include "game/hint_flow.h"

#include "grid/candidates.h"
#include "hints/hint_kinds.h"
#include "hints/schrijf_hint.h"

namespace tavi {

namespace {

// A cell whose digit or marks are wrong: it is shown as attacked.
CellReport ReportCell(const Board& b, int cell, const std::string& text) {
    HintPainter painter(b);
    painter.WisKleuren();
    painter.ZetHintVak(cell, kAttackedCell);
    return {cell, text, painter.paints()};
}

}  // namespace

std::optional<CellReport> HintFlow::WrongNumber(const Board& b) {
    for (int c = 0; c < 81; ++c) {
        if (!b.Solution[c] || !b.CurrentGrid[c] || b.Solution[c] == b.CurrentGrid[c]) continue;
        return ReportCell(b, c,
                          "Incorrect number (" + std::to_string(b.CurrentGrid[c]) + ") at cell " +
                              CellName(c) + " - Use [Undo] or [Reset Cell]");
    }
    return std::nullopt;
}

std::optional<CellReport> HintFlow::LostCandidate(const Board& b) {
    for (int c = 0; c < 81; ++c) {
        if (b.CurrentGrid[c] || !b.Solution[c] || b.Has(b.Solution[c], c)) continue;
        return ReportCell(b, c,
                          "The correct number is no longer shown as a possibility at cell " +
                              CellName(c) + " - Use [Undo] or [Reset Cell]");
    }
    return std::nullopt;
}

std::optional<CellReport> HintFlow::StillMarked(const Board& b) {
    for (int c = 0; c < 81; ++c) {
        const int d = b.CurrentGrid[c];
        if (!d || !Exclude(b, d, c)) continue;
        CellReport report;
        report.cell = c;
        report.sound = kSoundStillMarked;
        report.penalty = 20;
        report.picksCell = false;
        report.text =
            "Since number " + std::to_string(d) + " is located at cell " + CellName(c) +
            ", this number cannot longer be a candidate in that same row, column or block";
        HintPainter painter(b);
        painter.WisKleuren();
        painter.ZetHintRij(c / 9, kPatternCell);
        painter.ZetHintKolom(c % 9, kPatternCell);
        painter.ZetHintBlok(Global::BoxLeftTopOfCell[c], kPatternCell);
        painter.ZetHintVak(c, kAttackingCell);
        painter.ZetHintNummer(c, d, kAttackingCandidates);
        for (int peer : Peers[c])
            painter.ZetAttackedCell(peer, d);
        report.paints = painter.paints();
        return report;
    }
    return std::nullopt;
}

void HintFlow::ShowMe(int cell, int digit) {
    showMeCell_ = cell;
    showMeNumber_ = digit;
    stage_ = 1;
}

void HintFlow::Shown(const HintRecord& hint, bool window) {
    lastHint_ = RecordAfterSchrijfHint(hint);
    hintWindowCaption_ = HintCaption(hint);
    if (window) ++hintWindowShows_;
}

void HintFlow::Duplicate() { hintWindowCaption_ = kMainDuplicateCaption; }

}  // namespace tavi
