// SPDX-License-Identifier: GPL-3.0-or-later
// The wells beside the board: for each digit a small map of the nine boxes, by
// band and by stack, with the boxes that hold the digit filled in. A digit in
// all nine boxes shows as completed. One row per digit, level with the board's
// rows.
#pragma once

#include <QWidget>

#include "game/game.h"

namespace tavi::ui {

class WellsWidget : public QWidget {
  public:
    explicit WellsWidget(const Game& game, QWidget* parent = nullptr);

    // Where the wells stand, set by whoever places the board: one above the
    // other (Qt::Vertical) or side by side, the first at `first`, `pitch` apart.
    void SetSlots(Qt::Orientation orientation, int first, int pitch);

  protected:
    void paintEvent(QPaintEvent*) override;

  private:
    const Game& game_;
    Qt::Orientation orientation_ = Qt::Vertical;
    int first_ = 0;
    int pitch_ = 0;
};

}  // namespace tavi::ui
