// SPDX-License-Identifier: GPL-3.0-or-later
// What changed in the game, as the window is told after each of the game's
// routines: the parts of the window to draw again. The game compares what it
// shows before and after (platform/changes.h).
#pragma once

#include <functional>

#include "platform/changes.h"

namespace tavi {

enum Change : unsigned {
    kChangeBoard = 1u << 0,       // digits, marks, picked row and column, hover, grid on or off,
                                  // whether marks show their digit
    kChangePaint = 1u << 1,       // painted colours and the digit filter
    kChangeCommands = 1u << 2,    // which commands answer, and their captions
    kChangeTexts = 1u << 3,       // the hint box, the step counter, the puzzle line
    kChangeClock = 1u << 4,       // the clock's label
    kChangeWells = 1u << 5,       // the wells and whether they show
    kChangeTitle = 1u << 6,       // the window's caption
    kChangeBrush = 1u << 7,       // the palette's captions and the pointer
    kChangeLevel = 1u << 8,       // the level chosen
    kChangeHintWindow = 1u << 9,  // a hint to show in the small hint window, or another game
};

// The window's listener, called once at the end of each of the game's routines
// that changed something, and during a long search each time it breathes.
using GameEvents = std::function<void(Changes)>;

}  // namespace tavi
