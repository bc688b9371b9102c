// SPDX-License-Identifier: GPL-3.0-or-later
// Soundness of the whole ladder: over thousands of generated puzzles whose unique
// solution is known, no rung may ever take away a true candidate or place a wrong
// digit. And a hint must tell exactly the step that the same rung would take, and
// change nothing. The tests walk the rung table, so every technique joins them by
// itself the day it lands.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iostream>
#include <sstream>
#include <tuple>

#include "grid/candidates.h"
#include "hints/hint_search.h"
#include "hints/hint_truth.h"
#include "solver/ladder.h"
#include "solver/solutions.h"
#include "support/boards.h"
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

// The conclusions that turn `before` into `after`, as the board shows them:
// digits placed, then candidates gone that no placement took with it.
std::vector<Conclusion> ChangesOnBoard(const Board& before, const Board& after) {
    std::vector<Conclusion> out;
    Board placed = before;
    for (int c = 0; c < 81; ++c)
        if (after.CurrentGrid[c] != before.CurrentGrid[c]) {
            out.push_back({std::uint8_t(c), after.CurrentGrid[c], true});
            Zet(placed, after.CurrentGrid[c], c);
        }
    for (int c = 0; c < 81; ++c)
        for (int d = 1; d <= 9; ++d)
            if (placed.Has(d, c) && !after.Has(d, c))
                out.push_back({std::uint8_t(c), std::uint8_t(d), false});
    return out;
}

std::vector<Conclusion> Sorted(const ConclusionList& list) {
    std::vector<Conclusion> out(list.begin(), list.end());
    std::sort(out.begin(), out.end(), [](const Conclusion& a, const Conclusion& b) {
        return std::tuple(!a.placed, a.cell, a.digit) < std::tuple(!b.placed, b.cell, b.digit);
    });
    return out;
}

constexpr int kPuzzles = 2000;

// The whole ladder on the workbench over every puzzle, and as the game runs it
// over every fourth.
TEST(Soundness, TheLadderNeverLosesTheSolutionOnEitherSide) {
    const auto& puzzles = testing::GeneratedPuzzles(kPuzzles);
    int solved = 0;
    for (int i = 0; i < kPuzzles; ++i) {
        const auto& p = puzzles[i];
        for (const Side side : {Side::Workbench, Side::Game}) {
            if (side == Side::Game && i % 4 != 0) continue;
            SolveContext ctx(side);
            ctx.board = BoardFromPuzzle(p.puzzle);
            int step = 0;
            std::string failure;
            WorkbenchRun run;
            run.observer.hit = [&](const Rung& rung) {
                ++step;
                const std::string fault = FaultAgainst(ctx.board, p.solution);
                if (failure.empty() && !fault.empty()) failure = Describe(p, rung, step, fault);
            };
            const bool ok = side == Side::Workbench ? SolveSudoku(ctx, run).solved
                                                    : SolveSudokuGame(ctx, run.observer).solved;
            ASSERT_EQ(failure, "");
            if (!ok) continue;
            ASSERT_EQ(ctx.board.CurrentGrid, p.solution);
            if (side == Side::Workbench) {
                ++solved;
                ASSERT_GE(ctx.SolvingLevel, 1);
            }
        }
    }
    // The singles, subsets and bifurcation solve nearly all minimal puzzles.
    EXPECT_GT(solved, kPuzzles * 9 / 10);
}

// Puzzles of tests/data/grave_puzzles.txt with their solutions.
std::vector<GeneratedPuzzle> GravePuzzles() {
    std::ifstream file(std::string(TAVI_TEST_DATA_DIR) + "/grave_puzzles.txt");
    std::vector<GeneratedPuzzle> out;
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line[0] == '#') continue;
        const auto puzzle = ParseDigits(line);
        if (!puzzle) continue;
        const SolutionCount s = Solutions(*puzzle);
        if (s.count == 1) out.push_back({*puzzle, s.first});
    }
    return out;
}

// Every rung on its own, so that a rung is checked on many boards even where an
// easier rung would have come first: at every state that the ladder passes through
// on generated puzzles (and on the grave puzzles, kept for the rare rungs), and at
// every state of the hardest puzzles where the head of the ladder has nothing
// left. Each rung keeps the solution and raises its level; asked on the game side
// for a hint it changes nothing, and concludes in the record exactly what it then
// really does; on the hard boards the hint also tells and paints just that.
TEST(Soundness, EveryRungOnItsOwnKeepsTheSolutionAndHintsWhatItDoes) {
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
        // The rung asked for a hint, then let act, on the game side: "" when the
        // hint is what the rung does.
        auto HintFault = [&](const Rung& rung, bool tellsTheTruth) -> std::string {
            SolveContext game = ctx;
            game.side = Side::Game;
            game.SolvingLevel = 0;
            game.hint.Conclusions.Clear();
            testing::RecordingListener heard;
            SolveContext hint = game;
            hint.listener = &heard;
            hint.hint = testing::MarkedHint();
            bool found = false;
            {
                ModeScope looking(hint, HintMode(hint.Mode(), rung));
                found = rung.run(hint).found;
            }
            // Bifurcation's trials run on a copy and leave the level alone too.
            if (hint.board.Candidates != game.board.Candidates ||
                hint.board.CurrentGrid != game.board.CurrentGrid || hint.SolvingLevel != 0 ||
                !heard.placed.empty() || !heard.removed.empty())
                return Describe(p, rung, step, "the hint changed something");
            if (rung.run(game).found != found)
                return Describe(p, rung, step, "the hint and the rung disagree");
            if (!found) return "";
            std::ostringstream s;
            if (!rung.Fills(hint.hint.HintKind)) s << "filled kind " << hint.hint.HintKind << "; ";
            const auto told = Sorted(hint.hint.Conclusions);
            if (told.empty() || told != Sorted(game.hint.Conclusions) ||
                told != ChangesOnBoard(ctx.board, game.board))
                s << "the hint concludes " << FormatConclusions(hint.hint.Conclusions)
                  << ", the rung does " << FormatConclusions(game.hint.Conclusions) << "; ";
            if (tellsTheTruth) s << testing::TruthFaults(hint.hint, ctx.board);
            return s.str().empty()
                       ? ""
                       : Describe(p, rung, step, s.str()) + "\n" + FormatBoardLine(ctx.board);
        };
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
                if (found) {
                    ++hits[r];
                    const std::string fault = FaultAgainst(trial.board, p.solution);
                    if (!fault.empty()) failure = Describe(p, rungs[r], step, fault);
                }
                failure += HintFault(rungs[r], stalledOnly);
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
