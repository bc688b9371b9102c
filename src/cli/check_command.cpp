// SPDX-License-Identifier: GPL-3.0-or-later
// library check: the workbench's Check All over the libraries of a folder, from
// the command line. Moves and rewrites are the workbench's own.
#include <algorithm>
#include <array>
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

// The workbench's boxes as lines: the reports are written, and the numbers it
// asks for are the ones given beforehand (else the first record).
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
        if (answers_.empty()) return "1";
        std::string next = answers_.front();
        answers_.erase(answers_.begin());
        return next;
    }
    void Script(std::vector<std::string> answers) { answers_ = std::move(answers); }

  private:
    std::ostream& out_;
    std::vector<std::string> answers_;
};

}  // namespace

int LibraryCheckCommand(const std::filesystem::path& folder, int onlyLevel, std::ostream& out,
                        std::ostream& err, int threads) {
    std::error_code ec;
    if (!std::filesystem::is_directory(folder, ec)) {
        err << "tavi-sudoku-cli: " << folder.string() << " is no folder\n";
        return kExitBadInput;
    }
    LinePrompter prompter(out);
    Workbench bench(prompter, folder);
    bench.SetThreads(threads);
    HardestCounts hardest{};
    long unreadable = 0;
    // Each level's own records: a puzzle moved into a later level was checked in
    // its old one, and is not checked (nor counted) a second time.
    std::array<long, kLevelCount + 1> own{};
    for (int level = 1; level <= kLevelCount; ++level)
        own[level] = WholeRecords(PuzzleFile(folder, LevelStem(level)), kSudokuRecordSize);
    for (int level = 1; level <= kLevelCount; ++level) {
        if (onlyLevel && level != onlyLevel) continue;
        const auto stem = LevelStem(level);
        if (!FileExists(PuzzleFile(folder, stem)) && !FileExists(LogFile(folder, stem))) continue;
        out << LevelPlural(level) << '\n';
        bench.Command1(level);
        if (bench.WorkLevel() != level) continue;  // no record, or a pair refused
        const long movedIn =
            std::max(0L, WholeRecords(PuzzleFile(folder, stem), kSudokuRecordSize) - own[level]);
        if (movedIn == 0) {
            bench.CommandCheckAll();
        } else if (bench.RecordCount() > movedIn) {
            prompter.Script({"1", std::to_string(bench.RecordCount() - movedIn)});
            bench.CommandCheckSome();
        }
        unreadable += bench.Unreadable();
        for (int t = 0; t < kTechniqueCount; ++t)
            hardest[t] += bench.Hardest()[t];
    }
    out << "hardest technique\tpuzzles\n";
    for (int t = 0; t < kTechniqueCount; ++t)
        if (hardest[t]) out << TechniqueCaption(t) << '\t' << hardest[t] << '\n';
    // A file that could not be written or read, or a damaged record: the work
    // is not done.
    if (bench.FileErrors() || unreadable) {
        err << "tavi-sudoku-cli: " << folder.string() << ": " << bench.FileErrors()
            << " file errors, " << unreadable << " records that could not be read\n";
        return kExitBadInput;
    }
    return kExitOk;
}

int LibraryImportCommand(const std::filesystem::path& file, const std::filesystem::path& folder,
                         std::ostream& out, std::ostream& err, int threads) {
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
    ImportRun run;
    run.threads = threads;
    const ImportReport report = ImportPuzzles(folder, in, run);
    for (const LineCount* lines : {&report.malformed, &report.unwritten}) {
        for (std::size_t i = 0; i < lines->first.size(); ++i)
            err << Where(file.string(), lines->first[i]) << lines->why[i] << '\n';
        if (lines->count > long(lines->first.size()))
            err << file.string() << ": and " << lines->count - long(lines->first.size())
                << " more lines like these\n";
    }
    out << report.Text() << '\n';
    const bool refused =
        report.noSolution.count || report.severalSolutions.count || report.duplicates.count;
    if (report.malformed.count || report.unwritten.count) return kExitBadInput;
    return refused ? kExitSomeInvalid : kExitOk;
}

}  // namespace tavi::cli
