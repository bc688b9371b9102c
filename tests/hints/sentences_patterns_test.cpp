// The sentences of the exclusions, Sue-de-Coq and the rectangles, from records
// filled as their techniques fill them, every form of each kind once.
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

TEST(SchrijfHint, ExclusionsInEachFormWithOneToThreeClauses) {
    const SentenceCase cases[] = {
        {Record(16).variant(0).cells({0, 40, 4}).values({3, -7}),
         "PAIR EXCLUSION: All possible combinations between cell A1 and cell E5 can be reduced by "
         "any 2-candidate cell they both can see, as a result of that, number(s) 3 can be "
         "eliminated as candidate(s) for cell A1 and number(s) 7 can be eliminated as "
         "candidate(s) for cell E5"},
        {Record(16).variant(1).cells({0, 1, 20}).row(0).column(0).values({3, 5}),
         "ALIGNED PAIR EXCLUSION: All possible combinations between cell A1 and cell A2, who both "
         "share row A and the top left block, can be reduced by any 2-candidate cell they both "
         "can see, as a result of that, number(s) 3 and 5 can be eliminated as candidate(s) for "
         "cell A1"},
        {Record(16).variant(2).cells({80, 71}).column(8).row(60).values({-4}),
         "ALIGNED PAIR EXCLUSION: All possible combinations between cell J9 and cell H9, who both "
         "share column 9 and the bottom right block, can be reduced by any 2-candidate cell they "
         "both can see, as a result of that, number(s) 4 can be eliminated as candidate(s) for "
         "cell H9"},
        {Record(16).variant(3).cells({39, 40}).row(4).column(1).values({2, -6}),
         "EXTENDED ALIGNED PAIR EXCLUSION: All possible combinations between cell E4 and cell E5, "
         "who both share row E and the centre block, can be reduced by any 2-candidate cell they "
         "both can see, or any 2 candidate-combination out of two cells they both can see who "
         "have no more than 3 candidates in common, as a result of that, number(s) 2 can be "
         "eliminated as candidate(s) for cell E4 and number(s) 6 can be eliminated as "
         "candidate(s) for cell E5"},
        {Record(16).variant(4).cells({61, 79}).column(7).row(2).values({-1, -2}),
         "EXTENDED ALIGNED PAIR EXCLUSION: All possible combinations between cell G8 and cell J8, "
         "who both share column 8 and the bottom right block, can be reduced by any 2-candidate "
         "cell they both can see, or any 2 candidate-combination out of two cells they both can "
         "see who have no more than 3 candidates in common, as a result of that, number(s) 1 and "
         "2 can be eliminated as candidate(s) for cell J8"},
        {Record(17).variant(1).cells({0, 1, 2, 30}).row(0).column(0).values({4, 15, 109}),
         "ALIGNED TRIPLE EXCLUSION: All possible combinations between cell A1, cell A2 and cell "
         "A3, who all share row A and the top left block, can be reduced by any 2-candidate "
         "(+wildcard) cell and 3-candidate cell they all can see, as a result of that, number(s) "
         "4 can be eliminated as candidate(s) for cell A1, number(s) 5 can be eliminated as "
         "candidate(s) for cell A2 and number(s) 9 can be eliminated as candidate(s) for cell "
         "A3"},
        {Record(17).variant(4).cells({35, 44, 53}).column(8).row(1).values({12, 13, 101}),
         "EXTENDED ALIGNED TRIPLE EXCLUSION: All possible combinations between cell D9, cell E9 "
         "and cell F9, who all share column 9 and the right centre block, can be reduced by any "
         "2-candidate (+wildcard) cell and 3-candidate cell they all can see, or any combination "
         "of three cells who have no more than 5 candidates in common (+wildcards), as a result "
         "of that, number(s) 2 and 3 can be eliminated as candidate(s) for cell E9 and number(s) "
         "1 can be eliminated as candidate(s) for cell F9"},
    };
    ExpectSentences(cases);
}

TEST(SchrijfHint, SueDeCoqNamesGroupsOfOneTwoOrMore) {
    const SentenceCase cases[] = {
        {Record(27).row(0).column(-1).variant(1).cells({0, 8}).values({13}),
         "SUE-DE-COQ: Only one of the candidates common to cells A1 and A9 can appear in the "
         "unsolved cells from the intersection between row A and the top middle block as "
         "solution. Therefore any other cell sharing that same row cannot have one of those "
         "candidates as solution. Only one of the candidates from cell B5 can appear in the "
         "unsolved cells from the intersection between row A and the top middle block as "
         "solution. Therefore any other cell sharing that same box cannot have one of those "
         "candidates as solution. All candidates from the intersection cells, not common to any "
         "cell listed in both previous statements, are exclusive to the intersection cells. "
         "Therefore any other cell sharing that same row or box cannot have one of those "
         "candidates as solution."},
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

TEST(SchrijfHint, RectanglesOfEachType) {
    const Record ur = Record(29).values({1, 9}).cells({10, 13, 64, 67});
    const SentenceCase cases[] = {
        {Record(ur).variant(1),
         "UNIQUE RECTANGLE: Type 1 => Candidates 1 and 9 can be removed from cell H5"},
        {Record(ur).variant(2).number(4),
         "UNIQUE RECTANGLE: Type 2 => All cells holding candidate 4 sharing the same house with "
         "cells H2 and H5 will loose that candidate as a solution."},
        {Record(ur).variant(3).values({1, 9, 3, 7}).cells({10, 13, 64, 67, 70}),
         "UNIQUE RECTANGLE: Type 3 => Candidates 3 and/or 7 can be removed from cells sharing "
         "the same row with cells H2, H5 and H8"},
        {Record(29).variant(3).values({1, 9, 3, 7}).cells({0, 1, 36, 37, 47}),
         "UNIQUE RECTANGLE: Type 3 => Candidates 3 and/or 7 can be removed from cells sharing "
         "the same box with cells E1, E2 and F3"},
        {Record(ur).variant(4).number(9),
         "UNIQUE RECTANGLE: Type 4 => Candidate 9 can be removed from cells H2 and H5"},
        {Record(ur).variant(5).number(1),
         "HIDDEN UNIQUE RECTANGLE: Candidate 1 can be removed from cell H5"},
        {Record(ur).variant(6), "UNIQUE RECTANGLE: "},
        {Record(30).number(6).values({1, 9}).cells({10, 13, 64, 67}),
         "AVOIDABLE RECTANGLE: Candidate 6 can be removed from cell H5"},
        {Record(30).number(6).values({1, 9, 6}).cells({10, 13, 64, 67}),
         "AVOIDABLE RECTANGLE: All cells holding candidate 6 sharing the same house with cells "
         "H2 and H5 will loose that candidate as a solution."},
    };
    ExpectSentences(cases);
}

}  // namespace
}  // namespace tavi
