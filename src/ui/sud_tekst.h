// SPDX-License-Identifier: GPL-3.0-or-later
// SudTekst: the puzzle's line under the board. In play it shows the 81 digits of
// the puzzle and is locked; while a puzzle is made it takes typed or pasted
// clues and the drop of a text file, and shows the game's prompt until the user
// writes in it.
#pragma once

#include <QLineEdit>
#include <filesystem>
#include <functional>
#include <vector>

namespace tavi {
class Game;
}

namespace tavi::ui {

class SudTekstLine : public QLineEdit {
  public:
    explicit SudTekstLine(QWidget* parent = nullptr);

    // Shows the game's puzzle line: its text, whether it is live, and the prompt.
    void ShowGame(const Game& game);
    // Files dropped on the line while it takes drops.
    std::function<void(const std::vector<std::filesystem::path>&)> onDrop;

  protected:
    void resizeEvent(QResizeEvent* e) override;
    void dragEnterEvent(QDragEnterEvent* e) override;
    void dragMoveEvent(QDragMoveEvent* e) override;
    void dropEvent(QDropEvent* e) override;

  private:
    // The digits in a fixed-width font small enough to show all 81; the prompt
    // in the window's font, small enough to show it whole.
    void FitFont();
    // True when the drag carries files; it is then taken or refused here.
    bool AnswerFileDrag(QDragMoveEvent* e);
};

}  // namespace tavi::ui
