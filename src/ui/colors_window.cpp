// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/colors_window.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHelpEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QToolTip>
#include <QVBoxLayout>

#include "hints/hint_roles.h"
#include "print/board_painter.h"
#include "ui/qt_convert.h"
#include "ui/release_controls.h"

namespace tavi::ui {

namespace {

constexpr std::array<const char*, 9> kRoleLabels = {
    "< Base candidates",     "< Chain candidates", "< Attacking candidates",
    "< Attacked candidates", "< Pattern cell",     "< Base cell",
    "< Chain cell",          "< Attacking cell",   "< Attacked cell"};

// The preview: a small board with a cell or a candidate in every role, and
// cells and marks in the colours of the palette labels.
class ColorsPreview : public QWidget {
  public:
    ColorsPreview(const ColorsForm& form, QWidget* parent) : QWidget(parent), form_(form) {
        setObjectName(QStringLiteral("Grid"));
        setMouseTracking(true);
        setMinimumSize(320, 320);
    }
    QSize sizeHint() const override { return {340, 340}; }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        p.fillRect(rect(), palette().window());
        fit_.FitIn(rect().adjusted(2, 2, -2, -2), true);
        PaintBoard(p, fit_, Picture(), ScreenLook());
    }
    bool event(QEvent* e) override {
        if (e->type() != QEvent::ToolTip) return QWidget::event(e);
        auto* help = static_cast<QHelpEvent*>(e);
        const BoardSpot spot = fit_.SpotAt(help->pos());
        const int role = spot.kind == BoardSpot::Cell ? RoleAt(spot.index, spot.digit) : -1;
        if (role >= 0)
            QToolTip::showText(help->globalPos(), QString::fromLatin1(kRoleTips[role]), this);
        else
            QToolTip::hideText();
        return true;
    }

  private:
    // The scene: cell, mark (0 for the whole cell) and role.
    struct Spot {
        int cell, mark, role;
    };
    static constexpr std::array<Spot, 11> kScene = {{
        {30, 0, kPatternCell},
        {32, 0, kPatternCell},
        {12, 0, kBaseCell},
        {12, 3, kBaseCandidates},  // Mark3
        {14, 5, kChainCandidates},
        {39, 0, kChainCell},
        {39, 5, kChainCandidates},  // Mark5
        {49, 0, kAttackingCell},
        {49, 6, kAttackingCandidates},  // Mark6
        {67, 0, kAttackedCell},
        {67, 7, kAttackedCandidates},  // Mark7
    }};
    static constexpr std::array<int, 81> kDigits = {
        5, 3, 0, 0, 7, 0, 0, 0, 0, 6, 0, 0, 1, 9, 5, 0, 0, 0, 0, 9, 8, 0, 0, 0, 0, 6, 0,
        8, 0, 0, 0, 6, 0, 0, 0, 3, 4, 0, 0, 8, 0, 3, 0, 0, 1, 7, 0, 0, 0, 2, 0, 0, 0, 6,
        0, 6, 0, 0, 0, 0, 2, 8, 0, 0, 0, 0, 4, 1, 9, 0, 0, 5, 0, 0, 0, 0, 8, 0, 0, 7, 9};

    int RoleAt(int cell, int mark) const {
        int role = -1;
        for (const Spot& s : kScene)
            if (s.cell == cell && (s.mark == 0 || s.mark == mark)) role = s.role;
        return role;
    }
    BoardPicture Picture() const {
        BoardPicture pic;
        const auto& hint = form_.colors.HintColor;
        // The scene's cells stay open with a few marks, those of their roles
        // among them; the other open cells show none, so the roles stand out.
        for (int c = 0; c < 81; ++c) {
            const bool inScene = RoleAt(c, 0) >= 0 || RoleAt(c, 5) >= 0;
            pic.digits[c] = inScene ? 0 : kDigits[c];
            pic.clue[c] = pic.digits[c] != 0;
        }
        for (const Spot& s : kScene)
            pic.marks[s.cell] |=
                std::uint16_t((1u << 1) | (1u << 7) | (s.mark ? 1u << (s.mark - 1) : 0));
        pic.marks[74] = 0x111;  // 1, 5 and 9: the mark brushes
        for (const Spot& s : kScene) {
            if (s.mark)
                pic.markPaint[s.cell][s.mark - 1] = hint[s.role];
            else
                pic.cellPaint[s.cell] = hint[s.role];
        }
        // The brushes of the palette labels: mark brushes 1 to 3, cell brushes 6 to 9.
        const auto& back = form_.colors.LabelBack;
        pic.markPaint[74][0] = back[1];
        pic.markPaint[74][4] = back[2];
        pic.markPaint[74][8] = back[3];
        for (int i = 6; i <= 9; ++i)
            pic.cellPaint[72 + i - 6 + (i >= 8 ? 4 : 0)] = back[i];
        return pic;
    }
    BoardLook ScreenLook() const {
        BoardLook look;
        look.window = palette().color(QPalette::Window);
        look.base = palette().color(QPalette::Base);
        look.userDigit = palette().color(QPalette::Text);
        return look;
    }

    const ColorsForm& form_;
    BoardGeometry fit_;
};

ClickLabel* Swatch(const QString& name, QWidget* parent) {
    auto* label = new ClickLabel(parent);
    label->setObjectName(name);
    label->setAutoFillBackground(true);
    label->setFrameStyle(QFrame::Box | QFrame::Plain);
    label->setAlignment(Qt::AlignCenter);
    label->setMinimumSize(44, 26);
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    return label;
}

void Paint(QLabel* label, Color back, Color fore) {
    QPalette pal = label->palette();
    pal.setColor(QPalette::Window, ToQColor(back));
    pal.setColor(QPalette::WindowText, ToQColor(fore));
    label->setPalette(pal);
}

}  // namespace

ColorsWindow::ColorsWindow(ColorSettings& inForce, SettingsStore* store, QWidget* parent)
    : QDialog(parent), inForce_(inForce), store_(store), form_(ColorsForm::From(inForce)) {
    setObjectName(QStringLiteral("FormColors"));
    setWindowTitle(QString::fromLatin1(kColorsTitle));
    auto* top = new QHBoxLayout;
    top->setSpacing(18);
    top->addWidget(MakeSamples());
    top->addWidget(MakePalette(), 0, Qt::AlignTop);
    top->addWidget(MakeHintColors(), 0, Qt::AlignTop);
    auto* previewColumn = new QVBoxLayout;
    auto* title = new QLabel(QStringLiteral("PREVIEW"));
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    previewColumn->addWidget(title);
    preview_ = new ColorsPreview(form_, this);
    previewColumn->addWidget(preview_, 1);
    top->addLayout(previewColumn, 1);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(14, 14, 14, 14);
    outer->addLayout(top, 1);
    outer->addWidget(MakeButtons());
    Show();
}

QWidget* ColorsWindow::MakeSamples() {
    auto* box = new QWidget;
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(6);
    grid->addWidget(new QLabel(QStringLiteral("Color Panel >")), 0, 0, 1, 2);
    int row = 1;
    for (int i : kSampleLabels) {
        ClickLabel* label = Swatch(QStringLiteral("LabelColor_%1").arg(i), box);
        label->setToolTip(i <= 3 ? QStringLiteral("Mark brush: left click for its colour, "
                                                  "right click for its text")
                                 : QStringLiteral("Cell brush: left click for its colour, "
                                                  "right click for its text"));
        connect(label, &ClickLabel::Released, this, [this, i](MouseButton button, bool inside) {
            if (!inside) return;
            form_.Select(button == MouseButton::Right ? ColorsForm::Part::LabelFore
                                                      : ColorsForm::Part::LabelBack,
                         i);
            Show();
        });
        grid->addWidget(label, row++, 0);
        samples_[i] = label;
    }
    grid->setRowStretch(row, 1);
    return box;
}

QWidget* ColorsWindow::MakePalette() {
    auto* box = new QWidget;
    box->setObjectName(QStringLiteral("Kleur"));
    box->setToolTip(QStringLiteral("Color palette"));
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(3);
    for (int s = 0; s < kPaletteSwatches; ++s) {
        auto* swatch = new ClickLabel(box);
        swatch->setObjectName(QStringLiteral("Kleur_%1").arg(s));
        swatch->setAutoFillBackground(true);
        swatch->setFrameStyle(QFrame::Box | QFrame::Plain);
        swatch->setFixedSize(22, 22);
        Paint(swatch, kColorPalette[s], 0);
        connect(swatch, &ClickLabel::Released, this, [this, s](MouseButton, bool inside) {
            if (inside) PickSwatch(s);
        });
        grid->addWidget(swatch, s / 8, s % 8);
    }
    return box;
}

QWidget* ColorsWindow::MakeHintColors() {
    auto* box = new QWidget;
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(4);
    for (int role = 0; role < 9; ++role) {
        ClickLabel* label = Swatch(QStringLiteral("HintColor_%1").arg(role), box);
        label->setToolTip(QString::fromLatin1(kRoleTips[role]));
        connect(label, &ClickLabel::Released, this, [this, role](MouseButton, bool inside) {
            if (!inside) return;
            form_.Select(ColorsForm::Part::Hint, role);
            Show();
        });
        grid->addWidget(label, role, 0);
        grid->addWidget(new QLabel(QString::fromLatin1(kRoleLabels[role])), role, 1);
        hints_[role] = label;
    }
    return box;
}

QWidget* ColorsWindow::MakeButtons() {
    auto* panel = new QWidget;
    auto* row = new QHBoxLayout(panel);
    row->setContentsMargins(0, 8, 0, 0);
    auto* defaults = new QPushButton(QStringLiteral("Defaults"));
    defaults->setObjectName(QStringLiteral("Command3"));
    auto* cancel = new QPushButton(QStringLiteral("Cancel"));
    cancel->setObjectName(QStringLiteral("Command1"));
    auto* ok = new QPushButton(QStringLiteral("OK"));
    ok->setObjectName(QStringLiteral("Command2"));
    for (auto* b : {defaults, cancel, ok}) {
        b->setAutoDefault(false);
        b->setMinimumWidth(84);
    }
    ok->setDefault(true);
    connect(defaults, &QPushButton::clicked, this, [this] {
        form_.Defaults();
        Show();
    });
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    row->addWidget(defaults);
    row->addStretch(1);
    row->addWidget(cancel);
    row->addWidget(ok);
    return panel;
}

void ColorsWindow::PickSwatch(int swatch) {
    if (swatch < 0 || swatch >= kPaletteSwatches) return;
    form_.Pick(kColorPalette[swatch]);
    Show();
}

void ColorsWindow::Show() {
    using Part = ColorsForm::Part;
    for (int i : kSampleLabels) {
        Paint(samples_[i], form_.colors.LabelBack[i], form_.colors.LabelFore[i]);
        const bool picked =
            form_.IsSelected(Part::LabelBack, i) || form_.IsSelected(Part::LabelFore, i);
        samples_[i]->setText(picked ? QStringLiteral(" X") : QString());
    }
    for (int role = 0; role < 9; ++role) {
        Paint(hints_[role], form_.colors.HintColor[role], 0);
        hints_[role]->setText(ToQString(form_.Caption(Part::Hint, role)));
    }
    preview_->update();
}

void ColorsWindow::accept() {
    if (store_) {
        form_.Accept(inForce_, *store_);
    } else {
        inForce_ = form_.colors;
    }
    QDialog::accept();
}

}  // namespace tavi::ui
