// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/colors.h"

#include <gtest/gtest.h>

namespace tavi {
namespace {

TEST(HaalKleuren, AMissingOrUnreadableKeyKeepsTheColourInForce) {
    MemorySettingsStore store;
    store.Write("Colors", "BColor1", "255");
    store.Write("Colors", "FColor2", "red");
    store.Write("Colors", "HColor4", "16711680");
    store.Write("Colors", "BColor4", "123");  // 4 and 5 are never read
    ColorSettings c;
    c.LabelFore[2] = 0x00112233;
    c.LabelBack[4] = 0x00445566;
    HaalKleuren(store, c);
    EXPECT_EQ(std::tuple(c.LabelBack[1], c.LabelFore[2], c.HintColor[4], c.LabelBack[4]),
              std::tuple(255u, 0x00112233u, 0x00FF0000u, 0x00445566u));
}

TEST(SchrijfKleuren, WritesSevenLabelPairsAndNineHintColoursThatReadBack) {
    MemorySettingsStore store;
    ColorSettings c;
    c.LabelBack[9] = 0x80000008;  // a system colour, negative as a 32-bit number
    c.HintColor[0] = 0x00123456;
    SchrijfKleuren(store, c);
    EXPECT_EQ(store.Values().size(), 7u * 2 + 9);
    for (const char* key : {"BColor4", "FColor5", "BColor0"})
        EXPECT_FALSE(store.Has("Colors", key)) << key;
    EXPECT_EQ(store.Read("Colors", "BColor9", ""), "-2147483640");
    ColorSettings back;
    HaalKleuren(store, back);
    EXPECT_EQ(back.LabelBack[9], c.LabelBack[9]);
}

}  // namespace
}  // namespace tavi
