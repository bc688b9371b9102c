// SPDX-License-Identifier: GPL-3.0-or-later
// The sentence writer's families of kinds; SchrijfHint dispatches to them by
// HintKind. Each answers the whole sentence of its kinds, head included.
#pragma once

#include <string>

#include "grid/board.h"
#include "hints/hint_kinds.h"
#include "solver/hint_record.h"

namespace tavi::hints {

// The head of `kind` in its form `form` (see kHintKinds).
inline std::string Head(HintKind kind, int form = 0) {
    return std::string(kHintKinds[std::size_t(KindNumber(kind))].heads[form]);
}

// Singles, intersections, subsets, bifurcation and the bivalue grave: 1..5, 20, 24.
std::string BasicSentence(const HintRecord& hint);
// Fish and single-digit patterns: 6..9, 13, 15, 25, 26.
std::string FishSentence(const HintRecord& hint);
// Wings, exclusions, Sue-de-Coq and the rectangles: 10, 11, 14, 16, 17, 27, 29, 30.
std::string PatternSentence(const HintRecord& hint);
// Colours and chains: 12, 18, 19, 21, 22, 23, 28, 31.
std::string ChainSentence(const HintRecord& hint);
// Almost locked sets, Medusa, forcing chains and MultiFish: 32..37.
std::string SetSentence(const HintRecord& hint, const Board& board);

}  // namespace tavi::hints
