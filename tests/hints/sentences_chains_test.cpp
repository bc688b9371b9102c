// SPDX-License-Identifier: GPL-3.0-or-later
// Sentences from records filled by hand, for forms the technique cases
// (tests/data/rung_cases.txt) do not reach.
#include <gtest/gtest.h>

#include "hints/hint_records.h"

namespace tavi {
namespace {

using testing::ExpectSentences, testing::Record;

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
