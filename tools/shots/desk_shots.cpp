// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures of the game window as a person meets it on a small desktop: the
// whole screen with the game window and the small hint window where they open,
// the technique manager and the options window on that screen, dimmed marks
// on hint colours, the revision history, the About box and the box of a new
// best time. Run it with a screen of 1366 x 768 ("offscreen:configfile=FILE" in
// QT_QPA_PLATFORM), once as it is and once with QT_SCALE_FACTOR=2. Written into
// TAVI_SHOTS_DIR.
#include <QDir>
#include <QMessageBox>
#include <QPainter>
#include <QScreen>

#include "ui/about_window.h"
#include "ui/check_window.h"
#include "ui/colors_window.h"
#include "ui/hint_window.h"
#include "ui/options_dialog.h"
#include "ui/print_window.h"
#include "ui/qt_prompter.h"
#include "ui/revision_window.h"
#include "ui/technique_manager_dialog.h"
#include "window_fixture.h"

namespace tavi::ui {
namespace {

class DeskShots : public WindowFixture {
  public:
    static QString Dir() { return qEnvironmentVariable("TAVI_SHOTS_DIR"); }
    static QString Suffix() {
        const QString scale = qEnvironmentVariable("QT_SCALE_FACTOR");
        return scale.isEmpty() ? QString() : QStringLiteral("-x") + scale;
    }
    static void Save(const QImage& image, const QString& name) {
        ASSERT_FALSE(image.isNull());
        if (Dir().isEmpty()) return;
        QDir().mkpath(Dir());
        EXPECT_TRUE(image.save(QDir(Dir()).filePath(name + Suffix() + ".png")));
    }
    static void Shot(QWidget& w, const QString& name) {
        QApplication::processEvents();
        Save(w.grab().toImage(), name);
    }
    // The screen as a person sees it: the windows drawn where they stand, in
    // the screen's device pixels, each with a thin frame.
    static void Desktop(const std::vector<QWidget*>& windows, const QString& name) {
        QApplication::processEvents();
        const QScreen* screen = QGuiApplication::primaryScreen();
        const qreal ratio = screen->devicePixelRatio();
        QImage desk(screen->geometry().size() * ratio, QImage::Format_RGB32);
        desk.setDevicePixelRatio(ratio);
        desk.fill(QColor(58, 84, 110));
        QPainter p(&desk);
        for (QWidget* w : windows) {
            const QRect at = w->geometry();
            p.drawPixmap(at.topLeft(), w->grab());
            p.setPen(QPen(Qt::black, 1));
            p.drawRect(at.adjusted(-1, -1, 0, 0));
        }
        p.end();
        Save(desk, name);
        std::printf("%s: screen %dx%d (scale %.1f)", name.toUtf8().constData(),
                    screen->geometry().width(), screen->geometry().height(), ratio);
        for (QWidget* w : windows)
            std::printf("  %s %d,%d %dx%d (min %dx%d)", w->objectName().toUtf8().constData(),
                        w->x(), w->y(), w->width(), w->height(), w->minimumSizeHint().width(),
                        w->minimumSizeHint().height());
        std::printf("\n");
    }
};

TEST_F(DeskShots, MainAndHintWindowOnTheScreen) {
    // As the program opens it: its own size and place on the screen.
    Started();
    window.emplace(*game, options, folders);
    MainWindow& w = *window;
    w.show();
    QApplication::processEvents();
    options.HintWindow = true;
    Press("CommandNew");
    for (int i = 0; i < 3; ++i) {
        auto [cell, digit] = FirstOpenCell();
        ClickMark(digit, cell);
    }
    Press("CommandHint");
    // The keyboard's cursor, moved from the middle one cell up and right.
    Board()->setFocus();
    for (int key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Right})
        QTest::keyClick(Board(), Qt::Key(key));
    auto* hints = w.findChild<HintWindow*>(QStringLiteral("FormHint"));
    ASSERT_NE(hints, nullptr);
    ASSERT_TRUE(hints->isVisible());
    Desktop({&w, hints}, "desk-main-hint");
    Shot(w, "main");
    Shot(*hints, "hint-window");
}

TEST_F(DeskShots, DimmedMarksOnHintColours) {
    Open({1000, 720});
    options.Dimmed = true;
    Press("CommandNew");
    Press("CommandHint");
    Shot(*Board(), "dimmed-marks");
}

// A key that can do nothing: the cell flashes and the note says why.
TEST_F(DeskShots, KeyboardNotice) {
    Open({1000, 720});
    Press("CommandNew");
    auto [cell, digit] = FirstOpenCell();
    int gone = 0;
    for (int d = 1; d <= 9 && !gone; ++d)
        if (d != digit && game->MarkVisible(d, cell)) gone = d;
    ClickMark(gone, cell, Qt::RightButton);
    QTest::keyClick(Board(), Qt::Key(Qt::Key_0 + gone));
    Shot(*Board(), "keyboard-notice");
}

TEST_F(DeskShots, DialogsOnTheScreen) {
    MainWindow& w = Open();
    PrintSettings print;
    OptionsDialog dialog(options, true, &w);
    dialog.show();
    Shot(dialog, "options");
    Desktop({&dialog}, "desk-options");
    TechniqueManagerDialog techniques(options.techniques, &w);
    techniques.setObjectName(QStringLiteral("SolveTech"));
    techniques.show();
    Shot(techniques, "techniques");
    Desktop({&techniques}, "desk-techniques");
    for (QDialog* d : std::initializer_list<QDialog*>{
             new ColorsWindow(options.colors, nullptr, &w),
             new PrintWindow(print, PrintSnapshotOf(*game), folders.DataFolder, &w),
             new CheckWindow(folders.DataFolder, &options.techniques.Order, nullptr, &w)}) {
        d->show();
        Desktop({d}, d->objectName());
        delete d;
    }
    RevisionWindow revisions(&w);
    revisions.show();
    Shot(revisions, "revision");
    AboutWindow about(&w);
    about.show();
    Shot(about, "about");
}

TEST_F(DeskShots, BestTimeBox) {
    MainWindow& w = Open();
    auto box =
        MessageBoxFor(&w, "Congratulations", "New best time !!!", Buttons::Ok, Icon::Information);
    box->show();
    Shot(*box, "congratulations");
    std::printf("congratulations box %dx%d, title needs %d\n", box->width(), box->height(),
                box->fontMetrics().horizontalAdvance(box->windowTitle()));
}

}  // namespace
}  // namespace tavi::ui
