#include "ui/revision_window.h"

#include <QDialogButtonBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace tavi::ui {

QString RevisionHistory() {
    return QStringLiteral(
        "Tavi Sudoku 1 - Revision History\n"
        "\n"
        "Version 1.6\n"
        "  - Printing: one, two or four puzzles to a page, up to ten pages, with\n"
        "    or without small solutions, or the puzzle on the screen with its\n"
        "    pencil marks. The preview shows the first page as it will print.\n"
        "  - Customize Colors: the colours of the brushes and of the hints can be\n"
        "    chosen from a palette, with a small board as preview.\n"
        "  - The small hint window is drawn the same way as the board.\n"
        "\n"
        "Version 1.5\n"
        "  - Solving Techniques Manager: change the order of the techniques, turn\n"
        "    them off, or let Autosolve halt before one of them.\n"
        "  - Scan runs Autosolve over a range of puzzles of a level.\n"
        "  - The small hint window can be saved as a picture or printed.\n"
        "\n"
        "Version 1.4\n"
        "  - Hint explains the next logical step in a sentence and colours its\n"
        "    cells and candidates on the board; Autosolve takes the steps.\n"
        "  - Hints without pencil marks in the first three levels.\n"
        "\n"
        "Version 1.3\n"
        "  - Brushes: colour cells and marks while you think, with the left and\n"
        "    the right mouse button.\n"
        "  - Dimmed pencil marks, lit up under the mouse.\n"
        "  - The wells beside the board show which boxes still lack each digit.\n"
        "\n"
        "Version 1.2\n"
        "  - Sounds, and a best time for every puzzle.\n"
        "  - Saving asks, or saves without asking, as the options say.\n"
        "\n"
        "Version 1.1\n"
        "  - Undo and redo of every step, also after a saved game is opened again.\n"
        "  - The digit filter, and Reset Cell by row and column header.\n"
        "  - The clock pauses while the window is minimised.\n"
        "\n"
        "Version 1.0\n"
        "  - The first release: nine levels from Easy to Outlaw, pencil marks in\n"
        "    every open cell that follow by themselves, the clock, and games kept\n"
        "    in the library files of each level.\n");
}

RevisionWindow::RevisionWindow(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("FormRevision"));
    setWindowTitle(QStringLiteral("Revision History"));
    auto* text = new QPlainTextEdit(RevisionHistory(), this);
    text->setReadOnly(true);
    text->setObjectName(QStringLiteral("TextRevision"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(buttons);
    resize(460, 380);
}

}  // namespace tavi::ui
