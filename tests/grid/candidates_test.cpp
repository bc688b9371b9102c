// SPDX-License-Identifier: GPL-3.0-or-later
#include "grid/candidates.h"

#include <gtest/gtest.h>

#include "solver/primitives.h"
#include "support/boards.h"

namespace tavi {
namespace {

using testing::OpenBoard, testing::RecordingListener;

// How a technique's removal lands: under a hint it only reports, with ForceZet it
// removes quietly, otherwise it removes and the game's move log hears of it.
TEST(VerwijderKnop, HonoursHintOnlyAndForceZet) {
    struct Case {
        const char* name;
        bool hintOnly, forceZet;
        int digit;
        bool answer, removes, heard;
    } cases[] = {
        {"plain removal", false, false, 7, true, true, true},
        {"under a hint", true, false, 7, true, false, false},
        {"under a hint with ForceZet", true, true, 7, true, false, false},
        {"ForceZet alone", false, true, 7, true, true, false},
        {"not a candidate", false, false, 3, false, false, false},
    };
    for (const Case& k : cases) {
        SCOPED_TRACE(k.name);
        Board b = OpenBoard();
        b.Candidates[12] = DigitBit(1) | DigitBit(7) | DigitBit(9);
        RecordingListener listener;
        SolveContext ctx = testing::ContextOn(b, Side::Game);
        ctx.listener = &listener;
        ModeScope mode(ctx, SolveMode{}
                                .With(SolveMode::kHintOnly, k.hintOnly)
                                .With(SolveMode::kForceZet, k.forceZet));
        EXPECT_EQ(VerwijderKnop(ctx, k.digit, 12), k.answer);
        Board expected = b;
        if (k.removes) expected.Candidates[12] = DigitBit(1) | DigitBit(9);
        EXPECT_EQ(ctx.board.Candidates, expected.Candidates);
        EXPECT_TRUE(listener.placed.empty());
        EXPECT_EQ(listener.removed, std::vector<testing::Removal>(k.heard, {12, 7}));
    }
}

// A technique's placement: a look under a hint, a move of the game (ZetAuto)
// while Autosolve plays, a quiet Zet otherwise or when ForceZet keeps a trial out
// of the move log. Every way, the record's conclusions name it.
TEST(PlaceDigit, FollowsTheMode) {
    struct Case {
        bool hintOnly, autosolve, forceZet;
        bool places, heard;
    } cases[] = {{false, false, false, true, false}, {false, true, false, true, true},
                 {false, true, true, true, false},   {false, false, true, true, false},
                 {true, false, false, false, false}, {true, true, false, false, false}};
    const Board b = OpenBoard();
    Board expected = b;
    Zet(expected, 7, 20);
    for (const Case& k : cases) {
        RecordingListener listener;
        SolveContext ctx = testing::ContextOn(b, Side::Game);
        ctx.listener = &listener;
        ModeScope mode(ctx, SolveMode{}
                                .With(SolveMode::kHintOnly, k.hintOnly)
                                .With(SolveMode::kAutosolveActive, k.autosolve)
                                .With(SolveMode::kForceZet, k.forceZet));
        PlaceDigit(ctx, 7, 20);
        EXPECT_EQ(ctx.board.Candidates, k.places ? expected.Candidates : b.Candidates);
        EXPECT_EQ(ctx.board.CurrentGrid[20], k.places ? 7 : 0);
        EXPECT_EQ(listener.placed.size(), k.heard ? 1u : 0u);
        EXPECT_EQ(FormatConclusions(ctx.hint.Conclusions), "C3=7");
    }
}

}  // namespace
}  // namespace tavi
