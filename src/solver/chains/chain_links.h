// SPDX-License-Identifier: GPL-3.0-or-later
// What the colouring and chain techniques share: the units a cell lies in, the
// conjugate pairs of a digit, the colouring of a digit's clusters, and the
// removal from every cell that sees two given cells.
#pragma once

#include <array>
#include <cstdint>

#include "grid/board.h"
#include "grid/sets.h"
#include "solver/primitives.h"

namespace tavi::chains {

// The row, column and box of a cell as unit numbers (0..8, 9..17, 18..26).
inline int RowUnit(int cell) { return cell / 9; }
inline int ColumnUnit(int cell) { return 9 + cell % 9; }
inline int BoxUnit(int cell) { return 18 + Global::BoxOfCell[cell]; }

// A set of units as bits 0..26.
using UnitMask = std::uint32_t;

// True if two different cells share a row, column or box that is in `units`,
// testing the row first, then the column, then the box.
inline bool SharesUnitIn(int a, int b, UnitMask units) {
    if (a == b) return false;
    if (RowUnit(a) == RowUnit(b) && (units >> RowUnit(a) & 1)) return true;
    if (ColumnUnit(a) == ColumnUnit(b) && (units >> ColumnUnit(a) & 1)) return true;
    return BoxUnit(a) == BoxUnit(b) && (units >> BoxUnit(a) & 1);
}

// The number of cells of `s` up to `most`; a bigger set answers `most` + 1. A few
// steps of taking the lowest cell, where a full count would be a library call.
inline int CountUpTo(CellSet s, int most) {
    int n = 0;
    while (!s.Empty() && n <= most) {
        s.Remove(s.First());
        ++n;
    }
    return n;
}

namespace detail {
inline constexpr auto kCellsBelow = [] {
    std::array<CellSet, 82> below{};
    for (int from = 1; from <= 81; ++from) {
        below[from] = below[from - 1];
        below[from].Add(from - 1);
    }
    return below;
}();
}  // namespace detail

// The lowest cell of `set` at `from` or above; 81 when there is none.
inline int NextFrom(const CellSet& set, int from) {
    if (from >= 81) return 81;
    const CellSet rest = set - detail::kCellsBelow[from < 0 ? 0 : from];
    return rest.Empty() ? 81 : rest.First();
}

// Takes `digit` from every cell that sees both `a` and `b`, the two themselves
// excepted. True if anything went (under HintOnly: would go).
inline bool RemoveSeenByBoth(SolveContext& ctx, int a, int b, int digit) {
    CellSet victims = PeerSet(a) & PeerSet(b) & ctx.board.CellsWith(digit);
    victims.Remove(a);
    victims.Remove(b);
    bool any = false;
    for (int c : victims)
        any |= VerwijderKnop(ctx, digit, c);
    return any;
}

// The links of one digit as the loops and chains read them: the units holding it
// exactly twice, the strong nodes (holders of a conjugate row or column, and of a
// conjugate box whose two holders differ in row and column), and the weak units
// (not conjugate, yet holding two strong nodes).
struct DigitLinks {
    UnitMask conjugate = 0;
    UnitMask weak = 0;
    CellSet strong;
};

inline DigitLinks LinksOf(const CellSet& holders) {
    DigitLinks l;
    for (int u = 0; u < 27; ++u) {
        const CellSet in = holders & UnitSet(u);
        if (CountUpTo(in, 2) != 2) continue;
        l.conjugate |= UnitMask{1} << u;
        const int a = in.First();
        CellSet rest = in;
        rest.Remove(a);
        const int b = rest.First();
        if (u < 18 || (RowUnit(a) != RowUnit(b) && ColumnUnit(a) != ColumnUnit(b))) l.strong |= in;
    }
    for (int u = 0; u < 27; ++u)
        if (!(l.conjugate >> u & 1) && CountUpTo(l.strong & UnitSet(u), 2) >= 2)
            l.weak |= UnitMask{1} << u;
    return l;
}

// The clusters of one digit, coloured along its conjugate pairs. Entries are
// listed in order of first discovery (row i, column i, box i for i = 0..8);
// group g owns the colours 2g-1 and 2g, and 0 is no colour.
struct Colouring {
    int count = 0;  // listed entries
    std::array<std::uint8_t, 81> cells{};
    std::array<int, 81> colour{};
    int groups = 0;

    static int Opposite(int c) { return c % 2 ? c + 1 : c - 1; }
};

inline Colouring ColourDigit(const Board& board, int digit) {
    Colouring col;
    const CellSet holders = board.CellsWith(digit);
    // The pair of each unit holding the digit twice; -1 when it does not.
    std::array<std::array<int, 2>, 27> pair;
    std::array<int, 81> index;
    index.fill(-1);
    for (int i = 0; i < 9; ++i)
        for (int u : {i, 9 + i, 18 + i}) {
            pair[u] = {-1, -1};
            const CellSet in = holders & UnitSet(u);
            if (CountUpTo(in, 2) != 2) continue;
            // A box's holders in box order are its holders in cell order.
            int k = 0;
            for (int c : in) {
                pair[u][k++] = c;
                if (index[c] < 0) {
                    index[c] = col.count;
                    col.cells[col.count++] = std::uint8_t(c);
                }
            }
        }
    if (col.count == 0) return col;
    col.groups = 1;
    col.colour[0] = 1;
    int uncoloured = col.count - 1;
    while (uncoloured > 0) {
        bool changed = false;
        for (int e = 0; e < col.count; ++e) {
            if (col.colour[e]) continue;
            const int c = col.cells[e];
            for (int u : {RowUnit(c), ColumnUnit(c), BoxUnit(c)}) {
                if (pair[u][0] < 0) continue;
                const int partner = pair[u][0] == c ? pair[u][1] : pair[u][0];
                const int pc = col.colour[index[partner]];
                if (pc > 0) {
                    col.colour[e] = Colouring::Opposite(pc);
                    --uncoloured;
                    changed = true;
                    break;
                }
            }
        }
        if (changed || uncoloured == 0) continue;
        ++col.groups;
        --uncoloured;
        for (int e = 0; e < col.count; ++e)
            if (!col.colour[e]) {
                col.colour[e] = 2 * col.groups - 1;
                break;
            }
    }
    return col;
}

}  // namespace tavi::chains
