// SPDX-License-Identifier: GPL-3.0-or-later
// The game window with a hint of each family on the board: a single, a pointing
// pair, a naked triple, a hidden pair and an X-Wing. Each board is a state
// that the ladder passes through on a generated puzzle. Pictures are written
// only when TAVI_SHOTS_DIR names a folder; the hints are checked either way.
#include <QDir>

#include "grid/candidates.h"
#include "hints/hint_search.h"
#include "solver/ladder.h"
#include "window_fixture.h"

namespace tavi::ui {
namespace {

struct Family {
    const char* name;
    const char* head;  // how its sentence begins
    bool (*matches)(const HintRecord&);
};

const Family kFamilies[] = {
    {"single",
     "HIDDEN SINGLE: ", [](const HintRecord& h) { return h.HintKind == HintKind::HiddenSingle; }},
    {"pointing-pair",
     "POINTING PAIR: ", [](const HintRecord& h) { return h.HintKind == HintKind::PointingPair; }},
    {"naked-triple", "NAKED TRIPLE: ",
     [](const HintRecord& h) {
         return h.HintKind == HintKind::Subset && h.HintVariant > 0 && h.HintCellCount == 3;
     }},
    {"hidden-pair", "HIDDEN PAIR: ",
     [](const HintRecord& h) {
         return h.HintKind == HintKind::Subset && h.HintVariant < 0 && h.HintCellCount == 2;
     }},
    {"x-wing", "X-WING: ", [](const HintRecord& h) { return h.HintKind == HintKind::XWing; }},
};

struct Found {
    GeneratedPuzzle puzzle;
    Board state;
};

// The first state of the ladder, over the generated puzzles, whose hint is of the family.
std::optional<Found> StateFor(const Family& family) {
    const TechniqueTables tables;
    for (const auto& p : testing::GeneratedPuzzles(300, 31)) {
        SolveContext ctx;
        ctx.board = BoardFromPuzzle(p.puzzle);
        std::optional<Board> state;
        WorkbenchRun run;
        run.observer.before = [&](const Rung& rung) {
            if (state || rung.number != 3) return;
            SolveContext look(Side::Game);
            look.board = ctx.board;
            if (FindHint(look, tables) && family.matches(look.hint)) state = ctx.board;
        };
        SolveSudoku(ctx, run);
        if (state) return Found{p, *state};
    }
    return std::nullopt;
}

class HintFamilies : public WindowFixture, public ::testing::WithParamInterface<Family> {};

TEST_P(HintFamilies, ShowTheirSentenceAndColours) {
    const Family& family = GetParam();
    const auto found = StateFor(family);
    ASSERT_TRUE(found) << "no generated puzzle passes through a " << family.name;
    WriteSudokuRecord(PuzzleFile(folders.AppFolder, LevelStem(5)), 1,
                      SudokuRecord{found->puzzle.puzzle, found->puzzle.solution, 0, 0});
    Open(QSize(1280, 900));
    game->OptionType(5);
    Press("CommandNew");
    ASSERT_EQ(game->board().Puzzle, found->puzzle.puzzle);
    tavi::Board position = game->board();
    position.CurrentGrid = found->state.CurrentGrid;
    position.Candidates = found->state.Candidates;
    game->LayPosition(position);
    Press("CommandHint");
    EXPECT_TRUE(game->TextHint().starts_with(family.head)) << game->TextHint();
    int painted = 0;
    for (int c = 0; c < 81; ++c)
        painted += game->CellPaint(c).has_value();
    EXPECT_GT(painted, 0);

    QApplication::processEvents();
    const QString dir = qEnvironmentVariable("TAVI_SHOTS_DIR");
    if (dir.isEmpty()) return;
    QDir().mkpath(dir);
    EXPECT_TRUE(window->grab().toImage().save(
        QDir(dir).filePath(QStringLiteral("family-%1.png").arg(family.name))));
}

INSTANTIATE_TEST_SUITE_P(Game, HintFamilies, ::testing::ValuesIn(kFamilies),
                         [](const ::testing::TestParamInfo<Family>& f) {
                             std::string name = f.param.name;
                             for (char& ch : name)
                                 if (ch == '-') ch = '_';
                             return name;
                         });

}  // namespace
}  // namespace tavi::ui
