// SPDX-License-Identifier: GPL-3.0-or-later
// Taking records out of a level's pair of files as one crash-safe rewrite: the
// kept records move up in their order, and a kill at any instant leaves either the
// old pair or the new pair whole (pair_guard.h).
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

namespace tavi {

// Keeps the records of the pair for which `keep(number)` is true (numbers from 1),
// in rising order; with none kept both files go. The pair is first repaired as on
// any open. False when it could not be read or written; the old pair then stands.
bool KeepInPair(const std::filesystem::path& folder, std::string_view stem,
                const std::function<bool(long number)>& keep, std::string* why = nullptr);

}  // namespace tavi
