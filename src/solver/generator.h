// Making puzzles: a random solved grid, then clues taken away in random order for
// as long as the solution stays unique. Every clue left is needed, so the puzzle
// is minimal. The same seed always gives the same puzzles.
#pragma once

#include <cstdint>
#include <random>

#include "grid/board.h"

namespace tavi {

// A quick count of solutions by depth-first search over the unit masks, stopping
// at `limit`. The first solution goes to `first` when given. A puzzle whose givens
// clash has none.
int CountSolutions(const Digits& puzzle, int limit = 2, Digits* first = nullptr);

struct GeneratedPuzzle {
    Digits puzzle;
    Digits solution;
};

class PuzzleGenerator {
  public:
    explicit PuzzleGenerator(std::uint64_t seed) : rng_(seed) {}

    Digits RandomSolvedGrid();
    // A minimal puzzle with exactly one solution.
    GeneratedPuzzle Next();

  private:
    int Below(int n) { return int(rng_() % std::uint32_t(n)); }
    std::mt19937 rng_;
};

}  // namespace tavi
