#include "settings/options_form.h"

#include <gtest/gtest.h>

namespace tavi {
namespace {

TEST(OptionsForm, WorksOnACopyThatOkTakes) {
    Options options;
    OptionsForm form = OptionsForm::From(options);
    form.Dimmed = true;
    form.Wells = false;
    form.Save = SaveChoice::Never;
    // Cancel: the form is dropped and nothing changed.
    EXPECT_FALSE(options.Dimmed);
    EXPECT_TRUE(options.Wells);
    form.ApplyTo(options);
    EXPECT_TRUE(options.Dimmed);
    EXPECT_FALSE(options.Wells);
    EXPECT_FALSE(options.AutoSave);
    EXPECT_FALSE(options.AskSave);
}

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
        EXPECT_EQ(o.AutoSave, c.autoSave);
        EXPECT_EQ(o.AskSave, c.askSave);
        EXPECT_EQ(OptionsForm::From(o).Save, c.choice);
    }
    // A stored pair that no choice makes (save without asking, not asking) reads as Allways.
    EXPECT_EQ(SaveChoiceOf(true, false), SaveChoice::Allways);
}

TEST(OptionsForm, TheTimerChoiceFollowsKeepTime) {
    OptionsForm f = OptionsForm::From(Options{});
    EXPECT_TRUE(f.TimerChoiceEnabled());
    f.TimeOn = false;
    EXPECT_FALSE(f.TimerChoiceEnabled());
}

}  // namespace
}  // namespace tavi
