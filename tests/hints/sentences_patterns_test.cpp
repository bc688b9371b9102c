// SPDX-License-Identifier: GPL-3.0-or-later
// The sentences of the fish, Sue-de-Coq and the rectangles in the forms that no
// real hit leaves, from records filled by hand.
#include "hints/hint_records.h"

namespace tavi {
namespace {

using testing::Record;

// The fish, the single-digit patterns, the wings, Sue-de-Coq and the rectangles
// are told from real hits in tests/data/rung_cases.txt. What stays here are the
// forms no technique leaves: a fish of no known form and a rectangle of no type
// (a variant outside 1..5) write only their head; real hits of Sue-de-Coq have
// groups of one or two cells, and a group of three is named as a list.
TEST(SchrijfHint, FormsNoRealHitLeaves) {
    testing::ExpectSentences({
        {Record(HintKind::Jellyfish)
             .variant(0)
             .number(1)
             .cells({0, 1, 2, 8, 18, 19, 20, 26, 36, 37, 38, 44, 54, 55, 56, 62}),
         "JELLYFISH: Since number 1 appears maximum four times in each "},
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
        {Record(HintKind::UniqueRectangle).values({1, 9}).cells({10, 13, 64, 67}).variant(6),
         "UNIQUE RECTANGLE: "},
    });
}

}  // namespace
}  // namespace tavi
