#include "workbench/import.h"

#include <fstream>
#include <string_view>

#include "grid/candidates.h"
#include "library/library_files.h"
#include "library/library_pair.h"
#include "library/pair_guard.h"
#include "solver/ladder.h"
#include "solver/solutions.h"
#include "workbench/duplicates.h"

namespace tavi {

namespace {

// Where a puzzle of the library stands, as one number for the index.
std::uint64_t Place(int level, long number) {
    return std::uint64_t(level) << 32 | std::uint64_t(number);
}

}  // namespace

void LineCount::Note(int line, std::string reason) {
    ++count;
    if (first.size() < kNamed) {
        first.push_back(line);
        why.push_back(std::move(reason));
    }
}

std::string LineCount::Lines() const {
    if (first.empty()) return {};
    std::string lines;
    for (int line : first)
        lines += (lines.empty() ? "" : ", ") + std::to_string(line);
    std::string text = std::string(" (line") + (count > 1 ? "s " : " ") + lines;
    if (count > long(first.size()))
        text += " and " + std::to_string(count - long(first.size())) + " more";
    return text + ")";
}

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
    auto reason = [&](const LineCount& n, const std::string& why, bool lines) {
        if (n.count)
            rejected += (rejected.empty() ? "" : ", ") + std::to_string(n.count) + " " + why +
                        (lines ? n.Lines() : "");
    };
    reason(noSolution, "without a solution", false);
    reason(severalSolutions, "with several solutions", false);
    reason(duplicates, "already in the library", false);
    reason(unwritten, "that could not be written", true);
    reason(malformed, "malformed", true);
    if (!rejected.empty()) text += " Rejected: " + rejected + ".";
    return text;
}

ImportReport ImportPuzzles(const std::filesystem::path& dataFolder, std::istream& in,
                           const ImportRun& run) {
    ImportReport report;

    // What the library holds already, to refuse a puzzle a second time: read
    // record by record, kept as hashes with the place to read each back.
    PuzzleIndex known([&](std::uint64_t place) -> std::optional<Digits> {
        SudokuRecordBytes bytes;
        const int level = int(place >> 32);
        if (!ReadRecordBytes(PuzzleFile(dataFolder, LevelStem(level)), long(place & 0xFFFFFFFF),
                             bytes))
            return std::nullopt;
        return SudokuRecordFromBytes(bytes).Puzzle;
    });
    for (int level = 1; level <= kLevelCount; ++level) {
        const long count = OpenPair(dataFolder, LevelStem(level));
        std::ifstream sds(PuzzleFile(dataFolder, LevelStem(level)), std::ios::binary);
        SudokuRecordBytes bytes;
        for (long n = 1; n <= count; ++n) {
            if (!sds.read(reinterpret_cast<char*>(bytes.data()), std::streamsize(bytes.size())))
                break;
            known.Add(SudokuRecordFromBytes(bytes).Puzzle, Place(level, n));
        }
    }

    // A file is counted first, for the progress; the puzzles are never all held.
    long count = 0;
    const auto start = in.tellg();
    if (start != std::istream::pos_type(-1) && run.progress) {
        ReadForeignPuzzles(
            in, [&](const ForeignPuzzle&) { return ++count, true; }, [](const ForeignProblem&) {});
        in.clear();
        in.seekg(start);
    }
    long done = 0;
    ReadForeignPuzzles(
        in,
        [&](const ForeignPuzzle& read) {
            if (run.progress) run.progress(++done, count);
            const Digits& puzzle = read.puzzle;
            const SolutionCount solutions = Solutions(puzzle, 2);
            if (solutions.count == 0) {
                report.noSolution.Note(read.line);
            } else if (solutions.count > 1) {
                report.severalSolutions.Note(read.line);
            } else if (known.Contains(puzzle)) {
                report.duplicates.Note(read.line);
            } else {
                const Digits solution = solutions.first;
                SolveContext ctx;
                ctx.board = BoardFromPuzzle(puzzle);
                WorkbenchRun rating;
                rating.ImportRunning = true;
                rating.order = run.order;
                if (run.rating) rating.observer.progress = run.rating;
                const int level = SolveSudoku(ctx, rating) ? ctx.SolvingLevel : kOutlaw;
                long number = 0;
                std::string why;
                if (AppendToPair(dataFolder, LevelStem(level), {puzzle, solution, 0, 0}, {},
                                 &number, &why)) {
                    ++report.added[level];
                    known.Add(puzzle, Place(level, number));
                } else {
                    report.unwritten.Note(read.line, why);
                }
            }
            return !(run.abort && run.abort());
        },
        [&](const ForeignProblem& p) { report.malformed.Note(p.line, p.why); });
    return report;
}

}  // namespace tavi
