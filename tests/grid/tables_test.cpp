#include "grid/tables.h"

#include <gtest/gtest.h>

namespace tavi {
namespace {

TEST(Tables, RowLettersSkipI) {
    std::string letters;
    for (int r = 0; r < 9; ++r)
        letters += char(Global::RowLetter[r]);
    EXPECT_EQ(letters, "ABCDEFGHJ");
    EXPECT_EQ(CellName(0), "A1");
    EXPECT_EQ(CellName(8), "A9");
    EXPECT_EQ(CellName(40), "E5");
    EXPECT_EQ(CellName(72), "J1");
    EXPECT_EQ(CellName(80), "J9");
}

TEST(Tables, CellTablesAgreeWithTheirDefinitions) {
    for (int c = 0; c < 81; ++c) {
        const int row = c / 9, col = c % 9;
        EXPECT_EQ(Global::RowOfCell[c], row);
        EXPECT_EQ(Global::ColumnOfCell[c], col);
        EXPECT_EQ(Global::BoxOfCell[c], 3 * (row / 3) + col / 3);
        EXPECT_EQ(Global::BoxOfCellByBand[c], Global::BoxOfCell[c]);
        EXPECT_EQ(Global::BoxLeftTopOfCell[c], 27 * (row / 3) + 3 * (col / 3));
        EXPECT_EQ(Global::CellOfRowColumn[row][col], c);
        EXPECT_EQ(Global::BoxOfRowColumn[row][col], Global::BoxOfCell[c]);
        EXPECT_EQ(Global::BoxLeftTopOfRowColumn[row][col], Global::BoxLeftTopOfCell[c]);
        const int box = Global::BoxOfCell[c], pos = Global::PositionInBoxOfCell[c];
        EXPECT_EQ(Global::CellOfBoxPosition[box][pos], c);
    }
    EXPECT_EQ(Global::BoxOfCell[40], 4);
    EXPECT_EQ(Global::PositionInBoxOfCell[40], 4);
    EXPECT_EQ(Global::BoxLeftTopOfCell[40], 30);
    EXPECT_EQ(Global::BoxOfCell[80], 8);
}

TEST(Tables, BoxTables) {
    const int leftTops[9] = {0, 3, 6, 27, 30, 33, 54, 57, 60};
    for (int b = 0; b < 9; ++b) {
        EXPECT_EQ(Global::BoxLeftTop[b], leftTops[b]);
        EXPECT_EQ(Global::BoxFirstRow[b], leftTops[b] / 9);
        EXPECT_EQ(Global::BoxFirstColumn[b], leftTops[b] % 9);
        EXPECT_EQ(Global::BoxOfLeftTop[leftTops[b]], b);
        EXPECT_EQ(Global::FirstRowOfLeftTop[leftTops[b]], leftTops[b] / 9);
        EXPECT_EQ(Global::FirstColumnOfLeftTop[leftTops[b]], leftTops[b] % 9);
    }
    // Entries that are no top left cell stay 0.
    EXPECT_EQ(Global::BoxOfLeftTop[31], 0);
    EXPECT_EQ(Global::FirstRowOfLeftTop[58], 0);
}

TEST(Tables, CandidateCountIsThePopulationCount) {
    EXPECT_EQ(Global::CandidateCount[0], 0);
    EXPECT_EQ(Global::CandidateCount[1], 1);
    EXPECT_EQ(Global::CandidateCount[511], 9);
    for (int m = 0; m < 512; ++m)
        EXPECT_EQ(Global::CandidateCount[m], std::popcount(unsigned(m)));
}

TEST(Tables, UnitsAndPeers) {
    // Each unit holds nine distinct cells; each cell lies in exactly three units.
    std::array<int, 81> units{};
    for (int u = 0; u < 27; ++u) {
        std::array<bool, 81> seen{};
        for (int c : UnitCells[u]) {
            EXPECT_FALSE(seen[c]);
            seen[c] = true;
            ++units[c];
        }
    }
    for (int n : units)
        EXPECT_EQ(n, 3);
    // Every cell has 20 distinct peers, none of them itself, all sharing a unit.
    for (int c = 0; c < 81; ++c) {
        std::array<bool, 81> seen{};
        for (int p : Peers[c]) {
            EXPECT_NE(p, c);
            EXPECT_FALSE(seen[p]) << "peer listed twice";
            seen[p] = true;
            EXPECT_TRUE(p / 9 == c / 9 || p % 9 == c % 9 ||
                        Global::BoxOfCell[p] == Global::BoxOfCell[c]);
        }
    }
    EXPECT_EQ(UnitCells[9 + 2][4], 4 * 9 + 2);  // column 2, fifth cell
    EXPECT_EQ(UnitCells[18 + 4][0], 30);        // centre box starts at its top left cell
}

}  // namespace
}  // namespace tavi
