// SPDX-License-Identifier: GPL-3.0-or-later
// FormColors: the colours of the board's palette labels and the nine hint
// colours, chosen from a palette, with a small board as a live preview drawn by
// the board painter. It works on a copy; accept takes it and writes it to the
// store, Cancel drops it.
#pragma once

#include <QDialog>
#include <array>

#include "settings/colors_form.h"
#include "settings/settings_store.h"

namespace tavi::ui {

class ClickLabel;

inline constexpr char kColorsTitle[] = "Costumize Colors";

class ColorsWindow : public QDialog {
    Q_OBJECT

  public:
    // `store` may be null: the colours then count for this run only.
    ColorsWindow(ColorSettings& inForce, SettingsStore* store, QWidget* parent = nullptr);

    const ColorsForm& Form() const { return form_; }
    // A swatch of the palette clicked.
    void PickSwatch(int swatch);
    void accept() override;

  private:
    QWidget* MakeSamples();
    QWidget* MakePalette();
    QWidget* MakeHintColors();
    QWidget* MakeButtons();
    void Show();

    ColorSettings& inForce_;
    SettingsStore* store_;
    ColorsForm form_;
    std::array<ClickLabel*, kPaletteLabels> samples_{};
    std::array<ClickLabel*, 9> hints_{};
    QWidget* preview_ = nullptr;
};

// The roles' names under the tool tips of the preview, by hint role.
inline constexpr std::array<const char*, 9> kRoleTips = {
    "Base candidate",     "Chain candidate", "Attacking candidate",
    "Attacked candidate", "Pattern cell",    "Base cell",
    "Chain cell",         "Attacking cell",  "Attacked cell"};

}  // namespace tavi::ui
