// SPDX-License-Identifier: GPL-3.0-or-later
// Records written over records that are there go through a note first, so that a
// kill at any instant leaves either all the old records or all the new ones.
//
// The note lies beside the files, named after the pair ("Sudoku_Easy.sdj" for
// "Sudoku_Easy.sds" and ".sdl"): it holds each record with its file and number
// and ends in a checksum. Only a note that is whole is carried out; the next
// reader of either file finishes a note that a kill left behind, or drops one
// that was cut short (the files were then not touched yet).
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

namespace tavi {

struct RecordWrite {
    std::filesystem::path file;
    long number = 0;  // 1-based, of a record the file holds
    std::vector<std::uint8_t> bytes;
};

// The note that guards in-place writes to `file` and the other file of its pair.
std::filesystem::path NoteFile(const std::filesystem::path& file);

// Writes every record in place, under one note. Each record must already be in
// its file (appends don't need a note: a torn tail is cut off on open).
bool WriteRecordsInPlace(std::span<const RecordWrite> writes, std::string* why = nullptr);

// Carries out or drops a note that a kill left beside `file`.
void FinishPendingWrites(const std::filesystem::path& file);

// Bytes put at `offset` of a file that exists, without a note.
bool PutBytesAt(const std::filesystem::path& file, std::uintmax_t offset,
                std::span<const std::uint8_t> bytes);

}  // namespace tavi
