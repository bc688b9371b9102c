// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/options.h"
#include "settings/options_form.h"

#include <gtest/gtest.h>

namespace tavi {
namespace {

using Values = std::map<std::pair<std::string, std::string>, std::string>;

// Reading an empty store brings every option back to its default: written out
// again it is what the defaults write (whose texts the next test pins down).
TEST(HaalOpties, AnEmptyStoreGivesEveryDefault) {
    MemorySettingsStore empty, written, defaults;
    Options o;
    o.Dimmed = o.Sounds = o.LogfilesMade = o.PencilmarksOff = o.HintWindow = true;
    o.Wells = o.TimeOn = o.TimeShow = o.AutoSave = o.AskSave = o.AutoErase = o.Pencilmarks = false;
    o.HighlightHouses = o.HighlightDigit = false;
    o.VersionMain = o.VersionSub = 3;
    o.techniques.OnOff[12] = 0;
    o.techniques.Halt[20] = 1;
    std::swap(o.techniques.Order[8], o.techniques.Order[9]);
    o.colors.HintColor[3] = 7;
    HaalOpties(empty, o);
    EXPECT_TRUE(empty.Values().empty());  // reading writes nothing
    SchrijfOpties(written, o);
    SchrijfOptieSudLog(written, o);
    SchrijfVersie(written, o);
    SchrijfOpties(defaults, Options{});
    SchrijfOptieSudLog(defaults, Options{});
    SchrijfVersie(defaults, Options{});
    EXPECT_EQ(written.Values(), defaults.Values());
    EXPECT_EQ(o.colors.HintColor, kDefaultHintColor);
}

// The Logfiles and Version keys have writers of their own.
TEST(SchrijfOpties, WritesTheOptionsTheTechniqueTablesTheLogfilesAndVersionAsText) {
    MemorySettingsStore store;
    Options o;
    o.Dimmed = o.LogfilesMade = true;
    o.VersionMain = 1;
    o.VersionSub = 6;
    o.HighlightDigit = false;
    o.AutoErase = false;
    o.techniques.Order[8] = 9;
    o.techniques.Order[9] = 8;
    SchrijfOpties(store, o);
    SchrijfOptieSudLog(store, o);
    SchrijfVersie(store, o);

    // Section/Key=Value, as the file holds them.
    Values expected;
    for (const char* line :
         {"Options/Dimmed=True", "Options/PencilmarksOff=False", "Options/Pencilmarks=True",
          "Options/Wells=True", "Options/Sounds=False", "Options/HintWindow=False",
          "Options/TimeOn=True", "Options/TimeShow=True", "Options/AutoSave=True",
          "Options/AskSave=True", "Options/AutoErase=False", "Highlight/Houses=True",
          "Highlight/Digit=False", "Options/Logfiles=True", "Version/Main=1", "Version/Sub=6"}) {
        const std::string t = line;
        const auto slash = t.find('/'), equals = t.find('=');
        expected[{t.substr(0, slash), t.substr(slash + 1, equals - slash - 1)}] =
            t.substr(equals + 1);
    }
    for (int i = 0; i < 40; ++i) {
        const std::string n = std::to_string(i);
        expected[{"Technique", "OnOff" + n}] = "1";
        expected[{"Technique", "Halt" + n}] = i < 3 ? "1" : "0";
        expected[{"Technique", "Order" + n}] = i == 8 ? "9" : i == 9 ? "8" : n;
    }
    EXPECT_EQ(store.Values(), expected);

    Options back;
    HaalOpties(store, back);
    EXPECT_EQ(std::tuple(back.Dimmed, back.AutoErase, back.HighlightDigit, back.techniques.Order,
                         back.LogfilesMade, back.VersionMain, back.VersionSub),
              std::tuple(true, false, false, o.techniques.Order, true, 1, 6));
}

TEST(HaalOpties, AValueOfTheWrongTypeGivesTheDefault) {
    MemorySettingsStore store;
    store.Write("Options", "Wells", "perhaps");
    store.Write("Options", "Sounds", "");
    store.Write("Options", "TimeShow", "false");  // any case
    store.Write("Options", "AutoSave", "0");      // a number counts, 0 is false
    store.Write("Options", "Dimmed", " -1 ");
    store.Write("Version", "Main", "99999999999999999999999");  // past any integer
    store.Write("Version", "Sub", "99999");                     // beyond 16 bits
    store.Write("Technique", "OnOff9", "x");
    store.Write("Technique", "Halt9", "2");
    store.Write("Technique", "Order9", "ten");
    store.Write("Technique", "Halt10", " +1 ");  // a sign and blanks read
    store.Write("Technique", "Halt11", "1.6");
    Options o;
    HaalOpties(store, o);
    EXPECT_EQ(std::tuple(o.Wells, o.Sounds, o.TimeShow, o.AutoSave, o.Dimmed, o.VersionMain,
                         o.VersionSub),
              std::tuple(true, false, false, false, true, 0, 0));
    EXPECT_EQ(std::tuple(o.techniques.OnOff[9], o.techniques.Halt[9], o.techniques.Order[9],
                         o.techniques.Halt[10], o.techniques.Halt[11]),
              std::tuple(1, 0, 9, 1, 0));
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
        EXPECT_EQ(std::pair(o.AutoSave, o.AskSave), std::pair(c.autoSave, c.askSave));
        EXPECT_EQ(OptionsForm::From(o).Save, c.choice);
    }
    // A stored pair that no choice makes (save without asking, not asking) reads as Allways.
    EXPECT_EQ(SaveChoiceOf(true, false), SaveChoice::Allways);
}

}  // namespace
}  // namespace tavi
