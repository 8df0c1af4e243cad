#include "cases/result_states.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <string>

#include "cases/chosen_situation.h"
#include "support/archive_builder.h"
#include "support/random_runs.h"
#include "support/random_search.h"
#include "support/workbench_world.h"

namespace trv5 {
namespace {

using Marks = std::set<std::string>;

const Marks kAll = {"FgEv", "FgSSS", "FgZ0", "FgZ1", "FgZ2", "FgZ3", "FgZZ", "Fg_Stat"};

constexpr const char* kNumbers = "03-14-25-36-47-58-69-80";

// The results that say that they no longer fit.
Marks marksOf(const Workbench& w) {
  Marks marks;
  for (const std::string& grid : kAll) {
    const auto& label = w.get<Label>("LblStato_" + grid);
    if (label.text().empty()) continue;
    EXPECT_EQ(label.text(), "non aggiornato");
    EXPECT_NE(label.toolTip(), "") << grid;
    marks.insert(grid);
  }
  return marks;
}

std::string reasonOf(const Workbench& w, const char* grid) {
  return w.get<Label>(std::string("LblStato_") + grid).toolTip();
}

void chooseSituation(WorkbenchWorld& world, std::mt19937& rng) {
  world.choose(world.w.ComboFiltro, "Numeri");
  world.w.TxtNumeri.set(kNumbers);
  world.w.ComboR1.pick(below(rng, kWheels));
  world.w.ComboNC.pick(4 + below(rng, 10));
  world.positions({1, 2, 3, 4, 5});
  world.w.ComboColpi.pick(4 + below(rng, 8));
  world.playOn({below(rng, 5), 5 + below(rng, 5)});
  world.w.ComboSorte.pick(below(rng, 3));
  for (GridControl* table : {&world.w.Fg11, &world.w.Fg22, &world.w.Fg33, &world.w.Fg00})
    for (int i = 1 + below(rng, 3); i > 0; --i) world.addFormula(*table, randomFormula(rng));
  for (Check* box : {&world.w.ChA, &world.w.ChB, &world.w.ChC}) box->set(true);
}

constexpr const char* kRoad[] = {"Command44", "Command29", "Command34", "Command48", "Command51", "Command86"};

void goTheRoad(WorkbenchWorld& world) {
  for (const char* const step : kRoad) world.press(step);
}

struct Change {
  const char* what;
  std::function<void(Workbench&)> change, back;
  Marks marks;
};

void next(Combo& combo, int step) {
  combo.pick((combo.index() + step + static_cast<int>(combo.items().size())) % static_cast<int>(combo.items().size()));
}

Change listChange(const char* what, Combo Workbench::*combo, Marks marks) {
  return {what, [combo](Workbench& w) { next(w.*combo, 1); }, [combo](Workbench& w) { next(w.*combo, -1); },
          std::move(marks)};
}

Change boxChange(const char* what, Check Workbench::*box, Marks marks) {
  const auto turn = [box](Workbench& w) { (w.*box).set(!(w.*box).checked()); };
  return {what, turn, turn, std::move(marks)};
}

// A formula goes, and comes back.
Change formulaChange(const char* what, GridControl Workbench::*table, const char* remove, Marks marks) {
  const auto kept = std::make_shared<Grid>();
  return {what,
          [table, remove, kept](Workbench& w) {
            *kept = (w.*table).grid();
            (w.*table).setCurrent(1);
            w.button(remove).press();
          },
          [table, kept](Workbench& w) {
            (w.*table).grid() = *kept;
            w.ComboEle.pick(0);  // an operation, after which the workbench looks
          },
          std::move(marks)};
}

std::vector<Change> changes() {
  const Marks played = {"FgSSS", "FgZ0", "FgZ1", "FgZ2", "FgZ3", "FgZZ", "Fg_Stat"};
  const auto click = [](Workbench& w) { w.FgRG.clickCell(0, kNational); };
  const auto position = [](Workbench& w) { w.LblPN[2].click(); };
  return {
      {"reference", [](Workbench& w) { w.hs1.set(w.hs1.value() - 1); },
       [](Workbench& w) { w.hs1.set(w.hs1.value() + 1); }, kAll},
      {"numbers", [](Workbench& w) { w.TxtNumeri.set("03"); }, [](Workbench& w) { w.TxtNumeri.set(kNumbers); }, kAll},
      {"positions", position, position, kAll},
      listChange("wheel of detection", &Workbench::ComboR1, kAll),
      listChange("cases wanted", &Workbench::ComboNC, kAll),
      {"kind",
       [](Workbench& w) {
         w.TxtNumeri.set("07");  // one value, as a distance wants it
         w.ComboFiltro.pick(2);
       },
       [](Workbench& w) {
         w.TxtNumeri.set(kNumbers);
         w.ComboFiltro.pick(1);
       },
       kAll},
      boxChange("two elements", &Workbench::Ch_analisi2ruote, kAll),
      {"wheels of play", click, click, played},
      listChange("colpi", &Workbench::ComboColpi, played),
      listChange("sorte", &Workbench::ComboSorte, {"FgZ0", "FgSSS"}),
      formulaChange("ambate", &Workbench::Fg11, "Command32", {"FgSSS", "FgZ1", "FgZ2", "FgZ3", "FgZZ", "Fg_Stat"}),
      formulaChange("ambi", &Workbench::Fg22, "Rimuove_Fg22", {"FgSSS", "FgZ2", "FgZ3", "FgZZ", "Fg_Stat"}),
      formulaChange("terni", &Workbench::Fg33, "Rimuove_Fg33", {"FgSSS", "FgZ3", "FgZZ", "Fg_Stat"}),
      formulaChange("lunghetta", &Workbench::Fg00, "Rimuove_Fg00", {"FgSSS", "FgZ0"}),
      boxChange("sorti of the summary", &Workbench::ChB, {"FgZZ", "Fg_Stat"}),
      boxChange("first colpo", &Workbench::Ch1esito, {"FgZZ", "Fg_Stat"}),
      listChange("length of the ranking", &Workbench::ComboEle, {}),
      listChange("operator", &Workbench::Combo1R_2N, {}),
      listChange("fix", &Workbench::ComboFix, {}),
      listChange("month", &Workbench::ComboPar, {}),  // unread by this kind
      boxChange("last draw", &Workbench::Ch_ultima, {}),
      boxChange("with fix", &Workbench::ChFix1R, {}),
      boxChange("uncovered cases", &Workbench::Ch_Scoperti, {}),
      boxChange("wheels of the row", &Workbench::Check3, {}),
  };
}

// Everything made, with cases to mark.
std::unique_ptr<WorkbenchWorld> finishedMethod(unsigned seed) {
  std::mt19937 rng(seed);
  auto world = std::make_unique<WorkbenchWorld>(randomArchive(rng, 120));
  chooseSituation(*world, rng);
  goTheRoad(*world);
  return world;
}

TEST(ResultStates, AreAllFreshOnTheRoadOfAMethod) {
  for (unsigned seed = 1; seed <= static_cast<unsigned>(randomRuns(60)); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(seed);
    WorkbenchWorld world(randomArchive(rng, 120));
    chooseSituation(world, rng);
    for (const char* const step : kRoad) {
      world.press(step);
      ASSERT_EQ(marksOf(world.w), Marks()) << step << ": " << reasonOf(world.w, "FgSSS");
    }
    ASSERT_TRUE(world.w.FgZZ.hasData() && world.w.FgZ0.hasData());
    goTheRoad(world);
    ASSERT_EQ(marksOf(world.w), Marks());
  }
}

TEST(ResultStates, MarkWhatReadsAChangedChoiceAndNothingElse) {
  for (unsigned seed = 1; seed <= static_cast<unsigned>(randomRuns(20)); ++seed) {
    const auto world = finishedMethod(seed);
    for (const Change& entry : changes()) {
      SCOPED_TRACE(std::string(entry.what) + ", seed " + std::to_string(seed));
      entry.change(world->w);
      ASSERT_EQ(marksOf(world->w), entry.marks);
      entry.back(world->w);
      ASSERT_EQ(marksOf(world->w), Marks());
    }
  }
}

TEST(ResultStates, AreFreshAgainWhenAllIsMadeAnew) {
  for (unsigned seed = 1; seed <= static_cast<unsigned>(randomRuns(20)); ++seed) {
    for (const Change& entry : changes()) {
      SCOPED_TRACE(std::string(entry.what) + ", seed " + std::to_string(seed));
      const auto world = finishedMethod(seed);
      if (world->w.Fg11.dataRows() < 2 || world->w.Fg22.dataRows() < 2 || world->w.Fg33.dataRows() < 2 ||
          world->w.Fg00.dataRows() < 2)
        break;  // a table that loses its only formula can't be verified anew
      entry.change(world->w);
      goTheRoad(*world);
      // Without cases the totals of before stay.
      ASSERT_EQ(marksOf(world->w), world->w.FgEv.hasData() ? Marks() : Marks{"FgSSS"});
    }
  }
}

// Equal choices, equal cases: what the choice leaves out is nothing that the detection reads.
TEST(ResultStates, KnowAllThatADetectionReads) {
  int withCases = 0;
  for (unsigned seed = 1; seed <= static_cast<unsigned>(randomRuns(200)); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(seed);
    WorkbenchWorld world(randomArchive(rng, 80));
    Workbench& w = world.w;
    chooseSituation(world, rng);
    for (Combo* list : {&w.ComboFiltro, &w.ComboPar, &w.ComboQNu, &w.ComboRetro, &w.ComboQNR1, &w.ComboQNR2})
      list->pick(below(rng, std::min(5, static_cast<int>(list->items().size()))));
    for (Check* box : {&w.Ch_analisi2ruote, &w.Ch_ultima, &w.ChDDS, &w.Ch_ISO}) box->set(below(rng, 2) == 0);
    w.ComboFiltro.pick(below(rng, 7));
    w.TxtNumeri.set(below(rng, 2) == 0 ? "7" : "03-14-25-36-47-58");
    for (int wheel = 0; wheel < kWheels; ++wheel) w.FgRR.clickCell(0, wheel);
    world.press("Command44");
    if (w.TxtNumeri.text().empty()) continue;  // refused
    PositionFlags struck{};
    std::vector<int> draws;
    for (const FoundCase& found : detectCases(world.archive, chosenSituation(w), struck))
      draws.push_back(found.first.draw);
    draws.resize(std::min<std::size_t>(draws.size(), kMostCases));
    if (world.shell.shown.empty()) {
      ASSERT_EQ(caseDraws(w), draws);
      withCases += draws.empty() ? 0 : 1;
    }
  }
  EXPECT_GT(withCases, 0);
}

TEST(ResultStates, TellColpiThatAVerificationDidNotTakeUp) {
  const auto world = finishedMethod(3);
  world->w.ComboColpi.pick(19);
  world->press("Command29");  // takes the colpi of the last detection
  EXPECT_TRUE(marksOf(world->w).contains("FgZ1"));
  EXPECT_NE(reasonOf(world->w, "FgZ1").find("ora sono 20"), std::string::npos);
}

TEST(ResultStates, ATriedRowSaysWhoseHitsStandThere) {
  const auto world = finishedMethod(4);
  Workbench& w = world->w;
  EXPECT_EQ(w.LblRigaProvata.text(), "");
  w.FgF.cutToHeading();
  world->addFormula(w.FgF, {.elements = {{0, 1}}, .fix = 29});
  w.FgF.setCurrent(1);
  world->press("Command22");
  EXPECT_EQ(w.LblRigaProvata.text(), "Esiti della riga provata BA 1 + 29");
  EXPECT_FALSE(marksOf(w).contains("FgZ1"));
  EXPECT_EQ(reasonOf(w, "FgZZ"), "Gli esiti riassunti sono cambiati");
  EXPECT_EQ(reasonOf(w, "FgSSS"), "I segni sull'elenco sono cambiati dopo il conteggio");
  world->press("Command86");
  EXPECT_EQ(reasonOf(w, "FgZZ"), "Fatto con gli esiti della riga provata BA 1 + 29");
  world->press("Command29");
  EXPECT_EQ(w.LblRigaProvata.text(), "");
}

TEST(ResultStates, GoWithTheirResults) {
  const auto world = finishedMethod(5);
  Workbench& w = world->w;
  w.ComboColpi.pick(19);
  world->press("Command19");  // the table of the ambate with its hits
  EXPECT_EQ(reasonOf(w, "FgZ1"), "");
  world->press("Command41");
  EXPECT_EQ(marksOf(w), Marks());
}

TEST(ResultStates, AreAPlainValueThatCanBePutBack) {
  const auto world = finishedMethod(6);
  Workbench& w = world->w;
  const ResultOrigins kept = w.origins;
  const Grid hits = w.FgZ1.grid();
  w.hs1.set(w.hs1.value() - 10);
  world->press("Command29");
  EXPECT_FALSE(w.origins == kept);
  w.hs1.set(w.hs1.maximum());
  w.FgZ1.grid() = hits;
  w.origins = kept;
  MostraStati(w);
  EXPECT_FALSE(marksOf(w).contains("FgZ1"));
}

TEST(ResultStates, FollowAVerificationBeyondTheLimit) {
  const auto world = finishedMethod(7);
  world->press("Command5");
  const Marks marks = marksOf(world->w);
  EXPECT_FALSE(marks.contains("FgZ2"));
  EXPECT_FALSE(marks.contains("FgSSS"));  // emptied
  world->w.ComboColpi.pick(19);
  EXPECT_EQ(marksOf(world->w).contains("FgZ2"), world->w.FgZ2.hasData());
}

TEST(ReferenceDraw, TellsHowFarBackItLies) {
  WorkbenchWorld world(archiveOf(std::vector<WheelNumbers>(50)));
  Workbench& w = world.w;
  w.ComboEle.pick(0);
  EXPECT_EQ(w.LblUltima.text(), "50 · ultima");
  w.hs1.set(33);
  EXPECT_EQ(w.LblUltima.text(), "33 · 17 prima dell'ultima");
  w.LblUltima.click();
  EXPECT_EQ(w.hs1.value(), 50);
  EXPECT_EQ(w.LblUltima.text(), "50 · ultima");
}

TEST(RankingOrigin, NamesTheSearchItsCasesAndWheels) {
  const auto world = finishedMethod(8);
  Workbench& w = world->w;
  world->playOn({2});
  w.ChFix1R.set(true);
  w.Combo1R_2N.pick(1);
  w.ComboNC.pick(4);
  world->press("Command44");
  EXPECT_EQ(w.LblOrigine.text(), "");
  world->press("Command23");
  EXPECT_EQ(w.LblOrigine.text(), "Ambate · 2N 1R · N1+N2 · 5 casi · FI");
  world->press("Command16");
  EXPECT_EQ(w.LblOrigine.text(), "Ambate · 2N 1R · N1+N2 · 5 casi · migliori 2 ruote");
  w.Combo1R_1N.pick(3);
  w.ChFix1R.set(false);
  w.Label17.click();
  world->press("Command20");
  EXPECT_EQ(w.LblOrigine.text(), "Ambate · 1N 1R · DEC · senza fix · 5 casi · tutte le ruote");
  world->press("Command99");
  EXPECT_EQ(w.LblOrigine.text(), "Ambate · NUM · 5 casi · migliori 3 ruote");
  world->press("Command29");
  world->press("Command105");
  EXPECT_EQ(w.LblOrigine.text(), "Ambi · NUM · 5 casi · tutte le ruote");
  world->press("Command41");
  EXPECT_EQ(w.LblOrigine.text(), "");
}

}  // namespace
}  // namespace trv5
