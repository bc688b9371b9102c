// SPDX-License-Identifier: GPL-3.0-or-later
// The Solving Techniques Manager on screen: rows where the order puts them, the
// fixed boxes, the order buttons and the default order, all straight into the
// tables.
#include "ui/technique_manager_dialog.h"
#include "window_fixture.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>

namespace tavi::ui {
namespace {

class TechniqueDialog : public ::testing::Test {
  public:
    QCheckBox* Box(int box) const {
        return Child<QCheckBox>(dialog, QStringLiteral("CheckInclude_%1").arg(box));
    }
    void Press(const char* name) { Child<QPushButton>(dialog, name)->click(); }
    QRadioButton* PickButton(int technique) const {
        return Child<QRadioButton>(dialog, QStringLiteral("OptionOrder_%1").arg(technique));
    }
    void Pick(int technique) { PickButton(technique)->click(); }

    TechniqueTables tables;
    TechniqueManagerDialog dialog{tables};
};

TEST_F(TechniqueDialog, RowsStandAtTheirPositionsWithCaptionsAndLevels) {
    tables.Order[8] = 20;
    tables.Order[20] = 8;
    TechniqueManagerDialog shown(tables);
    EXPECT_EQ(shown.windowTitle(), "Solving Techniques Manager");
    for (int position = 0; position < kTechniqueCount; ++position) {
        const int t = position == 8 ? 20 : position == 20 ? 8 : position;
        EXPECT_EQ(shown.TechniqueShownAt(position), t) << position;
    }
    // Each row's boxes carry its technique's caption, wherever it stands.
    EXPECT_EQ(shown.findChild<QCheckBox*>("CheckInclude_60")->text(), "Finned X-Wing");
    // The window starts with X-Wing's row picked, wherever it stands.
    EXPECT_TRUE(shown.findChild<QRadioButton*>("OptionOrder_8")->isChecked());
    EXPECT_EQ(shown.Manager().SelectedPosition, 20);
}

TEST_F(TechniqueDialog, FixedBoxesStayTickedAndAHaltAnswersOnlyWhileIncluded) {
    for (int box : {0, 7, 40, 42}) {
        EXPECT_TRUE(Box(box)->isChecked()) << box;
        EXPECT_FALSE(Box(box)->isEnabled()) << box;
        Box(box)->click();
        EXPECT_TRUE(Box(box)->isChecked()) << box;
    }
    EXPECT_EQ(tables.OnOff[7], 1);
    EXPECT_EQ(tables.Halt[2], 1);
    EXPECT_TRUE(Box(43)->isEnabled());  // the first halt that can be left out

    // X-Wing: halt on, then left out; its halt box greys out and keeps its tick.
    Box(48)->click();
    EXPECT_EQ(tables.Halt[8], 1);
    Box(8)->click();
    EXPECT_EQ(tables.OnOff[8], 0);
    EXPECT_FALSE(Box(48)->isEnabled());
    EXPECT_TRUE(Box(48)->isChecked());
    EXPECT_EQ(tables.Halt[8], 1);
    Box(8)->click();
    EXPECT_TRUE(Box(48)->isEnabled());
}

TEST_F(TechniqueDialog, UpAndDownMoveThePickedRowWithinEightToThirtyEight) {
    Press("KnopUp");  // X-Wing is picked and already at the top of the range
    EXPECT_EQ(dialog.TechniqueShownAt(8), 8);
    Press("KnopDown");
    Press("KnopDown");
    EXPECT_EQ(tables.Order[8], 10);
    EXPECT_EQ(std::tuple(dialog.TechniqueShownAt(8), dialog.TechniqueShownAt(9),
                         dialog.TechniqueShownAt(10)),
              std::tuple(9, 10, 8));

    Pick(38);  // Long AIC's, the last movable row
    Press("KnopDown");
    EXPECT_EQ(dialog.TechniqueShownAt(38), 38);
    Press("KnopUp");
    EXPECT_EQ(dialog.TechniqueShownAt(37), 38);

    // The head of the ladder and Bifurcation can't be picked, so never move.
    for (int t : {0, 7, 39})
        EXPECT_FALSE(PickButton(t)->isEnabled()) << t;
    EXPECT_TRUE(PickButton(8)->isEnabled());
    Pick(39);
    EXPECT_TRUE(PickButton(38)->isChecked());
    Press("KnopUp");
    EXPECT_EQ(dialog.TechniqueShownAt(39), 39);
    EXPECT_EQ(dialog.TechniqueShownAt(36), 38);

    // The default order comes back and the ticks stay as they are.
    Box(12)->click();
    Press("cmdDefaults");
    EXPECT_EQ(tables.Order, DefaultTechniqueOrder());
    for (int p = 0; p < kTechniqueCount; ++p)
        EXPECT_EQ(dialog.TechniqueShownAt(p), p);
    EXPECT_EQ(tables.OnOff[12], 0);
    EXPECT_FALSE(Box(12)->isChecked());
}

}  // namespace
}  // namespace tavi::ui
