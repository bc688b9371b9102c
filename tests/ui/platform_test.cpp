// SPDX-License-Identifier: GPL-3.0-or-later
// The platform the shell gives the game: message boxes and the input box, page
// addresses, sounds without files, and the board's geometry.
#include <gtest/gtest.h>

#include <QApplication>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTemporaryDir>

#include "print/board_geometry.h"
#include "ui/desktop_services.h"
#include "ui/qt_prompter.h"
#include "ui/qt_sound_player.h"
#include "window_fixture.h"

namespace tavi::ui {
namespace {

// Whatever it is given, a box fits on the screen: one endless word, very long
// lines, thousands of lines. Short texts are shown as they are.
TEST(QtPrompter, ABoxNeverGrowsPastTheScreen) {
    const QSize screen = QApplication::primaryScreen()->availableGeometry().size();
    std::string lines;
    for (int i = 0; i < 5000; ++i)
        lines += "Technique/Order" + std::to_string(i) + "=" + std::string(300, '7') + "\n";
    for (const std::string& text : {std::string(3'000'000, 'x'), lines,
                                    std::string(2000, 'y') + " " + std::string(2000, 'z')}) {
        const auto box =
            MessageBoxFor(nullptr, "Settings not read", text, Buttons::Ok, Icon::Exclamation);
        box->show();
        QApplication::processEvents();
        EXPECT_LE(box->width(), screen.width());
        EXPECT_LE(box->height(), screen.height());
        EXPECT_LT(box->text().size(), 20000);
    }
    std::string sentences;
    for (int i = 0; i < 12; ++i)
        sentences += "A number of logfiles has to be created, normally only once. ";
    for (const std::string& text : {std::string("New best time !!!"), sentences}) {
        const auto plain = MessageBoxFor(nullptr, "Tavi Sudoku", text, Buttons::Ok, Icon::None);
        EXPECT_EQ(plain->text().toStdString(), text);
    }
}

TEST(QtPrompter, AsksWithTheGamesTextsAndAClosedBoxAnswersWhatChangesLeast) {
    QtPrompter prompter;
    WhenModal([](QWidget* w) {
        auto* box = qobject_cast<QMessageBox*>(w);
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(box->windowTitle(), "Sudoku in progress");
        EXPECT_EQ(box->text(), "Do you want to save the current sudoku ?");
        EXPECT_EQ(box->standardButtons(), QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        EXPECT_EQ(box->icon(), QMessageBox::Question);
        box->button(QMessageBox::No)->click();
    });
    EXPECT_EQ(prompter.Ask("Sudoku in progress", "Do you want to save the current sudoku ?",
                           Buttons::YesNoCancel, Icon::Question),
              Answer::No);

    WhenModal([](QWidget* w) {
        auto* box = qobject_cast<QMessageBox*>(w);
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(box->icon(), QMessageBox::Warning);
        box->button(QMessageBox::Retry)->click();
    });
    EXPECT_EQ(prompter.Ask("t", "x", Buttons::AbortRetryIgnore, Icon::Exclamation), Answer::Retry);

    // Closing a box answers what changes least.
    for (auto [buttons, expected] :
         {std::pair{Buttons::YesNo, Answer::No}, std::pair{Buttons::YesNoCancel, Answer::Cancel},
          std::pair{Buttons::OkCancel, Answer::Cancel}, std::pair{Buttons::Ok, Answer::Ok}}) {
        WhenModal([](QWidget* w) { w->close(); });
        EXPECT_EQ(prompter.Ask("Quit Tavi Sudoku", "Do you really want to quit ?", buttons),
                  expected);
    }

    // The input box gives the text, or nothing on Cancel.
    WhenModal([](QWidget* w) {
        auto* box = qobject_cast<QInputDialog*>(w);
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(box->windowTitle(), "Sudoku number");
        EXPECT_EQ(box->labelText(), "Enter a value between 1 and 300");
        EXPECT_EQ(box->textValue(), "1");
        box->setTextValue("17x");
        box->accept();
    });
    EXPECT_EQ(prompter.Input("Sudoku number", "Enter a value between 1 and 300", "1"), "17x");
    WhenModal([](QWidget* w) { qobject_cast<QDialog*>(w)->reject(); });
    EXPECT_EQ(prompter.Input("Sudoku number", "Enter a value between 1 and 300", "1"),
              std::nullopt);
}

TEST(DesktopPageOpener, PathsBecomeFileUrlsWithTheirAnchorAndAddressesStay) {
    const QUrl help = PageUrl("/opt/tavi/help/index.html#about");
    EXPECT_TRUE(help.isLocalFile());
    EXPECT_EQ(help.toLocalFile(), "/opt/tavi/help/index.html");
    EXPECT_EQ(help.fragment(), "about");
    EXPECT_EQ(PageUrl("/opt/tavi/help/index.html").fragment(), "");
    EXPECT_EQ(PageUrl("https://example.org/sudoku").toString(), "https://example.org/sudoku");
    EXPECT_TRUE(PageUrl("C:/Tavi_Help/index.html").isLocalFile());
}

TEST(QtSoundPlayer, WithoutItsFilesItIsSilentAndNotAvailable) {
    QTemporaryDir empty;
    QtSoundPlayer sounds(empty.path().toStdString());
    EXPECT_FALSE(sounds.Available());
    for (int id = -1; id <= 10; ++id)
        sounds.Play(id);
}

TEST(BoardGeometry, EveryMarkAndHeaderMapsBackAndNothingElseDoes) {
    for (QSize size : {QSize(300, 280), QSize(1100, 1070)}) {
        BoardGeometry g;
        g.Fit(size);
        EXPECT_TRUE(QRect(QPoint(0, 0), size).contains(g.BoardRect())) << size.width();
        EXPECT_EQ(g.CellSize() % 3, 0);
        for (int cell = 0; cell < 81; ++cell)
            for (int d = 1; d <= 9; ++d) {
                const QRect m = g.MarkRect(d, cell);
                for (QPoint p : {m.topLeft(), m.center(), m.bottomRight()})
                    ASSERT_EQ(g.SpotAt(p), (BoardSpot{BoardSpot::Cell, cell, d}))
                        << cell << " " << d << " at " << size.width();
            }
        for (int i = 0; i < 9; ++i) {
            EXPECT_EQ(g.SpotAt(g.RowHeaderRect(i).center()), (BoardSpot{BoardSpot::RowHeader, i}));
            EXPECT_EQ(g.SpotAt(g.ColumnHeaderRect(i).center()),
                      (BoardSpot{BoardSpot::ColumnHeader, i}));
        }
        const QRect grid = g.GridRect();
        for (QPoint p : {grid.topLeft() - QPoint(1, 1), grid.bottomRight() + QPoint(1, 1),
                         QPoint(grid.left() - 1, grid.bottom() + 1), QPoint(-5, -5)})
            EXPECT_EQ(g.SpotAt(p).kind, BoardSpot::None);
    }
}

}  // namespace
}  // namespace tavi::ui
