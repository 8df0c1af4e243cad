#include "tools/draw_pairs.h"

#include <gtest/gtest.h>

#include <random>

#include "support/archive_builder.h"
#include "support/random_runs.h"

namespace trv5 {
namespace {

constexpr std::array kAllFamilies = {Family::Horizontal, Family::Vertical, Family::Diagonal};
constexpr std::array kAllMeasures = {Measure::Sum, Measure::Distance, Measure::Difference};

TEST(DrawPairs, HorizontalPairsAreTwoPositionsOfOneWheel) {
  const auto pairs = pairsOf(Family::Horizontal);
  ASSERT_EQ(pairs.size(), 110U);
  EXPECT_EQ(pairs[0], (NumberPair{0, 1, 0, 2}));
  EXPECT_EQ(pairs[4], (NumberPair{0, 2, 0, 3}));
  EXPECT_EQ(pairs[109], (NumberPair{10, 4, 10, 5}));
}

TEST(DrawPairs, VerticalPairsAreOnePositionOfTwoWheels) {
  const auto pairs = pairsOf(Family::Vertical);
  ASSERT_EQ(pairs.size(), 275U);
  EXPECT_EQ(pairs[0], (NumberPair{0, 1, 1, 1}));
  EXPECT_EQ(pairs[5], (NumberPair{0, 1, 2, 1}));
  EXPECT_EQ(pairs[274], (NumberPair{9, 5, 10, 5}));
}

TEST(DrawPairs, DiagonalPairsAreTwoPositionsOfTwoWheels) {
  const auto pairs = pairsOf(Family::Diagonal);
  ASSERT_EQ(pairs.size(), 1100U);
  EXPECT_EQ(pairs[0], (NumberPair{0, 1, 1, 2}));
  EXPECT_EQ(pairs[4], (NumberPair{0, 2, 1, 1}));
  EXPECT_EQ(pairs[1099], (NumberPair{9, 5, 10, 4}));
}

TEST(DrawPairs, SumsFoldInto90AndASumOf90Stays90) {
  EXPECT_EQ(sumOf(45, 45), 90);
  EXPECT_EQ(sumOf(89, 2), 1);
  EXPECT_EQ(sumOf(90, 90), 90);
  EXPECT_EQ(sumOf(1, 2), 3);
}

TEST(DrawPairs, DistancesGoTheShorterWayAndADistanceOf0Is45) {
  EXPECT_EQ(distanceOf(1, 90), 1);
  EXPECT_EQ(distanceOf(10, 55), 45);
  EXPECT_EQ(distanceOf(30, 30), 45);
  EXPECT_EQ(distanceOf(55, 9), 44);
}

TEST(DrawPairs, DifferencesArePlain) {
  EXPECT_EQ(differenceOf(1, 90), 89);
  EXPECT_EQ(differenceOf(90, 1), 89);
  EXPECT_EQ(differenceOf(30, 30), 0);
}

TEST(DrawPairs, A0OfAnUndrawnWheelTakesPartLikeAnyNumber) {
  EXPECT_EQ(sumOf(0, 17), 17);
  EXPECT_EQ(differenceOf(0, 17), 17);
  EXPECT_EQ(distanceOf(0, 17), 17);
  EXPECT_EQ(sumOf(0, 0), 90);
  EXPECT_EQ(distanceOf(0, 0), 45);
  EXPECT_EQ(differenceOf(0, 90), 90) << "0 and 90 are two numbers";
  EXPECT_EQ(distanceOf(0, 90), 45);
}

TEST(DrawFrequencies, CountEachPairOnceInEachMeasure) {
  std::mt19937 rng(71);
  const Archive archive = randomArchive(rng, 20);
  const std::array sizes = {110, 275, 1100};
  for (int draw = 1; draw <= 20; ++draw) {
    const Frequencies counts = frequenciesOf(numbersOfDraw(archive, draw));
    for (const Measure measure : kAllMeasures)
      for (const Family family : kAllFamilies) {
        int total = 0;
        for (const int count : counts[blockOf(measure, family)]) total += count;
        EXPECT_EQ(total, sizes[static_cast<std::size_t>(family)]);
      }
  }
}

TEST(DrawFrequencies, TheDifference0HasACounter) {
  const Archive archive = archiveOf({{{"BA", {30, 2, 3, 4, 5}}, {"CA", {30, 6, 7, 8, 9}}}});
  const Frequencies counts = frequenciesOf(numbersOfDraw(archive, 1));
  // Nine wheels weren't drawn: 36 pairs of them in each of five positions, and the 30 that two wheels share.
  EXPECT_EQ(counts[blockOf(Measure::Difference, Family::Vertical)][0], 36 * 5 + 1);
}

TEST(DrawFrequencies, NumbersBeyond90CountAs0) {
  const Archive archive = archiveOf({{{"BA", {91, 99, 3, 4, 5}}}});
  const DrawNumbers numbers = numbersOfDraw(archive, 1);
  EXPECT_EQ(numbers[0], (std::array<std::uint8_t, 5>{0, 0, 3, 4, 5}));
}

// The rules as they are told, one pair after the other, wheels counted from 1.
struct PlainPair {
  int w, a, v, b;
};

std::vector<PlainPair> plainPairs(Family family) {
  std::vector<PlainPair> pairs;
  if (family == Family::Horizontal) {
    for (int w = 1; w <= 11; ++w)
      for (int a = 1; a <= 4; ++a)
        for (int b = a + 1; b <= 5; ++b) pairs.push_back({w, a, w, b});
    return pairs;
  }
  for (int w = 1; w <= 10; ++w)
    for (int v = w + 1; v <= 11; ++v)
      for (int a = 1; a <= 5; ++a) {
        if (family == Family::Vertical) {
          pairs.push_back({w, a, v, a});
          continue;
        }
        for (int b = 1; b <= 5; ++b)
          if (b != a) pairs.push_back({w, a, v, b});
      }
  return pairs;
}

int plainMeasure(Measure measure, int p, int q) {
  if (measure == Measure::Sum) {
    const int sum = (p + q) % 90;
    return sum == 0 ? 90 : sum;
  }
  int gap = p - q;
  if (gap < 0) gap = -gap;
  if (measure == Measure::Difference) return gap;
  if (gap > 45) gap = 90 - gap;
  if (gap == 0) gap = 45;
  return gap;
}

TEST(DrawFrequencies, AgreeWithThePlainCountOnRandomDraws) {
  std::mt19937 rng(72);
  const int draws = randomRuns(1000);
  const Archive archive = randomArchive(rng, draws);
  for (int draw = 1; draw <= draws; ++draw) {
    SCOPED_TRACE(draw);
    const DrawNumbers numbers = numbersOfDraw(archive, draw);
    Frequencies plain{};
    for (const Measure measure : kAllMeasures)
      for (const Family family : kAllFamilies)
        for (const PlainPair& pair : plainPairs(family)) {
          const int value = plainMeasure(measure, archive.NumeriEstratti(draw, pair.w - 1, pair.a),
                                         archive.NumeriEstratti(draw, pair.v - 1, pair.b));
          ++plain[blockOf(measure, family)][static_cast<std::size_t>(value)];
        }
    ASSERT_EQ(frequenciesOf(numbers), plain);
  }
}

TEST(DrawPairs, AreFoundByTheirMeasureAsOftenAsCounted) {
  std::mt19937 rng(73);
  const Archive archive = randomArchive(rng, 30);
  for (int draw = 1; draw <= 30; ++draw) {
    const DrawNumbers numbers = numbersOfDraw(archive, draw);
    const Frequencies counts = frequenciesOf(numbers);
    for (const Measure measure : kAllMeasures)
      for (const Family family : kAllFamilies)
        for (int value = 0; value <= 90; ++value)
          ASSERT_EQ(static_cast<int>(pairsWith(numbers, measure, family, value).size()),
                    counts[blockOf(measure, family)][static_cast<std::size_t>(value)]);
  }
}

TEST(DrawPairs, AlikeAreThoseOfOneClass) {
  const Archive archive = archiveOf({{{"BA", {11, 19, 21, 31, 90}}}});
  const DrawNumbers numbers = numbersOfDraw(archive, 1);
  EXPECT_EQ(pairsAlike(numbers, TabDecina, Family::Horizontal)[0], (NumberPair{0, 1, 0, 2}));
  EXPECT_EQ(pairsAlike(numbers, TabCadenza, Family::Horizontal)[0], (NumberPair{0, 1, 0, 3}));
}

}  // namespace
}  // namespace trv5
