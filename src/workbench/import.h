// SPDX-License-Identifier: GPL-3.0-or-later
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
#include "library/foreign_puzzles.h"
#include "settings/technique_order.h"

namespace tavi {

// How many lines of one kind there were, and the first of them by number.
struct LineCount {
    static constexpr std::size_t kNamed = 20;
    long count = 0;
    std::vector<int> first;        // at most kNamed line numbers
    std::vector<std::string> why;  // the reason of each of the first, when there is one
    // Every line, with its reason when there is one, for the full list.
    std::vector<std::pair<int, std::string>> all;

    void Note(int line, std::string reason = {});
    // " (lines 3, 7 and 12 more)"; empty with no line.
    std::string Lines() const;
};

struct ImportReport {
    std::array<long, kLevelCount + 1> added{};  // by level
    LineCount noSolution, severalSolutions, duplicates, unwritten, malformed;
    bool aborted = false;
    int lastLine = 0;  // the last line read and filed
    long unread = 0;   // after an abort: the lines not read, when the file was counted
    // "12 sudokus imported: 7 Easy, 5 Hard. Rejected: 1 without a solution (line 3), ..."
    // Bounded, however long the input: counts and the first lines of each kind.
    std::string Text() const;
    // Every line of every kind, one a line, for a file: "line 3\twithout a solution".
    std::string FullList() const;
    // More lines than the report names.
    bool Cut() const;
};

struct ImportRun {
    const TechniqueOrder* order = nullptr;  // the default order when null
    int threads = 1;  // that rate the puzzles; the library and report are the same for any
    // After each puzzle filed, and while a long one is rated: the puzzles done
    // and the count (0 when the input can't be counted beforehand).
    std::function<void(long number, long count)> progress;
    // The ladder's label text on the puzzle waited for, before `progress`.
    std::function<void(const std::string&)> rating;
    std::function<bool()> abort;  // asked after each `progress`
};

ImportReport ImportPuzzles(const std::filesystem::path& dataFolder, std::istream& in,
                           const ImportRun& run = {});

}  // namespace tavi
