#include "settings/technique_manager.h"

#include <gtest/gtest.h>

namespace tavi {
namespace {

TEST(TechniqueManager, TheHeadCannotBeTurnedOff) {
    TechniqueTables t;
    TechniqueManager m(t);
    for (int box : {0, 3, 7, 40, 41, 42}) {
        m.Click(box, false);
        EXPECT_TRUE(m.Checked(box)) << box;
        EXPECT_FALSE(m.Enabled(box)) << box;
    }
    EXPECT_TRUE(m.Enabled(8));
    EXPECT_TRUE(m.Enabled(43));
}

TEST(TechniqueManager, UntickingATechniqueDisablesItsHaltAndKeepsIt) {
    TechniqueTables t;
    TechniqueManager m(t);
    m.Click(48, true);  // halt at X-Wing
    EXPECT_EQ(t.Halt[8], 1);
    m.Click(8, false);
    EXPECT_EQ(t.OnOff[8], 0);
    EXPECT_FALSE(m.Enabled(48));
    EXPECT_TRUE(m.Checked(48));
    m.Click(48, false);  // a disabled box doesn't answer
    EXPECT_EQ(t.Halt[8], 1);
    m.Click(8, true);
    EXPECT_TRUE(m.Enabled(48));
}

TEST(TechniqueManager, UpAndDownStayBetweenEightAndThirtyEight) {
    TechniqueTables t;
    TechniqueManager m(t);
    EXPECT_EQ(m.SelectedPosition, 8);
    m.Up();
    EXPECT_EQ(t.Order, DefaultTechniqueOrder());
    m.SelectRow(14);  // Skyscraper
    m.Up();
    m.Up();
    EXPECT_EQ(m.SelectedPosition, 12);
    EXPECT_EQ(m.TechniqueAt(12), 14);
    EXPECT_EQ(m.RowOf(12), 13);
    EXPECT_EQ(m.RowOf(13), 14);
    EXPECT_TRUE(IsValidOrder(t.Order));
    m.SelectRow(38);
    m.Down();
    EXPECT_EQ(m.RowOf(38), 38);
    EXPECT_EQ(m.RowOf(39), 39);
    // Bifurcation can't be picked into the range of the buttons.
    m.SelectRow(39);
    m.Up();
    EXPECT_EQ(m.RowOf(39), 39);
    EXPECT_EQ(m.RowOf(38), 38);
}

TEST(TechniqueManager, DefaultOrderKeepsTheTicks) {
    TechniqueTables t;
    TechniqueManager m(t);
    m.SelectRow(20);
    m.Down();
    m.Click(30, false);
    m.Click(45, true);
    m.SetDefaultOrder();
    EXPECT_EQ(t.Order, DefaultTechniqueOrder());
    EXPECT_EQ(t.OnOff[30], 0);
    EXPECT_EQ(t.Halt[5], 1);
}

}  // namespace
}  // namespace tavi
