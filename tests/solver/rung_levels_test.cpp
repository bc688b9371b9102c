// The level a hit reaches is the catalog's: over every state that a rating run of
// the hard corpus passes through beyond the fixed head, each rung is tried on its
// own. A hit must raise SolvingLevel to exactly the rung's catalog level and a miss
// must raise nothing; the routine itself raises nothing, since the walk does it.
#include <gtest/gtest.h>

#include <fstream>

#include "grid/candidates.h"
#include "solver/ladder.h"
#include "support/puzzles.h"

namespace tavi {
namespace {

std::vector<Digits> HardCorpus() {
    std::ifstream file(std::string(TAVI_TEST_DATA_DIR) + "/hard_puzzles.txt");
    std::vector<Digits> out;
    for (std::string line; std::getline(file, line);)
        if (!line.empty() && line[0] != '#') out.push_back(testing::DigitsOf(line.substr(0, 81)));
    return out;
}

TEST(RungLevels, EveryHitRaisesExactlyItsCatalogLevel) {
    const auto corpus = HardCorpus();
    ASSERT_GE(corpus.size(), 300u);
    const auto rungs = LadderRungs();
    std::vector<int> hits(rungs.size());
    for (const Digits& puzzle : corpus) {
        SolveContext ctx(Side::Workbench);
        ctx.board = BoardFromPuzzle(puzzle);
        bool tried = false;
        WorkbenchRun run;
        run.observer.before = [&](const Rung& at) {
            if (tried || at.number < kFirstOrderedTechnique) return;
            tried = true;
            // Bifurcation's trials are whole ladders of their own: left out for time.
            for (size_t r = 0; r + 1 < rungs.size(); ++r) {
                const Rung& rung = rungs[r];
                SolveContext raw = ctx;
                raw.SolvingLevel = 0;
                const bool found = rung.run(raw).found;
                ASSERT_EQ(raw.SolvingLevel, 0) << rung.Name() << " raised a level of its own";
                SolveContext walked = ctx;
                walked.SolvingLevel = 0;
                ASSERT_EQ(RunRung(walked, rung).found, found) << rung.Name();
                ASSERT_EQ(walked.SolvingLevel, found ? rung.level : 0) << rung.Name();
                hits[r] += found;
            }
        };
        run.observer.hit = [&](const Rung&) { tried = false; };
        SolveSudoku(ctx, run);
        if (HasFailure()) return;
    }
    // The corpus reaches every level from Crazy up.
    std::array<bool, 9> reached{};
    for (size_t r = 0; r < hits.size(); ++r)
        if (hits[r]) reached[size_t(rungs[r].level)] = true;
    for (int level = 4; level <= 8; ++level)
        EXPECT_TRUE(reached[size_t(level)]) << "no hit at level " << level;
}

}  // namespace
}  // namespace tavi
