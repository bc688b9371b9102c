// SPDX-License-Identifier: GPL-3.0-or-later
// The program's icon: a rounded blue square holding a small board of 3 x 3
// boxes, the middle one lit. The same shapes make the window's icon, the PNG
// icons of the desktop in every size, and the scalable SVG one.
#pragma once

#include <QByteArray>
#include <QIcon>
#include <QImage>

namespace tavi::ui {

// The name of the desktop entry, the icon and the AppStream component.
inline constexpr char kAppId[] = "org.tavisudoku.TaviSudoku1";

// The icon painted at `size` x `size` pixels.
QImage AppIconImage(int size);
// The icon as an SVG document.
QByteArray AppIconSvg();
// The icon for the windows, sharp at every size and scale.
QIcon AppIcon();

}  // namespace tavi::ui
