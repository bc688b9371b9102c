// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/find_puzzle.h"

#include <fstream>

#include "grid/levels.h"
#include "library/library_files.h"
#include "library/records.h"

namespace tavi {

std::optional<LibraryPlace> FindInLibrary(const std::filesystem::path& folder,
                                          const Digits& puzzle) {
    for (int level = 1; level <= kLevelCount; ++level) {
        std::ifstream in(PuzzleFile(folder, LevelStem(level)), std::ios::binary);
        SudokuRecordBytes bytes;
        for (long n = 1;
             in.read(reinterpret_cast<char*>(bytes.data()), std::streamsize(bytes.size())); ++n)
            if (SudokuRecordFromBytes(bytes).Puzzle == puzzle) return LibraryPlace{level, n};
    }
    return std::nullopt;
}

}  // namespace tavi
