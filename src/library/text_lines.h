// SPDX-License-Identifier: GPL-3.0-or-later
// Reading text a line at a time with a bound: a line without an end, or of
// noise, is never held whole, so no input can take more memory than the bound.
#pragma once

#include <cstddef>
#include <istream>
#include <string>

namespace tavi {

// The longest line read: a longer one is no puzzle line and is passed over.
inline constexpr std::size_t kLineLimit = 4096;

enum class LineRead {
    Line,     // a line, without its end ('\n', and a '\r' before it)
    TooLong,  // the first `limit` characters of a longer line; its rest is unread
    End,      // nothing more
};

// The next line of `in` into `line`. After TooLong, SkipRestOfLine passes over
// the rest (the caller may first look at the beginning, e.g. for binary data).
LineRead ReadBoundedLine(std::istream& in, std::string& line, std::size_t limit = kLineLimit);
void SkipRestOfLine(std::istream& in);

// The next line, a longer one cut at `limit` and its rest passed over; false at
// the end.
bool ReadLine(std::istream& in, std::string& line, std::size_t limit = kLineLimit);

}  // namespace tavi
