#include "solver/ladder.h"

#include "grid/candidates.h"
#include "grid/levels.h"
#include "solver/techniques.h"

namespace tavi {

namespace {

constexpr RungOutcome Removed(bool found) { return {found, 0}; }
constexpr RungOutcome Placed(bool found) { return {found, found ? 1 : 0}; }
// NiceLoops and AIC: 1 or 3 removed, 2 one digit placed.
constexpr RungOutcome LoopResult(int r) { return {r == 1 || r == 2 || r == 3, r == 2 ? 1 : 0}; }
// MultiColor: below 0 nothing, 0 removed, above 0 that many placed.
constexpr RungOutcome ColorResult(int r) { return {r >= 0, r > 0 ? r : 0}; }

#define TAVI_RUNG(expr) [](SolveContext& ctx) { return expr; }

constexpr Rung kRungs[] = {
    {3, TAVI_RUNG(Placed(HiddenSingle(ctx))), 1, " - Scanning for Hidden Singles"},
    {4, TAVI_RUNG(Placed(NakedSingle(ctx))), 1, " - Scanning for Naked Singles"},
    {5, TAVI_RUNG(Removed(PointingPair(ctx))), 2, " - Scanning for Pointing Pairs"},
    {6, TAVI_RUNG(Removed(BoxLine(ctx))), 2, " - Scanning for Box/Line Reductions"},
    {7, TAVI_RUNG(Removed(NakedHidden(ctx, true, 2))), 3, " - Scanning for Naked Pairs"},
    {7, TAVI_RUNG(Removed(NakedHidden(ctx, true, 3))), 3, " - Scanning for Naked Triplets"},
    {7, TAVI_RUNG(Removed(NakedHidden(ctx, false, 2))), 3, " - Scanning for Hidden Pairs"},
    {7, TAVI_RUNG(Removed(NakedHidden(ctx, true, 4))), 3, " - Scanning for Naked Quads"},
    {7, TAVI_RUNG(Removed(NakedHidden(ctx, false, 3))), 3, " - Scanning for Hidden Triplets"},
    {7, TAVI_RUNG(Removed(NakedHidden(ctx, true, 5))), 3, " - Scanning for Naked Quints"},
    {8, TAVI_RUNG(Removed(XWing(ctx))), 4, " - Scanning for X-Wing"},
    {9, TAVI_RUNG(Removed(SwordFish(ctx))), 4, " - Scanning for Swordfish"},
    {10, TAVI_RUNG(Removed(MultiXWing(ctx))), 4, " - Scanning for Multi-value X-Wing"},
    {11, TAVI_RUNG(Removed(EmptyRectangle(ctx))), 4, " - Scanning for Empty Rectangle"},
    {12, TAVI_RUNG(Removed(XYWing(ctx))), 5, " - Scanning for XY-Wing"},
    {13, TAVI_RUNG(Removed(TwoStringKite(ctx))), 5, " - Scanning for Two String Kite"},
    {14, TAVI_RUNG(Removed(Skyscraper(ctx))), 5, " - Scanning for Skyscraper"},
    {15, TAVI_RUNG(Removed(XYZWing(ctx))), 5, " - Scanning for XYZ-Wing"},
    {16, TAVI_RUNG(Removed(SimpleColoring(ctx))), 5, " - Scanning for Simple-Colour"},
    {17, TAVI_RUNG(Removed(JellyFish(ctx))), 6, " - Scanning for Jellyfish"},
    {18, TAVI_RUNG(Removed(WXYZWing(ctx))), 6, " - Scanning for WXYZ-Wing"},
    {19, TAVI_RUNG(ColorResult(MultiColor(ctx))), 6, " - Scanning for Multi-Colour"},
    {20, TAVI_RUNG(Removed(FinnedXWing(ctx))), 6, " - Scanning for Finned X-Wing"},
    {21, TAVI_RUNG(Removed(Medusa(ctx))), 6, " - Scanning for 3D Medusa"},
    {22, TAVI_RUNG(Removed(SueDeCoq(ctx))), 6, " - Scanning for Sue-De-Coq"},
    {23, TAVI_RUNG(Removed(APE(ctx))), 6, " - Scanning for (Aligned) Pair Exclusion"},
    {24, TAVI_RUNG(Removed(UniqueRectangle(ctx))), 6, " - Scanning for Unique Rectangle"},
    {25, TAVI_RUNG(Removed(AvoidableRectangle(ctx))), 6, " - Scanning for Avoidable Rectangle"},
    {26, TAVI_RUNG(Removed(ExtendedAPE(ctx))), 6,
     " - Scanning for Extended Aligned Pair Exclusion"},
    {27, TAVI_RUNG(Removed(BUG(ctx))), 6, " - Scanning for Bivalue Universal Grave"},
    {28, TAVI_RUNG(LoopResult(NiceLoops(ctx, 6))), 6, " - Scanning for Nice Loop"},
    {29, TAVI_RUNG(LoopResult(AIC(ctx, 10, 6))), 6, " - Scanning for Alternating Inference Chains"},
    {30, TAVI_RUNG(Removed(XYChain(ctx))), 7, " - Scanning for XY-Chain"},
    {31, TAVI_RUNG(Removed(ATE(ctx))), 7, " - Scanning for Aligned Triple Exclusion"},
    {32, TAVI_RUNG(LoopResult(NiceLoops(ctx, 7))), 7, " - Scanning for Nice Loop"},
    {33, TAVI_RUNG(LoopResult(AIC(ctx, 20, 7))), 7, " - Scanning for Alternating Inference Chains"},
    {34, TAVI_RUNG(Removed(ALSxz(ctx))), 7, " - Scanning for ALS-xz"},
    {35, TAVI_RUNG(Removed(MultiFish(ctx))), 7, " - Scanning for MultiFish"},
    {36, TAVI_RUNG(Removed(Forcing(ctx))), 7, " - Scanning for Forcing Chain"},
    {37, TAVI_RUNG(Removed(ExtendedATE(ctx))), 8,
     " - Scanning for Extended Aligned Triple Exclusion"},
    {38, TAVI_RUNG(LoopResult(AIC(ctx, 30, 8))), 8, " - Scanning for Alternating Inference Chains"},
    {39, TAVI_RUNG(Placed(Bifurcation(ctx))), 8, " - Scanning for Bifurcation"},
};
#undef TAVI_RUNG

constexpr int kRungCount = int(std::size(kRungs));
constexpr int kHeadCount = 10;  // techniques 3..7: the fixed head of every ladder
constexpr int kFirstTail = 8;   // the first technique that follows TechniqueOrder

static_assert(kRungs[kHeadCount].number == kFirstTail);
static_assert(kRungs[kRungCount - 1].number == kBifurcationTechnique);

bool IsSingle(const Rung& r) { return r.number == 3 || r.number == 4; }

// The tail of the workbench ladder in the user's order: at each position 8..39 the
// technique whose order entry names it. Where two entries share a position the
// higher technique number wins, as the scan does not stop at the first.
std::array<const Rung*, 40> TailInOrder(const TechniqueOrder& order) {
    std::array<const Rung*, 40> tail{};
    for (int p = kFirstTail; p <= kBifurcationTechnique; ++p)
        for (int i = kFirstTail; i <= kBifurcationTechnique; ++i) {
            const int position = i == kBifurcationTechnique ? i : order[i];
            if (position == p) tail[p] = &RungsOf(i)[0];
        }
    return tail;
}

int CountEmpty(const Digits& d) {
    int n = 0;
    for (auto x : d)
        n += x == 0;
    return n;
}

void SpeakSolved(Notifier* notifier, int level, bool beep, bool message) {
    if (!notifier) return;
    if (beep) notifier->Beep();
    if (message && level >= 1 && level <= 8)
        notifier->Message("Sudoku solved", SolvedMessage(level));
}

}  // namespace

std::span<const Rung> LadderRungs() { return kRungs; }

std::span<const Rung> RungsOf(int technique) {
    int first = 0;
    while (first < kRungCount && kRungs[first].number != technique)
        ++first;
    int last = first;
    while (last < kRungCount && kRungs[last].number == technique)
        ++last;
    return {kRungs + first, kRungs + last};
}

TechniqueOrder DefaultTechniqueOrder() {
    TechniqueOrder order{};
    for (int i = 0; i < kTechniqueCount; ++i)
        order[i] = i;
    return order;
}

std::string SolvedMessage(int level) {
    return "Sudoku solved and rated as " + std::string(LevelName(level));
}

bool SolveSudoku(SolveContext& ctx, const WorkbenchRun& run) {
    Board& b = ctx.board;
    ctx.SolvingLevel = 0;
    b.CurrentGrid = b.Puzzle;
    int cellsLeft = CountEmpty(b.Puzzle);
    if (GivensClash(b.Puzzle)) return false;

    const auto tail = TailInOrder(run.order ? *run.order : DefaultTechniqueOrder());
    const bool showing = (run.ImportRunning || run.CheckRunning) && run.observer.progress;
    std::string base;
    auto runRung = [&](const Rung& rung) {
        if (showing) run.observer.progress(base + std::string(rung.label));
        if (run.observer.before) run.observer.before(rung);
        const RungOutcome out = rung.run(ctx);
        if (out.found && run.observer.hit) run.observer.hit(rung);
        return out;
    };

    while (true) {
        ctx.Yield();
        if (EmptyCell(b)) return false;
        if (showing && ctx.SolvingLevel >= 1)
            base = std::string(run.ImportRunning ? "Solving Imported Sudoku : Rated "
                                                 : "Solving Sudoku : Rated ") +
                   std::string(LevelName(ctx.SolvingLevel)) + " or higher";

        bool progressed = false;
        for (int i = 0; i < kHeadCount && !progressed; ++i) {
            const RungOutcome out = runRung(kRungs[i]);
            if (!out.found) continue;
            progressed = true;
            if (IsSingle(kRungs[i]) && --cellsLeft == 0) {
                SpeakSolved(run.notifier, ctx.SolvingLevel, !run.ImportRunning,
                            !run.ImportRunning && !run.CheckRunning);
                return true;
            }
        }
        for (int p = kFirstTail; p <= kBifurcationTechnique && !progressed; ++p) {
            if (!tail[p]) continue;
            const RungOutcome out = runRung(*tail[p]);
            if (!out.found) continue;
            progressed = true;
            // Only a single ends the workbench's run; a board filled by another
            // rung is run over once more and ends below, with false.
            cellsLeft -= out.placed;
        }
        if (progressed) continue;

        if (cellsLeft == 0)
            SpeakSolved(run.notifier, ctx.SolvingLevel, !run.ImportRunning,
                        !run.ImportRunning && !run.CheckRunning);
        return false;
    }
}

bool SolveSudokuGame(SolveContext& ctx, Notifier* notifier, const LadderObserver& observer) {
    Board& b = ctx.board;
    ctx.SolvingLevel = 0;
    b.CurrentGrid = b.Puzzle;
    int cellsLeft = CountEmpty(b.Puzzle);
    if (GivensClash(b.Puzzle)) return false;

    while (true) {
        if (EmptyCell(b)) return false;
        bool progressed = false;
        for (const Rung& rung : kRungs) {
            const RungOutcome out = rung.run(ctx);
            if (!out.found) continue;
            if (observer.hit) observer.hit(rung);
            cellsLeft -= out.placed;
            if (cellsLeft == 0) {
                SpeakSolved(notifier, ctx.SolvingLevel, true, true);
                return true;
            }
            progressed = true;
            break;
        }
        if (!progressed) return false;
    }
}

bool BIFSolveSudoku(SolveContext& ctx, int digit, int cell) {
    Board& b = ctx.board;
    Zet(b, digit, cell);
    b.CurrentGrid[cell] = std::uint8_t(digit);
    int cellsLeft = b.EmptyCount();
    if (cellsLeft == 0) return true;
    while (true) {
        ctx.Yield();
        if (EmptyCell(b)) return false;
        bool progressed = false;
        for (int i = 0; i < kRungCount - 1; ++i) {
            const RungOutcome out = kRungs[i].run(ctx);
            if (!out.found) continue;
            cellsLeft -= out.placed;
            if (cellsLeft <= 0) return true;
            progressed = true;
            break;
        }
        if (!progressed) return false;
    }
}

bool PreSolve(SolveContext& ctx, int& cellsToSolve, bool& contradiction) {
    while (true) {
        if (EmptyCell(ctx.board)) {
            contradiction = true;
            return false;
        }
        bool progressed = false;
        for (int i = 0; i < kHeadCount; ++i) {
            const RungOutcome out = kRungs[i].run(ctx);
            if (!out.found) continue;
            if (IsSingle(kRungs[i]) && --cellsToSolve == 0) return true;
            progressed = true;
            break;
        }
        if (!progressed) return false;
    }
}

}  // namespace tavi
