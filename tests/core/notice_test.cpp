#include "core/notice.h"

#include <gtest/gtest.h>

namespace trv5 {
namespace {

TEST(Notices, ReachWhoAskedAsLongAsTheyHoldTheirSubscription) {
  Notice notice;
  int first = 0, second = 0;
  const std::shared_ptr<void> kept = notice.subscribe([&] { ++first; });
  std::shared_ptr<void> given = notice.subscribe([&] { ++second; });
  notice.send();
  given.reset();
  notice.send();
  EXPECT_EQ(first, 2);
  EXPECT_EQ(second, 1);
}

TEST(Notices, WhoHearsOneMayLetGoOfTheNext) {
  Notice notice;
  int told = 0;
  std::shared_ptr<void> second;
  const std::shared_ptr<void> first = notice.subscribe([&] { second.reset(); });
  second = notice.subscribe([&] { ++told; });
  notice.send();
  EXPECT_EQ(told, 0);
}

}  // namespace
}  // namespace trv5
