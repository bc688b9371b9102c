// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/duplicates.h"

namespace tavi {

namespace {

std::uint64_t HashOf(const Digits& puzzle) {
    std::uint64_t h = 1469598103934665603ULL;
    for (std::uint8_t b : puzzle)
        h = (h ^ b) * 1099511628211ULL;
    return h;
}

}  // namespace

bool PuzzleIndex::Contains(const Digits& puzzle) const {
    const auto [first, last] = places_.equal_range(HashOf(puzzle));
    for (auto it = first; it != last; ++it) {
        const auto earlier = readBack_(it->second);
        if (earlier && *earlier == puzzle) return true;
    }
    return false;
}

void PuzzleIndex::Add(const Digits& puzzle, std::uint64_t place) {
    places_.emplace(HashOf(puzzle), place);
}

bool PuzzleIndex::Insert(const Digits& puzzle, std::uint64_t place) {
    if (Contains(puzzle)) return false;
    Add(puzzle, place);
    return true;
}

}  // namespace tavi
