// SPDX-License-Identifier: GPL-3.0-or-later
// Cell input and the move log: placing and taking away marks under each option,
// the step each click writes, undo and redo, Reset Cell, filters and brushes.
#include "support/game_fixture.h"

namespace tavi::testing {
namespace {

class Input : public GameFixture {
  public:
    std::array<CandidateMask, 81> Marks() const { return game->board().Candidates; }
};

TEST_F(Input, PlacingTakesTheCellsMarksAndThePeersMarks) {
    Game& g = Playing(5);
    auto [cell, digit] = FirstOpenCell();
    const auto before = Marks();
    const int box = Global::BoxOfCell[cell];
    EXPECT_FALSE(g.WellFilled(digit, box));
    g.MarkMouseUp(digit, cell, MouseButton::Left, true);
    EXPECT_EQ(g.board().CurrentGrid[cell], digit);
    EXPECT_TRUE(g.WellFilled(digit, box));
    EXPECT_EQ(g.board().Candidates[cell], 0);
    ASSERT_EQ(g.CurrentStep(), 1);
    const MoveStep& s = g.MoveLog()[0];
    EXPECT_EQ(std::tuple(s.LogDigit, s.LogCell, s.LogOwnMarks),
              std::tuple(digit, cell, before[cell]));
    // (That the masks name exactly the peers that lost the mark is seen by undoing
    // every step of long random games: Kept, Sequence.)
    for (int peer : Peers[cell])
        EXPECT_FALSE(g.board().Has(digit, peer));

    // A mark taken away is a step of its own; a cell may lose every mark.
    const auto [other, wrong] = WrongCandidate();
    ASSERT_GE(other, 0);
    g.MarkMouseUp(wrong, other, MouseButton::Right, true);
    EXPECT_EQ(std::tuple(g.MoveLog().back().LogDigit, g.MoveLog().back().LogOwnMarks),
              std::tuple(-wrong, DigitBit(wrong)));
    for (int d = 1; d <= 9; ++d)
        if (g.board().Has(d, other)) g.MarkMouseUp(d, other, MouseButton::Right, true);
    EXPECT_EQ(std::tuple(g.board().Candidates[other], g.board().CurrentGrid[other]),
              std::tuple(0, 0));
}

TEST_F(Input, PencilmarksOffMattersOnlyBelowLevelFour) {
    for (int level : {3, 4}) {
        Game& g = Playing(level);
        options.PencilmarksOff = true;
        auto [cell, digit] = FirstOpenCell();
        const int other = digit % 9 + 1;
        const bool below = level < 4;
        EXPECT_EQ(g.MarkCaptionsShown(), !below);
        const bool had = g.board().Has(other, cell);
        g.MarkMouseUp(other, cell, MouseButton::Right, true);
        EXPECT_EQ(g.CurrentStep(), !below && had ? 1 : 0) << level;
        const auto before = Marks();
        g.MarkMouseUp(digit, cell, MouseButton::Left, true);
        EXPECT_EQ(g.board().CurrentGrid[cell], digit);
        int peersChanged = 0;
        for (int peer : Peers[cell])
            peersChanged += before[peer] != g.board().Candidates[peer];
        EXPECT_EQ(peersChanged > 0, !below) << "level " << level;
    }
}

// Undo and Redo answer only where there is a step, a new step ends the redo
// tail, and at step 0 Save refuses. (What undo and redo give back, whatever the
// options say now, is seen by undoing long random games: Sequence, Kept.)
TEST_F(Input, UndoAndRedoAnswerOnlyWhereThereIsAStep) {
    Game& g = Playing(5);
    auto [cell, digit] = FirstOpenCell();
    g.MarkMouseUp(digit, cell, MouseButton::Left, true);
    g.CommandUndo();
    EXPECT_FALSE(g.WellFilled(digit, Global::BoxOfCell[cell]));
    EXPECT_EQ(std::pair(g.commands().Undo, g.commands().Redo), std::pair(false, true));
    g.CommandRedo();
    EXPECT_EQ(std::pair(g.commands().Undo, g.commands().Redo), std::pair(true, false));
    g.CommandUndo();
    PlaceOne();
    EXPECT_FALSE(g.commands().Redo);
    g.CommandUndo();
    prompter.shown.clear();
    g.CommandSave();
    EXPECT_EQ(prompter.Last(),
              TitleText("Sudoku not in progress",
                        "You cannot save a sudoku that hasn't been changed since it was opened !"));
}

TEST_F(Input, ResetCellAndItsUndo) {
    Game& g = Playing(4);
    auto [cell, digit] = FirstOpenCell();
    g.MarkMouseUp(digit, cell, MouseButton::Left, true);
    const auto placed = Marks();
    g.CommandResetCell();  // nothing selected
    EXPECT_EQ(g.CurrentStep(), 1);
    Select(cell);
    g.CommandResetCell();
    ASSERT_EQ(g.CurrentStep(), 2);
    EXPECT_EQ(g.MoveLog()[1].LogDigit, digit + 10);
    EXPECT_EQ(std::tuple(g.board().CurrentGrid[cell], g.board().Candidates[cell]),
              std::tuple(0, kAllCandidates));
    for (int peer : Peers[cell])
        EXPECT_EQ(g.board().Candidates[peer], placed[peer]);
    g.CommandUndo();
    EXPECT_EQ(g.board().CurrentGrid[cell], digit);
    EXPECT_EQ(Marks(), placed);
    // On an empty cell the step is 10; on a clue nothing happens at all.
    g.CommandUndo();
    g.CommandResetCell();
    EXPECT_EQ(g.MoveLog().back().LogDigit, 10);
    int clue = 0;
    while (!g.IsClue(clue))
        ++clue;
    Select(clue);
    const int steps = g.CurrentStep();
    g.CommandResetCell();
    EXPECT_EQ(g.CurrentStep(), steps);
}

TEST_F(Input, FiltersSurviveSteps) {
    Game& g = Playing(2);
    auto [cell, digit] = FirstOpenCell();
    const int other = digit % 9 + 1;
    g.DigitButtonUp(other, MouseButton::Left, true);
    EXPECT_FALSE(g.FilterOn(other));
    // (That its marks can't be clicked: MainWindowTest; that they stay candidates,
    // the hint that shows hidden marks first.)
    g.MarkMouseUp(digit, cell, MouseButton::Left, true);
    g.CommandUndo();
    g.CommandRedo();
    EXPECT_FALSE(g.FilterOn(other));
    g.DigitButtonUp(other, MouseButton::Left, true);
    EXPECT_TRUE(g.FilterOn(other));
}

TEST_F(Input, BrushesPaintAndDoNotPlay) {
    Game& g = Playing(2);
    auto [cell, digit] = FirstOpenCell();
    g.PaletteUp(0, MouseButton::Left, true);   // a mark brush on the left button
    g.PaletteUp(7, MouseButton::Right, true);  // a cell brush on the right
    EXPECT_EQ(g.brush().PaletteCaptions[0], " L");
    EXPECT_EQ(g.brush().PaletteCaptions[7], " R");
    EXPECT_TRUE(g.brush().BrushActive);
    g.MarkMouseUp(digit, cell, MouseButton::Left, true);
    EXPECT_EQ(g.CurrentStep(), 0);
    EXPECT_EQ(g.board().CurrentGrid[cell], 0);
    EXPECT_EQ(g.MarkPaint(digit, cell), options.colors.LabelBack[0]);
    g.MarkMouseUp(digit, cell, MouseButton::Left, true);  // the same colour again: off
    EXPECT_FALSE(g.MarkPaint(digit, cell).has_value());
    g.MarkMouseUp(digit, cell, MouseButton::Right, true);
    EXPECT_EQ(g.CellPaint(cell), options.colors.LabelBack[7]);
    EXPECT_EQ(g.MarkPaint(digit % 9 + 1, cell), options.colors.LabelBack[7]);
    g.RowHeaderUp(8, MouseButton::Right, true);
    for (int c = 72; c < 81; ++c)
        EXPECT_EQ(g.CellPaint(c), options.colors.LabelBack[7]);
    EXPECT_EQ(g.SelectedRow(), kNoLine);
    // The left brush moves to label 7: the right one drops.
    g.PaletteUp(7, MouseButton::Left, true);
    EXPECT_FALSE(g.brush().RightBrush);
    EXPECT_EQ(g.brush().PaletteCaptions[0], "");
    g.PaletteUp(5, MouseButton::Left, true);  // wipe
    EXPECT_FALSE(g.CellPaint(cell).has_value());
    g.PaletteUp(4, MouseButton::Left, true);  // clear the brushes
    EXPECT_FALSE(g.brush().BrushActive);
    g.MarkMouseUp(digit, cell, MouseButton::Left, true);
    EXPECT_EQ(g.board().CurrentGrid[cell], digit);
}

TEST_F(Input, TheWindowHearsWhatChangedAndOnlyThat) {
    Game& g = Playing(2);
    std::vector<unsigned> heard;
    g.SetEvents([&](Changes c) { heard.push_back(c.bits); });
    clock.now += 3;
    g.Tick();
    g.Tick();                // the same second: nothing to tell
    g.MarkMouseMove(3, 10);  // no hover without dimmed marks
    auto [cell, digit] = FirstOpenCell();
    g.MarkMouseUp(digit, cell, MouseButton::Left, true);
    g.PaletteUp(7, MouseButton::Left, true);
    EXPECT_EQ(heard, (std::vector<unsigned>{
                         kChangeClock, kChangeBoard | kChangeTexts | kChangeCommands | kChangeWells,
                         kChangeBrush}));
    EXPECT_EQ(g.HoverCell(), kNoHover);
    // With dimmed marks the mark under the pointer is lit; off the board none is.
    options.Dimmed = true;
    g.MarkMouseMove(0, 81);
    EXPECT_EQ(g.HoverCell(), kNoHover);
    g.MarkMouseMove(3, 10);
    EXPECT_EQ(g.HoverCell(), 2 * 81 + 10);
    EXPECT_EQ(std::pair(g.MarkDimmed(3, 10), g.MarkDimmed(4, 10)), std::pair(false, true));
    g.GridMouseMove();
    EXPECT_EQ(g.HoverCell(), kNoHover);
    // A search tells what it shows while it runs, before the window breathes.
    heard.clear();
    bool toldFirst = false;
    yield = [&] { toldFirst = !heard.empty(); };
    g.CommandHint();
    yield = nullptr;
    EXPECT_TRUE(toldFirst);
    EXPECT_TRUE(Changes{heard.back()}.Has(kChangePaint));
}

}  // namespace
}  // namespace tavi::testing
