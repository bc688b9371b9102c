// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/print_window.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QVBoxLayout>

#include "grid/levels.h"
#include "library/library_files.h"
#include "library/records.h"
#include "print/print_pages.h"
#include "ui/qt_convert.h"

namespace tavi::ui {

namespace {

// PrintVoorbeeld: the first page on a sheet with a soft shadow.
class PreviewSheet : public QWidget {
  public:
    PreviewSheet(const PrintSettings& settings, const PrintSnapshot& snapshot,
                 const std::filesystem::path& folder, QWidget* parent)
        : QWidget(parent), settings_(settings), snapshot_(snapshot), folder_(folder) {
        setObjectName(QStringLiteral("PrintVoorbeeld"));
        setMinimumSize(300, 410);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    }
    QSize sizeHint() const override { return {360, 500}; }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        p.fillRect(rect(), QColor(128, 132, 140));
        // The largest A4 sheet that fits, with room for its shadow.
        const QRectF room = QRectF(rect()).adjusted(14, 14, -18, -18);
        double w = room.width(), h = w * 297.0 / 210.0;
        if (h > room.height()) {
            h = room.height();
            w = h * 210.0 / 297.0;
        }
        const QRectF sheet(room.x() + (room.width() - w) / 2, room.y() + (room.height() - h) / 2, w,
                           h);
        p.fillRect(sheet.translated(4, 4), QColor(70, 72, 78));
        PaintPreviewPage(p, sheet, settings_, snapshot_, folder_);
    }

  private:
    const PrintSettings& settings_;
    const PrintSnapshot& snapshot_;
    const std::filesystem::path& folder_;
};

QGroupBox* Frame(const char* name, const char* caption) {
    auto* box = new QGroupBox(QString::fromLatin1(caption));
    box->setObjectName(QString::fromLatin1(name));
    return box;
}

}  // namespace

PrintSnapshot PrintSnapshotOf(const Game& game) {
    PrintSnapshot s;
    const LibraryPosition& at = game.position();
    if (at.SudokuSolved || at.OpenRecord == 0) return s;
    const Board& board = game.board();
    s.Puzzle = game.sudoku().Puzzle;
    s.Solution = game.sudoku().Solution;
    s.Grid = board.CurrentGrid;
    for (int c = 0; c < 81; ++c)
        for (int d = 1; d <= 9; ++d)
            if (!board.CurrentGrid[c] && game.MarkVisible(d, c)) s.Marks[c] |= DigitBit(d);
    s.Number = at.OpenRecord;
    return s;
}

PrintWindow::PrintWindow(PrintSettings& settings, PrintSnapshot snapshot,
                         std::filesystem::path dataFolder, QWidget* parent)
    : QDialog(parent),
      settings_(settings),
      snapshot_(std::move(snapshot)),
      dataFolder_(std::move(dataFolder)) {
    setObjectName(QStringLiteral("FormPrint"));
    setWindowTitle(ToQString(kPrintTitle));
    tell_ = [this](const QString& title, const QString& text) {
        QMessageBox::warning(this, title, text);
    };
    if (snapshot_.Number == 0) settings_.PrintCurrent = false;  // nothing on the screen

    auto* column = new QVBoxLayout;
    column->setSpacing(10);
    column->addWidget(MakeRange());
    column->addWidget(MakeInclude());
    column->addWidget(MakePages());
    column->addWidget(MakePerPage());
    column->addStretch(1);
    auto* buttons = new QHBoxLayout;
    auto* print = new QPushButton(QStringLiteral("Print"));
    print->setObjectName(QStringLiteral("Command2"));
    print->setDefault(true);
    auto* close = new QPushButton(QStringLiteral("Close"));
    close->setObjectName(QStringLiteral("Command1"));
    connect(print, &QPushButton::clicked, this, &PrintWindow::Print);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    buttons->addStretch(1);
    buttons->addWidget(print);
    buttons->addWidget(close);
    column->addLayout(buttons);

    preview_ = new PreviewSheet(settings_, snapshot_, dataFolder_, this);
    auto* outer = new QHBoxLayout(this);
    outer->setContentsMargins(12, 12, 12, 12);
    outer->setSpacing(14);
    outer->addLayout(column);
    outer->addWidget(preview_, 1);
    Show();
}

QWidget* PrintWindow::MakeRange() {
    QGroupBox* box = Frame("FrameRange", "Range");
    auto* grid = new QGridLayout(box);
    level_ = new QComboBox;
    level_->setObjectName(QStringLiteral("SudokuTypeKeuze"));
    for (const std::string& name : PrintLevelList())
        level_->addItem(ToQString(name));
    grid->addWidget(level_, 0, 0, 1, 3);
    auto* fromLabel = new QLabel(QStringLiteral("From"));
    from_ = new QSpinBox;
    from_->setObjectName(QStringLiteral("TextFrom"));
    from_->setRange(1, 99999);
    to_ = new QLabel;
    to_->setObjectName(QStringLiteral("LabelTo"));
    to_->setMinimumWidth(to_->fontMetrics().horizontalAdvance(QStringLiteral("to 99999")));
    grid->addWidget(fromLabel, 1, 0);
    grid->addWidget(from_, 1, 1);
    grid->addWidget(to_, 1, 2);
    // Said at once when "From" lies beyond the level's puzzles.
    note_ = new QLabel;
    note_->setObjectName(QStringLiteral("LabelRangeNote"));
    note_->setStyleSheet(QStringLiteral("color: #b00020"));
    note_->setWordWrap(true);
    grid->addWidget(note_, 2, 0, 1, 3);
    connect(level_, &QComboBox::currentIndexChanged, this, [this](int i) {
        if (showing_ || i < 0) return;
        settings_.PrintLevelIndex = i;
        Show();
    });
    connect(from_, &QSpinBox::valueChanged, this, [this](int v) {
        if (showing_) return;
        settings_.PrintFrom = v;
        Show();
    });
    return box;
}

QWidget* PrintWindow::MakeInclude() {
    QGroupBox* box = Frame("FrameInclude", "Include");
    auto* column = new QVBoxLayout(box);
    const auto check = [&](const char* name, const char* caption, bool PrintSettings::*field) {
        auto* c = new QCheckBox(QString::fromLatin1(caption));
        c->setObjectName(QString::fromLatin1(name));
        connect(c, &QCheckBox::toggled, this, [this, field](bool on) {
            if (showing_) return;
            settings_.*field = on;
            Show();
        });
        return c;
    };
    current_ = check("CheckCurrent", "On-screen  puzzle", &PrintSettings::PrintCurrent);
    currentState_ = check("CheckCurrentState", "current state", &PrintSettings::PrintCurrentState);
    pencils_ = check("CheckPencils", "Pencilmarks", &PrintSettings::PrintPencils);
    solutions_ = check("CheckSolution", "Solutions", &PrintSettings::PrintSolutions);
    teaching_ = check("CheckTeaching", "Techniques used", &PrintSettings::PrintTeaching);
    pencils_->setToolTip(
        QStringLiteral("Clear it to print the on-screen puzzle without its marks"));
    teaching_->setToolTip(
        QStringLiteral("Under each puzzle, the techniques its solution needs and how often"));
    column->addWidget(current_);
    auto* indented = new QVBoxLayout;
    indented->setContentsMargins(22, 0, 0, 0);
    indented->addWidget(currentState_);
    column->addLayout(indented);
    column->addWidget(pencils_);
    column->addWidget(solutions_);
    column->addWidget(teaching_);
    current_->setEnabled(snapshot_.Number != 0);
    if (snapshot_.Number == 0) current_->setToolTip(QStringLiteral("No game in progress"));
    return box;
}

QWidget* PrintWindow::MakePages() {
    QGroupBox* box = Frame("FramePages", "Pages");
    auto* grid = new QGridLayout(box);
    grid->setVerticalSpacing(2);
    pages_ = new QSlider(Qt::Horizontal);
    pages_->setObjectName(QStringLiteral("PageSlider"));
    pages_->setRange(1, kMaxPrintPages);
    pages_->setPageStep(1);
    pages_->setTickPosition(QSlider::TicksBelow);
    pages_->setTickInterval(1);
    grid->addWidget(pages_, 0, 0, 1, kMaxPrintPages);
    for (int i = 1; i <= kMaxPrintPages; ++i) {
        auto* label = new QLabel(QString::number(i));
        label->setAlignment(Qt::AlignCenter);
        grid->addWidget(label, 1, i - 1);
    }
    connect(pages_, &QSlider::valueChanged, this, [this](int v) {
        if (showing_) return;
        settings_.PrintPages = v;
        Show();
    });
    return box;
}

QWidget* PrintWindow::MakePerPage() {
    QGroupBox* box = Frame("FramePerPage", "Puzzles per page");
    auto* row = new QHBoxLayout(box);
    for (int i = 0; i < 3; ++i) {
        auto* option = new QRadioButton(QString::number(PuzzlesPerPage(i)));
        option->setObjectName(QStringLiteral("OptionAantal_%1").arg(i));
        connect(option, &QRadioButton::toggled, this, [this, i](bool on) {
            if (showing_ || !on) return;
            settings_.PrintPuzzlesPerPageIndex = i;
            Show();
        });
        row->addWidget(option);
        perPage_[i] = option;
    }
    row->addStretch(1);
    return box;
}

void PrintWindow::Show() {
    showing_ = true;
    settings_.PrintPages = PageCount(settings_);
    level_->setCurrentIndex(std::clamp(settings_.PrintLevelIndex, 0, kLevelCount - 1));
    from_->setValue(settings_.PrintFrom);
    current_->setChecked(settings_.PrintCurrent);
    currentState_->setChecked(settings_.PrintCurrentState);
    pencils_->setChecked(settings_.PrintPencils);
    solutions_->setChecked(settings_.PrintSolutions);
    teaching_->setChecked(settings_.PrintTeaching);
    currentState_->setEnabled(settings_.PrintCurrent);
    pencils_->setEnabled(settings_.PrintCurrent);
    pages_->setValue(settings_.PrintPages);
    perPage_[std::clamp(settings_.PrintPuzzlesPerPageIndex, 0, 2)]->setChecked(true);
    to_->setText(ToQString(LabelTo(settings_)));
    const long count = WholeRecords(
        PuzzleFile(dataFolder_, LevelStem(settings_.PrintLevelIndex + 1)), kSudokuRecordSize);
    const std::string note = RangeNote(settings_, count);
    note_->setText(ToQString(note));
    note_->setVisible(!note.empty());
    preview_->update();
    showing_ = false;
}

bool PrintWindow::PrintTo(QPrinter& printer) {
    PrintResult result = PrintResult::Done;
    if (!PrintJobTo(printer, settings_, snapshot_, dataFolder_, &result)) {
        tell_(ToQString(kPrinterErrorTitle), ToQString(kPrinterErrorText));
        return false;
    }
    if (result == PrintResult::ReadFailed) {
        tell_(ToQString(kPrintCanceledTitle), ToQString(kPrintReadErrorText));
        return false;
    }
    return true;
}

void PrintWindow::Print() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setDocName(ToQString(kPrintHeading));
    QPrintDialog dialog(&printer, this);
    // A cancel in the print dialog ends the command without a word.
    if (dialog.exec() != QDialog::Accepted) return;
    PrintTo(printer);
}

}  // namespace tavi::ui
