// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/foreign_puzzles.h"

#include <string_view>

#include "library/text_lines.h"

namespace tavi {

namespace {

// The digit of a cell character, 0 for an empty cell, -1 for no cell character.
int CellValue(char ch) {
    if (ch >= '1' && ch <= '9') return ch - '0';
    switch (ch) {
        case '.':
        case '0':
        case '_':
        case '*':
        case 'x':
        case 'X': return 0;
        default: return -1;
    }
}

bool IsSeparator(char ch) { return ch == ' ' || ch == '\t' || ch == '|' || ch == '+' || ch == '-'; }

bool ReadCells(std::string_view text, Digits& digits) {
    for (int i = 0; i < 81; ++i) {
        const int v = CellValue(text[i]);
        if (v < 0) return false;
        digits[i] = std::uint8_t(v);
    }
    return true;
}

// A line of candidates: every character '.' or the digit of its position.
bool ReadCandidates(std::string_view text, Digits& digits) {
    for (int c = 0; c < 81; ++c) {
        int count = 0, last = 0;
        for (int d = 1; d <= 9; ++d) {
            const char ch = text[9 * c + d - 1];
            if (ch == char('0' + d)) {
                ++count;
                last = d;
            } else if (ch != '.') {
                return false;
            }
        }
        digits[c] = std::uint8_t(count == 1 ? last : 0);
    }
    return true;
}

// The one blank-separated field of exactly 81 cells, when there is exactly one.
bool ReadOneField(std::string_view text, Digits& digits) {
    int found = 0;
    std::size_t at = 0;
    while (at < text.size()) {
        const std::size_t begin = text.find_first_not_of(" \t", at);
        if (begin == std::string_view::npos) break;
        std::size_t end = text.find_first_of(" \t", begin);
        if (end == std::string_view::npos) end = text.size();
        Digits field{};
        if (end - begin == 81 && ReadCells(text.substr(begin), field)) {
            if (++found > 1) return false;
            digits = field;
        }
        at = end;
    }
    return found == 1;
}

bool IsComment(std::string_view text) {
    return text.starts_with('#') || text.starts_with(';') || text.starts_with("//");
}

bool IsBinaryText(std::string_view text) {
    for (const char ch : text) {
        const auto u = static_cast<unsigned char>(ch);
        if ((u < 32 && ch != '\t' && ch != '\r') || u == 127) return true;
    }
    return false;
}

}  // namespace

void ReadForeignPuzzles(std::istream& in, const std::function<bool(const ForeignPuzzle&)>& each,
                        const std::function<void(const ForeignProblem&)>& problem, int* lines) {
    int number = 0;
    struct Count {
        int* lines;
        const int& number;
        ~Count() {
            if (lines) *lines = number;
        }
    } count{lines, number};
    Digits grid{};
    int rows = 0, gridLine = 0;
    auto unfinishedGrid = [&] {
        if (rows > 0)
            problem({gridLine, "a grid of " + std::to_string(rows) + " rows; a grid needs 9"});
        rows = 0;
    };
    std::string text;
    for (LineRead read; (read = ReadBoundedLine(in, text)) != LineRead::End;) {
        ++number;
        if (number == 1 && text.starts_with("\xEF\xBB\xBF")) text.erase(0, 3);
        if (IsBinaryText(text)) {
            unfinishedGrid();
            problem({number, "binary data, not puzzle lines; reading stops"});
            return;
        }
        if (read == LineRead::TooLong) {
            SkipRestOfLine(in);
            unfinishedGrid();
            problem({number, "no puzzle line: longer than " + std::to_string(kLineLimit) +
                                 " characters, passed over unread"});
            continue;
        }
        const size_t first = text.find_first_not_of(" \t");
        if (first == std::string::npos || IsComment(std::string_view(text).substr(first))) {
            unfinishedGrid();
            continue;
        }
        Digits digits{};
        if ((text.size() >= 729 && ReadCandidates(text, digits)) ||
            (text.size() >= 81 && ReadCells(text, digits)) || ReadOneField(text, digits)) {
            unfinishedGrid();
            if (!each({number, digits})) return;
            continue;
        }
        // A row of a grid, or a line of separators between its bands.
        std::string cells;
        bool bad = false;
        for (char ch : text) {
            if (IsSeparator(ch)) continue;
            if (CellValue(ch) < 0) bad = true;
            cells += ch;
        }
        if (cells.empty()) continue;
        if (!bad && cells.size() == 81) {
            // The cells of a whole puzzle with separators between them.
            unfinishedGrid();
            for (int i = 0; i < 81; ++i)
                digits[i] = std::uint8_t(CellValue(cells[size_t(i)]));
            if (!each({number, digits})) return;
            continue;
        }
        if (bad || cells.size() != 9) {
            unfinishedGrid();
            problem({number, "no puzzle and no row of nine cells"});
            continue;
        }
        if (rows == 0) gridLine = number;
        for (int i = 0; i < 9; ++i)
            grid[9 * rows + i] = std::uint8_t(CellValue(cells[i]));
        if (++rows == 9) {
            rows = 0;
            if (!each({gridLine, grid})) return;
        }
    }
    unfinishedGrid();
}

ForeignPuzzles ReadForeignPuzzles(std::istream& in) {
    ForeignPuzzles out;
    ReadForeignPuzzles(
        in,
        [&](const ForeignPuzzle& p) {
            out.puzzles.push_back(p);
            return true;
        },
        [&](const ForeignProblem& p) { out.problems.push_back(p); });
    return out;
}

}  // namespace tavi
