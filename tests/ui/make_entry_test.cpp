// SPDX-License-Identifier: GPL-3.0-or-later
// Making a puzzle in the window: Make opens the puzzle line for a drop, a text
// file dropped on it puts its clues on the board, and digit keys enter clues too.
#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <fstream>

#include "game/make_entry.h"
#include "window_fixture.h"

namespace tavi::ui {
namespace {

using MakeWindowTest = WindowFixture;

// Drags `files` over the line and drops them; true when the drag was accepted.
bool DropOn(QLineEdit* line, const std::vector<std::filesystem::path>& files) {
    QMimeData data;
    QList<QUrl> urls;
    for (const auto& f : files)
        urls.append(QUrl::fromLocalFile(QString::fromStdString(f.string())));
    data.setUrls(urls);
    const QPoint at = line->rect().center();
    QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(line, &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(line, &drop);
    return true;
}

TEST_F(MakeWindowTest, AFileDroppedOnTheLineAfterMakeEntersItsClues) {
    Open();
    auto* line = Find<QLineEdit>("SudTekst");
    const GeneratedPuzzle record = Record(2, 1);
    const std::string text = FormatDigits(record.puzzle, '.');
    std::ofstream(root / "mine.txt") << text << "\n";
    EXPECT_TRUE(line->isReadOnly());
    EXPECT_FALSE(DropOn(line, {root / "mine.txt"}));  // no drop outside making

    Press("CommandMake");
    EXPECT_EQ(Button("CommandMake")->text(), "Validate");
    EXPECT_FALSE(Button("CommandNew")->isEnabled());
    EXPECT_FALSE(line->isReadOnly());
    EXPECT_EQ(line->placeholderText().toStdString(), kMakePrompt);

    EXPECT_TRUE(DropOn(line, {root / "mine.txt"}));
    EXPECT_EQ(game->board().CurrentGrid, record.puzzle);
    EXPECT_EQ(line->text().toStdString(), text);
}

// A grid of nine lines pasted into the line is read as the import reads it.
TEST_F(MakeWindowTest, AGridOfNineLinesPastedEntersItsClues) {
    Open();
    auto* line = Find<QLineEdit>("SudTekst");
    const GeneratedPuzzle record = Record(2, 1);
    const std::string grid = tavi::testing::GridText(FormatDigits(record.puzzle, '.'));
    Press("CommandMake");
    QApplication::clipboard()->setText(QString::fromStdString(grid));
    line->setFocus();
    line->paste();
    QApplication::processEvents();
    EXPECT_EQ(game->board().CurrentGrid, record.puzzle);
}

// Clues typed on the board while making go in as clicks on marks do: the digit at
// the cursor, and the same digit gone from the marks of the cell's peers.
TEST_F(MakeWindowTest, DigitKeysEnterCluesAtTheCursor) {
    OpenActive();
    Press("CommandMake");
    Board()->setFocus();
    Board()->SetCursorCell(40);
    QTest::keyClick(Board(), Qt::Key_7);
    QTest::keyClick(Board(), Qt::Key_Right);
    QTest::keyClick(Board(), Qt::Key_3);
    QApplication::processEvents();
    EXPECT_EQ(game->board().CurrentGrid[40], 7);
    EXPECT_EQ(game->board().CurrentGrid[41], 3);
    EXPECT_FALSE(game->MarkVisible(7, 44));  // same row
    EXPECT_FALSE(game->MarkVisible(3, 77));  // same column
    EXPECT_TRUE(game->MarkVisible(7, 0));    // no peer of cell 40
}

}  // namespace
}  // namespace tavi::ui
