// SPDX-License-Identifier: GPL-3.0-or-later
// How long a press of Hint takes on the boards a game passes through: every state
// the ladder reaches on a few hundred generated puzzles of all levels. Reports the
// median, the 99th percentile and the worst, in milliseconds.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>

#include "grid/candidates.h"
#include "hints/hint_search.h"
#include "puzzle_sets.h"
#include "settings/technique_tables.h"
#include "solver/ladder.h"

namespace tavi::bench {
namespace {

std::vector<Board> LadderStates(int puzzles) {
    std::vector<Board> states;
    for (const auto& p : Generated(puzzles, 2024)) {
        SolveContext ctx;
        ctx.board = BoardFromPuzzle(p.puzzle);
        WorkbenchRun run;
        run.observer.before = [&](const Rung& rung) {
            if (rung.number == 3) states.push_back(ctx.board);  // each pass from the top
        };
        SolveSudoku(ctx, run);
    }
    return states;
}

void BM_HintPress(benchmark::State& state) {
    static const auto states = LadderStates(300);
    const TechniqueTables tables;
    std::vector<double> ms;
    for (auto _ : state) {
        ms.clear();
        for (const Board& b : states) {
            SolveContext ctx(Side::Game);
            ctx.board = b;
            const auto start = std::chrono::steady_clock::now();
            benchmark::DoNotOptimize(FindHint(ctx, tables));
            ms.push_back(
                std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
                    .count());
        }
    }
    std::sort(ms.begin(), ms.end());
    state.counters["boards"] = double(ms.size());
    state.counters["median_ms"] = ms[ms.size() / 2];
    state.counters["p99_ms"] = ms[ms.size() * 99 / 100];
    state.counters["max_ms"] = ms.back();
}
BENCHMARK(BM_HintPress)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tavi::bench
