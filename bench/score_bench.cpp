// SPDX-License-Identifier: GPL-3.0-or-later
// The difficulty score against the plain rating, puzzle for puzzle: the score
// comes out of the same run, so the two should stay within a few per cent. Each
// iteration rates one puzzle of the set, so items_per_second reads as puzzles per
// second.
#include <benchmark/benchmark.h>

#include "game/practice_index.h"
#include "grid/candidates.h"
#include "grid/levels.h"
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

// The practice index of a 7,000-puzzle library on two threads: the first 7,000
// generated puzzles, then the starter library's nine files as they lie.
void BM_PracticeIndex7000(benchmark::State& state) {
    const std::vector<Digits> library(GeneratedSet().begin(), GeneratedSet().begin() + 7000);
    for (auto _ : state)
        benchmark::DoNotOptimize(IndexPuzzles(library, 2));
    state.SetItemsProcessed(state.iterations() * 7000);
}
BENCHMARK(BM_PracticeIndex7000)->Iterations(1)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_PracticeIndexStarterLibrary(benchmark::State& state) {
    std::vector<Digits> library;
    for (int level = 1; level <= kLevelCount; ++level)
        if (auto file = ReadLibraryPuzzles(std::filesystem::path(TAVI_DATA_DIR) /
                                           (std::string(LevelStem(level)) + "s")))
            library.insert(library.end(), file->puzzles.begin(), file->puzzles.end());
    if (library.empty()) return state.SkipWithError("no library");
    for (auto _ : state)
        benchmark::DoNotOptimize(IndexPuzzles(library, 2));
    state.SetItemsProcessed(state.iterations() * long(library.size()));
}
BENCHMARK(BM_PracticeIndexStarterLibrary)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

}  // namespace
}  // namespace tavi::bench
