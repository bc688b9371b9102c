// SPDX-License-Identifier: GPL-3.0-or-later
// The small hint window: a frozen copy of the board with the hint's colours, its
// caption, and its menu (Refresh, Save as BMP, Print).
#include "ui/hint_window.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPrinter>
#include <QTemporaryDir>
#include <fstream>

#include "print/board_painter.h"
#include "settings/colors.h"
#include "ui/qt_convert.h"
#include "window_fixture.h"

namespace tavi::ui {
namespace {

class HintWindowTest : public tavi::testing::GameFixture {
  public:
    // A game of the first level with a technique's hint on the board.
    HintWindow& WithHint() {
        Playing(1);
        options.HintWindow = true;
        game->CommandHint();
        window.emplace(*game, folders);
        window->ShowHint();
        return *window;
    }
    // Answers the file box with `answer` and keeps what it was offered.
    void Answer(std::optional<QString> answer) {
        window->SetPathAsker([this, answer](const QString& title, const QString& suggested) {
            asked.push_back({title, suggested});
            return answer;
        });
    }

    std::optional<HintWindow> window;
    std::vector<std::array<QString, 2>> asked;
};

TEST_F(HintWindowTest, TheCopyHoldsTheBoardAsShownWithTheHintsColours) {
    Game& g = Playing(1);
    g.CommandHint();
    g.DigitButtonUp(5, MouseButton::Left, true);  // the filter hides the marks of 5
    ASSERT_FALSE(g.FilterOn(5));
    const HintSnapshot s = SnapshotOf(g);
    int painted = 0;
    for (int c = 0; c < 81; ++c) {
        EXPECT_EQ(s.digits[c], g.board().CurrentGrid[c]);
        EXPECT_EQ(s.clue[c], g.board().CurrentGrid[c] != 0);  // nothing placed yet
        EXPECT_EQ(s.cellPaint[c], g.CellPaint(c));
        painted += s.cellPaint[c].has_value();
        for (int d = 1; d <= 9; ++d) {
            EXPECT_EQ(s.markPaint[c][d - 1], g.MarkPaint(d, c));
            const bool shown = !g.board().CurrentGrid[c] && g.MarkVisible(d, c) && d != 5;
            EXPECT_EQ(s.MarkShown(d, c), shown) << c << " " << d;
        }
    }
    EXPECT_GT(painted, 0);
}

TEST_F(HintWindowTest, CaptionRefreshAFrozenCopyAndPrinting) {
    HintWindow& w = WithHint();
    EXPECT_TRUE(w.isVisible());
    EXPECT_EQ(w.windowTitle().toStdString(), game->HintWindowCaption());

    // The painted colours are what the window draws.
    const QImage picture = w.Picture();
    std::optional<Color> paint;
    for (int c = 0; c < 81 && !paint; ++c)
        paint = game->CellPaint(c);
    ASSERT_TRUE(paint);
    const QRgb want = ToQColor(*paint).rgb();
    EXPECT_GT(CountIn(picture, picture.rect(), [want](QRgb p) { return p == want; }), 100);

    // A move on the board leaves the copy as it was, until Refresh.
    const HintSnapshot before = w.Snapshot();
    PlaceOne();
    EXPECT_EQ(w.Snapshot(), before);
    w.findChild<QAction*>("mnuWindowRefresh")->trigger();
    EXPECT_EQ(w.Snapshot(), SnapshotOf(*game));
    EXPECT_NE(w.Snapshot(), before);
    EXPECT_EQ(w.windowTitle(), "Main Duplicate");

    // Printing without a printer does no harm: to a file, and a cancelled dialog.
    QTemporaryDir dir;
    QPrinter pdf;
    pdf.setOutputFormat(QPrinter::PdfFormat);
    pdf.setOutputFileName(dir.filePath("hint.pdf"));
    EXPECT_TRUE(w.PrintTo(pdf));
    EXPECT_GT(QFile(dir.filePath("hint.pdf")).size(), 1000);
    bool dialogSeen = false;
    WhenModal([&](QWidget* modal) {
        dialogSeen = true;
        modal->close();
    });
    w.findChild<QAction*>("mnuWindowPrint")->trigger();
    EXPECT_TRUE(dialogSeen);

    w.findChild<QAction*>("mnuWindowClose")->trigger();
    EXPECT_FALSE(w.isVisible());
}

TEST_F(HintWindowTest, SaveAsBmpGoesToTheFolderChosenLastAndMakesAFolderOnlyForAPicture) {
    HintWindow& w = WithHint();
    const QString name = w.windowTitle().mid(7);
    // At first the user's pictures folder is offered; a cancel makes nothing.
    Answer(std::nullopt);
    EXPECT_TRUE(w.SaveAsBmp().isEmpty());
    ASSERT_EQ(asked.size(), 1u);
    EXPECT_EQ(asked[0][0], "Save as... Filename[.bmp]");
    EXPECT_EQ(QFileInfo(asked[0][1]).fileName(), PictureFileName(name) + "_0001.bmp");
    EXPECT_FALSE(std::filesystem::exists(folders.AppFolder / "Screenshots"));

    // The folder kept in the store is offered; a cancel there makes nothing.
    const QString kept = QString::fromStdString((root / "pictures" / "kept").string());
    store.Write(kPictureFolderSection, kPictureFolderKey, kept.toStdString());
    w.SetStore(&store);
    w.SaveAsBmp();
    EXPECT_EQ(QFileInfo(asked.back()[1]).absolutePath(), kept);
    EXPECT_FALSE(QFileInfo::exists(kept));

    // A picture written into a folder that is not there yet: the folder is made,
    // and kept for the next picture, whose number does not overwrite this one.
    const QString chosen = QString::fromStdString((root / "pictures" / "new").string());
    Answer(QDir(chosen).filePath("a:b.BMP"));
    const QString file = w.SaveAsBmp();
    EXPECT_EQ(file, QDir(chosen).filePath("a-b.bmp"));
    QImage saved(file, "BMP");
    EXPECT_EQ(saved.size(), w.size());
    EXPECT_EQ(store.Read(kPictureFolderSection, kPictureFolderKey, ""), chosen.toStdString());
    Answer(QDir(chosen).filePath(PictureFileName(name) + "_0001"));
    w.SaveAsBmp();
    Answer(std::nullopt);
    w.SaveAsBmp();
    EXPECT_EQ(asked.back()[1], QDir(chosen).filePath(PictureFileName(name) + "_0002.bmp"));
}

TEST(HintWindowPlace, BesideTheGameWindowElseWhereItHidesTheLeastAndAlwaysOnTheScreen) {
    const QRect screen(0, 0, 1920, 1040);
    const QSize hint(400, 420);
    // Room on the right; then only on the left; the top follows the game window.
    EXPECT_EQ(HintWindowPlace(QRect(100, 50, 1000, 700), hint, screen).topLeft(), QPoint(1108, 50));
    EXPECT_EQ(HintWindowPlace(QRect(700, 900, 1000, 100), hint, screen).topLeft(),
              QPoint(292, 620));
    // A game window filling a small screen, or one at twice the scale, its board
    // on the left and its hint text at the right below the commands: the window
    // hides neither where the smallest window allows, and stays wholly on screen.
    struct Case {
        QRect screen, main;
        std::vector<QRect> keep;
    };
    const Case cases[] = {
        {{0, 0, 1366, 740}, {20, 10, 1257, 707}, {{30, 40, 860, 640}, {990, 380, 270, 280}}},
        {{0, 0, 960, 510}, {0, 0, 960, 510}, {{10, 30, 470, 460}, {709, 280, 240, 150}}},
        {{0, 0, 960, 510}, {100, 40, 800, 460}, {{110, 70, 470, 460}, {649, 320, 240, 150}}},
    };
    for (const Case& k : cases) {
        const QRect at = HintWindowPlace(k.main, hint, k.screen, k.keep, QSize(190, 209));
        EXPECT_TRUE(k.screen.contains(at)) << k.main.x();
        EXPECT_GE(at.width(), 190);
        for (const QRect& r : k.keep)
            EXPECT_FALSE(at.intersects(r)) << k.main.x() << " " << r.x();
    }
    // A hint window larger than the screen is made to fit it.
    EXPECT_EQ(HintWindowPlace(QRect(0, 0, 800, 600), QSize(900, 900), QRect(0, 0, 800, 600)),
              QRect(0, 0, 800, 600));
}

TEST(ReadableInk, MarksStandOutOnEveryHintColour) {
    for (const Color paint : kDefaultHintColor)
        for (const auto& [ink, wanted] : {std::pair{ColorOf(kDimmedMarkColor), kDimmedContrast},
                                          std::pair{QColor(60, 64, 72), kInkContrast},
                                          std::pair{QColor(Qt::white), kInkContrast}}) {
            const QColor drawn = ReadableOn(ink, paint, wanted);
            EXPECT_GE(ContrastRatio(drawn, ColorOf(paint)), wanted - 0.05)
                << std::hex << paint << " " << ink.name().toStdString();
        }
    // Ink that reads already is left alone, and so is ink on no paint.
    EXPECT_EQ(ReadableOn(Qt::black, Color(0x00FFFFFF)), QColor(Qt::black));
    EXPECT_EQ(ReadableOn(ColorOf(kDimmedMarkColor), std::nullopt), ColorOf(kDimmedMarkColor));
}

using HintWindowInGame = WindowFixture;

// The hint window never shows a board of the game before: New, Make and the end
// of Make give it a fresh copy, as "Main Duplicate". A place kept in the store
// that no screen shows any more is dropped: the window opens wholly on the screen.
TEST_F(HintWindowInGame, AnotherGameReplacesTheCopyOfTheOneBeforeOnTheScreen) {
    store.Write("FormHint", "Left", "5000");
    store.Write("FormHint", "Top", "-3000");
    OpenPlaying();
    window->SetStore(&store);
    options.HintWindow = true;
    Press("CommandHint");
    auto* hints = window->findChild<HintWindow*>(QStringLiteral("FormHint"));
    ASSERT_NE(hints, nullptr);
    ASSERT_TRUE(hints->isVisible());
    ASSERT_TRUE(hints->windowTitle().startsWith("Hint - "));
    const QRect screen = hints->screen()->availableGeometry(), at = hints->frameGeometry();
    EXPECT_TRUE(screen.contains(at))
        << at.x() << "," << at.y() << " " << at.width() << "x" << at.height() << " on "
        << screen.width() << "x" << screen.height();
    for (const char* command : {"CommandNew", "CommandMake", "CommandMake"}) {
        hints->ShowHint();  // a copy of the board as it is before the command
        const HintSnapshot before = hints->Snapshot();
        if (std::string_view(command) == "CommandMake" && game->MakeMode())
            prompter.answers = {Answer::Yes};  // Validate an empty entry: abort it
        Press(command);
        EXPECT_EQ(hints->windowTitle(), "Main Duplicate") << command;
        EXPECT_EQ(hints->Snapshot(), SnapshotOf(*game)) << command;
        // An empty entry ends on an empty board, as it began.
        if (!game->MakeMode() && std::string_view(command) == "CommandMake") continue;
        EXPECT_NE(hints->Snapshot(), before) << command;
    }
}

}  // namespace
}  // namespace tavi::ui
