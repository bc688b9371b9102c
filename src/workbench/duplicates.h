// Equal puzzles in a library: records whose 81 puzzle bytes agree byte for byte
// (a symmetry or a relabelling is no duplicate). The first of each group stays.
#pragma once

#include <span>
#include <vector>

#include "grid/board.h"

namespace tavi {

// For each puzzle, whether an earlier one is the same. Found through a hash of
// the bytes, so a library of any size takes one pass.
std::vector<bool> DuplicateFlags(std::span<const Digits> puzzles);

}  // namespace tavi
