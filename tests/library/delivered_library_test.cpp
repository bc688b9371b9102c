// SPDX-License-Identifier: GPL-3.0-or-later
// The library delivered in data/, read from the files themselves: every puzzle has
// one solution, which its record holds, rates on the plain ladder exactly at the
// level of its file, and stands once in the whole library, even in other clothes;
// each file goes from easier puzzles to harder ones, and holds as many as promised.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>

#include "grid/levels.h"
#include "library/library_files.h"
#include "solver/canonical_form.h"
#include "solver/difficulty_score.h"
#include "solver/solutions.h"

namespace tavi {
namespace {

namespace fs = std::filesystem;

const fs::path kDelivered = fs::path(TAVI_TEST_DATA_DIR) / ".." / ".." / "data";

// At least this many per level: Outlaw holds what an hour's search toward it found.
constexpr std::array<std::size_t, 10> kPromised = {0,    1000, 1000, 1000, 1000,
                                                   1000, 1000, 500,  100,  3};

TEST(DeliveredLibrary, EveryPuzzleRatesAtItsLevelOnceInTheLibraryEasierFirst) {
    SolveContext ctx(Side::Workbench);
    std::map<Digits, std::string> forms;
    for (int level = 1; level <= kLevelCount; ++level) {
        const fs::path file = PuzzleFile(kDelivered, LevelStem(level));
        std::vector<SudokuRecord> records;
        std::size_t trailing = 0;
        ASSERT_TRUE(ReadSudokuFile(file, records, &trailing)) << file;
        EXPECT_EQ(trailing, 0u) << file;
        EXPECT_GE(records.size(), kPromised[level]) << file;
        double previous = 0;
        for (std::size_t i = 0; i < records.size(); ++i) {
            const SudokuRecord& r = records[i];
            const std::string where =
                std::string(PuzzleFileName(LevelStem(level))) + " record " + std::to_string(i + 1);
            const SolutionCount s = Solutions(r.Puzzle);
            ASSERT_EQ(s.count, 1) << where;
            EXPECT_EQ(r, (SudokuRecord{r.Puzzle, s.first, 0, 0})) << where;
            const PuzzleRating rating = RatePuzzleWithScore(ctx, r.Puzzle);
            EXPECT_EQ(rating.level, level) << where;
            EXPECT_GE(rating.score, previous) << where;
            previous = rating.score;
            const auto [at, added] = forms.emplace(CanonicalForm(r.Puzzle), where);
            EXPECT_TRUE(added) << where << " is " << at->second << " in other clothes";
        }
    }
}

}  // namespace
}  // namespace tavi
