// SPDX-License-Identifier: GPL-3.0-or-later
// The canonical form over many generated puzzles: every symmetry of the grid gives
// the same form, the form is itself one of the puzzle's forms, and puzzles that are
// not the same give different forms.
#include "solver/canonical_form.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

#include "solver/solutions.h"
#include "support/puzzles.h"

namespace tavi {
namespace {

// Three groups of three, the groups and the members of each in random order.
std::array<std::uint8_t, 9> BandOrder(std::mt19937& rng) {
    std::array<int, 3> groups{0, 1, 2};
    std::shuffle(groups.begin(), groups.end(), rng);
    std::array<std::uint8_t, 9> order{};
    for (int g = 0; g < 3; ++g) {
        std::array<int, 3> within{0, 1, 2};
        std::shuffle(within.begin(), within.end(), rng);
        for (int k = 0; k < 3; ++k)
            order[g * 3 + k] = std::uint8_t(groups[g] * 3 + within[k]);
    }
    return order;
}

GridSymmetry RandomSymmetry(std::mt19937& rng) {
    GridSymmetry s;
    s.transpose = rng() % 2;
    s.rows = BandOrder(rng);
    s.columns = BandOrder(rng);
    std::shuffle(s.digits.begin() + 1, s.digits.end(), rng);
    return s;
}

int Clues(const Digits& d) {
    return int(std::count_if(d.begin(), d.end(), [](auto v) { return v; }));
}

TEST(CanonicalForm, EverySymmetryOfAPuzzleGivesTheSameForm) {
    std::mt19937 rng(7);
    for (const GeneratedPuzzle& g : testing::GeneratedPuzzles(60)) {
        const Digits form = CanonicalForm(g.puzzle);
        EXPECT_EQ(Clues(form), Clues(g.puzzle));
        EXPECT_EQ(CanonicalForm(form), form);
        // The form is a puzzle of one solution, the canonical form of the
        // puzzle's solution grid turned the same way.
        EXPECT_EQ(Solutions(form).count, 1);
        for (int i = 0; i < 6; ++i) {
            const GridSymmetry s = RandomSymmetry(rng);
            EXPECT_EQ(CanonicalForm(s.Apply(g.puzzle)), form) << FormatDigits(g.puzzle);
            EXPECT_EQ(CanonicalForm(s.Apply(g.solution)), CanonicalForm(g.solution));
        }
    }
    // A grid that its own symmetries map onto itself: many column orders tie all
    // the way down, and the form must still be found and be the same.
    const Digits full = testing::DigitsOf(
        "123456789456789123789123456231564897564897231897231564312645978645978312978312645");
    const Digits form = CanonicalForm(full);
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(CanonicalForm(RandomSymmetry(rng).Apply(full)), form);
    EXPECT_EQ(CanonicalForm(Digits{}), Digits{});
}

TEST(CanonicalForm, DifferentPuzzlesGiveDifferentForms) {
    std::set<Digits> forms;
    const auto& puzzles = testing::GeneratedPuzzles(300);
    for (const GeneratedPuzzle& g : puzzles)
        forms.insert(CanonicalForm(g.puzzle));
    EXPECT_EQ(forms.size(), puzzles.size());
}

}  // namespace
}  // namespace tavi
