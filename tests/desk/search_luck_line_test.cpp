#include "engine/search_luck_line.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "chance/search_luck.h"
#include "engine/luck_texts.h"
#include "support/archive_builder.h"
#include "support/random_search.h"
#include "support/workbench_world.h"

namespace trv5 {
namespace {

const std::vector<int> kMany = {100, 92, 84, 76, 68, 60, 52, 44};
// A thousand archives of these are drawn in no time.
const std::vector<int> kFew = {100, 80, 60, 40};

// A workbench with cases, the ambata 17 verified, whose luck is looked at after each search, a step at a time.
std::unique_ptr<WorkbenchWorld> newWorld(const std::vector<int>& cases = kFew, int colpi = 4) {
  std::mt19937 rng(5);
  auto world = std::make_unique<WorkbenchWorld>(randomArchive(rng, 120));
  world->playOn({0, 4});
  world->setCases(cases, colpi);
  WorkbenchWorld::addFormula(world->w.Fg11, {.elements = {{1, 2}}});
  WorkbenchWorld::addFormula(world->w.Fg22, {.elements = {{2, 2}}});
  WorkbenchWorld::addFormula(world->w.Fg00, {.elements = {{3, 2}}});
  WorkbenchWorld::addFormula(world->w.Fg00, {.elements = {{4, 1}}});
  for (const char* const verify : {"Command29", "Command34"}) world->press(verify);
  world->w.ChFix1R.set(false);
  world->w.Ch_Caso.set(true);
  world->shell.holdSteps = true;
  return world;
}

void finish(WorkbenchWorld& world) {
  while (world.shell.runSteps()) {
  }
}

void searchAndFinish(WorkbenchWorld& world, const char* button) {
  world.press(button);
  finish(world);
}

const std::string& line(const WorkbenchWorld& world) {
  return world.w.LblCaso.text();
}

TEST(LuckLine, ComesAfterTheTableAndTellsWhatTheSameSearchFindsOnLuckyArchives) {
  const auto world = newWorld(kMany, 9);
  Workbench& w = world->w;
  world->press("Command23");
  EXPECT_TRUE(w.FgF.hasData());
  EXPECT_EQ(line(*world), "");
  finish(*world);

  AmbataRequest request;
  request.archive = &w.archive;
  request.formula = formulaInput({Shape::TwoOneWheel, 0, {}, 0, {}});
  request.cases = kMany;
  request.colpi = 9;
  request.lastDraw = w.EstrazioneRiferimento;
  request.wheelSets = {w.RuoteGioco};
  request.keep = 50;
  SearchLuck luck(repeatAmbate(request), usualSeed(w.archive));
  luck.draw(999, {.threads = 1});
  const LuckFigures figures = luck.figures();
  const LuckOfBest best{
      .best = figures.best, .reached = figures.reached(figures.best), .replicas = 999, .mean = figures.mean};
  EXPECT_EQ(line(*world), luckSentence(best) + " 1 ricerca su questi casi.");
  EXPECT_EQ(w.LblCaso.toolTip(), line(*world));
  EXPECT_EQ(w.LblCasoBreve.text(), shortLuck(best));

  using namespace formula_column;
  for (int row = 1; row < w.FgF.rows(); ++row) {
    const int count = w.FgF.number(row, kCc);
    for (const LuckOfCount& entry : figures.counts)
      if (entry.count == count) {
        EXPECT_EQ(rankingCellText(w, row, kCc), luckOfRow(entry, 999, count == figures.best, false));
      }
    EXPECT_EQ(rankingCellText(w, row, kPres), "");
  }
  EXPECT_NE(rankingCellText(w, 1, kCc), "");
  EXPECT_EQ(rankingCellText(w, 0, kCc), "");
}

TEST(LuckLine, FollowsEverySearchThatLuckCanBeAskedOf) {
  int shown = 0;
  for (const char* const button :
       {"Command20", "Command11", "Command13", "Command15", "Command23", "Command17", "Command18", "Command10",
        "Command1", "Command77", "Command28", "Command39", "Command31", "Command46", "Command43"}) {
    const auto world = newWorld(kMany, 5);
    if (std::string(button) == "Command18") world->press("Command3");
    searchAndFinish(*world, button);
    const bool found = world->w.FgF.hasData() && world->w.FgF.number(1, formula_column::kCc) > 0;
    EXPECT_EQ(line(*world).empty(), !found) << button;
    shown += found ? 1 : 0;
  }
  EXPECT_GE(shown, 13);
}

TEST(LuckLine, OfTheLunghettaStandsOnItsElaboration) {
  const auto world = newWorld(kMany, 9);
  world->w.ComboSorte.pick(1);
  world->press("Cmd_Elabora100");
  searchAndFinish(*world, "Command58");
  ASSERT_GT(world->w.FgF.number(1, formula_column::kCc), 0);
  EXPECT_NE(line(*world), "");
}

TEST(LuckLine, IsEmptyWhereLuckHasNothingToSay) {
  for (const char* const button : {"Command101", "Command100", "Command99", "Command105", "Command107", "Command108"}) {
    const auto world = newWorld();
    searchAndFinish(*world, button);
    EXPECT_EQ(line(*world), "") << button;
  }
}

TEST(LuckLine, IsEmptyWithoutTheTickAndComesWhenItIsSet) {
  const auto world = newWorld();
  world->w.Ch_Caso.set(false);
  searchAndFinish(*world, "Command20");
  EXPECT_EQ(line(*world), "");
  world->w.Ch_Caso.set(true);
  finish(*world);
  EXPECT_NE(line(*world), "");
  world->w.Ch_Caso.set(false);
  EXPECT_NE(line(*world), "");
}

struct Act {
  const char* what;
  const char* search;  // that the line speaks of
  std::function<void(WorkbenchWorld&)> run;
};

void next(Combo& combo) {
  combo.pick((combo.index() + 1) % static_cast<int>(combo.items().size()));
}

Act picks(const char* what, Combo Workbench::*combo, const char* search = "Command20") {
  return {what, search, [combo](WorkbenchWorld& world) { next(world.w.*combo); }};
}

Act presses(const char* what, const char* button, const char* search = "Command20") {
  return {what, search, [button](WorkbenchWorld& world) { world.press(button); }};
}

// The ranking, or what it was made from, isn't what it was any more.
std::vector<Act> emptyingActs() {
  const auto addFormula = [](GridControl Workbench::*table) {
    return [table](WorkbenchWorld& world) {
      WorkbenchWorld::addFormula(world.w.*table, {.elements = {{1, 4}}});
      next(world.w.ComboEle);  // an operation, after which the workbench looks
    };
  };
  return {
      {"reference draw", "Command20", [](WorkbenchWorld& world) { world.w.hs1.set(world.w.hs1.value() - 1); }},
      presses("last draw back", "Command42_3", "moved"),
      picks("colpi", &Workbench::ComboColpi),
      {"wheel of play", "Command20", [](WorkbenchWorld& world) { world.w.FgRG.clickCell(0, 7); }},
      {"all wheels of play", "Command20", [](WorkbenchWorld& world) { world.w.Label17.click(); }},
      {"no wheel of play", "Command20", [](WorkbenchWorld& world) { world.w.Label18.click(); }},
      picks("kind of detection", &Workbench::ComboFiltro),
      presses("new case list", "Command44"),
      presses("reset", "Command41"),
      presses("rework all", "Command87"),
      presses("another search", "Command99"),
      {"a cell of the ranking", "Command20",
       [](WorkbenchWorld& world) {
         world.w.FgF.setText(1, formula_column::kCc, "1");
         next(world.w.ComboEle);
       }},
      presses("undo", "Cmd_Annulla"),
      presses("candidates verified", "Command64"),
      {"archive loaded anew", "Command20",
       [](WorkbenchWorld& world) {
         std::mt19937 rng(6);
         world.archive = randomArchive(rng, 120);
         next(world.w.ComboEle);
       }},
      {"ambate beside the companions", "Command28", addFormula(&Workbench::Fg11)},
      {"hits below the companions", "Command28",
       [](WorkbenchWorld& world) {
         world.w.FgZ1.setText(1, 4, "99");
         next(world.w.ComboEle);
       }},
      presses("marks of the covered cases", "Command27", "Scoperti"),
  };
}

// Nothing that the ranking was made from.
std::vector<Act> leavingActs() {
  return {
      picks("rows of the next ranking", &Workbench::ComboEle),
      picks("operator of the next search", &Workbench::Combo1R_2N),
      picks("alteration of the next search", &Workbench::Combo1R_1N),
      presses("colours", "Cmd_Colora_fgf"),
      presses("delays", "Command9"),
      {"another row", "Command20", [](WorkbenchWorld& world) { world.w.FgF.setCurrent(2); }},
      {"another tab", "Command20", [](WorkbenchWorld& world) { world.w.SSTab3.set(3); }},
      presses("a forecast taken over", "Cmd_LaSorte_1"),
      presses("a verification", "Command29"),
  };
}

std::unique_ptr<WorkbenchWorld> shown(const Act& act) {
  const std::string search = act.search;
  // Companions start from hits, and marks are there where cases are covered.
  const bool onHits = search == "Command28" || search == "Scoperti";
  auto world = onHits ? newWorld(kMany, 5) : newWorld();
  if (search == "moved") world->w.hs1.set(world->w.hs1.value() - 2);
  if (search == "Scoperti") world->w.Ch_Scoperti.set(true);
  searchAndFinish(*world, search.starts_with("Command") ? act.search : "Command20");
  EXPECT_NE(line(*world), "") << act.what;
  return world;
}

TEST(LuckLine, IsEmptyAfterWhateverChangesWhatItSpeaksOf) {
  for (const Act& act : emptyingActs()) {
    const auto world = shown(act);
    act.run(*world);
    EXPECT_EQ(line(*world), "") << act.what;
    EXPECT_EQ(world->w.LblCasoBreve.text(), "") << act.what;
    EXPECT_EQ(rankingCellText(world->w, 1, formula_column::kCc), "") << act.what;
    finish(*world);
    EXPECT_EQ(line(*world), "") << act.what;
  }
}

TEST(LuckLine, StaysAfterEverythingElse) {
  const auto world = shown(leavingActs().front());
  const std::string before = line(*world);
  for (const Act& act : leavingActs()) {
    act.run(*world);
    EXPECT_EQ(line(*world), before) << act.what;
  }
}

TEST(LuckLine, OfARunThatIsOvertakenNeverComes) {
  for (const Act& act : emptyingActs()) {
    const auto world = newWorld();
    if (std::string(act.search) != "Command20") continue;
    world->press("Command20");
    world->shell.runSteps();
    act.run(*world);
    finish(*world);
    EXPECT_EQ(line(*world), "") << act.what;
  }
}

TEST(LuckLine, CountsTheSearchesTriedOnACaseList) {
  const auto world = newWorld();
  const auto tried = [&world] { return world->w.LblRicerche.text(); };
  searchAndFinish(*world, "Command20");
  EXPECT_EQ(tried(), "1 ricerca su questi casi.");
  searchAndFinish(*world, "Command23");
  EXPECT_EQ(tried(), "2 ricerche su questi casi.");
  searchAndFinish(*world, "Command23");  // the same once more finds nothing else
  EXPECT_EQ(tried(), "2 ricerche su questi casi.");
  world->w.Combo1R_2N.pick(2);
  searchAndFinish(*world, "Command23");
  searchAndFinish(*world, "Command99");
  searchAndFinish(*world, "Command20");
  EXPECT_EQ(tried(), "4 ricerche su questi casi.");
  EXPECT_TRUE(line(*world).ends_with(" " + tried()));
  world->setCases({100, 80, 61}, 4);
  searchAndFinish(*world, "Command20");
  EXPECT_EQ(tried(), "1 ricerca su questi casi.");
  world->setCases(kFew, 4);
  searchAndFinish(*world, "Command20");
  EXPECT_EQ(tried(), "4 ricerche su questi casi.");
}

TEST(LuckLine, IsNoPartOfTheStateOfTheWorkbench) {
  const auto world = newWorld();
  for (const Label* const label : {&world->w.LblCaso, &world->w.LblCasoBreve, &world->w.LblRicerche})
    EXPECT_FALSE(label->partOfState());
  searchAndFinish(*world, "Command20");
  const FormState before = world->w.state();
  world->w.luck->settle();
  EXPECT_TRUE(before == world->w.state());
}

TEST(LuckLine, LeavesTheProgressBarAndTheStatusLineAlone) {
  const auto world = newWorld();
  world->press("Command20");
  const auto progress = world->shell.progressValues;
  const auto status = world->shell.statusTexts;
  finish(*world);
  EXPECT_EQ(world->shell.progressValues, progress);
  EXPECT_EQ(world->shell.statusTexts, status);
}

TEST(LuckLine, OfTheWorkbenchIsWantedAtItsOpening) {
  std::mt19937 rng(1);
  const Archive archive = randomArchive(rng, 40);
  FakeShell shell;
  Workbench w(archive, shell);
  connectLuck(w);
  EXPECT_TRUE(w.Ch_Caso.checked());
}

TEST(UsualSeed, IsTheDayOfTheLastDraw) {
  std::mt19937 rng(1);
  const Archive archive = randomArchive(rng, 40);
  const std::string date = archive.DateEstrazioni(40);
  EXPECT_EQ(std::to_string(usualSeed(archive)), date.substr(6, 4) + date.substr(3, 2) + date.substr(0, 2));
}

}  // namespace
}  // namespace trv5
