// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/release_controls.h"

#include <QMouseEvent>

#include "ui/qt_convert.h"

namespace tavi::ui {

void ReleaseButton::mousePressEvent(QMouseEvent* e) {
    if (pressed_ == Qt::NoButton && ToMouseButton(e->button())) pressed_ = e->button();
    // The left button also gives the pressed look; the others only count.
    if (e->button() == Qt::LeftButton)
        QPushButton::mousePressEvent(e);
    else
        e->accept();
}

void ReleaseButton::mouseReleaseEvent(QMouseEvent* e) {
    const bool ours = e->button() == pressed_;
    if (e->button() == Qt::LeftButton)
        QPushButton::mouseReleaseEvent(e);
    else
        e->accept();
    if (!ours) return;
    pressed_ = Qt::NoButton;
    emit Released(*ToMouseButton(e->button()), rect().contains(e->position().toPoint()));
}

void ClickLabel::mousePressEvent(QMouseEvent* e) {
    if (pressed_ == Qt::NoButton && ToMouseButton(e->button())) pressed_ = e->button();
    e->accept();
}

void ClickLabel::mouseReleaseEvent(QMouseEvent* e) {
    e->accept();
    if (e->button() != pressed_) return;
    pressed_ = Qt::NoButton;
    emit Released(*ToMouseButton(e->button()), rect().contains(e->position().toPoint()));
}

void ClickLabel::mouseDoubleClickEvent(QMouseEvent* e) {
    e->accept();
    if (e->button() == Qt::LeftButton) emit DoubleClicked();
}

}  // namespace tavi::ui
