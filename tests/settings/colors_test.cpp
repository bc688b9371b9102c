// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/colors.h"
#include "settings/colors_form.h"

#include <gtest/gtest.h>

namespace tavi {
namespace {

// Read: a missing or unreadable key keeps the colour in force, and the label
// pairs 4 and 5 are never read. Written: seven label pairs and nine hint
// colours, a system colour as the negative 32-bit number, that read back.
TEST(Colors, ReadKeepsWhatIsMissingAndWrittenReadsBack) {
    MemorySettingsStore store;
    store.Write("Colors", "BColor1", "255");
    store.Write("Colors", "FColor2", "red");
    store.Write("Colors", "HColor4", "16711680");
    store.Write("Colors", "BColor4", "123");
    ColorSettings c;
    c.LabelFore[2] = 0x00112233;
    c.LabelBack[4] = 0x00445566;
    HaalKleuren(store, c);
    EXPECT_EQ(std::tuple(c.LabelBack[1], c.LabelFore[2], c.HintColor[4], c.LabelBack[4]),
              std::tuple(255u, 0x00112233u, 0x00FF0000u, 0x00445566u));

    MemorySettingsStore written;
    c.LabelBack[9] = 0x80000008;
    SchrijfKleuren(written, c);
    EXPECT_EQ(written.Values().size(), 7u * 2 + 9);
    for (const char* key : {"BColor4", "FColor5", "BColor0"})
        EXPECT_FALSE(written.Has("Colors", key)) << key;
    EXPECT_EQ(written.Read("Colors", "BColor9", ""), "-2147483640");
    ColorSettings back;
    HaalKleuren(written, back);
    EXPECT_EQ(std::tie(back.LabelBack[9], back.LabelFore[2], back.HintColor),
              std::tie(c.LabelBack[9], c.LabelFore[2], c.HintColor));
}

TEST(ColorsForm, PickedColoursGoThroughTheStoreAndComeBackAsTheyWere) {
    ColorSettings inForce;
    ColorsForm form = ColorsForm::From(inForce);
    form.Select(ColorsForm::Part::Hint, 4);
    EXPECT_EQ(form.Caption(ColorsForm::Part::Hint, 4), " X");
    form.Pick(kColorPalette[3]);
    form.Select(ColorsForm::Part::LabelBack, 7);
    EXPECT_EQ(form.Caption(ColorsForm::Part::Hint, 4), "");  // one mark at a time
    form.Pick(kColorPalette[40]);
    form.Select(ColorsForm::Part::LabelFore, 7);
    form.Pick(kColorPalette[47]);
    form.Select(ColorsForm::Part::LabelBack, 4);  // not the user's: stays on 7
    EXPECT_TRUE(form.IsSelected(ColorsForm::Part::LabelFore, 7));
    EXPECT_EQ(inForce.HintColor, kDefaultHintColor);  // nothing counts before accept

    MemorySettingsStore store;
    form.Accept(inForce, store);
    EXPECT_EQ(std::tuple(inForce.HintColor[4], inForce.LabelBack[7], inForce.LabelFore[7]),
              std::tuple(kColorPalette[3], kColorPalette[40], kColorPalette[47]));
    ColorSettings read;
    HaalKleuren(store, read);
    EXPECT_EQ(std::tie(read.HintColor, read.LabelBack, read.LabelFore),
              std::tie(inForce.HintColor, inForce.LabelBack, inForce.LabelFore));

    form.Defaults();
    form.Accept(inForce, store);
    HaalKleuren(store, read);
    EXPECT_EQ(std::tie(read.HintColor, read.LabelBack),
              std::tie(kDefaultHintColor, kDefaultLabelBack));
}

}  // namespace
}  // namespace tavi
