// "Esegue procedura" beside a user who runs one saved method after the other by hand and copies the forecasts.
#include <gtest/gtest.h>

#include <algorithm>

#include "configs/configuration_world.h"
#include "core/text.h"
#include "engine/result_forms.h"
#include "support/plain_followup.h"
#include "support/random_method.h"
#include "support/random_runs.h"
#include "support/random_search.h"

namespace trv5 {
namespace {

// Two runs of the program on the same draws and the same saved methods.
class Side {
 public:
  explicit Side(const std::vector<DrawRow>& rows) : m_world(rows) {
    m_world.shell.addScreen("Speciale", [this] { return std::make_unique<Speciale>(m_world.shell); });
  }
  Workbench& w() { return m_world.w(); }
  void press(const char* button) { m_world.press(button); }
  FakeShell& shell() { return m_world.shell; }

  // The workbench as a user leaves it who saves some random methods; `save` gets the name of each.
  template <class Save>
  void playMethods(std::mt19937& rng, Save save) {
    for (int i = 1 + below(rng, 4); i > 0; --i) {
      randomWorkbench(w(), rng);
      if (below(rng, 4) != 0) chooseLiveCases(rng);
      save("metodo " + std::to_string(below(rng, 1000)) + "-" + std::to_string(i));
    }
  }
  // Saves them in the place of those before, a few damaged.
  void replaceMethods(std::mt19937& rng) {
    std::string changes;
    m_world.change("DELETE FROM Elenco_Dett; DELETE FROM Elenco_Memo");
    playMethods(rng, [&](const std::string& name) {
      EXPECT_TRUE(m_world.save(name)) << name;
      changes += damage(name, below(rng, 12));
    });
    if (!changes.empty()) m_world.change(changes);
  }
  // The same acts of the user, without the saving: the methods are those of the other run.
  void takeMethods(const Side& other, std::mt19937& rng) {
    playMethods(rng, [&](const std::string& name) {
      w().Txt_Denominazione.set(name);
      below(rng, 12);
    });
    m_world.change("ATTACH '" + other.m_world.mainFile().string() +
                   "' AS other; BEGIN; DELETE FROM Elenco_Dett; DELETE FROM Elenco_Memo; INSERT INTO Elenco_Memo "
                   "SELECT * FROM other.Elenco_Memo; INSERT INTO Elenco_Dett SELECT * FROM other.Elenco_Dett; COMMIT");
  }
  // How many boxes told that a method couldn't be reloaded.
  int failures() {
    const std::vector<std::string> texts = shell().texts();
    return static_cast<int>(std::count(texts.begin(), texts.end(), kNotReloaded));
  }
  Grid outcomes() { return dynamic_cast<Speciale&>(shell().show("Speciale")).Fg1; }

 private:
  // Many cases, the newest of them still open.
  void chooseLiveCases(std::mt19937& rng) {
    w().ComboFiltro.pick(0);
    w().ComboPar.pick(below(rng, 2));
    w().ComboNC.pick(4 + below(rng, 10));
    w().ComboColpi.pick(6 + below(rng, 8));
    w().Ch_analisi2ruote.set(false);
    if (!w().Fg11.hasData()) fillTable(w().Fg11, rng, 2);
  }
  static std::string damage(const std::string& name, int kind) {
    const std::string mine = "(SELECT Id_Config FROM Elenco_Memo WHERE Denominazione = '" + name + "');";
    if (kind == 0) return "UPDATE Elenco_Memo SET Tiporilevazione = 5 WHERE Id_Config = " + mine;
    if (kind == 1) return "UPDATE Elenco_Memo SET Estrazione = 9999 WHERE Id_Config = " + mine;
    if (kind == 2) return "UPDATE Elenco_Dett SET Riga = 99 WHERE Riga = 2 AND Rif_Memo = " + mine;
    if (kind == 3) return "UPDATE Elenco_Memo SET NumCasi = 500 WHERE Id_Config = " + mine;
    return {};
  }

  ConfigurationWorld m_world;
};

constexpr int kKindColumn = 7;

void leaveOut(Grid& list, int row) {
  list.setBack(row, 1, 0xFF8000);
  list.setBack(row, 2, 0xFF8000);
}

// Leaves in `FgRagg` what the user has written down.
void byHand(Side& side) {
  Workbench& w = side.w();
  if (w.FgPir1.rows() < 2) return;
  Grid gathered = w.FgRagg;
  gathered.setRows(1);
  w.ComboFix.select(0);
  for (int row = 1; row < w.FgPir1.rows(); ++row) {
    ASSERT_TRUE(equalIgnoringCase(w.FgPir1.text(0, kKindColumn), "TipoRilevazione"));
    if (w.FgPir1.text(row, kKindColumn) == "5") {
      leaveOut(w.FgPir1, row);
      continue;
    }
    const int failures = side.failures();
    w.FgPir1.doubleClickCell(row, 1);
    if (side.failures() > failures) {
      leaveOut(w.FgPir1, row);
      continue;
    }
    w.hs1.set(w.archive.UltimaEstrazione());
    side.press("Command87");
    side.press("Command35");
    PlainFollowup now(w);
    now.FgRagg = gathered;
    now.gather(row);
    gathered = now.FgRagg;
  }
  w.FgRagg.grid() = gathered;
}

TEST(RandomProcedure, LeavesWhatRunningEachMethodByHandLeaves) {
  std::mt19937 rng(2027);
  int withForecasts = 0, withOutcomes = 0, leftOut = 0;
  const int seeds = randomRuns(10), settings = 10;
  for (int seed = 1; seed <= seeds; ++seed) {
    const std::vector<DrawRow> rows = randomRows(rng, 40 + below(rng, 60));
    Side quick(rows), hand(rows);
    for (int setting = 0; setting < settings; ++setting) {
      SCOPED_TRACE("seed " + std::to_string(seed) + ", setting " + std::to_string(setting));
      std::mt19937 same = rng;
      quick.replaceMethods(rng);
      hand.takeMethods(quick, same);
      ASSERT_EQ(same, rng);
      for (Side* const side : {&quick, &hand}) {
        std::mt19937 again = rng;
        randomWorkbench(side->w(), again);
        side->press("Cmd_Elenco");
        side->shell().shown.clear();
      }
      quick.press("Command106");
      ASSERT_NO_FATAL_FAILURE(byHand(hand));
      PlainFollowup plain(hand.w());
      plain.Command117();
      ASSERT_EQ(difference(plain, quick.w()), "");
      ASSERT_EQ(quick.shell().texts(), hand.shell().texts());
      ASSERT_EQ(quick.shell().isOpen("Speciale"), plain.speciale.hasData());
      if (plain.speciale.hasData()) {
        ASSERT_EQ(difference(plain.speciale, quick.outcomes()), "");
      }
      withForecasts += plain.FgRagg.hasData();
      withOutcomes += plain.speciale.hasData();
      leftOut += plain.FgPir1.back(1, 1) == Arancia;
    }
  }
  EXPECT_GT(withForecasts * 4, seeds * settings);
  EXPECT_GT(withOutcomes * 10, seeds * settings);
  EXPECT_GT(leftOut * 20, seeds * settings);
}

}  // namespace
}  // namespace trv5
