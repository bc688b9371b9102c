#include "ui/board_snapshot.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPalette>
#include <algorithm>

#include "grid/tables.h"
#include "ui/qt_convert.h"

namespace tavi::ui {

HintSnapshot SnapshotOf(const Game& game) {
    HintSnapshot s;
    const Board& board = game.board();
    s.markCaptions = game.MarkCaptionsShown();
    for (int c = 0; c < 81; ++c) {
        s.digits[c] = board.CurrentGrid[c];
        s.clue[c] = s.digits[c] != 0 && game.IsClue(c);
        s.cellPaint[c] = game.CellPaint(c);
        for (int d = 1; d <= 9; ++d) {
            s.markPaint[c][d - 1] = game.MarkPaint(d, c);
            if (s.digits[c] || !game.MarkVisible(d, c) || !game.FilterOn(d)) continue;
            s.marks[c] |= std::uint16_t(1u << (d - 1));
            if (game.MarkDimmed(d, c)) s.dimmed[c] |= std::uint16_t(1u << (d - 1));
        }
    }
    return s;
}

namespace {

// The same ink as the game window's board, so the copy reads as the board.
const QColor kThinLine(150, 156, 170);
const QColor kThickLine(38, 44, 64);
const QColor kMarkColor(60, 64, 72);
const QColor kHeaderText(70, 76, 92);

// Where the parts of the copy lie: whole pixels, so the lines stay crisp.
struct SnapshotLayout {
    QPoint origin;  // top left of the first cell
    int cell = 0;
    int header = 0;

    explicit SnapshotLayout(const QRect& area) {
        // Nine cells and a header half a cell wide, with a small margin around.
        cell = std::max(6, int((std::min(area.width(), area.height()) - 8) / 9.5));
        header = cell / 2;
        const int side = 9 * cell + header;
        origin = QPoint(area.x() + (area.width() - side) / 2 + header,
                        area.y() + (area.height() - side) / 2 + header);
    }
    QRect Grid() const { return QRect(origin, QSize(9 * cell, 9 * cell)); }
    QRect Cell(int c) const {
        return QRect(origin.x() + (c % 9) * cell, origin.y() + (c / 9) * cell, cell, cell);
    }
    QRect Mark(int digit, int c) const {
        const QRect r = Cell(c);
        const int third = cell / 3;
        const int inset = (cell - 3 * third) / 2;
        return QRect(r.x() + inset + ((digit - 1) % 3) * third,
                     r.y() + inset + ((digit - 1) / 3) * third, third, third);
    }
};

// Centres the digit by its ink, not by the font's line box.
void DrawDigit(QPainter& p, const QRect& box, int digit, int pixelSize, const QColor& color,
               bool bold) {
    QFont font = p.font();
    font.setPixelSize(std::max(1, pixelSize));
    font.setBold(bold);
    p.setFont(font);
    p.setPen(color);
    const QString text = QString::number(digit);
    const QRect ink = QFontMetrics(font).tightBoundingRect(text);
    p.drawText(QPoint(box.x() + (box.width() - ink.width()) / 2 - ink.x(),
                      box.y() + (box.height() - ink.height()) / 2 - ink.y()),
               text);
}

void PaintBackgrounds(QPainter& p, const SnapshotLayout& l, const HintSnapshot& s,
                      const QPalette& palette) {
    p.fillRect(l.Grid(), palette.base());
    for (int c = 0; c < 81; ++c) {
        if (s.cellPaint[c]) p.fillRect(l.Cell(c), ToQColor(*s.cellPaint[c]));
        if (s.digits[c]) continue;
        for (int d = 1; d <= 9; ++d)
            if (s.MarkShown(d, c) && s.markPaint[c][d - 1])
                p.fillRect(l.Mark(d, c).adjusted(1, 1, -1, -1), ToQColor(*s.markPaint[c][d - 1]));
    }
}

void PaintHeaders(QPainter& p, const SnapshotLayout& l) {
    QFont font = p.font();
    font.setPixelSize(std::max(7, l.header * 3 / 4));
    font.setBold(false);
    p.setFont(font);
    p.setPen(kHeaderText);
    for (int i = 0; i < 9; ++i) {
        p.drawText(QRect(l.origin.x() - l.header, l.origin.y() + i * l.cell, l.header - 2, l.cell),
                   Qt::AlignCenter, QString(QChar(Global::RowLetter[i])));
        p.drawText(QRect(l.origin.x() + i * l.cell, l.origin.y() - l.header, l.cell, l.header - 2),
                   Qt::AlignCenter, QString::number(i + 1));
    }
}

// Ink that stays readable on the paint under it: a dark hint colour (the
// pattern cell's teal, say) takes light ink instead of the usual dark one.
QColor InkOn(const QColor& ink, const std::optional<Color>& paint) {
    if (!paint) return ink;
    const QColor back = ToQColor(*paint);
    const double light = 0.299 * back.redF() + 0.587 * back.greenF() + 0.114 * back.blueF();
    return light < 0.45 ? QColor(255, 255, 255) : ink;
}

void PaintDigitsAndMarks(QPainter& p, const SnapshotLayout& l, const HintSnapshot& s,
                         const QPalette& palette) {
    const int digitSize = l.cell * 62 / 100;
    const int markSize = std::max(6, l.cell * 28 / 100);
    for (int c = 0; c < 81; ++c) {
        if (const int d = s.digits[c]) {
            const QColor ink = s.clue[c] ? ToQColor(kClueColor) : palette.color(QPalette::Text);
            DrawDigit(p, l.Cell(c), d, digitSize, InkOn(ink, s.cellPaint[c]), s.clue[c]);
            continue;
        }
        if (!s.markCaptions) continue;
        for (int m = 1; m <= 9; ++m) {
            if (!s.MarkShown(m, c)) continue;
            const bool dim = s.dimmed[c] & (1u << (m - 1));
            const auto& under = s.markPaint[c][m - 1] ? s.markPaint[c][m - 1] : s.cellPaint[c];
            DrawDigit(p, l.Mark(m, c), m, markSize,
                      InkOn(dim ? ToQColor(kDimmedMarkColor) : kMarkColor, under), false);
        }
    }
}

void PaintLines(QPainter& p, const SnapshotLayout& l) {
    const QRect grid = l.Grid();
    for (int i = 1; i < 9; ++i) {
        if (i % 3 == 0) continue;
        p.fillRect(QRect(grid.x() + i * l.cell, grid.y(), 1, grid.height()), kThinLine);
        p.fillRect(QRect(grid.x(), grid.y() + i * l.cell, grid.width(), 1), kThinLine);
    }
    for (int i = 0; i <= 9; i += 3) {
        p.fillRect(QRect(grid.x() + i * l.cell - 1, grid.y() - 1, 2, grid.height() + 2),
                   kThickLine);
        p.fillRect(QRect(grid.x() - 1, grid.y() + i * l.cell - 1, grid.width() + 2, 2), kThickLine);
    }
}

}  // namespace

void PaintSnapshot(QPainter& painter, const QRect& area, const HintSnapshot& snapshot,
                   const QPalette& palette) {
    const SnapshotLayout layout(area);
    painter.save();
    painter.setRenderHint(QPainter::TextAntialiasing);
    PaintBackgrounds(painter, layout, snapshot, palette);
    PaintHeaders(painter, layout);
    PaintDigitsAndMarks(painter, layout, snapshot, palette);
    PaintLines(painter, layout);
    painter.restore();
}

}  // namespace tavi::ui
