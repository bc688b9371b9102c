// SPDX-License-Identifier: GPL-3.0-or-later
// FormOptions: the options window. It works on a copy of the options: the boxes
// change only the copy, OK takes it, Cancel and the close box leave the options
// as they were. The techniques manager it opens is the exception: its changes
// count at once, as that window has no Cancel.
#pragma once

#include <QDialog>
#include <array>
#include <functional>

#include "settings/options.h"
#include "settings/options_form.h"

class QCheckBox;
class QPushButton;
class QRadioButton;

namespace tavi::ui {

inline constexpr char kOptionsTitle[] = "Tavi Sudoku Options";

class OptionsDialog : public QDialog {
    Q_OBJECT

  public:
    // `soundAvailable` false: no sound can be played, so "Sounds" can't be ticked.
    OptionsDialog(Options& options, bool soundAvailable, QWidget* parent = nullptr);

    // The working copy as the controls have it now.
    const OptionsForm& Form() const { return form_; }
    // What "Customize Colors..." opens; without one the button stays disabled.
    void SetColorsAction(std::function<void(QWidget*)> action);

    // OK: the copy goes into the options.
    void accept() override;

  protected:
    void showEvent(QShowEvent* e) override;

  private:
    QWidget* MakeChecks();
    QWidget* MakeHighlightFrame();
    QWidget* MakeTimeFrame();
    QWidget* MakeProgressFrame();
    QWidget* MakeButtons();
    QCheckBox* Check(const char* name, const char* caption, bool OptionsForm::*field);
    void ShowForm();
    void OpenTechniques();

    Options& options_;
    OptionsForm form_;
    std::function<void(QWidget*)> colorsAction_;
    QRadioButton* hideTimer_ = nullptr;
    QRadioButton* showTimer_ = nullptr;
    std::array<QRadioButton*, 3> save_{};
    QPushButton* colors_ = nullptr;
};

// Shows the options window modally over `parent`. True when OK was pressed; the
// caller then lets the game act on what changed (Game::CommandOptions with the
// options from before). `customizeColors`, when given, is what "Customize
// Colors..." opens.
bool RunOptionsDialog(QWidget* parent, Options& options, bool soundAvailable,
                      std::function<void(QWidget*)> customizeColors = {});

}  // namespace tavi::ui
