#include "workbench/import.h"

#include <string_view>
#include <unordered_set>

#include "grid/candidates.h"
#include "library/library_files.h"
#include "library/library_pair.h"
#include "library/pair_guard.h"
#include "solver/ladder.h"
#include "solver/solutions.h"

namespace tavi {

namespace {

std::string Key(const Digits& puzzle) { return std::string(puzzle.begin(), puzzle.end()); }

}  // namespace

std::string ImportReport::Text() const {
    long total = 0;
    std::string levels;
    for (int level = 1; level <= kLevelCount; ++level) {
        if (!added[level]) continue;
        total += added[level];
        levels += (levels.empty() ? "" : ", ") + std::to_string(added[level]) + " " +
                  std::string(LevelName(level));
    }
    std::string text =
        std::to_string(total) + " sudokus imported" + (levels.empty() ? "." : ": " + levels + ".");
    std::string rejected;
    auto reason = [&](long n, const std::string& why) {
        if (n) rejected += (rejected.empty() ? "" : ", ") + std::to_string(n) + " " + why;
    };
    reason(noSolution, "without a solution");
    reason(severalSolutions, "with several solutions");
    reason(duplicates, "already in the library");
    reason(unwritten, "that could not be written");
    if (!malformed.empty()) {
        std::string lines;
        for (const auto& m : malformed)
            lines += (lines.empty() ? "" : ", ") + std::to_string(m.line);
        reason(long(malformed.size()),
               std::string("malformed (line") + (malformed.size() > 1 ? "s " : " ") + lines + ")");
    }
    if (!rejected.empty()) text += " Rejected: " + rejected + ".";
    return text;
}

ImportReport ImportPuzzles(const std::filesystem::path& dataFolder, std::istream& in,
                           const ImportRun& run) {
    const ForeignPuzzles read = ReadForeignPuzzles(in);
    ImportReport report;
    report.malformed = read.problems;

    // What the library holds already, to refuse a puzzle a second time.
    std::unordered_set<std::string> known;
    for (int level = 1; level <= kLevelCount; ++level) {
        OpenPair(dataFolder, LevelStem(level));
        std::vector<SudokuRecord> records;
        ReadSudokuFile(PuzzleFile(dataFolder, LevelStem(level)), records);
        for (const auto& r : records)
            known.insert(Key(r.Puzzle));
    }

    const long count = long(read.puzzles.size());
    for (long i = 0; i < count; ++i) {
        if (run.progress) run.progress(i + 1, count);
        const Digits& puzzle = read.puzzles[size_t(i)].puzzle;
        const SolutionCount solutions = Solutions(puzzle, 2);
        if (solutions.count == 0) {
            ++report.noSolution;
        } else if (solutions.count > 1) {
            ++report.severalSolutions;
        } else if (!known.insert(Key(puzzle)).second) {
            ++report.duplicates;
        } else {
            const Digits solution = solutions.first;
            SolveContext ctx;
            ctx.board = BoardFromPuzzle(puzzle);
            WorkbenchRun rating;
            rating.ImportRunning = true;
            rating.order = run.order;
            if (run.rating) rating.observer.progress = run.rating;
            const int level = SolveSudoku(ctx, rating) ? ctx.SolvingLevel : kOutlaw;
            if (AppendToPair(dataFolder, LevelStem(level), {puzzle, solution, 0, 0}, {}))
                ++report.added[level];
            else
                ++report.unwritten;
        }
        if (run.abort && run.abort()) break;
    }
    return report;
}

}  // namespace tavi
