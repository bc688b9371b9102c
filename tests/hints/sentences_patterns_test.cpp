// The sentences of the fish, the single-digit patterns, the wings, the exclusions,
// Sue-de-Coq and the rectangles, from records filled as their techniques fill
// them, every form of each kind once.
#include <gtest/gtest.h>

#include <span>

#include "hints/hint_records.h"
#include "hints/schrijf_hint.h"

namespace tavi {
namespace {

using testing::Record;

struct SentenceCase {
    HintRecord hint;
    const char* sentence;
};

void ExpectSentences(std::span<const SentenceCase> cases) {
    const Board board = testing::OpenBoard();
    for (const SentenceCase& c : cases)
        EXPECT_EQ(SchrijfHint(c.hint, board), c.sentence)
            << "kind " << c.hint.HintKind << " variant " << c.hint.HintVariant;
}

// The fish, the single-digit patterns and the wings are told from real hits in
// tests/data/rung_cases.txt; what stays here is a form no technique leaves.
TEST(SchrijfHint, AFishOfNoKnownFormWritesOnlyItsHead) {
    const SentenceCase cases[] = {
        {Record(13).variant(0).number(1).cells(
             {0, 1, 2, 8, 18, 19, 20, 26, 36, 37, 38, 44, 54, 55, 56, 62}),
         "JELLYFISH: Since number 1 appears maximum four times in each "},
    };
    ExpectSentences(cases);
}

// Real hits of Sue-de-Coq (tests/data/rung_cases.txt) have groups of one or two
// cells; a group of three is named as a list.
TEST(SchrijfHint, SueDeCoqNamesAGroupOfThreeAsAList) {
    const SentenceCase cases[] = {
        {Record(27).row(-1).column(4).variant(4).cells({4, 13, 76}).values({30, 50}),
         "SUE-DE-COQ: Only one of the candidates common to cells A5, B5 and J5 can appear in the "
         "unsolved cells from the intersection between column 5 and the centre block as "
         "solution. Therefore any other cell sharing that same column cannot have one of those "
         "candidates as solution. Only one of the candidates common to cells D4 and F6 can "
         "appear in the unsolved cells from the intersection between column 5 and the centre "
         "block as solution. Therefore any other cell sharing that same box cannot have one of "
         "those candidates as solution. All candidates from the intersection cells, not common "
         "to any cell listed in both previous statements, are exclusive to the intersection "
         "cells. Therefore any other cell sharing that same column or box cannot have one of "
         "those candidates as solution."},
    };
    ExpectSentences(cases);
}

// Every type has a real hit among the rung cases; a variant outside 1..5 writes
// only the head.
TEST(SchrijfHint, RectangleOfNoTypeWritesTheHeadOnly) {
    const SentenceCase cases[] = {
        {Record(29).values({1, 9}).cells({10, 13, 64, 67}).variant(6), "UNIQUE RECTANGLE: "},
    };
    ExpectSentences(cases);
}

}  // namespace
}  // namespace tavi
