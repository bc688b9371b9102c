// SPDX-License-Identifier: GPL-3.0-or-later
// The file workbench, FormCheck, without a widget: one library open at a time on
// a private board of its own, so that a run never touches the game. It steps
// through the puzzles, solves one, a range or the whole file by logic (rerating:
// a puzzle whose level differs moves to the library of its level) or by brute
// force, deletes records and removes duplicates. The window shows this state and
// forwards the person's clicks; tests script the answers.
#pragma once

#include <array>
#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "grid/levels.h"
#include "library/records.h"
#include "platform/changes.h"
#include "platform/notifier.h"
#include "settings/technique_order.h"
#include "solver/solve_context.h"
#include "workbench/check_report.h"
#include "workbench/import.h"

namespace tavi {

class MoveJournal;

// Which commands answer.
struct WorkbenchCommands {
    bool Solve = false, CheckAll = false, CheckSome = false, Delete = false;
    bool GoTo = false, RemoveDuplicates = false;
    bool First = false, Previous = false, Next = false, Last = false;

    bool operator==(const WorkbenchCommands&) const = default;
};

// The progress frame of a run: Picture1 with its labels and two bars.
struct WorkbenchProgress {
    bool Shown = false;                  // Picture1
    std::string Label4, Label5, Label6;  // what runs, and on which file
    std::string LabelImportProgress;     // "Checking Sudoku : 3 of 10 from Easy sudokus"
    std::string LabelSolvingLevel;       // the ladder's level and the rung it tries
    long Bar1 = 0, Bar1Max = 0;          // ProgressBar1: the puzzles of the run
    int Bar2 = 0;                        // ProgressBar2: SolvingLevel

    bool operator==(const WorkbenchProgress&) const = default;
};

// The parts of the workbench's window that a routine changed.
enum WorkbenchChange : unsigned {
    kWorkbenchTitle = 1u << 0,     // the caption
    kWorkbenchCommands = 1u << 1,  // which commands answer, the library open, its count, a run
    kWorkbenchRecord = 1u << 2,    // the number shown, the puzzle and its solution (or the
                                   // solver's board)
    kWorkbenchProgress = 1u << 3,  // the progress frame
    kWorkbenchReport = 1u << 4,    // the table of hardest techniques, why a record can't be read
};

// The window's listener, called at the end of each of the workbench's routines
// that changed something, and during a run each time it breathes.
using WorkbenchEvents = std::function<void(Changes)>;

// How many puzzles needed each technique as their hardest, in a check run.
using HardestCounts = std::array<long, kTechniqueCount>;

// Record numbers of one kind in a run: how many, and the first 20.
struct NumberList {
    static constexpr std::size_t kNamed = 20;
    long count = 0;
    std::vector<long> first;
    void Note(long number) {
        if (++count <= long(kNamed)) first.push_back(number);
    }
    // "4, 9 and 12", then "and 3 more" past the first 20.
    std::string Text() const;
};

// The report's part on puzzles with no solution or several, "" when there are
// none: they are not rated and stay where they are.
std::string NotUniqueText(const NumberList& none, const NumberList& several);

class Workbench {
  public:
    Workbench(Prompter& prompter, std::filesystem::path dataFolder);

    // The order of the rungs from 8 on (the user's TechniqueOrder); default when null.
    void SetOrder(const TechniqueOrder* order) { order_ = order; }
    // Called while a run lets the window breathe (events, repaint, Abort).
    void SetYield(std::function<void()> yield) { yield_ = std::move(yield); }
    // The window's listener: told what changed, compared with what it showed.
    void SetEvents(WorkbenchEvents events) { events_ = std::move(events); }
    // How many threads rate the puzzles of Check All, Check Some and Import; the
    // results are the same for any number.
    void SetThreads(int threads) { threads_ = std::max(1, threads); }
    int Threads() const { return threads_; }
    // During a run the window is told of changes and breathes at most this often
    // (zero: after every puzzle); the last puzzle done is shown, the counters true.
    void SetRedrawEvery(std::chrono::milliseconds every) { redrawEvery_ = every; }
    // Shows the report of an import in place of the plain message (the window's
    // report can save the full list of lines).
    void SetImportReport(std::function<void(const ImportReport&)> show) {
        importReport_ = std::move(show);
    }

    // --- The commands ---------------------------------------------------------
    void Command1(int level);  // a library by level; asks for the number to show
    void CommandFirst();
    void CommandPrevious();
    void CommandNext();
    void CommandLast();
    void CommandGoTo();
    // Left: by logic, rerating the puzzle. Right (released inside the button):
    // by brute force, writing a unique solution back.
    void CommandSolve(bool right = false, bool inside = true);
    void CommandCheckAll(bool right = false, bool inside = true);
    void CommandCheckSome(bool right = false, bool inside = true);
    void CommandDelete();
    void CommandAbort();
    void CommandRemoveDuplicates();
    // Imports the puzzles of a foreign file (workbench/import.h), with the
    // progress frame, and reports where they went and what was refused.
    void CommandImport(const std::filesystem::path& file);
    // Writes records `from` to `to` of the open library to a text file
    // (workbench/export.h) and says how many.
    void CommandExport(const std::filesystem::path& file, long from, long to);

    // --- State for the window ---------------------------------------------------
    int WorkLevel() const { return workLevel_; }
    long CurrentNumber(int level) const { return currentNumber_[level]; }
    long RecordCount() const { return recordCount_; }
    const Board& board() const { return ctx_.board; }
    const SudokuRecord& record() const { return record_; }
    // Label1: the puzzle; Label2: its solution, or the solver's board during a run
    // ("0" in an empty cell). Empty text for an empty cell.
    std::string Label1(int cell) const;
    std::string Label2(int cell) const;
    const std::string& Caption() const { return caption_; }
    const WorkbenchCommands& commands() const { return commands_; }
    const WorkbenchProgress& progress() const { return progress_; }
    bool BatchRunning() const { return batchRunning_; }
    // The last check run's count of hardest techniques, and of records that could
    // not be read.
    const HardestCounts& Hardest() const { return hardest_; }
    long Unreadable() const { return unreadable_; }
    // The last check run's puzzles with no solution or several: not rated, left
    // where they stand.
    long NotUnique() const { return notUnique_; }
    // The shown record when it could not be read ("Record 5 of Sudoku_Easy.sds is
    // damaged: ..."), else empty. Such a record is never solved, moved or written.
    const std::string& Damaged() const { return damaged_; }
    // The file errors reported since the workbench was made.
    long FileErrors() const { return fileErrors_; }

  private:
    struct RunCounters {
        long moved = 0, outlaw = 0, unchanged = 0;
        long unmoved = 0;                     // rated for another level, but the move failed
        std::vector<std::string> unreadable;  // the first of the records that don't read
        NumberList none, several;             // no solution, several: not rated
    };

    // What the window shows, to tell what a routine changed.
    struct View {
        std::string caption;
        WorkbenchCommands commands;
        bool running = false, solverBoard = false;
        int level = 0;
        long count = 0, number = 0;
        Digits puzzle{}, second{};
        WorkbenchProgress progress;
        HardestCounts hardest{};
        std::string damaged;
    };
    // Opened at the start of each public routine: the outermost one tells the
    // window what changed when it ends.
    using ChangeScope = tavi::ChangeScope<Workbench>;
    friend ChangeScope;
    View Look() const;
    // Tells the window what changed since the last look.
    void Announce();
    void ScopeEnded() { Announce(); }

    bool OpenSudoku();
    // Record `n` of the open library; a record that can't be read leaves both
    // empty and says why in `damaged`.
    bool ReadAt(long n, SudokuRecord& record, SudokuLogRecord& log, std::string& damaged) const;
    void SetNavigation();
    void DisableAll();
    // Tells the window what the run shows so far, and lets it breathe.
    void Breathe();
    // Breathes when the last redraw of the run is `redrawEvery_` old.
    void BreatheWhenDue();
    std::optional<long> AskNumber(const std::string& title, const std::string& prompt, long low,
                                  long high, const std::string& defaultText);
    // The logic on the open record, with the beep and the message of a filled
    // board: true when solved; SolvingLevel then the rating.
    bool SolveOpen();
    // The solution a record keeps: the board's when solved, else the one puzzle's
    // own solution when it has exactly one (the record's as it stood otherwise).
    void TakeSolution(bool solved);
    // Appends the open record to the library of `level`, through the run's journal.
    bool MoveTo(MoveJournal& journal, int level);
    // Takes the journal's moved records out of the open library.
    bool FinishMoves(MoveJournal& journal);
    // After the open library was rewritten: the count, and a record that still
    // exists, or the commands disabled when none is left.
    void ShowAfterRewrite();
    // Rewrites the open library without the records `drop` names; then shows a
    // record that still exists, or disables the commands when none is left.
    bool Compact(const std::vector<bool>& drop);
    bool WriteInPlace();
    void CheckRange(long from, long to, bool brute);
    void CheckByLogic(long from, long to, RunCounters& count, long& total);
    // A box at once, or during a run a line of its report (RunErrorsText).
    void ReportFileError(const std::string& why);
    std::string RunErrorsText() const;

    Prompter& prompter_;
    std::filesystem::path dataFolder_;
    const TechniqueOrder* order_ = nullptr;
    std::function<void()> yield_;
    WorkbenchEvents events_;
    View seen_;
    int scopes_ = 0;  // public routines running, one inside the other
    std::function<void(const ImportReport&)> importReport_;
    int threads_ = 1;
    std::chrono::milliseconds redrawEvery_{50};
    std::chrono::steady_clock::time_point lastRedraw_{};

    SolveContext ctx_{Side::Workbench};
    SudokuRecord record_;
    SudokuLogRecord log_;
    int workLevel_ = 0;
    std::array<long, kLevelCount + 1> currentNumber_{};
    long recordCount_ = 0;
    bool showSolverBoard_ = false;
    std::string caption_ = "Sudoku Check";
    WorkbenchCommands commands_;
    WorkbenchProgress progress_;
    bool batchRunning_ = false;
    bool abortRequested_ = false;
    HardestCounts hardest_{};
    long unreadable_ = 0;
    long notUnique_ = 0;
    std::string damaged_;
    long fileErrors_ = 0;
    std::vector<std::string> runErrors_;  // the first of a run's file errors
    long runErrorCount_ = 0;
};

// How many damaged records a report names; the rest are counted.
inline constexpr std::size_t kNamedRecords = 10;

// "3 records could not be read and were left as they stand:" and the first of
// them by file, number and why, one a line, then "and N more."
std::string UnreadableText(const std::vector<std::string>& named, long count);

// "Easy sudokus" and its like.
std::string LevelPlural(int level);

}  // namespace tavi
