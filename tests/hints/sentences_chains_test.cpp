// The sentences of the colours, the chains, the almost locked sets, Medusa, the
// forcing chains and MultiFish, from records filled as their techniques fill them.
// The kinds that tell more than they keep are given boards to work it out from.
#include <gtest/gtest.h>

#include "hints/hint_records.h"
#include "hints/schrijf_hint.h"

namespace tavi {
namespace {

using testing::Coded;
using testing::OpenBoard;
using testing::Record;
using testing::SetCandidates;

struct SentenceCase {
    HintRecord hint;
    const char* sentence;
};

void ExpectSentences(std::initializer_list<SentenceCase> cases, const Board& board = OpenBoard()) {
    for (const SentenceCase& c : cases)
        EXPECT_EQ(SchrijfHint(c.hint, board), c.sentence)
            << "kind " << c.hint.HintKind << " variant " << c.hint.HintVariant;
}

TEST(SchrijfHint, ColoursNameBothGroups) {
    ExpectSentences({
        {Record(12).number(3).cells({0, 19}).values({7}).cell(19).variant(7),
         "SIMPLE COLORS - Color Trap: In the chain/cluster of adjacent cells, all holding "
         "candidate 3, either cells A1 and C2 OR cells A8 must have the candidate as value. Since "
         "either cell C2 OR cell A8 must contain the candidate, any other cell seen by both those "
         "cells will loose this candidate."},
        {Record(21).number(3).cells({0, 19, 25}).values({7, 73}).cell(0).variant(19),
         "SIMPLE COLORS - Color Wrap: In the chain/cluster of adjacent cells, all holding "
         "candidate 3, either cells A1, C2 and C8 OR cells A8 and J2 must have the candidate as "
         "value. Since cell A1 AND cell C2 both belong to the same adjacent group AND both those "
         "cells are sharing the same house, that whole adjacent group of cells will loose this "
         "candidate."},
        {Record(22).number(8).cells({0, 81 + 2}).values({162 + 4}),
         "MULTI COLORING: From two seperated chains of adjacent cells, all holding candidate 8, "
         "where the adjacent cells from each chain form two groups of alternating candidates, at "
         "least one chain has a group of alternating candidates that can be removed, because the "
         "joint candidates of that group can see at least one member of both groups of "
         "alternating candidates from the other chain."},
        {Record(23).number(8).cells({0, 81 + 2}).values({4, 40}),
         "MULTI COLORING: From two seperated chains of adjacent cells, all holding candidate 8, "
         "where the adjacent cells from each chain form two groups of alternating candidates, "
         "both chains have a group where at least one member of the alternating candidates are "
         "seeing each other. As result of that, at least one of the other groups of each chain "
         "will eventually contain the candidate as solution. So, any other cell not belonging to "
         "one of the chains, holding the candidate, will loose that candidate if it can be seen "
         "by a member of both of those groups."},
        {Record(24).cell(40).values({3, 7}),
         "BIVALUE UNIVERSAL GRAVE: The only unsolved cell that is not a bi-value cell cannot "
         "contain candidates that only occurs twice in the row, column and box this cell belongs "
         "to."},
    });
}

TEST(SchrijfHint, XYChainsListTheInnerCells) {
    ExpectSentences({
        // Two cells: no inner cells, and the list between the blanks stays empty.
        {Record(18).number(5).cells({0, 8}).values({2, 5}),
         "XY-CHAIN: If number 5 would be truth for cell A1, this would force a chain through "
         "cell(s)  to cell A9 who would not longer have number 5 as a candidate.  If, on the "
         "other hand, number 5 would be truth for cell A9 this would erase that number as a "
         "candidate for cell A1, so either cell A1 or cell A9 must have number 5 as the right "
         "value, so any other cell they both can see, can't have that value as a candidate."},
        {Record(18).number(5).cells({0, 19, 24, 8}).values({2, 3, 4, 5}),
         "XY-CHAIN: If number 5 would be truth for cell A1, this would force a chain through "
         "cell(s) C2 and C7 to cell A9 who would not longer have number 5 as a candidate.  If, "
         "on the other hand, number 5 would be truth for cell A9 this would erase that number as "
         "a candidate for cell A1, so either cell A1 or cell A9 must have number 5 as the right "
         "value, so any other cell they both can see, can't have that value as a candidate."},
        {Record(19).number(5).cells({0, 13, 8}).values({2, 5, 7}),
         "XY-CHAIN (Double Implication Chain): If number 5 would be truth for cell A1, this would "
         "force a chain through cell(s) B5 to cell A9 who would also have number 5 as it's "
         "solution.  Since each number can be only once in each row, column or box, this is a "
         "forbidden situation, so number 5 in both chain ends and all numbers in the chained "
         "cells having that same color are invalid."},
    });
}

TEST(SchrijfHint, LoopsInEachForm) {
    const Record loop = Record(28).number(2).cells({0, 4, 40, 36, 0});
    const Record aic = Record(31).cells({0, 4, 4, 40, 0}).values({3, 3, 6, 6, 3});
    ExpectSentences({
        {Record(28).variant(3).number(2).cells({0, 4, 40, 37, 18}),
         "NICE LOOPS: Weak Discontinuity in X-Cycle on candidate 2 => Loop starts at cell C1 "
         "through cells A1 A5 E5 E2 and back to cell C1 who looses the candidate as solution."},
        {Record(loop).variant(2),
         "NICE LOOPS: Strong Discontinuity in X-Cycle on candidate 2 => Loop starts at cell A1 "
         "through cells A5 E5 E1 and back to cell A1 who must have the candidate as solution."},
        {Record(28).variant(2).number(2).cells({0, 0}),
         "NICE LOOPS: Strong Discontinuity in X-Cycle on candidate 2 => Loop starts at cell A1 "
         "through cells and back to cell A1 who must have the candidate as solution."},
        {Record(loop).variant(1),
         "NICE LOOPS: Alternating X-Cycle on candidate 2 => Loop starts at cell A1 through cells "
         "A5 E5 E1 and back to cell A1. All cells holding the candidate under examination, not "
         "belonging to the X-Cycle, and sharing the same houses of the weak links, will loose "
         "that candidate."},
        {Record(loop).variant(0), "NICE LOOPS: "},
        {Record(aic).variant(1),
         "AIC: Cycle starting with candidate 3 in cell A1 through cells/candidates A5/3 A5/6 "
         "E5/6 and back to cell A1. Candidate(s) not participating to any weak link inside a "
         "cell, and for any weak link between 2 cells, that same candidate in other cells "
         "sharing that same house, can be removed."},
        {Record(aic).variant(2),
         "AIC: Strong Discontinuity on candidate 3 => Loop starts at cell A1 through "
         "cells/candidates A5/3 A5/6 E5/6 and back to cell A1 who must have candidate 3 as "
         "solution."},
        {Record(31).variant(3).cells({0, 4, 4, 40, 36}).values({3, 3, 6, 6, 3}),
         "AIC: Weak Discontinuity on candidate 3 => Loop starts at cell E1 through "
         "cells/candidates A1/3 A5/3 A5/6 E5/6 and back to cell E1 who looses candidate 3 as "
         "solution."},
    });
}

TEST(SchrijfHint, AlsWorksOutItsRemovalsFromTheBoard) {
    // A1 {1,2} against B2 {1,3} and C3 {2,3} in the same box: 1 is restricted, and
    // the other cells of the box that see all holders of a digit lose it.
    Board bivalue = OpenBoard();
    SetCandidates(bivalue, 0, {1, 2});
    SetCandidates(bivalue, 10, {1, 3});
    SetCandidates(bivalue, 20, {2, 3});
    const Record single =
        Record(32).cell(0).number(1).variant(2).row(0).cells({10, 20}).values({0, 20});
    ExpectSentences({{single,
                      "Bi-Value type ALSxz: Bi-Value cell=A1 ; ALS cells=B2/C3 ; Restricted "
                      "candidate=1 ; Candidate 2 removed from cell(s) A2 A3 B1 B3 C1 C2."},
                     {Record(single).row(1),
                      "Double Linked Bi-Value type ALSxz: Bi-Value cell=A1 ; ALS cells=B2/C3 ; "
                      "Restricted candidates=1 and 2 ; Candidate 1 removed from cell(s) A2 A3 B1 "
                      "B3 C1 C2 ; Candidate 2 removed from cell(s) A2 A3 B1 B3 C1 C2 ; Candidate 3 "
                      "removed from cell(s) A2 A3 B1 B3 C1 C2."}},
                    bivalue);

    // A1 {1,2}, A2 {2,3} against E1 {1,3}, E2 {3,4}: 1 is restricted through
    // column 1, and 3 goes where its three holders are all seen.
    Board sets = OpenBoard();
    SetCandidates(sets, 0, {1, 2});
    SetCandidates(sets, 1, {2, 3});
    SetCandidates(sets, 36, {1, 3});
    SetCandidates(sets, 37, {3, 4});
    ExpectSentences(
        {{Record(33).number(1).variant(3).row(0).column(0).cells({0, 1}).values({36, 37}),
          "ALSxz: ALS1 cells=A1/A2 ; ALS2 cells=E1/E2 ; Restricted candidate=1 ; "
          "Candidate 3 removed from cell(s) D2 F2."}},
        sets);
}

TEST(SchrijfHint, MedusaByRule) {
    const Record start = Record(34).cell(Coded(0, 4)).cells({}).values({});
    Board board = OpenBoard();
    SetCandidates(board, 13, {6, 8});
    ExpectSentences(
        {
            {Record(start).variant(1).row(Coded(40, 2)).column(Coded(40, 7)),
             "3D Medusa Rule 1 : If two candidates in a cell have the same colour - all of that "
             "colour can be removed. A chain of conjugating candidates (either in a house or in a "
             "cell) starting with candidate 4 in cell A1, results in a contradiction in cell E5, "
             "whereof candidates 2 and 7 have the same colour. Therefore all candidates in the "
             "chain with that colour, can be removed."},
            {Record(start).variant(2).number(6).row(Coded(20, 6)).column(Coded(24, 6)),
             "3D Medusa Rule 2 : If two cells in a house have the same candidate in the same "
             "colour - all of that colour can be removed. A chain of conjugating candidates "
             "(either in a house or in a cell) starting with candidate 4 in cell A1, results in a "
             "contradiction in row C, whereof candidate 6 appears in two cells having the same "
             "colour. Therefore all candidates in the chain with that colour, can be removed."},
            {Record(start).variant(2).number(6).row(Coded(20, 6)).column(Coded(10, 6)),
             "3D Medusa Rule 2 : If two cells in a house have the same candidate in the same "
             "colour - all of that colour can be removed. A chain of conjugating candidates "
             "(either in a house or in a cell) starting with candidate 4 in cell A1, results in a "
             "contradiction in box 1, whereof candidate 6 appears in two cells having the same "
             "colour. Therefore all candidates in the chain with that colour, can be removed."},
            {Record(start).variant(3).row(Coded(40, 2)).column(Coded(40, 7)),
             "3D Medusa Rule 3 : If two candidates in a cell have a different colour - all other "
             "candidates in that cell can be removed. A chain of conjugating candidates (either "
             "in a house or in a cell) starting with candidate 4 in cell A1, results in two "
             "candidates with different colour in cell E5. Therefore all other candidates in "
             "that cell can be removed."},
            {Record(start).variant(4).number(6).row(Coded(10, 6)).column(Coded(65, 6)),
             "3D Medusa Rule 4 : If an uncoloured candidate can see both opposite coloured "
             "candidates elsewhere - that candidate can be removed. A chain of conjugating "
             "candidates (either in a house or in a cell) starting with candidate 4 in cell A1, "
             "results in opposite coloured candidates 6 in cells B2 and H3. Therefore this "
             "candidate can be removed from cell(s) A3, B3, C3, G2, H2, J2."},
            {Record(start).variant(5).number(6).row(Coded(10, 6)).column(Coded(17, 6)),
             "3D Medusa Rule 5 : If an uncoloured candidate can see that candidate coloured "
             "elsewhere and an opposite coloured candidate in its own cell - that uncoloured "
             "candidate can be removed. A chain of conjugating candidates (either in a house or "
             "in a cell) starting with candidate 4 in cell A1, results in coloured candidate 6 in "
             "cell B2 who can see that candidate uncoloured in cell B9 accompanied by another "
             "opposite coloured candidate. Therefore that uncoloured candidate can be removed."},
            {Record(start)
                 .variant(6)
                 .number(6)
                 .row(Coded(10, 6))
                 .column(Coded(17, 8))
                 .valueCount(13),
             "3D Medusa Rule 6 : If a bi-value cell with uncoloured candidates can see both "
             "candidates in the same colour elsewhere - all of that colour can be removed. A "
             "chain of conjugating candidates (either in a house or in a cell) starting with "
             "candidate 4 in cell A1, results in two different candidates in different cells "
             "having the same colour. We have candidate 6 in cell B2 and candidate 8 in cell B9 "
             "who both can see the bi-value cell B5 having both candidates uncoloured. Therefore "
             "all candidates in the chain with that colour, can be removed."},
        },
        board);
}

// The unit form of a forcing chain that places a digit: no generated board has
// shown one, so its sentence is held here.
TEST(SchrijfHint, ForcingFromAUnitThatPlacesADigit) {
    ExpectSentences({
        {Record(36).variant(2).column(0).cell(80).number(2).cellCount(7).valueCount(3),
         "Forcing Chain : Whatever candidate 7 is true for column 1, candidate 2 will allways be "
         "true for cell J9. Therefore all other candidates can be removed from that cell."},
    });
}

TEST(SchrijfHint, WritesNothingOutsideTheKindsAndStopsAtAnUnknownForm) {
    ExpectSentences({
        {Record(0), ""},
        {Record(38), ""},
        {Record(2).number(5).row(4).column(4).variant(4), "HIDDEN SINGLE: Since number 5"},
        {Record(5).variant(-1).row(0).cells({0, 1, 2, 3}).values({1, 2, 3, 4}), ""},
        {Record(36).variant(0).cellCount(7), "Forcing Chain : Whatever candidate 7"},
    });
}

}  // namespace
}  // namespace tavi
