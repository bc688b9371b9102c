// The one hint record. A technique asked for a hint (HintOnly) stops at its first
// hit and leaves what it found here; the sentence, the colours and the caption are
// all derived from this record elsewhere. A technique fills only the fields its
// kind names and leaves the rest as they were, so a reader must never look at a
// field that its kind does not name.
#pragma once

#include <array>

namespace tavi {

struct HintRecord {
    static constexpr int kListSize = 30;

    int HintKind = 0;     // 1..37: selects the sentence and the caption
    int HintVariant = 0;  // the form of the kind; signed (kind 5 uses negative values)
    int HintRow = 0;
    int HintColumn = 0;
    int HintCell = 0;  // a cell, or the top left cell of a box
    int HintNumber = 0;

    // 1-based lists; entry 0 is unused. Kinds 12, 21, 27 and 33 keep cells in
    // HintValues, and kinds 35 and 36 keep a cell or a digit in HintCellCount.
    std::array<int, kListSize + 1> HintCells{};
    int HintCellCount = 0;
    std::array<int, kListSize + 1> HintValues{};
    int HintValueCount = 0;
};

}  // namespace tavi
