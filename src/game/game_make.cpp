// SPDX-License-Identifier: GPL-3.0-or-later
// Puzzles of the user's own: Make clears the board for the clues, which come by
// clicks on the marks, by a text typed or pasted into the puzzle line, or by a
// file dropped on it; Validate checks the entry, rates it with the solver and
// adds it to the library of the level it reached.
#include <algorithm>
#include <fstream>
#include <sstream>

#include "game/game.h"
#include "game/make_entry.h"
#include "grid/candidates.h"
#include "grid/levels.h"
#include "grid/tables.h"
#include "library/find_puzzle.h"
#include "library/foreign_puzzles.h"
#include "library/library_pair.h"
#include "solver/brute_force.h"
#include "solver/ladder.h"
#include "solver/solutions.h"

namespace tavi {

namespace {

bool IsLineBreak(char c) { return c == '\n' || c == '\r'; }

bool IsLetter(char c) {
    const auto u = static_cast<unsigned char>(c);
    return u >= 0x80 || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

std::string Lower(std::string text) {
    for (char& c : text)
        if (c >= 'A' && c <= 'Z') c = char(c - 'A' + 'a');
    return text;
}

}  // namespace

std::optional<std::string> ClueCharacters(std::string_view text, std::string* why) {
    std::string chars(text.substr(0, 81));
    chars.resize(81, ' ');
    for (size_t i = 0; i < chars.size(); ++i) {
        bool refused = IsLetter(chars[i]);
        if (IsLineBreak(chars[i])) {
            // A line break may only end the text.
            for (size_t j = i; j < chars.size() && !refused; ++j)
                refused = !IsLineBreak(chars[j]) && chars[j] != ' ';
            if (!refused) std::fill(chars.begin() + long(i), chars.end(), ' ');
        }
        if (refused) {
            if (why) *why = std::string(kClueTextRefused);
            return std::nullopt;
        }
    }
    return chars;
}

std::optional<std::string> ClueText(std::string_view text, std::string* why) {
    if (auto chars = ClueCharacters(text, why)) return chars;
    std::istringstream in{std::string(text)};
    std::optional<std::string> found;
    ReadForeignPuzzles(
        in,
        [&](const ForeignPuzzle& p) {
            found = FormatDigits(p.puzzle, '.');
            return false;
        },
        [](const ForeignProblem&) {});
    if (found && why) why->clear();
    return found;
}

std::string ClueClash(const Digits& clues) {
    for (int unit = 0; unit < 27; ++unit) {
        int seen[10] = {};
        for (int c : UnitCells[unit]) {
            const int d = clues[c];
            if (!d || ++seen[d] < 2) continue;
            const int index = unit % 9;
            const std::string name =
                unit < 9 ? std::string("row ") + char(Global::RowLetter[index])
                         : (unit < 18 ? "column " : "box ") + std::to_string(index + 1);
            return "two " + std::to_string(d) + "s in " + name;
        }
    }
    return {};
}

std::optional<DropRefusal> RefuseDrop(const std::vector<std::filesystem::path>& files) {
    if (files.size() != 1) return DropRefusal{kDropErrorTitle, kDropOneFileText};
    std::error_code ignored;
    if (std::filesystem::is_directory(files.front(), ignored))
        return DropRefusal{kDropErrorTitle, kDropNoFolderText};
    const std::string name = files.front().filename().string();
    if (name.size() < 4 || Lower(name.substr(name.size() - 4)) != ".txt")
        return DropRefusal{kDropErrorTitle, kDropNotTxtText};
    return std::nullopt;
}

std::optional<std::string> ReadDroppedHead(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in) return std::nullopt;
    std::string head(4096 + 3, '\0');
    in.read(head.data(), std::streamsize(head.size()));
    if (in.bad()) return std::nullopt;
    head.resize(size_t(in.gcount()));
    if (head.starts_with("\xEF\xBB\xBF")) head.erase(0, 3);  // a byte order mark
    if (head.size() > 4096) head.resize(4096);
    return head;
}

void Game::CommandMake() {
    const ChangeScope scope(*this);
    if (busy_) return;  // a search is running
    if (makeMode_)
        Validate();
    else
        StartMaking();
}

void Game::StartMaking() {
    ResetHintStage();
    if (!LeaveBoard()) return;
    clock_.Off();
    ClearGrid();
    brushes_.Off();
    ClearSudokuData();
    session_.Closed();
    // No game is in progress while the clues go in: the steps of the entry are
    // no game to save at the way out.
    session_.position().SudokuSolved = true;
    session_.position().SudokuAutosolved = false;
    EnableGrid();
    makeMode_ = true;
    // Nothing of the game before stays: its wells and its title.
    for (auto& digit : wells_)
        digit.fill(false);
    caption_ = windowTitle_;

    commands_.Open = commands_.Save = commands_.Print = false;
    commands_.MakeCaption = "Validate";
    commands_.Undo = commands_.Redo = commands_.ResetCell = false;
    commands_.Hint = commands_.AutoSolve = commands_.Solution = commands_.New = false;
    commands_.Scan = false;
    sudTekst_ = std::string(kMakePrompt);
}

void Game::SudTekstChange(const std::string& text) {
    const ChangeScope scope(*this);
    if (!makeMode_ || busy_) return;
    sudTekst_ = text;
    if (text.size() > 80) EnterClues(text, kMakeErrorTitle);
}

void Game::SudTekstDrop(const std::vector<std::filesystem::path>& files) {
    const ChangeScope scope(*this);
    if (!makeMode_ || busy_) return;
    if (const auto refusal = RefuseDrop(files)) {
        services_.prompter.Ask(refusal->title, refusal->text, Buttons::Ok, Icon::Exclamation);
        return;
    }
    const auto head = ReadDroppedHead(files.front());
    if (!head) {
        services_.prompter.Message(
            kReadErrorTitle, "Error reading sudoku from file " + files.front().string() + " !");
        return;
    }
    if (const auto chars = EnterClues(*head, kDropErrorTitle)) sudTekst_ = *chars;
}

std::optional<std::string> Game::EnterClues(std::string_view text, std::string_view title) {
    std::string why;
    const auto chars = ClueText(text, &why);
    if (!chars) {
        services_.prompter.Ask(title, why, Buttons::Ok, Icon::Exclamation);
        return chars;
    }
    for (int c = 0; c < 81; ++c) {
        const char ch = (*chars)[size_t(c)];
        if (ch < '1' || ch > '9') continue;
        const int digit = ch - '0';
        // The same text read again (a character typed after the 81st) adds no
        // steps; another digit is written over the cell as it stands.
        if (ctx_.board.CurrentGrid[c] == digit) continue;
        ZetAuto(ctx_.board, digit, c);
    }
    return chars;
}

void Game::Validate() {
    Prompter& say = services_.prompter;
    Board& board = ctx_.board;
    // Clues that clash are named before anything else looks at them.
    const std::string clash = ClueClash(board.CurrentGrid);
    if (!clash.empty()) say.Message(kClashTitle, "The clues clash: " + clash + ".");
    // A puzzle the library holds already would stand twice.
    const auto already = clash.empty()
                             ? FindInLibrary(session_.folders().DataFolder, board.CurrentGrid)
                             : std::nullopt;
    if (already)
        say.Message(kAlreadyTitle, "This sudoku is already in the library: " +
                                       std::string(LevelName(already->level)) + " number " +
                                       std::to_string(already->number) + ".");
    if (!clash.empty() || already || !SudMeetRestrictions(board, &say)) {
        if (say.Ask(kMakeErrorTitle, kAbortMakingText, Buttons::YesNo, Icon::Question) ==
            Answer::Yes)
            EndMaking();
        return;
    }
    board.Puzzle = board.CurrentGrid;
    // The rating is the puzzle's: the marks start as the clues leave them,
    // whatever marks were taken away by hand during the entry.
    board.Candidates.fill(kAllCandidates);
    for (int c = 0; c < 81; ++c)
        if (board.Puzzle[c]) Zet(board, board.Puzzle[c], c);

    // The rating is no play: nobody is asked about patterns, and what the
    // techniques take away stays out of the entry's steps.
    auto confirm = std::move(ctx_.confirmPattern);
    ctx_.confirmPattern = nullptr;
    ctx_.listener = nullptr;
    busy_ = true;
    const bool solved = SolveSudokuGame(ctx_).solved;
    busy_ = false;
    ctx_.listener = this;
    ctx_.confirmPattern = std::move(confirm);

    int level = 0;
    if (solved) {
        // Guessing and the patterns that assume one solution can finish a puzzle
        // that has several: only a puzzle with one solution goes in the library.
        if (Solutions(board.Puzzle, 2).count != 1) {
            say.Beep();
            say.Message(kInvalidTitle, kNotUniqueText);
            return EndMaking();
        }
        level = std::max(ctx_.SolvingLevel, 1);
    } else {
        say.Beep();
        switch (
            say.Ask(kUnsolvedTitle, kUnsolvedText, Buttons::AbortRetryIgnore, Icon::Exclamation)) {
            case Answer::Ignore: break;
            case Answer::Retry:
                RestoreClues();
                commands_.Undo = true;
                commands_.Redo = false;
                return;
            default: return EndMaking();
        }
        // The search starts from the clues, not from what the logic left: a
        // pattern that assumes one solution may have cut solutions away.
        board.CurrentGrid = board.Puzzle;
        if (!UniqueSud(board)) {
            say.Beep();
            say.Message(kInvalidTitle, kNotUniqueText);
            return EndMaking();
        }
        level = kLevelCount;  // Outlaw
    }
    board.Solution = board.CurrentGrid;
    if (!StoreMade(level)) {
        // Both files are as they were; the clues stay for another try.
        RestoreClues();
        return;
    }
    // Where it went, so that Open finds it by its number.
    const std::string stored = "It is stored as " + std::string(LevelName(level)) + " number " +
                               std::to_string(session_.position().PuzzleNumber[level]) + ".";
    if (solved) {
        say.Beep();
        say.Message("Sudoku solved", SolvedMessage(ctx_.SolvingLevel) + "\n" + stored);
    } else {
        say.Message("Sudoku stored", stored);
    }
    session_.position().ChosenLevel = level;
    EndMaking();
}

bool Game::StoreMade(int level) {
    const Board& board = ctx_.board;
    const SudokuRecord sudoku{board.Puzzle, board.Solution, 0, 0};
    SudokuLogRecord log;
    log.SavedCandidates.fill(1022);
    // The steps of the entry, with the zero grid; a longer entry than a record
    // holds keeps none.
    if (moves_.CurrentStep() <= kLogSteps) moves_.WriteTo(log);
    return AddMadePuzzle(session_.folders(), level, session_.position(), sudoku, log,
                         &services_.prompter);
}

void Game::RestoreClues() {
    Board& board = ctx_.board;
    brushes_.ShowAll();
    board.Solution.fill(0);
    board.CurrentGrid = board.Puzzle;
    board.Candidates.fill(kAllCandidates);
    for (int c = 0; c < 81; ++c)
        if (board.Puzzle[c]) Zet(board, board.Puzzle[c], c);
}

void Game::EndMaking() {
    sudTekst_.clear();
    ClearGrid();
    ClearSudokuData();
    DisableGrid();
    makeMode_ = false;
    for (auto& digit : wells_)
        digit.fill(false);
    caption_ = windowTitle_;
    commands_.Open = commands_.Print = commands_.New = true;
    commands_.Save = false;
    commands_.MakeCaption = "Make";
    commands_.Undo = commands_.Redo = commands_.ResetCell = false;
    commands_.Hint = commands_.AutoSolve = commands_.Solution = false;
    commands_.Scan = true;
}

}  // namespace tavi
