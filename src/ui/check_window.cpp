// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/check_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QFormLayout>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QPainter>
#include <QProgressBar>
#include <QSpinBox>
#include <QTableWidget>
#include <QVBoxLayout>

#include "solver/ladder.h"
#include "ui/qt_convert.h"
#include "ui/release_controls.h"
#include "ui/workbench_score.h"
#include "workbench/rating_pool.h"

namespace tavi::ui {

TextBoard::TextBoard(std::function<std::string(int)> text, QWidget* parent)
    : QWidget(parent), text_(std::move(text)) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void TextBoard::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const qreal side = std::min(width(), height()) - 2;
    const qreal cell = side / 9, x0 = (width() - side) / 2, y0 = (height() - side) / 2;
    p.fillRect(QRectF(x0, y0, side, side), palette().base());
    QFont f = font();
    f.setPixelSize(std::max(8, int(cell * 0.6)));
    p.setFont(f);
    p.setPen(palette().text().color());
    for (int c = 0; c < 81; ++c)
        p.drawText(QRectF(x0 + (c % 9) * cell, y0 + (c / 9) * cell, cell, cell), Qt::AlignCenter,
                   QString::fromStdString(text_(c)));
    for (int i = 0; i <= 9; ++i) {
        p.setPen(QPen(palette().text().color(), i % 3 == 0 ? 2.0 : 0.6));
        p.drawLine(QPointF(x0 + i * cell, y0), QPointF(x0 + i * cell, y0 + side));
        p.drawLine(QPointF(x0, y0 + i * cell), QPointF(x0 + side, y0 + i * cell));
    }
}

ReleaseButton* CheckWindow::Command(const char* name, const QString& caption) {
    auto* b = new ReleaseButton(caption, this);
    b->setObjectName(QLatin1String(name));
    b->setAutoDefault(false);
    return b;
}

CheckWindow::CheckWindow(std::filesystem::path dataFolder, const TechniqueOrder* order,
                         Prompter* prompter, QWidget* parent)
    : QDialog(parent),
      prompter_(this),
      bench_(prompter ? *prompter : prompter_, std::move(dataFolder)) {
    setObjectName(QStringLiteral("FormCheck"));
    bench_.SetOrder(order);
    bench_.SetThreads(AllCoresCount());
    bench_.SetYield([] { QApplication::processEvents(); });
    bench_.SetEvents([this](Changes c) { Show(c); });
    // The window's own report of an import, with the full list a button away;
    // a scripted prompter (the tests) hears the plain message.
    if (!prompter) bench_.SetImportReport([this](const ImportReport& r) { ShowImportReport(r); });

    auto* levels = new QGridLayout;
    for (int level = 1; level <= kLevelCount; ++level) {
        auto* b = new QPushButton(QString::fromUtf8(LevelName(level).data()), this);
        b->setObjectName(QStringLiteral("Command1_%1").arg(level));
        b->setCheckable(true);  // the library that is open stands pressed
        b->setAutoDefault(false);
        connect(b, &QPushButton::clicked, this, [this, level] { bench_.Command1(level); });
        levels->addWidget(b, (level - 1) / 5, (level - 1) % 5);
        levels_[level] = b;
    }
    number_ = new QLabel(this);
    number_->setObjectName(QStringLiteral("LabelNumber"));
    number_->setAlignment(Qt::AlignCenter);
    levels->addWidget(number_, 1, 4);

    first_ = Command("CommandFirst", QStringLiteral("|<"));
    previous_ = Command("CommandPrevious", QStringLiteral("<"));
    next_ = Command("CommandNext", QStringLiteral(">"));
    last_ = Command("CommandLast", QStringLiteral(">|"));
    goTo_ = Command("CommandGoTo", QStringLiteral("Goto number"));
    auto* navigation = new QHBoxLayout;
    for (auto* b : {first_, previous_, next_, last_, goTo_})
        navigation->addWidget(b);
    auto left = [](auto f) {
        return [f](MouseButton button, bool inside) {
            if (button == MouseButton::Left && inside) f();
        };
    };
    connect(first_, &ReleaseButton::Released, this, left([this] { bench_.CommandFirst(); }));
    connect(previous_, &ReleaseButton::Released, this, left([this] { bench_.CommandPrevious(); }));
    connect(next_, &ReleaseButton::Released, this, left([this] { bench_.CommandNext(); }));
    connect(last_, &ReleaseButton::Released, this, left([this] { bench_.CommandLast(); }));
    connect(goTo_, &ReleaseButton::Released, this, left([this] { bench_.CommandGoTo(); }));

    board1_ = new TextBoard([this](int c) { return bench_.Label1(c); }, this);
    board1_->setObjectName(QStringLiteral("Label1"));
    board2_ = new TextBoard([this](int c) { return bench_.Label2(c); }, this);
    board2_->setObjectName(QStringLiteral("Label2"));
    auto* boards = new QHBoxLayout;
    boards->addWidget(board1_);
    boards->addWidget(board2_);

    solve_ = Command("CommandSolve", QStringLiteral("Solve"));
    checkAll_ = Command("CommandCheckAll", QStringLiteral("Check All"));
    checkSome_ = Command("CommandCheckSome", QStringLiteral("Check Some"));
    delete_ = Command("CommandDelete", QStringLiteral("Delete"));
    duplicates_ = Command("CommandRemoveDuplicates", QStringLiteral("Remove Duplicates"));
    abort_ = Command("CommandAbort", QStringLiteral("Abort"));
    import_ = Command("CommandImport", QStringLiteral("Import..."));
    export_ = Command("CommandExport", QStringLiteral("Export..."));
    close_ = Command("CommandClose", QStringLiteral("Close"));
    auto* close = close_;
    const QString brute = QStringLiteral("Right button: by brute force");
    for (auto* b : {solve_, checkAll_, checkSome_})
        b->setToolTip(brute);
    // The right button means brute force, and counts only released inside.
    auto both = [](auto f) {
        return [f](MouseButton button, bool inside) {
            if (button == MouseButton::Left && inside) f(false, true);
            if (button == MouseButton::Right) f(true, inside);
        };
    };
    connect(solve_, &ReleaseButton::Released, this,
            both([this](bool r, bool in) { bench_.CommandSolve(r, in); }));
    connect(checkAll_, &ReleaseButton::Released, this,
            both([this](bool r, bool in) { bench_.CommandCheckAll(r, in); }));
    connect(checkSome_, &ReleaseButton::Released, this,
            both([this](bool r, bool in) { bench_.CommandCheckSome(r, in); }));
    connect(delete_, &ReleaseButton::Released, this, left([this] { bench_.CommandDelete(); }));
    connect(duplicates_, &ReleaseButton::Released, this,
            left([this] { bench_.CommandRemoveDuplicates(); }));
    connect(abort_, &ReleaseButton::Released, this, left([this] { bench_.CommandAbort(); }));
    connect(import_, &ReleaseButton::Released, this, left([this] {
                if (bench_.BatchRunning()) return;
                const QString file = QFileDialog::getOpenFileName(
                    this, QStringLiteral("Import sudokus"), QString(),
                    QStringLiteral("Puzzle files (*.txt *.sdm *.ss *.sdk);;All files (*)"));
                if (!file.isEmpty())
                    bench_.CommandImport(std::filesystem::path(file.toStdString()));
            }));
    connect(export_, &ReleaseButton::Released, this, left([this] { Export(); }));
    connect(close, &ReleaseButton::Released, this, left([this] {
                if (!bench_.BatchRunning()) accept();
            }));
    auto* commands = new QGridLayout;
    int i = 0;
    for (auto* b :
         {solve_, checkAll_, checkSome_, delete_, duplicates_, import_, export_, abort_, close})
        commands->addWidget(b, i / 5, i % 5), ++i;

    picture1_ = new QFrame(this);
    picture1_->setObjectName(QStringLiteral("Picture1"));
    picture1_->setFrameShape(QFrame::StyledPanel);
    auto* frame = new QVBoxLayout(picture1_);
    auto label = [&](const char* name) {
        auto* l = new QLabel(picture1_);
        l->setObjectName(QLatin1String(name));
        l->setWordWrap(true);
        frame->addWidget(l);
        return l;
    };
    label6_ = label("Label6");
    QFont bold = label6_->font();
    bold.setBold(true);
    label6_->setFont(bold);
    label4_ = label("Label4");
    label5_ = label("Label5");
    importProgress_ = label("LabelImportProgress");
    bar1_ = new QProgressBar(picture1_);
    bar1_->setObjectName(QStringLiteral("ProgressBar1"));
    frame->addWidget(bar1_);
    solvingLevel_ = label("LabelSolvingLevel");
    bar2_ = new QProgressBar(picture1_);
    bar2_->setObjectName(QStringLiteral("ProgressBar2"));
    bar2_->setRange(0, 8);
    bar2_->setFormat(QStringLiteral("%v"));
    frame->addWidget(bar2_);

    hardest_ = new QTableWidget(0, 2, this);
    hardest_->setObjectName(QStringLiteral("TableHardest"));
    hardest_->setHorizontalHeaderLabels(
        {QStringLiteral("Hardest technique"), QStringLiteral("Puzzles")});
    hardest_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    hardest_->horizontalHeader()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    hardest_->verticalHeader()->hide();
    hardest_->setEditTriggers(QAbstractItemView::NoEditTriggers);

    // Below the commands, in a space kept for them whether shown or not, so that
    // no button moves: the progress frame during a run, else why the shown record
    // can't be read and the table of the last check.
    below_ = new QWidget(this);
    auto* belowLayout = new QVBoxLayout(below_);
    belowLayout->setContentsMargins(0, 0, 0, 0);
    // A record that can't be read is shown empty; this line says which and why.
    damaged_ = new QLabel(below_);
    damaged_->setObjectName(QStringLiteral("LabelDamaged"));
    damaged_->setWordWrap(true);
    damaged_->setStyleSheet(QStringLiteral("color: #b00020;"));
    belowLayout->addWidget(damaged_);
    belowLayout->addWidget(picture1_);
    belowLayout->addWidget(hardest_);
    belowLayout->addStretch(1);
    below_->setFixedHeight(std::max(picture1_->sizeHint().height(), 190));

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(levels);
    layout->addLayout(navigation);
    layout->addLayout(boards, 1);
    layout->addLayout(commands);
    layout->addWidget(below_);
    resize(640, 700);
    Refresh();
}

void CheckWindow::Refresh() { Show(Changes{~0u}); }

void CheckWindow::Show(Changes c) {
    if (c.Has(kWorkbenchTitle)) setWindowTitle(QString::fromStdString(bench_.Caption()));
    const bool idle = !bench_.BatchRunning();
    if (c.Has(kWorkbenchCommands)) {
        const WorkbenchCommands& commands = bench_.commands();
        for (int level = 1; level <= kLevelCount; ++level) {
            levels_[level]->setEnabled(idle);
            levels_[level]->setChecked(level == bench_.WorkLevel());
        }
        first_->setEnabled(idle && commands.First);
        previous_->setEnabled(idle && commands.Previous);
        next_->setEnabled(idle && commands.Next);
        last_->setEnabled(idle && commands.Last);
        goTo_->setEnabled(idle && commands.GoTo);
        solve_->setEnabled(idle && commands.Solve);
        checkAll_->setEnabled(idle && commands.CheckAll);
        checkSome_->setEnabled(idle && commands.CheckSome);
        delete_->setEnabled(idle && commands.Delete);
        duplicates_->setEnabled(idle && commands.RemoveDuplicates);
        import_->setEnabled(idle);
        export_->setEnabled(idle && IsLevel(bench_.WorkLevel()) && bench_.RecordCount() > 0);
        close_->setEnabled(idle);
        abort_->setEnabled(!idle);
    }
    if (c.Has(kWorkbenchCommands | kWorkbenchRecord)) {
        const int level = bench_.WorkLevel();
        QString number;
        if (IsLevel(level) && bench_.RecordCount() > 0) {
            number = QStringLiteral("%1 of %2")
                         .arg(bench_.CurrentNumber(level))
                         .arg(bench_.RecordCount());
            if (const QString score = WorkbenchScoreText(bench_.record().Puzzle, !idle);
                !score.isEmpty())
                number += QLatin1Char('\n') + score;
        }
        number_->setText(number);
    }
    if (c.Has(kWorkbenchRecord)) {
        board1_->update();
        board2_->update();
    }

    const WorkbenchProgress& p = bench_.progress();
    if (c.Has(kWorkbenchProgress)) {
        picture1_->setVisible(p.Shown);
        label4_->setText(QString::fromStdString(p.Label4));
        label5_->setText(QString::fromStdString(p.Label5));
        label5_->setVisible(!p.Label5.empty());
        label6_->setText(QString::fromStdString(p.Label6));
        importProgress_->setText(QString::fromStdString(p.LabelImportProgress));
        solvingLevel_->setText(QString::fromStdString(p.LabelSolvingLevel));
        bar1_->setRange(0, int(std::max<long>(p.Bar1Max, 1)));
        bar1_->setValue(int(p.Bar1));
        bar2_->setValue(p.Bar2);
    }
    if (!c.Has(kWorkbenchReport | kWorkbenchProgress)) return;
    // Below the progress frame, and hidden while it shows: why the record can't
    // be read, and how many puzzles of the last check needed each technique as
    // their hardest.
    damaged_->setText(QString::fromStdString(bench_.Damaged()));
    damaged_->setVisible(!bench_.Damaged().empty() && !p.Shown);
    if (c.Has(kWorkbenchReport)) {
        const HardestCounts& hardest = bench_.Hardest();
        hardest_->setRowCount(0);
        for (int t = 0; t < kTechniqueCount; ++t) {
            if (!hardest[t]) continue;
            const int row = hardest_->rowCount();
            hardest_->insertRow(row);
            // The technique as the manager names it (the six subsets are one row there).
            const std::string_view name = TechniqueCaption(t);
            hardest_->setItem(
                row, 0, new QTableWidgetItem(QString::fromUtf8(name.data(), int(name.size()))));
            hardest_->setItem(row, 1, new QTableWidgetItem(QString::number(hardest[t])));
        }
    }
    hardest_->setVisible(hardest_->rowCount() > 0 && !p.Shown);
    hardest_->setMaximumHeight(bench_.Damaged().empty() || p.Shown ? 180 : 120);
}

void CheckWindow::reject() {
    if (bench_.BatchRunning()) return bench_.CommandAbort();
    QDialog::reject();
}

void CheckWindow::closeEvent(QCloseEvent* e) {
    if (bench_.BatchRunning()) return e->ignore();
    QDialog::closeEvent(e);
}

void CheckWindow::ShowImportReport(const ImportReport& report) {
    QMessageBox box(QMessageBox::Information, QStringLiteral("Sudoku import report"),
                    QString::fromStdString(report.Text()), QMessageBox::Ok, this);
    QPushButton* save = nullptr;
    if (report.Cut() || !report.FullList().empty())
        save = box.addButton(QStringLiteral("Save full list..."), QMessageBox::ActionRole);
    box.exec();
    if (box.clickedButton() != save || !save) return;
    const QString file = QFileDialog::getSaveFileName(
        this, QStringLiteral("Save the full list"), QStringLiteral("import-report.txt"),
        QStringLiteral("Text files (*.txt);;All files (*)"));
    if (file.isEmpty()) return;
    QFile out(file);
    const QByteArray text = QByteArray::fromStdString(report.FullList());
    if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate) || out.write(text) != text.size())
        QMessageBox::warning(this, QStringLiteral("File Error"),
                             QStringLiteral("Can't write ") + file);
}

// Which records of the shown level, and where to: the whole level unless a
// range is asked for.
void CheckWindow::Export() {
    const int level = bench_.WorkLevel();
    if (bench_.BatchRunning() || !IsLevel(level) || bench_.RecordCount() < 1) return;
    QDialog ask(this);
    ask.setWindowTitle(QStringLiteral("Export %1 sudokus").arg(ToQString(LevelName(level))));
    auto* from = new QSpinBox(&ask);
    auto* to = new QSpinBox(&ask);
    from->setObjectName(QStringLiteral("ExportFrom"));
    to->setObjectName(QStringLiteral("ExportTo"));
    for (auto* box : {from, to})
        box->setRange(1, int(std::min<long>(bench_.RecordCount(), 1000000)));
    from->setValue(1);
    to->setValue(int(bench_.RecordCount()));
    auto* form = new QFormLayout(&ask);
    form->addRow(new QLabel(QStringLiteral("One puzzle a line, with its level; '.' for an empty "
                                           "cell."),
                            &ask));
    form->addRow(QStringLiteral("From number"), from);
    form->addRow(QStringLiteral("To number"), to);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &ask);
    connect(buttons, &QDialogButtonBox::accepted, &ask, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, &ask, &QDialog::reject);
    form->addRow(buttons);
    if (ask.exec() != QDialog::Accepted) return;
    const QString file =
        QFileDialog::getSaveFileName(this, QStringLiteral("Export sudokus"),
                                     QStringLiteral("%1.txt").arg(ToQString(LevelName(level))),
                                     QStringLiteral("Text files (*.txt);;All files (*)"));
    if (file.isEmpty()) return;
    bench_.CommandExport(std::filesystem::path(file.toStdU16String()),
                         std::min(from->value(), to->value()),
                         std::max(from->value(), to->value()));
}

}  // namespace tavi::ui
