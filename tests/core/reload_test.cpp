#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/archive_load.h"
#include "core/errors.h"
#include "core/four_draws.h"
#include "support/program_world.h"

namespace trv5 {
namespace {

TEST(Reload, WritesTheStatusBlockFromTheBlankModelAndOnlyThenFillsIt) {
  ProgramWorld world;
  world.makeBoth(fourDraws());
  Container& container = world.startAndProceed();
  world.program->archiveToWrite().execute("DELETE FROM EstrazioniLotto WHERE DataEstrazione = '1940-01-06'");
  CaricaArchivioExNovo(*world.program);
  EXPECT_EQ(container.LblInizio.text(), "");
  EXPECT_EQ(container.LblFine.text(), "");
  EXPECT_EQ(container.Lbl_inizioNE.text(), "0");  // while the array holds 1 from here on
  EXPECT_EQ(container.Lbl_fineNE.text(), "0");
  EXPECT_EQ(container.Lbl_Ev.text(), "1");
  const Archive& archive = world.program->archive;
  EXPECT_EQ(archive.NumEstrazioni(), 3);
  EXPECT_EQ(archive.UltimaEstrazione(), 3);
  ASSERT_EQ(archive.NumModello(), 3);
  EXPECT_EQ(archive.IndiciModello(1), 1);
  EXPECT_EQ(archive.IndiciModello(3), 3);
}

TEST(Reload, WidensTheModelToTheWholeArchiveWhateverEstrazioneInizialeSays) {
  ProgramWorld world;
  world.makeMain({{.Parametro = "PercorsoArchivio", .Valore1 = world.makeArchive(fourDraws()).string()},
                  {.Parametro = "EstrazioneIniziale", .Valore1 = "3"}});
  world.startAndProceed();
  EXPECT_EQ(world.program->archive.IndiciModello(1), 3);
  CaricaArchivioExNovo(*world.program);
  EXPECT_EQ(world.program->archive.NumModello(), 4);
  EXPECT_EQ(world.program->archive.IndiciModello(1), 1);
}

TEST(Reload, RefillsTheListOfTheShellAndGivesTheRowsBack) {
  ProgramWorld world;
  world.makeBoth(fourDraws());
  Container& container = world.startAndProceed();
  Database& archive = world.program->archiveToWrite();
  archive.execute("INSERT INTO EstrazioniLotto (DataEstrazione, Ba) VALUES ('1940-01-13', '01-02-03-04-05')");
  const std::vector<DrawRow> rows = CaricaArchivioExNovo(*world.program);
  ASSERT_EQ(rows.size(), 5u);
  EXPECT_EQ(rows[4].wheels[0], "01-02-03-04-05");
  ASSERT_EQ(container.FG5.rows(), 6);
  EXPECT_EQ(container.FG5.text(5, 2), "13/01/1940");
  EXPECT_EQ(container.FG5.text(5, 3), "2");
  EXPECT_EQ(container.FG5.text(5, 4), "2");
}

TEST(Reload, MovesTheBarOfTheShellAtEveryFiftiethRow) {
  std::vector<DrawRow> rows;
  for (int draw = 1; draw <= 120; ++draw) rows.push_back(drawOf(dateOfDraw(draw), {}));
  ProgramWorld world;
  world.makeBoth(rows);
  world.startAndProceed();
  world.shell.progressValues.clear();
  CaricaArchivioExNovo(*world.program);
  EXPECT_EQ(world.shell.progressValues, (std::vector<std::pair<int, int>>{{50, 121}, {100, 121}}));
}

TEST(Reload, AfterTheLastDrawIsDeletedShowsAnEmptyArchive) {
  ProgramWorld world;
  world.makeBoth(fourDraws());
  Container& container = world.startAndProceed();
  world.program->archiveToWrite().execute("DELETE FROM EstrazioniLotto");
  CaricaArchivioExNovo(*world.program);
  EXPECT_EQ(world.program->archive.NumEstrazioni(), 0);
  EXPECT_EQ(container.FG5.rows(), 1);
  EXPECT_EQ(container.Lbl_Ev.text(), "1");
}

TEST(Reload, ThatFailsLeavesTheArchiveInMemoryAsItWas) {
  ProgramWorld world;
  world.makeBoth(fourDraws());
  Container& container = world.startAndProceed();
  std::filesystem::remove(world.folder / "Archivio.mdb");
  EXPECT_THROW(CaricaArchivioExNovo(*world.program), UserError);
  EXPECT_EQ(world.program->archive.NumEstrazioni(), 4);
  EXPECT_EQ(world.program->archive.NumModello(), 4);
  EXPECT_EQ(container.Lbl_Ev.text(), "4");
}

TEST(Reload, CaricaTabellaArchivioLeavesProgressivesLastDrawAndModelAsTheyWere) {
  ProgramWorld world;
  world.makeBoth(fourDraws());
  world.startAndProceed();
  Database& file = world.program->archiveToWrite();
  file.execute("DELETE FROM EstrazioniLotto WHERE DataEstrazione = '1939-01-07'");
  Grid FgDB("|DataEstrazione|Ba|Ca|Fi|Ge|Mi|Na|Pa|Ro|To|Ve|Nz");
  CaricaTabellaArchivio(*world.program, FgDB);
  const Archive& archive = world.program->archive;
  EXPECT_EQ(archive.NumEstrazioni(), 3);
  EXPECT_EQ(archive.DateEstrazioni(1), "14/01/1939");
  EXPECT_EQ(archive.NumeriEstratti(1, 7, 5), 5);
  EXPECT_EQ(archive.ProgMese(2), 2);
  EXPECT_EQ(archive.ProgAnno(4), 1);
  EXPECT_EQ(archive.UltimaEstrazione(), 4);
  EXPECT_EQ(archive.NumModello(), 4);
  EXPECT_EQ(archive.IndiciModello(4), 4);
  ASSERT_EQ(FgDB.rows(), 4);
  EXPECT_EQ(FgDB.text(1, 9), "01-02-03-04-05");
  EXPECT_TRUE(world.shell.progressValues.empty());
}

}  // namespace
}  // namespace trv5
