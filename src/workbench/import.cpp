// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/import.h"

#include <deque>
#include <fstream>
#include <string_view>

#include "grid/candidates.h"
#include "library/library_files.h"
#include "library/library_pair.h"
#include "library/pair_guard.h"
#include "solver/ladder.h"
#include "solver/solutions.h"
#include "workbench/duplicates.h"
#include "workbench/rating_pool.h"

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
        why.push_back(reason);
    }
    all.emplace_back(line, std::move(reason));
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
    reason(noSolution, "without a solution", true);
    reason(severalSolutions, "with several solutions", true);
    reason(duplicates, "already in the library", true);
    reason(unwritten, "that could not be written", true);
    reason(malformed, "malformed", true);
    if (!rejected.empty()) text += " Rejected: " + rejected + ".";
    if (aborted)
        text += " The import was aborted after line " + std::to_string(lastLine) +
                (unread > 0 ? "; " + std::to_string(unread) + " lines were not read." : ".");
    return text;
}

bool ImportReport::Cut() const {
    for (const LineCount* n : {&noSolution, &severalSolutions, &duplicates, &unwritten, &malformed})
        if (n->count > long(n->first.size())) return true;
    return false;
}

std::string ImportReport::FullList() const {
    std::string text;
    auto list = [&](const LineCount& n, const char* what) {
        for (const auto& [line, why] : n.all)
            text += "line " + std::to_string(line) + "\t" + what + (why.empty() ? "" : ": " + why) +
                    "\n";
    };
    list(noSolution, "without a solution");
    list(severalSolutions, "with several solutions");
    list(duplicates, "already in the library");
    list(unwritten, "could not be written");
    list(malformed, "malformed");
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
    int lines = 0;
    const auto start = in.tellg();
    if (start != std::istream::pos_type(-1) && run.progress) {
        ReadForeignPuzzles(
            in, [&](const ForeignPuzzle&) { return ++count, true; }, [](const ForeignProblem&) {},
            &lines);
        in.clear();
        in.seekg(start);
    }

    // The puzzles are read and filed here in the order of the file; only their
    // rating is shared out over the threads, so the library and the report are
    // those of a run on one thread.
    struct InHand {
        int line;
        Digits puzzle;
    };
    std::deque<InHand> inHand;
    RatingPool pool(run.threads, run.order);
    const std::size_t ahead = std::size_t(64 * pool.Threads());
    long done = 0;
    bool aborted = false;
    auto breathe = [&] {
        if (run.progress) run.progress(done, count);
        if (run.abort && run.abort()) aborted = true;
        return !aborted;
    };
    auto file = [&](const InHand& read, RatedPuzzle r) {
        ++done;
        if (r.solutions == 0) return report.noSolution.Note(read.line);
        if (r.solutions > 1) return report.severalSolutions.Note(read.line);
        if (known.Contains(read.puzzle)) return report.duplicates.Note(read.line);
        if (!r.rated) {
            // Known when it was handed in, and gone since: rated here.
            SolveContext ctx;
            r = RatePuzzle(ctx, read.puzzle, run.order);
        }
        long number = 0;
        std::string why;
        if (AppendToPair(dataFolder, LevelStem(r.level), {read.puzzle, r.solution, 0, 0}, {},
                         &number, &why)) {
            ++report.added[r.level];
            known.Add(read.puzzle, Place(r.level, number));
        } else {
            report.unwritten.Note(read.line, why);
        }
    };
    // Files the puzzles in hand until no more than `keep` are left.
    auto fileUntil = [&](std::size_t keep) {
        while (inHand.size() > keep && !aborted) {
            const auto r = pool.Next(std::chrono::milliseconds(20));
            if (!r) {
                if (run.rating) run.rating(pool.Progress(true));
                breathe();
                continue;
            }
            file(inHand.front(), *r);
            inHand.pop_front();
            breathe();
        }
    };
    ReadForeignPuzzles(
        in,
        [&](const ForeignPuzzle& read) {
            // A puzzle the library holds is only counted, not rated.
            pool.Submit(read.puzzle, !known.Contains(read.puzzle));
            inHand.push_back({read.line, read.puzzle});
            fileUntil(ahead);
            if (!aborted) report.lastLine = read.line;
            return !aborted;
        },
        [&](const ForeignProblem& p) {
            if (!aborted) report.malformed.Note(p.line, p.why);
        });
    fileUntil(0);
    if (aborted) {
        report.aborted = true;
        // What was read but not filed counts as not read.
        if (!inHand.empty()) report.lastLine = inHand.front().line - 1;
        report.unread = lines > report.lastLine ? lines - report.lastLine : 0;
        pool.Cancel();
        while (!pool.WaitIdle(std::chrono::milliseconds(50)))
            if (run.progress) run.progress(done, count);
    }
    return report;
}

}  // namespace tavi
