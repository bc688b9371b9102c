// SPDX-License-Identifier: GPL-3.0-or-later
// What a change of the options does to the game on the board.
#include "game/game.h"
#include "grid/candidates.h"

namespace tavi {

void Game::RebuildMarks() {
    for (int c = 0; c < 81; ++c) {
        if (ctx_.board.CurrentGrid[c]) continue;
        CandidateMask m = kAllCandidates;
        for (int peer : Peers[c])
            if (ctx_.board.CurrentGrid[peer])
                m &= CandidateMask(~DigitBit(ctx_.board.CurrentGrid[peer]));
        ctx_.board.Candidates[c] = m;
    }
}

void Game::PruneMarks() {
    for (int c = 0; c < 81; ++c) {
        if (ctx_.board.CurrentGrid[c]) continue;
        for (int peer : Peers[c])
            if (ctx_.board.CurrentGrid[peer])
                ctx_.board.Candidates[c] &= CandidateMask(~DigitBit(ctx_.board.CurrentGrid[peer]));
    }
}

void Game::CommandOptions(const Options& before) {
    const ChangeScope scope(*this);
    // The options window may have changed anything the window draws.
    alsoChanged_ = ~0u & ~unsigned(kChangeHintWindow);
    const LibraryPosition& position_ = session_.position();
    ResetHintStage();  // a waiting "Show Me" is for the board as it was
    const bool gameOpen = !position_.SudokuSolved && position_.OpenLevel > 0;
    const int level = gameOpen ? position_.OpenLevel : 0;
    if (options_.Dimmed != before.Dimmed) hoverCell_ = kNoHover;

    // The marks of the board follow the two pencil-mark options: without them
    // every digit is a click target and the marks are the player's own.
    const bool marksBefore = before.Pencilmarks && !(gameOpen && PencilmarksOffAt(before, level));
    const bool marksNow = options_.Pencilmarks && !(gameOpen && PencilmarksOffAt(options_, level));
    const bool offChanged =
        PencilmarksOffAt(before, level) != PencilmarksOffAt(options_, level) && gameOpen;
    const bool updateChanged = gameOpen && options_.Pencilmarks != before.Pencilmarks;
    if (offChanged && marksBefore != marksNow) {
        ResetHintStage();
        WisKleuren();
        brushes_.Off();
        if (marksNow) {
            brushes_.ShowAll();
            RebuildMarks();
        } else {
            SpecialPencilmarks();
        }
    } else if (updateChanged && marksNow && !marksBefore) {
        // The marks follow the digits again; the ones the player took away
        // stay away.
        PruneMarks();
    }
    // Turning the automatic update off leaves the marks as they stand.
    if (options_.Wells && !before.Wells) SetupWells();
    if (options_.TimeOn != before.TimeOn)
        services_.prompter.Message("Time option changed",
                                   "Switching Time on/off will take place on the next sudoku");
}

}  // namespace tavi
