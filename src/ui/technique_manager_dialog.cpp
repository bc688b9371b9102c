// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/technique_manager_dialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include "ui/qt_convert.h"

namespace tavi::ui {

namespace {

constexpr int kPickWidth = 22;
constexpr int kLevelWidth = 104;
constexpr int kRowMargin = 6;

QCheckBox* TechniqueBox(int box, const TechniqueRow& row, int width) {
    auto* check = new QCheckBox(ToQString(row.caption));
    check->setObjectName(QStringLiteral("CheckInclude_%1").arg(box));
    check->setToolTip(ToQString(row.label));
    check->setFixedWidth(width);
    return check;
}

QColor Blend(const QColor& a, const QColor& b, double t) {
    return QColor::fromRgbF(float(a.redF() + (b.redF() - a.redF()) * t),
                            float(a.greenF() + (b.greenF() - a.greenF()) * t),
                            float(a.blueF() + (b.blueF() - a.blueF()) * t));
}

QLabel* Heading(const QString& text, int width) {
    auto* label = new QLabel(text);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    if (width > 0) label->setFixedWidth(width);
    return label;
}

}  // namespace

TechniqueManagerDialog::TechniqueManagerDialog(TechniqueTables& tables, QWidget* parent)
    : QDialog(parent), manager_(tables) {
    setObjectName(QStringLiteral("SolveTech"));
    setWindowTitle(ToQString(kTechniqueManagerTitle));

    // Both columns as wide as the longest caption, so the boxes line up.
    QCheckBox probe;
    for (const TechniqueRow& row : kTechniqueRows) {
        probe.setText(ToQString(row.caption));
        captionWidth_ = std::max(captionWidth_, probe.sizeHint().width() + 10);
    }

    pickGroup_ = new QButtonGroup(this);
    pickGroup_->setExclusive(true);
    auto* rowsPanel = new QWidget;
    rowsPanel->setObjectName(QStringLiteral("TechniqueRows"));
    rowLayout_ = new QVBoxLayout(rowsPanel);
    rowLayout_->setContentsMargins(0, 0, 0, 0);
    rowLayout_->setSpacing(0);
    for (int i = 0; i < kTechniqueCount; ++i)
        rows_[i] = MakeRow(i);

    scroll_ = new QScrollArea;
    scroll_->setObjectName(QStringLiteral("TechniqueScroll"));
    scroll_->setWidget(rowsPanel);
    scroll_->setWidgetResizable(true);
    scroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);

    auto* table = new QVBoxLayout;
    table->setSpacing(4);
    table->addWidget(MakeHeadings());
    table->addWidget(scroll_, 1);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(12);
    layout->addLayout(table, 1);
    layout->addWidget(MakeButtons());

    Place();
    FitToScreen();
}

QWidget* TechniqueManagerDialog::MakeHeadings() {
    auto* panel = new QWidget;
    auto* row = new QHBoxLayout(panel);
    // The frame of the scroll area is one pixel; the headings stand over the boxes.
    row->setContentsMargins(kRowMargin + 1, 0, 0, 0);
    row->setSpacing(0);
    row->addSpacing(kPickWidth);
    row->addWidget(Heading(QStringLiteral("Use in Hint and Autosolve"), captionWidth_));
    row->addWidget(Heading(QStringLiteral("Halt Autosolve at"), captionWidth_));
    row->addWidget(Heading(QStringLiteral("Level"), 0));
    row->addStretch();
    return panel;
}

QWidget* TechniqueManagerDialog::MakeRow(int technique) {
    const TechniqueRow& caption = kTechniqueRows[technique];
    auto* row = new QWidget;
    row->setObjectName(QStringLiteral("TechniqueRow_%1").arg(technique));
    row->setAutoFillBackground(true);
    auto* line = new QHBoxLayout(row);
    line->setContentsMargins(kRowMargin, 1, kRowMargin, 1);
    line->setSpacing(0);

    auto* pick = new QRadioButton;
    pick->setObjectName(QStringLiteral("OptionOrder_%1").arg(technique));
    pick->setFixedWidth(kPickWidth);
    pick->setToolTip(QStringLiteral("Pick this row to move it with Up and Down"));
    pickGroup_->addButton(pick, technique);
    connect(pick, &QRadioButton::clicked, this, [this, technique] {
        manager_.SelectRow(technique);
        ShowBoxes();
    });
    picks_[technique] = pick;
    line->addWidget(pick);

    for (const int box : {technique, technique + kTechniqueCount}) {
        QCheckBox* check = TechniqueBox(box, caption, captionWidth_);
        connect(check, &QCheckBox::clicked, this, [this, box](bool on) {
            manager_.Click(box, on);
            ShowBoxes();
        });
        boxes_[box] = check;
        line->addWidget(check);
    }

    auto* level = new QLabel(ToQString(caption.label));
    level->setObjectName(QStringLiteral("LabelLevel_%1").arg(technique));
    level->setFixedWidth(kLevelWidth);
    level->setForegroundRole(QPalette::PlaceholderText);
    line->addWidget(level);
    line->addStretch();
    return row;
}

QWidget* TechniqueManagerDialog::MakeButtons() {
    auto* panel = new QWidget;
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(0, 0, 0, 0);
    const auto button = [&](const char* name, const QString& caption) {
        auto* b = new QPushButton(caption);
        b->setObjectName(QString::fromLatin1(name));
        b->setAutoDefault(false);
        column->addWidget(b);
        return b;
    };
    const auto moved = [this] {
        Place();
        if (const int t = manager_.TechniqueAt(manager_.SelectedPosition); t >= 0)
            scroll_->ensureWidgetVisible(rows_[t], 0, rows_[t]->height());
    };
    column->addSpacing(24);  // level with the first row, under the headings
    connect(button("KnopUp", QStringLiteral("Move &Up")), &QPushButton::clicked, this,
            [this, moved] {
                manager_.Up();
                moved();
            });
    connect(button("KnopDown", QStringLiteral("Move &Down")), &QPushButton::clicked, this,
            [this, moved] {
                manager_.Down();
                moved();
            });
    column->addSpacing(16);
    connect(button("cmdDefaults", QStringLiteral("Set Default Order")), &QPushButton::clicked, this,
            [this] {
                manager_.SetDefaultOrder();
                Place();
            });
    column->addStretch();
    QPushButton* ok = button("CommandOK", QStringLiteral("OK"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    return panel;
}

int TechniqueManagerDialog::TechniqueShownAt(int position) const {
    QWidget* w = rowLayout_->itemAt(position) ? rowLayout_->itemAt(position)->widget() : nullptr;
    for (int i = 0; i < kTechniqueCount; ++i)
        if (rows_[i] == w) return i;
    return -1;
}

void TechniqueManagerDialog::Place() {
    for (QWidget* row : rows_)
        rowLayout_->removeWidget(row);
    for (int position = 0; position < kTechniqueCount; ++position) {
        const int t = manager_.TechniqueAt(position);
        if (t < 0) continue;
        rowLayout_->addWidget(rows_[t]);
    }
    ShowBoxes();
}

void TechniqueManagerDialog::ShowBoxes() {
    for (int box = 0; box < 2 * kTechniqueCount; ++box) {
        boxes_[box]->setChecked(manager_.Checked(box));
        boxes_[box]->setEnabled(manager_.Enabled(box));
    }
    const int picked = manager_.TechniqueAt(manager_.SelectedPosition);
    if (picked >= 0) picks_[picked]->setChecked(true);
    const QColor base = palette().color(QPalette::Base);
    const QColor text = palette().color(QPalette::Text);
    const QColor highlight = palette().color(QPalette::Highlight);
    for (int t = 0; t < kTechniqueCount; ++t) {
        const int position = manager_.RowOf(t);
        // Only the rows the order buttons can move can be picked for them.
        picks_[t]->setEnabled(position >= TechniqueTables::kFirstMovable &&
                              position <= TechniqueTables::kLastMovable);
        // Alternate shades so the eye can follow a row across; the picked row
        // stands out, so it is plain which row Up and Down will move.
        QPalette shade = rows_[t]->palette();
        shade.setColor(QPalette::Window, t == picked    ? Blend(base, highlight, 0.22)
                                         : position % 2 ? Blend(base, text, 0.05)
                                                        : base);
        rows_[t]->setPalette(shade);
    }
}

// All rows when the screen has room, else as many as fit, with the scroll bar;
// the window stays whole on a screen 768 pixels high.
void TechniqueManagerDialog::FitToScreen() {
    QWidget* rows = scroll_->widget();
    const int content = rows->sizeHint().height() + 2 * scroll_->frameWidth();
    int room = 768;
    if (const QScreen* s = parentWidget() ? parentWidget()->screen() : screen())
        room = s->availableGeometry().height();
    const int chrome = sizeHint().height() - scroll_->sizeHint().height();
    int height = std::min(content, room - 90 - chrome);
    if (height < content) {
        // Whole rows only, so the last one in view isn't cut through.
        const int row = rows_[0]->sizeHint().height();
        height = (height - 2 * scroll_->frameWidth()) / row * row + 2 * scroll_->frameWidth();
    }
    scroll_->setFixedHeight(std::max(200, height));
    scroll_->setMinimumWidth(rows->sizeHint().width() +
                             scroll_->verticalScrollBar()->sizeHint().width() +
                             2 * scroll_->frameWidth());
    adjustSize();
}

}  // namespace tavi::ui
