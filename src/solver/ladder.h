// The ladder: the techniques from the simplest to the hardest, back to the top
// after every success, until the board is solved or no technique helps. The
// hardest technique a puzzle needed is its rating.
#pragma once

#include <array>
#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "solver/solve_context.h"

namespace tavi {

// What a rung did: nothing, removed candidates, or placed `placed` digits.
struct RungOutcome {
    bool found = false;
    int placed = 0;
};

struct Rung {
    int number;  // the technique number, the index into the technique tables
    RungOutcome (*run)(SolveContext&);
    int level;               // what a hit raises SolvingLevel to
    std::string_view label;  // " - Scanning for ...", shown during a batch run

    // The label without its leading " - Scanning for ".
    std::string_view Name() const { return label.substr(16); }
};

// All rungs in their fixed order. Technique 7 stands six times (the subsets);
// techniques 3 to 7 are the fixed head of the ladder.
std::span<const Rung> LadderRungs();
// The rungs of one technique number (one, or six for technique 7).
std::span<const Rung> RungsOf(int technique);

inline constexpr int kTechniqueCount = 40;  // numbers 0..39; the ladder uses 3..39
inline constexpr int kBifurcationTechnique = 39;
using TechniqueOrder = std::array<int, kTechniqueCount>;  // entry i: position of technique i
TechniqueOrder DefaultTechniqueOrder();

// What a walker wants to hear of a run. All optional.
struct LadderObserver {
    std::function<void(const std::string&)> progress;  // label text before each rung
    std::function<void(const Rung&)> before;           // before each rung runs
    std::function<void(const Rung&)> hit;              // after each success
};

// The rating run of the workbench. Starts from Puzzle and from candidates that the
// caller has prepared (SetupCandidates). Follows `order` for the rungs from 8 on.
// True if logic solved the board; SolvingLevel then holds the rating.
struct WorkbenchRun {
    bool ImportRunning = false;
    bool CheckRunning = false;
    const TechniqueOrder* order = nullptr;  // the default order when null
    Notifier* notifier = nullptr;           // beep and "Sudoku solved and rated as ..."
    LadderObserver observer;
};
bool SolveSudoku(SolveContext& ctx, const WorkbenchRun& run);

// The game's check of a puzzle the user made: every rung in the fixed order, and
// the beep and message at a solved board.
bool SolveSudokuGame(SolveContext& ctx, Notifier* notifier, const LadderObserver& observer = {});

// The trial of Bifurcation: `digit` in `cell`, then the fixed ladder without
// Bifurcation. True if the logic then fills the board.
bool BIFSolveSudoku(SolveContext& ctx, int digit, int cell);

// The short ladder that softens a puzzle for the brute force: the contradiction
// test, the singles, the intersections and the subsets. True when it filled the
// last of `cellsToSolve`; `contradiction` is set when a cell ran out of candidates.
bool PreSolve(SolveContext& ctx, int& cellsToSolve, bool& contradiction);

// "Sudoku solved and rated as Easy" and its like, for levels 1..8.
std::string SolvedMessage(int level);

}  // namespace tavi
