// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/record_journal.h"

#include <fstream>
#include <iterator>
#include <system_error>

namespace tavi {

namespace fs = std::filesystem;

namespace {

constexpr std::uint8_t kMagic[4] = {'T', 'V', 'J', '1'};

std::uint64_t Fnv(std::span<const std::uint8_t> bytes) {
    std::uint64_t h = 1469598103934665603ULL;
    for (std::uint8_t b : bytes)
        h = (h ^ b) * 1099511628211ULL;
    return h;
}

void PutNumber(std::vector<std::uint8_t>& out, std::uint64_t value, int size) {
    for (int i = 0; i < size; ++i)
        out.push_back(std::uint8_t(value >> (8 * i)));
}

// Reads numbers and byte runs from a note, refusing to run past its end.
struct NoteReader {
    std::span<const std::uint8_t> bytes;
    std::size_t at = 0;
    bool ok = true;

    std::uint64_t Number(int size) {
        std::uint64_t v = 0;
        if (at + size > bytes.size()) ok = false;
        for (int i = 0; ok && i < size; ++i)
            v |= std::uint64_t(bytes[at + i]) << (8 * i);
        at += size;
        return v;
    }
    std::span<const std::uint8_t> Run(std::size_t size) {
        if (!ok || at + size > bytes.size()) {
            ok = false;
            return {};
        }
        at += size;
        return bytes.subspan(at - size, size);
    }
};

std::vector<std::uint8_t> Encode(std::span<const RecordWrite> writes) {
    std::vector<std::uint8_t> out(std::begin(kMagic), std::end(kMagic));
    PutNumber(out, writes.size(), 1);
    for (const RecordWrite& w : writes) {
        const std::string name = w.file.filename().string();
        PutNumber(out, name.size(), 1);
        out.insert(out.end(), name.begin(), name.end());
        PutNumber(out, std::uint64_t(w.number), 4);
        PutNumber(out, w.bytes.size(), 2);
        out.insert(out.end(), w.bytes.begin(), w.bytes.end());
    }
    PutNumber(out, Fnv(out), 8);
    return out;
}

// The writes of a whole note, or nothing for a note cut short or not ours.
std::vector<RecordWrite> Decode(const fs::path& folder, std::span<const std::uint8_t> note) {
    if (note.size() < 13 || !std::equal(std::begin(kMagic), std::end(kMagic), note.begin()))
        return {};
    NoteReader tail{note.subspan(note.size() - 8)};
    if (tail.Number(8) != Fnv(note.first(note.size() - 8))) return {};
    NoteReader r{note.first(note.size() - 8), 4};
    std::vector<RecordWrite> writes(r.Number(1));
    for (RecordWrite& w : writes) {
        const auto run = r.Run(r.Number(1));
        const std::string name(run.begin(), run.end());
        // Only a file beside the note: a name with a folder in it is no note of ours.
        if (name.empty() || name == "." || name == ".." ||
            name.find_first_of("/\\") != std::string::npos)
            return {};
        w.file = folder / name;
        w.number = long(r.Number(4));
        const auto bytes = r.Run(r.Number(2));
        w.bytes.assign(bytes.begin(), bytes.end());
    }
    return r.ok && r.at == r.bytes.size() ? writes : std::vector<RecordWrite>{};
}

bool ApplyAll(std::span<const RecordWrite> writes) {
    bool ok = true;
    for (const RecordWrite& w : writes) {
        std::error_code ec;
        const std::uintmax_t size = w.bytes.size();
        const std::uintmax_t length = fs::file_size(w.file, ec);
        const bool inside = !ec && w.number >= 1 && std::uintmax_t(w.number) * size <= length;
        ok = inside && PutBytesAt(w.file, std::uintmax_t(w.number - 1) * size, w.bytes) && ok;
    }
    return ok;
}

}  // namespace

fs::path NoteFile(const fs::path& file) {
    const std::string ext = file.extension().string();
    if (ext == ".sds" || ext == ".sdl") {
        fs::path note = file;
        return note.replace_extension(".sdj");
    }
    fs::path note = file;
    return note += ".j";
}

bool PutBytesAt(const fs::path& file, std::uintmax_t offset, std::span<const std::uint8_t> bytes) {
    std::fstream io(file, std::ios::in | std::ios::out | std::ios::binary);
    if (!io.is_open()) return false;
    io.seekp(std::streamoff(offset));
    io.write(reinterpret_cast<const char*>(bytes.data()), std::streamsize(bytes.size()));
    io.flush();
    return bool(io);
}

bool WriteRecordsInPlace(std::span<const RecordWrite> writes, std::string* why) {
    if (writes.empty()) return true;
    const fs::path note = NoteFile(writes.front().file);
    FinishPendingWrites(writes.front().file);
    const std::vector<std::uint8_t> bytes = Encode(writes);
    bool ok;
    {
        std::ofstream out(note, std::ios::binary | std::ios::trunc);
        out.write(reinterpret_cast<const char*>(bytes.data()), std::streamsize(bytes.size()));
        out.close();
        ok = !out.fail();
    }
    std::error_code ec;
    if (!ok) {
        fs::remove(note, ec);
        if (why) *why = "Can't write " + note.string() + ".";
        return false;
    }
    ok = ApplyAll(writes);
    if (!ok) {
        // The note stays: it is whole, so the next reader carries it out and the
        // records end up all new rather than half.
        if (why) *why = "Error writing to " + writes.front().file.string() + ".";
        return false;
    }
    fs::remove(note, ec);
    return true;
}

void FinishPendingWrites(const fs::path& file) {
    const fs::path note = NoteFile(file);
    std::error_code ec;
    if (!fs::exists(note, ec)) return;
    std::vector<std::uint8_t> bytes;
    {
        std::ifstream in(note, std::ios::binary);
        bytes.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    }
    const auto writes = Decode(note.parent_path(), bytes);
    // A note cut short was written before any file was touched: it is dropped.
    if (writes.empty() || ApplyAll(writes)) fs::remove(note, ec);
}

}  // namespace tavi
