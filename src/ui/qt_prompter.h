// SPDX-License-Identifier: GPL-3.0-or-later
// The game's questions as Qt dialogs: message boxes with the game's titles,
// texts, buttons and icons, and the input box.
#pragma once

#include <QPointer>
#include <QWidget>
#include <memory>

#include "platform/platform.h"

class QMessageBox;

namespace tavi::ui {

// The box the prompter shows for a question, not yet shown.
std::unique_ptr<QMessageBox> MessageBoxFor(QWidget* parent, std::string_view title,
                                           std::string_view text, Buttons buttons, Icon icon);

class QtPrompter : public Prompter {
  public:
    explicit QtPrompter(QWidget* parent = nullptr) : parent_(parent) {}
    // The window the boxes centre on; the boxes of the start-up come before it.
    void SetParent(QWidget* parent) { parent_ = parent; }

    void Beep() override;
    Answer Ask(std::string_view title, std::string_view text, Buttons buttons,
               Icon icon = Icon::None) override;
    std::optional<std::string> Input(std::string_view title, std::string_view prompt,
                                     std::string_view defaultText) override;

  private:
    QPointer<QWidget> parent_;
};

}  // namespace tavi::ui
