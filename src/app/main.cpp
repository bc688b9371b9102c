// SPDX-License-Identifier: GPL-3.0-or-later
// tavi-sudoku: the game window over the core. The folders, the settings store,
// the options and the platform's services are made here and handed to the game;
// the game starts before the window shows, as its questions may come first.
#include <QApplication>
#include <QFile>
#include <QFileSystemWatcher>
#include <QMessageBox>
#include <iostream>
#include <optional>

#include "game/game.h"
#include "library/folder_lock.h"
#include "settings/options.h"
#include "ui/app_icon.h"
#include "ui/desktop_services.h"
#include "ui/main_window.h"
#include "ui/program_folders.h"
#include "ui/program_info.h"
#include "ui/qsettings_store.h"
#include "ui/qt_prompter.h"
#include "ui/qt_sound_player.h"

namespace {

// The file a second start leaves in the data folder for the running window.
QString RaiseRequest(const tavi::LibraryFolders& folders) {
    return QString::fromStdString((folders.DataFolder / "TaviSud1.raise").string());
}

}  // namespace

int main(int argc, char** argv) {
    // --help and --version answer on the terminal, before a display is needed.
    if (const int status = tavi::ui::AnswerCommandLine(argc, argv, std::cout); status >= 0)
        return status;
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Tavi Sudoku 1"));
    QApplication::setApplicationVersion(QStringLiteral(TAVI_VERSION));
    QApplication::setWindowIcon(tavi::ui::AppIcon());
    QGuiApplication::setDesktopFileName(QString::fromLatin1(tavi::ui::kAppId));

    const tavi::LibraryFolders folders = tavi::ui::ProgramFolders();
    // One window per data folder: a second one would overwrite the first one's
    // records. The lock ends with the program, however it ends.
    std::optional<tavi::FolderLock> lock;
    std::string holder;
    if (tavi::FolderLock::Take(folders.DataFolder, "tavi-sudoku", lock, &holder) ==
        tavi::FolderLock::Result::Held) {
        // The first window comes to the front where the desktop lets it.
        QFile(RaiseRequest(folders)).open(QIODevice::WriteOnly);
        QMessageBox::information(
            nullptr, QStringLiteral("Tavi Sudoku 1"),
            QStringLiteral("Tavi Sudoku is already running (%1). Only one Tavi Sudoku at a "
                           "time can play from its data folder %2.")
                .arg(QString::fromStdString(holder),
                     QString::fromStdString(folders.DataFolder.string())));
        return 0;
    }
    QFile::remove(RaiseRequest(folders));  // one left from a start that found us busy
    // A settings file that can't be read is left alone: the run keeps its
    // settings in memory, and the game says why at start.
    tavi::ui::QSettingsStore fileStore;
    tavi::MemorySettingsStore memoryStore;
    memoryStore.SetProblem(fileStore.Problem());
    tavi::SettingsStore& store =
        fileStore.Problem().empty() ? static_cast<tavi::SettingsStore&>(fileStore) : memoryStore;
    tavi::Options options;
    tavi::ui::QtPrompter prompter;
    tavi::ui::QtSoundPlayer sounds(folders.AppFolder);
    tavi::ui::QtTimeSource clock;
    tavi::ui::DesktopPageOpener pages;
    // A long search lets the window repaint and hear "Stop" once it is there.
    tavi::ui::MainWindow* shown = nullptr;
    auto breathe = [&shown] {
        if (shown) shown->Breathe();
    };
    tavi::Game game(tavi::GameServices{prompter, store, clock, &sounds, &pages, breathe}, folders,
                    options);

    tavi::ui::MainWindow window(game, options, folders);
    shown = &window;
    window.SetStore(&store);
    if (!game.Start()) return 1;
    prompter.SetParent(&window);
    // A second start on the same folder asks this window to the front.
    QFileSystemWatcher watcher({QString::fromStdString(folders.DataFolder.string())});
    QObject::connect(&watcher, &QFileSystemWatcher::directoryChanged, &window, [&] {
        if (!QFile::remove(RaiseRequest(folders))) return;
        window.setWindowState((window.windowState() & ~Qt::WindowMinimized) | Qt::WindowActive);
        window.raise();
        window.activateWindow();
    });
    window.Refresh();
    window.show();
    return app.exec();
}
