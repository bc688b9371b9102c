// SPDX-License-Identifier: GPL-3.0-or-later
// Hint, Autosolve and Scan: the solver step by step on the game's board. Before
// any technique runs, the board is checked for what a technique can't see: wrong
// digits, lost candidates and digits still marked in their peers.
#include "game/display_text.h"
#include "game/game.h"
#include "grid/candidates.h"
#include "hints/hint_kinds.h"
#include "hints/hint_search.h"
#include "hints/no_marks_hint.h"
#include "hints/schrijf_hint.h"

namespace tavi {

namespace {
constexpr std::string_view kAutosolveCompleted =
    "Autosolve completed, no more logical hints, if the current sudoku isn't solved, then "
    "you'll have to enable more techniques or guess more than once...";
}  // namespace

void Game::ColoursChanged() {
    const ChangeScope scope(*this);
    brushes_.Recolour(options_.colors.HintColor);
}

void Game::LayPosition(const Board& position) {
    const ChangeScope scope(*this);
    ctx_.board = position;
    SetupWells();
}

void Game::ApplyPaints(const std::vector<HintPaint>& paints) {
    const ChangeScope scope(*this);
    brushes_.ApplyPaints(paints, options_.colors.HintColor);
}

bool Game::HiddenMarksShownFor(std::string_view question) {
    if (!brushes_.AnyHidden()) return true;
    if (services_.prompter.Ask("Hidden pencilmarks detected", question, Buttons::YesNo,
                               Icon::Question) != Answer::Yes)
        return false;
    for (int d = 1; d <= 9; ++d)
        if (!FilterOn(d)) ToonPencilmarks(d);
    return true;
}

// A cell whose digit or marks are wrong: for a wrong digit or a lost candidate
// its row and column are picked for Reset Cell; the cell is shown as attacked.
bool Game::ReportCell(const std::optional<CellReport>& report, bool penalty) {
    if (!report) return false;
    Speel(report->sound);
    if (report->picksCell) {
        selectedRow_ = report->cell / 9;
        selectedColumn_ = report->cell % 9;
    }
    textHint_ = report->text;
    ApplyPaints(report->paints);
    ShowingHint(report->kind, report->cell);
    truth_.digit = report->kind == HintTruth::kLostCandidate ? ctx_.board.Solution[report->cell]
                                                             : ctx_.board.CurrentGrid[report->cell];
    truth_.pickedCell = report->picksCell;
    hints_.Duplicate();
    if (penalty) Penalty(report->penalty);
    return true;
}

bool Game::ReportWrongNumber(bool penalty) {
    return ReportCell(HintFlow::WrongNumber(ctx_.board), penalty);
}

bool Game::ReportLostCandidate(bool penalty) {
    return ReportCell(HintFlow::LostCandidate(ctx_.board), penalty);
}

bool Game::ReportStillMarked(bool penalty) {
    return ReportCell(HintFlow::StillMarked(ctx_.board), penalty);
}

void Game::ShowTechniqueHint() {
    textHint_ = SchrijfHint(ctx_.hint, ctx_.board);
    ApplyPaints(PaintHint(ctx_.hint, ctx_.board));
    ShowingHint(HintTruth::kTechnique, ctx_.hint.HintCell);
    truth_.conclusions.assign(ctx_.hint.Conclusions.begin(), ctx_.hint.Conclusions.end());
    hints_.Shown(ctx_.hint, options_.HintWindow);
}

bool Game::SueDeCoqSpotted() {
    // The sentence and the colours go on screen before the question about them.
    ShowTechniqueHint();
    Breathe();
    return services_.prompter.Ask("Sue-De-Coq",
                                  "If you can spot a Sue-De-Coq, press 'OK' else press 'Cancel'",
                                  Buttons::OkCancel) == Answer::Ok;
}

void Game::SpecialHint() {
    busy_ = true;
    const auto hit = FindSpecialHint(ctx_.board.CurrentGrid, [&](std::string_view text) {
        textHint_ = std::string(text);
        Breathe();
    });
    busy_ = false;
    if (!hit) {
        textHint_ = std::string(kNoMoreLogicalHints);
        return;
    }
    Speel(kSoundPenalty);
    ApplyPaints({{HintPaint::Erase}, {HintPaint::Cell, hit->cell, 0, kBaseCell}});
    hints_.ShowMe(hit->cell, hit->digit);
    commands_.HintCaption = "Show Me";
    textHint_ = std::string(kSpecialHintText);
    ShowingHint(HintTruth::kShowMe, hit->cell);
    hints_.Duplicate();
    Penalty(15);
}

void Game::CommandHint() {
    const ChangeScope scope(*this);
    if (busy_) return;
    if (hints_.Stage() != 0) {
        // The second stage of a hint without pencil marks: the digit too.
        Speel(kSoundPenalty);
        const int cell = hints_.ShowMeCell();
        ApplyPaints({{HintPaint::Erase},
                     {HintPaint::Cell, cell, 0, kBaseCell},
                     {HintPaint::Digit, cell, hints_.ShowMeNumber(), kBaseCandidates}});
        textHint_ = std::string(kSpecialHintText);
        ShowingHint(HintTruth::kShowMe, cell);
        Penalty(15);
        ResetHintStage();
        return;
    }
    if (!HiddenMarksShownFor(
            "All pencilmarks must be visible to make hints available, shall I make them visible ?"))
        return;
    if (ReportWrongNumber(true)) return;
    if (PencilmarksOffAt(options_, position().ChosenLevel)) return SpecialHint();
    if (ReportLostCandidate(true) || ReportStillMarked(true)) return;

    busy_ = true;
    const Rung* hit = nullptr;
    {
        ModeScope batch(ctx_, ctx_.Mode().With(SolveMode::kBatchRunning));
        ctx_.yield = [this] { Breathe(); };
        hit = FindHint(ctx_, options_.techniques, [&](std::string_view name) {
            textHint_ = ScanningText(name);
            Breathe();
        });
    }
    busy_ = false;
    if (!hit) {
        textHint_ = std::string(kNoLogicalHints);
        return;
    }
    Speel(kSoundPenalty);
    ShowTechniqueHint();
    textHint_ = practice_.Marked(hit->number, textHint_);
    Penalty(15);
}

bool Game::AutoSolveBoard() {
    const RungOrder rungs = HintWalk(options_.techniques);
    const auto halts = [this](const Rung& rung) {
        return options_.techniques.Halt[rung.number] == 1;
    };
    busy_ = true;
    ModeScope batch(ctx_, ctx_.Mode().With(SolveMode::kBatchRunning));
    ctx_.yield = [this] { Breathe(); };
    const SolveMode base = ctx_.Mode();

    LadderWalk walk;
    walk.rungs = rungs.View();
    walk.checkContradiction = false;
    // A rung marked as a halt only looks: its hit is shown, not taken.
    walk.modeFor = [&](const Rung& rung) { return halts(rung) ? HintMode(base, rung) : base; };
    walk.before = [&](const Rung& rung) { textHint_ = ScanningText(AutosolveScanName(rung)); };
    walk.hit = [&](const Rung& rung) {
        if (!halts(rung)) return true;
        Speel(kSoundPenalty);
        ShowTechniqueHint();
        return false;
    };
    walk.stop = [this] {
        if (scanStop_) return true;
        Breathe();
        return false;
    };
    int cellsLeft = ctx_.board.EmptyCount();
    const WalkEnd end = WalkLadder(ctx_, walk, cellsLeft).end;
    if (end == WalkEnd::Solved && BoardSolved()) {
        if (options_.Wells) SetupWells();
        ZetOpgelost();
    } else if (end == WalkEnd::Solved || end == WalkEnd::Exhausted) {
        textHint_ = std::string(kAutosolveCompleted);
    }
    busy_ = false;
    if (options_.Wells) SetupWells();
    return end == WalkEnd::Halted;
}

void Game::CommandAutoSolve() {
    const ChangeScope scope(*this);
    if (busy_) return;
    if (PencilmarksOffAt(options_, position().ChosenLevel)) return;
    if (!HiddenMarksShownFor(
            "All pencilmarks must be visible to start the Autosolver, shall I make them visible ?"))
        return;
    ResetHintStage();
    ModeScope autosolving(ctx_, ctx_.Mode().With(SolveMode::kAutosolveActive));
    if (ReportWrongNumber(false) || ReportLostCandidate(false) || ReportStillMarked(false)) {
        commands_.ScanCaption = "Scan";
        return;
    }
    // A game Autosolve has touched can't be saved any more.
    session_.position().SudokuAutosolved = true;
    AutoSolveBoard();
    ForgetStaleHint();
}

void Game::ShowingHint(HintTruth::Kind kind, int cell) {
    truth_ = {};
    truth_.kind = kind;
    truth_.cell = cell;
    truth_.grid = ctx_.board.CurrentGrid;
    truth_.marks = ctx_.board.Candidates;
    truth_.text = textHint_;
}

void Game::ForgetStaleHint() {
    if (truth_.kind == HintTruth::kNone || HintStillTrue(truth_, ctx_.board)) return;
    brushes_.WipeHint();
    if (textHint_ == truth_.text) textHint_ = std::string(kPlayingHintText);
    if (truth_.pickedCell && selectedRow_ == truth_.cell / 9 && selectedColumn_ == truth_.cell % 9)
        selectedRow_ = selectedColumn_ = kNoLine;
    truth_ = {};
}

void Game::CommandScan() {
    const ChangeScope scope(*this);
    if (makeMode_) return;  // no library file is open while a puzzle is made
    if (scanning_) {
        scanStop_ = true;
        return;
    }
    if (busy_) return;
    ResetHintStage();
    if (!LeaveBoard()) return;
    LibraryPosition& position_ = session_.position();
    const int level = position_.ChosenLevel;
    const auto file = session_.ChosenFile();
    if (!FileExists(file)) {
        services_.prompter.Message("File Error",
                                   "Source file: " + file.filename().string() + " not found!");
        return;
    }
    const long count = WholeRecords(file, kSudokuRecordSize);
    auto ask = [&](const std::string& title, long low, std::string_view def) -> long {
        while (true) {
            const auto answer = services_.prompter.Input(
                title,
                "Enter a value between " + std::to_string(low) + " and " + std::to_string(count),
                def);
            if (!answer || answer->empty()) return 0;
            const long n = LeadingNumber(*answer);
            if (n >= low && n <= count) return n;
        }
    };
    if (count < 1) return;
    const long from = ask("Scan 'from' number", 1, "1");
    if (!from) return;
    const long to = ask("Scan 'to' number", from, std::to_string(count));
    if (!to) return;

    commands_.ScanCaption = "Stop";
    scanning_ = true;
    scanStop_ = false;
    bool halted = false;
    for (long n = from; n <= to && !scanStop_; ++n) {
        position_.PuzzleNumber[level] = int(n);
        if (!LoadPuzzle(false)) {
            halted = true;  // the message said why
            break;
        }
        // With pencil marks off the board shows every digit as a mark: the
        // autosolver needs the real candidates.
        RebuildMarks();
        ModeScope autosolving(ctx_, ctx_.Mode().With(SolveMode::kAutosolveActive));
        position_.SudokuAutosolved = true;
        if (AutoSolveBoard()) {
            halted = true;
            break;
        }
    }
    // A Scan that halted shows its hint; otherwise the box tells how it ended.
    if (!halted) textHint_ = std::string(scanStop_ ? kScanStoppedText : kScanDoneText);
    scanStop_ = false;
    scanning_ = false;
    commands_.ScanCaption = "Scan";
}

}  // namespace tavi
