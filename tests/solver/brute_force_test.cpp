// SPDX-License-Identifier: GPL-3.0-or-later
#include "solver/brute_force.h"

#include <gtest/gtest.h>

#include "support/puzzles.h"

namespace tavi {
namespace {

// The game asks about the digits that stand now, not about the puzzle.
TEST(UniqueSud, WorksOnCurrentGridAndLeavesTheCandidatesAlone) {
    const auto& p = testing::GeneratedPuzzles(2)[1];
    const Digits oneClueLess = testing::WithoutFirstClue(p.puzzle);
    struct Case {
        Digits grid;
        bool unique;
    } cases[] = {{p.puzzle, true}, {oneClueLess, false}, {p.solution, true}};
    for (const Case& k : cases) {
        Board b;
        b.CurrentGrid = k.grid;  // Puzzle stays empty: the game asks about what stands now
        b.Candidates.fill(0);
        b.Candidates[3] = 0x155;  // whatever the marks are, they stay
        const auto marks = b.Candidates;
        EXPECT_EQ(UniqueSud(b), k.unique);
        EXPECT_EQ(b.Candidates, marks);
        if (k.unique) {
            EXPECT_EQ(b.CurrentGrid, p.solution);
        }
    }
}

}  // namespace
}  // namespace tavi
