// SPDX-License-Identifier: GPL-3.0-or-later
#include "grid/board.h"

#include <algorithm>

namespace tavi {

int Board::EmptyCount() const {
    int n = 0;
    for (auto d : CurrentGrid)
        n += d == 0;
    return n;
}

CellSet Board::CellsWith(int digit) const {
    // Word by word without a branch per cell: the candidates are unpredictable.
    const int shift = digit - 1;
    std::uint64_t low = 0, high = 0;
    for (int c = 0; c < 64; ++c)
        low |= std::uint64_t((Candidates[c] >> shift) & 1) << c;
    for (int c = 64; c < 81; ++c)
        high |= std::uint64_t((Candidates[c] >> shift) & 1) << (c - 64);
    return CellSet::FromWords(low, high);
}

std::optional<Digits> ParseDigits(std::string_view line, std::string* error) {
    if (line.size() < 81) {
        if (error)
            *error = "a puzzle needs 81 characters, this line has " + std::to_string(line.size());
        return std::nullopt;
    }
    Digits d{};
    for (int i = 0; i < 81; ++i) {
        const char ch = line[i];
        if (ch >= '1' && ch <= '9') {
            d[i] = std::uint8_t(ch - '0');
        } else if (ch == '0' || ch == '.') {
            d[i] = 0;
        } else {
            if (error) {
                const bool printable = ch >= 32 && ch < 127;
                *error = "bad character " +
                         (printable ? "'" + std::string(1, ch) + "'"
                                    : "code " + std::to_string(int((unsigned char)ch))) +
                         " at position " + std::to_string(i + 1);
            }
            return std::nullopt;
        }
    }
    return d;
}

std::string FormatBoardLine(const Board& board) {
    std::string s = FormatDigits(board.Puzzle) + ' ' + FormatDigits(board.CurrentGrid) + ' ';
    for (int c = 0; c < 81; ++c)
        for (int d = 1; d <= 9; ++d)
            s += board.Has(d, c) ? char('0' + d) : '.';
    return s;
}

std::optional<Board> ParseBoardLine(std::string_view line, std::string* error) {
    auto fail = [&](std::string why) -> std::optional<Board> {
        if (error) *error = std::move(why);
        return std::nullopt;
    };
    std::string_view fields[3];
    for (auto& field : fields) {
        const size_t start = line.find_first_not_of(" \t");
        if (start == std::string_view::npos) return fail("a board needs three fields");
        line.remove_prefix(start);
        const size_t end = std::min(line.find_first_of(" \t"), line.size());
        field = line.substr(0, end);
        line.remove_prefix(end);
    }
    if (line.find_first_not_of(" \t\r") != std::string_view::npos)
        return fail("more than three fields");
    if (fields[0].size() != 81) return fail("the givens need 81 characters");
    if (fields[1].size() != 81) return fail("the digits need 81 characters");
    if (fields[2].size() != 729) return fail("the candidates need 729 characters");

    Board b;
    std::string why;
    const auto givens = ParseDigits(fields[0], &why);
    if (!givens) return fail("givens: " + why);
    const auto digits = ParseDigits(fields[1], &why);
    if (!digits) return fail("digits: " + why);
    b.Puzzle = *givens;
    b.CurrentGrid = *digits;
    for (int c = 0; c < 81; ++c) {
        if (b.Puzzle[c] && b.Puzzle[c] != b.CurrentGrid[c])
            return fail("the given of " + CellName(c) + " differs from its digit");
        for (int d = 1; d <= 9; ++d) {
            const char ch = fields[2][9 * c + d - 1];
            if (ch == char('0' + d))
                b.Candidates[c] |= DigitBit(d);
            else if (ch != '.')
                return fail("bad candidate character at position " + std::to_string(9 * c + d));
        }
        if (b.CurrentGrid[c] && b.Candidates[c])
            return fail(CellName(c) + " holds a digit and candidates");
    }
    return b;
}

std::string FormatDigits(const Digits& digits, char empty) {
    std::string s(81, empty);
    for (int i = 0; i < 81; ++i)
        if (digits[i]) s[i] = char('0' + digits[i]);
    return s;
}

}  // namespace tavi
