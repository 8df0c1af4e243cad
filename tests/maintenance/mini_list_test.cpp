#include "maintenance/mini_list.h"

#include <gtest/gtest.h>

#include "support/archive_builder.h"
#include "support/fake_shell.h"

namespace trv5 {
namespace {

std::vector<DrawRow> drawsOfThreeWheels() {
  return {drawOf("07/01/1939", {{"BA", {58, 22, 47, 49, 69}}}), drawOf("14/01/1939", {{"RO", {1, 2, 3, 4, 5}}}),
          drawOf("04/02/1939", {{"BA", {7, 80, 9, 10, 11}}, {"NZ", {90, 89, 88, 87, 86}}})};
}

struct MiniListWorld {
  explicit MiniListWorld(const std::vector<DrawRow>& rows = drawsOfThreeWheels()) : archive(archiveOfRows(rows)) {
    list.load();
  }

  std::string row(const Grid& grid, int row) const {
    std::string text;
    for (int column = 0; column < grid.columns(); ++column) text += (column > 0 ? " " : "") + grid.text(row, column);
    return text;
  }
  static int marks(const Grid& grid) {
    int found = 0;
    for (int row = 0; row < grid.rows(); ++row)
      for (int column = 0; column < grid.columns(); ++column) found += grid.back(row, column) != kWhite;
    return found;
  }

  Archive archive;
  FakeShell shell;
  MiniList list{archive, shell};
};

TEST(MiniList, OpensOnTheLastDrawInBothPanels) {
  const MiniListWorld world;
  EXPECT_EQ(world.list.title(), "Mini elenco");
  EXPECT_EQ(world.list.hs1.minimum(), 1);
  EXPECT_EQ(world.list.hs1.maximum(), 3);
  EXPECT_EQ(world.list.hs1.value(), 3);
  EXPECT_EQ(world.list.Hs2.minimum(), 1);
  EXPECT_EQ(world.list.Hs2.maximum(), 3);
  EXPECT_EQ(world.list.Hs2.value(), 3);
  EXPECT_EQ(world.list.Label2.text(), "3");
  EXPECT_EQ(world.list.Label1.text(), "04/02/1939");
  EXPECT_EQ(world.list.Label3.text(), "PM=1   PA=3");
  EXPECT_EQ(world.list.Label5.text(), "3");
  EXPECT_EQ(world.list.Label6.text(), "04/02/1939");
  EXPECT_EQ(world.list.Label4.text(), "PM=1   PA=3");
  EXPECT_EQ(world.row(world.list.fG2, 11), "NZ 90 89 88 87 86");
}

TEST(MiniList, GridsHaveTwelveRowsAndSixColumnsWithTheWheelsBelowTheHeading) {
  const MiniListWorld world;
  for (const GridControl* const grid : {&world.list.fG2, &world.list.fG3}) {
    EXPECT_EQ(grid->rows(), 12);
    EXPECT_EQ(grid->columns(), 6);
    for (int wheel = 0; wheel < kWheels; ++wheel)
      EXPECT_EQ(grid->text(wheel + 1, 0), CodiciRuote[static_cast<std::size_t>(wheel)]);
  }
}

TEST(MiniList, WheelCodesAreBoldOnTheLeftOnly) {
  const MiniListWorld world;
  for (int row = 1; row <= kWheels; ++row) {
    EXPECT_TRUE(world.list.fG2.at(row, 0).bold);
    EXPECT_FALSE(world.list.fG2.at(row, 1).bold);
    EXPECT_FALSE(world.list.fG3.at(row, 0).bold);
  }
}

TEST(MiniList, ShowsNumbersAsPlainIntegers) {
  const MiniListWorld world;
  EXPECT_EQ(world.row(world.list.fG2, 1), "BA 7 80 9 10 11");
  EXPECT_EQ(world.row(world.list.fG3, 1), "BA 7 80 9 10 11");
}

TEST(MiniList, AWheelWithoutDataShowsZeroInEachCell) {
  const MiniListWorld world;
  EXPECT_EQ(world.row(world.list.fG2, 8), "RO 0 0 0 0 0");
  EXPECT_EQ(world.row(world.list.fG3, 8), "RO 0 0 0 0 0");
}

TEST(MiniList, NumbersBeyond90AreShownAsTheyStand) {
  const MiniListWorld world({drawOf("07/01/1939", {{"BA", {91, 99, 47, 49, 69}}})});
  EXPECT_EQ(world.row(world.list.fG2, 1), "BA 91 99 47 49 69");
}

TEST(MiniList, ProgressivesAreThoseOfMonthAndYear) {
  MiniListWorld world;
  world.list.hs1.set(2);
  EXPECT_EQ(world.list.Label3.text(), "PM=2   PA=2");
}

TEST(MiniList, AnArchiveOfOneDrawIsShownThoughNoScrollBarMoves) {
  const MiniListWorld world({drawOf("07/01/1939", {{"BA", {58, 22, 47, 49, 69}}})});
  EXPECT_EQ(world.list.hs1.maximum(), 1);
  EXPECT_EQ(world.list.Label2.text(), "1");
  EXPECT_EQ(world.list.Label6.text(), "07/01/1939");
  EXPECT_EQ(world.row(world.list.fG2, 1), "BA 58 22 47 49 69");
  EXPECT_EQ(world.row(world.list.fG3, 1), "BA 58 22 47 49 69");
}

TEST(MiniList, MovingTheLeftScrollerLeavesTheRightPanelAsItIs) {
  MiniListWorld world;
  world.list.fG3.setBack(4, 2, Verde);
  const Grid right = world.list.fG3;
  world.list.hs1.set(1);
  EXPECT_EQ(world.row(world.list.fG2, 1), "BA 58 22 47 49 69");
  EXPECT_EQ(world.list.fG3, right);
  EXPECT_EQ(world.list.Hs2.value(), 3);
  EXPECT_EQ(world.list.Label6.text(), "04/02/1939");
}

TEST(MiniList, MovingTheRightScrollerLeavesTheLeftPanelAsItIs) {
  MiniListWorld world;
  world.list.fG2.clickCell(4, 2);
  const Grid left = world.list.fG2;
  world.list.Hs2.set(2);
  EXPECT_EQ(world.row(world.list.fG3, 8), "RO 1 2 3 4 5");
  EXPECT_EQ(world.list.Label5.text(), "2");
  EXPECT_EQ(world.list.Label6.text(), "14/01/1939");
  EXPECT_EQ(world.list.Label4.text(), "PM=2   PA=2");
  EXPECT_EQ(world.list.fG2, left);
  EXPECT_EQ(world.list.Label2.text(), "3");
}

TEST(MiniList, AClickMarksANumberOfTheLeftPanelAndASecondFreesIt) {
  MiniListWorld world;
  world.list.fG2.clickCell(3, 5);
  EXPECT_EQ(world.list.fG2.back(3, 5), Verde);
  EXPECT_EQ(world.marks(world.list.fG2), 1);
  world.list.fG2.clickCell(3, 5);
  EXPECT_EQ(world.marks(world.list.fG2), 0);
}

TEST(MiniList, AClickOnAWheelCodeOrTheHeadingDoesNothing) {
  MiniListWorld world;
  world.list.fG2.clickCell(3, 0);
  world.list.fG2.clickCell(0, 2);
  EXPECT_EQ(world.marks(world.list.fG2), 0);
}

TEST(MiniList, TheRightPanelTakesNoMarksByHand) {
  MiniListWorld world;
  world.list.fG3.clickCell(3, 5);
  EXPECT_EQ(world.marks(world.list.fG3), 0);
  EXPECT_FALSE(world.list.fG3.hasCellClick());
}

TEST(MiniList, AChangeOfAScrollerTakesTheMarksOfItsOwnPanel) {
  MiniListWorld world;
  world.list.fG2.clickCell(1, 1);
  world.list.fG3.setBack(2, 2, Verde);
  world.list.hs1.set(2);
  EXPECT_EQ(world.marks(world.list.fG2), 0);
  EXPECT_EQ(world.marks(world.list.fG3), 1);
  world.list.fG2.clickCell(1, 1);
  world.list.Hs2.set(2);
  EXPECT_EQ(world.marks(world.list.fG2), 1);
  EXPECT_EQ(world.marks(world.list.fG3), 0);
}

TEST(MiniList, EachWhiteButtonCleansItsOwnPanel) {
  MiniListWorld world;
  for (GridControl* const grid : {&world.list.fG2, &world.list.fG3})
    for (int row = 1; row <= kWheels; ++row) grid->setBack(row, 1 + row % 5, Verde);
  world.list.Command81.press();
  EXPECT_EQ(world.marks(world.list.fG2), 0);
  EXPECT_EQ(world.marks(world.list.fG3), 11);
  EXPECT_EQ(world.row(world.list.fG2, 1), "BA 7 80 9 10 11");
  world.list.fG2.clickCell(1, 1);
  world.list.Command1.press();
  EXPECT_EQ(world.marks(world.list.fG2), 1);
  EXPECT_EQ(world.marks(world.list.fG3), 0);
}

TEST(MiniList, TheLastDrawButtonMovesTheLeftPanelAlone) {
  MiniListWorld world;
  world.list.hs1.set(1);
  world.list.Hs2.set(1);
  world.list.Command56.press();
  EXPECT_EQ(world.list.hs1.value(), 3);
  EXPECT_EQ(world.list.Hs2.value(), 1);
}

TEST(MiniList, FollowsAnArchiveThatHasGrown) {
  MiniListWorld world;
  std::vector<DrawRow> rows = drawsOfThreeWheels();
  rows.push_back(drawOf("11/02/1939", {{"BA", {1, 2, 3, 4, 5}}}));
  world.archive = archiveOfRows(rows);
  world.list.Command56.press();
  EXPECT_EQ(world.list.hs1.value(), 4);
  EXPECT_EQ(world.list.hs1.maximum(), 4);
  EXPECT_EQ(world.list.Hs2.maximum(), 3) << "the right panel hasn't moved";
  world.list.Hs2.set(2);
  EXPECT_EQ(world.list.Hs2.maximum(), 4);
}

TEST(MiniListIndexSearch, AsksForAnIndexOfTheModelArchive) {
  MiniListWorld world;
  world.shell.answerText("1");
  world.list.Command42[0].press();
  EXPECT_EQ(world.list.Command42[0].caption(), "Ricerca per numero indice");
  EXPECT_EQ(world.shell.lastBox().title, "Scelta estrazione");
  EXPECT_EQ(world.shell.lastBox().text, "Inserire il n° indice dell'archivio modello.");
  EXPECT_EQ(world.list.hs1.value(), 1) << "its floor is 1";
  EXPECT_EQ(world.list.Hs2.value(), 3);
}

TEST(MiniListIndexSearch, IgnoresWhatIsNoDrawOfTheArchive) {
  MiniListWorld world;
  world.list.hs1.set(2);
  for (const char* const answer : {"0", "4", "", "-1", "abc", "99999999999"}) {
    world.shell.answerText(answer);
    world.list.Command42[0].press();
    EXPECT_EQ(world.list.hs1.value(), 2) << answer;
  }
  world.shell.answerCancel();
  world.list.Command42[0].press();
  EXPECT_EQ(world.list.hs1.value(), 2);
  EXPECT_EQ(world.shell.shown.size(), 7u) << "nothing but the questions";
}

TEST(MiniListDateSearch, AsksUnderATitleThatTellsTheForm) {
  MiniListWorld world;
  world.shell.answerText("14/01/1939");
  world.list.Command42[1].press();
  EXPECT_EQ(world.list.Command42[1].caption(), "Cerca estrazione per data");
  EXPECT_EQ(world.shell.lastBox().title, "Ricerca per data GG/MM/AAAA");
  EXPECT_EQ(world.shell.lastBox().text, "Data ?");
  EXPECT_EQ(world.list.hs1.value(), 2);
  EXPECT_EQ(world.list.Hs2.value(), 3);
}

TEST(MiniListDateSearch, FindsNothingInAnotherFormThanTheStoredText) {
  MiniListWorld world;
  for (const char* const answer : {"14/1/1939", "14-01-1939", "15/01/1939"}) {
    world.shell.answerText(answer);
    world.list.Command42[1].press();
    EXPECT_EQ(world.shell.lastBox().text, "Data non trovata") << answer;
    EXPECT_EQ(world.shell.lastBox().icon, Icon::Exclamation);
    EXPECT_EQ(world.shell.lastBox().title, "Cerca data");
    EXPECT_EQ(world.list.hs1.value(), 3);
  }
}

TEST(MiniListDateSearch, ACancelledOrEmptyAnswerDoesNothing) {
  MiniListWorld world;
  world.shell.answerCancel();
  world.list.Command42[1].press();
  world.shell.answerText("");
  world.list.Command42[1].press();
  EXPECT_EQ(world.shell.shown.size(), 2u);
  EXPECT_EQ(world.list.hs1.value(), 3);
}

TEST(MiniListDateSearch, TakesThePlaceInAModelArchiveThatBeginsLater) {
  MiniListWorld world;
  world.archive.setModelFrom(2);
  world.shell.answerText("14/01/1939");
  world.list.Command42[1].press();
  EXPECT_EQ(world.list.hs1.value(), 1) << "the first entry of the model";
}

TEST(MiniListDateSearch, DoesNotFindADateBeforeTheModelArchive) {
  MiniListWorld world;
  world.archive.setModelFrom(3);
  world.shell.answerText("07/01/1939");
  world.list.Command42[1].press();
  EXPECT_EQ(world.shell.lastBox().text, "Data non trovata");
  EXPECT_EQ(world.list.hs1.value(), 3);
}

TEST(MiniList, ShowsACaseOfAnArchiveThatHasGrownSinceItWasOpened) {
  MiniListWorld world;
  std::vector<DrawRow> rows = drawsOfThreeWheels();
  rows.push_back(drawOf("11/02/1939", {{"RO", {21, 22, 23, 24, 25}}}));
  world.archive = archiveOfRows(rows);
  MarkedDraw first{4, 7, {}}, second{4, 7, {}};
  first.positions[2] = second.positions[5] = true;
  MostraElementi(world.list, first, second);
  EXPECT_EQ(world.list.hs1.value(), 4);
  EXPECT_EQ(world.list.Hs2.value(), 4);
  EXPECT_EQ(world.list.fG2.back(8, 2), Verde);
  EXPECT_EQ(world.list.fG3.back(8, 5), Verde);
  EXPECT_EQ(MiniListWorld::marks(world.list.fG2), 1);
  EXPECT_EQ(MiniListWorld::marks(world.list.fG3), 1);
}

}  // namespace
}  // namespace trv5
