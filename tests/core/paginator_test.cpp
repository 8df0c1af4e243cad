#include "core/paginator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

namespace trv5 {
namespace {

PageRequest request(int rows, std::vector<double> widths) {
  return {.columnWidths = std::move(widths),
          .rows = rows,
          .rowHeight = 10,
          .headingHeight = 20,
          .titleHeight = 0,
          .pageWidth = 100,
          .pageHeight = 120};
}

TEST(Paginator, PutsWhatFitsOnOnePage) {
  const Pages result = paginate(request(10, {50, 50}));
  EXPECT_EQ(result.scale, 1);
  EXPECT_EQ(result.pages, (std::vector<Page>{{0, 10, 0, 2}}));
}

TEST(Paginator, RepeatsTheHeadingSoThatItsHeightCountsOnEachPage) {
  const Pages result = paginate(request(21, {100}));
  EXPECT_EQ(result.pages, (std::vector<Page>{{0, 10, 0, 1}, {10, 20, 0, 1}, {20, 21, 0, 1}}));
}

TEST(Paginator, CutsNoRowInTwo) {
  PageRequest r = request(11, {100});
  r.pageHeight = 129;  // ten rows and nine tenths of another
  EXPECT_EQ(paginate(r).pages, (std::vector<Page>{{0, 10, 0, 1}, {10, 11, 0, 1}}));
}

TEST(Paginator, DrawsAWideTableSmaller) {
  const Pages result = paginate(request(10, {60, 65}));
  EXPECT_DOUBLE_EQ(result.scale, 0.8);
  EXPECT_EQ(result.pages.size(), 1U);
}

TEST(Paginator, ContinuesATooWideTableOnFurtherPages) {
  const Pages result = paginate(request(20, {60, 60, 60, 60, 60}));
  EXPECT_DOUBLE_EQ(result.scale, 0.6);
  // 120 / 0.6 = 200 high: 18 rows; 100 / 0.6 = 166 wide: two columns.
  EXPECT_EQ(
      result.pages,
      (std::vector<Page>{{0, 18, 0, 2}, {0, 18, 2, 4}, {0, 18, 4, 5}, {18, 20, 0, 2}, {18, 20, 2, 4}, {18, 20, 4, 5}}));
}

TEST(Paginator, GivesATableWithoutRowsItsHeading) {
  EXPECT_EQ(paginate(request(0, {10})).pages, (std::vector<Page>{{0, 0, 0, 1}}));
}

TEST(Paginator, LosesNothingOnAnyPaper) {
  for (unsigned seed = 1; seed <= 200; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(seed);
    PageRequest r = request(static_cast<int>(rng() % 300), {});
    const unsigned columns = 1 + rng() % 30;
    for (unsigned i = 0; i < columns; ++i) r.columnWidths.push_back(1 + rng() % 150);
    r.pageHeight = rng() % 200;
    const Pages result = paginate(r);
    EXPECT_LE(result.scale, 1);
    EXPECT_GE(result.scale, r.smallestScale);
    std::vector<int> shown(static_cast<std::size_t>(r.rows) * columns);
    for (const Page& page : result.pages) {
      EXPECT_LT(page.firstColumn, page.endColumn);
      double width = 0;
      for (int c = page.firstColumn; c < page.endColumn; ++c) width += r.columnWidths[static_cast<std::size_t>(c)];
      if (page.endColumn - page.firstColumn > 1) {
        EXPECT_LE(width * result.scale, r.pageWidth + 0.001);
      }
      for (int row = page.firstRow; row < page.endRow; ++row)
        for (int c = page.firstColumn; c < page.endColumn; ++c)
          ++shown[static_cast<std::size_t>(row) * columns + static_cast<std::size_t>(c)];
    }
    EXPECT_EQ(std::count(shown.begin(), shown.end(), 1), static_cast<std::ptrdiff_t>(shown.size()));
  }
}

}  // namespace
}  // namespace trv5
