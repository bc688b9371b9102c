// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of the game window and where they stand.
#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "grid/levels.h"
#include "ui/main_window.h"
#include "ui/painted_pictures.h"
#include "ui/qt_convert.h"
#include "ui/release_controls.h"

namespace tavi::ui {

namespace {

struct CommandSpec {
    const char* name;
    const char* caption;
};

// Object names and captions of the command buttons, by CommandId.
constexpr CommandSpec kCommandSpecs[] = {
    {"CommandNew", "New"},         {"CommandOpen", "Open"}, {"CommandSave", "Save"},
    {"CommandPrint", "Print"},     {"CommandMake", "Make"}, {"CommandSolution", "Solution"},
    {"CommandUndo", "Undo"},       {"CommandRedo", "Redo"}, {"CommandResetCell", "Reset Cell"},
    {"CommandHint", "Hint"},       {"CommandScan", "Scan"}, {"CommandAutoSolve", "Autosolve"},
    {"CommandOptions", "Options"}, {"Command2", "Help"},    {"CommandExit", "Exit"},
};

QLabel* Counter(const char* name, const char* tip, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setToolTip(QLatin1String(tip));
    label->setAlignment(Qt::AlignCenter);
    label->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    label->setMargin(3);
    return label;
}

}  // namespace

QWidget* MainWindow::BuildSidePanel() {
    auto* panel = new QWidget(this);
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(10);
    column->addWidget(BuildLevels());
    column->addWidget(BuildCommands());
    column->addWidget(BuildCounters());
    column->addWidget(BuildPalette());
    textHint_ = new QPlainTextEdit(panel);
    textHint_->setObjectName(QStringLiteral("TextHint"));
    textHint_->setReadOnly(true);
    textHint_->setMinimumHeight(textHint_->fontMetrics().lineSpacing() * 3 + 8);
    column->addWidget(textHint_, 1);
    column->addWidget(BuildFoot());
    panel->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    return panel;
}

QWidget* MainWindow::BuildLevels() {
    auto* box = new QGroupBox(QStringLiteral("Level"), this);
    auto* grid = new QGridLayout(box);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(4);
    auto* group = new QButtonGroup(box);
    for (int level = 1; level <= kLevelCount; ++level) {
        auto* option = new QRadioButton(ToQString(LevelName(level)), box);
        option->setObjectName(QStringLiteral("OptionType_%1").arg(level));
        option->setFocusPolicy(Qt::TabFocus);  // a click leaves the keys on the board
        group->addButton(option, level);
        grid->addWidget(option, (level - 1) / 3, (level - 1) % 3);
        levels_[level] = option;
        connect(option, &QRadioButton::clicked, this,
                [this, level] { Do([this, level] { game_.OptionType(level); }); });
    }
    return box;
}

QWidget* MainWindow::BuildCommands() {
    auto* box = new QWidget(this);
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(5);
    for (int id = 0; id < kCommandCount; ++id) {
        auto* button = new QPushButton(QLatin1String(kCommandSpecs[id].caption), box);
        button->setObjectName(QLatin1String(kCommandSpecs[id].name));
        button->setFocusPolicy(Qt::TabFocus);
        button->setMinimumWidth(72);
        grid->addWidget(button, id / 3, id % 3);
        commands_[id] = button;
    }
    practise_ = BuildPractise(box);
    grid->addWidget(practise_, kCommandCount / 3, 0, 1, 3);
    // After any command the keys play on at once.
    auto on = [this](CommandId id, std::function<void()> run) {
        connect(commands_[id], &QPushButton::clicked, this, [this, run] {
            Do(run);
            ReturnFocus();
        });
    };
    on(kNew, [this] { game_.CommandNew(); });
    on(kOpen, [this] { game_.CommandOpen(); });
    on(kSave, [this] { game_.CommandSave(); });
    on(kUndo, [this] { game_.CommandUndo(); });
    on(kRedo, [this] { game_.CommandRedo(); });
    on(kResetCell, [this] { game_.CommandResetCell(); });
    on(kSolution, [this] { game_.CommandSolution(); });
    on(kHelp, [this] { game_.CommandHelp(); });
    on(kHint, [this] { game_.CommandHint(); });
    on(kAutoSolve, [this] { game_.CommandAutoSolve(); });
    on(kMake, [this] { game_.CommandMake(); });
    // Scan answers also while it runs: its "Stop" ends the run.
    connect(commands_[kScan], &QPushButton::clicked, this, [this] {
        game_.CommandScan();
        ReturnFocus();
    });
    connect(commands_[kOptions], &QPushButton::clicked, this, [this] {
        ShowOptions();
        ReturnFocus();
    });
    connect(commands_[kPrint], &QPushButton::clicked, this, [this] {
        ShowPrint();
        ReturnFocus();
    });
    connect(commands_[kExit], &QPushButton::clicked, this, [this] {
        Exit();
        ReturnFocus();
    });
    return box;
}

QWidget* MainWindow::BuildCounters() {
    auto* box = new QWidget(this);
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(6);
    labelStap_ = Counter("LabelStap", "Step counter", box);
    labelTijd_ = Counter("LabelTijd", "Elapsed time", box);
    row->addWidget(labelStap_);
    row->addWidget(labelTijd_);
    return box;
}

QWidget* MainWindow::BuildPalette() {
    auto* box = new QWidget(this);
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(4);
    for (int i = 0; i < kPaletteLabels; ++i) {
        auto* label = new ClickLabel(box);
        label->setObjectName(QStringLiteral("LabelColor_%1").arg(i));
        label->setAutoFillBackground(true);
        label->setFrameStyle(QFrame::Box | QFrame::Plain);
        label->setAlignment(Qt::AlignCenter);
        label->setMinimumSize(30, 24);
        grid->addWidget(label, i / 5, i % 5);
        palette_[i] = label;
        connect(label, &ClickLabel::Released, this, [this, i](MouseButton button, bool inside) {
            Do([this, i, button, inside] { game_.PaletteUp(i, button, inside); });
        });
    }
    palette_[4]->setToolTip(QStringLiteral("Brush off"));
    palette_[5]->setToolTip(QStringLiteral("Wipe all colours"));
    return box;
}

QWidget* MainWindow::BuildFoot() {
    auto* box = new QWidget(this);
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    const qreal ratio = devicePixelRatioF();

    auto* site = new ClickLabel(box);
    site->setObjectName(QStringLiteral("Picture1"));
    site->setPixmap(SiteEmblem(32, ratio));
    site->setToolTip(QStringLiteral("Click for Tavi-Software website"));
    site->setCursor(Qt::PointingHandCursor);
    connect(site, &ClickLabel::Released, this, [this](MouseButton button, bool inside) {
        if (button == MouseButton::Left && inside) Do([this] { game_.WebSiteClick(); });
    });

    auto* version = new ClickLabel(QStringLiteral("Version 1.6"), box);
    version->setObjectName(QStringLiteral("Label2"));
    version->setToolTip(QStringLiteral("Click for About and Revision History"));
    version->setCursor(Qt::PointingHandCursor);
    connect(version, &ClickLabel::Released, this, [this](MouseButton button, bool inside) {
        if (button == MouseButton::Left && inside) ShowRevisions();
    });

    auto* files = new ClickLabel(box);
    files->setObjectName(QStringLiteral("Label1"));
    files->setPixmap(WorkbenchEmblem(28, ratio));
    files->setToolTip(QStringLiteral("DoubleClick here for \"file managment window\""));
    connect(files, &ClickLabel::DoubleClicked, this, [this] { ShowWorkbench(); });

    row->addWidget(site);
    row->addWidget(version);
    row->addStretch(1);
    row->addWidget(files);
    return box;
}

}  // namespace tavi::ui
