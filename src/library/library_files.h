// SPDX-License-Identifier: GPL-3.0-or-later
// One record at a time between a library file and memory. Each read or write
// opens the file, seeks once, moves one record and closes it again: no file stays
// open and nothing is cached, so the file on disk is always the truth.
//
// Record numbers start at 1. A read must find the whole record inside the file. A
// write goes over a whole record that is there, or appends exactly at the end (a
// missing file counts as empty); it never leaves a gap, and a write that fails
// leaves the file as it was. A write over a record goes through a note
// (record_journal.h), so a kill leaves the old record or the new one; an append
// killed half way leaves a torn tail, which the pair's open cuts off.
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "grid/levels.h"
#include "library/records.h"

namespace tavi {

// The most records a library file holds: record numbers are 32-bit wherever they
// are kept. A pair is never grown past it.
inline constexpr long kMaxRecords = 2147483647;
// The most records a library holds: a file that would hold more is no library,
// and is refused before anything is written to or for it.
inline constexpr long kMaxLibraryRecords = 1000000;

// The program's folder, where the delivered library lies, and the user's data
// folder, where all game files are read and written.
struct LibraryFolders {
    std::filesystem::path AppFolder;
    std::filesystem::path DataFolder;
};

inline std::filesystem::path PuzzleFile(const std::filesystem::path& folder,
                                        std::string_view stem) {
    return folder / PuzzleFileName(stem);
}
inline std::filesystem::path LogFile(const std::filesystem::path& folder, std::string_view stem) {
    return folder / LogFileName(stem);
}

// False for anything that is not a readable regular file, a missing folder
// included; never throws.
bool FileExists(const std::filesystem::path& file);

// The length of the file over the record size, as a real number: a file whose
// length is no multiple of the record size has a fractional count. Nothing when
// the file is missing or can't be measured.
std::optional<double> RecordCount(const std::filesystem::path& file, std::size_t recordSize);
// The count of a `.sds` file, 0 when it can't be had.
double SudokuCount(const std::filesystem::path& sdsFile);

// The whole records a file holds (the integer part of the count).
long WholeRecords(const std::filesystem::path& file, std::size_t recordSize);

bool ReadRecordBytes(const std::filesystem::path& file, long number, std::span<std::uint8_t> bytes,
                     std::string* why = nullptr);
bool WriteRecordBytes(const std::filesystem::path& file, long number,
                      std::span<const std::uint8_t> bytes, std::string* why = nullptr);

// The two record readers also check every field (record_checks.h): a damaged
// record is refused with its file, number and first wrong field, and `record`
// keeps what it held.
bool ReadSudokuRecord(const std::filesystem::path& file, long number, SudokuRecord& record,
                      std::string* why = nullptr);
bool WriteSudokuRecord(const std::filesystem::path& file, long number, const SudokuRecord& record,
                       std::string* why = nullptr);
bool ReadSudokuLogRecord(const std::filesystem::path& file, long number, SudokuLogRecord& record,
                         std::string* why = nullptr);
// Refuses a record whose StepCount is outside 0..100: the arrays can't hold
// more, and the record on disk keeps its former state.
bool WriteSudokuLogRecord(const std::filesystem::path& file, long number,
                          const SudokuLogRecord& record, std::string* why = nullptr);

// A whole `.sds` file at once, for the tools that make or walk a library. The
// new file replaces the old one only when it was written in full.
bool WriteSudokuFile(const std::filesystem::path& file, std::span<const SudokuRecord> records,
                     std::string* why = nullptr);
// Every sound whole record of a `.sds` file. `trailing` gets the bytes after the
// last whole record (0 for a sound file). A damaged record fails the read, or,
// given `damaged`, is left out and named there.
bool ReadSudokuFile(const std::filesystem::path& file, std::vector<SudokuRecord>& records,
                    std::size_t* trailing = nullptr, std::string* why = nullptr,
                    std::vector<std::string>* damaged = nullptr);

// "Record 5 of Sudoku_Easy.sds is damaged: ...".
std::string DamagedRecord(const std::filesystem::path& file, long number, const std::string& wrong);

}  // namespace tavi
