// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/technique_manager.h"

#include <utility>

namespace tavi {

bool TechniqueManager::Checked(int box) const {
    if (box < 0 || box >= 2 * kTechniqueCount) return false;
    return box < kTechniqueCount ? tables_.OnOff[box] == 1
                                 : tables_.Halt[box - kTechniqueCount] == 1;
}

bool TechniqueManager::Enabled(int box) const {
    if (box < kTechniqueCount) return box >= TechniqueTables::kFirstOptionalTechnique;
    const int technique = box - kTechniqueCount;
    return technique >= TechniqueTables::kFirstOptionalHalt && tables_.OnOff[technique] == 1;
}

void TechniqueManager::Click(int box, bool ticked) {
    if (box < 0 || box >= 2 * kTechniqueCount) return;
    if (box < kTechniqueCount) {
        // The head of the ladder is always in use.
        if (box >= TechniqueTables::kFirstOptionalTechnique) tables_.OnOff[box] = ticked ? 1 : 0;
        return;
    }
    const int technique = box - kTechniqueCount;
    if (technique >= TechniqueTables::kFirstOptionalHalt && tables_.OnOff[technique] == 1)
        tables_.Halt[technique] = ticked ? 1 : 0;
}

int TechniqueManager::TechniqueAt(int position) const {
    for (int i = 0; i < kTechniqueCount; ++i)
        if (tables_.Order[i] == position) return i;
    return -1;
}

void TechniqueManager::SwapWith(int position) {
    const int selected = TechniqueAt(SelectedPosition);
    const int other = TechniqueAt(position);
    if (selected < 0 || other < 0) return;
    std::swap(tables_.Order[selected], tables_.Order[other]);
    SelectedPosition = position;
}

void TechniqueManager::Up() {
    if (SelectedPosition <= TechniqueTables::kFirstMovable ||
        SelectedPosition > TechniqueTables::kLastMovable)
        return;
    SwapWith(SelectedPosition - 1);
}

void TechniqueManager::Down() {
    if (SelectedPosition >= TechniqueTables::kLastMovable ||
        SelectedPosition < TechniqueTables::kFirstMovable)
        return;
    SwapWith(SelectedPosition + 1);
}

void TechniqueManager::SetDefaultOrder() { tables_.Order = DefaultTechniqueOrder(); }

}  // namespace tavi
