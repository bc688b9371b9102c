#include "hints/hint_kinds.h"

#include <gtest/gtest.h>

#include "hints/hint_records.h"

namespace tavi {
namespace {

using testing::Record;

TEST(HintCaption, NamesTheTechniqueByKindVariantAndCount) {
    struct Case {
        HintRecord hint;
        const char* caption;
    };
    const Case cases[] = {
        {Record(1), "Hint - Naked single"},
        {Record(2).variant(3), "Hint - Hidden single"},
        {Record(4), "Hint - Box Line Reduction"},
        // Kind 5: the sign of the variant, then the size.
        {Record(5).variant(1).cellCount(2), "Hint - Naked Pair"},
        {Record(5).variant(3).cellCount(3), "Hint - Naked Triple"},
        {Record(5).variant(2).cellCount(4), "Hint - Naked Quad"},
        {Record(5).variant(1).cellCount(5), "Hint - Naked Quint"},
        {Record(5).variant(-1).cellCount(2), "Hint - Hidden Pair"},
        {Record(5).variant(-3).cellCount(3), "Hint - Hidden Triple"},
        {Record(5).variant(-2).cellCount(4), "Hint - "},
        {Record(5).variant(2).cellCount(6), "Hint - "},
        {Record(12), "Hint - Simple Colors (Color Trap)"},
        {Record(16).variant(3), "Hint - Aligned Pair Exclusion"},
        {Record(19), "Hint - Double Implication Chain"},
        {Record(21), "Hint - Simple Colors (Color Wrap)"},
        {Record(25), "Hint - Two-String-Kite"},
        {Record(28).variant(1), "Hint - Nice Loop - Alternating X-Cycle"},
        {Record(28).variant(3), "Hint - Nice Loop - Weak Discontinuity"},
        {Record(28).variant(4), "Hint - "},
        {Record(29).variant(1), "Hint - Unique Rectangle Type 1"},
        {Record(29).variant(4), "Hint - Unique Rectangle Type 4"},
        {Record(29).variant(5), "Hint - Hidden Unique Rectangle"},
        {Record(29).variant(0), "Hint - "},
        {Record(31).variant(2), "Hint - AIC - Strong Discontinuity"},
        {Record(32), "Hint - Bi-Value ALSxz"},
        {Record(34).variant(6), "Hint - 3D Medusa"},
        {Record(36), "Hint - Forcing Chain from Unit"},
        {Record(37), "Hint - MultiFish"},
        {Record(0), "Hint - "},
        {Record(38), "Hint - "},
    };
    for (const Case& c : cases)
        EXPECT_EQ(HintCaption(c.hint), c.caption) << "kind " << c.hint.HintKind;
}

TEST(HintKinds, EveryKindHasANameAndAHead) {
    for (int kind = 1; kind <= kHintKindCount; ++kind) {
        EXPECT_FALSE(kHintKinds[kind].names[0].empty()) << kind;
        EXPECT_FALSE(kHintKinds[kind].heads[0].empty()) << kind;
    }
}

}  // namespace
}  // namespace tavi
