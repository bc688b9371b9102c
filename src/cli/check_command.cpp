// library check: the workbench's Check All over the libraries of a folder, from
// the command line. Moves and rewrites are the workbench's own.
#include <fstream>
#include <iostream>

#include "cli/library_commands.h"
#include "cli/puzzle_lines.h"
#include "library/library_files.h"
#include "solver/ladder.h"
#include "workbench/import.h"
#include "workbench/workbench.h"

namespace tavi::cli {

namespace {

// The workbench's boxes as lines: the reports are written, a record number is
// always the first.
class LinePrompter : public Prompter {
  public:
    explicit LinePrompter(std::ostream& out) : out_(out) {}
    void Beep() override {}
    Answer Ask(std::string_view title, std::string_view text, Buttons, Icon) override {
        out_ << title << ": " << text << '\n';
        return Answer::Ok;
    }
    std::optional<std::string> Input(std::string_view, std::string_view,
                                     std::string_view) override {
        return "1";
    }

  private:
    std::ostream& out_;
};

}  // namespace

int LibraryCheckCommand(const std::filesystem::path& folder, int onlyLevel, std::ostream& out,
                        std::ostream& err) {
    std::error_code ec;
    if (!std::filesystem::is_directory(folder, ec)) {
        err << "tavi-sudoku-cli: " << folder.string() << " is no folder\n";
        return 2;
    }
    LinePrompter prompter(out);
    Workbench bench(prompter, folder);
    HardestCounts hardest{};
    for (int level = 1; level <= kLevelCount; ++level) {
        if (onlyLevel && level != onlyLevel) continue;
        if (WholeRecords(PuzzleFile(folder, LevelStem(level)), kSudokuRecordSize) < 1) continue;
        out << LevelPlural(level) << '\n';
        bench.Command1(level);
        bench.CommandCheckAll();
        for (int t = 0; t < kTechniqueCount; ++t)
            hardest[t] += bench.Hardest()[t];
    }
    out << "hardest technique\tpuzzles\n";
    for (int t = 0; t < kTechniqueCount; ++t)
        if (hardest[t])
            out << (t == 7 ? std::string_view("Subsets") : RungsOf(t)[0].Name()) << '\t'
                << hardest[t] << '\n';
    return 0;
}

int LibraryImportCommand(const std::filesystem::path& file, const std::filesystem::path& folder,
                         std::ostream& out, std::ostream& err) {
    if (const std::string problem = InputFileProblem(file.string()); !problem.empty()) {
        err << "tavi-sudoku-cli: " << problem << '\n';
        return kExitBadInput;
    }
    std::error_code ec;
    if (!std::filesystem::is_directory(folder, ec)) {
        err << "tavi-sudoku-cli: " << folder.string() << " is no folder\n";
        return kExitBadInput;
    }
    std::ifstream in(file, std::ios::binary);
    const ImportReport report = ImportPuzzles(folder, in);
    for (const ForeignProblem& p : report.malformed)
        err << file.string() << ", line " << p.line << ": " << p.why << '\n';
    out << report.Text() << '\n';
    const bool refused =
        report.noSolution || report.severalSolutions || report.duplicates || report.unwritten;
    return !report.malformed.empty() ? kExitBadInput : refused ? kExitSomeInvalid : kExitOk;
}

}  // namespace tavi::cli
