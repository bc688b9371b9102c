// SPDX-License-Identifier: GPL-3.0-or-later
// Sentences of the almost locked sets, 3D Medusa, the forcing chains and
// MultiFish. These kinds keep less in the record than they tell, and work the
// rest out again from the board (hints/hint_facts.h).
#include "hints/hint_facts.h"
#include "hints/sentence_parts.h"
#include "hints/sentences.h"

namespace tavi::hints {

namespace {

std::string Cells(const std::vector<int>& cells, std::string_view join) {
    std::string s;
    for (size_t i = 0; i < cells.size(); ++i) {
        if (i > 0) s += join;
        s += CellText(cells[i]);
    }
    return s;
}

std::string Als(const HintRecord& h) {
    const AlsPair pair = AlsPairOf(h);
    std::string s = Head(h.HintKind, h.HintRow != 0);
    if (h.HintKind == HintKind::BiValueALSxz)
        s += "Bi-Value cell=" + CellText(h.HintCell) + " ; ALS cells=" + Cells(pair.second, "/");
    else
        s += "ALS1 cells=" + Cells(pair.first, "/") + " ; ALS2 cells=" + Cells(pair.second, "/");
    if (h.HintRow == 0)
        s += " ; Restricted candidate=" + Number(h.HintNumber);
    else
        s += " ; Restricted candidates=" + Number(h.HintNumber) + " and " + Number(h.HintVariant);
    for (const DigitRemoval& r : pair.removals)
        s += " ; Candidate " + Number(r.digit) + " removed from cell(s) " + Cells(r.cells, " ");
    return s + ".";
}

std::string Medusa(const HintRecord& h, const Board& board) {
    std::string s = Head(HintKind::Medusa3D) + Number(h.HintVariant) + " : ";
    const MedusaCandidate start = DecodeMedusa(h.HintCell);
    const MedusaCandidate a = DecodeMedusa(h.HintRow), b = DecodeMedusa(h.HintColumn);
    const std::string chain =
        "A chain of conjugating candidates (either in a house or in a cell) starting with "
        "candidate " +
        Number(start.digit) + " in cell " + CellText(start.cell);
    const std::string n = Number(h.HintNumber);
    const std::string colourGoes =
        " Therefore all candidates in the chain with that colour, can be removed.";
    switch (h.HintVariant) {
        case 1:
            return s +
                   "If two candidates in a cell have the same colour - all of that colour can be "
                   "removed. " +
                   chain + ", results in a contradiction in cell " + CellText(b.cell) +
                   ", whereof candidates " + Number(a.digit) + " and " + Number(b.digit) +
                   " have the same colour." + colourGoes;
        case 2: {
            std::string house;
            if (a.cell < 0 || b.cell < 0)
                return s;
            else if (Global::BoxOfCell[a.cell] == Global::BoxOfCell[b.cell])
                house =
                    ", results in a contradiction in box " + Number(Global::BoxOfCell[a.cell] + 1);
            else if (a.cell / 9 == b.cell / 9)
                house = ", results in a contradiction in row " + RowOfCellText(a.cell);
            else
                house = ", results in a contradiction in col " + ColOfCellText(a.cell);
            return s +
                   "If two cells in a house have the same candidate in the same colour - all of "
                   "that colour can be removed. " +
                   chain + house + ", whereof candidate " + n +
                   " appears in two cells having the same colour." + colourGoes;
        }
        case 3:
            return s +
                   "If two candidates in a cell have a different colour - all other candidates in "
                   "that cell can be removed. " +
                   chain + ", results in two candidates with different colour in cell " +
                   CellText(b.cell) + "." +
                   " Therefore all other candidates in that cell can be removed.";
        case 4:
            return s +
                   "If an uncoloured candidate can see both opposite coloured candidates "
                   "elsewhere - that candidate can be removed. " +
                   chain + ", results in opposite coloured candidates " + n + " in cells " +
                   CellText(a.cell) + " and " + CellText(b.cell) + "." +
                   " Therefore this candidate can be removed from cell(s) " +
                   Cells(MedusaRule4Cells(h), ", ") + ".";
        case 5:
            return s +
                   "If an uncoloured candidate can see that candidate coloured elsewhere and an "
                   "opposite coloured candidate in its own cell - that uncoloured candidate can be "
                   "removed. " +
                   chain + ", results in coloured candidate " + n + " in cell " + CellText(a.cell) +
                   " who can see that candidate uncoloured in cell " + CellText(b.cell) +
                   " accompanied by another opposite coloured candidate." +
                   " Therefore that uncoloured candidate can be removed.";
        case 6: {
            // The other digit is the bi-value cell's second one; the code of the
            // second wing tells it too, when the cell is no longer bi-value.
            const int bivalue = DecodeMedusa(h.HintValueCount).cell;
            int other = b.digit;
            const auto digits = DigitsOf(board, bivalue);
            if (digits.size() == 2) other = digits[0] == h.HintNumber ? digits[1] : digits[0];
            return s +
                   "If a bi-value cell with uncoloured candidates can see both candidates in the "
                   "same colour elsewhere - all of that colour can be removed. " +
                   chain +
                   ", results in two different candidates in different cells having the same "
                   "colour. We have candidate " +
                   n + " in cell " + CellText(a.cell) + " and candidate " + Number(other) +
                   " in cell " + CellText(b.cell) + " who both can see the bi-value cell " +
                   CellText(bivalue) + " having both candidates uncoloured." + colourGoes;
        }
        default: return s;
    }
}

// The ending of both forcing chains: the target cell is false or true for the digit.
std::string ForcingVerdict(bool alwaysFalse, int target) {
    if (alwaysFalse)
        return " will allways be false for cell " + CellText(target) + ". " +
               "Therefore that candidate can be removed from that cell.";
    return " will allways be true for cell " + CellText(target) + ". " +
           "Therefore all other candidates can be removed from that cell.";
}

std::string ForcingFromUnit(const HintRecord& h) {
    std::string s =
        Head(HintKind::ForcingChainFromUnit) + "Whatever candidate " + Number(h.HintCellCount);
    switch (h.HintVariant) {
        case 3: s += " is true for box " + Number(h.HintRow + 1); break;
        case 2: s += " is true for column " + ColText(h.HintColumn); break;
        case 1: s += " is true for row " + RowText(h.HintRow); break;
        default: return s;
    }
    return s + ", candidate " + Number(h.HintNumber) +
           ForcingVerdict(h.HintValueCount == 0, h.HintCell);
}

// "3 from A1, 3 from B4, 7 from A1": each digit once for each of its cells.
std::string RemovalItems(const std::vector<DigitRemoval>& removals) {
    std::string s;
    for (const DigitRemoval& r : removals)
        for (int c : r.cells) {
            if (!s.empty()) s += ", ";
            s += Number(r.digit) + " from " + CellText(c);
        }
    return s;
}

std::string MultiFish(const HintRecord& h, const Board& board) {
    const MultiFishPattern p = MultiFishOf(h, board);
    std::vector<std::string> digits, rows, columns;
    for (int d : p.digits)
        digits.push_back(Number(d));
    for (int r : p.truthRows)
        rows.push_back(RowText(r));
    for (int c : p.linkColumns)
        columns.push_back(ColText(c));
    std::string s = Head(HintKind::MultiFish) + JoinList(digits) + ". " +
                    " Truths are found in Rows " + JoinList(rows) + ". " +
                    " Links are found in Columns " + JoinList(columns) + ". " +
                    "Any unsolved cell in these columns not belonging to the Rows of the Thruths, "
                    "will loose the MultiFish candidates as possibility. ";
    if (!p.outside.empty()) s += "You can remove " + RemovalItems(p.outside) + ". ";
    if (p.linkCells.empty()) return s;
    std::vector<std::string> linkCells;
    for (int c : p.linkCells)
        linkCells.push_back(CellText(c));
    s += " Links are found in Cells " + JoinList(linkCells) + ". " +
         "These cells can only keep the Multifish candidates as possibilities, and therefore will "
         "loose any other candidates. ";
    if (!p.inLinkCells.empty()) s += "You can remove " + RemovalItems(p.inLinkCells) + ".";
    return s;
}

}  // namespace

std::string SetSentence(const HintRecord& h, const Board& board) {
    switch (h.HintKind) {
        case HintKind::BiValueALSxz:
        case HintKind::ALSxz: return Als(h);
        case HintKind::Medusa3D: return Medusa(h, board);
        case HintKind::ForcingChainFromCell:
            return Head(HintKind::ForcingChainFromCell) + "Whatever candidate is true for cell " +
                   CellText(h.HintCell) + ", candidate " + Number(h.HintNumber) +
                   ForcingVerdict(h.HintVariant < 0, h.HintCellCount);
        case HintKind::ForcingChainFromUnit: return ForcingFromUnit(h);
        case HintKind::MultiFish: return MultiFish(h, board);
        default: return {};
    }
}

}  // namespace tavi::hints
