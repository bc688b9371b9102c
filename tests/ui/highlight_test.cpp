// SPDX-License-Identifier: GPL-3.0-or-later
// The highlight around the cursor: which cells and marks it picks out for each
// cursor and option, and that the colours of hints and brushes lie above it.
#include <QImage>
#include <QPainter>

#include "grid/tables.h"
#include "ui/board_snapshot.h"
#include "window_fixture.h"

namespace tavi::ui {
namespace {

class Highlight : public tavi::testing::GameFixture {};

TEST_F(Highlight, TheCursorsHousesAndItsDigitForEveryCellAndOption) {
    Game& g = Playing(3);
    PlaceOne();
    for (const bool houses : {true, false})
        for (const bool digit : {true, false}) {
            options.HighlightHouses = houses;
            options.HighlightDigit = digit;
            for (int cursor = -1; cursor < 81; ++cursor) {
                BoardPicture p = PictureOf(g);
                AddHighlight(p, cursor, options);
                int tinted = 0;
                for (int c = 0; c < 81; ++c) {
                    tinted += p.tinted[c];
                    if (p.tinted[c]) {
                        EXPECT_TRUE(c / 9 == cursor / 9 || c % 9 == cursor % 9 ||
                                    Global::BoxOfCell[c] == Global::BoxOfCell[cursor]);
                    }
                }
                EXPECT_EQ(tinted, houses && cursor >= 0 ? 21 : 0);
                const int want = digit && cursor >= 0 ? g.board().CurrentGrid[cursor] : 0;
                EXPECT_EQ(p.emphasised, want) << cursor;
            }
        }
}

TEST_F(Highlight, HintAndBrushColoursDrawAboveIt) {
    Game& g = Playing(1);
    g.CommandHint();
    BoardPicture p = PictureOf(g);
    int painted = -1;
    for (int c = 0; c < 81 && painted < 0; ++c)
        if (p.cellPaint[c]) painted = c;
    ASSERT_GE(painted, 0);
    options.HighlightHouses = options.HighlightDigit = true;
    AddHighlight(p, painted, options);
    // Every cell painted with the digit of the cursor, and all tinted.
    p.emphasised = p.digits[painted] ? p.digits[painted] : 5;
    for (int c = 0; c < 81; ++c)
        p.tinted[c] = true;

    BoardGeometry fit;
    fit.Fit(QSize(600, 600));
    QImage image(600, 600, QImage::Format_RGB32);
    QPainter painter(&image);
    PaintBoard(painter, fit, p, BoardLook());
    painter.end();
    const BoardLook look;
    for (int c = 0; c < 81; ++c) {
        const QRect cell = fit.CellRect(c).adjusted(4, 4, -4, -4);
        const QRgb corner = image.pixel(cell.topLeft());
        if (p.cellPaint[c]) {
            EXPECT_EQ(corner, ColorOf(*p.cellPaint[c]).rgb()) << c;
        } else if (p.digits[c] == p.emphasised) {
            EXPECT_EQ(corner, look.digitTint.rgb()) << c;
        } else {
            EXPECT_EQ(corner, look.tint.rgb()) << c;
        }
    }
}

class HoverWindow : public WindowFixture {};

// Without pencil marks the marks show nothing, but the one under the pointer
// shows the digit a click there would place, and only while the pointer is on it.
TEST_F(HoverWindow, WithoutPencilmarksTheMarkUnderThePointerShowsItsDigit) {
    Open();
    options.PencilmarksOff = true;
    game->OptionType(1);
    Press("CommandNew");
    ASSERT_FALSE(game->MarkCaptionsShown());
    auto [cell, digit] = FirstOpenCell();
    const int other = digit % 9 + 1;
    EXPECT_EQ(InkIn(BoardImage(), MarkRect(digit, cell)), 0);
    QTest::mouseMove(Board(), MarkCentre(digit, cell));
    QApplication::processEvents();
    QImage image = BoardImage();
    EXPECT_GT(InkIn(image, MarkRect(digit, cell)) +
                  CountIn(image, MarkRect(digit, cell),
                          [](QRgb p) { return qBlue(p) > 150 && qRed(p) < 100; }),
              3);
    EXPECT_EQ(InkIn(image, MarkRect(other, cell)), 0);
    QTest::mouseMove(Board(), MarkCentre(other, cell));
    QApplication::processEvents();
    image = BoardImage();
    EXPECT_EQ(InkIn(image, MarkRect(digit, cell)), 0);
    EXPECT_EQ(game->CurrentStep(), 0);
}

}  // namespace
}  // namespace tavi::ui
