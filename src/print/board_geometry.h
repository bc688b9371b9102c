// SPDX-License-Identifier: GPL-3.0-or-later
// Where everything of a board lies at a given size: the 81 cells with their
// 3 x 3 marks, the row headers on the left and the column headers on top (when
// there are headers), and the lines between them. Whole device units throughout,
// so lines stay crisp at every size; the board painter draws with it on the
// screen and on paper, and the board widget maps the mouse with it.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace tavi::ui {

// What lies under a point of the board. A point in a cell always names the mark
// square it falls in; whether that mark is there to be clicked is the caller's
// question.
struct BoardSpot {
    enum Kind { None, Cell, RowHeader, ColumnHeader };
    Kind kind = None;
    int index = -1;  // the cell, the row or the column
    int digit = 0;   // for a cell: the mark square, 1..9 in reading order

    bool operator==(const BoardSpot&) const = default;
};

class BoardGeometry {
  public:
    // Lays the board out as large as fits in `size`, centred, with headers.
    void Fit(QSize size) { FitIn(QRect(QPoint(0, 0), size), true); }
    // As large as fits in `area`, centred; without headers the grid and its
    // frame take the whole side.
    void FitIn(const QRect& area, bool headers);

    int CellSize() const { return cell_; }
    int HeaderSize() const { return header_; }
    int ThickLine() const { return thick_; }
    int ThinLine() const { return thin_; }
    bool Headers() const { return header_ > 0; }
    // The 9 x 9 cells, without the headers.
    QRect GridRect() const { return QRect(origin_, QSize(9 * cell_, 9 * cell_)); }
    // The grid and the headers together.
    QRect BoardRect() const;

    QRect CellRect(int cell) const;
    // The square of mark `digit` (1..9) in `cell`: 1 2 3 on top, 7 8 9 below.
    QRect MarkRect(int digit, int cell) const;
    QRect RowHeaderRect(int row) const;
    QRect ColumnHeaderRect(int column) const;

    BoardSpot SpotAt(QPoint p) const;

  private:
    QPoint origin_;  // top left of the first cell
    int cell_ = 0;
    int header_ = 0;
    int thick_ = 2;
    int thin_ = 1;
};

}  // namespace tavi::ui
