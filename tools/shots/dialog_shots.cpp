// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures of the print window (its preview with one, two and four puzzles to a
// page, the on-screen puzzle in its current state, and "From" beyond the
// library), a PDF of a job, the colours window and the practice window, for a
// person to look at.
// Written into TAVI_SHOTS_DIR.
#include <QDir>
#include <QPrinter>
#include <QRadioButton>
#include <QSpinBox>

#include "ui/colors_window.h"
#include "ui/practice_dialog.h"
#include "ui/practice_indexer.h"
#include "ui/print_window.h"
#include "window_fixture.h"

namespace tavi::ui {
namespace {

class DialogShots : public WindowFixture {
  public:
    void Shot(QWidget& w, const QString& name) {
        QApplication::processEvents();
        const QImage image = w.grab().toImage();
        ASSERT_FALSE(image.isNull());
        const QString dir = qEnvironmentVariable("TAVI_SHOTS_DIR");
        if (dir.isEmpty()) return;
        QDir().mkpath(dir);
        EXPECT_TRUE(image.save(QDir(dir).filePath(name + ".png")));
    }
};

TEST_F(DialogShots, PrintWindow) {
    Open();
    Press("CommandNew");
    for (int i = 0; i < 5; ++i) {
        auto [cell, digit] = FirstOpenCell();
        ClickMark(digit, cell);
    }
    PrintSettings settings;
    settings.PrintLevelIndex = game->position().ChosenLevel - 1;
    PrintWindow print(settings, PrintSnapshotOf(*game), folders.DataFolder);
    print.resize(760, 560);
    print.show();
    for (int i : {0, 1, 2}) {
        print.findChild<QRadioButton*>(QStringLiteral("OptionAantal_%1").arg(i))->setChecked(true);
        Shot(print, QStringLiteral("print-%1").arg(PuzzlesPerPage(i)));
    }
    settings.PrintCurrent = settings.PrintCurrentState = true;
    print.findChild<QRadioButton*>(QStringLiteral("OptionAantal_0"))->setChecked(true);
    Shot(print, QStringLiteral("print-current"));
    settings.PrintCurrent = false;
    print.findChild<QSpinBox*>(QStringLiteral("TextFrom"))->setValue(999);
    Shot(print, QStringLiteral("print-beyond"));
    settings.PrintCurrent = true;
    print.findChild<QSpinBox*>(QStringLiteral("TextFrom"))->setValue(1);
    const QString dir = qEnvironmentVariable("TAVI_SHOTS_DIR");
    if (dir.isEmpty()) return;
    // The fixture's library holds three puzzles a level: the on-screen one and
    // the first three fill a page of four.
    settings.PrintPuzzlesPerPageIndex = 2;
    settings.PrintPages = 1;
    settings.PrintFrom = 1;
    settings.PrintTeaching = true;
    print.SetTeller(
        [](const QString& title, const QString&) { ADD_FAILURE() << title.toStdString(); });
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(QDir(dir).filePath("print-job.pdf"));
    print.PrintTo(printer);
}

TEST_F(DialogShots, ColorsWindow) {
    ColorSettings colors;
    MemorySettingsStore memory;
    ColorsWindow dialog(colors, &memory);
    dialog.resize(1000, 420);
    dialog.show();
    Shot(dialog, QStringLiteral("colors"));
    QTest::mouseClick(dialog.findChild<ClickLabel*>("HintColor_4"), Qt::LeftButton);
    dialog.PickSwatch(13);
    QTest::mouseClick(dialog.findChild<ClickLabel*>("LabelColor_7"), Qt::LeftButton);
    dialog.PickSwatch(20);
    Shot(dialog, QStringLiteral("colors-picked"));
}

// The practice window once the library's index is counted.
TEST_F(DialogShots, PracticeWindow) {
    Open();
    PracticeIndexer indexer(folders.DataFolder);
    indexer.Refresh();
    PracticeLibrary library;
    for (int i = 0; i < 600 && !indexer.Library(library); ++i)
        QTest::qWait(50);
    PracticeDialog dialog(indexer, folders.DataFolder);
    dialog.show();
    QTest::qWait(200);
    Shot(dialog, QStringLiteral("practice"));
}

}  // namespace
}  // namespace tavi::ui
