// SPDX-License-Identifier: GPL-3.0-or-later
// Small text conversions of the game window: clock fields and the numbers typed
// into its input boxes.
#pragma once

#include <string>
#include <string_view>

#include "platform/notifier.h"

namespace tavi {

// "05" for 5: the last two digits of the number plus 100.
inline std::string TwoDigits(int n) {
    const std::string s = std::to_string(n + 100);
    return s.substr(s.size() - 2);
}

}  // namespace tavi
