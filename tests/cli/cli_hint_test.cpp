// SPDX-License-Identifier: GPL-3.0-or-later
// The learner's side of the command-line companion: hint and steps --explain.
#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "cli/commands.h"
#include "grid/candidates.h"
#include "solver/ladder.h"
#include "support/puzzles.h"

namespace tavi::cli {
namespace {

using testing::Fields, testing::Lines;

TEST(CliHint, TheFirstHintOfEachPuzzleWithItsPaints) {
    const auto& p = testing::GeneratedPuzzles(2);
    const std::string input =
        FormatDigits(p[0].puzzle, '.') + "\n" + FormatDigits(p[1].puzzle, '.') + "\n";
    std::istringstream in(input), again(input);
    std::ostringstream out, painted, err;
    EXPECT_EQ(Hint(in, out, err, false), 0);
    EXPECT_EQ(Hint(again, painted, err, true), 0);
    const auto plain = Lines(out.str()), lines = Lines(painted.str());
    ASSERT_EQ(plain.size(), 2u);
    for (size_t i = 0; i < 2; ++i) {
        const auto f = Fields(plain[i]);
        ASSERT_EQ(f.size(), 2u);
        EXPECT_EQ(f[0], FormatDigits(p[i].puzzle, '.'));
        EXPECT_TRUE(f[1].starts_with("HIDDEN SINGLE: ") || f[1].starts_with("NAKED SINGLE: "))
            << f[1];
    }

    ASSERT_GT(lines.size(), 2u);
    EXPECT_EQ(lines[0], plain[0]);
    EXPECT_EQ(lines[1], "\terase");
    size_t second = 1;
    while (second < lines.size() && lines[second][0] == '\t')
        ++second;
    ASSERT_LT(second, lines.size());
    EXPECT_EQ(lines[second], plain[1]);
}

TEST(CliHint, NoHintOnAFullBoardOrClashingGivens) {
    const auto& p = testing::GeneratedPuzzles(1)[0];
    std::istringstream in(FormatDigits(p.solution) + "\n" +
                          FormatDigits(testing::WithClash(p.puzzle)) + "\n");
    std::ostringstream out, err;
    // Clashing givens are an invalid puzzle, said as every command says it.
    EXPECT_EQ(Hint(in, out, err, true), 1);
    const auto lines = Lines(out.str());
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(Fields(lines[0]).at(1), "No logical hints, you'll have to guess more than once...");
    EXPECT_EQ(Fields(lines[1]).at(1), "invalid");
    EXPECT_NE(err.str().find("line 2: invalid puzzle"), std::string::npos) << err.str();
}

// Each explained step carries the sentence its rung gives under HintOnly, and the
// explained run takes the same steps as the plain one.
TEST(CliSteps, ExplainAddsTheSentenceOfEachStep) {
    const auto& puzzles = testing::GeneratedPuzzles(40);
    std::string input;
    for (const auto& p : puzzles)
        input += FormatDigits(p.puzzle) + "\n";
    std::istringstream in1(input), in2(input);
    std::ostringstream plain, explained, err;
    Steps(in1, plain, err, false);
    Steps(in2, explained, err, true);
    const auto a = Lines(plain.str()), b = Lines(explained.str());
    ASSERT_EQ(a.size(), b.size());
    std::set<std::string> heads;
    for (size_t i = 0; i < a.size(); ++i) {
        if (!a[i].starts_with("step")) {
            EXPECT_EQ(a[i], b[i]);
            continue;
        }
        const auto f = Fields(b[i]);
        ASSERT_EQ(f.size(), 6u) << b[i];
        EXPECT_EQ(b[i].substr(0, a[i].size()), a[i]);
        EXPECT_FALSE(f[5].empty()) << b[i];
        heads.insert(f[5].substr(0, f[5].find(':')));
        if (f[2] == "39") {
            EXPECT_TRUE(f[5].starts_with("BIFURCATION: ")) << f[5];
        }
    }
    EXPECT_TRUE(heads.count("HIDDEN SINGLE"));
    EXPECT_TRUE(heads.count("POINTING PAIR") || heads.count("BOX LINE REDUCTION"));
}

}  // namespace
}  // namespace tavi::cli
