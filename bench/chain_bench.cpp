// SPDX-License-Identifier: GPL-3.0-or-later
// The colouring, chain and loop rungs, one call at a time, over the states the
// ladder passes through on generated puzzles of every level. Each iteration runs
// the rung once on every state; the counters give the worst single call (over all
// states and over the states where it finds nothing) and the mean.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>

#include "grid/candidates.h"
#include "puzzle_sets.h"
#include "solver/ladder.h"
#include "solver/techniques.h"

namespace tavi::bench {
namespace {

// Boards of every level: the start of each puzzle and the board after every hit.
const std::vector<Board>& LadderStates() {
    static const std::vector<Board> states = [] {
        std::vector<Board> out;
        for (const auto& p : Generated(400, 1414)) {
            SolveContext ctx;
            ctx.board = BoardFromPuzzle(p.puzzle);
            WorkbenchRun run;
            run.observer.hit = [&](const Rung&) { out.push_back(ctx.board); };
            SolveSudoku(ctx, run);
        }
        return out;
    }();
    return states;
}

// The processor time of this thread, in milliseconds: the machine is shared, and a
// wall clock would count the time others take.
double ThreadMs() {
    timespec t{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return double(t.tv_sec) * 1e3 + double(t.tv_nsec) / 1e6;
}

template <typename Run>
void TimeRung(benchmark::State& state, Run run) {
    const auto& boards = LadderStates();
    double worst = 0, worstNone = 0, total = 0;
    long calls = 0;
    for (auto _ : state) {
        for (const Board& b : boards) {
            SolveContext ctx;
            ctx.board = b;
            const double start = ThreadMs();
            const bool found = run(ctx);
            const double ms = ThreadMs() - start;
            worst = std::max(worst, ms);
            if (!found) worstNone = std::max(worstNone, ms);
            total += ms;
            ++calls;
        }
    }
    state.counters["states"] = double(boards.size());
    state.counters["worst_ms"] = worst;
    state.counters["worst_none_ms"] = worstNone;
    state.counters["mean_us"] = calls ? 1000 * total / double(calls) : 0;
}

void BM_SimpleColoring(benchmark::State& s) {
    TimeRung(s, [](SolveContext& c) { return SimpleColoring(c); });
}
void BM_MultiColor(benchmark::State& s) {
    TimeRung(s, [](SolveContext& c) { return MultiColor(c) >= 0; });
}
void BM_Medusa(benchmark::State& s) {
    TimeRung(s, [](SolveContext& c) { return Medusa(c); });
}
void BM_XYChain(benchmark::State& s) {
    TimeRung(s, [](SolveContext& c) { return XYChain(c); });
}
void BM_NiceLoopsShort(benchmark::State& s) {
    TimeRung(s, [](SolveContext& c) { return NiceLoops(c, 6) != 0; });
}
void BM_NiceLoopsLong(benchmark::State& s) {
    TimeRung(s, [](SolveContext& c) { return NiceLoops(c, 7) != 0; });
}
void BM_AIC10(benchmark::State& s) {
    TimeRung(s, [](SolveContext& c) { return AIC(c, 10) != 0; });
}
void BM_AIC20(benchmark::State& s) {
    TimeRung(s, [](SolveContext& c) { return AIC(c, 20) != 0; });
}
void BM_AIC30(benchmark::State& s) {
    TimeRung(s, [](SolveContext& c) { return AIC(c, 30) != 0; });
}
BENCHMARK(BM_SimpleColoring)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_MultiColor)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Medusa)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_XYChain)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_NiceLoopsShort)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_NiceLoopsLong)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_AIC10)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_AIC20)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_AIC30)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tavi::bench
