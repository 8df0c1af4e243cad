#include "chance/balance.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "chance/fair_draws.h"
#include "support/archive_builder.h"
#include "support/random_runs.h"

namespace trv5 {
namespace {

CaseNumbers lists(std::initializer_list<std::initializer_list<int>> tables) {
  CaseNumbers numbers;
  std::size_t table = 0;
  for (const auto& list : tables) {
    for (const int n : list) numbers[table].add(n);
    ++table;
  }
  return numbers;
}

// One case at the first draw, all later draws its colpi.
BalanceRequest oneCase(Table table, const CaseNumbers& numbers, WheelSet wheels, int lastDraw) {
  return {.table = table,
          .caseDraws = {1},
          .numbers = {numbers},
          .window = {.colpi = 9, .lastDraw = lastDraw, .wheels = wheels}};
}

const WheelNumbers kNothing = {{"BA", {1, 2, 3, 4, 5}}, {"CA", {6, 7, 8, 9, 10}}};
const WheelNumbers kBoth = {{"BA", {1, 2, 3, 4, 17}}, {"CA", {17, 7, 8, 9, 10}}};

TEST(Balance, DividesTheStakeAmongTheWheelsOfPlay) {
  const Archive archive = archiveOf({{}, kNothing, kBoth, kBoth});
  BalanceRequest request = oneCase(Table::Ambate, lists({{17}}), 0b11U, 4);
  Balance balance = balanceOf(archive, request);
  EXPECT_DOUBLE_EQ(balance.spent, 2);  // the case is closed by its first hit
  EXPECT_DOUBLE_EQ(balance.paid, 11.232);
  EXPECT_DOUBLE_EQ(balance.net, 11.232 * 0.92);
  request.until = PlayedUntil::LastColpo;
  balance = balanceOf(archive, request);
  EXPECT_DOUBLE_EQ(balance.spent, 3);
  EXPECT_DOUBLE_EQ(balance.paid, 2 * 11.232);
  request.window.wheels = 0b01U;
  request.stake = 10;
  EXPECT_DOUBLE_EQ(balanceOf(archive, request).spent, 30);
  EXPECT_DOUBLE_EQ(balanceOf(archive, request).paid, 2 * 10 * 11.232);
}

TEST(Balance, PlaysOnlyTheWheelsThatWereDrawn) {
  const Archive archive = archiveOf({{}, {}, {{"BA", {17, 2, 3, 4, 5}}}});
  const Balance balance = balanceOf(archive, oneCase(Table::Ambate, lists({{17}}), 0b11U, 3));
  EXPECT_DOUBLE_EQ(balance.spent, 1);
  EXPECT_DOUBLE_EQ(balance.paid, 11.232);
}

TEST(Balance, PaysEachAmboOfALunghetta) {
  const Archive archive = archiveOf({{}, {{"BA", {1, 2, 3, 80, 90}}, {"CA", {4, 3, 2, 1, 5}}}});
  BalanceRequest request = oneCase(Table::Lunghetta, lists({{}, {}, {}, {1, 2, 3, 4}}), 0b01U, 2);
  request.sorte = 2;
  EXPECT_DOUBLE_EQ(balanceOf(archive, request).paid, 3.0 / 6 * 250);
  request.window.wheels = 0b11U;
  EXPECT_DOUBLE_EQ(balanceOf(archive, request).paid, (3.0 + 6.0) / 12 * 250);
  EXPECT_DOUBLE_EQ(balanceOf(archive, request).spent, 1);
  request.sorte = 4;
  EXPECT_DOUBLE_EQ(balanceOf(archive, request).paid, 120000.0 / 2);
  request.sorte = 5;  // no set of five of four numbers
  EXPECT_EQ(balanceOf(archive, request).spent, 0);
  EXPECT_EQ(balanceOf(archive, request).expectedSpent, 0);
}

TEST(Balance, PlaysTheAmbiAndTerniOfTheListsOnceEach) {
  const Archive archive = archiveOf({{}, {{"BA", {1, 2, 3, 80, 90}}}});
  // 1-2, 1-3, 2-3: 2-1 is 1-2 again, 2-2 is none, and a 0 isn't played.
  const CaseNumbers numbers = lists({{1, 2, 0}, {1, 2, 3}, {3, 50}});
  EXPECT_DOUBLE_EQ(balanceOf(archive, oneCase(Table::Ambi, numbers, 1U, 2)).paid, 250);
  // 1-2-3 out of 1-2-3, 1-2-50, 1-3-50, 2-3-50.
  EXPECT_DOUBLE_EQ(balanceOf(archive, oneCase(Table::Terni, numbers, 1U, 2)).paid, 4500.0 / 4);
}

TEST(Balance, OfACaseLeftOutIsNothing) {
  const Archive archive = archiveOf({{}, kBoth});
  BalanceRequest request = oneCase(Table::Ambate, lists({{17}}), 0b11U, 2);
  request.leftOut = {true};
  EXPECT_EQ(balanceOf(archive, request).spent, 0);
  EXPECT_EQ(balanceOf(archive, request).expectedPaid, 0);
}

TEST(Balance, TellsWhatComesBackOfAEuro) {
  EXPECT_NEAR(returnOf(1, {}), 0.624, 5e-4);
  EXPECT_NEAR(returnOf(2, {}), 0.624, 5e-4);
  EXPECT_NEAR(returnOf(3, {}), 0.383, 5e-4);
  EXPECT_NEAR(returnOf(4, {}), 0.235, 5e-4);
}

TEST(Balance, OfFairDrawsAgreesWithItsExpectation) {
  std::mt19937 rng(1);
  const Archive archive = randomArchive(rng, 90);
  const int replicas = std::max(randomRuns(10000), 4000);  // the error of rare payments shows in many only
  const CaseNumbers numbers = lists({{7, 50, 90}, {50, 60}, {70, 71}, {1, 2, 3, 4, 5, 6}});
  for (const TableTraits& table : {kTables[0], kTables[1], kTables[3]})
    for (const PlayedUntil until : {PlayedUntil::FirstHit, PlayedUntil::LastColpo}) {
      SCOPED_TRACE(std::string(table.section) + (until == PlayedUntil::FirstHit ? " first" : " last"));
      BalanceRequest request = oneCase(table.table, numbers, 0b10000000111U, 90);
      request.caseDraws = {10, 20, 30, 70};
      request.numbers = std::vector<CaseNumbers>(4, numbers);
      request.sorte = 2;
      request.until = until;
      const Redraw redraw = redrawAfter(archive, request.caseDraws, 9, 90, request.window.wheels);
      FairDraws draws(redraw);
      const Balance expected = balanceOf(archive, request);
      double spent = 0, paid = 0, spentSquare = 0, paidSquare = 0;
      for (int replica = 0; replica < replicas; ++replica) {
        const Balance one = balanceOf(draws.replica(2, static_cast<std::uint64_t>(replica)), request);
        spent += one.spent / replicas;
        paid += one.paid / replicas;
        spentSquare += one.spent * one.spent / replicas;
        paidSquare += one.paid * one.paid / replicas;
      }
      // What is spent up to the last colpo is always the same.
      const double spentVariance = std::max(0.0, spentSquare - spent * spent);
      EXPECT_NEAR(spent, expected.expectedSpent, 3 * std::sqrt(spentVariance / replicas) + 1e-9);
      EXPECT_NEAR(paid, expected.expectedPaid, 3 * std::sqrt((paidSquare - paid * paid) / replicas));
    }
}

}  // namespace
}  // namespace trv5
