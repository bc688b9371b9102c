#include "library/pair_rewrite.h"

#include <fstream>
#include <vector>

#include "library/library_files.h"

namespace tavi {

namespace fs = std::filesystem;

namespace {

fs::path Old(const fs::path& file) { return file.parent_path() / ("2" + file.filename().string()); }

bool Exists(const fs::path& file) {
    std::error_code ec;
    return fs::exists(file, ec);
}

// Appends the kept records of `from` to `to`, `size` bytes each, and flushes.
bool CopyKept(const fs::path& from, const fs::path& to, std::size_t size,
              const std::function<bool(long)>& keep) {
    std::ifstream in(from, std::ios::binary);
    std::ofstream out(to, std::ios::binary | std::ios::trunc);
    if (!in || !out) return false;
    std::vector<char> record(size);
    for (long number = 1; in.read(record.data(), std::streamsize(size)); ++number)
        if (keep(number)) out.write(record.data(), std::streamsize(size));
    out.flush();
    return bool(out);
}

}  // namespace

bool RecoverPair(const fs::path& folder, std::string_view stem) {
    const fs::path sds = PuzzleFile(folder, stem), sdl = LogFile(folder, stem);
    const bool oldSds = Exists(Old(sds)), oldSdl = Exists(Old(sdl));
    std::error_code ec;
    if (oldSds && oldSdl) {
        // The new pair may be unfinished: the old one comes back.
        fs::rename(Old(sds), sds, ec);
        fs::rename(Old(sdl), sdl, ec);
        return true;
    }
    // A rename of the old pair was cut short: its puzzle file comes back.
    if (oldSds && !Exists(sds)) {
        fs::rename(Old(sds), sds, ec);
        return true;
    }
    // Otherwise the new pair was finished and only the old one's rest is left.
    if (oldSds) fs::remove(Old(sds), ec);
    if (oldSdl) fs::remove(Old(sdl), ec);
    return oldSds || oldSdl;
}

bool RemovePair(const fs::path& folder, std::string_view stem) {
    std::error_code ec1, ec2;
    // The log first: a puzzle file without its log is repaired on open, the
    // other way round the puzzles would be gone before the logs.
    fs::remove(LogFile(folder, stem), ec1);
    fs::remove(PuzzleFile(folder, stem), ec2);
    return !ec1 && !ec2;
}

bool RewritePair(const fs::path& folder, std::string_view stem,
                 const std::function<bool(long)>& keep, std::string* why) {
    const fs::path sds = PuzzleFile(folder, stem), sdl = LogFile(folder, stem);
    auto fail = [&](const std::string& text) {
        if (why) *why = text;
        return false;
    };
    RecoverPair(folder, stem);
    const long count = WholeRecords(sds, kSudokuRecordSize);
    long kept = 0;
    for (long n = 1; n <= count; ++n)
        kept += keep(n);
    if (kept == count) return true;
    if (kept == 0) return RemovePair(folder, stem) || fail("Can't delete " + sds.string());

    std::error_code ec;
    fs::rename(sds, Old(sds), ec);
    if (ec) return fail("Can't rename " + sds.string());
    fs::rename(sdl, Old(sdl), ec);
    if (ec) {
        fs::rename(Old(sds), sds, ec);
        return fail("Can't rename " + sdl.string());
    }
    if (!CopyKept(Old(sds), sds, kSudokuRecordSize, keep) ||
        !CopyKept(Old(sdl), sdl, kSudokuLogRecordSize, keep)) {
        RecoverPair(folder, stem);
        return fail("Error writing sudoku to file !");
    }
    // The new pair is whole: the old one goes, the log first (see RecoverPair).
    fs::remove(Old(sdl), ec);
    fs::remove(Old(sds), ec);
    return true;
}

}  // namespace tavi
