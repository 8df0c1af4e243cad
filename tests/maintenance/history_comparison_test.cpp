// "Confronta con lo storico pubblicato".
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "maintenance/archivio_world.h"
#include "maintenance/update_samples.h"
#include "support/left_journal.h"

namespace trv5 {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

// The lines of the published history that tell a draw.
std::string historyLines(const DrawRow& row) {
  const char* const codes[] = {"BA", "CA", "FI", "GE", "MI", "NA", "PA", "RM", "TO", "VE", "RN"};
  std::string lines;
  for (std::size_t wheel = 0; wheel < 11; ++wheel) {
    if (row.wheels[wheel].empty()) continue;
    std::string numbers = row.wheels[wheel];
    for (char& c : numbers)
      if (c == '-') c = '\t';
    lines += row.date.substr(6) + "/" + row.date.substr(3, 2) + "/" + row.date.substr(0, 2) + "\t" + codes[wheel] +
             "\t" + numbers + "\n";
  }
  return lines;
}

class HistoryComparisonTest : public testing::Test {
 protected:
  HistoryComparisonTest() {
    std::mt19937 rng(8);
    rows = randomRows(rng, 20);  // some wheels not drawn
    archivio = &world.openOn(rows);
  }
  Archivio& a() { return *archivio; }
  void compareWith(const std::vector<DrawRow>& history) {
    std::string text;
    for (const DrawRow& row : history) text += historyLines(row);
    writeBytes(world.folder / "storico.txt", text);
    world.shell.answerFile(world.folder / "storico.txt");
    a().Cmd_Storico.press();
  }

  ArchivioWorld world;
  std::vector<DrawRow> rows;
  Archivio* archivio = nullptr;
};

TEST_F(HistoryComparisonTest, DrawsThatAgreeAreCountedAndNotListedWhateverWheelsWereDrawn) {
  compareWith(rows);
  EXPECT_EQ(a().FgImporta.rows(), 1);
  EXPECT_THAT(a().List4.lines(), ElementsAre("Nessuna anomalia rilevata", "20 estrazioni concordano"));
}

TEST_F(HistoryComparisonTest, BringsAnArchiveUpToDateByTheSameMarks) {
  std::vector<DrawRow> history = rows;
  history.push_back(drawOf("01/02/2001", {{"BA", {1, 2, 3, 4, 5}}}));
  history[4].wheels[0] = "90-89-88-87-86";
  compareWith(history);
  ASSERT_EQ(a().FgImporta.rows(), 3);
  EXPECT_EQ(a().FgImporta.at(1, 1), (Cell{rows[4].date, kWhite, 0xFF0000, true}));
  EXPECT_EQ(a().FgImporta.back(1, 2), kWhite);
  EXPECT_EQ(a().FgImporta.back(1, 3), 0x80FF80U);
  EXPECT_EQ(a().FgImporta.back(2, 1), 0xFFC080U);
  EXPECT_THAT(a().List4.lines(), ElementsAre("Manca estrazione del: 01/02/2001",
                                             "Errori Estrazione del " + rows[4].date, "19 estrazioni concordano"));
  a().Check3.set(true);
  a().Command28.press();
  EXPECT_TRUE(sameDraws(world.stored(), history));
  Statement query = world.program->archiveToWrite().prepare("SELECT count(*) FROM EstrazioniLotto WHERE Nz = ''");
  ASSERT_TRUE(query.step());
  EXPECT_EQ(query.number(0), 0) << "a wheel that wasn't drawn is NULL";
  compareWith(history);
  EXPECT_THAT(a().List4.lines(), ElementsAre("Nessuna anomalia rilevata", "21 estrazioni concordano"));
}

TEST_F(HistoryComparisonTest, AFileAtFaultIsToldAndTheGridStays) {
  a().FgImporta.appendRow();
  writeBytes(world.folder / "storico.txt", historyLines(rows[0]) + "2001/02/31\tBA\t1\t2\t3\t4\t5\nnonsense\n");
  world.shell.answerFile(world.folder / "storico.txt");
  a().Cmd_Storico.press();
  EXPECT_THAT(world.shell.lastBox().text, HasSubstr("ha 2 righe errate; la prima: alla riga"));
  writeBytes(world.folder / "storico.txt", "");
  world.shell.answerFile(world.folder / "storico.txt");
  a().Cmd_Storico.press();
  EXPECT_THAT(world.shell.lastBox().text, HasSubstr("non contiene estrazioni"));
  EXPECT_EQ(a().FgImporta.rows(), 2);
}

TEST_F(HistoryComparisonTest, ACancelledDialogIsSilent) {
  world.shell.answerCancel();
  a().Cmd_Storico.press();
  EXPECT_EQ(world.shell.shown.size(), 1U);
}

}  // namespace
}  // namespace trv5
