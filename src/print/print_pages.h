// SPDX-License-Identifier: GPL-3.0-or-later
// The printed pages: the print job of the core drawn with the board painter, on
// a printer (PDF included) or, scaled, as the print window's preview, so the
// preview is always what will print.
#pragma once

#include <QRect>
#include <filesystem>

#include "printmodel/print_model.h"

class QPainter;
class QPrinter;

namespace tavi::ui {

// Prints the job on `printer`, A4 and the whole sheet as the page. False when
// the printer can't be opened; `result` says whether a read ended the job early
// (the pages so far stand).
bool PrintJobTo(QPrinter& printer, const PrintSettings& settings, const PrintSnapshot& snapshot,
                const std::filesystem::path& dataFolder, PrintResult* result = nullptr);

// Page `page` of the job as a sheet of paper filling `sheet`.
void PaintPreviewPage(QPainter& painter, const QRectF& sheet, const PrintSettings& settings,
                      const PrintSnapshot& snapshot, const std::filesystem::path& dataFolder,
                      int page = 1);

}  // namespace tavi::ui
