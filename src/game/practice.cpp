// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/practice.h"

#include <chrono>

#include "library/library_files.h"
#include "settings/technique_manager.h"
#include "solver/difficulty_score.h"
#include "solver/generator.h"

namespace tavi {

bool PracticeLibrary::Load(const std::filesystem::path& folder, int threads,
                           const std::atomic<bool>* cancel) {
    bool all = true;
    for (int level = 1; level <= kLevelCount; ++level) {
        levels[std::size_t(level)] = EnsurePracticeIndex(folder, LevelStem(level), threads, cancel);
        all = all && levels[std::size_t(level)].has_value();
    }
    return all;
}

std::vector<PracticeChoice> PracticeChoices(const PracticeLibrary& library) {
    std::vector<PracticeChoice> choices;
    for (int t = kFirstPractised; t <= kLastPractised; ++t)
        choices.push_back({t, std::string(kTechniqueRows[std::size_t(t)].caption), 0});
    for (const auto& index : library.levels)
        if (index)
            for (const PracticeFacts& f : *index)
                if (f.technique >= kFirstPractised && f.technique <= kLastPractised)
                    ++choices[std::size_t(f.technique - kFirstPractised)].puzzles;
    return choices;
}

bool PuzzleFinished(const SudokuRecord& sudoku, const SudokuLogRecord& log) {
    if (sudoku.BestMinutes > 0 || sudoku.BestSeconds > 0) return true;
    return log.Grid == sudoku.Solution;
}

std::optional<PracticePuzzle> NextPracticePuzzle(const PracticeLibrary& library,
                                                 const std::filesystem::path& folder,
                                                 int technique) {
    for (int level = 1; level <= kLevelCount; ++level) {
        const auto& index = library.levels[std::size_t(level)];
        if (!index) continue;
        const std::string_view stem = LevelStem(level);
        for (std::size_t i = 0; i < index->size(); ++i) {
            if ((*index)[i].technique != technique) continue;
            const long number = long(i) + 1;
            SudokuRecord sudoku;
            SudokuLogRecord log;
            if (!ReadSudokuRecord(PuzzleFile(folder, stem), number, sudoku)) continue;
            // A log record that can't be read holds no finished game.
            if (ReadSudokuLogRecord(LogFile(folder, stem), number, log) &&
                PuzzleFinished(sudoku, log))
                continue;
            return PracticePuzzle{level, number};
        }
    }
    return std::nullopt;
}

std::optional<FoundPuzzle> GeneratePracticePuzzle(int technique, std::uint64_t start,
                                                  double seconds, const std::atomic<bool>* cancel,
                                                  const std::function<void(long)>& tried) {
    const auto until = std::chrono::steady_clock::now() + std::chrono::duration<double>(seconds);
    PuzzleGenerator generator(start);
    SolveContext ctx(Side::Workbench);
    for (long n = 1;; ++n) {
        if (cancel && *cancel) return std::nullopt;
        if (std::chrono::steady_clock::now() >= until) return std::nullopt;
        const GeneratedPuzzle p = generator.Next();
        const PuzzleRating r = RatePuzzleWithScore(ctx, p.puzzle);
        if (tried && n % 16 == 0) tried(n);
        if (r.hardestTechnique == technique && r.level != kOutlaw)
            return FoundPuzzle{p.puzzle, p.solution, r.level};
    }
}

std::string PracticeMark::Marked(int hitTechnique, std::string sentence) {
    if (technique_ == 0 || marked_ || hitTechnique != technique_) return sentence;
    marked_ = true;
    return std::string(kPractiseMark) + " " + sentence;
}

}  // namespace tavi
