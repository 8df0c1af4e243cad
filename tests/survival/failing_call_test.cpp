// Each call of the system that an operation makes on its files fails once: the user is told, the files are as before or
// as the operation meant them, and the same program does the next operation.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/random_runs.h"
#include "survival/system_calls.h"
#include "survival/writing_world.h"

namespace trv5 {
namespace {

using testing::PrintToString;
using Errors = WatchedDisk::Errors;

// Words of libraries and of the system, none of which belongs into a text for the user.
constexpr const char* kForeignWords[] = {
    "no error for a user", "disk I/O",     "unable to", "database is", "SQLITE", "std::",
    "filesystem",          "Input/output", "No space",  "Too many"};

class FailingCalls : public testing::TestWithParam<WritingOperation> {
 protected:
  void prepare() {
    GetParam().files(world);
    world.restart();
    states.setBefore(world.folder.path());
    ready();
    GetParam().run(world);
    world.end();
    states.setAfter(world.folder.path());
    ASSERT_TRUE(states.differ()) << "nothing was written";
    states.setBetween(GetParam().between(world.folder.path()));
  }
  void startAfresh() {
    world.end();
    layImage(world.folder.path(), states.imageBefore());
    world.restart();
  }
  void ready() {
    world.shell.answers.clear();
    GetParam().ready(world);
    world.told();
  }
  void runGuarded() {
    world.guarded([&] { GetParam().run(world); });
  }

  // Lets call `n` fail; false when the operation makes fewer.
  bool failsAt(long n, Errors errors) {
    ready();
    std::optional<DiskCall> failed;
    {
      WatchedDisk disk(world.folder.path());
      disk.failCall(n, errors);
      runGuarded();
      failed = disk.failed();
    }
    if (!failed) return false;
    ++failures;
    const std::vector<std::string> told = world.told();
    for (const std::string& text : told)
      for (const char* foreign : kForeignWords) EXPECT_EQ(text.find(foreign), std::string::npos) << text;
    EXPECT_EQ(states.fault(world.folder.path(), false), "") << PrintToString(told);
    const bool done = states.fault(world.folder.path(), true).empty();
    EXPECT_FALSE(!done && told.empty()) << "a failure without a word";
    if (!done) ++refused;
    runAgain(done);
    return true;
  }

  // The next operation of the same program: the same once more where it was refused; that it can be done afresh too.
  void runAgain(bool done) {
    if (done) return startAfresh();
    ready();
    runGuarded();
    EXPECT_EQ(states.fault(world.folder.path(), true), "") << "the next operation: " << PrintToString(world.told());
    startAfresh();
  }

  // The slow builds let some of the calls fail.
  void everyCall(Errors errors) {
    const long stride = 100 / randomRuns(100);
    startAfresh();
    for (long n = 1;; n += stride) {
      SCOPED_TRACE("call " + std::to_string(n));
      if (!failsAt(n, errors) || HasFailure()) break;
    }
  }

  FreeSyncs freeSyncs;
  WritingWorld world;
  AllowedStates states;
  int failures = 0, refused = 0;
};

TEST_P(FailingCalls, AreToldAndLoseNothing) {
  ASSERT_NO_FATAL_FAILURE(prepare());
  everyCall(Errors::Full);
  everyCall(Errors::Broken);
  std::printf("%d calls failed, %d times the operation was refused\n", failures, refused);
  EXPECT_GT(refused, 1);
}

INSTANTIATE_TEST_SUITE_P(Of, FailingCalls, testing::ValuesIn(writingOperations()), NameOfOperation());

}  // namespace
}  // namespace trv5
