// SPDX-License-Identifier: GPL-3.0-or-later
// The options of the program, read once at start and written at exit. They live
// in one object that the game and the workbench are given; nothing reads them
// from anywhere else.
#pragma once

#include "settings/colors.h"
#include "settings/settings_store.h"
#include "settings/technique_tables.h"

namespace tavi {

struct Options;
// The first three levels are played without marks when the option says so.
bool PencilmarksOffAt(const Options& options, int level);

struct Options {
    // Section "Options".
    bool Dimmed = false;          // marks drawn dim, with a hover highlight
    bool PencilmarksOff = false;  // levels 1 to 3 without marks
    bool Pencilmarks = true;      // automatic update of the peers' marks
    bool Wells = true;
    bool Sounds = false;
    bool HintWindow = false;  // the small hint window
    bool TimeOn = true;       // keep the clock (a loaded game may change it)
    bool TimeShow = true;     // show the clock (a loaded game may change it)
    bool AutoSave = true;
    bool AskSave = true;
    bool AutoErase = true;      // erase the progress of a solved puzzle without asking
    bool LogfilesMade = false;  // key "Logfiles"

    // Section "Highlight", beside the keys of "Options": the board's help in
    // finding the cursor and its digit.
    bool HighlightHouses = true;  // the cursor's row, column and box in a light tint
    bool HighlightDigit = true;   // the cursor's digit: its cells and its marks

    // Section "Version".
    int VersionMain = 0;
    int VersionSub = 0;

    TechniqueTables techniques;
    ColorSettings colors;
};

// Everything from the store: the options, the version, the technique tables and
// the colours. Missing keys and values that can't be read as their type take the
// defaults.
void HaalOpties(const SettingsStore& store, Options& options);
// The eleven options of section "Options" (not "Logfiles"), the highlighting of
// section "Highlight", then the technique tables.
void SchrijfOpties(SettingsStore& store, const Options& options);
// "Logfiles", written as soon as the log files exist.
void SchrijfOptieSudLog(SettingsStore& store, const Options& options);
void SchrijfVersie(SettingsStore& store, const Options& options);

}  // namespace tavi
