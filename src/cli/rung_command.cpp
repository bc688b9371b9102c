// SPDX-License-Identifier: GPL-3.0-or-later
// The rung command, which runs one technique on boards written out whole, and the
// states command, which writes out the boards a rating run passes through.
#include <string>

#include "cli/commands.h"
#include "cli/puzzle_lines.h"
#include "grid/candidates.h"
#include "hints/hint_paint.h"
#include "hints/hint_search.h"
#include "hints/schrijf_hint.h"
#include "library/text_lines.h"
#include "solver/ladder.h"

namespace tavi::cli {

int RungCommand(int technique, std::istream& in, std::ostream& out, std::ostream& err, bool hint,
                bool paint, std::string_view source) {
    int bad = 0, lineNumber = 0;
    std::string line;
    for (LineRead read; (read = ReadBoundedLine(in, line)) != LineRead::End;) {
        ++lineNumber;
        if (read == LineRead::TooLong) {
            // A board line is under a thousand characters; this one is passed over unread.
            SkipRestOfLine(in);
            err << Where(source, lineNumber) << "no board line: longer than " << kLineLimit
                << " characters\n";
            ++bad;
            continue;
        }
        if (line.find_first_not_of(" \t\r") == std::string::npos || line[0] == '#') continue;
        std::string why;
        const auto board = ParseBoardLine(line, &why);
        if (!board) {
            err << source << ", line " << lineNumber << ": " << why << '\n';
            ++bad;
            continue;
        }
        SolveContext ctx(hint ? Side::Game : Side::Workbench);
        ctx.board = *board;
        const Rung* hit = nullptr;
        if (hint) {
            ModeScope looking(ctx, HintMode(ctx.Mode(), RungsOf(technique)[0]));
            hit = RunTechnique(ctx, technique);
        } else {
            hit = RunTechnique(ctx, technique);
        }
        out << FormatDigits(board->Puzzle) << '\t'
            << (hit ? FormatConclusions(ctx.hint.Conclusions) : "none");
        if (hint) out << '\t' << (hit ? SchrijfHint(ctx.hint, *board) : "");
        if (hint && paint) out << '\t' << (hit ? DescribePaints(PaintHint(ctx.hint, *board)) : "");
        out << '\n';
    }
    return bad ? kExitBadInput : kExitOk;
}

int States(std::istream& in, std::ostream& out, std::ostream& err, bool all,
           std::string_view source) {
    SolveContext ctx(Side::Workbench);
    bool written = false;  // this pass of the ladder has written its board
    WorkbenchRun run;
    run.observer.before = [&](const Rung& rung) {
        if (written || (!all && rung.number < kFirstOrderedTechnique)) return;
        out << FormatBoardLine(ctx.board) << '\n';
        written = true;
    };
    run.observer.hit = [&](const Rung&) { written = false; };
    int invalid = 0;
    const int bad = ForEachPuzzle(
        in, err,
        [&](const PuzzleLine& p) {
            if (ReportClash(p, source, err)) {
                ++invalid;
                return;
            }
            ctx.board = BoardFromPuzzle(p.digits);
            written = false;
            SolveSudoku(ctx, run);
        },
        source);
    return bad ? kExitBadInput : invalid ? kExitSomeInvalid : kExitOk;
}

}  // namespace tavi::cli
