#include "chance/workers.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <stdexcept>
#include <thread>
#include <vector>

namespace trv5 {
namespace {

TEST(Workers, DoEachPieceOnce) {
  for (const int threads : {0, 1, 2, 8}) {
    std::vector<std::atomic<int>> done(500);
    const int count =
        doAll(500, {.threads = threads}, [&] { return [&](int index) { ++done[static_cast<std::size_t>(index)]; }; });
    EXPECT_EQ(count, 500);
    for (const auto& times : done) EXPECT_EQ(times, 1);
  }
}

TEST(Workers, DoNothingOfNothing) {
  EXPECT_EQ(doAll(0, {}, [] { return [](int) { FAIL(); }; }), 0);
}

TEST(Workers, StopBetweenTwoPiecesAndTellHowFarTheyCame) {
  std::stop_source stop;
  std::atomic<int> done = 0;
  const int count = doAll(1000, {.threads = 2, .stop = stop.get_token()}, [&] {
    return [&](int) {
      if (++done == 10) stop.request_stop();
    };
  });
  EXPECT_GE(done, 10);
  EXPECT_LE(done, 11);  // the other thread may be within one
  EXPECT_LE(count, done);
  EXPECT_GE(count, 9);
}

TEST(Workers, DoNothingWhenStoppedBefore) {
  std::stop_source stop;
  stop.request_stop();
  EXPECT_EQ(doAll(5, {.stop = stop.get_token()}, [] { return [](int) { FAIL(); }; }), 0);
}

TEST(Workers, ThrowWhatAPieceThrows) {
  for (const int threads : {1, 4})
    EXPECT_THROW(doAll(100, {.threads = threads},
                       [] {
                         return [](int index) {
                           if (index == 50) throw std::runtime_error("fifty");
                         };
                       }),
                 std::runtime_error);
}

}  // namespace
}  // namespace trv5
