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

// How many lines of one kind there were, and the first of them by number.
struct LineCount {
    static constexpr std::size_t kNamed = 20;
    long count = 0;
    std::vector<int> first;        // at most kNamed line numbers
    std::vector<std::string> why;  // the reason of each of the first, when there is one

    void Note(int line, std::string reason = {});
    // " (lines 3, 7 and 12 more)"; empty with no line.
    std::string Lines() const;
};

struct ImportReport {
    std::array<long, kLevelCount + 1> added{};  // by level
    LineCount noSolution, severalSolutions, duplicates, unwritten, malformed;
    // "12 sudokus imported: 7 Easy, 5 Hard. Rejected: 1 without a solution (line 3), ..."
    // Bounded, however long the input: counts and the first lines of each kind.
    std::string Text() const;
};

struct ImportRun {
    const TechniqueOrder* order = nullptr;  // the default order when null
    // Before each puzzle: its number and the count (0 when the input can't be
    // counted beforehand).
    std::function<void(long number, long count)> progress;
    // The ladder's label text while a puzzle is rated.
    std::function<void(const std::string&)> rating;
    std::function<bool()> abort;  // asked after each puzzle
};

ImportReport ImportPuzzles(const std::filesystem::path& dataFolder, std::istream& in,
                           const ImportRun& run = {});

}  // namespace tavi
