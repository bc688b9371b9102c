// SPDX-License-Identifier: GPL-3.0-or-later
// Puzzles in and out: New, Open, the resume at start, Save, Solution, and the
// pages that open in the browser. New, Open and the resume share one loading
// routine.
#include "game/display_text.h"
#include "game/game.h"
#include "game/saved_game_check.h"
#include "grid/candidates.h"
#include "grid/levels.h"
#include "library/library_pair.h"

namespace tavi {

namespace {

constexpr std::string_view kInProgressTitle = "Sudoku in progress";
constexpr std::string_view kPuzzleGoneTitle = "Sudoku not saved";

}  // namespace

bool Game::LeaveBoard() {
    const LibraryPosition& position_ = session_.position();
    if (position_.SudokuAutosolved) ZetOpgelost();
    if (position_.SudokuSolved || moves_.CurrentStep() < 1) return true;
    if (options_.AutoSave) {
        SaveGame();
    } else if (options_.AskSave) {
        Prompter& ask = services_.prompter;
        if (ask.Ask(kInProgressTitle, "Do you want to save the current sudoku ?", Buttons::YesNo,
                    Icon::Question) == Answer::Yes) {
            SaveGame();
        } else if (ask.Ask(kInProgressTitle,
                           "Do you want to erase the progress of the current sudoku ?",
                           Buttons::YesNo, Icon::Question) == Answer::Yes) {
            session_.EraseProgress();
        }
    }
    // A game that could not be saved is left only when the player says so.
    if (puzzleGone_ &&
        services_.prompter.Ask(kPuzzleGoneTitle,
                               "This game can't be saved, as its puzzle has left the library. "
                               "Leave it anyway ? It will be lost.",
                               Buttons::YesNo, Icon::Question) != Answer::Yes)
        return false;
    puzzleGone_ = false;
    return true;
}

void Game::CommandNew() {
    const ChangeScope scope(*this);
    if (busy_) return;  // a search is running
    ResetHintStage();
    if (!LeaveBoard()) return;
    // A level whose puzzles all moved out (or whose log lost its puzzle file) has
    // none to give; a pair that was refused has been named already.
    const long count = session_.ChosenCount();
    if (count < 1) {
        if (count == 0 || !FileExists(session_.ChosenFile()))
            services_.prompter.Message(
                "Tavi Sudoku",
                "The " + std::string(LevelName(position().ChosenLevel)) + " level has no puzzles.");
        return;
    }
    session_.NextPuzzle();
    LoadPuzzle(true);
}

void Game::CommandOpen() {
    const ChangeScope scope(*this);
    if (busy_) return;  // a search is running
    ResetHintStage();
    if (!LeaveBoard()) return;
    const int level = position().ChosenLevel;
    const long count = session_.ChosenCount();
    if (count < 1) {
        services_.prompter.Beep();
        services_.prompter.Ask("Can't open sudoko",
                               "No " + std::string(LevelName(level)) + " sudokus found to open",
                               Buttons::Ok, Icon::Exclamation);
        return;
    }
    long number = 1;
    if (count > 1) {
        do {
            const auto answer = services_.prompter.Input(
                "Sudoku number", "Enter a value between 1 and " + std::to_string(count), "1");
            if (!answer || answer->empty()) return;
            number = LeadingNumber(*answer);
        } while (number < 1 || number > count);
    }
    session_.position().PuzzleNumber[level] = int(number);
    LoadPuzzle(true);
}

bool Game::LoadPuzzle(bool askToGoOn) {
    LibraryPosition& position_ = session_.position();
    const SudokuRecord& sudoku_ = session_.sudoku();
    // Read before anything changes: a record that can't be read leaves the game,
    // its board, clock and commands as they were.
    if (!session_.ReadChosen()) return false;
    position_.SudokuSolved = false;
    position_.SudokuAutosolved = false;
    ClearGrid();
    session_.Closed();
    clock_.SetSeconds(0);  // a new game starts its own clock; a resumed one reads it
    EnableGrid();
    moves_.Clear();
    longGameSaid_ = longGameDue_ = false;
    puzzleGone_ = false;
    ctx_.board.Puzzle = sudoku_.Puzzle;
    ctx_.board.Solution = sudoku_.Solution;
    sudTekst_ = FormatDigits(sudoku_.Puzzle, '0');

    bool goOn = session_.HasProgress();
    if (goOn && askToGoOn)
        goOn = services_.prompter.Ask("Puzzle in progress",
                                      "Puzzle is already worked on. Carry on from its present "
                                      "state ?",
                                      Buttons::YesNo, Icon::Question) == Answer::Yes;
    if (goOn) {
        RestoreProgress();
    } else {
        for (int c = 0; c < 81; ++c) {
            ctx_.board.CurrentGrid[c] = sudoku_.Puzzle[c];
            if (sudoku_.Puzzle[c]) Zet(ctx_.board, sudoku_.Puzzle[c], c);
        }
        SetPlayingCommands(false);
    }
    AfterLoad();
    return true;
}

// The game as it was saved: digits, marks, the move log for undo, and the clock
// with the two clock options its sign carries.
void Game::RestoreProgress() {
    // A game that could not have been played on this puzzle (a log record of
    // another puzzle, or a damaged one) must not let Undo change the givens.
    SudokuLogRecord logRecord_ = session_.logRecord();
    const SavedGameRepair repair = RepairSavedGame(sudoku(), logRecord_);
    if (repair.Any()) {
        const int level = position().ChosenLevel;
        services_.prompter.Message(kSavedGameRepairedTitle,
                                   SavedGameRepairedText(LogFileName(LevelStem(level)),
                                                         position().PuzzleNumber[level], repair));
    }
    moves_.Restore(logRecord_);
    ShowStepCount();
    for (int c = 0; c < 81; ++c) {
        const int d = logRecord_.Grid[c] <= 9 ? logRecord_.Grid[c] : 0;
        ctx_.board.CurrentGrid[c] = std::uint8_t(d);
        ctx_.board.Candidates[c] =
            d ? 0 : CandidateMask((logRecord_.SavedCandidates[c] >> 1) & kAllCandidates);
    }
    const SavedClock clock = ReadClock(logRecord_);
    options_.TimeOn = clock.TimeOn;
    options_.TimeShow = clock.TimeShow;
    clock_.SetSeconds(clock.seconds);
    SetPlayingCommands(true);
}

void Game::AfterLoad() {
    const LibraryPosition& position_ = session_.position();
    ResumePractice();
    if (PencilmarksOffAt(options_, position_.ChosenLevel) || !options_.Pencilmarks)
        SpecialPencilmarks();
    textHint_ = std::string(kPlayingHintText);
    clock_.Start();

    const int level = position_.ChosenLevel;
    const int number = position_.PuzzleNumber[level];
    caption_ =
        windowTitle_ + " - " + std::string(LevelName(level)) + " - " + std::to_string(number);
    caption_ += clock_.TimeToBeat(sudoku());
    if (options_.Wells) SetupWells();
    session_.Opened();
}

void Game::SpecialPencilmarks() {
    brushes_.ShowAll();
    for (int c = 0; c < 81; ++c)
        if (ctx_.board.CurrentGrid[c] == 0) ctx_.board.Candidates[c] = kAllCandidates;
}

void Game::SetPlayingCommands(bool progressRestored) {
    commands_.Open = commands_.Save = commands_.Print = commands_.Make = true;
    commands_.ResetCell = commands_.Hint = commands_.AutoSolve = commands_.Solution = true;
    commands_.New = true;
    commands_.Undo = progressRestored;
    commands_.Redo = false;
}

bool Game::OpenLastSudoku() {
    LibraryPosition& position_ = session_.position();
    const SudokuRecord& sudoku_ = session_.sudoku();
    if (!session_.ReadLast()) return false;
    position_.SudokuSolved = false;
    position_.SudokuAutosolved = false;
    ClearGrid();
    EnableGrid();
    longGameSaid_ = longGameDue_ = false;
    puzzleGone_ = false;
    ctx_.board.Puzzle = sudoku_.Puzzle;
    ctx_.board.Solution = sudoku_.Solution;
    sudTekst_ = FormatDigits(sudoku_.Puzzle, '0');
    RestoreProgress();
    AfterLoad();
    return true;
}

void Game::CommandSave() {
    const ChangeScope scope(*this);
    if (busy_) return;  // a search is running
    SaveGame();
}

bool Game::SaveGame() {
    // A waiting "Show Me" is not kept in the file.
    ResetHintStage();
    const LibraryPosition& position_ = session_.position();
    Prompter& say = services_.prompter;
    if (position_.SudokuSolved && !position_.SudokuAutosolved) {
        say.Message("Sudoku solved", "Sudoku already solved, you can only save unsolved sudokus !");
        return false;
    }
    if (moves_.CurrentStep() == 0) {
        say.Message("Sudoku not in progress",
                    "You cannot save a sudoku that hasn't been changed since it was opened !");
        return false;
    }
    if (position_.SudokuAutosolved) {
        say.Message("Sudoku Autosolved",
                    "Autosolve function is invoked at the current sudoku, therefore you cannot "
                    "save this sudoku !");
        return false;
    }
    if (position_.OpenLevel == 0 || position_.OpenRecord == 0) return false;
    // Never a game onto another puzzle: the record must still hold this one.
    if (!session_.FindOpenPuzzle()) {
        puzzleGone_ = true;
        say.Message(kPuzzleGoneTitle,
                    "The puzzle of this game is no longer in the " +
                        std::string(LevelName(position_.OpenLevel)) +
                        " library (it was changed while the game was open). The game was not "
                        "saved, so that no other puzzle gets its digits; it is kept in the "
                        "recovery copy and offered again at the next start.");
        return false;
    }
    puzzleGone_ = false;
    session_.SavePosition(moves_.CurrentStep());

    // A record holds the latest 100 steps of a longer game; its board, marks and
    // clock are kept whole.
    SudokuLogRecord record = session_.logRecord();
    moves_.WriteTo(record);
    for (int c = 0; c < 81; ++c) {
        record.Grid[c] = ctx_.board.CurrentGrid[c];
        record.SavedCandidates[c] =
            record.Grid[c] ? 0 : std::int16_t(ctx_.board.Candidates[c] << 1);
    }
    clock_.WriteTo(record);
    return session_.SaveGame(record);
}

void Game::CommandSolution() {
    const ChangeScope scope(*this);
    if (busy_) return;  // a search is running
    // One slip would end the game and its best time: a game in play asks first.
    if (!position().SudokuSolved && !makeMode_ &&
        services_.prompter.Ask(kSolutionQuestionTitle, kSolutionQuestion, Buttons::YesNo,
                               Icon::Question) != Answer::Yes)
        return;
    clock_.Stop();
    Speel(kSoundSolution);
    ResetHintStage();
    WisKleuren();
    for (int c = 0; c < 81; ++c) {
        ctx_.board.Candidates[c] = 0;
        ctx_.board.CurrentGrid[c] = sudoku().Solution[c];
    }
    if (options_.Wells) SetupWells();
    // As the end of a game, without the applause and the best time.
    CloseGameRecord();
    textHint_ = std::string(kSolutionText);
    commands_.Save = commands_.Undo = commands_.Redo = commands_.ResetCell = false;
    commands_.Hint = commands_.AutoSolve = commands_.Solution = false;
}

void Game::OpenPage(const std::string& page) {
    if (!services_.pages || !services_.pages->BrowserFound()) {
        services_.prompter.Ask("Browser Not Found", "Could not find associated Browser",
                               Buttons::Ok, Icon::Exclamation);
        return;
    }
    if (!services_.pages->Open(page))
        services_.prompter.Ask("URL Failed", "Web Page not Opened", Buttons::Ok, Icon::Exclamation);
}

void Game::CommandHelp() {
    OpenPage((session_.folders().AppFolder / "help" / "index.html").string());
}

void Game::WebSiteClick() {
    OpenPage((session_.folders().AppFolder / "help" / "index.html").string() + "#about");
}

}  // namespace tavi
