#include "core/undo_history.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <set>
#include <vector>

namespace trv5 {
namespace {

// Ten values, each of a kilobyte, shared while they stay the same.
struct Ten {
  std::vector<std::shared_ptr<const int>> values = std::vector<std::shared_ptr<const int>>(10);
  bool operator==(const Ten& other) const {
    for (std::size_t i = 0; i < values.size(); ++i)
      if (number(i) != other.number(i)) return false;
    return true;
  }
  int number(std::size_t i) const { return values[i] == nullptr ? 0 : *values[i]; }
  std::size_t bytesBeside(const Ten* neighbour) const {
    std::size_t bytes = 0;
    for (std::size_t i = 0; i < values.size(); ++i)
      if (values[i] != nullptr && (neighbour == nullptr || values[i] != neighbour->values[i])) bytes += 1024;
    return bytes;
  }
  Ten with(std::size_t i, int value) const {
    Ten changed = *this;
    changed.values[i] = std::make_shared<const int>(value);
    return changed;
  }
};

using History = UndoHistory<Ten>;

TEST(UndoHistory, GoesBackAndForthThroughEveryStep) {
  History history(1 << 20);
  history.start({});
  std::vector<Ten> moments = {history.present()};
  for (int i = 1; i <= 60; ++i) {
    moments.push_back(moments.back().with(static_cast<std::size_t>(i % 10), i));
    EXPECT_TRUE(history.record(moments.back(), std::to_string(i)));
  }
  for (int i = 60; i >= 1; --i) {
    EXPECT_EQ(history.undoName(), std::to_string(i));
    EXPECT_EQ(history.undo(), moments[static_cast<std::size_t>(i) - 1]);
  }
  EXPECT_FALSE(history.canUndo());
  for (int i = 1; i <= 60; ++i) {
    EXPECT_EQ(history.redoName(), std::to_string(i));
    EXPECT_EQ(history.redo(), moments[static_cast<std::size_t>(i)]);
  }
  EXPECT_FALSE(history.canRedo());
}

TEST(UndoHistory, KnowsNoStepWhereNothingDiffers) {
  History history(1 << 20);
  history.start(Ten().with(0, 1));
  EXPECT_FALSE(history.record(Ten().with(0, 1), "uguale"));
  EXPECT_FALSE(history.canUndo());
}

TEST(UndoHistory, ANewStepCutsTheOnesTakenBack) {
  History history(1 << 20);
  history.start({});
  history.record(history.present().with(0, 1), "a");
  history.record(history.present().with(0, 2), "b");
  history.undo();
  EXPECT_FALSE(history.record(Ten(history.present()), "niente"));
  EXPECT_TRUE(history.canRedo());
  history.record(history.present().with(1, 3), "c");
  EXPECT_FALSE(history.canRedo());
  EXPECT_EQ(history.undo(), Ten().with(0, 1));
  EXPECT_EQ(history.undo(), Ten());
}

TEST(UndoHistory, ARunIsOneStepAndGoneWhereItEndsAsItBegan) {
  History history(1 << 20);
  history.start({});
  history.record(history.present().with(0, 1), "a");
  for (int i = 1; i <= 20; ++i) history.record(history.present().with(1, i), "corsa", i > 1);
  EXPECT_EQ(history.undoSteps(), 2U);
  history.record(history.present().with(1, 0), "corsa", true);
  EXPECT_EQ(history.undoSteps(), 1U);
  EXPECT_EQ(history.undo(), Ten());
  history.record(history.present().with(1, 5), "dopo", true);
  EXPECT_EQ(history.undoSteps(), 1U);  // what was taken back is no run to go on with
}

TEST(UndoHistory, DropsTheOldestStepsBeyondItsBytes) {
  History history(30 * 1024);
  history.start({});
  for (int i = 1; i <= 200; ++i) {
    history.record(history.present().with(0, i), std::to_string(i));
    EXPECT_LE(history.bytes(), 30U * 1024);
  }
  EXPECT_EQ(history.undoSteps(), 29U);
  for (int i = 199; i >= 171; --i) EXPECT_EQ(history.undo().number(0), i);
  EXPECT_FALSE(history.canUndo());
}

// Steps of every kind: the bytes are never below what the distinct values take, and the same where nothing was
// absorbed after a step back.
TEST(UndoHistory, CountsWhatItsMomentsShareOnce) {
  for (unsigned seed = 1; seed <= 100; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(seed);
    History history(1 << 30);
    std::vector<Ten> seen = {Ten()};
    history.start({});
    for (int i = 0; i < 100; ++i) {
      if (rng() % 3 == 0 && history.canUndo())
        history.undo();
      else if (rng() % 3 == 0 && history.canRedo())
        history.redo();
      else
        history.record(history.present().with(rng() % 10, i + 1), "", rng() % 4 == 0);
    }
    History walked = history;
    std::set<const int*> distinct;
    const auto note = [&](const Ten& moment) {
      for (const auto& value : moment.values)
        if (value != nullptr) distinct.insert(value.get());
    };
    note(walked.present());
    while (walked.canUndo()) note(walked.undo());
    while (walked.canRedo()) note(walked.redo());
    ASSERT_EQ(history.bytes(), distinct.size() * 1024);
    ASSERT_EQ(walked.bytes(), history.bytes());
  }
}

TEST(UndoHistory, WhatIsAbsorbedBelongsToThePresent) {
  History history(1 << 20);
  history.start({});
  history.record(history.present().with(0, 1), "a");
  history.absorb(history.present().with(5, 9));
  history.record(history.present().with(0, 2), "b");
  EXPECT_EQ(history.undo(), Ten().with(0, 1).with(5, 9));
  EXPECT_EQ(history.undo(), Ten());
  EXPECT_EQ(history.redo(), Ten().with(0, 1).with(5, 9));
}

}  // namespace
}  // namespace trv5
