// SPDX-License-Identifier: GPL-3.0-or-later
#include "hints/hint_kinds.h"

namespace tavi {

namespace {

// The entry `index` of a list of names, or nothing when out of range.
std::string_view Pick(const std::array<std::string_view, 6>& names, int index) {
    return index >= 0 && index < int(names.size()) ? names[index] : std::string_view{};
}

}  // namespace

std::string_view HintName(const HintRecord& hint) {
    if (hint.HintKind < 1 || hint.HintKind > kHintKindCount) return {};
    const auto& names = kHintKinds[hint.HintKind].names;
    switch (hint.HintKind) {
        case 5:
            // The sign tells naked from hidden; there is no hidden quad or quint.
            if (hint.HintVariant > 0) {
                if (hint.HintCellCount < 2 || hint.HintCellCount > 5) return {};
                return names[hint.HintCellCount - 2];
            }
            if (hint.HintCellCount < 2 || hint.HintCellCount > 3) return {};
            return names[hint.HintCellCount + 2];
        case 28:
        case 29:
        case 31: return Pick(names, hint.HintVariant - 1);
        default: return names[0];
    }
}

std::string HintCaption(const HintRecord& hint) {
    std::string caption(kHintCaptionPrefix);
    caption += HintName(hint);
    return caption;
}

}  // namespace tavi
