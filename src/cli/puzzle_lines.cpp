#include "cli/puzzle_lines.h"

#include <string>

namespace tavi::cli {

int ForEachPuzzle(std::istream& in, std::ostream& err,
                  const std::function<void(const PuzzleLine&)>& each) {
    std::string line;
    int lineNumber = 0, bad = 0;
    while (std::getline(in, line)) {
        ++lineNumber;
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (line.empty() || line[0] == '#') continue;
        if (line.find_first_not_of(" \t") == std::string::npos) continue;
        std::string why;
        const auto digits = ParseDigits(line, &why);
        if (!digits) {
            err << "line " << lineNumber << ": not a puzzle: " << why << '\n';
            ++bad;
            continue;
        }
        each({lineNumber, std::string_view(line).substr(0, 81), *digits});
    }
    return bad;
}

}  // namespace tavi::cli
