// SPDX-License-Identifier: GPL-3.0-or-later
// The ladder's signature over a fixed list of puzzles must stay as it is recorded:
// a change of any rung's behaviour shows here. The puzzles are the first column of
// the file itself, so a change of the generator cannot move this check. When a
// change of the ladder is meant (a new technique), the file is made again with the
// command in its header.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "cli/commands.h"
#include "support/puzzles.h"

namespace tavi::cli {
namespace {

TEST(LadderSignature, StaysAsRecorded) {
    std::ifstream file(std::string(TAVI_TEST_DATA_DIR) + "/ladder_signature.tsv");
    ASSERT_TRUE(file) << "missing tests/data/ladder_signature.tsv";
    std::vector<std::string> expected;
    for (std::string line; std::getline(file, line);)
        if (!line.empty() && line[0] != '#') expected.push_back(line);
    ASSERT_EQ(expected.size(), 301u) << "300 puzzles and the line of hits per rung";

    std::string puzzles;
    for (size_t i = 0; i + 1 < expected.size(); ++i)
        puzzles += expected[i].substr(0, expected[i].find('\t')) + '\n';
    std::istringstream in(puzzles);
    std::ostringstream out, err;
    ASSERT_EQ(Signature(in, out, err), 0);
    const auto got = testing::Lines(out.str());
    ASSERT_EQ(got.size(), expected.size());
    for (size_t i = 0; i < expected.size(); ++i)
        EXPECT_EQ(got[i], expected[i]) << "puzzle " << i + 1;
}

}  // namespace
}  // namespace tavi::cli
