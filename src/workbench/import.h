// Importing the puzzles of a foreign file into the library: each puzzle is read
// (foreign_puzzles.h), checked for exactly one solution and for being new to the
// library, rated by the ladder, and appended with its solution to the pair of its
// level. The workbench's Import and the command line's `library import` share it.
#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <istream>
#include <string>
#include <vector>

#include "grid/levels.h"
#include "settings/technique_order.h"
#include "workbench/foreign_puzzles.h"

namespace tavi {

struct ImportReport {
    std::array<long, kLevelCount + 1> added{};  // by level
    long noSolution = 0, severalSolutions = 0, duplicates = 0, unwritten = 0;
    std::vector<ForeignProblem> malformed;
    // "12 sudokus imported: 7 Easy, 5 Hard. Rejected: 1 without a solution, ..."
    std::string Text() const;
};

struct ImportRun {
    const TechniqueOrder* order = nullptr;  // the default order when null
    // Before each puzzle: its number and the count.
    std::function<void(long number, long count)> progress;
    // The ladder's label text while a puzzle is rated.
    std::function<void(const std::string&)> rating;
    std::function<bool()> abort;  // asked after each puzzle
};

ImportReport ImportPuzzles(const std::filesystem::path& dataFolder, std::istream& in,
                           const ImportRun& run = {});

}  // namespace tavi
