// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/export.h"

#include <algorithm>
#include <fstream>

#include "grid/board.h"
#include "grid/levels.h"
#include "library/library_files.h"
#include "library/library_pair.h"
#include "library/record_checks.h"
#include "solver/difficulty_score.h"
#include "workbench/workbench.h"

namespace tavi {

std::string ExportLine(const SudokuRecord& record, int level, double score) {
    return FormatDigits(record.Puzzle, '.') + '\t' + std::to_string(level) + '\t' +
           std::string(LevelName(level)) + '\t' + FormatScore(score);
}

ExportResult ExportRecords(const std::filesystem::path& folder, int level, long from, long to,
                           std::ostream& out) {
    ExportResult result;
    const auto sds = PuzzleFile(folder, LevelStem(level));
    std::ifstream in(sds, std::ios::binary);
    if (!in) {
        result.failed = "Can't open " + sds.string();
        return result;
    }
    in.seekg(std::streamoff(from - 1) * std::streamoff(kSudokuRecordSize));
    SudokuRecordBytes bytes;
    SolveContext ctx(Side::Workbench);
    for (long n = from; n <= to; ++n) {
        if (!in.read(reinterpret_cast<char*>(bytes.data()), std::streamsize(bytes.size()))) {
            result.failed = sds.string() + ": read error at record " + std::to_string(n);
            return result;
        }
        const SudokuRecord r = SudokuRecordFromBytes(bytes);
        if (const std::string wrong = CheckSudokuRecord(r); !wrong.empty()) {
            if (++result.damagedCount <= long(kNamedRecords))
                result.damaged.push_back(DamagedRecord(sds, n, wrong));
            continue;
        }
        out << ExportLine(r, level, RatePuzzleWithScore(ctx, r.Puzzle).score) << '\n';
        ++result.written;
    }
    if (!out) result.failed = "Error writing the exported sudokus.";
    return result;
}

void Workbench::CommandExport(const std::filesystem::path& file, long from, long to) {
    const ChangeScope scope(*this);
    if (batchRunning_ || !IsLevel(workLevel_) || recordCount_ < 1) return;
    from = std::max(from, 1L);
    to = std::min(to, recordCount_);
    if (to < from) return;
    // Written beside, and put in place whole: a failed export leaves no half file.
    std::filesystem::path part = file;
    part += ".part";
    ExportResult result;
    {
        std::ofstream out(part, std::ios::binary | std::ios::trunc);
        if (!out)
            result.failed = "Can't write " + file.string();
        else
            result = ExportRecords(dataFolder_, workLevel_, from, to, out);
    }
    std::error_code ec;
    if (result.failed.empty()) std::filesystem::rename(part, file, ec);
    if (ec) result.failed = "Can't write " + file.string() + ": " + ec.message();
    if (!result.failed.empty()) {
        std::filesystem::remove(part, ec);
        ++fileErrors_;
        prompter_.Message(kFileErrorTitle, result.failed);
        return;
    }
    std::string text = std::to_string(result.written) + " " + LevelPlural(workLevel_) +
                       " exported to " + file.filename().string() + ".";
    if (result.damagedCount) text += "\n" + UnreadableText(result.damaged, result.damagedCount);
    prompter_.Message("Sudoku export report", text);
}

}  // namespace tavi
