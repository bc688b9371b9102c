// SPDX-License-Identifier: GPL-3.0-or-later
// FormHint: the small hint window. A frozen copy of the game's board with the
// hint's colours, captioned with the technique that found the hint, so the
// person can keep the hint in view while trying things on the board. Its menu
// takes a new copy, saves the window as a BMP picture, prints it, or closes it.
#pragma once

#include <QImage>
#include <QMainWindow>
#include <functional>
#include <optional>
#include <vector>

#include "game/game.h"
#include "library/library_files.h"
#include "settings/settings_store.h"
#include "ui/board_snapshot.h"

class QPrinter;

namespace tavi::ui {

inline constexpr char kSaveAsTitle[] = "Save as... Filename[.bmp]";
inline constexpr char kBmpFilter[] = "BMP-file (*.bmp)";
// Where the last folder chosen for a picture is kept.
inline constexpr char kPictureFolderSection[] = "FormHint";
inline constexpr char kPictureFolderKey[] = "Folder";

class HintWindow : public QMainWindow {
    Q_OBJECT

  public:
    // Asks where the picture goes, offering `suggested` (a whole path); nothing
    // when the person cancels.
    using PathAsker =
        std::function<std::optional<QString>(const QString& title, const QString& suggested)>;

    HintWindow(const Game& game, LibraryFolders folders, QWidget* parent = nullptr);

    // The hint just shown on the board: a new copy under the game's caption for
    // the hint window, then the window comes forward without blocking.
    void ShowHint();
    // "&Refresh": a new copy of the board as it stands, as "Main Duplicate".
    void Refresh();
    // "&Save as BMP": asks where, in the folder chosen last (the user's pictures
    // folder at first), and writes the picture; a missing folder is made only
    // then. The file written, or empty when the person cancelled or the picture
    // could not be written (neither is reported).
    QString SaveAsBmp();
    // The folder the next picture is offered in.
    QString PictureFolder() const;
    // "&Print": the print dialog, then the picture on one page.
    void Print();
    // The picture scaled onto the printer's page; false when the printer can't
    // be opened.
    bool PrintTo(QPrinter& printer);

    // The window as the person sees it: menu and board.
    QImage Picture();
    const HintSnapshot& Snapshot() const { return snapshot_; }
    void SetPathAsker(PathAsker asker) { askPath_ = std::move(asker); }
    // Where the window keeps the place the person moved it to, for the next
    // showing and the next run.
    void SetStore(SettingsStore* store);
    // Shows the window, when hidden first at its place: where the person last
    // put it, while that is wholly on a screen and clear of the board and the
    // hint text, else beside the game window or where it hides the least.
    void Present();
    // The parts of the game window the hint window must not hide, on the screen.
    // `rather`: what it had better not hide either (the commands).
    void SetKeepClear(std::function<std::vector<QRect>()> keepClear,
                      std::function<std::vector<QRect>()> rather = {}) {
        keepClear_ = std::move(keepClear);
        rather_ = std::move(rather);
    }

  protected:
    void moveEvent(QMoveEvent* e) override;

  private:
    void TakeSnapshot();
    void Place();

    const Game& game_;
    LibraryFolders folders_;
    HintSnapshot snapshot_;
    PathAsker askPath_;
    QString pictureFolder_;  // chosen this run, before any store knows it
    QWidget* board_ = nullptr;
    SettingsStore* store_ = nullptr;
    std::optional<QPoint> placed_;  // where the person put the window
    std::function<std::vector<QRect>()> keepClear_, rather_;
    bool placing_ = false;  // the window is being moved by the program
};

// Where the hint window opens on the free part of a screen, and how large: to
// the right of the game window, else to its left, at its size; when neither side
// has room, where it covers the least of `keepClear` (the board and the hint
// text), then of `rather` (the commands), then of the game window; smaller if
// that covers less, down to 60 % and never below `smallest`. Always wholly on
// the screen.
QRect HintWindowPlace(const QRect& mainFrame, const QSize& hintFrame, const QRect& screenFree,
                      const std::vector<QRect>& keepClear = {}, QSize smallest = {},
                      const std::vector<QRect>& rather = {});

// The name offered for a picture: the caption without its "Hint - " and a
// number, "_0001" or the first one that names no picture in `folder` yet.
QString SuggestedPictureName(const QString& caption, const QString& folder);

// The answer made into a plain file name in the folder: path separators and
// characters no file system takes become "-", a typed ".bmp" is dropped.
QString PictureFileName(QString answer);

}  // namespace tavi::ui
