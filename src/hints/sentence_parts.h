// SPDX-License-Identifier: GPL-3.0-or-later
// The small pieces every hint sentence is built from: cells, rows, columns and
// boxes as the sentences name them, and lists. The names tolerate a value out of
// range (a stale or faulty record) by writing nothing, rather than reading past a
// table.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "grid/tables.h"

namespace tavi::hints {

// "A1".."J9".
inline std::string CellText(int cell) {
    return cell >= 0 && cell < 81 ? CellName(cell) : std::string();
}
// The row's letter alone: "A".."H", "J".
inline std::string RowText(int row) {
    return row >= 0 && row < 9 ? std::string(1, char(Global::RowLetter[row])) : std::string();
}
// The column's digit alone, counted from 1.
inline std::string ColText(int column) {
    return column >= 0 && column < 9 ? std::string(1, char('1' + column)) : std::string();
}
inline std::string RowOfCellText(int cell) {
    return cell >= 0 && cell < 81 ? RowText(cell / 9) : "";
}
inline std::string ColOfCellText(int cell) {
    return cell >= 0 && cell < 81 ? ColText(cell % 9) : "";
}

// The nine box names in reading order, "top left" to "bottom right". HiddenSingle alone
// spells the middle one "center"; it says so where it asks.
inline std::string_view BoxName(int box, bool american = false) {
    static constexpr std::string_view kNames[9] = {"top left",    "top middle",    "top right",
                                                   "left centre", "centre",        "right centre",
                                                   "bottom left", "bottom middle", "bottom right"};
    if (box < 0 || box > 8) return {};
    return american && box == 4 ? "center" : kNames[box];
}
// The same, for a box named by its top left cell.
inline std::string_view BoxNameOfLeftTop(int leftTop) {
    return leftTop >= 0 && leftTop < 81 ? BoxName(Global::BoxOfCell[leftTop]) : std::string_view{};
}

// Items joined by ", ", with " and " before the last; one item stands alone.
inline std::string JoinList(std::span<const std::string> items, std::string_view comma = ", ",
                            std::string_view lastJoin = " and ") {
    std::string out;
    for (size_t i = 0; i < items.size(); ++i) {
        if (i > 0) out += i + 1 == items.size() ? lastJoin : comma;
        out += items[i];
    }
    return out;
}

// Entries first..last (1-based, inclusive) of a hint list, each written by `write`.
template <typename List, typename Write>
std::vector<std::string> Entries(const List& list, int first, int last, Write write) {
    std::vector<std::string> out;
    for (int i = first; i <= last; ++i)
        if (i >= 1 && i < int(list.size())) out.push_back(write(list[i]));
    return out;
}

// Entry i (1-based) of a hint list, or -1 outside the list.
template <typename List>
int At(const List& list, int i) {
    return i >= 1 && i < int(list.size()) ? list[i] : -1;
}

inline std::string Number(int n) { return std::to_string(n); }

}  // namespace tavi::hints
