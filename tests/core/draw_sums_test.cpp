#include "core/draw_sums.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/archive_load.h"
#include "core/draw_writer.h"
#include "core/verifica_archivio.h"
#include "support/damage.h"
#include "support/left_journal.h"
#include "support/program_world.h"

namespace trv5 {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using Kind = DrawDifference::Kind;

std::vector<DrawRow> someRows() {
  return {drawOf("07/01/1939", {{"BA", {1, 2, 3, 4, 5}}}), drawOf("14/01/1939", {{"BA", {6, 7, 8, 9, 10}}}),
          drawOf("21/01/1939", {{"BA", {11, 12, 13, 14, 15}}})};
}

std::vector<DrawDifference> differencesOf(const std::filesystem::path& file) {
  const Database archive(file, FileKind::Archive);
  return differencesFromSums(archive, readDraws(archive));
}

// Kind, date and Bari of each.
std::vector<std::string> told(const std::vector<DrawDifference>& differences) {
  std::vector<std::string> texts;
  for (const DrawDifference& d : differences)
    texts.push_back(std::string(d.kind == Kind::Missing ? "-"
                                : d.kind == Kind::Added ? "+"
                                                        : "=") +
                    d.now.date + " " + d.now.wheels[0]);
  return texts;
}

constexpr const char* kForeignEdits =
    "UPDATE EstrazioniLotto SET Ba = '01-02-03-04-06' WHERE DataEstrazione = '1939-01-07';"
    "DELETE FROM EstrazioniLotto WHERE DataEstrazione = '1939-01-14';"
    "INSERT INTO EstrazioniLotto (DataEstrazione, Ba) VALUES ('1939-01-10', '20-21-22-23-24')";

TEST(DrawSums, AFreshArchiveHasNoDifferences) {
  TempFolder folder;
  createArchive(folder / "a.mdb", someRows(), Existing::Refuse);
  EXPECT_THAT(differencesOf(folder / "a.mdb"), IsEmpty());
}

TEST(DrawSums, WhatAnotherProgramChangedIsTold) {
  TempFolder folder;
  createArchive(folder / "a.mdb", someRows(), Existing::Refuse);
  { const OtherProgram other(folder / "a.mdb", kForeignEdits); }
  EXPECT_THAT(told(differencesOf(folder / "a.mdb")),
              ElementsAre("=07/01/1939 01-02-03-04-06", "+10/01/1939 20-21-22-23-24", "-14/01/1939 "));
}

TEST(DrawSums, EachWheelAndTheDateAreInTheSum) {
  const DrawRow row = drawOf("07/01/1939", {{"BA", {1, 2, 3, 4, 5}}});
  DrawRow other = row;
  other.date = "08/01/1939";
  EXPECT_NE(sumOfDraw(row), sumOfDraw(other));
  for (std::size_t wheel = 0; wheel < kWheels; ++wheel) {
    other = row;
    other.wheels[wheel] = "01-02-03-04-06";
    EXPECT_NE(sumOfDraw(row), sumOfDraw(other)) << wheel;
  }
  other = row;
  std::swap(other.wheels[0], other.wheels[1]);
  EXPECT_NE(sumOfDraw(row), sumOfDraw(other));
}

TEST(DrawSums, AnArchiveWithoutSumsHasNoDifferencesAndGetsThemAtTheFirstWrite) {
  TempFolder folder;
  createArchive(folder / "a.mdb", someRows(), Existing::Refuse);
  { const OtherProgram other(folder / "a.mdb", "DROP TABLE VerificaEstrazioni"); }
  EXPECT_THAT(differencesOf(folder / "a.mdb"), IsEmpty());
  {
    Database archive(folder / "a.mdb", FileKind::Archive);
    writeDraw(archive, drawOf("28/01/1939", {{"RO", {90, 1, 2, 3, 4}}}));
  }
  EXPECT_THAT(differencesOf(folder / "a.mdb"), IsEmpty());
  { const OtherProgram other(folder / "a.mdb", kForeignEdits); }
  EXPECT_EQ(differencesOf(folder / "a.mdb").size(), 3U);
}

TEST(DrawSums, ADrawIsWrittenChangedAndDeletedWithItsSum) {
  TempFolder folder;
  createArchive(folder / "a.mdb", someRows(), Existing::Refuse);
  Database archive(folder / "a.mdb", FileKind::Archive);
  writeDraw(archive, drawOf("28/01/1939", {{"RO", {90, 1, 2, 3, 4}}}), {"29/01/1939", "10:11:12"});
  writeDraw(archive, drawOf("07/01/1939", {{"BA", {9, 8, 7, 6, 5}}}));
  EXPECT_TRUE(deleteDraw(archive, "14/01/1939"));
  EXPECT_FALSE(deleteDraw(archive, "15/01/1939"));
  const std::vector<DrawRow> rows = readDraws(archive);
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_EQ(rows[0].wheels[0], "09-08-07-06-05");
  EXPECT_EQ(rows[2].wheels[7], "90-01-02-03-04");
  EXPECT_THAT(differencesFromSums(archive, rows), IsEmpty());
  Statement registered = archive.prepare("SELECT datareg, orareg FROM EstrazioniLotto ORDER BY DataEstrazione DESC");
  ASSERT_TRUE(registered.step());
  EXPECT_EQ(registered.text(0) + " " + registered.text(1), "1939-01-29 10:11:12");
  EXPECT_THROW(writeDraw(archive, drawOf("30/02/1939", {})), UserError);
}

TEST(DrawSums, AnEmptyWheelIsStoredAsNotDrawnOrAsTheEmptyTextOfItsFile) {
  TempFolder folder;
  createArchive(folder / "a.mdb", someRows(), Existing::Refuse);
  Database archive(folder / "a.mdb", FileKind::Archive);
  DrawWriter writer(archive);
  EXPECT_FALSE(writer.has("28/01/1939"));
  writer.put(drawOf("28/01/1939", {}));
  writer.add(drawOf("29/01/1939", {}), {}, EmptyWheel::Text);
  EXPECT_TRUE(writer.has("28/01/1939"));
  writer.commit();
  Statement query = archive.prepare("SELECT Nz FROM EstrazioniLotto WHERE DataEstrazione > '1939-01-25' ORDER BY 1");
  ASSERT_TRUE(query.step());
  EXPECT_TRUE(query.isNull(0));
  ASSERT_TRUE(query.step());
  EXPECT_FALSE(query.isNull(0));
  EXPECT_THAT(differencesFromSums(archive, readDraws(archive)), IsEmpty());
}

TEST(DrawSums, AnAbandonedWriteLeavesDrawsAndSumsAsTheyWere) {
  TempFolder folder;
  createArchive(folder / "a.mdb", someRows(), Existing::Refuse);
  Database archive(folder / "a.mdb", FileKind::Archive);
  {
    DrawWriter writer(archive);
    writer.put(drawOf("28/01/1939", {}));
    writer.remove("07/01/1939");
  }
  EXPECT_EQ(readDraws(archive).size(), 3U);
  EXPECT_THAT(differencesFromSums(archive, readDraws(archive)), IsEmpty());
}

TEST(DrawSums, TheSumOfOneDrawIsTheOneItWasWrittenWith) {
  TempFolder folder;
  createArchive(folder / "a.mdb", someRows(), Existing::Refuse);
  { const OtherProgram other(folder / "a.mdb", kForeignEdits); }
  const Database archive(folder / "a.mdb", FileKind::Archive);
  for (const DrawRow& row : someRows()) EXPECT_EQ(keptSumOf(archive, row.date), sumOfDraw(row)) << row.date;
  EXPECT_EQ(keptSumOf(archive, "10/01/1939"), std::nullopt);
  EXPECT_EQ(keptSumOf(archive, "no date"), std::nullopt);
  { const OtherProgram other(folder / "a.mdb", "DROP TABLE VerificaEstrazioni"); }
  EXPECT_EQ(keptSumOf(archive, "07/01/1939"), std::nullopt);
}

TEST(DrawSums, WheelsThatAreNotFiveDifferentNumbersAreCounted) {
  EXPECT_EQ(irregularWheels(someRows()).count, 0);
  std::vector<DrawRow> rows = someRows();
  rows[1].wheels[3] = "01-02-03-04-04";
  for (const char* text : {"00-02-03-04-05", "91-02-03-04-05", "01-02-03-04", "01 02 03 04 05", "1-2-3-4-5", "x"})
    rows.push_back({"28/01/1939", {text}});
  EXPECT_EQ(irregularWheels(rows).count, 7);
  EXPECT_EQ(irregularWheels(rows).firstDate, "14/01/1939");
}

class ArchiveToVerify : public testing::Test {
 protected:
  ArchiveToVerify() {
    world.makeBoth(someRows());
    { const OtherProgram other(archive, kForeignEdits); }
    world.startAndProceed();
  }
  VerificaArchivio& look() {
    world.container().Cmd_Verifica.press();
    return static_cast<VerificaArchivio&>(world.shell.show("VerificaArchivio"));
  }

  ProgramWorld world;
  std::filesystem::path archive = world.folder / "Archivio.mdb";
};

TEST_F(ArchiveToVerify, LoadsAndSaysSoUntilTheUserHasLooked) {
  EXPECT_EQ(world.program->archive.NumEstrazioni(), 3);
  EXPECT_THAT(world.shell.shown, IsEmpty()) << "no box";
  EXPECT_EQ(world.shell.statusTexts.back(), "Archivio caricato: 3 estrazioni; 3 non sono come furono registrate");
  EXPECT_EQ(world.container().Cmd_Verifica.caption(), "3 estrazioni da verificare");
  EXPECT_EQ(world.container().Lbl_Verifica.text(), "3 estrazioni da verificare");
  const Grid& list = look().Fg_Differenze;
  EXPECT_EQ(world.container().Lbl_Verifica.text(), "");
  EXPECT_EQ(world.container().Cmd_Verifica.caption(), "3 estrazioni da verificare");
  ASSERT_EQ(list.rows(), 4);
  EXPECT_EQ(list.text(1, 0) + list.text(1, 1) + list.text(1, 2), "07/01/1939cambiata01-02-03-04-06");
  EXPECT_EQ(list.text(2, 0) + list.text(2, 1) + list.text(2, 2), "10/01/1939aggiunta20-21-22-23-24");
  EXPECT_EQ(list.text(3, 0) + list.text(3, 1) + list.text(3, 2), "14/01/1939mancante");
}

TEST_F(ArchiveToVerify, AcceptedItIsRightFromThenOn) {
  look().Cmd_Accetta.press();
  EXPECT_THAT(world.shell.shown, IsEmpty());
  EXPECT_EQ(world.container().Cmd_Verifica.caption(), "");
  EXPECT_FALSE(world.shell.isOpen("VerificaArchivio"));
  world.startAndProceed();
  EXPECT_EQ(world.container().Cmd_Verifica.caption(), "");
  EXPECT_EQ(world.shell.statusTexts.back(), "Archivio caricato: 3 estrazioni");
}

TEST_F(ArchiveToVerify, WhatTheUserHasNotSeenIsNotAccepted) {
  VerificaArchivio& screen = look();
  { const OtherProgram other(archive, "DELETE FROM EstrazioniLotto WHERE DataEstrazione = '1939-01-21'"); }
  screen.Cmd_Accetta.press();
  EXPECT_THAT(world.shell.lastBox().text, HasSubstr("è cambiato da quando è stato caricato"));
  EXPECT_EQ(screen.Fg_Differenze.rows(), 5);
  EXPECT_EQ(differencesOf(archive).size(), 4U);
}

TEST(ArchiveLoad, WheelsThatAreNoDrawAreToldInTheStatusLineOnly) {
  ProgramWorld world;
  std::vector<DrawRow> rows = someRows();
  rows[1].wheels[2] = "01-01-02-03-99";
  world.makeBoth(rows);
  world.startAndProceed();
  EXPECT_EQ(world.shell.statusTexts.back(),
            "Archivio caricato: 3 estrazioni; una ruota senza cinque numeri diversi da 1 a 90 (il 14/01/1939)");
  EXPECT_THAT(world.shell.shown, IsEmpty());
}

// A share of what bench/damage_run does in full.
TEST(ArchiveLoad, NoDamageLoadsOtherDrawsInSilence) {
  std::mt19937 rng(1);
  ProgramWorld world;
  const auto file = world.makeArchive(randomRows(rng, 600));
  world.makeMainFor(file);
  world.start();
  const std::vector<DrawRow> whole = loadArchive(*world.program);
  const std::string bytes = readBytes(file);
  int refused = 0, told = 0;
  for (int i = 0; i < 200; ++i) {
    SCOPED_TRACE(i);
    writeBytes(file, damaged(bytes, i % kDamages, rng));
    try {
      const std::vector<DrawRow> rows = loadArchive(*world.program);
      told += !world.program->drawDifferences.empty();
      if (!world.program->drawDifferences.empty()) continue;
      ASSERT_EQ(rows.size(), whole.size());
      for (std::size_t at = 0; at < rows.size(); ++at)
        ASSERT_TRUE(rows[at].date == whole[at].date && rows[at].wheels == whole[at].wheels) << whole[at].date;
    } catch (const std::exception&) {
      ++refused;
    }
  }
  EXPECT_GT(refused, 0);
  EXPECT_GT(told, 0);
}

}  // namespace
}  // namespace trv5
