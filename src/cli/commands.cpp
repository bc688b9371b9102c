#include "cli/commands.h"

#include <array>
#include <chrono>

#include "cli/puzzle_lines.h"
#include "grid/candidates.h"
#include "grid/levels.h"
#include "hints/hint_paint.h"
#include "hints/hint_search.h"
#include "hints/schrijf_hint.h"
#include "solver/brute_force.h"
#include "solver/ladder.h"

namespace tavi::cli {

namespace {

// The rating of a puzzle as the workbench gives it: the level reached when the
// ladder solves it, Outlaw when it does not.
int RatePuzzle(SolveContext& ctx, const Digits& puzzle, const WorkbenchRun& run) {
    ctx.board = BoardFromPuzzle(puzzle);
    return SolveSudoku(ctx, run) ? ctx.SolvingLevel : kOutlaw;
}

// The sentence of the record that `rung` fills under HintOnly on `board`.
std::string ExplainStep(const Rung& rung, const Board& board) {
    SolveContext look(Side::Workbench);
    look.board = board;
    look.HintOnly = true;
    look.ForceZet = rung.number == kBifurcationTechnique;
    if (!rung.run(look).found) return "";
    return SchrijfHint(look.hint, board);
}

std::string FormatChange(const BoardChange& change) {
    return CellName(change.cell) + (change.kind == BoardChange::Placed ? "=" : "-") +
           std::to_string(change.digit);
}

int Status(int badLines, int invalid) {
    return badLines ? kExitBadInput : invalid ? kExitSomeInvalid : kExitOk;
}

}  // namespace

int Rate(std::istream& in, std::ostream& out, std::ostream& err, const RateOptions& options,
         std::string_view source) {
    SolveContext ctx(Side::Workbench);
    const WorkbenchRun run;
    std::array<long, 10> perLevel{};
    long total = 0;
    int invalid = 0;
    const auto start = std::chrono::steady_clock::now();
    const int bad = ForEachPuzzle(
        in, err,
        [&](const PuzzleLine& p) {
            if (ReportClash(p, source, err)) {
                ++invalid;
                out << p.text << "\tinvalid\tclashing givens\n";
                return;
            }
            const int level = RatePuzzle(ctx, p.digits, run);
            ++perLevel[level];
            ++total;
            out << p.text << '\t' << level << '\t' << LevelName(level) << '\n';
        },
        source);
    if (options.summary) {
        const double seconds =
            std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        for (int level = 1; level <= kLevelCount; ++level)
            err << LevelName(level) << '\t' << perLevel[level] << '\n';
        err << "puzzles\t" << total << '\n';
        if (invalid) err << "invalid\t" << invalid << '\n';
        err << "puzzles per second\t" << long(seconds > 0 ? total / seconds : 0) << '\n';
    }
    return Status(bad, invalid);
}

int Solve(std::istream& in, std::ostream& out, std::ostream& err, std::string_view source) {
    SolveContext ctx(Side::Workbench);
    const int bad = ForEachPuzzle(
        in, err,
        [&](const PuzzleLine& p) {
            ctx.board = Board{};
            ctx.board.Puzzle = p.digits;
            bool contradiction = false;
            const int found = BruteForceSolutions(ctx, contradiction);
            out << p.text << '\t'
                << (found == 0   ? "none"
                    : found == 1 ? "unique"
                                 : "multiple")
                << '\t' << (found == 1 ? FormatDigits(ctx.board.CurrentGrid) : "-") << '\n';
        },
        source);
    return Status(bad, 0);
}

int Steps(std::istream& in, std::ostream& out, std::ostream& err, bool explain,
          std::string_view source) {
    SolveContext ctx(Side::Workbench);
    std::vector<BoardChange> changes;
    int step = 0;
    Board before;
    WorkbenchRun run;
    if (explain) run.observer.before = [&](const Rung&) { before = ctx.board; };
    run.observer.hit = [&](const Rung& rung) {
        out << "step\t" << ++step << '\t' << rung.number << '\t' << rung.Name() << '\t';
        for (size_t i = 0; i < changes.size(); ++i)
            out << (i ? " " : "") << FormatChange(changes[i]);
        if (explain) out << '\t' << ExplainStep(rung, before);
        out << '\n';
        changes.clear();
    };
    int invalid = 0;
    const int bad = ForEachPuzzle(
        in, err,
        [&](const PuzzleLine& p) {
            if (ReportClash(p, source, err)) {
                ++invalid;
                out << "result\tinvalid\tclashing givens\n";
                return;
            }
            step = 0;
            changes.clear();
            ctx.trace = &changes;
            const int level = RatePuzzle(ctx, p.digits, run);
            ctx.trace = nullptr;
            out << "result\t" << (level == kOutlaw ? "unsolved" : "solved") << '\t' << level << '\t'
                << LevelName(level) << '\n';
        },
        source);
    return Status(bad, invalid);
}

int Signature(std::istream& in, std::ostream& out, std::ostream& err, std::string_view source) {
    SolveContext ctx(Side::Workbench);
    std::vector<BoardChange> changes;
    int steps = 0;
    WorkbenchRun run;
    run.observer.hit = [&](const Rung&) { ++steps; };
    int invalid = 0;
    const int bad = ForEachPuzzle(
        in, err,
        [&](const PuzzleLine& p) {
            if (ReportClash(p, source, err)) {
                ++invalid;
                out << p.text << "\tinvalid\n";
                return;
            }
            steps = 0;
            changes.clear();
            ctx.trace = &changes;
            const int level = RatePuzzle(ctx, p.digits, run);
            ctx.trace = nullptr;
            int placed = 0;
            for (const BoardChange& c : changes)
                placed += c.kind == BoardChange::Placed;
            out << p.text << '\t' << level << '\t' << steps << '\t' << placed << '\t'
                << changes.size() - placed << '\n';
        },
        source);
    return Status(bad, invalid);
}

int Hint(std::istream& in, std::ostream& out, std::ostream& err, bool paint,
         std::string_view source) {
    const TechniqueTables defaults;
    const int bad = ForEachPuzzle(
        in, err,
        [&](const PuzzleLine& p) {
            SolveContext ctx(Side::Game);
            ctx.board = BoardFromPuzzle(p.digits);
            const bool clash = GivensClash(p.digits);
            const Rung* hit = clash ? nullptr : FindHint(ctx, defaults);
            out << p.text << '\t'
                << (hit ? SchrijfHint(ctx.hint, ctx.board) : std::string(kNoLogicalHints)) << '\n';
            if (paint && hit)
                for (const HintPaint& each : PaintHint(ctx.hint, ctx.board))
                    out << '\t' << DescribePaint(each) << '\n';
        },
        source);
    return Status(bad, 0);
}

}  // namespace tavi::cli
