// SPDX-License-Identifier: GPL-3.0-or-later
// Hint, Autosolve and Scan on the game's board: the checks before the techniques
// in their order, the penalties on a scripted clock, the halts.
#include "grid/candidates.h"
#include "hints/hint_search.h"
#include "hints/schrijf_hint.h"
#include "solver/brute_force.h"
#include "solver/ladder.h"
#include "support/game_fixture.h"

namespace tavi::testing {
namespace {

class Hints : public GameFixture {
  public:
    int Clock() { return game->ClockSeconds(); }
};

TEST_F(Hints, ATechniqueHintChangesNothingAndCostsFifteenSeconds) {
    Game& g = Playing(1);
    options.Sounds = true;
    const Board before = g.board();
    g.CommandHint();
    EXPECT_EQ(GridAndMarks(g.board()), GridAndMarks(before));
    EXPECT_EQ(g.CurrentStep(), 0);
    EXPECT_EQ(Clock(), 15);
    EXPECT_EQ(sounds.played.back(), kSoundPenalty);
    // The first hint of a fresh board is a single; its sentence is the one shown.
    EXPECT_EQ(g.TextHint(), SchrijfHint(g.LastHint(), g.board()));
    EXPECT_TRUE(g.TextHint().starts_with("HIDDEN SINGLE: ") ||
                g.TextHint().starts_with("NAKED SINGLE: "))
        << g.TextHint();
    EXPECT_TRUE(g.HintWindowCaption().starts_with("Hint - "));

    // The hint is painted, and new hint colours reach it at once.
    const auto old = options.colors.HintColor;
    for (Color& c : options.colors.HintColor)
        c ^= 0x00102030;
    g.ColoursChanged();
    int recoloured = 0;
    for (int c = 0; c < 81; ++c) {
        const auto paint = g.CellPaint(c);
        if (!paint) continue;
        EXPECT_EQ(std::find(old.begin(), old.end(), *paint), old.end()) << CellName(c);
        recoloured += std::find(options.colors.HintColor.begin(), options.colors.HintColor.end(),
                                *paint) != options.colors.HintColor.end();
    }
    EXPECT_GT(recoloured, 0);
}

TEST_F(Hints, NothingElseAnswersWhileASearchRuns) {
    Game& g = Playing(2);
    const int record = g.position().OpenRecord;
    int breaths = 0;
    yield = [&] {
        ++breaths;
        EXPECT_TRUE(g.Busy());
        EXPECT_FALSE(g.CommandExit());
        EXPECT_FALSE(g.QueryUnload());
        g.CommandNew();
        PlaceOne();
        g.CommandUndo();
    };
    g.CommandHint();
    yield = nullptr;
    EXPECT_GT(breaths, 0);
    EXPECT_FALSE(g.Busy());
    EXPECT_EQ(g.position().OpenRecord, record);
    EXPECT_EQ(g.CurrentStep(), 0);
}

TEST_F(Hints, ALostCandidateAndADigitStillMarked) {
    Game& g = Playing(3);
    auto [cell, digit] = FirstOpenCell();
    g.MarkMouseUp(digit, cell, MouseButton::Right, true);
    g.CommandHint();
    EXPECT_EQ(g.TextHint(), "The correct number is no longer shown as a possibility at cell " +
                                CellName(cell) + " - Use [Undo] or [Reset Cell]");
    EXPECT_EQ(Clock(), 10);
    g.CommandUndo();
    // A digit placed without the automatic update stays marked in its peers.
    options.Pencilmarks = false;
    g.MarkMouseUp(digit, cell, MouseButton::Left, true);
    g.CommandHint();
    EXPECT_EQ(g.TextHint(), "Since number " + std::to_string(digit) + " is located at cell " +
                                CellName(cell) +
                                ", this number cannot longer be a candidate in that same row, "
                                "column or block");
    EXPECT_EQ(Clock(), 30);
    EXPECT_EQ(g.CellPaint(cell), options.colors.HintColor[kAttackingCell]);
}

TEST_F(Hints, HiddenMarksAreShownFirstOrTheHintIsDropped) {
    Game& g = Playing(1);
    g.DigitButtonUp(5, MouseButton::Left, true);
    prompter.answers = {Answer::No};
    g.CommandHint();
    EXPECT_EQ(prompter.shown.back().title, "Hidden pencilmarks detected");
    EXPECT_EQ(Clock(), 0);
    EXPECT_FALSE(g.FilterOn(5));
    prompter.answers = {Answer::Yes};
    g.CommandHint();
    EXPECT_TRUE(g.FilterOn(5));
    EXPECT_EQ(Clock(), 15);
}

TEST_F(Hints, WithoutPencilmarksTheHintComesInTwoStages) {
    Game& g = Started();
    options.PencilmarksOff = true;
    g.OptionType(2);
    g.CommandNew();
    g.CommandHint();
    EXPECT_EQ(g.TextHint(), "A candidate can savely be assigned to the colored cell");
    EXPECT_EQ(g.commands().HintCaption, "Show Me");
    EXPECT_EQ(Clock(), 15);
    int cell = -1;
    for (int c = 0; c < 81; ++c)
        if (g.CellPaint(c)) cell = c;
    ASSERT_GE(cell, 0);
    EXPECT_EQ(g.board().CurrentGrid[cell], 0);
    g.CommandHint();
    EXPECT_EQ(g.commands().HintCaption, "Hint");
    EXPECT_EQ(Clock(), 30);
    int digit = 0;
    for (int d = 1; d <= 9; ++d)
        if (g.MarkPaint(d, cell) == options.colors.HintColor[kBaseCandidates]) digit = d;
    EXPECT_EQ(digit, g.board().Solution[cell]);
    // The mark shown is the only one that shows its digit.
    EXPECT_TRUE(g.MarkCaptionShown(digit, cell));
    EXPECT_FALSE(g.MarkCaptionShown(digit % 9 + 1, cell));
    // A change of the board, a Save and the Solution drop a waiting second stage;
    // the colours stay until their cell is filled.
    const auto painted = [&] {
        int n = 0;
        for (int c = 0; c < 81; ++c)
            for (int d = 0; d <= 9; ++d)
                n += (d ? g.MarkPaint(d, c) : g.CellPaint(c)).has_value();
        return n;
    };
    g.CommandHint();
    EXPECT_EQ(g.commands().HintCaption, "Show Me");
    int other = 0;
    while (other == cell || g.board().CurrentGrid[other])
        ++other;
    g.MarkMouseUp(g.board().Solution[other], other, MouseButton::Left, true);
    EXPECT_EQ(g.commands().HintCaption, "Hint");
    EXPECT_TRUE(g.CellPaint(cell));
    g.MarkMouseUp(digit, cell, MouseButton::Left, true);
    EXPECT_EQ(painted(), 0);
    g.CommandHint();
    g.CommandSave();
    EXPECT_EQ(g.commands().HintCaption, "Hint");
    g.CommandHint();
    prompter.answers = {Answer::Yes};
    g.CommandSolution();
    EXPECT_EQ(g.commands().HintCaption, "Hint");
    EXPECT_EQ(g.TextHint(), kSolutionText);
}

TEST_F(Hints, WhereTheLogicEndsAHintCostsNothing) {
    // A puzzle the ladder can't finish, as record 1 of the Outlaw file: two rows
    // and one digit leave the rest wide open, with one two-candidate cell whose
    // guesses both leave it open. (The generated puzzles are all solved by now.)
    WriteSudokuRecord(PuzzleFile(folders.AppFolder, LevelStem(9)), 1,
                      SudokuRecord{DigitsOf(kOpenPuzzle), DigitsOf(kOpenSolution), 0, 0});
    Game& g = Playing(9);
    g.CommandAutoSolve();
    EXPECT_EQ(g.TextHint(),
              "Autosolve completed, no more logical hints, if the current sudoku isn't solved, "
              "then you'll have to enable more techniques or guess more than once...");
    EXPECT_EQ(Clock(), 0);
    g.CommandHint();
    EXPECT_EQ(g.TextHint(), "No logical hints, you'll have to guess more than once...");
    EXPECT_EQ(Clock(), 0);
}

// A Sue-de-Coq is shown as soon as it is found, and the player is asked whether
// they can spot it: OK makes it the hint; Cancel lets the scan go on.
TEST_F(Hints, ASueDeCoqIsShownAtOnceAndAskedAbout) {
    Game& g = Playing(5);
    auto board = ParseBoardLine(
        "080060370000800100500302000060000000070240980000071000004020097008000005000000600 "
        "281060379006897152597312468060000700170240980800071500004120897018030245000000600 "
        "..............................45................45......................"
        "...........34.......34.................................................."
        "........................................................................"
        "..............................4....9..........23.5...9....5...9....5..8."
        "..3.5..89.........123......1.34.........................3.5............."
        "...........3.56.......................3..6.............2.4......23.....9"
        ".....6..9............................23........34.6.....3..6.....3.5...."
        "...............................56...................................67.9"
        ".......................67.9..............6..9..........................."
        "......7.9.2..5.....2......9...45.7.9....5..8....45..89.........1.3......"
        "1.3......");
    ASSERT_TRUE(board);
    SolveContext solve;
    solve.board.Puzzle = board->Puzzle;
    ASSERT_TRUE(BruteForceSolve(solve));
    board->Solution = solve.board.CurrentGrid;
    g.LayPosition(*board);
    for (int t = kFirstOrderedTechnique; t <= kBifurcationTechnique; ++t)
        options.techniques.OnOff[t] = t == 22;
    const std::string question = "If you can spot a Sue-De-Coq, press 'OK' else press 'Cancel'";

    // When the question comes, the window has been told the sentence and the colours.
    std::string told;
    bool paintTold = false;
    g.SetEvents([&](Changes c) {
        if (c.bits & kChangeTexts) told = g.TextHint();
        if (c.bits & kChangePaint) paintTold = true;
    });
    prompter.onShow = [&](const ScriptedPrompter::Shown&) {
        EXPECT_TRUE(told.starts_with("SUE-DE-COQ: ")) << told;
        EXPECT_TRUE(paintTold);
    };
    prompter.shown.clear();
    prompter.answers = {Answer::Ok};
    g.CommandHint();
    EXPECT_EQ(prompter.shown.size(), 1u) << g.TextHint();
    EXPECT_EQ(prompter.Box(0), TitleText("Sue-De-Coq", question));
    EXPECT_TRUE(g.TextHint().starts_with("SUE-DE-COQ: ")) << g.TextHint();
    EXPECT_EQ(g.board().Candidates, board->Candidates);
    EXPECT_EQ(Clock(), 15);

    prompter.shown.clear();
    prompter.answers.assign(20, Answer::Cancel);
    g.CommandHint();
    EXPECT_GE(prompter.shown.size(), 1u);
    EXPECT_EQ(prompter.Texts(), std::vector<std::string>(prompter.shown.size(), question));
    EXPECT_EQ(g.TextHint(), kNoLogicalHints);
    EXPECT_EQ(Clock(), 15);
}

// Autosolve stops at a halt, and the game can't be saved; without the halt it
// plays through, with no applause and no best time.
TEST_F(Hints, AutosolveStopsAtAHaltAndPlaysThroughWithout) {
    Game& g = Playing(3);
    options.techniques.Halt[4] = 1;  // naked singles halt
    const int before = g.board().EmptyCount();
    g.CommandAutoSolve();
    EXPECT_TRUE(g.TextHint().starts_with("NAKED SINGLE: ")) << g.TextHint();
    EXPECT_LT(g.board().EmptyCount(), before);
    EXPECT_FALSE(g.position().SudokuSolved);
    prompter.shown.clear();
    PlaceOne();
    g.CommandSave();
    EXPECT_EQ(prompter.shown.back().text,
              "Autosolve function is invoked at the current sudoku, therefore you cannot save "
              "this sudoku !");
    options.techniques.Halt[4] = 0;
    g.CommandAutoSolve();
    EXPECT_EQ(g.board().CurrentGrid, g.board().Solution);
    EXPECT_TRUE(g.position().SudokuSolved);
    EXPECT_EQ(g.TextHint(), kAutosolvedText);
    EXPECT_FALSE(prompter.Showed("New best time !!!"));
}

// Scan autosolves a range; with pencil marks off it solves on the real
// candidates, not on the marks shown (every digit in every cell).
TEST_F(Hints, ScanRunsAutosolveOverARange) {
    for (const bool marksOff : {false, true}) {
        Game& g = Started();
        options.PencilmarksOff = marksOff;
        g.OptionType(1 + marksOff);
        prompter.inputs = {"2", "3"};
        g.CommandScan();
        EXPECT_EQ(g.position().OpenRecord, 3);
        EXPECT_EQ(g.commands().ScanCaption, "Scan");
        EXPECT_TRUE(g.position().SudokuSolved);
        EXPECT_EQ(g.TextHint(), kScanDoneText);
        EXPECT_EQ(prompter.Last().second, "Enter a value between 2 and 3");
        EXPECT_EQ(g.board().CurrentGrid, g.board().Solution) << marksOff;
    }
}

}  // namespace
}  // namespace tavi::testing
