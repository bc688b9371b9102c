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

TEST(SchrijfHint, Fish) {
    // The square's first row of entries gives the columns, its first column the rows.
    const Record xWing = Record(6).number(4).cells({11, 16, 47, 52});
    const Record jellyfish =
        Record(13).number(1).cells({0, 1, 2, 8, 18, 19, 20, 26, 36, 37, 38, 44, 54, 55, 56, 62});
    const SentenceCase cases[] = {
        {Record(xWing).variant(1),
         "X-WING: Since number 4 appears only twice in both row B and F, and this number appears "
         "in the same two columns 3 and 8, this number can't appear anywhere else in these "
         "columns"},
        {Record(xWing).variant(2),
         "X-WING: Since number 4 appears only twice in both column 3 and 8, and this number "
         "appears in the same two rows B and F, this number can't appear anywhere else in these "
         "rows"},
        {Record(7).variant(1).number(9).cells({1, 3, 6, 37, 39, 42, 73, 75, 78}),
         "SWORDFISH: Since number 9 appears maximum three times in each row A, E and J, and this "
         "number appears in the same three columns 2, 4 and 7, this number can't appear anywhere "
         "else in these columns"},
        {Record(jellyfish).variant(2),
         "JELLYFISH: Since number 1 appears maximum four times in each column 1, 2, 3 and 9, and "
         "this number appears in the same four rows A, C, E and G, this number can't appear "
         "anywhere else in these rows"},
        {Record(jellyfish).variant(0),
         "JELLYFISH: Since number 1 appears maximum four times in each "},
    };
    ExpectSentences(cases);
}

TEST(SchrijfHint, MultiValueXWingInEachForm) {
    auto rec = [](int form, std::initializer_list<int> cells) {
        return Record(8).variant(form).values({1, 2, 3, 4}).cells(cells);
    };
    const SentenceCase cases[] = {
        {rec(1, {0, 4, 27, 31}),
         "MULTI-VALUE X-WING: Since number 1 in row A is reserved for either cell A1 or cell A5 "
         "and number 2 in row D is reserved for either cell D1 or cell D5, but both cannot occur "
         "in the same column, because that would leave either number 3 as the only solution in "
         "two cells from column 1, or number 4 as the only solution in two cells from column 5. "
         "This means that number 3 is forced to either cell A1 or cell D1, and cannot occur "
         "elsewhere in column 1, and it also means that number 4 is forced to either cell A5 or "
         "cell D5, and cannot occur elsewhere in column 5"},
        {rec(2, {0, 3, 10, 13}).row(0).column(1),
         "MULTI-VALUE X-WING: Since number 1 in row A is reserved for either cell A1 or cell A4 "
         "and number 2 in row B is reserved for either cell B2 or cell B5, but both cannot occur "
         "in the same block, because that would leave either number 3 as the only solution in "
         "two cells from the top left block, or number 4 as the only solution in two cells from "
         "the top middle block. This means that number 3 is forced to either cell A1 or cell B2, "
         "and cannot occur elsewhere in that block, and it also means that number 4 is forced to "
         "either cell A4 or cell B5, and cannot occur elsewhere in that block"},
        {rec(3, {0, 36, 2, 38}),
         "MULTI-VALUE X-WING: Since number 1 in column 1 is reserved for either cell A1 or cell "
         "E1 and number 2 in column 3 is reserved for either cell A3 or cell E3, but both cannot "
         "occur in the same row, because that would leave either number 3 as the only solution "
         "in two cells from row A, or number 4 as the only solution in two cells from row E. This "
         "means that number 3 is forced to either cell A1 or cell A3, and cannot occur elsewhere "
         "in row A, and it also means that number 4 is forced to either cell E1 or cell E3, and "
         "cannot occur elsewhere in row E"},
        {rec(4, {0, 27, 10, 37}).row(0).column(3),
         "MULTI-VALUE X-WING: Since number 1 in column 1 is reserved for either cell A1 or cell "
         "D1 and number 2 in column 2 is reserved for either cell B2 or cell E2, but both cannot "
         "occur in the same block, because that would leave either number 3 as the only solution "
         "in two cells from the top left block, or number 4 as the only solution in two cells "
         "from the left centre block. This means that number 3 is forced to either cell A1 or "
         "cell B2, and cannot occur elsewhere in that block, and it also means that number 4 is "
         "forced to either cell D1 or cell E2, and cannot occur elsewhere in that block"},
        {rec(5, {30, 40, 33, 43}).row(4).column(5),
         "MULTI-VALUE X-WING: Since number 1 in the centre block is reserved for either cell D4 "
         "or cell E5 and number 2 in the right centre block is reserved for either cell D7 or "
         "cell E8, but both cannot occur in the same row, because that would leave either number "
         "3 as the only solution in two cells from row D, or number 4 as the only solution in two "
         "cells from row E. This means that number 3 is forced to either cell D4 or cell D7, and "
         "cannot occur elsewhere in that row, and it also means that number 4 is forced to either "
         "cell E5 or cell E8, and cannot occur elsewhere in that row"},
        {rec(6, {0, 10, 27, 37}).row(0).column(3),
         "MULTI-VALUE X-WING: Since number 1 in the top left block is reserved for either cell A1 "
         "or cell B2 and number 2 in the left centre block is reserved for either cell D1 or cell "
         "E2, but both cannot occur in the same column, because that would leave either number 3 "
         "as the only solution in two cells from column 1, or number 4 as the only solution in "
         "two cells from column 2. This means that number 3 is forced to either cell A1 or cell "
         "D1, and cannot occur elsewhere in that column, and it also means that number 4 is "
         "forced to either cell B2 or cell E2, and cannot occur elsewhere in that column"},
    };
    ExpectSentences(cases);
}

TEST(SchrijfHint, SingleDigitPatterns) {
    const SentenceCase cases[] = {
        {Record(9).number(6).cell(73).cells({79}).variant(30).row(4).column(4),
         "EMPTY RECTANGLE: If value 6 would be true for cell J2, this would force that value to "
         "cell J8, and that would remove that value as a candidate in all the cells from the "
         "centre block, this means that cell J2 can't have that value as a candidate"},
        {Record(15).variant(1).number(5).row(1).cells({68, -99, 10, 14, 55, 59}).cellCount(1),
         "FINNED X-WING: Since number 5 appears only twice in row B and that same number appears "
         "in the same columns 2 and 6 at row G, this almost forming a regular X-Wing. However, "
         "one or two additional cells, holding that candidate, in row G are sharing a box with an "
         "almost X-Wing cell. We call these additional cells THE FIN. It turns out that no matter "
         "which cell in row B will eventually holds the candidate as solution, this number can't "
         "appear in cell H6."},
        {Record(15).variant(2).number(5).column(1).cells({35, 44, 10, 46, 16, 52}).cellCount(2),
         "FINNED X-WING: Since number 5 appears only twice in column 2 and that same number "
         "appears in the same rows B and F at column 8, this almost formed a regular X-Wing. "
         "However, one or two additional cells, holding that candidate, in column 8 are sharing a "
         "box with an almost X-Wing cell. We call these additional cells THE FIN. It turns out "
         "that no matter which cell in column 2 will eventually holds the candidate as solution, "
         "this number can't appear in cells D9 and E9."},
        {Record(25).number(4).row(2).column(6).variant(3).cells({20, 42, 26, 56}),
         "TWO-STRING KITE: Candidate 4 conjugates in Two Strings, with a mutual Kite. The Row "
         "String is Row C, the Column String is Column 7, and the Kite is the left centre box. "
         "Since not both of the conjugate cells in the Kite can be true, at least one of the "
         "conjugate cells in the Two Strings outside the Kite must be true. Therefore, any cell "
         "that can see both those conjugate cells outside the Kite, cannot hold number 4 as a "
         "candidate."},
        {Record(26).variant(2).number(1).row(0).column(5).cells({72, 77, 9, 23}),
         "SKYSCRAPER: In both of 2 columns, each with 2 adjacent cells holding candidate 1, one "
         "of these cells are sharing the same row. Since either or none of these cells will hold "
         "the candidate as solution, at least one of the other adjacent cells must. So any cell "
         "seen by both of those adjacent cells will lose that candidate as solution."},
        {Record(26).variant(1).number(1).row(0).column(5).cells({0, 45, 3, 50}),
         "SKYSCRAPER: In both of 2 rows, each with 2 adjacent cells holding candidate 1, one of "
         "these cells are sharing the same column. Since either or none of these cells will hold "
         "the candidate as solution, at least one of the other adjacent cells must. So any cell "
         "seen by both of those adjacent cells will lose that candidate as solution."},
    };
    ExpectSentences(cases);
}

TEST(SchrijfHint, Wings) {
    const Record wing = Record(10).number(7).cells({40, 44, 4});
    const Record wxyz = Record(14).number(2).cells({40, 44, 4, 50});
    const SentenceCase cases[] = {
        {wing,
         "XY-WING: Any value for cell E5 forces number 7 to either cell E9 or cell A5, so any "
         "cell in the row, column or block that both of these cells can see, can't have that "
         "number as a candidate"},
        {Record(11).number(7).cells({40, 44, 4}),
         "XYZ-WING: Any other value for cell E5 then number 7 forces this number to either cell "
         "E9 or cell A5, so any cell in the row, column or block that those three cells can see, "
         "can't have that number as a candidate"},
        {Record(wxyz).variant(1),
         "WXYZ-WING: Any other value for cell E5 then number 2 forces this number to either cell "
         "E9, cell A5 or cell F6, so any cell in the row, column or block that those four cells "
         "can see, can't have that number as a candidate"},
        {Record(wxyz).variant(0),
         "WXYZ-WING: Any value for cell E5 will force number 2 to either cell E9, cell A5 or cell "
         "F6, so any cell in the row, column or block that those three cells can see, can't have "
         "that number as a candidate"},
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
