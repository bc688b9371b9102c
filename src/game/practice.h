// SPDX-License-Identifier: GPL-3.0-or-later
// Practising one technique: the techniques of the ladder from rung 8 to 38 with
// how many puzzles of the library need each as their hardest step, the next such
// puzzle the player has not finished, a generated one when the library has none,
// and the mark the first hint of that technique carries.
#pragma once

#include <array>
#include <atomic>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "game/practice_index.h"
#include "library/records.h"

namespace tavi {

inline constexpr int kFirstPractised = 8;
inline constexpr int kLastPractised = 38;
inline constexpr std::string_view kPractiseMark = "This is the step to practise.";

// The indexes of the nine library files of a folder; a level whose index is not
// there (yet) counts nothing.
struct PracticeLibrary {
    std::array<std::optional<PracticeIndex>, 10> levels;  // 1..9

    // Reads or builds every level's index (EnsurePracticeIndex); false when one
    // could not be had.
    bool Load(const std::filesystem::path& folder, int threads,
              const std::atomic<bool>* cancel = nullptr);
};

struct PracticeChoice {
    int technique = 0;
    std::string name;  // as the Solving Techniques Manager names it
    long puzzles = 0;  // library puzzles whose hardest step it is
};
// Techniques 8 to 38, in number order.
std::vector<PracticeChoice> PracticeChoices(const PracticeLibrary& library);

// A game the player has finished: a best time, or a saved board that is the
// solution.
bool PuzzleFinished(const SudokuRecord& sudoku, const SudokuLogRecord& log);

struct PracticePuzzle {
    int level = 0;
    long record = 0;
    bool operator==(const PracticePuzzle&) const = default;
};
// The first puzzle, by level and then record, whose hardest step is `technique`
// and that the player has not finished. Records that can't be read are passed over.
std::optional<PracticePuzzle> NextPracticePuzzle(const PracticeLibrary& library,
                                                 const std::filesystem::path& folder,
                                                 int technique);

// Generates puzzles from `start` on until one has `technique` as its hardest
// step, for at most `seconds`, or until `cancel`. `tried` hears the count now and
// then.
struct FoundPuzzle {
    Digits puzzle{};
    Digits solution{};
    int level = 0;
};
std::optional<FoundPuzzle> GeneratePracticePuzzle(int technique, std::uint64_t start,
                                                  double seconds,
                                                  const std::atomic<bool>* cancel = nullptr,
                                                  const std::function<void(long)>& tried = {});

// The game's side: the technique chosen for the open puzzle, and whether a hint
// has shown it yet. The first hint of that technique is marked, the later ones
// are plain.
class PracticeMark {
  public:
    void Start(int technique) { technique_ = technique, marked_ = false; }
    void Stop() { technique_ = 0; }
    int Technique() const { return technique_; }
    // The hint's sentence, with the mark before it when `hitTechnique` is the one
    // practised and no hint has shown it yet.
    std::string Marked(int hitTechnique, std::string sentence);

  private:
    int technique_ = 0;
    bool marked_ = false;
};

}  // namespace tavi
