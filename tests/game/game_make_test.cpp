// SPDX-License-Identifier: GPL-3.0-or-later
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
    Making();  // the library, for the puzzle it holds already
    using enum Answer;
    const std::string twoFail(kTwoLogicFails);
    const Case cases[] = {
        {"16 clues",
         SolvedWithout([](int c) { return c >= 16; }),
         {No},
         {"A minimum of 17 clues is required !", abort},
         true},
        {"solved", Solved(), {Yes}, {"The sudoku is allready solved !", abort}, false},
        {"two solutions, Ignore", twoFail, {Ignore}, {unsolved, notUnique}, false},
        // A clash is named before anything is solved, and so is a puzzle that
        // the library holds already.
        {"doubled digit", doubled, {No}, {"The clues clash: two 5s in row A.", abort}, true},
        {"already in the library",
         FormatDigits(Record(2, 1).puzzle, '.'),
         {Yes},
         {"This sudoku is already in the library: Medium number 1.", abort},
         false},
        {"two solutions, Abort", twoFail, {Abort}, {unsolved}, false},
        {"two solutions, logic guesses", std::string(kTwoLogicFinishes), {}, {notUnique}, false},
        {"two solutions, Retry", twoFail, {Retry}, {unsolved}, true},
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
        EXPECT_EQ(g.MakeMode(), k.stillMaking);
        if (k.stillMaking) {
            // The clues stand as entered, with the marks they leave.
            EXPECT_EQ(g.board().CurrentGrid, entered);
            EXPECT_EQ(g.board().Solution, Digits{});
            EXPECT_EQ(g.commands().MakeCaption, "Validate");
            EXPECT_TRUE(g.GridEnabled());
            // Retry lets Undo take the clues back one by one.
            EXPECT_EQ(g.commands().Undo, k.answers.front() == Retry);
        } else {
            EXPECT_EQ(g.commands(), Ended());
            EXPECT_EQ(g.board().CurrentGrid, Digits{});
            EXPECT_FALSE(g.GridEnabled());
            EXPECT_EQ(g.SudTekst(), "");
        }
    }
}

TEST_F(Make, AHardPuzzleClickedInEndsAsTheLastRecordOfTheHardPairAfterAFailedWrite) {
    Game& g = Making();
    const Digits puzzle = DigitsOf(kHard);
    const int clues = 81 - int(std::count(puzzle.begin(), puzzle.end(), 0));
    for (int c = 0; c < 81; ++c)
        if (puzzle[c]) g.MarkMouseUp(puzzle[c], c, MouseButton::Left, true);
    ASSERT_EQ(g.board().CurrentGrid, puzzle);
    EXPECT_EQ(g.CurrentStep(), clues);
    EXPECT_FALSE(g.commands().Undo);  // no Undo while making

    // With a folder where its log file should be, the Hard pair takes nothing:
    // both files stay as they were, it is said, and the clues stay on the board
    // for another try.
    const long count = Records(3);
    const auto log = LogFile(folders.DataFolder, LevelStem(3));
    std::filesystem::rename(log, root / "aside");
    std::filesystem::create_directory(log);
    g.CommandMake();
    ASSERT_EQ(prompter.shown.size(), 1u);
    EXPECT_EQ(prompter.shown[0].title, "File Error");
    EXPECT_EQ(Records(3), count);
    EXPECT_TRUE(g.MakeMode());
    EXPECT_EQ(g.board().CurrentGrid, puzzle);

    std::filesystem::remove(log);
    std::filesystem::rename(root / "aside", log);
    prompter.shown.clear();
    g.CommandMake();
    EXPECT_EQ(prompter.Texts(),
              std::vector<std::string>{"Sudoku solved and rated as Hard\nIt is stored as Hard "
                                       "number " +
                                       std::to_string(count + 1) + "."});
    ASSERT_EQ(Records(3), count + 1);
    EXPECT_EQ(Records(3, true), count + 1);
    EXPECT_EQ(Record(3, count + 1).solution, Solutions(puzzle).first);
    EXPECT_EQ(Record(3, count + 1).puzzle, puzzle);
    EXPECT_EQ(LogOf(3, count + 1).StepCount, clues);  // the entry's steps, not the rating's
    EXPECT_EQ(g.position().PuzzleNumber[3], count + 1);
    EXPECT_EQ(g.position().ChosenLevel, 3);
    EXPECT_EQ(g.commands(), Ended());
    // The next New wraps to the first record.
    g.CommandNew();
    EXPECT_EQ(g.position().OpenRecord, 1);
}

TEST_F(Make, CluesFromTypedTextAndDroppedFiles) {
    Game& g = Making();
    // Typing: the 81st character reads the whole text, a character more adds
    // nothing, and a text with letters enters nothing.
    const std::string text(kHard);
    g.SudTekstChange(text.substr(0, 80));
    EXPECT_EQ(g.CurrentStep(), 0);
    g.SudTekstChange(text);
    EXPECT_EQ(g.board().CurrentGrid, DigitsOf(kHard));
    const int steps = g.CurrentStep();
    g.SudTekstChange(text + "7");
    EXPECT_EQ(g.CurrentStep(), steps);
    g.SudTekstChange("Puzzle: " + text.substr(0, 70) + "2345678912");
    EXPECT_EQ(prompter.Texts(), std::vector<std::string>{std::string(kClueTextRefused)});
    EXPECT_EQ(g.CurrentStep(), steps);
    EXPECT_EQ(g.board().CurrentGrid, DigitsOf(kHard));

    const auto file = [&](const std::string& name, const std::string& content) {
        std::ofstream(root / name, std::ios::binary) << content;
        return root / name;
    };
    std::filesystem::create_directories(root / "folder.txt");
    std::string rows;
    for (int r = 0; r < 9; ++r)
        rows += text.substr(size_t(r) * 9, 9) + "\r\n";
    struct Drop {
        std::vector<std::filesystem::path> files;
        std::string said;  // empty: taken
        std::string_view clues;
    };
    const std::string half = text.substr(0, 40);
    const Drop drops[] = {
        {{file("a.txt", text), file("b.txt", text)}, std::string(kDropOneFileText), {}},
        {{root / "folder.txt"}, std::string(kDropNoFolderText), {}},
        {{file("p.csv", text)}, std::string(kDropNotTxtText), {}},
        {{root / "gone.txt"},
         "Error reading sudoku from file " + (root / "gone.txt").string() + " !",
         {}},
        {{file("half.txt", half + "\n")}, "", half},
        {{file("P.TXT", "\xEF\xBB\xBF" + text + "\r\nsolution line\r\n")}, "", text},
        // Nine lines of a grid are read as the import reads them.
        {{file("rows.txt", "\xEF\xBB\xBF" + rows)}, "", text},
    };
    Game& d = Making();
    for (const Drop& k : drops) {
        SCOPED_TRACE(k.files.front().filename().string());
        prompter.shown.clear();
        d.SudTekstDrop(k.files);
        EXPECT_EQ(prompter.Texts(), std::vector<std::string>(!k.said.empty(), k.said));
        std::string expected(k.clues);
        expected.resize(81, '.');
        EXPECT_EQ(d.board().CurrentGrid, DigitsOf(expected));
        if (k.said.empty()) {
            EXPECT_EQ(d.SudTekst(), std::string(k.clues) + std::string(81 - k.clues.size(), ' '));
        }
    }
}

// Make shows nothing of the game before: another board, the plain caption,
// empty wells.
TEST_F(Make, TheWayInAsksAboutTheGameAndLeavesOnlyTheBoardAndValidate) {
    Game& g = Playing(1);
    options.AutoSave = false;
    options.AskSave = true;
    PlaceOne();
    const int generation = g.Generation();
    prompter.shown.clear();
    prompter.answers = {Answer::No, Answer::No};
    g.CommandMake();
    EXPECT_EQ(prompter.Texts(), (std::vector<std::string>{
                                    "Do you want to save the current sudoku ?",
                                    "Do you want to erase the progress of the current sudoku ?"}));
    CommandStates making{false, false, false, false, true};
    making.Scan = false;
    making.MakeCaption = "Validate";
    EXPECT_EQ(g.commands(), making);
    EXPECT_TRUE(g.MakeMode());
    EXPECT_TRUE(g.GridEnabled());
    EXPECT_EQ(g.board().CurrentGrid, Digits{});
    EXPECT_EQ(g.SudTekst(), kMakePrompt);
    EXPECT_EQ(g.LabelTijd(), "");
    EXPECT_EQ(g.Caption(), "Tavi Sudoku 1");
    EXPECT_GT(g.Generation(), generation);
    for (int d = 1; d <= 9; ++d)
        for (int b = 0; b < 9; ++b)
            EXPECT_FALSE(g.WellFilled(d, b));
    // The palette and the digit filter are dead.
    g.PaletteUp(0, MouseButton::Left, true);
    g.DigitButtonUp(5, MouseButton::Left, true);
    EXPECT_FALSE(g.brush().BrushActive);
    EXPECT_TRUE(g.FilterOn(5));
}

}  // namespace
}  // namespace tavi::testing
