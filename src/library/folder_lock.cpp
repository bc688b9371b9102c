// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/folder_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <string>

namespace tavi {

FolderLock::Result FolderLock::Take(const std::filesystem::path& folder, std::string_view who,
                                    std::optional<FolderLock>& lock, std::string* holder) {
    const std::filesystem::path file = folder / kFolderLockName;
    const int fd = ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    if (fd < 0) return Result::NoFolder;
    if (::flock(fd, LOCK_EX | LOCK_NB) != 0) {
        const bool held = errno == EWOULDBLOCK;
        if (held && holder) {
            char text[200] = {};
            const ssize_t n = ::pread(fd, text, sizeof text - 1, 0);
            std::string said(text, n > 0 ? std::size_t(n) : 0);
            while (!said.empty() && (said.back() == '\n' || said.back() == '\0'))
                said.pop_back();
            *holder = said.empty() ? "another program" : said;
        }
        ::close(fd);
        return held ? Result::Held : Result::NoFolder;
    }
    const std::string said = std::string(who) + ", process " + std::to_string(::getpid()) + "\n";
    if (::ftruncate(fd, 0) == 0) {
        [[maybe_unused]] const ssize_t written = ::pwrite(fd, said.data(), said.size(), 0);
    }
    lock.emplace(FolderLock(fd));
    return Result::Taken;
}

FolderLock& FolderLock::operator=(FolderLock&& other) noexcept {
    if (this != &other) {
        if (fd_ >= 0) ::close(fd_);
        fd_ = other.fd_;
        other.fd_ = -1;
    }
    return *this;
}

FolderLock::~FolderLock() {
    // Closing the file ends the lock; the file stays for the next taker.
    if (fd_ >= 0) ::close(fd_);
}

std::string FolderInUse(const std::filesystem::path& folder, std::string_view holder) {
    return "The data folder " + folder.string() + " is in use by " + std::string(holder) +
           ". Only one Tavi Sudoku program at a time may change it; try again when that one "
           "has ended.";
}

}  // namespace tavi
