// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/program_folders.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

namespace tavi::ui {

QString DeliveredFolder(const QString& programDir) {
    // Installed: the program in PREFIX/games with what it brings in
    // PREFIX/share/games, or in PREFIX/bin with PREFIX/share.
    for (const char* place : {"../share/games/tavi-sudoku", "../share/tavi-sudoku"}) {
        const QDir shared(QDir(programDir).filePath(QString::fromLatin1(place)));
        if (shared.exists(QStringLiteral("help/index.html"))) return shared.absolutePath();
    }
    return QDir(programDir).absolutePath();
}

LibraryFolders ProgramFolders() {
    LibraryFolders folders;
    folders.AppFolder = DeliveredFolder(QCoreApplication::applicationDirPath()).toStdString();
    const QString base = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    const QString data = QDir(base).filePath(QStringLiteral("TaviSud1"));
    QDir().mkpath(data);
    folders.DataFolder = data.toStdString();
    return folders;
}

}  // namespace tavi::ui
