// SPDX-License-Identifier: GPL-3.0-or-later
// The colours of a hint as a list of paints for the board to apply in order: each
// paints a cell, or one candidate digit of a cell, in one of the nine roles of
// HintColor, and a later paint on the same spot replaces an earlier one. The list
// of a hint starts with the erase of all colours (WisKleuren). Roles, not colours,
// are listed, so that the colours in force when the board is painted apply.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "grid/board.h"
#include "hints/hint_roles.h"
#include "settings/colors.h"
#include "solver/hint_record.h"

namespace tavi {

struct HintPaint {
    enum What { Erase, Cell, Digit } what;
    int cell = 0;   // Cell, Digit: 0..80
    int digit = 0;  // Digit: 1..9
    HintRole role = kBaseCell;

    bool operator==(const HintPaint&) const = default;
};

// Builds a paint list with the board's own operations. Cells and digits out of
// range (a stale record) are passed over. The board is read only to learn which
// candidates are there, for ZetAttackedCell; it must outlive the painter.
class HintPainter {
  public:
    explicit HintPainter(const Board& board) : board_(board) {}

    // Every cell and candidate back to the window's background.
    void WisKleuren();
    void ZetHintVak(int cell, HintRole role);
    void ZetHintRij(int row, HintRole role);
    void ZetHintKolom(int column, HintRole role);
    void ZetHintBlok(int leftTop, HintRole role);  // the box by its top left cell
    void ZetHintNummer(int cell, int digit, HintRole role);
    // The cell in attacked cell and the digit in attacked candidates, but only if
    // the digit is a candidate there: what is not there is never shown attacked.
    void ZetAttackedCell(int cell, int digit);

    const Board& board() const { return board_; }
    // True if `digit` is a candidate of `cell`; false for anything out of range.
    bool Holds(int digit, int cell) const {
        return cell >= 0 && cell < 81 && digit >= 1 && digit <= 9 && board_.Has(digit, cell);
    }
    const std::vector<HintPaint>& paints() const { return paints_; }

  private:
    const Board& board_;
    std::vector<HintPaint> paints_;
};

// The paints of the hint in `hint`, found on `board`: WisKleuren and then the
// kind's own painting. Empty for a kind outside 1..37, which colours nothing.
std::vector<HintPaint> PaintHint(const HintRecord& hint, const Board& board);

// "base candidates", "attacked cell" and so on: the role as the colour dialog
// names it, without its arrow.
std::string_view RoleName(HintRole role);
// One paint in words: "erase", "cell A1 base cell", "digit 5 of A1 attacked candidates".
std::string DescribePaint(const HintPaint& paint);
// A whole paint list on one line, its paints joined by "; ".
std::string DescribePaints(const std::vector<HintPaint>& paints);

}  // namespace tavi
