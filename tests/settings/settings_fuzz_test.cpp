// SPDX-License-Identifier: GPL-3.0-or-later
// Random and mutated values for every setting read at start: whatever the store
// holds, the options, the technique tables and the library position come out in
// range, and every value that was not understood is noted. These run under the
// address and undefined-behaviour sanitizers in CI (scripts/test).
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "game/library_position.h"
#include "settings/options.h"

namespace tavi {
namespace {

constexpr int kInputs = 10000;

// Answers every read with something made up: the default, random bytes, or a
// plausible value with a character changed.
class RandomStore : public SettingsStore {
  public:
    explicit RandomStore(unsigned start) : rng_(start) {}
    std::string Read(std::string_view, std::string_view, std::string_view fallback) const override {
        static const char* kPlausible[] = {"True", "false", "0",          "1",   "-1",  "38",
                                           "9",    "32767", "2147483648", " 7 ", "+12", "1e3"};
        switch (rng_() % 3) {
            case 0: return std::string(fallback);
            case 1: {
                std::string s(rng_() % 12, ' ');
                for (char& c : s)
                    c = char(rng_());
                return s;
            }
            default: {
                std::string s = kPlausible[rng_() % std::size(kPlausible)];
                if (rng_() % 2) s[rng_() % s.size()] = char(rng_());
                return s;
            }
        }
    }
    void Write(std::string_view, std::string_view, std::string_view) override {}

  private:
    mutable std::mt19937 rng_;
};

TEST(SettingsFuzz, AnyStoreGivesSettingsInRange) {
    int noted = 0;
    for (int i = 0; i < kInputs; ++i) {
        const RandomStore store{unsigned(i)};
        Options options;
        HaalOpties(store, options);
        LibraryPosition position;
        HaalLaatsteSudoku(store, position);
        ASSERT_TRUE(IsValidOrder(options.techniques.Order)) << i;
        for (int t = 0; t < kTechniqueCount; ++t)
            ASSERT_TRUE(options.techniques.OnOff[t] == 0 || options.techniques.OnOff[t] == 1);
        ASSERT_TRUE(position.LastLevel >= 0 && position.LastLevel <= 9) << i;
        for (int level = 1; level <= 9; ++level)
            ASSERT_GE(position.PuzzleNumber[level], 0) << i;
        noted += !store.Unreadable().empty();
    }
    EXPECT_GT(noted, kInputs / 2);
}

}  // namespace
}  // namespace tavi
