// SPDX-License-Identifier: GPL-3.0-or-later
// The options window works on a copy: the check boxes change only the copy, OK
// takes it, Cancel and the close box drop it.
#pragma once

#include "settings/options.h"

namespace tavi {

// The three choices of the "Save" frame.
enum class SaveChoice { Allways, Never, Ask };

struct OptionsForm {
    bool Pencilmarks = true;      // "Automatic pencilmarks update"
    bool TimeOn = true;           // "Keep time"
    bool TimeShow = true;         // "Show Timer" (else "Hide Timer")
    bool Wells = true;            // "Fill Wells"
    bool Sounds = false;          // "Sounds"
    bool HintWindow = false;      // "Additional Small Hint Window"
    bool AutoErase = true;        // "Auto-erase if solved"
    bool PencilmarksOff = false;  // "Pencilmarks off in first 3 levels"
    bool Dimmed = false;          // "Dimmed pencilmarks"
    bool HighlightHouses = true;  // "Row, column and box of the cursor"
    bool HighlightDigit = true;   // "Every place of the cursor's digit"
    SaveChoice Save = SaveChoice::Allways;

    // The copy of the options in force, as the window opens.
    static OptionsForm From(const Options& options);
    // OK: the copy goes back into the options.
    void ApplyTo(Options& options) const;
    // "Hide Timer" and "Show Timer" answer only while "Keep time" is ticked.
    bool TimerChoiceEnabled() const { return TimeOn; }
};

SaveChoice SaveChoiceOf(bool autoSave, bool askSave);

}  // namespace tavi
