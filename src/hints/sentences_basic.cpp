// SPDX-License-Identifier: GPL-3.0-or-later
// Sentences of the singles, the intersections, the subsets, bifurcation and the
// bivalue universal grave.
#include <cstdlib>

#include "hints/hint_facts.h"
#include "hints/hint_kinds.h"
#include "hints/sentence_parts.h"
#include "hints/sentences.h"

namespace tavi::hints {

namespace {

int RowColumnBox(int row, int column) {
    if (row < 0 || row > 8 || column < 0 || column > 8) return -1;
    return 3 * (row / 3) + column / 3;
}

std::string NakedSingle(const HintRecord& h) {
    return Head(HintKind::NakedSingle) + "Since number " + Number(h.HintNumber) + " at cell " +
           CellText(9 * h.HintRow + h.HintColumn) + " is the only one possible, it must be there";
}

std::string HiddenSingle(const HintRecord& h) {
    std::string s = Head(HintKind::HiddenSingle) + "Since number " + Number(h.HintNumber);
    switch (h.HintVariant) {
        case 3:
            // The one place where the middle box is spelt "center".
            s += " in the ";
            s += BoxName(RowColumnBox(h.HintRow, h.HintColumn), true);
            s += " block";
            break;
        case 2: s += " in column " + ColText(h.HintColumn); break;
        case 1: s += " in row " + RowText(h.HintRow); break;
        default: return s;
    }
    return s + " appears only at cell " + CellText(9 * h.HintRow + h.HintColumn) +
           ", it must be there";
}

std::string PointingPair(const HintRecord& h) {
    std::string s =
        Head(HintKind::PointingPair) + "Since number " + Number(h.HintNumber) + " in the ";
    s += BoxNameOfLeftTop(h.HintCell);
    s += " block appears only in ";
    if (h.HintVariant < 0 || h.HintVariant > 5) return s;
    const PointingLine line = PointingLineOf(h);
    if (line.row)
        return s + "row " + RowText(line.line) +
               ", this number can't be in any other block of that same row";
    return s + "column " + ColText(line.line) +
           ", this number can't be in any other block of that same column";
}

std::string BoxLine(const HintRecord& h) {
    std::string s = Head(HintKind::BoxLineReduction) + "Since number " + Number(h.HintNumber);
    if (h.HintVariant == 2)
        s += " in column " + ColText(h.HintColumn) + " appears only";
    else if (h.HintVariant == 1)
        s += " in row " + RowText(h.HintRow) + " appears only";
    else
        return s;
    // The top left box has always been written with two spaces after its comma.
    if (h.HintCell == 0)
        return s + " in the top left block,  this number can't be anywhere else in that block";
    s += " in the ";
    s += BoxNameOfLeftTop(h.HintCell);
    return s + " block, this number can't be anywhere else in that block";
}

std::string Subset(const HintRecord& h) {
    const auto cells = Entries(h.HintCells, 1, h.HintCellCount, CellText);
    const auto digits = Entries(h.HintValues, 1, h.HintValueCount, Number);
    const int house = std::abs(h.HintVariant);
    std::string where;
    if (house == 3) {
        where = " in the ";
        where += BoxNameOfLeftTop(h.HintCell);
        where += " block";
    } else if (house == 2) {
        where = " in column " + ColText(h.HintColumn);
    } else if (house == 1) {
        where = " in row " + RowText(h.HintRow);
    }

    if (h.HintVariant > 0) {
        if (h.HintCellCount < 2 || h.HintCellCount > 5) return {};
        std::string s =
            Head(HintKind::Subset, h.HintCellCount - 2) + "Since cells " + JoinList(cells);
        if (house > 3) return s;
        static constexpr const char* kUnit[] = {"", "row", "column", "block"};
        return s + where + " contains only the candidates " + JoinList(digits) +
               ", those candidates can't appear anywhere else in that " + kUnit[house];
    }
    // Hidden sets come in pairs and triples only.
    if (h.HintCellCount < 2 || h.HintCellCount > 3) return {};
    std::string s =
        Head(HintKind::Subset, h.HintCellCount + 2) + "Since candidates " + JoinList(digits);
    if (house < 1 || house > 3) return s;
    return s + where + " only occurs in cells " + JoinList(cells) +
           ", all other candidates can be discarded from those cells.";
}

}  // namespace

std::string BasicSentence(const HintRecord& h) {
    switch (h.HintKind) {
        case HintKind::NakedSingle: return NakedSingle(h);
        case HintKind::HiddenSingle: return HiddenSingle(h);
        case HintKind::PointingPair: return PointingPair(h);
        case HintKind::BoxLineReduction: return BoxLine(h);
        case HintKind::Subset: return Subset(h);
        case HintKind::Bifurcation:
            return Head(HintKind::Bifurcation) + "Single guessing that number " +
                   Number(h.HintNumber) + " would be truth for cell " + CellText(h.HintCell) +
                   " will lead to the solution of this sudoku using only the implemented "
                   "techniques.";
        case HintKind::BivalueUniversalGrave:
            return Head(HintKind::BivalueUniversalGrave) +
                   "The only unsolved cell that is not a bi-value cell cannot contain candidates "
                   "that only occurs twice in the row, column and box this cell belongs to.";
        default: return {};
    }
}

}  // namespace tavi::hints
