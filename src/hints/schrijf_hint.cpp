#include "hints/schrijf_hint.h"

#include "hints/hint_facts.h"
#include "hints/sentences.h"

namespace tavi {

std::string SchrijfHint(const HintRecord& hint, const Board& board) {
    switch (hint.HintKind) {
        case 1:
        case 2:
        case 3:
        case 4:
        case 5:
        case 20:
        case 24:
            return hints::BasicSentence(hint);
        case 6:
        case 7:
        case 8:
        case 9:
        case 13:
        case 15:
        case 25:
        case 26:
            return hints::FishSentence(hint);
        case 10:
        case 11:
        case 14:
        case 16:
        case 17:
        case 27:
        case 29:
        case 30:
            return hints::PatternSentence(hint);
        case 12:
        case 18:
        case 19:
        case 21:
        case 22:
        case 23:
        case 28:
        case 31:
            return hints::ChainSentence(hint);
        case 32:
        case 33:
        case 34:
        case 35:
        case 36:
        case 37:
            return hints::SetSentence(hint, board);
        default:
            return {};
    }
}

HintRecord RecordAfterSchrijfHint(HintRecord hint) {
    if (hint.HintKind == 3) {
        const auto line = hints::PointingLineOf(hint);
        (line.row ? hint.HintRow : hint.HintColumn) = line.line;
    }
    return hint;
}

}  // namespace tavi
