// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/board_painter.h"

#include <QFontMetrics>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "game/game.h"
#include "grid/tables.h"
#include "print/glyph_cache.h"
#include "print/paper_type.h"

namespace tavi::ui {

namespace {

const QColor kDisabledMark(206, 210, 217);
const QColor kSelectedHeader(255, 0, 0);
const QColor kCursorColor(230, 120, 0);  // the colour value 255 of a picked header

// Centres the digit by its ink, not by the font's line box, as the glyph cache
// does.
QFont FontOf(const QFont& current, const QString& family, QFont::StyleHint hint) {
    if (family.isEmpty()) return current;
    QFont font(family);
    font.setStyleHint(hint, QFont::PreferOutline);
    return font;
}

void DrawDigitText(QPainter& p, const QRect& box, int digit, int pixelSize, const QColor& color,
                   bool bold, const QString& family, QFont::StyleHint hint) {
    QFont font = FontOf(p.font(), family, hint);
    font.setPixelSize(std::max(1, pixelSize));
    font.setBold(bold);
    p.setFont(font);
    p.setPen(color);
    const QString text = QString::number(digit);
    const QRect ink = QFontMetrics(font, p.device()).tightBoundingRect(text);
    p.drawText(QPoint(box.x() + (box.width() - ink.width()) / 2 - ink.x(),
                      box.y() + (box.height() - ink.height()) / 2 - ink.y()),
               text);
}

void DrawDigit(QPainter& p, GlyphCache* glyphs, const QRect& box, int digit, int pixelSize,
               const QColor& color, bool bold, const BoardLook& look) {
    if (glyphs)
        glyphs->Draw(p, box, digit, pixelSize, color, bold);
    else
        DrawDigitText(p, box, digit, pixelSize, color, bold, look.digitFamily, look.digitHint);
}

// The square of mark `digit` inside the cell's margin.
QRect MarkBox(const BoardGeometry& g, int digit, int cell, int marginPercent) {
    if (marginPercent <= 0) return g.MarkRect(digit, cell);
    const QRect c = g.CellRect(cell);
    const int margin = c.width() * marginPercent / 100;
    const int m = (c.width() - 2 * margin) / 3;
    return QRect(c.x() + margin + ((digit - 1) % 3) * m, c.y() + margin + ((digit - 1) / 3) * m, m,
                 m);
}

QColor Mix(const QColor& from, const QColor& to, double t) {
    return QColor::fromRgbF(float(from.redF() + (to.redF() - from.redF()) * t),
                            float(from.greenF() + (to.greenF() - from.greenF()) * t),
                            float(from.blueF() + (to.blueF() - from.blueF()) * t));
}

int Distance(const QColor& a, const QColor& b) {
    const int dr = a.red() - b.red(), dg = a.green() - b.green(), db = a.blue() - b.blue();
    return int(std::sqrt(double(dr * dr + dg * dg + db * db)));
}

// The ring around a painted mark: the mark's own colour taken darker or lighter,
// whichever stands farther from the cell under it. A mark painted in its cell's
// own colour (the default attacking candidates on a base cell, both yellow) still
// shows as a chip of its role.
QColor RingFor(const QColor& mark, const QColor& cell) {
    const QColor dark = Mix(mark, Qt::black, 0.45), light = Mix(mark, Qt::white, 0.6);
    return Distance(dark, cell) >= Distance(light, cell) ? dark : light;
}

// The highlight layer: under the paints of hints and brushes, which always show.
void PaintHighlight(QPainter& p, const BoardGeometry& g, const BoardPicture& s,
                    const BoardLook& look) {
    const int d = s.emphasised;
    for (int c = 0; c < 81; ++c) {
        if (d && s.digits[c] == d)
            p.fillRect(g.CellRect(c), look.digitTint);
        else if (s.tinted[c])
            p.fillRect(g.CellRect(c), look.tint);
        if (!d || s.digits[c] || !s.MarkShown(d, c) || (s.bareMarks[c] & (1u << (d - 1)))) continue;
        const QRectF spot = QRectF(MarkBox(g, d, c, look.markMargin)).adjusted(1, 1, -1, -1);
        p.save();
        p.setRenderHint(QPainter::Antialiasing);
        p.setPen(Qt::NoPen);
        p.setBrush(look.markTint);
        p.drawEllipse(spot);
        p.restore();
    }
}

void PaintBackgrounds(QPainter& p, const BoardGeometry& g, const BoardPicture& s,
                      const BoardLook& look) {
    p.fillRect(g.GridRect(), look.base);
    PaintHighlight(p, g, s, look);
    const int inset = std::max(1, g.ThinLine());
    for (int c = 0; c < 81; ++c) {
        if (s.cellPaint[c]) p.fillRect(g.CellRect(c), ColorOf(*s.cellPaint[c]));
        if (s.digits[c]) continue;
        const QColor cell = s.cellPaint[c] ? ColorOf(*s.cellPaint[c]) : look.base;
        // A mark's own paint lies over the cell's, framed by its ring.
        for (int d = 1; d <= 9; ++d) {
            if (!s.MarkShown(d, c) || !s.markPaint[c][d - 1]) continue;
            const QRect chip = g.MarkRect(d, c).adjusted(inset, inset, -inset, -inset);
            const QColor mark = ColorOf(*s.markPaint[c][d - 1]);
            const int ring = std::max(1, chip.width() / 10);
            p.fillRect(chip, RingFor(mark, cell));
            p.fillRect(chip.adjusted(ring, ring, -ring, -ring), mark);
        }
    }
}

void PaintLines(QPainter& p, const BoardGeometry& g, const BoardLook& look) {
    const QRect grid = g.GridRect();
    const int cell = g.CellSize();
    const int thin = g.ThinLine();
    for (int i = 1; i < 9; ++i) {
        if (i % 3 == 0) continue;
        p.fillRect(QRect(grid.x() + i * cell - thin / 2, grid.y(), thin, grid.height()),
                   look.thinLine);
        p.fillRect(QRect(grid.x(), grid.y() + i * cell - thin / 2, grid.width(), thin),
                   look.thinLine);
    }
    // Box borders and the outer frame, centred on the cell edges.
    const int t = g.ThickLine();
    const int half = t / 2;
    for (int i = 0; i <= 9; i += 3) {
        p.fillRect(QRect(grid.x() + i * cell - half, grid.y() - half, t, grid.height() + t),
                   look.thickLine);
        p.fillRect(QRect(grid.x() - half, grid.y() + i * cell - half, grid.width() + t, t),
                   look.thickLine);
    }
}

void PaintHeaders(QPainter& p, const BoardGeometry& g, const BoardPicture& s,
                  const BoardLook& look) {
    QFont font = FontOf(p.font(), look.headerFamily, look.headerHint);
    font.setPixelSize(std::max(9, g.HeaderSize() * 11 / 20));
    for (int i = 0; i < 9; ++i) {
        const bool rowPicked = s.selectedRow == i;
        const bool columnPicked = s.selectedColumn == i;
        font.setBold(rowPicked);
        p.setFont(font);
        p.setPen(rowPicked ? kSelectedHeader : look.headerText);
        p.drawText(g.RowHeaderRect(i).adjusted(0, 0, -g.ThickLine(), 0), Qt::AlignCenter,
                   QString(QChar(Global::RowLetter[i])));
        font.setBold(columnPicked);
        p.setFont(font);
        p.setPen(columnPicked ? kSelectedHeader : look.headerText);
        p.drawText(g.ColumnHeaderRect(i).adjusted(0, 0, 0, -g.ThickLine()), Qt::AlignCenter,
                   QString::number(i + 1));
    }
}

void PaintDigitsAndMarks(QPainter& p, const BoardGeometry& g, const BoardPicture& s,
                         const BoardLook& look, GlyphCache* glyphs) {
    const int cell = g.CellSize();
    const int digitSize = cell * 62 / 100;
    const int markSize = std::max(7, cell * (30 - look.markMargin / 2) / 100);
    for (int c = 0; c < 81; ++c) {
        if (const int d = s.digits[c]) {
            const QColor ink = s.clue[c] ? look.clue : look.userDigit;
            DrawDigit(p, glyphs, g.CellRect(c), d, digitSize, ReadableOn(ink, s.cellPaint[c]),
                      s.clue[c] && look.boldClues, look);
            continue;
        }
        for (int m = 1; m <= 9; ++m) {
            if (!s.MarkShown(m, c) || (s.bareMarks[c] & (1u << (m - 1)))) continue;
            const bool dim = s.dimmed[c] & (1u << (m - 1));
            const QColor color = !s.enabled ? kDisabledMark
                                 : dim      ? ColorOf(kDimmedMarkColor)
                                            : look.mark;
            const auto& under = s.markPaint[c][m - 1] ? s.markPaint[c][m - 1] : s.cellPaint[c];
            DrawDigit(p, glyphs, MarkBox(g, m, c, look.markMargin), m, markSize,
                      ReadableOn(color, under, dim ? kDimmedContrast : kInkContrast), false, look);
        }
    }
}

}  // namespace

BoardLook::BoardLook() : clue(ColorOf(kClueColor)) {}

BoardLook BoardLook::Paper() {
    BoardLook look;
    look.window = Qt::white;
    look.base = Qt::white;
    look.clue = Qt::black;
    look.userDigit = QColor(30, 60, 150);
    look.mark = QColor(90, 90, 90);
    look.thinLine = QColor(110, 110, 110);
    look.thickLine = Qt::black;
    look.headerText = Qt::black;
    look.digitFamily = kPaperSerif;
    look.headerFamily = kPaperSans;
    look.digitHint = QFont::Serif;
    look.headerHint = QFont::SansSerif;
    look.markMargin = 8;
    look.boldClues = false;
    look.fillWindow = false;
    return look;
}

namespace {

double Luminance(const QColor& c) {
    const auto linear = [](double v) {
        return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(c.redF()) + 0.7152 * linear(c.greenF()) + 0.0722 * linear(c.blueF());
}

}  // namespace

double ContrastRatio(const QColor& a, const QColor& b) {
    const double la = Luminance(a), lb = Luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

QColor ReadableOn(const QColor& ink, const std::optional<Color>& paint, double contrast) {
    if (!paint) return ink;
    const QColor back = ColorOf(*paint);
    if (ContrastRatio(ink, back) >= contrast) return ink;
    const QColor end =
        ContrastRatio(Qt::black, back) >= ContrastRatio(Qt::white, back) ? Qt::black : Qt::white;
    for (int step = 1; step < 32; ++step) {
        const QColor mixed = Mix(ink, end, step / 32.0);
        if (ContrastRatio(mixed, back) >= contrast) return mixed;
    }
    return end;
}

void PaintBoard(QPainter& painter, const BoardGeometry& geometry, const BoardPicture& picture,
                const BoardLook& look, GlyphCache* glyphs) {
    painter.save();
    painter.setRenderHint(QPainter::TextAntialiasing);
    if (look.fillWindow) painter.fillRect(geometry.BoardRect(), look.window);
    PaintBackgrounds(painter, geometry, picture, look);
    if (geometry.Headers()) PaintHeaders(painter, geometry, picture, look);
    PaintDigitsAndMarks(painter, geometry, picture, look, glyphs);
    PaintLines(painter, geometry, look);
    if (picture.cursor >= 0 && picture.cursor < 81) {
        // A frame inside the cell, drawn as a path so it stays sharp at any scale.
        const int w = std::max(2, geometry.ThickLine());
        const QRectF cell = QRectF(geometry.CellRect(picture.cursor)).adjusted(w, w, -w, -w);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(picture.cursorFocused ? kCursorColor : look.thinLine, w, Qt::SolidLine,
                            Qt::SquareCap, Qt::MiterJoin));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(cell);
    }
    painter.restore();
}

}  // namespace tavi::ui
