#include "support/search_fingerprint.h"

#include <gtest/gtest.h>

#include "provision/demo_archive.h"

namespace trv5 {
namespace {

TEST(SearchFingerprint, OfTheDemonstrationArchiveIsTheOneOfTheLastChangeOfResults) {
  std::vector<DrawRow> rows;
  for (const Draw& draw : simulatedDraws()) rows.push_back(rowOf(draw));
  Archive archive;
  archive.loadNumbers(rows);
  EXPECT_EQ(searchFingerprint(archive), kDemonstrationFingerprint);
}

}  // namespace
}  // namespace trv5
