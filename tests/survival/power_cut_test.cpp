// The power goes in the middle of each operation that writes: afterwards every file is whole, and as it was before or
// as the operation meant it; once the operation has said that it is done, as it meant it.
#include "survival/power_cut.h"

#include <gtest/gtest.h>

#include "survival/system_calls.h"
#include "survival/writing_world.h"

namespace trv5 {
namespace {

constexpr int kCuts = 300, kCutsPerStart = 25;

class PowerCuts : public testing::TestWithParam<WritingOperation> {
 protected:
  // Runs the operation once and keeps what it did to the disk. With `pragma` on the database that it writes.
  void record(const std::string& pragma = "") {
    const WritingOperation& operation = GetParam();
    operation.files(world);
    world.restart();
    if (!pragma.empty()) operation.database(world)->execute(pragma);
    operation.ready(world);
    states.setBefore(world.folder.path());
    {
      WatchedDisk disk(world.folder.path());
      operation.run(world);
      log = disk.log();
    }
    world.end();
    states.setAfter(world.folder.path());
    ASSERT_TRUE(states.differ()) << "nothing was written: " << testing::PrintToString(world.told());
    states.setBetween(operation.between(world.folder.path()));
  }

  // Cuts the power at a random moment, a tenth of the times right after the end, and tells what is wrong.
  std::string faultAfterCut(const DiskLog& disk, std::mt19937& rng) {
    const bool ended = rng() % 10 == 0;
    const std::size_t at = ended ? disk.events.size() : rng() % disk.events.size();
    layImage(world.folder.path(), imageAfterCut(disk, at, rng));
    return states.fault(world.folder.path(), ended);
  }

  bool losesWithin(int cuts, const DiskLog& disk) {
    std::mt19937 rng(77);
    for (int cut = 0; cut < cuts; ++cut)
      if (!faultAfterCut(disk, rng).empty()) return true;
    return false;
  }

  FreeSyncs freeSyncs;
  WritingWorld world;
  AllowedStates states;
  DiskLog log;
};

TEST_P(PowerCuts, LoseNothingAndTheProgramStarts) {
  ASSERT_NO_FATAL_FAILURE(record());
  std::mt19937 rng(1);
  const int cuts = asked("TRV5_POWER_CUTS", kCuts);
  for (int cut = 0; cut < cuts; ++cut) {
    SCOPED_TRACE("cut " + std::to_string(cut));
    ASSERT_EQ(faultAfterCut(log, rng), "");
    if (cut % kCutsPerStart != 0) continue;
    ASSERT_NO_THROW(world.restart());
    world.end();
  }
  std::printf("%d cuts through %zu calls, none lost\n", cuts, log.events.size());
}

TEST_P(PowerCuts, OnADiskThatSyncsNothingLose) {
  ASSERT_NO_FATAL_FAILURE(record());
  EXPECT_TRUE(losesWithin(kCuts, withoutSyncs(log)));
}

INSTANTIATE_TEST_SUITE_P(Of, PowerCuts, testing::ValuesIn(writingOperations()), NameOfOperation());

// The operations that write a database held open, with another setting of its own than the program's.
class Synchronous : public PowerCuts {};

TEST_P(Synchronous, OffLoses) {
  ASSERT_NO_FATAL_FAILURE(record("PRAGMA synchronous = OFF"));
  EXPECT_TRUE(losesWithin(kCuts, log));
}

TEST_P(Synchronous, FullLosesWhatWasSaidToBeDone) {
  ASSERT_NO_FATAL_FAILURE(record("PRAGMA synchronous = FULL"));
  EXPECT_TRUE(losesWithin(kCuts, log));
}

std::vector<WritingOperation> withOpenDatabase() {
  std::vector<WritingOperation> some;
  for (const WritingOperation& operation : writingOperations())
    if (operation.database != nullptr) some.push_back(operation);
  return some;
}

INSTANTIATE_TEST_SUITE_P(Of, Synchronous, testing::ValuesIn(withOpenDatabase()), NameOfOperation());

}  // namespace
}  // namespace trv5
