// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/library_build.h"

#include <algorithm>
#include <chrono>
#include <set>

#include "cli/in_order.h"
#include "grid/levels.h"
#include "solver/canonical_form.h"
#include "solver/difficulty_score.h"
#include "solver/generator.h"
#include "solver/hard_search.h"
#include "solver/solutions.h"

namespace tavi::cli {

namespace {

using Clock = std::chrono::steady_clock;

// Random minimal puzzles reach Extreme now and then, Mayhem and Outlaw never: the
// levels from here on are the search's.
constexpr int kFirstSearchedLevel = 8;
// The hardest puzzles kept, random ones at first, for the search to start from.
constexpr std::size_t kStartPoolSize = 48;
// The walks start from this many of the hardest puzzles met.
constexpr std::size_t kWalkStarts = 16;
// A search from given puzzles climbs in this many lines of descent, each from its
// own share of them and the hardest it met itself, so that the walks do not all
// crowd into the neighbourhood of the one hardest puzzle.
constexpr int kLinesFromGiven = 8;
// Walks per batch, the same for any number of threads: the start puzzles of a
// batch are chosen from what the batches before it found.
constexpr int kWalksPerBatch = 8;
// One walk's finds per level, so that a level is not filled with near neighbours.
constexpr int kFindsPerWalk = 4;

struct RatedPuzzle {
    GeneratedPuzzle puzzle;
    LadderRating rating;
};

// Makes and rates puzzle i of a start value on any thread.
class RandomWorker {
  public:
    explicit RandomWorker(std::uint64_t start) : generator_(start) {}
    RatedPuzzle operator()(long i) {
        RatedPuzzle r{generator_(i), {}};
        r.rating = RateOnLadder(ctx_, r.puzzle.puzzle);
        return r;
    }

  private:
    NumberedGenerator generator_;
    SolveContext ctx_{Side::Workbench};
};

// Walk k of the search: from one of the hardest puzzles met, with random numbers
// of its own. The pool changes only between batches, while no walk runs.
class SearchWorker {
  public:
    SearchWorker(const LibraryPlan& plan, int wantedLevel,
                 const std::vector<std::vector<Digits>>& pools)
        : plan_(plan), search_(wantedLevel, kFindsPerWalk), pools_(pools) {}
    WalkReport operator()(long k) {
        const std::size_t lines = pools_.size();
        const std::vector<Digits>& pool = pools_[std::size_t(k) % lines];
        return search_.Walk(pool[std::size_t(k) / lines % std::min(pool.size(), kWalkStarts)],
                            plan_.start * 0x100000001b3ULL + std::uint64_t(k),
                            plan_.ratingsPerWalk);
    }

  private:
    const LibraryPlan& plan_;
    HardPuzzleSearch search_;
    const std::vector<std::vector<Digits>>& pools_;
};

// A puzzle of the library with what orders it.
struct Entry {
    SudokuRecord record;
    LadderRating rating;
};

class Collection {
  public:
    explicit Collection(const LibraryPlan& plan) : plan_(plan) {}

    bool Wants(int level) const {
        return IsLevel(level) && long(levels_[level].size()) < plan_.wanted[level];
    }
    // Levels from `first` on that still want puzzles.
    bool Short(int first, int last = kLevelCount) const {
        for (int level = first; level <= last; ++level)
            if (Wants(level)) return true;
        return false;
    }
    // Adds the puzzle to its level unless the level is full or the puzzle, in
    // whatever clothes, is there already. True when added.
    bool Add(const Digits& puzzle, const Digits& solution, const LadderRating& rating) {
        if (!Wants(rating.level) || !forms_.insert(CanonicalForm(puzzle)).second) return false;
        levels_[rating.level].push_back({{puzzle, solution, 0, 0}, rating});
        return true;
    }
    std::size_t Count(int level) const { return levels_[level].size(); }
    // A puzzle the library already holds elsewhere: never added again.
    void Exclude(const Digits& puzzle) { forms_.insert(CanonicalForm(puzzle)); }

    std::vector<SudokuRecord> InOrder(int level) {
        std::vector<SudokuRecord> records;
        for (const Entry& e : levels_[level])
            records.push_back(e.record);
        OrderByScore(records);
        return records;
    }

  private:
    const LibraryPlan& plan_;
    std::array<std::vector<Entry>, 10> levels_;
    std::set<Digits> forms_;
};

// The hardest puzzles seen, hardest first; among equals the first seen.
class Hardest {
  public:
    explicit Hardest(bool towardOutlaw = false) : towardOutlaw_(towardOutlaw) {}
    void Offer(const Digits& puzzle, const LadderRating& rating) {
        for (const auto& entry : list_)
            if (entry.second == puzzle) return;
        const auto hardness = rating.Hardness(towardOutlaw_);
        const auto at =
            std::upper_bound(list_.begin(), list_.end(), hardness,
                             [](const auto& h, const auto& entry) { return h > entry.first; });
        if (std::size_t(at - list_.begin()) >= kStartPoolSize) return;
        list_.insert(at, {hardness, puzzle});
        if (list_.size() > kStartPoolSize) list_.pop_back();
    }
    bool Full(int level) const {
        return list_.size() == kStartPoolSize && std::get<0>(list_.back().first) >= level;
    }
    std::vector<Digits> Puzzles() const {
        std::vector<Digits> out;
        for (const auto& entry : list_)
            out.push_back(entry.second);
        return out;
    }

  private:
    bool towardOutlaw_;
    std::vector<std::pair<decltype(LadderRating{}.Hardness()), Digits>> list_;
};

}  // namespace

LibraryPuzzles MakeLibraryPuzzles(const LibraryPlan& plan) {
    LibraryPuzzles made;
    Collection library(plan);
    const auto start = Clock::now();
    const auto limit = std::chrono::duration<double>(plan.minutes * 60);
    const auto elapsed = [&] {
        return std::chrono::duration<double>(Clock::now() - start).count();
    };
    const auto timeLeft = [&] { return Clock::now() - start < limit; };
    // Random levels count from the start, the search's from the start of the search.
    std::array<double, 10> begun{};
    const auto noteFull = [&](int level) {
        if (!library.Wants(level)) made.seconds[level] = elapsed() - begun[level];
    };

    // Random puzzles, taken in the order of the generator, until every level they
    // reach is full and, when the search is to follow, it has enough Extreme
    // puzzles to start from. A build from given puzzles makes none.
    Hardest hardest;
    const bool fromGiven = !plan.from.empty();
    const int randomBatch = 16 * std::max(1, plan.threads);
    if (!fromGiven)
        made.generated = RunInOrder<RatedPuzzle>(
            -1, plan.threads, randomBatch, [&] { return RandomWorker(plan.start); },
            [&](long, const RatedPuzzle& r) {
                hardest.Offer(r.puzzle.puzzle, r.rating);
                if (library.Add(r.puzzle.puzzle, r.puzzle.solution, r.rating))
                    noteFull(r.rating.level);
                // The search wants Extreme puzzles to start from.
                const bool startsWanted = plan.walks != 0 && library.Short(kFirstSearchedLevel) &&
                                          !hardest.Full(kFirstSearchedLevel - 1);
                return (library.Short(1, kFirstSearchedLevel - 1) || startsWanted) && timeLeft();
            });
    made.randomSeconds = elapsed();
    for (int level = 1; level < kFirstSearchedLevel; ++level)
        if (library.Wants(level)) made.seconds[level] = made.randomSeconds;

    int wantedLevel = kFirstSearchedLevel;
    while (wantedLevel <= kLevelCount && !library.Wants(wantedLevel))
        ++wantedLevel;
    const bool towardOutlaw = wantedLevel >= kOutlaw;
    SolveContext rerate(Side::Workbench);
    // Rated from scratch, with the trials of Bifurcation when the search climbs
    // toward Outlaw.
    const auto rate = [&](const Digits& puzzle, const Digits& solution) {
        return RateOnLadder(rerate, puzzle, towardOutlaw ? &solution : nullptr);
    };

    // The lines of descent: one from the hardest random puzzles, or several that
    // share out the given puzzles, hardest first, in turn.
    std::vector<Hardest> lines;
    if (fromGiven) {
        std::vector<std::pair<LadderRating, Digits>> given;
        for (const Digits& puzzle : plan.from) {
            library.Exclude(puzzle);
            const SolutionCount solutions = Solutions(puzzle, 2);
            if (solutions.count == 1) given.emplace_back(rate(puzzle, solutions.first), puzzle);
        }
        std::stable_sort(given.begin(), given.end(), [&](const auto& a, const auto& b) {
            return a.first.Hardness(towardOutlaw) > b.first.Hardness(towardOutlaw);
        });
        lines.assign(std::min<std::size_t>(kLinesFromGiven, given.size()), Hardest(towardOutlaw));
        for (std::size_t i = 0; i < given.size(); ++i)
            lines[i % lines.size()].Offer(given[i].second, given[i].first);
    } else if (!hardest.Puzzles().empty()) {
        lines.push_back(hardest);
    }
    std::vector<std::vector<Digits>> pools;
    for (const Hardest& line : lines)
        pools.push_back(line.Puzzles());

    // The search, for the levels still short, from the start puzzles and then from
    // the hardest each line met itself.
    if (wantedLevel <= kLevelCount && timeLeft() && plan.walks != 0 && !pools.empty()) {
        const double searchStart = elapsed();
        for (int level = wantedLevel; level <= kLevelCount; ++level) {
            made.searched[level] = library.Wants(level);
            begun[level] = searchStart;
        }
        const long walks = RunInOrder<WalkReport>(
            plan.walks, plan.threads, kWalksPerBatch,
            [&] { return SearchWorker(plan, wantedLevel, pools); },
            [&](long k, const WalkReport& walk) {
                SearchTally& t = made.search;
                t.tried += walk.tried;
                t.unique += walk.unique;
                t.kept += walk.kept;
                const std::size_t line = std::size_t(k) % pools.size();
                for (const SearchFind& find : walk.finds) {
                    // The walk's rating is taken again from scratch on the plain
                    // ladder; the puzzle goes where that one puts it.
                    const LadderRating fresh = rate(find.puzzle, find.solution);
                    if (fresh.level != find.rating.level) ++t.rerated;
                    if (library.Add(find.puzzle, find.solution, fresh)) noteFull(fresh.level);
                    lines[line].Offer(find.puzzle, fresh);
                }
                // The line's next walk starts from the hardest puzzles it met so
                // far, so that it goes on from where its best walks got to.
                lines[line].Offer(walk.last.puzzle, walk.last.rating);
                pools[line] = lines[line].Puzzles();
                return library.Short(wantedLevel) && timeLeft();
            });
        made.search.walks = walks;
        made.search.seconds = elapsed() - searchStart;
        for (int level = wantedLevel; level <= kLevelCount; ++level)
            if (library.Wants(level)) made.seconds[level] = made.search.seconds;
    }

    for (int level = 1; level <= kLevelCount; ++level)
        made.levels[level] = library.InOrder(level);
    return made;
}

void OrderByScore(std::vector<SudokuRecord>& records) {
    SolveContext ctx(Side::Workbench);
    std::vector<std::pair<double, SudokuRecord>> keyed;
    keyed.reserve(records.size());
    for (const SudokuRecord& r : records)
        keyed.emplace_back(RatePuzzleWithScore(ctx, r.Puzzle).score, r);
    // The puzzle itself breaks ties, so the order hangs on nothing but the set.
    std::sort(keyed.begin(), keyed.end(), [](const auto& a, const auto& b) {
        return std::tie(a.first, a.second.Puzzle) < std::tie(b.first, b.second.Puzzle);
    });
    for (std::size_t i = 0; i < keyed.size(); ++i)
        records[i] = keyed[i].second;
}

}  // namespace tavi::cli
