// SPDX-License-Identifier: GPL-3.0-or-later
// Small conversions between the core's types and Qt's: colours, mouse buttons
// and text.
#pragma once

#include <QColor>
#include <QString>
#include <optional>
#include <string_view>

#include "game/game.h"
#include "settings/colors.h"

namespace tavi::ui {

// The core keeps colours as 0x00BBGGRR.
inline QColor ToQColor(Color c) {
    return QColor(int(c & 0xFF), int((c >> 8) & 0xFF), int((c >> 16) & 0xFF));
}

inline QString ToQString(std::string_view s) {
    return QString::fromUtf8(s.data(), qsizetype(s.size()));
}

// The three buttons the game knows; any other button is no click of the game.
inline std::optional<MouseButton> ToMouseButton(Qt::MouseButton b) {
    switch (b) {
        case Qt::LeftButton: return MouseButton::Left;
        case Qt::RightButton: return MouseButton::Right;
        case Qt::MiddleButton: return MouseButton::Middle;
        default: return std::nullopt;
    }
}

}  // namespace tavi::ui
