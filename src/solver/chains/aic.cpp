// SPDX-License-Identifier: GPL-3.0-or-later
// Alternating inference chains: the nice loop's walk over nodes that are a cell
// and a digit, so that the digit may change inside a cell. Links alternate strong
// and weak from the first node; at each position the links inside the cell are
// tried before the links to other cells.
//
// Every walk that reaches the chain limit counts once, and a call ends with
// nothing found when that count reaches 50,000, so a chain is found only if the
// walk before it made fewer. A long walk is mostly spent where no chain can close:
// once the walk is long, a close map of the start node tells, from the node's
// digit, the parity of its position and whether the loop behind already counts,
// whether any chain from there can close at all. Such a branch is counted as it
// is met while counting has cost no more than the search; past that it is given
// up uncounted, and the count it might have made is settled only if a chain is
// found after it: then the walk is counted again from the first branch given up
// to that chain. The count of a call that finds nothing never matters.
#include <bit>
#include <cstdlib>
#include <memory>
#include <vector>

#include "solver/chains/aic_dead_ends.h"
#include "solver/chains/chain_links.h"
#include "solver/techniques.h"

namespace tavi {

using namespace chains;

namespace {

constexpr int kNone = 0, kCycle = 1, kStrong = 2, kWeak = 3;
constexpr int kCounterLimit = 50000;
// Branches are kept at every fourth position only: each lookup costs about what a
// few dozen steps of the walk do, and a branch met again is mostly met again at
// several positions in a row. A short walk does not repay the bookkeeping at all;
// branches are kept once the walk of a call has entered that many of those, and
// not so near the limit that the walk below is shorter than its lookup.
constexpr int kKeptEvery = 4;
constexpr long kFreshBeforeKeeping = 5000;
constexpr int kKeptBeforeLimit = 3;
// A walk that only counts is cheap enough that its lookups repay only far from the
// limit, but there from the first step.
constexpr int kCountedKeptBeforeLimit = 11;
// The close map is drawn once the walk of a call has taken that many steps.
constexpr long kStepsBeforeCloseMap = 2000;

bool SameCellUnit(int a, int b) {
    return RowUnit(a) == RowUnit(b) || ColumnUnit(a) == ColumnUnit(b) || BoxUnit(a) == BoxUnit(b);
}

// A kept count, with the flag of a walk given up in part (bit 20), fits the table.
static_assert(kCounterLimit < (1 << 20) && (1 << 21) - 1 <= DeadEnds::kMaxCount);

// The two tables of a call live in the context's scratch: small enough to stay in
// the cache from one call to the next (a start keeps a few thousand branches, a
// call's counting a few times more).
struct AicTables {
    DeadEnds deadEnds{14}, leafCounts{15};
};

struct AicSearch {
    SolveContext& ctx;
    int chainLimit;
    int limitCounter = 0;

    std::array<DigitSet, 81> digits{};
    CellSet biValue, multiValue;
    std::array<DigitLinks, 10> links{};
    std::array<CellSet, 10> holders{};
    std::array<CellSet, 10> biHolders{};  // bi-value cells holding the digit
    // Per digit and cell: the cells a strong link may go to, and those a weak one may.
    std::array<std::array<CellSet, 81>, 10> conjugatePeers{}, linkPeers{};
    std::array<DigitSet, 81> strongDigits{};  // the digits of which the cell is a strong node
    std::array<CellSet, 81> anyLink{};        // per cell: where a link from it may go, any digit

    // The walk.
    std::array<int, 83> cells{}, chainDigits{};
    int runDigit = 0;
    CellSet inChain;
    std::array<bool, 83> loopFlag{};  // per position: a weak link behind makes a closed loop count
    long searchSteps = 0, countSteps = 0;
    long uncounted = 0;  // branches given up uncounted so far
    long freshCount = 0;
    DeadEnds& deadEnds;
    DeadEnds& leafCounts;
    static constexpr int kPartly = 1 << 20;  // with a kept count: a part was given up uncounted

    CellSet seesStartCell;
    std::array<DigitSet, 81> seesStartNode{};
    std::array<CellSet, 10> seesStartReach{};  // per digit: the cells that see a node of it
    // Per digit, and for any digit: the cells where a node may close the chain of
    // the present start.
    std::array<CellSet, 10> closersOf{};
    CellSet closers;
    CellSet twoNodeCells;  // where a link inside the cell may follow the link into it

    // The close map, drawn once the walk is long.
    bool closeMapOn = false;
    // Per digit and cell: the cells whose strong links go there, and those whose
    // weak ones do. Made with the map only, as most calls never draw it.
    struct LinksInto {
        std::array<std::array<CellSet, 81>, 10> strong{}, weak{};
    };
    std::unique_ptr<LinksInto> linksInto;
    std::array<DigitSet, 81> sameCellTo{};  // the digits a link inside the cell may go to
    // [digit][position's parity][loop flag]: the cells where a node may still lead
    // to a close of the present start.
    std::array<std::array<std::array<CellSet, 2>, 2>, 10> closeMap{};

    AicSearch(SolveContext& c, int limit, DeadEnds& dead, DeadEnds& leaves)
        : ctx(c), chainLimit(limit), deadEnds(dead), leafCounts(leaves) {
        const Board& b = ctx.board;
        for (int cell = 0; cell < 81; ++cell) {
            digits[cell] = b.CandidatesOf(cell);
            if (b.CurrentGrid[cell] || b.Puzzle[cell]) continue;
            (digits[cell].Count() == 2 ? biValue : multiValue).Add(cell);
        }
        for (int d = 1; d <= 9; ++d) {
            holders[d] = b.CellsWith(d);
            links[d] = LinksOf(holders[d]);
            biHolders[d] = holders[d] & biValue;
            // Any holder may be the cell a link leaves from; only strong nodes
            // are where it arrives.
            for (int u = 0; u < 27; ++u) {
                const CellSet in = links[d].strong & UnitSet(u);
                for (int cell : holders[d] & UnitSet(u)) {
                    if (links[d].conjugate >> u & 1) conjugatePeers[d][cell] |= in;
                    if ((links[d].conjugate | links[d].weak) >> u & 1) linkPeers[d][cell] |= in;
                }
            }
            for (int cell = 0; cell < 81; ++cell) {
                conjugatePeers[d][cell].Remove(cell);
                linkPeers[d][cell].Remove(cell);
            }
            for (int cell : links[d].strong)
                strongDigits[cell].Add(d);
            for (int cell : holders[d]) {
                // A weak link may also go to a bi-value cell that sees this one.
                linkPeers[d][cell] |= biHolders[d] & PeerSet(cell);
                anyLink[cell] |= linkPeers[d][cell];
            }
        }
        for (int cell : biValue)
            sameCellTo[cell] = digits[cell];
        for (int cell : multiValue)
            sameCellTo[cell] = digits[cell] & strongDigits[cell];
        for (int cell : biValue | multiValue)
            if (sameCellTo[cell].Count() >= 2) twoNodeCells.Add(cell);
    }

    // The cells that share with `cell` a unit where the digit's link is weak.
    CellSet WeakUnitMates(int cell, int d) const {
        CellSet mates;
        for (int u : {RowUnit(cell), ColumnUnit(cell), BoxUnit(cell)})
            if (links[d].weak >> u & 1) mates |= UnitSet(u);
        return mates;
    }

    void StartCloseMap() {
        closeMapOn = true;
        linksInto = std::make_unique<LinksInto>();
        for (int d = 1; d <= 9; ++d)
            for (int c : holders[d]) {
                for (int t : conjugatePeers[d][c])
                    linksInto->strong[d][t].Add(c);
                for (int t : linkPeers[d][c])
                    linksInto->weak[d][t].Add(c);
            }
        FillCloseMap();
    }

    // The close map of the present start: from the nodes where the chain closes,
    // back along the links. A node at an even position goes on with a strong link
    // (or, in a bi-value cell, a link inside it); one at an odd position with a
    // weak link, which turns the loop flag on when it stays inside a unit where
    // the digit's link is weak, or with a link inside the cell, which turns it on
    // in a cell of more than two candidates.
    void FillCloseMap() {
        const int start = cells[0], d = runDigit;
        for (auto& byParity : closeMap)
            for (auto& byLoop : byParity)
                byLoop.fill(CellSet());
        struct Node {
            std::uint8_t cell, digit, parity, loop;
        };
        std::array<Node, 81 * 9 * 4> queue;
        int head = 0, tail = 0;
        const auto mark = [&](int c, int k, int parity, int loop) {
            CellSet& at = closeMap[k][parity][loop];
            if (at.Has(c)) return;
            at.Add(c);
            queue[tail++] = {std::uint8_t(c), std::uint8_t(k), std::uint8_t(parity),
                             std::uint8_t(loop)};
        };
        // A strong close at an even position; a closed loop (with the loop flag, or
        // when the last link is weak) and a weak close at an odd one.
        for (int u : {RowUnit(start), ColumnUnit(start), BoxUnit(start)})
            if (links[d].conjugate >> u & 1)
                for (int c : holders[d] & UnitSet(u))
                    if (c != start) mark(c, d, 0, 0), mark(c, d, 0, 1);
        for (int c : holders[d] & PeerSet(start)) {
            mark(c, d, 1, 1);
            if (SharesUnitIn(c, start, links[d].weak)) mark(c, d, 1, 0);
        }
        for (int k = 1; k <= 9; ++k)
            for (int c : holders[k] & seesStartReach[k])
                mark(c, k, 1, 0), mark(c, k, 1, 1);
        while (head < tail) {
            const Node n = queue[head++];
            const int t = n.cell, k = n.digit, loop = n.loop;
            if (n.parity == 1) {
                // Entered at an odd position: by a strong link, or inside a bi-value cell.
                for (int c : linksInto->strong[k][t])
                    mark(c, k, 0, loop);
                if (biValue.Has(t))
                    for (int k1 : digits[t] - DigitSet::Of(k))
                        mark(t, k1, 0, loop);
                continue;
            }
            // Entered at an even position: by a weak link, or inside the cell.
            const CellSet weakMates = WeakUnitMates(t, k);
            if (loop) {
                for (int c : linksInto->weak[k][t])
                    mark(c, k, 1, 1);
                for (int c : linksInto->weak[k][t] & weakMates)
                    mark(c, k, 1, 0);
            } else {
                for (int c : linksInto->weak[k][t] - weakMates)
                    mark(c, k, 1, 0);
            }
            if (!sameCellTo[t].Has(k)) continue;
            for (int k1 : digits[t] - DigitSet::Of(k)) {
                if (multiValue.Has(t)) {
                    if (loop) mark(t, k1, 1, 0), mark(t, k1, 1, 1);
                } else {
                    mark(t, k1, 1, loop);
                }
            }
        }
    }

    // The in-chain flag of a cell entered from another cell at position p.
    void EnterFromOtherCell(int cell, int p) {
        if (p % 2 == 0 && !biValue.Has(cell))
            inChain.Add(cell);
        else
            inChain.Remove(cell);
    }

    void SetStart(int start, int d) {
        seesStartCell = CellSet();
        seesStartNode.fill(DigitSet());
        seesStartReach.fill(CellSet());
        if (multiValue.Has(start)) {
            seesStartCell.Add(start);
            seesStartNode[start] = digits[start] - DigitSet::Of(d);
            for (int k : seesStartNode[start])
                seesStartReach[k] |= PeerSet(start);
        }
        const int row = RowUnit(start);
        if (!(links[d].conjugate >> row & 1)) {
            for (int i : RowSet(row) & holders[d]) {
                if (i == start) continue;
                seesStartCell.Add(i);
                seesStartNode[i].Add(d);
                seesStartReach[d] |= PeerSet(i);
            }
        }
        // A close needs the start's digit at a cell that sees the start, or a node
        // that sees one of the start's other nodes.
        closers = CellSet();
        for (int k = 1; k <= 9; ++k) {
            closersOf[k] = holders[k] & seesStartReach[k];
            if (k == d) closersOf[k] |= holders[d] & PeerSet(start);
            closers |= closersOf[k];
        }
    }

    // A weak link from position i to i + 1 that makes a closed loop count.
    bool WeakPair(int i) const {
        const int a = cells[i], b = cells[i + 1];
        return a == b ? multiValue.Has(a) : SharesUnitIn(a, b, links[chainDigits[i]].weak);
    }

    // What is known of the walk below position p before it is walked.
    struct Branch {
        DeadEnds::Key key;
        bool mayClose = true;  // false: no node below can close the chain of this start
        bool barren = false;   // nothing below can close the chain or reach the limit
    };

    // For a walk that only counts (`counting`), closing is not asked for.
    Branch Look(int p, bool counting) const {
        // Below this position the walk asks for the flag of a cell only if a link
        // may lead there from a cell it can still reach (or for a cell that sees
        // the start's nodes, or for its own last cell). The cells it can reach are
        // found here through the links of every digit, the flagged cells barred;
        // the flags of all other cells make no difference and are left out, so
        // that more branches are known as the same. A link to another cell is
        // taken at positions p up to the limit only, so the walk's last cell is
        // never more than limit - p + 1 such links away from this one: the
        // search stops there.
        Branch b;
        const int q = cells[p - 1];
        CellSet reached = CellSet::Of(q), frontier = reached, asked;
        for (int steps = chainLimit - p; steps >= 0 && !frontier.Empty(); --steps) {
            CellSet next;
            for (int c : frontier)
                next |= anyLink[c];
            asked |= next;
            frontier = next - inChain - reached;
            reached |= frontier;
        }
        b.mayClose = !counting && !(reached & closers).Empty();
        if (!b.mayClose) {
            // Each cell the chain enters below holds one node, or two when a link
            // inside it may follow; the limit needs limit - p + 1 more nodes, this
            // cell's second one included.
            const CellSet others = reached - CellSet::Of(q);
            const int needed = chainLimit - p + 1 - (inChain.Has(q) ? 0 : 1);
            b.barren =
                CountUpTo(others, needed) + CountUpTo(others & twoNodeCells, needed) < needed;
        }
        // A walk that cannot close reads neither the flags of the cells that see
        // the start's nodes nor the loop behind it: its key leaves them out, and it
        // holds for every start.
        if (b.mayClose) asked |= seesStartCell;
        asked.Add(q);
        static_assert(sizeof(CellSet) == 2 * sizeof(std::uint64_t));
        const auto words = std::bit_cast<std::array<std::uint64_t, 2>>(inChain & asked);
        const bool loop = b.mayClose && loopFlag[p];
        b.key.low = words[0];
        b.key.high =
            words[1] | std::uint64_t(p | q << 7 | chainDigits[p - 1] << 14 | int(loop) << 18)
                           << DeadEnds::kNodeShift;
        return b;
    }

    // The closing tests at position p; a hit leaves its node at p.
    int Close(int p, int d) {
        const int start = cells[0], q = cells[p - 1], x = chainDigits[p - 1];
        if (p % 2 == 1) {
            if (p >= 3 && x == d && SharesUnitIn(q, start, links[d].conjugate)) {
                cells[p] = start, chainDigits[p] = d;
                return kStrong;
            }
            return kNone;
        }
        if (p < 4) return kNone;
        if (x == d && q != start && SameCellUnit(q, start)) {
            cells[p] = start, chainDigits[p] = d;
            for (int i = 1; i < p; i += 2) {
                const int a = cells[i], b = cells[i + 1];
                if (a == b ? multiValue.Has(a) : SharesUnitIn(a, b, links[chainDigits[i]].weak))
                    return kCycle;
            }
        }
        if (!seesStartReach[x].Has(q)) return kNone;
        for (int i : seesStartCell) {
            if (inChain.Has(i) && i != start) continue;
            if (seesStartNode[i].Has(x) && SeesCell(q, i)) {
                cells[p] = i, chainDigits[p] = x;
                return kWeak;
            }
        }
        return kNone;
    }

    // The digits a link inside the cell at p-1 may go to.
    DigitSet SameCellLinks(int p) const {
        const int q = cells[p - 1], x = chainDigits[p - 1];
        DigitSet to;
        if (biValue.Has(q))
            to = digits[q];
        else if (p % 2 == 0 && multiValue.Has(q))
            to = digits[q] & strongDigits[q];
        return to - DigitSet::Of(x);
    }

    // The candidates for a link to another cell at p.
    CellSet OtherCellLinks(int p) const {
        const int q = cells[p - 1], x = chainDigits[p - 1];
        if (p % 2 == 1) return conjugatePeers[x][q] - inChain;
        return linkPeers[x][q] - inChain;
    }

    // The start nodes of digit d: its bi-value cells and its strong nodes in cells
    // of more than two candidates.
    CellSet Starts(int d) const { return biHolders[d] | (links[d].strong & multiValue); }

    // The chain's first node: `cell` with digit d.
    void EnterStart(int cell, int d) {
        runDigit = d;
        cells[0] = cell, chainDigits[0] = d;
        EnterFromOtherCell(cell, 0);
    }

    // Runs the search for start digit d: a result, or -1 when the counter ran out.
    int Run(int d) {
        inChain = CellSet();
        for (int c : Starts(d)) {
            EnterStart(c, d);
            SetStart(c, d);
            if (closeMapOn) FillCloseMap();
            deadEnds.Clear();
            loopFlag[1] = false;
            if (const int r = Walk(1); r != kNone) return r;
            inChain.Remove(c);
        }
        return kNone;
    }

    // Whether branches are kept at position p.
    bool Kept(int p) {
        return p % kKeptEvery == 0 && chainLimit - p >= kKeptBeforeLimit &&
               ++freshCount > kFreshBeforeKeeping;
    }

    // The walk below the node at p - 1, entered at position p: kNone when it is
    // given up, a hit's result, or -1 when the counter ran out. Links inside the
    // cell are tried first, digits upward, then the links to other cells, cells
    // upward; the node left behind is taken out of the chain by the caller.
    int Walk(int p) {
        ctx.Yield();
        ++searchSteps;
        // Most nodes cannot close the chain: the full test is kept for those that can.
        const bool mayClose = closersOf[chainDigits[p - 1]].Has(cells[p - 1]);
        if (p > chainLimit) {
            if (++limitCounter >= kCounterLimit) return -1;
            if (mayClose)
                if (const int r = Close(p, runDigit); r != kNone) return Found(r, p);
            return kNone;
        }
        if (mayClose)
            if (const int r = Close(p, runDigit); r != kNone) return Found(r, p);
        if (p >= 2) loopFlag[p] = loopFlag[p - 1] || (p % 2 == 1 && WeakPair(p - 2));
        if (!closeMapOn && searchSteps > kStepsBeforeCloseMap) StartCloseMap();
        if (closeMapOn && !closeMap[chainDigits[p - 1]][(p - 1) % 2][loopFlag[p]].Has(cells[p - 1]))
            return GiveUp(p);
        if (Kept(p)) return WalkKept(p);
        return WalkOn(p);
    }

    // The walk below a position where branches are kept. Out of line, so that the
    // plain step of the walk stays small.
    [[gnu::noinline]] int WalkKept(int p) {
        const Branch b = Look(p, false);
        if (b.barren) return kNone;
        if (!b.mayClose) return GiveUp(p);
        if (const int kept = deadEnds.Find(b.key); kept >= 0) {
            // A branch with a part given up uncounted is known only so far.
            if (kept & kPartly) Uncounted(p);
            limitCounter += kept & ~kPartly;
            return limitCounter >= kCounterLimit ? -1 : kNone;
        }
        const int countOnEntry = limitCounter;
        const long uncountedOnEntry = uncounted;
        const int r = WalkOn(p);
        if (r == kNone)
            deadEnds.Keep(b.key, (limitCounter - countOnEntry) |
                                     (uncounted != uncountedOnEntry ? kPartly : 0));
        return r;
    }

    // Takes each link from the node at p - 1 in the walk's order, the links inside
    // the cell first, sets the node at p and the in-chain flags for it, and calls
    // `below`; the first answer other than kNone ends the loop and is returned.
    // Each link's cell leaves the chain after it; the cell at p - 1 stays in, for
    // the caller to take out.
    template <typename Below>
    [[gnu::always_inline]] int EachLink(int p, Below below) {
        const int q = cells[p - 1], x = chainDigits[p - 1];
        if (!inChain.Has(q)) {
            for (int k : SameCellLinks(p)) {
                cells[p] = q, chainDigits[p] = k;
                inChain.Add(q);
                if (const int r = below(); r != kNone) return r;
                inChain.Remove(q);
            }
            inChain.Add(q);
        }
        for (int c : OtherCellLinks(p)) {
            cells[p] = c, chainDigits[p] = x;
            EnterFromOtherCell(c, p);
            if (const int r = below(); r != kNone) return r;
            inChain.Remove(c);
        }
        return kNone;
    }

    [[gnu::always_inline]] int WalkOn(int p) {
        return EachLink(p, [&] { return Walk(p + 1); });
    }

    // A place in the walk: the start digit, a position, and the nodes before it.
    struct Chain {
        int digit = 0, close = 0;
        std::array<int, 83> cells{}, digits{};
    };
    Chain found;  // the chain found, up to the node that closes it

    // The first branch given up uncounted, and the count of the walk before it.
    Chain givenUp;
    int countBeforeGivenUp = 0;

    // The walk below position p cannot close the chain: it is counted at once while
    // counting has cost no more than the search, else given up uncounted.
    int GiveUp(int p) {
        if (countSteps <= searchSteps) return CountBelow(p);
        Uncounted(p);
        return kNone;
    }

    void Uncounted(int p) {
        if (uncounted++ == 0) {
            givenUp.digit = runDigit, givenUp.close = p;
            givenUp.cells = cells, givenUp.digits = chainDigits;
            countBeforeGivenUp = limitCounter;
        }
    }

    int Found(int result, int p) {
        found.digit = runDigit, found.close = p;
        found.cells = cells, found.digits = chainDigits;
        return result;
    }

    // The walk again from the first branch given up uncounted to the chain found,
    // counting every limit hit: the found chain's result, or -1 when the counter
    // runs out before it.
    int Recount() {
        limitCounter = countBeforeGivenUp;
        for (int d = givenUp.digit; d <= found.digit; ++d) {
            inChain = CellSet();
            bool before = d == givenUp.digit;  // the starts before that branch's own
            for (int c : Starts(d)) {
                if (before && c != givenUp.cells[0]) continue;
                EnterStart(c, d);
                const bool chain = c == found.cells[0] && d == found.digit;
                if (chain) SetStart(c, d);
                const int r = chain || before ? RecountBelow(1, before) : CountBelow(1);
                if (r != kNone || chain) return r;
                before = false;
                inChain.Remove(c);
            }
        }
        return -1;  // not reached: the chain found is on the way
    }

    // Whether the nodes up to position p - 1 are those of `chain`.
    bool OnWayTo(const Chain& chain, int p) const {
        for (int i = 0; i < p; ++i)
            if (cells[i] != chain.cells[i] || chainDigits[i] != chain.digits[i]) return false;
        return true;
    }

    // Below a node on the way to the first branch given up (`resuming`), whose
    // branches before it were counted in full, or on the way to the chain found.
    // Other branches are counted; they hold no chain, as the walk found none
    // before the one it found. kNone when the chain found is not below, else its
    // result, or -1 when the counter runs out before it.
    int RecountBelow(int p, bool resuming) {
        ctx.Yield();
        if (resuming && p == givenUp.close) return CountBelow(p);
        if (!resuming && p == found.close) {
            if (p > chainLimit && ++limitCounter >= kCounterLimit) return -1;
            return Close(p, runDigit);
        }
        const bool chainBelow = !resuming || OnWayTo(found, p);
        const auto on = [&](const Chain& way) {
            return cells[p] == way.cells[p] && chainDigits[p] == way.digits[p];
        };
        return EachLink(p, [&] {
            if (resuming) {
                if (!on(givenUp)) return kNone;  // counted before
                resuming = false;
                return RecountBelow(p + 1, true);
            }
            if (chainBelow && on(found)) return RecountBelow(p + 1, false);
            return CountBelow(p + 1) < 0 ? -1 : kNone;
        });
    }

    // A branch without a chain: kNone, or -1 when the counter runs out in it.
    int CountBelow(int p) {
        ctx.Yield();
        ++countSteps;
        if (p > chainLimit) return ++limitCounter >= kCounterLimit ? -1 : kNone;
        if (p % kKeptEvery == 0 && chainLimit - p >= kCountedKeptBeforeLimit) return CountKept(p);
        return CountLinks(p);
    }

    [[gnu::noinline]] int CountKept(int p) {
        const Branch b = Look(p, true);
        if (b.barren) return kNone;
        if (const int count = leafCounts.Find(b.key); count >= 0) {
            limitCounter += count;
            return limitCounter >= kCounterLimit ? -1 : kNone;
        }
        const int countOnEntry = limitCounter;
        const int r = CountLinks(p);
        if (r == kNone) leafCounts.Keep(b.key, limitCounter - countOnEntry);
        return r;
    }

    [[gnu::always_inline]] int CountLinks(int p) {
        if (p == chainLimit) {
            // Every link from here ends on the limit: they are counted, not walked.
            limitCounter += CountUpTo(OtherCellLinks(p), 81);
            if (!inChain.Has(cells[p - 1])) limitCounter += SameCellLinks(p).Count();
            return limitCounter >= kCounterLimit ? -1 : kNone;
        }
        return EachLink(p, [&] { return CountBelow(p + 1) < 0 ? -1 : kNone; });
    }

    int Hit(int result, int p, int d) {
        if (result == kCycle) {
            for (int i = 1; i < p; i += 2) {
                const int a = cells[i], b = cells[i + 1];
                if (a == b) {
                    if (!multiValue.Has(a)) continue;
                    for (int k : digits[a])
                        if (k != chainDigits[i] && k != chainDigits[i + 1])
                            VerwijderKnop(ctx, k, a);
                } else {
                    RemoveSeenByBoth(ctx, a, b, chainDigits[i]);
                }
            }
        } else if (result == kStrong) {
            PlaceDigit(ctx, d, cells[0]);
        } else {
            VerwijderKnop(ctx, chainDigits[p], cells[p]);
        }
        ctx.stepSize.links = p + 1;
        if (ctx.HintOnly()) {
            HintRecord& h = ctx.hint;
            // The record of AIC: HintVariant the result (1 a cycle, 2 a strong, 3 a weak
            // discontinuity), HintCells[k] and HintValues[k] the chain's cells and digits
            // from its start, both counts its length.
            h.HintVariant = result;
            h.HintCellCount = h.HintValueCount = p + 1;
            for (int i = 0; i <= p; ++i) {
                h.HintCells[i + 1] = cells[i];
                h.HintValues[i + 1] = chainDigits[i];
            }
            h.HintKind = HintKind::AIC;
        }
        return result;
    }
};

}  // namespace

int AIC(SolveContext& ctx, int chainLimit) {
    AicTables& tables = ctx.Scratch().Get<AicTables>(SolverScratch::kAic);
    tables.leafCounts.Clear();
    auto search = std::make_unique<AicSearch>(ctx, chainLimit, tables.deadEnds, tables.leafCounts);
    for (int d = 1; d <= 9; ++d) {
        int r = search->Run(d);
        if (r < 0) return kNone;  // the counter ends the whole call
        if (r == kNone) continue;
        // Branches given up uncounted: the walk is counted again up to the chain.
        if (search->uncounted) r = search->Recount();
        if (r < 0) return kNone;
        search->Hit(r, search->found.close, d);
        return r;
    }
    return kNone;
}

}  // namespace tavi
