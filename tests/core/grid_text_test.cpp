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

TEST(TabbedHtml, MakesARowOfEachLineAndACellOfEachField) {
  EXPECT_EQ(tabbedHtml("a\tb\r\n<1>\t"),
            "<table><tr><td>a</td><td>b</td></tr><tr><td>&lt;1&gt;</td><td></td></tr></table>");
  EXPECT_EQ(tabbedHtml(""), "<table></table>");
  EXPECT_EQ(tabbedHtml("a\r\n\r\nb\r\n"), "<table><tr><td>a</td></tr><tr><td></td></tr><tr><td>b</td></tr></table>");
}

TEST(ExportableText, KeepsCharactersOfEachLength) {
  for (const char* text : {"ciao\tqui\n", "perch\xC3\xA9", "\xE2\x82\xAC", "\xED\x9F\xBF", "\xF0\x9F\x8E\xB2",
                           "\xF4\x8F\xBF\xBD", "\xC2\x80", "\xE0\xA0\x80", "\xF0\x90\x80\x80"})
    EXPECT_EQ(exportableText(text), text);
}

TEST(ExportableText, MakesEveryEndOfLineALineFeed) {
  EXPECT_EQ(exportableText("a\r\nb\rc\nd\r"), "a\nb\nc\nd\n");
}

TEST(ExportableText, MarksWhatIsNoCharacter) {
  const std::string mark = "\xEF\xBF\xBD";
  EXPECT_EQ(exportableText(std::string("a\0b\x7F", 4)), "a" + mark + "b" + mark);
  EXPECT_EQ(exportableText("perch\xE9 no"), "perch" + mark + " no");  // Latin-1
  EXPECT_EQ(exportableText("\xC3"), mark);                            // cut off
  EXPECT_EQ(exportableText("\x80z"), mark + "z");                     // begins in the middle
  EXPECT_EQ(exportableText("\xC0\xAF"), mark + mark);                 // longer than it has to be
  EXPECT_EQ(exportableText("\xE0\x9F\xBF"), mark + mark + mark);
  EXPECT_EQ(exportableText("\xF0\x8F\xBF\xBF"), mark + mark + mark + mark);
  EXPECT_EQ(exportableText("\xED\xA0\x80"), mark + mark + mark);             // half a pair of UTF-16
  EXPECT_EQ(exportableText("\xF4\x90\x80\x80"), mark + mark + mark + mark);  // beyond the last one
  EXPECT_EQ(exportableText("\xF5z"), mark + "z");
  EXPECT_EQ(exportableText("\xEF\xBF\xBEz\xEF\xBF\xBF"), mark + "z" + mark);  // code points that are none
}

}  // namespace
}  // namespace trv5
