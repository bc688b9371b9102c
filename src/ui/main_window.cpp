// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main_window.h"

#include "ui/check_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "ui/about_window.h"
#include "ui/board_area.h"
#include "ui/colors_window.h"
#include "ui/hint_window.h"
#include "ui/keyboard_play.h"
#include "ui/options_dialog.h"
#include "ui/painted_pictures.h"
#include "ui/practice_indexer.h"
#include "ui/print_window.h"
#include "ui/qt_convert.h"
#include "ui/release_controls.h"
#include "ui/sud_tekst.h"

namespace tavi::ui {

MainWindow::MainWindow(Game& game, Options& options, const LibraryFolders& folders, QWidget* parent)
    : QMainWindow(parent),
      game_(game),
      options_(options),
      folders_(folders),
      brushCursor_(BrushCursor(folders.AppFolder)) {
    setObjectName(QStringLiteral("Main"));
    auto* central = new QWidget(this);
    auto* outer = new QHBoxLayout(central);
    outer->setContentsMargins(10, 10, 10, 10);
    outer->setSpacing(14);

    auto* left = new QVBoxLayout;
    left->setSpacing(8);
    area_ = new BoardArea(game, central);
    sudTekst_ = new SudTekstLine(central);
    connect(sudTekst_, &QLineEdit::textEdited, this, [this](const QString& text) {
        Do([this, text] { game_.SudTekstChange(text.toStdString()); });
    });
    sudTekst_->onDrop = [this](const std::vector<std::filesystem::path>& files) {
        Do([this, files] { game_.SudTekstDrop(files); });
    };
    left->addWidget(area_, 1);
    left->addWidget(sudTekst_);
    outer->addLayout(left, 1);
    side_ = BuildSidePanel();
    outer->addWidget(side_);
    setCentralWidget(central);
    ConnectBoard();
    textHint_->viewport()->installEventFilter(this);

    // The clock ticks once a second; the game decides whether it runs.
    timer_ = new QTimer(this);
    timer_->setObjectName(QStringLiteral("Timer1"));
    timer_->setInterval(1000);
    connect(timer_, &QTimer::timeout, this, [this] { game_.Tick(); });
    timer_->start();

    // The practice indexes are brought up to date once the window stands.
    practice_ = std::make_unique<PracticeIndexer>(folders_.DataFolder);
    QTimer::singleShot(3000, this, [this] { practice_->Refresh(); });

    setWindowIcon(QIcon(SiteEmblem(64, 1.0)));
    // The least size is what the controls need (the layout sees to it), so that
    // the window fits a screen of 960 x 540 (a 1920 x 1080 screen at twice the
    // scale) with its title bar.
    // The window opens centred on the screen, as large as it comfortably fits,
    // and larger on a large screen, so that board and texts grow with it.
    QSize start(1000, 760);
    if (const QScreen* screen = this->screen()) {
        const QRect free = screen->availableGeometry();
        // The title bar, which the window manager adds above, is reckoned with.
        const int title = QGuiApplication::platformName() == QLatin1String("offscreen")
                              ? 0
                              : style()->pixelMetric(QStyle::PM_TitleBarHeight) + 8;
        const double grow = std::clamp(free.height() * 0.8 / start.height(), 1.0, 1.5);
        // As wide as the board at the full height needs, beside the commands.
        const int height = std::min(int(start.height() * grow),
                                    std::min(int(free.height() * 0.92), free.height() - title - 4));
        start = QSize(std::max(start.width(), height * 145 / 100), height)
                    .boundedTo(QSize(int(free.width() * 0.92), height))
                    .expandedTo(minimumSizeHint());
        resize(start);
        move(free.center() - QPoint(start.width() / 2, (start.height() + title) / 2));
    } else {
        resize(start);
    }
    new KeyboardPlay(game_, area_->Board(), this);
    KeyboardPlay::AddShortcuts(this);
    game_.SetEvents([this](Changes changes) { Show(changes); });
    Refresh();
}

MainWindow::~MainWindow() { game_.SetEvents(nullptr); }

void MainWindow::ConnectBoard() {
    for (int d = 1; d <= 9; ++d) {
        connect(area_->DigitButton(d), &ReleaseButton::Released, this,
                [this, d](MouseButton button, bool inside) {
                    Do([this, d, button, inside] { game_.DigitButtonUp(d, button, inside); });
                });
    }
}

void MainWindow::Do(const std::function<void()>& handler) {
    if (game_.Busy()) return;
    handler();
}

void MainWindow::ReturnFocus() {
    if (!exiting_) area_->Board()->setFocus(Qt::OtherFocusReason);
}

void MainWindow::Breathe() {
    // The game has told what its search changed so far; let it be drawn.
    QCoreApplication::processEvents();
}

void MainWindow::Refresh() { Show(Changes{~0u}); }

void MainWindow::Show(Changes c) {
    if (c.Has(kChangeTitle)) setWindowTitle(ToQString(game_.Caption()));
    // The digit buttons follow the filter, the wells show or hide.
    if (c.Has(kChangePaint | kChangeWells)) area_->Refresh();
    if (c.Has(kChangeBoard | kChangePaint)) area_->Board()->update();
    if (c.Has(kChangeLevel)) {
        const int level = game_.position().ChosenLevel;
        if (level >= 1 && level <= 9 && !levels_[level]->isChecked())
            levels_[level]->setChecked(true);
    }
    if (c.Has(kChangeCommands)) RefreshCommands();
    if (c.Has(kChangeTexts)) {
        const QString hint = ToQString(game_.TextHint());
        if (textHint_->toPlainText() != hint) textHint_->setPlainText(hint);
        labelStap_->setText(ToQString(game_.LabelStap()));
    }
    if (c.Has(kChangeTexts | kChangeCommands)) sudTekst_->ShowGame(game_);
    if (c.Has(kChangeClock)) labelTijd_->setText(ToQString(game_.LabelTijd()));
    if (c.Has(kChangeBrush)) {
        RefreshPalette();
        if (game_.brush().BrushActive)
            setCursor(brushCursor_);
        else
            unsetCursor();
    }
    // A hint shown while the option asks for the small window.
    if (c.Has(kChangeHintWindow) && game_.HintWindowShows() != hintShows_) {
        hintShows_ = game_.HintWindowShows();
        Hints()->ShowHint();
    }
    // Another game on the board: the hint window's copy of the one before goes.
    if (c.Has(kChangeHintWindow) && game_.Generation() != generation_) {
        generation_ = game_.Generation();
        if (hints_) hints_->Refresh();
    }
}

void MainWindow::RefreshCommands() {
    const CommandStates& c = game_.commands();
    const std::array<bool, kCommandCount> enabled = {
        c.New,       c.Open, c.Save, c.Print,     c.Make, c.Solution, c.Undo, c.Redo,
        c.ResetCell, c.Hint, c.Scan, c.AutoSolve, true,   true,       true};
    for (int id = 0; id < kCommandCount; ++id)
        commands_[id]->setEnabled(enabled[id]);
    commands_[kMake]->setText(ToQString(c.MakeCaption));
    commands_[kHint]->setText(ToQString(c.HintCaption));
    commands_[kScan]->setText(ToQString(c.ScanCaption));
    // Practice starts a library game, which Make has no room for.
    if (practise_) practise_->setEnabled(!game_.MakeMode());
}

void MainWindow::RefreshPalette() {
    const ColorSettings& colors = game_.options().colors;
    const BrushState& brush = game_.brush();
    for (int i = 0; i < kPaletteLabels; ++i) {
        QPalette pal = palette_[i]->palette();
        pal.setColor(QPalette::Window, ToQColor(colors.LabelBack[i]));
        pal.setColor(QPalette::WindowText, ToQColor(colors.LabelFore[i]));
        palette_[i]->setPalette(pal);
        palette_[i]->setText(ToQString(brush.PaletteCaptions[i]));
    }
}

void MainWindow::Exit() {
    if (game_.Busy()) return;
    if (game_.CommandExit()) {
        exiting_ = true;
        close();
    }
}

void MainWindow::closeEvent(QCloseEvent* e) {
    // After Exit has asked its questions the window just goes; a search must
    // end first.
    if (exiting_ || (!game_.Busy() && game_.QueryUnload())) {
        exiting_ = true;
        timer_->stop();
        e->accept();
    } else {
        e->ignore();
    }
}

void MainWindow::changeEvent(QEvent* e) {
    if (e->type() == QEvent::WindowStateChange) {
        const bool minimised = windowState() & Qt::WindowMinimized;
        if (minimised && !minimised_) {
            minimised_ = true;
            game_.WindowMinimised();
        } else if (!minimised && minimised_) {
            minimised_ = false;
            game_.WindowRestored();
        }
    }
    QMainWindow::changeEvent(e);
}

void MainWindow::resizeEvent(QResizeEvent* e) {
    QMainWindow::resizeEvent(e);
    ScaleControls();
}

void MainWindow::ScaleControls() {
    const double scale = std::clamp(std::min(width() / 1000.0, height() / 760.0), 1.0, 1.5);
    if (std::abs(scale - scale_) < 0.04) return;
    scale_ = scale;
    QFont f = QApplication::font();
    if (f.pointSizeF() > 0)
        f.setPointSizeF(f.pointSizeF() * scale);
    else
        f.setPixelSize(int(f.pixelSize() * scale));
    side_->setFont(f);
    QFont strong = f;
    strong.setBold(true);
    for (ClickLabel* label : palette_)
        label->setFont(strong);
    if (strong.pointSizeF() > 0)
        strong.setPointSizeF(strong.pointSizeF() * 1.25);
    else
        strong.setPixelSize(int(strong.pixelSize() * 1.25));
    labelStap_->setFont(strong);
    labelTijd_->setFont(strong);
}

bool MainWindow::eventFilter(QObject* watched, QEvent* e) {
    // A double click on the hint box pops up the small hint window.
    if (watched == textHint_->viewport() && e->type() == QEvent::MouseButtonDblClick) {
        Hints()->Present();
        return true;
    }
    return QMainWindow::eventFilter(watched, e);
}

HintWindow* MainWindow::Hints() {
    if (!hints_) {
        hints_ = new HintWindow(game_, folders_, this);
        hints_->setWindowFlag(Qt::Window);
        hints_->SetStore(store_);
        // The board and the hint text stay in view.
        hints_->SetKeepClear(
            [this] {
                const BoardWidget* board = area_->Board();
                const QRect grid = board->Layout().BoardRect();
                return std::vector<QRect>{
                    QRect(board->mapToGlobal(grid.topLeft()), grid.size()),
                    QRect(textHint_->mapToGlobal(QPoint(0, 0)), textHint_->size())};
            },
            [this] {
                const QWidget* buttons = commands_[0]->parentWidget();
                return std::vector<QRect>{
                    QRect(buttons->mapToGlobal(QPoint(0, 0)), buttons->size())};
            });
        hints_->Refresh();
    }
    return hints_;
}

void MainWindow::ShowOptions() {
    if (game_.Busy()) return;
    const Options before = options_;
    const auto customizeColors = [this](QWidget* parent) {
        ColorsWindow colors(options_.colors, store_, parent);
        if (colors.exec() == QDialog::Accepted) {
            game_.ColoursChanged();
            Refresh();
        }
    };
    if (RunOptionsDialog(this, options_, game_.SoundAvailable(), customizeColors))
        game_.CommandOptions(before);
    Refresh();
}

void MainWindow::ShowPrint() {
    if (game_.Busy()) return;
    if (!print_) {
        print_.emplace();
        print_->PrintLevelIndex = std::clamp(game_.position().ChosenLevel, 1, 9) - 1;
    }
    PrintWindow window(*print_, PrintSnapshotOf(game_), folders_.DataFolder, this);
    window.exec();
}

void MainWindow::ShowWorkbench() {
    if (game_.Busy()) return;
    if (!workbench_)
        workbench_ =
            new CheckWindow(folders_.DataFolder, &options_.techniques.Order, nullptr, this);
    workbench_->show();
    workbench_->raise();
    workbench_->activateWindow();
}

void MainWindow::ShowRevisions() {
    if (!revisions_) revisions_ = new AboutWindow(this);
    revisions_->show();
    revisions_->raise();
    revisions_->activateWindow();
}

}  // namespace tavi::ui
