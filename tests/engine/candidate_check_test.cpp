#include "engine/candidate_check.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "engine/verification_draws.h"
#include "support/workbench_snapshot.h"

namespace trv5 {
namespace {

constexpr const char* kTooMany =
    "Attenzione si possono elaborare al massimo 10 numeri. Rimuovere le formule in eccesso";

struct Kind {
  int sorte;
  const char *cc, *all;
  GridControl Workbench::*formulas;
  GridControl Workbench::*hits;
  GridControl Workbench::*emptied;
  int column;
};

void PrintTo(const Kind& value, std::ostream* out) {
  *out << value.cc;
}

const std::vector<Kind> kKinds = {
    {2, "Command64", "Command34", &Workbench::Fg22, &Workbench::FgZ2, &Workbench::FgZ2, 18},
    {3, "Command73", "Command48", &Workbench::Fg33, &Workbench::FgZ3, &Workbench::FgZ3, 19},
    {6, "Command84", "Command51", &Workbench::Fg00, &Workbench::FgZ0, &Workbench::FgZ2, 22}};

// Cases on draws 1 and 3; 7 is the ambata and 9 the companion of the ambo. The candidates are 8, 45, a blank row and 9.
class CcWorld : public SevenWorld {
 public:
  CcWorld() {
    setCases({1, 3}, 1);
    playOn({0, 7});
    addNumber(w.Fg11, 7);
    addNumber(w.Fg22, 9);
    for (int number : {8, 45, 0, 9}) addNumber(w.FgF, number);
    for (int row = 1; row <= 4; ++row) w.FgF.setBack(row, 13, GialloMedio);
  }
  /// CC and Pres of a candidate.
  std::string counts(int row) const { return w.FgF.text(row, 13) + " " + w.FgF.text(row, 12); }
};

class Cc : public testing::TestWithParam<Kind> {
 protected:
  Grid& formulas() { return w.*GetParam().formulas; }
  Grid& hits() { return w.*GetParam().hits; }
  void emptyTable() {
    formulas().cutToHeading();
    if (GetParam().sorte == 3) SevenWorld::addNumber(w.Fg22, 9);
  }

  CcWorld world;
  Workbench& w = world.w;
};

INSTANTIATE_TEST_SUITE_P(OfEveryTable, Cc, testing::ValuesIn(kKinds),
                         [](const auto& kind) { return std::string(kind.param.cc); });

TEST_P(Cc, DoesNothingWithoutCandidates) {
  w.FgF.cutToHeading();
  const WorkbenchSnapshot before(w);
  world.press(GetParam().cc);
  EXPECT_EQ(difference(before, w), "");
}

TEST_P(Cc, LeavesTableHitsAndMarksEmptyWhenTheTableWasEmpty) {
  emptyTable();
  world.press(GetParam().cc);
  EXPECT_FALSE(formulas().hasData());
  EXPECT_FALSE((w.*GetParam().emptied).hasData());
  for (int row = 1; row <= 2; ++row) {
    EXPECT_EQ(w.FgEv.text(row, GetParam().column), "");
    EXPECT_EQ(w.FgEv.back(row, GetParam().column), kWhite);
  }
  EXPECT_GT(w.FgF.number(1, 13), 0);
}

TEST_P(Cc, RestoresTheTableColouredAndVerified) {
  emptyTable();
  SevenWorld::addNumber(formulas(), 9);
  SevenWorld::addNumber(formulas(), 8);
  world.press(GetParam().cc);
  ASSERT_EQ(formulas().dataRows(), 2);
  EXPECT_EQ(formulas().text(1, 11) + formulas().text(2, 11), "98");
  EXPECT_EQ(formulas().back(1, 1), GialloChiaro);
  EXPECT_EQ(formulas().back(1, 13), GialloChiaro);
  EXPECT_TRUE(formulas().at(1, 11).bold);
  // Verifying it once more changes nothing but the record's carried values.
  const Grid hitsAfter = hits(), casesAfter = w.FgEv, panelAfter = w.Fg_Stat;
  world.press(GetParam().all);
  EXPECT_EQ(difference(hitsAfter, hits()), "");
  EXPECT_EQ(difference(casesAfter, w.FgEv), "");
  EXPECT_EQ(difference(panelAfter, w.Fg_Stat), "");
}

TEST_P(Cc, MarksTheCandidatesWhoseCountsDiffer) {
  emptyTable();
  world.press(GetParam().cc);
  const std::string verified = w.FgF.text(1, 13);
  for (int row = 1; row <= 4; ++row) w.FgF.setBack(row, 13, GialloMedio);
  w.FgF.setText(2, 13, "33");
  world.press(GetParam().cc);
  EXPECT_EQ(w.FgF.back(1, 13), GialloMedio);
  EXPECT_EQ(w.FgF.text(1, 13), verified);
  EXPECT_EQ(w.FgF.back(2, 13), VerdeMedio);
  EXPECT_EQ(w.FgF.text(2, 13), "0");
}

TEST_P(Cc, TellsItsTimesAndLeavesTheLastCandidateCurrent) {
  w.FgF.setCurrent(2, 11);
  world.press(GetParam().cc);
  EXPECT_EQ(w.List1.lines(), (std::vector<std::string>{"10:30:15", "10:30:15"}));
  EXPECT_EQ(w.FgF.current(), 4);
}

TEST_P(Cc, GivesTheSameCountsWithAutomaticVerification) {
  emptyTable();
  world.press(GetParam().cc);
  const Grid counted = w.FgF;
  w.ChVerifica.set(true);
  world.press(GetParam().cc);
  for (int row = 1; row <= 4; ++row)
    for (int column : {12, 13}) EXPECT_EQ(w.FgF.text(row, column), counted.text(row, column)) << row;
}

TEST_P(Cc, NotesTheCasesThatTheTableCoveredBefore) {
  w.FgEv.setBack(2, GetParam().column, Verde);
  w.FgEv.setBack(1, GetParam().column, VerdeScuro);
  w.CasiEsclusi.fill(true);
  world.press(GetParam().cc);
  CaseFlags wanted{};
  wanted[2] = true;
  EXPECT_EQ(w.CasiEsclusi, wanted);
}

TEST_P(Cc, CountsOnTheUncoveredCasesAloneWhenAskedTo) {
  emptyTable();
  world.setCases({1, 2}, 3);  // both see 7 and 8 in draw 4, the first also 7, 8 and 9 in draw 2
  world.press(GetParam().cc);
  const int all = w.FgF.number(1, 12);
  world.setCases({1, 2}, 3);
  w.FgEv.setBack(1, GetParam().column, Verde);
  w.Ch_Scoperti.set(true);
  world.press(GetParam().cc);
  EXPECT_LT(w.FgF.number(1, 12), all);
}

TEST(CcOfAmbi, VerifiesEachCandidateByItself) {
  CcWorld world;
  Workbench& w = world.w;
  world.press("Command64");
  EXPECT_EQ(world.counts(1), "2 2");  // 7 and 8: on Roma, then on Bari
  EXPECT_EQ(world.counts(2), "0 0");
  EXPECT_EQ(world.counts(4), "1 1");  // 7 and 9: on Roma
  EXPECT_EQ(w.Fg22.dataRows(), 1);
  EXPECT_EQ(w.Fg_Stat.text(0, 1), "2N");
}

TEST(CcOfAmbi, GivesABlankCandidateTheCountsThatTheTotalsGridShows) {
  CcWorld world;
  Workbench& w = world.w;
  w.Fg22.cutToHeading();
  w.FgF.setText(3, 11, "");  // a row that a search left blank
  world.press("Command64");
  EXPECT_EQ(world.counts(1), "2 2");
  EXPECT_EQ(world.counts(2), "0 0");
  EXPECT_EQ(world.counts(3), "0 0");
  w.FgF.removeRow(2);
  world.press("Command64");
  EXPECT_EQ(world.counts(2), "2 2");  // of the candidate above it
}

TEST(CcOfAmbi, GivesBlankCandidatesAtTheTopTheTotalsFromBefore) {
  CcWorld world;
  Workbench& w = world.w;
  w.Fg22.cutToHeading();
  w.FgF.cutToHeading();
  w.FgF.setRows(3);
  w.FgSSS.setText(0, 1, "31");
  w.FgSSS.setText(1, 1, "21");
  world.press("Command64");
  EXPECT_EQ(world.counts(1), "21 31");
  EXPECT_EQ(world.counts(2), "21 31");
  EXPECT_EQ(w.FgF.back(1, 13), VerdeMedio);
}

TEST(CcOfAmbi, LeavesTheNumbersInPlayOfTheLastCandidateWhenTheTableWasEmpty) {
  CcWorld world;
  Workbench& w = world.w;
  w.Fg22.cutToHeading();
  world.press("Command64");
  EXPECT_EQ(w.Fg15.text(1, 2), "09");
  EXPECT_TRUE(w.NumeriInGioco[51][9]);
  EXPECT_FALSE(w.NumeriInGioco[51][8]);
  EXPECT_EQ(w.FgSSS.text(1, 1), "1");  // the counts of the last candidate stay as well
  EXPECT_EQ(w.Fg_Stat.text(2, 1), "1");
}

TEST(CcOfTerni, VerifiesEachCandidateWithTheAmbi) {
  CcWorld world;
  world.press("Command73");
  EXPECT_EQ(world.counts(1), "1 1");  // 7, 9 and 8 on Roma
  EXPECT_EQ(world.counts(2), "0 0");
  EXPECT_EQ(world.counts(4), "0 0");  // 9 twice is no terno
}

TEST(CcOfTheLunghetta, MeasuresACandidateByWhatItAddsToTheTable) {
  CcWorld world;
  Workbench& w = world.w;
  w.ComboSorte.pick(1);
  SevenWorld::addNumber(w.Fg00, 7);
  w.FgF.setText(3, 11, "");
  world.press("Command84");
  EXPECT_EQ(world.counts(1), "2 2");
  EXPECT_EQ(world.counts(2), "0 0");
  EXPECT_EQ(world.counts(3), "0 0");  // the table alone
  EXPECT_EQ(world.counts(4), "1 1");
  ASSERT_EQ(w.Fg00.dataRows(), 1);
  EXPECT_EQ(w.Fg00.text(1, 0), "1");
  EXPECT_TRUE(w.Fg00.at(1, 0).bold);
}

TEST(CcOfTheLunghetta, EmptiesTheHitsOfTheAmbiAndKeepsItsOwnWhenTheTableWasEmpty) {
  CcWorld world;
  Workbench& w = world.w;
  w.FgZ2.appendRow();
  world.press("Command84");
  EXPECT_FALSE(w.FgZ2.hasData());
  ASSERT_TRUE(w.FgZ0.hasData());
  EXPECT_EQ(w.FgZ0.text(1, 6), "9");  // of the last candidate
  EXPECT_TRUE(w.FgZ100.hasData());
  EXPECT_EQ(w.Sorte, 1);
  EXPECT_EQ(w.FgEv.text(1, 22), "");
}

TEST(CcOfTheLunghetta, LeavesOutCandidatesBeyondTheTenthFormula) {
  CcWorld world;
  Workbench& w = world.w;
  for (int number : {7, 31, 32, 33, 34, 35, 36, 37, 38, 39}) SevenWorld::addNumber(w.Fg00, number);
  world.press("Command84");
  EXPECT_TRUE(world.shell.shown.empty());
  EXPECT_EQ(w.Fg00.dataRows(), 10);
  EXPECT_EQ(world.counts(1), world.counts(2));  // the table alone, whatever the candidate
  EXPECT_EQ(world.counts(1), "2 3");
}

// A formula of an unknown operator gives the number of the evaluation before: that of the candidate before a blank one,
// which verifies the table once, though "Verifica automatica" verifies each candidate twice.
TEST(CcOfTheLunghetta, VerifiesTheTableOnceAtABlankCandidate) {
  CcWorld world;
  Workbench& w = world.w;
  for (Grid* const grid : std::initializer_list<Grid*>{&w.FgF, &w.Fg11, &w.Fg22}) grid->cutToHeading();
  for (const int fix : {85, 38})
    SevenWorld::addFormula(w.FgF, {.elements = {{0, 1}}, .fix = fix});  // 55 and 8 in the last case
  for (const int number : {0, 9}) SevenWorld::addNumber(w.FgF, number);
  SevenWorld::addFormula(w.Fg00, {.elements = {{0, 1}, {0, 2}}, .op = "N1 ? N2", .qn = "2"});
  SevenWorld::addFormula(w.Fg00, {.elements = {{0, 2}}});
  for (const bool automatic : {false, true}) {
    w.ChVerifica.set(automatic);
    world.press("Command84");
    EXPECT_EQ(world.counts(3), "1 1") << "the 8 of the candidate before";
  }
}

TEST(CcOfTheLunghetta, TellsOnceAPressThatTheTableIsTooLong) {
  CcWorld world;
  Workbench& w = world.w;
  for (int number = 31; number < 43; ++number) SevenWorld::addNumber(w.Fg00, number);
  w.FgSSS.setText(0, 5, "4");
  w.FgSSS.setText(1, 5, "3");
  const Grid hitsBefore = w.FgZ0;
  world.press("Command84");
  EXPECT_EQ(world.shell.texts(), std::vector<std::string>{kTooMany});
  EXPECT_EQ(w.Fg00.dataRows(), 12);
  EXPECT_EQ(difference(hitsBefore, w.FgZ0), "");
  for (int row = 1; row <= 4; ++row) EXPECT_EQ(world.counts(row), "3 4") << row;
  world.press("Command84");
  EXPECT_EQ(world.shell.shown.size(), 2U);
}

// The elaboration that closes each verification of the lunghetta knows no exclusion.
TEST(CcOfTheLunghetta, CountsAnExcludedCaseThatItsElaborationMarks) {
  CcWorld world;
  Workbench& w = world.w;
  world.setCases({3, 1}, 1);
  world.playOn({0});
  SevenWorld::addNumber(w.Fg00, 7);
  w.FgEv.setBack(1, 22, Verde);
  w.Ch_Scoperti.set(true);
  world.press("Command84");
  EXPECT_EQ(world.counts(1), "2 2");  // 8 and 7 on the last wheel of draw 4 mark the excluded case again
  EXPECT_EQ(world.counts(2), "1 1");
}

}  // namespace
}  // namespace trv5
