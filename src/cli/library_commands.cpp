#include "cli/library_commands.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <fstream>
#include <iomanip>
#include <optional>
#include <sstream>

#include "cli/in_order.h"
#include "cli/puzzle_lines.h"
#include "grid/candidates.h"
#include "grid/levels.h"
#include "library/library_files.h"
#include "library/library_pair.h"
#include "library/library_setup.h"
#include "library/pair_guard.h"
#include "solver/difficulty_score.h"
#include "solver/generator.h"
#include "solver/ladder.h"
#include "solver/solutions.h"

namespace tavi::cli {

namespace fs = std::filesystem;

namespace {

constexpr int kUsageError = kExitBadInput;

// The level the workbench gives a puzzle: the ladder's, Outlaw when it fails.
int RateForLibrary(SolveContext& ctx, const Digits& puzzle) {
    ctx.board = BoardFromPuzzle(puzzle);
    ctx.SolvingLevel = 0;
    return SolveSudoku(ctx, WorkbenchRun{}) ? ctx.SolvingLevel : kOutlaw;
}

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

// Makes puzzle i of a start value on any thread: the generator jumps over the
// puzzles that other threads make.
class NumberedGenerator {
  public:
    explicit NumberedGenerator(std::uint64_t start) : generator_(start) {}
    GeneratedPuzzle operator()(long i) {
        generator_.Skip(std::uint64_t(i - next_));
        next_ = i + 1;
        return generator_.Next();
    }

  private:
    PuzzleGenerator generator_;
    long next_ = 0;
};

// A generated puzzle with the level the library gives it.
struct RatedPuzzle {
    GeneratedPuzzle puzzle;
    int level = 0;
};

class RatingGenerator {
  public:
    explicit RatingGenerator(std::uint64_t start) : generator_(start) {}
    RatedPuzzle operator()(long i) {
        RatedPuzzle r{generator_(i), 0};
        r.level = RateForLibrary(ctx_, r.puzzle.puzzle);
        return r;
    }

  private:
    NumberedGenerator generator_;
    SolveContext ctx_{Side::Workbench};
};

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

    std::array<std::vector<SudokuRecord>, 10> levels;
    const auto start = std::chrono::steady_clock::now();
    const auto limit = std::chrono::duration<double>(options.minutes * 60);
    int full = 0;
    // The puzzles are taken in the order of the generator, so the library is the
    // same for any number of threads; only the time limit can cut it short.
    const long made = RunInOrder<RatedPuzzle>(
        -1, options.threads, GenerationBatch(options.threads),
        [&] { return RatingGenerator(options.start); },
        [&](long, const RatedPuzzle& r) {
            auto& level = levels[r.level];
            if (long(level.size()) < options.perLevel) {
                level.push_back({r.puzzle.puzzle, r.puzzle.solution, 0, 0});
                if (long(level.size()) == options.perLevel) ++full;
            }
            return full < kLevelCount && std::chrono::steady_clock::now() - start < limit;
        });

    int status = 0;
    for (int level = 1; level <= kLevelCount; ++level) {
        std::string why;
        if (!WriteSudokuFile(PuzzleFile(options.out, LevelStem(level)), levels[level], &why)) {
            err << "tavi-sudoku-cli: " << why << '\n';
            status = kUsageError;
        }
        out << LevelName(level) << '\t' << levels[level].size() << '\n';
    }
    out << "generated\t" << made << '\n';
    return status;
}

int ExportLibrary(const fs::path& sdsFile, std::ostream& out, std::ostream& err, bool score) {
    if (const std::string problem = InputFileProblem(sdsFile); !problem.empty())
        return Problem(err, problem);
    std::vector<SudokuRecord> records;
    std::vector<std::string> damaged;
    std::size_t trailing = 0;
    std::string why;
    if (!ReadSudokuFile(sdsFile, records, &trailing, &why, &damaged)) return Problem(err, why);
    SolveContext ctx(Side::Workbench);
    for (const SudokuRecord& r : records) {
        out << FormatDigits(r.Puzzle) << '\t' << FormatDigits(r.Solution) << '\t' << BestTime(r);
        if (score) out << '\t' << FormatScore(RatePuzzleWithScore(ctx, r.Puzzle).score);
        out << '\n';
    }
    for (const std::string& each : damaged)
        err << sdsFile.string() << ": " << each << " It was left out.\n";
    if (trailing)
        err << sdsFile.string() << " is damaged: " << trailing
            << " bytes after the last whole record were left out\n";
    return trailing || !damaged.empty() ? kExitBadInput : kExitOk;
}

int ImportLibrary(std::istream& in, int level, const fs::path& dir, std::ostream& out,
                  std::ostream& err, std::string_view source) {
    if (!IsLevel(level)) return Problem(err, "the level must be 1 to 9");
    const std::string_view stem = LevelStem(level);
    std::string made;
    if (!EnsureLogFile(dir, stem, &made))
        return Problem(err, "can't make " + LogFile(dir, stem).string());
    if (!made.empty()) err << made << '\n';

    std::string repaired;
    if (OpenPair(dir, stem, &repaired) >= 0 && !repaired.empty()) err << repaired << '\n';

    long added = 0, first = 0;
    int skipped = 0;
    bool failed = false;
    const int bad = ForEachPuzzle(
        in, err,
        [&](const PuzzleLine& p) {
            if (failed) return;
            const SolutionCount solutions = Solutions(p.digits, 2);
            if (solutions.count != 1) {
                err << Where(source, p.lineNumber)
                    << (solutions.count == 0 ? "no solution" : "more than one solution")
                    << ", skipped\n";
                ++skipped;
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
            if (!added++) first = number;
        },
        source);
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
        const Arguments a = Parse(args, 2, {"out", "per-level", "start", "minutes", "threads"});
        if (!a.problem.empty()) return Problem(err, a.problem);
        BuildOptions options;
        const auto perLevel = Number(a.Get("per-level"), 1);
        const auto start = StartValue(a);
        const auto minutes = a.Get("minutes") ? Minutes(a.Get("minutes")) : options.minutes;
        if (!a.Get("out") || !perLevel || !a.positional.empty())
            return Problem(err, "library build needs --out DIR and --per-level N");
        if (!start) return Problem(err, kStartProblem);
        if (!minutes) return Problem(err, "--minutes needs a number above 0");
        const auto threads = Threads(a.Get("threads"));
        if (!threads) return Problem(err, kThreadsProblem);
        options.threads = *threads;
        options.out = *a.Get("out");
        options.perLevel = long(*perLevel);
        options.start = *start;
        options.minutes = *minutes;
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
    if (action == "import") {
        const Arguments a = Parse(args, 2, {"level", "dir"});
        if (!a.problem.empty()) return Problem(err, a.problem);
        const auto level = Number(a.Get("level"), 1);
        if (a.positional.size() != 1 || !level || *level > kLevelCount || !a.Get("dir"))
            return Problem(err, "library import needs TEXTFILE, --level 1..9 and --dir DIR");
        if (const std::string problem = InputFileProblem(a.positional[0]); !problem.empty())
            return Problem(err, problem);
        std::ifstream in(a.positional[0], std::ios::binary);
        return ImportLibrary(in, int(*level), *a.Get("dir"), out, err, a.positional[0]);
    }
    return Problem(err, "library needs build, export or import");
}

}  // namespace tavi::cli
