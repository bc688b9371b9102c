// Puzzles in and out: New, Open, the resume at start, Save, Solution, and the
// pages that open in the browser. New, Open and the resume share one loading
// routine.
#include "game/display_text.h"
#include "game/game.h"
#include "grid/candidates.h"
#include "grid/levels.h"
#include "library/library_pair.h"

namespace tavi {

namespace {

constexpr std::string_view kInProgressTitle = "Sudoku in progress";

}  // namespace

void Game::LeaveBoard() {
    if (position_.SudokuAutosolved) ZetOpgelost();
    if (position_.SudokuSolved || position_.CurrentStep < 1) return;
    if (options_.AutoSave) {
        CommandSave();
    } else if (options_.AskSave) {
        Prompter& ask = services_.prompter;
        if (ask.Ask(kInProgressTitle, "Do you want to save the current sudoku ?", Buttons::YesNo,
                    Icon::Question) == Answer::Yes) {
            CommandSave();
        } else if (ask.Ask(kInProgressTitle,
                           "Do you want to erase the progress of the current sudoku ?",
                           Buttons::YesNo, Icon::Question) == Answer::Yes) {
            AutoWisProgress(folders_, position_, sudoku_, logRecord_);
        }
    }
}

void Game::CommandNew() {
    if (busy_) return;  // a search is running
    ResetHintStage();
    LeaveBoard();
    const int level = position_.ChosenLevel;
    const long count = CheckedPair(folders_.DataFolder, LevelStem(level), &services_.prompter);
    // File order, back to the first after the last.
    int& number = position_.PuzzleNumber[level];
    number = count > number ? number + 1 : 1;
    LoadPuzzle(true);
}

void Game::CommandOpen() {
    if (busy_) return;  // a search is running
    ResetHintStage();
    LeaveBoard();
    const int level = position_.ChosenLevel;
    const long count = CheckedPair(folders_.DataFolder, LevelStem(level), &services_.prompter);
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
    position_.PuzzleNumber[level] = int(number);
    LoadPuzzle(true);
}

bool Game::LoadPuzzle(bool askToGoOn) {
    const int level = position_.ChosenLevel;
    const int number = position_.PuzzleNumber[level];
    // Read before anything changes: a record that can't be read leaves the game,
    // its board, clock and commands as they were.
    SudokuRecord sudoku;
    SudokuLogRecord log;
    if (!ReadPair(folders_.DataFolder, LevelStem(level), number, sudoku, log, &services_.prompter))
        return false;
    sudoku_ = sudoku;
    logRecord_ = log;
    position_.SudokuSolved = false;
    position_.SudokuAutosolved = false;
    ClearGrid();
    position_.OpenLevel = 0;
    position_.OpenRecord = 0;
    clockSeconds_ = 0;  // a new game starts its own clock; a resumed one reads it
    EnableGrid();
    log_.clear();
    position_.CurrentStep = 0;
    ctx_.board.Puzzle = sudoku_.Puzzle;
    ctx_.board.Solution = sudoku_.Solution;
    sudTekst_ = FormatDigits(sudoku_.Puzzle, '0');

    bool goOn = false;
    for (int c = 0; c < 81 && !goOn; ++c)
        goOn = sudoku_.Puzzle[c] == 0 && logRecord_.Grid[c] > 0;
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
    const int steps = std::clamp<int>(logRecord_.StepCount, 0, kLogSteps);
    position_.CurrentStep = steps;
    log_.assign(steps, {});
    for (int i = 0; i < steps; ++i)
        log_[i] = {logRecord_.LogDigit[i],    logRecord_.LogCell[i],
                   logRecord_.LogOwnMarks[i], logRecord_.LogColumnMarks[i],
                   logRecord_.LogRowMarks[i], logRecord_.LogBoxMarks[i]};
    ShowStepCount();
    for (int c = 0; c < 81; ++c) {
        const int d = logRecord_.Grid[c] <= 9 ? logRecord_.Grid[c] : 0;  // checked on read
        ctx_.board.CurrentGrid[c] = std::uint8_t(d);
        ctx_.board.Candidates[c] =
            d ? 0 : CandidateMask((logRecord_.SavedCandidates[c] >> 1) & kAllCandidates);
    }
    const SavedClock clock = ReadClock(logRecord_);
    options_.TimeOn = clock.TimeOn;
    options_.TimeShow = clock.TimeShow;
    clockSeconds_ = clock.seconds;
    SetPlayingCommands(true);
}

void Game::AfterLoad() {
    if ((position_.ChosenLevel < 4 && options_.PencilmarksOff) || !options_.Pencilmarks)
        SpecialPencilmarks();
    textHint_ = std::string(kPlayingHintText);
    StartClock();

    const int level = position_.ChosenLevel;
    const int number = position_.PuzzleNumber[level];
    caption_ = WindowTitle + " - " + std::string(LevelName(level)) + " - " + std::to_string(number);
    if (options_.TimeOn && options_.TimeShow &&
        (sudoku_.BestMinutes >= 1 || sudoku_.BestSeconds >= 1))
        caption_ += " - Time to beat >> " + TwoDigits(sudoku_.BestMinutes) + ":" +
                    TwoDigits(sudoku_.BestSeconds);
    if (options_.Wells) SetupWells();
    position_.OpenLevel = level;
    position_.OpenRecord = number;
}

void Game::SpecialPencilmarks() {
    filterOn_.fill(true);
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
    const int level = position_.ChosenLevel;
    const int number = position_.PuzzleNumber[level];
    if (CheckedPair(folders_.DataFolder, LevelStem(level), &services_.prompter) <= 0) return false;
    SudokuRecord sudoku;
    SudokuLogRecord log;
    if (!ReadPair(folders_.DataFolder, LevelStem(level), number, sudoku, log, nullptr))
        return false;
    if (log.StepCount == 0) return false;
    sudoku_ = sudoku;
    logRecord_ = log;
    position_.SudokuSolved = false;
    position_.SudokuAutosolved = false;
    ClearGrid();
    EnableGrid();
    ctx_.board.Puzzle = sudoku_.Puzzle;
    ctx_.board.Solution = sudoku_.Solution;
    sudTekst_ = FormatDigits(sudoku_.Puzzle, '0');
    RestoreProgress();
    AfterLoad();
    return true;
}

void Game::CommandSave() {
    if (busy_) return;  // a search is running
    Prompter& say = services_.prompter;
    if (position_.SudokuSolved && !position_.SudokuAutosolved)
        return say.Message("Sudoku solved",
                           "Sudoku already solved, you can only save unsolved sudokus !");
    if (position_.CurrentStep == 0)
        return say.Message("Sudoku not in progress",
                           "You cannot save a sudoku that hasn't been changed since it was "
                           "opened !");
    if (position_.SudokuAutosolved)
        return say.Message("Sudoku Autosolved",
                           "Autosolve function is invoked at the current sudoku, therefore you "
                           "cannot save this sudoku !");
    if (position_.OpenLevel == 0 || position_.OpenRecord == 0) return;
    SaveLastSudoku(services_.store, position_);

    // A record holds 100 steps: a longer game is refused and the record on disk
    // keeps its former state.
    if (position_.CurrentStep > kLogSteps) return say.Message(kStepLimitTitle, kStepLimitText);
    SudokuLogRecord record = logRecord_;
    record.StepCount = std::int16_t(position_.CurrentStep);
    for (int i = 0; i < position_.CurrentStep; ++i) {
        const MoveStep& s = log_[i];
        record.LogDigit[i] = std::int16_t(s.LogDigit);
        record.LogCell[i] = std::int16_t(s.LogCell);
        record.LogOwnMarks[i] = std::int16_t(s.LogOwnMarks);
        record.LogColumnMarks[i] = std::int16_t(s.LogColumnMarks);
        record.LogRowMarks[i] = std::int16_t(s.LogRowMarks);
        record.LogBoxMarks[i] = std::int16_t(s.LogBoxMarks);
    }
    for (int c = 0; c < 81; ++c) {
        record.Grid[c] = ctx_.board.CurrentGrid[c];
        record.SavedCandidates[c] =
            record.Grid[c] ? 0 : std::int16_t(ctx_.board.Candidates[c] << 1);
    }
    Tick();
    SetClock(record, clockSeconds_, options_.TimeOn, options_.TimeShow);
    if (SaveGameLog(folders_, position_, record, &say)) logRecord_ = record;
}

void Game::CommandSolution() {
    if (busy_) return;  // a search is running
    timerRunning_ = false;
    Speel(kSoundSolution);
    HintStage = 0;
    WisKleuren();
    for (int c = 0; c < 81; ++c) {
        ctx_.board.Candidates[c] = 0;
        ctx_.board.CurrentGrid[c] = sudoku_.Solution[c];
    }
    if (options_.Wells) SetupWells();
    // As the end of a game, without the applause and the best time.
    CloseGameRecord();
    commands_.Save = commands_.Undo = commands_.Redo = commands_.ResetCell = false;
    commands_.Hint = commands_.AutoSolve = commands_.Solution = false;
}

void Game::OpenPage(const std::string& page) {
    if (!services_.pages) {
        services_.prompter.Ask("Browser Not Found", "Could not find associated Browser",
                               Buttons::Ok, Icon::Exclamation);
        return;
    }
    if (!services_.pages->Open(page))
        services_.prompter.Ask("URL Failed", "Web Page not Opened", Buttons::Ok, Icon::Exclamation);
}

void Game::CommandHelp() { OpenPage((folders_.AppFolder / "help" / "index.html").string()); }

void Game::WebSiteClick() {
    OpenPage((folders_.AppFolder / "help" / "index.html").string() + "#about");
}

}  // namespace tavi
