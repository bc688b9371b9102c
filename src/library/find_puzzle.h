// SPDX-License-Identifier: GPL-3.0-or-later
// Where a puzzle stands in the library of a folder, if it does: each level's
// puzzle file read record by record, nothing held.
#pragma once

#include <filesystem>
#include <optional>

#include "grid/board.h"

namespace tavi {

struct LibraryPlace {
    int level = 0;
    long number = 0;
};

// The first record, by level and number, whose puzzle is `puzzle`.
std::optional<LibraryPlace> FindInLibrary(const std::filesystem::path& folder,
                                          const Digits& puzzle);

}  // namespace tavi
