#include "ui/board_widget.h"

#include <QMouseEvent>
#include <QPainter>

#include "grid/tables.h"
#include "ui/qt_convert.h"

namespace tavi::ui {

namespace {

const QColor kThinLine(150, 156, 170);
const QColor kThickLine(38, 44, 64);
const QColor kMarkColor(60, 64, 72);
const QColor kDisabledMark(206, 210, 217);
const QColor kSelectedHeader(255, 0, 0);  // the colour value 255 of a picked header
const QColor kHeaderText(70, 76, 92);

// Ink that stays readable on a dark paint (a hint's pattern colour, say): on a
// dark background the digit is drawn in a light tint of its own colour, so a
// clue still reads blue and the player's digit white.
QColor ReadableOn(const QColor& ink, const std::optional<Color>& paint) {
    if (!paint) return ink;
    const QColor back = ToQColor(*paint);
    if (qGray(back.rgb()) >= 110 || qGray(ink.rgb()) >= 110) return ink;
    return QColor(255 - (255 - ink.red()) / 4, 255 - (255 - ink.green()) / 4,
                  255 - (255 - ink.blue()) / 4);
}

}  // namespace

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
    PaintBackgrounds(p);
    PaintHeaders(p);
    PaintDigitsAndMarks(p);
    PaintLines(p);
}

void BoardWidget::PaintBackgrounds(QPainter& p) {
    p.fillRect(layout_.GridRect(), palette().base());
    const Board& board = game_.board();
    for (int c = 0; c < 81; ++c) {
        if (const auto paint = game_.CellPaint(c))
            p.fillRect(layout_.CellRect(c), ToQColor(*paint));
        if (board.CurrentGrid[c]) continue;
        // A mark's own paint lies over the cell's; a hidden or filtered mark
        // shows none.
        for (int d = 1; d <= 9; ++d) {
            if (!game_.MarkVisible(d, c) || !game_.FilterOn(d)) continue;
            if (const auto paint = game_.MarkPaint(d, c))
                p.fillRect(layout_.MarkRect(d, c).adjusted(1, 1, -1, -1), ToQColor(*paint));
        }
    }
}

void BoardWidget::PaintLines(QPainter& p) {
    const QRect grid = layout_.GridRect();
    const int cell = layout_.CellSize();
    for (int i = 1; i < 9; ++i) {
        if (i % 3 == 0) continue;
        p.fillRect(QRect(grid.x() + i * cell, grid.y(), 1, grid.height()), kThinLine);
        p.fillRect(QRect(grid.x(), grid.y() + i * cell, grid.width(), 1), kThinLine);
    }
    // Box borders and the outer frame, centred on the cell edges.
    const int t = layout_.ThickLine();
    const int half = t / 2;
    for (int i = 0; i <= 9; i += 3) {
        p.fillRect(QRect(grid.x() + i * cell - half, grid.y() - half, t, grid.height() + t),
                   kThickLine);
        p.fillRect(QRect(grid.x() - half, grid.y() + i * cell - half, grid.width() + t, t),
                   kThickLine);
    }
}

void BoardWidget::PaintHeaders(QPainter& p) {
    QFont font = this->font();
    font.setPixelSize(std::max(9, layout_.HeaderSize() * 11 / 20));
    for (int i = 0; i < 9; ++i) {
        const bool rowPicked = game_.SelectedRow == i;
        const bool columnPicked = game_.SelectedColumn == i;
        font.setBold(rowPicked);
        p.setFont(font);
        p.setPen(rowPicked ? kSelectedHeader : kHeaderText);
        p.drawText(layout_.RowHeaderRect(i).adjusted(0, 0, -layout_.ThickLine(), 0),
                   Qt::AlignCenter, QString(QChar(Global::RowLetter[i])));
        font.setBold(columnPicked);
        p.setFont(font);
        p.setPen(columnPicked ? kSelectedHeader : kHeaderText);
        p.drawText(layout_.ColumnHeaderRect(i).adjusted(0, 0, 0, -layout_.ThickLine()),
                   Qt::AlignCenter, QString::number(i + 1));
    }
}

void BoardWidget::PaintDigitsAndMarks(QPainter& p) {
    const Board& board = game_.board();
    const int cell = layout_.CellSize();
    const int digitSize = cell * 62 / 100;
    const int markSize = std::max(7, cell * 30 / 100);
    const bool enabled = game_.GridEnabled();
    const bool captions = game_.MarkCaptionsShown();
    const QColor userDigit = palette().color(QPalette::Text);
    for (int c = 0; c < 81; ++c) {
        if (const int d = board.CurrentGrid[c]) {
            const bool clue = game_.IsClue(c);
            const QColor ink = clue ? ToQColor(kClueColor) : userDigit;
            glyphs_.Draw(p, layout_.CellRect(c), d, digitSize, ReadableOn(ink, game_.CellPaint(c)),
                         clue);
            continue;
        }
        if (!captions) continue;
        for (int m = 1; m <= 9; ++m) {
            if (!game_.MarkVisible(m, c) || !game_.FilterOn(m)) continue;
            const QColor color = !enabled                 ? kDisabledMark
                                 : game_.MarkDimmed(m, c) ? ToQColor(kDimmedMarkColor)
                                                          : kMarkColor;
            const auto paint = game_.MarkPaint(m, c) ? game_.MarkPaint(m, c) : game_.CellPaint(c);
            glyphs_.Draw(p, layout_.MarkRect(m, c), m, markSize, ReadableOn(color, paint), false);
        }
    }
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
