// SPDX-License-Identifier: GPL-3.0-or-later
// The library commands that rewrite a folder refuse one that a running game
// holds, with exit code 2, and leave its files as they were.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>

#include "library/folder_lock.h"

namespace tavi {
namespace {

namespace fs = std::filesystem;

TEST(FolderLockCli, RewritingCommandsRefuseAHeldFolder) {
    const fs::path dir =
        fs::temp_directory_path() / ("tavi-lock-cli-" + std::to_string(::getpid()));
    fs::create_directories(dir);
    auto run = [&](const std::string& args) {
        const std::string command = std::string(TAVI_CLI_PATH) + " " + args + " > " +
                                    (dir / "out.txt").string() + " 2> " +
                                    (dir / "err.txt").string();
        const int status = std::system(command.c_str());
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    };
    auto err = [&] {
        std::ifstream f(dir / "err.txt");
        return std::string(std::istreambuf_iterator<char>(f), {});
    };
    const std::string d = dir.string(), txt = (dir / "puzzles.txt").string();
    ASSERT_EQ(run("generate --count 2 --start 9"), 0);
    fs::rename(dir / "out.txt", txt);
    {
        std::optional<FolderLock> game;
        ASSERT_EQ(FolderLock::Take(dir, "tavi-sudoku", game), FolderLock::Result::Taken);
        for (const std::string& args :
             {"library check " + d, "library import " + txt + " --dir " + d,
              "library import " + txt + " --level 3 --dir " + d,
              "library build --out " + d + " --per-level 1 --minutes 1"}) {
            EXPECT_EQ(run(args), 2) << args;
            EXPECT_NE(err().find("is in use by tavi-sudoku, process"), std::string::npos)
                << args << ": " << err();
            EXPECT_FALSE(fs::exists(dir / "Sudoku_Hard.sds")) << args;
        }
    }
    // Free again: the command runs.
    EXPECT_EQ(run("library import " + txt + " --level 3 --dir " + d), 0) << err();
    EXPECT_TRUE(fs::exists(dir / "Sudoku_Hard.sds"));
    fs::remove_all(dir);
}

}  // namespace
}  // namespace tavi
