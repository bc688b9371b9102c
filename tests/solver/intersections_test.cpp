#include <gtest/gtest.h>

#include "solver/techniques.h"
#include "support/boards.h"

namespace tavi {
namespace {

using testing::kBoxes;
using testing::kColumns;
using testing::kRows;
using testing::Only;

struct Case {
    const char* name;
    std::vector<Only> shape;
    int digit, leftTop, variant;  // variant: the segment 0..5 (kind 3); 1 row, 2 column (kind 4)
    std::vector<int> loses;       // the cells that lose the digit; none: no hit
    int line = 0;                 // kind 4: the row or column
};

TEST(PointingPair, ClearsTheRestOfTheLineAndFillsKindThree) {
    const Case cases[] = {
        {"pair in a row segment", {{5, kBoxes + 0, {0, 1}}}, 5, 0, 0, {3, 4, 5, 6, 7, 8}},
        {"pair in a column segment",
         {{5, kBoxes + 4, {31, 49}}},
         5,
         30,
         4,
         {4, 13, 22, 58, 67, 76}},
        {"three in a row segment",
         {{8, kBoxes + 8, {60, 61, 62}}},
         8,
         60,
         0,
         {54, 55, 56, 57, 58, 59}},
        {"a lone digit matches its row segment first",
         {{3, kBoxes + 0, {10}}},
         3,
         0,
         1,
         {12, 13, 14, 15, 16, 17}},
        {"a lone digit whose row is spent goes to its column",
         {{3, kBoxes + 0, {10}}, {3, kRows + 1, {10}}},
         3,
         0,
         4,
         {28, 37, 46, 55, 64, 73}},
        {"spent patterns are passed over",
         {{1, kBoxes + 0, {0, 1}},
          {1, kRows + 0, {0, 1}},
          {1, kBoxes + 4, {31, 49}},
          {1, kColumns + 4, {31, 49}},
          {1, kBoxes + 8, {70, 79}}},
         1,
         60,
         4,
         {16, 25, 34, 43, 52}},
        {"every box for a digit before the next digit",
         {{2, kBoxes + 0, {0, 1}}, {1, kBoxes + 8, {79, 80}}},
         1,
         60,
         2,
         {72, 73, 74, 75, 76, 77}},
        {"the lower box first",
         {{1, kBoxes + 6, {54, 55}}, {1, kBoxes + 2, {6, 7}}},
         1,
         6,
         0,
         {0, 1, 2, 3, 4, 5}},
        {"nothing live", {{4, kBoxes + 0, {0, 1}}, {4, kRows + 0, {0, 1}}}, 0, 0, 0, {}},
    };
    for (const Case& k : cases) {
        SCOPED_TRACE(k.name);
        const auto [found, h, removed] =
            testing::RunAsHintAndForReal(testing::OpenBoardWith(k.shape), 2, PointingPair);
        EXPECT_EQ(removed, testing::RemovalsOf(k.digit, k.loses));
        if (!found) continue;
        EXPECT_EQ(h.HintKind, 3);
        EXPECT_EQ(h.HintNumber, k.digit);
        EXPECT_EQ(h.HintCell, k.leftTop);
        EXPECT_EQ(h.HintVariant, k.variant);
        EXPECT_EQ(h.HintRow, -99);
        EXPECT_EQ(h.HintColumn, -99);
    }
}

TEST(BoxLine, ClearsTheRestOfTheBoxAndFillsKindFour) {
    const Case cases[] = {
        {"three cells of row E",
         {{8, kRows + 4, {39, 40, 41}}},
         8,
         30,
         1,
         {30, 31, 32, 48, 49, 50},
         4},
        {"two cells of column 1", {{2, kColumns + 0, {0, 18}}}, 2, 0, 2, {1, 2, 10, 11, 19, 20}, 0},
        {"a row hit for 9 comes before a column hit for 1",
         {{9, kRows + 8, {78, 79}}, {1, kColumns + 0, {0, 9}}},
         9,
         60,
         1,
         {60, 61, 62, 69, 70, 71},
         8},
        {"a spent row is passed over",
         {{5, kRows + 0, {0, 1}}, {5, kBoxes + 0, {0, 1}}, {5, kColumns + 8, {62, 71}}},
         5,
         60,
         2,
         {60, 61, 69, 70, 78, 79},
         8},
        {"every row for a digit before the next digit",
         {{2, kRows + 0, {0, 1}}, {1, kRows + 8, {79, 80}}},
         1,
         60,
         1,
         {60, 61, 62, 69, 70, 71},
         8},
        {"nothing live", {{5, kRows + 0, {0, 1}}, {5, kBoxes + 0, {0, 1}}}, 0, 0, 0, {}},
    };
    for (const Case& k : cases) {
        SCOPED_TRACE(k.name);
        const auto [found, h, removed] =
            testing::RunAsHintAndForReal(testing::OpenBoardWith(k.shape), 2, BoxLine);
        EXPECT_EQ(removed, testing::RemovalsOf(k.digit, k.loses));
        if (!found) continue;
        EXPECT_EQ(h.HintKind, 4);
        EXPECT_EQ(h.HintNumber, k.digit);
        EXPECT_EQ(h.HintCell, k.leftTop);
        EXPECT_EQ(h.HintVariant, k.variant);
        EXPECT_EQ(k.variant == 1 ? h.HintRow : h.HintColumn, k.line);
        EXPECT_EQ(k.variant == 1 ? h.HintColumn : h.HintRow, -99);
    }
}

}  // namespace
}  // namespace tavi
