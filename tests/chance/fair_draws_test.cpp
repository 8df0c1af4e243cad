#include "chance/fair_draws.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <numeric>
#include <set>

#include "support/archive_builder.h"

namespace trv5 {
namespace {

constexpr WheelSet kEveryWheel = (1U << kWheels) - 1U;

TEST(RandomStream, GivesThePublishedAnswersOfItsGenerator) {
  using Block = std::array<std::uint32_t, 4>;
  constexpr std::uint32_t kOnes = 0xFFFFFFFFU;
  EXPECT_EQ(philox({0, 0, 0, 0}, {0, 0}), (Block{0x6627E8D5U, 0xE169C58DU, 0xBC57AC4CU, 0x9B00DBD8U}));
  EXPECT_EQ(philox({kOnes, kOnes, kOnes, kOnes}, {kOnes, kOnes}),
            (Block{0x408F276DU, 0x41C83B0EU, 0xA20BC7C6U, 0x6D5451FDU}));
  EXPECT_EQ(philox({0x243F6A88U, 0x85A308D3U, 0x13198A2EU, 0x03707344U}, {0xA4093822U, 0x299F31D0U}),
            (Block{0xD16CFE09U, 0x94FDCCEBU, 0x5001E420U, 0x24126EA1U}));
}

TEST(RandomStream, GivesTheBlocksOfItsStreamOneAfterTheOther) {
  RandomStream random(0x1122334455667788U, 7);
  for (std::uint32_t block = 0; block < 100; ++block) {
    const auto words = philox({block, 0, 7, 0}, {0x55667788U, 0x11223344U});
    ASSERT_EQ(random.next(), std::uint64_t{words[1]} << 32U | words[0]) << block;
    ASSERT_EQ(random.next(), std::uint64_t{words[3]} << 32U | words[2]) << block;
  }
}

TEST(DrawNumbers, TakesEachOrderOfEachSetAsOften) {
  // Three of five: sixty outcomes, a thousand of each expected.
  RandomStream random(1, 0);
  std::map<std::array<std::uint8_t, 3>, int> seen;
  for (int i = 0; i < 60000; ++i) {
    std::array<std::uint8_t, 5> urn = {1, 2, 3, 4, 5};
    drawNumbers(random, urn, 3);
    ++seen[{urn[0], urn[1], urn[2]}];
    std::sort(urn.begin(), urn.end());
    ASSERT_EQ(urn, (std::array<std::uint8_t, 5>{1, 2, 3, 4, 5}));
  }
  ASSERT_EQ(seen.size(), 60U);
  double chiSquare = 0;
  for (const auto& [order, times] : seen) chiSquare += (times - 1000.0) * (times - 1000.0) / 1000.0;
  EXPECT_LT(chiSquare, 59 + 4 * 10.9);  // 59 degrees of freedom
}

TEST(FairDraws, BringEachNumberAtEachPositionAsOften) {
  std::mt19937 rng(1);
  const Archive archive = randomArchive(rng, 40);
  const Redraw redraw = redrawAfter(archive, {30}, 10, 40, kEveryWheel);
  FairDraws draws(redraw);
  std::array<std::array<int, 91>, 5> times{};
  for (std::uint64_t replica = 0; replica < 2000; ++replica) {
    const Outcomes outcomes = draws.replica(1, replica);
    for (const Redraw::Wheel& wheel : redraw.wheels) {
      const std::uint8_t* const numbers = outcomes.wheelOf(0, 0) + wheel.at;
      for (std::size_t k = 0; k < 5; ++k) ++times[k][numbers[k]];
      ASSERT_EQ(std::set<int>(numbers, numbers + 5).size(), 5U);
    }
  }
  const double expected = 2000.0 * static_cast<double>(redraw.wheels.size()) / 90;
  for (const auto& position : times) {
    EXPECT_EQ(position[0], 0);
    double chiSquare = 0;
    for (std::size_t n = 1; n <= 90; ++n) chiSquare += (position[n] - expected) * (position[n] - expected) / expected;
    EXPECT_LT(chiSquare, 89 + 4 * 13.4);  // 89 degrees of freedom
    EXPECT_GT(chiSquare, 89 - 4 * 13.4);
  }
}

TEST(FairDraws, TouchOnlyTheWheelsThatWereDrawnInTheColpi) {
  std::mt19937 rng(2);
  const Archive archive = randomArchive(rng, 60);
  constexpr WheelSet kWanted = 0b10000010011U;
  const Redraw redraw = redrawAfter(archive, {10, 12, 50, 58}, 5, 60, kWanted);
  FairDraws draws(redraw);
  const Outcomes outcomes = draws.replica(3, 4);
  int changed = 0;
  for (int draw = 0; draw <= 70; ++draw)
    for (int wheel = 0; wheel < kWheels; ++wheel) {
      const std::uint8_t *was = archive.wheelOf(draw, wheel), *is = outcomes.wheelOf(draw, wheel);
      const bool inColpi = (draw > 10 && draw <= 17) || (draw > 50 && draw <= 55) || (draw > 58 && draw <= 60);
      if (inColpi && holds(kWanted, wheel) && was[0] != 0)
        changed += !std::equal(was, was + 5, is);
      else
        EXPECT_TRUE(std::equal(was, was + 5, is)) << draw << " " << wheel;
    }
  EXPECT_EQ(changed, static_cast<int>(redraw.wheels.size()));
}

TEST(FairDraws, LeaveThePlacesOfAWheelEnteredInPartEmpty) {
  const Archive archive = archiveOf({{}, {{"BA", {11, 0, 13, 0, 15}}}});
  const Redraw redraw = redrawAfter(archive, {1}, 3, 2, 1U);
  FairDraws draws(redraw);
  for (std::uint64_t replica = 0; replica < 200; ++replica) {
    const std::uint8_t* const numbers = draws.replica(1, replica).wheelOf(2, 0);
    EXPECT_EQ(numbers[1], 0);
    EXPECT_EQ(numbers[3], 0);
    EXPECT_EQ((std::set<int>{numbers[0], numbers[2], numbers[4], 0}.size()), 4U);
  }
}

TEST(FairDraws, OfAReplicaDontHangOnTheOthers) {
  std::mt19937 rng(3);
  const Archive archive = randomArchive(rng, 40);
  const Redraw redraw = redrawAfter(archive, {5, 20}, 9, 40, kEveryWheel);
  FairDraws one(redraw), other(redraw);
  for (std::uint64_t replica = 0; replica < 50; ++replica) one.replica(9, replica);
  const std::uint8_t* const late = one.replica(9, 17).wheelOf(0, 0);
  const std::uint8_t* const alone = other.replica(9, 17).wheelOf(0, 0);
  EXPECT_TRUE(std::equal(late, late + std::ptrdiff_t{41} * Archive::kDrawBytes, alone));
  EXPECT_FALSE(std::equal(late, late + std::ptrdiff_t{41} * Archive::kDrawBytes, other.replica(10, 17).wheelOf(0, 0)));
}

TEST(FairDraws, BesideKeptNumbersLeaveThemAndBringThemNowhereElse) {
  const Archive archive = archiveOf({{},
                                     {{"BA", {17, 2, 3, 4, 5}}, {"CA", {6, 7, 8, 9, 10}}, {"FI", {1, 20, 3, 17, 5}}},
                                     {{"BA", {17, 2, 3, 4, 5}}}});
  NumberFlags kept{}, more{};
  kept[17] = true;
  more[20] = more[30] = true;
  const Redraw redraw = redrawBeside(archive, {{2, kept}, {2, more}}, 0b111U);
  FairDraws draws(redraw);
  std::set<int> seen;
  for (std::uint64_t replica = 0; replica < 3000; ++replica) {
    const Outcomes outcomes = draws.replica(1, replica);
    const std::uint8_t *bari = outcomes.wheelOf(2, 0), *firenze = outcomes.wheelOf(2, 2);
    ASSERT_EQ(bari[0], 17);
    ASSERT_EQ(firenze[1], 20);
    ASSERT_EQ(firenze[3], 17);
    ASSERT_EQ(std::set<int>(bari, bari + 5).size(), 5U);
    seen.insert(bari + 1, bari + 5);
    seen.insert({firenze[0], firenze[2], firenze[4]});
  }
  EXPECT_EQ(seen.size(), 87U);
  EXPECT_FALSE(seen.contains(17) || seen.contains(20) || seen.contains(30));
  // What holds none of them stays, and so does another draw.
  EXPECT_EQ(draws.replica(1, 5).wheelOf(2, 1)[0], 6);
  EXPECT_EQ(draws.replica(1, 5).wheelOf(3, 0)[1], 2);
}

}  // namespace
}  // namespace trv5
