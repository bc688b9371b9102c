// SPDX-License-Identifier: GPL-3.0-or-later
// Technique numbers and the order of the ladder. Numbers 0 to 39 index the
// technique tables; the ladder runs 3 to 39, with 3 to 7 its fixed head and 39,
// Bifurcation, always last. Entry i of an order is the position of technique i.
#pragma once

#include <array>

namespace tavi {

inline constexpr int kTechniqueCount = 40;
inline constexpr int kBifurcationTechnique = 39;
inline constexpr int kFirstOrderedTechnique = 8;  // the first that follows TechniqueOrder

using TechniqueOrder = std::array<int, kTechniqueCount>;

constexpr TechniqueOrder DefaultTechniqueOrder() {
    TechniqueOrder order{};
    for (int i = 0; i < kTechniqueCount; ++i)
        order[i] = i;
    return order;
}

}  // namespace tavi
