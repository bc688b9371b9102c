// SPDX-License-Identifier: GPL-3.0-or-later
// Puzzles in and out: New and Open with their questions, the load of a saved
// game, Save and its refusals, Solution, the end of a game and its best time.
#include "support/game_fixture.h"

namespace tavi::testing {
namespace {

class Puzzles : public GameFixture {
  public:
    // Fills every open cell with its solution digit, one click each.
    void SolveByHand() {
        for (auto [cell, digit] = FirstOpenCell(); cell >= 0;
             std::tie(cell, digit) = FirstOpenCell())
            game->MarkMouseUp(digit, cell, MouseButton::Left, true);
    }
};

TEST_F(Puzzles, NewWalksTheFileAndWrapsAfterTheLast) {
    Game& g = Playing(1);
    EXPECT_EQ(g.position().OpenRecord, 1);
    EXPECT_EQ(g.Caption(), "Tavi Sudoku 1 - Easy - 1");
    EXPECT_EQ(g.board().Puzzle, Record(1, 1).puzzle);
    EXPECT_EQ(g.SudTekst(), FormatDigits(Record(1, 1).puzzle, '0'));
    EXPECT_TRUE(g.GridEnabled());
    EXPECT_EQ(g.TextHint(),
              "Press [Hint] if you get stuck !!! Minimize Window to pause. DoubleClick this window "
              "to pop up the small Hint Window.");
    EXPECT_EQ(g.LabelTijd(), "00:00");
    // Every puzzle starts its own clock: the seconds of the last one don't count.
    clock.now += 100;
    g.Tick();
    ASSERT_EQ(g.ClockSeconds(), 100);
    g.CommandNew();  // untouched, so nothing to save
    g.Tick();
    EXPECT_EQ(g.ClockSeconds(), 0);
    EXPECT_EQ(g.LabelTijd(), "00:00");
    g.CommandNew();
    EXPECT_EQ(g.position().OpenRecord, 3);
    g.CommandNew();
    EXPECT_EQ(g.position().OpenRecord, 1);
    // A number beyond the file (a library made smaller) also starts again at 1.
    store.Write("SudokuLevel1", "Number", "40");
    EXPECT_EQ(Playing(1).position().OpenRecord, 1);
}

// Open asks until the number fits the level; a level of one puzzle opens it
// without asking, and one of none says so.
TEST_F(Puzzles, OpenAsksUntilTheNumberFits) {
    // Level 6 holds one puzzle, level 7 none.
    std::filesystem::resize_file(PuzzleFile(folders.AppFolder, LevelStem(6)), kSudokuRecordSize);
    Game& g = Started();
    std::filesystem::resize_file(PuzzleFile(folders.DataFolder, LevelStem(7)), 0);
    g.OptionType(4);
    prompter.shown.clear();
    prompter.inputs = {"0", "abc", "7", "2nd"};
    g.CommandOpen();
    EXPECT_EQ(g.position().OpenRecord, 2);
    EXPECT_EQ(prompter.shown.size(), 4u);
    EXPECT_EQ(prompter.Last(), TitleText("Sudoku number", "Enter a value between 1 and 3"));
    // Cancel leaves the game as it was.
    PlaceOne();
    prompter.inputs = {std::nullopt};
    options.AutoSave = options.AskSave = false;
    g.CommandOpen();
    EXPECT_EQ(std::pair(g.position().OpenRecord, g.CurrentStep()), std::pair(2, 1));

    g.OptionType(6);
    prompter.answers = {Answer::No};  // don't erase the progress
    g.CommandOpen();
    EXPECT_EQ(g.position().OpenRecord, 1);
    g.OptionType(7);
    prompter.shown.clear();
    g.CommandOpen();  // the emptied puzzle file takes its log file along first
    ASSERT_EQ(prompter.shown.size(), 2u);
    EXPECT_EQ(prompter.shown[0].title, "Library repaired");
    EXPECT_EQ(prompter.Box(1), TitleText("Can't open sudoko", "No Extreme sudokus found to open"));
    EXPECT_EQ(prompter.beeps, 1);
    EXPECT_EQ(g.position().OpenLevel, 6);
}

TEST_F(Puzzles, AVanishedPuzzleFileEmptiesTheLevelAndLeavesTheGameAsItWas) {
    Game& g = Playing(3);
    const Digits grid = g.board().CurrentGrid;
    const CommandStates commands = g.commands();
    std::filesystem::remove(PuzzleFile(folders.DataFolder, LevelStem(3)));
    prompter.shown.clear();
    g.CommandNew();
    // The log that lost its puzzles is kept aside, and the level has none.
    EXPECT_TRUE(std::filesystem::exists(folders.DataFolder / "Sudoku_Hard.sdl.without-puzzles"));
    EXPECT_NE(prompter.Box(0).second.find("kept as Sudoku_Hard.sdl.without-puzzles"),
              std::string::npos);
    EXPECT_EQ(prompter.Last(), TitleText("Tavi Sudoku", "The Hard level has no puzzles."));
    EXPECT_TRUE(g.GridEnabled());
    EXPECT_EQ(g.board().CurrentGrid, grid);
    EXPECT_EQ(g.position().OpenRecord, 1);
    EXPECT_EQ(g.commands(), commands);
}

// A saved game comes back with its clock, hidden or not (the random sequence
// checks its board and steps; SavedClockSign how the log keeps a hidden clock).
TEST_F(Puzzles, ASavedGameComesBackWithItsClockHidden) {
    Game& g = Playing(5);
    PlaceOne();
    clock.now += 200;
    options.TimeShow = false;
    g.Tick();
    g.CommandSave();
    options.TimeShow = true;
    prompter.answers = {Answer::Yes};
    Game& again = Started();
    EXPECT_EQ(again.CurrentStep(), 1);
    EXPECT_TRUE(options.TimeOn);
    EXPECT_FALSE(options.TimeShow);
    EXPECT_EQ(again.LabelTijd(), "TIMER");
    EXPECT_EQ(again.ClockSeconds(), 200);
}

TEST_F(Puzzles, PuzzleInProgressIsAskedOnNewAndOpen) {
    Game& g = Playing(2);
    PlaceOne();
    g.CommandSave();
    const Digits played = g.board().CurrentGrid;
    g.CommandNew();  // AutoSave: saved silently
    g.CommandNew();
    prompter.answers = {Answer::No};
    g.CommandNew();  // back at record 1, which is worked on
    ASSERT_EQ(prompter.shown.back().title, "Puzzle in progress");
    EXPECT_EQ(g.board().CurrentGrid, g.board().Puzzle);
    EXPECT_FALSE(g.commands().Undo);
    prompter.answers = {Answer::Yes};
    prompter.inputs = {"1"};
    g.CommandOpen();
    EXPECT_EQ(g.board().CurrentGrid, played);
    EXPECT_TRUE(g.commands().Undo);
}

TEST_F(Puzzles, SolvingByHandEndsTheGameWithABestTime) {
    Game& g = Playing(1);
    options.Sounds = true;
    clock.now += 65;
    // What a window drawing each change would show behind the box: the last
    // step counted and every well full.
    std::string stepsShown;
    int wellsShown = 0;
    g.SetEvents([&](Changes c) {
        if (c.Has(kChangeTexts)) stepsShown = g.LabelStap();
        if (c.Has(kChangeWells)) {
            wellsShown = 0;
            for (int d = 1; d <= 9; ++d)
                for (int b = 0; b < 9; ++b)
                    wellsShown += g.WellFilled(d, b);
        }
    });
    prompter.onShow = [&](const ScriptedPrompter::Shown& box) {
        if (box.title != "Congratulations") return;
        EXPECT_EQ(stepsShown, std::to_string(g.CurrentStep()));
        EXPECT_EQ(wellsShown, 81);
    };
    SolveByHand();
    prompter.onShow = nullptr;
    EXPECT_TRUE(prompter.Showed("New best time !!!"));
    EXPECT_EQ(g.TextHint(), kSolvedText);
    EXPECT_EQ(sounds.played.back(), kSoundSolved);
    SudokuRecord best;
    ASSERT_TRUE(ReadSudokuRecord(PuzzleFile(folders.DataFolder, LevelStem(1)), 1, best));
    EXPECT_EQ(std::tuple(best.BestMinutes, best.BestSeconds), std::tuple(1, 5));
    EXPECT_TRUE(g.position().SudokuSolved);
    EXPECT_EQ(g.commands(), Ended());
    // AutoErase: the progress is gone, the level not busy.
    EXPECT_EQ(LogOf(1, 1).StepCount, 0);
    EXPECT_EQ(LogOf(1, 1).Grid, Record(1, 1).puzzle);
    EXPECT_EQ(store.Read("SudokuLevel1", "Busy", ""), "No");

    // The same puzzle again, slower: no best time; the caption shows the one to
    // beat. Its progress, saved and kept at the end, leaves the level busy.
    prompter.shown.clear();
    for (int i = 0; i < 3; ++i)
        g.CommandNew();
    EXPECT_EQ(g.Caption(), "Tavi Sudoku 1 - Easy - 1 - Time to beat >> 01:05");
    clock.now += 100;
    options.AutoErase = false;
    PlaceOne();
    g.CommandSave();
    prompter.answers = {Answer::No};  // don't erase
    SolveByHand();
    EXPECT_FALSE(prompter.Showed("New best time !!!"));
    EXPECT_TRUE(prompter.Showed("Do you want to erase progress of current solved sudoku ?"));
    EXPECT_EQ(store.Read("SudokuLevel1", "Busy", ""), "Yes");
}

TEST_F(Puzzles, HelpWithoutABrowserAndWithOneThatFails) {
    Game& g = Started();
    pages.browser = false;
    g.CommandHelp();
    EXPECT_EQ(prompter.Last(), TitleText("Browser Not Found", "Could not find associated Browser"));
    EXPECT_TRUE(pages.opened.empty());
    pages.browser = true;
    pages.opens = false;
    g.WebSiteClick();
    EXPECT_EQ(prompter.Last(), TitleText("URL Failed", "Web Page not Opened"));
}

TEST_F(Puzzles, SolutionShowsTheBoardAndEndsTheGame) {
    Game& g = Playing(4);
    options.Sounds = true;
    PlaceOne();
    // A game in play asks first; No keeps it as it is.
    const auto before = testing::GridAndMarks(g.board());
    prompter.answers = {Answer::No};
    g.CommandSolution();
    EXPECT_EQ(prompter.Last(), TitleText(kSolutionQuestionTitle, kSolutionQuestion));
    EXPECT_EQ(testing::GridAndMarks(g.board()), before);
    EXPECT_FALSE(g.position().SudokuSolved);
    EXPECT_TRUE(g.TimerRunning());
    prompter.answers = {Answer::Yes};
    g.CommandSolution();
    EXPECT_EQ(g.board().CurrentGrid, g.board().Solution);
    EXPECT_EQ(sounds.played.back(), kSoundSolution);
    for (int d = 1; d <= 9; ++d)
        EXPECT_TRUE(g.DigitCompleted(d));
    EXPECT_FALSE(prompter.Showed("New best time !!!"));
    EXPECT_TRUE(g.position().SudokuSolved);
    EXPECT_EQ(g.commands(), Ended());
    EXPECT_FALSE(g.TimerRunning());
    g.CommandSave();
    EXPECT_EQ(prompter.shown.back().text,
              "Sudoku already solved, you can only save unsolved sudokus !");
}

// The clock alone: midnight, a pause, penalties, and the clock option.
TEST(GameClockAlone, MidnightPausePenaltiesAndTheOption) {
    FakeClock time;
    Options options;
    GameClock clock(time, options);
    time.now = 86400 - 30;
    clock.Start();
    EXPECT_EQ(clock.Label(), "00:00");
    time.now = 15;  // 45 seconds later, past midnight
    clock.Tick();
    EXPECT_EQ(clock.Seconds(), 45);
    EXPECT_EQ(clock.Label(), "00:45");
    clock.Pause();
    time.now += 3600;
    clock.Resume();
    clock.Tick();
    EXPECT_EQ(clock.Seconds(), 45);
    time.now += 30;
    clock.Penalty(15);
    EXPECT_EQ(clock.Seconds(), 90);
    time.now += 30;
    clock.Tick();
    EXPECT_EQ(clock.Label(), "02:00");
    SudokuRecord best{};
    best.BestMinutes = 2;
    EXPECT_FALSE(clock.BeatsBest(best));
    best.BestSeconds = 1;
    EXPECT_TRUE(clock.BeatsBest(best));
    EXPECT_EQ(clock.TimeToBeat(best), " - Time to beat >> 02:01");
    // With the clock off no penalty counts and no time beats another (that it
    // neither runs nor shows: OptionsChange.TheClockOptionWaitsForTheNextSudoku).
    options.TimeOn = false;
    clock.Penalty(20);
    EXPECT_EQ(clock.Seconds(), 120);
    EXPECT_FALSE(clock.BeatsBest(best));
}

}  // namespace
}  // namespace tavi::testing
