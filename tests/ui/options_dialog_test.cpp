// SPDX-License-Identifier: GPL-3.0-or-later
// The options window works on a copy: Cancel and the close box drop it, OK takes
// it; the techniques manager it opens changes the tables at once.
#include "ui/options_dialog.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QPushButton>
#include <QRadioButton>
#include <tuple>

#include "ui/technique_manager_dialog.h"
#include "window_fixture.h"

namespace tavi::ui {
namespace {

auto Fields(const Options& o) {
    return std::tuple(o.Pencilmarks, o.TimeOn, o.TimeShow, o.Wells, o.Sounds, o.HintWindow,
                      o.AutoErase, o.PencilmarksOff, o.Dimmed, o.AutoSave, o.AskSave);
}

// Every box clicked once, the timer shown hidden, and "Never".
void ClickEverything(OptionsDialog& dialog) {
    for (int i = 1; i <= 8; ++i)
        Child<QCheckBox>(dialog, QStringLiteral("Check%1").arg(i))->click();
    Child<QCheckBox>(dialog, "Check2")->click();  // "Keep time" back on, so the timer answers
    Child<QRadioButton>(dialog, "Option1")->click();
    Child<QRadioButton>(dialog, "Option3_1")->click();
}

TEST(OptionsDialog, CancelAndTheCloseBoxDropTheCopyAndOkTakesIt) {
    Options options;
    const auto before = Fields(options);
    for (const QString way : {"Command1", "close box", "Command2"}) {  // Cancel, close, OK
        OptionsDialog dialog(options, true);
        dialog.show();
        ClickEverything(dialog);
        EXPECT_FALSE(dialog.Form().Pencilmarks);
        if (way == "close box")
            dialog.close();
        else
            Child<QPushButton>(dialog, way)->click();
        const bool ok = way == "Command2";
        EXPECT_EQ(dialog.result(), ok ? QDialog::Accepted : QDialog::Rejected);
        EXPECT_EQ(Fields(options) == before, !ok) << way.toStdString();
    }
    EXPECT_EQ(Fields(options),
              std::tuple(false, true, false, false, true, true, false, true, true, false, false));

    // The window opens showing the options in force.
    OptionsDialog again(options, true);
    EXPECT_FALSE(Child<QCheckBox>(again, "Check1")->isChecked());
    EXPECT_TRUE(Child<QCheckBox>(again, "Check8")->isChecked());
    EXPECT_TRUE(Child<QRadioButton>(again, "Option1")->isChecked());
    EXPECT_TRUE(Child<QRadioButton>(again, "Option3_1")->isChecked());
}

TEST(OptionsDialog, KeepTimeEnablesTheTimerChoicesAndSoundsNeedsADevice) {
    Options options;
    options.TimeOn = false;
    OptionsDialog dialog(options, false);
    auto* hide = Child<QRadioButton>(dialog, "Option1");
    auto* show = Child<QRadioButton>(dialog, "Option2");
    EXPECT_FALSE(hide->isEnabled() || show->isEnabled());
    Child<QCheckBox>(dialog, "Check2")->click();
    EXPECT_TRUE(hide->isEnabled() && show->isEnabled());
    Child<QCheckBox>(dialog, "Check2")->click();
    EXPECT_FALSE(hide->isEnabled() || show->isEnabled());
    EXPECT_TRUE(show->isChecked());
    EXPECT_FALSE(Child<QCheckBox>(dialog, "Check4")->isEnabled());
    EXPECT_TRUE(Child<QCheckBox>(OptionsDialog(options, true), "Check4")->isEnabled());

    // "Ask": save only after asking.
    Child<QRadioButton>(dialog, "Option3_2")->click();
    dialog.accept();
    EXPECT_EQ(std::pair(options.AutoSave, options.AskSave), std::pair(false, true));
}

TEST(OptionsDialog, TheTechniquesManagerCountsEvenWhenTheOptionsAreCancelled) {
    Options options;
    OptionsDialog dialog(options, true);
    WhenModal([](QWidget* modal) {
        auto* manager = qobject_cast<TechniqueManagerDialog*>(modal);
        ASSERT_NE(manager, nullptr);
        EXPECT_EQ(manager->windowTitle(), "Solving Techniques Manager");
        Child<QCheckBox>(*manager, "CheckInclude_8")->click();
        Child<QPushButton>(*manager, "CommandOK")->click();
    });
    Child<QPushButton>(dialog, "KnopTechnieken")->click();
    dialog.reject();
    EXPECT_EQ(options.techniques.OnOff[8], 0);
}

TEST(OptionsDialog, RunTellsWhetherOkWasPressedAndOpensTheColoursWhenGiven) {
    Options options;
    WhenModal([](QWidget* modal) {
        EXPECT_EQ(modal->windowTitle(), "Tavi Sudoku Options");
        // No colours window given: its button can't be pressed.
        EXPECT_FALSE(Child<QPushButton>(*modal, "KnopColors")->isEnabled());
        Child<QPushButton>(*modal, "Command2")->click();
    });
    EXPECT_TRUE(RunOptionsDialog(nullptr, options, true));  // (OK's changes: MainWindowTest)

    int colorsOpened = 0;
    WhenModal([](QWidget* modal) {
        Child<QPushButton>(*modal, "KnopColors")->click();
        Child<QPushButton>(*modal, "Command1")->click();
    });
    EXPECT_FALSE(RunOptionsDialog(nullptr, options, true, [&](QWidget*) { ++colorsOpened; }));
    EXPECT_EQ(colorsOpened, 1);
}

}  // namespace
}  // namespace tavi::ui
