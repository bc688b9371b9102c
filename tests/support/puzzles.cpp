// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/puzzles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <sstream>

#include "grid/candidates.h"

namespace tavi::testing {

const std::vector<GeneratedPuzzle>& GeneratedPuzzles(int count, std::uint64_t start) {
    static std::map<std::pair<int, std::uint64_t>, std::vector<GeneratedPuzzle>> made;
    auto& list = made[{count, start}];
    if (list.empty()) {
        PuzzleGenerator generator(start);
        list.reserve(count);
        for (int i = 0; i < count; ++i)
            list.push_back(generator.Next());
    }
    return list;
}

Digits DigitsOf(std::string_view text) {
    std::string why;
    auto d = ParseDigits(text, &why);
    EXPECT_TRUE(d.has_value()) << why << ": " << text;
    return d.value_or(Digits{});
}

Digits DeadCell() {
    Digits d{};
    for (int c = 0; c < 8; ++c)
        d[c] = std::uint8_t(c + 1);
    d[44] = 9;
    return d;
}

Digits WithoutFirstClue(Digits puzzle) {
    *std::find_if(puzzle.begin(), puzzle.end(), [](auto d) { return d != 0; }) = 0;
    return puzzle;
}

Digits WithClash(Digits puzzle) {
    for (int c = 0; c < 81; ++c)
        for (int peer : Peers[c])
            if (puzzle[c] && !puzzle[peer]) {
                puzzle[peer] = puzzle[c];
                return puzzle;
            }
    ADD_FAILURE() << "no clue with an empty peer";
    return puzzle;
}

std::string GridText(std::string_view line) {
    std::string grid;
    for (int r = 0; r < 9; ++r) {
        if (r == 3 || r == 6) grid += "------+-------+------\n";
        for (int c = 0; c < 9; ++c)
            grid += std::string(c == 3 || c == 6 ? " | " : c ? " " : "") + line[size_t(9 * r + c)];
        grid += "\n";
    }
    return grid;
}

std::vector<std::string> Lines(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    return lines;
}

std::vector<std::string> Fields(const std::string& line, char sep) {
    std::vector<std::string> f;
    size_t start = 0;
    for (size_t at; (at = line.find(sep, start)) != std::string::npos; start = at + 1)
        f.push_back(line.substr(start, at - start));
    f.push_back(line.substr(start));
    return f;
}

std::vector<GeneratedPuzzle> HardPuzzles() {
    std::ifstream file(std::string(TAVI_TEST_DATA_DIR) + "/hard_puzzles.txt");
    std::vector<GeneratedPuzzle> out;
    for (std::string line; std::getline(file, line);)
        if (!line.empty() && line[0] != '#')
            out.push_back({DigitsOf(line.substr(0, 81)), DigitsOf(line.substr(82, 81))});
    return out;
}

}  // namespace tavi::testing
