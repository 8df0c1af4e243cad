// Searches and recounts worked out by hand: a few draws, each wanted number told by the rule beside it.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "engine/verification_draws.h"

namespace trv5 {
namespace {

// 1 is the ambata. Case 1 stands on draw 1, its hit in draw 2; case 2 on draw 3, its hit in draw 4.
std::vector<WheelNumbers> twoCases() {
  return {{{"BA", {10, 20, 30, 40, 85}}},
          {{"BA", {1, 20, 30, 40, 50}}},
          {{"BA", {60, 61, 30, 62, 63}}},
          {{"BA", {1, 40, 5, 6, 7}}}};
}

class WorkedSearch : public WorkbenchWorld {
 public:
  WorkedSearch(const std::vector<WheelNumbers>& draws, std::initializer_list<int> wheels)
      : WorkbenchWorld(archiveOf(draws)) {
    playOn(wheels);
  }
  static void addNumber(Grid& table, int number) { addFormula(table, {.fix = number, .nr = "0"}); }
  void keep(int candidates) { choose(w.ComboEle, std::to_string(candidates)); }

  /// The candidates as "BA1+10 CC 1 Pres 1"; a blank row shows its counts alone.
  std::vector<std::string> candidates() const {
    std::vector<std::string> texts;
    for (int row = 1; row < w.FgF.rows(); ++row) {
      std::string text;
      for (const int column : {2, 5, 8}) text += w.FgF.text(row, column) + w.FgF.text(row, column + 1);
      if (!w.FgF.text(row, 11).empty()) text += "+" + w.FgF.text(row, 11);
      texts.push_back(text + " CC " + w.FgF.text(row, 13) + " Pres " + w.FgF.text(row, 12));
    }
    return texts;
  }
};

using Rows = std::vector<std::string>;

TEST(WorkedCompanions, OfEqualCountsKeepTheFirstOfEachFixWhereTheListEnds) {
  WorkedSearch world(twoCases(), {0});
  world.setCases({1}, 1);
  WorkedSearch::addNumber(world.w.Fg11, 1);
  world.press("Command29");
  world.w.ChFix1R.set(true);
  // The fix runs outermost: 10 makes companions of the first four numbers of Bari, 20 first of its first (10 + 20).
  world.keep(3);
  world.press("Command28");
  EXPECT_EQ(world.candidates(), (Rows{"BA1+10 CC 1 Pres 1", "BA2+10 CC 1 Pres 1", "BA3+10 CC 1 Pres 1"}));
  world.keep(5);
  world.press("Command28");
  EXPECT_EQ(world.candidates(), (Rows{"BA1+10 CC 1 Pres 1", "BA2+10 CC 1 Pres 1", "BA3+10 CC 1 Pres 1",
                                      "BA4+10 CC 1 Pres 1", "BA1+20 CC 1 Pres 1"}));
}

TEST(WorkedCompanions, GiveWayAtTheEndOfTheListToAHigherCountAlone) {
  WorkedSearch world(twoCases(), {0});
  world.setCases({3, 1}, 1);
  WorkedSearch::addNumber(world.w.Fg11, 1);
  world.press("Command29");
  world.w.ChFix1R.set(true);
  world.w.ComboFix.pick(10);
  world.keep(2);
  world.press("Command28");
  // BA3 counts in both cases (30 + 10) and takes the place of BA2; BA4 counts once and finds no room.
  EXPECT_EQ(world.candidates(), (Rows{"BA3+10 CC 2 Pres 2", "BA1+10 CC 1 Pres 1"}));
}

// 1 and 2 came out together on Bari and on Cagliari, with 30 on both and 20 on Bari alone. On Bari of the case the
// first two numbers make 20, the second and the third 30.
class AmboOnTwoWheels : public WorkedSearch {
 public:
  AmboOnTwoWheels()
      : WorkedSearch({{{"BA", {4, 16, 14, 3, 60}}}, {{"BA", {1, 2, 20, 30, 40}}, {"CA", {2, 30, 1, 51, 52}}}}, {0, 1}) {
    setCases({1}, 1);
    addNumber(w.Fg11, 1);
    addNumber(w.Fg22, 2);
    press("Command34");
  }
};

TEST(WorkedTerni, CountACompanionOnTwoWheelsTwiceInPresAndOnceInCc) {
  AmboOnTwoWheels world;
  ASSERT_EQ(world.w.FgZ2.dataRows(), 2) << "the ambo on each of the two wheels";
  world.keep(3);
  world.press("Command43");
  EXPECT_EQ(world.candidates(),
            (Rows{"BA1BA2 CC 1 Pres 1", "BA2BA3 CC 1 Pres 2", " CC 1 Pres 2"}))  // the blank row repeats the one above
      << "the recount agrees with the search";
}

TEST(WorkedTerni, AreCutByCcAndNotByPres) {
  AmboOnTwoWheels world;
  world.keep(1);
  world.press("Command43");
  EXPECT_EQ(world.candidates(), Rows{"BA1BA2 CC 1 Pres 1"}) << "more presences are no reason to give way";
}

// The lunghetta plays 1, which stands on Bari in draw 2; on Cagliari no number in play stands.
class LunghettaOfOneNumber : public WorkedSearch {
 public:
  LunghettaOfOneNumber()
      : WorkedSearch({{{"BA", {60, 20, 70, 71, 72}}}, {{"BA", {1, 20, 30, 40, 50}}, {"CA", {60, 61, 62, 63, 64}}}},
                     {0, 1}) {
    setCases({1}, 1);
    addNumber(w.Fg00, 1);
    press("Cmd_Elabora100");
    w.ComboSorte.pick(0);
    w.Sorte = 3;  // stale: the search takes the sorte of the list
    keep(2);
  }
};

TEST(WorkedLunghetta, OfSorteOneNeedsANumberInPlayOnTheWheel) {
  LunghettaOfOneNumber world;
  world.press("Command56");
  // 20 stands beside 1; 60, the first number of the case, only on the wheel without a number in play. The blank row
  // shows the table alone.
  EXPECT_EQ(world.candidates(), (Rows{"BA2 CC 1 Pres 1", " CC 1 Pres 1"}));
  EXPECT_EQ(world.w.Sorte, 1);
}

TEST(WorkedLunghetta, OfSorteOneFindsNothingOnTheUncoveredCases) {
  LunghettaOfOneNumber world;
  world.w.Ch_Scoperti.set(true);  // a case without any number in play has no hit draw to look at
  world.press("Command56");
  EXPECT_EQ(world.candidates(), (Rows{" CC 1 Pres 1", " CC 1 Pres 1"}));
}

// CC on the cases that the table's own formulas leave uncovered: case 1 is covered by its verification, case 2 isn't.
class OwnMarks : public SevenWorld {
 public:
  OwnMarks() {
    setCases({1, 3}, 1);
    playOn({0, 7, 8});  // Torino, never drawn, is the last wheel: the elaboration of the lunghetta marks nothing
    addNumber(w.Fg11, 7);
    w.Ch_Scoperti.set(true);
  }
  /// A candidate with the count of its search.
  void addCandidate(int number, const char* cc) {
    addNumber(w.FgF, number);
    w.FgF.setText(w.FgF.rows() - 1, 13, cc);
  }
  std::string counts(int row) const { return "CC " + w.FgF.text(row, 13) + " Pres " + w.FgF.text(row, 12); }
  /// The marks of a column of `FgEv`: "1 -" for a covered case and one that isn't.
  std::string marks(int column) const {
    std::string text;
    for (int row = 1; row < w.FgEv.rows(); ++row)
      text += (row > 1 ? " " : "") + (w.FgEv.back(row, column) == Verde ? w.FgEv.text(row, column) : "-");
    return text;
  }
};

TEST(WorkedCc, OfAmbiCountsOnTheCasesThatTheTableLeavesUncovered) {
  OwnMarks world;
  Workbench& w = world.w;
  SevenWorld::addNumber(w.Fg22, 9);
  world.press("Command34");
  ASSERT_EQ(world.marks(18), "1 -");  // 7 and 9 on Roma in draw 2
  world.addCandidate(8, "2");         // 7 and 8 on Roma in draw 2, on Bari in draw 4
  world.addCandidate(9, "0");
  for (int press = 1; press <= 2; ++press) {  // the marks come back: the next press counts on the same cases
    world.press("Command64");
    EXPECT_EQ(world.counts(1), "CC 1 Pres 1");
    EXPECT_EQ(world.counts(2), "CC 0 Pres 0");
    EXPECT_EQ(w.FgF.back(1, 13), VerdeMedio) << "the search had counted 2";
    EXPECT_EQ(w.FgF.back(2, 13), kWhite);
    EXPECT_EQ(world.marks(18), "1 -");
    EXPECT_EQ(w.FgZ2.dataRows(), 2);
  }
  w.Ch_Scoperti.set(false);
  world.press("Command64");
  EXPECT_EQ(world.counts(1), "CC 2 Pres 2");
  EXPECT_EQ(world.counts(2), "CC 1 Pres 1");
}

TEST(WorkedCc, OfTerniCountsOnTheCasesThatTheTableLeavesUncovered) {
  OwnMarks world;
  Workbench& w = world.w;
  SevenWorld::addNumber(w.Fg22, 8);
  SevenWorld::addNumber(w.Fg33, 9);
  world.press("Command48");
  ASSERT_EQ(world.marks(19), "1 -");  // 7, 8 and 9 on Roma in draw 2
  world.addCandidate(65, "2");        // 7, 8 and 65 on Bari in draw 4
  world.addCandidate(9, "0");
  world.press("Command73");
  EXPECT_EQ(world.counts(1), "CC 1 Pres 1");
  EXPECT_EQ(world.counts(2), "CC 0 Pres 0");
  EXPECT_EQ(w.FgF.back(1, 13), VerdeMedio);
  EXPECT_EQ(w.FgF.back(2, 13), kWhite);
  EXPECT_EQ(world.marks(19), "1 -");
}

TEST(WorkedCc, OfTheLunghettaCountsOnTheCasesThatTheTableLeavesUncovered) {
  OwnMarks world;
  Workbench& w = world.w;
  w.ComboSorte.pick(1);
  for (const int number : {7, 9}) SevenWorld::addNumber(w.Fg00, number);
  world.press("Command51");
  ASSERT_EQ(world.marks(22), "1 -");  // 7 and 9 on Roma in draw 2; in draw 4 only 7
  world.addCandidate(8, "2");
  world.addCandidate(45, "0");
  world.press("Command84");
  EXPECT_EQ(world.counts(1), "CC 1 Pres 1");  // 8 and 7 on Bari in draw 4
  EXPECT_EQ(world.counts(2), "CC 0 Pres 0");
  EXPECT_EQ(w.FgF.back(1, 13), VerdeMedio);
  EXPECT_EQ(w.FgF.back(2, 13), kWhite);
  EXPECT_EQ(world.marks(22), "1 -");
}

}  // namespace
}  // namespace trv5
