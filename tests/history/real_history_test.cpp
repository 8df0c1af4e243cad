#include <gtest/gtest.h>

#include "core/archive_load.h"
#include "core/database.h"
#include "maintenance/draw_days.h"
#include "maintenance/formats/exchange_files.h"
#include "support/plain_exchange.h"
#include "support/run_program.h"
#include "support/temp_folder.h"

namespace trv5 {
namespace {

// The archive that trv5-data makes of the whole published history.
class RealHistory : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    TempFolder folder;
    const ProgramRun made = runProgram(TRV5_DATA_PROGRAM, {"storico", TRV5_HISTORY, (folder / "storico.mdb").string()});
    ASSERT_EQ(made.status, 0) << made.errors;
    rows = readDraws(Database(folder / "storico.mdb", FileKind::Archive));
    archive.loadNumbers(rows);
    archive.countProgressives();
  }

  static inline std::vector<DrawRow> rows;
  static inline Archive archive;
};

TEST_F(RealHistory, Holds7370DrawsFromJanuary1939ToAugust2026) {
  EXPECT_EQ(archive.NumEstrazioni(), 7370);
  EXPECT_EQ(archive.DateEstrazioni(1), "07/01/1939");
  EXPECT_EQ(archive.DateEstrazioni(7370), "21/08/2026");
}

TEST_F(RealHistory, EndsWithTheRightNumbersAndProgressives) {
  ASSERT_EQ(archive.NumEstrazioni(), 7370);
  const std::array<int, 5> expected = {51, 89, 82, 70, 37};
  for (int position = 1; position <= 5; ++position)
    EXPECT_EQ(archive.NumeriEstratti(7370, kNational, position), expected[static_cast<std::size_t>(position - 1)]);
  EXPECT_EQ(archive.ProgMese(7370), 12);
  EXPECT_EQ(archive.ProgAnno(7370), 134);
}

TEST_F(RealHistory, BeginsWithoutGenovaCagliariAndTheNationalWheel) {
  ASSERT_EQ(archive.NumEstrazioni(), 7370);
  for (int wheel = 0; wheel < kWheels; ++wheel) {
    const bool missing = wheel == 1 || wheel == 3 || wheel == kNational;
    EXPECT_EQ(rows[0].wheels[static_cast<std::size_t>(wheel)].empty(), missing) << wheel;
    EXPECT_EQ(archive.NumeriEstratti(1, wheel, 1) == 0, missing) << wheel;
  }
}

TEST_F(RealHistory, HasTheDaysAndWheelsOfTheDemonstrationArchive) {
  const std::vector<Day> days = drawDays();
  ASSERT_EQ(rows.size(), days.size());
  for (std::size_t i = 0; i < days.size(); ++i) {
    ASSERT_EQ(rows[i].date, dateText(days[i]));
    for (int wheel = 0; wheel < kWheels; ++wheel)
      EXPECT_EQ(!rows[i].wheels[static_cast<std::size_t>(wheel)].empty(), holds(wheelsDrawnOn(days[i]), wheel))
          << rows[i].date << " " << wheel;
  }
}

TEST_F(RealHistory, GivesTheFilesForOtherProgramsByteByByte) {
  EXPECT_EQ(datiIii(archive).size(), 7370U * 110U);
  EXPECT_TRUE(datiIii(archive) == plainDatiIii(archive));
  EXPECT_TRUE(ruotafast(archive) == plainRuotafast(archive));
  EXPECT_TRUE(nazionale(archive) == plainNazionale(archive));
  EXPECT_EQ(nazionale(archive).substr(nazionale(archive).size() - 18), "07370-5189827037\r\n");
}

}  // namespace
}  // namespace trv5
