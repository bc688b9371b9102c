// SPDX-License-Identifier: GPL-3.0-or-later
// Working memory that a few techniques keep from one call to the next, so that
// the ladder, which runs them again after every hit while most of the board stays
// as it was, does not start from nothing each time: the subsets' record of units
// scanned in vain, the almost locked sets of ALS-xz, the dead-end tables of the
// alternating inference chains. None of it decides a result; it only saves work.
//
// The solver context points to it. A copy of a context shares it, which suits the
// copies one thread makes (Bifurcation's trials, a test's look at a rung); a
// context for another thread must be made fresh, or be given its own with
// `SolveContext::OwnScratch`.
#pragma once

#include <array>
#include <memory>

namespace tavi {

class SolverScratch {
  public:
    // One slot per technique that keeps state; the technique owns the type.
    enum Slot { kSubsets, kAlsXz, kAic, kSlotCount };

    // The state in `slot`, made at first use.
    template <class T>
    T& Get(Slot slot) {
        std::shared_ptr<void>& p = slots_[slot];
        if (!p) p = std::make_shared<T>();
        return *static_cast<T*>(p.get());
    }

  private:
    std::array<std::shared_ptr<void>, kSlotCount> slots_;
};

}  // namespace tavi
