// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/text_lines.h"

namespace tavi {

LineRead ReadBoundedLine(std::istream& in, std::string& line, std::size_t limit) {
    line.clear();
    std::streambuf* buffer = in.rdbuf();
    const std::istream::sentry ok(in, true);
    if (!ok || !buffer) return LineRead::End;
    using Traits = std::istream::traits_type;
    bool any = false;
    for (;;) {
        const auto c = buffer->sbumpc();
        if (Traits::eq_int_type(c, Traits::eof())) {
            in.setstate(any ? std::ios::eofbit : std::ios::eofbit | std::ios::failbit);
            break;
        }
        any = true;
        const char ch = Traits::to_char_type(c);
        if (ch == '\n') break;
        if (line.size() == limit) {
            buffer->sungetc();
            return LineRead::TooLong;
        }
        line.push_back(ch);
    }
    if (!any) return LineRead::End;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    return LineRead::Line;
}

void SkipRestOfLine(std::istream& in) {
    std::streambuf* buffer = in.rdbuf();
    if (!buffer) return;
    using Traits = std::istream::traits_type;
    for (;;) {
        const auto c = buffer->sbumpc();
        if (Traits::eq_int_type(c, Traits::eof())) {
            in.setstate(std::ios::eofbit);
            return;
        }
        if (Traits::to_char_type(c) == '\n') return;
    }
}

bool ReadLine(std::istream& in, std::string& line, std::size_t limit) {
    const LineRead read = ReadBoundedLine(in, line, limit);
    if (read == LineRead::TooLong) SkipRestOfLine(in);
    return read != LineRead::End;
}

}  // namespace tavi
