// SPDX-License-Identifier: GPL-3.0-or-later
// The uniqueness, exclusion and Sue-de-Coq rungs on boards where they find
// nothing: the whole scan, which is what a rating pays each time it passes them.
// Each iteration is one call on one board.
#include <benchmark/benchmark.h>

#include "grid/candidates.h"
#include "puzzle_sets.h"
#include "solver/ladder.h"
#include "solver/techniques.h"

namespace tavi::bench {
namespace {

// Boards where the fixed head of the ladder is stuck and `rung` finds nothing.
std::vector<Board> QuietBoards(bool (*rung)(SolveContext&)) {
    std::vector<Board> out;
    for (const auto& p : Generated(400, 31)) {
        SolveContext ctx;
        ctx.board = BoardFromPuzzle(p.puzzle);
        int cells = ctx.board.EmptyCount();
        bool contradiction = false;
        if (PreSolve(ctx, cells, contradiction) || contradiction) continue;
        SolveContext trial = ctx;
        if (!rung(trial)) out.push_back(ctx.board);
        if (out.size() == 50) break;
    }
    return out;
}

void RunQuiet(benchmark::State& state, bool (*rung)(SolveContext&)) {
    const auto boards = QuietBoards(rung);
    if (boards.empty()) {
        state.SkipWithError("no quiet boards");
        return;
    }
    std::vector<SolveContext> contexts(boards.size());
    for (size_t i = 0; i < boards.size(); ++i)
        contexts[i].board = boards[i];
    size_t i = 0;
    for (auto _ : state) {
        SolveContext& ctx = contexts[i++ % contexts.size()];
        benchmark::DoNotOptimize(rung(ctx));
    }
    state.SetItemsProcessed(state.iterations());
}

void BM_QuietSueDeCoq(benchmark::State& s) { RunQuiet(s, SueDeCoq); }
void BM_QuietAPE(benchmark::State& s) { RunQuiet(s, APE); }
void BM_QuietUniqueRectangle(benchmark::State& s) { RunQuiet(s, UniqueRectangle); }
void BM_QuietAvoidableRectangle(benchmark::State& s) { RunQuiet(s, AvoidableRectangle); }
void BM_QuietExtendedAPE(benchmark::State& s) { RunQuiet(s, ExtendedAPE); }
void BM_QuietBUG(benchmark::State& s) { RunQuiet(s, BUG); }
void BM_QuietATE(benchmark::State& s) { RunQuiet(s, ATE); }
void BM_QuietExtendedATE(benchmark::State& s) { RunQuiet(s, ExtendedATE); }
BENCHMARK(BM_QuietSueDeCoq);
BENCHMARK(BM_QuietAPE);
BENCHMARK(BM_QuietUniqueRectangle);
BENCHMARK(BM_QuietAvoidableRectangle);
BENCHMARK(BM_QuietExtendedAPE);
BENCHMARK(BM_QuietBUG);
BENCHMARK(BM_QuietATE);
BENCHMARK(BM_QuietExtendedATE);

}  // namespace
}  // namespace tavi::bench
