// SPDX-License-Identifier: GPL-3.0-or-later
// The game window's model: the board in play and its marks, the commands and
// what they may do, the texts the window shows, and the questions it asks. No
// widget lives here: the shell draws this state, forwards the person's clicks,
// and hears through GameEvents what a click changed; tests script the answers
// through the platform interfaces.
//
// Game composes the parts a test can also drive alone: the move log with undo
// and redo (MoveLog), the clock (GameClock), the library session (LibrarySession),
// the brushes and paint (Brushes) and the hint flow (HintFlow). Its routines are
// split by concern over game_*.cpp: start and exit, cell input, undo and redo,
// puzzles in and out, the clock and the wells, options, and hints.
#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "game/brushes.h"
#include "game/game_clock.h"
#include "game/game_events.h"
#include "game/hint_flow.h"
#include "game/library_session.h"
#include "game/move_log.h"
#include "game/practice.h"
#include "game/recovery_copy.h"
#include "hints/hint_paint.h"
#include "library/library_files.h"
#include "library/records.h"
#include "platform/platform.h"
#include "settings/options.h"
#include "settings/settings_store.h"
#include "solver/solve_context.h"

namespace tavi {

// Which commands answer, and the captions that change.
struct CommandStates {
    bool New = true, Open = true, Save = true, Print = true, Make = true;
    bool Undo = false, Redo = false, ResetCell = false, Hint = false, Scan = true;
    bool AutoSolve = false, Solution = false;
    std::string MakeCaption = "Make";
    std::string HintCaption = "Hint";
    std::string ScanCaption = "Scan";

    bool operator==(const CommandStates&) const = default;
};

// The game's platform: all are needed but the sound player and the page opener.
struct GameServices {
    Prompter& prompter;
    SettingsStore& store;
    TimeSource& clock;
    SoundPlayer* sounds = nullptr;
    PageOpener* pages = nullptr;
    // Lets the window breathe during a long search: repaint, and hear Stop.
    std::function<void()> yield = {};
};

inline constexpr std::string_view kStandingHintText =
    "Use the  left mousebutton to assign a candidate to a cell.";
inline constexpr std::string_view kPlayingHintText =
    "Press [Hint] if you get stuck !!! Minimize Window to pause. DoubleClick this window to pop "
    "up the small Hint Window.";
// The hint box after the board is full: a solved game, an autosolved one, the
// solution shown, and the end of a Scan.
inline constexpr std::string_view kSolvedText =
    "Sudoku solved !!! Press [New] for the next sudoku.";
inline constexpr std::string_view kAutosolvedText =
    "Sudoku autosolved. Press [New] for the next sudoku.";
inline constexpr std::string_view kSolutionText =
    "This is the solution. Press [New] for the next sudoku.";
inline constexpr std::string_view kSolutionQuestionTitle = "Show the solution";
inline constexpr std::string_view kSolutionQuestion =
    "Showing the solution ends the current sudoku, without a best time. Show the solution ?";
inline constexpr std::string_view kScanDoneText = "Scan completed.";
inline constexpr std::string_view kScanStoppedText = "Scan stopped.";
inline constexpr int kNoHover = 729;
inline constexpr std::string_view kSettingsProblemTitle = "Settings not read";
inline constexpr std::string_view kLongGameTitle = "Long game";
inline constexpr std::string_view kLongGameText =
    "This game has passed 100 steps. It is saved as always, board, marks and clock, but after "
    "it is opened again Undo reaches back over its last 100 steps only.";
inline constexpr int kNoLine = 9;  // SelectedRow and SelectedColumn when nothing is picked
inline constexpr Color kClueColor = 0x00800000;  // dark blue
inline constexpr Color kDimmedMarkColor = 0x00D0D010;

class Game : private MoveListener {
  public:
    Game(GameServices services, LibraryFolders folders, Options& options);
    Game(const Game&) = delete;  // the solver context points back at the game
    Game& operator=(const Game&) = delete;

    // The window's listener: told at the end of each routine what it changed.
    void SetEvents(GameEvents events) { events_ = std::move(events); }

    // --- The program's life -------------------------------------------------
    // The start-up, in its documented order. False when the program can't go on
    // (the first run could not make the log files); the message has been shown.
    bool Start();
    // The Exit button. True when the program ends.
    bool CommandExit();
    // The window's close box. True when the window may close.
    bool QueryUnload();
    // A level picked in the list; it takes effect at the next New or Open.
    void OptionType(int level);

    // --- Cell input ---------------------------------------------------------
    // A mouse button released on mark `digit` of `cell`; `inside` is whether the
    // release was over the same mark (a click counts only then).
    void MarkMouseUp(int digit, int cell, MouseButton button, bool inside);
    void MarkMouseMove(int digit, int cell);  // hover highlight (option Dimmed)
    void GridMouseMove();                     // over a big digit or the window: hover ends
    void GridMouseUp(int cell, MouseButton button, bool inside);  // paints with a cell brush
    void RowHeaderUp(int row, MouseButton button, bool inside);
    void ColumnHeaderUp(int column, MouseButton button, bool inside);
    void DigitButtonUp(int digit, MouseButton button, bool inside);  // Command1: digit filter
    void PaletteUp(int index, MouseButton button, bool inside);      // LabelColor
    void CommandResetCell();
    // Shows the marks of `digit` again over the whole board (filter "On").
    void ToonPencilmarks(int digit);
    // All painted colours off.
    void WisKleuren();

    // --- Undo and redo ------------------------------------------------------
    void CommandUndo();
    void CommandRedo();

    // --- Puzzles in and out -------------------------------------------------
    void CommandNew();
    void CommandOpen();
    void CommandSave();
    void CommandSolution();
    void CommandHelp();
    void WebSiteClick();

    // --- Own puzzles ---------------------------------------------------------
    // CommandMake: with the caption "Make" the board is cleared for the clues of
    // a puzzle of the user's own; with "Validate" the entry is checked, rated and
    // added to the library of the level it reached.
    void CommandMake();
    // The puzzle line's text as the user typed or pasted it. While making, a
    // text of more than 80 characters enters its first 81 as clues.
    void SudTekstChange(const std::string& text);
    // Files dropped on the puzzle line while making: one .txt file, whose first
    // 81 characters are entered as clues.
    void SudTekstDrop(const std::vector<std::filesystem::path>& files);

    // --- Hint, Autosolve and Scan -------------------------------------------
    // The next logical step, shown and not taken; its price goes on the clock.
    void CommandHint();
    // Applies the techniques until the board is solved, a halt is reached or
    // nothing is found.
    void CommandAutoSolve();
    // Autosolve over a range of the open library file; "Stop" ends it.
    void CommandScan();
    // The last hint found by a technique, for the hint window.
    const HintRecord& LastHint() const { return hints_.LastHint(); }
    // The hint window's caption: "Hint - " and the technique's name, or "Main
    // Duplicate" when the board shows something else than a technique's hint.
    const std::string& HintWindowCaption() const { return hints_.WindowCaption(); }
    // Counts the hint windows the model asked for (a hint shown with the option on).
    int HintWindowShows() const { return hints_.WindowShows(); }
    // Counts the boards laid out (a game loaded, Make and its end): a copy of an
    // earlier one is of another game.
    int Generation() const { return generation_; }
    // A search is running: the window takes no other command meanwhile.
    bool Busy() const { return busy_; }
    // Lays `position` on the board in play (its clues, solution, digits and
    // marks), as a test or a picture sets up a position to take a hint from; the
    // wells follow. The move log stays as it is.
    void LayPosition(const Board& position);
    // Colours of a hint on the board.
    void ApplyPaints(const std::vector<HintPaint>& paints);
    // After the colours window: the hint on the board takes the new hint colours.
    void ColoursChanged();

    // --- Practice (game_practice.cpp) -------------------------------------------
    // Opens record `record` of `level` as a normal game of that level, and marks
    // the first hint of `technique`. False when the puzzle could not be opened.
    bool StartPractice(int level, long record, int technique);
    // Adds a generated puzzle at the end of its level's library and practises it.
    bool StartPractice(const FoundPuzzle& found, int technique);
    int PractisedTechnique() const { return practice_.Technique(); }
    // After a load: the practice goes on when the puzzle is the one practised last.
    void ResumePractice();

    // --- Options --------------------------------------------------------------
    // After the options window closed: what changed from `before` takes effect
    // on the board (marks, filters, wells) or is announced (the clock).
    void CommandOptions(const Options& before);
    // Whether sounds can be played at all; the options window disables its box
    // when not.
    bool SoundAvailable() const { return services_.sounds && services_.sounds->Available(); }

    // --- Clock and wells ----------------------------------------------------
    // Puts `seconds` on the running clock at once (a hint's price).
    void Penalty(int seconds);
    void Tick();             // the timer
    void WindowMinimised();  // pause
    void WindowRestored();   // go on
    void SetupWells();

    // --- The parts ------------------------------------------------------------
    const tavi::MoveLog& moves() const { return moves_; }
    const GameClock& clock() const { return clock_; }
    const LibrarySession& session() const { return session_; }
    const Brushes& brushes() const { return brushes_; }
    const HintFlow& hints() const { return hints_; }

    // --- State for the window -----------------------------------------------
    const Board& board() const { return ctx_.board; }
    const Options& options() const { return options_; }
    const LibraryPosition& position() const { return session_.position(); }
    const SudokuRecord& sudoku() const { return session_.sudoku(); }
    const CommandStates& commands() const { return commands_; }
    const BrushState& brush() const { return brushes_.brush(); }
    bool FilterOn(int digit) const { return brushes_.FilterOn(digit); }
    bool MarkVisible(int digit, int cell) const { return ctx_.board.Has(digit, cell); }
    bool IsClue(int cell) const { return sudoku().Puzzle[cell] != 0; }
    // With pencil marks off in the first three levels the marks stay clickable
    // but show no digit.
    bool MarkCaptionsShown() const {
        return !(position().ChosenLevel < 4 && options_.PencilmarksOff);
    }
    // Whether mark `digit` of `cell` shows its digit: always with pencil marks,
    // and without them only the mark a hint has painted (Show Me).
    bool MarkCaptionShown(int digit, int cell) const {
        return MarkCaptionsShown() || MarkPaint(digit, cell).has_value();
    }
    std::optional<Color> CellPaint(int cell) const { return brushes_.CellPaint(cell); }
    std::optional<Color> MarkPaint(int digit, int cell) const {
        return brushes_.MarkPaint(digit, cell);
    }
    bool MarkDimmed(int digit, int cell) const {
        return options_.Dimmed && hoverCell_ != (digit - 1) * 81 + cell;
    }
    bool GridEnabled() const { return gridEnabled_; }
    const std::string& TextHint() const { return textHint_; }
    const std::string& LabelStap() const { return labelStap_; }
    const std::string& LabelTijd() const { return clock_.Label(); }
    const std::string& Caption() const { return caption_; }
    const std::string& SudTekst() const { return sudTekst_; }
    int CurrentStep() const { return moves_.CurrentStep(); }
    int LastStep() const { return moves_.LastStep(); }
    const std::vector<MoveStep>& MoveLog() const { return moves_.Steps(); }
    int ClockSeconds() const { return clock_.Seconds(); }
    bool TimerRunning() const { return clock_.Running(); }
    // Wells: for each digit 1..9 and each box 0..8, whether the box holds it.
    bool WellFilled(int digit, int box) const { return wells_[digit][box]; }
    bool WellsVisible() const { return options_.Wells; }
    bool DigitCompleted(int digit) const;

    // The mark under the pointer, (digit - 1) * 81 + cell, or kNoHover.
    int HoverCell() const { return hoverCell_; }
    // The row and the column picked with the headers, or kNoLine.
    int SelectedRow() const { return selectedRow_; }
    int SelectedColumn() const { return selectedColumn_; }
    // The user is entering a puzzle of their own (between Make and Validate's end).
    bool MakeMode() const { return makeMode_; }
    // The program's title that the captions are made from; empty after a resumed start.
    const std::string& WindowTitle() const { return windowTitle_; }

    // Plays a sound of the table when sounds are on; -1 plays nothing.
    void Speel(int id);
    // The end of a game: best time, erase question, "Busy", commands off.
    void ZetOpgelost();
    // The common end of a game and of Solution: erase the progress (or ask),
    // keep "Busy" for a game still in progress on disk, write the position.
    void CloseGameRecord();

  private:
    // What the window shows, to tell what a routine changed.
    struct View {
        Digits grid{};
        std::array<CandidateMask, 81> marks{};
        int row = 0, column = 0, hover = 0, level = 0, hintShows = 0, generation = 0;
        bool enabled = false, captions = false, wellsShown = false;
        Brushes paint;
        CommandStates commands;
        std::string textHint, labelStap, sudTekst, clock, caption;
        std::array<std::array<bool, 9>, 10> wells{};
    };
    // Opened at the start of each public routine: the outermost one tells the
    // window what changed when it ends.
    using ChangeScope = tavi::ChangeScope<Game>;
    friend ChangeScope;
    View Look() const;
    // Tells the window what changed since the last look.
    void Announce();
    // The end of the outermost routine: the window is told, then a long game is
    // told that a reload keeps its last 100 steps.
    void ScopeEnded();

    // MoveListener: the solver's placements and removals become steps.
    void ZetAuto(Board& board, int digit, int cell) override;
    void CandidateRemoved(int digit, int cell) override;

    // A new step at `cell`: the redo tail goes, Undo opens, Redo closes.
    MoveStep& BeginStep(int cell);
    void ShowStepCount();
    bool BoardSolved() const;
    void EndTest();

    void ClearGrid();
    void ClearSudokuData();
    void EnableGrid() { gridEnabled_ = true; }
    void DisableGrid() { gridEnabled_ = false; }
    void ResetHintStage();
    void SetPlayingCommands(bool progressRestored);

    // Puzzles.
    // Leaves the game on the board: saves or asks, as the options say.
    // False when the player chose to stay with a game that could not be saved.
    bool LeaveBoard();
    // Lays record PuzzleNumber(level) of the chosen level on the board. False when
    // it can't be read: the message has been shown and the game is as it was.
    bool LoadPuzzle(bool askToGoOn);
    bool OpenLastSudoku();
    void RestoreProgress();
    void AfterLoad();
    // The marks for play without pencil marks: every digit a click target again.
    void SpecialPencilmarks();
    // The candidates as the automatic marks have them: all digits but those the
    // peers hold.
    void RebuildMarks();
    // Takes away the marks of the digits the peers hold; the others stay as
    // they are.
    void PruneMarks();
    // The recovery copy: whether a game with steps is on the board, that game as
    // copied, the copy kept up to date (from Announce), removed at a normal end,
    // and offered back at start; true when a game was restored.
    bool GameOnBoard() const;
    RecoveryCopy CopyOfGame() const;
    void KeepRecoveryCopy();
    void EndRecoveryCopy();
    bool OfferRecoveryCopy();
    void RestoreCopy(const RecoveryCopy& copy);
    // Save's work; false when nothing was written. A game whose puzzle has left
    // its library is said once and kept in the recovery copy.
    bool SaveGame();
    // Says so when the settings could not be read, or some of their values.
    void ReportSettingsProblems();
    // Saves the position keys and the options: every way out ends here.
    void WriteSettingsOnExit();
    void OpenPage(const std::string& page);

    // Own puzzles.
    void StartMaking();
    void Validate();
    // Clues from a text of 81 characters: each digit 1 to 9 placed as a step,
    // unless its cell holds it already; the 81 characters read come back. A
    // text that can't be clues enters nothing and says so under `title`.
    std::optional<std::string> EnterClues(std::string_view text, std::string_view title);
    // The board back to the clues entered, with all marks they leave.
    void RestoreClues();
    // Adds the validated puzzle to `level`'s pair; false after a message when the
    // write failed.
    bool StoreMade(int level);
    // The end of making, stored or not: the board empty and off.
    void EndMaking();

    // Hint.
    bool HiddenMarksShownFor(std::string_view question);
    // The checks before the techniques: wrong digits, lost candidates, digits
    // still marked. True when one of them spoke (and, for Hint, took its price).
    bool ReportWrongNumber(bool penalty);
    bool ReportLostCandidate(bool penalty);
    bool ReportStillMarked(bool penalty);
    bool ReportCell(const std::optional<CellReport>& report, bool penalty);
    void ShowTechniqueHint();
    // The hint just shown, of `kind` at `cell`, with the board and text it was
    // shown on; ForgetStaleHint takes it off once a change made it false.
    void ShowingHint(HintTruth::Kind kind, int cell);
    void ForgetStaleHint();
    // A Sue-de-Coq found for a hint is shown at once, and the player is asked
    // whether they can spot it; true for OK.
    bool SueDeCoqSpotted();
    void SpecialHint();
    // One Autosolve over the board; true when it stopped at a halt.
    bool AutoSolveBoard();
    void Breathe();

    GameServices services_;
    Options& options_;
    SolveContext ctx_{Side::Game};
    LibrarySession session_;
    tavi::MoveLog moves_;
    GameClock clock_;
    Brushes brushes_;
    HintFlow hints_;
    HintTruth truth_;     // what keeps the hint on the board true
    int generation_ = 0;  // counts the boards laid out: new games, Make, its end
    int hoverCell_ = kNoHover;
    int selectedRow_ = kNoLine;
    int selectedColumn_ = kNoLine;
    bool makeMode_ = false;
    std::string windowTitle_;
    PracticeMark practice_;
    CommandStates commands_;
    std::array<std::array<bool, 9>, 10> wells_{};
    bool gridEnabled_ = false;
    std::string textHint_{kStandingHintText};
    std::string labelStap_;
    std::string caption_;
    std::string sudTekst_;
    bool busy_ = false;
    bool scanning_ = false;  // a Scan runs: the command now stops it
    bool scanStop_ = false;
    GameEvents events_;
    View seen_;
    int scopes_ = 0;             // public routines running, one inside the other
    bool longGameSaid_ = false;  // this game has been told that a reload keeps 100 steps
    bool longGameDue_ = false;   // ... and is to be told when its routine ends
    std::optional<RecoveryCopy> copyWritten_;  // the recovery copy on disk, as written
    bool puzzleGone_ = false;                  // the game's puzzle is no longer in its level
    bool ending_ = false;                      // the program is ending normally: no more copies
    unsigned alsoChanged_ = 0;                 // changes no look can see (the options)
};

}  // namespace tavi
