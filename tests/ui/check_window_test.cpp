// SPDX-License-Identifier: GPL-3.0-or-later
// The workbench window during and after a run: Escape aborts a run and nothing
// closes the window while it goes on; the commands stay where they are when the
// table of hardest techniques comes and goes.
#include <QApplication>
#include <QTest>

#include "library/library_files.h"
#include "library/library_pair.h"
#include "library/library_test_support.h"
#include "support/game_fixture.h"
#include "ui/check_window.h"
#include "ui/release_controls.h"
#include "window_fixture.h"

namespace tavi::ui {
namespace {

class CheckWindowTest : public ::testing::Test {
  public:
    CheckWindowTest() {
        for (const auto& p : tavi::testing::GeneratedPuzzles(30, 9))
            EXPECT_TRUE(AppendToPair(dir.path(), LevelStem(3), {p.puzzle, p.solution, 0, 0}, {}));
        EXPECT_TRUE(AppendToPair(dir.path(), LevelStem(2),
                                 {tavi::testing::GeneratedPuzzles(30, 9)[0].puzzle, {}, 0, 0}, {}));
        window.resize(640, 700);
        window.show();
        QApplication::processEvents();
        window.Model().SetRedrawEvery(std::chrono::milliseconds(0));
    }
    // Where the commands stand in the window.
    std::vector<QRect> Places() {
        std::vector<QRect> at;
        for (const char* name : {"CommandSolve", "CommandCheckAll", "CommandDelete", "CommandAbort",
                                 "CommandClose", "CommandExport"}) {
            auto* b = Child<ReleaseButton>(window, QLatin1String(name));
            at.push_back(b ? QRect(b->mapTo(&window, QPoint(0, 0)), b->size()) : QRect());
        }
        return at;
    }

    tavi::testing::TempDir dir;
    tavi::testing::ScriptedPrompter prompter;
    CheckWindow window{dir.path(), nullptr, &prompter};
};

TEST_F(CheckWindowTest, EscapeAbortsARunAndNothingClosesTheWindowMeanwhile) {
    prompter.inputs.push_back("1");
    window.Model().Command1(3);
    bool closed = true;
    window.Model().SetYield([&] {
        QApplication::processEvents();
        if (window.Model().progress().Bar1 != 4) return;
        window.close();
        QTest::keyClick(&window, Qt::Key_Escape);
        closed = !window.isVisible();
    });
    window.Model().CommandCheckAll();
    EXPECT_FALSE(closed) << "neither a close nor Escape shuts the window during a run";
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(window.Model().progress().Bar1, 4) << "Escape was the abort";
    EXPECT_FALSE(window.Model().BatchRunning());
    // After the run Escape closes it again.
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(CheckWindowTest, TheCommandsStayWhereTheyAreAndTheTableGoesWithTheLevel) {
    prompter.inputs.push_back("1");
    window.Model().Command1(3);
    QApplication::processEvents();
    const std::vector<QRect> before = Places();
    std::vector<QRect> during;
    window.Model().SetYield([&] {
        QApplication::processEvents();
        if (during.empty()) during = Places();
    });
    window.Model().CommandCheckAll();
    QApplication::processEvents();
    auto* table = Child<QWidget>(window, QStringLiteral("TableHardest"));
    ASSERT_TRUE(table);
    EXPECT_TRUE(table->isVisible());
    EXPECT_EQ(before, during);
    EXPECT_EQ(before, Places());
    prompter.inputs.push_back("1");
    window.Model().Command1(2);
    QApplication::processEvents();
    EXPECT_FALSE(table->isVisible()) << "the table was of the other level";
}

}  // namespace
}  // namespace tavi::ui
