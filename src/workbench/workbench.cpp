// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/workbench.h"

#include "grid/candidates.h"
#include "library/library_files.h"
#include "library/library_pair.h"
#include "library/move_journal.h"
#include "library/pair_guard.h"
#include "library/pair_rewrite.h"
#include "library/record_checks.h"
#include "library/records.h"
#include "solver/brute_force.h"
#include "solver/ladder.h"
#include "solver/solutions.h"
#include "workbench/duplicates.h"
#include "workbench/import.h"
#include "workbench/rating_pool.h"

#include <deque>
#include <fstream>

namespace tavi {

namespace {

constexpr std::string_view kReportTitle = "Sudoku solve report";
constexpr std::string_view kScanTitle = "Sudoku scan report";
constexpr std::string_view kNoSolutionText =
    "This Sudoku has no solution: it is not rated and stays where it is.";
constexpr std::string_view kSeveralSolutionsText =
    "This Sudoku has more than one solution: it is not rated and stays where it is.";

}  // namespace

std::string LevelPlural(int level) { return std::string(LevelName(level)) + " sudokus"; }

Workbench::Workbench(Prompter& prompter, std::filesystem::path dataFolder)
    : prompter_(prompter), dataFolder_(std::move(dataFolder)) {}

Workbench::View Workbench::Look() const {
    View v;
    v.caption = caption_;
    v.commands = commands_;
    v.running = batchRunning_;
    v.solverBoard = showSolverBoard_;
    v.level = workLevel_;
    v.count = recordCount_;
    v.number = currentNumber_[workLevel_];
    v.puzzle = record_.Puzzle;
    v.second = showSolverBoard_ ? ctx_.board.CurrentGrid : record_.Solution;
    v.progress = progress_;
    v.hardest = hardest_;
    v.damaged = damaged_;
    return v;
}

void Workbench::Announce() {
    View now = Look();
    const View& was = seen_;
    Changes changes;
    if (now.caption != was.caption) changes |= kWorkbenchTitle;
    if (now.commands != was.commands || now.running != was.running || now.level != was.level ||
        now.count != was.count)
        changes |= kWorkbenchCommands;
    if (now.number != was.number || now.puzzle != was.puzzle || now.second != was.second ||
        now.solverBoard != was.solverBoard)
        changes |= kWorkbenchRecord;
    if (now.progress != was.progress) changes |= kWorkbenchProgress;
    if (now.hardest != was.hardest || now.damaged != was.damaged) changes |= kWorkbenchReport;
    seen_ = std::move(now);
    if (changes.Any() && events_) events_(changes);
}

void Workbench::Breathe() {
    lastRedraw_ = std::chrono::steady_clock::now();
    Announce();
    if (yield_) yield_();
}

void Workbench::BreatheWhenDue() {
    if (std::chrono::steady_clock::now() - lastRedraw_ >= redrawEvery_) Breathe();
}

std::string Workbench::Label1(int cell) const {
    const int d = record_.Puzzle[cell];
    return d ? std::string(1, char('0' + d)) : "";
}

std::string Workbench::Label2(int cell) const {
    if (showSolverBoard_) return std::string(1, char('0' + ctx_.board.CurrentGrid[cell]));
    const int d = record_.Solution[cell];
    return d ? std::string(1, char('0' + d)) : "";
}

std::optional<long> Workbench::AskNumber(const std::string& title, const std::string& prompt,
                                         long low, long high, const std::string& defaultText) {
    const auto answer = prompter_.Input(title, prompt, defaultText);
    if (!answer) return std::nullopt;
    const long n = LeadingNumber(*answer);
    if (n < low || n > high) return std::nullopt;
    return n;
}

void Workbench::ReportFileError(const std::string& why) {
    ++fileErrors_;
    // A run says its file errors once, in its report, not in a box per record.
    if (batchRunning_) {
        if (runErrors_.size() < kNamedRecords) runErrors_.push_back(why);
        ++runErrorCount_;
        return;
    }
    prompter_.Message(kFileErrorTitle, why.empty() ? std::string(kWriteErrorText) : why);
}

// --- Opening and stepping ---------------------------------------------------------

void Workbench::Command1(int level) {
    const ChangeScope scope(*this);
    if (batchRunning_ || !IsLevel(level)) return;
    const auto stem = LevelStem(level);
    std::string said;
    bool refused = false;
    OpenPair(dataFolder_, stem, &said, &refused);
    if (refused)
        ReportFileError(said);
    else if (!said.empty())
        prompter_.Message(kPairRepairedTitle, said);
    const auto sds = PuzzleFile(dataFolder_, stem);
    const long count = WholeRecords(sds, kSudokuRecordSize);
    if (count < 1) {
        prompter_.Message("Tavi Sudoku",
                          "No " + std::string(LevelName(level)) + " sudokus found to open");
        return;
    }
    const auto n = AskNumber("Sudoku number",
                             "Enter a value between 1 and " + std::to_string(count), 1, count, "1");
    if (!n) return;
    // The table of hardest techniques belongs to the level it was counted on.
    if (level != workLevel_) hardest_ = {};
    workLevel_ = level;
    currentNumber_[level] = *n;
    recordCount_ = count;
    commands_.GoTo = commands_.RemoveDuplicates = true;
    SetNavigation();
    OpenSudoku();
}

bool Workbench::ReadAt(long n, SudokuRecord& record, SudokuLogRecord& log,
                       std::string& damaged) const {
    const auto stem = LevelStem(workLevel_);
    // A record that can't be read shows what the fields hold: nothing. It is
    // never solved, moved or written: `damaged` says which record and why.
    record = SudokuRecord{};
    log = SudokuLogRecord{};
    damaged.clear();
    std::string why;
    bool read = ReadSudokuRecord(PuzzleFile(dataFolder_, stem), n, record, &why);
    if (read) read = ReadSudokuLogRecord(LogFile(dataFolder_, stem), n, log, &why);
    if (!read) {
        record = SudokuRecord{};
        log = SudokuLogRecord{};
        damaged = why.empty() ? "Record " + std::to_string(n) + " could not be read." : why;
    }
    return read;
}

bool Workbench::OpenSudoku() {
    const long n = currentNumber_[workLevel_];
    const bool read = ReadAt(n, record_, log_, damaged_);
    Board& b = ctx_.board;
    b = Board{};
    b.Puzzle = record_.Puzzle;
    b.Solution = record_.Solution;
    b.CurrentGrid = log_.Grid;
    showSolverBoard_ = false;
    commands_.Solve = commands_.CheckAll = commands_.CheckSome = commands_.Delete = true;
    caption_ = std::string(LevelName(workLevel_)) + " - " + std::to_string(n);
    return read;
}

void Workbench::SetNavigation() {
    const long n = currentNumber_[workLevel_];
    const bool more = recordCount_ > 1;
    commands_.First = commands_.Previous = more && n > 1;
    commands_.Next = commands_.Last = more && n < recordCount_;
}

void Workbench::DisableAll() {
    commands_ = WorkbenchCommands{};
    record_ = SudokuRecord{};
    log_ = SudokuLogRecord{};
    ctx_.board = Board{};
    showSolverBoard_ = false;
    caption_ = "Sudoku Check";
}

void Workbench::CommandFirst() {
    const ChangeScope scope(*this);
    if (batchRunning_ || recordCount_ < 1) return;
    currentNumber_[workLevel_] = 1;
    SetNavigation();
    OpenSudoku();
}

void Workbench::CommandPrevious() {
    const ChangeScope scope(*this);
    if (batchRunning_ || currentNumber_[workLevel_] <= 1) return;
    --currentNumber_[workLevel_];
    SetNavigation();
    OpenSudoku();
}

void Workbench::CommandNext() {
    const ChangeScope scope(*this);
    if (batchRunning_ || currentNumber_[workLevel_] >= recordCount_) return;
    ++currentNumber_[workLevel_];
    SetNavigation();
    OpenSudoku();
}

void Workbench::CommandLast() {
    const ChangeScope scope(*this);
    if (batchRunning_ || recordCount_ < 1) return;
    currentNumber_[workLevel_] = recordCount_;
    SetNavigation();
    OpenSudoku();
}

void Workbench::CommandGoTo() {
    const ChangeScope scope(*this);
    if (batchRunning_ || recordCount_ < 1) return;
    const auto n =
        AskNumber("Goto number", "Enter a value between 1 and " + std::to_string(recordCount_), 1,
                  recordCount_, std::to_string(currentNumber_[workLevel_]));
    if (!n) return;
    currentNumber_[workLevel_] = *n;
    SetNavigation();
    OpenSudoku();
}

// --- Solving ------------------------------------------------------------------------

bool Workbench::SolveOpen() {
    Board& b = ctx_.board;
    b.Puzzle = record_.Puzzle;
    SetupCandidates(b);
    WorkbenchRun run;
    run.order = order_;
    const Rung* hardest = nullptr;
    run.observer.hit = [&](const Rung& rung) {
        if (!hardest || rung.level > hardest->level ||
            (rung.level == hardest->level && RungIndex(rung) > RungIndex(*hardest)))
            hardest = &rung;
    };
    ModeScope mode(ctx_, ctx_.Mode().With(SolveMode::kBatchRunning, false));
    ctx_.yield = yield_;
    showSolverBoard_ = true;
    const SolveOutcome outcome = SolveSudoku(ctx_, run);
    // A filled board beeps and says its rating, even one that a rung other than
    // a single filled (the run then answers unsolved).
    if (outcome.full) {
        prompter_.Beep();
        if (outcome.level >= 1 && outcome.level < kOutlaw)
            prompter_.Message("Sudoku solved", SolvedMessage(outcome.level));
    }
    if (outcome.solved && hardest) ++hardest_[hardest->number];
    return outcome.solved;
}

void Workbench::TakeSolution(bool solved) {
    Board& b = ctx_.board;
    if (solved) {
        record_.Solution = b.CurrentGrid;
    } else {
        // A puzzle the logic could not finish keeps a real solution: its own when
        // it has exactly one, else what the record held.
        const SolutionCount solutions = Solutions(record_.Puzzle, 2);
        if (solutions.count == 1) record_.Solution = solutions.first;
    }
    b.Solution = record_.Solution;
    b.CurrentGrid = Digits{};
    showSolverBoard_ = false;
}

bool Workbench::MoveTo(MoveJournal& journal, int level) {
    long number = 0;
    std::string why;
    if (!journal.Move(currentNumber_[workLevel_], LevelStem(level), record_, log_, &number, &why)) {
        ReportFileError(why);
        return false;
    }
    currentNumber_[level] = number;
    return true;
}

bool Workbench::FinishMoves(MoveJournal& journal) {
    if (journal.Moved().empty()) return true;
    std::string why;
    const bool ok = journal.Finish(&why);
    if (!ok) ReportFileError(why);
    ShowAfterRewrite();
    return ok;
}

bool Workbench::WriteInPlace() {
    std::string why;
    if (WritePair(dataFolder_, LevelStem(workLevel_), currentNumber_[workLevel_], record_, log_,
                  &why))
        return true;
    ReportFileError(why);
    return false;
}

bool Workbench::Compact(const std::vector<bool>& drop) {
    std::string why;
    const bool ok = KeepInPair(
        dataFolder_, LevelStem(workLevel_),
        [&](long n) { return n > long(drop.size()) || !drop[size_t(n - 1)]; }, &why);
    if (!ok) ReportFileError(why);
    ShowAfterRewrite();
    return ok;
}

void Workbench::ShowAfterRewrite() {
    recordCount_ = WholeRecords(PuzzleFile(dataFolder_, LevelStem(workLevel_)), kSudokuRecordSize);
    if (recordCount_ < 1) {
        DisableAll();
        return;
    }
    if (currentNumber_[workLevel_] > recordCount_) currentNumber_[workLevel_] = recordCount_;
    SetNavigation();
    OpenSudoku();
}

void Workbench::CommandSolve(bool right, bool inside) {
    const ChangeScope scope(*this);
    if (batchRunning_ || !commands_.Solve) return;
    if (right && !inside) return;
    if (!damaged_.empty()) {
        prompter_.Message(kFileErrorTitle,
                          damaged_ + " It is not solved, moved or written until it is put right.");
        return;
    }
    if (right) {
        Board& b = ctx_.board;
        b.Puzzle = record_.Puzzle;
        bool contradiction = false;
        const int found = BruteForceSolutions(ctx_, contradiction);
        if (found == 0) {
            prompter_.Message("Invalid Sudoku", "This Sudoku has no solution");
        } else if (found > 1) {
            prompter_.Message("Invalid Sudoku", "This Sudoku has more than one solution");
        } else {
            prompter_.Message("Valid Sudoku", "This Sudoku has one unique solution");
            if (!WriteBruteForceSolution(dataFolder_, workLevel_, currentNumber_[workLevel_], b,
                                         record_, log_, &prompter_))
                return;
            showSolverBoard_ = false;
        }
        return;
    }

    // No solution, or several: no rating would mean anything, so it stays.
    if (const int solutions = Solutions(record_.Puzzle, 2).count; solutions != 1) {
        prompter_.Message(kReportTitle, solutions == 0 ? kNoSolutionText : kSeveralSolutionsText);
        return;
    }
    const bool solved = SolveOpen();
    const int rating = solved ? ctx_.SolvingLevel : kOutlaw;
    if (!solved && workLevel_ == kOutlaw) {
        showSolverBoard_ = false;
        prompter_.Message(kReportTitle, "This Sudoku could not be solved by the program!");
        return;
    }
    TakeSolution(solved);
    if (rating == workLevel_) {
        WriteInPlace();
    } else {
        MoveJournal journal(dataFolder_, LevelStem(workLevel_));
        if (MoveTo(journal, rating)) FinishMoves(journal);
    }
    if (!solved)
        prompter_.Message(kReportTitle,
                          "This Sudoku could not be solved by the program and is rated as Outlaw!");
}

void Workbench::CommandCheckAll(bool right, bool inside) {
    const ChangeScope scope(*this);
    if (batchRunning_ || !commands_.CheckAll || (right && !inside)) return;
    CheckRange(1, recordCount_, right);
}

void Workbench::CommandCheckSome(bool right, bool inside) {
    const ChangeScope scope(*this);
    if (batchRunning_ || !commands_.CheckSome || (right && !inside)) return;
    const std::string between = "Enter a value between ";
    const auto from =
        AskNumber("Check 'from' number", between + "1 and " + std::to_string(recordCount_), 1,
                  recordCount_, "1");
    if (!from) return;
    const auto to =
        AskNumber("Check 'to' number",
                  between + std::to_string(*from) + " and " + std::to_string(recordCount_), *from,
                  recordCount_, std::to_string(recordCount_));
    if (!to) return;
    CheckRange(*from, *to, right);
}

void Workbench::CommandAbort() {
    const ChangeScope scope(*this);
    if (batchRunning_) abortRequested_ = true;
}

void Workbench::CheckRange(long from, long to, bool brute) {
    if (from < 1 || to < from) return;
    const std::string plural = LevelPlural(workLevel_);
    RunCounters count;
    hardest_ = {};
    unreadable_ = 0;
    notUnique_ = 0;
    runErrors_.clear();
    runErrorCount_ = 0;
    progress_ = WorkbenchProgress{};
    progress_.Shown = true;
    progress_.Label4 = (brute ? "Solving :" : "Checking :") + std::string(" ") + plural;
    progress_.Label6 = brute ? "Sudoku Brute Solving" : "Sudoku Checking Progress";
    progress_.Bar1Max = to - from + 1;
    batchRunning_ = true;
    abortRequested_ = false;
    long total = recordCount_;
    Breathe();

    if (brute) {
        for (long i = from; i <= to; ++i) {
            progress_.LabelImportProgress =
                "Solving Sudoku " + std::to_string(i) + " from " + plural;
            progress_.Bar1 = i - from + 1;
            currentNumber_[workLevel_] = i;
            if (!OpenSudoku()) {
                ++unreadable_;
                if (count.unreadable.size() < kNamedRecords) count.unreadable.push_back(damaged_);
            } else {
                Board& b = ctx_.board;
                bool contradiction = false;
                if (BruteForceSolutions(ctx_, contradiction) == 1) {
                    record_.Solution = b.CurrentGrid;
                    WriteInPlace();
                }
                showSolverBoard_ = false;
            }
            BreatheWhenDue();
            if (abortRequested_) break;
        }
    } else {
        CheckByLogic(from, to, count, total);
    }
    batchRunning_ = false;
    progress_.Shown = false;
    showSolverBoard_ = false;
    const std::string errors = RunErrorsText();
    if (brute) {
        OpenSudoku();
        if (unreadable_ > 0 || !errors.empty())
            prompter_.Message(kFileErrorTitle,
                              (unreadable_ ? UnreadableText(count.unreadable, unreadable_) : "") +
                                  (unreadable_ && !errors.empty() ? "\n" : "") + errors);
        return;
    }

    const CheckReport report = ReportFor(count.moved, count.outlaw, count.unchanged, total);
    std::string text = report.text;
    if (count.unmoved > 0)
        text += "\n" + std::to_string(count.unmoved) +
                " sudokus could not be moved to their level and stay where they were.";
    if (unreadable_ > 0) text += "\n" + UnreadableText(count.unreadable, unreadable_);
    if (!errors.empty()) text += "\n" + errors;
    if (const std::string notUnique = NotUniqueText(count.none, count.several); !notUnique.empty())
        text += "\n" + notUnique;
    prompter_.Message(report.title, text);
}

namespace {

// The records of a run read in order through one open stream per file: a run
// reads each record once, ahead of the ones it writes back, so what it reads is
// never stale. A record that does not read here is read again the plain way,
// which says why.
class RunReader {
  public:
    RunReader(const std::filesystem::path& sds, const std::filesystem::path& sdl, long from)
        : sds_(sds, std::ios::binary), sdl_(sdl, std::ios::binary) {
        sds_.seekg(std::streamoff(from - 1) * std::streamoff(kSudokuRecordSize));
        sdl_.seekg(std::streamoff(from - 1) * std::streamoff(kSudokuLogRecordSize));
    }
    // Record after record; false when it must be read the plain way.
    bool Next(SudokuRecord& record, SudokuLogRecord& log) {
        if (!sds_.read(reinterpret_cast<char*>(sdsBytes_.data()),
                       std::streamsize(sdsBytes_.size())) ||
            !sdl_.read(reinterpret_cast<char*>(sdlBytes_.data()),
                       std::streamsize(sdlBytes_.size())))
            return false;
        record = SudokuRecordFromBytes(sdsBytes_);
        log = SudokuLogRecordFromBytes(sdlBytes_);
        return CheckSudokuRecord(record).empty() && CheckSudokuLogRecord(log).empty();
    }

  private:
    std::ifstream sds_, sdl_;
    SudokuRecordBytes sdsBytes_;
    SudokuLogRecordBytes sdlBytes_;
};

}  // namespace

// The puzzles are read and filed here, one after the other; only their rating is
// shared out over the threads, and its results are taken in the order of the
// records, so the files and the report are those of a run on one core.
void Workbench::CheckByLogic(long from, long to, RunCounters& count, long& total) {
    const std::string plural = LevelPlural(workLevel_);
    // Every move of the run is noted, so that a kill can't leave a puzzle in two
    // libraries; the moved records leave this one at the end, in one rewrite.
    MoveJournal journal(dataFolder_, LevelStem(workLevel_));
    struct InHand {
        long number;
        SudokuRecord record;
        SudokuLogRecord log;
        std::string damaged;  // empty when the record reads
    };
    std::deque<InHand> inHand;
    const auto stem = LevelStem(workLevel_);
    RunReader reader(PuzzleFile(dataFolder_, stem), LogFile(dataFolder_, stem), from);
    RatingPool pool(threads_, order_);
    const std::size_t ahead = std::size_t(64 * pool.Threads());
    long next = from, done = from - 1;
    bool aborted = false;
    while (!inHand.empty() || next <= to) {
        // Read ahead, so that every thread has a puzzle in hand.
        while (next <= to && inHand.size() < ahead) {
            InHand& read = inHand.emplace_back();
            read.number = next++;
            if (reader.Next(read.record, read.log) ||
                ReadAt(read.number, read.record, read.log, read.damaged))
                pool.Submit(read.record.Puzzle);
        }
        InHand& first = inHand.front();
        std::optional<RatedPuzzle> rated;
        if (first.damaged.empty()) {
            const auto waited = std::chrono::steady_clock::now() - lastRedraw_;
            const auto wait =
                std::chrono::duration_cast<std::chrono::milliseconds>(redrawEvery_ - waited);
            rated = pool.Next(std::max(wait, std::chrono::milliseconds(1)));
            if (!rated) {
                // A long puzzle: the window shows how far its rating has come.
                int level = 0;
                progress_.LabelSolvingLevel = pool.Progress(false, &level);
                progress_.Bar2 = std::min(level, kLevelCount - 1);
                BreatheWhenDue();
                if ((aborted = abortRequested_)) break;
                continue;
            }
        }
        // The record as it was read: what is filed, and what the window shows.
        const long i = first.number;
        currentNumber_[workLevel_] = i;
        record_ = first.record;
        log_ = first.log;
        damaged_ = first.damaged;
        caption_ = std::string(LevelName(workLevel_)) + " - " + std::to_string(i);
        ctx_.board = Board{};
        ctx_.board.Puzzle = record_.Puzzle;
        showSolverBoard_ = false;
        if (!rated) {
            ++unreadable_;
            if (count.unreadable.size() < kNamedRecords) count.unreadable.push_back(damaged_);
        } else if (rated->solutions != 1) {
            // No solution, or several: no rating means anything, so it stays.
            ++notUnique_;
            (rated->solutions == 0 ? count.none : count.several).Note(i);
        } else if (rated->solved || workLevel_ != kOutlaw) {
            if (rated->hardest) ++hardest_[rated->hardest->number];
            record_.Solution = rated->solution;
            ctx_.board.Solution = record_.Solution;
            if (rated->level == workLevel_) {
                ++count.unchanged;
                // Written back only when the solution on file was not this one.
                if (record_.Solution != first.record.Solution) WriteInPlace();
            } else if (MoveTo(journal, rated->level)) {
                ++(rated->solved ? count.moved : count.outlaw);
            } else {
                ++count.unmoved;
            }
        }
        inHand.pop_front();
        done = i;
        progress_.LabelImportProgress = "Checking Sudoku : " + std::to_string(i) + " of " +
                                        std::to_string(to) + " from " + plural;
        progress_.Bar1 = i - from + 1;
        // The rating under way on the next puzzle, or else the last one's.
        int level = 0;
        progress_.LabelSolvingLevel = pool.Progress(false, &level);
        if (progress_.LabelSolvingLevel.empty() && rated && rated->rated) {
            level = rated->level;
            progress_.LabelSolvingLevel = "Solving Sudoku : Rated " + std::string(LevelName(level));
        }
        progress_.Bar2 = std::min(level, kLevelCount - 1);
        BreatheWhenDue();
        if ((aborted = abortRequested_)) break;
    }
    if (aborted) {
        // The report's total is the last number done.
        total = std::max(done, from);
        // The puzzles in hand finish on their threads and are dropped; the
        // window stays alive meanwhile.
        pool.Cancel();
        while (!pool.WaitIdle(std::chrono::milliseconds(50)))
            Breathe();
    }
    // Only what left the library goes from it: an aborted run never takes with it
    // records it did not reach, whatever the report's case.
    if (!journal.Moved().empty()) {
        FinishMoves(journal);
    } else {
        journal.Finish();
        currentNumber_[workLevel_] = std::min(currentNumber_[workLevel_], recordCount_);
        OpenSudoku();
    }
}

std::string NumberList::Text() const {
    std::string text;
    for (std::size_t k = 0; k < first.size(); ++k)
        text += (k == 0                                                 ? ""
                 : k + 1 == first.size() && count == long(first.size()) ? " and "
                                                                        : ", ") +
                std::to_string(first[k]);
    if (count > long(first.size()))
        text += " and " + std::to_string(count - long(first.size())) + " more";
    return text;
}

std::string NotUniqueText(const NumberList& none, const NumberList& several) {
    if (!none.count && !several.count) return {};
    std::string text = "No unique solution, not rated and left where they stand:";
    auto kind = [&](const NumberList& list, const char* what) {
        if (!list.count) return;
        text += "\n" + std::to_string(list.count) + " " + what + " (record" +
                (list.count > 1 ? "s " : " ") + list.Text() + ")";
    };
    kind(none, "without a solution");
    kind(several, "with several solutions");
    return text;
}

std::string Workbench::RunErrorsText() const {
    if (runErrorCount_ == 0) return {};
    std::string text = std::to_string(runErrorCount_) + " file errors:";
    for (const std::string& each : runErrors_)
        text += "\n" + each;
    if (runErrorCount_ > long(runErrors_.size()))
        text += "\nand " + std::to_string(runErrorCount_ - long(runErrors_.size())) + " more.";
    return text;
}

std::string UnreadableText(const std::vector<std::string>& named, long count) {
    std::string text =
        std::to_string(count) + " records could not be read and were left as " + "they stand:";
    for (const std::string& each : named)
        text += "\n" + each;
    if (count > long(named.size()))
        text += "\nand " + std::to_string(count - long(named.size())) + " more.";
    return text;
}

// --- Deleting -----------------------------------------------------------------------

void Workbench::CommandDelete() {
    const ChangeScope scope(*this);
    if (batchRunning_ || !commands_.Delete || recordCount_ < 1) return;
    std::vector<bool> drop(size_t(recordCount_), false);
    drop[size_t(currentNumber_[workLevel_] - 1)] = true;
    Compact(drop);
}

void Workbench::CommandRemoveDuplicates() {
    const ChangeScope scope(*this);
    if (batchRunning_ || !commands_.RemoveDuplicates) return;
    const auto stem = LevelStem(workLevel_);
    const auto sds = PuzzleFile(dataFolder_, stem);
    std::string repaired;
    const long count = std::max(OpenPair(dataFolder_, stem, &repaired), 0L);
    if (!repaired.empty()) prompter_.Message(kFileErrorTitle, repaired);
    const std::string plural = LevelPlural(workLevel_);
    progress_ = WorkbenchProgress{};
    progress_.Shown = true;
    progress_.Label6 = "Sudoku Scanning Progress";
    progress_.Label4 = "Scanning for duplicates : " + plural;
    progress_.Bar1Max = count;
    batchRunning_ = true;
    abortRequested_ = false;

    // Record by record: a damaged record is passed over (it stays, and is no
    // duplicate of anything), and the ones after it are still compared.
    std::ifstream in(sds, std::ios::binary), back(sds, std::ios::binary);
    PuzzleIndex index([&](std::uint64_t n) -> std::optional<Digits> {
        SudokuRecordBytes bytes;
        back.seekg(std::streamoff(n - 1) * std::streamoff(kSudokuRecordSize));
        if (!back.read(reinterpret_cast<char*>(bytes.data()), std::streamsize(bytes.size())))
            return std::nullopt;
        return SudokuRecordFromBytes(bytes).Puzzle;
    });
    std::vector<bool> flags(size_t(count), false);
    long duplicates = 0, damaged = 0;
    SudokuRecordBytes bytes;
    for (long n = 1; n <= count && !abortRequested_; ++n) {
        if (!in.read(reinterpret_cast<char*>(bytes.data()), std::streamsize(bytes.size()))) break;
        const SudokuRecord r = SudokuRecordFromBytes(bytes);
        if (!CheckSudokuRecord(r).empty()) {
            ++damaged;
        } else if (!index.Insert(r.Puzzle, std::uint64_t(n))) {
            flags[size_t(n - 1)] = true;
            ++duplicates;
        }
        if (n % 1024 == 0 || n == count) {
            progress_.Bar1 = n;
            progress_.LabelImportProgress = "Checking Sudoku : " + std::to_string(n) + " of " +
                                            std::to_string(count) + " from " + plural;
            Breathe();
        }
    }
    const bool aborted = abortRequested_;
    batchRunning_ = false;
    progress_.Shown = false;
    if (aborted) return;
    const std::string passed = damaged
                                   ? " " + std::to_string(damaged) +
                                         " damaged records were passed over and left as they stand."
                                   : "";
    if (duplicates == 0) {
        prompter_.Message(kScanTitle, "No duplicate sudokus found." + passed);
        return;
    }
    progress_.Label5 = "Removing duplicates (if any), and rebuilding file :";
    currentNumber_[workLevel_] = 1;
    const bool ok = Compact(flags);
    if (ok)
        prompter_.Message(kScanTitle,
                          std::to_string(duplicates) + " duplicate sudokus removed." + passed);
}

// --- Importing ---------------------------------------------------------------------

void Workbench::CommandImport(const std::filesystem::path& file) {
    const ChangeScope scope(*this);
    if (batchRunning_) return;
    std::error_code ec;
    std::ifstream in;
    if (std::filesystem::is_regular_file(file, ec)) in.open(file, std::ios::binary);
    if (!in) {
        prompter_.Message(kFileErrorTitle, "Can't open " + file.string());
        return;
    }
    progress_ = WorkbenchProgress{};
    progress_.Shown = true;
    progress_.Label6 = "Sudoku Import Progress";
    progress_.Label4 = "Importing : " + file.filename().string();
    batchRunning_ = true;
    abortRequested_ = false;
    ImportRun run;
    run.order = order_;
    run.threads = threads_;
    run.progress = [this](long n, long count) {
        progress_.LabelImportProgress =
            "Importing Sudoku " + std::to_string(n) + " of " + std::to_string(count);
        progress_.Bar1 = n;
        progress_.Bar1Max = count;
        BreatheWhenDue();
    };
    run.rating = [this](const std::string& text) { progress_.LabelSolvingLevel = text; };
    run.abort = [this] { return abortRequested_; };
    Breathe();
    const ImportReport report = ImportPuzzles(dataFolder_, in, run);
    batchRunning_ = false;
    progress_ = WorkbenchProgress{};
    if (IsLevel(workLevel_) && recordCount_ > 0) {
        recordCount_ =
            WholeRecords(PuzzleFile(dataFolder_, LevelStem(workLevel_)), kSudokuRecordSize);
        SetNavigation();
    }
    // The window shows the run's end behind its report.
    Announce();
    if (importReport_)
        importReport_(report);
    else
        prompter_.Message("Sudoku import report", report.Text());
}

}  // namespace tavi
