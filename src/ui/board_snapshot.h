// A frozen copy of what the game window's board shows at one moment: the
// digits, which marks are visible, clues, and the painted colours of cells and
// marks. The hint window draws from it, so that later moves on the board leave
// the copy as it was until the person asks for a new one.
#pragma once

#include <QRect>
#include <array>
#include <cstdint>
#include <optional>

#include "game/game.h"

class QPainter;
class QPalette;

namespace tavi::ui {

struct HintSnapshot {
    std::array<int, 81> digits{};            // 0 for an open cell
    std::array<bool, 81> clue{};             // a digit of the puzzle itself
    std::array<std::uint16_t, 81> marks{};   // bit d - 1: mark d shows in the open cell
    std::array<std::uint16_t, 81> dimmed{};  // bit d - 1: mark d is drawn dim
    bool markCaptions = true;                // marks show their digit (not so without pencil marks)
    std::array<std::optional<Color>, 81> cellPaint{};
    std::array<std::array<std::optional<Color>, 9>, 81> markPaint{};

    bool MarkShown(int digit, int cell) const { return marks[cell] & (1u << (digit - 1)); }

    bool operator==(const HintSnapshot&) const = default;
};

// What the game's board shows now. A mark hidden by its digit filter is not
// shown, as on the board.
HintSnapshot SnapshotOf(const Game& game);

// Draws the snapshot as large as fits in `area`, with the row letters on the left
// and the column numbers on top; window, base and text colours come from `palette`.
void PaintSnapshot(QPainter& painter, const QRect& area, const HintSnapshot& snapshot,
                   const QPalette& palette);

}  // namespace tavi::ui
