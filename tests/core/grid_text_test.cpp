#include "core/grid_text.h"

#include <gtest/gtest.h>

namespace trv5 {
namespace {

Grid sample() {
  Grid grid("Prog|Ruota  |Esito");
  grid.setRows(3);
  grid.setText(1, 0, "1");
  grid.setText(1, 1, "FI");
  grid.setText(1, 2, "a;b");
  grid.setText(2, 0, "2");
  grid.setText(2, 1, "NZ");
  grid.setText(2, 2, "<\"&>");
  return grid;
}

TEST(TableText, HoldsHeadingAndHiddenColumnsWithTabsAndCrLf) {
  Grid grid = sample();
  grid.setColumnHidden(1);
  EXPECT_EQ(tableText(grid), "Prog\tRuota  \tEsito\r\n1\tFI\ta;b\r\n2\tNZ\t<\"&>");
}

TEST(TableText, OfAGridWithoutRowsIsEmpty) {
  EXPECT_EQ(tableText(Grid()), "");
}

TEST(CellsText, LeavesOutHiddenColumnsAndRows) {
  Grid grid = sample();
  grid.setColumnHidden(1);
  EXPECT_EQ(cellsText(grid, {{1, 0}, {1, 1}, {1, 2}, {2, 0}, {2, 1}, {2, 2}}), "1\ta;b\r\n2\t<\"&>");
  grid.setRowHidden(1, true);
  EXPECT_EQ(cellsText(grid, {{1, 0}, {1, 1}, {2, 0}}), "2");
}

TEST(CellsText, KeepsTheOrderOfTheGridAndLeavesPlacesNotChosenBlank) {
  const Grid grid = sample();
  EXPECT_EQ(cellsText(grid, {{2, 2}, {1, 0}, {2, 1}}), "1\t\t\r\n\tNZ\t<\"&>");
}

TEST(CellsHtml, CarriesColoursAndEscapesText) {
  Grid grid = sample();
  grid.setBack(2, 2, 0x80FF80);
  grid.setFore(2, 2, 0xFF0000);
  grid.setBold(2, 2);
  EXPECT_EQ(cellsHtml(grid, {{2, 1}, {2, 2}}),
            "<table><tr><td style=\"text-align:center\">NZ</td>"
            "<td style=\"text-align:center;background-color:#80FF80;color:#FF0000;font-weight:bold\">"
            "&lt;\"&amp;&gt;</td></tr></table>");
}

TEST(CsvText, ShowsWhatIsVisibleAndQuotesWhereNeeded) {
  Grid grid = sample();
  grid.setColumnHidden(0);
  EXPECT_EQ(csvText(grid), "\xEF\xBB\xBFRuota;Esito\r\nFI;\"a;b\"\r\nNZ;\"<\"\"&>\"\r\n");
  grid.setRowHidden(1, true);
  EXPECT_EQ(csvText(grid), "\xEF\xBB\xBFRuota;Esito\r\nNZ;\"<\"\"&>\"\r\n");
}

}  // namespace
}  // namespace trv5
