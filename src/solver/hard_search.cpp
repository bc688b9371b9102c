// SPDX-License-Identifier: GPL-3.0-or-later
#include "solver/hard_search.h"

#include <algorithm>
#include <array>
#include <random>
#include <set>
#include <tuple>
#include <utility>

#include "grid/candidates.h"
#include "grid/levels.h"
#include "solver/ladder.h"
#include "solver/solutions.h"

namespace tavi {

namespace {

constexpr int kFirstBeyondHead = 8;  // the first technique after the fixed head

// Spreads a start value over all bits, so that neighbouring values give unrelated
// random numbers.
std::uint64_t Mixed(std::uint64_t x) {
    x += 0x9e3779b97f4a7c15ULL;
    x = (x ^ (x >> 30)) * 0xbf58476d1ce4e5b9ULL;
    x = (x ^ (x >> 27)) * 0x94d049bb133111ebULL;
    return x ^ (x >> 31);
}

// The digits a cell may take beside the givens: none of its peers holds them.
CandidateMask FreeDigits(const Digits& givens, int cell) {
    CandidateMask used = 0;
    for (int peer : Peers[cell])
        if (givens[peer]) used |= DigitBit(givens[peer]);
    return CandidateMask(kAllCandidates & ~used);
}

// Of the cells Bifurcation tries on the board of `ctx`, those whose true digit
// lets the ladder without Bifurcation finish, and how far below Extreme each of
// those trials stayed.
std::pair<int, int> TrialsThatSolve(const SolveContext& ctx, const Digits& solution) {
    int solving = 0, ease = 0;
    for (int cell = 0; cell < 81; ++cell) {
        if (CountDigits(ctx.board.Candidates[cell]) != 2) continue;
        SolveContext trial = ctx;
        trial.listener = nullptr;
        trial.SolvingLevel = 0;
        ModeScope forced(trial,
                         trial.Mode().Without(SolveMode::kHintOnly).With(SolveMode::kForceZet));
        if (BIFSolveSudoku(trial, solution[cell], cell)) {
            ++solving;
            ease += kLevelCount - trial.SolvingLevel;
        }
    }
    return {solving, ease};
}

}  // namespace

LadderRating RateOnLadder(SolveContext& ctx, const Digits& puzzle, const Digits* solution) {
    ctx.board = BoardFromPuzzle(puzzle);
    ctx.SolvingLevel = 0;
    LadderRating r;
    std::array<int, 10> hitsAtLevel{};
    WorkbenchRun run;
    run.observer.hit = [&](const Rung& rung) {
        ++r.steps;
        if (rung.number >= kFirstBeyondHead) ++r.stepsBeyondHead;
        if (rung.number > 4) ++r.stepsBeyondSingles;
        if (RungIndex(rung) > r.hardestRung) {
            r.hardestRung = RungIndex(rung);
            r.emptyAtHardest = ctx.board.EmptyCount();
        }
        ++hitsAtLevel[rung.level];
    };
    bool lastRungSeen = false;
    run.observer.before = [&](const Rung& rung) {
        if (rung.number != kBifurcationTechnique) return;
        if (solution) {
            const auto [solving, ease] = TrialsThatSolve(ctx, *solution);
            if (!lastRungSeen ||
                std::pair(solving, ease) < std::pair(r.trialsThatSolve, r.trialEase))
                std::tie(r.trialsThatSolve, r.trialEase) = std::pair(solving, ease);
        }
        if (lastRungSeen) return;
        lastRungSeen = true;
        for (int c = 0; c < 81; ++c)
            r.pairsAtLastRung += CountDigits(ctx.board.Candidates[c]) == 2;
    };
    const bool solved = SolveSudoku(ctx, run).solved;
    r.level = solved ? ctx.SolvingLevel : kOutlaw;
    r.stepsAtLevel = hitsAtLevel[std::min(ctx.SolvingLevel, 9)];
    r.cellsLeft = solved ? 0 : ctx.board.EmptyCount();
    return r;
}

WalkReport HardPuzzleSearch::Walk(const Digits& start, std::uint64_t draw, long ratings) {
    WalkReport report;
    std::mt19937_64 rng(Mixed(draw));
    const auto below = [&](int n) { return int(rng() % std::uint64_t(n)); };

    Digits current = start;
    const bool trials = TowardOutlaw();
    const Digits startSolution = trials ? Solutions(start, 1).first : Digits{};
    LadderRating currentRating = RateOnLadder(ctx_, current, trials ? &startSolution : nullptr);
    std::set<Digits> found;
    std::array<int, 10> foundPerLevel{};

    while (report.unique < ratings && report.tried < 50 * ratings) {
        ++report.tried;
        // Take one or two clues away, then put one or two digits in cells that were
        // empty, each a digit that none of the cell's peers holds.
        Digits candidate = current;
        std::array<int, 81> cells;
        int count = 0;
        for (int c = 0; c < 81; ++c)
            if (current[c]) cells[count++] = c;
        const int away = 1 + below(2), put = 1 + below(2);
        for (int i = 0; i < away && i < count; ++i) {
            std::swap(cells[i], cells[i + below(count - i)]);
            candidate[cells[i]] = 0;
        }
        count = 0;
        for (int c = 0; c < 81; ++c)
            if (!current[c]) cells[count++] = c;
        for (int i = 0; i < put && i < count; ++i) {
            std::swap(cells[i], cells[i + below(count - i)]);
            const CandidateMask free = FreeDigits(candidate, cells[i]);
            int pick = CountDigits(free) ? below(CountDigits(free)) : -1;
            for (int d = 1; d <= 9 && pick >= 0; ++d)
                if (HasDigit(free, d) && pick-- == 0) candidate[cells[i]] = std::uint8_t(d);
        }
        const SolutionCount solutions = Solutions(candidate, 2);
        if (solutions.count != 1) continue;
        ++report.unique;
        const LadderRating rating =
            RateOnLadder(ctx_, candidate, trials ? &solutions.first : nullptr);
        if (rating.level >= wanted_ && foundPerLevel[rating.level] < findsPerLevel_ &&
            found.insert(candidate).second) {
            ++foundPerLevel[rating.level];
            report.finds.push_back({candidate, solutions.first, rating});
        }
        if (rating.Hardness(trials) >= currentRating.Hardness(trials)) {
            current = candidate;
            currentRating = rating;
            ++report.kept;
        }
    }
    report.last = {current, Solutions(current, 1).first, currentRating};
    return report;
}

}  // namespace tavi
