// SPDX-License-Identifier: GPL-3.0-or-later
// The solution counter against the documented brute-force search, which serves
// as the oracle: both must say none, one or several, and give the same solution
// when there is one.
#include "solver/solutions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

#include "grid/candidates.h"
#include "solver/brute_force.h"
#include "support/puzzles.h"

namespace tavi {
namespace {

// The oracle's answer: 0, 1 or 2 (two or more), and the solution when unique.
SolutionCount Oracle(const Digits& puzzle) {
    SolveContext ctx(Side::Workbench);
    ctx.board.Puzzle = puzzle;
    bool contradiction = false;
    SolutionCount answer;
    answer.count = BruteForceSolutions(ctx, contradiction);
    if (answer.count == 1) answer.first = ctx.board.CurrentGrid;
    return answer;
}

void ExpectAgreement(const Digits& puzzle, const std::string& what) {
    const SolutionCount expected = Oracle(puzzle);
    const SolutionCount got = Solutions(puzzle, 2);
    ASSERT_EQ(got.count, expected.count) << what << ": " << FormatDigits(puzzle, '.');
    if (expected.count == 1) {
        ASSERT_EQ(got.first, expected.first) << what << ": " << FormatDigits(puzzle, '.');
    }
    if (got.count > 0) {
        // Whatever the count, the first solution is a solution of these givens.
        ASSERT_FALSE(GivensClash(got.first)) << what;
        for (int c = 0; c < 81; ++c)
            ASSERT_TRUE(!puzzle[c] || puzzle[c] == got.first[c]) << what << " cell " << c;
        ASSERT_EQ(std::count(got.first.begin(), got.first.end(), 0), 0) << what;
    }
}

TEST(Solutions, AgreesWithTheBruteForceSearchOnEveryKindOfGrid) {
    const auto& made = testing::GeneratedPuzzles(40);
    const GeneratedPuzzle& p = made[0];
    const Digits clueLess = testing::WithoutFirstClue(p.puzzle);
    Digits swapped = p.solution;
    std::swap(swapped[0], swapped[1]);
    struct Case {
        const char* name;
        Digits puzzle;
        int count;
    } cases[] = {
        {"a clue removed", clueLess, 2},
        {"the empty grid", Digits{}, 2},
        {"a full grid", p.solution, 1},
        {"a full grid with a clash", swapped, 0},
        {"a cell without digits", testing::DeadCell(), 0},
    };
    for (const Case& k : cases) {
        EXPECT_EQ(Solutions(k.puzzle).count, k.count) << k.name;
        ExpectAgreement(k.puzzle, k.name);
    }
    // Generated puzzles and the project's hardest, with the one solution on file.
    auto known = testing::HardPuzzles();
    ASSERT_GE(known.size(), 300u);
    known.insert(known.end(), made.begin(), made.end());
    for (const auto& g : known) {
        ASSERT_EQ(Solutions(g.puzzle).first, g.solution);
        ExpectAgreement(g.puzzle, "known");
    }
    // The count stops at the limit.
    for (int limit : {1, 2, 5, 40})
        EXPECT_EQ(Solutions(Digits{}, limit).count, limit);
    EXPECT_EQ(Solutions(clueLess, 1).count, 1);
}

// A few thousand generated puzzles, changed at random: clues taken away, added or
// changed. The start value is new on every run and printed with any failure.
TEST(Solutions, AgreesWithTheBruteForceSearchOnRandomChanges) {
    const unsigned start = std::random_device{}();
    SCOPED_TRACE("start value " + std::to_string(start));
    std::mt19937 rng(start);
    int answers[3] = {};
    for (const auto& g : testing::GeneratedPuzzles(2000)) {
        for (int round = 0; round < 2; ++round) {
            Digits puzzle = g.puzzle;
            const int changes = 1 + int(rng() % 3);
            for (int i = 0; i < changes; ++i) {
                const int cell = int(rng() % 81);
                switch (rng() % 3) {
                    case 0: puzzle[cell] = 0; break;
                    case 1: puzzle[cell] = g.solution[cell]; break;
                    default: puzzle[cell] = std::uint8_t(1 + rng() % 9); break;
                }
            }
            const SolutionCount got = Solutions(puzzle);
            ++answers[got.count];
            ExpectAgreement(puzzle, "changed");
        }
    }
    for (int n : answers)
        EXPECT_GT(n, 0);
}

}  // namespace
}  // namespace tavi
