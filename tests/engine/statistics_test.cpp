#include "engine/statistics.h"

#include <gtest/gtest.h>

#include <string>

#include "engine/colouring.h"
#include "engine/verification_draws.h"
#include "support/workbench_snapshot.h"

namespace trv5 {
namespace {

TEST(ContaEsitix, AddsUpTheHitsAndCountsTheGreenCasesOfEachColumn) {
  SevenWorld world;
  Workbench& w = world.w;
  world.setCases({1, 2, 3});
  for (int column = 17; column <= 22; ++column)
    for (int row = 1; row <= 3; ++row) {
      w.FgEv.setNumber(row, column, column * row);
      if (row < 3) w.FgEv.setBack(row, column, Verde);
    }
  ContaEsitix(w);
  for (int column = 0; column < 6; ++column) {
    EXPECT_EQ(w.FgSSS.number(0, column), 6 * (column + 17)) << column;
    EXPECT_EQ(w.FgSSS.text(1, column), "2") << column;
  }
}

TEST(ContaEsitix, AddsACellOfAnotherColourToTheTotalAndNotToTheCoveredCases) {
  SevenWorld world;
  Workbench& w = world.w;
  world.setCases({1});
  w.FgEv.setText(1, 17, "4");
  w.FgEv.setBack(1, 17, VerdeMedio);
  ContaEsitix(w);
  EXPECT_EQ(w.FgSSS.text(0, 0), "4");
  EXPECT_EQ(w.FgSSS.text(1, 0), "0");
}

TEST(ContaEsitix, ShowsZeroTwiceForAColumnWithoutHits) {
  SevenWorld world;
  Workbench& w = world.w;
  world.setCases({1});
  ContaEsitix(w);
  for (int column = 0; column < 6; ++column) EXPECT_EQ(w.FgSSS.text(0, column) + w.FgSSS.text(1, column), "00");
}

TEST(ContaEsitix, LeavesTheTotalsAsTheyAreWithoutCases) {
  SevenWorld world;
  Workbench& w = world.w;
  w.FgSSS.setText(0, 0, "7");
  const WorkbenchSnapshot before(w);
  ContaEsitix(w);
  EXPECT_EQ(difference(before, w), "");
}

TEST(CreaStatistica, EmptiesThePanelAndWritesCasesAndHitsByQuantity) {
  SevenWorld world;
  Workbench& w = world.w;
  world.setCases({1, 2, 3});
  for (int row = 0; row < 11; ++row) w.Fg_Stat.setText(row, 1, "old");
  w.EsitiPerSorte = {8, 12, 0, 3, 0, 1};
  CreaStatistica(w);
  const std::string wanted[] = {"", "3", "", "", "", "", "12", "", "3", "", "1"};
  for (int row = 0; row < 11; ++row) EXPECT_EQ(w.Fg_Stat.text(row, 1), wanted[row]) << row;
  EXPECT_EQ(w.Fg_Stat.text(5, 0), "InG");
}

TEST(CreaStatistica, ColoursTheSecondColumn) {
  SevenWorld world;
  CreaStatistica(world.w);
  const Rgb wanted[] = {kWhite,   kWhite, kWhite,       0x80FF80, 0xFF8080, 0x80FFFF,
                        0x80FF80, Giallo, AranciaMedio, 0xC0C0FF, 0xFF80FF};
  for (int row = 0; row < 11; ++row) {
    EXPECT_EQ(world.w.Fg_Stat.back(row, 1), wanted[row]) << row;
    EXPECT_EQ(world.w.Fg_Stat.at(row, 1).fore, row == 0 ? Rosso : kBlack) << row;
    EXPECT_EQ(world.w.Fg_Stat.back(row, 0), kWhite) << row;
  }
}

class Chart : public testing::Test {
 protected:
  void fill(int total, int covered, int negative, int open) {
    Workbench& w = m_world.w;
    w.Fg_Stat.setNumber(1, 1, total);
    w.Fg_Stat.setNumber(2, 1, covered);
    w.Fg_Stat.setNumber(4, 1, negative);
    w.Fg_Stat.setNumber(5, 1, open);
    PopolaGrafico(w);
  }
  const Grid& chart() const { return m_world.w.Fg_Graf; }
  double percent(int row) const { return chart().bars().at({row, 2}).percent; }

  SevenWorld m_world;
};

TEST_F(Chart, ShowsCountsAndPercentages) {
  fill(10, 8, 2, 10);
  EXPECT_EQ(SevenWorld::texts(chart(), 0, 0, 2), "Casi Coperti 8 80.0");
  EXPECT_EQ(SevenWorld::texts(chart(), 1, 0, 2), "Negativi 2 20.0");
  EXPECT_EQ(SevenWorld::texts(chart(), 2, 0, 2), "In corso 10 100.0");
  EXPECT_EQ(chart().bars().at({0, 2}), (Bar{80, Verde}));
  EXPECT_EQ(chart().bars().at({1, 2}), (Bar{20, Arancia}));
  EXPECT_EQ(chart().bars().at({2, 2}), (Bar{100, Ciano}));
}

TEST_F(Chart, RoundsToOneDecimalHalvesAwayFromZero) {
  fill(16, 1, 3, 5);  // 6.25, 18.75, 31.25
  EXPECT_EQ(chart().text(0, 2), "6.3");
  EXPECT_EQ(chart().text(1, 2), "18.8");
  EXPECT_EQ(chart().text(2, 2), "31.3");
  EXPECT_DOUBLE_EQ(percent(0), 6.25);
  fill(5, 2, 3, 0);
  EXPECT_EQ(chart().text(0, 2), "40.0");
  fill(3, 1, 2, 3);
  EXPECT_EQ(chart().text(0, 2), "33.3");
  EXPECT_EQ(chart().text(1, 2), "66.7");
  fill(1000, 1, 4, 999);
  EXPECT_EQ(chart().text(0, 2), ".1");
  EXPECT_EQ(chart().text(1, 2), ".4");
  EXPECT_EQ(chart().text(2, 2), "99.9");
}

TEST_F(Chart, ShowsZeroCoveredWithAllCasesOpen) {
  fill(4, 0, 0, 4);
  EXPECT_EQ(SevenWorld::texts(chart(), 0, 1, 2), "0 .0");
  EXPECT_DOUBLE_EQ(percent(0), 0);
  EXPECT_EQ(SevenWorld::texts(chart(), 2, 1, 2), "4 100.0");
}

TEST_F(Chart, ShowsNeitherBarNorPercentageForNoCases) {
  fill(4, 1, 1, 4);
  fill(0, 0, 0, 0);
  for (int row = 0; row < 3; ++row) EXPECT_EQ(chart().text(row, 2), "") << row;
  EXPECT_TRUE(chart().bars().empty());
  EXPECT_TRUE(m_world.shell.shown.empty());
}

// An open case with a hit stands in both rows.
TEST_F(Chart, CountsAnOpenCaseWithAHitAmongTheCoveredToo) {
  Workbench& w = m_world.w;
  m_world.setCases({1}, 10);
  SevenWorld::addNumber(w.Fg11, 7);
  m_world.press("Command29");
  EXPECT_EQ(chart().text(0, 2), "100.0");
  EXPECT_EQ(chart().text(1, 2), ".0");
  EXPECT_EQ(chart().text(2, 2), "100.0");
}

TEST_F(Chart, KeepsNothingButItsCaptionsAfterANewConfiguration) {
  Workbench& w = m_world.w;
  m_world.setCases({1, 2, 3, 4, 5}, 2);
  SevenWorld::addNumber(w.Fg11, 7);
  m_world.press("Command29");
  EXPECT_EQ(chart().text(0, 2), "60.0");
  EXPECT_EQ(chart().text(1, 2), "20.0");
  EXPECT_EQ(chart().text(2, 2), "20.0");
  m_world.press("Command41");
  for (int row = 0; row < 3; ++row) EXPECT_EQ(chart().text(row, 1) + chart().text(row, 2), "") << row;
  EXPECT_EQ(chart().text(0, 0), "Casi Coperti");
  EXPECT_TRUE(chart().bars().empty());
  EXPECT_EQ(w.Fg_Stat.text(0, 0), "Sez");
  EXPECT_EQ(w.Fg_Stat.text(1, 1), "");
  EXPECT_EQ(w.Fg_Stat.back(3, 1), VerdeMedio);  // the panel's colours stay
  EXPECT_EQ(w.FgSSS.text(0, 0), "");
}

void expectFormulaColours(const Grid& table, Rgb counters) {
  for (int column = 0; column < table.columns(); ++column) {
    SCOPED_TRACE(column);
    Rgb back = kWhite;
    if (column >= 1 && column <= 3) back = GialloChiaro;
    if (column >= 4 && column <= 6) back = VerdeChiaro;
    if (column >= 7 && column <= 9) back = AranciaChiaro;
    if (column == 12 || column == 13) back = counters;
    EXPECT_EQ(table.back(1, column), back);
    EXPECT_EQ(table.at(1, column).fore, column == 11 ? Rosso : column == 13 ? Blu : kBlack);
    EXPECT_EQ(table.at(0, column).bold, false);
  }
}

TEST(ColouringOfFormulas, PaintsElementsCountersAndFix) {
  SevenWorld world;
  Workbench& w = world.w;
  SevenWorld::addNumber(w.Fg22, 7);
  coloraFormule(w.Fg22);
  expectFormulaColours(w.Fg22, GialloChiaro);
  for (int column = 0; column < w.Fg22.columns(); ++column)
    EXPECT_EQ(w.Fg22.at(1, column).bold, column == 11 || column == 13) << column;
}

TEST(ColouringOfFormulas, GivesTheRankingCountersOfItsOwnShade) {
  SevenWorld world;
  Workbench& w = world.w;
  SevenWorld::addNumber(w.FgF, 7);
  world.press("Cmd_Colora_fgf");
  expectFormulaColours(w.FgF, GialloMedio);
}

TEST(ColouringOfFormulas, PaintsOverAMarkOfARecount) {
  SevenWorld world;
  Workbench& w = world.w;
  SevenWorld::addNumber(w.FgF, 7);
  w.FgF.setBack(1, 13, VerdeMedio);
  world.press("Cmd_Colora_fgf");
  EXPECT_EQ(w.FgF.back(1, 13), GialloMedio);
}

TEST(ColouringOfFormulas, NumbersTheLunghettaInBold) {
  SevenWorld world;
  Workbench& w = world.w;
  for (int number : {7, 8, 9}) SevenWorld::addNumber(w.Fg00, number);
  w.Fg00.setText(2, 0, "12");
  Colora_fg00(w);
  for (int row = 1; row <= 3; ++row) {
    EXPECT_EQ(w.Fg00.text(row, 0), std::to_string(row));
    EXPECT_TRUE(w.Fg00.at(row, 0).bold);
  }
}

TEST(ColouringOfHits, LeavesAnEmptyGridAlone) {
  SevenWorld world;
  const Grid before = world.w.FgZ1;
  coloraEsiti(world.w, Table::Ambate);
  EXPECT_EQ(difference(before, world.w.FgZ1), "");
}

// The view fits the columns when it is asked to: once at each verification that says so.
TEST(ColouringOfHits, HasTheNumbersInPlayFittedForAmbiAndTerniAlone) {
  SevenWorld world;
  Workbench& w = world.w;
  for (const auto& [table, fits] : {std::pair(Table::Ambate, 0), std::pair(Table::Ambi, 1), std::pair(Table::Terni, 1),
                                    std::pair(Table::Lunghetta, 0)}) {
    const int before = w.Fg15.fitsAsked();
    coloraEsiti(w, table);
    EXPECT_EQ(w.Fg15.fitsAsked() - before, fits) << traitsOf(table).section;
  }
}

}  // namespace
}  // namespace trv5
