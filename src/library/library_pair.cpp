// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/library_pair.h"

#include <algorithm>
#include <fstream>
#include <system_error>

#include "grid/levels.h"
#include "library/pair_guard.h"
#include "library/record_journal.h"

namespace tavi {

namespace fs = std::filesystem;

namespace {

void Say(std::string* why, std::string text) {
    if (why) *why = std::move(text);
}

// Both records at `number`, the end of both files: the log record first, so
// that the puzzle file's length never counts a record whose log is missing.
bool AppendBoth(const fs::path& sds, const fs::path& sdl, long number, const SudokuRecord& sudoku,
                const SudokuLogRecord& log, std::string* why) {
    std::error_code ec;
    // A new pair starts with an empty puzzle file, so that a kill after the log
    // record leaves a pair (taken back on open), never a log on its own.
    const bool newPair = !FileExists(sds);
    if (newPair && !std::ofstream(sds, std::ios::binary | std::ios::app)) {
        Say(why, "Can't write " + sds.string() + ".");
        return false;
    }
    const bool hadLog = FileExists(sdl);
    const std::uintmax_t logLength = hadLog ? fs::file_size(sdl, ec) : 0;
    bool ok = WriteSudokuLogRecord(sdl, number, log, why);
    if (ok && WriteSudokuRecord(sds, number, sudoku, why)) return true;
    if (ok && hadLog) fs::resize_file(sdl, logLength, ec);
    if (!hadLog) fs::remove(sdl, ec);
    if (newPair) fs::remove(sds, ec);
    return false;
}

}  // namespace

std::string SourceFileNotFound(std::string_view stem) {
    return "Source file: " + std::string(stem) + "*" + " not found!";
}

long CheckedPair(const fs::path& dataFolder, std::string_view stem, Notifier* notifier) {
    std::string repaired;
    bool refused = false;
    const long count = OpenPair(dataFolder, stem, &repaired, &refused);
    if (!repaired.empty() && notifier)
        notifier->Message(refused ? kFileErrorTitle : kPairRepairedTitle, repaired);
    return count;
}

bool ReadPair(const fs::path& dataFolder, std::string_view stem, long number, SudokuRecord& sudoku,
              SudokuLogRecord& log, Notifier* notifier) {
    const fs::path sds = PuzzleFile(dataFolder, stem), sdl = LogFile(dataFolder, stem);
    std::string why;
    if (CheckedPair(dataFolder, stem, notifier) < 0) {
        // A pair that was refused has been named already.
        if (FileExists(sds) || FileExists(sdl)) return false;
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
    if (log.StepCount < 0 || log.StepCount > kLogSteps) {
        Say(why, "A saved game holds at most " + std::to_string(kLogSteps) + " steps.");
        return false;
    }
    const long count = OpenPair(dataFolder, stem);
    if (count < 0 && (FileExists(sds) || FileExists(sdl))) {
        Say(why, SourceFileNotFound(stem));
        return false;
    }
    if (number >= 1 && number <= count) {
        const auto s = ToBytes(sudoku);
        const auto l = ToBytes(log);
        const RecordWrite both[] = {{sds, number, {s.begin(), s.end()}},
                                    {sdl, number, {l.begin(), l.end()}}};
        return WriteRecordsInPlace(both, why);
    }
    if (number != std::max(count, 0L) + 1) {
        Say(why, "Record " + std::to_string(number) + " can't be written to the pair " +
                     std::string(stem) + "*, which holds " + std::to_string(std::max(count, 0L)) +
                     " records.");
        return false;
    }
    return AppendBoth(sds, sdl, number, sudoku, log, why);
}

bool AppendToPair(const fs::path& dataFolder, std::string_view stem, const SudokuRecord& sudoku,
                  const SudokuLogRecord& log, long* number, std::string* why,
                  const BeforeAppend& before) {
    std::string repaired;
    long count = OpenPair(dataFolder, stem, &repaired);
    const fs::path sds = PuzzleFile(dataFolder, stem), sdl = LogFile(dataFolder, stem);
    if (count < 0) {
        // A new pair starts from nothing; files that could not be opened as a
        // pair stay as they are.
        if (FileExists(sds) || FileExists(sdl)) {
            Say(why, repaired.empty() ? "The files of " + std::string(stem) +
                                            "* could not be opened; nothing was added."
                                      : repaired + " Nothing was added.");
            return false;
        }
        count = 0;
    }
    if (count >= kMaxLibraryRecords) {
        Say(why, "The files of " + std::string(stem) + "* hold " + std::to_string(count) +
                     " records, the most they can; nothing was added.");
        return false;
    }
    if (log.StepCount < 0 || log.StepCount > kLogSteps) {
        Say(why, "A saved game holds at most " + std::to_string(kLogSteps) + " steps.");
        return false;
    }
    const long next = count + 1;
    if (before && !before(next)) {
        Say(why, "Could not note the move of a record to " + std::string(stem) +
                     "*; nothing was added.");
        return false;
    }
    if (!AppendBoth(sds, sdl, next, sudoku, log, why)) return false;
    if (why && !repaired.empty()) *why = repaired;
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
    const long n = CheckedPair(dataFolder, stem, notifier);
    if (n < 0) return fail(SourceFileNotFound(stem));
    if (currentSud < 1 || currentSud > n)
        return fail("Record " + std::to_string(currentSud) + " is not in " + sds.string() + ".");

    // Copied out first: a kill between the two steps leaves the puzzle in both
    // pairs, never in neither.
    std::string why;
    if (!AppendToPair(dataFolder, kExportedStem, sudoku, log, nullptr, &why)) return fail(why);

    // The Outlaw pair is written anew without the record, as a whole; the
    // records are carried over as they are on disk, damaged ones included.
    const auto source = [&](long i, SudokuRecordBytes& s, SudokuLogRecordBytes& l) {
        const long from = i < currentSud ? i : i + 1;
        return ReadRecordBytes(sds, from, s, &why) && ReadRecordBytes(sdl, from, l, &why);
    };
    if (!RewritePair(dataFolder, stem, n - 1, source, &why)) return fail(why);
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
