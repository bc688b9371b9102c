// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/practice_indexer.h"

namespace tavi::ui {

PracticeIndexer::~PracticeIndexer() {
    cancel_ = true;
    if (worker_.joinable()) worker_.join();
}

void PracticeIndexer::Refresh() {
    if (running_) return;
    if (worker_.joinable()) worker_.join();
    running_ = true;
    worker_ = std::thread([this] {
        PracticeLibrary library;
        // One thread: the game goes on beside it.
        library.Load(folder_, 1, &cancel_);
        if (!cancel_) {
            const std::lock_guard lock(mutex_);
            library_ = std::move(library);
            ready_ = true;
        }
        running_ = false;
    });
}

bool PracticeIndexer::Library(PracticeLibrary& out) const {
    const std::lock_guard lock(mutex_);
    if (ready_) out = library_;
    return ready_;
}

}  // namespace tavi::ui
