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
    : services_(services), folders_(std::move(folders)), options_(options) {
    ctx_.listener = this;
    ctx_.confirmPattern = [this](const HintRecord&) { return SueDeCoqSpotted(); };
    filterOn_.fill(true);
}

bool Game::Start() {
    // Folders and the delivered library first; nothing reads a library before.
    std::error_code ignored;
    std::filesystem::create_directories(folders_.DataFolder, ignored);
    CopyLibraryFiles(folders_);

    position_.ChosenLevel = 2;
    MakeMode = false;
    SelectedRow = SelectedColumn = kNoLine;
    HaalOpties(services_.store, options_);
    if (!services_.sounds || !services_.sounds->Available()) options_.Sounds = false;

    if (!PrepareLogFiles(folders_, options_, services_.store, services_.prompter)) return false;

    brush_ = {};
    position_.SudokuSolved = true;
    position_.SudokuAutosolved = false;
    ClearGrid();
    DisableGrid();
    ClearSudokuData();
    HoverCell = 81;

    position_.OpenLevel = 0;
    position_.OpenRecord = 0;
    HaalLaatsteSudoku(services_.store, position_);
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
    WindowTitle = "Tavi Sudoku 1";
    caption_ = WindowTitle;
    return true;
}

void Game::OptionType(int level) {
    if (level >= 1 && level <= 9) position_.ChosenLevel = level;
}

void Game::Speel(int id) {
    if (options_.Sounds && id >= 0 && services_.sounds) services_.sounds->Play(id);
}

void Game::ZetOpgelost() {
    if (MakeMode) return;
    Tick();
    timerRunning_ = false;
    if (!position_.SudokuAutosolved) {
        Speel(kSoundSolved);
        const int best = sudoku_.BestMinutes * 60 + sudoku_.BestSeconds;
        const bool noBest = sudoku_.BestMinutes == 0 && sudoku_.BestSeconds == 0;
        if (options_.TimeOn && (clockSeconds_ < best || noBest)) {
            services_.prompter.Message("Congratulations", "New best time !!!");
            sudoku_.BestMinutes = std::int16_t(clockSeconds_ / 60);
            sudoku_.BestSeconds = std::int16_t(clockSeconds_ % 60);
            BewaarBestTime(folders_, position_, sudoku_, &services_.prompter);
        }
    }
    CloseGameRecord();
    commands_.Undo = commands_.Redo = commands_.ResetCell = commands_.Hint = false;
    commands_.AutoSolve = commands_.Solution = commands_.Save = false;
}

void Game::CloseGameRecord() {
    if (options_.AutoErase ||
        services_.prompter.Ask("Sudoku solved",
                               "Do you want to erase progress of current solved sudoku ?",
                               Buttons::YesNo, Icon::Question) == Answer::Yes) {
        AutoWisProgress(folders_, position_, sudoku_, logRecord_);
        position_.SudokuSolved = true;
    }
    // A solved game whose progress the user keeps stays "Busy" if it is in
    // progress on disk, and comes back at the next start.
    if (!position_.SudokuSolved && !SudInProgress(folders_, position_))
        position_.SudokuSolved = true;
    SaveLastSudoku(services_.store, position_);
    position_.SudokuSolved = true;
}

void Game::WriteSettingsOnExit() {
    SaveLastSudoku(services_.store, position_);
    SchrijfOpties(services_.store, options_);
}

bool Game::CommandExit() {
    if (busy_) return false;  // not while a search is running
    Prompter& ask = services_.prompter;
    auto plainYes = [&] {
        return ask.Ask(kQuitTitle, kQuitText, Buttons::YesNo, Icon::Question) == Answer::Yes;
    };
    auto discard = [&] {
        position_.SudokuSolved = true;
        position_.CurrentStep = 0;
    };
    if (position_.SudokuAutosolved) ZetOpgelost();
    if (position_.SudokuSolved || position_.CurrentStep == 0) {
        if (!plainYes()) return false;
    } else if (options_.AutoSave) {
        if (!plainYes()) return false;
        CommandSave();
    } else if (options_.AskSave) {
        const Answer a =
            ask.Ask(kInProgressTitle, kSaveQuestion, Buttons::YesNoCancel, Icon::Question);
        if (a == Answer::Cancel) return false;
        if (a == Answer::Yes)
            CommandSave();
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
    if (busy_) return false;  // not while a search is running
    Prompter& ask = services_.prompter;
    auto plainYes = [&] {
        return ask.Ask(kQuitTitle, kQuitText, Buttons::YesNo, Icon::Question) == Answer::Yes;
    };
    auto saveOrDiscard = [&]() -> bool {
        const Answer a =
            ask.Ask(kInProgressTitle, kSaveQuestion, Buttons::YesNoCancel, Icon::Question);
        if (a == Answer::Cancel) return false;
        if (a == Answer::Yes) {
            CommandSave();
        } else {
            position_.SudokuSolved = true;
            position_.CurrentStep = 0;
        }
        return true;
    };
    if (position_.SudokuSolved || position_.CurrentStep == 0) {
        if (!plainYes()) return false;
    } else if (options_.AutoSave) {
        if (!plainYes()) return false;
        if (position_.SudokuAutosolved) ZetOpgelost();
        CommandSave();
    } else if (options_.AskSave || !position_.SudokuAutosolved) {
        if (!saveOrDiscard()) return false;
    } else {
        if (!plainYes()) return false;
        CommandSave();
    }
    WriteSettingsOnExit();
    return true;
}

void Game::ClearGrid() {
    ctx_.board.Candidates.fill(kAllCandidates);
    ctx_.board.CurrentGrid.fill(0);
    WisKleuren();
    filterOn_.fill(true);
    labelStap_.clear();
    ResetHintStage();
    SelectedRow = SelectedColumn = kNoLine;
}

void Game::ClearSudokuData() {
    sudoku_ = {};
    logRecord_ = {};
    logRecord_.SavedCandidates.fill(1022);
    ctx_.board.Puzzle.fill(0);
    ctx_.board.Solution.fill(0);
    ctx_.board.CurrentGrid.fill(0);
    position_.CurrentStep = 0;
    log_.clear();
}

void Game::ResetHintStage() {
    HintStage = 0;
    commands_.HintCaption = "Hint";
}

}  // namespace tavi
