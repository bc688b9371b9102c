// Soundness of the whole ladder: over thousands of generated puzzles whose unique
// solution is known, no rung may ever take away a true candidate or place a wrong
// digit. The test walks the rung table, so every technique joins it by itself the
// day it lands.
#include <gtest/gtest.h>

#include <fstream>
#include <iostream>
#include <set>
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

// Every rung on its own, at every state that the ladder passes through, so that a
// rung is checked on many boards even where an easier rung would have come first.
TEST(Soundness, EveryRungAtEveryStateKeepsTheSolution) {
    const auto& generated = testing::GeneratedPuzzles(kPuzzles);
    std::vector<GeneratedPuzzle> puzzles(generated.begin(), generated.begin() + 300);
    const auto graves = GravePuzzles();
    EXPECT_GE(graves.size(), 20u);
    puzzles.insert(puzzles.end(), graves.begin(), graves.end());
    const auto rungs = LadderRungs();
    std::vector<int> hits(rungs.size());
    for (size_t k = 0; k < puzzles.size(); ++k) {
        const auto& p = puzzles[k];
        // The grave puzzles are there for the rare rungs; Bifurcation's trials on
        // their hard boards would only cost time.
        const bool grave = k >= 300;
        SolveContext ctx(Side::Workbench);
        ctx.board = BoardFromPuzzle(p.puzzle);
        int step = 0;
        std::string failure;
        WorkbenchRun run;
        run.observer.hit = [&](const Rung&) {
            ++step;
            for (size_t r = 0; r < rungs.size() && failure.empty(); ++r) {
                if (grave && rungs[r].number == kBifurcationTechnique) continue;
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
    // The rungs that exist today all had something to do; those that rest on
    // rarer patterns at least twenty times.
    for (size_t r = 0; r < 10; ++r)
        EXPECT_GT(hits[r], 0) << rungs[r].Name();
    for (size_t r = 0; r < rungs.size(); ++r) {
        const int n = rungs[r].number;
        // The ordered rungs that have landed; the rest are still placeholders.
        static const std::set<int> kLanded = {8,  9,  10, 11, 12, 13, 14, 15, 17, 18,
                                              20, 22, 23, 24, 25, 26, 27, 31, 34, 36, 37};
        if (kLanded.count(n)) {
            EXPECT_GE(hits[r], 20) << rungs[r].Name();
        }
    }
}

// The hardest puzzles the generator found, kept in tests/data: at every state where
// the head of the ladder has nothing left, every ordered rung on its own. These are
// the boards the hard techniques live on.
std::vector<GeneratedPuzzle> HardPuzzles() {
    std::ifstream file(std::string(TAVI_TEST_DATA_DIR) + "/hard_puzzles.txt");
    std::vector<GeneratedPuzzle> out;
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line[0] == '#') continue;
        out.push_back(
            {testing::DigitsOf(line.substr(0, 81)), testing::DigitsOf(line.substr(82, 81))});
    }
    return out;
}

TEST(Soundness, EveryOrderedRungOnTheHardestPuzzles) {
    const auto puzzles = HardPuzzles();
    ASSERT_GE(puzzles.size(), 300u) << "tests/data/hard_puzzles.txt";
    const auto rungs = LadderRungs();
    std::vector<int> hits(rungs.size());
    for (const auto& p : puzzles) {
        SolveContext ctx(Side::Workbench);
        ctx.board = BoardFromPuzzle(p.puzzle);
        std::string failure;
        bool tried = false;  // this pass of the ladder has had its rungs tried
        int step = 0;
        WorkbenchRun run;
        run.observer.before = [&](const Rung& rung) {
            if (tried || rung.number < kFirstOrderedTechnique || !failure.empty()) return;
            tried = true;
            for (size_t r = 0; r < rungs.size(); ++r) {
                if (rungs[r].number < kFirstOrderedTechnique ||
                    rungs[r].number == kBifurcationTechnique)
                    continue;
                SolveContext trial = ctx;
                if (!rungs[r].run(trial).found) continue;
                ++hits[r];
                const std::string fault = FaultAgainst(trial.board, p.solution);
                if (!fault.empty()) failure = Describe(p, rungs[r], step, fault);
            }
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
    std::cout << "hits per ordered rung on the hardest puzzles:";
    for (size_t r = 0; r < rungs.size(); ++r)
        if (hits[r]) std::cout << ' ' << RungKey(rungs[r]) << ':' << hits[r];
    std::cout << '\n';
}

}  // namespace
}  // namespace tavi
