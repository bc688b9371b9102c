// SPDX-License-Identifier: GPL-3.0-or-later
// Puzzles rated on worker threads, each with a solver context of its own, and the
// results handed back in the order the puzzles were handed in: a run on many
// cores reads, writes, moves and reports exactly as a run on one. Files are never
// touched here; the caller's thread does all of that.
//
// The solver's per-call caches are per thread, so one board per thread is safe.
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "grid/board.h"
#include "settings/technique_order.h"

namespace tavi {

struct Rung;
struct SolveContext;

// What the workbench learns of a puzzle before it files it.
struct RatedPuzzle {
    int solutions = 0;   // 0, 1, or 2 for two or more
    bool rated = false;  // the ladder ran (only on a puzzle with one solution)
    bool solved = false;
    int level = 0;                  // SolvingLevel when solved, else Outlaw; 0 when not rated
    Digits solution{};              // the board's when solved, else the one solution, if any
    const Rung* hardest = nullptr;  // the hardest rung a solved puzzle needed
};

// Counts the solutions of `puzzle` and, when it has exactly one and `rate` is
// set, rates it with the workbench's ladder on `ctx`.
RatedPuzzle RatePuzzle(SolveContext& ctx, const Digits& puzzle, const TechniqueOrder* order,
                       bool rate = true);

// Every core the machine reports, at least one.
int AllCoresCount();

class RatingPool {
  public:
    RatingPool(int threads, const TechniqueOrder* order);
    // Starts no new puzzle, lets the ones in hand finish and drops them.
    ~RatingPool();
    RatingPool(const RatingPool&) = delete;
    RatingPool& operator=(const RatingPool&) = delete;

    int Threads() const { return int(workers_.size()); }
    // Hands in a puzzle; the results come back in the order of handing in.
    void Submit(const Digits& puzzle, bool rate = true);
    // The result of the oldest puzzle not yet taken, waiting for it at most `wait`.
    std::optional<RatedPuzzle> Next(std::chrono::milliseconds wait);
    // Puzzles handed in and not yet taken back.
    long InHand() const { return submitted_ - taken_; }
    // No new puzzle is started; the ones in hand finish and are dropped.
    void Cancel();
    // True once no worker is busy, waiting at most `wait`.
    bool WaitIdle(std::chrono::milliseconds wait);
    // The ladder's label on the oldest puzzle not yet taken, as the workbench shows
    // it ("Solving Sudoku : Rated Easy or higher - Scanning for ..."), and the
    // level it has reached; empty when no worker is on it.
    std::string Progress(bool importing, int* level = nullptr) const;

  private:
    struct Job {
        long ticket;
        Digits puzzle;
        bool rate;
    };
    struct Worker {
        std::atomic<long> ticket{-1};
        std::atomic<const Rung*> rung{nullptr};
        std::atomic<int> level{0};
        std::thread thread;
    };
    void Work(Worker& worker);

    const TechniqueOrder* order_;
    mutable std::mutex mutex_;
    std::condition_variable jobReady_, resultReady_;
    std::deque<Job> jobs_;
    std::map<long, RatedPuzzle> results_;
    long submitted_ = 0, taken_ = 0;
    int busy_ = 0;
    bool stopping_ = false;
    std::vector<std::unique_ptr<Worker>> workers_;
};

}  // namespace tavi
