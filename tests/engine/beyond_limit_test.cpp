#include <gtest/gtest.h>

#include <string>

#include "engine/verification_draws.h"
#include "support/workbench_snapshot.h"

namespace trv5 {
namespace {

// A case on draw 1 that is open at draw 2, with 7, 8 and 9 in play in every table; the draws behind it hold more hits.
class OpenWorld : public SevenWorld {
 public:
  OpenWorld() {
    setCases({1}, 3);
    w.hs1.set(2);
    addNumber(w.Fg11, 7);
    addNumber(w.Fg22, 8);
    addNumber(w.Fg33, 9);
    for (int number : {7, 8}) addNumber(w.Fg00, number);
    w.ComboSorte.pick(1);
  }
};

TEST(VerificaOltreLimite, DoesNothingWithoutFormulas) {
  SevenWorld world;
  world.setCases({5}, 10);
  world.w.FgEv.setBack(1, 1, Ciano);
  const WorkbenchSnapshot before(world.w);
  for (const char* button : {"Command90", "Command5", "Command91", "Command92"}) {
    world.press(button);
    EXPECT_EQ(difference(before, world.w), "") << button;
  }
}

TEST(VerificaOltreLimite, GoesOnToTheLastDrawOfTheArchive) {
  OpenWorld world;
  Workbench& w = world.w;
  world.press("Command29");
  EXPECT_EQ(w.FgZ1.rows(), 3);
  world.press("Command90");
  ASSERT_EQ(w.FgZ1.rows(), 4);
  EXPECT_EQ(w.FgZ1.text(3, 15), "4");
}

TEST(VerificaOltreLimite, GoesThroughTheOpenCasesAlone) {
  OpenWorld world;
  Workbench& w = world.w;
  world.setCases({1, 3, 2}, 3);
  w.hs1.set(5);
  w.FgEv.setBack(2, 1, Ciano);
  world.press("Command90");
  ASSERT_EQ(w.FgZ1.rows(), 2);
  EXPECT_EQ(w.FgZ1.text(1, 0), "2");
  EXPECT_EQ(w.FgZ1.back(1, 0), VerdeMedio);  // no row is marked as open here
}

TEST(VerificaOltreLimite, MarksTheOpenCasesAgainByTheReferenceDraw) {
  OpenWorld world;
  Workbench& w = world.w;
  world.setCases({1, 2}, 3);
  w.hs1.set(4);
  world.press("Command90");
  EXPECT_EQ(w.FgZ1.rows(), 1);  // nothing was marked when it began
  EXPECT_EQ(w.FgEv.back(1, 1), kWhite);
  EXPECT_EQ(w.FgEv.back(2, 1), Ciano);
}

TEST(VerificaOltreLimite, LeavesTheMarksOfAmbateAsTheyAre) {
  OpenWorld world;
  Workbench& w = world.w;
  world.press("Command29");
  EXPECT_EQ(w.FgEv.text(1, 17), "2");
  world.press("Command90");
  EXPECT_EQ(w.FgEv.text(1, 17), "2");
  EXPECT_EQ(w.FgEv.back(1, 17), Verde);
}

TEST(VerificaOltreLimite, RepaintsTheMarksOfAmbi) {
  OpenWorld world;
  Workbench& w = world.w;
  world.setCases({1, 5}, 3);
  world.press("Command34");
  EXPECT_EQ(w.FgEv.text(1, 18), "1");
  w.FgEv.setText(2, 18, "6");
  w.FgEv.setBack(2, 18, Verde);
  world.press("Command5");
  EXPECT_EQ(w.FgZ2.number(2, 15), 4);
  EXPECT_EQ(w.FgEv.text(1, 18), "2");
  EXPECT_EQ(w.FgEv.back(1, 18), Verde);
  EXPECT_EQ(w.FgEv.text(2, 18), "");
  EXPECT_EQ(w.FgEv.back(2, 18), kWhite);
}

TEST(VerificaOltreLimite, RepaintsTheMarksOfTerni) {
  OpenWorld world;
  Workbench& w = world.w;
  w.hs1.set(1);
  world.press("Command48");
  EXPECT_EQ(w.FgEv.text(1, 19), "");
  world.press("Command91");
  EXPECT_EQ(w.FgEv.text(1, 19), "1");
  EXPECT_EQ(w.FgEv.back(1, 19), Verde);
}

TEST(VerificaOltreLimite, ClearsTheMarksOfTheLunghettaAndPaintsNone) {
  OpenWorld world;
  Workbench& w = world.w;
  world.press("Command51");
  EXPECT_EQ(w.FgEv.back(1, 22), Verde);
  const Grid elaborated = w.FgZ100;
  world.press("Command92");
  EXPECT_EQ(w.FgZ0.rows(), 3);
  EXPECT_EQ(w.FgEv.text(1, 22), "");
  EXPECT_EQ(w.FgEv.back(1, 22), kWhite);
  EXPECT_EQ(w.Sorte, 2);
  EXPECT_EQ(difference(elaborated, w.FgZ100), "");
}

TEST(VerificaOltreLimite, EmptiesTheChartAndTheTotalsButKeepsThePanel) {
  OpenWorld world;
  Workbench& w = world.w;
  world.press("Command29");
  ASSERT_EQ(w.Fg_Graf.bars().size(), 3U);
  const Grid panel = w.Fg_Stat;
  world.press("Command90");
  for (int row = 0; row < 3; ++row) {
    EXPECT_NE(w.Fg_Graf.text(row, 0), "");
    EXPECT_EQ(w.Fg_Graf.text(row, 1), "");
    EXPECT_EQ(w.Fg_Graf.text(row, 2), "");
  }
  // Of the bars only the second goes.
  EXPECT_EQ(w.Fg_Graf.bars().size(), 2U);
  EXPECT_FALSE(w.Fg_Graf.bars().contains({1, 2}));
  for (int column = 0; column < 6; ++column) {
    EXPECT_EQ(w.FgSSS.text(0, column), "");
    EXPECT_EQ(w.FgSSS.text(1, column), "");
  }
  EXPECT_EQ(difference(panel, w.Fg_Stat), "");
}

TEST(VerificaOltreLimite, CountsItsHitsBySorteAnew) {
  OpenWorld world;
  Workbench& w = world.w;
  w.EsitiPerSorte = {0, 9, 9, 9, 9, 9};
  w.FgEv.setBack(1, 1, Ciano);
  world.press("Command90");
  EXPECT_EQ(w.EsitiPerSorte, (std::array<int, 6>{0, 3, 0, 0, 0, 0}));
  EXPECT_EQ(w.TipoVerifica, 1);
  world.press("Command5");
  EXPECT_EQ(w.EsitiPerSorte, (std::array<int, 6>{0, 0, 2, 0, 0, 0}));
  EXPECT_EQ(w.TipoVerifica, 2);
}

// The verifications behind CC.

TEST(VerificaPerCc, SkipsTheExcludedCasesAndNotesThoseHit) {
  OpenWorld world;
  Workbench& w = world.w;
  world.setCases({1, 3, 4}, 2);
  w.hs1.set(6);
  w.CasiEsclusi = {};
  w.CasiEsclusi[2] = true;
  w.CasiVerificati.fill(true);
  world.press("Command94");
  ASSERT_EQ(w.FgZ2.rows(), 3);
  EXPECT_EQ(w.FgZ2.text(1, 0), "1");
  EXPECT_EQ(w.FgZ2.text(2, 0), "3");
  EXPECT_EQ(w.FgEv.back(2, 18), kWhite);
  CaseFlags wanted{};
  wanted[1] = true;
  EXPECT_EQ(w.CasiVerificati, wanted);
  EXPECT_EQ(w.FgSSS.text(1, 1), "1");
}

TEST(VerificaPerCc, LeavesThePanelAndTheChartAsTheyAre) {
  for (const char* button : {"Command94", "Command95", "Command69"}) {
    OpenWorld world;
    Workbench& w = world.w;
    w.CasiEsclusi = {};
    w.Fg_Stat.setText(0, 1, "XY");
    const WorkbenchSnapshot before(w);
    world.press(button);
    EXPECT_EQ(difference(before.grids.at("Fg_Stat"), w.Fg_Stat), "") << button;
    EXPECT_EQ(difference(before.grids.at("Fg_Graf"), w.Fg_Graf), "") << button;
    EXPECT_EQ(w.CasiInCorso, 1) << button;
  }
}

TEST(VerificaPerCc, OfTheLunghettaEndsWithTheElaborationThatKnowsNoExclusion) {
  OpenWorld world;
  Workbench& w = world.w;
  w.hs1.set(4);
  world.playOn({0});
  w.CasiEsclusi = {};
  w.CasiEsclusi[1] = true;
  world.press("Command69");
  EXPECT_EQ(w.FgZ0.rows(), 1);
  EXPECT_EQ(w.FgZ100.rows(), 3);
  EXPECT_EQ(w.FgEv.back(1, 22), Verde);
  EXPECT_EQ(w.FgEv.text(1, 22), "1");
  EXPECT_EQ(w.Sorte, 1);
}

}  // namespace
}  // namespace trv5
