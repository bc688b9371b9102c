// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/board_widget.h"

#include <QMouseEvent>
#include <QPainter>
#include <QTimer>

#include "ui/board_snapshot.h"
#include "ui/qt_convert.h"

namespace tavi::ui {

BoardWidget::BoardWidget(Game& game, QWidget* parent) : QWidget(parent), game_(game) {
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    glyphs_.SetFamily(font().family());
    noticeTimer_ = new QTimer(this);
    noticeTimer_->setSingleShot(true);
    noticeTimer_->setInterval(1800);
    connect(noticeTimer_, &QTimer::timeout, this, [this] {
        notice_.clear();
        noticeCell_ = -1;
        update();
    });
}

void BoardWidget::resizeEvent(QResizeEvent*) { layout_.Fit(size()); }

void BoardWidget::changeEvent(QEvent* e) {
    if (e->type() == QEvent::FontChange) glyphs_.SetFamily(font().family());
    QWidget::changeEvent(e);
}

BoardSpot BoardWidget::TargetAt(QPoint p) const {
    BoardSpot spot = layout_.SpotAt(p);
    if (spot.kind == BoardSpot::Cell) {
        // Along the cell's edges a click chooses the cell and places nothing.
        const QRect cell = layout_.CellRect(spot.index);
        const int edge = std::max(2, cell.width() / kEdgeShare);
        if (!cell.adjusted(edge, edge, -edge, -edge).contains(p)) spot.digit = 0;
        // A square without a visible mark is the cell underneath it.
        const bool markThere =
            game_.board().CurrentGrid[spot.index] == 0 && game_.MarkVisible(spot.digit, spot.index);
        if (!markThere) spot.digit = 0;
    }
    return spot;
}

// --- Painting ----------------------------------------------------------------

void BoardWidget::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.fillRect(rect(), palette().window());
    BoardPicture picture = PictureOf(game_);
    picture.cursor = cursor_;
    picture.cursorFocused = hasFocus();
    if (game_.GridEnabled()) AddHighlight(picture, cursor_, game_.options());
    // Without pencil marks the mark under the pointer shows, faintly, the digit a
    // click there would place.
    if (hover_.kind == BoardSpot::Cell && hover_.digit) {
        const auto bit = std::uint16_t(1u << (hover_.digit - 1));
        if (picture.bareMarks[hover_.index] & bit) {
            picture.bareMarks[hover_.index] &= std::uint16_t(~bit);
            picture.dimmed[hover_.index] |= bit;
        }
    }
    PaintBoard(p, layout_, picture, ScreenLook(palette()), &glyphs_);
    if (!notice_.isEmpty()) PaintNotice(p);
}

void BoardWidget::Notify(int cell, const QString& text) {
    noticeCell_ = cell;
    notice_ = text;
    noticeTimer_->start();
    update();
}

// The answer stands just below the cell (above it in the lowest rows), over the
// board, in a dark box, and the cell itself flashes in red.
void BoardWidget::PaintNotice(QPainter& p) {
    p.save();
    if (noticeCell_ >= 0 && noticeCell_ < 81)
        p.fillRect(layout_.CellRect(noticeCell_), QColor(230, 40, 40, 90));
    QFont f = font();
    f.setPixelSize(std::max(12, layout_.CellSize() * 3 / 10));
    f.setBold(true);
    p.setFont(f);
    const QFontMetrics fm(f);
    const int pad = fm.height() / 2;
    QRect box(0, 0, fm.horizontalAdvance(notice_) + 2 * pad, fm.height() + pad);
    const QRect grid = layout_.GridRect();
    const QRect cell = noticeCell_ >= 0 ? layout_.CellRect(noticeCell_) : grid;
    box.moveCenter(QPoint(cell.center().x(), 0));
    if (noticeCell_ / 9 < 7)
        box.moveTop(cell.bottom() + pad / 2);
    else
        box.moveBottom(cell.top() - pad / 2);
    box.moveLeft(
        std::clamp(box.left(), grid.left(), std::max(grid.left(), grid.right() - box.width())));
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(38, 44, 64, 235));
    p.drawRoundedRect(box, pad / 2, pad / 2);
    p.setPen(Qt::white);
    p.drawText(box, Qt::AlignCenter, notice_);
    p.restore();
}

void BoardWidget::focusInEvent(QFocusEvent* e) {
    QWidget::focusInEvent(e);
    if (cursor_ >= 0) update();
}

void BoardWidget::focusOutEvent(QFocusEvent* e) {
    QWidget::focusOutEvent(e);
    if (cursor_ >= 0) update();
}

void BoardWidget::SetCursorCell(int cell) {
    if (cell == cursor_) return;
    cursor_ = cell;
    update();
}

// --- Mouse ---------------------------------------------------------------------

void BoardWidget::mousePressEvent(QMouseEvent* e) {
    if (pressed_ || !ToMouseButton(e->button()) || game_.Busy()) return;
    pressed_ = TargetAt(e->position().toPoint());
    pressedButton_ = e->button();
    setFocus(Qt::MouseFocusReason);
}

// The release goes to what the press was on, as a click of that control; it
// counts only when released over the same thing.
void BoardWidget::mouseReleaseEvent(QMouseEvent* e) {
    if (!pressed_ || e->button() != pressedButton_) return;
    const BoardSpot target = *pressed_;
    pressed_.reset();
    if (game_.Busy()) return;
    const auto button = ToMouseButton(e->button());
    const bool inside = TargetAt(e->position().toPoint()) == target;
    switch (target.kind) {
        case BoardSpot::Cell:
            // The click chooses the cell for the keys as well.
            if (inside) SetCursorCell(target.index);
            if (target.digit)
                game_.MarkMouseUp(target.digit, target.index, *button, inside);
            else
                game_.GridMouseUp(target.index, *button, inside);
            break;
        case BoardSpot::RowHeader: game_.RowHeaderUp(target.index, *button, inside); break;
        case BoardSpot::ColumnHeader: game_.ColumnHeaderUp(target.index, *button, inside); break;
        case BoardSpot::None: return;
    }
}

void BoardWidget::mouseMoveEvent(QMouseEvent* e) {
    if (e->buttons() != Qt::NoButton) return;
    Hover(TargetAt(e->position().toPoint()));
}

void BoardWidget::leaveEvent(QEvent*) { Hover({}); }

void BoardWidget::Hover(const BoardSpot& spot) {
    if (spot == hover_) return;
    hover_ = spot;
    if (spot.kind == BoardSpot::Cell && spot.digit)
        game_.MarkMouseMove(spot.digit, spot.index);
    else
        game_.GridMouseMove();  // the big digit or the window: the highlight ends
    update();
}

}  // namespace tavi::ui
