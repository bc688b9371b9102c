// SPDX-License-Identifier: GPL-3.0-or-later
// A game on a library of generated puzzles in a temporary folder, with the
// person's answers scripted and the clock, the sounds and the store faked.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "game/game.h"
#include "game/recovery_copy.h"
#include "library/library_files.h"
#include "library/library_pair.h"
#include "settings/options.h"
#include "support/puzzles.h"

namespace tavi::testing {

// Answers questions from a script, in order; a question with no answer left
// fails the test. Every box shown is kept.
class ScriptedPrompter : public Prompter {
  public:
    struct Shown {
        std::string title, text;
        Buttons buttons;
    };
    std::vector<Shown> shown;
    std::deque<Answer> answers;
    std::deque<std::optional<std::string>> inputs;
    int beeps = 0;
    // Called as each box comes up, while the game waits for it.
    std::function<void(const Shown&)> onShow;

    void Beep() override { ++beeps; }
    Answer Ask(std::string_view title, std::string_view text, Buttons buttons, Icon) override {
        shown.push_back({std::string(title), std::string(text), buttons});
        if (onShow) onShow(shown.back());
        if (buttons == Buttons::Ok) return Answer::Ok;
        if (answers.empty()) {
            ADD_FAILURE() << "unexpected question: " << title << " / " << text;
            return Answer::Cancel;
        }
        const Answer a = answers.front();
        answers.pop_front();
        return a;
    }
    std::optional<std::string> Input(std::string_view title, std::string_view prompt,
                                     std::string_view) override {
        shown.push_back({std::string(title), std::string(prompt), Buttons::OkCancel});
        if (inputs.empty()) {
            ADD_FAILURE() << "unexpected input box: " << prompt;
            return std::nullopt;
        }
        auto a = inputs.front();
        inputs.pop_front();
        return a;
    }
    // The texts shown, in order.
    std::vector<std::string> Texts() const {
        std::vector<std::string> t;
        for (const auto& s : shown)
            t.push_back(s.text);
        return t;
    }
    // The title and text of box `i`, and of the last box.
    TitleText Box(std::size_t i) const { return {shown.at(i).title, shown.at(i).text}; }
    TitleText Last() const { return Box(shown.size() - 1); }
    bool Showed(std::string_view text) const {
        for (const auto& s : shown)
            if (s.text == text) return true;
        return false;
    }
};

struct FakeClock : TimeSource {
    int now = 10 * 3600;
    int SecondOfDay() const override { return now; }
};

struct FakeSounds : SoundPlayer {
    bool available = true;
    std::vector<int> played;
    bool Available() const override { return available; }
    void Play(int id) override { played.push_back(id); }
};

struct FakePages : PageOpener {
    std::vector<std::string> opened;
    bool browser = true, opens = true;
    bool BrowserFound() const override { return browser; }
    bool Open(const std::string& url) override {
        opened.push_back(url);
        return opens;
    }
};

class GameFixture : public ::testing::Test {
  public:
    static constexpr int kPerLevel = 3;

    GameFixture() {
        root = std::filesystem::temp_directory_path() /
               ("tavi-game-" + std::to_string(::getpid()) + "-" + std::to_string(counter++));
        std::filesystem::remove_all(root);
        folders = {root / "app", root / "data"};
        std::filesystem::create_directories(folders.AppFolder);
        const auto& puzzles = GeneratedPuzzles(9 * kPerLevel, 77);
        for (int level = 1; level <= 9; ++level)
            for (int i = 0; i < kPerLevel; ++i) {
                const auto& p = puzzles[(level - 1) * kPerLevel + i];
                SudokuRecord r{p.puzzle, p.solution, 0, 0};
                WriteSudokuRecord(PuzzleFile(folders.AppFolder, LevelStem(level)), i + 1, r);
            }
    }
    ~GameFixture() override { std::filesystem::remove_all(root); }

    // A new game over the same folders and store, as at the next start. The run
    // before ended normally (its recovery copy is gone) unless `crashed` is set.
    Game& NewGame() {
        if (!crashed) RemoveRecoveryCopy(folders.DataFolder);
        game.emplace(GameServices{prompter, store, clock, &sounds, &pages,
                                  [this] {
                                      if (yield) yield();
                                  }},
                     folders, options);
        return *game;
    }
    // A started game with the first run answered (it only informs).
    Game& Started() {
        NewGame();
        EXPECT_TRUE(game->Start());
        return *game;
    }
    // A started game with New pressed on `level`.
    Game& Playing(int level) {
        Game& g = Started();
        g.OptionType(level);
        g.CommandNew();
        return g;
    }
    // The record `number` of `level` as the game reads it.
    GeneratedPuzzle Record(int level, int number) {
        SudokuRecord r;
        EXPECT_TRUE(ReadSudokuRecord(PuzzleFile(folders.DataFolder, LevelStem(level)), number, r));
        return {r.Puzzle, r.Solution};
    }
    SudokuLogRecord LogOf(int level, int number) {
        SudokuLogRecord r;
        EXPECT_TRUE(ReadSudokuLogRecord(LogFile(folders.DataFolder, LevelStem(level)), number, r));
        return r;
    }
    // The commands once a game has ended: those at the start, less Save.
    static CommandStates Ended() {
        CommandStates c;
        c.Save = false;
        return c;
    }
    // The first empty cell of the game's board and its solution digit.
    std::pair<int, int> FirstOpenCell() const {
        for (int c = 0; c < 81; ++c)
            if (!game->board().CurrentGrid[c]) return {c, game->board().Solution[c]};
        return {-1, 0};
    }
    // An open cell and a digit that is a candidate there but not its solution.
    std::pair<int, int> WrongCandidate() const {
        const Board& b = game->board();
        for (int c = 0; c < 81; ++c)
            for (int d = 1; d <= 9; ++d)
                if (!b.CurrentGrid[c] && d != b.Solution[c] && b.Has(d, c)) return {c, d};
        return {-1, 0};
    }
    // Picks `cell` by its row and column headers (a header already picked stays).
    void Select(int cell) {
        if (game->SelectedRow() != cell / 9) game->RowHeaderUp(cell / 9, MouseButton::Left, true);
        if (game->SelectedColumn() != cell % 9)
            game->ColumnHeaderUp(cell % 9, MouseButton::Left, true);
    }
    // Places the right digit in the first open cell.
    void PlaceOne() {
        auto [cell, digit] = FirstOpenCell();
        game->MarkMouseUp(digit, cell, MouseButton::Left, true);
    }

    static inline int counter = 0;
    std::filesystem::path root;
    LibraryFolders folders;
    ScriptedPrompter prompter;
    MemorySettingsStore store;
    FakeClock clock;
    FakeSounds sounds;
    FakePages pages;
    Options options;
    std::optional<Game> game;
    std::function<void()> yield;  // what the window does while a search breathes
    bool crashed = false;         // the next start follows a run that did not end
};

}  // namespace tavi::testing
