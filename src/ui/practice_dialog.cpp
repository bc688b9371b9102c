// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/practice_dialog.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <chrono>
#include <random>
#include <thread>

#include "settings/technique_manager.h"
#include "ui/practice_indexer.h"
#include "ui/qt_convert.h"

namespace tavi::ui {

namespace {

constexpr const char* kTitle = "Practise a Technique";

}  // namespace

PracticeDialog::PracticeDialog(PracticeIndexer& indexer, std::filesystem::path dataFolder,
                               QWidget* parent)
    : QDialog(parent), indexer_(indexer), folder_(std::move(dataFolder)) {
    setObjectName(QStringLiteral("FormPractise"));
    setWindowTitle(QLatin1String(kTitle));
    auto* column = new QVBoxLayout(this);
    column->setSpacing(8);
    auto* intro = new QLabel(
        QStringLiteral("Choose a technique: the next puzzle of the library that needs it as "
                       "its hardest step opens as a normal game, and the first hint that "
                       "reaches it says so."),
        this);
    intro->setWordWrap(true);
    column->addWidget(intro);

    list_ = new QTreeWidget(this);
    list_->setObjectName(QStringLiteral("ListTechniques"));
    list_->setColumnCount(2);
    list_->setHeaderLabels({QStringLiteral("Technique"), QStringLiteral("Puzzles")});
    list_->setRootIsDecorated(false);
    list_->setUniformRowHeights(true);
    list_->setAlternatingRowColors(true);
    list_->header()->setStretchLastSection(false);
    list_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    list_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    for (int t = kFirstPractised; t <= kLastPractised; ++t) {
        auto* item = new QTreeWidgetItem(list_);
        item->setText(0, ToQString(kTechniqueRows[std::size_t(t)].caption));
        item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    }
    list_->setCurrentItem(list_->topLevelItem(0));
    list_->setMinimumSize(360, list_->sizeHintForRow(0) * 20);
    column->addWidget(list_, 1);

    status_ = new QLabel(this);
    status_->setObjectName(QStringLiteral("LabelPractise"));
    column->addWidget(status_);

    auto* buttons = new QDialogButtonBox(this);
    practise_ = buttons->addButton(QStringLiteral("Practise"), QDialogButtonBox::AcceptRole);
    practise_->setObjectName(QStringLiteral("CommandPractise"));
    practise_->setDefault(true);
    buttons->addButton(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::accepted, this, &PracticeDialog::Practise);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(list_, &QTreeWidget::itemDoubleClicked, this, [this] { Practise(); });
    column->addWidget(buttons);

    // A fresh index is read at once; a changed library is rated in the background
    // while the window waits.
    indexer_.Refresh();
    poll_ = new QTimer(this);
    poll_->setInterval(100);
    connect(poll_, &QTimer::timeout, this, &PracticeDialog::ShowCounts);
    poll_->start();
    ShowCounts();
}

void PracticeDialog::ShowCounts() {
    const bool ready = !indexer_.Running() && indexer_.Library(library_);
    practise_->setEnabled(ready);
    if (!ready) {
        status_->setText(QStringLiteral("Counting the puzzles of the library..."));
        return;
    }
    poll_->stop();
    choices_ = PracticeChoices(library_);
    long total = 0;
    for (std::size_t i = 0; i < choices_.size(); ++i) {
        list_->topLevelItem(int(i))->setText(1, QString::number(choices_[i].puzzles));
        total += choices_[i].puzzles;
    }
    status_->setText(
        QStringLiteral("%1 puzzles of the library need one of these techniques.").arg(total));
}

void PracticeDialog::Practise() {
    const int row = list_->indexOfTopLevelItem(list_->currentItem());
    if (row < 0 || std::size_t(row) >= choices_.size() || !practise_->isEnabled()) return;
    const PracticeChoice& choice = choices_[std::size_t(row)];
    pick_ = {choice.technique, std::nullopt, std::nullopt};
    if (choice.puzzles > 0) {
        pick_.puzzle = NextPracticePuzzle(library_, folder_, choice.technique);
        if (pick_.puzzle) return accept();
    }
    const QString name = ToQString(choice.name);
    const QString why =
        choice.puzzles > 0
            ? QStringLiteral("You have finished every puzzle of the library that needs %1.")
                  .arg(name)
            : QStringLiteral("No puzzle of the library needs %1 as its hardest step.").arg(name);
    const auto answer = QMessageBox::question(
        this, QLatin1String(kTitle),
        why + QStringLiteral("\n\nShall I generate one? It can take up to a minute."));
    if (answer != QMessageBox::Yes) return;
    if (Generate(choice)) accept();
}

bool PracticeDialog::Generate(const PracticeChoice& choice) {
    const QString name = ToQString(choice.name);
    QProgressDialog progress(QStringLiteral("Looking for a puzzle that needs %1...").arg(name),
                             QStringLiteral("Cancel"), 0, int(kSearchSeconds), this);
    progress.setWindowTitle(QLatin1String(kTitle));
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(0);
    progress.setValue(0);

    std::atomic<bool> cancel{false}, done{false};
    std::atomic<long> tried{0};
    std::optional<FoundPuzzle> found;
    const std::uint64_t start = std::random_device{}();
    std::thread search([&] {
        found = GeneratePracticePuzzle(choice.technique, start, kSearchSeconds, &cancel,
                                       [&](long n) { tried = n; });
        done = true;
    });
    const auto began = std::chrono::steady_clock::now();
    while (!done) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
        if (progress.wasCanceled()) cancel = true;
        const double seconds =
            std::chrono::duration<double>(std::chrono::steady_clock::now() - began).count();
        progress.setValue(std::min(int(seconds), int(kSearchSeconds) - 1));
        progress.setLabelText(QStringLiteral("Looking for a puzzle that needs %1...\n"
                                             "%2 puzzles tried")
                                  .arg(name)
                                  .arg(tried.load()));
        std::this_thread::sleep_for(std::chrono::milliseconds(30));
    }
    search.join();
    progress.reset();
    if (cancel) return false;
    if (!found) {
        QMessageBox::information(
            this, QLatin1String(kTitle),
            QStringLiteral("No puzzle that needs %1 was found within a minute.").arg(name));
        return false;
    }
    pick_.found = found;
    return true;
}

}  // namespace tavi::ui
