// SPDX-License-Identifier: GPL-3.0-or-later
// One program at a time on a data folder. The game window holds the lock of its
// data folder while it runs, and the commands that rewrite library files take it
// for their run, so two of them never overwrite each other's records.
//
// The lock is the operating system's lock on the file "TaviSud1.lock" in the
// folder: it ends with the process that holds it, however that process ends, so
// a lock left by a killed program is no lock at all. The file itself stays and
// says who took it last, for the message of the one that finds it held.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace tavi {

inline constexpr std::string_view kFolderLockName = "TaviSud1.lock";

class FolderLock {
  public:
    enum class Result {
        Taken,     // this process holds the folder now
        Held,      // another process holds it
        NoFolder,  // the folder can't be locked at all (missing, not writable)
    };

    // Takes the lock of `folder` for `who` (the program's name). On Held,
    // `holder` gets who holds it, as that program wrote it ("tavi-sudoku, process 123").
    static Result Take(const std::filesystem::path& folder, std::string_view who,
                       std::optional<FolderLock>& lock, std::string* holder = nullptr);

    FolderLock(FolderLock&& other) noexcept : fd_(other.fd_) { other.fd_ = -1; }
    FolderLock& operator=(FolderLock&& other) noexcept;
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;
    ~FolderLock();

  private:
    explicit FolderLock(int fd) : fd_(fd) {}
    int fd_ = -1;
};

// The message of a second program that finds `folder` held by `holder`.
std::string FolderInUse(const std::filesystem::path& folder, std::string_view holder);

}  // namespace tavi
