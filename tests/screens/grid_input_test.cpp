#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QMimeData>
#include <QScrollBar>

#include "grid_world.h"

namespace trv5 {
namespace {

using GridInputTest = GridViewTest;

TEST_F(GridInputTest, AClickMakesTheCellCurrentAndRunsTheOperation) {
  GridControl grid(world.form, "FgEv", "a|b|c");
  fill(grid, 10);
  std::vector<std::pair<int, int>> clicked;
  grid.onCellClick([&](int row, int column) { clicked.emplace_back(row, column); });
  GridView view(grid);
  shown(view, 300, 300);
  press(view, 3, 2);
  EXPECT_EQ(clicked, (std::vector<std::pair<int, int>>{{3, 2}}));
  EXPECT_EQ(grid.current(), 3);
  EXPECT_EQ(grid.currentColumn(), 2);
}

TEST_F(GridInputTest, AClickOnTheHeadingIsAnOperationOfItsOwn) {
  GridControl grid(world.form, "Fg15", "a|b|c");
  fill(grid, 10);
  int cells = 0, headings = 0;
  grid.onCellClick([&](int, int) { ++cells; });
  grid.onHeadingClick([&] { ++headings; });
  GridView view(grid);
  shown(view, 300, 300);
  press(view, 3, 2);
  const QPoint middle(view.columnWidth(0) / 2, view.horizontalHeader()->height() / 2);
  QTest::mouseClick(view.horizontalHeader()->viewport(), Qt::LeftButton, {}, middle);
  EXPECT_EQ(headings, 1);
  EXPECT_EQ(cells, 1);
  EXPECT_EQ(grid.current(), 3);
  QTest::mousePress(view.horizontalHeader()->viewport(), Qt::LeftButton, {}, middle);
  QTest::mouseRelease(view.horizontalHeader()->viewport(), Qt::LeftButton, {}, middle + QPoint(80, 0));
  EXPECT_EQ(headings, 1) << "a drag is no click";
}

TEST_F(GridInputTest, ADoubleClickIsOneClickAndOneDoubleClick) {
  GridControl grid(world.form, "FgF", "a|b");
  fill(grid, 5);
  int clicks = 0, doubles = 0;
  grid.onCellClick([&](int, int) { ++clicks; });
  grid.onCellDoubleClick([&](int row, int) {
    ++doubles;
    EXPECT_EQ(row, 2);
  });
  GridView view(grid);
  shown(view, 300, 300);
  press(view, 2, 1);
  QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, centre(view, 2, 1));
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(doubles, 1);
}

TEST_F(GridInputTest, AClickOnTheHeadingOrBelowTheLastRowDoesNothing) {
  GridControl grid(world.form, "FgF", "a|b");
  fill(grid, 3);
  int clicks = 0;
  grid.onCellClick([&](int, int) { ++clicks; });
  GridView view(grid);
  shown(view, 300, 300);
  QTest::mouseClick(view.horizontalHeader()->viewport(), Qt::LeftButton, {}, QPoint(20, 5));
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, QPoint(20, 250));
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(grid.current(), -1);
}

TEST_F(GridInputTest, ARefreshKeepsScrollPositionAndCurrentRow) {
  GridControl grid(world.form, "FgZ1", "a|b");
  fill(grid, 500);
  GridView view(grid);
  shown(view, 300, 300);
  press(view, 4, 0);
  view.verticalScrollBar()->setValue(120);
  {
    const Grid::Batch batch(grid);
    for (int row = 1; row <= 500; ++row) grid.setBack(row, 1, 0x80FF80);
    grid.setRows(490);
    grid.setRows(481);
    grid.setCurrent(4);
  }
  settle();
  EXPECT_EQ(view.verticalScrollBar()->value(), 120);
  EXPECT_EQ(grid.current(), 4);
  EXPECT_EQ(view.currentIndex().row(), 3);
  EXPECT_EQ(view.model()->rowCount(), 480);
}

TEST_F(GridInputTest, ACutClearsTheCurrentRowOfTheView) {
  GridControl grid(world.form, "FgZ1", "a|b");
  fill(grid, 5);
  GridView view(grid);
  shown(view, 300, 300);
  press(view, 4, 0);
  grid.cutToHeading();
  settle();
  EXPECT_FALSE(view.currentIndex().isValid());
}

TEST_F(GridInputTest, TheFocusAloneMakesNoRowCurrent) {
  GridControl grid(world.form, "FgF", "a|b");
  fill(grid, 5);
  GridView view(grid);
  shown(view, 300, 300);
  view.setFocus();
  settle();
  EXPECT_EQ(grid.current(), -1);
  QTest::keyClick(&view, Qt::Key_Down);
  EXPECT_EQ(grid.current(), 1);
}

TEST_F(GridInputTest, AKeyThatEntersAPadStandsOnItsFirstCell) {
  GridControl grid(world.form, "FgNu", 3, 3);
  std::vector<std::pair<int, int>> clicked;
  grid.onCellClick([&](int row, int column) { clicked.emplace_back(row, column); });
  GridView view(grid, {.pad = true});
  shown(view, 300, 300);
  view.setFocus(Qt::MouseFocusReason);
  settle();
  EXPECT_FALSE(view.currentIndex().isValid());
  view.clearFocus();
  view.setFocus(Qt::TabFocusReason);
  settle();
  EXPECT_EQ(grid.current(), -1);
  EXPECT_TRUE(hasColour(pictureOfCell(view, 0, 0), kLightColours.accent, 0.05));
  EXPECT_FALSE(hasColour(pictureOfCell(view, 1, 1), kLightColours.accent));
  QTest::keyClick(&view, Qt::Key_Space);
  settle();
  QTest::keyClick(&view, Qt::Key_Right);
  QTest::keyClick(&view, Qt::Key_Space);
  EXPECT_EQ(clicked, (std::vector<std::pair<int, int>>{{0, 0}, {0, 1}}));
}

TEST_F(GridInputTest, ArrowKeysMoveTheCurrentRowWithoutAClick) {
  GridControl grid(world.form, "FgF", "a|b");
  fill(grid, 5);
  int clicks = 0, moves = 0;
  grid.onCellClick([&](int, int) { ++clicks; });
  grid.onMove([&] { ++moves; });
  GridView view(grid);
  shown(view, 300, 300);
  grid.setCurrent(2, 1);
  settle();
  QTest::keyClick(&view, Qt::Key_Down);
  EXPECT_EQ(grid.current(), 3);
  QTest::keyClick(&view, Qt::Key_Left);
  EXPECT_EQ(grid.currentColumn(), 0);
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(moves, 2);
  QTest::keyClick(&view, Qt::Key_Space);
  EXPECT_EQ(clicks, 1);
}

TEST_F(GridInputTest, EnterIsTheDoubleClickOfTheKeyboard) {
  GridControl grid(world.form, "FgF", "a|b");
  fill(grid, 5);
  std::vector<int> rows;
  grid.onCellDoubleClick([&](int row, int) { rows.push_back(row); });
  GridView view(grid);
  shown(view, 300, 300);
  grid.setCurrent(2, 1);
  settle();
  QTest::keyClick(&view, Qt::Key_Return);
  EXPECT_EQ(rows, std::vector<int>{2});
}

TEST_F(GridInputTest, APadTogglesByClickAndSpaceAndPaintsByDragging) {
  GridControl grid(world.form, "FgNu", 9, 10);
  grid.onCellClick(
      [&](int row, int column) { grid.setBack(row, column, grid.back(row, column) == Ciano ? kWhite : Ciano); });
  GridView view(grid, {.pad = true, .even = true, .minRow = 22, .maxRow = 34});
  shown(view, 400, 300);
  grid.setBack(0, 2, Ciano);  // already chosen: a drag that chooses leaves it
  QTest::mousePress(view.viewport(), Qt::LeftButton, {}, centre(view, 0, 0));
  for (const int column : {1, 2, 3, 2, 1}) {
    const QPoint at = centre(view, 0, column);
    QMouseEvent move(QEvent::MouseMove, at, view.viewport()->mapToGlobal(at), Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(view.viewport(), &move);
  }
  QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, centre(view, 0, 1));
  for (const int column : {0, 1, 2, 3}) EXPECT_EQ(grid.back(0, column), Ciano) << column;
  EXPECT_EQ(grid.back(0, 4), kWhite);
  press(view, 0, 0);
  EXPECT_EQ(grid.back(0, 0), kWhite);
  QTest::keyClick(&view, Qt::Key_Right);
  QTest::keyClick(&view, Qt::Key_Space);
  EXPECT_EQ(grid.back(0, 1), kWhite);
}

TEST_F(GridInputTest, ADisabledGridTakesNoClick) {
  GridControl grid(world.form, "FgF", "a|b");
  fill(grid, 5);
  int clicks = 0;
  grid.onCellClick([&](int, int) { ++clicks; });
  GridView view(grid);
  shown(view, 300, 300);
  grid.setEnabled(false);
  press(view, 2, 1);
  EXPECT_EQ(clicks, 0);
}

TEST_F(GridInputTest, CopiesTheSelectionAsTextAndAsATable) {
  GridControl grid(world.form, "FgEv", "a|b|c");
  fill(grid, 3);
  grid.setText(1, 2, "x");
  grid.setColumnHidden(1);
  GridView view(grid);
  shown(view, 300, 300);
  view.selectAll();
  QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
  const QMimeData& data = *QApplication::clipboard()->mimeData();
  EXPECT_EQ(data.text().toStdString(), "1\tx\r\n2\t\r\n3\t");
  EXPECT_TRUE(data.html().contains(QStringLiteral("<table>")));
  QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(world.shell.clipboardText, "a\tb\tc\r\n1\t\tx\r\n2\t\t\r\n3\t\t");
}

TEST_F(GridInputTest, PrintsWithTheTitleOfItsScreen) {
  GridControl grid(world.form, "FgEv", "a|b");
  fill(grid, 1);
  GridView view(grid);
  shown(view, 300, 300);
  QTest::keyClick(&view, Qt::Key_P, Qt::ControlModifier);
  ASSERT_EQ(world.shell.prints.size(), 1u);
  EXPECT_EQ(world.shell.prints[0].grid, grid.grid());
  EXPECT_EQ(world.shell.prints[0].setup.title, "Prova");
}

TEST_F(GridInputTest, AnEditedCellTakesOnlyItsChoices) {
  GridControl grid(world.form, "FgF", "a|Sorte");
  fill(grid, 2);
  grid.setChoices(1, {"", "1", "2", "3"});
  GridView view(grid);
  shown(view, 300, 300);
  press(view, 1, 1);
  QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, centre(view, 1, 1));
  auto* const list = view.viewport()->findChild<QComboBox*>();
  ASSERT_NE(list, nullptr);
  EXPECT_EQ(list->count(), 4);
  list->setCurrentIndex(2);
  QTest::keyClick(list, Qt::Key_Return);
  settle();
  EXPECT_EQ(grid.text(1, 1), "2");
}

TEST_F(GridInputTest, TabLeavesTheGrid) {
  GridControl grid(world.form, "FgEv", "a|b");
  fill(grid, 3);
  GridView view(grid);
  EXPECT_FALSE(view.tabKeyNavigation());
}

}  // namespace
}  // namespace trv5
