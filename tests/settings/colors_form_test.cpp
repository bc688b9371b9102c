// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/colors_form.h"

#include <gtest/gtest.h>

namespace tavi {
namespace {

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
