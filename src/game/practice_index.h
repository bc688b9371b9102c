// SPDX-License-Identifier: GPL-3.0-or-later
// The practice index: for each puzzle of a library file, the technique of its
// hardest step, with the level and the score of its rating. It is kept beside the
// file ("Sudoku_Easy.sdp" beside "Sudoku_Easy.sds") and tied to the file's bytes
// by a hash, so a library file that changed in any way is indexed again. Building
// it rates every puzzle once, shared out over threads; a library of thousands
// takes seconds, so the program builds it in the background.
#pragma once

#include <atomic>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include "grid/board.h"

namespace tavi {

struct PracticeFacts {
    int technique = 0;  // of the hardest step: 8..39, 0 when the head of the ladder did it all
    int level = 0;      // 1..9 as the workbench rates it, 0 for a record that can't be read
    double score = 0;   // the difficulty score, to one decimal as written
    bool operator==(const PracticeFacts&) const = default;
};
// Record number n at n - 1.
using PracticeIndex = std::vector<PracticeFacts>;

// "Sudoku_Easy.sdp" for the stem "Sudoku_Easy.sd".
std::filesystem::path PracticeIndexFile(const std::filesystem::path& folder, std::string_view stem);

// The puzzles of a `.sds` file and the hash of its bytes; nothing when it can't be
// read. A damaged record stays in its place with no puzzle (all 0).
struct LibraryPuzzles {
    std::uint64_t hash = 0;
    std::vector<Digits> puzzles;
};
std::optional<LibraryPuzzles> ReadLibraryPuzzles(const std::filesystem::path& sdsFile);

// Rates each puzzle over `threads` threads; the same facts for any number of
// them. Nothing when `cancel` was set before the end. `done` hears how many
// puzzles are rated, now and then, from the calling thread.
std::optional<PracticeIndex> IndexPuzzles(const std::vector<Digits>& puzzles, int threads,
                                          const std::atomic<bool>* cancel = nullptr,
                                          const std::function<void(long)>& done = {});

// The index kept for the library file of `stem`, if it is there, whole, and made
// from the file as it stands (`hash`).
std::optional<PracticeIndex> ReadPracticeIndex(const std::filesystem::path& folder,
                                               std::string_view stem, std::uint64_t hash);
// Writes the index beside the library file: a new file that replaces the old one
// only when written in full.
bool WritePracticeIndex(const std::filesystem::path& folder, std::string_view stem,
                        std::uint64_t hash, const PracticeIndex& index);

// The index of the library file of `stem` as it stands: the kept one when it is
// fresh, else rated anew and kept. Nothing when the library file can't be read
// or the build was cancelled. A missing library file has an empty index.
std::optional<PracticeIndex> EnsurePracticeIndex(const std::filesystem::path& folder,
                                                 std::string_view stem, int threads,
                                                 const std::atomic<bool>* cancel = nullptr);

}  // namespace tavi
