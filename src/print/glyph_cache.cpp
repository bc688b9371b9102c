// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/glyph_cache.h"

#include <QFontMetrics>
#include <QPainter>

namespace tavi::ui {

void GlyphCache::SetFamily(const QString& family) {
    if (family == family_) return;
    family_ = family;
    glyphs_.clear();
}

void GlyphCache::Draw(QPainter& painter, const QRect& box, int digit, int pixelSize,
                      const QColor& color, bool bold) {
    const qreal ratio = painter.device() ? painter.device()->devicePixelRatioF() : 1.0;
    const quint64 key = quint64(digit) | quint64(pixelSize & 0xFFFF) << 4 | quint64(bold) << 20 |
                        quint64(color.rgba()) << 24 | quint64(int(ratio * 4) & 0xFF) << 56;
    auto it = glyphs_.find(key);
    if (it == glyphs_.end()) it = glyphs_.insert(key, Render(digit, pixelSize, color, bold, ratio));
    const QPixmap& glyph = *it;
    const QSizeF size = glyph.deviceIndependentSize();
    painter.drawPixmap(QPointF(box.x() + (box.width() - size.width()) / 2.0,
                               box.y() + (box.height() - size.height()) / 2.0),
                       glyph);
}

QPixmap GlyphCache::Render(int digit, int pixelSize, const QColor& color, bool bold,
                           qreal ratio) const {
    QFont font(family_);
    font.setPixelSize(std::max(1, pixelSize));
    font.setBold(bold);
    const QFontMetrics metrics(font);
    const QString text = QString::number(digit);
    // The box of the digit's ink, so that centring is by what the eye sees.
    const QRect ink = metrics.tightBoundingRect(text);
    const QSize size(ink.width() + 2, ink.height() + 2);
    QPixmap pixmap(size * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::TextAntialiasing);
    p.setFont(font);
    p.setPen(color);
    p.drawText(QPoint(1 - ink.x(), 1 - ink.y()), text);
    return pixmap;
}

}  // namespace tavi::ui
