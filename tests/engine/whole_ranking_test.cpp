#include "engine/whole_ranking.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "cases/formula_rows.h"
#include "chance/whole_search.h"
#include "support/random_runs.h"
#include "support/random_search.h"
#include "support/workbench_world.h"

namespace trv5 {
namespace {

using namespace formula_column;

// Draws with every wheel, or with some missing now and then, and up to twelve cases.
std::unique_ptr<WorkbenchWorld> worldOfCases(std::mt19937& rng, bool gaps = false) {
  std::vector<DrawRow> rows(150);
  for (std::size_t draw = 0; draw < rows.size(); ++draw) {
    rows[draw].date = dateOfDraw(static_cast<int>(draw) + 1);
    for (std::string& wheel : rows[draw].wheels) wheel = wheelText(randomWheel(rng));
  }
  auto world = std::make_unique<WorkbenchWorld>(gaps ? randomArchive(rng, 150) : archiveOfRows(rows));
  std::vector<int> cases;
  for (int draw = 149 - below(rng, 8); draw > 20 && cases.size() < 12; draw -= 4 + below(rng, 12))
    cases.push_back(draw);
  world->setCases(cases, 3 + below(rng, 6));
  WorkbenchWorld::choose(world->w.ComboEle, "50");
  world->w.ComboOrdine.pick(below(rng, 2));
  return world;
}

int hitRows(const Workbench& w) {
  int rows = 0;
  for (int row = 1; row < w.FgZ1.rows(); ++row) rows += w.FgZ1.back(row, hit_column::kCase) == VerdeMedio ? 1 : 0;
  return rows;
}

int coveredCases(const Workbench& w) {
  int covered = 0;
  for (int row = 1; row < w.FgEv.rows(); ++row) covered += isCovered(w, row, case_column::kHits) ? 1 : 0;
  return covered;
}

// What a player sees who verifies a row by itself on its own wheels.
void expectVerified(WorkbenchWorld& world, const char* button, int cc, int pres, const std::string& wheels) {
  Workbench& w = world.w;
  world.press("Command27");
  w.Check3.set(true);
  world.press(button);
  EXPECT_EQ(coveredCases(w), cc);
  EXPECT_EQ(hitRows(w), pres);
  EXPECT_EQ(wheelCodes(w.RuoteGioco), wheels);
}

TEST(WholeRanking, OfEachRowCoversWhatItsVerificationCovers) {
  std::set<std::string> operators;
  for (unsigned seed = 1; seed <= static_cast<unsigned>(randomRuns(3)); ++seed) {
    std::mt19937 rng(seed);
    const auto world = worldOfCases(rng, seed == 1);
    Workbench& w = world->w;
    world->press("Cmd_Totale");
    ASSERT_EQ(w.FgF.dataRows(), 50);
    const Grid ranking = w.FgF.grid();
    for (int row = 1; row < ranking.rows(); ++row) {
      SCOPED_TRACE("seed " + std::to_string(seed) + ", row " + std::to_string(row));
      const int cc = ranking.number(row, kCc), pres = ranking.number(row, kPres);
      const std::string& op = ranking.text(row, kOperator);
      operators.insert(op);
      w.FgF.setCurrent(row);
      // The verification of the search knows four operators of two elements; that of the table all six.
      if (op != "D1 e U2" && op != "D2 e U1")
        expectVerified(*world, "Command22", cc, pres, ranking.text(row, kOwnWheels));
      world->press("Command19");
      world->press("Cmd_LaSorte_1");
      ASSERT_EQ(w.Fg11.dataRows(), 1);
      w.Fg11.setCurrent(1);
      expectVerified(*world, "Command21", cc, pres, ranking.text(row, kOwnWheels));
      ASSERT_FALSE(HasFailure());
    }
  }
  EXPECT_GT(operators.size(), 1U);
}

// A row as it stands in a ranking, but for what only tells which button made it, and for the presences without fix,
// where the best wheels of one number lose repeats.
std::string textOf(const Grid& ranking, int row) {
  std::string text;
  for (int column = 0; column < ranking.columns(); ++column)
    if (column != kQn && (column != kPres || ranking.number(row, kFix) != 90)) text += ranking.text(row, column) + "|";
  return text;
}

// The best-wheel button that makes such a row; null where there is none.
const char* buttonOf(const Grid& ranking, int row) {
  const std::size_t wheels = (ranking.text(row, kOwnWheels).size() + 1) / 3;
  constexpr const char* kOne[] = {"Command11", "Command13", "Command15"};
  constexpr const char* kTwo[] = {"Command17", "Command16", "Command7"};
  constexpr const char* kTwoTwo[] = {"Command1", "Command2", nullptr};
  if (ranking.text(row, kNr) == "2") return kTwoTwo[wheels - 1];
  if (ranking.text(row, kQn) == "3") return nullptr;
  return ranking.text(row, kQn) == "1" ? kOne[wheels - 1] : kTwo[wheels - 1];
}

TEST(WholeRanking, HasTheRowsOfTheSingleButtons) {
  std::mt19937 rng(40);
  const auto world = worldOfCases(rng);
  Workbench& w = world->w;
  world->press("Cmd_Totale");
  const Grid all = w.FgF.grid();
  w.ChFix1R.set(true);
  w.ComboFix.pick(0);
  WorkbenchWorld::choose(w.ComboEle, "900");
  int compared = 0;
  for (int row = 1; row < all.rows() && compared < 12; ++row) {
    const char* const button = buttonOf(all, row);
    if (button == nullptr) continue;
    WorkbenchWorld::choose(w.Combo1R_1N, all.text(row, kAlteration));
    WorkbenchWorld::choose(w.Combo1R_2N, all.text(row, kOperator));
    world->press(button);
    // Of formulas that cover as many as its last row the button's ranking holds a part alone.
    if (w.FgF.number(w.FgF.rows() - 1, kCc) == all.number(row, kCc)) continue;
    std::set<std::string> single;
    for (int r = 1; r < w.FgF.rows(); ++r) single.insert(textOf(w.FgF, r));
    EXPECT_TRUE(single.contains(textOf(all, row))) << button << " " << textOf(all, row);
    ++compared;
  }
  EXPECT_GE(compared, 5);
}

TEST(WholeRanking, StandsInTheOrderChosen) {
  std::mt19937 rng(41);
  const auto world = worldOfCases(rng);
  Workbench& w = world->w;
  w.ComboOrdine.pick(1);
  world->press("Cmd_Totale");
  for (int row = 2; row < w.FgF.rows(); ++row) EXPECT_GE(w.FgF.number(row - 1, kCc), w.FgF.number(row, kCc));
  const int most = w.FgF.number(1, kCc);
  w.ComboOrdine.pick(0);
  world->press("Cmd_Totale");
  // By rarity a formula on one wheel comes before one that covers as many on three.
  EXPECT_LE(w.FgF.number(1, kCc), most);
  EXPECT_EQ(w.FgF.current(), 1);
}

TEST(WholeRanking, ReadsNothingThatNarrowsASingleSearch) {
  std::mt19937 rng(42);
  const auto world = worldOfCases(rng);
  Workbench& w = world->w;
  world->press("Cmd_Totale");
  const Grid before = w.FgF.grid();
  w.Combo1R_1N.pick(3);
  w.Combo1R_2N.pick(4);
  w.ComboFix.pick(17);
  w.ChFix1R.set(false);
  world->playOn({4});
  world->press("Cmd_Totale");
  EXPECT_TRUE(w.FgF.grid() == before);
}

TEST(WholeRanking, LooksAtUncoveredCasesAloneWhereThatIsWanted) {
  std::mt19937 rng(43);
  const auto world = worldOfCases(rng);
  Workbench& w = world->w;
  for (const int row : {1, 3, 4}) markCovered(w, row, case_column::kHits, 1);
  w.Ch_Scoperti.set(true);
  world->press("Cmd_Totale");
  const int cases = w.FgEv.dataRows() - 3;
  EXPECT_LE(w.FgF.number(1, kCc), cases);
  EXPECT_EQ(w.LblOrigine.text(), "Ambate · TUTTE · " + w.ComboOrdine.text() + " · " + std::to_string(cases) +
                                     " casi scoperti · da 1 a 3 ruote");
}

TEST(WholeRanking, SaysHowManyFormulasItTried) {
  std::mt19937 rng(44);
  const auto world = worldOfCases(rng);
  world->press("Cmd_Totale");
  EXPECT_EQ(world->shell.statusTexts.back(), "Ricerca: 50 formule su 1.749.478.500 provate");
  EXPECT_EQ(world->shell.hourglassesShown, 1);
  EXPECT_EQ(world->shell.hourglasses, 0);
  EXPECT_EQ(world->w.List1.lines().size(), 2U);
}

TEST(WholeRanking, WithoutCasesLeavesEverythingAsItIs) {
  std::mt19937 rng(45);
  WorkbenchWorld world(randomArchive(rng, 60));
  WorkbenchWorld::addFormula(world.w.FgF, {.elements = {{1, 2}}});
  const Grid before = world.w.FgF.grid();
  world.press("Cmd_Totale");
  EXPECT_TRUE(world.w.FgF.grid() == before);
  EXPECT_EQ(world.shell.statusTexts.back(), "Nessun caso: prima ricava l'elenco delle estrazioni");
}

}  // namespace
}  // namespace trv5
