// SPDX-License-Identifier: GPL-3.0-or-later
// Nice loops on one digit: a depth-first walk over the holders of conjugate pairs
// with links alternating strong and weak, from a strong link at the first cell.
// It ends in a closed loop (the weak links' houses lose the digit), in a strong
// link back to the first cell (the digit is placed there), or in a holder that
// sees the first cell and the walk's last cell (it loses the digit).
#include "solver/chains/chain_links.h"
#include "solver/techniques.h"

namespace tavi {

using namespace chains;

namespace {

constexpr int kNone = 0, kCycle = 1, kStrong = 2, kWeak = 3;
constexpr int kShortLimit = 11;  // the short form refuses this position and beyond

struct LoopWalk {
    SolveContext& ctx;
    int digit;
    bool shortLoops;
    DigitLinks links;
    std::array<CellSet, 81> conjugatePeers{};  // per cell: holders sharing a conjugate unit
    std::array<CellSet, 81> linkPeers{};       // the same with weak units
    std::array<int, 82> cells{};
    std::array<int, 82> cursor{};
    CellSet inLoop, seesStart;
    CellSet holders;  // of the digit

    LoopWalk(SolveContext& c, int d, bool shortForm) : ctx(c), digit(d), shortLoops(shortForm) {
        holders = ctx.board.CellsWith(d);
        links = LinksOf(holders);
        for (int u = 0; u < 27; ++u) {
            const CellSet in = links.strong & UnitSet(u);
            for (int cell : in) {
                if (links.conjugate >> u & 1) conjugatePeers[cell] |= in;
                if ((links.conjugate | links.weak) >> u & 1) linkPeers[cell] |= in;
            }
        }
        for (int cell = 0; cell < 81; ++cell) {
            conjugatePeers[cell].Remove(cell);
            linkPeers[cell].Remove(cell);
        }
    }

    // Closed loop of length p: is a weak link inside a weak unit?
    bool HasWeakUnit(int p) const {
        for (int i = 1; i < p; i += 2)
            if (SharesUnitIn(cells[i], cells[i + 1], links.weak)) return true;
        return false;
    }

    int Run() {
        int p = 0;
        cursor.fill(0);
        inLoop = CellSet();
        while (p >= 0) {
            ctx.Yield();
            int found = 81;
            if (p == 0) {
                found = NextFrom(links.strong - inLoop, cursor[0]);
                if (found < 81) {
                    cells[0] = found;
                    seesStart = PeerSet(found) & holders;
                }
            } else if (p % 2 == 1) {
                if (!(shortLoops && p >= kShortLimit)) {
                    const int q = cells[p - 1], first = cells[0];
                    found = NextFrom(conjugatePeers[q] - inLoop, cursor[p]);
                    if (p > 1 && first >= cursor[p] && first < found &&
                        SharesUnitIn(q, first, links.conjugate)) {
                        cells[p] = first;
                        return Hit(kStrong, p);
                    }
                }
            } else {
                const int q = cells[p - 1], first = cells[0];
                const CellSet extend = linkPeers[q] - inLoop;
                int from = cursor[p];
                while (true) {
                    found = NextFrom(extend, from);
                    if (p < 4) break;
                    const int victim = NextFrom((seesStart - inLoop) & PeerSet(q), from);
                    const int close = first >= from && SeesCell(q, first) ? first : 81;
                    if (victim <= found && victim <= close && victim < 81) {
                        cells[p] = victim;
                        return Hit(kWeak, p);
                    }
                    if (close < found) {
                        cells[p] = first;
                        if (HasWeakUnit(p)) return Hit(kCycle, p);
                        from = close + 1;  // a loop with nothing to remove is passed over
                        continue;
                    }
                    break;
                }
            }
            if (found < 81) {
                cursor[p] = found;
                cells[p] = found;
                inLoop.Add(found);
                ++p;
                cursor[p] = 0;
                continue;
            }
            // The position is exhausted: step back and try the next cell there.
            cursor[p] = 0;
            --p;
            if (p >= 0) {
                inLoop.Remove(cells[p]);
                ++cursor[p];
            }
        }
        return kNone;
    }

    // The record of NiceLoop: HintVariant the result (1 a cycle, 2 a strong, 3 a weak
    // discontinuity), HintNumber the digit, HintCells[1..HintCellCount] the loop's cells
    // from its start.
    int Hit(int result, int p) {
        HintRecord& h = ctx.hint;
        if (result == kCycle) {
            for (int i = 1; i < p; i += 2)
                RemoveSeenByBoth(ctx, cells[i], cells[i + 1], digit);
        } else if (result == kStrong) {
            PlaceDigit(ctx, digit, cells[0]);
        } else {
            VerwijderKnop(ctx, digit, cells[p]);
        }
        ctx.stepSize.links = p + 1;
        if (ctx.HintOnly()) {
            h.HintVariant = result;
            h.HintNumber = digit;
            h.HintCellCount = p + 1;
            for (int i = 0; i <= p; ++i)
                h.HintCells[i + 1] = cells[i];
            h.HintKind = HintKind::NiceLoop;
        }
        return result;
    }
};

}  // namespace

int NiceLoops(SolveContext& ctx, int newLevel) {
    const bool shortLoops = newLevel == 6;
    for (int d = 1; d <= 9; ++d) {
        LoopWalk walk(ctx, d, shortLoops);
        if (const int r = walk.Run(); r != kNone) {
            return r;
        }
    }
    return kNone;
}

}  // namespace tavi
