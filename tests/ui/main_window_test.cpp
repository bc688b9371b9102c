// SPDX-License-Identifier: GPL-3.0-or-later
// The game window over a real game: buttons and the board reach the game, and
// what the game then holds is what the window shows.
#include <QCheckBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QRadioButton>

#include "ui/hint_window.h"
#include "window_fixture.h"

namespace tavi::ui {
namespace {

using MainWindowTest = WindowFixture;

TEST_F(MainWindowTest, AtStartOnlyTheCommandsWithoutAGameAnswerAndTheBoardTakesNoClick) {
    Open();
    EXPECT_EQ(window->windowTitle(), "Tavi Sudoku 1");
    EXPECT_TRUE(Find<QRadioButton>("OptionType_2")->isChecked());
    for (const char* on :
         {"CommandNew", "CommandOpen", "CommandOptions", "Command2", "CommandExit"})
        EXPECT_TRUE(Button(on)->isEnabled()) << on;
    for (const char* off : {"CommandUndo", "CommandRedo", "CommandResetCell", "CommandHint",
                            "CommandAutoSolve", "CommandSolution"})
        EXPECT_FALSE(Button(off)->isEnabled()) << off;
    EXPECT_EQ(Find<QPlainTextEdit>("TextHint")->toPlainText().toStdString(), kStandingHintText);
    EXPECT_EQ(Find<QLabel>("LabelStap")->toolTip(), "Step counter");
    EXPECT_EQ(Find<QLabel>("LabelTijd")->toolTip(), "Elapsed time");
    // The commands' tool tips name their shortcuts.
    EXPECT_EQ(Button("CommandUndo")->toolTip(), "Undo (Ctrl+Z)");
    EXPECT_EQ(Button("CommandRedo")->toolTip(), "Redo (Ctrl+Y, Ctrl+Shift+Z)");
    EXPECT_EQ(Button("CommandHint")->toolTip(), "Hint (H)");

    ClickMark(5, 40);
    EXPECT_EQ(game->CurrentStep(), 0);
    EXPECT_EQ(game->board().CurrentGrid[40], 0);
}

TEST_F(MainWindowTest, ALeftClickOnAMarkPlacesTheDigitAndTheBoardDrawsIt) {
    Open();
    QTest::mouseClick(Find<QRadioButton>("OptionType_1"), Qt::LeftButton);
    Press("CommandNew");
    const GeneratedPuzzle record = Record(1, 1);
    EXPECT_EQ(window->windowTitle(), "Tavi Sudoku 1 - Easy - 1");
    EXPECT_EQ(Find<QLineEdit>("SudTekst")->text().toStdString(), FormatDigits(record.puzzle, '0'));
    EXPECT_EQ(Find<QLabel>("LabelTijd")->text(), "00:00");
    EXPECT_FALSE(Button("CommandUndo")->isEnabled());
    EXPECT_TRUE(Button("CommandSolution")->isEnabled());

    const auto [cell, digit] = FirstOpenCell();
    const QRect box = Board()->Layout().CellRect(cell);
    const int inkBefore = InkIn(BoardImage(), Part(box, 0.35, 0.35, 0.65, 0.65));
    ClickMark(digit, cell);

    EXPECT_EQ(game->board().CurrentGrid[cell], digit);
    EXPECT_EQ(game->CurrentStep(), 1);
    EXPECT_EQ(Find<QLabel>("LabelStap")->text(), "1");
    EXPECT_TRUE(Button("CommandUndo")->isEnabled());
    // The big digit fills the middle of the cell, in the player's colour rather
    // than the clues' blue, and no mark is left in the corners (the cursor the
    // click left there aside).
    EXPECT_EQ(Board()->CursorCell(), cell);
    Board()->SetCursorCell(-1);
    const QImage image = BoardImage();
    const QRect middle = Part(box, 0.35, 0.3, 0.65, 0.7);
    EXPECT_GT(InkIn(image, middle), 3 * inkBefore + 10);
    for (const QRect& corner :
         {Part(box, 0.05, 0.05, 0.25, 0.25), Part(box, 0.75, 0.05, 0.95, 0.25),
          Part(box, 0.05, 0.75, 0.25, 0.95), Part(box, 0.75, 0.75, 0.95, 0.95)})
        EXPECT_EQ(InkIn(image, corner), 0);
    auto blueness = [&](int c) {
        const QRect r = Part(Board()->Layout().CellRect(c), 0.3, 0.25, 0.7, 0.75);
        long blue = 0, red = 0;
        for (int y = r.top(); y <= r.bottom(); ++y)
            for (int x = r.left(); x <= r.right(); ++x)
                if (const QRgb p = image.pixel(x, y); qGray(p) < 150) {
                    blue += qBlue(p);
                    red += qRed(p);
                }
        return blue - red;
    };
    int clue = 0;
    while (!game->IsClue(clue))
        ++clue;
    EXPECT_GT(blueness(clue), 1000);
    EXPECT_LT(blueness(cell), 1000);
}

TEST_F(MainWindowTest, AClickCountsOnlyWhenReleasedOverItsMarkAndTheFilterHidesMarks) {
    OpenPlaying();
    const auto [cell, digit] = FirstOpenCell();
    int other = 1;
    while (other == digit || !game->MarkVisible(other, cell))
        ++other;
    ASSERT_LE(other, 9);

    QTest::mousePress(Board(), Qt::LeftButton, {}, MarkCentre(digit, cell));
    QTest::mouseRelease(Board(), Qt::LeftButton, {}, MarkCentre(other, cell));
    QTest::mousePress(Board(), Qt::LeftButton, {}, MarkCentre(digit, cell));
    QTest::mouseRelease(Board(), Qt::LeftButton, {}, QPoint(-20, Board()->height() + 20));
    EXPECT_EQ(game->CurrentStep(), 0);
    EXPECT_EQ(game->board().CurrentGrid[cell], 0);
    EXPECT_TRUE(game->MarkVisible(digit, cell));

    // A right click takes the mark away; its square is then the cell itself.
    ClickMark(other, cell, Qt::RightButton);
    EXPECT_FALSE(game->MarkVisible(other, cell));
    EXPECT_EQ(Board()->TargetAt(MarkCentre(other, cell)), (BoardSpot{BoardSpot::Cell, cell, 0}));
    Board()->SetCursorCell(-1);
    EXPECT_EQ(InkIn(BoardImage(), MarkRect(other, cell)), 0);

    // The digit filter hides its marks and their clicks.
    const int steps = game->CurrentStep();
    auto* button = Find<ReleaseButton>(QStringLiteral("Command1_%1").arg(digit));
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_FALSE(game->FilterOn(digit));
    EXPECT_TRUE(button->font().strikeOut());
    EXPECT_EQ(InkIn(BoardImage(), MarkRect(digit, cell)), 0);
    ClickMark(digit, cell);
    EXPECT_EQ(game->CurrentStep(), steps);
    // A right click on the button is no filter click; the left one shows them again.
    QTest::mouseClick(button, Qt::RightButton);
    EXPECT_FALSE(game->FilterOn(digit));
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_TRUE(game->FilterOn(digit));
    EXPECT_FALSE(button->font().strikeOut());
    EXPECT_GT(InkIn(BoardImage(), MarkRect(digit, cell)), 0);
}

TEST_F(MainWindowTest, HeadersPickACellForResetCellAndThePickedHeaderIsRed) {
    OpenPlaying();
    const auto [cell, digit] = FirstOpenCell();
    ClickMark(digit, cell);
    const BoardGeometry& at = Board()->Layout();
    QTest::mouseClick(Board(), Qt::LeftButton, {}, at.RowHeaderRect(cell / 9).center());
    QTest::mouseClick(Board(), Qt::LeftButton, {}, at.ColumnHeaderRect(cell % 9).center());
    EXPECT_EQ(game->SelectedRow(), cell / 9);
    EXPECT_EQ(game->SelectedColumn(), cell % 9);
    auto redIn = [](const QImage& image, const QRect& r) {
        return CountIn(image, r, [](QRgb p) { return qRed(p) > 180 && qGreen(p) < 90; });
    };
    const QImage image = BoardImage();
    EXPECT_GT(redIn(image, at.RowHeaderRect(cell / 9)), 5);
    EXPECT_EQ(redIn(image, at.RowHeaderRect((cell / 9 + 1) % 9)), 0);

    Press("CommandResetCell");
    EXPECT_EQ(game->board().CurrentGrid[cell], 0);
    // A second click on the red header lets go of the row.
    QTest::mouseClick(Board(), Qt::LeftButton, {}, at.RowHeaderRect(cell / 9).center());
    EXPECT_EQ(game->SelectedRow(), kNoLine);
    EXPECT_EQ(redIn(BoardImage(), at.RowHeaderRect(cell / 9)), 0);
}

TEST_F(MainWindowTest, ACellBrushPaintsWithItsColourAndThePointerShowsTheBrush) {
    OpenPlaying();
    auto* brush = Find<ClickLabel>("LabelColor_7");
    QTest::mouseClick(brush, Qt::LeftButton);
    EXPECT_EQ(brush->text(), " L");
    EXPECT_EQ(window->cursor().shape(), Qt::BitmapCursor);

    const auto [cell, digit] = FirstOpenCell();
    ClickMark(digit, cell);  // paints, does not place
    EXPECT_EQ(game->board().CurrentGrid[cell], 0);
    ASSERT_TRUE(game->CellPaint(cell).has_value());
    const QColor paint = ToQColor(*game->CellPaint(cell));
    const QRect box = Board()->Layout().CellRect(cell);
    EXPECT_EQ(BoardImage().pixelColor(box.x() + 3, box.y() + box.height() / 2), paint);

    QTest::mouseClick(Find<ClickLabel>("LabelColor_4"), Qt::LeftButton);
    EXPECT_EQ(brush->text(), "");
    EXPECT_EQ(window->cursor().shape(), Qt::ArrowCursor);
}

// The foot labels open the site and the revision history; Exit asks once and the
// close box can be refused.
TEST_F(MainWindowTest, TheFootLabelsOpenTheSiteAndTheHistoryAndExitAsksOnce) {
    Open();
    QTest::mouseClick(Find<ClickLabel>("Picture1"), Qt::LeftButton);
    ASSERT_EQ(pages.opened.size(), 1u);
    EXPECT_TRUE(QString::fromStdString(pages.opened[0]).endsWith("help/index.html#about"));
    EXPECT_EQ(Find<ClickLabel>("Label1")->toolTip(),
              "DoubleClick here for \"file managment window\"");
    auto* version = Find<ClickLabel>("Label2");
    EXPECT_EQ(version->text(), "Version 1.6");
    QTest::mouseClick(version, Qt::LeftButton);
    // The About box (its contents: AboutBox.ShowsNameVersionLicence...).
    auto* about = window->findChild<QDialog*>("FormAbout");
    ASSERT_NE(about, nullptr);
    EXPECT_TRUE(about->isVisible());
    about->close();

    const std::size_t before = prompter.shown.size();  // the first run's notes
    prompter.answers = {Answer::No};
    window->close();
    EXPECT_TRUE(window->isVisible());
    prompter.answers = {Answer::Yes};
    Press("CommandExit");
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(prompter.answers.empty());
    EXPECT_EQ(prompter.shown.size(), before + 2);
    EXPECT_EQ(prompter.shown.back().title, "Quit Tavi Sudoku");
}

TEST_F(MainWindowTest, TheOptionsWindowChangesTheOptionsAndAHintShowsWhereAsked) {
    OpenPlaying();
    EXPECT_FALSE(window->Area()->Wells()->isHidden());
    WhenModal([](QWidget* dialog) {
        auto* wells = dialog->findChild<QCheckBox*>("Check3");
        ASSERT_NE(wells, nullptr);
        ASSERT_TRUE(wells->isChecked());
        wells->click();
        qobject_cast<QDialog*>(dialog)->accept();
    });
    Press("CommandOptions");
    EXPECT_FALSE(options.Wells);
    EXPECT_TRUE(window->Area()->Wells()->isHidden());

    // A hint shows in the small window when asked for, and on a double click.
    Press("CommandHint");
    EXPECT_EQ(window->findChild<HintWindow*>(), nullptr);  // the option is off
    auto* text = Find<QPlainTextEdit>("TextHint");
    EXPECT_EQ(text->toPlainText().toStdString(), game->TextHint());
    QTest::mouseDClick(text->viewport(), Qt::LeftButton);
    auto* hints = window->findChild<HintWindow*>();
    ASSERT_NE(hints, nullptr);
    EXPECT_TRUE(hints->isVisible());
    hints->close();

    options.HintWindow = true;
    Press("CommandHint");
    EXPECT_TRUE(hints->isVisible());
    EXPECT_EQ(hints->windowTitle().toStdString(), game->HintWindowCaption());
}

// The least size of the game window fits a 1920 x 1080 screen at twice the scale
// (960 x 540, with a title bar), and no control is squeezed below its own least
// size there.
TEST_F(MainWindowTest, TheLeastSizeFitsNineSixtyByFiveForty) {
    MainWindow& w = Open();
    EXPECT_LE(w.minimumSizeHint().width(), 960);
    EXPECT_LE(w.minimumSizeHint().height(), 540 - 40);
    w.resize(QSize(200, 200));  // the layout keeps it at its least size
    QApplication::processEvents();
    EXPECT_EQ(w.size(), w.minimumSizeHint());
    QApplication::processEvents();
    for (auto* button : w.findChildren<QPushButton*>()) {
        // The digit buttons are laid out by the board, square with its cells.
        if (button->objectName().startsWith("Command1_")) continue;
        EXPECT_GE(button->width(), button->minimumSizeHint().width())
            << button->objectName().toStdString();
        EXPECT_GE(button->height(), button->minimumSizeHint().height());
    }
    EXPECT_GE(Board()->Layout().CellSize(), 30);
}

}  // namespace
}  // namespace tavi::ui
