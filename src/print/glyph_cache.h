// SPDX-License-Identifier: GPL-3.0-or-later
// Rendered digits, kept per size and colour: a full board draws up to 729 marks
// and 81 digits on every repaint, and a resize renders each glyph once.
#pragma once

#include <QColor>
#include <QFont>
#include <QHash>
#include <QPixmap>

class QPainter;

namespace tavi::ui {

class GlyphCache {
  public:
    // Draws `digit` centred in `box`, `pixelSize` high, in `color`.
    void Draw(QPainter& painter, const QRect& box, int digit, int pixelSize, const QColor& color,
              bool bold);
    void Clear() { glyphs_.clear(); }
    void SetFamily(const QString& family);

  private:
    QPixmap Render(int digit, int pixelSize, const QColor& color, bool bold, qreal ratio) const;

    QString family_;
    QHash<quint64, QPixmap> glyphs_;
};

}  // namespace tavi::ui
