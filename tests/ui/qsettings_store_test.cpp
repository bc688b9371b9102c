// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qsettings_store.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "ui/program_folders.h"

namespace tavi::ui {
namespace {

void WriteFile(const QString& file, const QByteArray& bytes = {}) {
    QFile f(file);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(bytes);
}

TEST(QSettingsStore, KeepsSectionsKeysAndTextInAnIniFile) {
    QTemporaryDir dir;
    const QString file = dir.filePath("TaviSud1.ini");
    {
        QSettingsStore store(file);
        EXPECT_EQ(store.Read("Options", "Wells", "True"), "True");
        store.Write("Options", "Wells", "False");
        store.Write("SudokuLevel3", "Busy", "Yes");
        store.Write("Colors", "HColor0", "65280");
        store.Write("Text", "Spaces", " a, b ");
        store.Flush();
        QFile ini(file);
        ASSERT_TRUE(ini.open(QIODevice::ReadOnly));
        const QByteArray text = ini.readAll();
        for (const char* line : {"[Options]", "Wells=False", "[SudokuLevel3]"})
            EXPECT_TRUE(text.contains(line)) << text.toStdString();
    }
    QSettingsStore again(file);
    EXPECT_EQ(again.Read("Options", "Wells", "True"), "False");
    EXPECT_EQ(again.Read("SudokuLevel3", "Busy", "No"), "Yes");
    EXPECT_EQ(again.Read("Colors", "HColor0", ""), "65280");
    EXPECT_EQ(again.Read("Text", "Spaces", ""), " a, b ");
    EXPECT_EQ(again.Read("Options", "Sounds", "fallback"), "fallback");
    // The user's store is named after the application.
    EXPECT_TRUE(QSettingsStore().FileName().endsWith("TaviSud1/TaviSud1.ini"));
}

TEST(ProgramFolders, TheDataFolderIsMadeAndAnInstalledProgramFindsItsShare) {
    QTemporaryDir home;
    const QByteArray old = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", home.path().toUtf8());
    const LibraryFolders folders = ProgramFolders();
    if (old.isEmpty())
        qunsetenv("XDG_DATA_HOME");
    else
        qputenv("XDG_DATA_HOME", old);
    EXPECT_EQ(folders.DataFolder, std::filesystem::path(home.path().toStdString()) / "TaviSud1");
    EXPECT_TRUE(std::filesystem::is_directory(folders.DataFolder));
    EXPECT_FALSE(folders.AppFolder.empty());

    // An installed program finds what it brings under share.
    const QDir root(home.path());
    root.mkpath("bin");
    // Without help pages under share, the build folder: beside the program.
    EXPECT_EQ(DeliveredFolder(root.filePath("bin")), root.filePath("bin"));
    root.mkpath("share/tavi-sudoku/help");
    WriteFile(root.filePath("share/tavi-sudoku/help/index.html"));
    EXPECT_EQ(DeliveredFolder(root.filePath("bin")), root.filePath("share/tavi-sudoku"));
    // Installed as a game: PREFIX/games with PREFIX/share/games.
    root.mkpath("games");
    root.mkpath("share/games/tavi-sudoku/help");
    WriteFile(root.filePath("share/games/tavi-sudoku/help/index.html"));
    EXPECT_EQ(DeliveredFolder(root.filePath("games")), root.filePath("share/games/tavi-sudoku"));
}

// A lock beside the file that names no owner (a kill left it empty) is no
// lock: it goes at once, and the settings are read and written as always.
TEST(QSettingsStore, AnEmptyLockBesideTheFileIsNoLock) {
    QTemporaryDir dir;
    const QString file = dir.filePath("TaviSud1.ini");
    WriteFile(file, "[Options]\nWells=False\n");
    for (const QByteArray& junk : {QByteArray(), QByteArray("not a lock")}) {
        WriteFile(file + ".lock", junk);
        QSettingsStore store(file);
        EXPECT_FALSE(QFile::exists(file + ".lock"));
        EXPECT_EQ(store.Read("Options", "Wells", "True"), "False");
        store.Write("Options", "Sounds", "True");
        store.Flush();
    }
    EXPECT_EQ(QSettingsStore(file).Read("Options", "Sounds", "False"), "True");
}

// A folder at the file's place, or a file that is no settings file, is said; the
// file is left as it is, and the message says how to have settings kept again.
TEST(QSettingsStore, AFolderOrAFileThatIsNoSettingsFileIsSaid) {
    QTemporaryDir dir;
    ASSERT_TRUE(QDir(dir.path()).mkpath("Folder.ini"));
    const QSettingsStore folder(dir.filePath("Folder.ini"));
    EXPECT_NE(folder.Problem().find("Folder.ini was not used: it can't be read"), std::string::npos)
        << folder.Problem();
    const QString file = dir.filePath("TaviSud1.ini");
    WriteFile(file, "[Options\n\xff\xfe=\n[[[\n");
    const QSettingsStore store(file);
    if (store.Problem().empty()) GTEST_SKIP() << "this Qt reads the file anyway";
    EXPECT_NE(store.Problem().find("delete or rename that file"), std::string::npos);
}

}  // namespace
}  // namespace tavi::ui
