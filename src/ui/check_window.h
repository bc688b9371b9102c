// SPDX-License-Identifier: GPL-3.0-or-later
// FormCheck, the file workbench: the nine library buttons, navigation, the double
// board (the puzzle in Label1, its solution or the solver's board in Label2), the
// commands, and the progress frame of a run. It draws the Workbench model and
// forwards clicks; the right button on Solve, Check All and Check Some works by
// brute force.
#pragma once

#include <QDialog>
#include <QPointer>
#include <array>
#include <memory>

#include "ui/qt_prompter.h"
#include "workbench/workbench.h"

class QLabel;
class QProgressBar;
class QFrame;
class QPushButton;
class QTableWidget;

namespace tavi::ui {

class ReleaseButton;

// A 9 x 9 board of texts, with thicker lines between the boxes.
class TextBoard : public QWidget {
  public:
    TextBoard(std::function<std::string(int)> text, QWidget* parent = nullptr);
    QSize sizeHint() const override { return {240, 240}; }
    QSize minimumSizeHint() const override { return {180, 180}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int w) const override { return w; }

  protected:
    void paintEvent(QPaintEvent*) override;

  private:
    std::function<std::string(int)> text_;
};

class CheckWindow : public QDialog {
  public:
    // Speaks through `prompter` when given (tests script it), else through boxes.
    CheckWindow(std::filesystem::path dataFolder, const TechniqueOrder* order,
                Prompter* prompter = nullptr, QWidget* parent = nullptr);

    Workbench& Model() { return bench_; }
    // Draws everything again.
    void Refresh();

    // While a run goes on the window stays: Escape aborts the run, and a close
    // is refused.
    void reject() override;

  protected:
    void closeEvent(QCloseEvent* e) override;

  private:
    // Draws again the parts the workbench says changed.
    void Show(Changes c);
    ReleaseButton* Command(const char* name, const QString& caption);
    void ShowImportReport(const ImportReport& report);
    void Export();

    QtPrompter prompter_;
    Workbench bench_;
    std::array<QPushButton*, 10> levels_{};
    ReleaseButton *first_, *previous_, *next_, *last_, *goTo_;
    ReleaseButton *solve_, *checkAll_, *checkSome_, *delete_, *duplicates_, *abort_, *import_,
        *export_, *close_;
    QLabel* number_;
    QLabel* damaged_;  // why the shown record can't be read, when it can't
    TextBoard *board1_, *board2_;
    QFrame* picture1_;
    QLabel *label4_, *label5_, *label6_, *importProgress_, *solvingLevel_;
    QProgressBar *bar1_, *bar2_;
    QTableWidget* hardest_;
    QWidget* below_;  // the progress frame or the table, in a space kept for them
};

}  // namespace tavi::ui
