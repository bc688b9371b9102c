// SPDX-License-Identifier: GPL-3.0-or-later
// SolveTech: the Solving Techniques Manager. One row per technique, standing at
// the technique's position in the ladder, with an include box (used by Hint and
// Autosolve), a halt box (Autosolve stops there) and a button that picks the row
// for the Up and Down buttons. Each click goes straight into the tables: there
// is no Cancel.
#pragma once

#include <QDialog>
#include <array>

#include "settings/technique_manager.h"

class QButtonGroup;
class QCheckBox;
class QRadioButton;
class QScrollArea;
class QVBoxLayout;

namespace tavi::ui {

class TechniqueManagerDialog : public QDialog {
    Q_OBJECT

  public:
    explicit TechniqueManagerDialog(TechniqueTables& tables, QWidget* parent = nullptr);

    const TechniqueManager& Manager() const { return manager_; }
    // The technique whose row stands at `position` on screen, top first.
    int TechniqueShownAt(int position) const;

  private:
    QWidget* MakeHeadings();
    QWidget* MakeRow(int technique);
    QWidget* MakeButtons();
    // Every row at its position, and the boxes and the picked row from the tables.
    void Place();
    void ShowBoxes();
    void FitToScreen();

    TechniqueManager manager_;
    std::array<QWidget*, kTechniqueCount> rows_{};
    std::array<QCheckBox*, 2 * kTechniqueCount> boxes_{};  // include 0..39, halt 40..79
    std::array<QRadioButton*, kTechniqueCount> picks_{};
    QButtonGroup* pickGroup_ = nullptr;
    QVBoxLayout* rowLayout_ = nullptr;
    QScrollArea* scroll_ = nullptr;
    int captionWidth_ = 0;
};

}  // namespace tavi::ui
