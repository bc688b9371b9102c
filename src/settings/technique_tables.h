// SPDX-License-Identifier: GPL-3.0-or-later
// The user's choice per technique: used by Hint and Autosolve or not, halt
// Autosolve there or not, and the position in the ladder. The head of the ladder
// (0 to 7) and Bifurcation (39) keep their places; the positions 8 to 38 are a
// permutation of the techniques 8 to 38.
#pragma once

#include <array>

#include "settings/settings_store.h"
#include "settings/technique_order.h"

namespace tavi {

using TechniqueFlags = std::array<int, kTechniqueCount>;  // 1 set, 0 clear

struct TechniqueTables {
    TechniqueFlags OnOff = Filled(1);                // TechniqueOnOff
    TechniqueFlags Halt = DefaultHalt();             // TechniqueHalt
    TechniqueOrder Order = DefaultTechniqueOrder();  // TechniqueOrder: entry i, the position of i

    static constexpr TechniqueFlags Filled(int value) {
        TechniqueFlags flags{};
        flags.fill(value);
        return flags;
    }
    static constexpr TechniqueFlags DefaultHalt() {
        TechniqueFlags flags{};
        for (int i = 0; i < kFirstOptionalHalt; ++i)
            flags[i] = 1;
        return flags;
    }

    // Techniques below these numbers can't be turned off, or can't be passed by
    // Autosolve without a halt; the order moves only between the bounds.
    static constexpr int kFirstOptionalTechnique = 8;
    static constexpr int kFirstOptionalHalt = 3;
    static constexpr int kFirstMovable = 8;
    static constexpr int kLastMovable = 38;
};

// Reads the three tables of section "Technique" with their repair: the fixed
// entries are forced, an order outside 8 to 38 falls back to the index, and a
// position held twice brings back the whole default order.
void ReadTechniqueTables(const SettingsStore& store, TechniqueTables& tables);
// "OnOff", "Halt" and "Order" for each i from 0 to 39.
void WriteTechniqueTables(SettingsStore& store, const TechniqueTables& tables);

// Whether the order is a valid one: the fixed entries in place, the others a
// permutation of 8 to 38.
bool IsValidOrder(const TechniqueOrder& order);

}  // namespace tavi
