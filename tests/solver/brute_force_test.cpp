#include "solver/brute_force.h"

#include <gtest/gtest.h>

#include <random>

#include "grid/candidates.h"
#include "support/boards.h"
#include "support/puzzles.h"

namespace tavi {
namespace {

// What RemoveCandidates and Undo must put back: the candidates, the filled cell,
// the candidate lists of the open cells and the search's own counts.
struct SearchState {
    std::array<CandidateMask, 81> candidates;
    Digits grid;
    std::vector<std::vector<std::uint8_t>> lists;
    std::array<std::array<std::uint8_t, 10>, 27> places;
    int logPointer;
    bool operator==(const SearchState&) const = default;
};

SearchState Snapshot(const BruteForceSearch& s, const Board& b, int pointer) {
    SearchState st{b.Candidates, b.CurrentGrid, {}, s.Places, s.LogPointer};
    for (int j = 0; j <= pointer; ++j) {
        const int c = s.FreeCells[j];
        st.lists.emplace_back(s.CellCandidates[c].begin(),
                              s.CellCandidates[c].begin() + s.CellCandidateTotal[c]);
    }
    return st;
}

// Fills open cells one after another as the search does, each with a random
// candidate, checking what each step takes away and logs; then takes them back
// one by one, checking that each Undo restores the state before its step.
TEST(SearchLog, RemoveCandidatesAndUndoRestoreExactly) {
    std::mt19937 rng(7);
    size_t steps = 0;
    for (const auto& p : testing::GeneratedPuzzles(30)) {
        Board b = BoardFromPuzzle(p.puzzle);
        BruteForceSearch s;
        int pointer = s.ListOpenCells(b) - 1;
        std::vector<std::pair<SearchState, int>> before;  // the state and the pointer of a step
        while (pointer >= 0 && before.size() < 12) {
            const int cell = s.FreeCells[pointer];
            if (s.CellCandidateTotal[cell] == 0) break;
            const int digit = s.CellCandidates[cell][rng() % s.CellCandidateTotal[cell]];
            before.emplace_back(Snapshot(s, b, pointer - 1), pointer - 1);
            const Board prior = b;
            b.CurrentGrid[cell] = std::uint8_t(digit);
            s.RemoveCandidates(b, cell, digit, pointer - 1);
            ASSERT_EQ(s.LogPointer, int(before.size()));
            ASSERT_EQ(s.LogCell[s.LogPointer], cell);
            ASSERT_EQ(s.LogCandidate[s.LogPointer], digit);

            // Exactly the open peers in range that held the digit lose it, each in
            // the mask of its first shared unit: row, then column, then box.
            std::uint16_t row = 0, column = 0, box = 0;
            for (int j = 0; j < pointer; ++j) {
                const int c = s.FreeCells[j];
                if (!prior.Has(digit, c) || c == cell) continue;
                if (c / 9 == cell / 9)
                    row |= std::uint16_t(1u << (c % 9));
                else if (c % 9 == cell % 9)
                    column |= std::uint16_t(1u << (c / 9));
                else if (Global::BoxOfCell[c] == Global::BoxOfCell[cell])
                    box |= std::uint16_t(1u << Global::PositionInBoxOfCell[c]);
                else
                    continue;
                ASSERT_FALSE(b.Has(digit, c)) << CellName(c);
                ASSERT_EQ(s.CellCandidateTotal[c], CountDigits(b.Candidates[c]));
            }
            ASSERT_EQ(s.LogRowPeers[s.LogPointer], row);
            ASSERT_EQ(s.LogColumnPeers[s.LogPointer], column);
            ASSERT_EQ(s.LogBoxPeers[s.LogPointer], box);
            ASSERT_EQ(testing::Removals(prior, b).size(),
                      size_t(std::popcount(unsigned(row)) + std::popcount(unsigned(column)) +
                             std::popcount(unsigned(box))));
            --pointer;
        }
        steps += before.size();
        while (!before.empty()) {
            const auto& [state, stepPointer] = before.back();
            s.Undo(b, stepPointer);
            ASSERT_EQ(Snapshot(s, b, stepPointer), state) << "undo of step " << before.size();
            before.pop_back();
        }
    }
    EXPECT_GE(steps, 150u);
}

TEST(UniqueSud, WorksOnCurrentGridAndLeavesTheCandidatesAlone) {
    const auto& p = testing::GeneratedPuzzles(2)[1];
    Digits oneClueLess = p.puzzle;
    for (int c = 80; c >= 0; --c)
        if (oneClueLess[c]) {
            oneClueLess[c] = 0;
            break;
        }
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
