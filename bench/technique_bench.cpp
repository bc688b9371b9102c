// SPDX-License-Identifier: GPL-3.0-or-later
// The cost of one scan of a technique over a board where it finds nothing: the
// price every rating pays each time the ladder passes the rung.
#include <benchmark/benchmark.h>

#include "grid/board.h"
#include "solver/ladder.h"

namespace tavi::bench {
namespace {

// A state of a generated puzzle on which none of the fish, wings and single-digit
// patterns finds anything, with 202 candidates left.
constexpr const char* kQuietBoard =
    "200000400100600037057000000000806000500000000030402160000710050300009000080000021 "
    "203000400100600037057000000000806000500000000030402160000710050300009000080000021 "
    "..............6..9.........1...5...9......7891...5.78..........1......89....56.89.........."
    "..4....9...4...89..........2.4...89...45..8..2..5..89.....................4.6.89..........."
    ".......123.....9.234...891.34...8..2...6.891......89.2...6.89...4..7.912.4..7.912.4....9.."
    ".........3.5.7.9..........23.5.7.9...4..7.9.2345...9..........2.4.67.9.2.4.6.891.3.....9.."
    "3...7.91.3...7...23...789...4..789.234...89......789................89.............5.7.9..."
    "............................5..89...4.6..9.2.4.6..9.2.4.6..9....................34...8...3"
    "..6.89...........34.6.89.........1..4.67..1..456....2..5.....2.4.6.8...............678...."
    "4..78....4.6.8....4.67.9............456..9..3.5......34.6.....345......3..67.9............"
    "......";

void BM_QuietScan(benchmark::State& state, int technique) {
    const auto board = ParseBoardLine(kQuietBoard);
    if (!board) {
        state.SkipWithError("bad board");
        return;
    }
    SolveContext ctx;
    ctx.board = *board;
    const Rung& rung = RungsOf(technique)[0];
    for (auto _ : state) {
        ctx.hint.Conclusions.Clear();
        benchmark::DoNotOptimize(rung.run(ctx));
    }
    if (rung.run(ctx).found) state.SkipWithError("the rung found something");
}

BENCHMARK_CAPTURE(BM_QuietScan, XWing, 8);
BENCHMARK_CAPTURE(BM_QuietScan, SwordFish, 9);
BENCHMARK_CAPTURE(BM_QuietScan, MultiXWing, 10);
BENCHMARK_CAPTURE(BM_QuietScan, EmptyRectangle, 11);
BENCHMARK_CAPTURE(BM_QuietScan, XYWing, 12);
BENCHMARK_CAPTURE(BM_QuietScan, TwoStringKite, 13);
BENCHMARK_CAPTURE(BM_QuietScan, Skyscraper, 14);
BENCHMARK_CAPTURE(BM_QuietScan, XYZWing, 15);
BENCHMARK_CAPTURE(BM_QuietScan, JellyFish, 17);
BENCHMARK_CAPTURE(BM_QuietScan, WXYZWing, 18);
BENCHMARK_CAPTURE(BM_QuietScan, FinnedXWing, 20);

}  // namespace
}  // namespace tavi::bench
