// Each request for memory that a reader makes fails once: it refuses what it reads, loses no memory (the sanitizer
// looks), and reads the same afterwards.
#include <gtest/gtest.h>

#include "fuzz/failing_memory.h"
#include "fuzz/readers.h"
#include "support/random_runs.h"

namespace trv5 {
namespace {

class ReadersWithoutMemory : public testing::TestWithParam<FuzzedReader> {
 protected:
  // How the reading ended: read, refused with a text for the user, or out of memory.
  enum class End { Read, Refused, NoMemory };
  End read(const std::string& bytes) {
    try {
      GetParam().read(world, bytes);
      return End::Read;
    } catch (const UserError&) {
      return End::Refused;
    } catch (const std::bad_alloc&) {
      return End::NoMemory;
    }
  }
  long requestsFor(const std::string& bytes) {
    const FailingMemory counted(0);
    read(bytes);
    return counted.requests();
  }

  ReaderWorld world;
};

TEST_P(ReadersWithoutMemory, RefuseAndReadAfterwards) {
  const std::string bytes = GetParam().seeds(world).front();
  const End whole = read(bytes);
  const long requests = requestsFor(bytes);
  const long stride = std::max(1L, requests / std::max(1, randomRuns(static_cast<int>(requests))));
  int failures = 0, refused = 0;
  for (long n = 1; n <= requests; n += stride) {
    SCOPED_TRACE("request " + std::to_string(n) + " of " + std::to_string(requests));
    bool failed = false;
    {
      const FailingMemory memory(n);
      refused += read(bytes) == End::Read ? 0 : 1;
      failed = memory.failed();
    }
    failures += failed ? 1 : 0;
    ASSERT_EQ(read(bytes), whole) << "it doesn't read any more";
  }
  std::printf("%d of %ld requests failed, %d times the reading ended\n", failures, requests, refused);
  EXPECT_GT(failures, 0);
}

INSTANTIATE_TEST_SUITE_P(Of, ReadersWithoutMemory, testing::ValuesIn(fuzzedReaders()), NameOfReader());

}  // namespace
}  // namespace trv5
