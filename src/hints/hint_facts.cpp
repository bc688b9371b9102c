// SPDX-License-Identifier: GPL-3.0-or-later
#include "hints/hint_facts.h"

#include <algorithm>
#include <cmath>

namespace tavi::hints {

namespace {

bool Valid(int cell) { return cell >= 0 && cell < 81; }

bool Contains(std::span<const int> cells, int cell) {
    return std::find(cells.begin(), cells.end(), cell) != cells.end();
}

void AddRemoval(std::vector<DigitRemoval>& removals, int digit, const std::vector<int>& cells) {
    if (cells.empty()) return;
    auto it = std::find_if(removals.begin(), removals.end(),
                           [&](const DigitRemoval& r) { return r.digit == digit; });
    if (it == removals.end()) {
        removals.push_back({digit, cells});
        return;
    }
    for (int c : cells)
        if (!Contains(it->cells, c)) it->cells.push_back(c);
    std::sort(it->cells.begin(), it->cells.end());
}

}  // namespace

bool Sees(int a, int b) {
    if (a == b || !Valid(a) || !Valid(b)) return false;
    return a / 9 == b / 9 || a % 9 == b % 9 || Global::BoxOfCell[a] == Global::BoxOfCell[b];
}

std::vector<int> SeenByAll(std::span<const int> cells) {
    std::vector<int> out;
    for (int c = 0; c < 81; ++c) {
        if (Contains(cells, c)) continue;
        if (std::all_of(cells.begin(), cells.end(), [&](int x) { return Sees(c, x); }))
            out.push_back(c);
    }
    return out;
}

std::vector<int> DigitsOf(const Board& board, int cell) {
    std::vector<int> out;
    if (!Valid(cell)) return out;
    for (int d = 1; d <= 9; ++d)
        if (board.Has(d, cell)) out.push_back(d);
    return out;
}

std::vector<int> ListPart(const HintRecord::List& list, int first, int last) {
    std::vector<int> out;
    for (int i = std::max(first, 1); i <= std::min(last, HintRecord::kListCapacity); ++i)
        out.push_back(list[i]);
    return out;
}

PointingLine PointingLineOf(const HintRecord& hint) {
    if (hint.HintVariant < 3) return {true, hint.HintCell / 9 + hint.HintVariant};
    return {false, hint.HintCell % 9 + hint.HintVariant - 3};
}

FishLines FishLinesOf(const HintRecord& hint) {
    FishLines lines;
    const int side = int(std::lround(std::sqrt(double(std::max(hint.HintCellCount, 0)))));
    for (int i = 0; i < side && i * side + 1 <= HintRecord::kListSize; ++i) {
        lines.columns.push_back(hint.HintCells[1 + i] % 9);
        lines.rows.push_back(hint.HintCells[1 + i * side] / 9);
    }
    return lines;
}

int ExclusionBoxLeftTop(const HintRecord& hint) {
    int form = hint.HintVariant;
    if (hint.HintKind == HintKind::AlignedTripleExclusion)
        form = form == 1 || form == 3 ? 3 : form == 2 || form == 4 ? 4 : 0;
    switch (form) {
        case 1: return hint.HintColumn;
        case 2: return hint.HintRow;
        case 3: return hint.HintRow / 3 * 27 + hint.HintColumn * 3;
        case 4: return hint.HintRow * 27 + hint.HintColumn / 3 * 3;
        default: return -1;
    }
}

HouseKind RectangleType3House(const HintRecord& hint) {
    const int a = hint.HintCells[3], b = hint.HintCells[4], extra = hint.HintCells[5];
    if (a / 9 == b / 9 && b / 9 == extra / 9) return HouseKind::Row;
    if (a % 9 == b % 9 && b % 9 == extra % 9) return HouseKind::Column;
    return HouseKind::Box;
}

AlsPair AlsPairOf(const HintRecord& hint) {
    AlsPair pair;
    if (hint.HintKind == HintKind::BiValueALSxz) {
        pair.first = {hint.HintCell};
        pair.second = ListPart(hint.HintCells, 1, hint.HintCellCount);
    } else {
        pair.first = ListPart(hint.HintCells, 1, hint.HintCellCount);
        pair.second = ListPart(hint.HintValues, 1, hint.HintValueCount);
    }
    auto valid = [](const std::vector<int>& v) { return std::all_of(v.begin(), v.end(), Valid); };
    if (!valid(pair.first) || !valid(pair.second)) return pair;
    pair.doublyLinked = hint.HintRow != 0;
    // The removals are the hit's own conclusions: a singly linked pair takes only
    // the shared digit z, and a doubly linked one may take a digit of one set from
    // the cells of the other.
    for (int d = 1; d <= 9; ++d)
        for (const Conclusion& c : hint.Conclusions)
            if (!c.placed && c.digit == d) AddRemoval(pair.removals, d, {int(c.cell)});
    return pair;
}

std::vector<int> MedusaRule4Cells(const HintRecord& hint) {
    std::vector<int> cells;
    for (const Conclusion& c : hint.Conclusions)
        if (!c.placed) cells.push_back(c.cell);
    std::sort(cells.begin(), cells.end());
    return cells;
}

MultiFishPattern MultiFishOf(const HintRecord& hint, const Board& board) {
    MultiFishPattern p;
    CandidateMask set = 0;
    for (int d : ListPart(hint.HintValues, 1, hint.HintValueCount)) {
        if (d < 1 || d > 9) continue;
        p.digits.push_back(d);
        set |= DigitBit(d);
    }
    // Which of the digits stand in each row and each column.
    std::array<CandidateMask, 9> inRow{}, inColumn{};
    for (int c = 0; c < 81; ++c) {
        const int d = board.CurrentGrid[c];
        if (d >= 1 && d <= 9 && HasDigit(set, d)) {
            inRow[c / 9] |= DigitBit(d);
            inColumn[c % 9] |= DigitBit(d);
        }
    }
    std::array<bool, 9> rowFree{}, columnFree{};
    for (int i = 0; i < 9; ++i) {
        rowFree[i] = inRow[i] == 0;
        columnFree[i] = inColumn[i] == 0;
        if (rowFree[i]) p.truthRows.push_back(i);
        if (!columnFree[i] && inColumn[i] != set) p.linkColumns.push_back(i);
    }
    for (int c = 0; c < 81; ++c)
        if (rowFree[c / 9] && columnFree[c % 9] && board.CurrentGrid[c] == 0)
            p.linkCells.push_back(c);

    // The removals are the hit's own conclusions, by digit ascending.
    for (int d = 1; d <= 9; ++d)
        for (const Conclusion& c : hint.Conclusions) {
            if (c.placed || c.digit != d) continue;
            const bool linkCell = rowFree[c.cell / 9] && columnFree[c.cell % 9];
            AddRemoval(linkCell ? p.inLinkCells : p.outside, d, {int(c.cell)});
        }
    return p;
}

}  // namespace tavi::hints
