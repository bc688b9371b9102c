// SPDX-License-Identifier: GPL-3.0-or-later
// Puzzle sets for the benchmarks: made by the generator, or read from a list by
// path (one puzzle per line, '#' lines skipped). The public lists live outside the
// project; TAVI_PUZZLE_DIR points at them.
#pragma once

#include <fstream>
#include <string>
#include <vector>

#include "grid/board.h"
#include "solver/generator.h"

namespace tavi::bench {

inline std::vector<Digits> ReadPuzzleFile(const std::string& name, size_t limit = 0) {
    const char* dir = std::getenv("TAVI_PUZZLE_DIR");
    std::ifstream in(std::string(dir ? dir : TAVI_DEFAULT_PUZZLE_DIR) + "/" + name);
    std::vector<Digits> out;
    std::string line;
    while (std::getline(in, line) && (limit == 0 || out.size() < limit)) {
        if (line.empty() || line[0] == '#') continue;
        if (auto d = ParseDigits(line)) out.push_back(*d);
    }
    return out;
}

inline std::vector<GeneratedPuzzle> Generated(int count, std::uint64_t start = 99) {
    PuzzleGenerator g(start);
    std::vector<GeneratedPuzzle> out;
    for (int i = 0; i < count; ++i)
        out.push_back(g.Next());
    return out;
}

}  // namespace tavi::bench
