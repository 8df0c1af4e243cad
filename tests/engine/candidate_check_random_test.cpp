#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "engine/candidate_check.h"
#include "method/formula.h"
#include "support/plain_verification.h"
#include "support/random_method.h"
#include "support/random_runs.h"
#include "support/random_search.h"

namespace trv5 {
namespace {

struct CcButton {
  const char* button;
  int kind;
};

void PrintTo(const CcButton& value, std::ostream* out) {
  *out << value.button;
}

// Formulas whose value doesn't hang on the evaluation before, which is what candidates are counted quickly by.
void mendUnknownTexts(Grid& table) {
  using namespace formula_column;
  for (int row = 1; row < table.rows(); ++row) {
    if (findElementTable(table.text(row, kAlteration)) == nullptr) table.setText(row, kAlteration, "DIAM");
    if (!table.text(row, kOperator).empty() && !operatorOf(table.text(row, kOperator)))
      table.setText(row, kOperator, "N1 - N2");
  }
}

void randomCandidates(WorkbenchWorld& world, std::mt19937& rng) {
  Workbench& w = world.w;
  randomMethod(world, rng);
  w.ChVerifica.set(below(rng, 4) == 0);
  if (below(rng, 12) == 0) w.Colpi = 0;
  fillTable(w.FgF, rng, below(rng, 7), true);
  if (below(rng, 3) == 0) w.Fg22.cutToHeading();
  if (below(rng, 3) == 0) w.Fg33.cutToHeading();
  if (below(rng, 3) == 0) w.Fg00.cutToHeading();
  if (below(rng, 2) == 0)
    for (GridControl* table : {&w.Fg11, &w.Fg22, &w.Fg33, &w.Fg00, &w.FgF}) mendUnknownTexts(*table);
  if (w.FgF.hasData() && below(rng, 6) == 0)  // of no kind that is evaluated
    w.FgF.setText(1 + below(rng, w.FgF.dataRows()), formula_column::kNr, "3");
  w.FgF.setCurrent(below(rng, w.FgF.rows() + 1) - 1);
  for (int row = 1; row < w.FgF.rows(); ++row) {
    if (below(rng, 5) == 0) continue;
    w.FgF.setNumber(row, 13, below(rng, 4));
    w.FgF.setText(row, 12, below(rng, 8) == 0 ? "molte" : "3");
    w.FgF.setBack(row, 13, GialloMedio);
  }
}

class CandidateCheck : public testing::TestWithParam<CcButton> {};

// The run through all candidates on text cells beside the quick one.
TEST_P(CandidateCheck, LeavesWhatARunThroughAllCandidatesLeaves) {
  for (unsigned seed = 1; seed <= static_cast<unsigned>(randomRuns(40)); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(seed);
    WorkbenchWorld world(randomMethodArchive(rng));
    for (int setting = 0; setting < 25; ++setting) {
      SCOPED_TRACE("setting " + std::to_string(setting));
      randomCandidates(world, rng);
      world.shell.shown.clear();
      PlainWorkbench plain(world.w);
      plain.CC(GetParam().kind);
      world.press(GetParam().button);
      ASSERT_EQ(difference(plain, world.w), "");
      ASSERT_EQ(world.shell.texts(), plain.messages);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(OfEveryButton, CandidateCheck,
                         testing::Values(CcButton{"Command64", 2}, CcButton{"Command73", 3}, CcButton{"Command84", 6}),
                         [](const auto& button) { return std::string(button.param.button); });

}  // namespace
}  // namespace trv5
