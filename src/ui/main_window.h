// SPDX-License-Identifier: GPL-3.0-or-later
// MainWindow: the game window. The board with its digit filter and wells, the
// levels, the commands, the hint box, the step counter and clock, the palette,
// the puzzle's text line and the small labels at the foot. Every control shows
// what the game holds and passes its clicks to the game; the game then tells
// the window what changed, and only those parts are drawn again.
#pragma once

#include <QCursor>
#include <QMainWindow>
#include <array>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>

#include "game/game.h"
#include "printmodel/print_model.h"

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QTimer;

namespace tavi::ui {

class BoardArea;
class ClickLabel;
class HintWindow;
class PracticeIndexer;
class AboutWindow;
class SudTekstLine;

class MainWindow : public QMainWindow {
    Q_OBJECT

  public:
    // `options` are the game's, changed by the options window; the program's
    // folder holds its pictures ("Brush.ico").
    MainWindow(Game& game, Options& options, const LibraryFolders& folders,
               QWidget* parent = nullptr);
    ~MainWindow() override;

    // Draws the whole window again from the game.
    void Refresh();
    // Draws again what the game says changed.
    void Show(Changes changes);
    // A long search of the game lets the window show its progress and take the
    // click on "Stop".
    void Breathe();

    BoardArea* Area() const { return area_; }
    // Where the colours window writes the colours it is given; without one they
    // count for this run only.
    void SetStore(SettingsStore* store) { store_ = store; }

  protected:
    bool eventFilter(QObject* watched, QEvent* e) override;
    void closeEvent(QCloseEvent*) override;
    void changeEvent(QEvent*) override;
    void resizeEvent(QResizeEvent*) override;

  private:
    // The command buttons, in the order of their grid.
    enum CommandId {
        kNew,
        kOpen,
        kSave,
        kPrint,
        kMake,
        kSolution,
        kUndo,
        kRedo,
        kResetCell,
        kHint,
        kScan,
        kAutoSolve,
        kOptions,
        kHelp,
        kExit,
        kCommandCount
    };

    QWidget* BuildSidePanel();
    QWidget* BuildLevels();
    QWidget* BuildCommands();
    QWidget* BuildCounters();
    QWidget* BuildPalette();
    QWidget* BuildFoot();
    void ConnectBoard();

    // Runs a handler of the game, unless the game is in a search: then it takes
    // no other command.
    void Do(const std::function<void()>& handler);
    void Exit();
    // The board takes the keys back, so arrows and digits work at once.
    void ReturnFocus();
    void ShowRevisions();
    void ShowWorkbench();
    void ShowOptions();
    void ShowPrint();
    // "Practise...": picks a technique and opens its puzzle (main_window_practice.cpp).
    void ShowPractice();
    QPushButton* BuildPractise(QWidget* parent);
    // FormHint, made when first wanted.
    HintWindow* Hints();
    void RefreshCommands();
    void RefreshPalette();
    // The controls beside the board grow with the window, as the board does.
    void ScaleControls();

    Game& game_;
    Options& options_;
    SettingsStore* store_ = nullptr;
    LibraryFolders folders_;
    QCursor brushCursor_;
    BoardArea* area_ = nullptr;
    QWidget* side_ = nullptr;
    double scale_ = 0;
    std::array<QRadioButton*, 10> levels_{};  // 1..9
    std::array<QPushButton*, kCommandCount> commands_{};
    QPushButton* practise_ = nullptr;
    std::array<ClickLabel*, kPaletteLabels> palette_{};
    QPlainTextEdit* textHint_ = nullptr;
    QLabel* labelStap_ = nullptr;
    QLabel* labelTijd_ = nullptr;
    SudTekstLine* sudTekst_ = nullptr;
    QTimer* timer_ = nullptr;
    AboutWindow* revisions_ = nullptr;    // the About box, with the revision history
    std::optional<PrintSettings> print_;  // the print window's, from its first opening on
    class CheckWindow* workbench_ = nullptr;
    HintWindow* hints_ = nullptr;
    std::unique_ptr<PracticeIndexer> practice_;  // the library's practice indexes
    int hintShows_ = 0;       // the hint window's showings the game asked for and got
    int generation_ = 0;      // the game whose board the hint window may copy
    bool exiting_ = false;    // Exit has asked already: the close goes through
    bool minimised_ = false;  // the clock is paused
};

}  // namespace tavi::ui
