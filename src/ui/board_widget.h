// SPDX-License-Identifier: GPL-3.0-or-later
// The board of the game window: 81 cells with their big digit or their 3 x 3
// pencil marks, the painted colours, the row headers A to J (no I) and the
// column headers 1 to 9. The board painter draws what the game holds; the
// widget tells the game where a mouse button was released and decides nothing
// itself.
#pragma once

#include <QWidget>
#include <optional>

#include "game/game.h"
#include "print/board_geometry.h"
#include "print/glyph_cache.h"

namespace tavi::ui {

class BoardWidget : public QWidget {
    Q_OBJECT

  public:
    explicit BoardWidget(Game& game, QWidget* parent = nullptr);

    const BoardGeometry& Layout() const { return layout_; }
    // What a button pressed at `p` is aimed at: a mark that shows (digit 1..9),
    // the cell itself (digit 0) when the square holds no mark, or a header.
    BoardSpot TargetAt(QPoint p) const;

    // The keyboard's cursor: a cell, or -1 while neither a key nor a click has
    // chosen one. A click on a cell moves it there.
    int CursorCell() const { return cursor_; }
    void SetCursorCell(int cell);

    // A short answer to a key that could do nothing: the cell flashes and the
    // text stands over the board for a moment.
    void Notify(int cell, const QString& text);
    const QString& Notice() const { return notice_; }
    // The share of a cell's side along its edges where a click chooses the cell
    // and places nothing.
    static constexpr int kEdgeShare = 12;  // one twelfth

    QSize sizeHint() const override { return {460, 460}; }
    QSize minimumSizeHint() const override { return {200, 200}; }

  protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void changeEvent(QEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void leaveEvent(QEvent*) override;
    void focusInEvent(QFocusEvent*) override;
    void focusOutEvent(QFocusEvent*) override;

  private:
    void Hover(const BoardSpot& spot);
    void PaintNotice(QPainter& p);

    Game& game_;
    BoardGeometry layout_;
    GlyphCache glyphs_;
    std::optional<BoardSpot> pressed_;
    Qt::MouseButton pressedButton_ = Qt::NoButton;
    BoardSpot hover_;
    int cursor_ = -1;
    int noticeCell_ = -1;
    QString notice_;
    class QTimer* noticeTimer_ = nullptr;
};

}  // namespace tavi::ui
