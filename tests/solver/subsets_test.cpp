#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "solver/techniques.h"
#include "support/boards.h"

namespace tavi {
namespace {

using testing::kBoxes;
using testing::kColumns;
using testing::kRows;
using testing::Removal;

// What a kind 5 record names: the variant, its house, the cells and the digits.
struct Subset {
    int variant, house;
    std::vector<int> cells, digits;
    bool operator==(const Subset&) const = default;
};
std::ostream& operator<<(std::ostream& os, const Subset& s) {
    os << "variant " << s.variant << " house " << s.house << " cells";
    for (int c : s.cells)
        os << ' ' << CellName(c);
    os << " digits";
    for (int d : s.digits)
        os << ' ' << d;
    return os;
}

Subset Named(const HintRecord& h) {
    EXPECT_EQ(h.HintKind, 5);
    EXPECT_EQ(h.HintCellCount, h.HintValueCount);
    const int unit = std::abs(h.HintVariant);
    Subset s{h.HintVariant, unit == 1 ? h.HintRow : unit == 2 ? h.HintColumn : h.HintCell, {}, {}};
    // The houses the variant does not name stay as they were.
    EXPECT_EQ((h.HintRow == -99) + (h.HintColumn == -99) + (h.HintCell == -99), 2);
    for (int i = 1; i <= std::min(h.HintCellCount, HintRecord::kListSize); ++i) {
        s.cells.push_back(h.HintCells[i]);
        s.digits.push_back(h.HintValues[i]);
    }
    return s;
}

// Every digit of `digits` from every cell of `cells`, in cell order.
std::vector<Removal> Each(std::vector<int> cells, std::initializer_list<int> digits) {
    std::vector<Removal> out;
    std::sort(cells.begin(), cells.end());
    for (int c : cells)
        for (int d : digits)
            out.emplace_back(c, d);
    return out;
}

struct Case {
    const char* name;
    std::vector<std::pair<std::vector<int>, std::vector<int>>> cells;  // their candidates
    std::vector<testing::Only> only;
    bool naked;
    int size;
    Subset expected;  // variant 0: no hit
    std::vector<Removal> removed;
};

TEST(NakedHidden, FindsTheFirstLiveSetAndFillsKindFive) {
    // clang-format off
    const Case cases[] = {
        {"a row pair before a column pair before a box pair",
         {{{73, 77}, {1, 2}}, {{0, 36}, {3, 4}}, {{30, 40}, {5, 6}}}, {}, true, 2,
         {1, 8, {73, 77}, {1, 2}}, Each({72, 74, 75, 76, 78, 79, 80}, {1, 2})},
        {"a column pair before a box pair", {{{0, 36}, {3, 4}}, {{30, 40}, {5, 6}}}, {}, true, 2,
         {2, 0, {0, 36}, {3, 4}}, Each({9, 18, 27, 45, 54, 63, 72}, {3, 4})},
        {"a box pair", {{{30, 40}, {5, 6}}}, {}, true, 2,
         {3, 30, {30, 40}, {5, 6}}, Each({31, 32, 39, 41, 48, 49, 50}, {5, 6})},
        // {7,8,9} stands first in the row, but {1,2,3} is the first set.
        {"sets go in lexical order, not in cell order",
         {{{0}, {7, 8}}, {{1}, {8, 9}}, {{2}, {7, 9}}, {{3}, {1, 2}}, {{4}, {2, 3}}, {{5}, {1, 3}}},
         {}, true, 3, {1, 0, {3, 4, 5}, {1, 2, 3}}, Each({6, 7, 8}, {1, 2, 3})},
        {"the same triples hold no pair",
         {{{0}, {7, 8}}, {{1}, {8, 9}}, {{2}, {7, 9}}, {{3}, {1, 2}}, {{4}, {2, 3}}, {{5}, {1, 3}}},
         {}, true, 2, {}, {}},
        {"three cells of {1,2} are no pair", {{{0, 4, 8}, {1, 2}}}, {}, true, 2, {}, {}},
        {"three cells of {1,2} are the triple {1,2,3}", {{{0, 4, 8}, {1, 2}}}, {}, true, 3,
         {1, 0, {0, 4, 8}, {1, 2, 3}}, Each({1, 2, 3, 5, 6, 7}, {1, 2, 3})},
        {"a quint reaches the last set {5,6,7,8,9}",
         {{{0, 1, 2, 3, 4}, {5, 6, 7, 8, 9}}}, {}, true, 5,
         {1, 0, {0, 1, 2, 3, 4}, {5, 6, 7, 8, 9}}, Each({5, 6, 7, 8}, {5, 6, 7, 8, 9})},
        {"a spent pair is no hit", {{{0, 4}, {1, 2}}}, {{1, kRows, {0, 4}}, {2, kRows, {0, 4}}},
         true, 2, {}, {}},
        {"a spent pair is passed over", {{{0, 4}, {1, 2}}, {{17, 80}, {3, 4}}},
         {{1, kRows, {0, 4}}, {2, kRows, {0, 4}}}, true, 2,
         {2, 8, {17, 80}, {3, 4}}, Each({8, 26, 35, 44, 53, 62, 71}, {3, 4})},
        {"a hidden pair in a row", {}, {{1, kRows, {3, 5}}, {2, kRows, {3, 5}}}, false, 2,
         {-1, 0, {3, 5}, {1, 2}}, Each({3, 5}, {3, 4, 5, 6, 7, 8, 9})},
        {"a hidden triple in a column", {},
         {{4, kColumns + 2, {2, 38, 74}}, {5, kColumns + 2, {2, 38, 74}},
          {6, kColumns + 2, {2, 38, 74}}},
         false, 3, {-2, 2, {2, 38, 74}, {4, 5, 6}}, Each({2, 38, 74}, {1, 2, 3, 7, 8, 9})},
        {"a hidden triple whose cells miss some of its digits",
         {{{36}, {1, 2, 4}}, {{44}, {2, 3, 9}}},
         {{1, kRows + 4, {36, 40}}, {2, kRows + 4, {36, 40, 44}}, {3, kRows + 4, {40, 44}}},
         false, 3,
         {-1, 4, {36, 40, 44}, {1, 2, 3}},
         {{36, 4}, {40, 4}, {40, 5}, {40, 6}, {40, 7}, {40, 8}, {40, 9}, {44, 9}}},
        {"a spent hidden pair is passed over for a later box", {{{3, 5}, {1, 2}}},
         {{1, kRows, {3, 5}}, {2, kRows, {3, 5}}, {7, kBoxes + 8, {60, 80}},
          {8, kBoxes + 8, {60, 80}}},
         false, 2, {-3, 60, {60, 80}, {7, 8}}, Each({60, 80}, {1, 2, 3, 4, 5, 6, 9})},
        {"no hidden quad", {},
         {{1, kRows, {0, 1, 2, 3}}, {2, kRows, {0, 1, 2, 3}}, {3, kRows, {0, 1, 2, 3}},
          {4, kRows, {0, 1, 2, 3}}},
         false, 4, {}, {}},
    };
    // clang-format on
    for (const Case& k : cases) {
        SCOPED_TRACE(k.name);
        Board b = testing::OpenBoardWith(k.only);
        for (const auto& [cells, digits] : k.cells)
            for (int c : cells) {
                b.Candidates[c] = 0;
                for (int d : digits)
                    b.Candidates[c] |= DigitBit(d);
            }
        const auto [found, h, removed] = testing::RunAsHintAndForReal(
            b, 3, [&](SolveContext& ctx) { return NakedHidden(ctx, k.naked, k.size); });
        EXPECT_EQ(found, k.expected.variant != 0);
        EXPECT_EQ(removed, k.removed);
        if (found) {
            EXPECT_EQ(Named(h), k.expected);
        }
    }
}

// A pair that also shares a box: this call clears the row only; the box waits
// for a later call, after the ladder has restarted.
TEST(NakedHidden, APairInARowAndABoxClearsTheRowFirst) {
    Board b = testing::OpenBoard();
    testing::SetCandidates(b, 0, {1, 2});
    testing::SetCandidates(b, 1, {1, 2});
    SolveContext ctx = testing::ContextOn(b);
    ASSERT_TRUE(NakedHidden(ctx, true, 2));
    EXPECT_EQ(testing::Removals(b, ctx.board), Each({2, 3, 4, 5, 6, 7, 8}, {1, 2}));
    const Board afterRow = ctx.board;
    ASSERT_TRUE(NakedHidden(ctx, true, 2));
    EXPECT_EQ(testing::Removals(afterRow, ctx.board), Each({9, 10, 11, 18, 19, 20}, {1, 2}));
    EXPECT_FALSE(NakedHidden(ctx, true, 2)) << "both houses are spent now";
}

// Sizes the ladder never asks for find nothing, even where such a set stands.
TEST(NakedHidden, OnlyTheSizesOfTheLadder) {
    Board b = testing::OpenBoard();
    b.Candidates[40] = DigitBit(6);
    for (auto [naked, size] : {std::pair{false, 1}, {false, 5}, {true, 1}, {true, 6}}) {
        SolveContext ctx = testing::ContextOn(b);
        EXPECT_FALSE(NakedHidden(ctx, naked, size)) << naked << " " << size;
        EXPECT_EQ(ctx.board.Candidates, b.Candidates);
    }
}

}  // namespace
}  // namespace tavi
