// SPDX-License-Identifier: GPL-3.0-or-later
// The roles in which a hint paints cells and candidates. Each role has its
// colour among the user's hint colours, which are stored in this order.
#pragma once

namespace tavi {

enum HintRole : int {
    kBaseCandidates = 0,
    kChainCandidates = 1,
    kAttackingCandidates = 2,
    kAttackedCandidates = 3,
    kPatternCell = 4,
    kBaseCell = 5,
    kChainCell = 6,
    kAttackingCell = 7,
    kAttackedCell = 8,
};

}  // namespace tavi
