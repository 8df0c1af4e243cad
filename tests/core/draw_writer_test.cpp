#include "core/draw_writer.h"

#include <gtest/gtest.h>

#include "core/archive_load.h"
#include "core/database_files.h"
#include "core/draw_sums.h"
#include "core/errors.h"
#include "support/archive_builder.h"
#include "support/temp_folder.h"

namespace trv5 {
namespace {

struct DrawWriterTest : ::testing::Test {
  void make(const std::vector<DrawRow>& rows) { createArchive(file, rows, Existing::Refuse); }
  static std::vector<std::string> dates(const Database& archive) {
    std::vector<std::string> found;
    for (const DrawRow& row : readDraws(archive)) found.push_back(row.date);
    return found;
  }

  TempFolder folder;
  std::filesystem::path file = folder / "Archivio.mdb";
};

TEST_F(DrawWriterTest, AddsADrawWithItsSumAndRefusesADateThatIsThere) {
  make({drawOf("07/01/1939", {})});
  Database archive(file, FileKind::Archive);
  {
    DrawWriter writer(archive);
    writer.add(drawOf("14/01/1939", {{"BA", {1, 2, 3, 4, 5}}}), {"15/01/1939", "10:00:00"});
    writer.commit();
  }
  DrawWriter writer(archive);
  try {
    writer.add(drawOf("14/01/1939", {{"BA", {6, 7, 8, 9, 10}}}), {});
    FAIL() << "a second draw of that day";
  } catch (const DatabaseError& error) {
    EXPECT_EQ(error.reason(), DatabaseError::Reason::Constraint);
  }
  const std::vector<DrawRow> rows = readDraws(archive);
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[1].wheels[0], "01-02-03-04-05");
  EXPECT_TRUE(differencesFromSums(archive, rows).empty());
}

TEST_F(DrawWriterTest, CorrectsADrawWithItsSumAndTellsWhenThereIsNone) {
  make({drawOf("07/01/1939", {{"BA", {1, 2, 3, 4, 5}}})});
  Database archive(file, FileKind::Archive);
  DrawWriter writer(archive);
  EXPECT_FALSE(writer.correct(drawOf("14/01/1939", {}), {}));
  EXPECT_TRUE(writer.correct(drawOf("07/01/1939", {{"BA", {6, 7, 8, 9, 10}}}), {}));
  writer.commit();
  const std::vector<DrawRow> rows = readDraws(archive);
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(rows[0].wheels[0], "06-07-08-09-10");
  EXPECT_TRUE(differencesFromSums(archive, rows).empty());
}

TEST_F(DrawWriterTest, AFullArchiveTakesNoFurtherDrawUntilOneHasGone) {
  std::vector<DrawRow> rows;
  for (int draw = 1; draw < Archive::kMaxDraws; ++draw) rows.push_back(drawOf(dateOfDraw(draw), {}));
  make(rows);
  Database archive(file, FileKind::Archive);
  DrawWriter writer(archive);
  writer.add(drawOf("01/01/2090", {}), {});
  EXPECT_THROW(writer.add(drawOf("02/01/2090", {}), {}), UserError);
  EXPECT_TRUE(writer.remove("01/01/2090"));
  writer.add(drawOf("02/01/2090", {}), {});
  writer.commit();
  EXPECT_EQ(dates(archive).size(), static_cast<std::size_t>(Archive::kMaxDraws));
}

}  // namespace
}  // namespace trv5
