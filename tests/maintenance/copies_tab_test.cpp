#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "maintenance/copies_world.h"

namespace trv5 {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::StartsWith;

class CopiesTab : public CopiesWorld {
 protected:
  // The act leaves a copy of this reason, which restored gives the archive of before.
  void expectCopyOf(const std::string& reason, const std::function<void()>& act) {
    SCOPED_TRACE(reason);
    const std::string before = stored();
    world.shell.clock.minute += 1;
    act();
    ASSERT_NE(stored(), before) << "nothing was done: " << world.shell.lastBox().text;
    const std::string after = stored();
    ASSERT_EQ(reasons().front(), reason);
    restore(1);
    EXPECT_EQ(stored(), before);
    EXPECT_EQ(reasons().front(), "ripristino");
    restore(1);
    EXPECT_EQ(stored(), after) << "and back again";
  }
  // The copy in that row of the list.
  void restore(int row) {
    world.shell.clock.minute += 1;
    a->SSTab1.set(Archivio::kGestione);
    a->SSTab1.set(Archivio::kCopie);
    a->Fg_Copie.clickCell(row, 0);
    world.shell.answerYes();
    a->Cmd_Ripristina.press();
    EXPECT_EQ(world.program->archive.NumEstrazioni(), static_cast<int>(world.stored().size()));
    EXPECT_EQ(a->Label2.text(), std::to_string(world.stored().size()));
  }
};

TEST_F(CopiesTab, EachActThatWritesDrawsLeavesACopyThatGivesTheArchiveOfBefore) {
  expectCopyOf("aggiornamento", [this] { save("28/01/1939"); });
  expectCopyOf("correzione", [this] { correct(2); });
  expectCopyOf("cancellazione", [this] { deleteShown(); });
  expectCopyOf("importazione", [this] { update("04/02/1939"); });
  EXPECT_EQ(world.shell.unexpected, 0);
}

TEST_F(CopiesTab, TheListTellsMomentReasonAndWhatChanged) {
  world.shell.clock = {2026, 8, 21, 20, 52, 10};
  deleteShown();
  enter();
  ASSERT_EQ(a->Fg_Copie.dataRows(), 1);
  EXPECT_EQ(a->Fg_Copie.text(1, 0), "21/08/2026 20:52");
  EXPECT_EQ(a->Fg_Copie.text(1, 1), "cancellazione");
  EXPECT_EQ(a->Fg_Copie.text(1, 2), "3");
  EXPECT_EQ(a->Fg_Copie.text(1, 3), "21/01/1939");
  EXPECT_EQ(a->Fg_Copie.text(1, 4), "1 in più");
  EXPECT_EQ(a->Lbl_CartellaCopie.text(), folder().string());
}

TEST_F(CopiesTab, TheListFollowsCopiesThatComeChangeAndGo) {
  deleteShown();
  enter();
  EXPECT_EQ(column(a->Fg_Copie, 4), Names{"1 in più"});
  world.shell.clock.minute += 1;
  correct(1);
  enter();
  EXPECT_EQ(column(a->Fg_Copie, 4), (Names{"1 diversa", "1 diversa, 1 in più"}));
  const auto copies = backupsOf(archive(), world.shell.clock);
  std::filesystem::remove(copies[1].file);
  {
    Database changed(copies[0].file, FileKind::Archive);
    ASSERT_TRUE(deleteDraw(changed, "07/01/1939"));
  }
  std::filesystem::last_write_time(copies[0].file,
                                   std::filesystem::file_time_type::clock::now() + std::chrono::hours(1));
  enter();
  EXPECT_EQ(column(a->Fg_Copie, 4), Names{"manca la 1"});
}

TEST_F(CopiesTab, TheHelpIsThatOfTheTabWhileItIsInFront) {
  a->Command22.press();
  EXPECT_EQ(a->helpContext(), 240);
  enter();
  EXPECT_EQ(a->helpContext(), 280);
  a->SSTab1.set(Archivio::kElenco);
  EXPECT_EQ(a->helpContext(), 240);
}

TEST_F(CopiesTab, CopiesBeyondTheTenAreCalledMonthly) {
  for (int month = 1; month <= 12; ++month) {
    world.shell.clock = {2026, month, 1, 10, 0, 0};
    correct(1);
  }
  enter();
  Names wanted(10, "correzione");
  wanted.insert(wanted.end(), 2, "mensile");
  EXPECT_EQ(column(a->Fg_Copie, 1), wanted);
}

TEST_F(CopiesTab, ACommandWithoutACopySaysWhatItNeeds) {
  enter();
  a->Cmd_Ripristina.press();
  EXPECT_EQ(world.shell.statusTexts.back(), "Nessuna copia: la prima nasce prima del prossimo aggiornamento");
  deleteShown();
  enter();
  for (Button* const button : {&a->Cmd_Ripristina, &a->Cmd_VerificaCopia}) {
    button->press();
    EXPECT_EQ(world.shell.statusTexts.back(), "Scegli prima una copia dell'elenco");
  }
}

TEST_F(CopiesTab, ADamagedCopySaysSoAndIsNeverRestored) {
  deleteShown();
  writeBytes(backupsOf(archive(), world.shell.clock).front().file, "no database");
  enter();
  EXPECT_EQ(a->Fg_Copie.text(1, 4), "non si lascia leggere");
  EXPECT_TRUE(a->Fg_Copie.at(1, 4).bold);
  a->Fg_Copie.clickCell(1, 0);
  for (Button* const button : {&a->Cmd_Ripristina, &a->Cmd_VerificaCopia}) {
    button->press();
    EXPECT_EQ(world.shell.lastBox().kind, ShownBox::Kind::Message);
    EXPECT_THAT(world.shell.lastBox().text, HasSubstr("non può essere aperto"));
  }
  EXPECT_EQ(world.stored().size(), 2u);
}

TEST_F(CopiesTab, ACopyDamagedInsideIsNeverRestored) {
  std::vector<DrawRow> rows;
  for (int draw = 1; draw <= 300; ++draw) rows.push_back(drawOf(dateOfDraw(draw), {{"BA", {1, 2, 3, 4, 5}}}));
  a = &world.openOn(rows);
  deleteShown();
  const auto file = backupsOf(archive(), world.shell.clock).front().file;
  std::string bytes = readBytes(file);
  bytes.replace(bytes.size() - 3 * 4096, 4096, std::string(4096, '\x7F'));
  writeBytes(file, bytes);
  enter();
  a->Fg_Copie.clickCell(1, 0);
  for (Button* const button : {&a->Cmd_Ripristina, &a->Cmd_VerificaCopia}) {
    button->press();
    EXPECT_THAT(world.shell.lastBox().text, HasSubstr("il file è danneggiato o troncato"));
  }
  EXPECT_EQ(world.stored().size(), 299u);
  EXPECT_EQ(world.shell.unexpected, 0) << "not even asked";
}

TEST_F(CopiesTab, ARestoreIsAskedForAndCanBeRefused) {
  deleteShown();
  enter();
  a->Fg_Copie.clickCell(1, 0);
  world.shell.answerNo();
  a->Cmd_Ripristina.press();
  EXPECT_EQ(world.shell.lastBox().text,
            "Rimettere al posto dell'archivio la copia del 22/08/2026 10:30 (3 estrazioni, fino al 21/01/1939)?");
  EXPECT_EQ(world.stored().size(), 2u);
  EXPECT_EQ(reasons(), Names{"cancellazione"});
}

TEST_F(CopiesTab, TheRestoredCopyStaysAlsoWhereItIsTheLastOfTheTen) {
  for (int act = 0; act < 10; ++act) {
    world.shell.clock.minute += 1;
    correct(1);
  }
  world.shell.clock.minute += 1;
  deleteShown();
  enter();
  ASSERT_EQ(a->Fg_Copie.dataRows(), 11) << "the first of the month beside the ten";
  restore(10);
  EXPECT_EQ(column(a->Fg_Copie, 1).front(), "ripristino");
  EXPECT_THAT(column(a->Fg_Copie, 4), Contains("uguale"));
  EXPECT_EQ(world.shell.statusTexts.back(),
            "Ripristinata la copia del 22/08/2026 10:32: 3 estrazioni, fino al 21/01/1939");
}

TEST_F(CopiesTab, ARestoreEmptiesTheTableOfUpdates) {
  deleteShown();
  offer("04/02/1939");
  ASSERT_TRUE(a->FgImporta.hasData());
  restore(1);
  EXPECT_FALSE(a->FgImporta.hasData());
}

TEST_F(CopiesTab, ACopyIsVerified) {
  deleteShown();
  enter();
  a->Fg_Copie.clickCell(1, 0);
  a->Cmd_VerificaCopia.press();
  EXPECT_EQ(world.shell.lastBox().icon, Icon::Information);
  EXPECT_EQ(world.shell.lastBox().text,
            "La copia del 22/08/2026 10:30 si lascia leggere per intero: 3 estrazioni, fino al 21/01/1939.");
  Database(backupsOf(archive(), world.shell.clock).front().file, FileKind::Archive)
      .execute("UPDATE EstrazioniLotto SET Ba = '01-01-02-03-04' WHERE DataEstrazione = '1939-01-07'");
  a->Cmd_VerificaCopia.press();
  EXPECT_EQ(world.shell.lastBox().icon, Icon::Exclamation);
  EXPECT_THAT(world.shell.lastBox().text, HasSubstr("Estrazioni che non sono come furono registrate: 1."));
  EXPECT_THAT(world.shell.lastBox().text, HasSubstr("Estrazioni con ruote senza cinque numeri diversi da 1 a 90: 1."));
}

TEST_F(CopiesTab, TheStateIsWrittenWithoutDraws) {
  deleteShown();
  enter();
  const auto file = world.folder / "stato.txt";
  world.shell.answerFile(file);
  a->Cmd_EsportaStato.press();
  const std::string text = readBytes(file);
  EXPECT_THAT(text,
              StartsWith("TRV5 " + std::string(programVersion()) + "\r\nScritto il 22/08/2026 alle 10:30:15\r\n"));
  EXPECT_THAT(text, HasSubstr("Archivio: Archivio.mdb\r\nEstrazioni: 2, dal 07/01/1939 al 14/01/1939\r\n"));
  EXPECT_THAT(text, HasSubstr("  Calendario; in ordine\r\n"));
  EXPECT_THAT(text, HasSubstr("22/08/2026 10:30; cancellazione; 3; 21/01/1939; 1 in più\r\n"));
  EXPECT_THAT(text, testing::Not(HasSubstr("47"))) << "no number of a draw";
  EXPECT_THAT(text, testing::Not(HasSubstr(world.folder.path().string()))) << "no path";
  EXPECT_THAT(world.shell.statusTexts.back(), StartsWith("Scritto \""));
  world.shell.answerCancel();
  a->Cmd_EsportaStato.press();
  EXPECT_EQ(world.shell.unexpected, 0);
}

}  // namespace
}  // namespace trv5
