// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/puzzle_lines.h"

#include <fstream>
#include <string>
#include <system_error>

#include "grid/candidates.h"
#include "library/text_lines.h"

namespace tavi::cli {

namespace fs = std::filesystem;

namespace {

// Text lines hold printable characters, tabs and a carriage return at the end.
bool IsBinary(std::string_view line) {
    for (const char ch : line) {
        const auto u = static_cast<unsigned char>(ch);
        if ((u < 32 && ch != '\t') || u == 127) return true;
    }
    return false;
}

}  // namespace

std::string Where(std::string_view source, int lineNumber) {
    return std::string(source) + ", line " + std::to_string(lineNumber) + ": ";
}

int ForEachPuzzle(std::istream& in, std::ostream& err,
                  const std::function<void(const PuzzleLine&)>& each, std::string_view source) {
    std::string line;
    int lineNumber = 0, bad = 0;
    // The first bad lines are named, the others counted.
    const auto report = [&](const std::string& why) {
        if (++bad <= int(kNamedLines)) err << Where(source, lineNumber) << why << '\n';
    };
    for (LineRead read; (read = ReadBoundedLine(in, line)) != LineRead::End;) {
        ++lineNumber;
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (IsBinary(line)) {
            err << Where(source, lineNumber) << "binary data, not puzzle lines; reading stops\n";
            return bad + 1;
        }
        if (read == LineRead::TooLong) {
            // Never held whole: its rest is passed over unread.
            SkipRestOfLine(in);
            report("no puzzle line: longer than " + std::to_string(kLineLimit) +
                   " characters, passed over unread");
            continue;
        }
        if (line.empty() || line[0] == '#') continue;
        if (line.find_first_not_of(" \t") == std::string::npos) continue;
        std::string why;
        const auto digits = ParseDigits(line, &why);
        if (!digits) {
            report("not a puzzle: " + why);
            continue;
        }
        each({lineNumber, std::string_view(line).substr(0, 81), *digits});
    }
    if (bad > int(kNamedLines))
        err << source << ": and " << bad - int(kNamedLines) << " more lines that are no puzzle\n";
    if (in.bad()) {
        err << std::string(source) << ": read error after line " << lineNumber << '\n';
        ++bad;
    }
    return bad;
}

std::string InputFileProblem(const fs::path& file) {
    std::error_code ec;
    const fs::file_status status = fs::status(file, ec);
    if (!fs::exists(status)) return file.string() + ": not found";
    if (fs::is_directory(status)) return file.string() + ": is a folder, not a file";
    if (!std::ifstream(file, std::ios::binary)) return file.string() + ": can't be read";
    return {};
}

bool ReportClash(const PuzzleLine& p, std::string_view source, std::ostream& err) {
    if (!GivensClash(p.digits)) return false;
    err << Where(source, p.lineNumber)
        << "invalid puzzle: two givens in one row, column or box hold the same digit\n";
    return true;
}

}  // namespace tavi::cli
