// The sentences of the kinds whose rungs exist, from the records those rungs
// really leave when they run as a hint on boards built for them.
#include <gtest/gtest.h>

#include <functional>

#include "hints/schrijf_hint.h"
#include "solver/ladder.h"
#include "solver/techniques.h"
#include "support/boards.h"
#include "support/puzzles.h"

namespace tavi {
namespace {

using testing::Box;
using testing::Column;
using testing::KeepDigitOnlyIn;
using testing::KeepDigitsOnlyIn;
using testing::OpenBoard;
using testing::Row;
using testing::SetCandidates;

// The record a rung leaves when it runs as a hint over a record of stale marks.
HintRecord HintOf(const Board& board, const std::function<bool(SolveContext&)>& rung) {
    SolveContext ctx = testing::ContextOn(board, Side::Game);
    ModeScope looking_ctx(ctx, ctx.Mode().With(SolveMode::kHintOnly));
    ctx.hint = testing::MarkedHint();
    EXPECT_TRUE(rung(ctx)) << "the rung finds its pattern";
    return ctx.hint;
}

struct HitCase {
    const char* name;
    void (*build)(Board&);
    std::function<bool(SolveContext&)> rung;
    const char* sentence;
};

bool Naked(SolveContext& c, int size) { return NakedHidden(c, true, size); }
bool Hidden(SolveContext& c, int size) { return NakedHidden(c, false, size); }

TEST(SchrijfHint, TellsEachHitOfTheFirstRungs) {
    const HitCase cases[] = {
        {"naked single", [](Board& b) { SetCandidates(b, 80, {4}); }, NakedSingle,
         "NAKED SINGLE: Since number 4 at cell J9 is the only one possible, it must be there"},
        {"hidden single in the middle box, spelt center",
         [](Board& b) { KeepDigitOnlyIn(b, 5, Box(4), {40}); }, HiddenSingle,
         "HIDDEN SINGLE: Since number 5 in the center block appears only at cell E5, it must be "
         "there"},
        {"hidden single in a box", [](Board& b) { KeepDigitOnlyIn(b, 8, Box(5), {35}); },
         HiddenSingle,
         "HIDDEN SINGLE: Since number 8 in the right centre block appears only at cell D9, it "
         "must be there"},
        {"hidden single in the last row", [](Board& b) { KeepDigitOnlyIn(b, 7, Row(8), {72}); },
         HiddenSingle,
         "HIDDEN SINGLE: Since number 7 in row J appears only at cell J1, it must be there"},
        {"hidden single in the first column",
         [](Board& b) { KeepDigitOnlyIn(b, 2, Column(0), {0}); }, HiddenSingle,
         "HIDDEN SINGLE: Since number 2 in column 1 appears only at cell A1, it must be there"},
        {"pointing along a row",
         [](Board& b) {
             KeepDigitOnlyIn(b, 5, Box(0), {0, 1});
         },
         PointingPair,
         "POINTING PAIR: Since number 5 in the top left block appears only in row A, this number "
         "can't be in any other block of that same row"},
        {"pointing along a column",
         [](Board& b) {
             KeepDigitOnlyIn(b, 5, Box(4), {31, 49});
         },
         PointingPair,
         "POINTING PAIR: Since number 5 in the centre block appears only in column 5, this number "
         "can't be in any other block of that same column"},
        {"box line in the top left box keeps its two spaces",
         [](Board& b) {
             KeepDigitOnlyIn(b, 3, Row(0), {0, 1, 2});
         },
         BoxLine,
         "BOX LINE REDUCTION: Since number 3 in row A appears only in the top left block,  this "
         "number can't be anywhere else in that block"},
        {"box line in a column",
         [](Board& b) {
             KeepDigitOnlyIn(b, 6, Column(8), {62, 80});
         },
         BoxLine,
         "BOX LINE REDUCTION: Since number 6 in column 9 appears only in the bottom right block, "
         "this number can't be anywhere else in that block"},
        {"naked pair in a row",
         [](Board& b) {
             SetCandidates(b, 0, {1, 2});
             SetCandidates(b, 1, {1, 2});
         },
         [](SolveContext& c) { return Naked(c, 2); },
         "NAKED PAIR: Since cells A1 and A2 in row A contains only the candidates 1 and 2, those "
         "candidates can't appear anywhere else in that row"},
        {"naked triple in a column",
         [](Board& b) {
             SetCandidates(b, 4, {3, 5});
             SetCandidates(b, 13, {5, 8});
             SetCandidates(b, 22, {3, 8});
         },
         [](SolveContext& c) { return Naked(c, 3); },
         "NAKED TRIPLE: Since cells A5, B5 and C5 in column 5 contains only the candidates 3, 5 "
         "and 8, those candidates can't appear anywhere else in that column"},
        {"naked quad in a box",
         [](Board& b) {
             SetCandidates(b, 30, {1, 2});
             SetCandidates(b, 32, {2, 3});
             SetCandidates(b, 40, {3, 4});
             SetCandidates(b, 50, {1, 4});
         },
         [](SolveContext& c) { return Naked(c, 4); },
         "NAKED QUAD: Since cells D4, D6, E5 and F6 in the centre block contains only the "
         "candidates 1, 2, 3 and 4, those candidates can't appear anywhere else in that block"},
        {"naked quint in a row",
         [](Board& b) {
             for (int c : {72, 74, 76, 78, 80})
                 SetCandidates(b, c, {2, 4, 6, 7, 9});
         },
         [](SolveContext& c) { return Naked(c, 5); },
         "NAKED QUINT: Since cells J1, J3, J5, J7 and J9 in row J contains only the candidates 2, "
         "4, 6, 7 and 9, those candidates can't appear anywhere else in that row"},
        {"hidden pair in a row",
         [](Board& b) {
             KeepDigitsOnlyIn(b, {6, 7}, Row(1), {9, 10});
         },
         [](SolveContext& c) { return Hidden(c, 2); },
         "HIDDEN PAIR: Since candidates 6 and 7 in row B only occurs in cells B1 and B2, all "
         "other candidates can be discarded from those cells."},
        {"hidden triple in a box",
         [](Board& b) {
             KeepDigitsOnlyIn(b, {1, 2, 3}, Box(8), {60, 70, 80});
         },
         [](SolveContext& c) { return Hidden(c, 3); },
         "HIDDEN TRIPLE: Since candidates 1, 2 and 3 in the bottom right block only occurs in "
         "cells G7, H8 and J9, all other candidates can be discarded from those cells."},
    };
    for (const HitCase& c : cases) {
        Board board = OpenBoard();
        c.build(board);
        const HintRecord hint = HintOf(board, c.rung);
        EXPECT_EQ(SchrijfHint(hint, board), c.sentence) << c.name;
    }
}

TEST(SchrijfHint, TellsTheGuessOfBifurcation) {
    // A fresh generated puzzle: the first two-candidate cell whose right digit
    // comes first is the guess, and the singles finish the board from there.
    for (const auto& p : testing::GeneratedPuzzles(20)) {
        const Board board = BoardFromPuzzle(p.puzzle);
        SolveContext ctx = testing::ContextOn(board, Side::Game);
        ModeScope looking_ctx(ctx, ctx.Mode().With(SolveMode::kHintOnly));
        ctx.hint = testing::MarkedHint();
        if (!Bifurcation(ctx)) continue;
        const HintRecord& h = ctx.hint;
        ASSERT_EQ(h.HintKind, 20);
        EXPECT_EQ(p.solution[h.HintCell], h.HintNumber);
        EXPECT_EQ(SchrijfHint(h, board),
                  "BIFURCATION: Single guessing that number " + std::to_string(h.HintNumber) +
                      " would be truth for cell " + CellName(h.HintCell) +
                      " will lead to the solution of this sudoku using only the implemented "
                      "techniques.");
        return;
    }
    FAIL() << "no generated puzzle gave a guess";
}

TEST(SchrijfHint, StoresThePointingLineAndChangesNothingElse) {
    Board board = OpenBoard();
    KeepDigitOnlyIn(board, 5, Box(4), {31, 49});
    const HintRecord hint = HintOf(board, PointingPair);
    const HintRecord after = RecordAfterSchrijfHint(hint);
    EXPECT_EQ(after.HintColumn, 4);
    EXPECT_EQ(after.HintRow, hint.HintRow);

    KeepDigitOnlyIn(board, 5, Box(0), {18, 19});
    const HintRecord byRow = RecordAfterSchrijfHint(HintOf(board, PointingPair));
    EXPECT_EQ(byRow.HintRow, 2);
    EXPECT_EQ(byRow.HintColumn, -99);

    HintRecord other = testing::MarkedHint();
    other.HintKind = 4;
    const HintRecord same = RecordAfterSchrijfHint(other);
    EXPECT_EQ(same.HintRow, -99);
    EXPECT_EQ(same.HintColumn, -99);
}

}  // namespace
}  // namespace tavi
