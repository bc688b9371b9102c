// SPDX-License-Identifier: GPL-3.0-or-later
// Every technique case of tests/data/rung_cases.txt: the board, the technique, the
// changes it makes on the workbench side, and the sentence and the colours its hint
// writes on the game side. A technique's cases are data lines there, not a test of
// their own. Every hint of those lines tells and paints exactly what its hit
// concludes (the soundness walk checks the same on the hard puzzles' boards).
#include <gtest/gtest.h>

#include <cctype>
#include <fstream>

#include "grid/candidates.h"
#include "hints/hint_paint.h"
#include "hints/hint_search.h"
#include "hints/hint_truth.h"
#include "hints/schrijf_hint.h"
#include "solver/ladder.h"
#include "solver/solutions.h"
#include "support/boards.h"
#include "support/puzzles.h"

namespace tavi {
namespace {

struct RungCase {
    int line;
    Board board;
    int technique;
    std::string changes, sentence, paint;
    std::string fault;  // why the line could not be read, or ""
};

// The lines of the file. Read before any test runs, so a line that can't be read
// becomes a case that fails with the reason.
std::vector<RungCase> ReadCases() {
    std::ifstream file(std::string(TAVI_TEST_DATA_DIR) + "/rung_cases.txt");
    std::vector<RungCase> cases;
    if (!file) cases.push_back({0, {}, 0, {}, {}, {}, "missing tests/data/rung_cases.txt"});
    int number = 0;
    for (std::string text; std::getline(file, text);) {
        ++number;
        if (text.empty() || text[0] == '#') continue;
        std::vector<std::string> fields = testing::Fields(text);
        fields.resize(5);
        std::string why;
        const auto board = ParseBoardLine(fields[0], &why);
        cases.push_back({number, board.value_or(Board{}), std::atoi(fields[1].c_str()), fields[2],
                         fields[3], fields[4], board ? "" : "unreadable board: " + why});
    }
    return cases;
}

// What gtest prints of a case: where it stands.
void PrintTo(const RungCase& k, std::ostream* out) { *out << "rung_cases.txt line " << k.line; }

// "Line12_HiddenSingle": the line of the file and the technique's name.
std::string CaseName(const ::testing::TestParamInfo<RungCase>& info) {
    const RungCase& k = info.param;
    std::string name = "Line" + std::to_string(k.line) + "_";
    const auto rungs = RungsOf(k.technique);
    for (char c : rungs.empty() ? std::string_view("NoTechnique") : rungs[0].Name())
        if (std::isalnum(static_cast<unsigned char>(c))) name += c;
    return name;
}

// One test per line: the technique finds what the line says on the workbench side,
// and on the game side its hint writes the line's sentence and paints its colours.
class RungCaseLine : public ::testing::TestWithParam<RungCase> {};

TEST_P(RungCaseLine, FindsWhatItSaysAndSaysIt) {
    const RungCase& k = GetParam();
    ASSERT_EQ(k.fault, "");
    ASSERT_FALSE(RungsOf(k.technique).empty()) << "no technique " << k.technique;

    SolveContext work(Side::Workbench);
    work.board = k.board;
    const Rung* hit = RunTechnique(work, k.technique);
    EXPECT_EQ(hit ? FormatConclusions(work.hint.Conclusions) : "none", k.changes);

    SolveContext look(Side::Game);
    look.board = k.board;
    const Rung* hinted = nullptr;
    {
        ModeScope looking(look, HintMode(look.Mode(), RungsOf(k.technique)[0]));
        hinted = RunTechnique(look, k.technique);
    }
    EXPECT_EQ(look.board.Candidates, k.board.Candidates) << "a hint changes nothing";
    EXPECT_EQ(hinted ? SchrijfHint(look.hint, k.board) : "", k.sentence);
    EXPECT_EQ(hinted ? DescribePaints(PaintHint(look.hint, k.board)) : "", k.paint);
    if (hinted) {
        EXPECT_TRUE(hinted->Fills(look.hint.HintKind)) << "kind " << look.hint.HintKind;
        EXPECT_EQ(testing::TruthFaults(look.hint, k.board), "");
    }

    // Whatever a line expects, no technique may contradict a puzzle's one solution.
    if (const SolutionCount s = Solutions(k.board.Puzzle); s.count == 1) {
        for (const Conclusion& c : work.hint.Conclusions)
            EXPECT_EQ(c.placed, s.first[c.cell] == c.digit)
                << CellName(c.cell) << (c.placed ? "=" : "-") << int(c.digit)
                << " contradicts the solution";
    }
}

INSTANTIATE_TEST_SUITE_P(RungCases, RungCaseLine, ::testing::ValuesIn(ReadCases()), CaseName);

}  // namespace
}  // namespace tavi
