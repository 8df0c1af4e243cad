// Readers take whatever bytes come: they refuse them with a text for the user, or what they read keeps their promises.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>

#include "fuzz/readers.h"
#include "support/mutation.h"
#include "support/random_runs.h"

// Only a sanitized program has it.
extern "C" void __attribute__((weak)) __sanitizer_set_death_callback(void (*callback)());

namespace trv5 {
namespace {

namespace fs = std::filesystem;

int askedOr(const char* variable, int usual) {
  const char* const text = std::getenv(variable);
  return text == nullptr ? usual : std::max(0, std::atoi(text));
}

// The input being read, for the sanitizer's last words: TRV5_FUZZ_FROM begins there again.
const char* currentReader = "";
int currentInput = 0;

void tellInput() {
  std::fprintf(stderr, "reader %s, input %d\n", currentReader, currentInput);
}

// What is wrong with the way in which these bytes were taken, "" when nothing is.
std::string faultOf(const FuzzedReader& reader, ReaderWorld& world, const std::string& bytes, bool& refused) {
  const auto begin = std::chrono::steady_clock::now();
  refused = false;
  try {
    reader.read(world, bytes);
  } catch (const UserError&) {
    refused = true;
  } catch (const std::exception& error) {
    return std::string("not an error for a user: ") + error.what();
  }
  world.shell.shown.clear();
  world.shell.reasons.clear();
  const auto took = std::chrono::steady_clock::now() - begin;
  return took < std::chrono::seconds(4) ? "" : "it took more than four seconds";
}

class Readers : public testing::TestWithParam<FuzzedReader> {
 protected:
  ReaderWorld world;
};

TEST_P(Readers, TakeAnyBytes) {
  const FuzzedReader& reader = GetParam();
  const std::vector<std::string> seeds = reader.seeds(world);
  bool refused = false;
  for (const std::string& seed : seeds) ASSERT_EQ(faultOf(reader, world, seed, refused), "");
  if (__sanitizer_set_death_callback != nullptr) __sanitizer_set_death_callback(tellInput);
  const int first = askedOr("TRV5_FUZZ_FROM", 0), inputs = askedOr("TRV5_FUZZ_INPUTS", randomRuns(reader.inputs));
  int refusals = 0;
  currentReader = reader.name;
  for (int input = first; input < first + inputs; ++input) {
    currentInput = input;
    std::mt19937 rng(static_cast<unsigned>(input));
    const std::string bytes = mutated(seeds, rng);
    const std::string fault = faultOf(reader, world, bytes, refused);
    refusals += refused ? 1 : 0;
    if (fault.empty()) continue;
    const fs::path kept = fs::temp_directory_path() / ("fuzz-" + std::string(reader.name));
    writeBytes(kept, bytes);
    FAIL() << "input " << input << ", kept in " << kept << ": " << fault;
  }
  std::printf("%d inputs, %d of them refused\n", inputs, refusals);
}

// Inputs that a reader once took wrongly, or that it takes rightly by a rule easily lost.
TEST_P(Readers, TakeTheCasesKept) {
  const FuzzedReader& reader = GetParam();
  reader.seeds(world);
  int cases = 0;
  bool refused = false;
  for (const fs::directory_entry& entry : fs::directory_iterator(fs::path(TRV5_TEST_DATA) / "fuzz" / reader.name)) {
    EXPECT_EQ(faultOf(reader, world, readBytes(entry.path()), refused), "") << entry.path();
    ++cases;
  }
  EXPECT_GT(cases, 0);
}

INSTANTIATE_TEST_SUITE_P(Of, Readers, testing::ValuesIn(fuzzedReaders()), NameOfReader());

}  // namespace
}  // namespace trv5
