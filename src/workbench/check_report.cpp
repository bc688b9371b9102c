// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/check_report.h"

namespace tavi {

CheckReport ReportFor(long r, long o, long u, long total) {
    const std::string title = "Sudoku solve report";
    const auto n = [](long v) { return std::to_string(v); };
    const std::string outlaw = n(o) + " unsolved and rated as Outlaw!";
    if (r == total) return {LibraryFate::Delete, title, "All sudokus solved and rerated !"};
    if (o == total)
        return {LibraryFate::Delete, title, "No sudokus solved, all rerated as Outlaw !"};
    if (r == 0 && o == 0 && u == 0)
        return {LibraryFate::Unchanged, title, "Not one sudoku was solved by the program !"};
    if (r == 0 && o == 0)
        return {LibraryFate::Unchanged, "sudoku solve report",
                "All sudokus solved, but none of them could be rerated !"};
    if (r > 0 && u > 0 && o > 0)
        return {LibraryFate::Compact, title,
                n(r + u) + " sudokus solved, " + n(r) + " rerated, " + n(u) + " not rerated. " +
                    outlaw};
    if (r == 0 && u > 0)
        return {LibraryFate::Compact, title,
                n(u) + " sudokus solved, but none of them could be rerated. " + outlaw};
    if (r == 0) return {LibraryFate::Compact, title, outlaw};
    if (u > 0)
        return {LibraryFate::Compact, title,
                "All sudokus solved, " + n(r) + " rerated, " + n(u) + " not rerated."};
    if (o == 0) return {LibraryFate::Compact, title, n(r) + " sudokus solved and rerated."};
    return {LibraryFate::Compact, title, n(r) + " sudokus solved and rerated. " + outlaw};
}

}  // namespace tavi
