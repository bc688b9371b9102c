// SPDX-License-Identifier: GPL-3.0-or-later
// The practice index against the command line's rating, and the index file kept
// beside a library: fresh when the library is as it was, made again when it
// changed or the index file is damaged.
#include <gtest/gtest.h>

#include "cli/cli_run.h"
#include "game/practice.h"
#include "grid/levels.h"
#include "library/library_test_support.h"
#include "solver/difficulty_score.h"
#include "solver/generator.h"
#include "solver/ladder.h"

namespace tavi {
namespace {

using testing::TempDir;

// `count` generated puzzles as the `.sds` and an empty `.sdl` of `stem`.
void WriteLibrary(const std::filesystem::path& folder, std::string_view stem, int count,
                  std::uint64_t start) {
    std::vector<SudokuRecord> records;
    for (const GeneratedPuzzle& p : testing::GeneratedPuzzles(count, start))
        records.push_back({p.puzzle, p.solution, 0, 0});
    ASSERT_TRUE(WriteSudokuFile(PuzzleFile(folder, stem), records));
    std::ofstream sdl(LogFile(folder, stem), std::ios::binary | std::ios::trunc);
    const std::vector<char> zeros(kSudokuLogRecordSize * std::size_t(count), 0);
    sdl.write(zeros.data(), std::streamsize(zeros.size()));
}

TEST(PracticeIndex, AgreesWithRateScoreOnALibrary) {
    TempDir dir;
    const std::string_view stem = LevelStem(6);
    WriteLibrary(dir.path(), stem, 200, 33);
    const auto index = EnsurePracticeIndex(dir.path(), stem, 2);
    ASSERT_TRUE(index);
    ASSERT_EQ(index->size(), 200u);

    std::string input;
    for (const GeneratedPuzzle& p : testing::GeneratedPuzzles(200, 33))
        input += FormatDigits(p.puzzle) + '\n';
    std::istringstream lines(cli::RunRate(input, {false, true}).out);
    std::string text, name, score;
    int level = 0;
    for (const PracticeFacts& f : *index) {
        ASSERT_TRUE(lines >> text >> level >> name >> score);
        EXPECT_EQ(f.level, level) << text;
        EXPECT_EQ(FormatScore(f.score), score) << text;
        // The hardest step's technique is one the level allows.
        if (f.technique) {
            EXPECT_LE(RungsOf(f.technique)[0].level, f.level) << text;
        }
    }
    // The same facts from one thread as from two, and from the kept file.
    TempDir other;
    WriteLibrary(other.path(), stem, 200, 33);
    EXPECT_EQ(EnsurePracticeIndex(other.path(), stem, 1), index);
    const auto library = ReadLibraryPuzzles(PuzzleFile(dir.path(), stem));
    ASSERT_TRUE(library);
    EXPECT_EQ(ReadPracticeIndex(dir.path(), stem, library->hash), index);
}

// Any change of the library file makes the kept index stale, and any damage to
// the index file makes it unreadable as a whole: never half an index.
TEST(PracticeIndex, AChangedLibraryOrADamagedIndexIsMadeAgain) {
    TempDir dir;
    const std::string_view stem = LevelStem(3);
    WriteLibrary(dir.path(), stem, 40, 7);
    const auto first = EnsurePracticeIndex(dir.path(), stem, 2);
    ASSERT_TRUE(first);
    const auto indexFile = PracticeIndexFile(dir.path(), stem);
    const auto kept = testing::FileBytes(indexFile);
    const std::uint64_t hash = ReadLibraryPuzzles(PuzzleFile(dir.path(), stem))->hash;

    // Every cut but the last newline's.
    for (std::size_t cut = 0; cut + 1 < kept.size(); ++cut) {
        testing::WriteBytes(indexFile, {kept.begin(), kept.begin() + long(cut)});
        EXPECT_FALSE(ReadPracticeIndex(dir.path(), stem, hash)) << "cut at " << cut;
    }
    std::mt19937 random(5);
    for (int round = 0; round < 200; ++round) {
        auto bytes = kept;
        bytes[random() % bytes.size()] = char("x 9-\n."[random() % 6]);
        testing::WriteBytes(indexFile, bytes);
        const auto read = ReadPracticeIndex(dir.path(), stem, hash);
        if (read) {
            EXPECT_EQ(read->size(), first->size());
        }
    }
    testing::WriteBytes(indexFile, kept);
    EXPECT_EQ(ReadPracticeIndex(dir.path(), stem, hash), first);

    // A library with one more puzzle: the kept index no longer fits it.
    WriteLibrary(dir.path(), stem, 41, 7);
    const std::uint64_t grown = ReadLibraryPuzzles(PuzzleFile(dir.path(), stem))->hash;
    EXPECT_NE(grown, hash);
    EXPECT_FALSE(ReadPracticeIndex(dir.path(), stem, grown));
    const auto again = EnsurePracticeIndex(dir.path(), stem, 1);
    ASSERT_TRUE(again);
    ASSERT_EQ(again->size(), 41u);
    EXPECT_TRUE(std::equal(first->begin(), first->end(), again->begin()));
    EXPECT_TRUE(ReadPracticeIndex(dir.path(), stem, grown));
}

TEST(PracticeIndex, ChoicesCountTheHardestStepsAndTheNextPuzzleIsUnfinished) {
    TempDir dir;
    for (int level : {4, 6})
        WriteLibrary(dir.path(), LevelStem(level), 60, 100 + level);
    PracticeLibrary library;
    ASSERT_TRUE(library.Load(dir.path(), 2));
    const auto choices = PracticeChoices(library);
    ASSERT_EQ(choices.size(), std::size_t(kLastPractised - kFirstPractised + 1));
    long counted = 0, beyond = 0;
    for (const PracticeChoice& c : choices)
        counted += c.puzzles;
    for (int level : {4, 6})
        for (const PracticeFacts& f : *library.levels[std::size_t(level)])
            beyond += f.technique >= kFirstPractised && f.technique <= kLastPractised;
    EXPECT_EQ(counted, beyond);

    // The most common technique: its first puzzle, then, once finished, the next.
    const PracticeChoice& most =
        *std::max_element(choices.begin(), choices.end(),
                          [](const auto& a, const auto& b) { return a.puzzles < b.puzzles; });
    ASSERT_GE(most.puzzles, 2);
    const auto first = NextPracticePuzzle(library, dir.path(), most.technique);
    ASSERT_TRUE(first);
    EXPECT_EQ(
        (*library.levels[std::size_t(first->level)])[std::size_t(first->record - 1)].technique,
        most.technique);
    auto [sudoku, log] = testing::PairAt(dir.path(), LevelStem(first->level), first->record);
    log.Grid = sudoku.Solution;
    ASSERT_TRUE(WritePair(dir.path(), LevelStem(first->level), first->record, sudoku, log));
    const auto second = NextPracticePuzzle(library, dir.path(), most.technique);
    ASSERT_TRUE(second);
    EXPECT_TRUE(second->level > first->level || second->record > first->record);
}

// The search gives the first generated puzzle whose hardest step is the
// technique, with its level and solution; a cancel or no time gives nothing.
TEST(PracticeSearch, FindsTheFirstGeneratedPuzzleOfTheTechnique) {
    int found = 0;
    for (std::uint64_t start = 1; start <= 40; ++start) {
        PuzzleGenerator generator(start);
        const GeneratedPuzzle first = generator.Next();
        const PuzzleRating r = RatePuzzleWithScore(first.puzzle);
        if (r.hardestTechnique < kFirstPractised || r.hardestTechnique > kLastPractised) continue;
        const auto puzzle = GeneratePracticePuzzle(r.hardestTechnique, start, 30);
        ASSERT_TRUE(puzzle);
        EXPECT_EQ(puzzle->puzzle, first.puzzle);
        EXPECT_EQ(puzzle->solution, first.solution);
        EXPECT_EQ(puzzle->level, r.level);
        ++found;
    }
    EXPECT_GT(found, 3);
    const std::atomic<bool> cancel{true};
    EXPECT_FALSE(GeneratePracticePuzzle(8, 1, 30, &cancel));
    EXPECT_FALSE(GeneratePracticePuzzle(8, 1, 0));
}

TEST(PracticeMark, OnlyTheFirstHintOfTheTechniqueIsMarked) {
    PracticeMark mark;
    EXPECT_EQ(mark.Marked(12, "S."), "S.");  // nothing chosen
    mark.Start(12);
    EXPECT_EQ(mark.Marked(8, "An X-Wing."), "An X-Wing.");
    EXPECT_EQ(mark.Marked(12, "An XY-Wing."), "This is the step to practise. An XY-Wing.");
    EXPECT_EQ(mark.Marked(12, "Another."), "Another.");
    mark.Start(12);
    EXPECT_EQ(mark.Marked(12, "Again."), "This is the step to practise. Again.");
}

}  // namespace
}  // namespace tavi
