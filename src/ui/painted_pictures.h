// SPDX-License-Identifier: GPL-3.0-or-later
// The window's small pictures, drawn rather than shipped: the brush pointer
// (unless a "Brush.ico" lies in the program's folder), the emblem that opens the
// web site and the one that opens the file window.
#pragma once

#include <QCursor>
#include <QPixmap>
#include <filesystem>

namespace tavi::ui {

// The pointer while a brush is picked; its hot spot is the tip of the bristles.
QCursor BrushCursor(const std::filesystem::path& appFolder);

QPixmap SiteEmblem(int size, qreal ratio);
QPixmap WorkbenchEmblem(int size, qreal ratio);

}  // namespace tavi::ui
