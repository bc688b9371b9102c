#include "ui/qt_prompter.h"

#include <QApplication>
#include <QGridLayout>
#include <QInputDialog>
#include <QMessageBox>

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

}  // namespace

void QtPrompter::Beep() { QApplication::beep(); }

std::unique_ptr<QMessageBox> MessageBoxFor(QWidget* parent, std::string_view title,
                                           std::string_view text, Buttons buttons, Icon icon) {
    auto box = std::make_unique<QMessageBox>(IconOf(icon), ToQString(title), ToQString(text),
                                             ButtonsOf(buttons), parent);
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
