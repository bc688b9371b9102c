#include "ui/revision_window.h"

#include <QDialogButtonBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace tavi::ui {

QString RevisionHistory() {
    return QStringLiteral(
        "Tavi Sudoku 1\n"
        "\n"
        "Version 1.6\n"
        "  - The game window: nine levels from Easy to Outlaw, a board that grows\n"
        "    with the window, pencil marks in every open cell.\n"
        "  - A left click on a mark places the digit, a right click takes the mark\n"
        "    away; the marks of the row, column and box follow by themselves.\n"
        "  - Undo and redo of every step, also after a saved game is opened again.\n"
        "  - The digit filter, Reset Cell by row and column header, and brushes to\n"
        "    colour cells and marks while you think.\n"
        "  - The clock with its best time per puzzle, and the wells beside the board\n"
        "    that show which boxes still lack each digit.\n"
        "  - Games are kept in the library files of each level, so a game in\n"
        "    progress is offered again at the next start.\n");
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
