// SPDX-License-Identifier: GPL-3.0-or-later
// What the window is told: the game looks at what it shows when a public
// routine starts, and again when the outermost one ends, and names the parts
// that differ.
#include "game/game.h"

namespace tavi {

void Game::ScopeEnded() {
    Announce();
    if (longGameDue_) {
        longGameDue_ = false;
        // Autosolve's steps and an ended game are never saved: nothing to say.
        const LibraryPosition& p = position();
        if (!p.SudokuSolved && !p.SudokuAutosolved && !busy_) {
            longGameSaid_ = true;
            services_.prompter.Message(kLongGameTitle, kLongGameText);
        }
    }
}

Game::View Game::Look() const {
    View v;
    v.grid = ctx_.board.CurrentGrid;
    v.marks = ctx_.board.Candidates;
    v.row = selectedRow_;
    v.column = selectedColumn_;
    v.hover = hoverCell_;
    v.level = position().ChosenLevel;
    v.hintShows = hints_.WindowShows();
    v.generation = generation_;
    v.enabled = gridEnabled_;
    v.captions = MarkCaptionsShown();
    v.wellsShown = options_.Wells;
    v.paint = brushes_;
    v.commands = commands_;
    v.textHint = textHint_;
    v.labelStap = labelStap_;
    v.sudTekst = sudTekst_;
    v.clock = clock_.Label();
    v.caption = caption_;
    v.wells = wells_;
    return v;
}

void Game::Announce() {
    // What the window is about to show of the game is in the recovery copy first.
    KeepRecoveryCopy();
    View now = Look();
    const View& was = seen_;
    Changes changes;
    changes.bits = alsoChanged_;
    alsoChanged_ = 0;
    if (now.grid != was.grid || now.marks != was.marks || now.row != was.row ||
        now.column != was.column || now.hover != was.hover || now.enabled != was.enabled ||
        now.captions != was.captions)
        changes |= kChangeBoard;
    if (!now.paint.SamePaint(was.paint)) changes |= kChangePaint;
    if (now.paint.brush() != was.paint.brush()) changes |= kChangeBrush;
    if (now.commands != was.commands) changes |= kChangeCommands;
    if (now.textHint != was.textHint || now.labelStap != was.labelStap ||
        now.sudTekst != was.sudTekst)
        changes |= kChangeTexts;
    if (now.clock != was.clock) changes |= kChangeClock;
    if (now.wells != was.wells || now.wellsShown != was.wellsShown) changes |= kChangeWells;
    if (now.caption != was.caption) changes |= kChangeTitle;
    if (now.level != was.level) changes |= kChangeLevel;
    if (now.hintShows != was.hintShows || now.generation != was.generation)
        changes |= kChangeHintWindow;
    seen_ = std::move(now);
    if (changes.Any() && events_) events_(changes);
}

void Game::Breathe() {
    // What the search has shown so far, then the window's turn.
    Announce();
    if (services_.yield) services_.yield();
}

}  // namespace tavi
