// SPDX-License-Identifier: GPL-3.0-or-later
// The hint for play without pencil marks: the board's marks mean nothing then,
// so the next placement is worked out on a private table of candidates built from
// the digits alone. The board itself is never read beyond CurrentGrid.
#pragma once

#include <functional>
#include <optional>
#include <string_view>

#include "grid/board.h"

namespace tavi {

struct SpecialHit {
    int cell;
    int digit;
};

// The next single that the singles, intersections and subsets lead to from the
// digits of `grid`, or nothing. `scanning` hears the texts the search writes.
std::optional<SpecialHit> FindSpecialHint(
    const Digits& grid, const std::function<void(std::string_view)>& scanning = {});

inline constexpr std::string_view kSpecialHintText =
    "A candidate can savely be assigned to the colored cell";
inline constexpr std::string_view kNoMoreLogicalHints =
    "No more logical hints, you'll have to guess";

}  // namespace tavi
