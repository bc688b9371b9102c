// SPDX-License-Identifier: GPL-3.0-or-later
// What the program says of itself: --help and --version on the terminal, before
// any window, and the About box's name, version and licence.
#include <gtest/gtest.h>

#include <QLabel>
#include <QTextBrowser>
#include <sstream>

#include "ui/about_window.h"
#include "ui/program_info.h"

namespace tavi::ui {
namespace {

int Answer(std::vector<std::string> args, std::string* out) {
    args.insert(args.begin(), "tavi-sudoku");
    std::vector<char*> argv;
    for (std::string& a : args)
        argv.push_back(a.data());
    std::ostringstream text;
    const int status = AnswerCommandLine(int(argv.size()), argv.data(), text);
    *out = text.str();
    return status;
}

TEST(CommandLine, HelpAndVersionAnswerOnTheTerminalAndAnythingElseOpensTheWindow) {
    std::string out;
    EXPECT_EQ(Answer({"--version"}, &out), 0);
    EXPECT_EQ(out.substr(0, out.find('\n')), "tavi-sudoku (Tavi Sudoku 1) " TAVI_VERSION);
    EXPECT_NE(out.find("GPLv3+"), std::string::npos);
    // The toolkit's own options stand before ours and are passed by.
    EXPECT_EQ(Answer({"-platform", "offscreen", "--help"}, &out), 0);
    EXPECT_EQ(out.rfind("usage: tavi-sudoku [--help | --version]\n", 0), 0u);
    for (const auto& line : QString::fromStdString(out).split('\n'))
        EXPECT_LE(line.size(), 80) << line.toStdString();
    EXPECT_EQ(Answer({}, &out), -1);
    EXPECT_EQ(Answer({"-platform", "xcb"}, &out), -1);
    EXPECT_TRUE(out.empty());
}

TEST(AboutBox, ShowsNameVersionLicenceAndTheWholeRevisionHistory) {
    AboutWindow about;
    EXPECT_EQ(about.windowTitle(), "About Tavi Sudoku 1");
    EXPECT_EQ(about.findChild<QLabel*>("LabelName")->text(), "Tavi Sudoku 1");
    EXPECT_EQ(about.findChild<QLabel*>("LabelVersion")->text(), "Version " TAVI_VERSION);
    const QString licence = about.findChild<QLabel*>("LabelLicence")->text();
    EXPECT_TRUE(licence.contains("version 3 or (at your option) any later version"));
    const QString history = about.findChild<QTextBrowser*>("TextRevision")->toPlainText();
    for (const char* version : {"1.0", "1.1", "1.2", "1.3", "1.4", "1.5", "1.6"})
        EXPECT_TRUE(history.contains(QStringLiteral("Version %1").arg(version))) << version;
}

}  // namespace
}  // namespace tavi::ui
