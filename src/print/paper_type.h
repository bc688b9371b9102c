// SPDX-License-Identifier: GPL-3.0-or-later
// The type of the printed page: digits in a serif face metric-compatible with
// Times New Roman, headings and captions in a sans face metric-compatible with
// Arial. The families are asked for by those names and fontconfig answers with
// the metric twins the package depends on (Liberation Serif and Liberation
// Sans), so a page sets the same widths wherever it is printed.
#pragma once

#include <QFont>
#include <QRect>
#include <QString>
#include <vector>

#include "printmodel/print_model.h"

class QPaintDevice;

namespace tavi::ui {

inline const QString kPaperSerif = QStringLiteral("Times New Roman");
inline const QString kPaperSans = QStringLiteral("Arial");

// A fresh font of the family at `pixels` (never less than 1): nothing of the
// painter's font in force carries over.
QFont PaperSerifFont(int pixels);
QFont PaperSansFont(int pixels);

// The teaching line of a puzzle set to fit `box`: wrapped, from `largest` pixels
// down to `smallest`, and at the smallest with the techniques of the end left
// out ("+ N more") until the text fits.
struct FittedText {
    QFont font;
    QString text;
};
FittedText FitTeachingText(const std::vector<TechniqueCount>& techniques, const QRect& box,
                           int largest, int smallest, QPaintDevice* device);

// The flags the teaching text is drawn and measured with.
inline constexpr int kTeachingFlags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;

}  // namespace tavi::ui
