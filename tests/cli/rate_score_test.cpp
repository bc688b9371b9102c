// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <sstream>

#include "cli/commands.h"
#include "cli/library_commands.h"
#include "grid/board.h"
#include "library/library_test_support.h"
#include "support/puzzles.h"

namespace tavi::cli {
namespace {

using testing::Lines;

// --score only adds a fourth field: the first three are rate's own, line for
// line, and the fourth is a number with one decimal.
TEST(CliRate, ScoreAddsAFourthFieldAndChangesNothingElse) {
    std::string input;
    for (const GeneratedPuzzle& p : testing::GeneratedPuzzles(120))
        input += FormatDigits(p.puzzle) + '\n';
    input += FormatDigits(testing::WithClash(testing::GeneratedPuzzles(1)[0].puzzle)) + '\n';
    std::istringstream plainIn(input), scoredIn(input);
    std::ostringstream plainOut, scoredOut, err;
    const int plainStatus = Rate(plainIn, plainOut, err);
    RateOptions options;
    options.score = true;
    EXPECT_EQ(Rate(scoredIn, scoredOut, err, options), plainStatus);
    const auto plain = Lines(plainOut.str()), scored = Lines(scoredOut.str());
    ASSERT_EQ(plain.size(), scored.size());
    for (std::size_t i = 0; i < plain.size(); ++i) {
        if (plain[i].find("invalid") != std::string::npos) {
            EXPECT_EQ(scored[i], plain[i]);
            continue;
        }
        ASSERT_EQ(scored[i].substr(0, plain[i].size() + 1), plain[i] + '\t');
        const std::string score = scored[i].substr(plain[i].size() + 1);
        EXPECT_TRUE(score.size() >= 3 && score[score.size() - 2] == '.') << score;
        EXPECT_GT(std::stod(score), 0.9);
    }
}

// library export --score ends each line with the score rate --score gives.
TEST(CliLibrary, ExportWithScoreAddsTheScoreOfRate) {
    testing::TempDir dir;
    const auto sds = dir / "x.sds";
    std::vector<SudokuRecord> records;
    std::string input;
    for (const GeneratedPuzzle& p : testing::GeneratedPuzzles(40, 12)) {
        records.push_back({p.puzzle, p.solution, 0, 0});
        input += FormatDigits(p.puzzle) + '\n';
    }
    ASSERT_TRUE(WriteSudokuFile(sds, records));
    std::ostringstream exported, err;
    ASSERT_EQ(LibraryCommand({"library", "export", sds.string(), "--score"}, exported, err), 0)
        << err.str();
    std::istringstream in(input);
    std::ostringstream rated;
    RateOptions options;
    options.score = true;
    Rate(in, rated, err, options);
    const auto lines = Lines(exported.str()), scores = Lines(rated.str());
    ASSERT_EQ(lines.size(), records.size());
    for (std::size_t i = 0; i < lines.size(); ++i)
        EXPECT_EQ(lines[i].substr(lines[i].rfind('\t')), scores[i].substr(scores[i].rfind('\t')));
}

}  // namespace
}  // namespace tavi::cli
