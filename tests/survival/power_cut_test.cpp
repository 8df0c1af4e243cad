// The power goes in the middle of each operation that writes: afterwards every file is whole, and as it was before or
// as the operation meant it; once the operation has said that it is done, as it meant it.
#include "survival/power_cut.h"

#include <gtest/gtest.h>

#include "support/random_runs.h"
#include "survival/system_calls.h"
#include "survival/writing_world.h"

namespace trv5 {
namespace {

constexpr int kCuts = 300, kCutsPerStart = 25;

// An operation run once, and what it did to the disk.
class Recorded {
 public:
  // With `pragma` on the database that it writes.
  explicit Recorded(const WritingOperation& operation, const std::string& pragma = "") {
    operation.files(world);
    world.restart();
    if (!pragma.empty()) operation.database(world)->execute(pragma);
    operation.ready(world);
    m_states.setBefore(world.folder.path());
    {
      WatchedDisk disk(world.folder.path());
      operation.run(world);
      log = disk.log();
    }
    world.end();
    m_states.setAfter(world.folder.path());
    if (!m_states.differ()) throw std::runtime_error("nothing was written: " + testing::PrintToString(world.told()));
    m_states.setBetween(operation.between(world.folder.path()));
  }

  // Cuts the power at a random moment, a tenth of the times right after the end, and tells what is wrong.
  std::string faultAfterCut(const DiskLog& disk, std::mt19937& rng) {
    const bool ended = rng() % 10 == 0;
    const std::size_t at = ended ? disk.events.size() : rng() % disk.events.size();
    layImage(world.folder.path(), imageAfterCut(disk, at, rng));
    return m_states.fault(world.folder.path(), ended);
  }

  bool loses(const DiskLog& disk) {
    std::mt19937 rng(77);
    for (int cut = 0; cut < kCuts; ++cut)
      if (!faultAfterCut(disk, rng).empty()) return true;
    return false;
  }

  WritingWorld world;
  DiskLog log;

 private:
  FreeSyncs m_freeSyncs;
  AllowedStates m_states;
};

class PowerCuts : public testing::TestWithParam<WritingOperation> {};

TEST_P(PowerCuts, LoseNothingButOnADiskThatSyncsNothing) {
  Recorded recorded(GetParam());
  std::mt19937 rng(1);
  const int cuts = asked("TRV5_POWER_CUTS", randomRuns(kCuts));
  for (int cut = 0; cut < cuts; ++cut) {
    SCOPED_TRACE("cut " + std::to_string(cut));
    ASSERT_EQ(recorded.faultAfterCut(recorded.log, rng), "");
    if (cut % kCutsPerStart != 0) continue;
    ASSERT_NO_THROW(recorded.world.restart()) << "the program doesn't start";
    recorded.world.end();
  }
  std::printf("%d cuts through %zu calls, none lost\n", cuts, recorded.log.events.size());
  EXPECT_TRUE(recorded.loses(withoutSyncs(recorded.log)));
}

INSTANTIATE_TEST_SUITE_P(Of, PowerCuts, testing::ValuesIn(writingOperations()), NameOfOperation());

// The operations that write a database held open, with another setting of its own than the program's.
void expectLossUnder(const std::string& pragma) {
  int tried = 0;
  for (const WritingOperation& operation : writingOperations()) {
    if (operation.database == nullptr) continue;
    Recorded recorded(operation, pragma);
    EXPECT_TRUE(recorded.loses(recorded.log)) << operation;
    ++tried;
  }
  EXPECT_GT(tried, 10);
}

TEST(Synchronous, OffLoses) {
  expectLossUnder("PRAGMA synchronous = OFF");
}

TEST(Synchronous, FullLosesWhatWasSaidToBeDone) {
  expectLossUnder("PRAGMA synchronous = FULL");
}

}  // namespace
}  // namespace trv5
