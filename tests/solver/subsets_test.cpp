#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "solver/techniques.h"
#include "support/boards.h"

namespace tavi {
namespace {

using testing::Box;
using testing::Column;
using testing::KeepDigitsOnlyIn;
using testing::OpenBoard;
using testing::Removal;
using testing::Row;
using testing::SetCandidates;

struct Hit {
    HintRecord hint;
    std::vector<Removal> removed;
    bool found;
};

// NakedHidden once as a hint, which must change nothing, and once for real.
Hit RunSubsets(const Board& board, bool naked, int size) {
    SolveContext hint = testing::ContextOn(board, Side::Game);
    hint.HintOnly = true;
    hint.hint = testing::MarkedHint();
    const bool hinted = NakedHidden(hint, naked, size);
    EXPECT_EQ(hint.board.Candidates, board.Candidates) << "a hint changes nothing";
    EXPECT_EQ(hint.SolvingLevel, 0);

    SolveContext real = testing::ContextOn(board);
    const bool found = NakedHidden(real, naked, size);
    EXPECT_EQ(hinted, found);
    EXPECT_EQ(real.SolvingLevel, found ? 3 : 0);
    return {hint.hint, testing::Removals(board, real.board), found};
}

// The unit, cells and digits a kind 5 record names.
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
    Subset s{h.HintVariant, -1, {}, {}};
    const int unitKind = std::abs(h.HintVariant);
    s.house = unitKind == 1 ? h.HintRow : unitKind == 2 ? h.HintColumn : h.HintCell;
    // The two houses the variant does not name stay as they were.
    EXPECT_EQ((unitKind == 1 ? 0 : 1) + (unitKind == 2 ? 0 : 1) + (unitKind == 3 ? 0 : 1),
              (h.HintRow == -99) + (h.HintColumn == -99) + (h.HintCell == -99));
    for (int i = 1; i <= h.HintCellCount && i <= HintRecord::kListSize; ++i) {
        s.cells.push_back(h.HintCells[i]);
        s.digits.push_back(h.HintValues[i]);
    }
    return s;
}

// Every digit of `digits` from every cell of `cells`, in cell order.
std::vector<Removal> Each(std::initializer_list<int> cells, std::initializer_list<int> digits) {
    std::vector<Removal> out;
    for (int c : cells)
        for (int d : digits)
            out.emplace_back(c, d);
    std::sort(out.begin(), out.end());
    return out;
}

TEST(NakedSubsets, RowsThenColumnsThenBoxes) {
    struct Case {
        bool row, column;
        Subset expected;
        std::vector<Removal> removed;
    } cases[] = {
        {true, true, {1, 8, {73, 77}, {1, 2}}, Each({72, 74, 75, 76, 78, 79, 80}, {1, 2})},
        {false, true, {2, 0, {0, 36}, {3, 4}}, Each({9, 18, 27, 45, 54, 63, 72}, {3, 4})},
        {false, false, {3, 30, {30, 40}, {5, 6}}, Each({31, 32, 39, 41, 48, 49, 50}, {5, 6})},
    };
    for (const auto& k : cases) {
        Board b = OpenBoard();
        if (k.row) SetCandidates(b, 73, {1, 2}), SetCandidates(b, 77, {1, 2});
        if (k.column) SetCandidates(b, 0, {3, 4}), SetCandidates(b, 36, {3, 4});
        SetCandidates(b, 30, {5, 6});
        SetCandidates(b, 40, {5, 6});
        const Hit hit = RunSubsets(b, true, 2);
        ASSERT_TRUE(hit.found);
        EXPECT_EQ(Named(hit.hint), k.expected);
        EXPECT_EQ(hit.removed, k.removed);
    }
}

// A pair that also shares a box: this call clears the row only; the box waits
// for a later call, after the ladder has restarted.
TEST(NakedSubsets, APairInARowAndABoxClearsTheRowFirst) {
    Board b = OpenBoard();
    SetCandidates(b, 0, {1, 2});
    SetCandidates(b, 1, {1, 2});
    SolveContext ctx = testing::ContextOn(b);
    ASSERT_TRUE(NakedHidden(ctx, true, 2));
    EXPECT_EQ(testing::Removals(b, ctx.board), Each({2, 3, 4, 5, 6, 7, 8}, {1, 2}));
    const Board afterRow = ctx.board;
    ASSERT_TRUE(NakedHidden(ctx, true, 2));
    EXPECT_EQ(testing::Removals(afterRow, ctx.board), Each({9, 10, 11, 18, 19, 20}, {1, 2}));
    EXPECT_FALSE(NakedHidden(ctx, true, 2)) << "both houses are spent now";
}

// The triples {7,8,9} (first in the row) and {1,2,3}: sets go in lexical order,
// so {1,2,3} is the hit. Its cells hold two digits each, which is enough.
TEST(NakedSubsets, SetsGoInLexicalOrderNotInCellOrder) {
    Board b = OpenBoard();
    SetCandidates(b, 0, {7, 8});
    SetCandidates(b, 1, {8, 9});
    SetCandidates(b, 2, {7, 9});
    SetCandidates(b, 3, {1, 2});
    SetCandidates(b, 4, {2, 3});
    SetCandidates(b, 5, {1, 3});
    EXPECT_FALSE(RunSubsets(b, true, 2).found);
    const Hit hit = RunSubsets(b, true, 3);
    ASSERT_TRUE(hit.found);
    EXPECT_EQ(Named(hit.hint), (Subset{1, 0, {3, 4, 5}, {1, 2, 3}}));
    EXPECT_EQ(hit.removed, Each({6, 7, 8}, {1, 2, 3}));
}

TEST(NakedSubsets, AQuintReachesTheLastSet) {
    Board b = OpenBoard();
    for (int c = 0; c < 5; ++c)
        SetCandidates(b, c, {5, 6, 7, 8, 9});
    EXPECT_FALSE(RunSubsets(b, true, 4).found);
    const Hit hit = RunSubsets(b, true, 5);
    ASSERT_TRUE(hit.found);
    EXPECT_EQ(Named(hit.hint), (Subset{1, 0, {0, 1, 2, 3, 4}, {5, 6, 7, 8, 9}}));
    EXPECT_EQ(hit.removed, Each({5, 6, 7, 8}, {5, 6, 7, 8, 9}));
}

TEST(NakedSubsets, ASpentPairIsPassedOver) {
    Board b = OpenBoard();
    SetCandidates(b, 0, {1, 2});
    SetCandidates(b, 4, {1, 2});
    KeepDigitsOnlyIn(b, {1, 2}, Row(0), {0, 4});
    EXPECT_FALSE(RunSubsets(b, true, 2).found);

    SetCandidates(b, 17, {3, 4});
    SetCandidates(b, 80, {3, 4});
    const Hit hit = RunSubsets(b, true, 2);
    ASSERT_TRUE(hit.found);
    EXPECT_EQ(Named(hit.hint), (Subset{2, 8, {17, 80}, {3, 4}}));
}

// Three cells of {1,2} in one row are no pair; at size 3 the first set with a
// third digit, {1,2,3}, lists exactly these three cells.
TEST(NakedSubsets, ThreeCellsOfOnePairAreATripleNotAPair) {
    Board b = OpenBoard();
    for (int c : {0, 4, 8})
        SetCandidates(b, c, {1, 2});
    EXPECT_FALSE(RunSubsets(b, true, 2).found);
    const Hit hit = RunSubsets(b, true, 3);
    ASSERT_TRUE(hit.found);
    EXPECT_EQ(Named(hit.hint), (Subset{1, 0, {0, 4, 8}, {1, 2, 3}}));
    EXPECT_EQ(hit.removed, Each({1, 2, 3, 5, 6, 7}, {1, 2, 3}));
}

TEST(HiddenSubsets, ClearTheOtherDigitsOfTheirCells) {
    struct Case {
        const char* name;
        void (*build)(Board&);
        int size;
        Subset expected;
        std::vector<Removal> removed;
    } cases[] = {
        {"pair in a row",
         [](Board& b) {
             KeepDigitsOnlyIn(b, {1, 2}, Row(0), {3, 5});
         },
         2,
         {-1, 0, {3, 5}, {1, 2}},
         Each({3, 5}, {3, 4, 5, 6, 7, 8, 9})},
        {"triple in a column",
         [](Board& b) {
             KeepDigitsOnlyIn(b, {4, 5, 6}, Column(2), {2, 38, 74});
         },
         3,
         {-2, 2, {2, 38, 74}, {4, 5, 6}},
         Each({2, 38, 74}, {1, 2, 3, 7, 8, 9})},
        {"a spent pair is passed over for a later box",
         [](Board& b) {
             SetCandidates(b, 3, {1, 2});
             SetCandidates(b, 5, {1, 2});
             KeepDigitsOnlyIn(b, {1, 2}, Row(0), {3, 5});
             KeepDigitsOnlyIn(b, {7, 8}, Box(8), {60, 80});
         },
         2,
         {-3, 60, {60, 80}, {7, 8}},
         Each({60, 80}, {1, 2, 3, 4, 5, 6, 9})},
        {"a triple whose cells miss some of its digits",
         [](Board& b) {
             KeepDigitsOnlyIn(b, {1, 2, 3}, Row(4), {36, 40, 44});
             b.Candidates[36] &= CandidateMask(~DigitBit(3));
             b.Candidates[44] &= CandidateMask(~DigitBit(1));
         },
         3,
         {-1, 4, {36, 40, 44}, {1, 2, 3}},
         Each({36, 40, 44}, {4, 5, 6, 7, 8, 9})},
    };
    for (const auto& k : cases) {
        SCOPED_TRACE(k.name);
        Board b = OpenBoard();
        k.build(b);
        const Hit hit = RunSubsets(b, false, k.size);
        ASSERT_TRUE(hit.found);
        EXPECT_EQ(Named(hit.hint), k.expected);
        EXPECT_EQ(hit.removed, k.removed);
    }
}

// There is no hidden quad, and a size the ladder never asks for finds nothing.
TEST(HiddenSubsets, OnlyPairsAndTriples) {
    Board b = OpenBoard();
    KeepDigitsOnlyIn(b, {1, 2, 3, 4}, Row(0), {0, 1, 2, 3});
    for (auto [naked, size] : {std::pair{false, 2},
                               {false, 3},
                               {false, 4},
                               {false, 5},
                               {false, 1},
                               {true, 1},
                               {true, 6}})
        EXPECT_FALSE(RunSubsets(b, naked, size).found) << naked << " " << size;
}

}  // namespace
}  // namespace tavi
