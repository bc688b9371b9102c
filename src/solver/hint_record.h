// SPDX-License-Identifier: GPL-3.0-or-later
// The one hint record. A technique asked for a hint (HintOnly) stops at its first
// hit and leaves what it found here; the sentence, the colours and the caption are
// all derived from this record elsewhere. A technique fills only the fields its
// kind names and leaves the rest as they were, so a reader must never look at a
// field that its kind does not name.
//
// Beside those fields the record keeps what the hit concludes, in the order the
// technique reached it: the candidates it takes away and the digits it places.
// The primitives fill that list themselves, so no technique can forget it and no
// reader has to work the logic out a second time.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "grid/tables.h"
#include "settings/hint_kind.h"

namespace tavi {

// One conclusion of a hit: `digit` placed in `cell`, or taken away from it.
struct Conclusion {
    std::uint8_t cell = 0;
    std::uint8_t digit = 0;
    bool placed = false;
    bool operator==(const Conclusion&) const = default;
};

// The conclusions of one hit. A hit can take each of the 729 candidates away once
// and place each of the 81 cells once, and the list refuses a repeat, so it never
// runs full.
class ConclusionList {
  public:
    static constexpr int kCapacity = 81 * 9 + 81;

    void Clear() { count_ = 0; }
    // Adds a conclusion unless the list already holds it.
    void Add(int cell, int digit, bool placed) {
        const Conclusion c{std::uint8_t(cell), std::uint8_t(digit), placed};
        for (int i = 0; i < count_; ++i)
            if (items_[i] == c) return;
        if (count_ < kCapacity) items_[count_++] = c;
    }
    int size() const { return count_; }
    bool empty() const { return count_ == 0; }
    const Conclusion& operator[](int i) const { return items_[i]; }
    const Conclusion* begin() const { return items_.data(); }
    const Conclusion* end() const { return items_.data() + count_; }

  private:
    std::array<Conclusion, kCapacity> items_{};
    int count_ = 0;
};

// The conclusions as the command line writes them: "B3-7" for a candidate taken
// away, "A1=5" for a digit placed, separated by blanks; "none" for no conclusion.
inline std::string FormatConclusions(const ConclusionList& list) {
    if (list.empty()) return "none";
    std::string s;
    for (const Conclusion& c : list) {
        if (!s.empty()) s += ' ';
        s += CellName(c.cell) + (c.placed ? '=' : '-') + char('0' + c.digit);
    }
    return s;
}

struct HintRecord {
    // The size of a list as the fixed-size kinds read it.
    static constexpr int kListSize = 30;
    // What a list can hold: a chain or a colouring may run past kListSize, and is
    // kept whole (at most every candidate of the board once).
    static constexpr int kListCapacity = 81 * 9;
    using List = std::array<int, kListCapacity + 1>;

    // Selects the sentence, the colours and the caption. The field keeps the name
    // of its type, so the type is named in full here.
    tavi::HintKind HintKind = tavi::HintKind::None;
    int HintVariant = 0;  // the form of the kind; signed (a subset's is negative when hidden)
    int HintRow = 0;
    int HintColumn = 0;
    int HintCell = 0;  // a cell, or the top left cell of a box
    int HintNumber = 0;

    // 1-based lists; entry 0 is unused. Which fields a kind fills, and what they
    // mean, is written once beside the code that fills them (the file named beside
    // the kind in settings/hint_kind.h).
    List HintCells{};
    int HintCellCount = 0;
    List HintValues{};
    int HintValueCount = 0;

    // What the hit concludes, in order. Emptied by the walk before each rung.
    ConclusionList Conclusions;
};

}  // namespace tavi
