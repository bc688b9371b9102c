// SPDX-License-Identifier: GPL-3.0-or-later
// The ladder: the techniques from the simplest to the hardest, back to the top
// after every success, until the board is solved or no technique helps. The
// hardest technique a puzzle needed is its rating.
//
// One table holds every rung; one walk runs them. The walkers (the workbench's
// rating run, the game's check of a made puzzle, the trial of Bifurcation, the
// pre-solve of the brute force, Hint, Autosolve and the command line's steps)
// differ only in the policy they hand the walk: which rungs in which order, in
// which mode, and what follows a hit.
#pragma once

#include <array>
#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "settings/technique_catalog.h"
#include "settings/technique_order.h"
#include "solver/solve_context.h"

namespace tavi {

// What a rung did: nothing, removed candidates, or placed `placed` digits.
struct RungOutcome {
    bool found = false;
    int placed = 0;
};

// A rung: its catalog row (number, names, hint kinds, weight) and the routine that
// runs it. The level comes from the catalog too: the walk raises SolvingLevel to
// it after a real hit, so no technique raises a level of its own.
struct Rung : RungEntry {
    RungOutcome (*run)(SolveContext&);
    int level;  // what a hit raises SolvingLevel to

    bool Fills(HintKind kind) const {
        return kind != HintKind::None && (kind == kinds[0] || kind == kinds[1]);
    }
};

// All rungs in their fixed order. Technique 7 stands six times (the subsets);
// techniques 3 to 7 are the fixed head of the ladder.
std::span<const Rung> LadderRungs();
// The rungs of one technique number (one, or six for technique 7).
std::span<const Rung> RungsOf(int technique);
// The position of a rung in LadderRungs.
int RungIndex(const Rung& rung);

// A list of rungs in the order a walk tries them.
class RungOrder {
  public:
    void Add(const Rung* rung) { rungs_[size_++] = rung; }
    std::span<const Rung* const> View() const { return {rungs_.data(), size_t(size_)}; }

  private:
    std::array<const Rung*, 42> rungs_{};
    int size_ = 0;
};
// The fixed head, then at each position from 8 on the technique whose order entry
// names it. Where two entries share a position the higher technique number wins,
// as the scan does not stop at the first; Bifurcation keeps the last place.
// `on`, when given, leaves out the techniques it answers false for.
RungOrder OrderedRungs(const TechniqueOrder& order,
                       const std::function<bool(int technique)>& on = {});

// How a walk runs the rungs.
struct LadderWalk {
    std::span<const Rung* const> rungs;  // in the order they are tried
    bool yieldEachPass = false;          // let the window breathe at the top of each pass
    bool checkContradiction = true;      // EmptyCell at the top of each pass
    // The workbench ends a run only on a single that fills the last cell; a board
    // filled by another rung is run over once more and the walk ends exhausted.
    bool onlySinglesFinish = false;
    bool firstHitOnly = false;                      // one step: the first hit ends the walk
    std::function<SolveMode(const Rung&)> modeFor;  // a rung's mode; by default as it stands
    std::function<void(const Rung&)> before;        // before each rung
    std::function<bool(const Rung&)> hit;           // after each hit; false halts the walk
    std::function<bool()> stop;                     // asked at the top of each pass
};
enum class WalkEnd { Solved, Contradiction, Exhausted, Hit, Halted, Stopped };
struct WalkResult {
    WalkEnd end;
    const Rung* last = nullptr;  // the rung of the last hit
};
// Walks the rungs, back to the top after every hit, keeping `cellsLeft` (the empty
// cells) in step with what the rungs place. The record's conclusions are emptied
// before each rung, so after a hit they hold what that hit concluded.
WalkResult WalkLadder(SolveContext& ctx, const LadderWalk& walk, int& cellsLeft);

// What a walker wants to hear of a run. All optional.
struct LadderObserver {
    std::function<void(const std::string&)> progress;  // label text before each rung
    std::function<void(const Rung&)> before;           // before each rung runs
    std::function<void(const Rung&)> hit;              // after each success
};

// The rating run of the workbench. Starts from Puzzle and from candidates that the
// caller has prepared (SetupCandidates). Follows `order` for the rungs from 8 on.
struct WorkbenchRun {
    // During an import or a check the progress texts go to observer.progress
    // ("Solving Imported Sudoku : Rated ..." or "Solving Sudoku : Rated ...").
    bool ImportRunning = false;
    bool CheckRunning = false;
    const TechniqueOrder* order = nullptr;  // the default order when null
    LadderObserver observer;
};

// How a run of the ladder ended: whether logic solved the board, the level it
// reached (SolvingLevel), and whether the board is full. A workbench run that a
// rung other than a single filled ends exhausted, unsolved on a full board; its
// caller still says it solved. The caller reports the outcome (SolvedMessage).
struct SolveOutcome {
    bool solved = false;
    bool full = false;
    int level = 0;

    explicit operator bool() const { return solved; }
};
SolveOutcome SolveSudoku(SolveContext& ctx, const WorkbenchRun& run);

// The game's check of a puzzle the user made: every rung in the fixed order.
SolveOutcome SolveSudokuGame(SolveContext& ctx, const LadderObserver& observer = {});

// The trial of Bifurcation: `digit` in `cell`, then the fixed ladder without
// Bifurcation. True if the logic then fills the board.
bool BIFSolveSudoku(SolveContext& ctx, int digit, int cell);

// The short ladder that softens a puzzle for the brute force: the contradiction
// test, the singles, the intersections and the subsets. True when it filled the
// last of `cellsToSolve`; `contradiction` is set when a cell ran out of candidates.
bool PreSolve(SolveContext& ctx, int& cellsToSolve, bool& contradiction);

// Runs technique `technique` once on the board in the context's mode: its rungs in
// table order (the six subset rows for technique 7), the first hit answering. The
// record's conclusions then hold what the hit concludes. Null for no hit, or for a
// number that is no rung.
const Rung* RunTechnique(SolveContext& ctx, int technique);

// Runs one rung once in the context's mode: its routine, and after a real hit (not
// a hint's look) SolvingLevel raised to the rung's level. Every walk runs its rungs
// through this.
RungOutcome RunRung(SolveContext& ctx, const Rung& rung);

// A short name of a rung for counts: its technique number, and for the six subset
// rows of technique 7 the row as well ("7.1" to "7.6").
std::string RungKey(const Rung& rung);

// "Sudoku solved and rated as Easy" and its like, for levels 1..8.
std::string SolvedMessage(int level);

}  // namespace tavi
