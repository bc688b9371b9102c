// SPDX-License-Identifier: GPL-3.0-or-later
#include "solver/difficulty_score.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "grid/candidates.h"
#include "grid/levels.h"

namespace tavi {

namespace {

constexpr int kSingles = 2;  // the first two rungs: a solve of singles has no extent

// A bonus that grows by `step` each time `amount` doubles past `base`, up to `most`.
double Doubling(int amount, double base, double step, double most) {
    if (amount <= base) return 0;
    return std::min(most, step * std::log2(amount / base));
}

}  // namespace

double RungWeightOf(const Rung& rung) { return kRungCatalog[std::size_t(RungIndex(rung))].weight; }

double StepDifficulty(const Rung& rung, const StepSize& size) {
    const double weight = RungWeightOf(rung);
    switch (rung.number) {
        // Chains and loops: the shortest are four nodes; each doubling beyond is
        // worth as much as a step up between neighbouring techniques.
        case 28:
        case 29:
        case 30:
        case 32:
        case 33:
        case 38: return weight + Doubling(size.links, 4, 0.3, 0.9);
        // Forcing: two branches that meet at once have a depth of two.
        case 36: return weight + Doubling(size.links, 2, 0.25, 0.9);
        // Bifurcation: every guess that failed is a whole solve tried and undone.
        case 39: return weight + Doubling(size.trials, 1, 0.4, 2.3);
        default: return weight;
    }
}

void DifficultyTally::Hit(const Rung& rung, const StepSize& size) {
    const double weight = RungWeightOf(rung);
    if (!hardestRung_ || weight >= hardestWeight_) {
        hardestRung_ = &rung;
        hardestWeight_ = weight;
    }
    if (RungIndex(rung) < kSingles) return;
    const double d = StepDifficulty(rung, size);
    hardestStep_ = std::max(hardestStep_, d);
    const int tenth = std::clamp(int(std::lround(d * 10)), 0, int(stepsByTenth_.size()) - 1);
    ++stepsByTenth_[std::size_t(tenth)];
}

double DifficultyTally::Score(bool solved) const {
    if (!solved) return kUnsolvedScore;
    if (!hardestRung_) return 0;
    if (hardestStep_ == 0) return StepDifficulty(*hardestRung_, {});  // singles only
    // The extent: each step counts by how near it comes to the hardest, a whole one
    // at the hardest's difficulty and a quarter a point below it. One hardest step
    // alone adds nothing; sixteen such steps add kMostExtent.
    double near = 0;
    for (std::size_t t = 0; t < stepsByTenth_.size(); ++t)
        if (stepsByTenth_[t])
            near += stepsByTenth_[t] * std::exp2(2 * (double(t) / 10 - hardestStep_));
    const double extent = near > 1 ? std::min(kMostExtent, 0.25 * std::log2(near)) : 0;
    return hardestStep_ + extent;
}

PuzzleRating RatePuzzleWithScore(SolveContext& ctx, const Digits& puzzle) {
    DifficultyTally tally;
    WorkbenchRun run;
    run.observer.hit = [&](const Rung& rung) { tally.Hit(rung, ctx.stepSize); };
    ctx.board = BoardFromPuzzle(puzzle);
    const bool solved = SolveSudoku(ctx, run).solved;
    PuzzleRating r;
    r.level = solved ? ctx.SolvingLevel : kOutlaw;
    r.score = tally.Score(solved);
    if (tally.Hardest() && tally.Hardest()->number >= kFirstOrderedTechnique)
        r.hardestTechnique = tally.Hardest()->number;
    return r;
}

PuzzleRating RatePuzzleWithScore(const Digits& puzzle) {
    SolveContext ctx(Side::Workbench);
    return RatePuzzleWithScore(ctx, puzzle);
}

std::string FormatScore(double score) {
    char text[16];
    std::snprintf(text, sizeof text, "%.1f", score);
    return text;
}

}  // namespace tavi
