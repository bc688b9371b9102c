// SPDX-License-Identifier: GPL-3.0-or-later
// The puzzles of `library build`: every level holds puzzles of its own level only,
// of one solution, each once up to the grid's symmetries, easier ones first; and
// the same start value gives the same library on one thread or two, search included.
#include "cli/library_build.h"

#include <gtest/gtest.h>

#include <set>

#include "grid/levels.h"
#include "library/library_files.h"
#include "solver/canonical_form.h"
#include "solver/difficulty_score.h"
#include "solver/solutions.h"

namespace tavi::cli {
namespace {

LibraryPuzzles Build(int threads) {
    LibraryPlan plan;
    plan.wanted = {0, 12, 12, 12, 12, 12, 12, 6, 2, 1};
    plan.start = 77;
    plan.threads = threads;
    plan.walks = 3;
    plan.ratingsPerWalk = 8;
    return MakeLibraryPuzzles(plan);
}

TEST(LibraryBuild, LevelsHoldTheirOwnPuzzlesOnceEasierFirstTheSameOnAnyNumberOfThreads) {
    const LibraryPuzzles one = Build(1);
    SolveContext ctx(Side::Workbench);
    std::set<Digits> forms;
    std::size_t total = 0;
    for (int level = 1; level <= kLevelCount; ++level) {
        const auto& records = one.levels[level];
        EXPECT_EQ(one.searched[level], level >= 8) << level;
        if (level <= 7) {
            EXPECT_EQ(long(records.size()), level == 7 ? 6 : 12) << level;
        }
        double previous = 0;
        for (const SudokuRecord& r : records) {
            const SolutionCount s = Solutions(r.Puzzle);
            EXPECT_EQ(s.count, 1);
            EXPECT_EQ(r, (SudokuRecord{r.Puzzle, s.first, 0, 0}));
            const PuzzleRating rating = RatePuzzleWithScore(ctx, r.Puzzle);
            EXPECT_EQ(rating.level, level) << FormatDigits(r.Puzzle);
            EXPECT_GE(rating.score, previous) << LevelName(level);
            previous = rating.score;
            forms.insert(CanonicalForm(r.Puzzle));
            ++total;
        }
    }
    EXPECT_EQ(forms.size(), total);
    EXPECT_GT(one.generated, 0);
    EXPECT_EQ(one.search.walks, 3);  // two Mayhem and an Outlaw are not found so soon
    EXPECT_GT(one.search.unique, 0);
    EXPECT_LE(one.search.unique, 3 * 8);
    EXPECT_LE(one.search.unique, one.search.tried);
    EXPECT_LE(one.search.kept, one.search.unique);

    const LibraryPuzzles two = Build(2);
    EXPECT_EQ(two.generated, one.generated);
    EXPECT_EQ(two.search.tried, one.search.tried);
    for (int level = 1; level <= kLevelCount; ++level)
        EXPECT_EQ(two.levels[level], one.levels[level]) << level;
}

// A build from given puzzles makes no random ones, never gives back a given
// puzzle in any clothes, and repeats itself on any number of threads.
TEST(LibraryBuild, ABuildFromGivenPuzzlesFindsNewOnesOfTheWantedLevelOnly) {
    std::vector<SudokuRecord> mayhem;
    ASSERT_TRUE(ReadSudokuFile(
        PuzzleFile(std::filesystem::path(TAVI_TEST_DATA_DIR) / ".." / ".." / "data", LevelStem(8)),
        mayhem));
    LibraryPlan plan;
    plan.wanted[8] = 2;
    plan.walks = 8;
    plan.ratingsPerWalk = 24;
    std::set<Digits> given;
    for (std::size_t i = 0; i < 16; ++i) {
        plan.from.push_back(mayhem[i].Puzzle);
        given.insert(CanonicalForm(mayhem[i].Puzzle));
    }
    const LibraryPuzzles one = MakeLibraryPuzzles(plan);
    EXPECT_EQ(one.generated, 0);
    ASSERT_FALSE(one.levels[8].empty());
    SolveContext ctx(Side::Workbench);
    for (const SudokuRecord& r : one.levels[8]) {
        EXPECT_EQ(given.count(CanonicalForm(r.Puzzle)), 0u) << FormatDigits(r.Puzzle);
        EXPECT_EQ(RatePuzzleWithScore(ctx, r.Puzzle).level, 8);
    }
    plan.threads = 2;
    EXPECT_EQ(MakeLibraryPuzzles(plan).levels, one.levels);
}

}  // namespace
}  // namespace tavi::cli
