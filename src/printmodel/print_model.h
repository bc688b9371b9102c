// SPDX-License-Identifier: GPL-3.0-or-later
// What a print job is, apart from the drawing: the settings of the print window,
// the range it shows, the page in A4 measure with the places of the puzzles on
// it, which puzzle goes where, and the puzzles read from the library with their
// marks. The shell's print layer draws what this plans.
#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "grid/board.h"

namespace tavi {

inline constexpr std::string_view kPrintTitle = "Tavi Sudoku - Print";
inline constexpr std::string_view kPrintHeading = "Tavi-Sudoku";
inline constexpr std::string_view kPrintCanceledTitle = "Print canceled";
inline constexpr std::string_view kPrintReadErrorText =
    "An error occurred while trying to read sudokus from file";
inline constexpr std::string_view kPrinterErrorTitle = "Printer error";
inline constexpr std::string_view kPrinterErrorText =
    "An error occured while attempting to communicate with the standard printer, please check "
    "the availability and status of your printer.";
inline constexpr int kMaxPrintPages = 10;

// The print window's settings. They outlive the window until the program ends.
struct PrintSettings {
    int PrintPuzzlesPerPageIndex = 1;  // 0, 1, 2: one, two or four to a page
    int PrintPages = 0;                // 1 to 10; anything else counts as 1
    bool PrintCurrent = false;         // the on-screen puzzle takes the first place
    bool PrintCurrentState = false;    // ... as it stands now, with its marks
    bool PrintPencils = true;          // ... with its marks (else the digits alone)
    bool PrintSolutions = true;
    int PrintFrom = 1;
    int PrintLevelIndex = 0;     // level - 1; the list ends with "Outlaw!"
    bool PrintTeaching = false;  // under each puzzle, the techniques its solution needs
};

int PuzzlesPerPage(int perPageIndex);
int PageCount(const PrintSettings& settings);
// The text of LabelTo: "to " and the number of the last puzzle of the range,
// one less when the on-screen puzzle takes the first place.
std::string LabelTo(const PrintSettings& settings);
// The names of the level list, the last one "Outlaw!".
std::array<std::string, 9> PrintLevelList();
// What the window says at once when "From" lies beyond the `count` puzzles of
// the chosen level ("Medium holds 300 puzzles"); empty when it lies inside.
std::string RangeNote(const PrintSettings& settings, long count);

// The puzzle on the screen, handed over as the window opens: the puzzle, its
// solution, the digits now on the board and the marks that show. Number 0 when
// no game is in progress: there is then nothing on the screen to print.
struct PrintSnapshot {
    Digits Puzzle{};
    Digits Solution{};
    Digits Grid{};
    std::array<CandidateMask, 81> Marks{};
    int Number = 0;
};

// Page geometry in the printer's units, from the size of an A4 sheet in them.
struct Rect {
    int x = 0, y = 0, width = 0, height = 0;
    int right() const { return x + width; }
    int bottom() const { return y + height; }
    bool operator==(const Rect&) const = default;
};

struct PageGeometry {
    float PrintUnit = 0;      // printer units per millimetre
    int PrintCentimetre = 0;  // PrintUnit * 10
    int PrintMargin = 0;      // 25 mm
    Rect area;                // the print area inside the margins
};
PageGeometry GeometryOf(int printerWidth, int printerHeight);

// Where one puzzle lies on its page: the board, the line "# " and the number,
// and the small solution.
struct PuzzlePlace {
    Rect board;
    Rect caption;
    Rect solution;
    Rect teaching;  // the techniques of a teaching print
};
// The places of the n puzzles of a page (n = 1, 2 or 4): one the width of the
// print area, two of 10 cm above each other, four of 7 cm in a 2 x 2 array. The
// heading lies above them all, the page number below.
std::vector<PuzzlePlace> PuzzlePlaces(const PageGeometry& geometry, int perPage);
Rect HeadingRect(const PageGeometry& geometry);
Rect PageNumberRect(const PageGeometry& geometry);

// One place of the job: the on-screen puzzle or a record of the level.
struct PrintSlot {
    int page = 1;      // 1 ..
    int position = 0;  // 0 .. per page - 1
    bool onScreen = false;
    int number = 0;  // the record number, or the on-screen puzzle's
};
// The places in printing order. The on-screen puzzle takes the first place only
// when it is asked for and there is one.
std::vector<PrintSlot> PlanJob(const PrintSettings& settings, const PrintSnapshot& snapshot);

// A technique by its name in the Solving Techniques Manager, and how often the
// solution uses it.
struct TechniqueCount {
    std::string name;
    int count = 0;
    bool operator==(const TechniqueCount&) const = default;
};
// The techniques the logical solution of `puzzle` takes, in the order of their
// first use, with the number of times each succeeds (the six subsets count as
// one technique, as the manager lists them). Empty when logic alone can't solve
// it.
std::vector<TechniqueCount> TechniquesNeeded(const Digits& puzzle);
// "Techniques: Naked Single x 30, Hidden Single x 12, ..." or a word that logic
// alone fails. With `keep` below the list's size only the first `keep` are
// named, and "+ N more" ends the text.
std::string TeachingText(const std::vector<TechniqueCount>& techniques, int keep = -1);

// A puzzle as it will be printed.
struct PrintPuzzle {
    Digits Grid{};                          // the digits to print
    Digits Puzzle{};                        // which of them are clues
    Digits Solution{};                      // all zero when unknown
    std::array<CandidateMask, 81> Marks{};  // the pencil marks to print
    int Number = 0;
    std::vector<TechniqueCount> Techniques;  // for a teaching print
};

// What goes on the paper for one slot. The on-screen puzzle in its current
// state keeps its own digits, and its marks when PrintPencils asks for them; any
// other puzzle is printed with its clues and the marks SetupCandidates computes.
// Nothing when the record can't be read.
std::optional<PrintPuzzle> PuzzleFor(const PrintSlot& slot, const PrintSettings& settings,
                                     const PrintSnapshot& snapshot,
                                     const std::filesystem::path& dataFolder);

// The surface a job is printed on, page by page.
class PrintSink {
  public:
    virtual ~PrintSink() = default;
    virtual void BeginPage(int page) = 0;  // after the first: a new sheet
    virtual void Puzzle(const PrintSlot& slot, const PrintPuzzle& puzzle) = 0;
    virtual void EndPage(int page) = 0;  // the page number goes on
};

enum class PrintResult { Done, ReadFailed };

// The job of the print command: for each page the heading, its puzzles and the
// page number. A record that can't be read ends the job at once; the pages so
// far stand. `onlyPage` limits the work to one page (the preview).
PrintResult RunPrintJob(const PrintSettings& settings, const PrintSnapshot& snapshot,
                        const std::filesystem::path& dataFolder, PrintSink& sink, int onlyPage = 0);

}  // namespace tavi
