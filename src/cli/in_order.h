// SPDX-License-Identifier: GPL-3.0-or-later
// Work shared out over threads, results taken in order: the commands that make or
// solve many puzzles give the same output whatever the number of threads.
#pragma once

#include <algorithm>
#include <atomic>
#include <functional>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace tavi::cli {

// Every core the machine reports, at least one.
inline int AllCores() { return std::max(1, int(std::thread::hardware_concurrency())); }

// The value of a --threads option: a whole number from 1 to 1024.
inline std::optional<int> ParseThreads(const std::string& text) {
    try {
        std::size_t used = 0;
        const long long n = std::stoll(text, &used);
        if (used == text.size() && n >= 1 && n <= 1024) return int(n);
    } catch (const std::exception&) {
    }
    return std::nullopt;
}
inline constexpr const char* kThreadsProblem = "--threads needs a whole number from 1 to 1024";

// Calls `each(k, worker)` for k = 0 .. size-1, the k shared out over the workers
// (one thread each); every worker takes its k in rising order.
template <typename Worker, typename Each>
void ForEachInParallel(long size, std::vector<Worker>& workers, Each each) {
    std::atomic<long> next{0};
    const auto run = [&](Worker& worker) {
        for (long k; (k = next.fetch_add(1)) < size;)
            each(k, worker);
    };
    std::vector<std::thread> helpers;
    for (std::size_t t = 1; t < workers.size() && long(t) < size; ++t)
        helpers.emplace_back(run, std::ref(workers[t]));
    run(workers[0]);
    for (auto& h : helpers)
        h.join();
}

// Runs the items `first`, `first` + 1, ... in batches of `batch`: each of `threads`
// workers (made by `makeWorker`, kept for the whole run) answers `worker(i)` for
// the items it takes, in rising order of i; then `use(i, result)` sees every
// result of the batch in order on the calling thread. Stops after `count` items
// (-1: no end) or when `use` answers false. Answers the number of items used.
template <typename Result, typename MakeWorker, typename Use>
long RunInOrder(long count, int threads, int batch, MakeWorker makeWorker, Use use) {
    threads = std::max(1, threads);
    using Worker = decltype(makeWorker());
    std::vector<Worker> workers;
    for (int t = 0; t < threads; ++t)
        workers.push_back(makeWorker());
    std::vector<Result> results(std::size_t(std::max(1, batch)));
    long done = 0;
    for (;;) {
        const long size =
            count < 0 ? long(results.size()) : std::min(long(results.size()), count - done);
        if (size <= 0) return done;
        ForEachInParallel(size, workers, [&](long k, Worker& worker) {
            results[std::size_t(k)] = worker(done + k);
        });
        for (long k = 0; k < size; ++k)
            if (!use(done + k, results[std::size_t(k)])) return done + k + 1;
        done += size;
    }
}

}  // namespace tavi::cli
