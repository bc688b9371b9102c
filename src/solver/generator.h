// SPDX-License-Identifier: GPL-3.0-or-later
// Making puzzles: a random solved grid, then clues taken away in random order for
// as long as the solution stays unique. Every clue left is needed, so the puzzle
// is minimal. The same start value always gives the same puzzles.
#pragma once

#include <cstdint>
#include <random>

#include "grid/board.h"

namespace tavi {

struct GeneratedPuzzle {
    Digits puzzle;
    Digits solution;
};

class PuzzleGenerator {
  public:
    explicit PuzzleGenerator(std::uint64_t start) : rng_(start) {}

    Digits RandomSolvedGrid();
    // A minimal puzzle with exactly one solution.
    GeneratedPuzzle Next();

    // Every puzzle takes the same number of random draws, so the generator can
    // jump over puzzles: after Skip(n), Next() gives what the (n+1)-th call of
    // Next() would have given. Threads that share out the puzzles of one start
    // value use this to make the same list as a single thread.
    static constexpr int kDrawsPerPuzzle = 96;
    void Skip(unsigned long long puzzles) { rng_.discard(puzzles * kDrawsPerPuzzle); }

  private:
    int Below(int n) { return int(rng_() % std::uint32_t(n)); }
    std::mt19937 rng_;
};

}  // namespace tavi
