// SPDX-License-Identifier: GPL-3.0-or-later
// Walks of the search for hard puzzles: what a walk reports holds for every find,
// and a walk is fixed by its start and its draw number. (The rating with its
// measures is checked against the plain ladder beside the difficulty score.)
#include "solver/hard_search.h"

#include <gtest/gtest.h>

#include <set>

#include "grid/candidates.h"
#include "grid/levels.h"
#include "library/library_files.h"
#include "solver/solutions.h"
#include "support/puzzles.h"

namespace tavi {
namespace {

constexpr int kMayhem = 8;

// The delivered Mayhem and Outlaw puzzles: the only ones that reach Bifurcation.
std::vector<SudokuRecord> Delivered(int level) {
    std::vector<SudokuRecord> records;
    ReadSudokuFile(PuzzleFile(std::filesystem::path(TAVI_TEST_DATA_DIR) / ".." / ".." / "data",
                              LevelStem(level)),
                   records);
    return records;
}

// Bifurcation fails exactly where no trial of a true digit lets the ladder finish:
// the measure the search climbs on toward Outlaw is zero for Outlaw puzzles only,
// and measuring it leaves the rating as it was.
TEST(HardSearch, TheTrialsThatSolveAreNoneExactlyForOutlawPuzzles) {
    SolveContext ctx(Side::Workbench);
    int checked = 0;
    for (const int level : {kMayhem, kOutlaw}) {
        const std::vector<SudokuRecord> records = Delivered(level);
        for (std::size_t i = 0; i < records.size() && i < 12; ++i) {
            const SudokuRecord& r = records[i];
            const LadderRating plain = RateOnLadder(ctx, r.Puzzle);
            const LadderRating measured = RateOnLadder(ctx, r.Puzzle, &r.Solution);
            EXPECT_EQ(measured.Hardness(), plain.Hardness()) << FormatDigits(r.Puzzle);
            if (plain.level < kMayhem) continue;  // an earlier Outlaw file's puzzle
            EXPECT_EQ(measured.trialsThatSolve == 0, plain.level == kOutlaw)
                << FormatDigits(r.Puzzle);
            EXPECT_GE(measured.trialEase, measured.trialsThatSolve);
            EXPECT_GT(measured.Hardness(true), LadderRating{}.Hardness(true));
            ++checked;
        }
    }
    EXPECT_GE(checked, 12);
}

// The first generated puzzle that rates at least Kamikaze, to walk from.
const GeneratedPuzzle& HardStart() {
    SolveContext ctx(Side::Workbench);
    for (const GeneratedPuzzle& g : testing::GeneratedPuzzles(300))
        if (RateOnLadder(ctx, g.puzzle).level >= 6) return g;
    throw std::runtime_error("no Kamikaze puzzle among the test puzzles");
}

TEST(HardSearch, AWalkFindsPuzzlesOfOneSolutionAtTheWantedLevelAndRepeatsItself) {
    const Digits start = HardStart().puzzle;
    SolveContext ctx(Side::Workbench);
    const int wanted = RateOnLadder(ctx, start).level;
    HardPuzzleSearch search(wanted, 1000);
    const WalkReport walk = search.Walk(start, 11, 40);
    // Forty rated, unless fifty times as many candidates were made first.
    EXPECT_TRUE(walk.unique == 40 || (walk.unique < 40 && walk.tried == 50 * 40)) << walk.unique;
    EXPECT_GE(walk.tried, walk.unique);
    EXPECT_LE(walk.kept, walk.unique);
    ASSERT_FALSE(walk.finds.empty());
    std::set<Digits> seen;
    for (const SearchFind& f : walk.finds) {
        EXPECT_TRUE(seen.insert(f.puzzle).second);
        EXPECT_NE(f.puzzle, start);
        const SolutionCount s = Solutions(f.puzzle);
        EXPECT_EQ(s.count, 1);
        EXPECT_EQ(s.first, f.solution);
        const LadderRating fresh = RateOnLadder(ctx, f.puzzle);
        EXPECT_GE(fresh.level, wanted);
        EXPECT_EQ(fresh.Hardness(), f.rating.Hardness());
    }

    // Another search object, the same start and draw number: the same walk. Another draw number
    // goes elsewhere.
    HardPuzzleSearch again(wanted, 1000);
    const WalkReport repeat = again.Walk(start, 11, 40);
    const auto puzzles = [](const WalkReport& w) {
        std::vector<Digits> out;
        for (const SearchFind& f : w.finds)
            out.push_back(f.puzzle);
        return std::tuple(w.tried, w.kept, out);
    };
    EXPECT_EQ(puzzles(repeat), puzzles(walk));
    const WalkReport other = again.Walk(start, 12, 40);
    EXPECT_FALSE(!other.finds.empty() && other.finds[0].puzzle == walk.finds[0].puzzle);

    // A walk caps the finds of a level.
    HardPuzzleSearch capped(wanted, 2);
    const WalkReport few = capped.Walk(start, 11, 40);
    std::array<int, 10> perLevel{};
    for (const SearchFind& f : few.finds)
        EXPECT_LE(++perLevel[f.rating.level], 2);
}

}  // namespace
}  // namespace tavi
