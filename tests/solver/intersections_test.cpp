#include <gtest/gtest.h>

#include "solver/techniques.h"
#include "support/boards.h"

namespace tavi {
namespace {

using testing::Box;
using testing::Column;
using testing::KeepDigitOnlyIn;
using testing::OpenBoard;
using testing::Removal;
using testing::RemovalsOf;
using testing::Row;

// Runs `technique` twice on `board`: as a hint, which must change nothing, and
// for real. Answers the hint record and the candidates the real run removed.
template <typename Technique>
std::pair<HintRecord, std::vector<Removal>> HintAndRemovals(const Board& board,
                                                            Technique technique) {
    SolveContext hint = testing::ContextOn(board, Side::Game);
    hint.HintOnly = true;
    hint.hint = testing::MarkedHint();
    const bool hinted = technique(hint);
    EXPECT_EQ(hint.board.Candidates, board.Candidates) << "a hint changes nothing";
    EXPECT_EQ(hint.SolvingLevel, 0);

    SolveContext real = testing::ContextOn(board);
    const bool found = technique(real);
    EXPECT_EQ(hinted, found);
    EXPECT_EQ(real.SolvingLevel, found ? 2 : 0);
    EXPECT_FALSE(found && hint.hint.HintKind == -99) << "a hit fills the record";
    return {hint.hint, testing::Removals(board, real.board)};
}

struct PointingCase {
    const char* name;
    void (*build)(Board&);
    int digit, leftTop, segment;
    std::vector<Removal> removed;
};

TEST(PointingPair, ClearsTheRestOfTheLineAndFillsKindThree) {
    const PointingCase cases[] = {
        {"pair in a row segment",
         [](Board& b) {
             KeepDigitOnlyIn(b, 5, Box(0), {0, 1});
         },
         5, 0, 0, RemovalsOf(5, {3, 4, 5, 6, 7, 8})},
        {"pair in a column segment",
         [](Board& b) {
             KeepDigitOnlyIn(b, 5, Box(4), {31, 49});
         },
         5, 30, 4, RemovalsOf(5, {4, 13, 22, 58, 67, 76})},
        {"three in a row segment",
         [](Board& b) {
             KeepDigitOnlyIn(b, 8, Box(8), {60, 61, 62});
         },
         8, 60, 0, RemovalsOf(8, {54, 55, 56, 57, 58, 59})},
        {"a lone digit matches its row segment first",
         [](Board& b) { KeepDigitOnlyIn(b, 3, Box(0), {10}); }, 3, 0, 1,
         RemovalsOf(3, {12, 13, 14, 15, 16, 17})},
        {"a lone digit whose row is spent goes to its column",
         [](Board& b) {
             KeepDigitOnlyIn(b, 3, Box(0), {10});
             KeepDigitOnlyIn(b, 3, Row(1), {10});
         },
         3, 0, 4, RemovalsOf(3, {28, 37, 46, 55, 64, 73})},
        {"spent patterns are passed over",
         [](Board& b) {
             KeepDigitOnlyIn(b, 1, Box(0), {0, 1});
             KeepDigitOnlyIn(b, 1, Row(0), {0, 1});
             KeepDigitOnlyIn(b, 1, Box(4), {31, 49});
             KeepDigitOnlyIn(b, 1, Column(4), {31, 49});
             KeepDigitOnlyIn(b, 1, Box(8), {70, 79});
         },
         1, 60, 4, RemovalsOf(1, {16, 25, 34, 43, 52})},
        {"all digits of a box before the next digit",
         [](Board& b) {
             KeepDigitOnlyIn(b, 2, Box(0), {0, 1});
             KeepDigitOnlyIn(b, 1, Box(8), {79, 80});
         },
         1, 60, 2, RemovalsOf(1, {72, 73, 74, 75, 76, 77})},
    };
    for (const PointingCase& k : cases) {
        SCOPED_TRACE(k.name);
        Board b = OpenBoard();
        k.build(b);
        const auto [h, removed] = HintAndRemovals(b, PointingPair);
        EXPECT_EQ(removed, k.removed);
        EXPECT_EQ(h.HintKind, 3);
        EXPECT_EQ(h.HintNumber, k.digit);
        EXPECT_EQ(h.HintCell, k.leftTop);
        EXPECT_EQ(h.HintVariant, k.segment);
        EXPECT_EQ(h.HintRow, -99);
        EXPECT_EQ(h.HintColumn, -99);
    }
}

TEST(PointingPair, FindsNothingWhenEveryPatternIsSpent) {
    Board b = OpenBoard();
    KeepDigitOnlyIn(b, 4, Box(0), {0, 1});
    KeepDigitOnlyIn(b, 4, Row(0), {0, 1});
    const auto [h, removed] = HintAndRemovals(b, PointingPair);
    EXPECT_EQ(h.HintKind, -99);
    EXPECT_TRUE(removed.empty());
}

struct BoxLineCase {
    const char* name;
    void (*build)(Board&);
    int digit, leftTop, variant, line;
    std::vector<Removal> removed;
};

TEST(BoxLine, ClearsTheRestOfTheBoxAndFillsKindFour) {
    const BoxLineCase cases[] = {
        {"three cells of a row",
         [](Board& b) {
             KeepDigitOnlyIn(b, 8, Row(4), {39, 40, 41});
         },
         8, 30, 1, 4, RemovalsOf(8, {30, 31, 32, 48, 49, 50})},
        {"two cells of a column",
         [](Board& b) {
             KeepDigitOnlyIn(b, 2, Column(0), {0, 18});
         },
         2, 0, 2, 0, RemovalsOf(2, {1, 2, 10, 11, 19, 20})},
        {"a row hit for 9 comes before a column hit for 1",
         [](Board& b) {
             KeepDigitOnlyIn(b, 9, Row(8), {78, 79});
             KeepDigitOnlyIn(b, 1, Column(0), {0, 9});
         },
         9, 60, 1, 8, RemovalsOf(9, {60, 61, 62, 69, 70, 71})},
        {"a spent row is passed over",
         [](Board& b) {
             KeepDigitOnlyIn(b, 5, Row(0), {0, 1});
             KeepDigitOnlyIn(b, 5, Box(0), {0, 1});
             KeepDigitOnlyIn(b, 5, Column(8), {62, 71});
         },
         5, 60, 2, 8, RemovalsOf(5, {60, 61, 69, 70, 78, 79})},
    };
    for (const BoxLineCase& k : cases) {
        SCOPED_TRACE(k.name);
        Board b = OpenBoard();
        k.build(b);
        const auto [h, removed] = HintAndRemovals(b, BoxLine);
        EXPECT_EQ(removed, k.removed);
        EXPECT_EQ(h.HintKind, 4);
        EXPECT_EQ(h.HintNumber, k.digit);
        EXPECT_EQ(h.HintCell, k.leftTop);
        EXPECT_EQ(h.HintVariant, k.variant);
        EXPECT_EQ(k.variant == 1 ? h.HintRow : h.HintColumn, k.line);
        EXPECT_EQ(k.variant == 1 ? h.HintColumn : h.HintRow, -99);
    }
}

TEST(BoxLine, FindsNothingWhenEveryPatternIsSpent) {
    Board b = OpenBoard();
    KeepDigitOnlyIn(b, 5, Row(0), {0, 1});
    KeepDigitOnlyIn(b, 5, Box(0), {0, 1});
    const auto [h, removed] = HintAndRemovals(b, BoxLine);
    EXPECT_EQ(h.HintKind, -99);
    EXPECT_TRUE(removed.empty());
}

}  // namespace
}  // namespace tavi
