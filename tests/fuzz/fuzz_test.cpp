// Readers take whatever bytes come: they refuse them with a text for the user, or what they read keeps their promises.
#include <gtest/gtest.h>

#include "fuzz/readers.h"
#include "support/fuzz_loop.h"
#include "support/mutation.h"

namespace trv5 {
namespace {

class Readers : public testing::TestWithParam<FuzzedReader> {
 protected:
  FuzzTarget target() {
    const FuzzedReader& reader = GetParam();
    return {reader.name, reader.inputs,
            [this](int input) {
              std::mt19937 rng(static_cast<unsigned>(input));
              return mutated(seeds, rng);
            },
            [this](const std::string& bytes, bool& refused) { return read(bytes, refused); }};
  }

  ReaderWorld world;
  const std::vector<std::string> seeds = GetParam().seeds(world);

 private:
  std::string read(const std::string& bytes, bool& refused) {
    try {
      GetParam().read(world, bytes);
    } catch (const UserError&) {
      refused = true;
    } catch (const std::exception& error) {
      return std::string("not an error for a user: ") + error.what();
    }
    world.shell.shown.clear();
    world.shell.reasons.clear();
    return "";
  }
};

TEST_P(Readers, TakeAnyBytes) {
  bool refused = false;
  for (const std::string& seed : seeds) ASSERT_EQ(faultOf(target(), seed, refused), "");
  feed(target());
}

TEST_P(Readers, TakeTheCasesKept) {
  feedKept(target(), TRV5_TEST_DATA);
}

INSTANTIATE_TEST_SUITE_P(Of, Readers, testing::ValuesIn(fuzzedReaders()), NameOfReader());

}  // namespace
}  // namespace trv5
