// SPDX-License-Identifier: GPL-3.0-or-later
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

// The routine of each rung, in the catalog's order (kRungCatalog).
struct Routine {
    int number;
    RungOutcome (*run)(SolveContext&);
};

#define TAVI_RUNG(expr) [](SolveContext& ctx) { return expr; }

constexpr Routine kRoutines[] = {
    {3, TAVI_RUNG(Placed(HiddenSingle(ctx)))},
    {4, TAVI_RUNG(Placed(NakedSingle(ctx)))},
    {5, TAVI_RUNG(Removed(PointingPair(ctx)))},
    {6, TAVI_RUNG(Removed(BoxLine(ctx)))},
    {7, TAVI_RUNG(Removed(NakedHidden(ctx, true, 2)))},
    {7, TAVI_RUNG(Removed(NakedHidden(ctx, true, 3)))},
    {7, TAVI_RUNG(Removed(NakedHidden(ctx, false, 2)))},
    {7, TAVI_RUNG(Removed(NakedHidden(ctx, true, 4)))},
    {7, TAVI_RUNG(Removed(NakedHidden(ctx, false, 3)))},
    {7, TAVI_RUNG(Removed(NakedHidden(ctx, true, 5)))},
    {8, TAVI_RUNG(Removed(XWing(ctx)))},
    {9, TAVI_RUNG(Removed(SwordFish(ctx)))},
    {10, TAVI_RUNG(Removed(MultiXWing(ctx)))},
    {11, TAVI_RUNG(Removed(EmptyRectangle(ctx)))},
    {12, TAVI_RUNG(Removed(XYWing(ctx)))},
    {13, TAVI_RUNG(Removed(TwoStringKite(ctx)))},
    {14, TAVI_RUNG(Removed(Skyscraper(ctx)))},
    {15, TAVI_RUNG(Removed(XYZWing(ctx)))},
    {16, TAVI_RUNG(Removed(SimpleColoring(ctx)))},
    {17, TAVI_RUNG(Removed(JellyFish(ctx)))},
    {18, TAVI_RUNG(Removed(WXYZWing(ctx)))},
    {19, TAVI_RUNG(ColorResult(MultiColor(ctx)))},
    {20, TAVI_RUNG(Removed(FinnedXWing(ctx)))},
    {21, TAVI_RUNG(Removed(Medusa(ctx)))},
    {22, TAVI_RUNG(Removed(SueDeCoq(ctx)))},
    {23, TAVI_RUNG(Removed(APE(ctx)))},
    {24, TAVI_RUNG(Removed(UniqueRectangle(ctx)))},
    {25, TAVI_RUNG(Removed(AvoidableRectangle(ctx)))},
    {26, TAVI_RUNG(Removed(ExtendedAPE(ctx)))},
    {27, TAVI_RUNG(Removed(BUG(ctx)))},
    {28, TAVI_RUNG(LoopResult(NiceLoops(ctx, 6)))},
    {29, TAVI_RUNG(LoopResult(AIC(ctx, 10)))},
    {30, TAVI_RUNG(Removed(XYChain(ctx)))},
    {31, TAVI_RUNG(Removed(ATE(ctx)))},
    {32, TAVI_RUNG(LoopResult(NiceLoops(ctx, 7)))},
    {33, TAVI_RUNG(LoopResult(AIC(ctx, 20)))},
    {34, TAVI_RUNG(Removed(ALSxz(ctx)))},
    {35, TAVI_RUNG(Removed(MultiFish(ctx)))},
    {36, TAVI_RUNG(Removed(Forcing(ctx)))},
    {37, TAVI_RUNG(Removed(ExtendedATE(ctx)))},
    {38, TAVI_RUNG(LoopResult(AIC(ctx, 30)))},
    {39, TAVI_RUNG(Placed(Bifurcation(ctx)))},
};
#undef TAVI_RUNG

static_assert(std::size(kRoutines) == std::size(kRungCatalog));

constexpr std::array<Rung, kRungCount> MakeRungs() {
    std::array<Rung, kRungCount> rungs{};
    for (int i = 0; i < kRungCount; ++i)
        rungs[i] = Rung{kRungCatalog[i], kRoutines[i].run, kRungCatalog[i].Level()};
    return rungs;
}
constexpr bool RoutinesMatchCatalog() {
    for (int i = 0; i < kRungCount; ++i)
        if (kRoutines[i].number != kRungCatalog[i].number) return false;
    return true;
}
static_assert(RoutinesMatchCatalog());

constexpr std::array<Rung, kRungCount> kRungs = MakeRungs();
constexpr int kHeadCount = 10;  // techniques 3..7: the fixed head of every ladder

static_assert(kRungs[kHeadCount].number == kFirstOrderedTechnique);
static_assert(kRungs[kRungCount - 1].number == kBifurcationTechnique);

bool IsSingle(const Rung& r) { return r.number == 3 || r.number == 4; }

// The rungs in the fixed order of the table, the first `count` of them.
RungOrder TableOrder(int count) {
    RungOrder order;
    for (int i = 0; i < count; ++i)
        order.Add(&kRungs[size_t(i)]);
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

}  // namespace

std::span<const Rung> LadderRungs() { return kRungs; }

std::span<const Rung> RungsOf(int technique) {
    int first = 0;
    while (first < kRungCount && kRungs[size_t(first)].number != technique)
        ++first;
    int last = first;
    while (last < kRungCount && kRungs[size_t(last)].number == technique)
        ++last;
    return {kRungs.data() + first, kRungs.data() + last};
}

int RungIndex(const Rung& rung) { return int(&rung - kRungs.data()); }

RungOrder OrderedRungs(const TechniqueOrder& order, const std::function<bool(int)>& on) {
    RungOrder rungs;
    for (int i = 0; i < kHeadCount; ++i)
        rungs.Add(&kRungs[size_t(i)]);
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
            out = RunRung(ctx, *rung);
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

RungOutcome RunRung(SolveContext& ctx, const Rung& rung) {
    const RungOutcome out = rung.run(ctx);
    if (out.found && !ctx.HintOnly()) ctx.RaiseLevel(rung.level);
    return out;
}

const Rung* RunTechnique(SolveContext& ctx, int technique) {
    for (const Rung& rung : RungsOf(technique)) {
        ctx.hint.Conclusions.Clear();
        if (RunRung(ctx, rung).found) return &rung;
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

SolveOutcome SolveSudoku(SolveContext& ctx, const WorkbenchRun& run) {
    Board& b = ctx.board;
    ctx.SolvingLevel = 0;
    b.CurrentGrid = b.Puzzle;
    int cellsLeft = CountEmpty(b.Puzzle);
    if (GivensClash(b.Puzzle)) return {};

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
    if (end == WalkEnd::Contradiction) return {false, false, ctx.SolvingLevel};
    // An exhausted ladder on a full board (filled by a rung other than a single)
    // is full, but the run answers unsolved.
    return {end == WalkEnd::Solved, end == WalkEnd::Solved || cellsLeft == 0, ctx.SolvingLevel};
}

SolveOutcome SolveSudokuGame(SolveContext& ctx, const LadderObserver& observer) {
    Board& b = ctx.board;
    ctx.SolvingLevel = 0;
    b.CurrentGrid = b.Puzzle;
    int cellsLeft = CountEmpty(b.Puzzle);
    if (GivensClash(b.Puzzle)) return {};

    LadderWalk walk;
    walk.rungs = kFixedOrder.View();
    if (observer.hit)
        walk.hit = [&](const Rung& rung) {
            observer.hit(rung);
            return true;
        };
    const bool solved = WalkLadder(ctx, walk, cellsLeft).end == WalkEnd::Solved;
    return {solved, solved, ctx.SolvingLevel};
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
