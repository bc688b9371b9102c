// SPDX-License-Identifier: GPL-3.0-or-later
// What a change of the options does to the game on the board, and the penalty.
#include "grid/candidates.h"
#include "settings/options_form.h"
#include "support/game_fixture.h"

namespace tavi::testing {
namespace {

class OptionsChange : public GameFixture {
  public:
    // What the options window does on OK.
    void ChangeOptions(Game& g, void (*edit)(OptionsForm&)) {
        const Options before = options;
        OptionsForm form = OptionsForm::From(options);
        edit(form);
        form.ApplyTo(options);
        g.CommandOptions(before);
    }
};

TEST_F(OptionsChange, PencilmarksOffOnAnEasyGameAndBack) {
    Game& g = Playing(2);
    const Board automatic = g.board();
    g.DigitButtonUp(4, MouseButton::Left, true);
    ChangeOptions(g, [](OptionsForm& f) { f.PencilmarksOff = true; });
    EXPECT_FALSE(g.MarkCaptionsShown());
    EXPECT_TRUE(g.FilterOn(4));
    for (int c = 0; c < 81; ++c)
        EXPECT_TRUE(g.board().CurrentGrid[c] || g.board().Candidates[c] == kAllCandidates) << c;
    ChangeOptions(g, [](OptionsForm& f) { f.PencilmarksOff = false; });
    EXPECT_TRUE(g.MarkCaptionsShown());
    EXPECT_EQ(g.board().Candidates, automatic.Candidates);
}

TEST_F(OptionsChange, AutomaticMarksOffLeavesTheMarksAndOnPrunesThem) {
    Game& g = Playing(5);
    auto [cell, digit] = FirstOpenCell();
    const int other = [&, cell = cell, digit = digit] {
        for (int d = 1; d <= 9; ++d)
            if (d != digit && g.MarkVisible(d, cell)) return d;
        return 0;
    }();
    ASSERT_NE(other, 0);
    g.MarkMouseUp(other, cell, MouseButton::Right, true);
    const Board before = g.board();
    ChangeOptions(g, [](OptionsForm& f) { f.Pencilmarks = false; });
    EXPECT_EQ(g.board().Candidates, before.Candidates);
    // Placing now leaves the peers' marks; turning the update on takes them away
    // and keeps the mark the player removed away.
    g.MarkMouseUp(digit, cell, MouseButton::Left, true);
    const int peer = Peers[cell][0];
    const bool peerHad = before.Has(digit, peer) && !before.CurrentGrid[peer];
    EXPECT_EQ(g.board().Has(digit, peer), peerHad);
    ChangeOptions(g, [](OptionsForm& f) { f.Pencilmarks = true; });
    EXPECT_FALSE(!g.board().CurrentGrid[peer] && g.board().Has(digit, peer));
    g.CommandUndo();
    EXPECT_FALSE(g.board().Has(other, cell));
}

TEST_F(OptionsChange, TheClockOptionWaitsForTheNextSudoku) {
    Game& g = Playing(1);
    ChangeOptions(g, [](OptionsForm& f) { f.TimeOn = false; });
    EXPECT_EQ(prompter.Last(),
              TitleText("Time option changed",
                        "Switching Time on/off will take place on the next sudoku"));
    EXPECT_TRUE(g.TimerRunning());
    g.CommandNew();
    EXPECT_FALSE(g.TimerRunning());
    EXPECT_EQ(g.LabelTijd(), "");
}

TEST_F(OptionsChange, WellsOnRebuildsThem) {
    Game& g = Playing(1);
    ChangeOptions(g, [](OptionsForm& f) { f.Wells = false; });
    auto [cell, digit] = FirstOpenCell();
    g.MarkMouseUp(digit, cell, MouseButton::Left, true);
    EXPECT_FALSE(g.WellFilled(digit, Global::BoxOfCell[cell]));
    ChangeOptions(g, [](OptionsForm& f) { f.Wells = true; });
    EXPECT_TRUE(g.WellFilled(digit, Global::BoxOfCell[cell]));
}

TEST_F(OptionsChange, NoSoundDeviceTurnsSoundsOff) {
    store.Write("Options", "Sounds", "True");
    sounds.available = false;
    Game& g = Started();
    EXPECT_FALSE(options.Sounds);
    EXPECT_FALSE(g.SoundAvailable());
    g.Speel(kSoundPlaced);
    g.Speel(-1);
    EXPECT_TRUE(sounds.played.empty());
}

}  // namespace
}  // namespace tavi::testing
