#include "support/fuzz_loop.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>

#include "support/random_runs.h"
#include "support/temp_folder.h"

// Only a sanitized program has it.
extern "C" void __attribute__((weak)) __sanitizer_set_death_callback(void (*callback)());

namespace trv5 {
namespace {

namespace fs = std::filesystem;

int askedOr(const char* variable, int usual) {
  const char* const text = std::getenv(variable);
  return text == nullptr ? usual : std::max(0, std::atoi(text));
}

bool isSanitized() {
  return __sanitizer_set_death_callback != nullptr;
}

// The input being read, for the sanitizer's last words: TRV5_FUZZ_FROM begins there again.
const char* currentReader = "";
int currentInput = 0;

void tellInput() {
  std::fprintf(stderr, "reader %s, input %d\n", currentReader, currentInput);
}

}  // namespace

std::string faultOf(const FuzzTarget& target, const std::string& bytes, bool& refused) {
  // Time of the processor: the machine may have other work to do. The longest search takes 0.6 s, with sanitizers ten
  // times as long.
  const std::clock_t longest = (isSanitized() ? 40 : 4) * CLOCKS_PER_SEC;
  const std::clock_t begin = std::clock();
  refused = false;
  std::string fault = target.faultOf(bytes, refused);
  if (fault.empty() && std::clock() - begin >= longest) fault = "it took more than four seconds, or forty";
  return fault;
}

void feed(const FuzzTarget& target) {
  if (isSanitized()) __sanitizer_set_death_callback(tellInput);
  const int first = askedOr("TRV5_FUZZ_FROM", 0), inputs = askedOr("TRV5_FUZZ_INPUTS", randomRuns(target.inputs));
  const std::clock_t end = std::clock() + askedOr("TRV5_FUZZ_SECONDS", 0) * CLOCKS_PER_SEC;
  int input = first, refusals = 0;
  bool refused = false;
  currentReader = target.name;
  for (; input < first + inputs || std::clock() < end; ++input) {
    currentInput = input;
    const std::string bytes = target.make(input);
    const std::string fault = faultOf(target, bytes, refused);
    refusals += refused ? 1 : 0;
    if (fault.empty()) continue;
    const fs::path kept = fs::temp_directory_path() / ("fuzz-" + std::string(target.name));
    writeBytes(kept, bytes);
    FAIL() << "input " << input << ", kept in " << kept << ": " << fault;
  }
  std::printf("%d inputs, %d of them refused\n", input - first, refusals);
}

void feedKept(const FuzzTarget& target, const std::string& data) {
  int cases = 0;
  bool refused = false;
  for (const fs::directory_entry& entry : fs::directory_iterator(fs::path(data) / "fuzz" / target.name)) {
    EXPECT_EQ(faultOf(target, readBytes(entry.path()), refused), "") << entry.path();
    ++cases;
  }
  EXPECT_GT(cases, 0);
}

}  // namespace trv5
