#include "tools/system_rows.h"

#include <gtest/gtest.h>

#include <random>

#include "support/random_runs.h"

namespace trv5 {
namespace {

using Row = std::vector<std::optional<int>>;

std::string marksOf(const std::vector<int>& numbers) {
  std::string marks(90, ' ');
  for (const int n : numbers) marks[static_cast<std::size_t>(n - 1)] = 'X';
  return marks;
}

TEST(SystemRows, AnXAtPosition90YieldsTheNumber90) {
  EXPECT_EQ(numbersOfMarks(marksOf({1, 45, 90})), (std::vector<int>{1, 45, 90}));
}

TEST(SystemRows, OtherCharactersThanXAreIgnored) {
  EXPECT_EQ(numbersOfMarks("xX.X 1X"), (std::vector<int>{2, 4, 7}));
  EXPECT_EQ(numbersOfMarks("èX"), std::vector<int>{2}) << "an accented letter is one character";
}

TEST(SystemRows, ATextOfAnotherLengthGivesWhatItHolds) {
  EXPECT_EQ(numbersOfMarks(""), std::vector<int>{});
  EXPECT_EQ(numbersOfMarks("X"), std::vector<int>{1});
  EXPECT_EQ(numbersOfMarks(std::string(200, 'X')).size(), 90U);
}

TEST(SystemRows, UsedNumbersAreInRisingOrderEachOnce) {
  EXPECT_EQ(usedNumbers({{7, 90}, {1, 7}, {}, {0, 91}}), (std::vector<int>{1, 7, 90}));
}

TEST(SystemRows, TheSmallestNumberBecomesTheSmallestChosen) {
  EXPECT_EQ(rewritten({{1, 2}, {2, 3}}, {1, 2, 3}, {5, 17, 30}, 2), (std::vector<Row>{{5, 17}, {17, 30}}));
}

TEST(SystemRows, ANumberWithoutAReplacementBecomes0) {
  EXPECT_EQ(rewritten({{1, 2, 3}}, {1, 2, 3}, {5}, 3), (std::vector<Row>{{5, 0, 0}}));
  EXPECT_EQ(rewritten({{1, 2, 3}}, {1, 2, 3}, {}, 3), (std::vector<Row>{{0, 0, 0}}));
}

TEST(SystemRows, PlacesBeyondTheRowAndNumbersOfAnotherSystemStayEmpty) {
  EXPECT_EQ(rewritten({{1, 9}}, {1, 2}, {5, 6}, 3), (std::vector<Row>{{5, std::nullopt, std::nullopt}}));
}

TEST(SystemRows, TheWidthCutsTheRow) {
  EXPECT_EQ(rewritten({{1, 2, 3}}, {1, 2, 3}, {4, 5, 6}, 2), (std::vector<Row>{{4, 5}}));
  EXPECT_EQ(rewritten({{1, 2, 3}}, {1, 2, 3}, {4, 5, 6}, 0), (std::vector<Row>{{}}));
}

// The rule as it is told: each cell is sought down the list of numbers, and the replacement beside it is written.
TEST(SystemRows, AreRewrittenAsThePlainRuleDoesOnRandomSystems) {
  std::mt19937 rng(75);
  const auto draw = [&rng](unsigned most) { return static_cast<int>(rng() % most); };
  for (int run = 0; run < randomRuns(1000); ++run) {
    SCOPED_TRACE(run);
    SystemRows rows(static_cast<std::size_t>(1 + draw(20)));
    for (std::vector<int>& row : rows)
      for (int n = 1; n <= 90; ++n)
        if (draw(15) == 0) row.push_back(n);
    const std::vector<int> used = usedNumbers(rows);
    std::vector<int> chosen;
    for (int n = 1; n <= 90; ++n)
      if (chosen.size() < used.size() && draw(2) == 0) chosen.push_back(n);
    const int width = draw(12);
    std::vector<Row> plain;
    for (const std::vector<int>& row : rows) {
      Row cells(static_cast<std::size_t>(width));
      for (int k = 0; k < width; ++k) {
        if (k >= static_cast<int>(row.size())) continue;
        const auto at = static_cast<std::size_t>(k);
        for (std::size_t i = 0; i < used.size(); ++i)
          if (used[i] == row[at]) {
            cells[at] = i < chosen.size() ? chosen[i] : 0;
            break;
          }
      }
      plain.push_back(cells);
    }
    ASSERT_EQ(rewritten(rows, used, chosen, width), plain);
  }
}

TEST(SystemPromise, TellsEachPairExactlyOnce) {
  EXPECT_EQ(promiseOf({{1, 2, 4}, {2, 3, 5}, {3, 4, 6}, {4, 5, 7}, {1, 5, 6}, {2, 6, 7}, {1, 3, 7}}),
            "7 numeri, 7 righe, 3 numeri a riga: ogni coppia esattamente una volta.");
}

TEST(SystemPromise, TellsEachPairAtMostOnce) {
  EXPECT_EQ(promiseOf({{1, 2, 3}, {1, 4, 5}}), "5 numeri, 2 righe, 3 numeri a riga: ogni coppia al massimo una volta.");
}

TEST(SystemPromise, TellsOfTheTriplesWherePairsRepeat) {
  EXPECT_EQ(promiseOf({{1, 2, 3, 4}, {1, 2, 5, 6}, {3, 4, 5, 6}}),
            "6 numeri, 3 righe, 4 numeri a riga: ogni terna al massimo una volta, ogni coppia al massimo 2 volte.");
  EXPECT_EQ(promiseOf({{1, 2, 3}, {1, 2, 4}, {1, 3, 4}, {2, 3, 4}}),
            "4 numeri, 4 righe, 3 numeri a riga: ogni terna esattamente una volta, ogni coppia esattamente 2 volte.");
  EXPECT_EQ(promiseOf({{1, 2, 3, 4}, {1, 2, 3, 5}}),
            "5 numeri, 2 righe, 4 numeri a riga: ogni coppia al massimo 2 volte.");
}

TEST(SystemPromise, TellsTheRoundsOfTheRows) {
  EXPECT_EQ(
      promiseOf({{1, 2}, {3, 4}, {1, 3}, {2, 4}, {1, 4}, {2, 3}}),
      "4 numeri, 6 righe, 2 numeri a riga: ogni coppia esattamente una volta; in giri di 2 righe, ognuno con tutti "
      "i numeri.");
}

TEST(SystemPromise, TellsOfRowsOfDifferentLengthAndOfSingleNumbers) {
  EXPECT_EQ(promiseOf({{1, 2, 3}, {4, 5}}),
            "5 numeri, 2 righe, da 2 a 3 numeri a riga: ogni coppia al massimo una volta.");
  EXPECT_EQ(promiseOf({{8}}), "1 numero, 1 riga, 1 numero a riga.");
  EXPECT_EQ(promiseOf({{8, 91}, {0}}), "1 numero, 1 riga, 1 numero a riga.");
  EXPECT_EQ(promiseOf({{}, {}}), "");
  EXPECT_EQ(promiseOf({}), "");
}

TEST(SystemPromise, CountsNumbersNotTheirValues) {
  EXPECT_EQ(promiseOf({{11, 47, 90}}), "3 numeri, 1 riga, 3 numeri a riga: ogni coppia esattamente una volta.");
}

}  // namespace
}  // namespace trv5
