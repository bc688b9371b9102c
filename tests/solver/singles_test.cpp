#include <gtest/gtest.h>

#include "solver/techniques.h"
#include "support/boards.h"

namespace tavi {
namespace {

using testing::Box;
using testing::Column;
using testing::KeepDigitOnlyIn;
using testing::OpenBoard;
using testing::Row;

struct Found {
    int cell, digit, variant;
    bool operator==(const Found&) const = default;
};
std::ostream& operator<<(std::ostream& os, const Found& f) {
    return os << CellName(f.cell) << "=" << f.digit << " variant " << f.variant;
}

// What HiddenSingle would tell the player on `board`, checking on the way that a
// hint changes nothing and writes only the fields of its kind.
Found HiddenSingleHint(const Board& board, Side side) {
    SolveContext ctx = testing::ContextOn(board, side);
    ModeScope looking_ctx(ctx, ctx.Mode().With(SolveMode::kHintOnly));
    ctx.hint = testing::MarkedHint();
    if (!HiddenSingle(ctx)) return {-1, 0, 0};
    EXPECT_EQ(ctx.board.Candidates, board.Candidates);
    EXPECT_EQ(ctx.board.CurrentGrid, board.CurrentGrid);
    EXPECT_EQ(ctx.SolvingLevel, 0);
    const HintRecord& h = ctx.hint;
    EXPECT_EQ(h.HintKind, 2);
    EXPECT_EQ(h.HintCell, -99) << "kind 2 does not name HintCell";
    EXPECT_EQ(h.HintCellCount, -99);
    return {9 * h.HintRow + h.HintColumn, h.HintNumber, h.HintVariant};
}

TEST(HiddenSingle, SweepsBoxesThenRowsThenColumns) {
    struct Case {
        bool box, row, column;
        Found expected;
    } cases[] = {
        {true, true, true, {80, 9, 3}},
        {false, true, true, {0, 1, 1}},
        {false, false, true, {40, 1, 2}},
        {false, false, false, {-1, 0, 0}},
    };
    for (const Case& k : cases) {
        Board b = OpenBoard();
        if (k.box) KeepDigitOnlyIn(b, 9, Box(8), {80});        // a 9 in box 9 only at J9
        if (k.row) KeepDigitOnlyIn(b, 1, Row(0), {0});         // a 1 in row A only at A1
        if (k.column) KeepDigitOnlyIn(b, 1, Column(4), {40});  // a 1 in column 5 only at E5
        for (Side side : {Side::Workbench, Side::Game})
            EXPECT_EQ(HiddenSingleHint(b, side), k.expected)
                << "box " << k.box << " row " << k.row << " column " << k.column;
    }
}

TEST(HiddenSingle, LowerBoxFirstWhateverTheDigitThenLowerDigit) {
    Board boxes = OpenBoard();
    KeepDigitOnlyIn(boxes, 9, Box(1), {4});
    KeepDigitOnlyIn(boxes, 1, Box(2), {8});
    EXPECT_EQ(HiddenSingleHint(boxes, Side::Workbench), (Found{4, 9, 3}));

    Board digits = OpenBoard();
    KeepDigitOnlyIn(digits, 7, Box(4), {30});
    KeepDigitOnlyIn(digits, 3, Box(4), {40});
    EXPECT_EQ(HiddenSingleHint(digits, Side::Workbench), (Found{40, 3, 3}));
}

// B2 holds only a 4 and is the only place of 4 in its box. The workbench calls it
// a hidden single; the game leaves it to NakedSingle and finds the later one.
TEST(HiddenSingle, TheGameLeavesAOneCandidateCellToNakedSingle) {
    Board b = OpenBoard();
    KeepDigitOnlyIn(b, 4, Box(0), {10});
    b.Candidates[10] = DigitBit(4);
    KeepDigitOnlyIn(b, 2, Box(5), {43});
    EXPECT_EQ(HiddenSingleHint(b, Side::Workbench), (Found{10, 4, 3}));
    EXPECT_EQ(HiddenSingleHint(b, Side::Game), (Found{43, 2, 3}));

    SolveContext game = testing::ContextOn(b, Side::Game);
    ModeScope looking_game(game, game.Mode().With(SolveMode::kHintOnly));
    ASSERT_TRUE(NakedSingle(game));
    EXPECT_EQ(game.hint.HintKind, 1);
    EXPECT_EQ(game.hint.HintCell, 10);
}

TEST(HiddenSingle, PlacesTheDigitAndRaisesTheLevelToOne) {
    Board b = OpenBoard();
    KeepDigitOnlyIn(b, 6, Row(3), {33});
    for (int startLevel : {0, 3}) {
        SolveContext ctx = testing::ContextOn(b);
        ctx.SolvingLevel = startLevel;
        ASSERT_TRUE(HiddenSingle(ctx));
        EXPECT_EQ(ctx.board.CurrentGrid[33], 6);
        Board expected = b;
        Zet(expected, 6, 33);
        EXPECT_EQ(ctx.board.Candidates, expected.Candidates);
        EXPECT_EQ(ctx.SolvingLevel, std::max(startLevel, 1));
    }
}

TEST(NakedSingle, TakesTheFirstOneCandidateCellInReadingOrder) {
    Board b = OpenBoard();
    b.Candidates[50] = DigitBit(2);
    b.Candidates[20] = DigitBit(7);

    SolveContext hint = testing::ContextOn(b, Side::Game);
    ModeScope looking_hint(hint, hint.Mode().With(SolveMode::kHintOnly));
    hint.hint = testing::MarkedHint();
    ASSERT_TRUE(NakedSingle(hint));
    const HintRecord& h = hint.hint;
    EXPECT_EQ(h.HintKind, 1);
    EXPECT_EQ(h.HintCell, 20);
    EXPECT_EQ(h.HintRow, 2);
    EXPECT_EQ(h.HintColumn, 2);
    EXPECT_EQ(h.HintNumber, 7);
    EXPECT_EQ(h.HintVariant, -99) << "kind 1 does not name HintVariant";
    EXPECT_EQ(hint.board.Candidates, b.Candidates);
    EXPECT_EQ(hint.board.CurrentGrid, b.CurrentGrid);
    EXPECT_EQ(hint.SolvingLevel, 0);

    SolveContext ctx = testing::ContextOn(b);
    ASSERT_TRUE(NakedSingle(ctx));
    EXPECT_EQ(ctx.board.CurrentGrid[20], 7);
    EXPECT_EQ(ctx.SolvingLevel, 1);
    ASSERT_TRUE(NakedSingle(ctx)) << "a filled cell is passed over";
    EXPECT_EQ(ctx.board.CurrentGrid[50], 2);
    EXPECT_FALSE(NakedSingle(ctx));
}

// The game places a single through ZetAuto (a step of the move log) while
// Autosolve runs, unless ForceZet keeps the solver's trial out of the log.
TEST(NakedSingle, PlacesThroughZetAutoOnlyWhileAutosolvePlays) {
    struct Case {
        bool autosolve, forceZet, heard;
    } cases[] = {
        {false, false, false}, {true, false, true}, {true, true, false}, {false, true, false}};
    Board b = OpenBoard();
    b.Candidates[20] = DigitBit(7);
    Board expected = b;
    Zet(expected, 7, 20);
    for (const Case& k : cases) {
        testing::RecordingListener listener;
        SolveContext ctx = testing::ContextOn(b, Side::Game);
        ctx.listener = &listener;
        ModeScope mode(ctx, SolveMode{}
                                .With(SolveMode::kAutosolveActive, k.autosolve)
                                .With(SolveMode::kForceZet, k.forceZet));
        ASSERT_TRUE(NakedSingle(ctx));
        EXPECT_EQ(ctx.board.Candidates, expected.Candidates);
        EXPECT_EQ(ctx.board.CurrentGrid[20], 7);
        EXPECT_EQ(listener.placed.size(), k.heard ? 1u : 0u)
            << "autosolve " << k.autosolve << " forceZet " << k.forceZet;
        EXPECT_TRUE(listener.removed.empty());
    }
}

}  // namespace
}  // namespace tavi
