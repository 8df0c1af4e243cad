#include "provision/bounded_process.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace trv5 {
namespace {

using Way = ProcessEnd::Way;

ProcessEnd shell(const std::string& script, const ProcessLimits& limits = {}) {
  return runBounded("sh", {"-c", script}, limits);
}

TEST(BoundedProcess, TellsWhatAProgramPrintedAndHowItEnded) {
  const ProcessEnd end = shell("printf 'uno\\ndue'; printf male >&2; exit 3");
  EXPECT_EQ(end.way, Way::Exited);
  EXPECT_EQ(end.status, 3);
  EXPECT_EQ(end.output, "uno\ndue");
  EXPECT_EQ(end.errors, "male");
}

TEST(BoundedProcess, GivesItNothingToRead) {
  EXPECT_EQ(shell("cat; echo fine").output, "fine\n");
}

TEST(BoundedProcess, KnowsThatAProgramIsMissing) {
  EXPECT_EQ(runBounded("trv5-non-esiste", {}).way, Way::Missing);
}

TEST(BoundedProcess, StopsOneThatDoesNotEnd) {
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(shell("sleep 60", {.time = std::chrono::milliseconds(200)}).way, Way::TooLate);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}

TEST(BoundedProcess, StopsOneThatPrintsWithoutEnd) {
  const ProcessEnd end = shell("while :; do echo troppo; done", {.output = 10000});
  EXPECT_EQ(end.way, Way::TooMuch);
  EXPECT_LE(end.output.size(), 10001u);
}

TEST(BoundedProcess, KeepsTheFirstOfALongRowOfErrors) {
  const ProcessEnd end = shell("i=0; while [ $i -lt 3000 ]; do echo errore >&2; i=$((i+1)); done; echo fine");
  EXPECT_EQ(end.output, "fine\n");
  EXPECT_EQ(end.errors.size(), 4096u);
}

TEST(BoundedProcess, LetsItTakeNoMoreMemoryThanTold) {
  // A shell variable that doubles until the bound; without one it would print its length.
  const ProcessEnd end = shell("v=0123456789abcdef; i=0; while [ $i -lt 24 ]; do v=$v$v; i=$((i+1)); done; echo ${#v}",
                               {.memory = std::size_t{32} << 20});
  EXPECT_FALSE(end.way == Way::Exited && end.status == 0) << end.output;
}

TEST(BoundedProcess, LetsItWriteNoFile) {
  const TempFolder folder;
  shell("echo scritto > '" + (folder / "f").string() + "'");
  std::error_code unknown;
  const auto size = std::filesystem::file_size(folder / "f", unknown);
  EXPECT_TRUE(unknown || size == 0);
}

}  // namespace
}  // namespace trv5
