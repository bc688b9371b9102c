// SPDX-License-Identifier: GPL-3.0-or-later
#include "solver/difficulty_score.h"

#include <gtest/gtest.h>

#include <random>

#include "grid/candidates.h"
#include "grid/levels.h"
#include "solver/hard_search.h"
#include "support/puzzles.h"

namespace tavi {
namespace {

// A step of a rung weighs its weight at the least, and more for longer chains
// and more trials; every weight lies below the unsolved score.
TEST(DifficultyScore, EveryRungWeighsBelowTheUnsolvedScoreAndLongerStepsWeighMore) {
    for (const Rung& rung : LadderRungs()) {
        const double shortest = StepDifficulty(rung, {0, 1});
        EXPECT_EQ(shortest, RungWeightOf(rung)) << RungKey(rung);
        EXPECT_LT(shortest + 2.3 + kMostExtent, kUnsolvedScore) << RungKey(rung);
        EXPECT_GE(StepDifficulty(rung, {16, 40}), shortest);
    }
    const Rung& aic = RungsOf(29)[0];
    EXPECT_GT(StepDifficulty(aic, {10, 0}), StepDifficulty(aic, {6, 0}));
    const Rung& guess = RungsOf(39)[0];
    EXPECT_GT(StepDifficulty(guess, {0, 30}), StepDifficulty(guess, {0, 3}));
}

// Over many generated puzzles the runs that measure rate exactly as the plain
// run. With the score, twice alike, the score lies between its hardest rung's
// weight and what the bonuses and the extent can add to it. On the ladder with
// its measures, the steps beyond the head, the singles and at the level fit it.
TEST(DifficultyScore, SameRatingAsThePlainRunAndBoundedByTheHardestRung) {
    const auto& puzzles = testing::GeneratedPuzzles(300);
    SolveContext plain(Side::Workbench), scored(Side::Workbench), measured(Side::Workbench);
    for (const GeneratedPuzzle& p : puzzles) {
        plain.board = BoardFromPuzzle(p.puzzle);
        const int level = SolveSudoku(plain, {}) ? plain.SolvingLevel : kOutlaw;
        const LadderRating m = RateOnLadder(measured, p.puzzle);
        ASSERT_EQ(m.level, level) << FormatDigits(p.puzzle);
        EXPECT_EQ(LadderRungs()[m.hardestRung].level, m.level);
        EXPECT_LE(m.stepsBeyondHead, m.stepsBeyondSingles);
        EXPECT_LE(m.stepsBeyondSingles, m.steps);
        EXPECT_GE(m.stepsAtLevel, 1);
        // The head of the ladder rates Easy to Hard; every step beyond it is Crazy
        // or harder, and Easy needs nothing but singles.
        EXPECT_EQ(m.stepsBeyondHead > 0, m.level >= 4);
        EXPECT_EQ(m.stepsBeyondSingles > 0, m.level >= 2);
        EXPECT_EQ(std::tuple(m.cellsLeft, m.pairsAtLastRung), std::tuple(0, 0));

        const PuzzleRating r = RatePuzzleWithScore(scored, p.puzzle);
        ASSERT_EQ(r.level, level) << FormatDigits(p.puzzle);
        EXPECT_EQ(r.score, RatePuzzleWithScore(p.puzzle).score);
        if (level == kOutlaw) {
            EXPECT_EQ(r.score, kUnsolvedScore);
            continue;
        }
        ASSERT_GT(r.score, 0);
        if (r.hardestTechnique == 0) continue;  // the head of the ladder did it all
        double weight = 0;
        for (const Rung& rung : RungsOf(r.hardestTechnique))
            weight = std::max(weight, RungWeightOf(rung));
        EXPECT_GE(r.score, weight - 1e-9);
        EXPECT_LE(r.score, weight + 2.4 + kMostExtent + 1e-9);
        // The hardest technique is one the level allows.
        EXPECT_LE(RungsOf(r.hardestTechnique)[0].level, level);
    }
}

// More of the solve never makes a puzzle easier: a step added to a run never
// lowers the score, and a harder step raises it at least to its own difficulty.
TEST(DifficultyScore, AStepMoreNeverLowersTheScore) {
    const auto rungs = LadderRungs();
    std::mt19937 random(33);
    for (int run = 0; run < 400; ++run) {
        DifficultyTally tally;
        double before = 0;
        const int steps = 1 + int(random() % 60);
        for (int s = 0; s < steps; ++s) {
            const Rung& rung = rungs[random() % rungs.size()];
            StepSize size;
            size.links = int(random() % 40);
            size.trials = 1 + int(random() % 300);
            tally.Hit(rung, size);
            const double now = tally.Score(true);
            EXPECT_GE(now, before - 1e-9) << "run " << run << " step " << s;
            EXPECT_GE(now, StepDifficulty(rung, size) - 1e-9);
            before = now;
        }
        EXPECT_EQ(tally.Score(false), kUnsolvedScore);
    }
}

TEST(DifficultyScore, WrittenWithOneDecimal) {
    EXPECT_EQ(FormatScore(4.24), "4.2");
    EXPECT_EQ(FormatScore(12.0), "12.0");
    EXPECT_EQ(FormatScore(1.26), "1.3");
}

}  // namespace
}  // namespace tavi
