// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qsettings_store.h"

#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QStandardPaths>

namespace tavi::ui {

namespace {

inline constexpr char kApplication[] = "TaviSud1";

QString Text(std::string_view s) { return QString::fromUtf8(s.data(), qsizetype(s.size())); }

// Sections and keys keep their own spelling in the file: "Options/TimeOn".
QString Path(std::string_view section, std::string_view key) {
    return Text(section) + QLatin1Char('/') + Text(key);
}

// The lock a writer of the file leaves beside it while it writes. One that says
// nothing of its owner (empty or torn, as a kill between its creation and its
// text leaves it) is no lock of a living writer, yet the settings would wait
// half a minute for it to age: it goes at once. A lock of a dead owner Qt
// recognises by itself.
void RemoveBrokenLock(const QString& iniFile) {
    const QString lockFile = iniFile + QStringLiteral(".lock");
    if (!QFileInfo::exists(lockFile)) return;
    qint64 pid = 0;
    QString host, application;
    QLockFile lock(lockFile);
    if (!lock.getLockInfo(&pid, &host, &application)) QFile::remove(lockFile);
}

QString UserIniFile() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/") + kApplication + QStringLiteral("/") + kApplication +
           QStringLiteral(".ini");
}

}  // namespace

QSettingsStore::QSettingsStore()
    : settings_((RemoveBrokenLock(UserIniFile()),
                 std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                             kApplication, kApplication))) {
    CheckReadable();
}

QSettingsStore::QSettingsStore(const QString& iniFile)
    : settings_(
          (RemoveBrokenLock(iniFile), std::make_unique<QSettings>(iniFile, QSettings::IniFormat))) {
    CheckReadable();
}

void QSettingsStore::CheckReadable() {
    const QFileInfo file(settings_->fileName());
    std::string why;
    if (file.exists() && (!file.isFile() || !file.isReadable()))
        why = "it can't be read";
    else if (settings_->status() == QSettings::AccessError)
        why = "it can't be read";
    else if (settings_->status() == QSettings::FormatError)
        why = "it is no settings file";
    if (!why.empty())
        SetProblem("The settings file " + file.filePath().toStdString() + " was not used: " + why +
                   ". Tavi Sudoku runs on its default settings and leaves that file as it is. "
                   "To have your settings kept again, delete or rename that file (or correct "
                   "it in a text editor); the next start makes a fresh one.");
}

std::string QSettingsStore::Read(std::string_view section, std::string_view key,
                                 std::string_view fallback) const {
    const QVariant value = settings_->value(Path(section, key));
    // A list or other structure written by someone else is no text of ours.
    if (!value.isValid() || !value.canConvert<QString>()) return std::string(fallback);
    return value.toString().toStdString();
}

void QSettingsStore::Write(std::string_view section, std::string_view key, std::string_view value) {
    settings_->setValue(Path(section, key), Text(value));
}

void QSettingsStore::Flush() { settings_->sync(); }

}  // namespace tavi::ui
