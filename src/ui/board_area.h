// SPDX-License-Identifier: GPL-3.0-or-later
// The board with what stands beside it: the digit filter buttons (Command1) and
// the wells. Placed by hand so that the button and the well of a digit line up
// with a row of the board (beside it) or a column (below it), whichever leaves
// the larger board in the space there is.
#pragma once

#include <QWidget>
#include <array>

#include "game/game.h"
#include "ui/board_widget.h"
#include "ui/release_controls.h"
#include "ui/wells_widget.h"

namespace tavi::ui {

class BoardArea : public QWidget {
  public:
    BoardArea(Game& game, QWidget* parent = nullptr);

    BoardWidget* Board() const { return board_; }
    WellsWidget* Wells() const { return wells_; }
    ReleaseButton* DigitButton(int digit) const { return digits_[digit - 1]; }

    // The buttons' look follows the filter; the wells show or hide with the option.
    void Refresh();

    QSize sizeHint() const override { return {600, 480}; }
    QSize minimumSizeHint() const override { return {300, 240}; }

  protected:
    void resizeEvent(QResizeEvent*) override;

  private:
    void Arrange();

    const Game& game_;
    BoardWidget* board_;
    WellsWidget* wells_;
    std::array<ReleaseButton*, 9> digits_{};
};

}  // namespace tavi::ui
