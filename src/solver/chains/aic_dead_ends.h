// SPDX-License-Identifier: GPL-3.0-or-later
// The table in which the alternating inference chains keep the branches they
// walked without a hit: a key of the walk's state, and the number of times the
// branch ran into the chain limit. Open addressing with a few probes: a key that
// finds no free slot among them is not kept, which only costs the walk again.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <vector>

namespace tavi::chains {

// Branches walked without a hit. Below a position the walk depends on nothing but
// the position, its last node, the in-chain flags, the start and whether the loop
// behind already holds a weak link that makes a closed loop count; a branch walked
// once without a hit is walked the same way the next time it is met, and its only
// trace is the number of times it ran into the limit. So that number is kept, and
// the branch is not walked again. One table holds the dead ends of the start node
// being walked; another, for the whole call, the limit counts of branches walked
// only to be counted, which do not depend on the start at all.
class DeadEnds {
  public:
    // The largest count a branch can keep (24 bits), and the bits of a key's
    // `high` word (40).
    static constexpr int kMaxCount = (1 << 24) - 1;

    // A table of 2^sizeBits entries, allocated at the first Keep.
    explicit DeadEnds(int sizeBits) : size_(std::size_t{1} << sizeBits) {}
    // The in-chain flags of cells 0..63 in `low`; those of cells 64..80 in the low
    // 17 bits of `high`, then position, cell, digit and the loop's flag.
    struct Key {
        std::uint64_t low = 0, high = 0;
    };
    static constexpr int kNodeShift = 17;

    // Everything kept so far is forgotten. Only the slots used are wiped, so that
    // a walk that keeps little costs little.
    void Clear() {
        for (std::uint32_t i : used_)
            table_.get()[i] = Entry{};
        used_.clear();
    }

    // The limit count of a branch met before, or -1.
    int Find(const Key& key) const {
        if (!table_) return -1;
        for (std::size_t i = Slot(key), n = 0; n < kProbes; ++n, i = (i + 1) & (size_ - 1)) {
            const Entry& e = table_.get()[i];
            if (e.high == 0) return -1;
            if (e.low == key.low && (e.high & kKeyBits) == key.high)
                return int(e.high >> kCountShift);
        }
        return -1;
    }

    void Keep(const Key& key, int count) {
        // On the first walk long enough to need it. Zeroed pages from the system
        // are empty entries, and only those used are touched.
        if (!table_) {
            table_.reset(static_cast<Entry*>(std::calloc(size_, sizeof(Entry))));
            if (!table_) return;
            used_.reserve(size_);
        }
        for (std::size_t i = Slot(key), n = 0; n < kProbes; ++n, i = (i + 1) & (size_ - 1)) {
            Entry& e = table_.get()[i];
            if (e.high != 0) continue;
            e = {key.low, key.high | std::uint64_t(count) << kCountShift};
            used_.push_back(std::uint32_t(i));
            return;
        }
    }

  private:
    // A position is never 0, so a used entry is never all zero.
    struct Entry {
        std::uint64_t low = 0, high = 0;
    };
    static constexpr int kCountShift = 40;
    static constexpr std::uint64_t kKeyBits = (std::uint64_t{1} << kCountShift) - 1;
    const std::size_t size_;
    static constexpr std::size_t kProbes = 8;

    std::size_t Slot(const Key& k) const {
        std::uint64_t h = k.low * 0x9E3779B97F4A7C15ull ^ k.high * 0xC2B2AE3D27D4EB4Full;
        h ^= h >> 29;
        return std::size_t(h) & (size_ - 1);
    }

    struct Free {
        void operator()(Entry* e) const { std::free(e); }
    };
    std::unique_ptr<Entry, Free> table_;
    std::vector<std::uint32_t> used_;
};

}  // namespace tavi::chains
