// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>

#include "cli/commands.h"
#include "grid/candidates.h"
#include "solver/ladder.h"
#include "support/puzzles.h"

namespace tavi::cli {
namespace {

struct Output {
    int status;
    std::string out, err;
};

template <typename Command>
Output RunCommand(Command command, const std::string& input) {
    std::istringstream in(input);
    std::ostringstream out, err;
    const int status = command(in, out, err);
    return {status, out.str(), err.str()};
}

Output RunRate(const std::string& input) {
    return RunCommand([](auto& in, auto& out, auto& err) { return Rate(in, out, err); }, input);
}
Output RunSolve(const std::string& input) {
    return RunCommand([](auto& in, auto& out, auto& err) { return Solve(in, out, err); }, input);
}
Output RunSteps(const std::string& input) {
    return RunCommand([](auto& in, auto& out, auto& err) { return Steps(in, out, err); }, input);
}

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
    const Output summed = RunCommand(
        [](auto& in, auto& out, auto& err) { return Rate(in, out, err, RateOptions{true}); },
        input);
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
        {FormatDigits(p.puzzle, '0') + "; extra",
         FormatDigits(p.puzzle, '0') + "\tunique\t" + FormatDigits(p.solution)},
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
              "standard input, line 6: invalid puzzle: two givens in one row, column or "
              "box hold the same digit\n");

    // More lines than one block holds, over two threads: the same answers in the
    // same order.
    std::string many, manyExpected;
    for (int i = 0; i < 900; ++i) {
        many += input;
        manyExpected += expected;
    }
    const Output threaded = RunCommand(
        [](auto& in, auto& out, auto& err) { return Solve(in, out, err, "standard input", 2); },
        many);
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
    const struct {
        std::string input;
        std::vector<std::string> said;  // a piece of each error line, in order
        int puzzles;
    } cases[] = {
        {good + "\n123\n# comment\n\n" + badChar + "\n" + good + " trailing\n" +
             good.substr(0, 80) + "\n",
         {"line 2", "line 5", "line 7"},
         2},
        {many,
         {"line 1: no puzzle line: longer than 4096 characters",
          "",
          "",
          "",
          "",
          "",
          "",
          "",
          "",
          "",
          "",
          "",
          "",
          "",
          "",
          "",
          "",
          "",
          "",
          "",
          "standard input: and 12 more lines that are no puzzle"},
         1},
    };
    for (const auto& k : cases)
        for (auto command : {RunRate, RunSolve, RunSteps}) {
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

TEST(CliSteps, OneLinePerHitThenTheResult) {
    const Digits puzzle = FiveHoles();
    const Output o = RunSteps(Text(puzzle) + "\n");
    EXPECT_EQ(o.status, 0);
    const auto lines = Lines(o.out);
    ASSERT_EQ(lines.size(), 6u) << o.out;
    const Digits solution = testing::GeneratedPuzzles(1)[0].solution;
    EXPECT_EQ(lines[0], "step\t1\t3\tHidden Single\tA1=" + std::to_string(solution[0]));
    EXPECT_EQ(lines[5], "result\tsolved\t1\tEasy");
    EXPECT_EQ(RunSteps(Text(DeadCell()) + "\n").out, "result\tunsolved\t9\tOutlaw\n");
}

// Over generated puzzles: the placements of the steps rebuild the solution, no
// step takes away a digit of the solution, and each line names its rung.
TEST(CliSteps, ReplayOverGeneratedPuzzles) {
    const std::regex change("([A-HJ])([1-9])([=-])([1-9])");
    const auto& puzzles = testing::GeneratedPuzzles(40);
    std::string input;
    for (const auto& p : puzzles)
        input += Text(p.puzzle) + "\n";
    const Output steps = RunSteps(input);
    const auto ratings = Lines(RunRate(input).out);
    ASSERT_EQ(steps.status, 0);
    size_t next = 0, removals = 0;
    const auto lines = Lines(steps.out);
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
}

// The rung command reads whole boards; a line that is no board is named by its
// number, and the boards around it are still run.
TEST(CliRung, RunsOneTechniqueOnWrittenOutBoardsAndNamesBadLines) {
    Board board = BoardFromPuzzle(FiveHoles());
    const std::string line = FormatBoardLine(board);
    std::string clash = line;
    clash[82] = clash[82] == '1' ? '2' : '1';  // A1: over a given, or beside its candidates
    const std::string input = line + "\n" + line.substr(0, 170) + "\n" + clash + "\n" + line + "\n";
    const auto out = RunCommand(
        [](auto& in, auto& o, auto& e) { return RungCommand(4, in, o, e, true); }, input);
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
    const auto dir =
        std::filesystem::temp_directory_path() / ("tavi-cli-test-" + std::to_string(::getpid()));
    std::filesystem::create_directories(dir);
    const auto good = dir / "good.txt", bad = dir / "bad.txt", out = dir / "out.txt";
    std::ofstream(good) << "# two puzzles\n"
                        << Text(FiveHoles()) << "\n"
                        << Text(testing::GeneratedPuzzles(1)[0].puzzle) << "\n";
    std::ofstream(bad) << Text(FiveHoles()) << "\nnot a puzzle\n";
    auto run = [&](const std::string& args) {
        const std::string command = std::string(TAVI_CLI_PATH) + " " + args + " > " + out.string() +
                                    " 2> " + (dir / "err.txt").string();
        const int status = std::system(command.c_str());
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    };
    auto written = [&](const std::filesystem::path& file) {
        std::ifstream f(file);
        return std::string(std::istreambuf_iterator<char>(f), {});
    };
    EXPECT_EQ(run("rate " + good.string()), 0);
    EXPECT_EQ(written(out), RunRate(Text(FiveHoles()) + "\n" +
                                    Text(testing::GeneratedPuzzles(1)[0].puzzle) + "\n")
                                .out);
    EXPECT_EQ(run("rate < " + good.string()), 0);
    EXPECT_EQ(Lines(written(out)).size(), 2u);
    EXPECT_EQ(run("solve " + bad.string()), 2);
    EXPECT_EQ(Lines(written(out)).size(), 1u);
    EXPECT_EQ(run("steps < " + bad.string()), 2);
    // Every command of the usage text is taken, the board commands too.
    EXPECT_EQ(run("states --all " + good.string()), 0);
    const std::string boards = written(out);
    EXPECT_FALSE(boards.empty());
    std::ofstream(dir / "boards.txt") << boards;
    EXPECT_EQ(run("rung 4 " + (dir / "boards.txt").string()), 0);
    EXPECT_FALSE(written(out).empty());

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
        EXPECT_EQ(run(args), 2) << args;
        const std::string err = written(dir / "err.txt");
        EXPECT_NE(err.find(said), std::string::npos) << args << ": " << err;
    }
    std::filesystem::remove_all(dir);
}

}  // namespace
}  // namespace tavi::cli
