// SPDX-License-Identifier: GPL-3.0-or-later
// What a hint's sentence and its colours both work out again from the record and
// the board, so that the two always tell the same story. Several kinds store less
// than they say: the ALS kinds keep no removals (they are read from the hit's
// conclusions, which are what the step does), MultiFish keeps only its digits, a
// finned X-Wing no fin. The board they are read from is the board the hint was
// found on; a hint changes nothing, so it still stands when the hint is written.
//
// What each kind keeps where is written once, beside the code in the solver that
// fills the record (the file named beside the kind in settings/hint_kind.h).
#pragma once

#include <span>
#include <vector>

#include "grid/board.h"
#include "solver/hint_record.h"

namespace tavi::hints {

// Two different cells in one row, column or box.
bool Sees(int a, int b);
// The cells, ascending, outside `cells` that see every one of them.
std::vector<int> SeenByAll(std::span<const int> cells);
// The candidates of `cell`, ascending.
std::vector<int> DigitsOf(const Board& board, int cell);
// Entries first..last (1-based) of a hint list.
std::vector<int> ListPart(const HintRecord::List& list, int first, int last);

// PointingPair: the line inside the box that the digit keeps to.
struct PointingLine {
    bool row;
    int line;
};
PointingLine PointingLineOf(const HintRecord& hint);

// XWing, Swordfish and Jellyfish: the lines of the square of HintCells, in list order.
struct FishLines {
    std::vector<int> rows, columns;
};
FishLines FishLinesOf(const HintRecord& hint);

// AlignedPairExclusion and AlignedTripleExclusion: the top left cell of the box the cells share, or
// -1 when the form names none.
int ExclusionBoxLeftTop(const HintRecord& hint);

// UniqueRectangle, type 3: the house of the naked pair with the roof.
enum class HouseKind { Row, Column, Box };
HouseKind RectangleType3House(const HintRecord& hint);

// A digit and the cells, ascending, that lose it.
struct DigitRemoval {
    int digit;
    std::vector<int> cells;
};

// BiValueALSxz and ALSxz: the two sets and what the hit removes, by digit ascending.
struct AlsPair {
    std::vector<int> first, second;  // BiValueALSxz: the bi-value cell, then the set
    bool doublyLinked = false;
    std::vector<DigitRemoval> removals;
};
AlsPair AlsPairOf(const HintRecord& hint);

// Medusa3D: a candidate in the code of the record.
struct MedusaCandidate {
    int cell, digit;
};
inline MedusaCandidate DecodeMedusa(int code) {
    if (code < 0) return {-1, 0};
    return {code % 81, code / 81 + 1};
}
// Rule 4: the cells, ascending, that lose the digit, as the hit concluded them.
std::vector<int> MedusaRule4Cells(const HintRecord& hint);

// MultiFish: the counting pattern of the four digits on the board.
struct MultiFishPattern {
    std::vector<int> digits;       // as the record lists them
    std::vector<int> truthRows;    // rows where none of the digits stands
    std::vector<int> linkColumns;  // columns where some stand and some are still missing
    std::vector<int> linkCells;    // empty cells where a truth row crosses a free column
    // The conclusions off the truth rows in the link columns, by digit; then those
    // in the link cells, by digit.
    std::vector<DigitRemoval> outside, inLinkCells;
};
MultiFishPattern MultiFishOf(const HintRecord& hint, const Board& board);

}  // namespace tavi::hints
