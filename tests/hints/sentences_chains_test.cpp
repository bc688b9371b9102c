// The sentences of the almost locked sets, the forcing chains and MultiFish, from
// records filled as their techniques fill them (the colours, chains, loops and
// Medusa are checked on real hits in the rung cases).
// The kinds that tell more than they keep are given boards to work it out from.
#include <gtest/gtest.h>

#include "hints/hint_records.h"
#include "hints/schrijf_hint.h"

namespace tavi {
namespace {

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

TEST(SchrijfHint, ForcingChainsFromACellAndFromAUnit) {
    ExpectSentences({
        {Record(35).cell(0).number(5).cellCount(40).variant(-3),
         "Forcing Chain : Whatever candidate is true for cell A1, candidate 5 will allways be "
         "false for cell E5. Therefore that candidate can be removed from that cell."},
        {Record(35).cell(0).number(5).cellCount(40).variant(3),
         "Forcing Chain : Whatever candidate is true for cell A1, candidate 5 will allways be "
         "true for cell E5. Therefore all other candidates can be removed from that cell."},
        {Record(36).variant(3).row(4).cell(80).number(2).cellCount(7).valueCount(0),
         "Forcing Chain : Whatever candidate 7 is true for box 5, candidate 2 will allways be "
         "false for cell J9. Therefore that candidate can be removed from that cell."},
        {Record(36).variant(2).column(0).cell(80).number(2).cellCount(7).valueCount(3),
         "Forcing Chain : Whatever candidate 7 is true for column 1, candidate 2 will allways be "
         "true for cell J9. Therefore all other candidates can be removed from that cell."},
        {Record(36).variant(1).row(8).cell(80).number(2).cellCount(7).valueCount(-3),
         "Forcing Chain : Whatever candidate 7 is true for row J, candidate 2 will allways be "
         "true for cell J9. Therefore all other candidates can be removed from that cell."},
    });
}

// Rows A to F each hold one of 1..4, so G, H and J are the truths; columns 1 to 5
// hold some of them, and the empty cells of G to J in columns 6 to 9 are the links.
Board MultiFishBoard() {
    Board b;
    for (auto [cell, digit] : {std::pair{0, 1}, {10, 2}, {20, 3}, {30, 4}, {36, 2}, {49, 1}})
        b.CurrentGrid[cell] = std::uint8_t(digit);
    SetCandidates(b, 9, {3, 9});
    SetCandidates(b, 22, {3, 4});
    SetCandidates(b, 59, {1, 5});
    SetCandidates(b, 80, {2, 3, 7});
    return b;
}

TEST(SchrijfHint, MultiFishReadsItsPatternFromTheBoard) {
    ExpectSentences({{Record(37).variant(1).values({1, 2, 3, 4}),
                      "MultiFish with candidates 1, 2, 3 and 4.  Truths are found in Rows G, H "
                      "and J.  Links are found in Columns 1, 2, 3, 4 and 5. Any unsolved cell in "
                      "these columns not belonging to the Rows of the Thruths, will loose the "
                      "MultiFish candidates as possibility. You can remove 3 from B1, 3 from C5, "
                      "4 from C5.  Links are found in Cells G6, G7, G8, G9, H6, H7, H8, H9, J6, "
                      "J7, J8 and J9. These cells can only keep the Multifish candidates as "
                      "possibilities, and therefore will loose any other candidates. You can "
                      "remove 5 from G6, 7 from J9."}},
                    MultiFishBoard());
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
