#include <gtest/gtest.h>

#include <sstream>

#include "cli/commands.h"
#include "support/puzzles.h"

namespace tavi::cli {
namespace {

struct Output {
    int status;
    std::string out, err;
};

template <typename Command>
Output Run(Command command, const std::string& input) {
    std::istringstream in(input);
    std::ostringstream out, err;
    const int status = command(in, out, err);
    return {status, out.str(), err.str()};
}

Output RunRate(const std::string& input) {
    return Run([](auto& in, auto& out, auto& err) { return Rate(in, out, err); }, input);
}

}  // namespace

TEST(CliRate, RatesEachPuzzleAndSkipsCommentsAndBlankLines) {
    const auto& puzzles = testing::GeneratedPuzzles(3);
    std::string input = "# a comment\n\n";
    for (const auto& p : puzzles) input += FormatDigits(p.puzzle, '.') + "  trailing words\n";
    const Output o = RunRate(input);
    EXPECT_EQ(o.status, 0);
    EXPECT_EQ(o.err, "");
    std::istringstream lines(o.out);
    std::string line;
    int n = 0;
    while (std::getline(lines, line)) {
        ASSERT_LT(n, 3);
        EXPECT_EQ(line.substr(0, 82), FormatDigits(puzzles[n].puzzle, '.') + "\t") << line;
        ++n;
    }
    EXPECT_EQ(n, 3);
}

}  // namespace tavi::cli
