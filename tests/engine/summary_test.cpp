#include "engine/summary.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "cases/hit_rows.h"
#include "engine/statistics.h"
#include "engine/verified_method.h"
#include "support/random_runs.h"
#include "support/random_search.h"
#include "support/workbench_snapshot.h"

namespace trv5 {
namespace {

// RIEPILOGO as its steps tell it, on the grid: the hits of the ticked tables, then the cases without.
void plainJoin(Workbench& w) {
  Grid& FgZZ = w.FgZZ;
  FgZZ.setRows(1);
  std::array<std::array<bool, 4>, 51> CasoConEsito{};
  const std::array<const Check*, 3> boxes = {&w.ChA, &w.ChB, &w.ChC};
  const std::array<const Grid*, 3> grids = {&w.FgZ1.grid(), &w.FgZ2.grid(), &w.FgZ3.grid()};
  for (int q = 1; q <= 3; ++q) {
    const Grid& G = *grids[static_cast<std::size_t>(q - 1)];
    if (!boxes[static_cast<std::size_t>(q - 1)]->checked() || G.rows() < 2) continue;
    for (int r = 1; r < G.rows(); ++r)
      if (G.back(r, 0) == 0x80FF80) {
        auto& flags = CasoConEsito.at(static_cast<std::size_t>(G.number(r, 0)));
        flags[static_cast<std::size_t>(q)] = flags[0] = true;
      }
    for (int r = 1; r < G.rows(); ++r) {
      const int row = FgZZ.appendRow();
      for (int c = 0; c < G.columns(); ++c) FgZZ.setCell(row, c, G.at(r, c));
      FgZZ.setText(row, 3, G.back(r, 0) == 0x80FF80 ? std::to_string(q) : "");
    }
  }
  for (int row = FgZZ.rows() - 1; row >= 1; --row)
    if (FgZZ.back(row, 0) != 0x80FF80) FgZZ.removeRow(row);
  for (int i = 1; i < w.FgEv.rows(); ++i) {
    if (CasoConEsito.at(static_cast<std::size_t>(w.FgEv.number(i, 0)))[0]) continue;
    const int row = FgZZ.appendRow();
    FgZZ.setNumber(row, 0, i);
    FgZZ.setBack(row, 0, 0xFFC080);
    FgZZ.setText(row, 1, w.FgEv.text(i, 1));
    FgZZ.setText(row, 2, w.FgEv.text(i, 2));
    FgZZ.setBack(row, 2, 0xFFFFC0);
  }
  for (int row = 1; row < FgZZ.rows(); ++row) FgZZ.setBack(row, 3, 0x80FFFF);
  FgZZ.sortByNumber(14, false);
  FgZZ.sortByNumber(0, false);
}

void plainFirstColpo(Workbench& w) {
  Grid& FgZZ = w.FgZZ;
  if (w.Ch1esito.checked()) {
    std::array<int, 51> PrimoColpo{};
    PrimoColpo.fill(1000);
    for (int row = 1; row < FgZZ.rows(); ++row) {
      int& first = PrimoColpo.at(static_cast<std::size_t>(FgZZ.number(row, 0)));
      if (FgZZ.number(row, 14) > 0 && first >= FgZZ.number(row, 14)) first = FgZZ.number(row, 14);
    }
    for (int row = FgZZ.rows() - 1; row >= 1; --row)
      if (FgZZ.number(row, 14) > 0 &&
          FgZZ.number(row, 14) != PrimoColpo.at(static_cast<std::size_t>(FgZZ.number(row, 0))))
        FgZZ.removeRow(row);
  }
}

void plainStatistics(Workbench& w) {
  Grid& FgZZ = w.FgZZ;
  w.EsitiPerSorte = {};
  w.CasiInCorso = 0;
  for (int i = 1; i < w.FgEv.rows(); ++i) {
    if (w.FgEv.back(i, 1) != 0x00FFFF) continue;
    ++w.CasiInCorso;
    for (int row = 1; row < FgZZ.rows(); ++row)
      if (FgZZ.text(row, 0) == w.FgEv.text(i, 0)) FgZZ.setBack(row, 0, 0x00FFFF);
  }
  int Negativi = 0, Positivi = 0;
  for (int row = 1; row < FgZZ.rows(); ++row) {
    const int q = FgZZ.number(row, 3);
    if (q < 1 && FgZZ.back(row, 0) != 0x00FFFF) ++Negativi;
    if (q >= 1) {
      ++w.EsitiPerSorte[static_cast<std::size_t>(q)];
      ++Positivi;
    }
  }
  for (int row = 0; row <= 10; ++row) w.Fg_Stat.setText(row, 1, "");
  w.Fg_Stat.setText(0, 1, "RIE");
  w.Fg_Stat.setNumber(1, 1, w.FgEv.rows() - 1);
  w.Fg_Stat.setNumber(2, 1, w.FgEv.rows() - 1 - Negativi);
  w.Fg_Stat.setNumber(3, 1, Positivi);
  w.Fg_Stat.setNumber(4, 1, Negativi);
  w.Fg_Stat.setNumber(5, 1, w.CasiInCorso);
  for (int q = 1; q <= 5; ++q)
    if (w.EsitiPerSorte[static_cast<std::size_t>(q)] > 0)
      w.Fg_Stat.setNumber(5 + q, 1, w.EsitiPerSorte[static_cast<std::size_t>(q)]);
  PopolaGrafico(w);
  for (int row = 1; row < FgZZ.rows(); ++row) {
    const int q = FgZZ.number(row, 3);
    for (int c = 17; c <= 21 && q >= 1 && q <= 3; ++c)
      if (FgZZ.back(row, c) == 0x00FF00) FgZZ.setBack(row, c, q == 1 ? 0x80FF80U : q == 2 ? 0xFFFF00U : 0xFFC080U);
  }
  FgZZ.setMerged({0, 1, 2});
}

void plainSummary(Workbench& w) {
  plainJoin(w);
  plainFirstColpo(w);
  plainStatistics(w);
}

TEST(Summary, OfRandomMethodsIsWhatItsStepsLeave) {
  for (unsigned seed = 5000; seed < 5000 + static_cast<unsigned>(randomRuns(350)); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(seed);
    const Archive archive = randomMethodArchive(rng);
    std::mt19937 twinRng = rng;
    const auto world = verifiedMethod(rng, archive), twin = verifiedMethod(twinRng, archive);
    for (auto* w : {&world->w, &twin->w})
      if (w->FgEv.dataRows() == kMostCases)  // a full list whose first case was taken out can't be
        for (int row = 1; row <= kMostCases; ++row) w->FgEv.setNumber(row, 0, row);
    for (int choice = 0; choice < 3; ++choice) {
      for (auto* w : {&world->w, &twin->w}) {
        std::mt19937 boxes(seed * 3 + static_cast<unsigned>(choice));
        for (Check* box : {&w->ChA, &w->ChB, &w->ChC, &w->Ch1esito}) box->set(below(boxes, 3) != 0);
        if (choice == 2) w->FgZ2.cutToHeading();
      }
      world->press("Command86");
      plainSummary(twin->w);
      ASSERT_EQ(difference(WorkbenchSnapshot(twin->w), WorkbenchSnapshot(world->w)), "");
      ASSERT_TRUE(world->shell.shown.empty());
    }
  }
}

// Two cases, on draws 1 and 6, three colpi each. Case 1: an ambo in Cagliari at colpo 2; an ambata in Bari at colpo 3,
// two ambate at colpo 1 in the second case.
class SummaryOfTwoCases : public testing::Test {
 protected:
  SummaryOfTwoCases() : world(archiveOf(std::vector<WheelNumbers>(12))), w(world.w) {
    world.setCases({6, 1}, 3);
    for (Check* box : {&w.ChA, &w.ChB, &w.ChC}) box->set(true);
  }
  // A hit row of the case in row `caseRow`.
  static void hit(Grid& grid, int caseRow, int colpo, const std::string& wheel) {
    const int row = grid.appendRow();
    grid.setNumber(row, hit_column::kCase, caseRow);
    grid.setBack(row, hit_column::kCase, VerdeMedio);
    grid.setText(row, hit_column::kWheelCode, wheel);
    grid.setNumber(row, hit_column::kColpo, colpo);
    grid.setBack(row, hit_column::kDrawn, Verde);
  }
  static void miss(Grid& grid, int caseRow) {
    const int row = grid.appendRow();
    grid.setNumber(row, hit_column::kCase, caseRow);
    grid.setBack(row, hit_column::kCase, AranciaMedio);
  }
  // "1:2@2 " a row of case 1 with kind 2 at colpo 2; "2: " the row of a case without hit.
  std::string rows() const {
    std::string text;
    for (int row = 1; row < w.FgZZ.rows(); ++row) {
      text += w.FgZZ.text(row, 0) + ":" + w.FgZZ.text(row, 3);
      if (!w.FgZZ.text(row, 14).empty()) text += "@" + w.FgZZ.text(row, 14) + w.FgZZ.text(row, 13);
      text += ' ';
    }
    return text;
  }
  WorkbenchWorld world;
  Workbench& w;
};

TEST_F(SummaryOfTwoCases, IgnoresAKindWhoseGridHasItsHeadingAlone) {
  world.press("Command86");
  EXPECT_EQ(rows(), "1: 2: ");
  EXPECT_EQ(w.Fg_Stat.text(0, 1), "RIE");
  EXPECT_EQ(w.Fg_Stat.text(4, 1), "2");
}

TEST_F(SummaryOfTwoCases, TakesAnEmptyTickedKindBesideFullOnesAsNotTicked) {
  hit(w.FgZ2, 1, 2, "CA");
  hit(w.FgZ3, 1, 2, "BA");
  miss(w.FgZ2, 2);
  for (const bool ticked : {true, false}) {
    w.ChA.set(ticked);
    world.press("Command86");
    EXPECT_EQ(rows(), "1:2@2CA 1:3@2BA 2: ");
    EXPECT_EQ(w.Fg_Stat.text(2, 1), "1");
    EXPECT_EQ(w.Fg_Stat.text(3, 1), "2");
    EXPECT_EQ(w.Fg_Stat.text(4, 1), "1");
    EXPECT_EQ(w.EsitiPerSorte, (std::array<int, 6>{0, 0, 1, 1, 0, 0}));
  }
}

TEST_F(SummaryOfTwoCases, GivesACaseWithAnAmboAloneNoRowWithoutHit) {
  miss(w.FgZ1, 1);
  miss(w.FgZ1, 2);
  hit(w.FgZ2, 1, 2, "CA");
  world.press("Command86");
  EXPECT_EQ(rows(), "1:2@2CA 2: ");
  EXPECT_EQ(w.Fg_Stat.text(2, 1), "1");
  EXPECT_EQ(w.Fg_Stat.text(3, 1), "1");
  EXPECT_EQ(w.Fg_Stat.text(7, 1), "1");
}

TEST_F(SummaryOfTwoCases, TakesOnlyTheTickedKinds) {
  hit(w.FgZ1, 1, 3, "BA");
  hit(w.FgZ2, 1, 2, "CA");
  w.ChA.set(false);
  w.ChB.set(false);
  world.press("Command86");
  EXPECT_EQ(rows(), "1: 2: ");
}

TEST_F(SummaryOfTwoCases, StopsAtTheFirstColpoWhateverItsKind) {
  hit(w.FgZ1, 1, 3, "BA");
  hit(w.FgZ2, 1, 2, "CA");
  hit(w.FgZ1, 2, 1, "BA");
  hit(w.FgZ1, 2, 1, "FI");
  w.Ch1esito.set(true);
  world.press("Command86");
  EXPECT_EQ(rows(), "1:2@2CA 2:1@1BA 2:1@1FI ");
  w.Ch1esito.set(false);
  world.press("Command86");
  EXPECT_EQ(rows(), "1:2@2CA 1:1@3BA 2:1@1BA 2:1@1FI ");
}

TEST_F(SummaryOfTwoCases, CountsAnOpenCaseWithoutHitAsOpenAndNotAsNegative) {
  w.FgEv.setBack(1, 1, Ciano);
  world.press("Command86");
  EXPECT_EQ(rows(), "1: 2: ");
  EXPECT_EQ(w.FgZZ.back(1, 0), Ciano);
  EXPECT_EQ(w.FgZZ.back(2, 0), AranciaMedio);
  EXPECT_EQ(w.Fg_Stat.text(4, 1), "1");
  EXPECT_EQ(w.Fg_Stat.text(5, 1), "1");
  EXPECT_EQ(w.Fg_Stat.text(2, 1), "1") << "the open case without hit is among the covered ones";
}

TEST_F(SummaryOfTwoCases, DropsTheHitsOfOpenCases) {
  hit(w.FgZ1, 1, 3, "BA");
  w.FgZ1.setBack(1, 0, Ciano);
  w.FgEv.setBack(1, 1, Ciano);
  world.press("Command86");
  EXPECT_EQ(rows(), "1: 2: ");
}

TEST_F(SummaryOfTwoCases, PaintsKindsAndLeavesItsSourcesAlone) {
  hit(w.FgZ1, 1, 3, "BA");
  hit(w.FgZ2, 1, 2, "CA");
  hit(w.FgZ3, 2, 1, "FI");
  const Grid z1 = w.FgZ1, z2 = w.FgZ2, z3 = w.FgZ3, cases = w.FgEv;
  world.press("Command86");
  ASSERT_EQ(rows(), "1:2@2CA 1:1@3BA 2:3@1FI ");
  for (int row = 1; row <= 3; ++row) EXPECT_EQ(w.FgZZ.back(row, 3), CianoMedio);
  EXPECT_EQ(w.FgZZ.back(1, 17), Giallo);
  EXPECT_EQ(w.FgZZ.back(2, 17), VerdeMedio);
  EXPECT_EQ(w.FgZZ.back(3, 17), AranciaMedio);
  EXPECT_EQ(w.FgZZ.mergedColumns(), (std::set<int>{0, 1, 2}));
  EXPECT_EQ(w.FgZ1.grid(), z1);
  EXPECT_EQ(w.FgZ2.grid(), z2);
  EXPECT_EQ(w.FgZ3.grid(), z3);
  EXPECT_EQ(w.FgEv.grid(), cases);
}

TEST_F(SummaryOfTwoCases, FillsTheChart) {
  hit(w.FgZ1, 1, 3, "BA");
  world.press("Command86");
  EXPECT_EQ(w.Fg_Graf.text(0, 1), "1");
  EXPECT_EQ(w.Fg_Graf.text(0, 2), "50.0");
  EXPECT_EQ(w.Fg_Graf.text(1, 2), "50.0");
  EXPECT_EQ(w.Fg_Graf.text(2, 2), ".0");
  EXPECT_EQ(w.Fg_Graf.bars().at({0, 2}), (Bar{50, Verde}));
}

TEST_F(SummaryOfTwoCases, WithoutCasesShowsNoPercentAndNoMessage) {
  w.FgEv.cutToHeading();
  world.press("Command86");
  EXPECT_FALSE(w.FgZZ.hasData());
  EXPECT_EQ(w.Fg_Graf.text(0, 2), "");
  EXPECT_TRUE(w.Fg_Graf.bars().empty());
  EXPECT_TRUE(world.shell.shown.empty());
}

TEST_F(SummaryOfTwoCases, EndsWithItsMessageWhereAGridHoldsACaseThatCanNotBe) {
  hit(w.FgZ1, 1, 3, "BA");
  hit(w.FgZ1, 4711, 3, "BA");
  w.Ch1esito.set(true);
  world.press("Command86");
  EXPECT_EQ(world.shell.texts(), std::vector<std::string>{"Attenzione! probabile anomalia.."});
  EXPECT_EQ(world.shell.lastBox().icon, Icon::Critical);
  EXPECT_EQ(world.shell.lastBox().title, "Avviso");
  ASSERT_EQ(w.FgZZ.rows(), 4);  // the rest is done: the hit, the case without, the row that can't be
  EXPECT_EQ(w.FgZZ.number(1, hit_column::kCase), 1);
  EXPECT_EQ(w.FgZZ.number(2, hit_column::kCase), 2);
  EXPECT_EQ(w.FgZZ.number(3, hit_column::kCase), 4711);
  EXPECT_EQ(w.Fg_Stat.text(3, 1), "2");
  EXPECT_EQ(w.Fg_Graf.text(0, 1), "1");
}

TEST(RielaboraTutto, RebuildsCasesAndTablesAndKeepsFormulas) {
  std::mt19937 rng(9);
  WorkbenchWorld world(randomArchive(rng, 300));
  Workbench& w = world.w;
  w.Label17.click();
  w.ComboPar.pick(1);
  for (Grid* table : {&w.Fg11.grid(), &w.Fg22.grid(), &w.Fg33.grid(), &w.Fg00.grid()})
    WorkbenchWorld::addFormula(*table, {.elements = {{1, 2}}});
  world.press("Command87");
  EXPECT_EQ(w.FgEv.dataRows(), 10);
  for (const Grid* hits : {&w.FgZ1.grid(), &w.FgZ2.grid(), &w.FgZ3.grid(), &w.FgZ0.grid()})
    EXPECT_TRUE(hits->hasData());
  EXPECT_EQ(w.Fg_Stat.text(0, 1), "LU") << "the lunghetta is verified last";
  EXPECT_EQ(w.Fg11.dataRows(), 1);
}

TEST(RielaboraTutto, GoesOnWhenTheDetectionStops) {
  std::mt19937 rng(10);
  WorkbenchWorld world(randomArchive(rng, 300));
  Workbench& w = world.w;
  world.setCases({200, 100});
  WorkbenchWorld::addFormula(w.Fg11, {.elements = {{1, 2}}});
  w.ComboFiltro.pick(1);  // "Numeri" without a number
  world.press("Command87");
  EXPECT_EQ(world.shell.texts(), std::vector<std::string>{"Attenzione: Selezionare almeno un valore"});
  EXPECT_EQ(w.FgEv.dataRows(), 2);
  EXPECT_TRUE(w.FgZ1.hasData());
}

}  // namespace
}  // namespace trv5
