// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/record_checks.h"

#include "grid/tables.h"

namespace tavi {

namespace {

std::string CellText(const char* field, int cell, int value) {
    return std::string(field) + " cell " + CellName(cell) + " holds " + std::to_string(value);
}

// Rows 0..8, columns 9..17, boxes 18..26.
std::string UnitName(int unit) {
    static constexpr const char* kKinds[] = {"row ", "column ", "box "};
    return kKinds[unit / 9] + std::to_string(unit % 9 + 1);
}

// -1..-9 a mark taken away, 0 a middle click, 1..9 a placement, 10..19 Reset Cell.
bool IsStepKind(int digit) { return digit >= -9 && digit <= 19; }

}  // namespace

std::string CheckSudokuRecord(const SudokuRecord& r) {
    // A record may hold no solution yet (all zeros): the workbench puts one in.
    bool hasSolution = false;
    for (int c = 0; c < 81; ++c)
        hasSolution = hasSolution || r.Solution[c] != 0;
    for (int c = 0; c < 81; ++c) {
        if (r.Puzzle[c] > 9) return CellText("puzzle", c, r.Puzzle[c]);
        if (!hasSolution) continue;
        if (r.Solution[c] < 1 || r.Solution[c] > 9) return CellText("solution", c, r.Solution[c]);
        if (r.Puzzle[c] && r.Puzzle[c] != r.Solution[c])
            return "the solution differs from the clue at " + CellName(c);
    }
    for (int unit = 0; unit < 27 && hasSolution; ++unit) {
        int seen = 0;
        for (int c : UnitCells[unit])
            seen |= 1 << r.Solution[c];
        if (seen != 0x3FE) return "the solution repeats a digit in " + UnitName(unit);
    }
    if (r.BestMinutes < 0 || r.BestSeconds < 0 || r.BestSeconds > 59)
        return "the best time " + std::to_string(r.BestMinutes) + ":" +
               std::to_string(r.BestSeconds) + " is no time";
    return {};
}

std::string CheckSudokuLogRecord(const SudokuLogRecord& r) {
    for (int c = 0; c < 81; ++c)
        if (r.Grid[c] > 9) return CellText("grid", c, r.Grid[c]);
    const int m = r.ElapsedMinutes, s = r.ElapsedSeconds;
    if (s < -59 || s > 59 || (m > 0 && s < 0) || (m < 0 && s > 0))
        return "the clock " + std::to_string(m) + ":" + std::to_string(s) + " is no time";
    if (r.StepCount < 0 || r.StepCount > kLogSteps)
        return "it claims " + std::to_string(r.StepCount) + " steps";
    for (int i = 0; i < r.StepCount; ++i) {
        const bool marksFit = r.LogOwnMarks[i] >= 0 && r.LogOwnMarks[i] < 512 &&
                              r.LogColumnMarks[i] >= 0 && r.LogColumnMarks[i] < 512 &&
                              r.LogRowMarks[i] >= 0 && r.LogRowMarks[i] < 512 &&
                              r.LogBoxMarks[i] >= 0 && r.LogBoxMarks[i] < 512;
        if (!IsStepKind(r.LogDigit[i]) || r.LogCell[i] < 0 || r.LogCell[i] > 80 || !marksFit)
            return "step " + std::to_string(i + 1) + " (digit " + std::to_string(r.LogDigit[i]) +
                   ", cell " + std::to_string(r.LogCell[i]) + ") is no move on the board";
    }
    return {};
}

}  // namespace tavi
