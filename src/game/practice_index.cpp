// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/practice_index.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <sstream>
#include <thread>

#include "grid/candidates.h"
#include "library/record_checks.h"
#include "library/records.h"
#include "solver/difficulty_score.h"

namespace tavi {

namespace {

constexpr std::string_view kHeading = "Tavi Sudoku practice index 1";

std::uint64_t Fnv1a(const std::string& bytes) {
    std::uint64_t h = 14695981039346656037ull;
    for (unsigned char c : bytes) {
        h ^= c;
        h *= 1099511628211ull;
    }
    return h;
}

PracticeFacts FactsOf(SolveContext& ctx, const Digits& puzzle) {
    if (std::all_of(puzzle.begin(), puzzle.end(), [](auto d) { return d == 0; })) return {};
    const PuzzleRating r = RatePuzzleWithScore(ctx, puzzle);
    // Kept as written, so that a fresh index and a read one agree.
    return {r.hardestTechnique, r.level, std::stod(FormatScore(r.score))};
}

}  // namespace

std::filesystem::path PracticeIndexFile(const std::filesystem::path& folder,
                                        std::string_view stem) {
    return folder / (std::string(stem) + "p");
}

std::optional<LibraryPuzzles> ReadLibraryPuzzles(const std::filesystem::path& sdsFile) {
    std::ifstream in(sdsFile, std::ios::binary);
    if (!in) return std::nullopt;
    const std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    if (in.bad()) return std::nullopt;
    LibraryPuzzles out;
    out.hash = Fnv1a(bytes);
    const std::size_t count = bytes.size() / kSudokuRecordSize;
    out.puzzles.resize(count);
    for (std::size_t i = 0; i < count; ++i) {
        SudokuRecordBytes record;
        std::copy_n(bytes.data() + i * kSudokuRecordSize, kSudokuRecordSize, record.begin());
        const SudokuRecord sudoku = SudokuRecordFromBytes(record);
        if (CheckSudokuRecord(sudoku).empty()) out.puzzles[i] = sudoku.Puzzle;
    }
    return out;
}

std::optional<PracticeIndex> IndexPuzzles(const std::vector<Digits>& puzzles, int threads,
                                          const std::atomic<bool>* cancel,
                                          const std::function<void(long)>& done) {
    PracticeIndex index(puzzles.size());
    std::atomic<long> next{0}, finished{0};
    auto work = [&] {
        SolveContext ctx(Side::Workbench);
        for (long i; (i = next++) < long(puzzles.size());) {
            if (cancel && *cancel) return;
            index[std::size_t(i)] = FactsOf(ctx, puzzles[std::size_t(i)]);
            ++finished;
        }
    };
    std::vector<std::thread> workers;
    for (int t = 0; t < std::max(1, threads); ++t)
        workers.emplace_back(work);
    while (done && finished < long(puzzles.size()) && !(cancel && *cancel)) {
        done(finished);
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    for (auto& w : workers)
        w.join();
    if (done) done(finished);
    if (cancel && *cancel) return std::nullopt;
    return index;
}

std::optional<PracticeIndex> ReadPracticeIndex(const std::filesystem::path& folder,
                                               std::string_view stem, std::uint64_t hash) {
    std::ifstream in(PracticeIndexFile(folder, stem));
    std::string heading, hashText;
    long count = -1;
    if (!std::getline(in, heading) || heading != kHeading) return std::nullopt;
    if (!(in >> hashText >> count) || count < 0) return std::nullopt;
    char expected[20];
    std::snprintf(expected, sizeof expected, "%016llx", static_cast<unsigned long long>(hash));
    if (hashText != expected) return std::nullopt;
    PracticeIndex index;
    index.reserve(std::size_t(std::min(count, 1L << 24)));
    for (long i = 0; i < count; ++i) {
        PracticeFacts f;
        if (!(in >> f.technique >> f.level >> f.score)) return std::nullopt;
        if (f.technique < 0 || f.technique > 39 || f.level < 0 || f.level > 9) return std::nullopt;
        index.push_back(f);
    }
    // The last line closes the file, so a cut inside the last number shows.
    std::string rest;
    if (!(in >> rest) || rest != "end" || (in >> rest)) return std::nullopt;
    return index;
}

bool WritePracticeIndex(const std::filesystem::path& folder, std::string_view stem,
                        std::uint64_t hash, const PracticeIndex& index) {
    const auto file = PracticeIndexFile(folder, stem);
    auto scratch = file;
    scratch += ".new";
    {
        std::ostringstream text;
        char hashText[20];
        std::snprintf(hashText, sizeof hashText, "%016llx", static_cast<unsigned long long>(hash));
        text << kHeading << '\n' << hashText << ' ' << index.size() << '\n';
        for (const PracticeFacts& f : index)
            text << f.technique << ' ' << f.level << ' ' << FormatScore(f.score) << '\n';
        text << "end\n";
        std::ofstream out(scratch, std::ios::binary | std::ios::trunc);
        out << text.str();
        out.flush();
        if (!out) {
            std::error_code gone;
            std::filesystem::remove(scratch, gone);
            return false;
        }
    }
    std::error_code error;
    std::filesystem::rename(scratch, file, error);
    if (error) std::filesystem::remove(scratch, error);
    return !error;
}

std::optional<PracticeIndex> EnsurePracticeIndex(const std::filesystem::path& folder,
                                                 std::string_view stem, int threads,
                                                 const std::atomic<bool>* cancel) {
    const auto sds = folder / (std::string(stem) + "s");
    std::error_code error;
    if (!std::filesystem::exists(sds, error)) return PracticeIndex{};
    const auto library = ReadLibraryPuzzles(sds);
    if (!library) return std::nullopt;
    if (auto kept = ReadPracticeIndex(folder, stem, library->hash)) return kept;
    auto index = IndexPuzzles(library->puzzles, threads, cancel);
    if (!index) return std::nullopt;
    // An index that can't be kept still serves this run.
    WritePracticeIndex(folder, stem, library->hash, *index);
    return index;
}

}  // namespace tavi
