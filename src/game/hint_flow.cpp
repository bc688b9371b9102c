// SPDX-License-Identifier: GPL-3.0-or-later
// The checks before the techniques, the stages of a hint without pencil marks,
// and what the hint window is told.
#include "game/hint_flow.h"

#include "grid/candidates.h"
#include "hints/hint_kinds.h"
#include "hints/schrijf_hint.h"

namespace tavi {

namespace {

// A cell whose digit or marks are wrong: it is shown as attacked.
CellReport ReportCell(const Board& b, HintTruth::Kind kind, int cell, const std::string& text) {
    HintPainter painter(b);
    painter.WisKleuren();
    painter.ZetHintVak(cell, kAttackedCell);
    return {kind, cell, text, painter.paints()};
}

bool IsPeer(int a, int b) {
    for (int p : Peers[a])
        if (p == b) return true;
    return false;
}

// Whether the change of `cell` from `then` to `now` is the work of the
// conclusions: a digit they place, or a candidate they take away (directly, or
// as a peer of a digit they place).
bool ChangeByConclusions(const HintTruth& t, const Board& now, int cell) {
    const int was = t.grid[cell], is = now.CurrentGrid[cell];
    auto places = [&](int c, int d) {
        for (const Conclusion& k : t.conclusions)
            if (k.placed && k.cell == c && k.digit == d) return true;
        return false;
    };
    if (was != is) return was == 0 && places(cell, is);
    if (is) return true;
    const unsigned added = now.Candidates[cell] & ~t.marks[cell];
    if (added) return false;
    unsigned removed = t.marks[cell] & ~now.Candidates[cell];
    for (int d = 1; d <= 9 && removed; ++d) {
        if (!(removed & DigitBit(d))) continue;
        bool explained = false;
        for (const Conclusion& k : t.conclusions)
            explained |= k.digit == d && (k.placed ? IsPeer(k.cell, cell) : k.cell == cell);
        if (!explained) return false;
        removed &= ~unsigned(DigitBit(d));
    }
    return true;
}

}  // namespace

std::optional<CellReport> HintFlow::WrongNumber(const Board& b) {
    for (int c = 0; c < 81; ++c) {
        if (!b.Solution[c] || !b.CurrentGrid[c] || b.Solution[c] == b.CurrentGrid[c]) continue;
        return ReportCell(b, HintTruth::kWrongNumber, c,
                          "Incorrect number (" + std::to_string(b.CurrentGrid[c]) + ") at cell " +
                              CellName(c) + " - Use [Undo] or [Reset Cell]");
    }
    return std::nullopt;
}

std::optional<CellReport> HintFlow::LostCandidate(const Board& b) {
    for (int c = 0; c < 81; ++c) {
        if (b.CurrentGrid[c] || !b.Solution[c] || b.Has(b.Solution[c], c)) continue;
        return ReportCell(b, HintTruth::kLostCandidate, c,
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
        report.kind = HintTruth::kStillMarked;
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

bool HintStillTrue(const HintTruth& t, const Board& now) {
    const int c = t.cell;
    switch (t.kind) {
        case HintTruth::kNone: return false;
        case HintTruth::kWrongNumber: return now.CurrentGrid[c] == t.digit;
        case HintTruth::kLostCandidate: return !now.CurrentGrid[c] && !now.Has(t.digit, c);
        case HintTruth::kStillMarked:
            return now.CurrentGrid[c] == t.digit && Exclude(now, t.digit, c);
        case HintTruth::kShowMe:
            if (now.CurrentGrid[c]) return false;
            for (int i = 0; i < 81; ++i)
                if (t.grid[i] && now.CurrentGrid[i] != t.grid[i]) return false;
            return true;
        case HintTruth::kTechnique: break;
    }
    if (now.CurrentGrid == t.grid && now.Candidates == t.marks) return true;
    for (int i = 0; i < 81; ++i)
        if (!ChangeByConclusions(t, now, i)) return false;
    for (const Conclusion& k : t.conclusions) {
        const bool done = k.placed ? now.CurrentGrid[k.cell] == k.digit
                                   : now.CurrentGrid[k.cell] || !now.Has(k.digit, k.cell);
        if (!done) return true;
    }
    return false;
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
