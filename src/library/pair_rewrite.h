// Rewriting a level's pair of files as a whole, so that a kill at any instant
// leaves either the old pair or the new pair whole.
//
// The old files are first renamed with a "2" before their names; the new files
// are written under the level's names; only then are the "2" files deleted. While
// both "2" files stand the new pair is not known to be whole, and RecoverPair puts
// the old one back. Once one of them is gone the new pair was finished, and
// RecoverPair only clears away what is left of the old one.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "library/records.h"

namespace tavi {

// Copies the records of the pair for which `keep(number)` is true (numbers from 1)
// into a new pair of the same names, in rising order. With nothing kept, both
// files go. False when the pair could not be read or written; the old pair then
// stands as it was.
bool RewritePair(const std::filesystem::path& folder, std::string_view stem,
                 const std::function<bool(long number)>& keep, std::string* why = nullptr);

// Finishes or undoes a rewrite that a kill interrupted; does nothing when none was.
// True when something had to be done.
bool RecoverPair(const std::filesystem::path& folder, std::string_view stem);

// Both files of the pair, gone.
bool RemovePair(const std::filesystem::path& folder, std::string_view stem);

}  // namespace tavi
