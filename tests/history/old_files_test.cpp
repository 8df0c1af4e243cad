#include <gtest/gtest.h>

#include "core/archive_load.h"
#include "maintenance/formats/compressed_text.h"
#include "provision/old_conversion.h"
#include "support/temp_folder.h"

namespace trv5 {
namespace {

// Real files of older installations, read by the real programs.
class OldFileOfAnInstallation : public testing::TestWithParam<const char*> {};

TEST_P(OldFileOfAnInstallation, BecomesAnArchive) {
  const TempFolder folder;
  const std::string bytes = readCompressedText(std::filesystem::path(TRV5_OLD_FILES) / GetParam());
  writeBytes(folder / "old.mdb", bytes);
  const Converted converted = convertOldFile(folder / "old.mdb", folder / "new.mdb", Existing::Refuse);
  EXPECT_EQ(converted.description(), "archivio con 60 estrazioni, dal 04/12/2004 al 29/06/2005");
  EXPECT_EQ(converted.notes(), "");
  EXPECT_TRUE(readBytes(folder / "old.mdb") == bytes) << "the old file is never written";
  const std::vector<DrawRow> draws = readDraws(Database(folder / "new.mdb", FileKind::Archive));
  ASSERT_EQ(draws.size(), 60u);
  EXPECT_EQ(draws.front().wheels[0], "81-04-19-45-01");
  EXPECT_EQ(draws.front().wheels[10], "") << "no Nazionale before May 2005";
  EXPECT_EQ(draws.back().wheels[10].size(), 14u);
}

INSTANTIATE_TEST_SUITE_P(Files, OldFileOfAnInstallation,
                         testing::Values("jet4_plain.mdb.gz", "jet4_password.mdb.gz", "jet4_password_rc4.mdb.gz"));

}  // namespace
}  // namespace trv5
