#include "support/whole_method.h"

#include <gtest/gtest.h>

#include <string>

#include "cases/case_rows.h"
#include "cases/formula_rows.h"
#include "cases/hit_rows.h"
#include "core/text.h"
#include "support/random_runs.h"
#include "support/random_search.h"
#include "support/workbench_world.h"

namespace trv5 {
namespace {

// The situation chosen and the method played on the workbench as a user does it, button by button.
void choose(WorkbenchWorld& world, const Method& method) {
  Workbench& w = world.w;
  const Situation& s = method.situation;
  w.hs1.set(method.reference);
  w.ComboFiltro.pick(static_cast<int>(s.kind));
  w.ComboPar.pick(s.period);
  w.ComboR1.pick(s.wheel);
  w.ComboNC.pick(s.maxCases - 1);
  w.ComboColpi.pick(method.colpi - 1);
  w.ComboSorte.pick(method.sorte - 1);
  for (const auto& [position, label] : w.LblPN)
    if (s.positions[static_cast<std::size_t>(position)]) label->click();
  for (int n = 1; n <= 90; ++n)
    if (s.numbers[static_cast<std::size_t>(n)]) w.TxtNumeri.set(twoDigits(n));
  w.Label18.click();
  for (int wheel = 0; wheel < kWheels; ++wheel)
    if (holds(method.wheels, wheel)) w.FgRG.clickCell(0, wheel);
  w.Combo1R_2N.pick(1);
  w.ChFix1R.set(true);
  for (Check* box : {&w.ChA, &w.ChB, &w.ChC}) box->set(true);
}

void searchAndTakeOver(WorkbenchWorld& world, const char* search, Table table) {
  world.press(search);
  world.w.FgF.setCurrent(1);
  if (world.w.FgF.hasData()) world.w.Cmd_LaSorte[traitsOf(table).code].press();
}

void playOnWorkbench(WorkbenchWorld& world) {
  world.press("Command44");
  searchAndTakeOver(world, "Command23", Table::Ambate);
  world.press("Command29");
  searchAndTakeOver(world, "Command39", Table::Ambi);
  world.press("Command34");
  searchAndTakeOver(world, "Command43", Table::Terni);
  world.press("Command48");
  world.press("Command30");
  searchAndTakeOver(world, "Command58", Table::Lunghetta);
  world.press("Command51");
  world.press("Command86");
}

void expectSameTable(const Workbench& w, const WholeMethod& whole, Table table) {
  SCOPED_TRACE(std::string(traitsOf(table).section));
  const std::vector<FormulaRow> shown = readFormulas(w.formulas(table));
  ASSERT_EQ(shown.size(), whole.method.of(table).size());
  for (std::size_t i = 0; i < shown.size(); ++i) {
    EXPECT_EQ(shown[i].elements, whole.method.of(table)[i].elements);
    EXPECT_EQ(shown[i].fix, whole.method.of(table)[i].fix);
  }
  if (shown.empty()) return;
  const Verification& verified = whole.verified[indexOf(table)];
  std::size_t hits = 0, row = 0;
  const std::vector<HitRow> rows = readHits(w.hits(table), 0);
  for (std::size_t i = 0; i < whole.cases.size(); ++i) {
    if (verified.hits[i].empty()) {
      ASSERT_LT(row, rows.size());
      EXPECT_EQ(rows[row].caseRow, static_cast<int>(i) + 1);
      EXPECT_EQ(rows[row++].hitDraw, 0);
    }
    for (const Hit& hit : verified.hits[i]) {
      ASSERT_LT(row, rows.size());
      EXPECT_EQ(rows[row].hitDraw, hit.draw);
      EXPECT_EQ(rows[row++].caseRow, static_cast<int>(i) + 1);
      ++hits;
    }
  }
  EXPECT_EQ(row, rows.size());
  EXPECT_EQ(static_cast<int>(hits), verified.totals.hits);
}

void expectSameSummary(const Workbench& w, const Summary& summary) {
  ASSERT_EQ(w.FgZZ.dataRows(), static_cast<int>(summary.rows.size()));
  for (std::size_t i = 0; i < summary.rows.size(); ++i)
    EXPECT_EQ(w.FgZZ.number(static_cast<int>(i) + 1, 0), summary.rows[i].caseRow);
  EXPECT_EQ(w.Fg_Stat.number(3, 1), summary.positive);
  EXPECT_EQ(w.Fg_Stat.number(4, 1), summary.negative);
}

TEST(WholeMethod, GivesWithoutAWindowWhatTheWorkbenchShows) {
  int withTerno = 0;
  for (unsigned seed = 1; seed <= static_cast<unsigned>(randomRuns(500)); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(seed);
    const Archive archive = randomArchive(rng, 20 + below(rng, 300));
    const Method method = randomSituation(rng, archive);
    const WholeMethod whole = playWholeMethod(archive, method);
    WorkbenchWorld world(archive);
    choose(world, method);
    playOnWorkbench(world);
    ASSERT_EQ(caseDraws(world.w), whole.cases);
    for (const TableTraits& table : kTables) ASSERT_NO_FATAL_FAILURE(expectSameTable(world.w, whole, table.table));
    for (std::size_t i = 0; i < whole.elaborated.marked.size(); ++i)
      if (const int marked = whole.elaborated.marked[i]; marked > 0) {
        EXPECT_EQ(world.w.FgEv.number(static_cast<int>(i) + 1, 22), marked);
      }
    ASSERT_NO_FATAL_FAILURE(expectSameSummary(world.w, whole.summary));
    if (whole.verified[indexOf(Table::Terni)].totals.hits > 0) ++withTerno;
    if (HasFailure()) return;
  }
  EXPECT_GT(withTerno, 0);  // some went the whole road
}

}  // namespace
}  // namespace trv5
