// SPDX-License-Identifier: GPL-3.0-or-later
// The About box: the program's name, version and licence, its home page, and the
// revision history of FormRevision below them. The game window's version label
// opens it.
#pragma once

#include <QDialog>

namespace tavi::ui {

class AboutWindow : public QDialog {
  public:
    explicit AboutWindow(QWidget* parent = nullptr);
};

}  // namespace tavi::ui
