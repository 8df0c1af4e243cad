#include "maintenance/update_tab.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "maintenance/archivio_world.h"
#include "maintenance/formats/update_text.h"
#include "maintenance/update_grid.h"
#include "maintenance/update_samples.h"
#include "support/broken_world.h"
#include "support/left_journal.h"
#include "support/random_runs.h"

namespace trv5 {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr const char* kFailed = "Attenzione qualcosa è andato strorto nella procedura ";

std::string wrongly(const std::string& phase) {
  return kFailed + phase;
}

class UpdateTabTest : public testing::Test {
 protected:
  UpdateTabTest() {
    std::mt19937 rng(21);
    rows = randomRows(rng, 30);
    for (DrawRow& row : rows)
      for (std::string& wheel : row.wheels)
        if (wheel.empty()) wheel = "01-02-03-04-05";
    archivio = &world.openOn(rows);
  }
  Archivio& a() { return *archivio; }
  void offer(const std::string& bytes) {
    writeBytes(file, bytes);
    world.shell.answerFile(file);
    a().Command21.press();
  }
  void offerDraws(const std::vector<DrawRow>& draws) {
    std::string text;
    for (const DrawRow& row : draws) text += updateLine(row) + "\r\n";
    offer(text);
  }
  // The boxes that the user saw since the last time, but for the dialogs that choose a file.
  std::vector<std::string> boxes() {
    std::vector<std::string> texts;
    for (const ShownBox& box : world.shell.shown)
      if (box.kind != ShownBox::Kind::Open) texts.push_back(box.text);
    world.shell.shown.clear();
    return texts;
  }
  DrawRow newDraw(const std::string& date = "01/02/2001") const {
    DrawRow row = rows[0];
    row.date = date;
    return row;
  }
  DrawRow wrongDraw(std::size_t draw) const {
    DrawRow row = rows[draw];
    row.wheels[4] = "90-89-88-87-86";
    return row;
  }
  const std::vector<std::string>& lines() { return a().List4.lines(); }
  // Offers the bytes and compares grid, list and boxes with what is told.
  void offerAndCompare(const std::string& bytes);

  ArchivioWorld world;
  std::filesystem::path file = world.folder / "agg.txt";
  std::vector<DrawRow> rows;
  Archivio* archivio = nullptr;
};

TEST_F(UpdateTabTest, AFileThatTheArchiveHoldsIdenticallyIsAllGreenAndItsUpdateWritesNothingButReloads) {
  offerDraws({rows[3], rows[4]});
  EXPECT_THAT(boxes(), IsEmpty());
  EXPECT_THAT(lines(), ElementsAre("Nessuna anomalia rilevata"));
  for (int row = 1; row <= 2; ++row)
    for (int column = 1; column <= 12; ++column)
      EXPECT_EQ(a().FgImporta.back(row, column), column == 1 ? kWhite : 0x80FF80U);
  const std::string before = readBytes(world.folder / "Archivio.mdb");
  a().SSTab1.set(Archivio::kAggiornamenti);
  { const OtherProgram other(world.folder / "Archivio.mdb", "UPDATE EstrazioniLotto SET Ba = '90-01-02-03-04'"); }
  a().Command28.press();
  EXPECT_THAT(boxes(), IsEmpty());
  EXPECT_THAT(lines(), IsEmpty());
  EXPECT_EQ(a().SSTab1.index(), Archivio::kAggiornamenti);
  EXPECT_EQ(a().FgImporta.rows(), 1);
  EXPECT_EQ(world.program->archive.NumeriEstratti(5, 0, 1), 90) << "the archive was read again";
}

TEST_F(UpdateTabTest, ANewDrawIsOneOrangeDateAndTwoLines) {
  offerDraws({newDraw(), rows[5]});
  EXPECT_EQ(a().FgImporta.back(1, 1), 0xFFC080U);
  EXPECT_EQ(a().FgImporta.back(1, 2), kWhite);
  EXPECT_EQ(a().FgImporta.back(2, 1), kWhite);
  EXPECT_THAT(lines(), ElementsAre("Manca estrazione del: 01/02/2001", "Nessuna anomalia rilevata"));
  EXPECT_THAT(lines(), Not(Contains("L'archivio è aggiornato")));
}

TEST_F(UpdateTabTest, ADifferingDrawIsARedBoldDateWithTheWheelLeftWhite) {
  offerDraws({wrongDraw(5)});
  EXPECT_EQ(a().FgImporta.at(1, 1), (Cell{rows[5].date, kWhite, 0xFF0000, true}));
  EXPECT_EQ(a().FgImporta.back(1, 5), 0x80FF80U);
  EXPECT_EQ(a().FgImporta.back(1, 6), kWhite);
  EXPECT_THAT(lines(), ElementsAre("Errori Estrazione del " + rows[5].date));
}

TEST_F(UpdateTabTest, TheGridKeepsTheOrderOfTheFileAndTheListTellsItFromItsEnd) {
  offerDraws({newDraw("01/02/2001"), wrongDraw(3), newDraw("02/02/2001")});
  EXPECT_EQ(a().FgImporta.text(1, 1) + a().FgImporta.text(3, 1), "01/02/200102/02/2001");
  EXPECT_THAT(lines(), ElementsAre("Manca estrazione del: 02/02/2001", "Errori Estrazione del " + rows[3].date,
                                   "Manca estrazione del: 01/02/2001"));
  a().Command28.press();
  EXPECT_THAT(lines(), ElementsAre("Aggiunta estrazione del01/02/2001", "Aggiunta estrazione del02/02/2001",
                                   "aggiunti N° 2 record"));
}

TEST_F(UpdateTabTest, AnUpdateOfNewDrawsSaysSoGoesToTheFirstTabAndShowsTheLastDraw) {
  offerDraws({newDraw("02/02/2001"), newDraw("01/02/2001")});
  boxes();
  a().SSTab1.set(Archivio::kAggiornamenti);
  a().Command28.press();
  EXPECT_EQ(world.shell.lastBox().title, "Aggiornamento archivio");
  EXPECT_EQ(world.shell.lastBox().icon, Icon::Exclamation);
  EXPECT_THAT(boxes(), ElementsAre("Dati salvati correttamente."));
  EXPECT_EQ(a().SSTab1.index(), Archivio::kGestione);
  EXPECT_EQ(a().FgImporta.rows(), 1);
  EXPECT_EQ(a().LBLESTRAZIONE.text(), "02/02/2001");
  EXPECT_EQ(a().Label2.text(), "32");
  EXPECT_EQ(a().FgDB.text(31, 1), "01/02/2001");
  EXPECT_EQ(world.container().FG5.rows(), 33);
  Database& stored = world.program->archiveToWrite();
  Statement query = stored.prepare("SELECT datareg, orareg FROM EstrazioniLotto WHERE DataEstrazione = '2001-02-01'");
  ASSERT_TRUE(query.step());
  EXPECT_EQ(query.text(0) + " " + query.text(1), "2026-08-22 10:30:15");
}

TEST_F(UpdateTabTest, ARedRowIsLeftAloneWithoutTheBoxAndCorrectedWithItWithoutAMessage) {
  offerDraws({wrongDraw(5)});
  a().Command28.press();
  EXPECT_TRUE(sameDraws(world.stored(), rows));
  EXPECT_THAT(boxes(), IsEmpty());
  offerDraws({wrongDraw(5)});
  a().Check3.set(true);
  a().SSTab1.set(Archivio::kAggiornamenti);
  a().Command28.press();
  EXPECT_THAT(boxes(), IsEmpty()) << "corrections alone bring no message";
  EXPECT_THAT(lines(), ElementsAre("Modificata estrazione del" + rows[5].date));
  EXPECT_EQ(world.stored()[5].wheels[4], "90-89-88-87-86");
  EXPECT_EQ(a().SSTab1.index(), Archivio::kAggiornamenti);
}

TEST_F(UpdateTabTest, SaveAndCorrectionEmptyTheGridDeletionDoesNot) {
  const auto pressYes = [&](Button& button) {
    world.shell.answerYes();
    button.press();
  };
  offerDraws({newDraw()});
  pressYes(a().Command2);
  EXPECT_EQ(a().FgImporta.rows(), 2);
  pressYes(a().Command3);
  EXPECT_EQ(a().FgImporta.rows(), 1);
  offerDraws({newDraw()});
  a().MonthView1.pick("05/05/2005");
  pressYes(a().Command8);
  EXPECT_EQ(a().FgImporta.rows(), 1);
  boxes();
  a().SSTab1.set(Archivio::kAggiornamenti);
  a().Command28.press();
  EXPECT_EQ(world.shell.lastBox().title, "Aggiornamento archivio");
  EXPECT_THAT(boxes(), ElementsAre("Non ci sono estrazioni da aggiornare."));
  EXPECT_EQ(a().SSTab1.index(), Archivio::kGestione);
  EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(UpdateTabTest, AFirstLineOf177Or179CharactersGetsTheMessageOfTheFormAndLeavesTheGrid) {
  offerDraws({newDraw()});
  boxes();
  const Grid before = a().FgImporta.grid();
  const std::string line = updateLine(newDraw());
  for (const std::string& wrong : {line.substr(1), " " + line, std::string(), "\r\n" + line}) {
    offer(wrong);
    EXPECT_THAT(boxes(), ElementsAre("Attenzione, sembra che il file non sia del formato corretto"));
    EXPECT_EQ(a().FgImporta.grid(), before);
    EXPECT_EQ(lines().size(), 2U);
  }
  offer(std::string(10, 'x') + line.substr(10));
  EXPECT_EQ(boxes().size(), 1U);
  EXPECT_EQ(a().FgImporta.text(1, 1), "xxxxxxxxxx") << "178 characters that end in pr pass";
}

TEST_F(UpdateTabTest, ACancelledDialogIsAnErrorBeforeTheFirstPhase) {
  world.shell.answerCancel();
  a().Command21.press();
  ASSERT_EQ(world.shell.shown.size(), 2U);
  EXPECT_EQ(world.shell.shown[0].folder, world.folder.path());
  EXPECT_EQ(world.shell.shown[0].filter, "*.txt");
  EXPECT_EQ(world.shell.lastBox().text, kFailed);
  EXPECT_EQ(world.shell.lastBox().title, "Avviso");
  EXPECT_EQ(world.shell.lastBox().icon, Icon::Critical);
  world.shell.answerFile(world.folder / "nowhere.txt");
  a().Command21.press();
  EXPECT_EQ(world.shell.lastBox().text, kFailed);
}

TEST_F(UpdateTabTest, ATextThatIsNoDateEndsTheCheckAndTheRowsBehindItKeepTheirMarks) {
  offerDraws({newDraw("02/02/2001"), newDraw("31/02/2001"), newDraw("01/02/2001")});
  EXPECT_THAT(boxes(), ElementsAre(wrongly("Controllo estrazioni mancanti")));
  EXPECT_EQ(world.shell.reasons.back(), "La riga 2 comincia con \"31/02/2001\", che non è una data.");
  EXPECT_EQ(a().FgImporta.rows(), 4);
  EXPECT_EQ(a().FgImporta.back(1, 1), kWhite);
  EXPECT_EQ(a().FgImporta.back(3, 1), kMissingDraw);
  EXPECT_THAT(lines(), ElementsAre("Manca estrazione del: 01/02/2001"));
}

TEST_F(UpdateTabTest, TheBarGoesWithTheRows) {
  world.shell.progressValues.clear();
  offerDraws({rows[1], rows[2], rows[3]});
  EXPECT_EQ(world.shell.progressValues, (std::vector<std::pair<int, int>>{{1, 3}, {2, 3}, {3, 3}}));
}

TEST_F(UpdateTabTest, AnArchiveThatAnotherProcessHoldsOrTheDiskCannotTakeStaysAsItWasAndSoDoesTheGrid) {
  offerDraws({newDraw()});
  boxes();
  const Grid before = a().FgImporta.grid();
  {
    OtherProgram other(world.folder / "Archivio.mdb", "BEGIN EXCLUSIVE");
    a().Command28.press();
  }
  {
    const FullDisk disk(4096);
    world.shell.answerYes();  // without a copy
    a().Command28.press();
  }
  EXPECT_EQ(world.shell.lastBox().icon, Icon::Critical);
  EXPECT_EQ(boxes().size(), 3U);
  EXPECT_EQ(a().FgImporta.grid(), before);
  EXPECT_THAT(lines(), IsEmpty());
  EXPECT_TRUE(sameDraws(world.stored(), rows));
  a().Command28.press();
  EXPECT_EQ(world.stored().size(), 31U) << "once the disk is free";
}

TEST_F(UpdateTabTest, AnArchiveThatIsReadOnlyIsNotWrittenToAndTheBoxSaysWhy) {
  offerDraws({newDraw()});
  boxes();
  const Grid before = a().FgImporta.grid();
  {
    const ReadOnlyFolder readOnly(world.folder.path());
    a().Command28.press();
  }
  EXPECT_EQ(world.shell.lastBox().icon, Icon::Critical);
  ASSERT_EQ(world.shell.shown.size(), 1U);
  EXPECT_THAT(world.shell.lastBox().text, HasSubstr("il file è in sola lettura"));
  EXPECT_EQ(a().FgImporta.grid(), before);
  EXPECT_THAT(lines(), IsEmpty());
  EXPECT_TRUE(sameDraws(world.stored(), rows));
}

TEST_F(UpdateTabTest, AnArchiveThatVanishedIsNotWrittenTo) {
  offerDraws({newDraw()});
  boxes();
  std::filesystem::remove(world.folder / "Archivio.mdb");
  a().Command28.press();
  EXPECT_THAT(boxes(), ElementsAre(std::string(kOtherArchive)));
  EXPECT_EQ(a().FgImporta.rows(), 2);
  EXPECT_EQ(world.program->archive.NumEstrazioni(), 30);
}

TEST_F(UpdateTabTest, AShortLineIsStoredWithEmptyTextsAndThenAgrees) {
  const std::string line = updateLine(newDraw());
  offer(line + "\n" + updateLine(newDraw("02/02/2001")).substr(0, 40));
  a().Command28.press();
  boxes();
  offer(line + "\n" + updateLine(newDraw("02/02/2001")).substr(0, 40));
  EXPECT_THAT(lines(), ElementsAre("Nessuna anomalia rilevata"));
}

// The grid as the check is told to leave it.
Grid plainGrid(const Grid& heading, const std::vector<DrawRow>& draws, const UpdateCheck& check) {
  Grid grid = heading;
  grid.cutToHeading();
  for (std::size_t i = 0; i < draws.size(); ++i) {
    const int row = grid.appendRow();
    grid.setText(row, 1, draws[i].date);
    if (check.marks[i].missing) grid.setBack(row, 1, 0xFFC080);
    if (check.marks[i].wrong) grid.setFore(row, 1, 0xFF0000);
    if (check.marks[i].wrong) grid.setBold(row, 1);
    for (int wheel = 0; wheel < 11; ++wheel) {
      grid.setText(row, wheel + 2, draws[i].wheels[static_cast<std::size_t>(wheel)]);
      if (check.marks[i].agrees[static_cast<std::size_t>(wheel)]) grid.setBack(row, wheel + 2, 0x80FF80);
    }
  }
  return grid;
}

void UpdateTabTest::offerAndCompare(const std::string& bytes) {
  const Grid before = a().FgImporta.grid();
  const std::vector<std::string> listed = lines();
  const std::string text = decodedText(bytes);
  offer(bytes);
  if (!hasUpdateForm(text)) {
    EXPECT_THAT(boxes(), ElementsAre("Attenzione, sembra che il file non sia del formato corretto"));
    EXPECT_EQ(a().FgImporta.grid(), before);
    EXPECT_EQ(lines(), listed);
    return;
  }
  const std::vector<DrawRow> draws = plainUpdateRows(text);
  const UpdateCheck plain = plainUpdateCheck(draws, rows);
  EXPECT_EQ(a().FgImporta.grid(), plainGrid(before, draws, plain));
  EXPECT_EQ(lines(), plain.lines);
  EXPECT_EQ(boxes().size(), plain.stoppedAt ? 1U : 0U);
}

TEST_F(UpdateTabTest, EveryTruncationOfAFileIsReadAsItStands) {
  const std::string text =
      updateLine(rows[3]) + "\r\n" + updateLine(newDraw()) + "\n" + updateLine(wrongDraw(7)) + "\r\n";
  for (std::size_t length = 0; length <= text.size(); ++length) {
    SCOPED_TRACE(length);
    offerAndCompare(text.substr(0, length));
  }
}

TEST_F(UpdateTabTest, MixturesOfLinesAreMarkedCellByCellAsTold) {
  for (int seed = 1; seed <= randomRuns(2000); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(static_cast<unsigned>(seed));
    const std::string first = rng() % 2 == 0 ? updateLine(rows[rng() % rows.size()]) + "\r\n" : "";
    offerAndCompare(first + randomUpdateBytes(rng, rows));
  }
}

TEST_F(UpdateTabTest, MixturesAreWrittenAsTold) {
  for (int seed = 1; seed <= randomRuns(60); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(static_cast<unsigned>(seed));
    std::vector<DrawRow> expected = world.stored();
    offer(updateLine(expected[rng() % expected.size()]) + "\n" + randomUpdateBytes(rng, expected));
    const Grid grid = a().FgImporta.grid();
    a().Check3.set(rng() % 2 == 0);
    boxes();
    a().Command28.press();
    int added = 0;
    for (int row = 1; row < grid.rows(); ++row) {
      const auto same = [&](const DrawRow& draw) { return draw.date == grid.text(row, 1); };
      auto found = std::find_if(expected.begin(), expected.end(), same);
      if (grid.back(row, 1) == 0xFFC080 && found == expected.end()) {
        ++added;
        found = expected.insert(expected.end(), DrawRow{grid.text(row, 1), {}});
      } else if (!(grid.at(row, 1).fore == 0xFF0000 && a().Check3.checked())) {
        continue;
      }
      for (int wheel = 0; wheel < 11; ++wheel)
        found->wheels[static_cast<std::size_t>(wheel)] = grid.text(row, wheel + 2);
    }
    const auto order = [](const DrawRow& draw) { return draw.date.substr(6) + draw.date.substr(3, 2) + draw.date; };
    std::sort(expected.begin(), expected.end(),
              [&](const DrawRow& x, const DrawRow& y) { return order(x) < order(y); });
    EXPECT_TRUE(sameDraws(world.stored(), expected));
    EXPECT_EQ(boxes().size(), added > 0 || grid.rows() < 2 ? 1U : 0U);
    EXPECT_EQ(world.program->archive.NumEstrazioni(), static_cast<int>(expected.size()));
  }
}

}  // namespace
}  // namespace trv5
