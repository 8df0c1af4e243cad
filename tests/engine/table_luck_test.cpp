#include "engine/table_luck.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "engine/verified_method.h"
#include "support/workbench_world.h"

namespace trv5 {
namespace {

// Draws without the number 17, but where told.
WheelNumbers wheels(bool ba17 = false, bool ca17 = false) {
  return {{"BA", {1, 2, 3, 4, ba17 ? 17 : 5}}, {"CA", {6, 7, 8, 9, ca17 ? 17 : 10}}};
}

// Six draws; a case at each of the first two, three colpi. The number 17 comes on both wheels in draw 3 and on CA in 5.
struct SmallWorld : WorkbenchWorld {
  SmallWorld()
      : WorkbenchWorld(archiveOf({wheels(), wheels(), wheels(true, true), wheels(), wheels(false, true), wheels()})) {
    playOn({0, 1});
    setCases({2, 1}, 3);
    addNumber(w.Fg11, 17);
  }
  static void addNumber(Grid& table, int number) { addFormula(table, {.fix = number, .nr = "0", .qn = "0"}); }
  std::string attesi() const { return w.LblAttesi.text(); }
  std::string bilancio() const { return w.LblBilancio.text(); }
};

TEST(TableLuck, TellsWhatLuckCoversAndWhatPlayingCosts) {
  SmallWorld world;
  world.press("Command29");
  // Three draws of two wheels for each case: 1 - (17/18)^6 = 0.2904.
  EXPECT_EQ(world.attesi(), "Attesi dal caso: 0,6 su 2");
  EXPECT_NE(world.w.LblAttesi.toolTip(), "");
  // The case at 2 is closed by draw 3 after one euro, that at 1 after two; both wheels pay half of it: 11.232 each.
  // Of luck the first draw is always played, the next two as long as nothing has come: 1 + 0.892 + 0.796 euros each.
  EXPECT_EQ(world.bilancio(), "A 1 € il colpo: spesi 3 €, incassati 22 € (3,35 attesi)");
  EXPECT_NE(
      world.w.LblBilancio.toolTip().find("Giocando sempre tutti i colpi: spesi 6 €, incassati 28 € (3,74 attesi)"),
      std::string::npos)
      << world.w.LblBilancio.toolTip();
}

TEST(TableLuck, ToldInFullSaysWhatTheGamePays) {
  SmallWorld world;
  world.press("Command29");
  const std::string tip = world.w.LblBilancio.toolTip();
  for (const char* part : {"un numero 11,232 volte la posta, due 250, tre 4.500, quattro 120.000, cinque 6.000.000",
                           "Tolta la ritenuta (8 %) ne restano 21 € (3,09 attesi)",
                           "62,4 centesimi giocando un numero, 62,4 due, 38,3 tre, 23,5 quattro"})
    EXPECT_NE(tip.find(part), std::string::npos) << part << "\n" << tip;
}

TEST(TableLuck, OfALunghettaIsThatOfItsSorte) {
  SmallWorld world;
  Workbench& w = world.w;
  for (const int number : {1, 2, 3, 40}) SmallWorld::addNumber(w.Fg00, number);
  w.ComboSorte.pick(1);
  world.playOn({0});
  world.press("Command51");
  // Three of the four come at once: three ambi of six, at the first draw of each case.
  EXPECT_TRUE(world.bilancio().starts_with("A 1 € il colpo: spesi 2 €, incassati 250 € (")) << world.bilancio();
  EXPECT_EQ(world.attesi().substr(0, 18), "Attesi dal caso: 0");
}

TEST(TableLuck, IsNeitherGreenNorRed) {
  SmallWorld world;
  world.press("Command29");
  for (const Label* label : {&world.w.LblAttesi, &world.w.LblBilancio}) {
    EXPECT_FALSE(label->back().has_value());
    EXPECT_FALSE(label->fore().has_value());
  }
}

TEST(TableLuck, WithoutWheelsDrawnOrNumbersCostsNothingAndIsNotTold) {
  SmallWorld world;
  world.setCases({6}, 3);  // nothing has been drawn since
  world.press("Command29");
  EXPECT_EQ(world.attesi(), "Attesi dal caso: 0,0 su 1");
  EXPECT_EQ(world.bilancio(), "");
  EXPECT_EQ(world.w.LblBilancio.toolTip(), "");
}

// After each of these the labels show nothing, or what they show was told anew.
TEST(TableLuck, ShowsNothingAfterWhatChangesThatWhichItSpeaksOf) {
  struct Act {
    const char* what;
    std::function<void(SmallWorld&)> run;
    bool told = false;  // told anew, by another verification
  };
  const std::vector<Act> acts = {
      {"other wheels", [](SmallWorld& world) { world.w.FgRG.clickCell(0, 5); }},
      {"no wheels", [](SmallWorld& world) { world.w.Label18.click(); }},
      {"gioco", [](SmallWorld& world) { world.w.Label1[0].click(); }},
      {"other colpi", [](SmallWorld& world) { world.w.ComboColpi.pick(7); }},
      {"another reference draw", [](SmallWorld& world) { world.w.hs1.set(4); }},
      {"other cases",
       [](SmallWorld& world) {
         world.setCases({3, 1}, 3), world.w.ComboEle.pick(0);
       }},
      {"no cases", [](SmallWorld& world) { world.setCases({}, 3), world.w.ComboEle.pick(0); }},
      {"a detection", [](SmallWorld& world) { world.press("Command44"); }},
      {"a formula more",
       [](SmallWorld& world) {
         SmallWorld::addNumber(world.w.Fg11, 18);
         world.w.ComboEle.pick(0);
       }},
      {"a formula less",
       [](SmallWorld& world) {
         world.w.Fg11.setCurrent(1);
         world.press("Command32");
       }},
      {"an empty table", [](SmallWorld& world) { world.press("Command19"); }},
      {"reset", [](SmallWorld& world) { world.press("Command41"); }},
      {"beyond the limit", [](SmallWorld& world) { world.press("Command90"); }},
      {"a summary",
       [](SmallWorld& world) {
         world.w.ChA.set(true);
         world.press("Command86");
       }},
      {"a row on other wheels",
       [](SmallWorld& world) {
         world.w.Check3.set(true);
         world.w.Fg11.setCurrent(1);
         world.press("Command21");
       }},
      {"undone", [](SmallWorld& world) { world.press("Cmd_Annulla"); }},
      {"archive loaded anew",
       [](SmallWorld& world) {
         world.archive = archiveOf({wheels(), wheels(), wheels(), wheels(), wheels(), wheels()});
         world.w.ComboEle.pick(0);
       }},
      {"another table",
       [](SmallWorld& world) {
         SmallWorld::addNumber(world.w.Fg22, 2);
         world.press("Command34");
       },
       true},
      {"the same again", [](SmallWorld& world) { world.press("Command29"); }, true},
  };
  for (const Act& act : acts) {
    SCOPED_TRACE(act.what);
    SmallWorld world;
    world.w.history.start();
    world.press("Command29");
    ASSERT_NE(world.attesi(), "");
    ASSERT_NE(world.bilancio(), "");
    const std::string before = world.attesi() + world.bilancio();
    act.run(world);
    EXPECT_EQ(world.attesi() != "", act.told);
    EXPECT_EQ(world.bilancio() != "", act.told);
    if (!act.told) {
      EXPECT_EQ(world.w.LblAttesi.toolTip() + world.w.LblBilancio.toolTip(), "");
    }
  }
}

TEST(TableLuck, ComesBackWithTheChoiceThatItWasMadeFrom) {
  SmallWorld world;
  world.w.history.start();
  world.press("Command29");
  const std::string attesi = world.attesi(), bilancio = world.bilancio();
  world.w.FgRG.clickCell(0, 5);
  EXPECT_EQ(world.attesi(), "");
  world.w.FgRG.clickCell(0, 5);
  EXPECT_EQ(world.attesi(), attesi);
  world.press("Command19");
  world.press("Cmd_Annulla");
  EXPECT_EQ(world.attesi(), attesi);
  EXPECT_EQ(world.bilancio(), bilancio);
  world.press("Cmd_Annulla");
  world.press("Cmd_Annulla");
  world.press("Cmd_Annulla");
  EXPECT_EQ(world.attesi(), "");
  for (int i = 0; i < 3; ++i) world.press("Cmd_Ripeti");
  EXPECT_EQ(world.attesi(), attesi);
}

TEST(TableLuck, OfARowTriedByItselfIsNotTold) {
  SmallWorld world;
  world.w.Fg11.setCurrent(1);
  world.press("Command21");
  EXPECT_EQ(world.attesi() + world.bilancio(), "");
}

}  // namespace
}  // namespace trv5
