// SPDX-License-Identifier: GPL-3.0-or-later
// The data-folder lock: held by one process at a time, free again the moment
// its holder is killed, whatever the lock file then holds.
#include "library/folder_lock.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>

#include "library/library_test_support.h"

namespace tavi {
namespace {

namespace fs = std::filesystem;

// A child that takes the lock, says so through the pipe, and waits to be killed.
pid_t Holder(const fs::path& folder) {
    int ready[2];
    if (::pipe(ready) != 0) return -1;
    const pid_t child = ::fork();
    if (child == 0) {
        std::optional<FolderLock> lock;
        const char said = FolderLock::Take(folder, "holder", lock) == FolderLock::Result::Taken;
        if (::write(ready[1], &said, 1) != 1) ::_exit(1);
        for (;;)
            ::pause();
    }
    char said = 0;
    if (::read(ready[0], &said, 1) != 1 || !said) return -1;
    ::close(ready[0]);
    ::close(ready[1]);
    return child;
}

TEST(FolderLock, OneHolderAtATimeAndAKilledHolderHoldsNothing) {
    const fs::path folder = testing::FastScratch() / ("lock-" + std::to_string(::getpid()));
    fs::create_directories(folder);
    for (int round = 0; round < 5; ++round) {
        const pid_t child = Holder(folder);
        ASSERT_GT(child, 0);
        std::optional<FolderLock> lock;
        std::string holder;
        EXPECT_EQ(FolderLock::Take(folder, "second", lock, &holder), FolderLock::Result::Held);
        EXPECT_EQ(holder, "holder, process " + std::to_string(child));
        EXPECT_FALSE(lock);
        EXPECT_NE(FolderInUse(folder, holder).find(holder), std::string::npos);
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        // Stale at once, whatever the file holds: empty, or junk.
        if (round % 2) std::ofstream(folder / kFolderLockName, std::ios::trunc);
        EXPECT_EQ(FolderLock::Take(folder, "second", lock), FolderLock::Result::Taken);
        ASSERT_TRUE(lock);
        lock.reset();  // let go, for the next round's holder
    }
    std::optional<FolderLock> lock;
    EXPECT_EQ(FolderLock::Take(folder / "missing", "x", lock), FolderLock::Result::NoFolder);
    fs::remove_all(folder);
}

}  // namespace
}  // namespace tavi
