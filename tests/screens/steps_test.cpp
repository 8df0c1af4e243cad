// Works that go on between what the user does.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "window_world.h"

namespace trv5 {
namespace {

TEST(Steps, RunBetweenEventsUntilTheySayFalse) {
  WindowWorld world;
  int steps = 0;
  world.shell.inSteps([&] { return ++steps < 3; });
  EXPECT_EQ(steps, 0) << "the operation that begins the work ends first";
  ASSERT_TRUE(QTest::qWaitFor([&] { return steps == 3; }));
  QTest::qWait(60);
  EXPECT_EQ(steps, 3);
}

TEST(Steps, WaitWhileAnOperationRunsEvenWhenItLetsTimersRun) {
  WindowWorld world;
  int steps = 0;
  world.shell.inSteps([&] { return ++steps < 2; });
  {
    const OperationDepth::Step operation(world.shell.operations());
    QTest::qWait(60);
    EXPECT_EQ(steps, 0);
  }
  ASSERT_TRUE(QTest::qWaitFor([&] { return steps == 2; }));
}

TEST(Steps, AStepThatWaitsForTheUserIsNotRunAgainMeanwhile) {
  WindowWorld world;
  int steps = 0;
  world.shell.inSteps([&] {
    ++steps;
    QTest::qWait(60);
    return false;
  });
  ASSERT_TRUE(QTest::qWaitFor([&] { return steps > 0; }));
  QTest::qWait(60);
  EXPECT_EQ(steps, 1);
}

TEST(Steps, TheHourglassComesAndGoesWithItsScope) {
  WindowWorld world;
  {
    const Hourglass hourglass(world.shell);
    ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
  }
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

}  // namespace
}  // namespace trv5
