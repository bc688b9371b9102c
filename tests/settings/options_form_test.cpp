// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/options_form.h"

#include <gtest/gtest.h>

namespace tavi {
namespace {

TEST(OptionsForm, TheSaveChoices) {
    struct Case {
        SaveChoice choice;
        bool autoSave, askSave;
    } cases[] = {{SaveChoice::Allways, true, true},
                 {SaveChoice::Never, false, false},
                 {SaveChoice::Ask, false, true}};
    for (const Case& c : cases) {
        Options o;
        OptionsForm f = OptionsForm::From(o);
        f.Save = c.choice;
        f.ApplyTo(o);
        EXPECT_EQ(std::pair(o.AutoSave, o.AskSave), std::pair(c.autoSave, c.askSave));
        EXPECT_EQ(OptionsForm::From(o).Save, c.choice);
    }
    // A stored pair that no choice makes (save without asking, not asking) reads as Allways.
    EXPECT_EQ(SaveChoiceOf(true, false), SaveChoice::Allways);
}

}  // namespace
}  // namespace tavi
