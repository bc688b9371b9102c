// SPDX-License-Identifier: GPL-3.0-or-later
// The program's life: the start, the resume of a busy level, and every way out.
#include "support/game_fixture.h"

namespace tavi::testing {
namespace {

using Life = GameFixture;

// The first start informs, makes the log files (first_run_test has how) and
// leaves nothing open; without a library it can't go on.
TEST_F(Life, FirstStartWithAnEmptyStore) {
    Game& g = Started();
    EXPECT_EQ(prompter.Texts(), std::vector<std::string>{std::string(
                                    "A number of logfiles has to be created, normally this must be "
                                    "done only once on first run of Tavi Sudoku. Depend on the "
                                    "speed of your PC, this can take a few minutes.")});
    EXPECT_EQ(store.Read("Options", "Logfiles", ""), "True");
    EXPECT_EQ(g.position().ChosenLevel, 2);
    EXPECT_EQ(g.Caption(), "Tavi Sudoku 1");
    EXPECT_FALSE(g.GridEnabled());
    EXPECT_TRUE(g.position().SudokuSolved);
    EXPECT_EQ(g.commands(), CommandStates{});

    store = {};
    std::filesystem::remove_all(folders.DataFolder);
    std::filesystem::remove(PuzzleFile(folders.AppFolder, LevelStem(4)));
    prompter.shown.clear();
    NewGame();
    EXPECT_FALSE(game->Start());
    EXPECT_EQ(prompter.Texts().back(), "Failed to write sudoku logfiles, program can't continue.");
}

// Plays one step on a New of `level` and leaves through Exit with "Never" saving
// off, so that the level is marked busy through a save first.
void LeaveBusy(GameFixture& f, Game& g, int level) {
    g.OptionType(level);
    g.CommandNew();
    f.PlaceOne();
    g.CommandSave();
    f.prompter.answers = {Answer::Yes};  // AutoSave: "Do you really want to quit ?"
    EXPECT_TRUE(g.CommandExit());
}

// A busy level at the next start: resumed on Yes (and the resumed start never
// sets the window title); not resumed on No, or because its record was erased
// behind the game's back, when nothing is open and the same puzzle is offered
// again, its progress still there to carry on from.
TEST_F(Life, ABusyLevelIsResumedOrItsPuzzleOfferedAgain) {
    enum Way { kYes, kNo, kErased };
    for (const Way way : {kYes, kNo, kErased}) {
        SCOPED_TRACE(way);
        const int level = way == kErased ? 5 : 3;
        Game& g = Playing(level);    // record 1, left untouched
        LeaveBusy(*this, g, level);  // record 2
        EXPECT_EQ(store.Read("SudokuLevel" + std::to_string(level), "Busy", ""), "Yes");
        EXPECT_EQ(store.Read("Sudoku", "Level", ""), std::to_string(level));
        if (way == kErased) {
            ASSERT_TRUE(WriteSudokuLogRecord(LogFile(folders.DataFolder, LevelStem(level)), 2, {}));
        }
        prompter.shown.clear();
        prompter.answers = {way == kNo ? Answer::No : Answer::Yes};
        Game& again = Started();
        EXPECT_EQ(
            prompter.Box(0),
            TitleText("Sudoku in progress", "Do you want to proceed with the last saved sudoku ?"));
        EXPECT_EQ(prompter.Showed("Could not open the last saved sudoku"), way == kErased);
        EXPECT_EQ(again.GridEnabled(), way == kYes);
        if (way == kYes) {
            EXPECT_EQ(again.CurrentStep(), 1);
            EXPECT_TRUE(again.commands().Undo);
            EXPECT_EQ(again.Caption(), " - Hard - 2");
            EXPECT_EQ(again.WindowTitle(), "");
        } else {
            EXPECT_EQ(again.Caption(), "Tavi Sudoku 1");
            EXPECT_EQ(again.position().PuzzleNumber[level], 1);
        }
        if (way == kNo) {
            prompter.answers = {Answer::Yes};
            again.CommandNew();
            EXPECT_EQ(again.CurrentStep(), 1);
            EXPECT_EQ(again.position().OpenRecord, 2);
            EXPECT_EQ(prompter.shown.back().text,
                      "Puzzle is already worked on. Carry on from its present state ?");
        }
        std::filesystem::remove_all(folders.DataFolder);  // a fresh library for the next case
        store = {};
    }
}

struct ExitCase {
    const char* name;
    bool close;  // the window's close box rather than Exit
    bool autoSave, askSave;
    std::vector<Answer> answers;
    bool ends;
    bool saved;  // the log record holds the game afterwards
    const char* busy;
};

class ExitPaths : public GameFixture, public ::testing::WithParamInterface<ExitCase> {};

TEST_P(ExitPaths, AskAndSaveAsTheOptionsSay) {
    const ExitCase& c = GetParam();
    Game& g = Playing(1);
    options.AutoSave = c.autoSave;
    options.AskSave = c.askSave;
    PlaceOne();
    prompter.answers.assign(c.answers.begin(), c.answers.end());
    EXPECT_EQ(c.close ? g.QueryUnload() : g.CommandExit(), c.ends);
    EXPECT_TRUE(prompter.answers.empty());
    EXPECT_EQ(LogOf(1, 1).StepCount, c.saved ? 1 : 0);
    if (c.ends) {
        EXPECT_EQ(store.Read("SudokuLevel1", "Busy", ""), c.busy);
        EXPECT_EQ(store.Read("Options", "AutoSave", ""), c.autoSave ? "True" : "False");
    }
}

INSTANTIATE_TEST_SUITE_P(
    Game, ExitPaths,
    ::testing::Values(ExitCase{"AllwaysYes", false, true, true, {Answer::Yes}, true, true, "Yes"},
                      ExitCase{"AllwaysNo", false, true, true, {Answer::No}, false, false, ""},
                      ExitCase{"AskYes", false, false, true, {Answer::Yes}, true, true, "Yes"},
                      ExitCase{"AskNo", false, false, true, {Answer::No}, true, false, "No"},
                      ExitCase{"AskCancel", false, false, true, {Answer::Cancel}, false, false, ""},
                      ExitCase{"NeverYes", false, false, false, {Answer::Yes}, true, false, "No"},
                      ExitCase{"NeverNo", false, false, false, {Answer::No}, false, false, ""},
                      // The close box with neither option asks to save.
                      ExitCase{
                          "CloseCancel", true, false, false, {Answer::Cancel}, false, false, ""},
                      ExitCase{"CloseYes", true, false, false, {Answer::Yes}, true, true, "Yes"}),
    [](const auto& param) { return std::string(param.param.name); });

}  // namespace
}  // namespace tavi::testing
