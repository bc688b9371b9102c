// SPDX-License-Identifier: GPL-3.0-or-later
// Painting with brushes, the digit filter and the colours of a hint.
#include "game/brushes.h"

#include "grid/tables.h"

namespace tavi {

void Brushes::Pick(int index, bool left, Color color) {
    const std::string mark = left ? " L" : " R";
    for (auto& caption : brush_.PaletteCaptions)
        if (caption == mark) caption.clear();
    // The label that took the other button's brush drops it.
    if (brush_.PaletteCaptions[index] == (left ? " R" : " L")) {
        (left ? brush_.RightBrush : brush_.LeftBrush) = false;
    }
    brush_.PaletteCaptions[index] = mark;
    brush_.BrushActive = true;
    const bool cellBrush = index >= 6;
    if (left) {
        brush_.LeftBrush = true;
        brush_.LeftColor = color;
        brush_.LeftCellBrush = cellBrush;
    } else {
        brush_.RightBrush = true;
        brush_.RightColor = color;
        brush_.RightCellBrush = cellBrush;
    }
}

void Brushes::MarkClicked(int digit, int cell, MouseButton button) {
    const bool left = button == MouseButton::Left;
    const bool has = left ? brush_.LeftBrush : brush_.RightBrush;
    const bool cellBrush = left ? brush_.LeftCellBrush : brush_.RightCellBrush;
    const Color color = left ? brush_.LeftColor : brush_.RightColor;
    if (has && button != MouseButton::Middle) {
        if (cellBrush) {
            ToggleCellPaint(cell, color);
        } else if (filterOn_[digit]) {
            auto& paint = markPaint_[cell][digit - 1];
            paint = paint == color ? std::nullopt : std::optional<Color>(color);
        }
    }
}

void Brushes::CellClicked(int cell, MouseButton button) {
    const bool left = button == MouseButton::Left;
    if (button == MouseButton::Middle || !(left ? brush_.LeftCellBrush : brush_.RightCellBrush))
        return;
    if (!(left ? brush_.LeftBrush : brush_.RightBrush)) return;
    ToggleCellPaint(cell, left ? brush_.LeftColor : brush_.RightColor);
}

void Brushes::RowClicked(int row, MouseButton button) {
    const bool left = button == MouseButton::Left;
    if (button != MouseButton::Middle && (left ? brush_.LeftCellBrush : brush_.RightCellBrush))
        for (int i = 0; i < 9; ++i)
            SetCellPaint(9 * row + i, left ? brush_.LeftColor : brush_.RightColor);
}

void Brushes::ColumnClicked(int column, MouseButton button) {
    const bool left = button == MouseButton::Left;
    if (button != MouseButton::Middle && (left ? brush_.LeftCellBrush : brush_.RightCellBrush))
        for (int i = 0; i < 9; ++i)
            SetCellPaint(column + 9 * i, left ? brush_.LeftColor : brush_.RightColor);
}

void Brushes::DigitClicked(int digit, MouseButton button) {
    const bool left = button == MouseButton::Left;
    if (button == MouseButton::Middle || !(left ? brush_.LeftBrush : brush_.RightBrush)) return;
    const Color color = left ? brush_.LeftColor : brush_.RightColor;
    if (left ? brush_.LeftCellBrush : brush_.RightCellBrush) {
        // The button read as a box: the boxes are numbered from the first button.
        const int leftTop = Global::BoxLeftTop[digit - 1];
        for (int p = 0; p < 9; ++p)
            SetCellPaint(leftTop + 9 * (p / 3) + p % 3, color);
    } else if (filterOn_[digit]) {
        for (int c = 0; c < 81; ++c)
            markPaint_[c][digit - 1] = color;
    }
}

bool Brushes::AnyHidden() const {
    bool hidden = false;
    for (int d = 1; d <= 9; ++d)
        hidden |= !filterOn_[d];
    return hidden;
}

void Brushes::ToonPencilmarks(int digit) {
    filterOn_[digit] = true;
    for (int c = 0; c < 81; ++c)
        markPaint_[c][digit - 1].reset();
}

void Brushes::WisKleuren() {
    cellPaint_.fill(std::nullopt);
    for (auto& marks : markPaint_)
        marks.fill(std::nullopt);
    hintPaints_.clear();
}

void Brushes::ToggleCellPaint(int cell, Color color) {
    const bool had = cellPaint_[cell] == color;
    cellPaint_[cell] = had ? std::nullopt : std::optional<Color>(color);
    for (auto& mark : markPaint_[cell])
        mark = cellPaint_[cell];
}

void Brushes::ApplyPaints(const std::vector<HintPaint>& paints,
                          const std::array<Color, 9>& colors) {
    for (const HintPaint& p : paints) {
        switch (p.what) {
            case HintPaint::Erase: WisKleuren(); break;
            case HintPaint::Cell: cellPaint_[p.cell] = colors[p.role]; break;
            case HintPaint::Digit: markPaint_[p.cell][p.digit - 1] = colors[p.role]; break;
        }
    }
    hintPaints_ = paints;
    hintColors_ = colors;
}

void Brushes::WipeHint() {
    // The hint's paint list played on an empty board tells what it left where.
    Brushes hint;
    hint.ApplyPaints(hintPaints_, hintColors_);
    for (int c = 0; c < 81; ++c) {
        if (hint.cellPaint_[c] && cellPaint_[c] == hint.cellPaint_[c]) cellPaint_[c].reset();
        for (int d = 0; d < 9; ++d)
            if (hint.markPaint_[c][d] && markPaint_[c][d] == hint.markPaint_[c][d])
                markPaint_[c][d].reset();
    }
    hintPaints_.clear();
}

void Brushes::Recolour(const std::array<Color, 9>& colors) {
    for (const HintPaint& p : hintPaints_) {
        if (p.what == HintPaint::Erase) continue;
        auto& slot =
            p.what == HintPaint::Cell ? cellPaint_[p.cell] : markPaint_[p.cell][p.digit - 1];
        // A place painted over since keeps its new paint.
        if (slot == hintColors_[p.role]) slot = colors[p.role];
    }
    hintColors_ = colors;
}

}  // namespace tavi
