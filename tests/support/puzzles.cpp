#include "support/puzzles.h"

#include <gtest/gtest.h>

#include <map>

#include "grid/candidates.h"

namespace tavi::testing {

const std::vector<GeneratedPuzzle>& GeneratedPuzzles(int count, std::uint64_t seed) {
    static std::map<std::pair<int, std::uint64_t>, std::vector<GeneratedPuzzle>> made;
    auto& list = made[{count, seed}];
    if (list.empty()) {
        PuzzleGenerator generator(seed);
        list.reserve(count);
        for (int i = 0; i < count; ++i)
            list.push_back(generator.Next());
    }
    return list;
}

Digits DigitsOf(std::string_view text) {
    std::string why;
    auto d = ParseDigits(text, &why);
    EXPECT_TRUE(d.has_value()) << why << ": " << text;
    return d.value_or(Digits{});
}

SolveContext ContextFor(std::string_view puzzle, Side side) {
    SolveContext ctx(side);
    ctx.board = BoardFromPuzzle(DigitsOf(puzzle));
    return ctx;
}

}  // namespace tavi::testing
