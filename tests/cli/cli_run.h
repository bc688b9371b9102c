// SPDX-License-Identifier: GPL-3.0-or-later
// Running the command-line companion in the tests: its commands in process over
// text given as standard input or over their arguments, and the built program
// itself through the shell.
#pragma once

#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "cli/commands.h"
#include "cli/library_commands.h"

namespace tavi::cli {

struct Output {
    int status;
    std::string out, err;
};

// `command(in, out, err)` with `input` as its standard input.
template <typename Command>
Output Piped(const std::string& input, Command command) {
    std::istringstream in(input);
    std::ostringstream out, err;
    const int status = command(in, out, err);
    return {status, out.str(), err.str()};
}

inline Output RunRate(const std::string& input, RateOptions options = {}) {
    return Piped(input, [&](auto& i, auto& o, auto& e) { return Rate(i, o, e, options); });
}
inline Output RunSolve(const std::string& input) {
    return Piped(input, [](auto& i, auto& o, auto& e) { return Solve(i, o, e); });
}
inline Output RunSteps(const std::string& input, bool explain = false) {
    return Piped(input, [&](auto& i, auto& o, auto& e) { return Steps(i, o, e, explain); });
}

// The command line `name` `args`, run by `command`.
inline Output CommandLine(int (*command)(const std::vector<std::string>&, std::ostream&,
                                         std::ostream&),
                          const char* name, std::vector<std::string> args) {
    args.insert(args.begin(), name);
    std::ostringstream out, err;
    const int status = command(args, out, err);
    return {status, out.str(), err.str()};
}
inline Output RunGenerate(std::vector<std::string> args) {
    return CommandLine(GenerateCommand, "generate", std::move(args));
}
inline Output RunLibrary(std::vector<std::string> args) {
    return CommandLine(LibraryCommand, "library", std::move(args));
}

// The built program with `args` (words for the shell), its output kept in `scratch`.
inline Output RunProgram(const std::string& args, const std::filesystem::path& scratch) {
    const auto out = scratch / "out.txt", err = scratch / "err.txt";
    const std::string command =
        std::string(TAVI_CLI_PATH) + " " + args + " > " + out.string() + " 2> " + err.string();
    const int status = std::system(command.c_str());
    const auto read = [](const std::filesystem::path& file) {
        std::ifstream f(file);
        return std::string(std::istreambuf_iterator<char>(f), {});
    };
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, read(out), read(err)};
}

}  // namespace tavi::cli
