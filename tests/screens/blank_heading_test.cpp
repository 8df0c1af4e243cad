// A heading without a text is there for operations that count rows; the user doesn't see it.
#include <QBuffer>
#include <QHeaderView>
#include <QPdfWriter>

#include "grid_world.h"
#include "screens/kit/grid_print.h"
#include "screens/kit/theme.h"

namespace trv5 {
namespace {

using BlankHeadingTest = GridViewTest;

TEST_F(BlankHeadingTest, IsNotShownAndTakesNoRoom) {
  GridControl blank(world.form, "FgSy", "||"), told(world.form, "FgEv", "a|b|c");
  EXPECT_FALSE(blank.headingHasText());
  EXPECT_TRUE(told.headingHasText());
  GridView without(blank, {.heading = false}), with(told);
  EXPECT_TRUE(without.horizontalHeader()->isHidden());
  EXPECT_FALSE(with.horizontalHeader()->isHidden());
  EXPECT_EQ(with.minimumSizeHint().height() - without.minimumSizeHint().height(), Theme::current().heading());
}

TEST_F(BlankHeadingTest, LeavesMoreRowsOnAPrintedPage) {
  const auto pages = [](const Grid& grid) {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QPdfWriter writer(&bytes);
    writer.setPageLayout(printLayout({}));
    return printGrid(grid, {}, writer);
  };
  Grid blank("|"), told("a|b");
  int rows = 1;
  do {
    told.setRows(++rows);
  } while (pages(told) == 1);
  blank.setRows(rows);
  EXPECT_EQ(pages(blank), 1);
}

TEST_F(BlankHeadingTest, AnEvenGridThatMayDoSoScrollsSideways) {
  GridControl grid(world.form, "FgSy", 3, 91);
  for (int column = 0; column < 91; ++column) grid.setNumber(1, column, 88);
  GridView fixed(grid, {.samples = std::vector<QString>(91, QStringLiteral("88")), .even = true});
  EXPECT_EQ(fixed.horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
  GridLook look = fixed.look();
  look.sideways = true;
  fixed.setLook(look);
  EXPECT_EQ(fixed.horizontalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
}

TEST_F(BlankHeadingTest, StrongColumnsAreWrittenHeavierThanTheOthers) {
  GridControl grid(world.form, "FgSy", "|");
  grid.setRows(2);
  for (int column = 0; column < 2; ++column) grid.setText(1, column, "88");
  GridView view(grid, {.strong = {0}});
  shown(view, 300, 100);
  view.clearSelection();
  const auto ink = [&] {
    const QImage picture = pictureOfCell(view, 1, 0);
    long dark = 0;
    for (int y = 0; y < picture.height(); ++y)
      for (int x = 0; x < picture.width(); ++x) dark += 255 - qGray(picture.pixel(x, y));
    return dark;
  };
  const long strong = ink();
  view.setLook({.strong = {1}});
  EXPECT_GT(strong, ink());
}

}  // namespace
}  // namespace trv5
