// Soundness of the whole ladder: over thousands of generated puzzles whose unique
// solution is known, no rung may ever take away a true candidate or place a wrong
// digit. The test walks the rung table, so every technique joins it by itself the
// day it lands.
#include <gtest/gtest.h>

#include <sstream>

#include "grid/candidates.h"
#include "solver/ladder.h"
#include "support/puzzles.h"

namespace tavi {
namespace {

// The first fault of the board against the solution, or "" when there is none.
std::string FaultAgainst(const Board& board, const Digits& solution) {
    for (int c = 0; c < 81; ++c) {
        const int placed = board.CurrentGrid[c];
        if (placed && placed != solution[c])
            return "wrong digit " + std::to_string(placed) + " at " + CellName(c);
        if (!placed && !board.Has(solution[c], c))
            return "true candidate " + std::to_string(solution[c]) + " removed from " + CellName(c);
    }
    return "";
}

std::string Describe(const GeneratedPuzzle& p, const Rung& rung, int step,
                     const std::string& fault) {
    std::ostringstream s;
    s << "rung " << rung.number << " (" << rung.Name() << ") at step " << step << ": " << fault
      << "\n  puzzle " << FormatDigits(p.puzzle, '.');
    return s.str();
}

constexpr int kPuzzles = 2000;

TEST(Soundness, TheWorkbenchLadderNeverLosesTheSolution) {
    const auto& puzzles = testing::GeneratedPuzzles(kPuzzles);
    int solved = 0;
    for (const auto& p : puzzles) {
        SolveContext ctx(Side::Workbench);
        ctx.board = BoardFromPuzzle(p.puzzle);
        int step = 0;
        std::string failure;
        WorkbenchRun run;
        run.observer.hit = [&](const Rung& rung) {
            ++step;
            if (!failure.empty()) return;
            const std::string fault = FaultAgainst(ctx.board, p.solution);
            if (!fault.empty()) failure = Describe(p, rung, step, fault);
        };
        const bool ok = SolveSudoku(ctx, run);
        ASSERT_EQ(failure, "");
        if (ok) {
            ++solved;
            ASSERT_EQ(ctx.board.CurrentGrid, p.solution);
            ASSERT_GE(ctx.SolvingLevel, 1);
        }
    }
    // The singles, subsets and bifurcation solve nearly all minimal puzzles.
    EXPECT_GT(solved, kPuzzles * 9 / 10);
}

TEST(Soundness, TheGameLadderNeverLosesTheSolution) {
    const auto& puzzles = testing::GeneratedPuzzles(kPuzzles);
    for (int i = 0; i < kPuzzles; i += 4) {
        const auto& p = puzzles[i];
        SolveContext ctx(Side::Game);
        ctx.board = BoardFromPuzzle(p.puzzle);
        std::string failure;
        int step = 0;
        LadderObserver observer;
        observer.hit = [&](const Rung& rung) {
            ++step;
            const std::string fault = FaultAgainst(ctx.board, p.solution);
            if (failure.empty() && !fault.empty()) failure = Describe(p, rung, step, fault);
        };
        if (SolveSudokuGame(ctx, nullptr, observer)) {
            ASSERT_EQ(ctx.board.CurrentGrid, p.solution);
        }
        ASSERT_EQ(failure, "");
    }
}

// Every rung on its own, at every state that the ladder passes through, so that a
// rung is checked on many boards even where an easier rung would have come first.
TEST(Soundness, EveryRungAtEveryStateKeepsTheSolution) {
    const auto& puzzles = testing::GeneratedPuzzles(kPuzzles);
    const auto rungs = LadderRungs();
    std::vector<int> hits(rungs.size());
    for (int i = 0; i < 300; ++i) {
        const auto& p = puzzles[i];
        SolveContext ctx(Side::Workbench);
        ctx.board = BoardFromPuzzle(p.puzzle);
        int step = 0;
        std::string failure;
        WorkbenchRun run;
        run.observer.hit = [&](const Rung&) {
            ++step;
            for (size_t r = 0; r < rungs.size() && failure.empty(); ++r) {
                SolveContext trial = ctx;
                if (!rungs[r].run(trial).found) continue;
                ++hits[r];
                const std::string fault = FaultAgainst(trial.board, p.solution);
                if (!fault.empty()) failure = Describe(p, rungs[r], step, fault);
            }
        };
        SolveSudoku(ctx, run);
        ASSERT_EQ(failure, "");
    }
    // How often each rung found something, for the log.
    for (size_t r = 0; r < rungs.size(); ++r)
        if (hits[r])
            std::cout << "rung " << rungs[r].number << " " << rungs[r].Name() << ": " << hits[r]
                      << " hits\n";
    // The rungs that exist today all had something to do.
    for (size_t r = 0; r < 10; ++r)
        EXPECT_GT(hits[r], 0) << rungs[r].Name();
}

}  // namespace
}  // namespace tavi
