// SPDX-License-Identifier: GPL-3.0-or-later
// Random and mutated text through the puzzle-line reader: every puzzle it hands
// on is 81 cells of 0 to 9 that match the text, and every line it refuses is
// named with its source and number. These run under the address and
// undefined-behaviour sanitizers in CI (scripts/test).
#include <gtest/gtest.h>

#include <random>
#include <sstream>

#include "cli/puzzle_lines.h"
#include "support/puzzles.h"

namespace tavi::cli {
namespace {

constexpr int kInputs = 10000;

std::string FuzzedText(std::mt19937& rng, int i) {
    std::string text;
    for (int line = 1 + int(rng() % 4); line > 0; --line) {
        std::string s = FormatDigits(testing::GeneratedPuzzles(4)[rng() % 4].puzzle, '.');
        if (i % 2 == 0) {
            s.assign(rng() % 100, ' ');
            for (char& c : s)
                c = char(rng());
        } else {
            for (int n = int(rng() % 3); n > 0; --n)
                s[rng() % s.size()] = "0123456789.x \t#\r"[rng() % 17];
            if (rng() % 4 == 0) s.resize(rng() % s.size());
        }
        text += s + "\n";
    }
    return text;
}

TEST(PuzzleLinesFuzz, OnlyWholePuzzlesPassAndEveryFaultIsNamed) {
    std::mt19937 rng(13);
    int passed = 0;
    for (int i = 0; i < kInputs; ++i) {
        const std::string text = FuzzedText(rng, i);
        std::istringstream in(text);
        std::ostringstream err;
        const int faults = ForEachPuzzle(
            in, err,
            [&](const PuzzleLine& p) {
                ASSERT_EQ(p.text.size(), 81u);
                for (int c = 0; c < 81; ++c) {
                    const char ch = p.text[c];
                    ASSERT_EQ(p.digits[c], ch >= '1' && ch <= '9' ? ch - '0' : 0) << i;
                }
                std::ostringstream clash;
                ReportClash(p, "fuzz", clash);
                ++passed;
            },
            "fuzz");
        if (faults) {
            ASSERT_EQ(err.str().rfind("fuzz, line ", 0), 0u) << err.str();
        } else {
            ASSERT_EQ(err.str(), "") << i;
        }
    }
    EXPECT_GT(passed, kInputs / 4);
}

}  // namespace
}  // namespace tavi::cli
