// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/paper_type.h"

#include <QFontMetrics>
#include <algorithm>

namespace tavi::ui {

namespace {

QFont Fresh(const QString& family, QFont::StyleHint hint, int pixels) {
    QFont font(family);
    font.setStyleHint(hint, QFont::PreferOutline);
    font.setPixelSize(std::max(1, pixels));
    return font;
}

bool Fits(const QFont& font, const QString& text, const QRect& box, QPaintDevice* device) {
    const QRect needed = QFontMetrics(font, device).boundingRect(box, kTeachingFlags, text);
    return needed.width() <= box.width() && needed.height() <= box.height();
}

}  // namespace

QFont PaperSerifFont(int pixels) { return Fresh(kPaperSerif, QFont::Serif, pixels); }
QFont PaperSansFont(int pixels) { return Fresh(kPaperSans, QFont::SansSerif, pixels); }

FittedText FitTeachingText(const std::vector<TechniqueCount>& techniques, const QRect& box,
                           int largest, int smallest, QPaintDevice* device) {
    smallest = std::max(1, std::min(smallest, largest));
    const QString whole = QString::fromStdString(TeachingText(techniques));
    // Shrink in steps of about a twentieth, so the type drops no more than it must.
    for (int px = largest; px > smallest; px -= std::max(1, px / 20)) {
        const QFont font = PaperSansFont(px);
        if (Fits(font, whole, box, device)) return {font, whole};
    }
    const QFont font = PaperSansFont(smallest);
    for (int keep = int(techniques.size()); keep > 0; --keep) {
        const QString text = QString::fromStdString(TeachingText(techniques, keep));
        if (Fits(font, text, box, device)) return {font, text};
    }
    return {font, QString::fromStdString(TeachingText(techniques, 0))};
}

}  // namespace tavi::ui
