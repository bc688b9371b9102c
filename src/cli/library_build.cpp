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
    SearchWorker(const LibraryPlan& plan, int wantedLevel, const std::vector<Digits>& pool)
        : plan_(plan), search_(wantedLevel, kFindsPerWalk), pool_(pool) {}
    WalkReport operator()(long k) {
        return search_.Walk(pool_[std::size_t(k) % std::min(pool_.size(), kWalkStarts)],
                            plan_.start * 0x100000001b3ULL + std::uint64_t(k),
                            plan_.ratingsPerWalk);
    }

  private:
    const LibraryPlan& plan_;
    HardPuzzleSearch search_;
    const std::vector<Digits>& pool_;
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
    void Offer(const Digits& puzzle, const LadderRating& rating) {
        for (const auto& entry : list_)
            if (entry.second == puzzle) return;
        const auto at = std::upper_bound(
            list_.begin(), list_.end(), rating.Hardness(),
            [](const auto& hardness, const auto& entry) { return hardness > entry.first; });
        if (std::size_t(at - list_.begin()) >= kStartPoolSize) return;
        list_.insert(at, {rating.Hardness(), puzzle});
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
    // puzzles to start from.
    Hardest hardest;
    const int randomBatch = 16 * std::max(1, plan.threads);
    made.generated = RunInOrder<RatedPuzzle>(
        -1, plan.threads, randomBatch, [&] { return RandomWorker(plan.start); },
        [&](long, const RatedPuzzle& r) {
            hardest.Offer(r.puzzle.puzzle, r.rating);
            if (library.Add(r.puzzle.puzzle, r.puzzle.solution, r.rating)) noteFull(r.rating.level);
            // The search wants Extreme puzzles to start from.
            const bool startsWanted = plan.walks != 0 && library.Short(kFirstSearchedLevel) &&
                                      !hardest.Full(kFirstSearchedLevel - 1);
            return (library.Short(1, kFirstSearchedLevel - 1) || startsWanted) && timeLeft();
        });
    made.randomSeconds = elapsed();
    for (int level = 1; level < kFirstSearchedLevel; ++level)
        if (library.Wants(level)) made.seconds[level] = made.randomSeconds;

    // The search, for the levels still short, from the hardest random puzzles and
    // then from the hardest it met itself.
    const std::vector<Digits> starts = hardest.Puzzles();
    int wantedLevel = kFirstSearchedLevel;
    while (wantedLevel <= kLevelCount && !library.Wants(wantedLevel))
        ++wantedLevel;
    if (wantedLevel <= kLevelCount && timeLeft() && plan.walks != 0 && !starts.empty()) {
        const double searchStart = elapsed();
        for (int level = wantedLevel; level <= kLevelCount; ++level) {
            made.searched[level] = library.Wants(level);
            begun[level] = searchStart;
        }
        std::vector<Digits> pool = starts;
        SolveContext rerate(Side::Workbench);
        const long walks = RunInOrder<WalkReport>(
            plan.walks, plan.threads, kWalksPerBatch,
            [&] { return SearchWorker(plan, wantedLevel, pool); },
            [&](long, const WalkReport& walk) {
                SearchTally& t = made.search;
                t.tried += walk.tried;
                t.unique += walk.unique;
                t.kept += walk.kept;
                for (const SearchFind& find : walk.finds) {
                    // The walk's rating is taken again from scratch on the plain
                    // ladder; the puzzle goes where that one puts it.
                    const LadderRating fresh = RateOnLadder(rerate, find.puzzle);
                    if (fresh.level != find.rating.level) ++t.rerated;
                    if (library.Add(find.puzzle, find.solution, fresh)) noteFull(fresh.level);
                    hardest.Offer(find.puzzle, fresh);
                }
                // The next batch starts from the hardest puzzles met so far, so
                // that each walk goes on from where the best walks got to.
                hardest.Offer(walk.last.puzzle, walk.last.rating);
                pool = hardest.Puzzles();
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
