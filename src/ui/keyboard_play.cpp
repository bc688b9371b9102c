// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/keyboard_play.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QShortcut>
#include <QWidget>
#include <algorithm>

#include "grid/tables.h"
#include "ui/board_widget.h"

namespace tavi::ui {

namespace {

struct CommandKeys {
    const char* button;
    QKeySequence first;
    QKeySequence second;
};

// The digit of a key 1 to 9, on the main keys or the keypad; 0 for any other.
int DigitOf(const QKeyEvent& e) {
    const int key = e.key();
    if (key >= Qt::Key_1 && key <= Qt::Key_9) return key - Qt::Key_0;
    // With a modifier some layouts give another sign: the key code of the
    // X keyboard still names the digit key of the main row (1 to 9 are 10 to 18).
    const quint32 code = e.nativeScanCode();
    if ((e.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) && code >= 10 && code <= 18)
        return int(code) - 9;
    return 0;
}

}  // namespace

KeyboardPlay::KeyboardPlay(Game& game, BoardWidget* board, QObject* parent)
    : QObject(parent), game_(game), board_(board) {
    board_->setFocusPolicy(Qt::StrongFocus);
    board_->installEventFilter(this);
    board_->setFocus();  // the keys play from the start
}

void KeyboardPlay::AddShortcuts(QWidget* window) {
    const CommandKeys keys[] = {
        {"CommandNew", QKeySequence::New, {}},
        {"CommandOpen", QKeySequence::Open, {}},
        {"CommandSave", QKeySequence::Save, {}},
        {"CommandPrint", QKeySequence::Print, {}},
        {"CommandUndo", QKeySequence::Undo, {}},
        {"CommandRedo", QKeySequence(Qt::CTRL | Qt::Key_Y),
         QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)},
        {"CommandHint", QKeySequence(Qt::Key_H), {}},
        {"Command2", QKeySequence::HelpContents, {}},
        {"CommandExit", QKeySequence::Quit, {}},
    };
    for (const CommandKeys& k : keys) {
        auto* button = window->findChild<QPushButton*>(QLatin1String(k.button));
        if (!button) continue;
        QString shown;
        for (const QKeySequence& sequence : {k.first, k.second}) {
            if (sequence.isEmpty()) continue;
            auto* shortcut = new QShortcut(sequence, window);
            QObject::connect(shortcut, &QShortcut::activated, button, [button] {
                if (button->isEnabled() && button->isVisible()) button->click();
            });
            shown += (shown.isEmpty() ? QString() : QStringLiteral(", ")) +
                     sequence.toString(QKeySequence::NativeText);
        }
        button->setToolTip(QStringLiteral("%1 (%2)").arg(button->text(), shown));
    }
    if (auto* reset = window->findChild<QPushButton*>(QStringLiteral("CommandResetCell")))
        reset->setToolTip(QStringLiteral("Reset Cell (Del or Backspace on the board's cursor)"));
}

bool KeyboardPlay::eventFilter(QObject* watched, QEvent* e) {
    if (watched != board_ || e->type() != QEvent::KeyPress) return false;
    auto* key = static_cast<QKeyEvent*>(e);
    const Qt::KeyboardModifiers mods =
        key->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::ShiftModifier);
    switch (key->key()) {
        case Qt::Key_Left: MoveCursor(0, -1); return true;
        case Qt::Key_Right: MoveCursor(0, 1); return true;
        case Qt::Key_Up: MoveCursor(-1, 0); return true;
        case Qt::Key_Down: MoveCursor(1, 0); return true;
        case Qt::Key_Delete:
        case Qt::Key_Backspace: Clear(); return true;
        default: break;
    }
    if (const int digit = DigitOf(*key)) {
        if (mods == Qt::NoModifier) {
            Digit(digit, false);
            return true;
        }
        if (mods == Qt::ControlModifier || mods == Qt::AltModifier) {
            Digit(digit, true);
            return true;
        }
    }
    return false;
}

void KeyboardPlay::MoveCursor(int rows, int columns) {
    int cell = board_->CursorCell();
    if (cell < 0) {
        board_->SetCursorCell(40);  // the first key shows the cursor in the middle
        return;
    }
    const int row = std::clamp(cell / 9 + rows, 0, 8);
    const int column = std::clamp(cell % 9 + columns, 0, 8);
    board_->SetCursorCell(row * 9 + column);
}

QString KeyRefusal(const Game& game, int digit, int cell) {
    if (!game.GridEnabled() || game.brush().BrushActive) return {};
    const QString name = QString::fromStdString(CellName(cell));
    if (const int there = game.board().CurrentGrid[cell]) {
        if (game.IsClue(cell)) return QStringLiteral("%1 holds the clue %2").arg(name).arg(there);
        if (there == digit) return QStringLiteral("%1 holds %2 already").arg(name).arg(there);
        return QStringLiteral("%1 holds %2: Delete empties it").arg(name).arg(there);
    }
    if (!game.FilterOn(digit))
        return QStringLiteral("The marks of %1 are hidden by the digit filter").arg(digit);
    if (!game.MarkVisible(digit, cell))
        return QStringLiteral("%1 is not a candidate of %2").arg(digit).arg(name);
    return {};
}

// A digit as the left click on its mark, a mark taken away as the right click.
void KeyboardPlay::Digit(int digit, bool mark) {
    const int cell = board_->CursorCell();
    if (cell < 0 || game_.Busy()) return;
    // A mark that is not there takes no click, and no key either: say why.
    if (const QString why = KeyRefusal(game_, digit, cell); !why.isEmpty())
        board_->Notify(cell, why);
    game_.MarkMouseUp(digit, cell, mark ? MouseButton::Right : MouseButton::Left, true);
}

// As the clicks on the row's and the column's header, then on Reset Cell.
void KeyboardPlay::Clear() {
    const int cell = board_->CursorCell();
    if (cell < 0 || game_.Busy() || game_.brush().BrushActive) return;
    if (game_.SelectedRow() != cell / 9) game_.RowHeaderUp(cell / 9, MouseButton::Left, true);
    if (game_.SelectedColumn() != cell % 9) game_.ColumnHeaderUp(cell % 9, MouseButton::Left, true);
    if (game_.commands().ResetCell) game_.CommandResetCell();
}

}  // namespace tavi::ui
