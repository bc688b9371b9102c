// SPDX-License-Identifier: GPL-3.0-or-later
// The game window's "Practise..." command: the practice window picks a technique
// and a puzzle, and the game opens it.
#include <QPushButton>

#include "ui/main_window.h"
#include "ui/practice_dialog.h"
#include "ui/practice_indexer.h"

namespace tavi::ui {

QPushButton* MainWindow::BuildPractise(QWidget* parent) {
    auto* button = new QPushButton(QStringLiteral("Practise..."), parent);
    button->setObjectName(QStringLiteral("CommandPractise"));
    button->setFocusPolicy(Qt::TabFocus);
    button->setToolTip(QStringLiteral("Play a puzzle that needs one technique you choose"));
    connect(button, &QPushButton::clicked, this, &MainWindow::ShowPractice);
    return button;
}

void MainWindow::ShowPractice() {
    if (game_.Busy() || game_.MakeMode()) return;
    PracticeDialog dialog(*practice_, folders_.DataFolder, this);
    if (dialog.exec() != QDialog::Accepted) return;
    const PracticeDialog::Pick pick = dialog.Picked();
    Do([this, pick] {
        if (pick.found)
            game_.StartPractice(*pick.found, pick.technique);
        else if (pick.puzzle)
            game_.StartPractice(pick.puzzle->level, pick.puzzle->record, pick.technique);
    });
    // A generated puzzle changed the library: its index follows in the background.
    if (pick.found) practice_->Refresh();
}

}  // namespace tavi::ui
