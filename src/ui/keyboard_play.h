// SPDX-License-Identifier: GPL-3.0-or-later
// Play from the keyboard beside the mouse: the arrow keys move a cursor over the
// board, 1 to 9 place a digit in its cell, Ctrl or Alt with a digit takes that
// pencil mark away, Delete and Backspace clear the cell. Each key makes the very
// calls of the game that the matching clicks make, so undo, the clock, the
// penalties and the wells cannot tell the two apart. The commands get the usual
// shortcuts, shown in their buttons' tool tips.
#pragma once

#include <QObject>
#include <QString>

#include "game/game.h"

class QWidget;

namespace tavi::ui {

class BoardWidget;

// Why digit `digit` typed at `cell` can do nothing ("4 is not a candidate of
// B3"); empty when the key does what the click on the mark would.
QString KeyRefusal(const Game& game, int digit, int cell);

class KeyboardPlay : public QObject {
  public:
    // Listens to the keys that reach `board`; owned by `parent`.
    KeyboardPlay(Game& game, BoardWidget* board, QObject* parent);

    // Shortcuts for the command buttons of `window` (found by their names), each
    // one shown in its button's tool tip. A shortcut clicks the button, so it
    // does nothing where the button would not.
    static void AddShortcuts(QWidget* window);

  protected:
    bool eventFilter(QObject* watched, QEvent* e) override;

  private:
    void MoveCursor(int rows, int columns);
    void Digit(int digit, bool mark);
    void Clear();

    Game& game_;
    BoardWidget* board_;
};

}  // namespace tavi::ui
