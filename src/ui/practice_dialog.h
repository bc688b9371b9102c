// SPDX-License-Identifier: GPL-3.0-or-later
// The "Practise..." window of the game: the techniques of the ladder from rung 8
// to 38, each with the number of library puzzles that need it as their hardest
// step. Choosing one picks the next such puzzle the player has not finished, or,
// when the library has none, offers to generate one (with progress and Cancel,
// for at most a minute). The game then opens what was picked.
#pragma once

#include <QDialog>
#include <filesystem>
#include <optional>

#include "game/practice.h"

class QLabel;
class QPushButton;
class QTimer;
class QTreeWidget;

namespace tavi::ui {

class PracticeIndexer;

class PracticeDialog : public QDialog {
    Q_OBJECT

  public:
    PracticeDialog(PracticeIndexer& indexer, std::filesystem::path dataFolder,
                   QWidget* parent = nullptr);

    struct Pick {
        int technique = 0;
        std::optional<PracticePuzzle> puzzle;  // a puzzle of the library
        std::optional<FoundPuzzle> found;      // or one generated for it
    };
    const Pick& Picked() const { return pick_; }

    // How long a search for a generated puzzle may take.
    static constexpr double kSearchSeconds = 60;

  private:
    // Fills the counts once the indexer has the library.
    void ShowCounts();
    void Practise();
    // Generates a puzzle for `choice`; true when one was found.
    bool Generate(const PracticeChoice& choice);

    PracticeIndexer& indexer_;
    std::filesystem::path folder_;
    PracticeLibrary library_;
    std::vector<PracticeChoice> choices_;
    Pick pick_;
    QTreeWidget* list_ = nullptr;
    QLabel* status_ = nullptr;
    QPushButton* practise_ = nullptr;
    QTimer* poll_ = nullptr;
};

}  // namespace tavi::ui
