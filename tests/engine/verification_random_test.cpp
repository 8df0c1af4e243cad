#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "support/plain_verification.h"
#include "support/random_method.h"
#include "support/random_runs.h"
#include "support/random_search.h"

namespace trv5 {
namespace {

struct PlainRun {
  const char* button;
  void (*plain)(PlainWorkbench&);
};

void PrintTo(const PlainRun& value, std::ostream* out) {
  *out << value.button;
}

const std::vector<PlainRun> kRuns = {{"Command29", [](PlainWorkbench& p) { p.tutteLeRighe(1); }},
                                     {"Command34", [](PlainWorkbench& p) { p.tutteLeRighe(2); }},
                                     {"Command48", [](PlainWorkbench& p) { p.tutteLeRighe(3); }},
                                     {"Command51", [](PlainWorkbench& p) { p.tutteLeRighe(6); }},
                                     {"Command90", [](PlainWorkbench& p) { p.oltreLimite(1); }},
                                     {"Command5", [](PlainWorkbench& p) { p.oltreLimite(2); }},
                                     {"Command91", [](PlainWorkbench& p) { p.oltreLimite(3); }},
                                     {"Command92", [](PlainWorkbench& p) { p.oltreLimite(6); }},
                                     {"Command94", [](PlainWorkbench& p) { p.perCc(2); }},
                                     {"Command95", [](PlainWorkbench& p) { p.perCc(3); }},
                                     {"Command69", [](PlainWorkbench& p) { p.perCc(6); }},
                                     {"Command21", [](PlainWorkbench& p) { p.Command21(); }},
                                     {"Command22", [](PlainWorkbench& p) { p.Command22(); }},
                                     {"Cmd_Elabora100", [](PlainWorkbench& p) { p.Cmd_Elabora100(); }}};

// Presses one of the buttons, each time beside the plain run on a copy of everything.
void compare(WorkbenchWorld& world, const PlainRun& run) {
  world.shell.shown.clear();
  PlainWorkbench plain(world.w);
  world.press(run.button);
  run.plain(plain);
  ASSERT_EQ(difference(plain, world.w), "");
  ASSERT_EQ(world.shell.texts(), plain.messages);
}

class Verification : public testing::TestWithParam<PlainRun> {};

// One workbench goes through many settings, so that each begins with what the one before left.
TEST_P(Verification, AgreesWithThePlainRunOnRandomMethods) {
  for (unsigned seed = 1; seed <= static_cast<unsigned>(randomRuns(50)); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(seed);
    WorkbenchWorld world(randomMethodArchive(rng));
    for (int setting = 0; setting < 40; ++setting) {
      SCOPED_TRACE("setting " + std::to_string(setting));
      randomMethod(world, rng);
      ASSERT_NO_FATAL_FAILURE(compare(world, GetParam()));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(OfEveryButton, Verification, testing::ValuesIn(kRuns),
                         [](const auto& run) { return run.param.button; });

TEST(Verifications, AgreeWithThePlainRunsOneAfterTheOtherInAnyOrder) {
  for (unsigned seed = 1; seed <= static_cast<unsigned>(randomRuns(50)); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(seed);
    WorkbenchWorld world(randomMethodArchive(rng));
    for (int step = 0; step < 40; ++step) {
      SCOPED_TRACE("step " + std::to_string(step));
      if (step % 8 == 0) randomMethod(world, rng);
      const PlainRun& run = kRuns[static_cast<std::size_t>(below(rng, static_cast<int>(kRuns.size())))];
      SCOPED_TRACE(run.button);
      ASSERT_NO_FATAL_FAILURE(compare(world, run));
    }
  }
}

}  // namespace
}  // namespace trv5
