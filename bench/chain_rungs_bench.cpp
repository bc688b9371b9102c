// SPDX-License-Identifier: GPL-3.0-or-later
// The last rungs before bifurcation on boards where they find nothing, which is
// where they cost the most: the whole search runs out. The boards are the states
// the fixed head of the ladder leaves on the forum's hardest puzzles. Each
// iteration is one board, so items_per_second reads as boards per second.
#include <benchmark/benchmark.h>

#include "grid/candidates.h"
#include "puzzle_sets.h"
#include "solver/ladder.h"
#include "solver/techniques.h"

namespace tavi::bench {
namespace {

using Technique = bool (*)(SolveContext&);

std::vector<Board> BoardsWhereNothingIsFound(Technique technique, size_t wanted) {
    std::vector<Board> out;
    for (const auto& p : ReadPuzzleFile("puzzles6_forum_hardest_1106.txt")) {
        if (out.size() >= wanted) break;
        SolveContext ctx;
        ctx.board = BoardFromPuzzle(p);
        int cells = ctx.board.EmptyCount();
        bool contradiction = false;
        if (PreSolve(ctx, cells, contradiction) || contradiction) continue;
        ModeScope looking(ctx, ctx.Mode().With(SolveMode::kHintOnly));
        if (!technique(ctx)) out.push_back(ctx.board);
    }
    return out;
}

void RunOn(benchmark::State& state, Technique technique, const std::vector<Board>& boards) {
    if (boards.empty()) {
        state.SkipWithError("no boards");
        return;
    }
    SolveContext ctx;
    size_t i = 0;
    for (auto _ : state) {
        ctx.board = boards[i++ % boards.size()];
        ctx.hint.Conclusions.Clear();
        benchmark::DoNotOptimize(technique(ctx));
    }
    state.SetItemsProcessed(state.iterations());
}

void BM_ALSxzFindsNothing(benchmark::State& state) {
    static const auto boards = BoardsWhereNothingIsFound(ALSxz, 40);
    RunOn(state, ALSxz, boards);
}
BENCHMARK(BM_ALSxzFindsNothing)->Unit(benchmark::kMillisecond);

void BM_MultiFishFindsNothing(benchmark::State& state) {
    static const auto boards = BoardsWhereNothingIsFound(MultiFish, 200);
    RunOn(state, MultiFish, boards);
}
BENCHMARK(BM_MultiFishFindsNothing)->Unit(benchmark::kMicrosecond);

void BM_ForcingFindsNothing(benchmark::State& state) {
    static const auto boards = BoardsWhereNothingIsFound(Forcing, 40);
    RunOn(state, Forcing, boards);
}
BENCHMARK(BM_ForcingFindsNothing)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tavi::bench
