// SPDX-License-Identifier: GPL-3.0-or-later
// The Solving Techniques Manager: per technique whether Hint and Autosolve use it,
// whether Autosolve halts at it, and the order of the techniques from 8 to 38.
// Changes count at once; there is no Cancel.
#pragma once

#include <array>
#include <string_view>

#include "settings/technique_catalog.h"
#include "settings/technique_tables.h"

namespace tavi {

struct TechniqueRow {
    std::string_view caption;
    std::string_view label;  // the level, as the box's tip
};

// The manager's rows, from the technique catalog.
constexpr std::array<TechniqueRow, kTechniqueCount> MakeTechniqueRows() {
    std::array<TechniqueRow, kTechniqueCount> rows{};
    for (int i = 0; i < kTechniqueCount; ++i)
        rows[std::size_t(i)] = {TechniqueCaption(i), TechniqueTip(i)};
    return rows;
}
inline constexpr std::array<TechniqueRow, kTechniqueCount> kTechniqueRows = MakeTechniqueRows();

inline constexpr std::string_view kTechniqueManagerTitle = "Solving Techniques Manager";

// The window's logic over the tables in force. Boxes are numbered as the window
// has them: 0..39 "include" of technique i, 40..79 "halt" of technique i - 40.
class TechniqueManager {
  public:
    explicit TechniqueManager(TechniqueTables& tables)
        : tables_(tables), SelectedPosition(tables.Order[8]) {}

    bool Checked(int box) const;
    // A halt box answers only while its technique is included.
    bool Enabled(int box) const;
    // A click that leaves the box at `ticked`. The fixed boxes stay ticked.
    void Click(int box, bool ticked);

    // The row (position) at which a technique stands, and the technique at a row.
    int RowOf(int technique) const { return tables_.Order[technique]; }
    int TechniqueAt(int position) const;

    void SelectRow(int technique) { SelectedPosition = tables_.Order[technique]; }
    // Swap the selected row with the one above or below, within 8 to 38.
    void Up();
    void Down();
    // "Set Default Order": the order only; the ticks stay.
    void SetDefaultOrder();

  private:
    void SwapWith(int position);

    TechniqueTables& tables_;

  public:
    int SelectedPosition;
};

}  // namespace tavi
