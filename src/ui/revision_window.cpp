// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/revision_window.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace tavi::ui {

namespace {

struct Release {
    const char* version;
    std::initializer_list<const char*> changes;
};

// Each change is one sentence that the window wraps to its width.
const Release kReleases[] = {
    {"1.6",
     {"Printing: one, two or four puzzles to a page, up to ten pages, with or without small "
      "solutions, or the puzzle on the screen with its pencil marks. The preview shows the "
      "first page as it will print.",
      "Customize Colors: the colours of the brushes and of the hints can be chosen from a "
      "palette, with a small board as preview.",
      "The small hint window is drawn the same way as the board."}},
    {"1.5",
     {"Solving Techniques Manager: change the order of the techniques, turn them off, or let "
      "Autosolve halt before one of them.",
      "Scan runs Autosolve over a range of puzzles of a level.",
      "The small hint window can be saved as a picture or printed."}},
    {"1.4",
     {"Hint explains the next logical step in a sentence and colours its cells and candidates "
      "on the board; Autosolve takes the steps.",
      "Hints without pencil marks in the first three levels."}},
    {"1.3",
     {"Brushes: colour cells and marks while you think, with the left and the right mouse "
      "button.",
      "Dimmed pencil marks, lit up under the mouse.",
      "The wells beside the board show which boxes still lack each digit."}},
    {"1.2",
     {"Sounds, and a best time for every puzzle.",
      "Saving asks, or saves without asking, as the options say."}},
    {"1.1",
     {"Undo and redo of every step, also after a saved game is opened again.",
      "The digit filter, and Reset Cell by row and column header.",
      "The clock pauses while the window is minimised."}},
    {"1.0",
     {"The first release: nine levels from Easy to Outlaw, pencil marks in every open cell "
      "that follow by themselves, the clock, and games kept in the library files of each "
      "level."}},
};

}  // namespace

QString RevisionHistory() {
    QString text = QStringLiteral("Tavi Sudoku 1 - Revision History\n");
    for (const Release& r : kReleases) {
        text += QStringLiteral("\nVersion %1\n").arg(QLatin1String(r.version));
        for (const char* change : r.changes)
            text += QStringLiteral("  - %1\n").arg(QLatin1String(change));
    }
    return text;
}

QString RevisionHistoryHtml() {
    QString html = QStringLiteral("<h3>Tavi Sudoku 1 - Revision History</h3>");
    for (const Release& r : kReleases) {
        html += QStringLiteral(
                    "<p style=\"margin-top:10px; margin-bottom:2px\"><b>Version "
                    "%1</b></p><ul style=\"margin-top:0px\">")
                    .arg(QLatin1String(r.version));
        for (const char* change : r.changes)
            html += QStringLiteral("<li>%1</li>").arg(QString::fromLatin1(change).toHtmlEscaped());
        html += QStringLiteral("</ul>");
    }
    return html;
}

RevisionWindow::RevisionWindow(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("FormRevision"));
    setWindowTitle(QStringLiteral("Revision History"));
    // Flowing paragraphs, wrapped to the window's width, one list per version.
    auto* text = new QTextBrowser(this);
    text->setHtml(RevisionHistoryHtml());
    text->setObjectName(QStringLiteral("TextRevision"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(buttons);
    resize(460, 380);
}

}  // namespace tavi::ui
