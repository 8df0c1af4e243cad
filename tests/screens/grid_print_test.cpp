#include "screens/kit/grid_print.h"

#include <gtest/gtest.h>

#include <regex>

#include "core/errors.h"
#include "form_world.h"
#include "support/temp_folder.h"

namespace trv5 {
namespace {

Grid printedTable(int rows, int columns) {
  std::string heading = "Prog";
  for (int column = 1; column < columns; ++column) heading += "|Data esito";
  Grid grid(heading);
  grid.setRows(rows + 1);
  for (int row = 1; row <= rows; ++row)
    for (int column = 0; column < columns; ++column) grid.setText(row, column, "21/08/2026");
  return grid;
}

// Pages that a PDF file really holds.
int pagesOf(const std::string& pdf) {
  const std::regex page("/Type\\s*/Page[^s]");
  return static_cast<int>(std::distance(std::sregex_iterator(pdf.begin(), pdf.end(), page), {}));
}

TEST(GridPrint, AShortTableIsOnePage) {
  const TempFolder folder;
  EXPECT_EQ(printToPdf(printedTable(10, 5), {.title = "Ambate"}, folder / "a.pdf"), 1);
  EXPECT_EQ(pagesOf(readBytes(folder / "a.pdf")), 1);
}

TEST(GridPrint, ALongTableHasAsManyPagesAsItsRowsNeed) {
  const TempFolder folder;
  const int pages = printToPdf(printedTable(500, 5), {}, folder / "a.pdf");
  EXPECT_EQ(pagesOf(readBytes(folder / "a.pdf")), pages);
  // A4 across, 9 pt: some 35 rows a page.
  EXPECT_GT(pages, 10);
  EXPECT_LT(pages, 20);
  EXPECT_LT(printToPdf(printedTable(500, 5), {.landscape = false}, folder / "b.pdf"), pages);
}

TEST(GridPrint, AWideTableGoesOnOverFurtherPagesAndIsNotCutOff) {
  const TempFolder folder;
  const int pages = printToPdf(printedTable(10, 60), {}, folder / "a.pdf");
  EXPECT_GT(pages, 1);
  EXPECT_EQ(pagesOf(readBytes(folder / "a.pdf")), pages);
}

TEST(GridPrint, ALongLineAboveTheTableGoesOnInTheNextAndIsNotCutOff) {
  const TempFolder folder;
  int fits = 10;  // rows of a full page below one line
  while (printToPdf(printedTable(fits + 1, 5), {.header = {"Ambate"}}, folder / "a.pdf") == 1) ++fits;
  std::string formulas = "Lunghetta:";
  for (int i = 0; i < 40; ++i) formulas += " BA1 CA2 N1 X N2 fix 90 D x U;";
  EXPECT_EQ(printToPdf(printedTable(fits, 5), {.header = {formulas}}, folder / "a.pdf"), 2);
  // 1,200 characters are some eight lines across an A4.
  EXPECT_EQ(printToPdf(printedTable(fits - 12, 5), {.header = {formulas}}, folder / "a.pdf"), 1);
}

TEST(GridPrint, MarginsAreTwentiethsOfAPoint) {
  const QPageLayout layout = printLayout({.horizontalMargin = 450, .verticalMargin = 400});
  EXPECT_EQ(layout.orientation(), QPageLayout::Landscape);
  EXPECT_NEAR(layout.margins(QPageLayout::Point).left(), 22.5, 0.5);
  EXPECT_NEAR(layout.margins(QPageLayout::Point).top(), 20, 0.5);
}

TEST(GridPrint, HiddenRowsAreNotPrinted) {
  const TempFolder folder;
  Grid grid = printedTable(500, 5);
  for (int row = 6; row <= 500; ++row) grid.setRowHidden(row, true);
  EXPECT_EQ(printToPdf(grid, {}, folder / "a.pdf"), 1);
}

TEST(GridPrint, AFolderThatIsNotThereIsTold) {
  const TempFolder folder;
  EXPECT_THROW(printToPdf(printedTable(1, 1), {}, folder / "manca" / "a.pdf"), UserError);
}

}  // namespace
}  // namespace trv5
