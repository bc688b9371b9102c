// SPDX-License-Identifier: GPL-3.0-or-later
// Moving records from one level's pair to another as steps a kill cannot split.
//
// A run (Check All, Solve) appends each moved record to the pair of its new level
// at once, but takes the moved records out of the old pair only at its end, in one
// rewrite. Between the two the record stands in both pairs; the journal
// ("<stem>m" beside the pair, e.g. "Sudoku_Hard.sdm") says which. Before each
// append it gets a line: the old number, the new pair, the new number and the
// puzzle. At the end the rewrite of the old pair drops the moved records and the
// journal goes with its commit (pair_guard.h).
//
// A journal whose run is dead (killed, or ended without finishing) is finished
// by the next open of its pair: a record whose line finds its puzzle at the new
// number is taken out of the old pair; one whose append never happened stays
// where it was, for the next check to move again. Every rewrite of any pair first
// finishes the dead journals of its folder, so no number a journal names shifts
// under it. Either way every puzzle stands exactly once.
#pragma once

#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "library/records.h"

namespace tavi {

class MoveJournal {
  public:
    // The moves out of the pair `stem`. Finishes what dead runs left in the folder.
    MoveJournal(std::filesystem::path folder, std::string_view stem);
    // A journal not finished stays on disk, for the next open of the pair.
    ~MoveJournal();
    MoveJournal(const MoveJournal&) = delete;
    MoveJournal& operator=(const MoveJournal&) = delete;

    // Record `number` of the pair, as `sudoku` and `log`, appended to the pair
    // `targetStem`; `newNumber` gets its number there. On failure nothing moved.
    bool Move(long number, std::string_view targetStem, const SudokuRecord& sudoku,
              const SudokuLogRecord& log, long* newNumber = nullptr, std::string* why = nullptr);

    // Takes the moved records out of the pair as one rewrite and ends the journal.
    // On failure the journal stays, and the next open of the pair finishes it.
    bool Finish(std::string* why = nullptr);

    // The numbers moved so far, in the order of the moves.
    const std::vector<long>& Moved() const { return moved_; }

  private:
    std::filesystem::path folder_;
    std::string stem_;
    std::FILE* file_ = nullptr;
    std::vector<long> moved_;
    bool finished_ = false;
};

// The journal beside the pair `stem`.
std::filesystem::path MoveJournalFile(const std::filesystem::path& folder, std::string_view stem);

// Finishes the journal a dead run left beside the pair `stem`, if any. Leaves the
// journal of a run alive in this process alone.
void FinishDeadMoves(const std::filesystem::path& folder, std::string_view stem);
// The same for every level of the folder.
void FinishDeadMovesInFolder(const std::filesystem::path& folder);

}  // namespace tavi
