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

// One weight per rung, in the order of LadderRungs (the six subset rows of
// technique 7 each have their own). Weights rise with how hard solvers find the
// technique, on a scale from 1 (a hidden single) to about 9 (a guess); they follow
// the level only where the techniques do.
struct RungWeight {
    int technique;  // checked against the rung table
    double weight;
};
inline constexpr std::array<RungWeight, 42> kRungWeights{{
    {3, 1.2},   // Hidden Single
    {4, 1.5},   // Naked Single
    {5, 2.0},   // Pointing Pair
    {6, 2.2},   // Box/Line Reduction
    {7, 2.8},   // Naked Pair
    {7, 3.3},   // Naked Triple
    {7, 3.0},   // Hidden Pair
    {7, 3.9},   // Naked Quad
    {7, 3.5},   // Hidden Triple
    {7, 4.4},   // Naked Quint
    {8, 3.3},   // X-Wing
    {9, 3.9},   // Swordfish
    {10, 4.3},  // Multi-value X-Wing
    {11, 4.1},  // Empty Rectangle
    {12, 4.3},  // XY-Wing
    {13, 4.0},  // Two-String Kite
    {14, 3.9},  // Skyscraper
    {15, 4.5},  // XYZ-Wing
    {16, 4.7},  // Simple Colours
    {17, 5.1},  // Jellyfish
    {18, 5.2},  // WXYZ-Wing
    {19, 5.5},  // Multi-Colours
    {20, 4.4},  // Finned X-Wing
    {21, 5.8},  // 3D Medusa
    {22, 5.6},  // Sue-de-Coq
    {23, 5.5},  // Aligned Pair Exclusion
    {24, 4.6},  // Unique Rectangle
    {25, 4.8},  // Avoidable Rectangle
    {26, 6.0},  // Extended Aligned Pair Exclusion
    {27, 5.4},  // Bivalue Universal Grave
    {28, 6.0},  // Nice Loops, short
    {29, 6.3},  // Alternating Inference Chains up to 10
    {30, 6.5},  // XY-Chain
    {31, 6.9},  // Aligned Triple Exclusion
    {32, 6.7},  // Nice Loops, long
    {33, 7.0},  // Alternating Inference Chains up to 20
    {34, 6.8},  // ALS-xz
    {35, 7.3},  // MultiFish
    {36, 7.6},  // Forcing Chain
    {37, 8.0},  // Extended Aligned Triple Exclusion
    {38, 7.9},  // Alternating Inference Chains up to 30
    {39, 8.6},  // Bifurcation
}};

// What the ladder cannot solve.
inline constexpr double kUnsolvedScore = 12.0;
// The most that the extent of the solve adds to the hardest step.
inline constexpr double kMostExtent = 1.0;

// The weight of a rung.
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
