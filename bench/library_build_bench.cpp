// SPDX-License-Identifier: GPL-3.0-or-later
// Making the delivered library: random puzzles rated into Easy to Kamikaze (the
// goal: 1,000 each in under 5 minutes on two cores), walks of the search for hard
// puzzles (candidates tried and kept per second), and the canonical form that
// keeps every puzzle once.
#include <benchmark/benchmark.h>

#include "cli/library_build.h"
#include "grid/levels.h"
#include "puzzle_sets.h"
#include "solver/canonical_form.h"
#include "solver/hard_search.h"

namespace tavi {
namespace {

// library build for Easy to Kamikaze, state.range(0) each, on state.range(1)
// threads; the counters give each level's puzzles per second.
void BM_BuildRandomLevels(benchmark::State& state) {
    cli::LibraryPlan plan;
    for (int level = 1; level <= 6; ++level)
        plan.wanted[level] = state.range(0);
    plan.start = 20261124;
    plan.threads = int(state.range(1));
    plan.walks = 0;
    for (auto _ : state) {
        const cli::LibraryPuzzles made = cli::MakeLibraryPuzzles(plan);
        for (int level = 1; level <= 6; ++level)
            state.counters[std::string(LevelName(level)) + "/s"] =
                double(made.levels[level].size()) / made.seconds[level];
        state.counters["generated/s"] = double(made.generated) / made.randomSeconds;
        state.counters["seconds"] = made.randomSeconds;
    }
}
BENCHMARK(BM_BuildRandomLevels)
    ->Args({100, 2})
    ->Args({1000, 2})
    ->Unit(benchmark::kSecond)
    ->Iterations(1);

// One walk of 100 rated candidates from the hardest of 2,000 random puzzles.
void BM_SearchWalk(benchmark::State& state) {
    SolveContext ctx(Side::Workbench);
    Digits start{};
    LadderRating best;
    for (const GeneratedPuzzle& g : bench::Generated(2000)) {
        const LadderRating r = RateOnLadder(ctx, g.puzzle);
        if (r.Hardness() > best.Hardness()) best = r, start = g.puzzle;
    }
    HardPuzzleSearch search(8, 4);
    long tried = 0, unique = 0, kept = 0;
    std::uint64_t draw = 1;
    for (auto _ : state) {
        const WalkReport walk = search.Walk(start, draw++, 100);
        tried += walk.tried, unique += walk.unique, kept += walk.kept;
    }
    using benchmark::Counter;
    state.counters["tried/s"] = Counter(double(tried), Counter::kIsRate);
    state.counters["rated/s"] = Counter(double(unique), Counter::kIsRate);
    state.counters["kept/s"] = Counter(double(kept), Counter::kIsRate);
}
BENCHMARK(BM_SearchWalk)->Unit(benchmark::kSecond)->Iterations(3);

void BM_CanonicalForm(benchmark::State& state) {
    const auto puzzles = bench::Generated(200);
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(CanonicalForm(puzzles[i++ % puzzles.size()].puzzle));
}
BENCHMARK(BM_CanonicalForm)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tavi
