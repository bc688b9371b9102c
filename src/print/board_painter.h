// SPDX-License-Identifier: GPL-3.0-or-later
// The one board painter. The game window's board, the hint window's frozen copy,
// the colours window's preview and the printed pages are all drawn by
// PaintBoard from a BoardPicture, a small description of what stands on the
// board, and a BoardLook, the ink and fonts of the surface it lands on. So the
// hint window always reads as the board, and a printed page as what the
// preview showed.
#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <array>
#include <cstdint>
#include <optional>

#include "print/board_geometry.h"
#include "settings/colors.h"

class QPainter;

namespace tavi::ui {

class GlyphCache;

struct BoardPicture {
    std::array<int, 81> digits{};               // 0 for an open cell
    std::array<bool, 81> clue{};                // a digit of the puzzle itself
    std::array<std::uint16_t, 81> marks{};      // bit d - 1: mark d shows in the open cell
    std::array<std::uint16_t, 81> dimmed{};     // bit d - 1: mark d is drawn dim
    std::array<std::uint16_t, 81> bareMarks{};  // bit d - 1: mark d shows no digit (play
                                                // without pencil marks)
    bool enabled = true;                        // a board that takes no click draws its marks pale
    int selectedRow = -1;                       // a picked row header, drawn in red; -1 for none
    int selectedColumn = -1;
    int cursor = -1;            // the keyboard's cell, framed; -1 for none
    bool cursorFocused = true;  // the keys reach the board: the frame in full colour
    // The highlight, drawn under every paint: cells in a light tint, and the
    // cells and marks of one digit (0 for none) emphasised.
    std::array<bool, 81> tinted{};
    int emphasised = 0;
    std::array<std::optional<Color>, 81> cellPaint{};
    std::array<std::array<std::optional<Color>, 9>, 81> markPaint{};

    bool MarkShown(int digit, int cell) const { return marks[cell] & (1u << (digit - 1)); }

    bool operator==(const BoardPicture&) const = default;
};

// The surface: the colours under and on the board, and the font families.
struct BoardLook {
    QColor window = QColor(240, 240, 240);  // around the grid (headers)
    QColor base = Qt::white;                // the cells
    QColor userDigit = Qt::black;           // a digit the person placed
    QColor clue;                            // a digit of the puzzle
    QColor mark = QColor(60, 64, 72);
    QColor thinLine = QColor(150, 156, 170);
    QColor thickLine = QColor(38, 44, 64);
    QColor headerText = QColor(70, 76, 92);
    QColor tint = QColor(233, 239, 250);       // the highlight's cells
    QColor digitTint = QColor(196, 214, 246);  // the cells of the emphasised digit
    QColor markTint = QColor(160, 192, 245);   // a spot under each of its marks
    QString digitFamily;                       // empty: the painter's font
    QString headerFamily;
    // With a family the font starts fresh, with this hint for fontconfig's
    // choice, and takes nothing of the painter's font.
    QFont::StyleHint digitHint = QFont::AnyStyle;
    QFont::StyleHint headerHint = QFont::AnyStyle;
    // The marks lie in the cell less this share of its side on every edge
    // (hundredths), so they keep clear of the grid lines.
    int markMargin = 0;
    bool boldClues = true;
    bool fillWindow = true;  // paint `window` over the board's whole rectangle first

    BoardLook();
    // Black on white paper: digits in a Times New Roman face, headers in an
    // Arial face, marks in grey clear of the lines, lines that survive a printer.
    static BoardLook Paper();
};

// Draws `picture` laid out by `geometry`. With `glyphs` the digits come from that
// cache of rendered pixmaps (fast on the screen); without, they are drawn as
// text, which a printer and a PDF keep as text.
void PaintBoard(QPainter& painter, const BoardGeometry& geometry, const BoardPicture& picture,
                const BoardLook& look, GlyphCache* glyphs = nullptr);

// The contrast of two colours by their relative luminance: 1 (the same) to 21
// (black on white).
double ContrastRatio(const QColor& a, const QColor& b);

// Contrast wanted for digits and marks, and for dimmed marks (faint, still read).
inline constexpr double kInkContrast = 4.5;
inline constexpr double kDimmedContrast = 3.0;

// Ink that stays readable on a paint (a hint's colour, say): the ink itself when
// it stands out enough, else the ink moved towards black or white, whichever
// stands out more from the paint, just far enough to reach `contrast`.
QColor ReadableOn(const QColor& ink, const std::optional<Color>& paint,
                  double contrast = kInkContrast);

// The core keeps colours as 0x00BBGGRR.
inline QColor ColorOf(Color c) {
    return QColor(int(c & 0xFF), int((c >> 8) & 0xFF), int((c >> 16) & 0xFF));
}

}  // namespace tavi::ui
