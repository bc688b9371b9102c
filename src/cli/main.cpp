// SPDX-License-Identifier: GPL-3.0-or-later
// tavi-sudoku-cli: the command-line companion of Tavi Sudoku 1, for rating,
// solving and explaining puzzles in bulk.
#include <fstream>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include "cli/commands.h"
#include "cli/in_order.h"
#include "cli/library_commands.h"
#include "cli/puzzle_lines.h"
#include "grid/levels.h"
#include "library/folder_lock.h"

namespace {

constexpr const char* kUsage =
    "usage: tavi-sudoku-cli COMMAND [options] [FILE]\n"
    "       tavi-sudoku-cli --help | --version\n"
    "\n"
    "Puzzles are read one per line from FILE, or from standard input: the first 81\n"
    "characters of a line are the puzzle ('1'-'9' a clue, '0' or '.' an empty cell).\n"
    "Blank lines and lines starting with '#' are skipped.\n"
    "\n"
    "commands:\n"
    "  rate [--summary] [--score]\n"
    "                     puzzle, level number and level name; --score adds the\n"
    "                     difficulty score with one decimal\n"
    "  solve [--threads N]\n"
    "                     puzzle, unique/none/multiple, and the solution or -;\n"
    "                     N threads (default: every core)\n"
    "  steps [--explain]  every step of the ladder, then the result; --explain adds\n"
    "                     the hint sentence of each step\n"
    "  hint [--paint]     the sentence of the first hint on the fresh board; --paint\n"
    "                     lists the hint's colours after it\n"
    "  signature          level, steps, placements, removals and hits per rung\n"
    "  states [--all]     the boards on which a rating run needs more than the\n"
    "                     fixed head of the ladder (--all: every board of the\n"
    "                     run), one board line each\n"
    "  rung N [--hint [--paint]]\n"
    "                     technique N once on each board line (81 givens, 81\n"
    "                     digits, 729 candidates); --hint looks on the game side\n"
    "                     and adds the sentence, --paint then the hint's colours\n"
    "\n"
    "  generate --count N [--start S] [--threads T]\n"
    "        N minimal puzzles with one solution each, one per line; T threads\n"
    "        (default: every core), the same puzzles for any T\n"
    "  library build --out DIR (--per-level N | --counts N1,...,N9) [--start S]\n"
    "                [--walks W] [--minutes M] [--threads T] [--from FILE.sds ...]\n"
    "        generate and rate puzzles, and write the nine .sds files of a library\n"
    "        with up to N puzzles per level (or N1 Easy ... N9 Outlaw), each once\n"
    "        up to the grid's symmetries, easier ones first; Mayhem and Outlaw come\n"
    "        from a search around the hardest puzzles (at most W walks); stops after\n"
    "        M minutes (default 10); with --from the search starts from the\n"
    "        puzzles of those library files instead, and no random puzzles are made\n"
    "  library import TEXTFILE --dir DIR\n"
    "        import a foreign file (81-character lines, 729-character candidate\n"
    "        lines, 9-line grids): each new puzzle with one solution is rated and\n"
    "        appended to the library of its level\n"
    "  library check DIR [--level L]\n"
    "        rerate every library of DIR (or of level L) as the workbench's Check All\n"
    "        does, moving each puzzle to the library of its level; then the count of\n"
    "        puzzles per hardest technique\n"
    "  library export FILE.sds [--score]\n"
    "        one line per record: puzzle, solution and best time; --score adds the\n"
    "        difficulty score\n"
    "  library import TEXTFILE --level L --dir DIR\n"
    "        append the puzzles of TEXTFILE with their solutions to the .sds and\n"
    "        .sdl files of level L (1-9) in DIR\n";

int Usage(const std::string& problem) {
    if (!problem.empty()) std::cerr << "tavi-sudoku-cli: " << problem << "\n\n";
    std::cerr << kUsage;
    return 2;
}

// The library commands that rewrite a folder's files hold its lock for their run;
// a folder a running game holds is refused with exit code 2.
bool FolderRefused(const std::vector<std::string>& args, std::optional<tavi::FolderLock>& held) {
    if (args.size() < 3 || args[0] != "library") return false;
    std::string dir;
    if (args[1] == "check") dir = args[2];
    for (size_t i = 2; i + 1 < args.size(); ++i)
        if ((args[1] == "import" && args[i] == "--dir") ||
            (args[1] == "build" && args[i] == "--out"))
            dir = args[i + 1];
    std::string holder;
    if (dir.empty() || tavi::FolderLock::Take(dir, "tavi-sudoku-cli", held, &holder) !=
                           tavi::FolderLock::Result::Held)
        return false;
    std::cerr << "tavi-sudoku-cli: " << tavi::FolderInUse(dir, holder) << '\n';
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<std::string> args(argv + 1, argv + argc);
    if (args.empty()) return Usage("no command given");
    const std::string command = args[0];
    if (command == "--help" || command == "-h" || command == "help") {
        std::cout << kUsage;
        return 0;
    }
    if (command == "--version") {
        std::cout
            << "tavi-sudoku-cli (Tavi Sudoku 1) " TAVI_VERSION
               "\n"
               "Copyright 2026 The Tavi Sudoku 1 developers\n"
               "License GPLv3+: GNU GPL version 3 or later <https://gnu.org/licenses/gpl.html>.\n"
               "This is free software: you are free to change and redistribute it.\n"
               "There is NO WARRANTY, to the extent permitted by law.\n";
        return 0;
    }

    std::optional<tavi::FolderLock> held;
    if (FolderRefused(args, held)) return 2;
    if (command == "generate") return tavi::cli::GenerateCommand(args, std::cout, std::cerr);
    if (command == "library") return tavi::cli::LibraryCommand(args, std::cout, std::cerr);

    int technique = 0;
    size_t first = 1;
    if (command == "rung") {
        if (args.size() < 2) return Usage("rung needs a technique number");
        try {
            technique = std::stoi(args[1]);
        } catch (const std::exception&) {
            technique = 0;
        }
        if (technique < 3 || technique > 39) return Usage("no technique " + args[1]);
        first = 2;
    }

    tavi::cli::RateOptions rateOptions;
    bool explain = false, paint = false, hint = false, all = false;
    int threads = tavi::cli::AllCores();
    std::string file;
    for (size_t i = first; i < args.size(); ++i) {
        if (args[i] == "--threads" && command == "solve") {
            const auto n = i + 1 < args.size() ? tavi::cli::ParseThreads(args[++i]) : std::nullopt;
            if (!n) return Usage(tavi::cli::kThreadsProblem);
            threads = *n;
        } else if (args[i] == "--summary" && command == "rate")
            rateOptions.summary = true;
        else if (args[i] == "--score" && command == "rate")
            rateOptions.score = true;
        else if (args[i] == "--explain" && command == "steps")
            explain = true;
        else if (args[i] == "--all" && command == "states")
            all = true;
        else if (args[i] == "--hint" && command == "rung")
            hint = true;
        else if (args[i] == "--paint" && (command == "hint" || command == "rung"))
            paint = true;
        else if (args[i].rfind("--", 0) == 0)
            return Usage("unknown option " + args[i] + " for " + command);
        else if (file.empty())
            file = args[i];
        else
            return Usage("more than one input file");
    }

    const bool known = command == "rate" || command == "solve" || command == "steps" ||
                       command == "hint" || command == "signature" || command == "states" ||
                       command == "rung";
    if (!known) return Usage("unknown command " + command);
    std::ifstream fileStream;
    std::string source(tavi::cli::kStandardInput);
    if (!file.empty() && file != "-") {
        if (const std::string problem = tavi::cli::InputFileProblem(file); !problem.empty()) {
            std::cerr << "tavi-sudoku-cli: " << problem << '\n';
            return tavi::cli::kExitBadInput;
        }
        fileStream.open(file, std::ios::binary);
        source = file;
    }
    std::istream& in = fileStream.is_open() ? fileStream : std::cin;
    std::ios::sync_with_stdio(false);

    if (command == "rate") return tavi::cli::Rate(in, std::cout, std::cerr, rateOptions, source);
    if (command == "solve") return tavi::cli::Solve(in, std::cout, std::cerr, source, threads);
    if (command == "steps") return tavi::cli::Steps(in, std::cout, std::cerr, explain, source);
    if (command == "hint") return tavi::cli::Hint(in, std::cout, std::cerr, paint, source);
    if (command == "signature") return tavi::cli::Signature(in, std::cout, std::cerr, source);
    if (command == "states") return tavi::cli::States(in, std::cout, std::cerr, all, source);
    if (command == "rung")
        return tavi::cli::RungCommand(technique, in, std::cout, std::cerr, hint, paint, source);
    return Usage("unknown command " + command);
}
