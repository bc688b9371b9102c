// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/painted_pictures.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>

namespace tavi::ui {

namespace {

QPixmap Canvas(int size, qreal ratio) {
    QPixmap pixmap(QSize(size, size) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    return pixmap;
}

}  // namespace

QCursor BrushCursor(const std::filesystem::path& appFolder) {
    const std::filesystem::path icon = appFolder / "Brush.ico";
    std::error_code ec;
    if (std::filesystem::is_regular_file(icon, ec)) {
        const QPixmap file(QString::fromStdString(icon.string()));
        if (!file.isNull()) return QCursor(file, 1, 1);
    }
    // Drawn for the sharpest screen, so the pointer is not blown up on it.
    QPixmap pixmap = Canvas(32, qApp ? qApp->devicePixelRatio() : 1.0);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    // Handle from the lower right, then the metal band, then the bristles
    // ending in a point at the upper left.
    p.setPen(QPen(QColor(40, 24, 8), 1));
    p.setBrush(QColor(176, 112, 48));
    QPainterPath handle;
    handle.moveTo(30, 26);
    handle.lineTo(26, 30);
    handle.lineTo(14, 18);
    handle.lineTo(18, 14);
    handle.closeSubpath();
    p.drawPath(handle);
    p.setBrush(QColor(190, 190, 200));
    QPainterPath band;
    band.moveTo(18, 14);
    band.lineTo(14, 18);
    band.lineTo(11, 15);
    band.lineTo(15, 11);
    band.closeSubpath();
    p.drawPath(band);
    p.setBrush(QColor(30, 30, 30));
    QPainterPath bristles;
    bristles.moveTo(15, 11);
    bristles.lineTo(11, 15);
    bristles.quadTo(4, 10, 1, 1);
    bristles.quadTo(10, 4, 15, 11);
    p.drawPath(bristles);
    p.end();
    return QCursor(pixmap, 1, 1);
}

QPixmap SiteEmblem(int size, qreal ratio) {
    QPixmap pixmap = Canvas(size, ratio);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF r(1, 1, size - 2, size - 2);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(40, 70, 140));
    p.drawRoundedRect(r, size / 6.0, size / 6.0);
    // A small board: 3 x 3 boxes, one of them lit.
    const qreal inset = size * 0.18;
    const qreal step = (size - 2 * inset) / 3.0;
    for (int i = 0; i < 9; ++i) {
        const QRectF box(inset + (i % 3) * step + 1, inset + (i / 3) * step + 1, step - 2,
                         step - 2);
        p.setBrush(i == 4 ? QColor(255, 200, 60) : QColor(220, 228, 245));
        p.drawRect(box);
    }
    return pixmap;
}

QPixmap WorkbenchEmblem(int size, qreal ratio) {
    QPixmap pixmap = Canvas(size, ratio);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    // Three cards of a file, one behind the other.
    for (int i = 2; i >= 0; --i) {
        const qreal o = i * size * 0.12;
        const QRectF card(2 + o, 2 + (2 - i) * size * 0.12, size * 0.62, size * 0.62);
        p.setPen(QPen(QColor(70, 76, 92), 1));
        p.setBrush(i == 0 ? QColor(255, 255, 255) : QColor(214, 220, 232));
        p.drawRoundedRect(card, 2, 2);
        if (i == 0) {
            p.setPen(QPen(QColor(120, 128, 150), 1));
            for (int k = 1; k < 3; ++k) {
                const qreal x = card.left() + k * card.width() / 3;
                const qreal y = card.top() + k * card.height() / 3;
                p.drawLine(QPointF(x, card.top() + 2), QPointF(x, card.bottom() - 2));
                p.drawLine(QPointF(card.left() + 2, y), QPointF(card.right() - 2, y));
            }
        }
    }
    return pixmap;
}

}  // namespace tavi::ui
