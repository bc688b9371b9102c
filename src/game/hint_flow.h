// SPDX-License-Identifier: GPL-3.0-or-later
// The hint flow of the game: the stage of a hint without pencil marks (the cell
// first, "Show Me" the digit), the checks made before any technique runs (wrong
// digits, lost candidates, digits still marked in their peers), the last hint a
// technique found and the caption of the small hint window. The checks only read
// the board; the game shows what they report.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "grid/board.h"
#include "hints/hint_paint.h"
#include "platform/platform.h"
#include "solver/hint_record.h"

namespace tavi {

// What keeps a hint on the board true. The hint goes (its colours, its text, the
// headers it picked) as soon as a change of the board makes it false.
struct HintTruth {
    enum Kind { kNone, kWrongNumber, kLostCandidate, kStillMarked, kTechnique, kShowMe };
    Kind kind = kNone;
    int cell = -1;
    int digit = 0;
    std::vector<Conclusion> conclusions;  // a technique's hint
    Digits grid{};                        // the board the hint was shown on
    std::array<CandidateMask, 81> marks{};
    std::string text;         // what the hint wrote in the hint box
    bool pickedCell = false;  // it picked the cell's row and column for Reset Cell
};

// Whether the hint `truth` describes still holds on `now`. A wrong digit, a lost
// candidate or a digit still marked holds while the cell is as reported. A
// technique's hint holds while the board differs from the one it was shown on
// only by some of its own conclusions, and one of them is still to be done.
// The cell of a hint without pencil marks holds while it is empty and no digit
// was taken back.
bool HintStillTrue(const HintTruth& truth, const Board& now);

// What a check found: the cell, the text for the hint box, the paint, the
// sound, the price on the clock, and whether the cell is picked for Reset Cell.
struct CellReport {
    HintTruth::Kind kind = HintTruth::kWrongNumber;
    int cell = 0;
    std::string text;
    std::vector<HintPaint> paints;
    int sound = kSoundWrongNumber;
    int penalty = 10;
    bool picksCell = true;
};

class HintFlow {
  public:
    // The checks, in the order Hint makes them.
    static std::optional<CellReport> WrongNumber(const Board& board);
    static std::optional<CellReport> LostCandidate(const Board& board);
    static std::optional<CellReport> StillMarked(const Board& board);

    // The stage of a hint without pencil marks: 0, or 1 with the cell shown and
    // its digit waiting for "Show Me".
    int Stage() const { return stage_; }
    int ShowMeCell() const { return showMeCell_; }
    int ShowMeNumber() const { return showMeNumber_; }
    void ShowMe(int cell, int digit);
    void ResetStage() { stage_ = 0; }

    // A technique's hint shown on the board: it becomes the last hint, the hint
    // window's caption names its technique, and the window is asked for when
    // `window` (the option) is on.
    void Shown(const HintRecord& hint, bool window);
    // The board shows something else than a technique's hint.
    void Duplicate();

    const HintRecord& LastHint() const { return lastHint_; }
    // "Hint - " and the technique's name, or "Main Duplicate".
    const std::string& WindowCaption() const { return hintWindowCaption_; }
    // Counts the hint windows asked for.
    int WindowShows() const { return hintWindowShows_; }

  private:
    int stage_ = 0;
    int showMeCell_ = 0, showMeNumber_ = 0;
    HintRecord lastHint_;
    std::string hintWindowCaption_;
    int hintWindowShows_ = 0;
};

}  // namespace tavi
