#include "ui/program_folders.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

namespace tavi::ui {

LibraryFolders ProgramFolders() {
    LibraryFolders folders;
    folders.AppFolder = QCoreApplication::applicationDirPath().toStdString();
    const QString base = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    const QString data = QDir(base).filePath(QStringLiteral("TaviSud1"));
    QDir().mkpath(data);
    folders.DataFolder = data.toStdString();
    return folders;
}

}  // namespace tavi::ui
