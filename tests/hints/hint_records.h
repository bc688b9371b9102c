// SPDX-License-Identifier: GPL-3.0-or-later
// Hint records filled by hand, the way each technique leaves them, for the kinds
// whose technique is not on the ladder yet. Every field the kind does not name
// keeps a stale mark, so a sentence or a paint that reads one shows it.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>

#include "hints/hint_paint.h"
#include "hints/schrijf_hint.h"
#include "support/boards.h"

namespace tavi::testing {

class Record {
  public:
    explicit Record(HintKind kind) : h_(MarkedHint()) { h_.HintKind = kind; }

    Record& variant(int v) { return h_.HintVariant = v, *this; }
    Record& row(int v) { return h_.HintRow = v, *this; }
    Record& column(int v) { return h_.HintColumn = v, *this; }
    Record& cell(int v) { return h_.HintCell = v, *this; }
    Record& number(int v) { return h_.HintNumber = v, *this; }
    // The lists, with their counts set to their lengths.
    Record& cells(std::initializer_list<int> list) {
        return Fill(h_.HintCells, h_.HintCellCount, list);
    }
    Record& values(std::initializer_list<int> list) {
        return Fill(h_.HintValues, h_.HintValueCount, list);
    }
    // A candidate the hit takes away, as the primitives would note it.
    Record& removed(int cell, int digit) { return h_.Conclusions.Add(cell, digit, false), *this; }
    // The counts alone, for kinds that keep something else in them.
    Record& cellCount(int v) { return h_.HintCellCount = v, *this; }
    Record& valueCount(int v) { return h_.HintValueCount = v, *this; }

    operator const HintRecord&() const { return h_; }

  private:
    Record& Fill(HintRecord::List& list, int& count, std::initializer_list<int> values) {
        count = 0;
        for (int v : values)
            list[++count] = v;
        return *this;
    }
    HintRecord h_;
};

// A record and the sentence it gives on a board.
struct SentenceCase {
    HintRecord hint;
    const char* sentence;
};

inline void ExpectSentences(std::initializer_list<SentenceCase> cases,
                            const Board& board = OpenBoard()) {
    for (const SentenceCase& c : cases)
        EXPECT_EQ(SchrijfHint(c.hint, board), c.sentence)
            << "kind " << c.hint.HintKind << " variant " << c.hint.HintVariant;
}

// The board after a paint list: the last role painted on each cell and on each
// candidate of each cell, -1 where nothing is painted.
struct PaintedBoard {
    std::array<int, 81> cell;
    std::array<std::array<int, 10>, 81> digit;

    explicit PaintedBoard(const std::vector<HintPaint>& paints) {
        Erase();
        for (const HintPaint& p : paints) {
            if (p.what == HintPaint::Erase) {
                Erase();
            } else if (p.what == HintPaint::Cell) {
                cell[p.cell] = p.role;
            } else {
                digit[p.cell][p.digit] = p.role;
            }
        }
    }
    void Erase() {
        cell.fill(-1);
        for (auto& d : digit)
            d.fill(-1);
    }
};

}  // namespace tavi::testing
