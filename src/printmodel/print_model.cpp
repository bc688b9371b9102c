// SPDX-License-Identifier: GPL-3.0-or-later
#include "printmodel/print_model.h"

#include <algorithm>

#include "grid/candidates.h"
#include "grid/levels.h"
#include "library/library_files.h"
#include "settings/technique_catalog.h"
#include "solver/ladder.h"
#include "solver/solve_context.h"

namespace tavi {

int PuzzlesPerPage(int perPageIndex) {
    switch (perPageIndex) {
        case 0: return 1;
        case 2: return 4;
        default: return 2;
    }
}

int PageCount(const PrintSettings& settings) {
    const int pages = settings.PrintPages;
    return pages >= 1 && pages <= kMaxPrintPages ? pages : 1;
}

std::string LabelTo(const PrintSettings& settings) {
    int last = settings.PrintFrom +
               PageCount(settings) * PuzzlesPerPage(settings.PrintPuzzlesPerPageIndex) - 1;
    if (settings.PrintCurrent) --last;
    return "to " + std::to_string(last);
}

std::array<std::string, 9> PrintLevelList() {
    std::array<std::string, 9> names;
    for (int level = 1; level <= kLevelCount; ++level)
        names[level - 1] = std::string(LevelName(level));
    names[kOutlaw - 1] += "!";
    return names;
}

std::string RangeNote(const PrintSettings& settings, long count) {
    if (settings.PrintFrom <= count) return {};
    const std::string level(LevelName(settings.PrintLevelIndex + 1));
    if (count <= 0) return "There are no " + level + " puzzles";
    return level + " holds " + std::to_string(count) + (count == 1 ? " puzzle" : " puzzles");
}

PageGeometry GeometryOf(int printerWidth, int printerHeight) {
    PageGeometry g;
    g.PrintUnit = (float(printerWidth) / 210.0f + float(printerHeight) / 297.0f) / 2.0f;
    g.PrintCentimetre = int(g.PrintUnit * 10);
    g.PrintMargin = int(g.PrintUnit * 25);
    g.area = {g.PrintMargin, g.PrintMargin, printerWidth - 2 * g.PrintMargin,
              printerHeight - 2 * g.PrintMargin};
    return g;
}

Rect HeadingRect(const PageGeometry& g) {
    return {g.area.x, g.area.y, g.area.width, g.PrintCentimetre};
}

Rect PageNumberRect(const PageGeometry& g) {
    return {g.area.x, g.area.bottom() - g.PrintCentimetre, g.area.width, g.PrintCentimetre};
}

std::vector<PuzzlePlace> PuzzlePlaces(const PageGeometry& g, int perPage) {
    const int cm = g.PrintCentimetre;
    const auto mm = [&](double millimetres) { return int(g.PrintUnit * millimetres); };
    const int top = g.area.y + mm(15);  // below the heading
    std::vector<PuzzlePlace> places;
    const auto place = [&](int x, int y, int side, int solutionSide) {
        PuzzlePlace p;
        p.board = {x, y, side, side};
        p.caption = {x, y + side + mm(1), side / 2, mm(8)};
        p.solution = {x + side - solutionSide, y + side + mm(4), solutionSide, solutionSide};
        p.teaching = {x, p.caption.bottom(), side - solutionSide - mm(4), solutionSide - mm(5)};
        places.push_back(p);
    };
    if (perPage == 1) {
        place(g.area.x, top, g.area.width, mm(45));
    } else if (perPage == 2) {
        // The board on the left, its solution beside it at the right edge.
        for (int i = 0; i < 2; ++i) {
            const int y = top + i * 11 * cm;
            PuzzlePlace p;
            p.board = {g.area.x, y, 10 * cm, 10 * cm};
            p.caption = {g.area.x, y + 10 * cm + mm(1), 5 * cm, mm(8)};
            const int s = mm(45);
            p.solution = {g.area.right() - s, y + 10 * cm - s, s, s};
            p.teaching = {p.solution.x, y, s, p.solution.y - y - mm(4)};
            places.push_back(p);
        }
    } else {
        const int gap = 2 * cm;
        const int left = g.area.x + std::max(0, (g.area.width - 2 * 7 * cm - gap) / 2);
        for (int i = 0; i < 4; ++i)
            place(left + (i % 2) * (7 * cm + gap), top + (i / 2) * 11 * cm, 7 * cm, 3 * cm);
    }
    return places;
}

std::vector<PrintSlot> PlanJob(const PrintSettings& settings, const PrintSnapshot& snapshot) {
    const int perPage = PuzzlesPerPage(settings.PrintPuzzlesPerPageIndex);
    const bool onScreen = settings.PrintCurrent && snapshot.Number != 0;
    std::vector<PrintSlot> slots;
    int next = settings.PrintFrom;
    for (int page = 1; page <= PageCount(settings); ++page) {
        for (int q = 0; q < perPage; ++q) {
            if (page == 1 && q == 0 && onScreen)
                slots.push_back({page, q, true, snapshot.Number});
            else
                slots.push_back({page, q, false, next++});
        }
    }
    return slots;
}

namespace {

std::optional<PrintPuzzle> PuzzleWithoutTechniques(const PrintSlot& slot,
                                                   const PrintSettings& settings,
                                                   const PrintSnapshot& snapshot,
                                                   const std::filesystem::path& dataFolder) {
    PrintPuzzle out;
    out.Number = slot.number;
    Board board;
    if (slot.onScreen) {
        out.Puzzle = snapshot.Puzzle;
        out.Solution = snapshot.Solution;
        if (settings.PrintCurrentState) {
            out.Grid = snapshot.Grid;
            if (settings.PrintPencils) out.Marks = snapshot.Marks;
            return out;
        }
        board.Puzzle = snapshot.Puzzle;
    } else {
        const int level = settings.PrintLevelIndex + 1;
        SudokuRecord record;
        if (!IsLevel(level) || slot.number < 1 ||
            !ReadSudokuRecord(PuzzleFile(dataFolder, LevelStem(level)), slot.number, record))
            return std::nullopt;
        out.Puzzle = board.Puzzle = record.Puzzle;
        out.Solution = record.Solution;
    }
    SetupCandidates(board);
    out.Grid = board.CurrentGrid;
    out.Marks = board.Candidates;
    return out;
}

}  // namespace

std::optional<PrintPuzzle> PuzzleFor(const PrintSlot& slot, const PrintSettings& settings,
                                     const PrintSnapshot& snapshot,
                                     const std::filesystem::path& dataFolder) {
    auto out = PuzzleWithoutTechniques(slot, settings, snapshot, dataFolder);
    if (out && settings.PrintTeaching) out->Techniques = TechniquesNeeded(out->Puzzle);
    return out;
}

std::vector<TechniqueCount> TechniquesNeeded(const Digits& puzzle) {
    SolveContext ctx(Side::Workbench);
    ctx.board = BoardFromPuzzle(puzzle);
    std::vector<TechniqueCount> counts;
    WorkbenchRun run;
    run.observer.hit = [&](const Rung& rung) {
        const std::string name(TechniqueCaption(rung.number));
        auto it = std::find_if(counts.begin(), counts.end(),
                               [&](const TechniqueCount& t) { return t.name == name; });
        if (it == counts.end())
            counts.push_back({name, 1});
        else
            ++it->count;
    };
    if (GivensClash(puzzle) || !SolveSudoku(ctx, run)) return {};
    return counts;
}

std::string TeachingText(const std::vector<TechniqueCount>& techniques, int keep) {
    if (techniques.empty()) return "Techniques: logic alone does not solve this puzzle";
    const std::size_t named =
        keep < 0 ? techniques.size() : std::min(techniques.size(), std::size_t(keep));
    std::string text = "Techniques: ";
    for (std::size_t i = 0; i < named; ++i) {
        if (i) text += ", ";
        text += techniques[i].name + " x " + std::to_string(techniques[i].count);
    }
    if (named < techniques.size())
        text += (named ? ", + " : "+ ") + std::to_string(techniques.size() - named) + " more";
    return text;
}

PrintResult RunPrintJob(const PrintSettings& settings, const PrintSnapshot& snapshot,
                        const std::filesystem::path& dataFolder, PrintSink& sink, int onlyPage) {
    const std::vector<PrintSlot> slots = PlanJob(settings, snapshot);
    for (int page = 1; page <= PageCount(settings); ++page) {
        if (onlyPage && page != onlyPage) continue;
        sink.BeginPage(page);
        for (const PrintSlot& slot : slots) {
            if (slot.page != page) continue;
            const auto puzzle = PuzzleFor(slot, settings, snapshot, dataFolder);
            if (!puzzle) return PrintResult::ReadFailed;
            sink.Puzzle(slot, *puzzle);
        }
        sink.EndPage(page);
    }
    return PrintResult::Done;
}

}  // namespace tavi
