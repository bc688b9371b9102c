// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/library_setup.h"

#include <array>
#include <fstream>
#include <set>
#include <system_error>
#include <vector>

#include "grid/levels.h"
#include "library/library_pair.h"
#include "library/pair_guard.h"
#include "library/text_lines.h"

namespace tavi {

namespace fs = std::filesystem;

namespace {

// Beside the final name, so that the rename at the end stays on one file system.
fs::path TemporaryBeside(const fs::path& file) {
    fs::path temp = file;
    temp += ".new";
    return temp;
}

}  // namespace

// `count` empty log records in one go. The records are all zero, so a block of
// them is written as often as needed.
bool MakeEmptyLog(const fs::path& file, long count) {
    const fs::path temp = TemporaryBeside(file);
    std::error_code ec;
    bool ok;
    {
        std::ofstream out(temp, std::ios::binary | std::ios::trunc);
        ok = out.is_open();
        constexpr long kBlock = 64;
        const std::vector<char> zeros(kBlock * kSudokuLogRecordSize, 0);
        for (long done = 0; ok && done < count; done += kBlock) {
            const long n = std::min(kBlock, count - done);
            out.write(zeros.data(), std::streamsize(n * kSudokuLogRecordSize));
            ok = bool(out);
        }
        out.close();
        ok = ok && !out.fail();
    }
    if (ok) fs::rename(temp, file, ec);
    if (!ok || ec) {
        fs::remove(temp, ec);
        return false;
    }
    return true;
}

namespace {

std::set<std::string> DeliveredStems(const fs::path& dataFolder) {
    std::set<std::string> stems;
    std::ifstream in(dataFolder / kDeliveredFileName);
    std::string line;
    // Stems are short: a longer line is no stem of ours and is not kept whole.
    while (ReadLine(in, line, 256))
        if (!line.empty()) stems.insert(line);
    return stems;
}

bool WriteDeliveredStems(const fs::path& dataFolder, const std::set<std::string>& stems) {
    const fs::path file = dataFolder / kDeliveredFileName;
    const fs::path temp = TemporaryBeside(file);
    {
        std::ofstream out(temp, std::ios::trunc);
        for (const std::string& stem : stems)
            out << stem << '\n';
        out.close();
        if (out.fail()) return false;
    }
    std::error_code ec;
    fs::rename(temp, file, ec);
    return !ec;
}

}  // namespace

bool WasDelivered(const fs::path& dataFolder, std::string_view stem) {
    return DeliveredStems(dataFolder).count(std::string(stem)) > 0;
}

void CopyLibraryFiles(const LibraryFolders& folders) {
    // The order in which the levels have always been visited.
    constexpr std::array<int, 9> kOrder = {1, 2, 3, 4, 7, 6, 5, 8, 9};
    std::set<std::string> delivered = DeliveredStems(folders.DataFolder);
    const std::size_t before = delivered.size();
    for (int level : kOrder) {
        const std::string stem(LevelStem(level));
        if (delivered.count(stem)) continue;
        const fs::path target = PuzzleFile(folders.DataFolder, stem);
        // A level with files of its own counts as delivered: once it is emptied
        // it stays so.
        if (FileExists(target) || FileExists(LogFile(folders.DataFolder, stem))) {
            delivered.insert(stem);
            continue;
        }
        const fs::path source = PuzzleFile(folders.AppFolder, stem);
        if (!FileExists(source)) continue;  // the first run will say so
        const fs::path temp = TemporaryBeside(target);
        std::error_code ec;
        if (fs::copy_file(source, temp, fs::copy_options::overwrite_existing, ec) && !ec)
            fs::rename(temp, target, ec);
        if (ec)
            fs::remove(temp, ec);
        else
            delivered.insert(stem);
    }
    // A kill before this line leaves the copies, which count as delivered next time.
    if (delivered.size() != before) WriteDeliveredStems(folders.DataFolder, delivered);
}

bool MaakSudLog(const LibraryFolders& folders, Notifier& notifier) {
    notifier.Message(kFirstRunTitle, kFirstRunText);
    for (int level = 1; level <= kLevelCount; ++level) {
        const std::string_view stem = LevelStem(level);
        const fs::path source = PuzzleFile(folders.DataFolder, stem);
        // A level emptied by moving all its puzzles out has no files, on purpose.
        if (!FileExists(source) && !FileExists(LogFile(folders.DataFolder, stem)) &&
            WasDelivered(folders.DataFolder, stem))
            continue;
        const double count = SudokuCount(source);
        // A file too short for one whole record has no puzzle either.
        if (!(count >= 1)) {
            notifier.Message(kLogfileFailureTitle,
                             std::string(kCouldNotOpenSource) + source.string());
            return false;
        }
        // A log that is there holds the user's games: it is only brought in step;
        // a missing one is made when the puzzle file reads as one.
        // Making the logs is the first run's work and needs no word of its own.
        const bool hadLog = FileExists(LogFile(folders.DataFolder, stem));
        std::string said;
        bool refused = false;
        const long opened = OpenPair(folders.DataFolder, stem, &said, &refused);
        if (!said.empty() && (refused || hadLog))
            notifier.Message(refused ? kFileErrorTitle : kPairRepairedTitle, said);
        if (opened < 0) return false;
    }
    return true;
}

}  // namespace tavi
