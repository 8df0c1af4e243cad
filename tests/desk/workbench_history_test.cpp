#include "cases/workbench_history.h"

#include <gtest/gtest.h>

#include <random>

#include "core/errors.h"
#include "support/random_runs.h"
#include "support/workbench_snapshot.h"
#include "support/workbench_world.h"

namespace trv5 {
namespace {

Archive smallArchive(unsigned seed = 5) {
  std::mt19937 rng(seed);
  return randomArchive(rng, 200);
}

// A whole method on the workbench, so that every table holds something.
struct Played : WorkbenchWorld {
  Played() : WorkbenchWorld(smallArchive()) {
    w.TxtNumeri.set("01-02-03-04-05-06-07-08-09");
    w.ComboFiltro.pick(1);
    positions({1, 2, 3, 4, 5});
    playOn({0, 1});
    w.ChFix1R.set(true);
    press("Command44");
    for (const auto& [search, code] : {std::pair{"Command23", 1}, {"Command39", 2}, {"Command43", 3}}) {
      press(search);
      w.SSTab3.set(code - 1);
      w.Cmd_LaSorte[code].press();
      w.FgF.clickCell(2, 1);
      w.Cmd_LaSorte[code].press();
    }
    press("Command30");
    for (const char* const verify : {"Command29", "Command34", "Command48", "Command51"}) press(verify);
    for (Check* box : {&w.ChA, &w.ChB, &w.ChC}) box->set(true);
    press("Command86");
    for (int column = 0; column < 5; ++column) w.FgNu.clickCell(2, column);
    w.Label4.click();
    w.history.start();
  }
  void undo() { press("Cmd_Annulla"); }
  void redo() { press("Cmd_Ripeti"); }
};

// Runs the act, takes it back and takes it again.
void expectReversible(Played& world, const std::string& name, const std::function<void()>& act) {
  SCOPED_TRACE(name);
  const WorkbenchSnapshot before(world.w);
  const std::size_t steps = world.w.history.undoSteps();
  act();
  ASSERT_EQ(world.w.history.undoSteps(), steps + 1);
  const WorkbenchSnapshot after(world.w);
  ASSERT_NE(difference(before, after), "");
  world.undo();
  EXPECT_EQ(difference(before, world.w), "");
  world.redo();
  EXPECT_EQ(difference(after, world.w), "");
  world.undo();
  EXPECT_EQ(difference(before, world.w), "");
}

TEST(WorkbenchHistory, GivesBackGridsAndColoursAfterEachKindOfOperation) {
  Played world;
  Workbench& w = world.w;
  ASSERT_GT(w.FgEv.dataRows(), 3);
  ASSERT_GT(w.Fg11.dataRows(), 1);
  ASSERT_GT(w.FgZ1.dataRows(), 1);
  const auto button = [&](const char* name) { expectReversible(world, name, [&] { world.press(name); }); };
  button("Command41");  // reset
  for (const char* const name : {"Command19", "Nuova_Fg22", "Nuova_Fg33", "Nuova_Fg00"}) button(name);
  for (GridControl* const table : {&w.Fg11, &w.Fg22, &w.Fg33, &w.Fg00}) table->setCurrent(1);
  for (const char* const name : {"Command32", "Rimuove_Fg22", "Rimuove_Fg33", "Rimuove_Fg00"}) button(name);
  for (const char* const name : {"Command75", "Pulisce_FgZ2", "Command97", "Command27"}) button(name);
  for (const char* const name : {"Command8", "Command24", "Command25", "Command26", "Command6"}) button(name);
  expectReversible(world, "white swatch", [&] { w.Label18.click(); });
  expectReversible(world, "green swatch", [&] { w.Label17.click(); });
  expectReversible(world, "white wheels of detection", [&] { w.Label19.click(); });
  expectReversible(world, "a number", [&] { w.FgNu.clickCell(7, 7); });
  w.ComboNC.pick(2);
  button("Command44");  // detection
  for (const char* const name : {"Command20", "Command11", "Command77", "Command39", "Command43", "Command58"})
    button(name);  // searches
  w.SSTab3.set(0);
  w.FgF.setCurrent(3);
  expectReversible(world, "taking over", [&] { w.Cmd_LaSorte[1].press(); });
  button("Command87");
}

TEST(WorkbenchHistory, TakesBackFiftyOfSixtyOperationsAndMore) {
  Played world;
  std::vector<WorkbenchSnapshot> moments;
  for (int i = 0; i < 60; ++i) {
    moments.emplace_back(world.w);
    world.w.FgNu.clickCell(i / 10, i % 10);
  }
  for (int i = 59; i >= 0; --i) {
    world.undo();
    ASSERT_EQ(difference(moments[static_cast<std::size_t>(i)], world.w), "") << i;
  }
  EXPECT_FALSE(world.w.button("Cmd_Annulla").enabled());
  EXPECT_TRUE(world.w.button("Cmd_Ripeti").enabled());
}

TEST(WorkbenchHistory, KeepsFiftyOfItsHeaviestOperations) {
  Played world;
  for (int i = 0; i < 60; ++i) {
    world.w.hs1.set(100 + i);
    world.press("Command87");
  }
  EXPECT_GE(world.w.history.undoSteps(), 100U);
  EXPECT_LE(world.w.history.bytes(), WorkbenchHistory::kMostBytes);
}

TEST(WorkbenchHistory, DropsTheOldestBeyondItsBytes) {
  WorkbenchWorld world(smallArchive());
  Workbench& w = world.w;
  WorkbenchHistory history(w, 600 * 1024);
  history.start();
  for (int i = 0; i < 100; ++i) w.FgNu.clickCell(i % 9, i % 10);
  EXPECT_LE(history.bytes(), 600U * 1024);
  EXPECT_LT(history.undoSteps(), 100U);
  EXPECT_GT(history.undoSteps(), 20U);
  const WorkbenchSnapshot now(w);
  w.FgNu.clickCell(0, 0);
  EXPECT_TRUE(history.undo());
  EXPECT_EQ(difference(now, w), "");
}

TEST(WorkbenchHistory, KnowsNoStepWhereNothingChanged) {
  Played world;
  world.press("Command20");
  const std::size_t steps = world.w.history.undoSteps();
  world.press("Command20");  // the same search again
  world.press("Copia_FgZ1");
  world.press("Stampa_FgZ1");
  world.w.FgF.clickCell(3, 1);  // choosing a row
  world.w.TxtNumeri.selectAll();
  world.w.Colpi = world.w.ComboColpi.number();
  EXPECT_EQ(world.w.history.undoSteps(), steps);
}

TEST(WorkbenchHistory, AStepGoesBackToTheRowChosenBeforeIt) {
  Played world;
  world.w.SSTab3.set(0);
  world.w.FgF.clickCell(4, 1);
  world.w.Cmd_LaSorte[1].press();
  world.w.FgF.clickCell(1, 1);
  world.undo();
  EXPECT_EQ(world.w.FgF.current(), 4);
}

TEST(WorkbenchHistory, AScrollOrATypedTextIsOneStep) {
  Played world;
  Workbench& w = world.w;
  const WorkbenchSnapshot start(w);
  for (int draw = 150; draw > 100; --draw) w.hs1.set(draw);
  for (const char* const text : {"1", "12", "12-", "12-4"}) w.TxtNumeri.edit(text, 9);
  w.Check3.set(!w.Check3.checked());
  w.hs1.set(50);
  EXPECT_EQ(w.history.undoSteps(), 4U);
  world.undo();
  EXPECT_EQ(w.hs1.value(), 101);
  world.undo();
  world.undo();
  EXPECT_EQ(w.TxtNumeri.text(), start.controls.at("TxtNumeri").substr(0, w.TxtNumeri.text().size()));
  world.undo();
  EXPECT_EQ(difference(start, w), "");
  EXPECT_FALSE(w.history.canUndo());
}

TEST(WorkbenchHistory, DoesNothingWhileAnOperationRuns) {
  Played world;
  Workbench& w = world.w;
  w.FgNu.clickCell(7, 7);
  w.button("Command8").onEvent([&] {
    w.Check3.set(!w.Check3.checked());
    w.button("Cmd_Annulla").press();
    EXPECT_EQ(w.FgNu.back(7, 7), Ciano);
  });
  world.press("Command8");
  EXPECT_EQ(w.FgNu.back(7, 7), Ciano);
  EXPECT_EQ(w.history.undoSteps(), 2U);
}

TEST(WorkbenchHistory, WhatAFailedOperationChangedIsTakenBack) {
  Played world;
  Workbench& w = world.w;
  const WorkbenchSnapshot before(w);
  w.button("Command8").onEvent([&] {
    w.Fg11.cutToHeading();
    w.Sorte = 4;
    throw UserError("Il disco è pieno.");
  });
  world.press("Command8");
  EXPECT_EQ(world.shell.lastBox().text, "Il disco è pieno.");
  world.undo();
  EXPECT_EQ(difference(before, w), "");
}

TEST(WorkbenchHistory, ANewOperationCutsTheOnesTakenBack) {
  Played world;
  world.press("Command8");
  world.undo();
  EXPECT_TRUE(world.w.history.canRedo());
  world.w.FgNu.clickCell(5, 5);
  EXPECT_FALSE(world.w.history.canRedo());
  EXPECT_FALSE(world.w.button("Cmd_Ripeti").enabled());
}

TEST(WorkbenchHistory, EndsWhereTheArchiveIsLoadedAnew) {
  Played world;
  world.press("Command8");
  world.press("Command41");
  world.archive = smallArchive(6);
  const WorkbenchSnapshot now(world.w);
  world.undo();
  EXPECT_EQ(difference(now, world.w), "");
  EXPECT_FALSE(world.w.history.canUndo());
  EXPECT_FALSE(world.w.button("Cmd_Annulla").enabled());
  world.w.FgNu.clickCell(5, 5);
  EXPECT_EQ(world.w.history.undoSteps(), 1U);
}

// Its rows stand in the database, where nothing is taken back.
TEST(WorkbenchHistory, LeavesTheListOfSavedConfigurationsAlone) {
  Played world;
  Workbench& w = world.w;
  w.FgNu.clickCell(7, 7);
  w.FgPir1.appendRow();
  world.undo();
  EXPECT_EQ(w.FgNu.back(7, 7), kWhite);
  EXPECT_EQ(w.FgPir1.dataRows(), 1);
}

TEST(WorkbenchHistory, SaysWhatItTookBack) {
  Played world;
  world.press("Command41");
  EXPECT_EQ(world.w.button("Cmd_Annulla").toolTip(), "Annulla: Nuova configurazione (Reset)");
  world.undo();
  EXPECT_EQ(world.shell.statusTexts.back(), "Annullato: Nuova configurazione (Reset)");
  world.redo();
  EXPECT_EQ(world.shell.statusTexts.back(), "Ripetuto: Nuova configurazione (Reset)");
}

TEST(UndoOffer, StandsAfterWhatEmptiesSomethingUntilTheNextOperation) {
  Played world;
  Workbench& w = world.w;
  w.Fg11.setCurrent(1);
  for (const char* const name :
       {"Command75", "Command32", "Command19", "Command27", "Command8", "Command20", "Command44", "Command41"}) {
    if (std::string(name) == "Command44") w.ComboNC.pick(1);
    world.press(name);
    EXPECT_EQ(world.shell.offered, "Cmd_Annulla") << name;
    w.Check3.set(!w.Check3.checked());
    EXPECT_EQ(world.shell.offered, "") << name;
  }
  world.press("Command41");
  EXPECT_EQ(world.shell.offered, "");  // nothing was left to lose
  world.press("Command44");
  EXPECT_EQ(world.shell.offered, "");  // nothing stood there before
}

// What a user may do, by chance: presses, picks, clicks, texts.
void anyAct(WorkbenchWorld& world, std::mt19937& rng) {
  Workbench& w = world.w;
  const auto& controls = w.controls();
  Control& control = *controls[rng() % controls.size()];
  if (!control.enabled() || !control.partOfState()) return;
  const auto upTo = [&rng](int n) { return n <= 0 ? 0 : static_cast<int>(rng() % static_cast<unsigned>(n)); };
  if (auto* const c = dynamic_cast<Button*>(&control)) return c->press();
  if (auto* const c = dynamic_cast<Label*>(&control)) return c->click();
  if (auto* const c = dynamic_cast<Combo*>(&control)) return c->pick(upTo(static_cast<int>(c->items().size())));
  if (auto* const c = dynamic_cast<Check*>(&control)) return c->set(!c->checked());
  if (auto* const c = dynamic_cast<Text*>(&control)) return c->set(std::to_string(1 + upTo(90)));
  if (auto* const c = dynamic_cast<Scroll*>(&control)) return c->set(20 + upTo(c->maximum() - 19));
  if (auto* const c = dynamic_cast<Tabs*>(&control)) return c->set(upTo(10));
  if (auto* const c = dynamic_cast<GridControl*>(&control)) {
    if (c->rows() == 0 || c->columns() == 0) return;
    const int row = upTo(c->rows()), column = upTo(c->columns());
    rng() % 4 == 0 ? c->doubleClickCell(row, column) : c->clickCell(row, column);
  }
}

// What a user sees, and everything else that the controls hold.
struct Moment {
  Moment() = default;
  explicit Moment(const Workbench& w) : shown(w), controls(w.Form::state()) {}
  WorkbenchSnapshot shown;
  FormState controls;
};

TEST(WorkbenchHistory, GoesBackAndForthThroughAnyActs) {
  std::size_t all = 0;
  for (unsigned seed = 1; seed <= static_cast<unsigned>(randomRuns(40)); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(seed);
    Played world;
    Workbench& w = world.w;
    // By number of steps: what stood before the step that follows, which is taken where it stood last.
    std::vector<Moment> before;
    for (int i = 0; i < 120; ++i) {
      Moment now(w);
      const std::size_t steps = w.history.undoSteps();
      anyAct(world, rng);
      if (w.history.undoSteps() > steps) {
        before.resize(steps);
        before.push_back(std::move(now));
      }
    }
    before.resize(w.history.undoSteps());
    all += before.size();
    std::vector<Moment> passed;
    for (std::size_t i = before.size(); i > 0; --i) {
      passed.emplace_back(w);
      world.undo();
      ASSERT_EQ(difference(before[i - 1].shown, w), "") << i;
      ASSERT_EQ(before[i - 1].controls, w.Form::state()) << i;
    }
    ASSERT_FALSE(w.history.canUndo());
    for (std::size_t i = passed.size(); i > 0; --i) {
      world.redo();
      ASSERT_EQ(difference(passed[i - 1].shown, w), "") << i;
      ASSERT_EQ(passed[i - 1].controls, w.Form::state()) << i;
    }
    ASSERT_FALSE(w.history.canRedo());
  }
  EXPECT_GT(all, static_cast<std::size_t>(randomRuns(40)) * 30);
}

}  // namespace
}  // namespace trv5
