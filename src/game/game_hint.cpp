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

void Game::Breathe() {
    if (services_.yield) services_.yield();
}

void Game::ApplyPaints(const std::vector<HintPaint>& paints) {
    const auto& colors = options_.colors.HintColor;
    for (const HintPaint& p : paints) {
        switch (p.what) {
            case HintPaint::Erase: WisKleuren(); break;
            case HintPaint::Cell: cellPaint_[p.cell] = colors[p.role]; break;
            case HintPaint::Digit: markPaint_[p.cell][p.digit - 1] = colors[p.role]; break;
        }
    }
}

bool Game::HiddenMarksShownFor(std::string_view question) {
    bool hidden = false;
    for (int d = 1; d <= 9; ++d)
        hidden |= !filterOn_[d];
    if (!hidden) return true;
    if (services_.prompter.Ask("Hidden pencilmarks detected", question, Buttons::YesNo,
                               Icon::Question) != Answer::Yes)
        return false;
    for (int d = 1; d <= 9; ++d)
        if (!filterOn_[d]) ToonPencilmarks(d);
    return true;
}

// A cell whose digit or marks are wrong: its row and column are picked for
// Reset Cell and the cell is shown as attacked.
void Game::ReportCell(int cell, const std::string& text, int penalty) {
    Speel(kSoundWrongNumber);
    SelectedRow = cell / 9;
    SelectedColumn = cell % 9;
    textHint_ = text;
    HintPainter painter(ctx_.board);
    painter.WisKleuren();
    painter.ZetHintVak(cell, kAttackedCell);
    ApplyPaints(painter.paints());
    hintWindowCaption_ = kMainDuplicateCaption;
    if (penalty) Penalty(penalty);
}

bool Game::ReportWrongNumber(bool penalty) {
    const Board& b = ctx_.board;
    for (int c = 0; c < 81; ++c) {
        if (!b.Solution[c] || !b.CurrentGrid[c] || b.Solution[c] == b.CurrentGrid[c]) continue;
        ReportCell(c,
                   "Incorrect number (" + std::to_string(b.CurrentGrid[c]) + ") at cell " +
                       CellName(c) + " - Use [Undo] or [Reset Cell]",
                   penalty ? 10 : 0);
        return true;
    }
    return false;
}

bool Game::ReportLostCandidate(bool penalty) {
    const Board& b = ctx_.board;
    for (int c = 0; c < 81; ++c) {
        if (b.CurrentGrid[c] || !b.Solution[c] || b.Has(b.Solution[c], c)) continue;
        ReportCell(c,
                   "The correct number is no longer shown as a possibility at cell " + CellName(c) +
                       " - Use [Undo] or [Reset Cell]",
                   penalty ? 10 : 0);
        return true;
    }
    return false;
}

bool Game::ReportStillMarked(bool penalty) {
    const Board& b = ctx_.board;
    for (int c = 0; c < 81; ++c) {
        const int d = b.CurrentGrid[c];
        if (!d || !Exclude(b, d, c)) continue;
        Speel(kSoundStillMarked);
        textHint_ = "Since number " + std::to_string(d) + " is located at cell " + CellName(c) +
                    ", this number cannot longer be a candidate in that same row, column or block";
        HintPainter painter(b);
        painter.WisKleuren();
        painter.ZetHintRij(c / 9, kPatternCell);
        painter.ZetHintKolom(c % 9, kPatternCell);
        painter.ZetHintBlok(Global::BoxLeftTopOfCell[c], kPatternCell);
        painter.ZetHintVak(c, kAttackingCell);
        painter.ZetHintNummer(c, d, kAttackingCandidates);
        for (int peer : Peers[c])
            painter.ZetAttackedCell(peer, d);
        ApplyPaints(painter.paints());
        hintWindowCaption_ = kMainDuplicateCaption;
        if (penalty) Penalty(20);
        return true;
    }
    return false;
}

void Game::ShowTechniqueHint() {
    textHint_ = SchrijfHint(ctx_.hint, ctx_.board);
    ApplyPaints(PaintHint(ctx_.hint, ctx_.board));
    lastHint_ = RecordAfterSchrijfHint(ctx_.hint);
    hintWindowCaption_ = HintCaption(ctx_.hint);
    if (options_.HintWindow) ++hintWindowShows_;
}

bool Game::SueDeCoqSpotted() {
    ShowTechniqueHint();
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
    WisKleuren();
    cellPaint_[hit->cell] = options_.colors.HintColor[kBaseCell];
    showMeCell_ = hit->cell;
    showMeNumber_ = hit->digit;
    HintStage = 1;
    commands_.HintCaption = "Show Me";
    textHint_ = std::string(kSpecialHintText);
    hintWindowCaption_ = kMainDuplicateCaption;
    Penalty(15);
}

void Game::CommandHint() {
    if (busy_) return;
    if (HintStage != 0) {
        // The second stage of a hint without pencil marks: the digit too.
        Speel(kSoundPenalty);
        WisKleuren();
        cellPaint_[showMeCell_] = options_.colors.HintColor[kBaseCell];
        markPaint_[showMeCell_][showMeNumber_ - 1] = options_.colors.HintColor[kBaseCandidates];
        textHint_ = std::string(kSpecialHintText);
        Penalty(15);
        ResetHintStage();
        return;
    }
    if (!HiddenMarksShownFor(
            "All pencilmarks must be visible to make hints available, shall I make them visible ?"))
        return;
    if (ReportWrongNumber(true)) return;
    if (options_.PencilmarksOff && position_.ChosenLevel < 4) return SpecialHint();
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
    if (busy_) return;
    if (position_.ChosenLevel < 4 && options_.PencilmarksOff) return;
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
    position_.SudokuAutosolved = true;
    AutoSolveBoard();
}

void Game::CommandScan() {
    if (commands_.ScanCaption == "Stop") {
        scanStop_ = true;
        return;
    }
    if (busy_) return;
    ResetHintStage();
    LeaveBoard();
    const int level = position_.ChosenLevel;
    const auto file = PuzzleFile(folders_.DataFolder, LevelStem(level));
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
    scanStop_ = false;
    for (long n = from; n <= to && !scanStop_; ++n) {
        position_.PuzzleNumber[level] = int(n);
        LoadPuzzle(false);
        if (!gridEnabled_) break;
        ModeScope autosolving(ctx_, ctx_.Mode().With(SolveMode::kAutosolveActive));
        position_.SudokuAutosolved = true;
        if (AutoSolveBoard()) break;
    }
    scanStop_ = false;
    commands_.ScanCaption = "Scan";
}

}  // namespace tavi
