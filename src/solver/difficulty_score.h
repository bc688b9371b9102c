// SPDX-License-Identifier: GPL-3.0-or-later
// The difficulty score: a decimal number that ranks puzzles finer than the nine
// levels. It falls out of the same rating run as the level: each hit of the
// ladder is a step whose difficulty is its rung's weight plus what the hit tells
// of its size (a longer chain, deeper forcing branches, more guesses). The score
// is the hardest step, plus a bounded amount for how much of the solve needs
// steps near it. A puzzle the ladder cannot solve scores kUnsolvedScore.
#pragma once

#include <array>
#include <string>

#include "grid/board.h"
#include "solver/ladder.h"
#include "solver/step_size.h"

namespace tavi {

// What the ladder cannot solve.
inline constexpr double kUnsolvedScore = 12.0;
// The most that the extent of the solve adds to the hardest step.
inline constexpr double kMostExtent = 1.0;

// The weight of a rung, from the technique catalog.
double RungWeightOf(const Rung& rung);
// The difficulty of one step: the rung's weight, plus a bonus for a chain longer
// than the shortest of its kind, for deep forcing branches, for many trials.
double StepDifficulty(const Rung& rung, const StepSize& size);

// Collects the steps of one rating run; hand its Hit to the run's observer.
class DifficultyTally {
  public:
    void Clear() { *this = DifficultyTally(); }
    void Hit(const Rung& rung, const StepSize& size);

    // The score of the run: kUnsolvedScore when it did not solve the board.
    double Score(bool solved) const;
    // The hardest step's rung by weight (ties to the later rung), or null when
    // nothing hit.
    const Rung* Hardest() const { return hardestRung_; }

  private:
    // Each step beyond the singles, by its difficulty, kept to weigh the extent
    // against the hardest step once the run is over.
    std::array<int, 128> stepsByTenth_{};
    double hardestStep_ = 0;
    const Rung* hardestRung_ = nullptr;
    double hardestWeight_ = 0;
};

// A puzzle's rating with its score, from one run of the workbench's ladder in the
// default order.
struct PuzzleRating {
    int level = 0;  // 1..8, or 9 (Outlaw) when the ladder fails
    double score = 0;
    int hardestTechnique = 0;  // technique number of the hardest step, 0 for none
};
PuzzleRating RatePuzzleWithScore(SolveContext& ctx, const Digits& puzzle);
PuzzleRating RatePuzzleWithScore(const Digits& puzzle);

// The score with one decimal, as the command line and the files write it.
std::string FormatScore(double score);

}  // namespace tavi
