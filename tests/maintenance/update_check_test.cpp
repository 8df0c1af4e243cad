#include "maintenance/update_check.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "core/database_files.h"
#include "maintenance/formats/update_text.h"
#include "maintenance/update_samples.h"
#include "support/archive_builder.h"
#include "support/left_journal.h"
#include "support/random_runs.h"
#include "support/temp_folder.h"

namespace trv5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class UpdateChecked : public testing::Test {
 protected:
  UpdateChecked() {
    std::mt19937 rng(11);
    stored = randomRows(rng, 30);
    for (DrawRow& row : stored)
      for (std::string& wheel : row.wheels)
        if (wheel.empty()) wheel = "01-02-03-04-05";
    createArchive(folder / "a.mdb", stored, Existing::Replace);
  }
  UpdateCheck checked(const std::vector<DrawRow>& rows, BlankCell blank = BlankCell::Text) const {
    return checkUpdate(Database(folder / "a.mdb", FileKind::Archive), rows, blank);
  }
  DrawRow missing(const std::string& date) const {
    DrawRow row = stored[0];
    row.date = date;
    return row;
  }

  TempFolder folder;
  std::vector<DrawRow> stored;
};

TEST_F(UpdateChecked, DrawsHeldIdenticallyAgreeInAllWheelsAndOneLineSaysSo) {
  const UpdateCheck check = checked({stored[3], stored[4]});
  EXPECT_THAT(check.lines, ElementsAre("Nessuna anomalia rilevata"));
  for (const UpdateMark& mark : check.marks) {
    EXPECT_FALSE(mark.missing || mark.wrong);
    for (const bool agrees : mark.agrees) EXPECT_TRUE(agrees);
  }
}

TEST_F(UpdateChecked, AMissingDrawIsNoError) {
  const UpdateCheck check = checked({stored[3], missing("01/02/1950")});
  EXPECT_THAT(check.lines, ElementsAre("Manca estrazione del: 01/02/1950", "Nessuna anomalia rilevata"));
  EXPECT_TRUE(check.marks[1].missing);
  EXPECT_FALSE(check.marks[1].agrees[0]) << "its wheels aren't compared";
}

TEST_F(UpdateChecked, TellsTheRowsFromTheLastToTheFirst) {
  DrawRow wrong = stored[5];
  wrong.wheels[10] = "90-89-88-87-86";
  const UpdateCheck check = checked({wrong, missing("02/02/1950"), missing("01/02/1950")});
  EXPECT_THAT(check.lines, ElementsAre("Manca estrazione del: 01/02/1950", "Manca estrazione del: 02/02/1950",
                                       "Errori Estrazione del " + wrong.date));
  EXPECT_TRUE(check.marks[0].wrong);
  EXPECT_TRUE(check.marks[0].agrees[9]);
  EXPECT_FALSE(check.marks[0].agrees[10]);
}

TEST_F(UpdateChecked, ComparesTextsNotNumbers) {
  DrawRow unlike = stored[5];
  unlike.wheels[0] = "1-02-03-04-05";
  unlike.wheels[1] += " ";
  const UpdateCheck check = checked({unlike});
  EXPECT_FALSE(check.marks[0].agrees[0]);
  EXPECT_FALSE(check.marks[0].agrees[1]);
  EXPECT_TRUE(check.marks[0].agrees[2]);
}

TEST_F(UpdateChecked, ANullEqualsNoTextAndAnEmptyTextEqualsAnEmptyText) {
  { const OtherProgram other(folder / "a.mdb", "UPDATE EstrazioniLotto SET Ba = NULL, Ca = ''"); }
  DrawRow row = stored[5];
  row.wheels[0] = row.wheels[1] = "";
  EXPECT_FALSE(checked({row}).marks[0].agrees[0]);
  EXPECT_TRUE(checked({row}).marks[0].agrees[1]);
  EXPECT_TRUE(checked({row}).marks[0].wrong);
  EXPECT_FALSE(checked({row}, BlankCell::NotDrawn).marks[0].wrong) << "where a blank says that it wasn't drawn";
}

TEST_F(UpdateChecked, StopsAtATextThatIsNoDateAndKeepsWhatItFound) {
  const UpdateCheck check = checked({missing("03/02/1950"), missing("31/02/1950"), missing("04/02/1950"), stored[7]});
  EXPECT_EQ(check.stoppedAt, 1U);
  EXPECT_THAT(check.lines, ElementsAre("Manca estrazione del: 04/02/1950"));
  EXPECT_FALSE(check.marks[0].missing);
  EXPECT_FALSE(check.marks[1].missing);
  EXPECT_TRUE(check.marks[2].missing);
  EXPECT_TRUE(check.marks[3].agrees[4]);
}

TEST_F(UpdateChecked, NoRowsGiveNoLines) {
  EXPECT_THAT(checked({}).lines, IsEmpty());
}

TEST_F(UpdateChecked, RepeatedRowsAreEachCompared) {
  DrawRow wrong = stored[5];
  wrong.wheels[0] = "";
  const UpdateCheck check = checked({stored[5], wrong, missing("01/02/1950"), missing("01/02/1950")});
  EXPECT_FALSE(check.marks[0].wrong);
  EXPECT_TRUE(check.marks[1].wrong);
  EXPECT_EQ(check.lines.size(), 3U);
}

TEST(UpdateCheckRandom, AgreesWithThePlainOneOnMixturesOfLines) {
  TempFolder folder;
  std::mt19937 seedling(3);
  const std::vector<DrawRow> stored = randomRows(seedling, 60);  // some wheels NULL
  createArchive(folder / "a.mdb", stored, Existing::Replace);
  const Database archive(folder / "a.mdb", FileKind::Archive);
  for (int seed = 1; seed <= randomRuns(2000); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(static_cast<unsigned>(seed));
    const std::string text = decodedText(randomUpdateBytes(rng, stored));
    const std::vector<DrawRow> rows = readUpdateText(text);
    ASSERT_TRUE(sameDraws(rows, plainUpdateRows(text)));
    const UpdateCheck check = checkUpdate(archive, rows, BlankCell::Text), plain = plainUpdateCheck(rows, stored);
    EXPECT_EQ(check.marks, plain.marks);
    EXPECT_EQ(check.lines, plain.lines);
    EXPECT_EQ(check.stoppedAt, plain.stoppedAt);
  }
}

}  // namespace
}  // namespace trv5
