// SPDX-License-Identifier: GPL-3.0-or-later
// The brushes and the paint of the board: which palette label each mouse button
// holds, the colours painted on cells and on single marks, and the digit filter
// (Command1) that hides a digit's marks. A click with a brush active paints and
// never plays.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "hints/hint_paint.h"
#include "platform/platform.h"
#include "settings/colors.h"

namespace tavi {

struct BrushState {
    bool BrushActive = false;
    bool LeftBrush = false, RightBrush = false;
    bool LeftCellBrush = false, RightCellBrush = false;
    Color LeftColor = 0, RightColor = 0;
    std::array<std::string, 10> PaletteCaptions;  // " L", " R" or empty

    bool operator==(const BrushState&) const = default;
};

class Brushes {
  public:
    Brushes() { filterOn_.fill(true); }

    // --- Brushes ---------------------------------------------------------------
    const BrushState& brush() const { return brush_; }
    bool Active() const { return brush_.BrushActive; }
    // Palette label `index` (0..3 mark brushes, 6..9 cell brushes) of `color`
    // on the left or the right button.
    void Pick(int index, bool left, Color color);
    void Off() { brush_ = {}; }

    // A click with a brush: on mark `digit` of `cell`, on the cell, on a row or
    // column header, on a digit button (read as a box for a cell brush).
    void MarkClicked(int digit, int cell, MouseButton button);
    void CellClicked(int cell, MouseButton button);
    void RowClicked(int row, MouseButton button);
    void ColumnClicked(int column, MouseButton button);
    void DigitClicked(int digit, MouseButton button);

    // --- Filter ----------------------------------------------------------------
    bool FilterOn(int digit) const { return filterOn_[digit]; }
    bool AnyHidden() const;
    void Hide(int digit) { filterOn_[digit] = false; }
    // Shows the marks of `digit` again, without their paint (filter "On").
    void ToonPencilmarks(int digit);
    void ShowAll() { filterOn_.fill(true); }

    // --- Paint -----------------------------------------------------------------
    std::optional<Color> CellPaint(int cell) const { return cellPaint_[cell]; }
    std::optional<Color> MarkPaint(int digit, int cell) const {
        return markPaint_[cell][digit - 1];
    }
    // All painted colours off.
    void WisKleuren();
    void SetCellPaint(int cell, Color color) { cellPaint_[cell] = color; }
    void SetMarkPaint(int digit, int cell, Color color) { markPaint_[cell][digit - 1] = color; }
    // A cell brush on a cell: the colour, or off when the cell has it already;
    // its marks follow.
    void ToggleCellPaint(int cell, Color color);
    // Colours of a hint, by role.
    void ApplyPaints(const std::vector<HintPaint>& paints, const std::array<Color, 9>& colors);
    // The hint's colours off the board; a place painted over since keeps its paint.
    void WipeHint();
    // New hint colours: the hint on the board takes them at once.
    void Recolour(const std::array<Color, 9>& colors);

    // What the board shows of all this, to see whether it changed.
    bool SamePaint(const Brushes& other) const {
        return filterOn_ == other.filterOn_ && cellPaint_ == other.cellPaint_ &&
               markPaint_ == other.markPaint_;
    }

  private:
    BrushState brush_;
    std::array<bool, 10> filterOn_{};
    std::array<std::optional<Color>, 81> cellPaint_{};
    std::array<std::array<std::optional<Color>, 9>, 81> markPaint_{};
    // The hint on the board and the colours it was given.
    std::vector<HintPaint> hintPaints_;
    std::array<Color, 9> hintColors_{};
};

}  // namespace tavi
