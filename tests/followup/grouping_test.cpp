#include "followup/grouping.h"

#include <gtest/gtest.h>

#include "configs/configuration_world.h"
#include "engine/result_forms.h"

namespace trv5 {
namespace {

// Sixty draws in which BA holds 1 to 5 all along.
std::vector<DrawRow> draws() {
  std::vector<DrawRow> rows;
  for (int i = 1; i <= 60; ++i) rows.push_back(drawOf(dateOfDraw(i), {{"BA", {1, 2, 3, 4, 5}}}));
  return rows;
}

class Grouping : public testing::Test {
 protected:
  Grouping() {
    world.shell.addScreen("Speciale", [this] { return std::make_unique<Speciale>(world.shell); });
  }
  Workbench& w() { return world.w(); }
  void press(const char* button) { world.press(button); }
  Grid& outcomes() { return dynamic_cast<Speciale&>(world.shell.show("Speciale")).Fg1; }

  // A method on the last draw of each month, as the workbench has it saved.
  void save(const std::string& name, int ambata, int ambo = 0, int lunghetta = 0, int sorte = 0) {
    press("Command41");
    w().ComboFiltro.pick(0);
    w().ComboPar.pick(0);
    w().Ch_ultima.set(false);
    w().ComboSorte.pick(sorte);
    if (ambata > 0) pure(w().Fg11, ambata);
    if (ambo > 0) pure(w().Fg22, ambo);
    if (lunghetta > 0) pure(w().Fg00, lunghetta);
    EXPECT_TRUE(world.save(name)) << name;
  }
  static void pure(Grid& table, int number) { WorkbenchWorld::addFormula(table, {.fix = number, .nr = "0"}); }
  void run() {
    press("Cmd_Elenco");
    press("Command106");
  }
  // The configurations that gave a row, each as often as it did.
  std::vector<std::string> names() {
    std::vector<std::string> found;
    for (int row = 1; row < w().FgRagg.rows(); ++row) found.push_back(w().FgRagg.text(row, 2));
    return found;
  }
  std::string kindColumn(const std::string& value, const std::string& name) {
    return "UPDATE Elenco_Memo SET Tiporilevazione = " + value + " WHERE Denominazione = '" + name + "'";
  }

  ConfigurationWorld world{draws()};
};

TEST_F(Grouping, GathersTheLiveForecastsOfAllConfigurations) {
  save("Alfa", 77);
  save("Beta", 78, 88);
  w().hs1.set(30);
  run();
  ASSERT_EQ(names(), (std::vector<std::string>{"Alfa", "Beta", "Beta"}));
  const Grid& grid = w().FgRagg;
  EXPECT_EQ(grid.text(3, 1), w().FgPir1.text(world.rowOf("Beta"), 1));
  EXPECT_EQ(grid.text(3, 5), "2");
  EXPECT_EQ(grid.text(3, 7) + grid.text(3, 8), "7888");
  EXPECT_EQ(grid.text(3, 17), "X");
  EXPECT_EQ(grid.back(3, 17), Verde);
  EXPECT_EQ(grid.text(3, 18), "");
  EXPECT_EQ(grid.back(1, 3), VerdeMedio);
  EXPECT_EQ(grid.back(1, 6), GialloMedio);
  EXPECT_EQ(grid.at(1, 5).fore, Rosso);
  EXPECT_TRUE(grid.at(1, 16).bold);
  EXPECT_EQ(grid.mergedColumns(), (std::set<int>{1, 2}));
}

TEST_F(Grouping, LeavesTheLastConfigurationOnTheWorkbenchAtTheLastDraw) {
  save("Alfa", 77);
  save("Beta", 78, 88);
  w().hs1.set(30);
  run();
  EXPECT_EQ(w().Txt_Denominazione.text(), "Beta");
  EXPECT_EQ(w().hs1.value(), 60);
  EXPECT_EQ(w().Fg22.dataRows(), 1);
  EXPECT_EQ(w().FgPir1.current(), world.rowOf("Beta"));
}

TEST_F(Grouping, ShowsTheSorteOfALunghettaAlone) {
  save("Alfa", 0, 0, 55, 2);
  run();
  ASSERT_EQ(w().FgRagg.dataRows(), 1);
  EXPECT_EQ(w().FgIC.text(1, 1), "3L");
  EXPECT_EQ(w().FgRagg.text(1, 5), "3");
}

TEST_F(Grouping, TakesNoRowFromAConfigurationWithoutOpenCase) {
  save("Alfa", 77);
  save("Beta", 0);
  run();
  EXPECT_EQ(names(), std::vector<std::string>{"Alfa"});
}

TEST_F(Grouping, MarksAndPassesOverTheCycle) {
  save("Alfa", 77);
  save("Beta", 78);
  world.change(kindColumn("5", "Beta"));
  run();
  EXPECT_EQ(names(), std::vector<std::string>{"Alfa"});
  const int row = world.rowOf("Beta");
  EXPECT_EQ(w().FgPir1.back(row, 1), Arancia);
  EXPECT_EQ(w().FgPir1.back(row, 2), Arancia);
  EXPECT_EQ(w().FgPir1.back(row, 3), kWhite);
  EXPECT_EQ(w().FgPir1.back(world.rowOf("Alfa"), 1), kWhite);
  EXPECT_EQ(w().Txt_Denominazione.text(), "Alfa");
}

TEST_F(Grouping, SaysWhichConfigurationFailsAndGoesOn) {
  save("Alfa", 77);
  save("Beta", 78);
  save("Gamma", 79);
  world.change("UPDATE Elenco_Memo SET Estrazione = 9999 WHERE Denominazione = 'Beta'");
  press("Cmd_Elenco");
  world.shell.shown.clear();
  world.shell.statusTexts.clear();
  press("Command106");
  EXPECT_EQ(world.shell.texts(), std::vector<std::string>{kNotReloaded});
  EXPECT_EQ(names(), (std::vector<std::string>{"Alfa", "Gamma"}));
  EXPECT_EQ(w().FgPir1.back(world.rowOf("Beta"), 1), Arancia);
  const auto& told = world.shell.statusTexts;
  EXPECT_EQ(std::count(told.begin(), told.end(), "Esegue procedura: configurazione 2 di 3 non ricaricata, Beta"), 1);
  EXPECT_EQ(told.back(), "Esegue procedura: 2 configurazioni su 3, 2 previsioni in corso");
  EXPECT_EQ(world.shell.progressValues.back(), std::pair(3, 3));
}

TEST_F(Grouping, PutsTheFixBackToEmptyFirst) {
  save("Alfa", 77);
  w().ComboFix.pick(29);
  run();
  EXPECT_EQ(w().ComboFix.index(), 0);
}

TEST_F(Grouping, DoesNothingWithoutConfigurations) {
  w().ComboFix.pick(29);
  w().FgRagg.appendRow();
  run();
  EXPECT_EQ(w().ComboFix.index(), 29);
  EXPECT_EQ(w().FgRagg.dataRows(), 1);
}

TEST_F(Grouping, ShowsNothingOfTheConfigurationsOnTheWay) {
  save("Alfa", 77);
  save("Beta", 78);
  press("Cmd_Elenco");
  int heard = 0, cases = 0;
  w().Txt_Denominazione.setListener([&] { ++heard; });
  w().FgEv.setGridListener([&](const GridChange&) { ++cases; });
  press("Command106");
  w().Txt_Denominazione.setListener({});
  w().FgEv.setGridListener({});
  EXPECT_EQ(heard, 1);
  EXPECT_EQ(cases, 1);
}

TEST_F(Grouping, CountsOnTheWheelsThatBearAnX) {
  save("Alfa", 77);
  run();
  w().FgRagg.setText(1, 17, "");
  w().FgRagg.setText(1, 18, "X");
  press("Command114");
  EXPECT_EQ(w().FgConv.text(77, 1), "");
  EXPECT_EQ(w().FgConv.text(77, 2), "1");
}

TEST_F(Grouping, TellsWhatCameOutInAFormOfItsOwn) {
  save("Alfa", 3, 4);
  run();
  ASSERT_EQ(w().FgRagg.dataRows(), 2);
  const int draw = w().FgRagg.number(1, 3);
  ASSERT_LT(draw, 60);
  ASSERT_TRUE(world.shell.isOpen("Speciale"));
  const Grid& out = outcomes();
  ASSERT_EQ(out.dataRows(), 2 * (60 - draw));
  EXPECT_EQ(out.text(1, 17) + out.text(1, 18) + out.text(1, 19), "11BA");
  EXPECT_EQ(out.back(1, 7), ColoriSorte[1]);
  const int pair = 60 - draw + 1;
  EXPECT_EQ(out.text(pair, 17) + out.text(pair, 18), "21");
  EXPECT_EQ(out.back(pair, 7), ColoriSorte[2]);
  EXPECT_EQ(out.back(pair, 8), ColoriSorte[2]);
  EXPECT_EQ(out.back(pair, 9), kWhite);
  EXPECT_TRUE(out.at(1, 17).bold && out.at(1, 19).bold && !out.at(1, 18).bold);
  EXPECT_EQ(out.back(1, 18), GialloChiaro);
  EXPECT_EQ(out.back(1, 4), AranciaChiaro);
  EXPECT_EQ(out.mergedColumns(), (std::set<int>{1, 3, 4}));
  EXPECT_EQ(w().FgRagg.back(1, 17), Ciano);
}

TEST_F(Grouping, ClosesTheFormOfOutcomesWhenThereAreNone) {
  save("Alfa", 3);
  run();
  ASSERT_TRUE(world.shell.isOpen("Speciale"));
  w().FgRagg.cutToHeading();
  press("Command117");
  EXPECT_FALSE(world.shell.isOpen("Speciale"));
}

TEST_F(Grouping, LooksForWhatCameOutInTheColpiOfTheWorkbench) {
  save("Alfa", 3);
  run();
  const int all = outcomes().dataRows();
  w().Colpi = 1;
  press("Command117");
  EXPECT_GT(all, 1);
  EXPECT_EQ(outcomes().dataRows(), 1);
}

TEST_F(Grouping, CountsConvergencesAndLeavesTheRestBlank) {
  save("Alfa", 77);
  save("Beta", 77, 88);
  run();
  press("Command114");
  EXPECT_EQ(w().FgConv.dataRows(), 90);
  EXPECT_EQ(w().FgConv.text(90, 0), "90");
  EXPECT_EQ(w().FgConv.text(77, 1), "2");
  EXPECT_EQ(w().FgConv.text(77, 2), "");
  EXPECT_EQ(w().FgConv.text(88, 1), "");
  EXPECT_EQ(spiegaConvergenza(w(), 77, 1), "Alfa\nBeta");
  EXPECT_EQ(spiegaConvergenza(w(), 77, 2), "");
  EXPECT_EQ(spiegaConvergenza(w(), 77, 0), "");
  press("Command115");
  EXPECT_EQ(w().FgConv.text(77, 1), "1");
  EXPECT_EQ(w().FgConv.text(88, 1), "1");
  EXPECT_EQ(spiegaConvergenza(w(), 88, 1), "Beta");
  press("Command116");
  EXPECT_EQ(w().FgConv.text(88, 1), "");
}

TEST_F(Grouping, NamesNoConfigurationForCountsOfAnotherRun) {
  save("Alfa", 77);
  run();
  press("Command114");
  w().FgRagg.cutToHeading();
  EXPECT_EQ(spiegaConvergenza(w(), 77, 1), "");
}

TEST_F(Grouping, CountsALunghettaOfSorteOneAmongTheAmbateWithItsFirstNumber) {
  save("Alfa", 0, 0, 55, 0);
  run();
  w().FgRagg.setText(1, 8, "60");
  press("Command114");
  EXPECT_EQ(w().FgConv.text(55, 1), "1");
  EXPECT_EQ(w().FgConv.text(60, 1), "");
}

TEST_F(Grouping, ShowsTheNameOfTheRowClicked) {
  save("Alfa", 77);
  run();
  w().FgRagg.clickCell(1, 5);
  EXPECT_EQ(w().Label7.text(), "Alfa");
  w().Label7.setText("");
  w().FgRagg.clickCell(0, 5);
  EXPECT_EQ(w().Label7.text(), "");
}

TEST_F(Grouping, GrowsOldWithTheListAndItsCountsWithTheNextRun) {
  save("Alfa", 77);
  run();
  press("Command114");
  const auto told = [this](const char* grid) { return w().get<Label>(std::string("LblStato_") + grid).toolTip(); };
  EXPECT_EQ(told("FgRagg") + told("FgConv"), "");
  press("Command106");
  EXPECT_EQ(told("FgRagg"), "");
  EXPECT_EQ(told("FgConv"), "Il raggruppamento è stato rifatto");
  save("Beta", 78);
  press("Cmd_Elenco");
  EXPECT_EQ(told("FgRagg"), "L'elenco delle configurazioni è cambiato");
}

}  // namespace
}  // namespace trv5
