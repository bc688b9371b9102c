// A hint must tell exactly the step that the same rung would take, and change
// nothing. This walks generated puzzles with the head of the ladder, asks each
// rung for a hint before letting it act, and holds the record against what the
// rung then really did.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <sstream>

#include "solver/ladder.h"
#include "support/boards.h"
#include "support/puzzles.h"

namespace tavi {
namespace {

using testing::Removal;

bool InList(const std::array<int, HintRecord::kListSize + 1>& list, int count, int value) {
    for (int i = 1; i <= count; ++i)
        if (list[i] == value) return true;
    return false;
}

// The cells of the unit a record names: kind 2 and 5 by variant 1 row, 2 column, 3 box.
const std::array<std::uint8_t, 9>& UnitOf(int variant, int row, int column, int boxCell) {
    if (variant == 1) return UnitCells[row];
    if (variant == 2) return UnitCells[9 + column];
    return UnitCells[18 + Global::BoxOfCell[boxCell]];
}

int PlacesOf(const Board& b, int digit, const std::array<std::uint8_t, 9>& unit) {
    int n = 0;
    for (int c : unit)
        n += b.Has(digit, c);
    return n;
}

// Why the record `h` does not describe the step from `before` that placed
// `placed` and removed `removed`; "" when it does.
std::string Mismatch(const HintRecord& h, const Board& before,
                     const std::vector<BoardChange>& placed, const std::vector<Removal>& removed,
                     int subsetSize) {
    std::ostringstream why;
    auto placedOnly = [&](int cell, int digit) {
        if (placed.size() != 1 || placed[0].cell != cell || placed[0].digit != digit ||
            !removed.empty())
            why << "the rung placed something else than " << CellName(cell) << "=" << digit;
    };
    auto removesOnly = [&](auto allowed) {
        if (!placed.empty() || removed.empty()) why << "a removing rung placed or removed nothing";
        for (auto [c, d] : removed)
            if (!allowed(c, d))
                why << " removed " << CellName(c) << "-" << d << " outside the record;";
    };
    switch (h.HintKind) {
        case 1:
            placedOnly(h.HintCell, h.HintNumber);
            if (h.HintRow != h.HintCell / 9 || h.HintColumn != h.HintCell % 9) why << "row/column";
            break;
        case 2: {
            const int cell = 9 * h.HintRow + h.HintColumn;
            placedOnly(cell, h.HintNumber);
            const int v = h.HintVariant;
            if (v < 1 || v > 3 ||
                PlacesOf(before, h.HintNumber, UnitOf(v, h.HintRow, h.HintColumn, cell)) != 1)
                why << "variant " << h.HintVariant << " names no unit where the digit is single";
            break;
        }
        case 3: {
            const int lt = h.HintCell, seg = h.HintVariant;
            auto onLine = [&](int c) {
                return seg < 3 ? c / 9 == lt / 9 + seg : c % 9 == lt % 9 + seg - 3;
            };
            auto inBox = [&](int c) { return Global::BoxLeftTopOfCell[c] == lt; };
            removesOnly([&](int c, int d) { return d == h.HintNumber && onLine(c) && !inBox(c); });
            for (int c : UnitCells[18 + Global::BoxOfCell[lt]])
                if (before.Has(h.HintNumber, c) && !onLine(c))
                    why << "the digit leaves the segment";
            break;
        }
        case 4: {
            const bool row = h.HintVariant == 1;
            const int line = row ? h.HintRow : h.HintColumn;
            auto onLine = [&](int c) { return row ? c / 9 == line : c % 9 == line; };
            auto inBox = [&](int c) { return Global::BoxLeftTopOfCell[c] == h.HintCell; };
            removesOnly([&](int c, int d) { return d == h.HintNumber && inBox(c) && !onLine(c); });
            for (int c : UnitCells[row ? line : 9 + line])
                if (before.Has(h.HintNumber, c) && !inBox(c)) why << "the digit leaves the box";
            break;
        }
        case 5: {
            const bool naked = h.HintVariant > 0;
            const int kind = std::abs(h.HintVariant);
            const auto& unit = UnitOf(kind, h.HintRow, h.HintColumn, h.HintCell);
            if (h.HintCellCount != subsetSize || h.HintValueCount != subsetSize) why << "size";
            auto inUnit = [&](int c) {
                return std::find(unit.begin(), unit.end(), c) != unit.end();
            };
            auto setCell = [&](int c) { return InList(h.HintCells, h.HintCellCount, c); };
            auto setDigit = [&](int d) { return InList(h.HintValues, h.HintValueCount, d); };
            for (int i = 1; i <= h.HintCellCount; ++i)
                if (!inUnit(h.HintCells[i])) why << "a cell outside the unit";
            if (naked)
                removesOnly([&](int c, int d) { return inUnit(c) && !setCell(c) && setDigit(d); });
            else
                removesOnly([&](int c, int d) { return setCell(c) && !setDigit(d); });
            break;
        }
        default: why << "kind " << h.HintKind;
    }
    return why.str();
}

int SubsetSize(const Rung& r) {
    const std::string_view name = r.Name();
    if (name.ends_with("Pairs")) return 2;
    if (name.ends_with("Triplets")) return 3;
    if (name.ends_with("Quads")) return 4;
    return 5;
}

TEST(HintOnly, EveryHeadRungTellsTheStepItWouldTakeAndChangesNothing) {
    const auto head = LadderRungs().first(10);
    int hints[6] = {};
    for (const auto& p : testing::GeneratedPuzzles(300)) {
        SolveContext state(Side::Game);
        state.board = BoardFromPuzzle(p.puzzle);
        for (int step = 0; step < 200 && !EmptyCell(state.board); ++step) {
            const Rung* hit = nullptr;
            for (const Rung& rung : head) {
                testing::RecordingListener heard;
                SolveContext hint = state;
                hint.HintOnly = true;
                hint.listener = &heard;
                hint.SolvingLevel = 0;
                hint.hint = testing::MarkedHint();
                const bool found = rung.run(hint).found;
                ASSERT_EQ(hint.board.Candidates, state.board.Candidates) << rung.Name();
                ASSERT_EQ(hint.board.CurrentGrid, state.board.CurrentGrid) << rung.Name();
                ASSERT_EQ(hint.SolvingLevel, 0) << rung.Name();
                ASSERT_TRUE(heard.placed.empty() && heard.removed.empty()) << rung.Name();

                testing::RecordingListener listener;
                SolveContext real = state;
                std::vector<BoardChange> trace;
                real.trace = &trace;
                real.listener = &listener;
                ASSERT_EQ(rung.run(real).found, found) << rung.Name();
                if (!found) continue;

                std::vector<BoardChange> placed;
                for (const auto& t : trace)
                    if (t.kind == BoardChange::Placed) placed.push_back(t);
                const auto removed = testing::Removals(state.board, real.board);
                ASSERT_EQ(Mismatch(hint.hint, state.board, placed,
                                   placed.empty() ? removed : decltype(removed){},
                                   rung.number == 7 ? SubsetSize(rung) : 0),
                          "")
                    << rung.Name() << " on " << FormatDigits(state.board.CurrentGrid, '.');
                std::sort(listener.removed.begin(), listener.removed.end());
                if (placed.empty()) {
                    ASSERT_EQ(listener.removed, removed) << "every removal is a move";
                }
                ++hints[std::min(hint.hint.HintKind, 5)];
                state.board = real.board;
                hit = &rung;
                break;
            }
            if (!hit) break;
        }
    }
    for (int kind = 1; kind <= 5; ++kind)
        EXPECT_GT(hints[kind], 0) << "no hint of kind " << kind;
}

}  // namespace
}  // namespace tavi
