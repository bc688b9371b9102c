// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <fstream>
#include <optional>
#include <regex>
#include <set>

#include "cli/cli_run.h"
#include "grid/candidates.h"
#include "library/folder_lock.h"
#include "library/library_test_support.h"
#include "solver/ladder.h"
#include "support/puzzles.h"

namespace tavi::cli {
namespace {

using testing::DeadCell, testing::Fields, testing::Lines;

std::string Text(const Digits& d) { return FormatDigits(d, '.'); }

// A solved grid with five cells emptied, one per row, column and box: singles only.
Digits FiveHoles() {
    Digits d = testing::GeneratedPuzzles(1)[0].solution;
    for (int c : {0, 13, 26, 30, 43})
        d[c] = 0;
    return d;
}

// A puzzle with no solution or several has no rating: level 0, and status 1.
TEST(CliRate, GivesTheRatingAndLevelZeroWithoutOneSolution) {
    Digits clash = FiveHoles();
    clash[0] = clash[1];  // the same digit twice in row A
    std::string input;
    std::vector<std::string> expected;
    for (auto [puzzle, rating] :
         {std::pair{FiveHoles(), "1\tEasy"},
          {DeadCell(), "0\tno unique solution"},
          {testing::WithoutFirstClue(testing::GeneratedPuzzles(1)[0].puzzle),
           "0\tno unique solution"},
          {clash, "invalid\tclashing givens"}}) {
        input += FormatDigits(puzzle, '0') + "\n";
        expected.push_back(FormatDigits(puzzle, '0') + "\t" + rating);
    }
    const Output o = RunRate(input);
    EXPECT_EQ(o.status, 1);  // the clash is reported, not rated
    EXPECT_EQ(Lines(o.out), expected);
    EXPECT_NE(o.err.find("line 4: invalid puzzle"), std::string::npos) << o.err;

    // With the summary: the same lines, and the count of each level on standard error.
    const Output summed = RunRate(input, RateOptions{true});
    EXPECT_EQ(summed.status, 1);
    EXPECT_EQ(summed.out, o.out);
    for (const char* said :
         {"Easy\t1\n", "Medium\t0\n", "Outlaw\t0\n", "invalid\t3\n", "per second"})
        EXPECT_NE(summed.err.find(said), std::string::npos) << summed.err;
}

TEST(CliSolve, SaysUniqueNoneOrMultiple) {
    const auto& p = testing::GeneratedPuzzles(1)[0];
    const Digits clueLess = testing::WithoutFirstClue(p.puzzle);
    Digits clash{};
    clash[0] = clash[1] = 1;
    struct Case {
        std::string line, expected;
    } cases[] = {
        {Text(p.puzzle), Text(p.puzzle) + "\tunique\t" + FormatDigits(p.solution)},
        {Text(clueLess), Text(clueLess) + "\tmultiple\t-"},
        {Text(DeadCell()), Text(DeadCell()) + "\tnone\t-"},
        {Text(Digits{}), Text(Digits{}) + "\tmultiple\t-"},
        {Text(clash), Text(clash) + "\tinvalid\t-"},
    };
    std::string input, expected;
    for (const Case& k : cases) {
        input += k.line + "\n";
        expected += k.expected + "\n";
    }
    const Output o = RunSolve(input);
    EXPECT_EQ(o.status, 1);  // the clashing givens
    EXPECT_EQ(o.out, expected);
    EXPECT_EQ(o.err,
              "standard input, line 5: invalid puzzle: two givens in one row, column or "
              "box hold the same digit\n");

    // More lines than one block holds, over two threads: the same answers in the
    // same order.
    std::string many, manyExpected;
    for (int i = 0; i < 1000; ++i) {
        many += input;
        manyExpected += expected;
    }
    const Output threaded =
        Piped(many, [](auto& i, auto& o, auto& e) { return Solve(i, o, e, "standard input", 2); });
    EXPECT_EQ(threaded.status, 1);
    EXPECT_TRUE(threaded.out == manyExpected);
}

// Every command reports a line that is no puzzle with its number, goes on with
// the rest, and ends with status 2. Input of any shape takes bounded memory and
// gives a bounded report: a line longer than 4,096 characters is passed over
// unread, and of many bad lines the first 20 are named and the rest counted.
TEST(CliInput, BadLinesAreReportedBoundedAndTheRestIsProcessed) {
    const std::string good = Text(FiveHoles());
    std::string badChar = good;
    badChar[10] = 'x';
    std::string many = std::string(200000, '1') + "\n" + good + "\n";
    for (int i = 0; i < 30; ++i)
        many += "bad " + std::to_string(i) + "\n";
    many += good + std::string(5000, ' ') + "\n";
    // Of its 32 bad lines the first 20 are named and the rest counted.
    std::vector<std::string> manySaid(21, "");
    manySaid.front() = "line 1: no puzzle line: longer than 4096 characters";
    manySaid.back() = "standard input: and 12 more lines that are no puzzle";
    const struct {
        std::string input;
        std::vector<std::string> said;  // a piece of each error line, in order
        int puzzles;
    } cases[] = {
        {good + "\n123\n# comment\n\n" + badChar + "\n" + good + " trailing\n" +
             good.substr(0, 80) + "\n",
         {"line 2", "line 5", "line 7"},
         2},
        {many, manySaid, 1},
    };
    using Command = Output (*)(const std::string&);
    const Command commands[] = {[](const std::string& i) { return RunRate(i); }, RunSolve,
                                [](const std::string& i) { return RunSteps(i); }};
    for (const auto& k : cases)
        for (const Command command : commands) {
            const Output o = command(k.input);
            EXPECT_EQ(o.status, 2);
            const auto errors = Lines(o.err);
            ASSERT_EQ(errors.size(), k.said.size()) << o.err;
            for (size_t i = 0; i < errors.size(); ++i)
                EXPECT_NE(errors[i].find(k.said[i]), std::string::npos) << errors[i];
            int puzzles = 0;
            for (const auto& line : Lines(o.out))
                puzzles += line.starts_with(good + "\t") || line.starts_with("result\t");
            EXPECT_EQ(puzzles, k.puzzles) << o.out;
        }
    // Zero bytes without a line end: binary, reading stops at the first line.
    const Output zeros = RunRate(std::string(1 << 20, '\0'));
    EXPECT_EQ(zeros.status, 2);
    EXPECT_EQ(zeros.err, "standard input, line 1: binary data, not puzzle lines; reading stops\n");
}

// Over generated puzzles: the placements of the steps rebuild the solution, no
// step takes away a digit of the solution, and each line names its rung. The
// first puzzle needs singles only: one line per hit, then the result.
TEST(CliSteps, ReplayOverGeneratedPuzzles) {
    const std::regex change("([A-HJ])([1-9])([=-])([1-9])");
    const Digits solution = testing::GeneratedPuzzles(1)[0].solution;
    std::vector<GeneratedPuzzle> puzzles = testing::GeneratedPuzzles(40);
    puzzles.insert(puzzles.begin(), {FiveHoles(), solution});
    std::string input;
    for (const auto& p : puzzles)
        input += Text(p.puzzle) + "\n";
    const Output steps = RunSteps(input);
    const auto ratings = Lines(RunRate(input).out);
    ASSERT_EQ(steps.status, 0);
    size_t next = 0, removals = 0;
    const auto lines = Lines(steps.out);
    ASSERT_GT(lines.size(), 5u);
    EXPECT_EQ(lines[0], "step\t1\t3\tHidden Single\tA1=" + std::to_string(solution[0]));
    EXPECT_EQ(lines[5], "result\tsolved\t1\tEasy");
    EXPECT_EQ(RunSteps(Text(DeadCell()) + "\n").out, "result\tunsolved\t9\tOutlaw\n");
    for (size_t i = 0; i < puzzles.size(); ++i) {
        Digits grid = puzzles[i].puzzle;
        for (int number = 1;; ++number) {
            ASSERT_LT(next, lines.size());
            const auto fields = Fields(lines[next++]);
            if (fields[0] == "result") {
                const auto rating = Fields(ratings[i]);
                EXPECT_EQ(fields, (std::vector<std::string>{
                                      fields[0], rating[1] == "9" ? "unsolved" : "solved",
                                      rating[1], rating[2]}));
                if (fields[1] == "solved") {
                    EXPECT_EQ(grid, puzzles[i].solution);
                }
                break;
            }
            ASSERT_EQ(fields.size(), 5u) << lines[next - 1];
            EXPECT_EQ(fields[0], "step");
            EXPECT_EQ(fields[1], std::to_string(number));
            const auto rungs = RungsOf(std::stoi(fields[2]));
            EXPECT_TRUE(std::any_of(rungs.begin(), rungs.end(), [&](const Rung& r) {
                return r.Name() == fields[3];
            })) << lines[next - 1];
            for (const auto& item : Fields(fields[4], ' ')) {
                std::smatch m;
                ASSERT_TRUE(std::regex_match(item, m, change)) << "'" << item << "'";
                const int row = std::string("ABCDEFGHJ").find(m[1].str()[0]);
                const int cell = 9 * row + std::stoi(m[2]) - 1, digit = std::stoi(m[4]);
                if (m[3] == "=") {
                    EXPECT_EQ(grid[cell], 0);
                    grid[cell] = std::uint8_t(digit);
                    EXPECT_EQ(digit, puzzles[i].solution[cell]) << item;
                } else {
                    ++removals;
                    EXPECT_NE(digit, puzzles[i].solution[cell]) << item;
                }
            }
        }
    }
    EXPECT_EQ(next, lines.size());
    EXPECT_GT(removals, 0u);

    // Explained, each step carries the sentence its rung gives under HintOnly, and
    // the run takes the same steps as the plain one.
    const auto explained = Lines(RunSteps(input, true).out);
    ASSERT_EQ(explained.size(), lines.size());
    for (size_t i = 0; i < lines.size(); ++i) {
        if (!lines[i].starts_with("step")) {
            EXPECT_EQ(explained[i], lines[i]);
            continue;
        }
        const auto f = Fields(explained[i]);
        ASSERT_EQ(f.size(), 6u) << explained[i];
        EXPECT_EQ(explained[i].substr(0, lines[i].size()), lines[i]);
        EXPECT_FALSE(f[5].empty()) << explained[i];
        if (f[2] == "39") {
            EXPECT_TRUE(f[5].starts_with("BIFURCATION: ")) << f[5];
        }
    }
    EXPECT_TRUE(Fields(explained[0]).back().starts_with("HIDDEN SINGLE: ")) << explained[0];
}

// The first hint of each puzzle, with its paints when asked; no hint on a full
// board, and clashing givens are an invalid puzzle, said as every command says it.
TEST(CliHint, TheFirstHintOfEachPuzzleWithItsPaints) {
    const auto& p = testing::GeneratedPuzzles(2);
    const std::string puzzles =
        FormatDigits(p[0].puzzle, '.') + "\n" + FormatDigits(p[1].puzzle, '.') + "\n";
    const std::string input = puzzles + FormatDigits(p[0].solution) + "\n" +
                              FormatDigits(testing::WithClash(p[0].puzzle)) + "\n";
    const auto hint = [](auto& i, auto& out, auto& e) { return Hint(i, out, e); };
    EXPECT_EQ(Piped(puzzles, hint).status, 0);
    const Output o = Piped(input, hint);
    const Output painted =
        Piped(input, [](auto& i, auto& out, auto& e) { return Hint(i, out, e, true); });
    EXPECT_EQ(o.status, 1);
    EXPECT_EQ(painted.status, 1);
    EXPECT_NE(o.err.find("line 4: invalid puzzle"), std::string::npos) << o.err;
    const auto plain = Lines(o.out), lines = Lines(painted.out);
    ASSERT_EQ(plain.size(), 4u);
    for (size_t i = 0; i < 2; ++i) {
        const auto f = Fields(plain[i]);
        ASSERT_EQ(f.size(), 2u);
        EXPECT_EQ(f[0], FormatDigits(p[i].puzzle, '.'));
        EXPECT_TRUE(f[1].starts_with("HIDDEN SINGLE: ") || f[1].starts_with("NAKED SINGLE: "))
            << f[1];
    }
    EXPECT_EQ(Fields(plain[2]).at(1), "No logical hints, you'll have to guess more than once...");
    EXPECT_EQ(Fields(plain[3]).at(1), "invalid");

    ASSERT_GT(lines.size(), 2u);
    EXPECT_EQ(lines[0], plain[0]);
    EXPECT_EQ(lines[1], "\terase");
    size_t second = 1;
    while (second < lines.size() && lines[second][0] == '\t')
        ++second;
    ASSERT_LT(second, lines.size());
    EXPECT_EQ(lines[second], plain[1]);
    EXPECT_EQ(std::vector(lines.end() - 2, lines.end()), std::vector(plain.end() - 2, plain.end()));
}

// The ladder's signature over a fixed list of puzzles must stay as it is recorded:
// a change of any rung's behaviour shows here. The puzzles are the first column of
// the file itself, so a change of the generator cannot move this check. When a
// change of the ladder is meant (a new technique), the file is made again with the
// command in its header.
TEST(LadderSignature, StaysAsRecorded) {
    std::ifstream file(std::string(TAVI_TEST_DATA_DIR) + "/ladder_signature.tsv");
    ASSERT_TRUE(file) << "missing tests/data/ladder_signature.tsv";
    std::vector<std::string> expected;
    for (std::string line; std::getline(file, line);)
        if (!line.empty() && line[0] != '#') expected.push_back(line);
    ASSERT_EQ(expected.size(), 301u) << "300 puzzles and the line of hits per rung";

    std::string puzzles;
    for (size_t i = 0; i + 1 < expected.size(); ++i)
        puzzles += expected[i].substr(0, expected[i].find('\t')) + '\n';
    std::istringstream in(puzzles);
    std::ostringstream out, err;
    ASSERT_EQ(Signature(in, out, err), 0);
    const auto got = testing::Lines(out.str());
    ASSERT_EQ(got.size(), expected.size());
    for (size_t i = 0; i < expected.size(); ++i)
        EXPECT_EQ(got[i], expected[i]) << "puzzle " << i + 1;
}

// The rung command reads whole boards; a line that is no board is named by its
// number, and the boards around it are still run.
TEST(CliRung, RunsOneTechniqueOnWrittenOutBoardsAndNamesBadLines) {
    Board board = BoardFromPuzzle(FiveHoles());
    const std::string line = FormatBoardLine(board);
    std::string clash = line;
    clash[82] = clash[82] == '1' ? '2' : '1';  // A1: over a given, or beside its candidates
    const std::string input = line + "\n" + line.substr(0, 170) + "\n" + clash + "\n" + line + "\n";
    const auto out =
        Piped(input, [](auto& i, auto& o, auto& e) { return RungCommand(4, i, o, e, true); });
    EXPECT_EQ(out.status, 2);
    const auto lines = Lines(out.out);
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(Fields(lines[0])[0], FormatDigits(FiveHoles()));
    EXPECT_NE(Fields(lines[0])[1], "none");
    EXPECT_EQ(Fields(lines[0])[2].rfind("NAKED SINGLE: ", 0), 0u) << lines[0];
    EXPECT_EQ(lines[1], lines[0]);
    EXPECT_NE(out.err.find("line 2: the candidates need 729 characters"), std::string::npos)
        << out.err;
    EXPECT_NE(out.err.find("line 3: "), std::string::npos) << out.err;
}

// The built program, for its exit status and its two ways of reading.
TEST(CliProgram, ExitStatusTellsWhetherEveryLineWasAPuzzle) {
    const testing::TempDir scratch;
    const std::filesystem::path& dir = scratch.path();
    const auto good = dir / "good.txt", bad = dir / "bad.txt";
    std::ofstream(good) << "# two puzzles\n"
                        << Text(FiveHoles()) << "\n"
                        << Text(testing::GeneratedPuzzles(1)[0].puzzle) << "\n";
    std::ofstream(bad) << Text(FiveHoles()) << "\nnot a puzzle\n";
    const auto run = [&](const std::string& args) { return RunProgram(args, dir); };
    Output o = run("rate " + good.string());
    EXPECT_EQ(o.status, 0);
    EXPECT_EQ(o.out, RunRate(Text(FiveHoles()) + "\n" +
                             Text(testing::GeneratedPuzzles(1)[0].puzzle) + "\n")
                         .out);
    o = run("solve " + bad.string());
    EXPECT_EQ(o.status, 2);
    EXPECT_EQ(Lines(o.out).size(), 1u);
    EXPECT_EQ(run("steps < " + bad.string()).status, 2);  // standard input
    // Every command of the usage text is taken, the board commands too.
    o = run("states --all " + good.string());
    EXPECT_EQ(o.status, 0);
    EXPECT_FALSE(o.out.empty());
    std::ofstream(dir / "boards.txt") << o.out;
    o = run("rung 4 " + (dir / "boards.txt").string());
    EXPECT_EQ(o.status, 0);
    EXPECT_FALSE(o.out.empty());

    // Paths that are no readable file, and binary input: a message naming the
    // file (and line), status 2, for every command.
    const auto junk = dir / "junk.bin";
    std::ofstream(junk, std::ios::binary) << Text(FiveHoles()) << "\n"
                                          << std::string("\x7f\x00\x01\x02ELF", 7);
    const std::string d = dir.string();
    const std::pair<std::string, std::string> cases[] = {
        {"rate " + d, d + ": is a folder"},
        {"hint " + d + "/none.txt", d + "/none.txt: not found"},
        {"library export " + d, d + ": is a folder"},
        {"library export " + d + "/none.sds", "none.sds: not found"},
        {"library import " + d + " --level 1 --dir " + d, d + ": is a folder"},
        {"library import --dir " + d + " " + d, d + ": is a folder"},
        {"library check --level 1 " + d + "/none", d + "/none is no folder"},
        {"rate " + junk.string(), junk.string() + ", line 2: binary data"},
        {"solve < " + junk.string(), "standard input, line 2: binary data"},
    };
    for (const auto& [args, said] : cases) {
        o = run(args);
        EXPECT_EQ(o.status, 2) << args;
        EXPECT_NE(o.err.find(said), std::string::npos) << args << ": " << o.err;
    }
}

// The library commands that rewrite a folder refuse one that a running game
// holds, with exit code 2, and leave its files as they were.
TEST(CliProgram, RewritingCommandsRefuseAHeldFolder) {
    const testing::TempDir scratch;
    const std::filesystem::path& dir = scratch.path();
    const auto run = [&](const std::string& args) { return RunProgram(args, dir); };
    const std::string d = dir.string(), txt = (dir / "puzzles.txt").string();
    ASSERT_EQ(run("generate --count 2 --start 9").status, 0);
    std::filesystem::rename(dir / "out.txt", txt);
    {
        std::optional<FolderLock> game;
        ASSERT_EQ(FolderLock::Take(dir, "tavi-sudoku", game), FolderLock::Result::Taken);
        for (const std::string& args :
             {"library check " + d, "library import " + txt + " --dir " + d,
              "library import " + txt + " --level 3 --dir " + d,
              "library build --out " + d + " --per-level 1 --minutes 1"}) {
            const Output o = run(args);
            EXPECT_EQ(o.status, 2) << args;
            EXPECT_NE(o.err.find("is in use by tavi-sudoku, process"), std::string::npos)
                << args << ": " << o.err;
            EXPECT_FALSE(std::filesystem::exists(dir / "Sudoku_Hard.sds")) << args;
        }
    }
    // Free again: the command runs.
    const Output o = run("library import " + txt + " --level 3 --dir " + d);
    EXPECT_EQ(o.status, 0) << o.err;
    EXPECT_TRUE(std::filesystem::exists(dir / "Sudoku_Hard.sds"));
}

}  // namespace
}  // namespace tavi::cli
