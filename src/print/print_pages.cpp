// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/print_pages.h"

#include <QFont>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPrinter>

#include "grid/levels.h"
#include "print/board_painter.h"
#include "print/paper_type.h"

namespace tavi::ui {

namespace {

QRect ToQRect(const Rect& r) { return QRect(r.x, r.y, r.width, r.height); }

// Draws each page of the job: the heading, the puzzles with their number and
// solution, the page number. Font sizes are in millimetres of the sheet, so a
// page looks the same on any printer and in the preview.
class PagePainter : public PrintSink {
  public:
    PagePainter(QPainter& painter, QPrinter* printer, const PageGeometry& geometry,
                const PrintSettings& settings)
        : p_(painter),
          printer_(printer),
          g_(geometry),
          settings_(settings),
          places_(PuzzlePlaces(geometry, PuzzlesPerPage(settings.PrintPuzzlesPerPageIndex))) {}

    void BeginPage(int page) override {
        (void)page;
        if (printer_) {
            if (!p_.isActive()) {
                if (!p_.begin(printer_)) {
                    failed_ = true;
                    return;
                }
                p_.setRenderHint(QPainter::Antialiasing);
            } else {
                printer_->newPage();
            }
        }
        // PrintTitel: the program's name on the left, the level on the right.
        p_.setFont(PaperSansFont(Points(18)));
        p_.setPen(Qt::black);
        const QRect heading = ToQRect(HeadingRect(g_));
        p_.drawText(heading, Qt::AlignLeft | Qt::AlignVCenter,
                    QString::fromLatin1(kPrintHeading.data(), int(kPrintHeading.size())));
        const std::string_view name = LevelName(settings_.PrintLevelIndex + 1);
        p_.drawText(heading, Qt::AlignRight | Qt::AlignVCenter,
                    QString::fromLatin1(name.data(), int(name.size())));
        const int rule = std::max(1, int(g_.PrintUnit * 0.3));
        p_.fillRect(QRect(heading.left(), heading.bottom() + 1, heading.width(), rule), Qt::black);
    }

    void Puzzle(const PrintSlot& slot, const PrintPuzzle& puzzle) override {
        if (failed_) return;
        const PuzzlePlace& place = places_[std::size_t(slot.position) % places_.size()];
        // PrintSudoku: the board, then "# " and the number.
        BoardPicture picture;
        for (int c = 0; c < 81; ++c) {
            picture.digits[c] = puzzle.Grid[c];
            picture.clue[c] = puzzle.Grid[c] != 0 && puzzle.Puzzle[c] != 0;
            if (!puzzle.Grid[c]) picture.marks[c] = puzzle.Marks[c];
        }
        BoardGeometry board;
        board.FitIn(ToQRect(place.board), false);
        PaintBoard(p_, board, picture, BoardLook::Paper());
        p_.setFont(PaperSansFont(Points(12)));
        p_.setPen(Qt::black);
        p_.drawText(ToQRect(place.caption), Qt::AlignLeft | Qt::AlignVCenter,
                    QStringLiteral("# %1").arg(puzzle.Number));
        if (settings_.PrintTeaching) {
            const QRect box = ToQRect(place.teaching);
            const FittedText fitted =
                FitTeachingText(puzzle.Techniques, box, Points(8), Points(5.5), p_.device());
            p_.setFont(fitted.font);
            p_.drawText(box, kTeachingFlags, fitted.text);
        }
        // PrintSolution: the solution in small form.
        const bool known = std::any_of(puzzle.Solution.begin(), puzzle.Solution.end(),
                                       [](auto d) { return d != 0; });
        if (!settings_.PrintSolutions || !known) return;
        BoardPicture solution;
        for (int c = 0; c < 81; ++c) {
            solution.digits[c] = puzzle.Solution[c];
            solution.clue[c] = puzzle.Puzzle[c] != 0;
        }
        BoardLook look = BoardLook::Paper();
        look.userDigit = QColor(70, 70, 70);
        look.boldClues = true;
        BoardGeometry small;
        small.FitIn(ToQRect(place.solution), false);
        PaintBoard(p_, small, solution, look);
    }

    void EndPage(int page) override {
        if (failed_) return;
        // PrintPaginanummer, bottom right of the print area.
        p_.setFont(PaperSansFont(Points(18)));
        p_.setPen(Qt::black);
        p_.drawText(ToQRect(PageNumberRect(g_)), Qt::AlignRight | Qt::AlignBottom,
                    QStringLiteral("Page %1").arg(page));
    }

    bool Failed() const { return failed_; }

  private:
    // A type size in points as units of the sheet.
    int Points(double points) const {
        return std::max(1, int(points * 25.4 / 72.0 * g_.PrintUnit));
    }

    QPainter& p_;
    QPrinter* printer_;
    PageGeometry g_;
    PrintSettings settings_;
    std::vector<PuzzlePlace> places_;
    bool failed_ = false;
};

}  // namespace

bool PrintJobTo(QPrinter& printer, const PrintSettings& settings, const PrintSnapshot& snapshot,
                const std::filesystem::path& dataFolder, PrintResult* result) {
    printer.setFullPage(true);
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPageOrientation(QPageLayout::Portrait);
    QPainter painter;
    const QRect paper = printer.pageLayout().fullRectPixels(printer.resolution());
    PagePainter pages(painter, &printer, GeometryOf(paper.width(), paper.height()), settings);
    const PrintResult r = RunPrintJob(settings, snapshot, dataFolder, pages);
    if (result) *result = r;
    if (pages.Failed()) return false;
    return !painter.isActive() || painter.end();
}

void PaintPreviewPage(QPainter& painter, const QRectF& sheet, const PrintSettings& settings,
                      const PrintSnapshot& snapshot, const std::filesystem::path& dataFolder,
                      int page) {
    // The sheet at ten units to the millimetre, scaled into `sheet`.
    constexpr int kWidth = 2100, kHeight = 2970;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(sheet, Qt::white);
    painter.translate(sheet.topLeft());
    painter.scale(sheet.width() / kWidth, sheet.height() / kHeight);
    PagePainter pages(painter, nullptr, GeometryOf(kWidth, kHeight), settings);
    RunPrintJob(settings, snapshot, dataFolder, pages, page);
    painter.restore();
}

}  // namespace tavi::ui
