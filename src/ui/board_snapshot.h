// SPDX-License-Identifier: GPL-3.0-or-later
// What the game window's board shows, as the board painter's description: the
// board widget draws it afresh on every paint, and the hint window keeps a
// frozen copy, so that later moves on the board leave the copy as it was until
// the person asks for a new one.
#pragma once

#include <QPalette>

#include "game/game.h"
#include "print/board_painter.h"

namespace tavi::ui {

using HintSnapshot = BoardPicture;

// What the game's board shows now, picked headers and the hover's dimming
// included. A mark hidden by its digit filter is not shown, as on the board.
BoardPicture PictureOf(const Game& game);

// The copy for the hint window: the board as shown, without the picked headers,
// and drawn as a board that answers.
HintSnapshot SnapshotOf(const Game& game);

// The highlight of the options around the cursor's cell (-1 for none): its row,
// column and box tinted, and every cell and mark of its digit emphasised.
void AddHighlight(BoardPicture& picture, int cursor, const Options& options);

// The screen's look: window, base and text colours from `palette`.
BoardLook ScreenLook(const QPalette& palette);

}  // namespace tavi::ui
