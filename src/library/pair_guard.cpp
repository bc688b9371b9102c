// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/pair_guard.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <system_error>
#include <vector>

#include "library/library_files.h"
#include "library/library_setup.h"
#include "library/move_journal.h"
#include "library/record_checks.h"
#include "library/record_journal.h"

namespace tavi {

namespace fs = std::filesystem;

namespace {

fs::path Beside(const fs::path& file, std::string_view suffix) {
    fs::path p = file;
    return p += std::string(suffix);
}

fs::path CommitMark(const fs::path& folder, std::string_view stem) {
    return folder / (std::string(stem) + "c");
}

// A rewrite that a kill interrupted: carried on after its commit mark, dropped
// before it.
void FinishRewrite(const fs::path& folder, std::string_view stem) {
    const fs::path sds = PuzzleFile(folder, stem), sdl = LogFile(folder, stem);
    const fs::path mark = CommitMark(folder, stem);
    std::error_code ec;
    if (fs::exists(mark, ec)) {
        for (const fs::path& file : {sds, sdl})
            if (fs::exists(Beside(file, ".next"), ec)) fs::rename(Beside(file, ".next"), file, ec);
        if (ec) return;  // the mark stays until the renames are done
        // The moves the rewrite took out of the pair are done with.
        fs::remove(MoveJournalFile(folder, stem), ec);
        // A rewrite to no records ends with both files gone.
        if (fs::exists(sds, ec) && fs::file_size(sds, ec) == 0 && !ec) {
            fs::remove(sdl, ec);
            fs::remove(sds, ec);
        }
        fs::remove(mark, ec);
    } else {
        fs::remove(Beside(sds, ".next"), ec);
        fs::remove(Beside(sdl, ".next"), ec);
    }
}

bool Resize(const fs::path& file, std::uintmax_t length) {
    std::error_code ec;
    fs::resize_file(file, length, ec);
    return !ec;
}

// Empty log records added at the end of `sdl` until it holds `count`.
bool PadLog(const fs::path& sdl, std::uintmax_t have, std::uintmax_t count) {
    std::ofstream out(sdl, std::ios::binary | std::ios::app);
    const std::vector<char> zeros(64 * kSudokuLogRecordSize, 0);
    for (std::uintmax_t i = have; out && i < count; i += 64) {
        const std::uintmax_t n = std::min<std::uintmax_t>(64, count - i);
        out.write(zeros.data(), std::streamsize(n * kSudokuLogRecordSize));
    }
    out.close();
    return !out.fail();
}

std::string Name(const fs::path& file) { return file.filename().string(); }

// A free name beside `file`: "<name><suffix>", then "<name><suffix>-2" and on.
fs::path FreeNameBeside(const fs::path& file, std::string_view suffix) {
    std::error_code ec;
    for (int i = 1;; ++i) {
        fs::path p = Beside(file, suffix);
        if (i > 1) p += "-" + std::to_string(i);
        if (!fs::exists(p, ec) && !ec) return p;
        if (i > 1000) return p;
    }
}

// A copy of `file` as it is, beside it, before a repair changes it; the copy's
// name, or empty when it could not be made.
fs::path KeepCopy(const fs::path& file) {
    const fs::path copy = FreeNameBeside(file, ".before-repair");
    std::error_code ec;
    if (!fs::copy_file(file, copy, ec) || ec) {
        fs::remove(copy, ec);
        return {};
    }
    return copy;
}

// Whether the records of a file read as records of its kind: of the first and
// the last few whole records, at least half are sound. A puzzle file of log
// records or of noise, or the two files of a pair swapped, fail.
template <std::size_t Size, typename Check>
bool ReadsAsItsKind(const fs::path& file, std::uintmax_t whole, Check check) {
    if (whole == 0) return true;
    std::ifstream in(file, std::ios::binary);
    constexpr std::uintmax_t kSample = 8;
    int sound = 0, looked = 0;
    std::array<std::uint8_t, Size> bytes;
    for (std::uintmax_t i = 0; i < whole; ++i) {
        if (i == kSample && whole > 2 * kSample) i = whole - kSample;
        in.seekg(std::streamoff(i * Size));
        if (!in.read(reinterpret_cast<char*>(bytes.data()), std::streamsize(Size))) break;
        ++looked;
        sound += check(bytes);
    }
    return looked > 0 && 2 * sound >= looked;
}

bool PuzzleKind(const SudokuRecordBytes& bytes) {
    const SudokuRecord r = SudokuRecordFromBytes(bytes);
    if (!CheckSudokuRecord(r).empty()) return false;
    // A record with no clue at all is no puzzle (a log record of zeros reads so).
    for (std::uint8_t d : r.Puzzle)
        if (d) return true;
    return false;
}

bool LogKind(const SudokuLogRecordBytes& bytes) {
    return CheckSudokuLogRecord(SudokuLogRecordFromBytes(bytes)).empty();
}

}  // namespace

long OpenPair(const fs::path& folder, std::string_view stem, std::string* message, bool* refused) {
    if (message) message->clear();
    if (refused) *refused = false;
    const auto refuse = [&] {
        if (refused) *refused = true;
        return -1L;
    };
    auto say = [&](const std::string& text) {
        if (message) *message += (message->empty() ? "" : " ") + text;
    };
    FinishRewrite(folder, stem);
    FinishDeadMoves(folder, stem);
    const fs::path sds = PuzzleFile(folder, stem), sdl = LogFile(folder, stem);
    FinishPendingWrites(sds);
    const bool hasSds = FileExists(sds), hasSdl = FileExists(sdl);
    if (!hasSds && !hasSdl) return -1;
    std::error_code ec;
    if (!hasSds) {
        // A log without its puzzles (a kill during the first add to a level): it
        // is kept aside, never deleted, and the level starts empty.
        const fs::path aside = FreeNameBeside(sdl, ".without-puzzles");
        fs::rename(sdl, aside, ec);
        if (ec) {
            say(Name(sdl) + " has no puzzle file beside it and could not be moved aside.");
            return refuse();
        }
        say(Name(sdl) + " had no puzzle file beside it; it was kept as " + Name(aside) +
            " and the level starts empty.");
        return -1;
    }
    const std::uintmax_t sdsLength = fs::file_size(sds, ec);
    if (ec) return -1;
    const std::uintmax_t puzzles = sdsLength / kSudokuRecordSize;
    if (puzzles > std::uintmax_t(kMaxLibraryRecords)) {
        say(Name(sds) + " is no library: its " + std::to_string(sdsLength) +
            " bytes would be more than " + std::to_string(kMaxLibraryRecords) +
            " records. Nothing was changed.");
        return refuse();
    }
    if (!hasSdl) {
        if (!ReadsAsItsKind<kSudokuRecordSize>(sds, puzzles, PuzzleKind)) {
            say(Name(sds) +
                " does not read as a puzzle file, so no log file was made for it. "
                "Nothing was changed.");
            return refuse();
        }
        if (!MakeEmptyLog(sdl, long(puzzles))) {
            say(Name(sdl) + " was missing and could not be made.");
            return refuse();
        }
        say(Name(sdl) + " was missing; it was made with " + std::to_string(puzzles) +
            " empty records.");
    }
    const std::uintmax_t sdlLength = fs::file_size(sdl, ec);
    if (ec) return -1;
    const std::uintmax_t logs = sdlLength / kSudokuLogRecordSize;
    if (sdsLength % kSudokuRecordSize == 0 && sdlLength == puzzles * kSudokuLogRecordSize)
        return long(puzzles);

    // Out of step. What an append that was stopped leaves (a torn puzzle record,
    // at most one log record more) is taken back; anything else is repaired with
    // a copy of each file kept as it was, and a pair whose files do not read as
    // their kinds is never made into library records.
    const bool stoppedAppend = sdlLength >= puzzles * kSudokuLogRecordSize &&
                               sdlLength <= (puzzles + 1) * kSudokuLogRecordSize;
    if (!stoppedAppend) {
        if (!ReadsAsItsKind<kSudokuRecordSize>(sds, puzzles, PuzzleKind) ||
            !ReadsAsItsKind<kSudokuLogRecordSize>(sdl, logs, LogKind)) {
            say("The files of " + std::string(stem) +
                "* do not read as a puzzle file and its log file (swapped, or not library "
                "files); they were left as they are. Put them right, or move them away to "
                "start the level afresh.");
            return refuse();
        }
        for (const fs::path& file : {sds, sdl}) {
            const bool changes = file == sds ? sdsLength % kSudokuRecordSize != 0
                                             : sdlLength != puzzles * kSudokuLogRecordSize;
            if (!changes) continue;
            const fs::path copy = KeepCopy(file);
            if (copy.empty()) {
                say("The files of " + std::string(stem) + "* are out of step, and no copy of " +
                    Name(file) + " could be kept before repairing it; nothing was changed.");
                return refuse();
            }
            say("A copy of " + Name(file) + " as it was is kept as " + Name(copy) + ".");
        }
    }
    bool ok = sdsLength % kSudokuRecordSize == 0 || Resize(sds, puzzles * kSudokuRecordSize);
    if (logs >= puzzles)
        ok = Resize(sdl, puzzles * kSudokuLogRecordSize) && ok;
    else
        ok = Resize(sdl, logs * kSudokuLogRecordSize) && PadLog(sdl, logs, puzzles) && ok;
    std::string repaired = "The files of " + std::string(stem) + "* were out of step (" +
                           std::to_string(sdsLength) + " and " + std::to_string(sdlLength) +
                           " bytes). " + std::to_string(puzzles) + " records were kept";
    if (logs < puzzles)
        repaired += ", " + std::to_string(puzzles - logs) + " of them with an empty log";
    repaired += ok ? "." : ", but the files could not be repaired.";
    if (message) *message = repaired + (message->empty() ? "" : " " + *message);
    return ok ? long(puzzles) : refuse();
}

bool RewritePair(const fs::path& folder, std::string_view stem, long count,
                 const PairSource& source, std::string* why) {
    // No number that a dead run's journal names may shift under it.
    FinishDeadMovesInFolder(folder);
    FinishRewrite(folder, stem);
    const fs::path sds = PuzzleFile(folder, stem), sdl = LogFile(folder, stem);
    const fs::path newSds = Beside(sds, ".next"), newSdl = Beside(sdl, ".next");
    bool ok;
    {
        std::ofstream outSds(newSds, std::ios::binary | std::ios::trunc);
        std::ofstream outSdl(newSdl, std::ios::binary | std::ios::trunc);
        ok = outSds.is_open() && outSdl.is_open();
        SudokuRecordBytes s;
        SudokuLogRecordBytes l;
        for (long i = 1; ok && i <= count; ++i) {
            ok = source(i, s, l);
            outSds.write(reinterpret_cast<const char*>(s.data()), std::streamsize(s.size()));
            outSdl.write(reinterpret_cast<const char*>(l.data()), std::streamsize(l.size()));
            ok = ok && outSds && outSdl;
        }
        outSds.close();
        outSdl.close();
        ok = ok && !outSds.fail() && !outSdl.fail();
    }
    std::error_code ec;
    if (ok) {
        // The mark is made in one step: from here on the new pair is the pair.
        std::ofstream mark(CommitMark(folder, stem));
        ok = mark.is_open();
    }
    if (!ok) {
        fs::remove(newSds, ec);
        fs::remove(newSdl, ec);
        if (why && why->empty()) *why = "Error writing " + sds.string() + ".";
        return false;
    }
    FinishRewrite(folder, stem);
    return !fs::exists(CommitMark(folder, stem), ec);
}

}  // namespace tavi
