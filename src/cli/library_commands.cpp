// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/library_commands.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iomanip>
#include <optional>
#include <sstream>

#include "cli/in_order.h"
#include "cli/library_build.h"
#include "cli/puzzle_lines.h"
#include "grid/candidates.h"
#include "grid/levels.h"
#include "library/library_files.h"
#include "library/library_pair.h"
#include "library/library_setup.h"
#include "library/pair_guard.h"
#include "library/record_checks.h"
#include "solver/difficulty_score.h"
#include "solver/generator.h"
#include "solver/solutions.h"
#include "workbench/duplicates.h"

namespace tavi::cli {

namespace fs = std::filesystem;

namespace {

constexpr int kUsageError = kExitBadInput;

std::string BestTime(const SudokuRecord& r) {
    std::ostringstream s;
    s << r.BestMinutes << ':' << std::setw(2) << std::setfill('0') << r.BestSeconds;
    return s.str();
}

// Options of the form --name VALUE after the command words.
struct Arguments {
    std::vector<std::string> positional;
    std::vector<std::pair<std::string, std::string>> named;
    std::string problem;

    std::optional<std::string> Get(std::string_view name) const {
        for (const auto& [n, v] : named)
            if (n == name) return v;
        return std::nullopt;
    }
};

Arguments Parse(const std::vector<std::string>& args, std::size_t first,
                const std::vector<std::string_view>& known) {
    Arguments a;
    for (std::size_t i = first; i < args.size(); ++i) {
        const std::string& arg = args[i];
        if (arg.rfind("--", 0) != 0) {
            a.positional.push_back(arg);
            continue;
        }
        const std::string name = arg.substr(2);
        if (std::find(known.begin(), known.end(), name) == known.end()) {
            a.problem = "unknown option " + arg;
        } else if (i + 1 >= args.size()) {
            a.problem = "option " + arg + " needs a value";
        } else {
            a.named.emplace_back(name, args[++i]);
            continue;
        }
        break;
    }
    return a;
}

std::optional<long long> Number(const std::optional<std::string>& text, long long low) {
    if (!text) return std::nullopt;
    try {
        std::size_t used = 0;
        const long long n = std::stoll(*text, &used);
        if (used == text->size() && n >= low) return n;
    } catch (const std::exception&) {
    }
    return std::nullopt;
}

std::optional<double> Minutes(const std::optional<std::string>& text) {
    if (!text) return std::nullopt;
    try {
        std::size_t used = 0;
        const double m = std::stod(*text, &used);
        if (used == text->size() && m > 0) return m;
    } catch (const std::exception&) {
    }
    return std::nullopt;
}

// Enough puzzles per batch that starting the threads costs nothing to speak of.
int GenerationBatch(int threads) { return 16 * threads; }

std::optional<int> Threads(const std::optional<std::string>& text) {
    return text ? ParseThreads(*text) : std::optional<int>(AllCores());
}

// --start S: where the random numbers of the generator begin, 1 when not given.
constexpr const char* kStartProblem = "--start needs a whole number of at least 0";
std::optional<std::uint64_t> StartValue(const Arguments& a) {
    if (!a.Get("start")) return 1;
    const auto n = Number(a.Get("start"), 0);
    return n ? std::optional<std::uint64_t>(std::uint64_t(*n)) : std::nullopt;
}

// --per-level N (every level) or --counts N1,...,N9 (level by level), one of them.
std::optional<std::array<long, 10>> LevelCounts(const Arguments& a) {
    const auto perLevel = a.Get("per-level"), list = a.Get("counts");
    if (bool(perLevel) == bool(list)) return std::nullopt;
    std::array<long, 10> counts{};
    if (perLevel) {
        const auto n = Number(perLevel, 1);
        if (!n) return std::nullopt;
        counts.fill(long(*n));
        counts[0] = 0;
        return counts;
    }
    std::istringstream in(*list);
    std::string field;
    int level = 0;
    while (std::getline(in, field, ',')) {
        const auto n = Number(field, 0);
        if (!n || ++level > kLevelCount) return std::nullopt;
        counts[level] = long(*n);
    }
    if (level != kLevelCount) return std::nullopt;
    return counts;
}

int Problem(std::ostream& err, const std::string& text) {
    err << "tavi-sudoku-cli: " << text << '\n';
    return kUsageError;
}

}  // namespace

int Generate(long count, std::uint64_t start, std::ostream& out, int threads) {
    RunInOrder<GeneratedPuzzle>(
        count, threads, GenerationBatch(threads), [start] { return NumberedGenerator(start); },
        [&](long, const GeneratedPuzzle& g) {
            out << FormatDigits(g.puzzle) << '\n';
            return true;
        });
    return 0;
}

int BuildLibrary(const BuildOptions& options, std::ostream& out, std::ostream& err) {
    std::error_code ec;
    fs::create_directories(options.out, ec);
    if (!fs::is_directory(options.out, ec))
        return Problem(err, "can't make the folder " + options.out.string());

    LibraryPlan plan;
    plan.wanted = options.counts;
    plan.start = options.start;
    plan.minutes = options.minutes;
    plan.threads = options.threads;
    plan.walks = options.walks;
    for (const fs::path& file : options.from) {
        std::vector<SudokuRecord> records;
        std::string why;
        if (!ReadSudokuFile(file, records, nullptr, &why))
            return Problem(err, why.empty() ? "can't read " + file.string() : why);
        for (const SudokuRecord& r : records)
            plan.from.push_back(r.Puzzle);
    }
    const LibraryPuzzles made = MakeLibraryPuzzles(plan);

    int status = 0;
    const auto rate = [](double count, double seconds) {
        std::ostringstream s;
        s << std::fixed << std::setprecision(1) << (seconds > 0 ? count / seconds : 0.0);
        return s.str();
    };
    for (int level = 1; level <= kLevelCount; ++level) {
        std::string why;
        // Each puzzle file with its log of empty records, so the folder is a
        // library that checks and plays at once.
        const std::string_view stem = LevelStem(level);
        const auto& records = made.levels[level];
        if (!WriteSudokuFile(PuzzleFile(options.out, stem), records, &why)) {
            err << "tavi-sudoku-cli: " << why << '\n';
            status = kUsageError;
        } else if (!MakeEmptyLog(LogFile(options.out, stem), long(records.size()))) {
            err << "tavi-sudoku-cli: can't write " << LogFile(options.out, stem).string() << '\n';
            status = kUsageError;
        }
        // Level, count, where they came from, the seconds until the level was
        // full (or its part of the build ended), and how fast they came.
        const double seconds = made.seconds[level];
        out << LevelName(level) << '\t' << records.size() << '\t'
            << (made.searched[level] ? "search" : "random") << '\t' << std::fixed
            << std::setprecision(1) << seconds << " s\t"
            << (made.searched[level] ? rate(3600.0 * double(records.size()), seconds) + " per hour"
                                     : rate(double(records.size()), seconds) + " per second")
            << '\n';
    }
    out << "generated\t" << made.generated << '\t' << std::fixed << std::setprecision(1)
        << made.randomSeconds << " s\t" << rate(double(made.generated), made.randomSeconds)
        << " per second\n";
    const SearchTally& t = made.search;
    if (t.walks)
        out << "searched\t" << t.walks << " walks\t" << t.seconds << " s\ttried " << t.tried << " ("
            << rate(double(t.tried), t.seconds) << " per second)\tone solution " << t.unique
            << "\tkept " << t.kept << " (" << rate(double(t.kept), t.seconds)
            << " per second)\trerated " << t.rerated << '\n';
    return status;
}

int ExportLibrary(const fs::path& sdsFile, std::ostream& out, std::ostream& err, bool score) {
    if (const std::string problem = InputFileProblem(sdsFile); !problem.empty())
        return Problem(err, problem);
    std::error_code ec;
    const std::uintmax_t length = fs::file_size(sdsFile, ec);
    if (ec) return Problem(err, sdsFile.string() + ": can't be read");
    const std::uintmax_t whole = length / kSudokuRecordSize;
    if (whole > std::uintmax_t(kMaxLibraryRecords))
        return Problem(err, sdsFile.string() + " is no library: its " + std::to_string(length) +
                                " bytes would be more than " + std::to_string(kMaxLibraryRecords) +
                                " records");
    // Record by record: nothing of the file is held beyond the one record.
    std::ifstream in(sdsFile, std::ios::binary);
    SudokuRecordBytes bytes;
    long damaged = 0;
    SolveContext ctx(Side::Workbench);
    for (std::uintmax_t n = 1; n <= whole; ++n) {
        if (!in.read(reinterpret_cast<char*>(bytes.data()), std::streamsize(bytes.size())))
            return Problem(err, sdsFile.string() + ": read error at record " + std::to_string(n));
        const SudokuRecord r = SudokuRecordFromBytes(bytes);
        if (const std::string wrong = CheckSudokuRecord(r); !wrong.empty()) {
            if (++damaged <= long(kNamedLines))
                err << sdsFile.string() << ": " << DamagedRecord(sdsFile, long(n), wrong)
                    << " It was left out.\n";
            continue;
        }
        out << FormatDigits(r.Puzzle, '.') << '\t' << FormatDigits(r.Solution) << '\t'
            << BestTime(r);
        if (score) out << '\t' << FormatScore(RatePuzzleWithScore(ctx, r.Puzzle).score);
        out << '\n';
    }
    if (damaged > long(kNamedLines))
        err << sdsFile.string() << ": and " << damaged - long(kNamedLines)
            << " more damaged records were left out\n";
    const std::uintmax_t trailing = length % kSudokuRecordSize;
    if (trailing)
        err << sdsFile.string() << " is damaged: " << trailing
            << " bytes after the last whole record were left out\n";
    return trailing || damaged ? kExitBadInput : kExitOk;
}

int ImportLibrary(std::istream& in, int level, const fs::path& dir, std::ostream& out,
                  std::ostream& err, std::string_view source) {
    if (!IsLevel(level)) return Problem(err, "the level must be 1 to 9");
    const std::string_view stem = LevelStem(level);
    std::string repaired;
    bool refused = false;
    const long count = OpenPair(dir, stem, &repaired, &refused);
    if (!repaired.empty()) err << repaired << '\n';
    if (refused) return kUsageError;

    // The puzzles the level holds, to refuse them a second time.
    const fs::path sds = PuzzleFile(dir, stem);
    PuzzleIndex known([&](std::uint64_t n) -> std::optional<Digits> {
        SudokuRecordBytes bytes;
        if (!ReadRecordBytes(sds, long(n), bytes)) return std::nullopt;
        return SudokuRecordFromBytes(bytes).Puzzle;
    });
    {
        std::ifstream held(sds, std::ios::binary);
        SudokuRecordBytes bytes;
        for (long n = 1; n <= count; ++n) {
            if (!held.read(reinterpret_cast<char*>(bytes.data()), std::streamsize(bytes.size())))
                break;
            known.Add(SudokuRecordFromBytes(bytes).Puzzle, std::uint64_t(n));
        }
    }

    long added = 0, first = 0;
    int skipped = 0;
    bool failed = false;
    const int bad = ForEachPuzzle(
        in, err,
        [&](const PuzzleLine& p) {
            if (failed) return;
            const SolutionCount solutions = Solutions(p.digits, 2);
            const bool repeat = solutions.count == 1 && known.Contains(p.digits);
            if (solutions.count != 1 || repeat) {
                if (++skipped <= int(kNamedLines))
                    err << Where(source, p.lineNumber)
                        << (repeat                 ? "already in the level"
                            : solutions.count == 0 ? "no solution"
                                                   : "more than one solution")
                        << ", skipped\n";
                return;
            }
            const SudokuRecord record{p.digits, solutions.first, 0, 0};
            long number = 0;
            std::string why;
            if (!AppendToPair(dir, stem, record, SudokuLogRecord{}, &number, &why)) {
                err << "tavi-sudoku-cli: " << why << '\n';
                failed = true;
                return;
            }
            known.Add(p.digits, std::uint64_t(number));
            if (!added++) first = number;
        },
        source);
    if (skipped > int(kNamedLines))
        err << source << ": and " << skipped - int(kNamedLines) << " more puzzles skipped\n";
    if (added)
        out << "added " << added << " puzzles to " << PuzzleFileName(stem) << " as records "
            << first << " to " << first + added - 1 << '\n';
    else
        out << "added no puzzles to " << PuzzleFileName(stem) << '\n';
    if (failed || bad) return kUsageError;
    return skipped ? kExitSomeInvalid : kExitOk;
}

int GenerateCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
    const Arguments a = Parse(args, 1, {"count", "start", "threads"});
    if (!a.problem.empty()) return Problem(err, a.problem);
    if (!a.positional.empty()) return Problem(err, "generate takes no file");
    const auto count = Number(a.Get("count"), 0);
    const auto start = StartValue(a);
    if (!count) return Problem(err, "generate needs --count N, N at least 0");
    if (!start) return Problem(err, kStartProblem);
    const auto threads = Threads(a.Get("threads"));
    if (!threads) return Problem(err, kThreadsProblem);
    return Generate(long(*count), *start, out, *threads);
}

int LibraryCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
    const std::string action = args.size() > 1 ? args[1] : "";
    if (action == "build") {
        const Arguments a =
            Parse(args, 2,
                  {"out", "per-level", "counts", "start", "minutes", "threads", "walks", "from"});
        if (!a.problem.empty()) return Problem(err, a.problem);
        BuildOptions options;
        const auto counts = LevelCounts(a);
        const auto start = StartValue(a);
        const auto minutes = a.Get("minutes") ? Minutes(a.Get("minutes")) : options.minutes;
        const auto walks = a.Get("walks") ? Number(a.Get("walks"), 0) : -1;
        if (!a.Get("out") || !counts || !a.positional.empty())
            return Problem(err,
                           "library build needs --out DIR and --per-level N or --counts N1,...,N9");
        if (!start) return Problem(err, kStartProblem);
        if (!minutes) return Problem(err, "--minutes needs a number above 0");
        if (!walks) return Problem(err, "--walks needs a whole number of at least 0");
        const auto threads = Threads(a.Get("threads"));
        if (!threads) return Problem(err, kThreadsProblem);
        options.threads = *threads;
        options.out = *a.Get("out");
        options.counts = *counts;
        options.start = *start;
        options.minutes = *minutes;
        options.walks = long(*walks);
        for (const auto& [name, value] : a.named)
            if (name == "from") options.from.emplace_back(value);
        return BuildLibrary(options, out, err);
    }
    if (action == "export") {
        std::vector<std::string> rest(args);
        const auto flag = std::find(rest.begin() + 2, rest.end(), "--score");
        const bool score = flag != rest.end();
        if (score) rest.erase(flag);
        const Arguments a = Parse(rest, 2, {});
        if (!a.problem.empty()) return Problem(err, a.problem);
        if (a.positional.size() != 1) return Problem(err, "library export needs one FILE.sds");
        return ExportLibrary(a.positional[0], out, err, score);
    }
    if (action == "check") {
        const Arguments a = Parse(args, 2, {"level", "threads"});
        if (!a.problem.empty()) return Problem(err, a.problem);
        const auto level = Number(a.Get("level"), 1);
        if (a.positional.size() != 1 || (a.Get("level") && (!level || *level > kLevelCount)))
            return Problem(err, "library check needs DIR, and --level L with L from 1 to 9");
        const auto threads = Threads(a.Get("threads"));
        if (!threads) return Problem(err, kThreadsProblem);
        return LibraryCheckCommand(a.positional[0], a.Get("level") ? int(*level) : 0, out, err,
                                   *threads);
    }
    if (action == "import") {
        const Arguments a = Parse(args, 2, {"level", "dir", "threads"});
        if (!a.problem.empty()) return Problem(err, a.problem);
        if (a.positional.size() != 1 || !a.Get("dir"))
            return Problem(err, "library import needs TEXTFILE and --dir DIR");
        const auto threads = Threads(a.Get("threads"));
        if (!threads) return Problem(err, kThreadsProblem);
        // Without a level the workbench's reader files each puzzle by its own level.
        if (!a.Get("level"))
            return LibraryImportCommand(a.positional[0], *a.Get("dir"), out, err, *threads);
        const auto level = Number(a.Get("level"), 1);
        if (!level || *level > kLevelCount)
            return Problem(err, "library import needs --level 1..9");
        if (const std::string problem = InputFileProblem(a.positional[0]); !problem.empty())
            return Problem(err, problem);
        std::ifstream in(a.positional[0], std::ios::binary);
        return ImportLibrary(in, int(*level), *a.Get("dir"), out, err, a.positional[0]);
    }
    return Problem(err, "library needs build, check, export or import");
}

}  // namespace tavi::cli
