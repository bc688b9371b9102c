// Every technique case of tests/data/rung_cases.txt: the board, the technique, the
// changes it makes on the workbench side, and the sentence its hint writes on the
// game side. A technique's cases are data lines there, not a test of their own.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "grid/candidates.h"
#include "hints/hint_search.h"
#include "hints/schrijf_hint.h"
#include "solver/brute_force.h"
#include "solver/ladder.h"

namespace tavi {
namespace {

struct RungCase {
    int line;
    Board board;
    int technique;
    std::string changes, sentence;
};

std::vector<RungCase> ReadCases() {
    std::ifstream file(std::string(TAVI_TEST_DATA_DIR) + "/rung_cases.txt");
    EXPECT_TRUE(file) << "missing tests/data/rung_cases.txt";
    std::vector<RungCase> cases;
    int number = 0;
    for (std::string text; std::getline(file, text);) {
        ++number;
        if (text.empty() || text[0] == '#') continue;
        std::vector<std::string> fields;
        std::istringstream split(text);
        for (std::string f; std::getline(split, f, '\t');)
            fields.push_back(f);
        fields.resize(4);
        std::string why;
        const auto board = ParseBoardLine(fields[0], &why);
        EXPECT_TRUE(board) << "line " << number << ": " << why;
        if (board)
            cases.push_back({number, *board, std::atoi(fields[1].c_str()), fields[2], fields[3]});
    }
    return cases;
}

// The solution of the givens when they have exactly one.
std::optional<Digits> UniqueSolution(const Digits& givens) {
    SolveContext ctx;
    ctx.board.Puzzle = givens;
    bool contradiction = false;
    if (BruteForceSolutions(ctx, contradiction) != 1) return std::nullopt;
    return ctx.board.CurrentGrid;
}

TEST(RungCases, EachTechniqueFindsWhatItsLinesSayAndSaysIt) {
    const auto cases = ReadCases();
    ASSERT_FALSE(cases.empty());
    for (const RungCase& k : cases) {
        SCOPED_TRACE("rung_cases.txt line " + std::to_string(k.line));
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
        if (hinted) {
            EXPECT_TRUE(hinted->Fills(look.hint.HintKind)) << "kind " << look.hint.HintKind;
        }

        // Whatever a line expects, no technique may contradict a puzzle's one solution.
        if (const auto solution = UniqueSolution(k.board.Puzzle)) {
            for (const Conclusion& c : work.hint.Conclusions)
                EXPECT_EQ(c.placed, (*solution)[c.cell] == c.digit)
                    << CellName(c.cell) << (c.placed ? "=" : "-") << int(c.digit)
                    << " contradicts the solution";
        }
    }
}

}  // namespace
}  // namespace tavi
