// SPDX-License-Identifier: GPL-3.0-or-later
// Printing: a job printed to a PDF file has the pages and texts it should, read
// back with pdftotext; the window keeps its range label and what it enables.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetrics>
#include <QImage>
#include <QLabel>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <bit>

#include "grid/candidates.h"
#include "grid/levels.h"
#include "library/library_files.h"
#include "print/paper_type.h"
#include "settings/technique_manager.h"
#include "support/puzzles.h"
#include "ui/print_window.h"

namespace tavi::ui {
namespace {

class PrintTest : public ::testing::Test {
  public:
    PrintTest() {
        const auto& puzzles = testing::GeneratedPuzzles(3, 11);
        for (int i = 0; i < 3; ++i)
            WriteSudokuRecord(PuzzleFile(Folder(), LevelStem(2)), i + 1,
                              SudokuRecord{puzzles[i].puzzle, puzzles[i].solution, 0, 0});
        settings.PrintLevelIndex = 1;
    }
    std::filesystem::path Folder() const { return dir.path().toStdString(); }

    // The text of the PDF, pages separated by form feeds; empty when the tool is
    // missing.
    QString PdfText(const QString& pdf) {
        const QString tool = QStandardPaths::findExecutable(QStringLiteral("pdftotext"));
        if (tool.isEmpty()) return {};
        QProcess run;
        run.start(tool, {pdf, QStringLiteral("-")});
        EXPECT_TRUE(run.waitForFinished(30000));
        return QString::fromUtf8(run.readAllStandardOutput());
    }
    // "# " and the number; the extractor may drop the blank.
    static bool HasNumber(const QString& page, int number) {
        return page.contains(QRegularExpression(QStringLiteral("#\\s*%1(?!\\d)").arg(number)));
    }
    QString PrintToPdf(PrintWindow& window, bool* ok) {
        const QString pdf = dir.filePath(QStringLiteral("job.pdf"));
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(pdf);
        *ok = window.PrintTo(printer);
        return pdf;
    }

    QTemporaryDir dir;
    PrintSettings settings;
    std::vector<std::pair<QString, QString>> told;
};

TEST_F(PrintTest, APdfJobHoldsItsPagesAndARecordBeyondTheLibraryCancelsIt) {
    if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty())
        GTEST_SKIP() << "pdftotext is not installed";
    settings.PrintPuzzlesPerPageIndex = 0;  // one to a page
    settings.PrintPages = 2;
    settings.PrintFrom = 2;
    PrintWindow window(settings, {}, Folder());
    EXPECT_EQ(window.findChild<QLabel*>("LabelTo")->text(), "to 3");
    bool ok = false;
    const QString text = PdfText(PrintToPdf(window, &ok));
    EXPECT_TRUE(ok);
    const QStringList pages = text.split(QChar('\f'), Qt::SkipEmptyParts);
    ASSERT_EQ(pages.size(), 2) << text.toStdString();
    for (int p = 0; p < 2; ++p) {
        EXPECT_TRUE(pages[p].contains("Tavi-Sudoku")) << p;
        EXPECT_TRUE(pages[p].contains("Medium")) << p;
        EXPECT_TRUE(HasNumber(pages[p], p + 2)) << p;
        EXPECT_TRUE(pages[p].contains(QStringLiteral("Page %1").arg(p + 1))) << p;
    }
    // The clues, the marks of the open cells and the 81 digits of the solution.
    const Board board = BoardFromPuzzle(testing::GeneratedPuzzles(3, 11)[1].puzzle);
    int expected = 81;
    for (int c = 0; c < 81; ++c)
        expected += board.CurrentGrid[c] ? 1 : std::popcount(unsigned(board.Candidates[c]));
    int digits = 0;
    for (QChar c : pages[0])
        digits += c.isDigit();
    EXPECT_EQ(digits, expected + 1 + 1);  // and the 2 of "# 2" and the 1 of "Page 1"

    // A record beyond the library cancels the job and keeps the pages so far.
    settings.PrintPuzzlesPerPageIndex = 1;  // two to a page: 1 2 | 3 4
    settings.PrintFrom = 1;
    settings.PrintSolutions = false;
    PrintWindow beyond(settings, {}, Folder());
    beyond.SetTeller(
        [this](const QString& title, const QString& text) { told.emplace_back(title, text); });
    ok = true;
    const QString cut = PdfText(PrintToPdf(beyond, &ok));
    EXPECT_FALSE(ok);
    ASSERT_EQ(told.size(), 1u);
    EXPECT_EQ(told[0].first, "Print canceled");
    EXPECT_EQ(told[0].second, "An error occurred while trying to read sudokus from file");
    // (Which puzzles the job had placed by then: PrintJobTest.)
    EXPECT_EQ(cut.split(QChar('\f'), Qt::SkipEmptyParts).size(), 2);
}

TEST_F(PrintTest, TheOnScreenPuzzleEnablesItsChoicesAndTakesAPlaceFromTheRange) {
    PrintSnapshot snapshot;
    snapshot.Number = 3;
    settings.PrintPuzzlesPerPageIndex = 2;
    settings.PrintPages = 1;
    PrintWindow window(settings, snapshot, Folder());
    auto* current = window.findChild<QCheckBox*>("CheckCurrent");
    auto* state = window.findChild<QCheckBox*>("CheckCurrentState");
    auto* to = window.findChild<QLabel*>("LabelTo");
    EXPECT_TRUE(window.findChild<QLabel*>("LabelRangeNote")->isHidden());
    EXPECT_FALSE(state->isEnabled());
    EXPECT_FALSE(window.findChild<QCheckBox*>("CheckPencils")->isEnabled());
    EXPECT_EQ(to->text(), "to 4");
    current->setChecked(true);
    EXPECT_TRUE(state->isEnabled());
    EXPECT_TRUE(window.findChild<QCheckBox*>("CheckPencils")->isEnabled());
    EXPECT_EQ(to->text(), "to 3");
    window.findChild<QSpinBox*>("TextFrom")->setValue(5);
    window.findChild<QRadioButton*>("OptionAantal_1")->setChecked(true);
    EXPECT_EQ(to->text(), "to 5");
    EXPECT_EQ(settings.PrintFrom, 5);

    // "From" beyond the three puzzles of the library is said at once.
    auto* note = window.findChild<QLabel*>("LabelRangeNote");
    EXPECT_EQ(note->text(), "Medium holds 3 puzzles");
    EXPECT_FALSE(note->isHidden());
    current->setChecked(false);
    EXPECT_FALSE(window.findChild<QCheckBox*>("CheckPencils")->isEnabled());
    window.findChild<QSpinBox*>("TextFrom")->setValue(3);
    EXPECT_TRUE(note->isHidden());

    PrintWindow nothingOnScreen(settings, {}, Folder());
    EXPECT_FALSE(nothingOnScreen.findChild<QCheckBox*>("CheckCurrent")->isEnabled());
    EXPECT_FALSE(settings.PrintCurrent);
}

TEST_F(PrintTest, DigitsAndHeadingsAreSetInTheMetricTwinsOfTimesAndArial) {
    const QString tool = QStandardPaths::findExecutable(QStringLiteral("pdffonts"));
    if (tool.isEmpty()) GTEST_SKIP() << "pdffonts is not installed";
    const QStringList families = QFontDatabase::families();
    if (!families.contains("Liberation Serif") || !families.contains("Liberation Sans"))
        GTEST_SKIP() << "the Liberation fonts are not installed";
    // Where the faces themselves are installed fontconfig takes them: as good.
    if (families.contains("Times New Roman") || families.contains("Arial"))
        GTEST_SKIP() << "Times New Roman or Arial itself is installed";
    EXPECT_EQ(QFontInfo(PaperSerifFont(40)).family(), "Liberation Serif");
    EXPECT_EQ(QFontInfo(PaperSansFont(40)).family(), "Liberation Sans");
    settings.PrintPuzzlesPerPageIndex = 2;
    settings.PrintPages = 1;
    settings.PrintTeaching = true;
    settings.PrintFrom = 1;
    PrintSnapshot snapshot;
    snapshot.Number = 1;
    snapshot.Puzzle = snapshot.Grid = testing::GeneratedPuzzles(3, 11)[0].puzzle;
    settings.PrintCurrent = true;
    PrintWindow window(settings, snapshot, Folder());
    bool ok = false;
    const QString pdf = PrintToPdf(window, &ok);
    ASSERT_TRUE(ok);
    QProcess run;
    run.start(tool, {pdf});
    ASSERT_TRUE(run.waitForFinished(30000));
    const QStringList lines =
        QString::fromUtf8(run.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts).mid(2);
    QStringList names;
    for (const QString& line : lines)
        names << line.section(' ', 0, 0).section('+', -1).section('-', 0, 0);
    names.removeDuplicates();
    names.sort();
    EXPECT_EQ(names, (QStringList{"LiberationSans", "LiberationSerif"}))
        << names.join(' ').toStdString();
}

TEST(TeachingFit, TheLongestTechniqueListFitsItsBoxAtEveryPageSizeAndDensity) {
    std::vector<TechniqueCount> all;
    for (int t = 3; t < int(kTechniqueRows.size()); ++t)
        all.push_back({std::string(kTechniqueRows[std::size_t(t)].caption), 99});
    QImage device(10, 10, QImage::Format_RGB32);
    for (const auto& [w, h] : {std::pair(2100, 2970), std::pair(9921, 14031)}) {
        const PageGeometry g = GeometryOf(w, h);
        const auto points = [&](double pt) { return int(pt * 25.4 / 72.0 * g.PrintUnit); };
        for (int perPage : {1, 2, 4})
            for (std::size_t n : {std::size_t(1), std::size_t(6), std::size_t(12), all.size()}) {
                const std::vector<TechniqueCount> list(all.begin(), all.begin() + long(n));
                const Rect r = PuzzlePlaces(g, perPage)[0].teaching;
                const QRect box(r.x, r.y, r.width, r.height);
                const FittedText fitted =
                    FitTeachingText(list, box, points(8), points(5.5), &device);
                const QRect needed = QFontMetrics(fitted.font, &device)
                                         .boundingRect(box, kTeachingFlags, fitted.text);
                EXPECT_LE(needed.width(), box.width()) << w << " " << perPage << " " << n;
                EXPECT_LE(needed.height(), box.height()) << w << " " << perPage << " " << n;
                EXPECT_GE(fitted.font.pixelSize(), points(5.5));
                // What is left out is the end of the list, and the text says so.
                const QString whole = QString::fromStdString(TeachingText(list));
                if (fitted.text != whole) {
                    EXPECT_TRUE(fitted.text.endsWith(" more")) << fitted.text.toStdString();
                    const QString kept = fitted.text.left(fitted.text.lastIndexOf(", + "));
                    EXPECT_TRUE(whole.startsWith(kept)) << fitted.text.toStdString();
                }
            }
    }
}

}  // namespace
}  // namespace tavi::ui
