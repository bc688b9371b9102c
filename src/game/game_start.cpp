// SPDX-License-Identifier: GPL-3.0-or-later
// The program's life around the board: the start-up, the end of a game, and the
// ways out.
#include <filesystem>

#include "game/first_run.h"
#include "game/game.h"
#include "library/library_setup.h"

namespace tavi {

namespace {
constexpr std::string_view kQuitTitle = "Quit Tavi Sudoku";
constexpr std::string_view kQuitText = "Do you really want to quit ?";
constexpr std::string_view kInProgressTitle = "Sudoku in progress";
constexpr std::string_view kSaveQuestion = "Do you want to save the current sudoku ?";
}  // namespace

Game::Game(GameServices services, LibraryFolders folders, Options& options)
    : services_(services),
      options_(options),
      session_(std::move(folders), services.store, services.prompter),
      clock_(services.clock, options) {
    ctx_.listener = this;
    ctx_.confirmPattern = [this](const HintRecord&) { return SueDeCoqSpotted(); };
}

bool Game::Start() {
    const ChangeScope scope(*this);
    LibraryPosition& position_ = session_.position();
    // Folders and the delivered library first; nothing reads a library before.
    std::error_code ignored;
    std::filesystem::create_directories(session_.folders().DataFolder, ignored);
    CopyLibraryFiles(session_.folders());

    position_.ChosenLevel = 2;
    makeMode_ = false;
    selectedRow_ = selectedColumn_ = kNoLine;
    HaalOpties(services_.store, options_);
    // The position keys are read with the others, so that their faults are said
    // in the same message.
    session_.ReadPosition();
    ReportSettingsProblems();
    if (!services_.sounds || !services_.sounds->Available()) options_.Sounds = false;

    if (!PrepareLogFiles(session_.folders(), options_, services_.store, services_.prompter))
        return false;

    brushes_.Off();
    position_.SudokuSolved = true;
    position_.SudokuAutosolved = false;
    ClearGrid();
    DisableGrid();
    ClearSudokuData();
    hoverCell_ = kNoHover;

    session_.Closed();
    // A run that did not end normally left its game in the recovery copy.
    if (OfferRecoveryCopy()) {
        windowTitle_ = "Tavi Sudoku 1";
        caption_ = windowTitle_ + caption_;
        return true;
    }
    // A "Level" or "Busy" that could not be read does not hide a saved game.
    for (int level = 1; level <= 9; ++level) {
        if (position_.BusyUnread[level]) position_.LevelBusy[level] = session_.SavedGameAt(level);
        if (position_.LevelUnread && position_.LastLevel == 0 && position_.LevelBusy[level])
            position_.LastLevel = level;
    }
    if (position_.LastLevel > 0) {
        const int level = position_.LastLevel;
        position_.ChosenLevel = level;
        if (position_.LevelBusy[level]) {
            const Answer a = services_.prompter.Ask(
                kInProgressTitle, "Do you want to proceed with the last saved sudoku ?",
                Buttons::YesNo, Icon::Question);
            bool resumed = false;
            if (a == Answer::Yes) {
                resumed = OpenLastSudoku();
                // The resumed start ends here, before the title is set: its
                // captions begin with " - " for the whole run.
                if (resumed) return true;
                services_.prompter.Message("File error", "Could not open the last saved sudoku");
            }
            if (!resumed && position_.PuzzleNumber[level] > 1) --position_.PuzzleNumber[level];
        }
    }
    windowTitle_ = "Tavi Sudoku 1";
    caption_ = windowTitle_;
    return true;
}

void Game::ReportSettingsProblems() {
    const SettingsStore& store = services_.store;
    std::string text = store.Problem();
    if (!store.Unreadable().empty()) {
        if (!text.empty()) text += "\n\n";
        text += "These settings could not be read and their defaults are used:";
        constexpr std::size_t kListed = 12;
        const auto& unreadable = store.Unreadable();
        for (std::size_t i = 0; i < unreadable.size() && i < kListed; ++i)
            text += "\n" + unreadable[i];
        if (unreadable.size() > kListed)
            text += "\nand " + std::to_string(unreadable.size() - kListed) + " more";
    }
    if (!text.empty()) services_.prompter.Message(kSettingsProblemTitle, text);
}

void Game::OptionType(int level) {
    const ChangeScope scope(*this);
    if (level >= 1 && level <= 9) session_.position().ChosenLevel = level;
}

void Game::Speel(int id) {
    if (options_.Sounds && id >= 0 && services_.sounds) services_.sounds->Play(id);
}

void Game::ZetOpgelost() {
    const ChangeScope scope(*this);
    if (makeMode_) return;
    clock_.Tick();
    clock_.Stop();
    ResetHintStage();
    textHint_ = std::string(position().SudokuAutosolved ? kAutosolvedText : kSolvedText);
    // The window shows the finished board, its counters and wells behind the
    // boxes that follow, not the state before the last move.
    Announce();
    if (!position().SudokuAutosolved) {
        Speel(kSoundSolved);
        if (clock_.BeatsBest(sudoku())) {
            services_.prompter.Message("Congratulations", "New best time !!!");
            clock_.SetBest(session_.sudoku());
            session_.SaveBestTime();
        }
    }
    CloseGameRecord();
    commands_.Undo = commands_.Redo = commands_.ResetCell = commands_.Hint = false;
    commands_.AutoSolve = commands_.Solution = commands_.Save = false;
}

void Game::CloseGameRecord() {
    const ChangeScope scope(*this);
    LibraryPosition& position_ = session_.position();
    if (options_.AutoErase ||
        services_.prompter.Ask("Sudoku solved",
                               "Do you want to erase progress of current solved sudoku ?",
                               Buttons::YesNo, Icon::Question) == Answer::Yes) {
        session_.EraseProgress();
        position_.SudokuSolved = true;
    }
    // A solved game whose progress the user keeps stays "Busy" if it is in
    // progress on disk, and comes back at the next start.
    if (!position_.SudokuSolved && !session_.OnDisk()) position_.SudokuSolved = true;
    session_.SavePosition(moves_.CurrentStep());
    position_.SudokuSolved = true;
}

void Game::WriteSettingsOnExit() {
    session_.SavePosition(moves_.CurrentStep());
    SchrijfOpties(services_.store, options_);
    // The colours too, so that one that could not be read is not said again.
    SchrijfKleuren(services_.store, options_.colors);
    EndRecoveryCopy();
}

bool Game::CommandExit() {
    const ChangeScope scope(*this);
    if (busy_) return false;  // not while a search is running
    Prompter& ask = services_.prompter;
    auto plainYes = [&] {
        return ask.Ask(kQuitTitle, kQuitText, Buttons::YesNo, Icon::Question) == Answer::Yes;
    };
    LibraryPosition& position_ = session_.position();
    auto discard = [&] {
        position_.SudokuSolved = true;
        moves_.Clear();
    };
    if (position_.SudokuAutosolved) ZetOpgelost();
    if (position_.SudokuSolved || moves_.CurrentStep() == 0) {
        if (!plainYes()) return false;
    } else if (options_.AutoSave) {
        if (!plainYes()) return false;
        SaveGame();
    } else if (options_.AskSave) {
        const Answer a =
            ask.Ask(kInProgressTitle, kSaveQuestion, Buttons::YesNoCancel, Icon::Question);
        if (a == Answer::Cancel) return false;
        if (a == Answer::Yes)
            SaveGame();
        else
            discard();
    } else {
        if (!plainYes()) return false;
        discard();
    }
    WriteSettingsOnExit();
    return true;
}

bool Game::QueryUnload() {
    const ChangeScope scope(*this);
    if (busy_) return false;  // not while a search is running
    LibraryPosition& position_ = session_.position();
    Prompter& ask = services_.prompter;
    auto plainYes = [&] {
        return ask.Ask(kQuitTitle, kQuitText, Buttons::YesNo, Icon::Question) == Answer::Yes;
    };
    auto saveOrDiscard = [&]() -> bool {
        const Answer a =
            ask.Ask(kInProgressTitle, kSaveQuestion, Buttons::YesNoCancel, Icon::Question);
        if (a == Answer::Cancel) return false;
        if (a == Answer::Yes) {
            SaveGame();
        } else {
            position_.SudokuSolved = true;
            moves_.Clear();
        }
        return true;
    };
    if (position_.SudokuSolved || moves_.CurrentStep() == 0) {
        if (!plainYes()) return false;
    } else if (options_.AutoSave) {
        if (!plainYes()) return false;
        if (position_.SudokuAutosolved) ZetOpgelost();
        SaveGame();
    } else if (options_.AskSave || !position_.SudokuAutosolved) {
        if (!saveOrDiscard()) return false;
    } else {
        if (!plainYes()) return false;
        SaveGame();
    }
    WriteSettingsOnExit();
    return true;
}

void Game::ClearGrid() {
    ++generation_;
    truth_ = {};
    ctx_.board.Candidates.fill(kAllCandidates);
    ctx_.board.CurrentGrid.fill(0);
    brushes_.WisKleuren();
    brushes_.ShowAll();
    labelStap_.clear();
    ResetHintStage();
    selectedRow_ = selectedColumn_ = kNoLine;
}

void Game::ClearSudokuData() {
    session_.Forget();
    ctx_.board.Puzzle.fill(0);
    ctx_.board.Solution.fill(0);
    ctx_.board.CurrentGrid.fill(0);
    moves_.Clear();
}

void Game::ResetHintStage() {
    hints_.ResetStage();
    commands_.HintCaption = "Hint";
}

}  // namespace tavi
