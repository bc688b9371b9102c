#include "library/library_pair.h"

#include <system_error>

#include "grid/levels.h"

namespace tavi {

namespace fs = std::filesystem;

namespace {

void Say(std::string* why, std::string text) {
    if (why) *why = std::move(text);
}

// The renamed copy of a file that a rewrite works from: "2" before its name.
fs::path Renamed(const fs::path& file) {
    return file.parent_path() / ("2" + file.filename().string());
}

}  // namespace

std::string SourceFileNotFound(std::string_view stem) {
    return "Source file: " + std::string(stem) + "*" + " not found!";
}

bool ReadPair(const fs::path& dataFolder, std::string_view stem, long number, SudokuRecord& sudoku,
              SudokuLogRecord& log, Notifier* notifier) {
    const fs::path sds = PuzzleFile(dataFolder, stem), sdl = LogFile(dataFolder, stem);
    std::string why;
    if (!FileExists(sds) || !FileExists(sdl)) {
        why = SourceFileNotFound(stem);
    } else {
        SudokuRecord s;
        SudokuLogRecord l;
        if (ReadSudokuRecord(sds, number, s, &why) && ReadSudokuLogRecord(sdl, number, l, &why)) {
            sudoku = s;
            log = l;
            return true;
        }
    }
    if (notifier) notifier->Message(kFileErrorTitle, why);
    return false;
}

bool WritePair(const fs::path& dataFolder, std::string_view stem, long number,
               const SudokuRecord& sudoku, const SudokuLogRecord& log, std::string* why) {
    const fs::path sds = PuzzleFile(dataFolder, stem), sdl = LogFile(dataFolder, stem);
    // What the puzzle file holds now, to put back if the log file fails.
    SudokuRecordBytes before;
    const bool replacing = ReadRecordBytes(sds, number, before);
    const bool existed = FileExists(sds);
    std::error_code ec;
    const std::uintmax_t lengthBefore = existed ? fs::file_size(sds, ec) : 0;

    if (!WriteSudokuRecord(sds, number, sudoku, why)) return false;
    if (WriteSudokuLogRecord(sdl, number, log, why)) return true;

    if (replacing)
        WriteRecordBytes(sds, number, before);
    else if (existed)
        fs::resize_file(sds, lengthBefore, ec);
    else
        fs::remove(sds, ec);
    return false;
}

bool AppendToPair(const fs::path& dataFolder, std::string_view stem, const SudokuRecord& sudoku,
                  const SudokuLogRecord& log, long* number, std::string* why) {
    const fs::path sds = PuzzleFile(dataFolder, stem), sdl = LogFile(dataFolder, stem);
    const double puzzles = RecordCount(sds, kSudokuRecordSize).value_or(0);
    const double logs = RecordCount(sdl, kSudokuLogRecordSize).value_or(0);
    if (puzzles != long(puzzles) || logs != long(logs) || puzzles != logs) {
        Say(why, "The files of " + std::string(stem) + "* are out of step: " +
                     PuzzleFileName(stem) + " holds " + std::to_string(puzzles) + " records, " +
                     LogFileName(stem) + " " + std::to_string(logs) + "; nothing was added.");
        return false;
    }
    const long next = long(puzzles) + 1;
    if (!WritePair(dataFolder, stem, next, sudoku, log, why)) return false;
    if (number) *number = next;
    return true;
}

bool ExportSudoku(const fs::path& dataFolder, int currentSud, const SudokuRecord& sudoku,
                  const SudokuLogRecord& log, Notifier* notifier) {
    const std::string_view stem = LevelStem(kOutlaw);
    const fs::path sds = PuzzleFile(dataFolder, stem), sdl = LogFile(dataFolder, stem);
    auto fail = [&](const std::string& text) {
        if (notifier) notifier->Message(kFileErrorTitle, text);
        return false;
    };
    const long n = WholeRecords(sds, kSudokuRecordSize);
    if (!FileExists(sds) || !FileExists(sdl)) return fail(SourceFileNotFound(stem));
    if (WholeRecords(sdl, kSudokuLogRecordSize) != n)
        return fail("The files of " + std::string(stem) + "* are out of step; nothing was moved.");
    if (currentSud < 1 || currentSud > n)
        return fail("Record " + std::to_string(currentSud) + " is not in " + sds.string() + ".");

    std::string why;
    if (!AppendToPair(dataFolder, kExportedStem, sudoku, log, nullptr, &why)) return fail(why);

    std::error_code ec;
    if (n == 1) {
        fs::remove(sds, ec);
        fs::remove(sdl, ec);
        return true;
    }

    // Work from renamed copies and write the pair anew without the record; on a
    // failure the new files go and the copies get their names back.
    const fs::path oldSds = Renamed(sds), oldSdl = Renamed(sdl);
    fs::rename(sds, oldSds, ec);
    if (ec) return fail(std::string(kWriteErrorText));
    fs::rename(sdl, oldSdl, ec);
    if (ec) {
        fs::rename(oldSds, sds, ec);
        return fail(std::string(kWriteErrorText));
    }
    bool ok = true;
    for (long i = 1; ok && i <= n; ++i) {
        if (i == currentSud) continue;
        SudokuRecord s;
        SudokuLogRecord l;
        ok = ReadSudokuRecord(oldSds, i, s, &why) && ReadSudokuLogRecord(oldSdl, i, l, &why) &&
             WritePair(dataFolder, stem, i < currentSud ? i : i - 1, s, l, &why);
    }
    if (!ok) {
        fs::remove(sds, ec);
        fs::remove(sdl, ec);
        fs::rename(oldSds, sds, ec);
        fs::rename(oldSdl, sdl, ec);
        return fail(why);
    }
    fs::remove(oldSds, ec);
    fs::remove(oldSdl, ec);
    return true;
}

bool WriteBruteForceSolution(const fs::path& dataFolder, int level, long number, Board& board,
                             SudokuRecord& sudoku, const SudokuLogRecord& log, Notifier* notifier) {
    board.Solution = board.CurrentGrid;
    board.CurrentGrid = Digits{};
    sudoku.Puzzle = board.Puzzle;
    sudoku.Solution = board.Solution;
    std::string why;
    if (IsLevel(level) && WritePair(dataFolder, LevelStem(level), number, sudoku, log, &why))
        return true;
    if (notifier) notifier->Message(kFileErrorTitle, kWriteErrorText);
    return false;
}

}  // namespace tavi
