// SPDX-License-Identifier: GPL-3.0-or-later
// The practice window over a real game: the counts come from the library's index,
// and Practise opens the next puzzle of the chosen technique in the game window.
#include <QTreeWidget>

#include "ui/practice_dialog.h"
#include "ui/practice_indexer.h"
#include "window_fixture.h"

namespace tavi::ui {
namespace {

using PracticeWindow = WindowFixture;

// Lets the window's timers run until `done` or a generous limit.
bool WaitFor(const std::function<bool()>& done) {
    for (int i = 0; i < 600 && !done(); ++i)
        QTest::qWait(50);
    return done();
}

TEST_F(PracticeWindow, CountsTheLibraryAndOpensTheNextPuzzleOfTheTechnique) {
    Open();
    PracticeIndexer indexer(folders.DataFolder);
    PracticeDialog dialog(indexer, folders.DataFolder, &*window);
    dialog.show();
    auto* practise = Child<QPushButton>(dialog, "CommandPractise");
    ASSERT_TRUE(WaitFor([&] { return practise->isEnabled(); }));

    PracticeLibrary library;
    ASSERT_TRUE(indexer.Library(library));
    const auto choices = PracticeChoices(library);
    auto* list = Child<QTreeWidget>(dialog, "ListTechniques");
    ASSERT_EQ(list->topLevelItemCount(), int(choices.size()));
    int row = -1;
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        EXPECT_EQ(list->topLevelItem(i)->text(0).toStdString(), choices[std::size_t(i)].name);
        EXPECT_EQ(list->topLevelItem(i)->text(1).toLong(), choices[std::size_t(i)].puzzles);
        if (row < 0 && choices[std::size_t(i)].puzzles > 0) row = i;
    }
    ASSERT_GE(row, 0);
    list->setCurrentItem(list->topLevelItem(row));
    QTest::mouseClick(practise, Qt::LeftButton);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    const auto pick = dialog.Picked();
    ASSERT_TRUE(pick.puzzle);
    EXPECT_EQ(pick.technique, choices[std::size_t(row)].technique);
    EXPECT_EQ(pick.puzzle, NextPracticePuzzle(library, folders.DataFolder, pick.technique));
}

}  // namespace
}  // namespace tavi::ui
