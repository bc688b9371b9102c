// SPDX-License-Identifier: GPL-3.0-or-later
#include "hints/schrijf_hint.h"

#include "hints/hint_facts.h"
#include "hints/hint_kinds.h"
#include "hints/sentences.h"

namespace tavi {

std::string SchrijfHint(const HintRecord& hint, const Board& board) {
    switch (FamilyOf(hint.HintKind)) {
        case HintFamily::Basic: return hints::BasicSentence(hint);
        case HintFamily::Fish: return hints::FishSentence(hint);
        case HintFamily::Pattern: return hints::PatternSentence(hint);
        case HintFamily::Chain: return hints::ChainSentence(hint);
        case HintFamily::Set: return hints::SetSentence(hint, board);
        case HintFamily::None: break;
    }
    return {};
}

HintRecord RecordAfterSchrijfHint(HintRecord hint) {
    if (hint.HintKind == HintKind::PointingPair) {
        const auto line = hints::PointingLineOf(hint);
        (line.row ? hint.HintRow : hint.HintColumn) = line.line;
    }
    return hint;
}

}  // namespace tavi
