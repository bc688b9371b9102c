// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/board_geometry.h"

#include <algorithm>

namespace tavi::ui {

void BoardGeometry::FitIn(const QRect& area, bool headers) {
    // The headers take half a cell, the outer border half a thick line.
    const int side = std::min(area.width(), area.height());
    if (headers) {
        cell_ = std::max(9, int((side - 4) / 9.5));
    } else {
        // The frame's thick line is about a 24th of a cell.
        cell_ = std::max(9, int(side / (9.0 + 1.0 / 24)));
    }
    cell_ -= cell_ % 3;  // three marks of equal size across
    header_ = headers ? std::max(12, cell_ / 2) : 0;
    thick_ = std::max(2, (cell_ + 12) / 24);
    thin_ = std::max(1, cell_ / 60);
    const int width = header_ + 9 * cell_ + thick_;
    const int height = header_ + 9 * cell_ + thick_;
    const int inset = headers ? header_ : thick_ / 2;
    origin_ = QPoint(area.x() + (area.width() - width) / 2 + inset,
                     area.y() + (area.height() - height) / 2 + inset);
}

QRect BoardGeometry::BoardRect() const {
    const int inset = header_ ? header_ : thick_ / 2;
    return QRect(origin_ - QPoint(inset, inset),
                 QSize(header_ + 9 * cell_ + thick_, header_ + 9 * cell_ + thick_));
}

QRect BoardGeometry::CellRect(int cell) const {
    return QRect(origin_.x() + (cell % 9) * cell_, origin_.y() + (cell / 9) * cell_, cell_, cell_);
}

QRect BoardGeometry::MarkRect(int digit, int cell) const {
    const int m = cell_ / 3;
    const QRect c = CellRect(cell);
    return QRect(c.x() + ((digit - 1) % 3) * m, c.y() + ((digit - 1) / 3) * m, m, m);
}

QRect BoardGeometry::RowHeaderRect(int row) const {
    return QRect(origin_.x() - header_, origin_.y() + row * cell_, header_, cell_);
}

QRect BoardGeometry::ColumnHeaderRect(int column) const {
    return QRect(origin_.x() + column * cell_, origin_.y() - header_, cell_, header_);
}

BoardSpot BoardGeometry::SpotAt(QPoint p) const {
    if (cell_ <= 0) return {};
    const int x = p.x() - origin_.x();
    const int y = p.y() - origin_.y();
    const int span = 9 * cell_;
    // Integer division rounds towards zero; the floor keeps -1 out of column 0.
    auto floorDiv = [](int a, int b) { return a >= 0 ? a / b : -((-a + b - 1) / b); };
    const int column = floorDiv(x, cell_);
    const int row = floorDiv(y, cell_);
    if (x >= 0 && x < span && y >= 0 && y < span) {
        const int m = cell_ / 3;
        const int mx = std::min(2, (x - column * cell_) / m);
        const int my = std::min(2, (y - row * cell_) / m);
        return {BoardSpot::Cell, row * 9 + column, my * 3 + mx + 1};
    }
    if (x >= -header_ && x < 0 && y >= 0 && y < span) return {BoardSpot::RowHeader, row, 0};
    if (y >= -header_ && y < 0 && x >= 0 && x < span) return {BoardSpot::ColumnHeader, column, 0};
    return {};
}

}  // namespace tavi::ui
