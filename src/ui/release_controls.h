// SPDX-License-Identifier: GPL-3.0-or-later
// Buttons and labels that tell which mouse button was released over them, and
// whether the release was still over them: the game's clicks on the digit
// filter, the palette and the labels count only then, and the right button has
// a meaning of its own.
#pragma once

#include <QLabel>
#include <QPushButton>

#include "game/game.h"

namespace tavi::ui {

class ReleaseButton : public QPushButton {
    Q_OBJECT

  public:
    using QPushButton::QPushButton;

  signals:
    void Released(tavi::MouseButton button, bool inside);

  protected:
    void mousePressEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;

  private:
    Qt::MouseButton pressed_ = Qt::NoButton;
};

class ClickLabel : public QLabel {
    Q_OBJECT

  public:
    using QLabel::QLabel;

  signals:
    void Released(tavi::MouseButton button, bool inside);
    void DoubleClicked();

  protected:
    void mousePressEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void mouseDoubleClickEvent(QMouseEvent*) override;

  private:
    Qt::MouseButton pressed_ = Qt::NoButton;
};

}  // namespace tavi::ui
