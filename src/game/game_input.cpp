// Cell input: marks clicked to place or take away, the steps they write, the
// digit filter, row and column selection, Reset Cell, and painting with brushes.
#include "game/game.h"
#include "grid/candidates.h"

namespace tavi {

MoveStep& Game::BeginStep(int cell) {
    commands_.Undo = true;
    commands_.Redo = false;
    // A new step wipes the redo tail.
    log_.resize(position_.CurrentStep);
    log_.push_back({});
    ++position_.CurrentStep;
    ShowStepCount();
    MoveStep& step = log_.back();
    step.LogCell = cell;
    return step;
}

void Game::ShowStepCount() { labelStap_ = std::to_string(position_.CurrentStep); }

void Game::TakePeerMarks(int digit, int cell, MoveStep& step) {
    const CandidateMask bit = DigitBit(digit);
    auto take = [&](int c, int& field, int index) {
        if (!(ctx_.board.Candidates[c] & bit)) return;
        ctx_.board.Candidates[c] &= CandidateMask(~bit);
        field |= 1 << index;
    };
    const int row = cell / 9, col = cell % 9, leftTop = Global::BoxLeftTopOfCell[cell];
    for (int i = 0; i < 9; ++i)
        take(col + 9 * i, step.LogColumnMarks, i);
    for (int i = 0; i < 9; ++i)
        take(9 * row + i, step.LogRowMarks, i);
    for (int x = 0; x < 3; ++x)
        for (int y = 0; y < 3; ++y)
            take(leftTop + 9 * y + x, step.LogBoxMarks, y + 3 * x);
}

bool Game::BoardSolved() const {
    for (int c = 0; c < 81; ++c) {
        const int d = ctx_.board.CurrentGrid[c];
        if (d == 0 || d != sudoku_.Solution[c]) return false;
    }
    return true;
}

// The end of every click on the board: the wells follow, and a full and right
// board ends the game (once).
void Game::EndTest() {
    if (options_.Wells) SetupWells();
    if (!position_.SudokuSolved && BoardSolved()) ZetOpgelost();
}

void Game::MarkMouseUp(int digit, int cell, MouseButton button, bool inside) {
    if (busy_ || !gridEnabled_ || digit < 1 || digit > 9 || cell < 0 || cell > 80) return;
    if (!inside) return EndTest();
    if (brush_.BrushActive) {
        const bool left = button == MouseButton::Left;
        const bool has = left ? brush_.LeftBrush : brush_.RightBrush;
        const bool cellBrush = left ? brush_.LeftCellBrush : brush_.RightCellBrush;
        const Color color = left ? brush_.LeftColor : brush_.RightColor;
        if (has && button != MouseButton::Middle) {
            if (cellBrush) {
                ToggleCellPaint(cell, color);
            } else if (filterOn_[digit]) {
                auto& paint = markPaint_[cell][digit - 1];
                paint = paint == color ? std::nullopt : std::optional<Color>(color);
            }
        }
        return EndTest();
    }
    // Only a mark that is there can be clicked, and a filtered digit not at all.
    if (ctx_.board.CurrentGrid[cell] || !ctx_.board.Has(digit, cell) || !filterOn_[digit])
        return EndTest();
    const bool noMarks = position_.ChosenLevel < 4 && options_.PencilmarksOff;
    if (button == MouseButton::Right && noMarks) return EndTest();

    ResetHintStage();
    MoveStep& step = BeginStep(cell);
    if (button == MouseButton::Left) {
        step.LogDigit = digit;
        step.LogOwnMarks = ctx_.board.Candidates[cell];
        ctx_.board.Candidates[cell] = 0;
        Speel(kSoundPlaced);
        ctx_.board.CurrentGrid[cell] = std::uint8_t(digit);
        if (!noMarks && options_.Pencilmarks) TakePeerMarks(digit, cell, step);
    } else if (button == MouseButton::Right) {
        Speel(kSoundMarkRemoved);
        step.LogDigit = -digit;
        ctx_.board.Candidates[cell] &= CandidateMask(~DigitBit(digit));
        step.LogOwnMarks = DigitBit(digit);
    }
    // The middle button leaves an empty step, LogDigit 0.
    EndTest();
}

void Game::ZetAuto(Board& board, int digit, int cell) {
    MoveStep& step = BeginStep(cell);
    ResetHintStage();
    step.LogDigit = digit;
    step.LogOwnMarks = board.Candidates[cell];
    board.Candidates[cell] = 0;
    board.CurrentGrid[cell] = std::uint8_t(digit);
    // The solver's placements always update the peers, whatever the options say.
    TakePeerMarks(digit, cell, step);
}

void Game::CandidateRemoved(int digit, int cell) {
    MoveStep& step = BeginStep(cell);
    step.LogDigit = -digit;
    step.LogOwnMarks = DigitBit(digit);
}

void Game::MarkMouseMove(int digit, int cell) {
    const bool onBoard = digit >= 1 && digit <= 9 && cell >= 0 && cell <= 80;
    if (options_.Dimmed) HoverCell = onBoard ? (digit - 1) * 81 + cell : kNoHover;
}

void Game::GridMouseMove() { HoverCell = kNoHover; }

void Game::GridMouseUp(int cell, MouseButton button, bool inside) {
    if (!gridEnabled_ || !inside || !brush_.BrushActive || cell < 0 || cell > 80) return;
    const bool left = button == MouseButton::Left;
    if (button == MouseButton::Middle || !(left ? brush_.LeftCellBrush : brush_.RightCellBrush))
        return;
    if (!(left ? brush_.LeftBrush : brush_.RightBrush)) return;
    ToggleCellPaint(cell, left ? brush_.LeftColor : brush_.RightColor);
}

void Game::RowHeaderUp(int row, MouseButton button, bool inside) {
    if (!inside || row < 0 || row > 8) return;
    if (brush_.BrushActive) {
        const bool left = button == MouseButton::Left;
        if (button != MouseButton::Middle && (left ? brush_.LeftCellBrush : brush_.RightCellBrush))
            for (int i = 0; i < 9; ++i)
                SetCellPaint(9 * row + i, left ? brush_.LeftColor : brush_.RightColor);
        return;
    }
    if (button != MouseButton::Left) return;
    if (SelectedRow == row) {
        SelectedRow = kNoLine;
    } else {
        SelectedRow = row;
        Speel(kSoundHeader);
    }
}

void Game::ColumnHeaderUp(int column, MouseButton button, bool inside) {
    if (!inside || column < 0 || column > 8) return;
    if (brush_.BrushActive) {
        const bool left = button == MouseButton::Left;
        if (button != MouseButton::Middle && (left ? brush_.LeftCellBrush : brush_.RightCellBrush))
            for (int i = 0; i < 9; ++i)
                SetCellPaint(column + 9 * i, left ? brush_.LeftColor : brush_.RightColor);
        return;
    }
    if (button != MouseButton::Left) return;
    if (SelectedColumn == column) {
        SelectedColumn = kNoLine;
    } else {
        SelectedColumn = column;
        Speel(kSoundHeader);
    }
}

void Game::DigitButtonUp(int digit, MouseButton button, bool inside) {
    if (!inside || digit < 1 || digit > 9) return;
    if (brush_.BrushActive) {
        const bool left = button == MouseButton::Left;
        if (button == MouseButton::Middle || !(left ? brush_.LeftBrush : brush_.RightBrush)) return;
        const Color color = left ? brush_.LeftColor : brush_.RightColor;
        if (left ? brush_.LeftCellBrush : brush_.RightCellBrush) {
            // The button read as a box: the boxes are numbered from the first button.
            const int leftTop = Global::BoxLeftTop[digit - 1];
            for (int p = 0; p < 9; ++p)
                SetCellPaint(leftTop + 9 * (p / 3) + p % 3, color);
        } else if (filterOn_[digit]) {
            for (int c = 0; c < 81; ++c)
                markPaint_[c][digit - 1] = color;
        }
        return;
    }
    if (button != MouseButton::Left || MakeMode) return;
    if (filterOn_[digit])
        filterOn_[digit] = false;
    else
        ToonPencilmarks(digit);
}

void Game::ToonPencilmarks(int digit) {
    filterOn_[digit] = true;
    for (int c = 0; c < 81; ++c)
        markPaint_[c][digit - 1].reset();
}

void Game::PaletteUp(int index, MouseButton button, bool inside) {
    if (MakeMode || !inside || index < 0 || index >= kPaletteLabels) return;
    if (button == MouseButton::Middle) return;
    if (index == 4) {
        brush_ = {};
        textHint_ = std::string(kStandingHintText);
        return;
    }
    if (index == 5) {
        WisKleuren();
        return;
    }
    const bool left = button == MouseButton::Left;
    const std::string mark = left ? " L" : " R";
    for (auto& caption : brush_.PaletteCaptions)
        if (caption == mark) caption.clear();
    // The label that took the other button's brush drops it.
    if (brush_.PaletteCaptions[index] == (left ? " R" : " L")) {
        (left ? brush_.RightBrush : brush_.LeftBrush) = false;
    }
    brush_.PaletteCaptions[index] = mark;
    brush_.BrushActive = true;
    const bool cellBrush = index >= 6;
    const Color color = options_.colors.LabelBack[index];
    if (left) {
        brush_.LeftBrush = true;
        brush_.LeftColor = color;
        brush_.LeftCellBrush = cellBrush;
    } else {
        brush_.RightBrush = true;
        brush_.RightColor = color;
        brush_.RightCellBrush = cellBrush;
    }
}

void Game::CommandResetCell() {
    if (busy_) return;  // a search is running
    if (SelectedRow == kNoLine || SelectedColumn == kNoLine) return;
    ResetHintStage();
    const int cell = SelectedRow * 9 + SelectedColumn;
    if (sudoku_.Puzzle[cell] != 0) return;  // clues can't be reset
    Speel(kSoundResetCell);
    const bool redo = commands_.Redo;
    MoveStep& step = BeginStep(cell);
    commands_.Redo = redo;  // Reset Cell leaves Redo as it stands
    step.LogDigit = ctx_.board.CurrentGrid[cell] + 10;
    // All nine marks come back, also those that the peers forbid.
    step.LogOwnMarks = kAllCandidates & ~ctx_.board.Candidates[cell];
    ctx_.board.Candidates[cell] = kAllCandidates;
    ctx_.board.CurrentGrid[cell] = 0;
    if (options_.Wells) SetupWells();
}

void Game::WisKleuren() {
    cellPaint_.fill(std::nullopt);
    for (auto& marks : markPaint_)
        marks.fill(std::nullopt);
}

void Game::ToggleCellPaint(int cell, Color color) {
    const bool had = cellPaint_[cell] == color;
    cellPaint_[cell] = had ? std::nullopt : std::optional<Color>(color);
    for (auto& mark : markPaint_[cell])
        mark = cellPaint_[cell];
}

void Game::SetCellPaint(int cell, Color color) { cellPaint_[cell] = color; }

}  // namespace tavi
