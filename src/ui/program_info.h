// SPDX-License-Identifier: GPL-3.0-or-later
// What the program says of itself: its name and version, its licence, and the
// answers to --help and --version on the terminal, given before any window or
// display is touched.
#pragma once

#include <iosfwd>
#include <string_view>

namespace tavi::ui {

inline constexpr std::string_view kProgramName = "Tavi Sudoku 1";
inline constexpr std::string_view kProgramVersion = TAVI_VERSION;
inline constexpr std::string_view kHomepage = "https://tavisudoku.org/";
inline constexpr std::string_view kCopyrightLine = "Copyright 2026 The Tavi Sudoku 1 developers";
inline constexpr std::string_view kLicenceNotice =
    "License GPLv3+: GNU GPL version 3 or later <https://gnu.org/licenses/gpl.html>.\n"
    "This is free software: you are free to change and redistribute it.\n"
    "There is NO WARRANTY, to the extent permitted by law.\n";

// Answers --help or --version on `out` and gives the exit status; -1 when the
// arguments ask for neither and the window should open. Other arguments are
// left to the toolkit.
int AnswerCommandLine(int argc, char** argv, std::ostream& out);

}  // namespace tavi::ui
