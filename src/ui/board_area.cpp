// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/board_area.h"

#include <QResizeEvent>

namespace tavi::ui {

BoardArea::BoardArea(Game& game, QWidget* parent)
    : QWidget(parent),
      game_(game),
      board_(new BoardWidget(game, this)),
      wells_(new WellsWidget(game, this)) {
    board_->setObjectName(QStringLiteral("Board"));
    wells_->setObjectName(QStringLiteral("Wells"));
    for (int d = 1; d <= 9; ++d) {
        auto* button = new ReleaseButton(QString::number(d), this);
        button->setObjectName(QStringLiteral("Command1_%1").arg(d));
        button->setFocusPolicy(Qt::NoFocus);
        digits_[d - 1] = button;
    }
}

void BoardArea::resizeEvent(QResizeEvent*) { Arrange(); }

void BoardArea::Refresh() {
    for (int d = 1; d <= 9; ++d) {
        ReleaseButton* button = digits_[d - 1];
        // A filtered digit: its button reads struck through and greyed.
        const bool on = game_.FilterOn(d);
        QFont f = button->font();
        if (f.strikeOut() == on) {
            f.setStrikeOut(!on);
            button->setFont(f);
            QPalette pal = button->palette();
            pal.setColor(QPalette::ButtonText,
                         on ? palette().color(QPalette::ButtonText) : QColor(150, 150, 150));
            button->setPalette(pal);
        }
    }
    const bool wells = game_.WellsVisible();
    if (wells_->isVisibleTo(this) != wells) {
        wells_->setVisible(wells);
        Arrange();
    }
    wells_->update();
}

namespace {

// The board and its strip at one size of the board.
struct Plan {
    BoardGeometry fit;
    int side = 0, gap = 0, button = 0, wellsDepth = 0;
    int width = 0, height = 0;  // of the board with its strip
};

Plan PlanFor(int side, bool vertical, bool wells) {
    Plan p;
    p.side = side;
    p.fit.Fit(QSize(side, side));
    const int s = p.fit.CellSize();
    p.gap = std::max(4, s / 6);
    p.button = std::max(20, s * 3 / 4);  // the digit buttons are square
    p.wellsDepth = wells ? std::max(20, s) : 0;
    const int strip = p.gap + p.fit.ThickLine() + p.button + (wells ? p.gap + p.wellsDepth : 0);
    const QRect board = p.fit.BoardRect();
    p.width = vertical ? board.right() + 1 + strip : side;
    p.height = vertical ? side : board.bottom() + 1 + strip;
    return p;
}

// The largest board whose strip still fits in w x h.
Plan Largest(int w, int h, bool vertical, bool wells) {
    for (int side = std::min(w, h); side > 120; --side) {
        Plan p = PlanFor(side, vertical, wells);
        if (p.width <= w && p.height <= h) return p;
    }
    return PlanFor(120, vertical, wells);
}

}  // namespace

void BoardArea::Arrange() {
    const int w = width(), h = height();
    const bool wells = !wells_->isHidden();
    // The strip of buttons and wells stands beside the board or below it,
    // whichever leaves the larger board.
    const Plan beside = Largest(w, h, true, wells);
    const Plan below = Largest(w, h, false, wells);
    const bool vertical = beside.fit.CellSize() >= below.fit.CellSize();
    const Plan& plan = vertical ? beside : below;
    const BoardGeometry& fit = plan.fit;
    const int side = plan.side, s = fit.CellSize(), gap = plan.gap, button = plan.button;
    const int thick = fit.ThickLine();
    const QRect boardRect = fit.BoardRect();
    const int x0 = std::max(0, (w - plan.width) / 2);
    const int y0 = std::max(0, (h - plan.height) / 2);
    board_->setGeometry(x0, y0, side, side);
    const int stripStart =
        (vertical ? x0 + boardRect.right() : y0 + boardRect.bottom()) + 1 + gap + thick;

    QFont font = digits_[0]->font();
    font.setPixelSize(std::max(11, s * 2 / 5));
    font.setBold(true);
    for (int d = 1; d <= 9; ++d) {
        ReleaseButton* digit = digits_[d - 1];
        font.setStrikeOut(digit->font().strikeOut());
        digit->setFont(font);
        const QRect line = fit.CellRect(vertical ? (d - 1) * 9 : d - 1);
        const int centred = (s - button) / 2;
        if (vertical)
            digit->setGeometry(stripStart, y0 + line.y() + centred, button, button);
        else
            digit->setGeometry(x0 + line.x() + centred, stripStart, button, button);
    }
    if (!wells) return;
    const int wellsStart = stripStart + button + gap;
    const int wellsDepth = plan.wellsDepth;
    if (vertical) {
        wells_->setGeometry(wellsStart, y0, wellsDepth, side);
        wells_->SetSlots(Qt::Vertical, fit.CellRect(0).y(), s);
    } else {
        wells_->setGeometry(x0, wellsStart, side, wellsDepth);
        wells_->SetSlots(Qt::Horizontal, fit.CellRect(0).x(), s);
    }
}

}  // namespace tavi::ui
