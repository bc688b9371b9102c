// The difficulty score against the plain rating, puzzle for puzzle: the score
// comes out of the same run, so the two should stay within a few per cent. Each
// iteration rates one puzzle of the set, so items_per_second reads as puzzles per
// second.
#include <benchmark/benchmark.h>

#include "grid/candidates.h"
#include "puzzle_sets.h"
#include "solver/difficulty_score.h"
#include "solver/ladder.h"

namespace tavi::bench {
namespace {

const std::vector<Digits>& GeneratedSet() {
    static const auto puzzles = [] {
        std::vector<Digits> out;
        for (const GeneratedPuzzle& p : Generated(10000, 33))
            out.push_back(p.puzzle);
        return out;
    }();
    return puzzles;
}

const std::vector<Digits>& HardestSet() {
    static const auto puzzles = ReadPuzzleFile("puzzles6_forum_hardest_1106.txt");
    return puzzles;
}

void Plain(benchmark::State& state, const std::vector<Digits>& puzzles) {
    if (puzzles.empty()) return state.SkipWithError("no puzzles");
    SolveContext ctx;
    const WorkbenchRun run;
    std::size_t i = 0;
    for (auto _ : state) {
        ctx.board = BoardFromPuzzle(puzzles[i++ % puzzles.size()]);
        benchmark::DoNotOptimize(SolveSudoku(ctx, run));
    }
    state.SetItemsProcessed(state.iterations());
}

void Scored(benchmark::State& state, const std::vector<Digits>& puzzles) {
    if (puzzles.empty()) return state.SkipWithError("no puzzles");
    SolveContext ctx;
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(RatePuzzleWithScore(ctx, puzzles[i++ % puzzles.size()]));
    state.SetItemsProcessed(state.iterations());
}

void BM_RateGenerated(benchmark::State& state) { Plain(state, GeneratedSet()); }
void BM_RateGeneratedWithScore(benchmark::State& state) { Scored(state, GeneratedSet()); }
void BM_RateHardest(benchmark::State& state) { Plain(state, HardestSet()); }
void BM_RateHardestWithScore(benchmark::State& state) { Scored(state, HardestSet()); }
// Whole passes over each set, so that both sides rate the same puzzles.
BENCHMARK(BM_RateGenerated)->Iterations(10000);
BENCHMARK(BM_RateGeneratedWithScore)->Iterations(10000);
BENCHMARK(BM_RateHardest)->Iterations(375);
BENCHMARK(BM_RateHardestWithScore)->Iterations(375);

}  // namespace
}  // namespace tavi::bench
