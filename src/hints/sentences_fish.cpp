// SPDX-License-Identifier: GPL-3.0-or-later
// Sentences of the fish and of the single-digit patterns: X-Wing, Swordfish,
// Jellyfish, the multi-value and finned X-Wings, the empty rectangle, the kite and
// the skyscraper.
#include "hints/hint_facts.h"
#include "hints/sentence_parts.h"
#include "hints/sentences.h"

namespace tavi::hints {

namespace {

std::vector<std::string> RowsText(const std::vector<int>& rows) {
    std::vector<std::string> out;
    for (int r : rows)
        out.push_back(RowText(r));
    return out;
}
std::vector<std::string> ColumnsText(const std::vector<int>& columns) {
    std::vector<std::string> out;
    for (int c : columns)
        out.push_back(ColText(c));
    return out;
}

// XWing, Swordfish and Jellyfish: one shape, two, three or four lines each way.
std::string Fish(const HintRecord& h) {
    const FishLines lines = FishLinesOf(h);
    const auto rows = JoinList(RowsText(lines.rows));
    const auto columns = JoinList(ColumnsText(lines.columns));
    const char* count = h.HintKind == HintKind::XWing       ? "two"
                        : h.HintKind == HintKind::Swordfish ? "three"
                                                            : "four";
    std::string s = Head(h.HintKind) + "Since number " + Number(h.HintNumber);
    s += h.HintKind == HintKind::XWing
             ? " appears only twice in both "
             : std::string(" appears maximum ") + count + " times in each ";
    if (h.HintVariant == 2)
        return s + "column " + columns + ", and this number appears in the same " + count +
               " rows " + rows + ", this number can't appear anywhere else in these rows";
    if (h.HintVariant == 1)
        return s + "row " + rows + ", and this number appears in the same " + count + " columns " +
               columns + ", this number can't appear anywhere else in these columns";
    return s;
}

std::string MultiValueXWing(const HintRecord& h) {
    const int p = h.HintCells[1], q = h.HintCells[2], s = h.HintCells[3], t = h.HintCells[4];
    const std::string a = Number(h.HintValues[1]), b = Number(h.HintValues[2]);
    const std::string x = Number(h.HintValues[3]), y = Number(h.HintValues[4]);
    auto box = [](int number) { return "the " + std::string(BoxName(number)) + " block"; };
    const std::string kClash = ", but both cannot occur in the same ";
    const std::string kLeave = ", because that would leave either number ";
    const std::string kFrom = " as the only solution in two cells from ";
    const std::string kRest = ", and cannot occur elsewhere in ";

    std::string u1, u2, clash, where1, where2, rest1, rest2;
    switch (h.HintVariant) {
        case 1:  // two rows colliding in a column
            u1 = " in row " + RowOfCellText(p), u2 = " in row " + RowOfCellText(s);
            clash = kClash + "column" + kLeave;
            where1 = kFrom + "column " + ColOfCellText(p),
            where2 = kFrom + "column " + ColOfCellText(q);
            rest1 = kRest + "column " + ColOfCellText(p),
            rest2 = kRest + "column " + ColOfCellText(q);
            break;
        case 2:  // two rows colliding in a box
        case 4:  // two columns colliding in a box
            if (h.HintVariant == 2)
                u1 = " in row " + RowOfCellText(p), u2 = " in row " + RowOfCellText(s);
            else
                u1 = " in column " + ColOfCellText(p), u2 = " in column " + ColOfCellText(s);
            clash = kClash + "block" + kLeave;
            where1 = kFrom + box(h.HintRow), where2 = kFrom + box(h.HintColumn);
            rest1 = rest2 = kRest + "that block";
            break;
        case 3:  // two columns colliding in a row
            u1 = " in column " + ColOfCellText(p), u2 = " in column " + ColOfCellText(s);
            clash = kClash + "row" + kLeave;
            where1 = kFrom + "row " + RowOfCellText(p), where2 = kFrom + "row " + RowOfCellText(q);
            rest1 = kRest + "row " + RowOfCellText(p), rest2 = kRest + "row " + RowOfCellText(q);
            break;
        case 5:  // two boxes colliding in a row
            u1 = " in " + box(h.HintRow), u2 = " in " + box(h.HintColumn);
            clash = kClash + "row" + kLeave;
            where1 = kFrom + "row " + RowOfCellText(p), where2 = kFrom + "row " + RowOfCellText(q);
            rest1 = rest2 = kRest + "that row";
            break;
        case 6:  // two boxes colliding in a column
            u1 = " in " + box(h.HintRow), u2 = " in " + box(h.HintColumn);
            clash = kClash + "column" + kLeave;
            where1 = kFrom + "column " + ColOfCellText(p),
            where2 = kFrom + "column " + ColOfCellText(q);
            rest1 = rest2 = kRest + "that column";
            break;
        default: return Head(HintKind::MultiValueXWing) + "Since number " + a;
    }
    return Head(HintKind::MultiValueXWing) + "Since number " + a + u1 +
           " is reserved for either cell " + CellText(p) + " or cell " + CellText(q) +
           " and number " + b + u2 + " is reserved for either cell " + CellText(s) + " or cell " +
           CellText(t) + clash + x + where1 + ", or number " + y + where2 +
           ". This means that number " + x + " is forced to either cell " + CellText(p) +
           " or cell " + CellText(s) + rest1 + ", and it also means that number " + y +
           " is forced to either cell " + CellText(q) + " or cell " + CellText(t) + rest2;
}

std::string EmptyRectangle(const HintRecord& h) {
    return Head(HintKind::EmptyRectangle) + "If value " + Number(h.HintNumber) +
           " would be true for cell " + CellText(h.HintCell) +
           ", this would force that value to cell " + CellText(h.HintCells[1]) +
           ", and that would remove that value as a candidate in all the cells from the " +
           std::string(BoxNameOfLeftTop(h.HintVariant)) + " block, " + "this means that cell " +
           CellText(h.HintCell) + " can't have that value as a candidate";
}

std::string FinnedXWing(const HintRecord& h) {
    std::string s = Head(HintKind::FinnedXWing) + "Since number " + Number(h.HintNumber) +
                    " appears only twice in ";
    const int a = h.HintCells[3], b = h.HintCells[4], fin = h.HintCells[5];
    if (h.HintVariant == 2) {
        s += "column " + ColText(h.HintColumn) + " and" +
             " that same number appears in the same rows " + RowOfCellText(a) + " and " +
             RowOfCellText(b) + " at column " + ColOfCellText(fin) +
             ", this almost formed a regular X-Wing. However, one or two additional cells, "
             "holding that candidate, in column " +
             ColOfCellText(fin) +
             " are sharing a box with an almost X-Wing cell. We call these additional cells THE "
             "FIN." +
             " It turns out that no matter which cell in column " + ColText(h.HintColumn) +
             " will eventually holds the candidate as solution, ";
    } else if (h.HintVariant == 1) {
        s += "row " + RowText(h.HintRow) + " and" +
             " that same number appears in the same columns " + ColOfCellText(a) + " and " +
             ColOfCellText(b) + " at row " + RowOfCellText(fin) +
             ", this almost forming a regular X-Wing. However, one or two additional cells, "
             "holding that candidate, in row " +
             RowOfCellText(fin) +
             " are sharing a box with an almost X-Wing cell. We call these additional cells THE "
             "FIN." +
             " It turns out that no matter which cell in row " + RowText(h.HintRow) +
             " will eventually holds the candidate as solution, ";
    } else {
        return s;
    }
    if (h.HintCellCount == 2)
        return s + "this number can't appear in cells " + CellText(h.HintCells[1]) + " and " +
               CellText(h.HintCells[2]) + ".";
    return s + "this number can't appear in cell " + CellText(h.HintCells[1]) + ".";
}

std::string TwoStringKite(const HintRecord& h) {
    std::string s = Head(HintKind::TwoStringKite) + "Candidate " + Number(h.HintNumber) +
                    " conjugates in Two Strings, with a mutual Kite. The Row String is Row " +
                    RowText(h.HintRow) + ", the Column String is Column " + ColText(h.HintColumn) +
                    ", and the Kite is ";
    if (h.HintVariant < 0 || h.HintVariant > 8) return s;
    return s + "the " + std::string(BoxName(h.HintVariant)) + " box." +
           " Since not both of the conjugate cells in the Kite can be true, at least one of the "
           "conjugate cells in the Two Strings outside the Kite must be true. Therefore, any cell "
           "that can see both those conjugate cells outside the Kite, cannot hold number " +
           Number(h.HintNumber) + " as a candidate.";
}

std::string Skyscraper(const HintRecord& h) {
    const char *lines, *cross;
    if (h.HintVariant == 2)
        lines = "columns", cross = "row";
    else if (h.HintVariant == 1)
        lines = "rows", cross = "column";
    else
        return Head(HintKind::Skyscraper);
    return Head(HintKind::Skyscraper) + "In both of 2 " + lines +
           ", each with 2 adjacent cells holding candidate " + Number(h.HintNumber) +
           ", one of these cells are sharing the same " + cross +
           ". Since either or none of these cells will hold the candidate as solution, at least "
           "one of the other adjacent cells must. So any cell seen by both of those adjacent "
           "cells will lose that candidate as solution.";
}

}  // namespace

std::string FishSentence(const HintRecord& h) {
    switch (h.HintKind) {
        case HintKind::XWing:
        case HintKind::Swordfish:
        case HintKind::Jellyfish: return Fish(h);
        case HintKind::MultiValueXWing: return MultiValueXWing(h);
        case HintKind::EmptyRectangle: return EmptyRectangle(h);
        case HintKind::FinnedXWing: return FinnedXWing(h);
        case HintKind::TwoStringKite: return TwoStringKite(h);
        case HintKind::Skyscraper: return Skyscraper(h);
        default: return {};
    }
}

}  // namespace tavi::hints
