// SPDX-License-Identifier: GPL-3.0-or-later
// Sentences from records filled by hand, as their techniques fill them, for what
// the technique cases (tests/data/rung_cases.txt) do not reach. The kinds that
// tell more than they keep are given boards to work it out from.
#include <gtest/gtest.h>

#include "hints/hint_records.h"
#include "hints/schrijf_hint.h"

namespace tavi {
namespace {

using testing::ExpectSentences, testing::OpenBoard, testing::Record, testing::SetCandidates;

// The ALS sentences list exactly what the hit takes away, by digit and then by
// cell, whatever else the sets share: a singly linked pair takes only z, and a
// doubly linked one may take a digit from a cell of the other set. (Hits of two
// sets are told in the technique cases.)
TEST(SchrijfHint, AlsListsExactlyTheRemovalsOfTheHit) {
    // A1 {1,2} against B2 {1,3} and C3 {2,3} in the same box.
    Board bivalue = OpenBoard();
    SetCandidates(bivalue, 0, {1, 2});
    SetCandidates(bivalue, 10, {1, 3});
    SetCandidates(bivalue, 20, {2, 3});
    const Record single = Record(HintKind::BiValueALSxz)
                              .cell(0)
                              .number(1)
                              .variant(2)
                              .row(0)
                              .cells({10, 20})
                              .values({0, 20})
                              .removed(2, 2)
                              .removed(1, 2)
                              .removed(9, 2);
    ExpectSentences({{single,
                      "Bi-Value type ALSxz: Bi-Value cell=A1 ; ALS cells=B2/C3 ; Restricted "
                      "candidate=1 ; Candidate 2 removed from cell(s) A2 A3 B1."},
                     {Record(single).row(1).removed(1, 3).removed(1, 1),
                      "Double Linked Bi-Value type ALSxz: Bi-Value cell=A1 ; ALS cells=B2/C3 ; "
                      "Restricted candidates=1 and 2 ; Candidate 1 removed from cell(s) A2 ; "
                      "Candidate 2 removed from cell(s) A2 A3 B1 ; Candidate 3 removed from "
                      "cell(s) A2."}},
                    bivalue);
}

// Forms no real hit leaves: no kind, a form the kind does not have, a forcing
// chain from a unit that places a digit, and a Sue-de-Coq group of three cells
// (real ones have one or two), named as a list.
TEST(SchrijfHint, FormsNoRealHitLeaves) {
    ExpectSentences({
        {Record(HintKind::ForcingChainFromUnit)
             .variant(2)
             .column(0)
             .cell(80)
             .number(2)
             .cellCount(7)
             .valueCount(3),
         "Forcing Chain : Whatever candidate 7 is true for column 1, candidate 2 will allways be "
         "true for cell J9. Therefore all other candidates can be removed from that cell."},
        {Record(HintKind::SueDeCoq)
             .row(-1)
             .column(4)
             .variant(4)
             .cells({4, 13, 76})
             .values({30, 50}),
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

        {Record(HintKind::None), ""},
        {Record(HintKind(38)), ""},
        {Record(HintKind::HiddenSingle).number(5).row(4).column(4).variant(4),
         "HIDDEN SINGLE: Since number 5"},
        {Record(HintKind::Subset).variant(-1).row(0).cells({0, 1, 2, 3}).values({1, 2, 3, 4}), ""},
        {Record(HintKind::ForcingChainFromUnit).variant(0).cellCount(7),
         "Forcing Chain : Whatever candidate 7"},
    });
}

}  // namespace
}  // namespace tavi
