// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/wells_widget.h"

#include <QPainter>

namespace tavi::ui {

namespace {
const QColor kEmptyBox(232, 235, 241);
const QColor kFilledBox(72, 104, 168);
const QColor kCompletedBox(64, 160, 96);
const QColor kFrame(150, 156, 170);
}  // namespace

WellsWidget::WellsWidget(const Game& game, QWidget* parent) : QWidget(parent), game_(game) {}

void WellsWidget::SetSlots(Qt::Orientation orientation, int first, int pitch) {
    orientation_ = orientation;
    first_ = first;
    pitch_ = pitch;
    update();
}

void WellsWidget::paintEvent(QPaintEvent*) {
    if (pitch_ <= 0) return;
    QPainter p(this);
    // Each well is a 3 x 3 map of the boxes, two thirds of a cell across.
    const int box = std::max(3, pitch_ * 2 / 9);
    const int side = 3 * box;
    const bool vertical = orientation_ == Qt::Vertical;
    for (int digit = 1; digit <= 9; ++digit) {
        const int along = first_ + (digit - 1) * pitch_ + (pitch_ - side) / 2;
        const int across = ((vertical ? width() : height()) - side) / 2;
        const int x0 = vertical ? across : along;
        const int y0 = vertical ? along : across;
        const bool completed = game_.DigitCompleted(digit);
        for (int b = 0; b < 9; ++b) {
            const QRect r(x0 + (b % 3) * box, y0 + (b / 3) * box, box, box);
            const QColor fill = !game_.WellFilled(digit, b) ? kEmptyBox
                                : completed                 ? kCompletedBox
                                                            : kFilledBox;
            p.fillRect(r, fill);
        }
        p.setPen(kFrame);
        for (int i = 1; i < 3; ++i) {
            p.drawLine(x0 + i * box, y0, x0 + i * box, y0 + side - 1);
            p.drawLine(x0, y0 + i * box, x0 + side - 1, y0 + i * box);
        }
        p.drawRect(x0, y0, side - 1, side - 1);
    }
}

}  // namespace tavi::ui
