// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/technique_tables.h"

#include <gtest/gtest.h>

namespace tavi {
namespace {

void Put(MemorySettingsStore& store, const std::string& key, int value) {
    store.Write("Technique", key, std::to_string(value));
}

TechniqueTables Read(const MemorySettingsStore& store) {
    TechniqueTables t;
    ReadTechniqueTables(store, t);
    return t;
}

TEST(TechniqueTables, TheFixedEntriesAreForcedAndABrokenOrderIsReset) {
    MemorySettingsStore store;
    for (int i = 0; i < 40; ++i) {
        Put(store, "OnOff" + std::to_string(i), 0);
        Put(store, "Halt" + std::to_string(i), 0);
    }
    Put(store, "Order3", 20);   // the head of the ladder doesn't move
    Put(store, "Order39", 12);  // nor does Bifurcation
    const TechniqueTables t = Read(store);
    for (int i = 0; i < 40; ++i) {
        EXPECT_EQ(t.OnOff[i], i < 8 ? 1 : 0) << i;
        EXPECT_EQ(t.Halt[i], i < 3 ? 1 : 0) << i;
    }
    EXPECT_EQ(t.Order[3], 3);
    EXPECT_EQ(t.Order[39], 39);
    EXPECT_TRUE(IsValidOrder(t.Order));

    // A position outside the range or held twice brings back the default order.
    MemorySettingsStore outside;
    Put(outside, "Order8", 7);
    Put(outside, "Order9", 39);
    Put(outside, "Order10", -4);
    EXPECT_EQ(Read(outside).Order, DefaultTechniqueOrder());

    MemorySettingsStore twice;
    // A good swap elsewhere, then the duplicate.
    Put(twice, "Order20", 30);
    Put(twice, "Order30", 20);
    Put(twice, "Order9", 10);
    Put(twice, "Order10", 10);
    Put(twice, "OnOff12", 0);
    const TechniqueTables reset = Read(twice);
    EXPECT_EQ(reset.Order, DefaultTechniqueOrder());
    EXPECT_EQ(reset.OnOff[12], 0);  // only the order is reset

    // A single entry moved out of a swap leaves a hole and a duplicate: reset too.
    MemorySettingsStore broken;
    Put(broken, "Order20", 30);
    EXPECT_EQ(Read(broken).Order, DefaultTechniqueOrder());
}

}  // namespace
}  // namespace tavi
