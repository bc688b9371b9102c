// SPDX-License-Identifier: GPL-3.0-or-later
// Sets of cells and of digits, the vocabulary the techniques are written in.
// A CellSet holds any of the 81 cells in two machine words; a DigitSet any of the
// nine digits in the low bits of a candidate mask. Both iterate in rising order,
// so a technique that walks a set walks it in cell or digit order.
#pragma once

#include <array>
#include <bit>
#include <cstdint>

#include "grid/tables.h"

namespace tavi {

// Digits 1..9 as a 9-bit set: bit d-1 for digit d, the layout of a candidate mask.
class DigitSet {
  public:
    constexpr DigitSet() = default;
    constexpr explicit DigitSet(CandidateMask mask) : bits_(mask & kAllCandidates) {}
    static constexpr DigitSet Of(int digit) { return DigitSet(DigitBit(digit)); }
    static constexpr DigitSet All() { return DigitSet(kAllCandidates); }

    constexpr CandidateMask Mask() const { return bits_; }
    constexpr bool Has(int digit) const { return HasDigit(bits_, digit); }
    constexpr int Count() const { return CountDigits(bits_); }
    constexpr bool Empty() const { return bits_ == 0; }
    constexpr int First() const { return LowestDigit(bits_); }  // only when not empty

    constexpr void Add(int digit) { bits_ |= DigitBit(digit); }
    constexpr void Remove(int digit) { bits_ &= CandidateMask(~DigitBit(digit)); }

    constexpr DigitSet operator|(DigitSet o) const { return DigitSet(bits_ | o.bits_); }
    constexpr DigitSet operator&(DigitSet o) const { return DigitSet(bits_ & o.bits_); }
    constexpr DigitSet operator-(DigitSet o) const { return DigitSet(bits_ & ~o.bits_); }
    constexpr DigitSet& operator|=(DigitSet o) { return *this = *this | o; }
    constexpr DigitSet& operator&=(DigitSet o) { return *this = *this & o; }
    constexpr DigitSet& operator-=(DigitSet o) { return *this = *this - o; }
    constexpr bool operator==(const DigitSet&) const = default;

    class Iterator {
      public:
        constexpr explicit Iterator(CandidateMask rest) : rest_(rest) {}
        constexpr int operator*() const { return LowestDigit(rest_); }
        constexpr Iterator& operator++() {
            rest_ &= CandidateMask(rest_ - 1);
            return *this;
        }
        constexpr bool operator!=(const Iterator& o) const { return rest_ != o.rest_; }

      private:
        CandidateMask rest_;
    };
    constexpr Iterator begin() const { return Iterator(bits_); }
    constexpr Iterator end() const { return Iterator(0); }

  private:
    CandidateMask bits_ = 0;
};

// Cells 0..80 as an 81-bit set: cells 0..63 in the low word, 64..80 in the high.
class CellSet {
  public:
    constexpr CellSet() = default;
    // The set of the cells given.
    template <typename... Cells>
    static constexpr CellSet Of(Cells... cells) {
        CellSet s;
        (s.Add(cells), ...);
        return s;
    }
    // Cells 0..63 from the bits of `low`, 64..80 from those of `high`.
    static constexpr CellSet FromWords(std::uint64_t low, std::uint64_t high) {
        return {low, high & ((std::uint64_t{1} << 17) - 1)};
    }
    static constexpr CellSet All() {
        CellSet s;
        s.low_ = ~std::uint64_t{0};
        s.high_ = (std::uint64_t{1} << 17) - 1;
        return s;
    }
    template <typename Cells>
    static constexpr CellSet FromCells(const Cells& cells) {
        CellSet s;
        for (int c : cells)
            s.Add(c);
        return s;
    }

    constexpr bool Has(int cell) const {
        return cell < 64 ? (low_ >> cell) & 1 : (high_ >> (cell - 64)) & 1;
    }
    constexpr void Add(int cell) {
        if (cell < 64)
            low_ |= std::uint64_t{1} << cell;
        else
            high_ |= std::uint64_t{1} << (cell - 64);
    }
    constexpr void Remove(int cell) {
        if (cell < 64)
            low_ &= ~(std::uint64_t{1} << cell);
        else
            high_ &= ~(std::uint64_t{1} << (cell - 64));
    }
    constexpr int Count() const { return std::popcount(low_) + std::popcount(high_); }
    constexpr bool Empty() const { return (low_ | high_) == 0; }
    // The lowest cell; only when not empty.
    constexpr int First() const {
        return low_ ? std::countr_zero(low_) : 64 + std::countr_zero(high_);
    }
    // True if every cell of this set is in `o`.
    constexpr bool SubsetOf(const CellSet& o) const {
        return (low_ & ~o.low_) == 0 && (high_ & ~o.high_) == 0;
    }
    constexpr bool Intersects(const CellSet& o) const {
        return (low_ & o.low_) != 0 || (high_ & o.high_) != 0;
    }

    constexpr CellSet operator|(const CellSet& o) const { return {low_ | o.low_, high_ | o.high_}; }
    constexpr CellSet operator&(const CellSet& o) const { return {low_ & o.low_, high_ & o.high_}; }
    constexpr CellSet operator-(const CellSet& o) const {
        return {low_ & ~o.low_, high_ & ~o.high_};
    }
    constexpr CellSet& operator|=(const CellSet& o) { return *this = *this | o; }
    constexpr CellSet& operator&=(const CellSet& o) { return *this = *this & o; }
    constexpr CellSet& operator-=(const CellSet& o) { return *this = *this - o; }
    constexpr bool operator==(const CellSet&) const = default;

    class Iterator {
      public:
        constexpr Iterator(std::uint64_t low, std::uint64_t high) : low_(low), high_(high) {}
        constexpr int operator*() const {
            return low_ ? std::countr_zero(low_) : 64 + std::countr_zero(high_);
        }
        constexpr Iterator& operator++() {
            if (low_)
                low_ &= low_ - 1;
            else
                high_ &= high_ - 1;
            return *this;
        }
        constexpr bool operator!=(const Iterator& o) const {
            return low_ != o.low_ || high_ != o.high_;
        }

      private:
        std::uint64_t low_, high_;
    };
    constexpr Iterator begin() const { return {low_, high_}; }
    constexpr Iterator end() const { return {0, 0}; }

  private:
    constexpr CellSet(std::uint64_t low, std::uint64_t high) : low_(low), high_(high) {}
    std::uint64_t low_ = 0, high_ = 0;
};

namespace detail {
inline constexpr auto kUnitSets = [] {
    std::array<CellSet, 27> s{};
    for (int u = 0; u < 27; ++u)
        s[u] = CellSet::FromCells(UnitCells[u]);
    return s;
}();
inline constexpr auto kPeerSets = [] {
    std::array<CellSet, 81> s{};
    for (int c = 0; c < 81; ++c)
        s[c] = CellSet::FromCells(Peers[c]);
    return s;
}();
}  // namespace detail

// The cells of unit `u`: rows 0..8, columns 9..17, boxes 18..26.
constexpr const CellSet& UnitSet(int u) { return detail::kUnitSets[u]; }
constexpr const CellSet& RowSet(int row) { return detail::kUnitSets[row]; }
constexpr const CellSet& ColumnSet(int column) { return detail::kUnitSets[9 + column]; }
constexpr const CellSet& BoxSet(int box) { return detail::kUnitSets[18 + box]; }
// The 20 cells that share a unit with `cell`, without the cell itself.
constexpr const CellSet& PeerSet(int cell) { return detail::kPeerSets[cell]; }

// The cells that see every cell of `cells` (none of `cells` itself): the common
// peers. Everything when `cells` is empty.
constexpr CellSet CommonPeers(const CellSet& cells) {
    CellSet seen = CellSet::All();
    for (int c : cells)
        seen &= PeerSet(c);
    return seen;
}

// True if two different cells share a row, column or box.
constexpr bool SeesCell(int a, int b) { return PeerSet(a).Has(b); }

}  // namespace tavi
