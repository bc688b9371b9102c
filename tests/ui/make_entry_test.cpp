// Making a puzzle in the window: Make opens the puzzle line for a drop, and a
// text file dropped on it puts its clues on the board.
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

    // A folder is refused and the board stays empty.
    prompter.shown.clear();
    EXPECT_TRUE(DropOn(line, {root}));
    EXPECT_EQ(prompter.Texts(), std::vector<std::string>{std::string(kDropNoFolderText)});
    EXPECT_EQ(game->board().CurrentGrid, Digits{});

    EXPECT_TRUE(DropOn(line, {root / "mine.txt"}));
    EXPECT_EQ(game->board().CurrentGrid, record.puzzle);
    EXPECT_EQ(line->text().toStdString(), text);
}

}  // namespace
}  // namespace tavi::ui
