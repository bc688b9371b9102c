// SPDX-License-Identifier: GPL-3.0-or-later
// The recovery copy under kills: a game played in a child process is killed
// (SIGKILL) at random instants; the next start offers it back with every step
// that was on screen before the last one, and no library record but the game's
// own was touched. Also: the copy against the library changing under the game,
// and hostile copies.
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <fstream>
#include <random>
#include <thread>

#include "library/library_test_support.h"
#include "support/game_fixture.h"

namespace tavi::testing {
namespace {

namespace fs = std::filesystem;

struct Shown {
    Digits grid{};
    std::array<CandidateMask, 81> marks{};
    int current = 0;
    std::vector<MoveStep> log;
    bool operator==(const Shown&) const = default;
};

class Recovery : public GameFixture {
  public:
    static constexpr int kLevel = 5;

    Shown Now() const {
        return {game->board().CurrentGrid, game->board().Candidates, game->CurrentStep(),
                game->MoveLog()};
    }

    // A drawn game: New on kLevel, then `actions` random actions; `after(k)`
    // runs once action k is done (0: the game is open).
    void Play(unsigned draw, int actions, const std::function<void(int)>& after) {
        std::mt19937 random(draw);
        auto pick = [&](int n) { return std::uniform_int_distribution<int>(0, n - 1)(random); };
        options = {};
        options.AutoSave = true;
        Playing(kLevel);
        after(0);
        for (int k = 1; k <= actions; ++k) {
            clock.now += pick(3);
            const int cell = pick(81), digit = 1 + pick(9);
            const Board& b = game->board();
            switch (pick(10)) {
                case 0: game->CommandUndo(); break;
                case 1: game->CommandRedo(); break;
                case 2:
                    if (b.CurrentGrid[cell] && !b.Puzzle[cell]) {
                        Select(cell);
                        game->CommandResetCell();
                    }
                    break;
                case 3: pick(4) == 0 ? game->CommandSave() : game->Tick(); break;
                case 4:
                case 5:
                    if (!b.CurrentGrid[cell] && b.Has(digit, cell) && b.EmptyCount() > 3)
                        game->MarkMouseUp(digit, cell, MouseButton::Left, true);
                    break;
                default:
                    if (!b.CurrentGrid[cell] && b.Has(digit, cell))
                        game->MarkMouseUp(digit, cell, MouseButton::Right, true);
            }
            after(k);
        }
    }

    // The library as a kill may leave it: every puzzle file as delivered, every
    // log record empty but the game's own (record 1 of kLevel).
    void ExpectOnlyTheGamesRecordTouched() {
        for (int level = 1; level <= 9; ++level) {
            EXPECT_EQ(FileBytes(PuzzleFile(folders.DataFolder, LevelStem(level))),
                      FileBytes(PuzzleFile(folders.AppFolder, LevelStem(level))));
            for (int n = 1; n <= kPerLevel; ++n)
                if (level != kLevel || n != 1) {
                    EXPECT_EQ(LogOf(level, n), SudokuLogRecord{});
                }
        }
    }
};

TEST_F(Recovery, AGameKilledAtRandomInstantsIsOfferedBackWithEveryStepShown) {
    constexpr int kActions = 400;
    constexpr unsigned kDraw = 25;
    const fs::path base = folders.DataFolder;
    // What the window shows after each action, played through without a kill.
    std::vector<Shown> shown;
    store = {};
    folders.DataFolder = base / "reference";
    const auto began = std::chrono::steady_clock::now();
    Play(kDraw, kActions, [&](int) { shown.push_back(Now()); });
    // Kills fall anywhere in a game's run, however fast this machine plays it.
    const auto took = std::chrono::duration_cast<std::chrono::microseconds>(
        std::chrono::steady_clock::now() - began);
    const int window = int(std::max<long long>(took.count(), 1000));
    const auto start = Record(kLevel, 1).puzzle;

    std::mt19937 random(7);
    int restored = 0, reachedEnd = 0;
    for (int round = 0; round < 24; ++round) {
        store = {};
        prompter = {};
        crashed = false;
        folders.DataFolder = base / ("killed" + std::to_string(round));
        int channel[2];
        ASSERT_EQ(::pipe(channel), 0);
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            ::close(channel[0]);
            Play(kDraw, kActions, [&](int k) {
                if (::write(channel[1], &k, sizeof k) != sizeof k) ::_exit(3);
            });
            ::_exit(0);
        }
        ::close(channel[1]);
        std::this_thread::sleep_for(
            std::chrono::microseconds(std::uniform_int_distribution<int>(0, window)(random)));
        ::kill(child, SIGKILL);
        int status = 0;
        ::waitpid(child, &status, 0);
        int k = -1, last = -1;
        while (::read(channel[0], &k, sizeof k) == sizeof k)
            last = k;
        ::close(channel[0]);
        if (last == kActions) ++reachedEnd;

        crashed = true;
        prompter.answers = {Answer::Yes};  // restore the game
        Started();
        const bool offered =
            std::any_of(prompter.shown.begin(), prompter.shown.end(),
                        [](const auto& box) { return box.title == "Game recovery"; });
        if (last < 0) continue;  // killed before the game was open
        // The last action may have reached the copy before the kill.
        const Shown& before = shown[std::size_t(last)];
        const Shown* after = last < kActions ? &shown[std::size_t(last) + 1] : nullptr;
        if (!offered) {
            // Nothing to offer only while no step was ever taken.
            EXPECT_TRUE(before.log.empty()) << "round " << round << " after action " << last;
            continue;
        }
        ++restored;
        const Shown now = Now();
        EXPECT_TRUE(now == before || (after && now == *after))
            << "round " << round << " after action " << last << ": step " << now.current << " of "
            << now.log.size() << ", expected step " << before.current;
        EXPECT_EQ(game->position().OpenLevel, kLevel);
        EXPECT_EQ(game->position().OpenRecord, 1);
        ExpectOnlyTheGamesRecordTouched();
        // The whole log came back: undo reaches the puzzle as it was opened.
        while (game->commands().Undo)
            game->CommandUndo();
        for (int c = 0; c < 81; ++c)
            ASSERT_EQ(game->board().CurrentGrid[c], start[c]) << "round " << round;
        if (HasFatalFailure()) return;
    }
    EXPECT_GT(restored, 12);
    EXPECT_LT(reachedEnd, 20);
}

// A copy that was discarded is gone; one that was restored stays as the live
// copy until the program ends normally.
TEST_F(Recovery, DiscardRemovesTheCopyAndANormalEndToo) {
    Game& g = Playing(3);
    PlaceOne();
    ASSERT_TRUE(RecoveryCopyExists(folders.DataFolder));
    crashed = true;
    prompter.shown.clear();
    prompter.answers = {Answer::No};
    Started();
    EXPECT_EQ(prompter.Box(0).first, "Game recovery");
    EXPECT_FALSE(RecoveryCopyExists(folders.DataFolder));
    EXPECT_TRUE(game->position().SudokuSolved);

    g.OptionType(3);
    Playing(3);
    PlaceOne();
    prompter.answers = {Answer::Yes};
    Started();
    EXPECT_EQ(game->CurrentStep(), 1);
    EXPECT_TRUE(RecoveryCopyExists(folders.DataFolder));
    options.AutoSave = true;
    prompter.answers = {Answer::Yes};  // "Do you really want to quit ?"
    ASSERT_TRUE(game->CommandExit());
    EXPECT_FALSE(RecoveryCopyExists(folders.DataFolder));
    EXPECT_EQ(LogOf(3, 1).StepCount, 1);
}

// The library renumbered behind the game's back: Save finds the puzzle at its
// new number and writes there; a puzzle gone from the level is said, nothing is
// written, and the game stays in the recovery copy for the next start.
TEST_F(Recovery, AGameIsNeverWrittenOntoAnotherPuzzle) {
    options.AutoSave = true;
    Game& g = Playing(6);
    g.CommandNew();  // record 2
    ASSERT_EQ(g.position().OpenRecord, 2);
    PlaceOne();
    PlaceOne();
    const fs::path sds = PuzzleFile(folders.DataFolder, LevelStem(6));
    const fs::path sdl = LogFile(folders.DataFolder, LevelStem(6));
    // Records 1 and 2 change places in both files.
    auto swap = [&](const fs::path& file, std::size_t size) {
        auto bytes = FileBytes(file);
        std::swap_ranges(bytes.begin(), bytes.begin() + long(size), bytes.begin() + long(size));
        WriteBytes(file, bytes);
    };
    swap(sds, kSudokuRecordSize);
    swap(sdl, kSudokuLogRecordSize);
    const SudokuLogRecord other = LogOf(6, 2);
    prompter.shown.clear();
    g.CommandSave();
    EXPECT_TRUE(prompter.shown.empty());
    EXPECT_EQ(g.position().OpenRecord, 1);
    EXPECT_EQ(LogOf(6, 1).StepCount, 2);
    EXPECT_EQ(LogOf(6, 2), other);

    // The puzzle taken out of the level: the file keeps the other records.
    for (const auto& [file, size] :
         {std::pair{sds, kSudokuRecordSize}, {sdl, kSudokuLogRecordSize}}) {
        const auto bytes = FileBytes(file);
        WriteBytes(file, {bytes.begin() + long(size), bytes.end()});
    }
    const auto sdsBefore = FileBytes(sds), sdlBefore = FileBytes(sdl);
    PlaceOne();
    g.CommandSave();
    EXPECT_EQ(prompter.Last().first, "Sudoku not saved");
    EXPECT_NE(prompter.Last().second.find("no longer in the Kamikaze library"), std::string::npos);
    EXPECT_EQ(FileBytes(sds), sdsBefore);
    EXPECT_EQ(FileBytes(sdl), sdlBefore);
    // New stays with the game unless the player lets it go.
    prompter.answers = {Answer::No};
    g.CommandNew();
    EXPECT_EQ(g.CurrentStep(), 3);
    prompter.answers = {Answer::Yes};  // quit
    ASSERT_TRUE(g.CommandExit());
    EXPECT_EQ(FileBytes(sds), sdsBefore);
    EXPECT_EQ(FileBytes(sdl), sdlBefore);
    EXPECT_TRUE(RecoveryCopyExists(folders.DataFolder));
    crashed = true;                    // the copy is left for the next start
    prompter.answers = {Answer::Yes};  // restore
    Started();
    EXPECT_EQ(game->CurrentStep(), 3);
}

// Copies that are torn, changed or hostile are refused with the reason, set
// aside, and the start goes on; a sound copy reads back as written.
TEST_F(Recovery, AnUnsoundCopyIsSetAsideAndTheStartGoesOn) {
    Game& g = Playing(2);
    for (int i = 0; i < 5; ++i)
        PlaceOne();
    const RecoveryCopy copy = *ReadRecoveryCopy(folders.DataFolder);
    const std::string text = FormatRecoveryCopy(copy);
    ASSERT_EQ(ParseRecoveryCopy(text), copy);
    std::mt19937 random(3);
    for (int round = 0; round < 300; ++round) {
        std::string bad = text;
        switch (round % 3) {
            case 0: bad.resize(std::size_t(random() % text.size())); break;
            case 1: bad[random() % bad.size()] = char('0' + random() % 12); break;
            case 2: bad.insert(random() % bad.size(), "-1"); break;
        }
        std::string why;
        const auto read = ParseRecoveryCopy(bad, &why);
        if (!read) {
            EXPECT_FALSE(why.empty());
            continue;
        }
        // What reads as a copy is a game of its own puzzle.
        for (int c = 0; c < 81; ++c)
            if (read->sudoku.Puzzle[c]) {
                ASSERT_EQ(read->grid[c], read->sudoku.Puzzle[c]);
            }
    }
    // A clue covered by the copy's digits.
    RecoveryCopy wrong = copy;
    for (int c = 0; c < 81; ++c)
        if (wrong.sudoku.Puzzle[c]) {
            wrong.grid[c] = std::uint8_t(wrong.sudoku.Puzzle[c] % 9 + 1);
            break;
        }
    std::ofstream(RecoveryFile(folders.DataFolder)) << FormatRecoveryCopy(wrong);
    crashed = true;
    Started();
    EXPECT_EQ(prompter.Last().first, "Game recovery");
    EXPECT_NE(prompter.Last().second.find("its digits cover a clue"), std::string::npos);
    EXPECT_FALSE(RecoveryCopyExists(folders.DataFolder));
    EXPECT_TRUE(fs::exists(folders.DataFolder / "TaviSud1.recovery.unread1"));
    (void)g;
}

}  // namespace
}  // namespace tavi::testing
