// SPDX-License-Identifier: GPL-3.0-or-later
// A hint must tell exactly the step that the same rung would take, and change
// nothing. This walks generated puzzles up the ladder and, at every state, asks
// each rung for a hint before letting it act: the conclusions in the record must
// be exactly what the rung then really does to the board. It walks the rung
// table, so every technique joins it the day it lands.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <tuple>

#include "grid/candidates.h"
#include "solver/ladder.h"
#include "support/boards.h"
#include "support/puzzles.h"

namespace tavi {
namespace {

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

TEST(HintOnly, EveryRungConcludesAsAHintExactlyWhatItDoes) {
    std::map<HintKind, int> hits;
    for (const auto& p : testing::GeneratedPuzzles(300)) {
        SolveContext state(Side::Game);
        state.board = BoardFromPuzzle(p.puzzle);
        for (int step = 0; step < 200 && !EmptyCell(state.board); ++step) {
            const Rung* hit = nullptr;
            for (const Rung& rung : LadderRungs()) {
                testing::RecordingListener heard;
                SolveContext hint = state;
                hint.listener = &heard;
                hint.SolvingLevel = 0;
                hint.hint = testing::MarkedHint();
                hint.hint.Conclusions.Clear();
                bool found = false;
                {
                    ModeScope looking(hint, SolveMode{}
                                                .With(SolveMode::kHintOnly)
                                                .With(SolveMode::kForceZet, rung.number == 39));
                    found = rung.run(hint).found;
                }
                ASSERT_EQ(hint.board.Candidates, state.board.Candidates) << rung.Name();
                ASSERT_EQ(hint.board.CurrentGrid, state.board.CurrentGrid) << rung.Name();
                // Bifurcation's trials run on a copy and leave the level alone too.
                ASSERT_EQ(hint.SolvingLevel, 0) << rung.Name();
                ASSERT_TRUE(heard.placed.empty() && heard.removed.empty()) << rung.Name();

                SolveContext real = state;
                real.hint.Conclusions.Clear();
                ASSERT_EQ(rung.run(real).found, found) << rung.Name();
                if (!found) continue;
                ASSERT_TRUE(rung.Fills(hint.hint.HintKind))
                    << rung.Name() << " filled kind " << hint.hint.HintKind;
                const auto told = Sorted(hint.hint.Conclusions);
                ASSERT_FALSE(told.empty()) << rung.Name() << " concluded nothing";
                ASSERT_EQ(told, Sorted(real.hint.Conclusions)) << rung.Name();
                ASSERT_EQ(told, ChangesOnBoard(state.board, real.board))
                    << rung.Name() << " on " << FormatBoardLine(state.board);
                ++hits[hint.hint.HintKind];
                state.board = real.board;
                hit = &rung;
                break;
            }
            if (!hit) break;
        }
    }
    for (HintKind kind : {HintKind::NakedSingle, HintKind::HiddenSingle, HintKind::PointingPair,
                          HintKind::BoxLineReduction, HintKind::Subset, HintKind::ALSxz,
                          HintKind::ForcingChainFromCell})
        EXPECT_GT(hits[kind], 0) << "no hint of kind " << kind;
}

}  // namespace
}  // namespace tavi
