// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps the practice indexes of the library up to date on a thread of its own, so
// that neither the start nor the practice window waits for a rating run. A fresh
// index is only read (milliseconds); a library file that changed is rated again.
#pragma once

#include <atomic>
#include <filesystem>
#include <mutex>
#include <thread>

#include "game/practice.h"

namespace tavi::ui {

class PracticeIndexer {
  public:
    explicit PracticeIndexer(std::filesystem::path dataFolder) : folder_(std::move(dataFolder)) {}
    ~PracticeIndexer();
    PracticeIndexer(const PracticeIndexer&) = delete;
    PracticeIndexer& operator=(const PracticeIndexer&) = delete;

    // Looks at the library again in the background, unless a look is running.
    void Refresh();
    // True while a look runs.
    bool Running() const { return running_; }
    // The library as the last finished look found it; false before the first.
    bool Library(PracticeLibrary& out) const;

  private:
    std::filesystem::path folder_;
    std::thread worker_;
    std::atomic<bool> running_{false}, cancel_{false};
    mutable std::mutex mutex_;
    PracticeLibrary library_;
    bool ready_ = false;
};

}  // namespace tavi::ui
