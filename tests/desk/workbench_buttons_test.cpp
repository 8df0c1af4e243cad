#include "desk/workbench_buttons.h"

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <memory>
#include <set>
#include <string>

#include "cases/case_map.h"
#include "engine/caso.h"
#include "engine/prova_avanti.h"
#include "engine/result_forms.h"
#include "maintenance/mini_list.h"
#include "support/archive_builder.h"
#include "support/workbench_snapshot.h"
#include "support/workbench_world.h"

namespace trv5 {
namespace {

TEST(WorkbenchButtons, StandOnceEachAndReachTheWorkbench) {
  WorkbenchWorld world(archiveOf({{{"BA", {1, 2, 3, 4, 5}}}}));
  std::set<std::string> names;
  for (const WorkbenchButtons& group : workbenchButtons()) {
    EXPECT_STRNE(group.place, "");
    for (const WorkbenchButton& row : group.buttons) {
      EXPECT_TRUE(names.insert(row.name).second) << row.name << " stands twice";
      const Button& button = world.w.button(row.name);
      EXPECT_EQ(button.caption(), row.caption);
      EXPECT_EQ(button.hasEvent(), row.run != nullptr) << row.name;
      EXPECT_TRUE(row.run == nullptr || button.toolTip() == row.toolTip) << row.name;
    }
  }
  EXPECT_EQ(names.size(), 127U);
}

TEST(WorkbenchButtons, OpenTheTabsThatHaveAnOperationToOffer) {
  WorkbenchWorld world(archiveOf({{{"BA", {1, 2, 3, 4, 5}}}}));
  for (const WorkbenchButtons& group : workbenchButtons()) {
    if (group.tab < 0) continue;
    EXPECT_EQ(world.w.SSTab3.tabEnabled(group.tab), group.buttons.front().run != nullptr) << group.place;
  }
}

TEST(WorkbenchButtons, SayWhenTheyHaveNoOperationYet) {
  WorkbenchWorld world(archiveOf({{{"BA", {1, 2, 3, 4, 5}}}}));
  for (const WorkbenchButtons& group : workbenchButtons())
    for (const WorkbenchButton& row : group.buttons) {
      if (row.run != nullptr) continue;
      EXPECT_FALSE(world.w.button(row.name).enabled()) << row.name;
      EXPECT_EQ(world.w.button(row.name).toolTip(), "Non ancora disponibile in questa versione") << row.name;
    }
}

// Where a user's eyes and ears get something from a press of a button.
struct Heard {
  explicit Heard(const WorkbenchWorld& world)
      : seen(world.w),
        counts{world.shell.shown.size(), world.shell.statusTexts.size(), world.shell.prints.size(),
               world.shell.helpContexts.size(), world.shell.shownScreens.size()} {
    // What has no place on screen, and the times in the log, tell nobody anything.
    for (const char* hidden : {"FgZ100", "Fg99"}) seen.grids.erase(hidden);
    seen.controls.erase("List1");
    seen.state = {};
  }
  WorkbenchSnapshot seen;
  std::array<std::size_t, 5> counts;
};

bool tellsNothing(const Heard& before, const Heard& after) {
  return before.counts == after.counts && difference(before.seen, after.seen).empty();
}

// The place of the buttons that other buttons alone press.
constexpr std::string_view kUnseen = "Da altri pulsanti";

class EveryButton : public testing::Test {
 protected:
  static std::unique_ptr<WorkbenchWorld> newWorld() {
    std::mt19937 rng(8);
    auto world = std::make_unique<WorkbenchWorld>(randomArchive(rng, 120));
    WorkbenchWorld& w = *world;
    w.shell.addScreen("ElencoRiscontri", [&w] { return std::make_unique<ElencoRiscontri>(w.shell); });
    w.shell.addScreen("Caso", [&w] { return std::make_unique<Caso>(w.shell); });
    w.shell.addScreen("EvoluzioneGrafica", [&w] { return std::make_unique<EvoluzioneGrafica>(w.shell); });
    w.shell.addScreen("ProvaAvanti", [&w] {
      auto test = std::make_unique<ProvaAvanti>(w.archive, w.shell);
      test->load();
      return test;
    });
    w.shell.addScreen("Estrazioni_minielenco", [&w] {
      auto list = std::make_unique<MiniList>(w.archive, w.shell);
      list->load();
      return list;
    });
    return world;
  }
  // The buttons that a user can press, those of the control array included.
  static std::vector<std::string> buttons() {
    std::vector<std::string> names;
    for (const WorkbenchButtons& group : workbenchButtons())
      for (const WorkbenchButton& row : group.buttons)
        if (row.run != nullptr && std::string_view(group.place) != kUnseen) names.push_back(row.name);
    for (const TableTraits& table : kTables) names.push_back("Cmd_LaSorte_" + std::to_string(table.code));
    return names;
  }
  static std::string lastStatus(const WorkbenchWorld& world) {
    return world.shell.statusTexts.empty() ? "" : world.shell.statusTexts.back();
  }
};

TEST_F(EveryButton, OfAnEmptyWorkbenchDoesSomethingOrSaysWhyNot) {
  for (const std::string& name : buttons()) {
    const auto world = newWorld();
    const Heard before(*world);
    world->press(name.c_str());
    EXPECT_FALSE(tellsNothing(before, Heard(*world))) << name;
  }
}

TEST_F(EveryButton, OfAWorkedMethodSaysWhatItDidAlsoWhereNothingIsLeftToDo) {
  const auto prepare = [](WorkbenchWorld& world) {
    world.w.Label17.click();
    world.setCases({100, 80, 60}, 5);
    for (const TableTraits& table : kTables) {
      WorkbenchWorld::addFormula(world.w.formulas(table.table), {.elements = {{1, 2}}});
      WorkbenchWorld::addFormula(world.w.formulas(table.table), {.elements = {{2, 3}}});
    }
    for (const char* name : {"Command29", "Command34", "Command48", "Command51", "Command20"}) world.press(name);
    for (Grid* grid : {&world.w.FgF.grid(), &world.w.Fg11.grid(), &world.w.FgEv.grid()}) grid->setCurrent(1);
  };
  for (const std::string& name : buttons()) {
    const auto world = newWorld();
    prepare(*world);
    for (int press = 1; press <= 3; ++press) {
      const Heard before(*world);
      world->press(name.c_str());
      EXPECT_FALSE(tellsNothing(before, Heard(*world))) << name << ", press " << press;
    }
  }
}

TEST_F(EveryButton, ThatNeedsARowAsksForIt) {
  const std::map<std::string, std::string> wanted = {
      {"Command12", "Scegli prima una riga dell'elenco estrazioni"},
      {"Command21", "Scegli prima una riga di Ambate"},
      {"Command22", "Scegli prima una riga della ricerca"},
      {"Command32", "Scegli prima una riga di Ambate"},
      {"Rimuove_Fg22", "Scegli prima una riga di Ambi"},
      {"Rimuove_Fg33", "Scegli prima una riga di Terni"},
      {"Rimuove_Fg00", "Scegli prima una riga di Lunghetta"},
      {"Cmd_LaSorte_1", "Scegli prima una riga della ricerca"},
      {"Command103", "Nessun caso: prima ricava l'elenco delle estrazioni"},
      {"Command20", "Nessun caso: prima ricava l'elenco delle estrazioni"},
      {"Command99", "Nessun caso: prima ricava l'elenco delle estrazioni"},
      {"Command29", "Nessuna formula in Ambate: aggiungi prima una previsione"},
      {"Command91", "Nessuna formula in Terni: aggiungi prima una previsione"},
      {"Cmd_Elabora100", "Nessuna formula in Lunghetta: aggiungi prima una previsione"},
      {"Command30", "Nessuna formula da copiare in Lunghetta"},
      {"Command56", "Ricerca senza esiti: elabora prima la lunghetta con >>"},
      {"Command64", "Nessuna ricerca da riverificare"},
      {"Cmd_Colora_fgf", "Nessuna ricerca da colorare"},
      {"Cmd_Caso", "Nessuna ricerca da confrontare col caso: prima premi una ricerca"}};
  for (const auto& [name, text] : wanted) {
    const auto world = newWorld();
    world->press(name.c_str());
    EXPECT_EQ(lastStatus(*world), text) << name;
    EXPECT_TRUE(world->shell.shown.empty()) << name;
  }
}

TEST_F(EveryButton, WhoseEffectIsOutOfSightSaysIt) {
  const auto world = newWorld();
  Workbench& w = world->w;
  world->setCases({100, 80}, 5);
  const auto told = [&world](const char* name) {
    world->press(name);
    return lastStatus(*world);
  };
  WorkbenchWorld::addFormula(w.Fg00, {.elements = {{1, 2}}});
  EXPECT_EQ(told("Cmd_Elabora100").substr(0, 28), "Lunghetta elaborata: 2 casi,");
  w.FgZ1.setRows(52);
  EXPECT_EQ(told("Copia_FgZ1"), "Tabella copiata: 51 righe");
  w.FgZ1.setRows(2);
  EXPECT_EQ(told("Copia_FgZ1"), "Tabella copiata: 1 riga");
  EXPECT_EQ(told("Command75"), "Nessuna cella da pulire");
  EXPECT_EQ(told("Command6"), "Nessun numero selezionato");
  w.FgNu.clickCell(0, 4);
  w.FgNu.clickCell(0, 8);
  EXPECT_EQ(told("Command6"), "Numeri riportati: 2");
  EXPECT_EQ(told("Command42_3"), "Estrazione di riferimento: 120 del " + w.archive.DateEstrazioni(120));
  EXPECT_EQ(told("Command3"), "Terzine di posizioni preparate: 35");
  w.FgF.setRows(3);
  EXPECT_EQ(told("Cmd_Colora_fgf"), "Ricerca colorata: 2 righe");
  EXPECT_EQ(told("Command64"), "CC: 2 righe riverificate");
}

TEST_F(EveryButton, LeavesTheWordOfTheStartToTheOpeningOfTheWorkbench) {
  EXPECT_TRUE(newWorld()->shell.statusTexts.empty());
}

TEST_F(EveryButton, ThatAddsAForecastSaysWhyATableTakesNoMore) {
  const auto world = newWorld();
  Workbench& w = world->w;
  w.FgF.setRows(2);
  w.FgF.setCurrent(1);
  world->press("Cmd_LaSorte_1");
  EXPECT_EQ(lastStatus(*world), "La riga scelta è vuota");
  w.FgF.cutToHeading();
  WorkbenchWorld::addFormula(w.FgF, {.elements = {{1, 2}}});
  w.FgF.setCurrent(1);
  world->press("Cmd_LaSorte_1");
  EXPECT_EQ(lastStatus(*world), "Ambate: 1 formula");
  for (int i = 0; i < 5; ++i) world->press("Cmd_LaSorte_1");
  EXPECT_EQ(lastStatus(*world), "Ambate: 5 formule, di più non ne tiene");
}

TEST_F(EveryButton, ThatMovesTheReferenceTellsTheDrawsItKnows) {
  const auto world = newWorld();
  world->shell.answerText("19");
  world->press("Command42_2");
  EXPECT_EQ(lastStatus(*world), "Si può indicare un'estrazione da 20 a 120");
  EXPECT_EQ(world->w.hs1.value(), 120);
}

}  // namespace
}  // namespace trv5
