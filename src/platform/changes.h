// SPDX-License-Identifier: GPL-3.0-or-later
// How a model the window draws (the game, the workbench) tells the window what
// changed: it looks at what the window shows when a public routine starts, and
// again when the outermost one ends, and names the parts that differ. No routine
// can then forget to say what it changed, nor say it twice.
#pragma once

namespace tavi {

// A set of changes: bits of the model's own list of the parts of its window.
struct Changes {
    unsigned bits = 0;

    bool Has(unsigned change) const { return (bits & change) != 0; }
    bool Any() const { return bits != 0; }
    Changes& operator|=(unsigned change) {
        bits |= change;
        return *this;
    }
};

// Opened at the start of each public routine of `Model`: the outermost one
// takes the model's look (`seen_ = Look()`), and calls `ScopeEnded()` as it
// closes, where the model compares and tells. A routine called from another,
// or from the window while a long run breathes, tells nothing of its own.
// The model befriends its ChangeScope and keeps `int scopes_`.
template <class Model>
class ChangeScope {
  public:
    explicit ChangeScope(Model& model) : model_(model) {
        if (model_.scopes_++ == 0) model_.seen_ = model_.Look();
    }
    ~ChangeScope() {
        if (--model_.scopes_ == 0) model_.ScopeEnded();
    }
    ChangeScope(const ChangeScope&) = delete;
    ChangeScope& operator=(const ChangeScope&) = delete;

  private:
    Model& model_;
};

}  // namespace tavi
