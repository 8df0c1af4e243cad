#include "provision/orthogonal_systems.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <set>

#include "provision/block_designs.h"
#include "provision/finite_field.h"

namespace trv5 {
namespace {

// How often each pair of numbers stands together in a row.
std::map<std::pair<int, int>, int> pairCounts(const Blocks& rows) {
  std::map<std::pair<int, int>, int> counts;
  for (const std::vector<int>& row : rows)
    for (std::size_t i = 0; i < row.size(); ++i)
      for (std::size_t j = i + 1; j < row.size(); ++j) ++counts[{row[i], row[j]}];
  return counts;
}

bool isInRisingOrder(const std::vector<int>& row) {
  return std::adjacent_find(row.begin(), row.end(), std::greater_equal<>()) == row.end();
}

// How often each triple of numbers stands together in a row.
std::map<std::array<int, 3>, int> tripleCounts(const Blocks& rows) {
  std::map<std::array<int, 3>, int> counts;
  for (const std::vector<int>& row : rows)
    for (std::size_t i = 0; i < row.size(); ++i)
      for (std::size_t j = i + 1; j < row.size(); ++j)
        for (std::size_t k = j + 1; k < row.size(); ++k) ++counts[{row[i], row[j], row[k]}];
  return counts;
}

bool says(const OrthogonalSystem& system, const char* word) {
  return system.Denominazione.find(word) != std::string::npos;
}

TEST(OrthogonalSystems, HoldNoPairTwiceAndCompleteOnesEachPairOnce) {
  for (const OrthogonalSystem& system : shippedSystems()) {
    SCOPED_TRACE(system.Denominazione);
    if (says(system, "(ogni terna)")) continue;
    const auto counts = pairCounts(system.rows);
    for (const auto& [pair, count] : counts) EXPECT_EQ(count, 1) << pair.first << " " << pair.second;
    const std::size_t allPairs = static_cast<std::size_t>(system.Numeri * (system.Numeri - 1) / 2);
    EXPECT_EQ(counts.size() == allPairs, !says(system, "(parziale)"));
  }
}

TEST(OrthogonalSystems, OfTriplesHoldEachTripleOnceAndAllPairsEquallyOften) {
  int found = 0;
  for (const OrthogonalSystem& system : shippedSystems()) {
    if (!says(system, "(ogni terna)")) continue;
    SCOPED_TRACE(system.Denominazione);
    ++found;
    const int v = system.Numeri, k = system.sviluppo;
    const auto triples = tripleCounts(system.rows);
    EXPECT_EQ(static_cast<int>(triples.size()), v * (v - 1) * (v - 2) / 6);
    for (const auto& [triple, count] : triples)
      EXPECT_EQ(count, 1) << triple[0] << " " << triple[1] << " " << triple[2];
    const auto pairs = pairCounts(system.rows);
    EXPECT_EQ(static_cast<int>(pairs.size()), v * (v - 1) / 2);
    for (const auto& [pair, count] : pairs) EXPECT_EQ(count, (v - 2) / (k - 2)) << pair.first << " " << pair.second;
  }
  EXPECT_EQ(found, 3);
}

TEST(OrthogonalSystems, InRoundsTakeEachNumberOnceInEveryRound) {
  int found = 0;
  for (const OrthogonalSystem& system : shippedSystems()) {
    if (!says(system, "(7 giri)")) continue;
    ++found;
    ASSERT_EQ(system.rows.size(), 35U);
    for (std::size_t first = 0; first < 35; first += 5) {
      std::set<int> numbers;
      for (std::size_t row = first; row < first + 5; ++row)
        numbers.insert(system.rows[row].begin(), system.rows[row].end());
      EXPECT_EQ(numbers.size(), 15U) << "the round that begins with row " << first + 1;
    }
  }
  EXPECT_EQ(found, 1);
}

TEST(OrthogonalSystems, UseTheNumbersFromOneOnWithoutGaps) {
  for (const OrthogonalSystem& system : shippedSystems()) {
    SCOPED_TRACE(system.Denominazione);
    std::set<int> used;
    for (const std::vector<int>& row : system.rows) used.insert(row.begin(), row.end());
    EXPECT_EQ(static_cast<int>(used.size()), system.Numeri);
    EXPECT_EQ(*used.begin(), 1);
    EXPECT_EQ(*used.rbegin(), system.Numeri);
    EXPECT_LE(system.Numeri, 90);
  }
}

TEST(OrthogonalSystems, HaveRowsOfOneWidthInRisingOrderAndNoMoreThanTheGridHolds) {
  for (const OrthogonalSystem& system : shippedSystems()) {
    SCOPED_TRACE(system.Denominazione);
    EXPECT_LE(system.rows.size(), 99U);
    for (const std::vector<int>& row : system.rows) {
      EXPECT_EQ(static_cast<int>(row.size()), system.sviluppo);
      EXPECT_TRUE(isInRisingOrder(row));
    }
  }
}

TEST(OrthogonalSystems, AreTheClassicOnesAndSomePartialOnes) {
  std::set<std::string> names;
  for (const OrthogonalSystem& system : shippedSystems()) names.insert(system.Denominazione);
  EXPECT_EQ(names.size(), shippedSystems().size()) << "two systems of one name";
  for (const char* classic : {"7 numeri in 7 terne",
                              "9 numeri in 12 terne",
                              "13 numeri in 26 terne",
                              "15 numeri in 35 terne",
                              "19 numeri in 57 terne",
                              "21 numeri in 70 terne",
                              "13 numeri in 13 quartine",
                              "16 numeri in 20 quartine",
                              "25 numeri in 50 quartine",
                              "28 numeri in 63 quartine",
                              "21 numeri in 21 cinquine",
                              "25 numeri in 30 cinquine",
                              "41 numeri in 82 cinquine",
                              "45 numeri in 99 cinquine",
                              "31 numeri in 31 sestine",
                              "49 numeri in 56 settine",
                              "4 numeri in 6 ambi",
                              "57 numeri in 57 ottine",
                              "15 numeri in 35 terne (7 giri)",
                              "8 numeri in 14 quartine (ogni terna)",
                              "10 numeri in 30 quartine (ogni terna)",
                              "17 numeri in 68 cinquine (ogni terna)",
                              "90 numeri in 81 decine (parziale)"})
    EXPECT_TRUE(names.count(classic)) << classic;
  EXPECT_TRUE(names.count("8 numeri in 8 terne (parziale)"));
}

TEST(OrthogonalSystems, AreOrderedByTheirNumbers) {
  const std::vector<OrthogonalSystem> systems = shippedSystems();
  EXPECT_TRUE(
      std::is_sorted(systems.begin(), systems.end(), [](const auto& a, const auto& b) { return a.Numeri < b.Numeri; }));
}

TEST(BlockDesigns, SteinerTriplesExistForOneAndThreeModuloSixOnly) {
  for (const int v : {7, 9, 13, 15, 19, 21, 25, 27, 31, 33}) {
    SCOPED_TRACE(v);
    const auto counts = pairCounts(steinerTriples(v));
    EXPECT_EQ(static_cast<int>(counts.size()), v * (v - 1) / 2);
    for (const auto& [pair, count] : counts) EXPECT_EQ(count, 1) << pair.first << " " << pair.second;
  }
  EXPECT_THROW(steinerTriples(8), std::invalid_argument);
  EXPECT_THROW(steinerTriples(11), std::invalid_argument);
}

TEST(BlockDesigns, BinaryQuadruplesAddUpTo0BitByBit) {
  const Blocks quadruples = binaryQuadruples(4);
  EXPECT_EQ(quadruples.size(), 140U);
  for (const std::vector<int>& row : quadruples)
    EXPECT_EQ((row[0] - 1) ^ (row[1] - 1) ^ (row[2] - 1) ^ (row[3] - 1), 0);
  const auto triples = tripleCounts(quadruples);
  EXPECT_EQ(triples.size(), 560U);
  for (const auto& [triple, count] : triples) EXPECT_EQ(count, 1);
}

TEST(BlockDesigns, TwoLinesOfAProjectivePlaneMeetInOnePoint) {
  const Blocks lines = projectivePlane(4);
  ASSERT_EQ(lines.size(), 21U);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    for (std::size_t j = i + 1; j < lines.size(); ++j) {
      std::vector<int> common;
      std::set_intersection(lines[i].begin(), lines[i].end(), lines[j].begin(), lines[j].end(),
                            std::back_inserter(common));
      EXPECT_EQ(common.size(), 1U);
    }
  }
}

TEST(BlockDesigns, ATransversalRowTakesOneNumberOfEachGroup) {
  for (const std::vector<int>& row : transversalDesign(5, 4))
    for (int group = 0; group < 5; ++group) EXPECT_EQ((row[static_cast<std::size_t>(group)] - 1) / 4, group);
  EXPECT_THROW(transversalDesign(6, 4), std::invalid_argument);
}

TEST(FiniteField, ObeysTheLawsOfAField) {
  for (const int order : {2, 3, 4, 5, 7, 8, 9}) {
    SCOPED_TRACE(order);
    const FiniteField f(order);
    for (int a = 0; a < order; ++a) {
      EXPECT_EQ(f.add(a, 0), a);
      EXPECT_EQ(f.multiply(a, 1), a);
      int opposites = 0, inverses = 0;
      for (int b = 0; b < order; ++b) {
        EXPECT_EQ(f.add(a, b), f.add(b, a));
        EXPECT_EQ(f.multiply(a, b), f.multiply(b, a));
        opposites += f.add(a, b) == 0;
        inverses += f.multiply(a, b) == 1;
        for (int c = 0; c < order; ++c) {
          EXPECT_EQ(f.add(a, f.add(b, c)), f.add(f.add(a, b), c));
          EXPECT_EQ(f.multiply(a, f.multiply(b, c)), f.multiply(f.multiply(a, b), c));
          EXPECT_EQ(f.multiply(a, f.add(b, c)), f.add(f.multiply(a, b), f.multiply(a, c)));
        }
      }
      EXPECT_EQ(opposites, 1);
      EXPECT_EQ(inverses, a == 0 ? 0 : 1);
    }
  }
  EXPECT_THROW(FiniteField(6), std::invalid_argument);
}

}  // namespace
}  // namespace trv5
