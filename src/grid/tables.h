// SPDX-License-Identifier: GPL-3.0-or-later
// The vocabulary of the board: how cells, rows, columns, boxes and digits are
// numbered, and the conversion tables between them. Everything is built at
// compile time and never changes.
//
// Cells are 0..80 in reading order, rows and columns 0..8, boxes 0..8 in reading
// order. A box is often named by its top left cell (0, 3, 6, 27, 30, 33, 54, 57, 60).
// Digits are 1..9; 0 means an empty cell.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <string>

namespace tavi {

using CandidateMask = std::uint16_t;  // bit d-1 set: digit d is still possible
inline constexpr CandidateMask kAllCandidates = 0x1FF;

constexpr CandidateMask DigitBit(int digit) { return CandidateMask(1u << (digit - 1)); }
constexpr bool HasDigit(CandidateMask mask, int digit) { return (mask >> (digit - 1)) & 1u; }
constexpr int LowestDigit(CandidateMask mask) { return std::countr_zero(unsigned(mask)) + 1; }

namespace Global {

namespace detail {
template <int N, typename F>
constexpr std::array<std::int16_t, N> Fill(F f) {
    std::array<std::int16_t, N> a{};
    for (int i = 0; i < N; ++i)
        a[i] = std::int16_t(f(i));
    return a;
}
template <typename F>
constexpr std::array<std::array<std::int16_t, 9>, 9> Fill9x9(F f) {
    std::array<std::array<std::int16_t, 9>, 9> a{};
    for (int i = 0; i < 9; ++i)
        for (int j = 0; j < 9; ++j)
            a[i][j] = std::int16_t(f(i, j));
    return a;
}
}  // namespace detail

// The row letters skip I on purpose, so that it can't be mistaken for a 1.
inline constexpr auto RowLetter = detail::Fill<9>([](int r) { return 'A' + r + (r == 8 ? 1 : 0); });

inline constexpr auto BoxOfCell =
    detail::Fill<81>([](int c) { return 3 * (c / 27) + (c % 9) / 3; });
inline constexpr auto BoxLeftTopOfCell =
    detail::Fill<81>([](int c) { return 27 * (c / 27) + 3 * ((c % 9) / 3); });
inline constexpr auto PositionInBoxOfCell =
    detail::Fill<81>([](int c) { return 3 * ((c / 9) % 3) + (c % 3); });

inline constexpr auto BoxLeftTop =
    detail::Fill<9>([](int b) { return 27 * (b / 3) + 3 * (b % 3); });
inline constexpr auto BoxFirstRow = detail::Fill<9>([](int b) { return 3 * (b / 3); });
inline constexpr auto BoxFirstColumn = detail::Fill<9>([](int b) { return 3 * (b % 3); });

inline constexpr auto CandidateCount = detail::Fill<512>([](int mask) {
    int n = 0;
    for (int rest = mask; rest > 0; rest /= 2)
        n += rest & 1;
    return n;
});

// (box, position) -> cell, both in reading order.
inline constexpr auto CellOfBoxPosition =
    detail::Fill9x9([](int b, int p) { return 27 * (b / 3) + 3 * (b % 3) + 9 * (p / 3) + p % 3; });

}  // namespace Global

// The number of digits in a candidate mask. A table rather than std::popcount,
// which without a hardware instruction is a library call in the hottest loops.
constexpr int CountDigits(CandidateMask mask) {
    return Global::CandidateCount[mask & kAllCandidates];
}

// The 27 units: rows 0..8, columns 9..17, boxes 18..26, each with its cells in
// unit order (left to right, top to bottom, reading order inside a box).
enum UnitKind { kRowUnit = 0, kColumnUnit = 1, kBoxUnit = 2 };
inline constexpr auto UnitCells = [] {
    std::array<std::array<std::uint8_t, 9>, 27> u{};
    for (int i = 0; i < 9; ++i)
        for (int j = 0; j < 9; ++j) {
            u[i][j] = std::uint8_t(9 * i + j);
            u[9 + i][j] = std::uint8_t(9 * j + i);
            u[18 + i][j] = std::uint8_t(Global::CellOfBoxPosition[i][j]);
        }
    return u;
}();

// The 20 peers of each cell: its row, then the rest of its column, then the rest of its box.
inline constexpr auto Peers = [] {
    std::array<std::array<std::uint8_t, 20>, 81> p{};
    for (int c = 0; c < 81; ++c) {
        int n = 0;
        const int r = c / 9, k = c % 9, lt = 27 * (c / 27) + 3 * (k / 3);
        for (int i = 0; i < 9; ++i)
            if (9 * r + i != c) p[c][n++] = std::uint8_t(9 * r + i);
        for (int i = 0; i < 9; ++i)
            if (9 * i + k != c) p[c][n++] = std::uint8_t(9 * i + k);
        for (int i = 0; i < 9; ++i) {
            const int x = lt + 9 * (i / 3) + i % 3;
            if (x / 9 != r && x % 9 != k) p[c][n++] = std::uint8_t(x);
        }
    }
    return p;
}();

// A cell as the system writes it in every message: row letter and column digit, "A1".."J9".
inline std::string CellName(int cell) {
    return {char(Global::RowLetter[cell / 9]), char('1' + cell % 9)};
}

}  // namespace tavi
