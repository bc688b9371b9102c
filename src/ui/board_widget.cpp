#include "ui/board_widget.h"

#include <QMouseEvent>
#include <QPainter>

#include "ui/board_snapshot.h"
#include "ui/qt_convert.h"

namespace tavi::ui {

BoardWidget::BoardWidget(Game& game, QWidget* parent) : QWidget(parent), game_(game) {
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    glyphs_.SetFamily(font().family());
}

void BoardWidget::resizeEvent(QResizeEvent*) { layout_.Fit(size()); }

void BoardWidget::changeEvent(QEvent* e) {
    if (e->type() == QEvent::FontChange) glyphs_.SetFamily(font().family());
    QWidget::changeEvent(e);
}

BoardSpot BoardWidget::TargetAt(QPoint p) const {
    BoardSpot spot = layout_.SpotAt(p);
    if (spot.kind == BoardSpot::Cell) {
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
    PaintBoard(p, layout_, picture, ScreenLook(palette()), &glyphs_);
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
