// SPDX-License-Identifier: GPL-3.0-or-later
// The dead-end table of the alternating inference chains against a plain map:
// whatever it answers for a key is what was kept for that key, a key it never
// kept answers -1, it keeps nearly everything while it is far from full, and
// Clear forgets all of it. Keys differ in one bit as often as walks do.
#include <gtest/gtest.h>

#include <map>
#include <random>

#include "solver/chains/aic_dead_ends.h"

namespace tavi::chains {
namespace {

using Key = DeadEnds::Key;

// A key as the walk makes them: 81 in-chain flags, then position, cell, digit and
// the loop's flag above bit 17 of `high`; the high word never all zero.
Key RandomKey(std::mt19937_64& rng) {
    Key k{rng(), rng() & ((std::uint64_t{1} << 40) - 1)};
    k.high |= std::uint64_t{1} << DeadEnds::kNodeShift;
    return k;
}

TEST(AicDeadEnds, AnswersOnlyWhatWasKeptAndForgetsOnClear) {
    std::mt19937_64 rng(31);
    DeadEnds table(12);                         // 4096 entries
    EXPECT_EQ(table.Find(RandomKey(rng)), -1);  // a new table holds nothing
    for (int round = 0; round < 3; ++round) {
        std::map<std::pair<std::uint64_t, std::uint64_t>, int> kept;
        std::vector<Key> keys;
        for (int i = 0; i < 2000; ++i) {
            Key k = RandomKey(rng);
            // Every third key a near twin of an earlier one: one flag apart.
            if (i % 3 == 2) {
                k = keys[size_t(rng() % keys.size())];
                k.low ^= std::uint64_t{1} << (rng() % 64);
            }
            if (kept.count({k.low, k.high})) continue;
            const int count = int(rng() % (DeadEnds::kMaxCount + 1));
            table.Keep(k, count);
            kept[{k.low, k.high}] = count;
            keys.push_back(k);
        }
        int found = 0;
        for (const auto& [k, count] : kept) {
            const int answer = table.Find({k.first, k.second});
            if (answer >= 0) {
                ASSERT_EQ(answer, count);
                ++found;
            }
        }
        // Half full with eight probes: hardly a key is turned away.
        EXPECT_GE(found, int(kept.size()) * 98 / 100);
        for (int i = 0; i < 2000; ++i) {
            const Key other = RandomKey(rng);
            if (!kept.count({other.low, other.high})) {
                ASSERT_EQ(table.Find(other), -1);
            }
        }
        table.Clear();
        for (const auto& [k, count] : kept)
            ASSERT_EQ(table.Find({k.first, k.second}), -1) << "kept after Clear";
    }
}

}  // namespace
}  // namespace tavi::chains
