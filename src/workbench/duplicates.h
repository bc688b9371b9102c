// SPDX-License-Identifier: GPL-3.0-or-later
// Equal puzzles in a library: records whose 81 puzzle bytes agree byte for byte
// (a symmetry or a relabelling is no duplicate). The first of each group stays.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <unordered_map>
#include <vector>

#include "grid/board.h"

namespace tavi {

// Puzzles seen so far, by a hash of their bytes and where they stand: memory
// stays small for a library of any size, and a hash that matches is confirmed
// byte for byte by reading the earlier puzzle back.
class PuzzleIndex {
  public:
    // Reads back the puzzle at a place given to Add; nothing when it can't.
    using ReadBack = std::function<std::optional<Digits>(std::uint64_t place)>;

    explicit PuzzleIndex(ReadBack readBack) : readBack_(std::move(readBack)) {}

    // Whether an equal puzzle was added before.
    bool Contains(const Digits& puzzle) const;
    void Add(const Digits& puzzle, std::uint64_t place);
    // Adds the puzzle unless an equal one is there; true when it was new.
    bool Insert(const Digits& puzzle, std::uint64_t place);

  private:
    ReadBack readBack_;
    std::unordered_multimap<std::uint64_t, std::uint64_t> places_;
};

}  // namespace tavi
