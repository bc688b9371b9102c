// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/program_info.h"

#include <ostream>
#include <string_view>

namespace tavi::ui {

int AnswerCommandLine(int argc, char** argv, std::ostream& out) {
    for (int i = 1; i < argc; ++i) {
        const std::string_view arg = argv[i];
        if (arg == "--version") {
            out << "tavi-sudoku (" << kProgramName << ") " << kProgramVersion << "\n"
                << kCopyrightLine << "\n"
                << kLicenceNotice;
            return 0;
        }
        if (arg == "--help" || arg == "-h") {
            out << "usage: tavi-sudoku [--help | --version]\n"
                   "\n"
                   "Opens the game window of "
                << kProgramName
                << ": Sudoku on nine levels with pencil marks,\n"
                   "a clock and best times, hints that explain the next logical step,\n"
                   "printing, and a workbench for puzzle files. The command-line companion\n"
                   "is tavi-sudoku-cli.\n"
                   "\n"
                   "  --help     show this text and exit\n"
                   "  --version  show the version and exit\n"
                   "\n"
                   "Games are kept in ~/.local/share/TaviSud1, settings in\n"
                   "~/.config/TaviSud1/TaviSud1.ini. Home page: "
                << kHomepage << "\n";
            return 0;
        }
    }
    return -1;
}

}  // namespace tavi::ui
