#include "grid/board.h"

namespace tavi {

int Board::EmptyCount() const {
    int n = 0;
    for (auto d : CurrentGrid)
        n += d == 0;
    return n;
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

std::string FormatDigits(const Digits& digits, char empty) {
    std::string s(81, empty);
    for (int i = 0; i < 81; ++i)
        if (digits[i]) s[i] = char('0' + digits[i]);
    return s;
}

}  // namespace tavi
