// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "solver/brute_force.h"
#include "support/puzzles.h"

namespace tavi {
namespace {

constexpr const char* kTooFew = "A minimum of 17 clues is required !";
constexpr const char* kSolved = "The sudoku is allready solved !";
constexpr const char* kRows = "More than one empty row in the same band is not allowed !";
constexpr const char* kColumns = "More than one empty column in the same stack is not allowed !";
constexpr const char* kBoxes = "More than four empty boxes are not allowed !";

// A full grid with the cells for which `blank` answers true emptied.
Digits Blanked(const std::function<bool(int row, int column)>& blank) {
    Digits d = testing::GeneratedPuzzles(1)[0].solution;
    for (int c = 0; c < 81; ++c)
        if (blank(c / 9, c % 9)) d[c] = 0;
    return d;
}

bool AnyOf(int x, std::initializer_list<int> values) {
    return std::find(values.begin(), values.end(), x) != values.end();
}

// 18 clues, two per row, one or more in every column and every box.
bool Sparse(int r, int c) { return c != r && c != (r + 4) % 9; }

// Clashing digits are for the solver to turn down, not for these rules.
TEST(SudMeetRestrictions, TellsTheFirstRuleBroken) {
    Digits clashing = Blanked(Sparse);
    clashing[1] = clashing[2] = clashing[4];  // three alike in row A
    struct Case {
        const char* name;
        Digits grid;
        const char* message;  // null: the entry may go on
    } cases[] = {
        {"18 spread clues, three alike", clashing, nullptr},
        {"17 spread clues",
         Blanked([](int r, int c) { return Sparse(r, c) || (r == 0 && c == 0); }), nullptr},
        {"16 clues", Blanked([](int r, int c) { return Sparse(r, c) || (r == c && r < 2); }),
         kTooFew},
        {"all 81 cells", Blanked([](int, int) { return false; }), kSolved},
        {"80 cells", Blanked([](int r, int c) { return r == 8 && c == 8; }), nullptr},
        {"rows A and B empty", Blanked([](int r, int) { return r < 2; }), kRows},
        {"row B alone empty", Blanked([](int r, int) { return r == 1; }), nullptr},
        {"rows A and D empty, in two bands", Blanked([](int r, int) { return r == 0 || r == 3; }),
         nullptr},
        {"columns 7 and 8 empty", Blanked([](int, int c) { return c == 6 || c == 7; }), kColumns},
        {"a band's rows and a stack's columns, first band and stack",
         Blanked([](int r, int c) { return r < 2 || c < 2; }), kRows},
        {"the first stack goes before the second band", Blanked([](int r, int c) {
             return AnyOf(r, {3, 4}) || c < 2;
         }),
         kColumns},
        {"four empty boxes", Blanked([](int r, int c) {
             return AnyOf(3 * (r / 3) + c / 3, {0, 2, 6, 8});
         }),
         nullptr},
        {"five empty boxes", Blanked([](int r, int c) {
             return AnyOf(3 * (r / 3) + c / 3, {0, 2, 4, 6, 8});
         }),
         kBoxes},
    };
    for (const auto& k : cases) {
        SCOPED_TRACE(k.name);
        Board b;
        b.CurrentGrid = k.grid;
        testing::RecordingNotifier notifier;
        EXPECT_EQ(SudMeetRestrictions(b, &notifier), k.message == nullptr);
        if (k.message) {
            ASSERT_EQ(notifier.messages.size(), 1u);
            EXPECT_EQ(notifier.messages[0].second, k.message);
        } else {
            EXPECT_TRUE(notifier.messages.empty());
        }
        EXPECT_EQ(notifier.beeps, 0);
    }
}

}  // namespace
}  // namespace tavi
