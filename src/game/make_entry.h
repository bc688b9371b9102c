// SPDX-License-Identifier: GPL-3.0-or-later
// The entry of a puzzle of the user's own: the texts of Make and Validate, and
// how a text of clues is read, whether typed or pasted into the puzzle line or
// dropped on it as a file.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "grid/board.h"

namespace tavi {

inline constexpr std::string_view kMakePrompt =
    "You can now paste or drop a sudoku textfile (*.txt) into this box, or enter the clues in "
    "the grid, then press [Validate]";

inline constexpr std::string_view kDropErrorTitle = "Drag 'N' Drop Error";
inline constexpr std::string_view kDropOneFileText =
    "Tavi Sudoku only allows 1 file at a time to drop!";
inline constexpr std::string_view kDropNoFolderText =
    "Tavi Sudoku only allows files to be installed";
inline constexpr std::string_view kDropNotTxtText = "This file is not a txt-file (*.txt)";

inline constexpr std::string_view kMakeErrorTitle = "Make error";
inline constexpr std::string_view kAbortMakingText =
    "Do you want to abort the making of a sudoku ?";
inline constexpr std::string_view kUnsolvedTitle = "Sudoku unsolved";
inline constexpr std::string_view kUnsolvedText =
    "The Sudoku you've made can't be solved by the logic of the program itself. Click [Ignore] "
    "to brute solve the puzzle.";
inline constexpr std::string_view kInvalidTitle = "Invalid Sudoku";
inline constexpr std::string_view kNotUniqueText =
    "The Sudoku you've made has no unique solution and will be discarded.";

// A text that can't be clues: nothing is entered.
inline constexpr std::string_view kClueTextRefused =
    "No clues were entered: the text holds letters or more than one line. A sudoku is one line "
    "of 81 characters, the digits 1 to 9 for the clues and \"0\", \".\" or a blank for an empty "
    "cell.";
inline constexpr std::string_view kReadErrorTitle = "File Error";

// The 81 characters of a clue text: its first 81, padded with blanks when it is
// shorter. A line break that ends the text counts as blanks. Nothing, with `why`
// set, when the 81 hold a letter, a character beyond plain ASCII, or a line
// break with more text after it: such a text is no puzzle line, and reading
// only its digits would enter clues in the wrong cells.
std::optional<std::string> ClueCharacters(std::string_view text, std::string* why = nullptr);

// The clues of a text: one line of 81 characters as ClueCharacters reads it, or
// else the first puzzle of any layout the workbench's import reads (a grid of
// nine lines, digits with blanks between them, a number or name before them),
// as 81 characters with '.' for an empty cell.
std::optional<std::string> ClueText(std::string_view text, std::string* why = nullptr);

// The first clash among clues, as "two 4s in row A" ("column 3", "box 5");
// empty when none.
std::string ClueClash(const Digits& clues);
inline constexpr std::string_view kClashTitle = "Invalid Sudoku";

// Where a puzzle already stands in the library: "Hard number 31".
inline constexpr std::string_view kAlreadyTitle = "Sudoku already in the library";

// Why files dropped on the puzzle line are refused, as the title and text of the
// message; nothing when there is exactly one file that may be read.
struct DropRefusal {
    std::string_view title, text;
};
std::optional<DropRefusal> RefuseDrop(const std::vector<std::filesystem::path>& files);

// The head of a dropped file, at most 4,096 bytes after a byte order mark (a
// grid of nine lines fits). Nothing when the file can't be read.
std::optional<std::string> ReadDroppedHead(const std::filesystem::path& file);

}  // namespace tavi
