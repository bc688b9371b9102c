// SPDX-License-Identifier: GPL-3.0-or-later
// The game against damaged files, unreadable settings, large libraries and a
// clock or a scan that carried state from one puzzle to the next.
#include <gtest/gtest.h>

#include "grid/levels.h"
#include "library/library_test_support.h"
#include "support/game_fixture.h"

namespace tavi::testing {
namespace {

namespace fs = std::filesystem;

class Faults : public GameFixture {};

// A damaged record is refused by file and number, and the game in play stays
// as it was: board, record and commands.
TEST_F(Faults, ADamagedRecordIsNamedAndTheGameStaysAsItWas) {
    struct Case {
        bool log;
        std::size_t offset;
        std::vector<std::uint8_t> bytes;
        std::string said;
    };
    const Case cases[] = {
        {false,
         sds_offset::Puzzle + 5,
         {12},
         "Record 2 of Sudoku_Hard.sds is damaged: puzzle cell A6 holds 12"},
        {false, sds_offset::Solution + 80, {0}, "solution cell J9 holds 0"},
        {false, sds_offset::BestSeconds, {75, 0}, "the best time"},
        {true,
         sdl_offset::Grid + 3,
         {200},
         "Record 2 of Sudoku_Hard.sdl is damaged: grid cell A4 holds 200"},
        // A saved step on no cell of the board: undo would have indexed with it.
        {true, sdl_offset::StepCount, {1, 0}, ""},
        {true, sdl_offset::LogCell, {0xF4, 0x01}, "step 1 (digit 0, cell 500)"},
        {true, sdl_offset::StepCount, {101, 0}, "claims 101 steps"},
    };
    for (const Case& c : cases) {
        Game& g = Playing(3);
        PlaceOne();
        const Digits grid = g.board().CurrentGrid;
        const CommandStates commands = g.commands();
        const fs::path file = c.log ? LogFile(folders.DataFolder, LevelStem(3))
                                    : PuzzleFile(folders.DataFolder, LevelStem(3));
        const std::size_t size = c.log ? kSudokuLogRecordSize : kSudokuRecordSize;
        auto bytes = FileBytes(file);
        std::copy(c.bytes.begin(), c.bytes.end(), bytes.begin() + size + c.offset);
        WriteBytes(file, bytes);
        if (c.said.empty()) continue;  // sets up the next case

        options.AutoSave = options.AskSave = false;
        prompter.shown.clear();
        g.CommandNew();
        EXPECT_EQ(prompter.Last().first, "File Error");
        EXPECT_NE(prompter.Last().second.find(c.said), std::string::npos) << prompter.Last().second;
        EXPECT_EQ(g.board().CurrentGrid, grid);
        EXPECT_EQ(g.position().OpenRecord, 1);
        EXPECT_TRUE(g.GridEnabled());
        EXPECT_EQ(g.commands(), commands);
        fs::remove_all(folders.DataFolder);  // a fresh library for the next case
        store = {};
    }
}

// A settings file the program can't read, or a value in it it can't, is said
// at start, once, and the first-run box does not come back while the log files
// are there; a saved game survives, and bad position keys still offer it.
TEST_F(Faults, UnreadableSettingsAreSaidAndNoSavedGameIsLost) {
    Game& g = Playing(2);
    PlaceOne();
    g.CommandSave();
    const SudokuLogRecord saved = LogOf(2, 1);
    ASSERT_GT(saved.StepCount, 0);
    const MemorySettingsStore kept = store;
    for (const bool wholeFile : {false, true}) {
        MemorySettingsStore fresh;
        if (wholeFile)
            fresh.SetProblem("The settings file x.ini was not used: it can't be read.");
        else
            fresh.Write("Options", "Logfiles", "Yes");
        store = fresh;
        prompter.shown.clear();
        Started();
        ASSERT_EQ(prompter.shown.size(), 1u);
        EXPECT_EQ(prompter.shown[0].title, "Settings not read");
        EXPECT_NE(prompter.shown[0].text.find(wholeFile ? "x.ini" : "Options/Logfiles=Yes"),
                  std::string::npos);
        EXPECT_EQ(LogOf(2, 1), saved);
    }
    // "Level" and "Busy" that can't be read are said with the others, and the
    // saved game is still offered.
    for (const auto& [level, busy] :
         {std::pair{"abc", "Yes"}, std::pair{"2", "maybe"}, std::pair{"", "yes please"}}) {
        store = kept;
        store.Write("Sudoku", "Level", level);
        store.Write("SudokuLevel2", "Busy", busy);
        store.Write("Technique", "OnOff4", "banana");
        prompter.shown.clear();
        prompter.answers = {Answer::Yes};  // "Do you want to proceed with the last saved sudoku ?"
        Started();
        ASSERT_GE(prompter.shown.size(), 2u) << level << " " << busy;
        const std::string said = prompter.shown[0].text;
        EXPECT_NE(said.find("Technique/OnOff4=banana"), std::string::npos) << said;
        if (std::string(level) != "2") {
            EXPECT_NE(said.find("Sudoku/Level=" + std::string(level)), std::string::npos) << said;
        }
        if (std::string(busy) != "Yes") {
            EXPECT_NE(said.find("SudokuLevel2/Busy=" + std::string(busy)), std::string::npos)
                << said;
        }
        EXPECT_EQ(prompter.shown[1].text, "Do you want to proceed with the last saved sudoku ?");
        EXPECT_EQ(game->CurrentStep(), saved.StepCount);
    }
}

// Values that can't be read (a colour among them) are said once, each cut to
// size however long, a long list ending in how many more there are; the exit writes the colours
// back, as it does the options, and the next run says nothing.
TEST_F(Faults, BadValuesAreSaidOnceAndSmall) {
    store.Write("Colors", "HColor3", "not a colour");
    store.Write("Options", "Wells", std::string(30'000'000, 'x'));
    for (int i = 0; i < 40; ++i)
        store.Write("Technique", "Order" + std::to_string(i), "-" + std::string(500, '7'));
    prompter.shown.clear();
    Game& g = Started();
    ASSERT_FALSE(prompter.shown.empty());
    const std::string said = prompter.shown[0].text;
    EXPECT_LT(said.size(), 2000u);
    EXPECT_NE(said.find("(30000000 characters)"), std::string::npos);
    // Twelve named, the other 30 counted, the colour among them.
    EXPECT_TRUE(said.ends_with("\nand 30 more")) << said;
    prompter.answers = {Answer::Yes};  // "Do you really want to quit ?"
    ASSERT_TRUE(g.CommandExit());
    // The next run reads the file afresh.
    MemorySettingsStore next;
    for (const auto& [key, value] : store.Values())
        next.Write(key.first, key.second, value);
    store = next;
    prompter.shown.clear();
    Started();
    EXPECT_TRUE(prompter.shown.empty()) << prompter.Last().second;
    EXPECT_EQ(game->options().colors.HintColor[3], kDefaultHintColor[3]);
}

// Record numbers past 16 bits open, save and come back at the next start.
TEST_F(Faults, ARecordNumberAbove32767OpensSavesAndResumes) {
    constexpr long kNumber = 40000;
    Game& g = Started();
    const fs::path sds = PuzzleFile(folders.DataFolder, LevelStem(4));
    const fs::path sdl = LogFile(folders.DataFolder, LevelStem(4));
    fs::resize_file(sds, (kNumber - 1) * kSudokuRecordSize);
    fs::resize_file(sdl, (kNumber - 1) * kSudokuLogRecordSize);
    ASSERT_TRUE(WritePair(folders.DataFolder, LevelStem(4), kNumber, RecordOf(1), {}));

    g.OptionType(4);
    prompter.inputs = {std::to_string(kNumber)};
    g.CommandOpen();
    ASSERT_EQ(g.position().OpenRecord, kNumber);
    PlaceOne();
    prompter.answers = {Answer::Yes};  // quit
    ASSERT_TRUE(g.CommandExit());
    EXPECT_EQ(store.Read("SudokuLevel4", "Number", ""), std::to_string(kNumber));
    EXPECT_GT(LogOf(4, kNumber).StepCount, 0);

    prompter.answers = {Answer::Yes};
    Game& again = Started();
    EXPECT_EQ(again.position().OpenRecord, kNumber);
    EXPECT_EQ(again.CurrentStep(), 1);
}

}  // namespace
}  // namespace tavi::testing
