#include "engine/caso.h"

#include <gtest/gtest.h>

#include <numeric>

#include "engine/search_luck_line.h"
#include "support/archive_builder.h"
#include "support/random_search.h"
#include "support/workbench_world.h"

namespace trv5 {
namespace {

class CasoWindow : public testing::Test {
 protected:
  CasoWindow() : world(makeArchive()) {
    world.shell.addScreen("Caso", [this] { return std::make_unique<Caso>(world.shell); });
    world.playOn({0});
    world.setCases({100, 90, 80, 70, 60, 50, 40, 30}, 5);
    world.w.ChFix1R.set(false);
    world.shell.holdSteps = true;
    world.press("Command23");
  }
  static Archive makeArchive() {
    std::mt19937 rng(5);
    return randomArchive(rng, 120);
  }
  Caso& open() {
    world.press("Cmd_Caso");
    return dynamic_cast<Caso&>(world.shell.show("Caso"));
  }
  void finish() {
    while (world.shell.runSteps()) {
    }
  }
  std::string status() const { return world.shell.statusTexts.empty() ? "" : world.shell.statusTexts.back(); }

  WorkbenchWorld world;
};

TEST_F(CasoWindow, ShowsTheFiguresOfTheLineAndWorksTheLineOutToo) {
  Caso& window = open();
  EXPECT_EQ(window.LblOrigine.text(), world.w.LblOrigine.text());
  EXPECT_EQ(window.Txt_Seme.text(), std::to_string(usualSeed(world.archive)));
  EXPECT_TRUE(window.Cmd_Ferma.enabled());
  EXPECT_FALSE(window.Cmd_Sorteggia.enabled());
  finish();
  EXPECT_NE(world.w.LblCaso.text(), "");
  EXPECT_EQ(world.w.LblCaso.text(), window.LblFrase.text() + " 1 ricerca su questi casi.");
  EXPECT_EQ(window.LblConto.text().substr(0, 13), "999 di 999 in");
  EXPECT_FALSE(window.Cmd_Ferma.enabled());
  EXPECT_TRUE(window.Cmd_Sorteggia.enabled());
  EXPECT_EQ(world.shell.progressValues.back(), std::pair(999, 999));
}

TEST_F(CasoWindow, TellsCountByCountHowManyFormulasAndArchivesReachIt) {
  Caso& window = open();
  finish();
  const Grid& counts = window.Fg_Conti;
  const Caso::Bars& bars = window.bars();
  EXPECT_EQ(std::accumulate(bars.replicasByBest.begin(), bars.replicasByBest.end(), 0), 999);
  EXPECT_EQ(bars.best, world.w.FgF.number(1, formula_column::kCc));
  ASSERT_GT(counts.rows(), 3);
  EXPECT_EQ(counts.number(counts.current(), 0), bars.best);
  for (int row = 1; row < counts.rows(); ++row) {
    const int count = counts.number(row, 0);
    int own = 0, archives = bars.best >= count ? 1 : 0;
    for (int r = 1; r < world.w.FgF.rows(); ++r) own += world.w.FgF.number(r, formula_column::kCc) >= count ? 1 : 0;
    for (auto i = static_cast<std::size_t>(count); i < bars.replicasByBest.size(); ++i)
      archives += bars.replicasByBest[i];
    if (own < 50) {
      EXPECT_EQ(counts.text(row, 1), std::to_string(own)) << count;  // else the ranking has left some out
    }
    EXPECT_EQ(counts.text(row, 3), thousands(archives)) << count;
    EXPECT_TRUE(row == 1 || count == counts.number(row - 1, 0) - 1) << count;
  }
}

TEST_F(CasoWindow, StopsAndGoesOnToTheSameFigures) {
  Caso& window = open();
  finish();
  const std::string whole = window.LblFrase.text();
  window.Txt_Seme.set("1");
  window.Cmd_Sorteggia.press();
  EXPECT_EQ(window.LblConto.text(), "0 di 999");
  window.Cmd_Ferma.press();
  EXPECT_EQ(window.LblConto.text(), "0 di 999");
  EXPECT_FALSE(world.shell.runSteps());
  window.Txt_Seme.set(std::to_string(usualSeed(world.archive)));
  window.Cmd_Sorteggia.press();
  finish();
  EXPECT_EQ(window.LblFrase.text(), whole);
}

TEST_F(CasoWindow, SaysWhatAnUnfinishedRunKnowsSoFar) {
  Caso& window = open();
  finish();
  window.ComboRepliche.pick(1);
  window.Cmd_Sorteggia.press();
  EXPECT_EQ(window.LblConto.text(), "999 di 9.999");  // a longer series goes on from the shorter one
  EXPECT_EQ(window.LblFrase.text().substr(0, 36), "Finora, su 1.000 archivi sorteggiati");
  window.Cmd_Ferma.press();
  EXPECT_EQ(status(), "Sorteggi fermati a 999");
  EXPECT_EQ(window.LblFrase.text().substr(0, 6), "Finora");
  window.ComboRepliche.pick(0);
  window.Cmd_Sorteggia.press();
  finish();
  EXPECT_EQ(window.LblFrase.text().substr(0, 8), "Su 1.000");
}

TEST_F(CasoWindow, KeepsTheSearchThatItWasOpenedForWhateverBecomesOfTheWorkbench) {
  Caso& window = open();
  finish();
  const std::string origin = window.LblOrigine.text(), sentence = window.LblFrase.text();
  world.w.ComboColpi.pick(2);
  world.press("Command20");
  EXPECT_EQ(window.LblOrigine.text(), origin);
  window.Cmd_Sorteggia.press();
  finish();
  EXPECT_EQ(window.LblFrase.text(), sentence);
  window.forget();
  EXPECT_EQ(window.LblFrase.text(), "");
  EXPECT_FALSE(window.Fg_Conti.hasData());
  window.Cmd_Sorteggia.press();
  EXPECT_EQ(status(), "Nessuna ricerca: premi Quanto è merito del caso? sul banco");
}

TEST_F(CasoWindow, TakesNoSeedThatIsNoNumber) {
  Caso& window = open();
  finish();
  for (const char* const seed : {"", "abc", "-1", "12 34"}) {
    window.Txt_Seme.set(seed);
    window.Cmd_Sorteggia.press();
    EXPECT_EQ(status(), "Il seme è un numero di al più 18 cifre") << seed;
  }
}

TEST_F(CasoWindow, OpensOnNothingButTheSearchThatStandsThere) {
  world.w.hs1.set(world.w.hs1.value() - 1);
  world.press("Cmd_Caso");
  EXPECT_EQ(status(), "La ricerca non è più quella di prima: ripetila per confrontarla col caso");
  EXPECT_FALSE(world.shell.isOpen("Caso"));
  world.press("Command99");
  world.press("Cmd_Caso");
  EXPECT_EQ(status(), "Per questa ricerca il confronto col caso non c'è");
  WorkbenchWorld empty(makeArchive());
  empty.press("Cmd_Caso");
  EXPECT_EQ(empty.shell.statusTexts.back(), "Nessuna ricerca da confrontare col caso: prima premi una ricerca");
}

TEST_F(CasoWindow, SaysWhatStaysFixed) {
  Caso& window = open();
  finish();
  EXPECT_EQ(
      window.LblFermi.text(),
      "Restano fermi gli 8 casi, le loro estrazioni, la ruota di gioco BA, i 5 colpi e la ricerca: 110 coppie di "
      "posizioni senza fix, 110 formule. Nuovi sono solo i numeri usciti nei colpi: cinque diversi su 90 per ogni "
      "ruota estratta.");
}

}  // namespace
}  // namespace trv5
