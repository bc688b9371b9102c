// The two folders of the program: the folder of the executable, where the build
// puts the delivered library, and the user's data folder ("TaviSud1" in the
// platform's per-user data folder), where all game files live.
#pragma once

#include "library/library_files.h"

namespace tavi::ui {

// Makes the data folder when it isn't there; a failure shows later, when the
// first file can't be written.
LibraryFolders ProgramFolders();

}  // namespace tavi::ui
