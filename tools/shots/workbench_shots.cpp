// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures of the file workbench: a library open, a check running, and the
// report of hardest techniques after it.
#include <QApplication>
#include <QDir>

#include "grid/candidates.h"
#include "library/library_pair.h"
#include "support/game_fixture.h"
#include "ui/check_window.h"

namespace tavi::ui {
namespace {

void Shot(QWidget& w, const char* name) {
    QApplication::processEvents();
    const QImage image = w.grab().toImage();
    const QString dir = qEnvironmentVariable("TAVI_SHOTS_DIR");
    if (dir.isEmpty()) return;
    QDir().mkpath(dir);
    EXPECT_TRUE(image.save(QDir(dir).filePath(QStringLiteral("%1.png").arg(name))));
}

TEST(WorkbenchShots, OpenRunningAndTheReport) {
    const auto root = std::filesystem::temp_directory_path() / "tavi-workbench-shots";
    std::filesystem::remove_all(root);
    std::filesystem::create_directories(root);
    for (const auto& p : testing::GeneratedPuzzles(40, 9))
        ASSERT_TRUE(AppendToPair(root, LevelStem(3), {p.puzzle, p.solution, 0, 0}, {}));
    testing::ScriptedPrompter prompter;
    CheckWindow window(root, nullptr, &prompter);
    window.show();
    prompter.inputs.push_back("7");
    window.Model().Command1(3);
    Shot(window, "workbench-open");
    bool shot = false;
    window.Model().SetRedrawEvery(std::chrono::milliseconds(0));
    window.Model().SetYield([&] {
        if (!shot && window.Model().progress().Bar1 == 12) {
            shot = true;
            Shot(window, "workbench-running");
        }
    });
    window.Model().CommandCheckAll();
    Shot(window, "workbench-report");

    // A record whose solution does not fit its clues: shown empty, with why.
    SudokuRecord bad;
    ASSERT_TRUE(ReadSudokuRecord(PuzzleFile(root, LevelStem(3)), 2, bad));
    bad.Solution[0] = bad.Solution[1];
    ASSERT_TRUE(WriteSudokuRecord(PuzzleFile(root, LevelStem(3)), 2, bad));
    prompter.inputs.push_back("2");
    window.Model().Command1(3);
    Shot(window, "workbench-damaged");
    std::filesystem::remove_all(root);
}

}  // namespace
}  // namespace tavi::ui
