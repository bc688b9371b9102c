// SPDX-License-Identifier: GPL-3.0-or-later
#include "hints/hint_truth.h"

#include <algorithm>
#include <optional>
#include <regex>
#include <set>
#include <sstream>
#include <tuple>

#include "hints/hint_paint.h"
#include "hints/hint_records.h"
#include "hints/schrijf_hint.h"

namespace tavi::testing {

namespace {

// A conclusion as a sortable triple: cell, digit, placed.
using Step = std::tuple<int, int, bool>;
using Steps = std::set<Step>;

// Two cells that share a row, a column or a box; a cell sees itself.
bool Sees(int a, int b) {
    return a / 9 == b / 9 || a % 9 == b % 9 || Global::BoxOfCell[a] == Global::BoxOfCell[b];
}

int CellOf(const std::string& name) {
    static const std::string kRows = "ABCDEFGHJ";
    return int(kRows.find(name[0])) * 9 + (name[1] - '1');
}

std::string Describe(const Steps& steps) {
    std::string s;
    for (const auto& [cell, digit, placed] : steps)
        s += (s.empty() ? "" : " ") + (cell < 0 ? std::string("?") : CellName(cell)) +
             (placed ? "=" : "-") + std::to_string(digit);
    return s.empty() ? "nothing" : s;
}

// The cells and the digits of a text, in order: "A1", "B2 and C3", "A1, B2".
// Every match of `pattern` in `text`, with its groups.
std::vector<std::smatch> AllOf(const std::string& text, const std::regex& pattern) {
    std::vector<std::smatch> out;
    for (auto it = std::sregex_iterator(text.begin(), text.end(), pattern);
         it != std::sregex_iterator(); ++it)
        out.push_back(*it);
    return out;
}
std::vector<int> CellsIn(const std::string& text) {
    std::vector<int> out;
    for (const auto& m : AllOf(text, std::regex("[A-HJ][1-9]")))
        out.push_back(CellOf(m.str()));
    return out;
}
std::vector<int> DigitsIn(const std::string& text) {
    std::vector<int> out;
    for (char c : text)
        if (c >= '1' && c <= '9') out.push_back(c - '0');
    return out;
}

std::optional<std::smatch> Find(const std::string& text, const char* pattern) {
    std::smatch m;
    if (std::regex_search(text, m, std::regex(pattern))) return m;
    return std::nullopt;
}

// What the sentence names as removed or placed, read from its words; nothing for
// the kinds and forms whose sentence states a rule rather than its cells.
std::optional<Steps> Named(const HintRecord& h, const Board& board, const std::string& s) {
    Steps out;
    // One digit (group 1) taken from the cells listed in group 2.
    auto listed = [&](const char* pattern) {
        const auto m = Find(s, pattern);
        if (!m) return Steps{{-1, 0, false}};
        for (int c : CellsIn((*m)[2].str()))
            out.insert({c, std::stoi((*m)[1].str()), false});
        return out;
    };
    auto one = [&](const char* pattern, int digitGroup, int cellGroup, bool placed) {
        const auto m = Find(s, pattern);
        if (!m) return std::optional<Steps>(Steps{{-1, 0, placed}});
        return std::optional<Steps>(
            Steps{{CellOf((*m)[cellGroup].str()), std::stoi((*m)[digitGroup].str()), placed}});
    };
    switch (h.HintKind) {
        case HintKind::NakedSingle:
            return one("Since number (\\d) at cell ([A-HJ]\\d)", 1, 2, true);
        case HintKind::HiddenSingle:
            return one("Since number (\\d) .*appears only at cell ([A-HJ]\\d)", 1, 2, true);
        case HintKind::Bifurcation:
            return one("number (\\d) would be truth for cell ([A-HJ]\\d)", 1, 2, true);
        case HintKind::EmptyRectangle:
            return one("If value (\\d) .*this means that cell ([A-HJ]\\d) can't", 1, 2, false);
        case HintKind::FinnedXWing:
            return listed("Since number (\\d) .*this number can't appear in cells? (.*)$");
        case HintKind::AlignedPairExclusion:
        case HintKind::AlignedTripleExclusion: {
            static const std::regex kClause(
                "number\\(s\\) ([1-9](?:(?:, | and )[1-9])*) can be eliminated as candidate\\(s\\) "
                "for cell ([A-HJ][1-9])");
            for (const auto& m : AllOf(s, kClause))
                for (int d : DigitsIn(m[1].str()))
                    out.insert({CellOf(m[2].str()), d, false});
            return out;
        }
        case HintKind::UniqueRectangle:
            if (const auto m = Find(s,
                                    "Type 1 => Candidates (\\d) and (\\d) can be removed from "
                                    "cell ([A-HJ]\\d)")) {
                const int c = CellOf((*m)[3].str());
                return Steps{{c, std::stoi((*m)[1].str()), false},
                             {c, std::stoi((*m)[2].str()), false}};
            }
            if (const auto m = Find(s,
                                    "Type 4 => Candidate (\\d) can be removed from cells "
                                    "([A-HJ]\\d) and ([A-HJ]\\d)")) {
                const int d = std::stoi((*m)[1].str());
                return Steps{{CellOf((*m)[2].str()), d, false}, {CellOf((*m)[3].str()), d, false}};
            }
            if (h.HintVariant == 5)
                return one("Candidate (\\d) can be removed from cell ([A-HJ]\\d)", 1, 2, false);
            return std::nullopt;
        case HintKind::AvoidableRectangle:
            if (h.HintValueCount != 2) return std::nullopt;
            return one("Candidate (\\d) can be removed from cell ([A-HJ]\\d)", 1, 2, false);
        case HintKind::NiceLoop:
            if (h.HintVariant == 3)
                return one("on candidate (\\d) =>.* and back to cell ([A-HJ]\\d) who looses", 1, 2,
                           false);
            if (h.HintVariant == 2)
                return one("on candidate (\\d) =>.* and back to cell ([A-HJ]\\d) who must have", 1,
                           2, true);
            return std::nullopt;
        case HintKind::AIC:
            if (h.HintVariant == 3)
                return one("and back to cell ([A-HJ]\\d) who looses candidate (\\d)", 2, 1, false);
            if (h.HintVariant == 2)
                return one("and back to cell ([A-HJ]\\d) who must have candidate (\\d)", 2, 1,
                           true);
            return std::nullopt;
        case HintKind::BiValueALSxz:
        case HintKind::ALSxz: {
            static const std::regex kRemoval(
                " ; Candidate ([1-9]) removed from cell\\(s\\)((?: "
                "[A-HJ][1-9])+)");
            for (const auto& m : AllOf(s, kRemoval))
                for (int c : CellsIn(m[2].str()))
                    out.insert({c, std::stoi(m[1].str()), false});
            return out;
        }
        case HintKind::Medusa3D:
            if (h.HintVariant != 4) return std::nullopt;
            return listed(
                "opposite coloured candidates (\\d) in cells .*can be removed from cell\\(s\\) "
                "(.*)\\.$");
        case HintKind::ForcingChainFromCell:
        case HintKind::ForcingChainFromUnit: {
            if (const auto m =
                    Find(s, "candidate (\\d) will allways be false for cell ([A-HJ]\\d)"))
                return Steps{{CellOf((*m)[2].str()), std::stoi((*m)[1].str()), false}};
            // True for the cell: all its other candidates go.
            const auto m = Find(s, "candidate (\\d) will allways be true for cell ([A-HJ]\\d)");
            if (!m) return Steps{{-1, 0, false}};
            const int cell = CellOf((*m)[2].str()), digit = std::stoi((*m)[1].str());
            for (int d = 1; d <= 9; ++d)
                if (d != digit && board.Has(d, cell)) out.insert({cell, d, false});
            return out;
        }
        case HintKind::MultiFish: {
            static const std::regex kRemoval("([1-9]) from ([A-HJ][1-9])");
            for (const auto& m : AllOf(s, kRemoval))
                out.insert({CellOf(m[2].str()), std::stoi(m[1].str()), false});
            return out;
        }
        default: return std::nullopt;
    }
}

// The loops' sentences say which candidates the cycle keeps: a nice loop's own
// cells keep the digit, and an AIC's candidates that take part in a link inside a
// cell stay. A removal against that claim must be told in the sentence.
std::string LoopClaimFault(const HintRecord& h, const std::string& sentence) {
    if ((h.HintKind != HintKind::NiceLoop && h.HintKind != HintKind::AIC) || h.HintVariant != 1)
        return {};
    std::string faults;
    for (const Conclusion& c : h.Conclusions) {
        bool node = false;
        for (int i = 1; i <= h.HintCellCount; ++i)
            if (h.HintCells[i] == c.cell &&
                (h.HintKind == HintKind::NiceLoop || h.HintValues[i] == c.digit))
                node = true;
        if (!node) continue;
        // The sentence owns up to it by naming the node as the chain names it.
        const std::string named = h.HintKind == HintKind::NiceLoop
                                      ? CellName(c.cell)
                                      : CellName(c.cell) + "/" + std::to_string(c.digit);
        const size_t end = sentence.find(
            h.HintKind == HintKind::NiceLoop ? "will loose that candidate." : "can be removed.");
        if (end == std::string::npos || sentence.find(named, end) == std::string::npos)
            faults += "a node of the loop, " + named + ", goes unsaid\n";
    }
    return faults;
}

// An empty rectangle says that its target, were it the digit, would force the
// digit to a cell: that cell must be the far end of a conjugate pair whose near
// end sees the target.
std::string EmptyRectangleClaimFault(const HintRecord& h, const Board& board,
                                     const std::string& sentence) {
    if (h.HintKind != HintKind::EmptyRectangle) return {};
    const auto m = Find(sentence,
                        "If value (\\d) would be true for cell ([A-HJ]\\d), this would "
                        "force that value to cell ([A-HJ]\\d)");
    if (!m) return "no forced cell named\n";
    const int digit = std::stoi((*m)[1].str());
    const int target = CellOf((*m)[2].str()), forced = CellOf((*m)[3].str());
    auto sees = [](int a, int b) { return a != b && Sees(a, b); };
    bool forcedByPair = false;
    for (int unit = 0; unit < 27 && !forcedByPair && !sees(forced, target); ++unit) {
        std::vector<int> holders;
        for (int c : UnitCells[unit])
            if (board.Has(digit, c)) holders.push_back(c);
        if (holders.size() != 2 || (holders[0] != forced && holders[1] != forced)) continue;
        const int near = holders[0] == forced ? holders[1] : holders[0];
        forcedByPair = sees(near, target);
    }
    if (forcedByPair) return {};
    return "cell " + CellName(target) + " true would not force " + std::to_string(digit) + " to " +
           CellName(forced) + "\n";
}

}  // namespace

std::string TruthFaults(const HintRecord& h, const Board& board) {
    const std::string sentence = SchrijfHint(h, board);
    std::ostringstream faults;
    Steps removed, placed;
    for (const Conclusion& c : h.Conclusions)
        (c.placed ? placed : removed).insert({c.cell, c.digit, c.placed});
    Steps all = removed;
    all.insert(placed.begin(), placed.end());

    if (const auto named = Named(h, board, sentence); named && *named != all)
        faults << "the sentence names " << Describe(*named) << " but the hit concludes "
               << Describe(all) << '\n';
    faults << LoopClaimFault(h, sentence) << EmptyRectangleClaimFault(h, board, sentence);

    // The board as the paints leave it, candidates that show only.
    const PaintedBoard painted(PaintHint(h, board));
    Steps attacked, shownPlaced;
    for (int c = 0; c < 81; ++c)
        for (int d = 1; d <= 9; ++d) {
            if (!board.Has(d, c)) continue;
            if (painted.digit[c][d] == kAttackedCandidates) attacked.insert({c, d, false});
            if (painted.digit[c][d] == kBaseCandidates && painted.cell[c] == kBaseCell)
                shownPlaced.insert({c, d, true});
        }
    // What a placement takes with it: the digit from the cell's peers and the
    // cell's other digits. Painting those as attacked is true as well.
    Steps follows = removed;
    for (const auto& [cell, digit, _] : placed)
        for (int c = 0; c < 81; ++c)
            for (int d = 1; d <= 9; ++d)
                if ((c == cell) != (d == digit) && Sees(c, cell)) follows.insert({c, d, false});
    const bool allShown =
        std::includes(attacked.begin(), attacked.end(), removed.begin(), removed.end());
    const bool noneFalse =
        std::includes(follows.begin(), follows.end(), attacked.begin(), attacked.end());
    if (!allShown || !noneFalse)
        faults << "painted as attacked: " << Describe(attacked)
               << ", taken away: " << Describe(removed) << '\n';
    if (!placed.empty() && shownPlaced != placed)
        faults << "painted as placed: " << Describe(shownPlaced) << ", placed: " << Describe(placed)
               << '\n';
    return faults.str();
}

}  // namespace tavi::testing
