#include "maintenance/mending.h"

#include <gtest/gtest.h>

#include "core/archive_load.h"
#include "core/database_files.h"
#include "core/draw_sums.h"
#include "core/draw_writer.h"
#include "support/archive_builder.h"
#include "support/left_journal.h"
#include "support/temp_folder.h"

namespace trv5 {
namespace {

const DateTime kNow{2026, 8, 21, 21, 0, 0};
constexpr const char* kBroken = "UPDATE EstrazioniLotto SET Ba = '90-89-88-87-86' WHERE DataEstrazione = '1939-01-14'";

// An archive with copies, and what another program does to it.
class Mending : public testing::Test {
 protected:
  Mending() { createArchive(file, {drawOf("07/01/1939", {}), draw({1, 2, 3, 4, 5})}, Existing::Refuse); }
  static DrawRow draw(const std::array<int, 5>& bari) { return drawOf("14/01/1939", {{"BA", bari}}); }
  void correct(const std::array<int, 5>& bari) {
    Database archive(file, FileKind::Archive);
    DrawWriter writer(archive);
    writer.put(draw(bari));
    writer.commit();
  }
  std::filesystem::path copy(int day) {
    return makeBackup(Database(file, FileKind::Archive), BackupReason::Correzione, {2026, 8, day, 21, 0, 0}).file;
  }
  // The first wheel of the draw that mends each finding on the archive as it stands, "-" for none.
  std::vector<std::string> mended() {
    const Database archive(file, FileKind::Archive);
    const std::vector<DrawRow> rows = readDraws(archive);
    const auto findings = findingsOf(rows, differencesFromSums(archive, rows), *dayOfText("21/08/2026"));
    std::vector<std::string> all;
    for (const auto& mend : mendsOf(findings, archive, rows, backupsOf(file, kNow)))
      all.push_back(mend ? mend->draw.wheels[0] : "-");
    return all;
  }
  using Texts = std::vector<std::string>;

  TempFolder folder;
  const std::filesystem::path file = folder / "Archivio.mdb";
};

TEST_F(Mending, NothingIsMendedWhereNothingIsFound) {
  copy(1);
  EXPECT_EQ(mended(), Texts());
}

TEST_F(Mending, AChangedDrawComesFromACopyAndOneThatIsGoneToo) {
  copy(1);
  const OtherProgram other(file, kBroken);
  EXPECT_EQ(mended(), Texts{"01-02-03-04-05"});
  const OtherProgram taker(file, "DELETE FROM EstrazioniLotto WHERE DataEstrazione = '1939-01-14'");
  EXPECT_EQ(mended(), Texts{"01-02-03-04-05"});
}

TEST_F(Mending, WithoutACopyNothingMends) {
  const OtherProgram other(file, kBroken);
  EXPECT_EQ(mended(), Texts{"-"});
}

TEST_F(Mending, AnOlderVersionThanTheOneThatWasWrittenIsNoMend) {
  copy(1);
  correct({6, 7, 8, 9, 10});  // after the only copy
  const OtherProgram other(file, kBroken);
  EXPECT_EQ(mended(), Texts{"-"});
}

TEST_F(Mending, TheVersionThatWasWrittenLastIsFoundAmongOthers) {
  copy(1);
  correct({6, 7, 8, 9, 10});
  copy(2);
  correct({11, 12, 13, 14, 15});
  copy(3);
  correct({6, 7, 8, 9, 10});
  const OtherProgram other(file, kBroken);
  EXPECT_EQ(mended(), Texts{"06-07-08-09-10"});
}

TEST_F(Mending, ADamagedSumAloneNeedsNoOtherDraw) {
  copy(1);
  const OtherProgram other(file, "UPDATE VerificaEstrazioni SET Somma = 1");
  EXPECT_EQ(mended(), (Texts{"-", "-"}));
}

TEST_F(Mending, ACopyThatIsBrokenItselfMendsNothing) {
  { const OtherProgram other(copy(1), kBroken); }
  writeBytes(backupFolder(file) / "Archivio 2026-08-02 21.00.00 correzione.mdb", "no database");
  const OtherProgram other(file,
                           "UPDATE EstrazioniLotto SET Ba = '01-01-01-01-01' WHERE DataEstrazione = '1939-01-14'");
  EXPECT_EQ(mended(), (Texts{"-", "-"})) << "neither the sum nor the repeated numbers";
}

TEST_F(Mending, WhatWasEnteredWronglyComesFromTheNewestCopyThatIsWhole) {
  copy(1);
  correct({6, 7, 8, 9, 10});
  copy(2);
  correct({6, 7, 8, 9, 9});
  copy(3);
  EXPECT_EQ(mended(), Texts{"06-07-08-09-10"});
}

TEST_F(Mending, DatesAndGapsAreNotMended) {
  copy(1);
  Database archive(file, FileKind::Archive);
  writeDraw(archive, drawOf("28/01/1939", {}));
  EXPECT_EQ(mended(), Texts{"-"});
}

}  // namespace
}  // namespace trv5
