// SPDX-License-Identifier: GPL-3.0-or-later
// Puzzles for the tests, made by the project's own generator from fixed start values, and small
// helpers to build boards from text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "grid/board.h"
#include "solver/generator.h"
#include "solver/solve_context.h"

namespace tavi::testing {

// `count` minimal puzzles with a unique solution, the same for the same start value.
// Made once per process and kept.
const std::vector<GeneratedPuzzle>& GeneratedPuzzles(int count, std::uint64_t start = 20261121);

// The hardest puzzles the generator found, kept in tests/data, with their solutions.
std::vector<GeneratedPuzzle> HardPuzzles();

// Digits from 81 characters ('.' or '0' empty); fails the test on a bad string.
Digits DigitsOf(std::string_view text);

// A puzzle that logic leaves wide open: two rows and one digit, with many
// solutions, of which kOpenSolution is one. Its C1 has two candidates, and
// each guess there leaves the board open.
inline constexpr std::string_view kOpenPuzzle =
    "123456789456789123000000000000000000000000000000000000000000000000000000900000000";
inline constexpr std::string_view kOpenSolution =
    "123456789456789123789123456214365897365897214897214365531642978642978531978531642";

// Open cells everywhere, but A9 can hold nothing: A1..A8 hold 1..8 and E9 a 9.
Digits DeadCell();

// `puzzle` less its first clue: a puzzle with several solutions.
Digits WithoutFirstClue(Digits puzzle);

// `puzzle` with its first clue copied into an empty cell that sees it: no solution.
Digits WithClash(Digits puzzle);

// `line` (81 cells) as a grid of nine rows, with the lines between the boxes.
std::string GridText(std::string_view line);

// What a player sees of a board: its digits and its marks.
inline auto GridAndMarks(const Board& b) { return std::pair(b.CurrentGrid, b.Candidates); }

// The lines of `text`.
std::vector<std::string> Lines(const std::string& text);
// The fields of `line` between the `sep` characters, empty ones too.
std::vector<std::string> Fields(const std::string& line, char sep = '\t');

// A message or a box: its title and its text.
using TitleText = std::pair<std::string, std::string>;

// Records what the solver says.
struct RecordingNotifier : Notifier {
    int beeps = 0;
    std::vector<TitleText> messages;
    void Beep() override { ++beeps; }
    void Message(std::string_view title, std::string_view text) override {
        messages.emplace_back(title, text);
    }
};

}  // namespace tavi::testing
