// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt_prompter.h"

#include <QApplication>
#include <QGridLayout>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>

#include <algorithm>

#include "ui/qt_convert.h"

namespace tavi::ui {

namespace {

QMessageBox::StandardButtons ButtonsOf(Buttons b) {
    switch (b) {
        case Buttons::Ok: return QMessageBox::Ok;
        case Buttons::OkCancel: return QMessageBox::Ok | QMessageBox::Cancel;
        case Buttons::YesNo: return QMessageBox::Yes | QMessageBox::No;
        case Buttons::YesNoCancel: return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        case Buttons::AbortRetryIgnore:
            return QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore;
    }
    return QMessageBox::Ok;
}

// What closing the box with Escape or its close button answers: the choice that
// changes the least.
QMessageBox::StandardButton EscapeOf(Buttons b) {
    switch (b) {
        case Buttons::Ok: return QMessageBox::Ok;
        case Buttons::OkCancel:
        case Buttons::YesNoCancel: return QMessageBox::Cancel;
        case Buttons::YesNo: return QMessageBox::No;
        case Buttons::AbortRetryIgnore: return QMessageBox::Abort;
    }
    return QMessageBox::Ok;
}

QMessageBox::Icon IconOf(Icon i) {
    switch (i) {
        case Icon::None: return QMessageBox::NoIcon;
        case Icon::Information: return QMessageBox::Information;
        case Icon::Exclamation: return QMessageBox::Warning;
        case Icon::Question: return QMessageBox::Question;
        case Icon::Critical: return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

Answer AnswerOf(int button, Buttons asked) {
    switch (button) {
        case QMessageBox::Ok: return Answer::Ok;
        case QMessageBox::Cancel: return Answer::Cancel;
        case QMessageBox::Yes: return Answer::Yes;
        case QMessageBox::No: return Answer::No;
        case QMessageBox::Abort: return Answer::Abort;
        case QMessageBox::Retry: return Answer::Retry;
        case QMessageBox::Ignore: return Answer::Ignore;
        default: return AnswerOf(EscapeOf(asked), asked);
    }
}

// A message box never grows past the screen, whatever it is given to say: at
// most kLines lines and kCharacters characters, and a word longer than the box
// is wide gets places to break.
QString BoundedText(std::string_view text) {
    constexpr int kLines = 24, kWordLength = 60, kCharacters = 1500;
    const QStringList lines = ToQString(text.substr(0, 64 * 1024)).split(QLatin1Char('\n'));
    QStringList shown;
    int characters = 0, i = 0;
    for (; i < lines.size() && i < kLines && characters < kCharacters; ++i) {
        QString line = lines[i];
        if (characters + line.size() > kCharacters)
            line = line.left(kCharacters - characters) + QStringLiteral("...");
        characters += int(line.size());
        QString broken;
        int run = 0;
        for (const QChar ch : line) {
            run = ch.isSpace() ? 0 : run + 1;
            if (run > kWordLength) {
                broken += QChar(0x200B);  // a zero-width space: the line may break here
                run = 1;
            }
            broken += ch;
        }
        shown << broken;
    }
    if (i < lines.size()) shown << QStringLiteral("and %1 more lines").arg(lines.size() - i);
    return shown.join(QLatin1Char('\n'));
}

}  // namespace

void QtPrompter::Beep() { QApplication::beep(); }

std::unique_ptr<QMessageBox> MessageBoxFor(QWidget* parent, std::string_view title,
                                           std::string_view text, Buttons buttons, Icon icon) {
    auto box = std::make_unique<QMessageBox>(IconOf(icon), ToQString(title), BoundedText(text),
                                             ButtonsOf(buttons), parent);
    if (auto* label = box->findChild<QLabel*>(QStringLiteral("qt_msgbox_label")))
        label->setWordWrap(true);
    if (const QScreen* screen = parent ? parent->screen() : QApplication::primaryScreen())
        box->setMaximumSize(screen->availableGeometry().size());
    box->setEscapeButton(EscapeOf(buttons));
    if (buttons == Buttons::YesNo || buttons == Buttons::YesNoCancel)
        box->setDefaultButton(QMessageBox::Yes);
    // Wide enough for its caption (drawn larger in the title bar) and never a
    // narrow strip around a short text.
    const int wanted =
        std::max(300, box->fontMetrics().horizontalAdvance(box->windowTitle()) * 3 / 2 + 120);
    if (auto* grid = qobject_cast<QGridLayout*>(box->layout()))
        grid->addItem(new QSpacerItem(wanted, 0, QSizePolicy::Minimum, QSizePolicy::Fixed),
                      grid->rowCount(), 0, 1, grid->columnCount());
    return box;
}

Answer QtPrompter::Ask(std::string_view title, std::string_view text, Buttons buttons, Icon icon) {
    const auto box = MessageBoxFor(parent_, title, text, buttons, icon);
    return AnswerOf(box->exec(), buttons);
}

std::optional<std::string> QtPrompter::Input(std::string_view title, std::string_view prompt,
                                             std::string_view defaultText) {
    QInputDialog box(parent_);
    box.setWindowTitle(ToQString(title));
    box.setLabelText(ToQString(prompt));
    box.setTextValue(ToQString(defaultText));
    box.setInputMode(QInputDialog::TextInput);
    if (box.exec() != QDialog::Accepted) return std::nullopt;
    return box.textValue().toStdString();
}

}  // namespace tavi::ui
