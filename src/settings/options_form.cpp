// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/options_form.h"

namespace tavi {

SaveChoice SaveChoiceOf(bool autoSave, bool askSave) {
    if (autoSave) return SaveChoice::Allways;
    return askSave ? SaveChoice::Ask : SaveChoice::Never;
}

OptionsForm OptionsForm::From(const Options& o) {
    OptionsForm f;
    f.Pencilmarks = o.Pencilmarks;
    f.TimeOn = o.TimeOn;
    f.TimeShow = o.TimeShow;
    f.Wells = o.Wells;
    f.Sounds = o.Sounds;
    f.HintWindow = o.HintWindow;
    f.AutoErase = o.AutoErase;
    f.PencilmarksOff = o.PencilmarksOff;
    f.Dimmed = o.Dimmed;
    f.HighlightHouses = o.HighlightHouses;
    f.HighlightDigit = o.HighlightDigit;
    f.Save = SaveChoiceOf(o.AutoSave, o.AskSave);
    return f;
}

void OptionsForm::ApplyTo(Options& o) const {
    o.Pencilmarks = Pencilmarks;
    o.TimeOn = TimeOn;
    o.TimeShow = TimeShow;
    o.Wells = Wells;
    o.Sounds = Sounds;
    o.HintWindow = HintWindow;
    o.AutoErase = AutoErase;
    o.PencilmarksOff = PencilmarksOff;
    o.Dimmed = Dimmed;
    o.HighlightHouses = HighlightHouses;
    o.HighlightDigit = HighlightDigit;
    // "Allways" saves without asking and still counts as asking; "Never" does neither.
    o.AutoSave = Save == SaveChoice::Allways;
    o.AskSave = Save != SaveChoice::Never;
}

}  // namespace tavi
