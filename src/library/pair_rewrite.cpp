// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/pair_rewrite.h"

#include <fstream>
#include <vector>

#include "library/library_files.h"
#include "library/pair_guard.h"

namespace tavi {

bool KeepInPair(const std::filesystem::path& folder, std::string_view stem,
                const std::function<bool(long)>& keep, std::string* why) {
    const long count = OpenPair(folder, stem);
    if (count < 0) {
        if (why) *why = "Source file: " + std::string(stem) + "* not found!";
        return false;
    }
    std::vector<long> kept;
    for (long n = 1; n <= count; ++n)
        if (keep(n)) kept.push_back(n);
    if (long(kept.size()) == count) return true;

    // The kept records are read in rising order, each file open once.
    std::ifstream sds(PuzzleFile(folder, stem), std::ios::binary);
    std::ifstream sdl(LogFile(folder, stem), std::ios::binary);
    const PairSource source = [&](long k, SudokuRecordBytes& sudoku, SudokuLogRecordBytes& log) {
        const long n = kept[size_t(k - 1)];
        sds.seekg(std::streamoff(n - 1) * std::streamoff(kSudokuRecordSize));
        sdl.seekg(std::streamoff(n - 1) * std::streamoff(kSudokuLogRecordSize));
        sds.read(reinterpret_cast<char*>(sudoku.data()), std::streamsize(sudoku.size()));
        sdl.read(reinterpret_cast<char*>(log.data()), std::streamsize(log.size()));
        return bool(sds) && bool(sdl);
    };
    return RewritePair(folder, stem, long(kept.size()), source, why);
}

}  // namespace tavi
