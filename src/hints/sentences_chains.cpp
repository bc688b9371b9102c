// SPDX-License-Identifier: GPL-3.0-or-later
// Sentences of the colours and the chains: simple and multi colours, XY-Chains,
// nice loops and alternating inference chains.
#include "hints/hint_facts.h"
#include "hints/sentence_parts.h"
#include "hints/sentences.h"

namespace tavi::hints {

namespace {

// SimpleColorsTrap and SimpleColorsWrap share the opening that names the two colours of the
// cluster.
std::string Colours(const HintRecord& h) {
    return Head(h.HintKind) + "In the chain/cluster of adjacent cells, all holding candidate " +
           Number(h.HintNumber) + ", either cells " +
           JoinList(Entries(h.HintCells, 1, h.HintCellCount, CellText)) + " OR cells " +
           JoinList(Entries(h.HintValues, 1, h.HintValueCount, CellText)) + " " +
           "must have the candidate as value. ";
}

std::string XYChain(const HintRecord& h) {
    const std::string n = Number(h.HintNumber);
    const std::string first = CellText(At(h.HintCells, 1));
    const std::string last = CellText(At(h.HintCells, h.HintCellCount));
    const std::string inner = JoinList(Entries(h.HintCells, 2, h.HintCellCount - 1, CellText));
    const std::string opening = Head(h.HintKind) + "If number " + n + " would be truth for cell " +
                                first + ", this would force a chain through cell(s) " + inner +
                                " to cell " + last;
    if (h.HintKind == HintKind::DoubleImplicationChain)
        return opening + " who would also have number " + n + " as it's solution. " +
               " Since each number can be only once in each row, column or box, this is a "
               "forbidden situation, so number " +
               n +
               " in both chain ends and all numbers in the chained cells having that same color "
               "are invalid.";
    return opening + " who would not longer have number " + n + " as a candidate. " +
           " If, on the other hand, number " + n + " would be truth for cell " + last +
           " this would erase that number as a candidate for cell " + first + ", so either cell " +
           first + " or cell " + last + " must have number " + n +
           " as the right value, so any other cell they both can see, can't have that value as a "
           "candidate.";
}

std::string MultiColoring(const HintRecord& h) {
    const std::string opening =
        Head(h.HintKind) + "From two seperated chains of adjacent cells, all holding candidate " +
        Number(h.HintNumber) +
        ", where the adjacent cells from each chain form two groups of alternating candidates, ";
    if (h.HintKind == HintKind::MultiColoringType1)
        return opening +
               "at least one chain has a group of alternating candidates that can be removed, "
               "because the joint candidates of that group can see at least one member of both "
               "groups of alternating candidates from the other chain.";
    return opening +
           "both chains have a group where at least one member of the alternating candidates are "
           "seeing each other. As result of that, at least one of the other groups of each chain "
           "will eventually contain the candidate as solution. So, any other cell not belonging "
           "to one of the chains, holding the candidate, will loose that candidate if it can be "
           "seen by a member of both of those groups.";
}

// The cells of the loop from `first` to `last`, each behind a blank; with
// `digits` set, each followed by "/" and its digit.
std::string LoopSteps(const HintRecord& h, int first, int last, bool digits) {
    std::string s;
    for (int i = first; i <= last && i <= HintRecord::kListCapacity; ++i) {
        s += " " + CellText(At(h.HintCells, i));
        if (digits) s += "/" + Number(At(h.HintValues, i));
    }
    return s;
}

// The removals of a closed loop that fall on the loop itself: cells for a nice
// loop (one digit), "cell/digit" nodes for an AIC. Rare, but the loop's sentence
// says what the cycle keeps, so these must be told.
std::vector<std::string> RemovedNodes(const HintRecord& h, bool digits) {
    std::vector<std::string> nodes;
    for (const Conclusion& c : h.Conclusions) {
        bool onLoop = false;
        for (int i = 1; i <= h.HintCellCount && i <= HintRecord::kListCapacity; ++i)
            onLoop |= At(h.HintCells, i) == c.cell && (!digits || At(h.HintValues, i) == c.digit);
        if (!onLoop || c.placed) continue;
        nodes.push_back(CellText(c.cell) + (digits ? "/" + Number(c.digit) : ""));
    }
    return nodes;
}

// "", or the nodes between the two pieces, joined by ", ".
std::string OwnNodes(const std::vector<std::string>& nodes, const char* before, const char* after) {
    if (nodes.empty()) return {};
    std::string s = before;
    for (size_t i = 0; i < nodes.size(); ++i)
        s += (i ? ", " : "") + nodes[i];
    return s + after;
}

std::string NiceLoop(const HintRecord& h) {
    const std::string n = Number(h.HintNumber);
    const std::string first = CellText(At(h.HintCells, 1));
    const std::string last = CellText(At(h.HintCells, h.HintCellCount));
    switch (h.HintVariant) {
        case 3:
            return Head(HintKind::NiceLoop) + "Weak Discontinuity in X-Cycle on candidate " + n +
                   " =>" + " Loop starts at cell " + last + " through cells" +
                   LoopSteps(h, 1, h.HintCellCount - 1, false) + " and back to cell " + last +
                   " who looses the candidate as solution.";
        case 2:
            return Head(HintKind::NiceLoop) + "Strong Discontinuity in X-Cycle on candidate " + n +
                   " =>" + " Loop starts at cell " + first + " through cells" +
                   LoopSteps(h, 2, h.HintCellCount - 1, false) + " and back to cell " + first +
                   " who must have the candidate as solution.";
        case 1:
            return Head(HintKind::NiceLoop) + "Alternating X-Cycle on candidate " + n + " =>" +
                   " Loop starts at cell " + first + " through cells" +
                   LoopSteps(h, 2, h.HintCellCount - 1, false) + " and back to cell " + first +
                   "." +
                   " All cells holding the candidate under examination, not belonging to the "
                   "X-Cycle, and sharing the same houses of the weak links, will loose that "
                   "candidate." +
                   OwnNodes(RemovedNodes(h, false), " Cell(s) ",
                            " of the X-Cycle itself will loose that candidate as well.");
        default: return Head(HintKind::NiceLoop);
    }
}

std::string Aic(const HintRecord& h) {
    const std::string first = CellText(At(h.HintCells, 1));
    const std::string last = CellText(At(h.HintCells, h.HintCellCount));
    const std::string firstDigit = Number(At(h.HintValues, 1));
    const std::string lastDigit = Number(At(h.HintValues, h.HintValueCount));
    switch (h.HintVariant) {
        case 3:
            return Head(HintKind::AIC) + "Weak Discontinuity on candidate " + lastDigit + " =>" +
                   " Loop starts at cell " + last + " through cells/candidates" +
                   LoopSteps(h, 1, h.HintCellCount - 1, true) + " and back to cell " + last +
                   " who looses candidate " + lastDigit + " as solution.";
        case 2:
            return Head(HintKind::AIC) + "Strong Discontinuity on candidate " + firstDigit + " =>" +
                   " Loop starts at cell " + first + " through cells/candidates" +
                   LoopSteps(h, 2, h.HintCellCount - 1, true) + " and back to cell " + first +
                   " who must have candidate " + firstDigit + " as solution.";
        case 1:
            return Head(HintKind::AIC) + "Cycle starting with candidate " + firstDigit +
                   " in cell " + first + " through cells/candidates" +
                   LoopSteps(h, 2, h.HintCellCount - 1, true) + " and back to cell " + first + "." +
                   " Candidate(s) not participating to any weak link inside a cell, and for any "
                   "weak link between 2 cells, that same candidate in other cells sharing that "
                   "same house, can be removed." +
                   OwnNodes(RemovedNodes(h, true), " Candidate(s) ",
                            " of the chain itself can be removed as well.");
        default: return Head(HintKind::AIC);
    }
}

}  // namespace

std::string ChainSentence(const HintRecord& h) {
    switch (h.HintKind) {
        case HintKind::SimpleColorsTrap:
            return Colours(h) + "Since either cell " + CellText(h.HintCell) + " OR cell " +
                   CellText(h.HintVariant) +
                   " must contain the candidate, any other cell seen by both those cells will "
                   "loose this candidate.";
        case HintKind::SimpleColorsWrap:
            return Colours(h) + "Since cell " + CellText(h.HintCell) + " AND cell " +
                   CellText(h.HintVariant) +
                   " both belong to the same adjacent group AND both those cells are sharing the "
                   "same house, that whole adjacent group of cells will loose this candidate.";
        case HintKind::XYChain:
        case HintKind::DoubleImplicationChain: return XYChain(h);
        case HintKind::MultiColoringType1:
        case HintKind::MultiColoringType2: return MultiColoring(h);
        case HintKind::NiceLoop: return NiceLoop(h);
        case HintKind::AIC: return Aic(h);
        default: return {};
    }
}

}  // namespace tavi::hints
