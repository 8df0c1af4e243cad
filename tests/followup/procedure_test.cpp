// "Esegue procedura" over a long list of saved methods.
#include <fmt/format.h>
#include <gtest/gtest.h>

#include "configs/configuration_world.h"
#include "engine/result_forms.h"

namespace trv5 {
namespace {

// Two hundred methods on the last draw of each month, the one of number i with the ambata 1 + i % 90; every twentieth
// of the kind Ciclo, one with a formula in a row that its table doesn't have, one on a draw beyond the archive.
class LongProcedure : public testing::Test {
 protected:
  static constexpr int kMethods = 200, kBroken = 33, kBeyond = 77;

  LongProcedure() {
    world.shell.addScreen("Speciale", [this] { return std::make_unique<Speciale>(world.shell); });
    w.ComboFiltro.pick(0);
    w.ComboPar.pick(0);
    w.Label18.click();
    w.FgRG.clickCell(0, 0);
    WorkbenchWorld::addFormula(w.Fg11, {.fix = 2, .nr = "0"});
    EXPECT_TRUE(world.save(nameOf(1)));
    multiply();
    world.change("UPDATE Elenco_Memo SET Tiporilevazione = 5 WHERE substr(Denominazione, 2) % 20 = 0");
    world.change("UPDATE Elenco_Dett SET Riga = 9 WHERE Rif_Memo = " + idOf(kBroken));
    world.change("UPDATE Elenco_Memo SET Estrazione = 9999 WHERE Id_Config = " + idOf(kBeyond));
    world.press("Cmd_Elenco");
    world.shell.shown.clear();
    world.shell.statusTexts.clear();
    world.shell.reasons.clear();
  }
  // The first saved method another 199 times.
  void multiply() {
    std::string all =
        "BEGIN; CREATE TEMP TABLE Memo AS SELECT * FROM Elenco_Memo; CREATE TEMP TABLE Dett AS SELECT * "
        "FROM Elenco_Dett;";
    for (int i = 2; i <= kMethods; ++i)
      all += fmt::format(
          "UPDATE Memo SET Id_Config = NULL, Denominazione = '{}'; INSERT INTO Elenco_Memo SELECT * FROM Memo; UPDATE "
          "Dett SET Id_Dett = NULL, Rif_Memo = last_insert_rowid(), Fix = '{}'; INSERT INTO Elenco_Dett SELECT * FROM "
          "Dett;",
          nameOf(i), 1 + i % 90);
    world.change(all + "COMMIT");
    EXPECT_EQ(world.saved(), kMethods);
  }
  static std::string nameOf(int method) { return fmt::format("m{:03}", method); }
  static std::string idOf(int method) {
    return "(SELECT Id_Config FROM Elenco_Memo WHERE Denominazione = '" + nameOf(method) + "')";
  }
  static bool leftOut(int method) { return method % 20 == 0 || method == kBroken || method == kBeyond; }
  bool told(const std::string& text) const {
    const auto& all = world.shell.statusTexts;
    return std::find(all.begin(), all.end(), text) != all.end();
  }

  ConfigurationWorld world{ConfigurationWorld::someRows(40)};
  Workbench& w = world.w();
};

TEST_F(LongProcedure, GoesToItsEndPastTheMethodsThatItLeavesOut) {
  world.press("Command106");
  std::vector<std::string> expected, found;
  for (int i = 1; i <= kMethods; ++i)
    if (!leftOut(i)) expected.push_back(nameOf(i));
  for (int row = 1; row < w.FgRagg.rows(); ++row)
    if (found.empty() || found.back() != w.FgRagg.text(row, 2)) found.push_back(w.FgRagg.text(row, 2));
  EXPECT_EQ(found, expected);
  for (int row = 1; row <= kMethods; ++row) {
    const Rgb back = leftOut(row) ? Arancia : kWhite;
    EXPECT_EQ(w.FgPir1.back(row, 1), back) << row;
    EXPECT_EQ(w.FgPir1.back(row, 2), back) << row;
  }
  EXPECT_EQ(w.hs1.value(), 40);
}

TEST_F(LongProcedure, ShowsTheMessageOfTheReloadForEachThatFailsAndWhichOneItIs) {
  world.press("Command106");
  EXPECT_EQ(world.shell.texts(), (std::vector<std::string>{kNotReloaded, kNotReloaded}));
  EXPECT_EQ(world.shell.lastBox().title, "Anomalia nel database");
  EXPECT_TRUE(told("Esegue procedura: configurazione 33 di 200 non ricaricata, m033"));
  EXPECT_TRUE(told("Esegue procedura: configurazione 77 di 200 non ricaricata, m077"));
  ASSERT_EQ(world.shell.reasons.size(), 2U);
  EXPECT_NE(world.shell.reasons[0].find("m033"), std::string::npos) << world.shell.reasons[0];
  EXPECT_NE(world.shell.reasons[1].find("m077"), std::string::npos) << world.shell.reasons[1];
  EXPECT_EQ(world.shell.progressValues.size(), 201U);
  EXPECT_EQ(world.shell.progressValues.front(), std::pair(0, 200));
  EXPECT_EQ(world.shell.progressValues.back(), std::pair(200, 200));
}

}  // namespace
}  // namespace trv5
