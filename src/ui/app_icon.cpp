// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/app_icon.h"

#include <QPainter>
#include <QRectF>
#include <vector>

namespace tavi::ui {

namespace {

constexpr double kUnits = 256;  // the icon is laid out on a square of this side

struct Shape {
    QRectF rect;
    double radius;
    QColor fill;
};

std::vector<Shape> Shapes() {
    std::vector<Shape> shapes{{QRectF(4, 4, 248, 248), 44, QColor(40, 70, 140)}};
    const double inset = kUnits * 0.18;
    const double step = (kUnits - 2 * inset) / 3;
    for (int i = 0; i < 9; ++i)
        shapes.push_back(
            {QRectF(inset + (i % 3) * step + 4, inset + (i / 3) * step + 4, step - 8, step - 8), 4,
             i == 4 ? QColor(255, 200, 60) : QColor(220, 228, 245)});
    return shapes;
}

}  // namespace

QImage AppIconImage(int size) {
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.scale(size / kUnits, size / kUnits);
    for (const Shape& s : Shapes()) {
        p.setBrush(s.fill);
        p.drawRoundedRect(s.rect, s.radius, s.radius);
    }
    p.end();
    return image;
}

QByteArray AppIconSvg() {
    QByteArray svg =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"256\" height=\"256\" "
        "viewBox=\"0 0 256 256\">\n";
    for (const Shape& s : Shapes())
        svg += QStringLiteral(
                   "  <rect x=\"%1\" y=\"%2\" width=\"%3\" height=\"%4\" rx=\"%5\" "
                   "fill=\"%6\"/>\n")
                   .arg(s.rect.x(), 0, 'f', 2)
                   .arg(s.rect.y(), 0, 'f', 2)
                   .arg(s.rect.width(), 0, 'f', 2)
                   .arg(s.rect.height(), 0, 'f', 2)
                   .arg(s.radius, 0, 'f', 2)
                   .arg(s.fill.name())
                   .toUtf8();
    svg += "</svg>\n";
    return svg;
}

QIcon AppIcon() {
    QIcon icon;
    for (int size : {16, 24, 32, 48, 64, 128, 256})
        icon.addPixmap(QPixmap::fromImage(AppIconImage(size)));
    return icon;
}

}  // namespace tavi::ui
