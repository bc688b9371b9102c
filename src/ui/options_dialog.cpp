// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/options_dialog.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QVBoxLayout>

#include "ui/technique_manager_dialog.h"

namespace tavi::ui {

OptionsDialog::OptionsDialog(Options& options, bool soundAvailable, QWidget* parent)
    : QDialog(parent), options_(options), form_(OptionsForm::From(options)) {
    setObjectName(QStringLiteral("FormOptions"));
    setWindowTitle(QString::fromLatin1(kOptionsTitle));

    auto* frames = new QVBoxLayout;
    frames->setSpacing(10);
    frames->addWidget(MakeTimeFrame());
    frames->addWidget(MakeProgressFrame());
    frames->addWidget(MakeHighlightFrame());

    auto* top = new QHBoxLayout;
    top->setSpacing(18);
    top->addWidget(MakeChecks());
    top->addLayout(frames);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 14, 16, 14);
    layout->setSpacing(14);
    layout->addLayout(top);
    layout->addWidget(MakeButtons());

    findChild<QCheckBox*>(QStringLiteral("Check4"))->setEnabled(soundAvailable);
    ShowForm();
    setFixedSize(sizeHint());
}

QCheckBox* OptionsDialog::Check(const char* name, const char* caption, bool OptionsForm::*field) {
    auto* box = new QCheckBox(QString::fromLatin1(caption));
    box->setObjectName(QString::fromLatin1(name));
    // `clicked` and not `toggled`: only the person's click changes the copy.
    connect(box, &QCheckBox::clicked, this, [this, field](bool on) {
        form_.*field = on;
        ShowForm();
    });
    return box;
}

QWidget* OptionsDialog::MakeChecks() {
    // A frame with an empty heading, so that it lines up with the two beside it.
    auto* panel = new QGroupBox(QStringLiteral(" "));
    panel->setObjectName(QStringLiteral("FrameBoard"));
    auto* column = new QVBoxLayout(panel);
    column->setSpacing(8);
    column->addWidget(Check("Check1", "Automatic pencilmarks update", &OptionsForm::Pencilmarks));
    column->addWidget(
        Check("Check7", "Pencilmarks off in first 3 levels", &OptionsForm::PencilmarksOff));
    column->addWidget(Check("Check8", "Dimmed pencilmarks", &OptionsForm::Dimmed));
    column->addSpacing(8);
    column->addWidget(Check("Check3", "Fill Wells", &OptionsForm::Wells));
    column->addWidget(Check("Check4", "Sounds", &OptionsForm::Sounds));
    column->addWidget(Check("Check5", "Additional Small Hint Window", &OptionsForm::HintWindow));
    column->addStretch();
    auto* version = new QLabel(QStringLiteral("Version 1.6"));
    version->setObjectName(QStringLiteral("Label2"));
    version->setEnabled(false);  // drawn in the palette's quiet text colour
    column->addWidget(version, 0, Qt::AlignRight);
    return panel;
}

QWidget* OptionsDialog::MakeTimeFrame() {
    auto* frame = new QGroupBox(QStringLiteral("Time"));
    frame->setObjectName(QStringLiteral("FrameTime"));
    auto* column = new QVBoxLayout(frame);
    column->addWidget(Check("Check2", "Keep time", &OptionsForm::TimeOn));
    hideTimer_ = new QRadioButton(QStringLiteral("Hide Timer"));
    hideTimer_->setObjectName(QStringLiteral("Option1"));
    showTimer_ = new QRadioButton(QStringLiteral("Show Timer"));
    showTimer_->setObjectName(QStringLiteral("Option2"));
    connect(hideTimer_, &QRadioButton::clicked, this, [this] { form_.TimeShow = false; });
    connect(showTimer_, &QRadioButton::clicked, this, [this] { form_.TimeShow = true; });
    // The two choices stand under "Keep time", as its sub-choices.
    auto* choices = new QHBoxLayout;
    choices->setContentsMargins(22, 0, 0, 0);
    choices->setSpacing(16);
    choices->addWidget(hideTimer_);
    choices->addWidget(showTimer_);
    choices->addStretch();
    column->addLayout(choices);
    return frame;
}

QWidget* OptionsDialog::MakeProgressFrame() {
    auto* frame = new QGroupBox(QStringLiteral("Progress"));
    frame->setObjectName(QStringLiteral("FrameProgress"));
    auto* column = new QVBoxLayout(frame);
    column->setSpacing(8);
    column->addWidget(Check("Check6", "Auto-erase if solved", &OptionsForm::AutoErase));

    auto* save = new QGroupBox(QStringLiteral("Save"));
    save->setObjectName(QStringLiteral("FrameSave"));
    auto* row = new QHBoxLayout(save);
    row->setSpacing(16);
    const std::array<std::pair<const char*, SaveChoice>, 3> choices = {{
        {"Allways", SaveChoice::Allways},
        {"Never", SaveChoice::Never},
        {"Ask", SaveChoice::Ask},
    }};
    for (int i = 0; i < 3; ++i) {
        auto* button = new QRadioButton(QString::fromLatin1(choices[i].first));
        button->setObjectName(QStringLiteral("Option3_%1").arg(i));
        const SaveChoice choice = choices[i].second;
        connect(button, &QRadioButton::clicked, this, [this, choice] { form_.Save = choice; });
        row->addWidget(button);
        save_[i] = button;
    }
    row->addStretch();
    column->addWidget(save);
    return frame;
}

QWidget* OptionsDialog::MakeHighlightFrame() {
    auto* frame = new QGroupBox(QStringLiteral("Highlight"));
    frame->setObjectName(QStringLiteral("FrameHighlight"));
    auto* column = new QVBoxLayout(frame);
    column->setSpacing(8);
    column->addWidget(Check("CheckHighlightHouses", "Row, column and box of the cursor",
                            &OptionsForm::HighlightHouses));
    column->addWidget(Check("CheckHighlightDigit", "Every place of the cursor's digit",
                            &OptionsForm::HighlightDigit));
    return frame;
}

QWidget* OptionsDialog::MakeButtons() {
    auto* panel = new QWidget;
    auto* row = new QHBoxLayout(panel);
    row->setContentsMargins(0, 0, 0, 0);
    colors_ = new QPushButton(QStringLiteral("Customize Colors..."));
    colors_->setObjectName(QStringLiteral("KnopColors"));
    colors_->setEnabled(false);
    connect(colors_, &QPushButton::clicked, this, [this] {
        if (colorsAction_) colorsAction_(this);
    });
    auto* techniques = new QPushButton(QStringLiteral("Solving Techniques Manager..."));
    techniques->setObjectName(QStringLiteral("KnopTechnieken"));
    connect(techniques, &QPushButton::clicked, this, &OptionsDialog::OpenTechniques);
    auto* cancel = new QPushButton(QStringLiteral("Cancel"));
    cancel->setObjectName(QStringLiteral("Command1"));
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* ok = new QPushButton(QStringLiteral("OK"));
    ok->setObjectName(QStringLiteral("Command2"));
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    // The buttons keep their caption's width and the last two line up.
    cancel->setMinimumWidth(84);
    ok->setMinimumWidth(84);
    for (auto* b : {colors_, techniques, cancel, ok})
        b->setAutoDefault(false);
    ok->setDefault(true);

    row->addWidget(colors_);
    row->addWidget(techniques);
    row->addStretch();
    row->addWidget(cancel);
    row->addWidget(ok);
    return panel;
}

void OptionsDialog::SetColorsAction(std::function<void(QWidget*)> action) {
    colorsAction_ = std::move(action);
    colors_->setEnabled(bool(colorsAction_));
}

// Every control from the copy; the timer choices answer only while the clock is kept.
void OptionsDialog::ShowForm() {
    const std::array<std::pair<const char*, bool>, 10> checks = {{
        {"CheckHighlightHouses", form_.HighlightHouses},
        {"CheckHighlightDigit", form_.HighlightDigit},
        {"Check1", form_.Pencilmarks},
        {"Check2", form_.TimeOn},
        {"Check3", form_.Wells},
        {"Check4", form_.Sounds},
        {"Check5", form_.HintWindow},
        {"Check6", form_.AutoErase},
        {"Check7", form_.PencilmarksOff},
        {"Check8", form_.Dimmed},
    }};
    for (const auto& [name, on] : checks)
        findChild<QCheckBox*>(QString::fromLatin1(name))->setChecked(on);
    hideTimer_->setChecked(!form_.TimeShow);
    showTimer_->setChecked(form_.TimeShow);
    hideTimer_->setEnabled(form_.TimerChoiceEnabled());
    showTimer_->setEnabled(form_.TimerChoiceEnabled());
    save_[int(form_.Save)]->setChecked(true);
}

void OptionsDialog::OpenTechniques() {
    TechniqueManagerDialog dialog(options_.techniques, this);
    dialog.exec();
}

void OptionsDialog::accept() {
    form_.ApplyTo(options_);
    QDialog::accept();
}

void OptionsDialog::showEvent(QShowEvent* e) {
    QDialog::showEvent(e);
    // The window opens in the middle of the screen the program is on.
    const QWidget* anchor = parentWidget() ? parentWidget()->window() : this;
    if (const QScreen* screen = anchor->screen()) {
        QRect frame = frameGeometry();
        frame.moveCenter(screen->availableGeometry().center());
        move(frame.topLeft());
    }
}

bool RunOptionsDialog(QWidget* parent, Options& options, bool soundAvailable,
                      std::function<void(QWidget*)> customizeColors) {
    OptionsDialog dialog(options, soundAvailable, parent);
    if (customizeColors) dialog.SetColorsAction(std::move(customizeColors));
    return dialog.exec() == QDialog::Accepted;
}

}  // namespace tavi::ui
