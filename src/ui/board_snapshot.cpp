// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/board_snapshot.h"

#include "grid/tables.h"

namespace tavi::ui {

BoardPicture PictureOf(const Game& game) {
    BoardPicture s;
    const Board& board = game.board();
    s.enabled = game.GridEnabled();
    s.selectedRow = game.SelectedRow() < 9 ? game.SelectedRow() : -1;
    s.selectedColumn = game.SelectedColumn() < 9 ? game.SelectedColumn() : -1;
    for (int c = 0; c < 81; ++c) {
        s.digits[c] = board.CurrentGrid[c];
        s.clue[c] = s.digits[c] != 0 && game.IsClue(c);
        s.cellPaint[c] = game.CellPaint(c);
        for (int d = 1; d <= 9; ++d) {
            s.markPaint[c][d - 1] = game.MarkPaint(d, c);
            if (s.digits[c] || !game.MarkVisible(d, c) || !game.FilterOn(d)) continue;
            s.marks[c] |= std::uint16_t(1u << (d - 1));
            if (game.MarkDimmed(d, c)) s.dimmed[c] |= std::uint16_t(1u << (d - 1));
            if (!game.MarkCaptionShown(d, c)) s.bareMarks[c] |= std::uint16_t(1u << (d - 1));
        }
    }
    return s;
}

HintSnapshot SnapshotOf(const Game& game) {
    HintSnapshot s = PictureOf(game);
    s.enabled = true;
    s.selectedRow = s.selectedColumn = -1;
    return s;
}

void AddHighlight(BoardPicture& picture, int cursor, const Options& options) {
    if (cursor < 0 || cursor > 80) return;
    if (options.HighlightHouses)
        for (int c = 0; c < 81; ++c)
            picture.tinted[c] = c / 9 == cursor / 9 || c % 9 == cursor % 9 ||
                                Global::BoxOfCell[c] == Global::BoxOfCell[cursor];
    if (options.HighlightDigit) picture.emphasised = picture.digits[cursor];
}

BoardLook ScreenLook(const QPalette& palette) {
    BoardLook look;
    look.window = palette.color(QPalette::Window);
    look.base = palette.color(QPalette::Base);
    look.userDigit = palette.color(QPalette::Text);
    return look;
}

}  // namespace tavi::ui
