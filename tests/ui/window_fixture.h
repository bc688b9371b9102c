// SPDX-License-Identifier: GPL-3.0-or-later
// The game window over a game on a generated library in a temporary folder, with
// scripted answers, shown offscreen at 800 x 600.
#pragma once

#include <QDialog>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>

#include "support/game_fixture.h"
#include "ui/board_area.h"
#include "ui/board_widget.h"
#include "ui/main_window.h"
#include "ui/qt_convert.h"
#include "ui/release_controls.h"

namespace tavi::ui {

// The child of `parent` named `name`; a missing one fails the test.
template <typename W>
W* Child(const QObject& parent, const QString& name) {
    auto* w = parent.findChild<W*>(name);
    EXPECT_NE(w, nullptr) << name.toStdString();
    return w;
}

class WindowFixture : public tavi::testing::GameFixture {
  public:
    // Starts the game and shows the window over it.
    MainWindow& Open(QSize size = {800, 600}) {
        Started();
        window.emplace(*game, options, folders);
        window->resize(size);
        window->show();
        QApplication::processEvents();
        return *window;
    }
    // The window opened and made the active one, its board holding the keyboard.
    MainWindow& OpenActive() {
        Open();
        window->activateWindow();
        QApplication::setActiveWindow(&*window);
        Board()->setFocus();
        return *window;
    }
    // The window open on a New of the level chosen at start.
    MainWindow& OpenPlaying() {
        Open();
        Press("CommandNew");
        return *window;
    }
    QPushButton* Button(const char* name) const { return Find<QPushButton>(name); }
    template <typename W>
    W* Find(const QString& name) const {
        return Child<W>(*window, name);
    }
    BoardWidget* Board() const { return window->Area()->Board(); }
    void Press(const char* name) { QTest::mouseClick(Button(name), Qt::LeftButton); }
    QPoint MarkCentre(int digit, int cell) const {
        return Board()->Layout().MarkRect(digit, cell).center();
    }
    // The inside of a mark's square, where only its digit is drawn.
    QRect MarkRect(int digit, int cell) const {
        return Board()->Layout().MarkRect(digit, cell).adjusted(2, 2, -2, -2);
    }
    void ClickMark(int digit, int cell, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(Board(), button, {}, MarkCentre(digit, cell));
    }
    QImage BoardImage() const { return Board()->grab().toImage(); }

    std::optional<MainWindow> window;
};

// The pixels in `box` of `image` that `take` takes.
template <typename F>
int CountIn(const QImage& image, const QRect& box, F take) {
    int n = 0;
    for (int y = box.top(); y <= box.bottom(); ++y)
        for (int x = box.left(); x <= box.right(); ++x)
            n += take(image.pixel(x, y));
    return n;
}

// Dark pixels in `box` of `image`: what has been drawn there in ink.
inline int InkIn(const QImage& image, const QRect& box) {
    return CountIn(image, box, [](QRgb p) { return qGray(p) < 150; });
}

// Runs `act` on the modal window as soon as it is up.
inline void WhenModal(std::function<void(QWidget*)> act) {
    QTimer::singleShot(0, [act] {
        QWidget* modal = QApplication::activeModalWidget();
        ASSERT_NE(modal, nullptr);
        act(modal);
    });
}

// The part of `r` between the fractions `from` and `to` of its width and height.
inline QRect Part(const QRect& r, double x0, double y0, double x1, double y1) {
    return QRect(QPoint(r.x() + int(r.width() * x0), r.y() + int(r.height() * y0)),
                 QPoint(r.x() + int(r.width() * x1), r.y() + int(r.height() * y1)));
}

}  // namespace tavi::ui
