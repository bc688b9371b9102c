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
    const int number = KindNumber(hint.HintKind);
    if (number < 1 || number > kHintKindCount) return {};
    const auto& names = kHintKinds[std::size_t(number)].names;
    switch (hint.HintKind) {
        case HintKind::Subset:
            // The sign tells naked from hidden; there is no hidden quad or quint.
            if (hint.HintVariant > 0) {
                if (hint.HintCellCount < 2 || hint.HintCellCount > 5) return {};
                return names[hint.HintCellCount - 2];
            }
            if (hint.HintCellCount < 2 || hint.HintCellCount > 3) return {};
            return names[hint.HintCellCount + 2];
        case HintKind::NiceLoop:
        case HintKind::UniqueRectangle:
        case HintKind::AIC: return Pick(names, hint.HintVariant - 1);
        default: return names[0];
    }
}

std::string HintCaption(const HintRecord& hint) {
    std::string caption(kHintCaptionPrefix);
    caption += HintName(hint);
    return caption;
}

}  // namespace tavi
