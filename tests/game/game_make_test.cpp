// Puzzles of the user's own: the way into making, the clues by click, text and
// drop, and every way out of Validate, with the person's answers scripted.
#include <fstream>

#include "game/make_entry.h"
#include "solver/solutions.h"
#include "support/game_fixture.h"

namespace tavi::testing {
namespace {

// Made by the project's generator (start value 20261121): its 11th puzzle,
// which the game's ladder rates Hard; and its 10th and 6th, each less its last
// clue, so that both have two solutions: logic gives up on the first and
// finishes the second by a guess.
constexpr std::string_view kHard =
    "..5..1..2.2.4..73...9.7....278....9.............6.2..31......8...6.9.3..9....8...";
constexpr std::string_view kTwoLogicFails =
    ".5.6...8.1...2......97...6..8...359.9..8....1.......7.....3...629..5...........1.";
constexpr std::string_view kTwoLogicFinishes =
    "4...2........7...8..2.9.5...9.....1....5..4.3..8.....2...1........8.29.5....3..7.";

class Make : public GameFixture {
  public:
    Game& Making() {
        Game& g = Started();
        g.CommandMake();
        prompter.shown.clear();
        return g;
    }
    long Records(int level, bool log = false) const {
        const auto file = (log ? LogFile : PuzzleFile)(folders.DataFolder, LevelStem(level));
        return long(std::filesystem::file_size(file) /
                    (log ? kSudokuLogRecordSize : kSudokuRecordSize));
    }
    std::vector<long> AllRecords() const {
        std::vector<long> n;
        for (int level = 1; level <= 9; ++level)
            n.push_back(Records(level) * 1000 + Records(level, true));
        return n;
    }
    static CommandStates Ended() {
        CommandStates c;
        c.Save = false;
        return c;
    }
};

std::string Solved() { return FormatDigits(Solutions(DigitsOf(kHard)).first, '.'); }

// The solution with cells emptied where `empty(cell)` says so.
template <typename F>
std::string SolvedWithout(F empty) {
    std::string s = Solved();
    for (int c = 0; c < 81; ++c)
        if (empty(c)) s[c] = '.';
    return s;
}

TEST_F(Make, EveryWayOutOfValidateThatStoresNothing) {
    std::string doubled(kHard);
    doubled[1] = doubled[2];  // the same digit twice in a row
    const std::string abort(kAbortMakingText);
    const std::string unsolved(kUnsolvedText), notUnique(kNotUniqueText);
    struct Case {
        const char* name;
        std::string text;
        std::deque<Answer> answers;
        std::vector<std::string> said;
        bool stillMaking;
    };
    const Case cases[] = {
        {"16 clues",
         SolvedWithout([](int c) { return c >= 16; }),
         {Answer::No},
         {"A minimum of 17 clues is required !", abort},
         true},
        {"solved", Solved(), {Answer::Yes}, {"The sudoku is allready solved !", abort}, false},
        {"empty rows in a band",
         SolvedWithout([](int c) { return c < 18; }),
         {Answer::Yes},
         {"More than one empty row in the same band is not allowed !", abort},
         false},
        {"five empty boxes",
         SolvedWithout([](int c) { return Global::BoxOfCell[c] % 2 == 0; }),
         {Answer::Yes},
         {"More than four empty boxes are not allowed !", abort},
         false},
        {"two solutions, Ignore",
         std::string(kTwoLogicFails),
         {Answer::Ignore},
         {unsolved, notUnique},
         false},
        {"doubled digit", doubled, {Answer::Ignore}, {unsolved, notUnique}, false},
        {"two solutions, Abort", std::string(kTwoLogicFails), {Answer::Abort}, {unsolved}, false},
        {"two solutions, logic guesses", std::string(kTwoLogicFinishes), {}, {notUnique}, false},
        {"two solutions, Retry", std::string(kTwoLogicFails), {Answer::Retry}, {unsolved}, true},
    };
    for (const Case& k : cases) {
        SCOPED_TRACE(k.name);
        Game& g = Making();
        const auto before = AllRecords();
        g.SudTekstChange(k.text);
        const Digits entered = g.board().CurrentGrid;
        ASSERT_EQ(entered, DigitsOf(k.text));
        prompter.answers = k.answers;
        g.CommandMake();
        EXPECT_EQ(prompter.Texts(), k.said);
        EXPECT_TRUE(prompter.answers.empty());
        EXPECT_EQ(AllRecords(), before);
        EXPECT_EQ(g.MakeMode, k.stillMaking);
        if (k.stillMaking) {
            // The clues stand as entered, with the marks they leave.
            EXPECT_EQ(g.board().CurrentGrid, entered);
            EXPECT_EQ(g.board().Solution, Digits{});
            EXPECT_EQ(g.commands().MakeCaption, "Validate");
            EXPECT_TRUE(g.GridEnabled());
            // Retry lets Undo take the clues back one by one.
            EXPECT_EQ(g.commands().Undo, k.answers.front() == Answer::Retry);
        } else {
            EXPECT_EQ(g.commands(), Ended());
            EXPECT_EQ(g.board().CurrentGrid, Digits{});
            EXPECT_FALSE(g.GridEnabled());
            EXPECT_EQ(g.SudTekst(), "");
        }
    }
}

}  // namespace
}  // namespace tavi::testing
