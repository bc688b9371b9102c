// SPDX-License-Identifier: GPL-3.0-or-later
// Practising a technique: the puzzle opens as a normal game of its level, is saved
// and resumed like any other, and only the first hint of the technique is marked.
#include "hints/hint_search.h"
#include "solver/ladder.h"
#include "support/game_fixture.h"

namespace tavi::testing {
namespace {

class Practice : public GameFixture {
  public:
    PracticeLibrary library;

    Game& StartedWithIndex() {
        Game& g = Started();
        EXPECT_TRUE(library.Load(folders.DataFolder, 2));
        return g;
    }
    // Carries out what the last hint concludes, by the player's own clicks.
    void FollowHint() {
        for (const Conclusion& c : game->LastHint().Conclusions) {
            if (c.placed)
                game->MarkMouseUp(c.digit, c.cell, MouseButton::Left, true);
            else if (game->board().Has(c.digit, c.cell))
                game->MarkMouseUp(c.digit, c.cell, MouseButton::Right, true);
        }
    }
};

TEST_F(Practice, APractiseGameIsSavedAndResumedLikeAnyOther) {
    Game& g = StartedWithIndex();
    const auto choices = PracticeChoices(library);
    const auto chosen = std::find_if(choices.begin(), choices.end(),
                                     [](const PracticeChoice& c) { return c.puzzles > 0; });
    ASSERT_NE(chosen, choices.end());
    const auto next = NextPracticePuzzle(library, folders.DataFolder, chosen->technique);
    ASSERT_TRUE(next);
    ASSERT_TRUE(g.StartPractice(next->level, next->record, chosen->technique));
    EXPECT_EQ(g.position().OpenLevel, next->level);
    EXPECT_EQ(g.position().OpenRecord, next->record);
    EXPECT_EQ(g.position().ChosenLevel, next->level);
    EXPECT_EQ(g.board().Puzzle, Record(next->level, int(next->record)).puzzle);
    EXPECT_EQ(g.PractisedTechnique(), chosen->technique);

    PlaceOne();
    prompter.answers = {Answer::Yes};  // "Do you really want to quit ?" (saved on the way)
    ASSERT_TRUE(g.CommandExit());
    const Digits played = g.board().CurrentGrid;
    prompter.answers = {Answer::Yes};  // "Do you want to proceed with the last saved sudoku ?"
    Game& again = Started();
    EXPECT_EQ(std::tuple(again.position().OpenLevel, again.position().OpenRecord,
                         again.board().CurrentGrid, again.PractisedTechnique()),
              std::tuple(next->level, next->record, played, chosen->technique));

    // A puzzle that can't be opened leaves the game as it was.
    const CommandStates commands = again.commands();
    prompter.answers = {Answer::No, Answer::No};  // don't save, don't erase
    EXPECT_FALSE(again.StartPractice(next->level, 999, chosen->technique));
    EXPECT_EQ(again.board().CurrentGrid, played);
    EXPECT_EQ(again.position().OpenRecord, next->record);
    EXPECT_EQ(again.commands(), commands);
    EXPECT_EQ(again.PractisedTechnique(), chosen->technique);

    // Another puzzle is no practice.
    again.CommandNew();
    EXPECT_EQ(again.PractisedTechnique(), 0);
}

// Over the library's practice puzzles: hint after hint, followed by hand, only
// the first hint of the chosen technique carries the mark, and it is that
// technique's hint.
TEST_F(Practice, TheFirstHintOfTheChosenTechniqueIsMarked) {
    options.AutoSave = false;
    options.AskSave = false;
    Game& g = StartedWithIndex();
    prompter.answers.assign(100, Answer::Ok);  // "If you can spot a Sue-De-Coq, ..."
    int marked = 0;
    for (const PracticeChoice& choice : PracticeChoices(library)) {
        if (choice.puzzles == 0) continue;
        const auto next = NextPracticePuzzle(library, folders.DataFolder, choice.technique);
        ASSERT_TRUE(next);
        ASSERT_TRUE(g.StartPractice(next->level, next->record, choice.technique));
        int marks = 0;
        bool seen = false;  // a hint of the technique came
        for (int press = 0; press < 300 && !g.position().SudokuSolved; ++press) {
            g.CommandHint();
            const std::string& text = g.TextHint();
            if (text == kNoLogicalHints) break;
            const HintKind kind = g.LastHint().HintKind;
            bool ofTechnique = false, ofOthers = false;  // some kinds serve several rungs
            for (const Rung& r : LadderRungs())
                if (r.Fills(kind)) (r.number == choice.technique ? ofTechnique : ofOthers) = true;
            const bool mark = text.rfind(kPractiseMark, 0) == 0;
            if (mark) {
                ++marks;
                EXPECT_TRUE(ofTechnique) << text;
                EXPECT_FALSE(seen) << "an earlier hint of the technique went unmarked";
                EXPECT_EQ(text.substr(kPractiseMark.size(), 1), " ");
            }
            seen = seen || (ofTechnique && !ofOthers);
            FollowHint();
        }
        EXPECT_LE(marks, 1) << choice.name;
        marked += marks;
    }
    EXPECT_GT(marked, 0);
}

}  // namespace
}  // namespace tavi::testing
