// SPDX-License-Identifier: GPL-3.0-or-later
// The board painter by its pixels: a candidate painted in a hint role stays
// visible on whatever colour its cell is painted in.
#include "print/board_painter.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <cmath>

#include "settings/colors.h"

namespace tavi::ui {
namespace {

int Distance(QRgb a, const QColor& b) {
    const int dr = qRed(a) - b.red(), dg = qGreen(a) - b.green(), db = qBlue(a) - b.blue();
    return int(std::sqrt(double(dr * dr + dg * dg + db * db)));
}

// The share of the mark's square, its middle (where the digit stands) left out,
// whose pixels stand clearly apart from the cell's colour.
double ShareApart(const QImage& image, const QRect& mark, const QColor& cell) {
    const QRect middle =
        mark.adjusted(mark.width() / 4, mark.height() / 4, -mark.width() / 4, -mark.height() / 4);
    int apart = 0, total = 0;
    for (int y = mark.top(); y <= mark.bottom(); ++y)
        for (int x = mark.left(); x <= mark.right(); ++x) {
            if (middle.contains(x, y)) continue;
            ++total;
            if (Distance(image.pixel(x, y), cell) >= 60) ++apart;
        }
    return total ? double(apart) / total : 0;
}

// Every default hint colour as a candidate's paint, on every default colour of
// its cell and on an unpainted cell, at a small and a large board: the candidate
// reads as painted, however alike the two colours are (the defaults give the
// attacking candidates and the base cell one yellow).
TEST(BoardPainter, EveryCandidateRoleStaysVisibleOnEveryCellColour) {
    const BoardLook look;
    for (int side : {300, 720}) {
        BoardGeometry geometry;
        geometry.Fit(QSize(side, side));
        QImage image(side, side, QImage::Format_RGB32);
        for (int cellRole = -1; cellRole < 9; ++cellRole)
            for (int markRole = 0; markRole < 9; ++markRole) {
                BoardPicture picture;
                const int cell = 40, digit = 5;
                picture.marks[cell] = 1u << (digit - 1);
                if (cellRole >= 0) picture.cellPaint[cell] = kDefaultHintColor[cellRole];
                picture.markPaint[cell][digit - 1] = kDefaultHintColor[markRole];
                image.fill(Qt::black);
                {
                    QPainter painter(&image);
                    PaintBoard(painter, geometry, picture, look);
                }
                const QColor under =
                    cellRole >= 0 ? ColorOf(kDefaultHintColor[cellRole]) : look.base;
                EXPECT_GE(ShareApart(image, geometry.MarkRect(digit, cell), under), 0.15)
                    << "candidate colour " << markRole << " on cell colour " << cellRole << " at "
                    << side << " pixels";
            }
    }
}

}  // namespace
}  // namespace tavi::ui
