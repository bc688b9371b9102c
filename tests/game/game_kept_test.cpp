// SPDX-License-Identifier: GPL-3.0-or-later
// A game is never lost: a long game saves its latest 100 steps with its whole
// board, and a saved game whose steps could not have been played on its puzzle
// loses those steps, never a clue.
#include <random>

#include "game/saved_game_check.h"
#include "library/library_test_support.h"
#include "support/game_fixture.h"

namespace tavi::testing {
namespace {

class Kept : public GameFixture {
  public:
    std::mt19937 random{2511};
    int Pick(int n) { return std::uniform_int_distribution<int>(0, n - 1)(random); }

    // One random step that changes the board: a mark taken away mostly, now and
    // then a digit placed (never the last open cells) or a cell reset.
    void RandomStep() {
        const int before = game->CurrentStep();
        while (game->CurrentStep() == before) {
            const int cell = Pick(81), digit = 1 + Pick(9);
            const Board& b = game->board();
            const int kind = Pick(10);
            if (kind == 0 && b.CurrentGrid[cell] && !b.Puzzle[cell]) {
                Select(cell);
                game->CommandResetCell();
            } else if (!b.CurrentGrid[cell] && b.Has(digit, cell)) {
                const bool place = kind < 3 && b.EmptyCount() > 3;
                game->MarkMouseUp(digit, cell, place ? MouseButton::Left : MouseButton::Right,
                                  true);
            }
        }
    }
};

TEST_F(Kept, AGameOf250StepsSavesItsBoardAndItsLast100Steps) {
    options.AutoSave = true;
    Game& g = Playing(4);
    std::vector<Board> boards{g.board()};
    for (int i = 0; i < 250; ++i) {
        clock.now += 3;
        g.Tick();
        RandomStep();
        boards.push_back(g.board());
        // Said once, as the game passes 100 steps.
        EXPECT_EQ(std::count_if(prompter.shown.begin(), prompter.shown.end(),
                                [](const auto& box) {
                                    return box.title == kLongGameTitle && box.text == kLongGameText;
                                }),
                  g.CurrentStep() > kLogSteps ? 1 : 0)
            << "step " << g.CurrentStep();
    }
    ASSERT_EQ(g.CurrentStep(), 250);
    const int seconds = g.ClockSeconds();
    const std::vector<MoveStep> log(g.MoveLog().end() - 100, g.MoveLog().end());
    prompter.shown.clear();
    g.CommandSave();
    EXPECT_TRUE(prompter.shown.empty()) << prompter.Last().first;
    prompter.answers = {Answer::Yes};  // "Do you really want to quit ?"
    ASSERT_TRUE(g.CommandExit());

    prompter.answers = {Answer::Yes};  // "Do you want to proceed with the last saved sudoku ?"
    Started();
    EXPECT_EQ(GridAndMarks(game->board()), GridAndMarks(boards.back()));
    EXPECT_EQ(game->ClockSeconds(), seconds);
    EXPECT_EQ(game->CurrentStep(), 100);
    EXPECT_EQ(game->MoveLog(), log);
    for (int back = 1; back <= 100; ++back) {
        ASSERT_TRUE(game->commands().Undo) << back;
        game->CommandUndo();
        ASSERT_EQ(GridAndMarks(game->board()), GridAndMarks(boards[250 - back])) << back;
    }
    EXPECT_FALSE(game->commands().Undo);
    game->CommandUndo();
    EXPECT_EQ(GridAndMarks(game->board()), GridAndMarks(boards[150]));
}

// Steps on clue cells, or naming a clue among the marks they took, are dropped
// from a saved game with a message naming the record; the others stay, and no
// undo or redo ever changes a clue.
TEST_F(Kept, StepsThatCouldNotHaveBeenPlayedAreDroppedAndTheCluesStay) {
    options.AutoSave = true;
    Game& g = Playing(2);
    for (int i = 0; i < 30; ++i)
        RandomStep();
    g.CommandSave();
    prompter.answers = {Answer::Yes};  // "Do you really want to quit ?"
    ASSERT_TRUE(g.CommandExit());
    const Digits puzzle = Record(2, 1).puzzle;
    std::vector<int> clues;
    for (int c = 0; c < 81; ++c)
        if (puzzle[c]) clues.push_back(c);

    for (int round = 0; round < 20; ++round) {
        SudokuLogRecord log = LogOf(2, 1);
        const SudokuLogRecord saved = log;
        // Some steps moved onto clue cells, one placement naming a clue peer.
        int spoilt = 0;
        for (int i = 0; i < log.StepCount; ++i)
            if (Pick(4) == 0) {
                log.LogCell[i] = std::int16_t(clues[Pick(int(clues.size()))]);
                ++spoilt;
            } else if (log.LogDigit[i] >= 1 && log.LogDigit[i] <= 9 && Pick(3) == 0 &&
                       std::any_of(clues.begin(), clues.end(),
                                   [&](int c) { return c / 9 == log.LogCell[i] / 9; })) {
                log.LogRowMarks[i] = 511;  // the whole row, and a clue lies in it
                ++spoilt;
            }
        ASSERT_TRUE(WriteSudokuLogRecord(LogFile(folders.DataFolder, LevelStem(2)), 1, log));

        prompter.shown.clear();
        prompter.answers = {Answer::Yes};
        Started();
        if (spoilt == 0) {
            EXPECT_EQ(game->CurrentStep(), saved.StepCount);
            continue;
        }
        EXPECT_EQ(game->CurrentStep(), saved.StepCount - spoilt) << round;
        ASSERT_FALSE(prompter.shown.empty());
        EXPECT_EQ(prompter.Box(1).first, kSavedGameRepairedTitle);
        EXPECT_NE(
            prompter.Box(1).second.find("Record 1 of Sudoku_Medium.sdl: " + std::to_string(spoilt)),
            std::string::npos)
            << prompter.Box(1).second;
        while (game->CurrentStep() > 0) {
            game->CommandUndo();
            for (int c : clues)
                ASSERT_EQ(game->board().CurrentGrid[c], puzzle[c]) << round;
        }
        while (game->commands().Redo)
            game->CommandRedo();
        for (int c : clues)
            ASSERT_EQ(game->board().CurrentGrid[c], puzzle[c]) << round;
        // Put the saved game back for the next round, without saving this one.
        options.AutoSave = options.AskSave = false;
        prompter.answers = {Answer::Yes};
        ASSERT_TRUE(game->CommandExit());
        options.AutoSave = true;
        ASSERT_TRUE(WriteSudokuLogRecord(LogFile(folders.DataFolder, LevelStem(2)), 1, saved));
        store.Write("SudokuLevel2", "Number", "1");
        store.Write("SudokuLevel2", "Busy", "Yes");
    }
}

// A log record written onto another puzzle: its digits over the clues are
// replaced by the clues, and said.
TEST(SavedGameCheck, DigitsOverCluesAreRepaired) {
    SudokuRecord sudoku;
    SudokuLogRecord log;
    for (int c = 0; c < 81; c += 3)
        sudoku.Puzzle[c] = std::uint8_t(1 + c % 9);
    log.Grid = sudoku.Puzzle;
    log.Grid[0] = 5, log.Grid[3] = 0, log.Grid[1] = 7;
    const SavedGameRepair r = RepairSavedGame(sudoku, log);
    EXPECT_EQ(r.cluesRestored, 2);
    EXPECT_EQ(log.Grid[0], sudoku.Puzzle[0]);
    EXPECT_EQ(log.Grid[3], sudoku.Puzzle[3]);
    EXPECT_EQ(log.Grid[1], 7);
}

}  // namespace
}  // namespace tavi::testing
