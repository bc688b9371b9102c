// SPDX-License-Identifier: GPL-3.0-or-later
// FormPrint: prints puzzles of a level, one, two or four to a page, for up to
// ten pages, with or without solutions, or the puzzle on the screen with its
// pencil marks. The preview beside the settings is the first page as it will
// print, drawn live by the same painter.
#pragma once

#include <QDialog>
#include <array>
#include <filesystem>
#include <functional>

#include "game/game.h"
#include "printmodel/print_model.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QPrinter;
class QPushButton;
class QRadioButton;
class QSlider;
class QSpinBox;

namespace tavi::ui {

// What the print command hands over of the game: the board, when a game is in
// progress; number 0 otherwise.
PrintSnapshot PrintSnapshotOf(const Game& game);

class PrintWindow : public QDialog {
    Q_OBJECT

  public:
    // `settings` live on after the window closes; the window shows and changes them.
    PrintWindow(PrintSettings& settings, PrintSnapshot snapshot, std::filesystem::path dataFolder,
                QWidget* parent = nullptr);

    // "Print": the system's print dialog, then the job.
    void Print();
    // The job on `printer`; a failure is told through the message hook. False
    // when nothing or not everything was printed.
    bool PrintTo(QPrinter& printer);

    using Teller = std::function<void(const QString& title, const QString& text)>;
    void SetTeller(Teller tell) { tell_ = std::move(tell); }

    const PrintSettings& Settings() const { return settings_; }
    QWidget* Preview() const { return preview_; }

  private:
    QWidget* MakeRange();
    QWidget* MakeInclude();
    QWidget* MakePages();
    QWidget* MakePerPage();
    // Every control from the settings, the range label and the preview.
    void Show();

    PrintSettings& settings_;
    PrintSnapshot snapshot_;
    std::filesystem::path dataFolder_;
    Teller tell_;
    QComboBox* level_ = nullptr;
    QSpinBox* from_ = nullptr;
    QLabel* to_ = nullptr;
    QLabel* note_ = nullptr;
    QCheckBox* current_ = nullptr;
    QCheckBox* currentState_ = nullptr;
    QCheckBox* pencils_ = nullptr;
    QCheckBox* solutions_ = nullptr;
    QCheckBox* teaching_ = nullptr;
    QSlider* pages_ = nullptr;
    std::array<QRadioButton*, 3> perPage_{};
    QWidget* preview_ = nullptr;
    bool showing_ = false;
};

}  // namespace tavi::ui
