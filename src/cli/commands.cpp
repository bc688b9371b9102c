// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/commands.h"

#include <algorithm>
#include <array>
#include <chrono>

#include "cli/in_order.h"
#include "cli/puzzle_lines.h"
#include "grid/candidates.h"
#include "grid/levels.h"
#include "hints/hint_paint.h"
#include "hints/hint_search.h"
#include "hints/schrijf_hint.h"
#include "solver/difficulty_score.h"
#include "solver/ladder.h"
#include "solver/solutions.h"

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
    ModeScope looking(look, HintMode(look.Mode(), rung));
    if (!rung.run(look).found) return "";
    return SchrijfHint(look.hint, board);
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
            // No solution, or several: no level means anything.
            if (Solutions(p.digits, 2).count != 1) {
                ++invalid;
                out << p.text << "\t0\tno unique solution\n";
                return;
            }
            if (options.score) {
                const PuzzleRating r = RatePuzzleWithScore(ctx, p.digits);
                ++perLevel[r.level];
                ++total;
                out << p.text << '\t' << r.level << '\t' << LevelName(r.level) << '\t'
                    << FormatScore(r.score) << '\n';
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

int Solve(std::istream& in, std::ostream& out, std::ostream& err, std::string_view source,
          int threads) {
    // One block of lines in memory at a time, whatever the length of the input.
    constexpr std::size_t kBlock = 4096;
    struct Line {
        std::string text;
        Digits digits{};
        SolutionCount answer;
        bool clash = false;
    };
    std::vector<Line> block(kBlock);
    std::vector<int> workers(std::size_t(std::max(1, threads)));
    std::size_t filled = 0;
    int invalid = 0;
    const auto answer = [&] {
        ForEachInParallel(long(filled), workers, [&](long k, int&) {
            Line& line = block[std::size_t(k)];
            line.answer = line.clash ? SolutionCount{} : Solutions(line.digits, 2);
        });
        for (std::size_t k = 0; k < filled; ++k) {
            const SolutionCount& a = block[k].answer;
            if (block[k].clash) {
                out << block[k].text << "\tinvalid\t-\n";
                block[k].clash = false;
                continue;
            }
            out << block[k].text << '\t'
                << (a.count == 0   ? "none"
                    : a.count == 1 ? "unique"
                                   : "multiple")
                << '\t' << (a.count == 1 ? FormatDigits(a.first) : "-") << '\n';
        }
        filled = 0;
    };
    const int bad = ForEachPuzzle(
        in, err,
        [&](const PuzzleLine& p) {
            if (ReportClash(p, source, err)) {
                // Kept in its place among the answers, which come in input order.
                ++invalid;
                block[filled].clash = true;
            }
            block[filled].text.assign(p.text);
            block[filled].digits = p.digits;
            if (++filled == kBlock) answer();
        },
        source);
    answer();
    return Status(bad, invalid);
}

int Steps(std::istream& in, std::ostream& out, std::ostream& err, bool explain,
          std::string_view source) {
    SolveContext ctx(Side::Workbench);
    int step = 0;
    Board before;
    WorkbenchRun run;
    if (explain) run.observer.before = [&](const Rung&) { before = ctx.board; };
    run.observer.hit = [&](const Rung& rung) {
        out << "step\t" << ++step << '\t' << rung.number << '\t' << rung.Name() << '\t';
        if (!ctx.hint.Conclusions.empty()) out << FormatConclusions(ctx.hint.Conclusions);
        if (explain) out << '\t' << ExplainStep(rung, before);
        out << '\n';
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
            const int level = RatePuzzle(ctx, p.digits, run);
            out << "result\t" << (level == kOutlaw ? "unsolved" : "solved") << '\t' << level << '\t'
                << LevelName(level) << '\n';
        },
        source);
    return Status(bad, invalid);
}

int Signature(std::istream& in, std::ostream& out, std::ostream& err, std::string_view source) {
    SolveContext ctx(Side::Workbench);
    const auto rungs = LadderRungs();
    std::vector<int> hits(rungs.size()), totals(rungs.size());
    int steps = 0, placed = 0, removed = 0;
    WorkbenchRun run;
    run.observer.hit = [&](const Rung& rung) {
        ++steps;
        ++hits[RungIndex(rung)];
        for (const Conclusion& c : ctx.hint.Conclusions)
            ++(c.placed ? placed : removed);
    };
    // "3:12 4:30 7.1:2": the hits of each rung that hit, in ladder order.
    auto format = [&](const std::vector<int>& counts) {
        std::string s;
        for (size_t i = 0; i < counts.size(); ++i)
            if (counts[i])
                s += (s.empty() ? "" : " ") + RungKey(rungs[i]) + ":" + std::to_string(counts[i]);
        return s;
    };
    int invalid = 0;
    const int bad = ForEachPuzzle(
        in, err,
        [&](const PuzzleLine& p) {
            if (ReportClash(p, source, err)) {
                ++invalid;
                out << p.text << "\tinvalid\n";
                return;
            }
            steps = placed = removed = 0;
            std::fill(hits.begin(), hits.end(), 0);
            const int level = RatePuzzle(ctx, p.digits, run);
            for (size_t i = 0; i < hits.size(); ++i)
                totals[i] += hits[i];
            out << p.text << '\t' << level << '\t' << steps << '\t' << placed << '\t' << removed
                << '\t' << format(hits) << '\n';
        },
        source);
    out << "hits\t" << format(totals) << '\n';
    return Status(bad, invalid);
}

int Hint(std::istream& in, std::ostream& out, std::ostream& err, bool paint,
         std::string_view source) {
    const TechniqueTables defaults;
    int invalid = 0;
    const int bad = ForEachPuzzle(
        in, err,
        [&](const PuzzleLine& p) {
            if (ReportClash(p, source, err)) {
                ++invalid;
                out << p.text << "\tinvalid\tclashing givens\n";
                return;
            }
            SolveContext ctx(Side::Game);
            ctx.board = BoardFromPuzzle(p.digits);
            const Rung* hit = FindHint(ctx, defaults);
            out << p.text << '\t'
                << (hit ? SchrijfHint(ctx.hint, ctx.board) : std::string(kNoLogicalHints)) << '\n';
            if (paint && hit)
                for (const HintPaint& each : PaintHint(ctx.hint, ctx.board))
                    out << '\t' << DescribePaint(each) << '\n';
        },
        source);
    return Status(bad, invalid);
}

}  // namespace tavi::cli
