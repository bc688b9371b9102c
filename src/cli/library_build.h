// SPDX-License-Identifier: GPL-3.0-or-later
// The puzzles of a library as `library build` makes them: random minimal puzzles
// rated by the plain ladder fill the levels they reach, and the search for hard
// puzzles fills the levels above them, walking out from the hardest random ones.
// No puzzle stands twice, not even in other clothes (see canonical_form.h). The
// same start value gives the same library for any number of threads, as long as
// neither the time nor the number of walks cuts it short.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "library/records.h"
#include "solver/generator.h"

namespace tavi::cli {

struct LibraryPlan {
    std::array<long, 10> wanted{};  // puzzles per level 1..9
    std::uint64_t start = 1;        // of the random numbers
    double minutes = 10;            // the whole build stops after this long
    int threads = 1;
    long walks = -1;            // the search makes at most this many walks; -1 no limit
    long ratingsPerWalk = 100;  // candidates with one solution rated per walk
    // Puzzles the search starts from instead of the hardest random ones, for a
    // build of the top levels from a library made before; no random puzzles then.
    std::vector<Digits> from;
};

struct SearchTally {
    long walks = 0;
    long tried = 0;    // candidates made
    long unique = 0;   // of them with one solution, rated
    long kept = 0;     // of them a walk moved on to
    long rerated = 0;  // finds the ladder rated at another level from scratch
    double seconds = 0;
};

struct LibraryPuzzles {
    // Each level from easier to harder: by the steps beyond the fixed head of the
    // ladder, then beyond the singles, then all steps; the order of making breaks ties.
    std::array<std::vector<SudokuRecord>, 10> levels;
    std::array<bool, 10> searched{};  // the level was filled by the search
    // Seconds until the level was full, or until its part of the build ended:
    // a level of random puzzles from the start, a level of the search from the
    // start of the search.
    std::array<double, 10> seconds{};
    long generated = 0;  // random puzzles made
    double randomSeconds = 0;
    SearchTally search;
};

// Makes puzzle i of a start value on any thread: the generator jumps over the
// puzzles that other threads make.
class NumberedGenerator {
  public:
    explicit NumberedGenerator(std::uint64_t start) : generator_(start) {}
    GeneratedPuzzle operator()(long i) {
        generator_.Skip(std::uint64_t(i - next_));
        next_ = i + 1;
        return generator_.Next();
    }

  private:
    PuzzleGenerator generator_;
    long next_ = 0;
};

LibraryPuzzles MakeLibraryPuzzles(const LibraryPlan& plan);

// Orders the puzzles of one level from easier to harder, as New then leads a
// player up the level: by the difficulty score, ties by the puzzle itself.
void OrderByScore(std::vector<SudokuRecord>& records);

}  // namespace tavi::cli
