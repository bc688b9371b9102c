// SPDX-License-Identifier: GPL-3.0-or-later
// Keyboard play against mouse play: two windows over the same generated library,
// one played with clicks and one with keys, must end in the same game.
#include <QApplication>
#include <QRadioButton>
#include <QShortcut>

#include "grid/tables.h"
#include "ui/wells_widget.h"
#include "window_fixture.h"

namespace tavi::ui {
namespace {

class Player : public WindowFixture {
  public:
    void TestBody() override {}

    void Key(int key, Qt::KeyboardModifiers mods = Qt::NoModifier) {
        QTest::keyClick(Board(), Qt::Key(key), mods);
        QApplication::processEvents();
    }
    void CursorTo(int cell) {
        if (Board()->CursorCell() < 0) Key(Qt::Key_Down);  // shows the cursor
        while (Board()->CursorCell() / 9 < cell / 9)
            Key(Qt::Key_Down);
        while (Board()->CursorCell() / 9 > cell / 9)
            Key(Qt::Key_Up);
        while (Board()->CursorCell() % 9 < cell % 9)
            Key(Qt::Key_Right);
        while (Board()->CursorCell() % 9 > cell % 9)
            Key(Qt::Key_Left);
        ASSERT_EQ(Board()->CursorCell(), cell);
    }
    // A visible mark of `cell` that is not its solution.
    int WrongMark(int cell) const {
        for (int d = 1; d <= 9; ++d)
            if (d != game->board().Solution[cell] && game->MarkVisible(d, cell)) return d;
        return 0;
    }
};

// The game a player made: board and marks, move log, step, clock, wells and sounds.
auto Outcome(const Player& p) {
    std::array<std::array<bool, 9>, 10> wells{};
    for (int d = 1; d <= 9; ++d)
        for (int b = 0; b < 9; ++b)
            wells[d][b] = p.game->WellFilled(d, b);
    return std::tuple(testing::GridAndMarks(p.game->board()), p.game->MoveLog(),
                      p.game->CurrentStep(), p.game->LabelStap(), p.game->ClockSeconds(), wells,
                      p.sounds.played);
}

TEST(KeyboardPlay, KeysMakeTheSameGameAsClicks) {
    Player mouse, keys;
    mouse.OpenActive();
    keys.OpenActive();
    mouse.options.Sounds = keys.options.Sounds = true;  // after the start, which reads them
    mouse.Press("CommandNew");
    keys.Key(Qt::Key_N, Qt::ControlModifier);
    ASSERT_EQ(mouse.game->board().Puzzle, keys.game->board().Puzzle);

    // A digit placed, a mark taken away, a wrong digit placed and cleared.
    auto [cell, digit] = mouse.FirstOpenCell();
    mouse.ClickMark(digit, cell);
    keys.CursorTo(cell);
    keys.Key(Qt::Key_0 + digit);

    auto [other, right] = mouse.FirstOpenCell();
    const int wrong = mouse.WrongMark(other);
    ASSERT_NE(wrong, 0);
    mouse.ClickMark(wrong, other, Qt::RightButton);
    keys.CursorTo(other);
    keys.Key(Qt::Key_0 + wrong, Qt::ControlModifier);

    const int bad = mouse.WrongMark(other);
    if (bad) {
        mouse.ClickMark(bad, other);
        keys.Key(Qt::Key_0 + bad);
        const QRect row = mouse.Board()->Layout().RowHeaderRect(other / 9);
        const QRect column = mouse.Board()->Layout().ColumnHeaderRect(other % 9);
        QTest::mouseClick(mouse.Board(), Qt::LeftButton, {}, row.center());
        QTest::mouseClick(mouse.Board(), Qt::LeftButton, {}, column.center());
        mouse.Press("CommandResetCell");
        keys.Key(Qt::Key_Delete);
        EXPECT_EQ(keys.game->board().CurrentGrid[other], 0);
    }

    // A hint (its price on the clock), two undos and a redo.
    mouse.Press("CommandHint");
    keys.Key(Qt::Key_H);
    EXPECT_GE(keys.game->ClockSeconds(), 10);
    for (int i = 0; i < 2; ++i) {
        mouse.Press("CommandUndo");
        keys.Key(Qt::Key_Z, Qt::ControlModifier);
    }
    mouse.Press("CommandRedo");
    keys.Key(Qt::Key_Y, Qt::ControlModifier);

    EXPECT_EQ(Outcome(mouse), Outcome(keys));
    EXPECT_EQ(keys.game->CurrentStep(), (bad ? 4 : 2) - 2 + 1);
}

// The mouse and the keys share one cursor and one focus: a click chooses the
// cell for the keys, a click on a cell's edge only chooses it, and after a
// command or a level the keys reach the board at once.
TEST(KeyboardPlay, MouseAndKeysAsOne) {
    Player p;
    p.OpenActive();
    p.Press("CommandNew");
    EXPECT_TRUE(p.Board()->hasFocus());
    EXPECT_EQ(p.Board()->CursorCell(), -1);

    auto [cell, digit] = p.FirstOpenCell();
    const int wrong = p.WrongMark(cell);
    ASSERT_NE(wrong, 0);
    p.ClickMark(wrong, cell, Qt::RightButton);
    EXPECT_EQ(p.Board()->CursorCell(), cell);
    const int steps = p.game->CurrentStep();

    // The edge of another cell: chosen, nothing placed; the keys go on from there.
    const int other = cell == 80 ? 79 : cell + 1;
    const QRect box = p.Board()->Layout().CellRect(other);
    QTest::mouseClick(p.Board(), Qt::LeftButton, {}, QPoint(box.left() + 1, box.center().y()));
    EXPECT_EQ(p.Board()->CursorCell(), other);
    EXPECT_EQ(p.game->CurrentStep(), steps);
    p.Key(Qt::Key_Left);
    EXPECT_EQ(p.Board()->CursorCell(), other % 9 ? other - 1 : other);

    // A level picked, a command: the keys still play on the board.
    QTest::mouseClick(p.Find<QRadioButton>("OptionType_5"), Qt::LeftButton);
    EXPECT_TRUE(p.Board()->hasFocus());
    p.Press("CommandUndo");
    EXPECT_TRUE(p.Board()->hasFocus());
    EXPECT_EQ(p.game->CurrentStep(), steps - 1);

    // A digit that is no candidate: the answer says why, and nothing happens.
    p.CursorTo(cell);
    p.Key(Qt::Key_0 + wrong, Qt::ControlModifier);
    const int gone = wrong;
    p.Key(Qt::Key_0 + gone);
    EXPECT_EQ(p.Board()->Notice(), QStringLiteral("%1 is not a candidate of %2")
                                       .arg(gone)
                                       .arg(QString::fromStdString(CellName(cell))));
    EXPECT_EQ(p.game->board().CurrentGrid[cell], 0);
    p.Key(Qt::Key_0 + digit);
    p.Key(Qt::Key_0 + digit);
    EXPECT_TRUE(p.Board()->Notice().endsWith(QStringLiteral("holds %1 already").arg(digit)));
}

}  // namespace
}  // namespace tavi::ui
