#include <gtest/gtest.h>

#include <string>

#include "engine/verification_draws.h"
#include "support/workbench_snapshot.h"

namespace trv5 {
namespace {

constexpr const char* kTooManyInPlay =
    "Attenzione si possono elaborare al massimo 10 numeri. Rimuovere le formule in eccesso";

// 7, 8 and 9 stand together on Roma in draw 2, 7 and 8 on Bari in draw 4, 7 alone on Bari in draw 2.
class LunghettaWorld : public SevenWorld {
 public:
  explicit LunghettaWorld(int sorte, int colpi = 3) {
    setCases({1}, colpi);
    for (int number : {7, 8, 9}) addNumber(w.Fg00, number);
    w.ComboSorte.pick(sorte - 1);
  }
};

TEST(VerificaLunghetta, ListsEachWheelAndDrawWithAsManyNumbersAsTheSorte) {
  LunghettaWorld world(2);
  Workbench& w = world.w;
  world.press("Command51");
  ASSERT_EQ(w.FgZ0.rows(), 3);
  // The matched numbers in the order of their positions.
  EXPECT_EQ(SevenWorld::texts(w.FgZ0, 1, 3, 15), "1   8 9 7    7 RO 1 2");
  EXPECT_EQ(SevenWorld::texts(w.FgZ0, 2, 3, 15), "2   8 7     0 BA 3 4");
  EXPECT_EQ(w.FgZ0.back(1, 3), kWhite);
  EXPECT_EQ(w.FgZ0.back(2, 3), BluChiaro);
  EXPECT_EQ(w.FgEv.text(1, 22), "2");
  EXPECT_EQ(w.FgEv.back(1, 22), Verde);
}

TEST(VerificaLunghetta, PaintsTheNumbersByHowManyThereAre) {
  LunghettaWorld world(1);
  Workbench& w = world.w;
  world.press("Command51");
  ASSERT_EQ(w.FgZ0.rows(), 4);
  EXPECT_EQ(w.FgZ0.back(1, 17), ColoriSorte[1]);
  EXPECT_EQ(w.FgZ0.back(2, 17), kWhite);
  EXPECT_EQ(w.FgZ0.back(2, 18), ColoriSorte[3]);
  EXPECT_EQ(w.FgZ0.back(2, 21), ColoriSorte[3]);
  EXPECT_EQ(w.FgZ0.back(3, 17), ColoriSorte[2]);
  EXPECT_EQ(w.FgZ0.back(3, 18), ColoriSorte[2]);
}

TEST(VerificaLunghetta, CountsHitsByTheirQuantityInTheStatistics) {
  LunghettaWorld world(2);
  Workbench& w = world.w;
  world.press("Command51");
  EXPECT_EQ(w.Fg_Stat.text(0, 1), "LU");
  EXPECT_EQ(w.Fg_Stat.text(2, 1), "1");
  EXPECT_EQ(w.Fg_Stat.text(3, 1), "2");
  EXPECT_EQ(w.Fg_Stat.text(6, 1), "");  // the single 7 is below the sorte
  EXPECT_EQ(w.Fg_Stat.text(7, 1), "1");
  EXPECT_EQ(w.Fg_Stat.text(8, 1), "1");
}

// The panel holds the verification's own counters, the state those of the elaboration that ran after it.
TEST(VerificaLunghetta, RunsTheElaborationAfterItsStatisticsAndLeavesItsTraces) {
  LunghettaWorld world(2);
  Workbench& w = world.w;
  world.press("Command51");
  EXPECT_EQ(w.EsitiPerSorte, (std::array<int, 6>{0, 1, 1, 1, 0, 0}));
  EXPECT_EQ(w.FgZ100.rows(), 4);
  EXPECT_EQ(w.Sorte, 1);
}

TEST(VerificaLunghetta, TakesTheSorteFromTheListWhateverStandsInTheState) {
  LunghettaWorld world(3);
  world.w.Sorte = 1;
  world.press("Command51");
  EXPECT_EQ(world.w.FgZ0.rows(), 2);
  EXPECT_EQ(world.w.FgZ0.text(1, 13), "RO");
}

TEST(VerificaLunghetta, AcceptsTenFormulas) {
  LunghettaWorld world(1);
  Workbench& w = world.w;
  for (int number = 40; number < 47; ++number) SevenWorld::addNumber(w.Fg00, number);
  ASSERT_EQ(w.Fg00.rows(), 11);
  world.press("Command51");
  EXPECT_TRUE(world.shell.shown.empty());
  EXPECT_EQ(w.FgZ0.rows(), 4);
}

TEST(VerificaLunghetta, RefusesElevenFormulasWithOneMessageAndDoesNothingElse) {
  for (const char* button : {"Command51", "Command92", "Command69"}) {
    LunghettaWorld world(2);
    Workbench& w = world.w;
    for (int number = 40; number < 48; ++number) SevenWorld::addNumber(w.Fg00, number);
    ASSERT_EQ(w.Fg00.rows(), 12);
    w.Sorte = 4;
    const WorkbenchSnapshot before(w);
    world.press(button);
    EXPECT_EQ(difference(before, w), "") << button;
    EXPECT_EQ(world.shell.texts(), std::vector<std::string>{kTooManyInPlay}) << button;
    EXPECT_EQ(world.shell.lastBox().title, "Avviso");
  }
}

TEST(VerificaLunghetta, NeverHitsWithTheNumberOfAWheelNotDrawn) {
  WorkbenchWorld world(archiveOf({{{"BA", {1, 2, 3, 4, 5}}}, {}}));
  Workbench& w = world.w;
  w.Label17.click();
  world.setCases({1}, 1);
  SevenWorld::addNumber(w.Fg00, 0);
  world.press("Command51");
  EXPECT_EQ(w.Fg15.text(1, 6), "00");
  ASSERT_EQ(w.FgZ0.rows(), 2);
  EXPECT_EQ(w.FgZ0.back(1, 0), AranciaMedio);
  EXPECT_EQ(w.FgZ100.back(1, 0), AranciaMedio);
}

TEST(Elabora100, WritesARowForEachWheelWithANumberInPlay) {
  LunghettaWorld world(2);
  Workbench& w = world.w;
  world.press("Cmd_Elabora100");
  ASSERT_EQ(w.FgZ100.rows(), 4);
  EXPECT_EQ(SevenWorld::texts(w.FgZ100, 1, 0, 15), "1 1 " + dateOfDraw(1) + " 1   7      0 BA 1 2");
  EXPECT_EQ(SevenWorld::texts(w.FgZ100, 2, 3, 15), "3   8 9 7    7 RO 1 2");
  EXPECT_EQ(SevenWorld::texts(w.FgZ100, 3, 3, 15), "2   8 7     0 BA 3 4");
  for (int row = 1; row <= 3; ++row) EXPECT_EQ(w.FgZ100.back(row, 0), VerdeMedio);
  EXPECT_EQ(w.FgZ100.back(2, 18), ColoriSorte[3]);
  EXPECT_EQ(w.FgZ100.back(2, 3), kWhite);
  EXPECT_EQ(w.EsitiPerSorte, (std::array<int, 6>{0, 1, 1, 1, 0, 0}));
  EXPECT_EQ(w.TipoVerifica, 6);
  EXPECT_EQ(w.Sorte, 1);
}

// In draw 4 Roma isn't drawn: it is the last wheel looked at, and holds nothing.
TEST(Elabora100, MarksACaseByTheLastWheelItLooksAt) {
  LunghettaWorld world(2, 3);
  Workbench& w = world.w;
  world.press("Cmd_Elabora100");
  EXPECT_EQ(w.FgEv.back(1, 22), kWhite);
  EXPECT_EQ(w.FgEv.text(1, 22), "");
  world.playOn({0});
  world.press("Cmd_Elabora100");
  EXPECT_EQ(w.FgEv.back(1, 22), Verde);
  EXPECT_EQ(w.FgEv.text(1, 22), "1");
}

TEST(Elabora100, LeavesACaseOfSingleNumbersUnmarkedAtSorteOne) {
  SevenWorld world;
  Workbench& w = world.w;
  world.setCases({1}, 3);
  SevenWorld::addNumber(w.Fg00, 7);
  world.playOn({0});
  world.press("Cmd_Elabora100");
  EXPECT_EQ(w.FgZ100.rows(), 3);
  EXPECT_EQ(w.FgEv.back(1, 22), kWhite);
  SevenWorld::addNumber(w.Fg00, 8);
  world.press("Cmd_Elabora100");
  EXPECT_EQ(w.FgEv.back(1, 22), Verde);
  EXPECT_EQ(w.FgEv.text(1, 22), "2");
}

TEST(Elabora100, KeepsEarlierMarksWhenPressedByHand) {
  LunghettaWorld world(5);
  Workbench& w = world.w;
  w.FgEv.setText(1, 22, "4");
  w.FgEv.setBack(1, 22, Verde);
  world.press("Cmd_Elabora100");
  EXPECT_EQ(w.FgEv.text(1, 22), "4");
  EXPECT_EQ(w.FgEv.back(1, 22), Verde);
  EXPECT_EQ(w.FgSSS.text(1, 5), "1");
}

TEST(Elabora100, SkipsDrawsBehindTheReferenceAndMarksTheCaseOpen) {
  LunghettaWorld world(2);
  Workbench& w = world.w;
  w.hs1.set(3);
  world.press("Cmd_Elabora100");
  EXPECT_EQ(w.FgZ100.rows(), 3);
  EXPECT_EQ(w.FgEv.back(1, 1), Ciano);
}

TEST(Elabora100, AddsTheRowOfACaseWithoutHit) {
  LunghettaWorld world(2);
  world.setCases({4}, 2);
  world.press("Cmd_Elabora100");
  ASSERT_EQ(world.w.FgZ100.rows(), 2);
  EXPECT_EQ(SevenWorld::texts(world.w.FgZ100, 1, 0, 3), "1 4 " + dateOfDraw(4) + " ");
  EXPECT_EQ(world.w.FgZ100.back(1, 0), AranciaMedio);
}

TEST(Elabora100, DoesNothingWithoutFormulas) {
  SevenWorld world;
  world.setCases({1});
  const WorkbenchSnapshot before(world.w);
  world.press("Cmd_Elabora100");
  EXPECT_EQ(difference(before, world.w), "");
  EXPECT_TRUE(world.shell.shown.empty());
}

TEST(Elabora100, AcceptsTenFormulasAndRefusesElevenWithItsMessage) {
  LunghettaWorld world(2);
  Workbench& w = world.w;
  for (int number = 40; number < 47; ++number) SevenWorld::addNumber(w.Fg00, number);
  world.press("Cmd_Elabora100");
  EXPECT_TRUE(world.shell.shown.empty());
  EXPECT_EQ(w.FgZ100.rows(), 4);
  SevenWorld::addNumber(w.Fg00, 50);
  w.Sorte = 4;
  const WorkbenchSnapshot before(w);
  world.press("Cmd_Elabora100");
  EXPECT_EQ(difference(before, w), "");
  EXPECT_EQ(world.shell.lastBox().text, "Attenzione si possono elaborare al massimo 10 numeri.");
  EXPECT_EQ(world.shell.lastBox().title, "Avviso");
  EXPECT_EQ(world.shell.shown.size(), 1U);
}

}  // namespace
}  // namespace trv5
