// SPDX-License-Identifier: GPL-3.0-or-later
// The game model under a long random run: placements, marks taken away, empty
// steps, undo, redo, Reset Cell, and save with a restart in random order, over
// the generated library. Undoing everything gives back the board and marks the
// game started from; a save and the restart that resumes it keep the board, the
// move log and the clock.
#include <random>

#include "support/game_fixture.h"

namespace tavi::testing {
namespace {

class Sequence : public GameFixture {
  public:
    std::mt19937 random{20261123};
    int Pick(int n) { return std::uniform_int_distribution<int>(0, n - 1)(random); }

    // A random open cell with a mark of a digit that may be clicked; false when
    // the board has none.
    bool OpenMark(int& cell, int& digit) {
        for (int tries = 0; tries < 200; ++tries) {
            cell = Pick(81);
            digit = 1 + Pick(9);
            if (!game->board().CurrentGrid[cell] && game->board().Has(digit, cell)) return true;
        }
        return false;
    }
    // Saves, then starts the program again and resumes the saved game.
    void SaveAndResume(int& actions) {
        const int steps = game->CurrentStep();
        if (steps < 1 || steps > kLogSteps) return;
        game->CommandSave();
        const Board board = game->board();
        const std::vector<MoveStep> log(game->MoveLog().begin(), game->MoveLog().begin() + steps);
        const int seconds = game->ClockSeconds();
        prompter.answers = {Answer::Yes};  // "Do you want to proceed with the last saved sudoku ?"
        Started();
        ASSERT_TRUE(prompter.answers.empty());
        EXPECT_EQ(GridAndMarks(game->board()), GridAndMarks(board)) << "after " << actions;
        EXPECT_EQ(game->CurrentStep(), steps);
        EXPECT_EQ(game->MoveLog(), log) << "after " << actions;
        EXPECT_EQ(game->ClockSeconds(), seconds);
        ++resumes;
    }

    int resumes = 0;
};

TEST_F(Sequence, RandomPlayUndoesToTheStartAndSurvivesSaveAndLoad) {
    constexpr int kActionsPerGame = 500;
    int actions = 0, undos = 0, resets = 0;
    Started();
    for (int level : {1, 4, 7, 2, 5, 9}) {
        game->OptionType(level);
        game->CommandNew();
        ASSERT_EQ(game->CurrentStep(), 0);
        const Board start = game->board();
        for (int i = 0; i < kActionsPerGame; ++i, ++actions) {
            clock.now += Pick(4);
            int cell = 0, digit = 0;
            switch (Pick(12)) {
                case 0:
                case 1:
                case 2:
                    // Never the last open cells: a solved board ends the game.
                    if (game->board().EmptyCount() > 2 && OpenMark(cell, digit))
                        game->MarkMouseUp(digit, cell, MouseButton::Left, true);
                    break;
                case 3:
                case 4:
                    if (OpenMark(cell, digit))
                        game->MarkMouseUp(digit, cell, MouseButton::Right, true);
                    break;
                case 5:
                case 6: game->CommandUndo(), ++undos; break;
                case 7: game->CommandRedo(); break;
                case 8:
                    Select(Pick(81));
                    game->CommandResetCell();
                    ++resets;
                    break;
                case 9: options.Pencilmarks = !options.Pencilmarks; break;
                case 10:
                    if (Pick(4) == 0)
                        game->MarkMouseUp(1, Pick(81), MouseButton::Middle, true);
                    else
                        game->Tick();
                    break;
                case 11: SaveAndResume(actions); break;
            }
            if (HasFatalFailure()) return;
        }
        // Everything undone: the board and marks the game started from; and
        // everything redone: the board before.
        const Board end = game->board();
        const int steps = game->CurrentStep();
        while (game->CurrentStep() > 0)
            game->CommandUndo();
        EXPECT_EQ(GridAndMarks(game->board()), GridAndMarks(start)) << "level " << level;
        while (game->CurrentStep() < steps)
            game->CommandRedo();
        EXPECT_EQ(GridAndMarks(game->board()), GridAndMarks(end)) << "level " << level;
        while (game->CurrentStep() > 0)
            game->CommandUndo();
    }
    EXPECT_EQ(actions, 6 * kActionsPerGame);
    EXPECT_GT(resumes, 20);
    EXPECT_GT(undos, 400);
    EXPECT_GT(resets, 100);
}

}  // namespace
}  // namespace tavi::testing
