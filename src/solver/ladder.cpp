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
    {3, TAVI_RUNG(Placed(HiddenSingle(ctx))), 1, " - Scanning for Hidden Singles", {2, 0}},
    {4, TAVI_RUNG(Placed(NakedSingle(ctx))), 1, " - Scanning for Naked Singles", {1, 0}},
    {5, TAVI_RUNG(Removed(PointingPair(ctx))), 2, " - Scanning for Pointing Pairs", {3, 0}},
    {6, TAVI_RUNG(Removed(BoxLine(ctx))), 2, " - Scanning for Box/Line Reductions", {4, 0}},
    {7, TAVI_RUNG(Removed(NakedHidden(ctx, true, 2))), 3, " - Scanning for Naked Pairs", {5, 0}},
    {7, TAVI_RUNG(Removed(NakedHidden(ctx, true, 3))), 3, " - Scanning for Naked Triplets", {5, 0}},
    {7, TAVI_RUNG(Removed(NakedHidden(ctx, false, 2))), 3, " - Scanning for Hidden Pairs", {5, 0}},
    {7, TAVI_RUNG(Removed(NakedHidden(ctx, true, 4))), 3, " - Scanning for Naked Quads", {5, 0}},
    {7,
     TAVI_RUNG(Removed(NakedHidden(ctx, false, 3))),
     3,
     " - Scanning for Hidden Triplets",
     {5, 0}},
    {7, TAVI_RUNG(Removed(NakedHidden(ctx, true, 5))), 3, " - Scanning for Naked Quints", {5, 0}},
    {8, TAVI_RUNG(Removed(XWing(ctx))), 4, " - Scanning for X-Wing", {6, 0}},
    {9, TAVI_RUNG(Removed(SwordFish(ctx))), 4, " - Scanning for Swordfish", {7, 0}},
    {10, TAVI_RUNG(Removed(MultiXWing(ctx))), 4, " - Scanning for Multi-value X-Wing", {8, 0}},
    {11, TAVI_RUNG(Removed(EmptyRectangle(ctx))), 4, " - Scanning for Empty Rectangle", {9, 0}},
    {12, TAVI_RUNG(Removed(XYWing(ctx))), 5, " - Scanning for XY-Wing", {10, 0}},
    {13, TAVI_RUNG(Removed(TwoStringKite(ctx))), 5, " - Scanning for Two String Kite", {25, 0}},
    {14, TAVI_RUNG(Removed(Skyscraper(ctx))), 5, " - Scanning for Skyscraper", {26, 0}},
    {15, TAVI_RUNG(Removed(XYZWing(ctx))), 5, " - Scanning for XYZ-Wing", {11, 0}},
    {16, TAVI_RUNG(Removed(SimpleColoring(ctx))), 5, " - Scanning for Simple-Colour", {12, 21}},
    {17, TAVI_RUNG(Removed(JellyFish(ctx))), 6, " - Scanning for Jellyfish", {13, 0}},
    {18, TAVI_RUNG(Removed(WXYZWing(ctx))), 6, " - Scanning for WXYZ-Wing", {14, 0}},
    {19, TAVI_RUNG(ColorResult(MultiColor(ctx))), 6, " - Scanning for Multi-Colour", {22, 23}},
    {20, TAVI_RUNG(Removed(FinnedXWing(ctx))), 6, " - Scanning for Finned X-Wing", {15, 0}},
    {21, TAVI_RUNG(Removed(Medusa(ctx))), 6, " - Scanning for 3D Medusa", {34, 0}},
    {22, TAVI_RUNG(Removed(SueDeCoq(ctx))), 6, " - Scanning for Sue-De-Coq", {27, 0}},
    {23, TAVI_RUNG(Removed(APE(ctx))), 6, " - Scanning for (Aligned) Pair Exclusion", {16, 0}},
    {24, TAVI_RUNG(Removed(UniqueRectangle(ctx))), 6, " - Scanning for Unique Rectangle", {29, 0}},
    {25,
     TAVI_RUNG(Removed(AvoidableRectangle(ctx))),
     6,
     " - Scanning for Avoidable Rectangle",
     {30, 0}},
    {26,
     TAVI_RUNG(Removed(ExtendedAPE(ctx))),
     6,
     " - Scanning for Extended Aligned Pair Exclusion",
     {16, 0}},
    {27, TAVI_RUNG(Removed(BUG(ctx))), 6, " - Scanning for Bivalue Universal Grave", {24, 0}},
    {28, TAVI_RUNG(LoopResult(NiceLoops(ctx, 6))), 6, " - Scanning for Nice Loop", {28, 0}},
    {29,
     TAVI_RUNG(LoopResult(AIC(ctx, 10, 6))),
     6,
     " - Scanning for Alternating Inference Chains",
     {31, 0}},
    {30, TAVI_RUNG(Removed(XYChain(ctx))), 7, " - Scanning for XY-Chain", {18, 19}},
    {31, TAVI_RUNG(Removed(ATE(ctx))), 7, " - Scanning for Aligned Triple Exclusion", {17, 0}},
    {32, TAVI_RUNG(LoopResult(NiceLoops(ctx, 7))), 7, " - Scanning for Nice Loop", {28, 0}},
    {33,
     TAVI_RUNG(LoopResult(AIC(ctx, 20, 7))),
     7,
     " - Scanning for Alternating Inference Chains",
     {31, 0}},
    {34, TAVI_RUNG(Removed(ALSxz(ctx))), 7, " - Scanning for ALS-xz", {32, 33}},
    {35, TAVI_RUNG(Removed(MultiFish(ctx))), 7, " - Scanning for MultiFish", {37, 0}},
    {36, TAVI_RUNG(Removed(Forcing(ctx))), 7, " - Scanning for Forcing Chain", {35, 36}},
    {37,
     TAVI_RUNG(Removed(ExtendedATE(ctx))),
     8,
     " - Scanning for Extended Aligned Triple Exclusion",
     {17, 0}},
    {38,
     TAVI_RUNG(LoopResult(AIC(ctx, 30, 8))),
     8,
     " - Scanning for Alternating Inference Chains",
     {31, 0}},
    {39, TAVI_RUNG(Placed(Bifurcation(ctx))), 8, " - Scanning for Bifurcation", {20, 0}},
};
#undef TAVI_RUNG

constexpr int kRungCount = int(std::size(kRungs));
constexpr int kHeadCount = 10;  // techniques 3..7: the fixed head of every ladder

static_assert(kRungs[kHeadCount].number == kFirstOrderedTechnique);
static_assert(kRungs[kRungCount - 1].number == kBifurcationTechnique);

bool IsSingle(const Rung& r) { return r.number == 3 || r.number == 4; }

// The rungs in the fixed order of the table, the first `count` of them.
RungOrder TableOrder(int count) {
    RungOrder order;
    for (int i = 0; i < count; ++i)
        order.Add(&kRungs[i]);
    return order;
}
const RungOrder kFixedOrder = TableOrder(kRungCount);
const RungOrder kTrialOrder = TableOrder(kRungCount - 1);  // without Bifurcation
const RungOrder kHeadOrder = TableOrder(kHeadCount);

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

int RungIndex(const Rung& rung) { return int(&rung - kRungs); }

RungOrder OrderedRungs(const TechniqueOrder& order, const std::function<bool(int)>& on) {
    RungOrder rungs;
    for (int i = 0; i < kHeadCount; ++i)
        rungs.Add(&kRungs[i]);
    // The technique at each position; where two entries share one, the higher
    // number wins.
    std::array<int, kTechniqueCount> at{};
    for (int i = kFirstOrderedTechnique; i <= kBifurcationTechnique; ++i) {
        const int position = i == kBifurcationTechnique ? i : order[i];
        if (position >= kFirstOrderedTechnique && position <= kBifurcationTechnique)
            at[position] = i;
    }
    for (int p = kFirstOrderedTechnique; p <= kBifurcationTechnique; ++p)
        if (at[p] && (!on || on(at[p]))) rungs.Add(&RungsOf(at[p])[0]);
    return rungs;
}

WalkResult WalkLadder(SolveContext& ctx, const LadderWalk& walk, int& cellsLeft) {
    ModeScope scope(ctx, ctx.Mode());
    const Rung* last = nullptr;
    while (true) {
        if (walk.stop && walk.stop()) return {WalkEnd::Stopped, last};
        if (walk.yieldEachPass) ctx.Yield();
        if (walk.checkContradiction && EmptyCell(ctx.board)) return {WalkEnd::Contradiction, last};

        const Rung* hit = nullptr;
        RungOutcome out;
        for (const Rung* rung : walk.rungs) {
            if (walk.before) walk.before(*rung);
            ctx.hint.Conclusions.Clear();
            ctx.stepSize = {};
            if (walk.modeFor) scope.Set(walk.modeFor(*rung));
            out = rung->run(ctx);
            scope.Set(scope.Saved());
            if (out.found) {
                hit = rung;
                break;
            }
        }
        if (!hit) return {WalkEnd::Exhausted, last};
        last = hit;
        if (walk.hit && !walk.hit(*hit)) return {WalkEnd::Halted, last};
        if (walk.firstHitOnly) return {WalkEnd::Hit, last};

        cellsLeft -= out.placed;
        if (walk.onlySinglesFinish ? IsSingle(*hit) && cellsLeft == 0 : cellsLeft <= 0)
            return {WalkEnd::Solved, last};
    }
}

const Rung* RunTechnique(SolveContext& ctx, int technique) {
    for (const Rung& rung : RungsOf(technique)) {
        ctx.hint.Conclusions.Clear();
        if (rung.run(ctx).found) return &rung;
    }
    return nullptr;
}

std::string RungKey(const Rung& rung) {
    if (rung.number != 7) return std::to_string(rung.number);
    return "7." + std::to_string(RungIndex(rung) - RungIndex(RungsOf(7)[0]) + 1);
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

    static const RungOrder kDefaultOrder = OrderedRungs(DefaultTechniqueOrder());
    const RungOrder order = run.order ? OrderedRungs(*run.order) : kDefaultOrder;
    const bool showing = (run.ImportRunning || run.CheckRunning) && run.observer.progress;
    LadderWalk walk;
    walk.rungs = order.View();
    walk.yieldEachPass = true;
    walk.onlySinglesFinish = true;
    // The base text names the level reached; at level 0 there is none yet.
    if (showing || run.observer.before)
        walk.before = [&](const Rung& rung) {
            if (showing) {
                std::string base;
                if (ctx.SolvingLevel >= 1)
                    base = std::string(run.ImportRunning ? "Solving Imported Sudoku : Rated "
                                                         : "Solving Sudoku : Rated ") +
                           std::string(LevelName(ctx.SolvingLevel)) + " or higher";
                run.observer.progress(base + std::string(rung.label));
            }
            if (run.observer.before) run.observer.before(rung);
        };
    if (run.observer.hit)
        walk.hit = [&](const Rung& rung) {
            run.observer.hit(rung);
            return true;
        };

    const WalkEnd end = WalkLadder(ctx, walk, cellsLeft).end;
    if (end == WalkEnd::Contradiction) return false;
    // An exhausted ladder on a full board (filled by a rung other than a single)
    // still speaks, but the run answers false.
    if (end == WalkEnd::Solved || cellsLeft == 0)
        SpeakSolved(run.notifier, ctx.SolvingLevel, !run.ImportRunning,
                    !run.ImportRunning && !run.CheckRunning);
    return end == WalkEnd::Solved;
}

bool SolveSudokuGame(SolveContext& ctx, Notifier* notifier, const LadderObserver& observer) {
    Board& b = ctx.board;
    ctx.SolvingLevel = 0;
    b.CurrentGrid = b.Puzzle;
    int cellsLeft = CountEmpty(b.Puzzle);
    if (GivensClash(b.Puzzle)) return false;

    LadderWalk walk;
    walk.rungs = kFixedOrder.View();
    if (observer.hit)
        walk.hit = [&](const Rung& rung) {
            observer.hit(rung);
            return true;
        };
    if (WalkLadder(ctx, walk, cellsLeft).end != WalkEnd::Solved) return false;
    SpeakSolved(notifier, ctx.SolvingLevel, true, true);
    return true;
}

bool BIFSolveSudoku(SolveContext& ctx, int digit, int cell) {
    Board& b = ctx.board;
    Zet(b, digit, cell);
    b.CurrentGrid[cell] = std::uint8_t(digit);
    int cellsLeft = b.EmptyCount();
    if (cellsLeft == 0) return true;
    LadderWalk walk;
    walk.rungs = kTrialOrder.View();
    walk.yieldEachPass = true;
    return WalkLadder(ctx, walk, cellsLeft).end == WalkEnd::Solved;
}

bool PreSolve(SolveContext& ctx, int& cellsToSolve, bool& contradiction) {
    LadderWalk walk;
    walk.rungs = kHeadOrder.View();
    walk.onlySinglesFinish = true;
    const WalkEnd end = WalkLadder(ctx, walk, cellsToSolve).end;
    if (end == WalkEnd::Contradiction) contradiction = true;
    return end == WalkEnd::Solved;
}

}  // namespace tavi
