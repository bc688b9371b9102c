// SPDX-License-Identifier: GPL-3.0-or-later
// Soundness of the whole ladder: over thousands of generated puzzles whose unique
// solution is known, no rung may ever take away a true candidate or place a wrong
// digit. The test walks the rung table, so every technique joins it by itself the
// day it lands.
#include <gtest/gtest.h>

#include <fstream>
#include <iostream>
#include <sstream>

#include "grid/candidates.h"
#include "solver/brute_force.h"
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
        const bool ok = SolveSudoku(ctx, run).solved;
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
        if (SolveSudokuGame(ctx, observer)) {
            ASSERT_EQ(ctx.board.CurrentGrid, p.solution);
        }
        ASSERT_EQ(failure, "");
    }
}

// Puzzles of tests/data/grave_puzzles.txt with their solutions.
std::vector<GeneratedPuzzle> GravePuzzles() {
    std::ifstream file(std::string(TAVI_TEST_DATA_DIR) + "/grave_puzzles.txt");
    std::vector<GeneratedPuzzle> out;
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line[0] == '#') continue;
        const auto puzzle = ParseDigits(line);
        if (!puzzle) continue;
        SolveContext ctx;
        ctx.board.Puzzle = *puzzle;
        if (!BruteForceSolve(ctx)) continue;
        out.push_back({*puzzle, ctx.board.CurrentGrid});
    }
    return out;
}

// Every rung on its own, so that a rung is checked on many boards even where an
// easier rung would have come first, for its soundness and for the level it
// raises: at every state that the ladder passes through on generated puzzles (and
// on the grave puzzles, kept for the rare rungs), and at every state of the
// hardest puzzles where the head of the ladder has nothing left.
TEST(Soundness, EveryRungOnItsOwnKeepsTheSolution) {
    const auto& generated = testing::GeneratedPuzzles(kPuzzles);
    std::vector<GeneratedPuzzle> puzzles(generated.begin(), generated.begin() + 300);
    const auto graves = GravePuzzles();
    EXPECT_GE(graves.size(), 20u);
    puzzles.insert(puzzles.end(), graves.begin(), graves.end());
    const size_t firstHard = puzzles.size();
    const auto hard = testing::HardPuzzles();
    ASSERT_GE(hard.size(), 300u) << "tests/data/hard_puzzles.txt";
    puzzles.insert(puzzles.end(), hard.begin(), hard.end());

    const auto rungs = LadderRungs();
    std::vector<int> hits(rungs.size());
    for (size_t k = 0; k < puzzles.size(); ++k) {
        const auto& p = puzzles[k];
        // Bifurcation's trials on the hard boards would only cost time.
        const bool rare = k >= 300, stalledOnly = k >= firstHard;
        SolveContext ctx(Side::Workbench);
        ctx.board = BoardFromPuzzle(p.puzzle);
        int step = 0;
        bool tried = false;  // this state has had every rung tried
        std::string failure;
        auto tryEveryRung = [&] {
            tried = true;
            for (size_t r = 0; r < rungs.size() && failure.empty(); ++r) {
                if (rare && rungs[r].number == kBifurcationTechnique) continue;
                if (stalledOnly && rungs[r].number < kFirstOrderedTechnique) continue;
                SolveContext trial = ctx;
                trial.SolvingLevel = 0;
                const bool found = RunRung(trial, rungs[r]).found;
                // A hit raises exactly its catalog level, a miss none.
                if (trial.SolvingLevel != (found ? rungs[r].level : 0))
                    failure =
                        Describe(p, rungs[r], step, "level " + std::to_string(trial.SolvingLevel));
                if (!found) continue;
                ++hits[r];
                const std::string fault = FaultAgainst(trial.board, p.solution);
                if (!fault.empty()) failure = Describe(p, rungs[r], step, fault);
            }
        };
        WorkbenchRun run;
        run.observer.before = [&](const Rung& rung) {
            if (!tried && (!stalledOnly || rung.number >= kFirstOrderedTechnique)) tryEveryRung();
        };
        run.observer.hit = [&](const Rung& rung) {
            ++step;
            tried = false;
            const std::string fault = FaultAgainst(ctx.board, p.solution);
            if (failure.empty() && !fault.empty()) failure = Describe(p, rung, step, fault);
        };
        SolveSudoku(ctx, run);
        ASSERT_EQ(failure, "");
    }
    std::cout << "hits per rung:";
    for (size_t r = 0; r < rungs.size(); ++r)
        if (hits[r]) std::cout << ' ' << RungKey(rungs[r]) << ':' << hits[r];
    std::cout << '\n';
    // Every rung had something to do, the ordered ones at least twenty times.
    // MultiFish needs four digits missing from whole rows, which generated puzzles
    // never leave; its cases are built by hand in the rung cases.
    for (size_t r = 0; r < rungs.size(); ++r) {
        const int n = rungs[r].number;
        if (n < kFirstOrderedTechnique) {
            EXPECT_GT(hits[r], 0) << rungs[r].Name();
        } else if (n != 35 && n != kBifurcationTechnique) {
            EXPECT_GE(hits[r], 20) << rungs[r].Name();
        }
    }
}

}  // namespace
}  // namespace tavi
