// SPDX-License-Identifier: GPL-3.0-or-later
// Rating and brute-force throughput. Each iteration handles one puzzle, so
// items_per_second reads as puzzles per second.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <sstream>

#include "cli/library_commands.h"
#include "grid/candidates.h"
#include "puzzle_sets.h"
#include "solver/brute_force.h"
#include "solver/generator.h"
#include "solver/ladder.h"
#include "solver/solutions.h"

namespace tavi::bench {
namespace {

bool RatedBySinglesOnly(const Digits& puzzle) {
    SolveContext ctx;
    ctx.board = BoardFromPuzzle(puzzle);
    return SolveSudoku(ctx, {}) && ctx.SolvingLevel == 1;
}

bool HeadLeavesUnsolved(const Digits& puzzle) {
    SolveContext ctx;
    ctx.board = BoardFromPuzzle(puzzle);
    int cells = ctx.board.EmptyCount();
    bool contradiction = false;
    return !PreSolve(ctx, cells, contradiction) && !contradiction;
}

void RateAll(benchmark::State& state, const std::vector<Digits>& puzzles) {
    if (puzzles.empty()) {
        state.SkipWithError("no puzzles");
        return;
    }
    SolveContext ctx;
    const WorkbenchRun run;
    size_t i = 0;
    for (auto _ : state) {
        ctx.board = BoardFromPuzzle(puzzles[i++ % puzzles.size()]);
        benchmark::DoNotOptimize(SolveSudoku(ctx, run));
    }
    state.SetItemsProcessed(state.iterations());
}

void BruteForceAll(benchmark::State& state, const std::vector<Digits>& puzzles) {
    if (puzzles.empty()) {
        state.SkipWithError("no puzzles");
        return;
    }
    SolveContext ctx;
    size_t i = 0;
    for (auto _ : state) {
        ctx.board.Puzzle = puzzles[i++ % puzzles.size()];
        benchmark::DoNotOptimize(BruteForceSolve(ctx));
    }
    state.SetItemsProcessed(state.iterations());
}

std::vector<Digits> GeneratedWhere(bool (*keep)(const Digits&), int wanted) {
    std::vector<Digits> out;
    PuzzleGenerator g(7);
    for (int tries = 0; int(out.size()) < wanted && tries < 50 * wanted; ++tries) {
        const auto p = g.Next();
        if (!keep || keep(p.puzzle)) out.push_back(p.puzzle);
    }
    return out;
}

void BM_RateSinglesOnly(benchmark::State& state) {
    static const auto puzzles = GeneratedWhere(RatedBySinglesOnly, 300);
    RateAll(state, puzzles);
}
BENCHMARK(BM_RateSinglesOnly);

void BM_RateRandomMinimal(benchmark::State& state) {
    static const auto puzzles = GeneratedWhere(nullptr, 500);
    RateAll(state, puzzles);
}
BENCHMARK(BM_RateRandomMinimal);

void BM_RateTop1465(benchmark::State& state) {
    static const auto puzzles = ReadPuzzleFile("puzzles3_magictour_top1465.txt");
    RateAll(state, puzzles);
}
BENCHMARK(BM_RateTop1465);

// The forum's hardest puzzles one at a time, for the spread: the median and the
// slowest rating, in thread time (the machine is shared).
void BM_RateForumHardestSpread(benchmark::State& state) {
    static const auto puzzles = ReadPuzzleFile("puzzles6_forum_hardest_1106.txt");
    if (puzzles.empty()) {
        state.SkipWithError("no puzzles");
        return;
    }
    auto threadMs = [] {
        timespec t{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
        return double(t.tv_sec) * 1e3 + double(t.tv_nsec) / 1e6;
    };
    std::vector<double> ms;
    for (auto _ : state) {
        ms.clear();
        for (const Digits& p : puzzles) {
            SolveContext ctx;
            ctx.board = BoardFromPuzzle(p);
            const double start = threadMs();
            benchmark::DoNotOptimize(SolveSudoku(ctx, {}));
            ms.push_back(threadMs() - start);
        }
    }
    std::sort(ms.begin(), ms.end());
    state.counters["puzzles"] = double(ms.size());
    state.counters["median_ms"] = ms[ms.size() / 2];
    state.counters["p99_ms"] = ms[ms.size() * 99 / 100];
    state.counters["max_ms"] = ms.back();
}
BENCHMARK(BM_RateForumHardestSpread)->Iterations(1)->Unit(benchmark::kMillisecond);

void BM_BruteForce17Clue(benchmark::State& state) {
    static const auto puzzles = ReadPuzzleFile("puzzles2_17_clue.txt", 5000);
    BruteForceAll(state, puzzles);
}
BENCHMARK(BM_BruteForce17Clue);

void BM_BruteForceNeedsGuessing(benchmark::State& state) {
    static const auto puzzles = [] {
        std::vector<Digits> out;
        for (const auto& p : ReadPuzzleFile("puzzles3_magictour_top1465.txt"))
            if (HeadLeavesUnsolved(p)) out.push_back(p);
        return out;
    }();
    BruteForceAll(state, puzzles);
}
BENCHMARK(BM_BruteForceNeedsGuessing);

void BM_BruteForceForumHardest(benchmark::State& state) {
    static const auto puzzles = ReadPuzzleFile("puzzles6_forum_hardest_1106.txt");
    BruteForceAll(state, puzzles);
}
BENCHMARK(BM_BruteForceForumHardest);

void BM_GenerateMinimal(benchmark::State& state) {
    PuzzleGenerator g(1);
    for (auto _ : state)
        benchmark::DoNotOptimize(g.Next());
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_GenerateMinimal);

// The generate command on 1 and 2 threads: minimal puzzles per second of wall time.
void BM_GenerateThreads(benchmark::State& state) {
    constexpr long kPerRun = 64;
    std::uint64_t start = 1;
    for (auto _ : state) {
        std::ostringstream out;
        cli::Generate(kPerRun, start++, out, int(state.range(0)));
        benchmark::DoNotOptimize(out.str().size());
    }
    state.SetItemsProcessed(state.iterations() * kPerRun);
}
BENCHMARK(BM_GenerateThreads)->Arg(1)->Arg(2)->UseRealTime();

}  // namespace
}  // namespace tavi::bench

namespace tavi::bench {
namespace {

// The solution counter, Solutions(..., 2), over the same lists as the brute-force
// search above, so the two read side by side.
void CountAll(benchmark::State& state, const std::vector<Digits>& puzzles) {
    if (puzzles.empty()) {
        state.SkipWithError("no puzzles");
        return;
    }
    size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(Solutions(puzzles[i++ % puzzles.size()], 2));
    state.SetItemsProcessed(state.iterations());
}
void BM_Solutions17Clue(benchmark::State& state) {
    static const auto puzzles = ReadPuzzleFile("puzzles2_17_clue.txt");
    CountAll(state, puzzles);
}
BENCHMARK(BM_Solutions17Clue);
void BM_SolutionsTop1465(benchmark::State& state) {
    static const auto puzzles = ReadPuzzleFile("puzzles3_magictour_top1465.txt");
    CountAll(state, puzzles);
}
BENCHMARK(BM_SolutionsTop1465);
void BM_SolutionsForumHardest(benchmark::State& state) {
    static const auto puzzles = ReadPuzzleFile("puzzles6_forum_hardest_1106.txt");
    CountAll(state, puzzles);
}
BENCHMARK(BM_SolutionsForumHardest);
void BM_BruteForceTop1465(benchmark::State& state) {
    static const auto puzzles = ReadPuzzleFile("puzzles3_magictour_top1465.txt");
    BruteForceAll(state, puzzles);
}
BENCHMARK(BM_BruteForceTop1465);

void BM_PreSolve17Clue(benchmark::State& state) {
    static const auto puzzles = ReadPuzzleFile("puzzles2_17_clue.txt", 5000);
    size_t i = 0;
    SolveContext ctx;
    for (auto _ : state) {
        ctx.board = BoardFromPuzzle(puzzles[i++ % puzzles.size()]);
        int cells = ctx.board.EmptyCount();
        bool contradiction = false;
        benchmark::DoNotOptimize(PreSolve(ctx, cells, contradiction));
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_PreSolve17Clue);

}  // namespace
}  // namespace tavi::bench
