// Everything a technique works on: the board, the level reached, the mode flags,
// the hint record, and the hooks through which the game keeps its move log in step
// and the workbench keeps its window alive. Every technique is written once against
// this context and cannot tell which board it is on, except where the two sides are
// said to differ (see Side).
#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "grid/board.h"
#include "grid/notifier.h"
#include "solver/hint_record.h"

namespace tavi {

// Which window the board belongs to. The few places where the two behave
// differently test this, one place each:
//  - a hidden single in the game needs a cell of more than one candidate;
//  - the game's ladder ends on any placement that fills the board, the
//    workbench's only on a single;
//  - the game's ladder runs the fixed order and speaks at the end, the
//    workbench's follows TechniqueOrder and reports progress.
enum class Side { Game, Workbench };

// The game's side of a placement or removal made by the solver: it turns them
// into steps of the move log. The workbench has none.
class MoveListener {
  public:
    virtual ~MoveListener() = default;
    // Places `digit` in `cell` with a step in the move log (the peers always lose
    // the digit). Must leave the candidates exactly as Zet would.
    virtual void ZetAuto(Board& board, int digit, int cell) = 0;
    // A candidate the solver took away while it was a user-visible move.
    virtual void CandidateRemoved(int digit, int cell) = 0;
};

// One change made by a rung, for the step trace of the command-line companion.
struct BoardChange {
    enum Kind { Placed, Removed } kind;
    int cell;
    int digit;
};

struct SolveContext {
    Board board;
    Side side = Side::Workbench;
    int SolvingLevel = 0;

    bool HintOnly = false;         // look, fill the record, change nothing
    bool ForceZet = false;         // solver placements use Zet and stay out of the move log
    bool AutosolveActive = false;  // solver placements use ZetAuto
    bool BatchRunning = false;     // a long run: yield to the event queue between passes
    HintRecord hint;

    std::function<void()> yield;                // lets the window breathe in long loops
    MoveListener* listener = nullptr;           // the game's move log
    std::vector<BoardChange>* trace = nullptr;  // records placements and removals when set

    explicit SolveContext(Side s = Side::Workbench) : side(s) {}

    void RaiseLevel(int level) {
        if (SolvingLevel < level) SolvingLevel = level;
    }
    void Yield() {
        if (BatchRunning && yield) yield();
    }
};

}  // namespace tavi
