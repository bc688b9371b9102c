// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/move_journal.h"

#include <algorithm>
#include <mutex>
#include <set>
#include <system_error>
#include <unordered_set>

#include "grid/levels.h"
#include "library/library_files.h"
#include "library/library_pair.h"
#include "library/pair_guard.h"
#include "library/pair_rewrite.h"

namespace tavi {

namespace fs = std::filesystem;

namespace {

// The journals of runs alive in this process: a journal not among them belongs to
// a run that is dead. Two processes never work on one folder at once.
std::mutex liveMutex;
std::set<std::string>& LiveJournals() {
    static std::set<std::string> live;
    return live;
}

std::string Key(const fs::path& journal) {
    std::error_code ec;
    const fs::path absolute = fs::absolute(journal, ec);
    return (ec ? journal : absolute).lexically_normal().string();
}

bool IsLive(const fs::path& journal) {
    const std::lock_guard lock(liveMutex);
    return LiveJournals().count(Key(journal)) > 0;
}

void SetLive(const fs::path& journal, bool live) {
    const std::lock_guard lock(liveMutex);
    if (live)
        LiveJournals().insert(Key(journal));
    else
        LiveJournals().erase(Key(journal));
}

std::uint64_t Fnv(const std::uint8_t* bytes, std::size_t size) {
    std::uint64_t h = 1469598103934665603ULL;
    for (std::size_t i = 0; i < size; ++i)
        h = (h ^ bytes[i]) * 1099511628211ULL;
    return h;
}

void PutNumber(std::vector<std::uint8_t>& out, std::uint64_t value, int size) {
    for (int i = 0; i < size; ++i)
        out.push_back(std::uint8_t(value >> (8 * i)));
}

// One line of the journal: the old number, the new pair's stem, the new number,
// the puzzle, and a checksum over them.
struct MoveLine {
    long number = 0;
    std::string targetStem;
    long newNumber = 0;
    Digits puzzle{};
};

std::vector<std::uint8_t> Encode(const MoveLine& line) {
    std::vector<std::uint8_t> out;
    out.reserve(128);
    PutNumber(out, std::uint64_t(line.number), 4);
    PutNumber(out, line.targetStem.size(), 1);
    out.insert(out.end(), line.targetStem.begin(), line.targetStem.end());
    PutNumber(out, std::uint64_t(line.newNumber), 4);
    out.insert(out.end(), line.puzzle.begin(), line.puzzle.end());
    PutNumber(out, Fnv(out.data(), out.size()), 8);
    return out;
}

std::uint64_t GetNumber(const std::uint8_t* bytes, int size) {
    std::uint64_t v = 0;
    for (int i = 0; i < size; ++i)
        v |= std::uint64_t(bytes[i]) << (8 * i);
    return v;
}

// The next whole line of `in`, or false at the end or at a line a kill cut short.
bool ReadLine(std::FILE* in, MoveLine& line) {
    std::uint8_t head[5];
    if (std::fread(head, 1, 5, in) != 5) return false;
    const std::size_t stemSize = head[4];
    std::vector<std::uint8_t> all(head, head + 5);
    all.resize(5 + stemSize + 4 + 81 + 8);
    if (std::fread(all.data() + 5, 1, all.size() - 5, in) != all.size() - 5) return false;
    const std::size_t body = all.size() - 8;
    if (GetNumber(all.data() + body, 8) != Fnv(all.data(), body)) return false;
    line.number = long(GetNumber(all.data(), 4));
    line.targetStem.assign(all.begin() + 5, all.begin() + 5 + long(stemSize));
    line.newNumber = long(GetNumber(all.data() + 5 + stemSize, 4));
    std::copy_n(all.begin() + 5 + long(stemSize) + 4, 81, line.puzzle.begin());
    // Only a pair beside the journal: a stem with a folder in it is no line of ours.
    return !line.targetStem.empty() && line.targetStem.find_first_of("/\\") == std::string::npos &&
           line.targetStem != "." && line.targetStem != "..";
}

// Whether the append a line announces happened: the new pair holds the puzzle at
// the new number.
bool Landed(const fs::path& folder, const MoveLine& line) {
    SudokuRecordBytes bytes;
    if (!ReadRecordBytes(PuzzleFile(folder, line.targetStem), line.newNumber, bytes)) return false;
    return std::equal(line.puzzle.begin(), line.puzzle.end(), bytes.begin() + sds_offset::Puzzle);
}

}  // namespace

fs::path MoveJournalFile(const fs::path& folder, std::string_view stem) {
    return folder / (std::string(stem) + "m");
}

void FinishDeadMoves(const fs::path& folder, std::string_view stem) {
    const fs::path journal = MoveJournalFile(folder, stem);
    std::error_code ec;
    if (!fs::exists(journal, ec) || IsLive(journal)) return;
    // While it is finished the journal counts as alive, so that the open and the
    // rewrite below leave it alone.
    SetLive(journal, true);
    std::unordered_set<long> landed;
    if (std::FILE* in = std::fopen(journal.string().c_str(), "rb")) {
        for (MoveLine line; ReadLine(in, line);)
            if (Landed(folder, line)) landed.insert(line.number);
        std::fclose(in);
    }
    bool done = true;
    if (!landed.empty()) done = KeepInPair(folder, stem, [&](long n) { return !landed.count(n); });
    // The rewrite's commit took the journal with it; with nothing to take out, it
    // goes now.
    if (done) fs::remove(journal, ec);
    SetLive(journal, false);
}

void FinishDeadMovesInFolder(const fs::path& folder) {
    for (int level = 1; level <= kLevelCount; ++level)
        FinishDeadMoves(folder, LevelStem(level));
}

MoveJournal::MoveJournal(fs::path folder, std::string_view stem)
    : folder_(std::move(folder)), stem_(stem) {
    FinishDeadMovesInFolder(folder_);
    SetLive(MoveJournalFile(folder_, stem_), true);
}

MoveJournal::~MoveJournal() {
    if (file_) std::fclose(file_);
    SetLive(MoveJournalFile(folder_, stem_), false);
}

bool MoveJournal::Move(long number, std::string_view targetStem, const SudokuRecord& sudoku,
                       const SudokuLogRecord& log, long* newNumber, std::string* why) {
    const fs::path journal = MoveJournalFile(folder_, stem_);
    if (!file_) {
        std::error_code ec;
        // A journal that an earlier run left and that could not be finished is
        // never mixed with this run's lines.
        if (fs::exists(journal, ec)) {
            if (why) *why = journal.string() + " of an earlier run could not be finished.";
            return false;
        }
        file_ = std::fopen(journal.string().c_str(), "ab");
        if (!file_) {
            if (why) *why = "Can't write " + journal.string() + ".";
            return false;
        }
    }
    // The line goes to the file before the append starts; a line that a failed
    // append leaves behind finds no puzzle at its number and moves nothing.
    const auto note = [&](long next) {
        const auto bytes = Encode({number, std::string(targetStem), next, sudoku.Puzzle});
        return std::fwrite(bytes.data(), 1, bytes.size(), file_) == bytes.size() &&
               std::fflush(file_) == 0;
    };
    long landed = 0;
    if (!AppendToPair(folder_, targetStem, sudoku, log, &landed, why, note)) return false;
    moved_.push_back(number);
    if (newNumber) *newNumber = landed;
    return true;
}

bool MoveJournal::Finish(std::string* why) {
    if (file_) {
        std::fclose(file_);
        file_ = nullptr;
    }
    const fs::path journal = MoveJournalFile(folder_, stem_);
    std::error_code ec;
    if (moved_.empty()) {
        fs::remove(journal, ec);
        return true;
    }
    const std::unordered_set<long> moved(moved_.begin(), moved_.end());
    if (!KeepInPair(
            folder_, stem_, [&](long n) { return !moved.count(n); }, why))
        return false;
    fs::remove(journal, ec);  // already gone with the rewrite's commit
    moved_.clear();
    return true;
}

}  // namespace tavi
