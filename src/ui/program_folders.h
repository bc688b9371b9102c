// SPDX-License-Identifier: GPL-3.0-or-later
// The two folders of the program: the folder of what the program brings (the
// delivered library, the help pages and the sounds), and the user's data folder ("TaviSud1" in the
// platform's per-user data folder), where all game files live.
#pragma once

#include <QString>

#include "library/library_files.h"

namespace tavi::ui {

// Where the delivered files of a program in `programDir` lie: PREFIX/share/
// games/tavi-sudoku for a program installed in PREFIX/games, PREFIX/share/
// tavi-sudoku for one in PREFIX/bin, else beside the program (the build folder).
QString DeliveredFolder(const QString& programDir);

// Makes the data folder when it isn't there; a failure shows later, when the
// first file can't be written.
LibraryFolders ProgramFolders();

}  // namespace tavi::ui
