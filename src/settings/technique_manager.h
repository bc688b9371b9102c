// The Solving Techniques Manager: per technique whether Hint and Autosolve use it,
// whether Autosolve halts at it, and the order of the techniques from 8 to 38.
// Changes count at once; there is no Cancel.
#pragma once

#include <array>
#include <string_view>

#include "settings/technique_tables.h"

namespace tavi {

struct TechniqueRow {
    std::string_view caption;
    std::string_view label;  // the level, as the box's tip
};

inline constexpr std::array<TechniqueRow, kTechniqueCount> kTechniqueRows = {{
    {"Bad Solved Cell", "Error indication"},
    {"Missing Candidate", "Error indication"},
    {"Solved Cell Exclusion", "Candidate"},
    {"Hidden Single", "Easy level"},
    {"Naked Single", "Easy level"},
    {"Pointing Pair/Triple", "Medium level"},
    {"Box-Line Reduction", "Medium level"},
    {"Naked/Hidden Subset", "Hard level"},
    {"X-Wing", "Crazy level"},
    {"Swordfish", "Crazy level"},
    {"Multi-value X-Wing", "Crazy level"},
    {"Empty Rectangle", "Crazy level"},
    {"XY-Wing", "Insane level"},
    {"Two-String Kite", "Insane level"},
    {"Skyscraper", "Insane level"},
    {"XYZ-Wing", "Insane level"},
    {"Simple Colors", "Insane level"},
    {"Jellyfish", "Kamikaze level"},
    {"WXYZ-Wing", "Kamikaze level"},
    {"Multi Colors", "Kamikaze level"},
    {"Finned X-Wing", "Kamikaze level"},
    {"3D Medusa", "Kamikaze level"},
    {"Sue-de-Coq", "Kamikaze level"},
    {"Aligned Pair Exclusion", "Kamikaze level"},
    {"Unique Rectangle", "Kamikaze level"},
    {"Avoidable Rectangle", "Kamikaze level"},
    {"Extended APE", "Kamikaze level"},
    {"Bivalue Universal Grave +1", "Kamikaze level"},
    {"Short Nice Loops", "Kamikaze level"},
    {"Short AIC's", "Kamikaze level"},
    {"XY-Chain", "Extreme level"},
    {"Aligned Triple Exclusion", "Extreme level"},
    {"Long Nice Loops", "Extreme level"},
    {"Medium AIC's", "Extreme level"},
    {"ALS - XZ", "Extreme level"},
    {"MultiFish", "Extreme level"},
    {"Forcing Chain", "Extreme level"},
    {"Extended ATE", "Mayhem level"},
    {"Long AIC's", "Mayhem level"},
    {"Bifurcation", "Mayhem level"},
}};

inline constexpr std::string_view kTechniqueManagerTitle = "Solving Techniques Manager";

// The window's logic over the tables in force. Boxes are numbered as the window
// has them: 0..39 "include" of technique i, 40..79 "halt" of technique i - 40.
class TechniqueManager {
  public:
    explicit TechniqueManager(TechniqueTables& tables)
        : tables_(tables), SelectedPosition(tables.Order[8]) {}

    bool Checked(int box) const;
    // A halt box answers only while its technique is included.
    bool Enabled(int box) const;
    // A click that leaves the box at `ticked`. The fixed boxes stay ticked.
    void Click(int box, bool ticked);

    // The row (position) at which a technique stands, and the technique at a row.
    int RowOf(int technique) const { return tables_.Order[technique]; }
    int TechniqueAt(int position) const;

    void SelectRow(int technique) { SelectedPosition = tables_.Order[technique]; }
    // Swap the selected row with the one above or below, within 8 to 38.
    void Up();
    void Down();
    // "Set Default Order": the order only; the ticks stay.
    void SetDefaultOrder();

  private:
    void SwapWith(int position);

    TechniqueTables& tables_;

  public:
    int SelectedPosition;
};

}  // namespace tavi
