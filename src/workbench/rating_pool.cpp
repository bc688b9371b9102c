// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/rating_pool.h"

#include "grid/candidates.h"
#include "grid/levels.h"
#include "solver/ladder.h"
#include "solver/solutions.h"

namespace tavi {

namespace {

RatedPuzzle Rate(SolveContext& ctx, const Digits& puzzle, const TechniqueOrder* order, bool rate,
                 const std::function<void(const Rung&)>& before) {
    RatedPuzzle r;
    const SolutionCount solutions = Solutions(puzzle, 2);
    r.solutions = solutions.count;
    if (solutions.count != 1) return r;
    r.solution = solutions.first;
    if (!rate) return r;
    ctx.board = BoardFromPuzzle(puzzle);
    ctx.SolvingLevel = 0;
    WorkbenchRun run;
    run.CheckRunning = true;  // the progress texts of a check
    run.order = order;
    run.observer.before = before;
    run.observer.hit = [&](const Rung& rung) {
        if (!r.hardest || rung.level > r.hardest->level ||
            (rung.level == r.hardest->level && RungIndex(rung) > RungIndex(*r.hardest)))
            r.hardest = &rung;
    };
    r.rated = true;
    r.solved = SolveSudoku(ctx, run).solved;
    r.level = r.solved ? ctx.SolvingLevel : kOutlaw;
    if (r.solved)
        r.solution = ctx.board.CurrentGrid;
    else
        r.hardest = nullptr;
    return r;
}

}  // namespace

RatedPuzzle RatePuzzle(SolveContext& ctx, const Digits& puzzle, const TechniqueOrder* order,
                       bool rate) {
    return Rate(ctx, puzzle, order, rate, {});
}

int AllCoresCount() { return std::max(1, int(std::thread::hardware_concurrency())); }

RatingPool::RatingPool(int threads, const TechniqueOrder* order) : order_(order) {
    threads = std::max(1, threads);
    for (int t = 0; t < threads; ++t)
        workers_.push_back(std::make_unique<Worker>());
    for (auto& w : workers_)
        w->thread = std::thread([this, worker = w.get()] { Work(*worker); });
}

RatingPool::~RatingPool() {
    {
        std::lock_guard lock(mutex_);
        stopping_ = true;
        jobs_.clear();
    }
    jobReady_.notify_all();
    for (auto& w : workers_)
        w->thread.join();
}

void RatingPool::Work(Worker& worker) {
    SolveContext ctx(Side::Workbench);
    const auto before = [&](const Rung& rung) {
        worker.rung.store(&rung, std::memory_order_relaxed);
        worker.level.store(ctx.SolvingLevel, std::memory_order_relaxed);
    };
    for (;;) {
        Job job;
        {
            std::unique_lock lock(mutex_);
            jobReady_.wait(lock, [&] { return stopping_ || !jobs_.empty(); });
            if (stopping_) return;
            job = jobs_.front();
            jobs_.pop_front();
            ++busy_;
        }
        worker.rung.store(nullptr, std::memory_order_relaxed);
        worker.level.store(0, std::memory_order_relaxed);
        worker.ticket.store(job.ticket, std::memory_order_relaxed);
        RatedPuzzle r = Rate(ctx, job.puzzle, order_, job.rate, before);
        worker.ticket.store(-1, std::memory_order_relaxed);
        {
            std::lock_guard lock(mutex_);
            --busy_;
            if (!stopping_) results_.emplace(job.ticket, r);
        }
        resultReady_.notify_all();
    }
}

void RatingPool::Submit(const Digits& puzzle, bool rate) {
    {
        std::lock_guard lock(mutex_);
        jobs_.push_back({submitted_++, puzzle, rate});
    }
    jobReady_.notify_one();
}

std::optional<RatedPuzzle> RatingPool::Next(std::chrono::milliseconds wait) {
    std::unique_lock lock(mutex_);
    if (!resultReady_.wait_for(lock, wait, [&] { return results_.contains(taken_); }))
        return std::nullopt;
    const auto at = results_.find(taken_);
    RatedPuzzle r = at->second;
    results_.erase(at);
    ++taken_;
    return r;
}

void RatingPool::Cancel() {
    std::lock_guard lock(mutex_);
    stopping_ = true;
    jobs_.clear();
    jobReady_.notify_all();
}

bool RatingPool::WaitIdle(std::chrono::milliseconds wait) {
    std::unique_lock lock(mutex_);
    return resultReady_.wait_for(lock, wait, [&] { return busy_ == 0; });
}

std::string RatingPool::Progress(bool importing, int* level) const {
    long oldest;
    {
        std::lock_guard lock(mutex_);
        oldest = taken_;
    }
    for (const auto& w : workers_) {
        if (w->ticket.load(std::memory_order_relaxed) != oldest) continue;
        const Rung* rung = w->rung.load(std::memory_order_relaxed);
        const int reached = w->level.load(std::memory_order_relaxed);
        if (level) *level = reached;
        if (!rung) return {};
        std::string base;
        if (reached >= 1)
            base = std::string(importing ? "Solving Imported Sudoku : Rated "
                                         : "Solving Sudoku : Rated ") +
                   std::string(LevelName(reached)) + " or higher";
        return base + std::string(rung->label);
    }
    return {};
}

}  // namespace tavi
