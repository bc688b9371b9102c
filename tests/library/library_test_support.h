// SPDX-License-Identifier: GPL-3.0-or-later
// A scratch folder per test, and small helpers to lay library files in it.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

#include "library/library_files.h"
#include "library/library_pair.h"
#include "library/records.h"
#include "support/puzzles.h"

namespace tavi::testing {

// The folder for scratch files that many small writes go through: memory where
// the system has it, else the usual temporary folder.
inline std::filesystem::path FastScratch() {
    std::error_code ec;
    return std::filesystem::is_directory("/dev/shm", ec) ? std::filesystem::path("/dev/shm")
                                                         : std::filesystem::temp_directory_path();
}

class TempDir {
  public:
    explicit TempDir(const std::filesystem::path& base = std::filesystem::temp_directory_path()) {
        std::random_device rd;
        path_ = base / ("tavi-test-" + std::to_string(rd()) + "-" + std::to_string(rd()));
        std::filesystem::create_directories(path_);
    }
    ~TempDir() {
        std::error_code ec;
        std::filesystem::permissions(path_, std::filesystem::perms::owner_all,
                                     std::filesystem::perm_options::add, ec);
        std::filesystem::remove_all(path_, ec);
    }
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    const std::filesystem::path& path() const { return path_; }
    std::filesystem::path operator/(std::string_view name) const { return path_ / name; }

  private:
    std::filesystem::path path_;
};

inline std::vector<char> FileBytes(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

inline void WriteBytes(const std::filesystem::path& file, const std::vector<char>& bytes) {
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), std::streamsize(bytes.size()));
}

// The generated puzzle `i` as a record of the library, with a best time that
// tells it apart.
inline SudokuRecord RecordOf(int i) {
    const auto& g = GeneratedPuzzles(8)[i % 8];
    SudokuRecord r;
    r.Puzzle = g.puzzle;
    r.Solution = g.solution;
    r.BestMinutes = std::int16_t(i);
    r.BestSeconds = std::int16_t(i % 60);
    return r;
}

// A log record with every field set to something of its own.
inline SudokuLogRecord BusyLog(int variant) {
    SudokuLogRecord l;
    for (int c = 0; c < 81; ++c) {
        l.Grid[c] = std::uint8_t((c + variant) % 10);
        l.SavedCandidates[c] = std::int16_t(((c * 7 + variant) % 512) * 2);
    }
    l.ElapsedMinutes = std::int16_t(-3 - variant);
    l.ElapsedSeconds = -20;
    l.StepCount = std::int16_t(1 + variant % 100);
    for (int i = 0; i < kLogSteps; ++i) {
        l.LogDigit[i] = std::int16_t(i % 2 ? -(i % 9 + 1) : i % 20);
        l.LogCell[i] = std::int16_t((i + variant) % 81);
        l.LogOwnMarks[i] = std::int16_t(i * 3 % 512);
        l.LogColumnMarks[i] = std::int16_t(i * 5 % 512);
        l.LogRowMarks[i] = std::int16_t(i * 11 % 512);
        l.LogBoxMarks[i] = std::int16_t(i * 13 % 512);
    }
    return l;
}

// Record `n` of the pair `stem` in `folder`, with its log; a read that fails fails the test.
inline std::pair<SudokuRecord, SudokuLogRecord> PairAt(const std::filesystem::path& folder,
                                                       std::string_view stem, long n) {
    std::pair<SudokuRecord, SudokuLogRecord> p;
    EXPECT_TRUE(ReadPair(folder, stem, n, p.first, p.second, nullptr)) << stem << " " << n;
    return p;
}

// A `.sds` file of `count` records (and, if asked, its `.sdl` file of empty logs).
inline void MakeLevelFiles(const std::filesystem::path& folder, std::string_view stem, int count,
                           bool withLog = true, int first = 0) {
    std::ofstream sds(PuzzleFile(folder, stem), std::ios::binary | std::ios::trunc);
    for (int i = 0; i < count; ++i) {
        const auto bytes = ToBytes(RecordOf(first + i));
        sds.write(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    }
    if (withLog) {
        std::ofstream sdl(LogFile(folder, stem), std::ios::binary | std::ios::trunc);
        const std::vector<char> zeros(kSudokuLogRecordSize * count, 0);
        sdl.write(zeros.data(), std::streamsize(zeros.size()));
    }
}

}  // namespace tavi::testing
