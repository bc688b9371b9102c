#include "library/pair_guard.h"

#include <fstream>
#include <system_error>
#include <vector>

#include "library/library_files.h"
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
    const std::vector<char> zeros(kSudokuLogRecordSize, 0);
    for (std::uintmax_t i = have; out && i < count; ++i)
        out.write(zeros.data(), std::streamsize(zeros.size()));
    out.close();
    return !out.fail();
}

}  // namespace

long OpenPair(const fs::path& folder, std::string_view stem, std::string* message) {
    if (message) message->clear();
    FinishRewrite(folder, stem);
    const fs::path sds = PuzzleFile(folder, stem), sdl = LogFile(folder, stem);
    FinishPendingWrites(sds);
    if (!FileExists(sds) || !FileExists(sdl)) return -1;
    std::error_code ec;
    const std::uintmax_t sdsLength = fs::file_size(sds, ec), sdlLength = fs::file_size(sdl, ec);
    if (ec) return -1;
    const std::uintmax_t puzzles = sdsLength / kSudokuRecordSize;
    const std::uintmax_t logs = sdlLength / kSudokuLogRecordSize;
    if (sdsLength % kSudokuRecordSize == 0 && sdlLength == puzzles * kSudokuLogRecordSize)
        return long(puzzles);

    // Out of step: the puzzle file's whole records are what the pair holds.
    bool ok = sdsLength % kSudokuRecordSize == 0 || Resize(sds, puzzles * kSudokuRecordSize);
    if (logs >= puzzles)
        ok = Resize(sdl, puzzles * kSudokuLogRecordSize) && ok;
    else
        ok = Resize(sdl, logs * kSudokuLogRecordSize) && PadLog(sdl, logs, puzzles) && ok;
    if (message) {
        *message = "The files of " + std::string(stem) + "* were out of step (" +
                   std::to_string(sdsLength) + " and " + std::to_string(sdlLength) + " bytes). " +
                   std::to_string(puzzles) + " records were kept";
        if (logs < puzzles)
            *message += ", " + std::to_string(puzzles - logs) + " of them with an empty log";
        *message += ok ? "." : ", but the files could not be repaired.";
    }
    return ok ? long(puzzles) : -1;
}

bool RewritePair(const fs::path& folder, std::string_view stem, long count,
                 const PairSource& source, std::string* why) {
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
