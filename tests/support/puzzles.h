// Puzzles for the tests, made by the project's own seeded generator, and small
// helpers to build boards from text.
#pragma once

#include <string_view>
#include <vector>

#include "grid/board.h"
#include "solver/generator.h"
#include "solver/solve_context.h"

namespace tavi::testing {

// `count` minimal puzzles with a unique solution, the same for the same seed.
// Made once per process and kept.
const std::vector<GeneratedPuzzle>& GeneratedPuzzles(int count, std::uint64_t seed = 20261121);

// Digits from 81 characters ('.' or '0' empty); fails the test on a bad string.
Digits DigitsOf(std::string_view text);

// A context whose board holds `puzzle` with its candidates set up.
SolveContext ContextFor(std::string_view puzzle, Side side = Side::Workbench);

// A board with no digits and only the candidates given per cell, for building
// patterns by hand: every cell starts with all nine, then `keep(cell)` gives the mask.
template <typename F>
Board BoardWithCandidates(F keep) {
    Board b;
    for (int c = 0; c < 81; ++c)
        b.Candidates[c] = keep(c);
    return b;
}

// Records what the solver says.
struct RecordingNotifier : Notifier {
    int beeps = 0;
    std::vector<std::pair<std::string, std::string>> messages;
    void Beep() override { ++beeps; }
    void Message(std::string_view title, std::string_view text) override {
        messages.emplace_back(title, text);
    }
};

}  // namespace tavi::testing
