// SPDX-License-Identifier: GPL-3.0-or-later
// FormRevision: the program's revision history in a text box, with a button to
// close it.
#pragma once

#include <QDialog>

namespace tavi::ui {

class RevisionWindow : public QDialog {
  public:
    explicit RevisionWindow(QWidget* parent = nullptr);
};

// The history, newest first: as plain text, and as the window shows it.
QString RevisionHistory();
QString RevisionHistoryHtml();

}  // namespace tavi::ui
