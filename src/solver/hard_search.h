// SPDX-License-Identifier: GPL-3.0-or-later
// Finding puzzles harder than random ones. Random minimal puzzles seldom reach
// Extreme and never the levels above it, so the search starts from the hardest
// puzzles the generator made and walks their neighbourhood: take one or two clues
// away and put one or two digits in other cells, keep the result when it still has
// one solution and rates at least as hard, and note every puzzle on the way that
// rates at a wanted level. A walk is fixed by its start puzzle and its start value,
// so walks shared out over threads give the same puzzles as one thread.
#pragma once

#include <cstdint>
#include <tuple>
#include <vector>

#include "grid/board.h"
#include "grid/levels.h"
#include "solver/solve_context.h"

namespace tavi {

// What the workbench's plain ladder (the default order) says of a puzzle, with the
// measures the library orders a level by and the search climbs on.
struct LadderRating {
    int level = 0;            // 1..8, Outlaw (9) when the ladder fails
    int hardestRung = -1;     // position in LadderRungs of the hardest rung that hit
    int stepsBeyondHead = 0;  // hits of the rungs after the fixed head
    int stepsBeyondSingles = 0;
    int steps = 0;
    int stepsAtLevel = 0;    // hits of rungs of the puzzle's own level
    int emptyAtHardest = 0;  // empty cells after the first hit of the hardest rung
    int cellsLeft = 0;       // empty cells the ladder could not fill (Outlaw)
    // Cells of two candidates when the walk first came to Bifurcation, the last
    // rung, which tries them: the fewer, the nearer the puzzle is to Outlaw.
    int pairsAtLastRung = 0;
    // Measured only when the solution is given: of the cells Bifurcation could
    // try, those whose true digit lets the ladder finish, at the board where the
    // fewest did. None means the ladder fails there: the puzzle is Outlaw. The
    // ease adds for each of them how far below Extreme its trial stayed, so that
    // a puzzle whose last good trial needs the hardest rungs is nearer still.
    int trialsThatSolve = 0;
    int trialEase = 0;

    // How hard, for the search: the level, then the hardest rung, then (when the
    // search climbs toward Outlaw) the trials that still solve and their ease, the
    // pairs the last rung had to try, how often the puzzle's level was needed, how
    // early the hardest rung was needed and the cells the ladder left. More is harder.
    auto Hardness(bool towardOutlaw = false) const {
        return std::tuple(level, hardestRung, towardOutlaw ? -trialsThatSolve : 0,
                          towardOutlaw ? -trialEase : 0, -pairsAtLastRung, stepsAtLevel,
                          emptyAtHardest, cellsLeft);
    }
    // How far into a level, for the order of a library file: the steps beyond the
    // head, then those beyond the singles, then all steps. More is further.
    auto Depth() const { return std::tuple(stepsBeyondHead, stepsBeyondSingles, steps); }
};

// Rates `puzzle` from scratch on `ctx` (its board is replaced). With its
// `solution` the trials of Bifurcation are measured too, at a cost.
LadderRating RateOnLadder(SolveContext& ctx, const Digits& puzzle,
                          const Digits* solution = nullptr);

struct SearchFind {
    Digits puzzle;
    Digits solution;
    LadderRating rating;
};

struct WalkReport {
    std::vector<SearchFind> finds;  // in the order met, each puzzle once
    long tried = 0;                 // candidates made
    long unique = 0;                // of them with one solution, and so rated
    long kept = 0;                  // of them the walk moved on to
    SearchFind last;                // where the walk ended: the hardest it came to
};

// One walk from `start` (a puzzle with one solution), its random numbers from
// `draw`, until `ratings` candidates with one solution were rated (or 50 times as
// many were made). Every rated candidate whose level is at least `wantedLevel` is
// a find; at most `findsPerLevel` per level, so that one walk does not fill a
// level with near neighbours. A walk that wants Outlaw climbs on the trials of
// Bifurcation as well: Mayhem puzzles differ most in how many of them still solve.
class HardPuzzleSearch {
  public:
    HardPuzzleSearch(int wantedLevel, int findsPerLevel)
        : wanted_(wantedLevel), findsPerLevel_(findsPerLevel) {}
    bool TowardOutlaw() const { return wanted_ >= kOutlaw; }

    WalkReport Walk(const Digits& start, std::uint64_t draw, long ratings);

  private:
    int wanted_;
    int findsPerLevel_;
    SolveContext ctx_{Side::Workbench};
};

}  // namespace tavi
