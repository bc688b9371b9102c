// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures of the windows for a person to look at, written into the folder named
// by TAVI_SHOTS_DIR: run `TAVI_SHOTS_DIR=DIR build/tests/tavi-shots`.
// Pictures of the window for a person to look at: at start, in play (marks, a
// painted cell, a picked row), with a hint, at the end of a game and while a
// puzzle is made, at 800 x 600 and at 1600 x 1200. Written only when
// TAVI_SHOTS_DIR names a folder; without it the same run still has to paint
// every state at both sizes.
#include <QDir>

#include "window_fixture.h"

namespace tavi::ui {
namespace {

class Screenshots : public WindowFixture, public ::testing::WithParamInterface<QSize> {
  public:
    void Shot(const char* name) {
        QApplication::processEvents();
        const QImage image = window->grab().toImage();
        ASSERT_EQ(image.size(), window->size());
        const QString dir = qEnvironmentVariable("TAVI_SHOTS_DIR");
        if (dir.isEmpty()) return;
        QDir().mkpath(dir);
        const QSize s = GetParam();
        const QString file = QDir(dir).filePath(
            QStringLiteral("%1-%2x%3.png").arg(name).arg(s.width()).arg(s.height()));
        EXPECT_TRUE(image.save(file)) << file.toStdString();
    }
};

TEST_P(Screenshots, AtStartInPlayWithAHintAndAtTheEnd) {
    Open(GetParam());
    Shot("start");

    Press("CommandNew");
    // A few digits, a mark taken away, a painted cell and a mark, a row picked.
    for (int i = 0; i < 4; ++i) {
        auto [cell, digit] = FirstOpenCell();
        ClickMark(digit, cell);
    }
    auto [open, right] = FirstOpenCell();
    const int wrong = right == 9 ? 8 : right + 1;
    if (game->MarkVisible(wrong, open)) ClickMark(wrong, open, Qt::RightButton);
    QTest::mouseClick(Find<ClickLabel>("LabelColor_7"), Qt::LeftButton);
    QTest::mouseClick(Board(), Qt::LeftButton, {}, Board()->Layout().CellRect(40).center());
    QTest::mouseClick(Find<ClickLabel>("LabelColor_4"), Qt::LeftButton);
    QTest::mouseClick(Board(), Qt::LeftButton, {}, Board()->Layout().RowHeaderRect(4).center());
    QTest::mouseClick(Board(), Qt::LeftButton, {}, Board()->Layout().ColumnHeaderRect(6).center());
    QTest::mouseClick(Find<ReleaseButton>("Command1_5"), Qt::LeftButton);
    clock.now += 125;
    game->Tick();
    window->Refresh();
    Shot("play");

    // A hint: its text in the hint box, its colours on the board.
    QTest::mouseClick(Find<ReleaseButton>("Command1_5"), Qt::LeftButton);
    Press("CommandHint");
    Shot("hint");

    for (auto [cell, digit] = FirstOpenCell(); cell >= 0; std::tie(cell, digit) = FirstOpenCell())
        ClickMark(digit, cell);
    ASSERT_TRUE(game->position().SudokuSolved);
    Shot("end");
}

TEST_P(Screenshots, MakingAPuzzle) {
    Open(GetParam());
    Press("CommandMake");
    // A few clues by click, the prompt still in the puzzle line.
    const GeneratedPuzzle record = Record(3, 1);
    for (int c = 0, clues = 0; c < 81 && clues < 9; ++c)
        if (record.puzzle[c]) {
            ClickMark(record.puzzle[c], c);
            ++clues;
        }
    Shot("make");
}

INSTANTIATE_TEST_SUITE_P(Sizes, Screenshots, ::testing::Values(QSize(800, 600), QSize(1600, 1200)),
                         [](const ::testing::TestParamInfo<QSize>& size) {
                             return std::to_string(size.param.width()) + "x" +
                                    std::to_string(size.param.height());
                         });

}  // namespace
}  // namespace tavi::ui
