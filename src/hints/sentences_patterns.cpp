// SPDX-License-Identifier: GPL-3.0-or-later
// Sentences of the wings, the aligned exclusions, Sue-de-Coq and the unique and
// avoidable rectangles.
#include "hints/hint_facts.h"
#include "hints/sentence_parts.h"
#include "hints/sentences.h"

namespace tavi::hints {

namespace {

std::string XYWing(const HintRecord& h) {
    return Head(HintKind::XYWing) + "Any value for cell " + CellText(h.HintCells[1]) +
           " forces number " + Number(h.HintNumber) + " to either cell " +
           CellText(h.HintCells[2]) + " or cell " + CellText(h.HintCells[3]) +
           ", so any cell in the row, column or block that both of these cells can see, can't "
           "have that number as a candidate";
}

std::string XYZWing(const HintRecord& h) {
    return Head(HintKind::XYZWing) + "Any other value for cell " + CellText(h.HintCells[1]) +
           " then number " + Number(h.HintNumber) + " forces this number to either cell " +
           CellText(h.HintCells[2]) + " or cell " + CellText(h.HintCells[3]) +
           ", so any cell in the row, column or block that those three cells can see, can't have "
           "that number as a candidate";
}

std::string WXYZWing(const HintRecord& h) {
    const std::string others = " to either cell " + CellText(h.HintCells[2]) + ", cell " +
                               CellText(h.HintCells[3]) + " or cell " + CellText(h.HintCells[4]);
    // Form 1: the hinge holds the digit too, so all four cells take part.
    if (h.HintVariant == 1)
        return Head(HintKind::WXYZWing) + "Any other value for cell " + CellText(h.HintCells[1]) +
               " then number " + Number(h.HintNumber) + " forces this number" + others +
               ", so any cell in the row, column or block that those four cells can see, can't "
               "have that number as a candidate";
    return Head(HintKind::WXYZWing) + "Any value for cell " + CellText(h.HintCells[1]) +
           " will force number " + Number(h.HintNumber) + others +
           ", so any cell in the row, column or block that those three cells can see, can't have "
           "that number as a candidate";
}

// " and the top left block, " and its like, for the box the exclusion names.
std::string ExclusionBox(const HintRecord& h) {
    return " and the " + std::string(BoxNameOfLeftTop(ExclusionBoxLeftTop(h))) + " block, ";
}

// The closing clauses of the exclusions: for each cell that loses digits, the
// digits as a list and the cell; the clauses as a list, joined by "number(s)".
std::string EliminationClauses(const std::vector<std::vector<std::string>>& digitsByCell,
                               const std::vector<int>& cells) {
    std::vector<std::string> clauses;
    for (size_t i = 0; i < cells.size(); ++i)
        if (!digitsByCell[i].empty())
            clauses.push_back(JoinList(digitsByCell[i]) +
                              " can be eliminated as candidate(s) for cell " + CellText(cells[i]));
    return "as a result of that, number(s) " + JoinList(clauses, ", number(s) ", " and number(s) ");
}

std::string PairExclusion(const HintRecord& h) {
    const int form = h.HintVariant;
    if (form < 0 || form > 4) return {};
    std::string s = Head(HintKind::AlignedPairExclusion, (form + 1) / 2) +
                    "All possible combinations between cell " + CellText(h.HintCells[1]) +
                    " and cell " + CellText(h.HintCells[2]);
    if (form == 0)
        s += " ";
    else if (form % 2 == 1)
        s += ", who both share row " + RowText(h.HintRow) + ExclusionBox(h);
    else
        s += ", who both share column " + ColText(h.HintColumn) + ExclusionBox(h);
    s += "can be reduced by any 2-candidate cell they both can see, ";
    if (form >= 3)
        s += "or any 2 candidate-combination out of two cells they both can see who have no more "
             "than 3 candidates in common, ";
    // A positive entry is a digit of the first cell, a negative one of the second.
    std::vector<std::vector<std::string>> digits(2);
    for (int i = 1; i <= h.HintValueCount && i <= HintRecord::kListSize; ++i) {
        const int v = h.HintValues[i];
        if (v > 0) digits[0].push_back(Number(v));
        if (v < 0) digits[1].push_back(Number(-v));
    }
    return s + EliminationClauses(digits, {h.HintCells[1], h.HintCells[2]});
}

std::string TripleExclusion(const HintRecord& h) {
    const int form = h.HintVariant;
    if (form < 1 || form > 4) return {};
    std::string s = Head(HintKind::AlignedTripleExclusion, form >= 3) +
                    "All possible combinations between cell " + CellText(h.HintCells[1]) +
                    ", cell " + CellText(h.HintCells[2]) + " and cell " + CellText(h.HintCells[3]);
    if (form % 2 == 1)
        s += ", who all share row " + RowText(h.HintRow) + ExclusionBox(h);
    else
        s += ", who all share column " + ColText(h.HintColumn) + ExclusionBox(h);
    s += "can be reduced by any 2-candidate (+wildcard) cell and 3-candidate cell they all can "
         "see, ";
    if (form >= 3)
        s += "or any combination of three cells who have no more than 5 candidates in common "
             "(+wildcards), ";
    // The hundreds and tens of an entry tell the cell: 1..9, 11..19, 101..109.
    std::vector<std::vector<std::string>> digits(3);
    for (int i = 1; i <= h.HintValueCount && i <= HintRecord::kListSize; ++i) {
        const int v = h.HintValues[i];
        if (v >= 101 && v <= 109)
            digits[2].push_back(Number(v - 100));
        else if (v >= 11 && v <= 19)
            digits[1].push_back(Number(v - 10));
        else if (v >= 1 && v <= 9)
            digits[0].push_back(Number(v));
    }
    return s + EliminationClauses(digits, {h.HintCells[1], h.HintCells[2], h.HintCells[3]});
}

std::string SueDeCoq(const HintRecord& h) {
    const bool row = h.HintRow != -1;
    const std::string unit = row ? "row" : "column";
    const std::string line = row ? RowText(h.HintRow) : ColText(h.HintColumn);
    const std::string box(BoxName(h.HintVariant));
    // A group of one cell is named alone; two or more are the cells in common.
    auto group = [](const auto& list, int count) {
        if (count < 2) return "from cell " + CellText(list[1]);
        return "common to cells " + JoinList(Entries(list, 1, count, CellText));
    };
    const std::string intersection =
        " can appear in the unsolved cells from the intersection between " + unit + " " + line +
        " and the " + box + " block as solution.";
    return Head(HintKind::SueDeCoq) + "Only one of the candidates " +
           group(h.HintCells, h.HintCellCount) + intersection +
           " Therefore any other cell sharing that same " + unit +
           " cannot have one of those candidates as solution." + " Only one of the candidates " +
           group(h.HintValues, h.HintValueCount) + intersection +
           " Therefore any other cell sharing that same box cannot have one of those candidates "
           "as solution." +
           " All candidates from the intersection cells, not common to any cell listed in both "
           "previous statements, are exclusive to the intersection cells. Therefore any other "
           "cell sharing that same " +
           unit + " or box cannot have one of those candidates as solution.";
}

std::string UniqueRectangle(const HintRecord& h) {
    const std::string head = Head(HintKind::UniqueRectangle, h.HintVariant == 5);
    const std::string n = Number(h.HintNumber);
    switch (h.HintVariant) {
        case 1:
            return head + "Type 1 => Candidates " + Number(h.HintValues[1]) + " and " +
                   Number(h.HintValues[2]) + " can be removed from cell " +
                   CellText(h.HintCells[4]);
        case 2:
            return head + "Type 2 => All cells holding candidate " + n +
                   " sharing the same house with cells " + CellText(h.HintCells[3]) + " and " +
                   CellText(h.HintCells[4]) + " will loose that candidate as a solution.";
        case 3: {
            static constexpr const char* kHouse[] = {"row with cells", "column with cells",
                                                     "box with cells"};
            return head + "Type 3 => Candidates " + Number(h.HintValues[3]) + " and/or " +
                   Number(h.HintValues[4]) + " can be removed from cells sharing the same " +
                   kHouse[int(RectangleType3House(h))] + " " +
                   JoinList(Entries(h.HintCells, 3, h.HintCellCount, CellText));
        }
        case 4:
            return head + "Type 4 => Candidate " + n + " can be removed from cells " +
                   CellText(h.HintCells[3]) + " and " + CellText(h.HintCells[4]);
        case 5:
            return head + "Candidate " + n + " can be removed from cell " +
                   CellText(h.HintCells[4]);
        default: return head;
    }
}

std::string AvoidableRectangle(const HintRecord& h) {
    // A third digit in the rectangle turns the single removal into a roof's one.
    if (h.HintValueCount == 2)
        return Head(HintKind::AvoidableRectangle) + "Candidate " + Number(h.HintNumber) +
               " can be removed from cell " + CellText(h.HintCells[4]);
    return Head(HintKind::AvoidableRectangle) + "All cells holding candidate " +
           Number(h.HintNumber) + " sharing the same house with cells " + CellText(h.HintCells[3]) +
           " and " + CellText(h.HintCells[4]) + " will loose that candidate as a solution.";
}

}  // namespace

std::string PatternSentence(const HintRecord& h) {
    switch (h.HintKind) {
        case HintKind::XYWing: return XYWing(h);
        case HintKind::XYZWing: return XYZWing(h);
        case HintKind::WXYZWing: return WXYZWing(h);
        case HintKind::AlignedPairExclusion: return PairExclusion(h);
        case HintKind::AlignedTripleExclusion: return TripleExclusion(h);
        case HintKind::SueDeCoq: return SueDeCoq(h);
        case HintKind::UniqueRectangle: return UniqueRectangle(h);
        case HintKind::AvoidableRectangle: return AvoidableRectangle(h);
        default: return {};
    }
}

}  // namespace tavi::hints
