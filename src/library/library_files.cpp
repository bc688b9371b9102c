// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/library_files.h"

#include <fstream>
#include <system_error>

#include "library/record_checks.h"
#include "library/record_journal.h"

namespace tavi {

namespace fs = std::filesystem;

namespace {

void Say(std::string* why, std::string text) {
    if (why) *why = std::move(text);
}

std::string Name(const fs::path& file) { return file.filename().string(); }

std::optional<std::uintmax_t> LengthOf(const fs::path& file) {
    std::error_code ec;
    if (!fs::is_regular_file(file, ec) || ec) return std::nullopt;
    const std::uintmax_t length = fs::file_size(file, ec);
    if (ec) return std::nullopt;
    return length;
}

}  // namespace

bool FileExists(const fs::path& file) {
    std::error_code ec;
    return fs::is_regular_file(file, ec) && !ec;
}

std::optional<double> RecordCount(const fs::path& file, std::size_t recordSize) {
    const auto length = LengthOf(file);
    if (!length) return std::nullopt;
    return double(*length) / double(recordSize);
}

double SudokuCount(const fs::path& sdsFile) {
    return RecordCount(sdsFile, kSudokuRecordSize).value_or(0.0);
}

long WholeRecords(const fs::path& file, std::size_t recordSize) {
    const auto length = LengthOf(file);
    return length ? long(*length / recordSize) : 0;
}

bool ReadRecordBytes(const fs::path& file, long number, std::span<std::uint8_t> bytes,
                     std::string* why) {
    FinishPendingWrites(file);
    const auto length = LengthOf(file);
    if (!length) {
        Say(why, file.string() + " was not found.");
        return false;
    }
    const std::uintmax_t size = bytes.size();
    const std::uintmax_t whole = *length / size;
    if (number < 1 || std::uintmax_t(number) > whole) {
        Say(why, "Record " + std::to_string(number) + " is not in " + Name(file) +
                     ", which holds " + std::to_string(whole) + " whole records.");
        return false;
    }
    std::ifstream in(file, std::ios::binary);
    in.seekg(std::streamoff((number - 1) * size));
    in.read(reinterpret_cast<char*>(bytes.data()), std::streamsize(size));
    if (!in || in.gcount() != std::streamsize(size)) {
        Say(why, "Could not read record " + std::to_string(number) + " of " + Name(file) + ".");
        return false;
    }
    return true;
}

bool WriteRecordBytes(const fs::path& file, long number, std::span<const std::uint8_t> bytes,
                      std::string* why) {
    const std::uintmax_t size = bytes.size();
    std::error_code ec;
    const bool exists = fs::exists(file, ec) && !ec;
    const auto length = exists ? LengthOf(file) : std::optional<std::uintmax_t>(0);
    if (!length) {
        Say(why, "Can't write to " + file.string() + ": it is not a readable file.");
        return false;
    }
    // Compared as record numbers first, so that no huge number can wrap the offset.
    const std::uintmax_t whole = *length / size;
    const bool inPlace = number >= 1 && std::uintmax_t(number) <= whole;
    const bool append = number >= 1 && number <= kMaxRecords && *length % size == 0 &&
                        std::uintmax_t(number) == whole + 1;
    if (!inPlace && !append) {
        if (*length % size != 0)
            Say(why, Name(file) + " is damaged: its length " + std::to_string(*length) +
                         " is no multiple of " + std::to_string(size) +
                         "; nothing can be added to it.");
        else
            Say(why, "Record " + std::to_string(number) + " can't be written to " + Name(file) +
                         ", which holds " + std::to_string(*length / size) + " records" +
                         (number > kMaxRecords ? ", the most a library file can hold." : "."));
        return false;
    }
    if (inPlace) {
        const RecordWrite write{file, number, {bytes.begin(), bytes.end()}};
        return WriteRecordsInPlace({&write, 1}, why);
    }

    bool ok;
    {
        // Appended at the end: a kill half way leaves a torn tail, cut off on open.
        std::ofstream out(file, std::ios::binary | std::ios::app);
        ok = out.is_open();
        if (ok) {
            out.write(reinterpret_cast<const char*>(bytes.data()), std::streamsize(size));
            out.flush();
            ok = bool(out);
        }
    }
    if (!ok) {
        // An append that failed half way is cut back, so the file is as it was.
        if (exists)
            fs::resize_file(file, *length, ec);
        else
            fs::remove(file, ec);
        Say(why, "Error writing record " + std::to_string(number) + " to " + file.string() + ".");
    }
    return ok;
}

bool ReadSudokuRecord(const fs::path& file, long number, SudokuRecord& record, std::string* why) {
    SudokuRecordBytes bytes;
    if (!ReadRecordBytes(file, number, bytes, why)) return false;
    const SudokuRecord read = SudokuRecordFromBytes(bytes);
    if (const std::string wrong = CheckSudokuRecord(read); !wrong.empty()) {
        Say(why, DamagedRecord(file, number, wrong));
        return false;
    }
    record = read;
    return true;
}

bool WriteSudokuRecord(const fs::path& file, long number, const SudokuRecord& record,
                       std::string* why) {
    return WriteRecordBytes(file, number, ToBytes(record), why);
}

bool ReadSudokuLogRecord(const fs::path& file, long number, SudokuLogRecord& record,
                         std::string* why) {
    SudokuLogRecordBytes bytes;
    if (!ReadRecordBytes(file, number, bytes, why)) return false;
    const SudokuLogRecord read = SudokuLogRecordFromBytes(bytes);
    if (const std::string wrong = CheckSudokuLogRecord(read); !wrong.empty()) {
        Say(why, DamagedRecord(file, number, wrong));
        return false;
    }
    record = read;
    return true;
}

bool WriteSudokuLogRecord(const fs::path& file, long number, const SudokuLogRecord& record,
                          std::string* why) {
    if (record.StepCount < 0 || record.StepCount > kLogSteps) {
        Say(why, "A saved game holds at most " + std::to_string(kLogSteps) +
                     " steps, this one has " + std::to_string(record.StepCount) + ".");
        return false;
    }
    return WriteRecordBytes(file, number, ToBytes(record), why);
}

bool WriteSudokuFile(const fs::path& file, std::span<const SudokuRecord> records,
                     std::string* why) {
    fs::path temp = file;
    temp += ".new";
    bool ok;
    {
        std::ofstream out(temp, std::ios::binary | std::ios::trunc);
        ok = out.is_open();
        for (const SudokuRecord& r : records) {
            if (!ok) break;
            const auto bytes = ToBytes(r);
            out.write(reinterpret_cast<const char*>(bytes.data()), std::streamsize(bytes.size()));
            ok = bool(out);
        }
        out.close();
        ok = ok && !out.fail();
    }
    std::error_code ec;
    if (ok) fs::rename(temp, file, ec);
    if (!ok || ec) {
        fs::remove(temp, ec);
        Say(why, "Error writing " + file.string() + ".");
        return false;
    }
    return true;
}

std::string DamagedRecord(const fs::path& file, long number, const std::string& wrong) {
    return "Record " + std::to_string(number) + " of " + Name(file) + " is damaged: " + wrong + ".";
}

bool ReadSudokuFile(const fs::path& file, std::vector<SudokuRecord>& records, std::size_t* trailing,
                    std::string* why, std::vector<std::string>* damaged) {
    const auto length = LengthOf(file);
    if (!length) {
        Say(why, file.string() + " was not found.");
        return false;
    }
    std::ifstream in(file, std::ios::binary);
    records.clear();
    records.reserve(std::size_t(*length / kSudokuRecordSize));
    SudokuRecordBytes bytes;
    long number = 0;
    while (in.read(reinterpret_cast<char*>(bytes.data()), std::streamsize(bytes.size()))) {
        const SudokuRecord r = SudokuRecordFromBytes(bytes);
        ++number;
        if (const std::string wrong = CheckSudokuRecord(r); wrong.empty()) {
            records.push_back(r);
        } else if (damaged) {
            damaged->push_back(DamagedRecord(file, number, wrong));
        } else {
            Say(why, DamagedRecord(file, number, wrong));
            return false;
        }
    }
    if (std::uintmax_t(number) != *length / kSudokuRecordSize) {
        Say(why, "Could not read " + file.string() + ".");
        return false;
    }
    if (trailing) *trailing = std::size_t(*length % kSudokuRecordSize);
    return true;
}

}  // namespace tavi
