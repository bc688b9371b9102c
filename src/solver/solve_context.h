// SPDX-License-Identifier: GPL-3.0-or-later
// Everything a technique works on: the board, the level reached, the mode, the
// hint record, and the hooks through which the game keeps its move log in step
// and the workbench keeps its window alive. Every technique is written once
// against this context and cannot tell which board it is on, except where the two
// sides are said to differ (see Side).
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "grid/board.h"
#include "platform/notifier.h"
#include "solver/hint_record.h"
#include "solver/scratch.h"
#include "solver/step_size.h"

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

// How the solver acts, as one value:
//  - HintOnly: look, don't touch. A hit fills the hint record and changes nothing.
//  - ForceZet: the solver's own placements use Zet and stay out of the move log
//    (the trials of Bifurcation).
//  - AutosolveActive: placements go through the game's ZetAuto, as moves.
//  - BatchRunning: a long run, which lets the window breathe between passes.
// A mode is changed only through a ModeScope, which puts the previous one back on
// every way out.
class SolveMode {
  public:
    enum Flag : std::uint8_t {
        kHintOnly = 1,
        kForceZet = 2,
        kAutosolveActive = 4,
        kBatchRunning = 8
    };

    constexpr SolveMode() = default;
    constexpr bool HintOnly() const { return bits_ & kHintOnly; }
    constexpr bool ForceZet() const { return bits_ & kForceZet; }
    constexpr bool AutosolveActive() const { return bits_ & kAutosolveActive; }
    constexpr bool BatchRunning() const { return bits_ & kBatchRunning; }

    // This mode with `flag` set (or cleared when `on` is false).
    constexpr SolveMode With(Flag flag, bool on = true) const {
        SolveMode m = *this;
        m.bits_ = std::uint8_t(on ? bits_ | flag : bits_ & ~flag);
        return m;
    }
    constexpr SolveMode Without(Flag flag) const { return With(flag, false); }
    constexpr bool operator==(const SolveMode&) const = default;

  private:
    std::uint8_t bits_ = 0;
};

struct SolveContext {
    Board board;
    Side side = Side::Workbench;
    int SolvingLevel = 0;
    HintRecord hint;
    StepSize stepSize;  // the size of the last hit, emptied before each rung

    std::function<void()> yield;       // lets the window breathe in long loops
    MoveListener* listener = nullptr;  // the game's move log
    // The game's question when a technique has shown a pattern it leaves to the
    // player (Sue-de-Coq): true when the player answers they can spot it, and the
    // rung then counts it as its hit. When there is nobody to ask, the pattern
    // counts.
    std::function<bool(const HintRecord&)> confirmPattern;

    explicit SolveContext(Side s = Side::Workbench) : side(s) {}

    const SolveMode& Mode() const { return mode_; }
    bool HintOnly() const { return mode_.HintOnly(); }
    bool ForceZet() const { return mode_.ForceZet(); }
    bool AutosolveActive() const { return mode_.AutosolveActive(); }
    bool BatchRunning() const { return mode_.BatchRunning(); }

    // The techniques' working memory (see scratch.h), made at first use.
    SolverScratch& Scratch() {
        if (!scratch_) scratch_ = std::make_shared<SolverScratch>();
        return *scratch_;
    }
    // Leaves the shared working memory for one of this context's own, as a context
    // handed to another thread must.
    void OwnScratch() { scratch_.reset(); }

    void RaiseLevel(int level) {
        if (SolvingLevel < level) SolvingLevel = level;
    }
    void Yield() {
        if (BatchRunning() && yield) yield();
    }

  private:
    friend class ModeScope;
    SolveMode mode_;
    std::shared_ptr<SolverScratch> scratch_;
};

// Sets the solver's mode for as long as it lives and puts the previous mode back
// when it goes, whichever way the scope is left.
class [[nodiscard]] ModeScope {
  public:
    ModeScope(SolveContext& ctx, SolveMode mode) : ctx_(ctx), saved_(ctx.mode_) {
        ctx.mode_ = mode;
    }
    ~ModeScope() { ctx_.mode_ = saved_; }
    ModeScope(const ModeScope&) = delete;
    ModeScope& operator=(const ModeScope&) = delete;

    // Changes the mode within the scope; the scope still restores the one it found.
    void Set(SolveMode mode) { ctx_.mode_ = mode; }
    // The mode the scope found, to derive a new one from.
    const SolveMode& Saved() const { return saved_; }

  private:
    SolveContext& ctx_;
    SolveMode saved_;
};

}  // namespace tavi
