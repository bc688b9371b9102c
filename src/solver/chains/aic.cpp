// Alternating inference chains: the nice loop's walk over nodes that are a cell
// and a digit, so that the digit may change inside a cell. Links alternate strong
// and weak from the first node; at each position the links inside the cell are
// tried before the links to other cells.
#include <bit>
#include <cstdlib>
#include <memory>
#include <vector>

#include "solver/chains/chain_links.h"
#include "solver/techniques.h"

namespace tavi {

using namespace chains;

namespace {

constexpr int kNone = 0, kCycle = 1, kStrong = 2, kWeak = 3;
constexpr int kCounterLimit = 50000;
constexpr int kSameCell = -1, kExhausted = 81;
// Dead ends are kept at every fourth position only: each lookup costs about what a
// few dozen steps of the walk do, and a branch met again is mostly met again at
// several positions in a row. A short walk does not repay the bookkeeping at all;
// dead ends are kept once the walk of a call has entered that many of those.
constexpr int kKeptEvery = 4;
constexpr long kFreshBeforeKeeping = 20000;

bool SameCellUnit(int a, int b) {
    return RowUnit(a) == RowUnit(b) || ColumnUnit(a) == ColumnUnit(b) || BoxUnit(a) == BoxUnit(b);
}

// The dead ends met so far, for the one start node being walked. Below a position
// the walk depends on nothing but the position, its last node, the in-chain flags,
// the start and whether the loop behind already holds a weak link that makes a
// closed loop count; a branch walked once without a hit is walked the same way
// the next time it is met, and its only trace is the number of times it ran into
// the limit. So that number is kept, and the branch is not walked again.
class DeadEnds {
  public:
    struct Key {
        std::uint64_t low = 0, high = 0;  // the in-chain flags
        std::uint32_t node = 0;           // position, cell, digit and the loop's flag
    };

    // A new start node: everything kept so far is forgotten.
    void NewStart() {
        if (++generation_ == 0) {  // after four billion starts: wipe, not misread
            for (std::size_t i = 0; table_ && i < kSize; ++i)
                table_.get()[i].generation = 0;
            generation_ = 1;
        }
    }

    // The limit count of a branch met before, or -1.
    int Find(const Key& key) const {
        if (!table_) return -1;
        for (std::size_t i = Slot(key), n = 0; n < kProbes; ++n, i = (i + 1) & kMask) {
            const Entry& e = table_.get()[i];
            if (e.generation != generation_) return -1;
            if (e.key.low == key.low && e.key.high == key.high && e.key.node == key.node)
                return int(e.count);
        }
        return -1;
    }

    void Keep(const Key& key, int count) {
        // On the first walk long enough to need it. Zeroed pages from the system
        // are zero entries of no generation, and only those used are touched.
        if (!table_) table_.reset(static_cast<Entry*>(std::calloc(kSize, sizeof(Entry))));
        if (!table_) return;
        for (std::size_t i = Slot(key), n = 0; n < kProbes; ++n, i = (i + 1) & kMask) {
            Entry& e = table_.get()[i];
            if (e.generation == generation_) continue;
            e = {key, generation_, std::uint32_t(count)};
            return;
        }
    }

  private:
    struct Entry {
        Key key;
        std::uint32_t generation = 0;
        std::uint32_t count = 0;
    };
    static constexpr std::size_t kSize = std::size_t{1} << 16, kMask = kSize - 1, kProbes = 8;

    static std::size_t Slot(const Key& k) {
        std::uint64_t h = k.low * 0x9E3779B97F4A7C15ull ^ k.high * 0xC2B2AE3D27D4EB4Full ^
                          std::uint64_t(k.node) * 0x165667B19E3779F9ull;
        h ^= h >> 29;
        return std::size_t(h) & kMask;
    }

    struct Free {
        void operator()(Entry* e) const { std::free(e); }
    };
    std::unique_ptr<Entry, Free> table_;
    std::uint32_t generation_ = 0;
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
    std::array<std::array<CellSet, 81>, 10> conjugatePeers{}, linkPeers{};
    std::array<DigitSet, 81> strongDigits{};  // the digits of which the cell is a strong node
    std::array<CellSet, 81> anyLink{};        // per cell: where a link from it may go, any digit

    // The walk.
    std::array<int, 83> cells{}, chainDigits{}, cellCursor{}, digitCursor{};
    // Per position in its cell phase: the cells a link may go to. The flags are
    // the same each time the walk comes back to the position, and so is the set.
    std::array<CellSet, 83> otherCells{};
    // Per position: whether a weak link behind it makes a closed loop count, and
    // the dead-end record of the branch below it while it is walked.
    std::array<bool, 83> loopFlag{};
    std::array<DeadEnds::Key, 83> branchKey{};
    std::array<int, 83> branchStart{};  // the limit count on entry; -1: not kept
    long freshCount = 0;
    DeadEnds& deadEnds;
    CellSet inChain;
    CellSet seesStartCell;
    std::array<DigitSet, 81> seesStartNode{};
    std::array<CellSet, 10> seesStartReach{};  // per digit: the cells that see a node of it

    AicSearch(SolveContext& c, int limit, DeadEnds& dead)
        : ctx(c), chainLimit(limit), deadEnds(dead) {
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
            for (int cell : holders[d])
                anyLink[cell] |= linkPeers[d][cell] | (biHolders[d] & PeerSet(cell));
        }
    }

    bool MultiStrong(int cell, int d) const {
        return multiValue.Has(cell) && links[d].strong.Has(cell);
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
        if (links[d].conjugate >> row & 1) return;
        for (int i : RowSet(row) & holders[d]) {
            if (i == start) continue;
            seesStartCell.Add(i);
            seesStartNode[i].Add(d);
            seesStartReach[d] |= PeerSet(i);
        }
    }

    // A weak link from position i to i + 1 that makes a closed loop count.
    bool WeakPair(int i) const {
        const int a = cells[i], b = cells[i + 1];
        return a == b ? multiValue.Has(a) : SharesUnitIn(a, b, links[chainDigits[i]].weak);
    }

    DeadEnds::Key KeyAt(int p) const {
        DeadEnds::Key k;
        // Below this position the walk asks for the flag of a cell only if a link
        // may lead there from a cell it can still reach (or for a cell that sees
        // the start's nodes, or for its own last cell). The cells it can reach are
        // found here through the links of every digit, the flagged cells barred;
        // the flags of all other cells make no difference and are left out, so
        // that more branches are known as the same.
        const int q = cells[p - 1];
        CellSet reached = CellSet::Of(q), frontier = reached, asked;
        while (!frontier.Empty()) {
            CellSet next;
            for (int c : frontier)
                next |= anyLink[c];
            asked |= next;
            frontier = next - inChain - reached;
            reached |= frontier;
        }
        asked |= seesStartCell;
        asked.Add(q);
        static_assert(sizeof(CellSet) == 2 * sizeof(std::uint64_t));
        const auto words = std::bit_cast<std::array<std::uint64_t, 2>>(inChain & asked);
        k.low = words[0];
        k.high = words[1];
        k.node = std::uint32_t(p | cells[p - 1] << 6 | chainDigits[p - 1] << 13 |
                               int(loopFlag[p]) << 17);
        return k;
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

    // The next digit from `from` of a link inside the cell at p-1.
    int SameCellLink(int p, int from) const {
        const int q = cells[p - 1], x = chainDigits[p - 1];
        DigitSet to;
        if (biValue.Has(q))
            to = digits[q];
        else if (p % 2 == 0 && multiValue.Has(q))
            to = digits[q] & strongDigits[q];
        to -= DigitSet::Of(x);
        const unsigned rest = unsigned(to.Mask()) >> (from - 1);
        return rest ? from + std::countr_zero(rest) : 10;
    }

    // The candidates for a link to another cell at p.
    CellSet OtherCellLinks(int p) const {
        const int q = cells[p - 1], x = chainDigits[p - 1];
        if (p % 2 == 1) return conjugatePeers[x][q] - inChain;
        return ((linkPeers[x][q]) | (biHolders[x] & PeerSet(q))) - inChain;
    }

    // Runs the search for start digit d: a result, or -1 when the counter ran out.
    int Run(int d) {
        inChain = CellSet();
        cellCursor.fill(kSameCell);
        digitCursor.fill(1);
        cellCursor[0] = 0;
        int p = 0;
        bool fresh = true;  // the position is entered, not come back to
        const CellSet starts = biHolders[d] | (links[d].strong & multiValue);
        while (p >= 0) {
            ctx.Yield();
            if (p == 0) {
                const int c = NextFrom(starts, cellCursor[0]);
                cellCursor[0] = c;
                if (c == 81) {
                    p = -1;
                    break;
                }
                cells[0] = c, chainDigits[0] = d;
                EnterFromOtherCell(c, 0);
                SetStart(c, d);
                deadEnds.NewStart();
                loopFlag[1] = false;
                p = 1, fresh = true;
                continue;
            }
            if (fresh) {
                if (p > chainLimit) {
                    cellCursor[p] = kExhausted;
                    if (++limitCounter >= kCounterLimit) return -1;
                }
                if (const int r = Close(p, d); r != kNone) return Hit(r, p, d);
                branchStart[p] = -1;
                if (p <= chainLimit) {
                    if (p >= 2) loopFlag[p] = loopFlag[p - 1] || (p % 2 == 1 && WeakPair(p - 2));
                    if (p % kKeptEvery == 0 && ++freshCount > kFreshBeforeKeeping) {
                        const DeadEnds::Key key = KeyAt(p);
                        if (const int count = deadEnds.Find(key); count >= 0) {
                            limitCounter += count;
                            if (limitCounter >= kCounterLimit) return -1;
                            cellCursor[p] = kExhausted;
                        } else {
                            branchKey[p] = key;
                            branchStart[p] = limitCounter;
                        }
                    }
                }
            }
            bool moved = false;
            if (cellCursor[p] == kSameCell && inChain.Has(cells[p - 1])) {
                cellCursor[p] = 0;
                otherCells[p] = OtherCellLinks(p);
            }
            if (cellCursor[p] == kSameCell) {
                const int k = SameCellLink(p, digitCursor[p]);
                if (k <= 9) {
                    digitCursor[p] = k;
                    cells[p] = cells[p - 1], chainDigits[p] = k;
                    inChain.Add(cells[p]);
                    moved = true;
                } else {
                    inChain.Add(cells[p - 1]);
                    digitCursor[p] = 1;
                    cellCursor[p] = 0;
                    otherCells[p] = OtherCellLinks(p);
                }
            }
            if (!moved && cellCursor[p] != kSameCell && cellCursor[p] < kExhausted) {
                // The set loses each cell as it is taken: its lowest is the next.
                const int c = otherCells[p].Empty() ? 81 : otherCells[p].First();
                if (c < 81) otherCells[p].Remove(c);
                cellCursor[p] = c;
                if (c < 81) {
                    cells[p] = c, chainDigits[p] = chainDigits[p - 1];
                    EnterFromOtherCell(c, p);
                    moved = true;
                }
            }
            if (moved) {
                ++p;
                cellCursor[p] = kSameCell;
                digitCursor[p] = 1;
                fresh = true;
                continue;
            }
            // Give the position up.
            if (branchStart[p] >= 0) deadEnds.Keep(branchKey[p], limitCounter - branchStart[p]);
            cellCursor[p] = kSameCell;
            digitCursor[p] = 1;
            --p;
            fresh = false;
            if (p >= 0) {
                inChain.Remove(cells[p]);
                if (cellCursor[p] == kSameCell)
                    ++digitCursor[p];
                else
                    ++cellCursor[p];
            }
        }
        return kNone;
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
            PlaceDigit(ctx, d, cells[0], 0);
        } else {
            VerwijderKnop(ctx, chainDigits[p], cells[p]);
        }
        if (ctx.HintOnly()) {
            HintRecord& h = ctx.hint;
            h.HintVariant = result;
            h.HintCellCount = h.HintValueCount = p + 1;
            for (int i = 0; i <= p; ++i) {
                h.HintCells[i + 1] = cells[i];
                h.HintValues[i + 1] = chainDigits[i];
            }
            h.HintKind = 31;
        }
        return result;
    }
};

}  // namespace

int AIC(SolveContext& ctx, int chainLimit, int newLevel) {
    thread_local DeadEnds deadEnds;
    auto search = std::make_unique<AicSearch>(ctx, chainLimit, deadEnds);
    for (int d = 1; d <= 9; ++d) {
        const int r = search->Run(d);
        if (r < 0) return kNone;  // the counter ends the whole call
        if (r != kNone) {
            if (!ctx.HintOnly()) ctx.RaiseLevel(newLevel);
            return r;
        }
    }
    return kNone;
}

}  // namespace tavi
