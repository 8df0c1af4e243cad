#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/container.h"
#include "core/verifica_archivio.h"
#include "maintenance/copies_world.h"

namespace trv5 {
namespace {

using testing::HasSubstr;

constexpr const char* kForeign = "UPDATE EstrazioniLotto SET Ba = '45-46-01-02-03' WHERE DataEstrazione = '1939-01-14'";

class CheckTab : public CopiesWorld {
 protected:
  void check() {
    enter();
    a->Cmd_VerificaArchivio.press();
  }
  // What the list says, without the checks that found nothing.
  Names found() {
    Names all;
    for (int row = 1; row < a->Fg_Controllo.rows(); ++row)
      if (a->Fg_Controllo.text(row, 3) != "in ordine")
        all.push_back(a->Fg_Controllo.text(row, 1) + "|" + a->Fg_Controllo.text(row, 2) + "|" +
                      a->Fg_Controllo.text(row, 3));
    return all;
  }
  std::string status() { return world.shell.statusTexts.back(); }
};

TEST_F(CheckTab, ListsEachKindInOrder) {
  check();
  EXPECT_EQ(column(a->Fg_Controllo, 0),
            (Names{"Integrità", "Somme di controllo", "Testi delle ruote", "Date", "Numeri ripetuti", "Calendario"}));
  EXPECT_EQ(column(a->Fg_Controllo, 3), Names(6, "in ordine"));
  EXPECT_EQ(status(), "Verifica archivio: niente da guardare");
  EXPECT_THAT(a->Lbl_EsitoControllo.text(), HasSubstr("3 estrazioni controllate in 0,"));
}

TEST_F(CheckTab, SaysWhyACommandCannotBeUsed) {
  EXPECT_FALSE(a->Cmd_Accetta.enabled());
  EXPECT_EQ(a->Cmd_Accetta.toolTip(), "Prima premi Verifica archivio");
  EXPECT_EQ(a->Cmd_RipristinaEstrazione.toolTip(), "Prima premi Verifica archivio");
  check();
  EXPECT_FALSE(a->Cmd_Accetta.enabled());
  EXPECT_EQ(a->Cmd_Accetta.toolTip(), "Le somme di controllo sono in ordine: non c'è niente da accettare");
  EXPECT_EQ(a->Cmd_RipristinaEstrazione.toolTip(), "Prima scegli una riga del controllo");
  a->Fg_Controllo.moveTo(2, 0);
  EXPECT_FALSE(a->Cmd_RipristinaEstrazione.enabled());
  EXPECT_EQ(a->Cmd_RipristinaEstrazione.toolTip(), "Nessuna copia può rimettere a posto questa riga");
}

TEST_F(CheckTab, ARowShowsItsDraw) {
  writeOutside("UPDATE EstrazioniLotto SET Ba = '45-45-01-02-03' WHERE DataEstrazione = '1939-01-14'");
  check();
  EXPECT_EQ(found(), (Names{"2|14/01/1939|cambiata fuori dal programma", "2|14/01/1939|BA: 45 due volte"}));
  EXPECT_TRUE(a->Fg_Controllo.at(2, 0).bold);
  EXPECT_FALSE(a->Fg_Controllo.at(1, 0).bold);
  EXPECT_EQ(status(), "Verifica archivio: 2 da guardare");
  a->Fg_Controllo.clickCell(1, 0);
  EXPECT_EQ(a->SSTab1.index(), Archivio::kCopie) << "nothing to show";
  a->Fg_Controllo.clickCell(5, 0);
  EXPECT_EQ(a->SSTab1.index(), Archivio::kGestione);
  EXPECT_EQ(a->LBLESTRAZIONE.text(), "14/01/1939");
  EXPECT_EQ(a->txtin[1].text(), "45") << "as it stands in the file";
  a->SSTab1.set(Archivio::kCopie);
  a->Fg_Controllo.doubleClickCell(2, 0);
  EXPECT_EQ(a->SSTab1.index(), Archivio::kGestione) << "Enter does the same";
}

TEST_F(CheckTab, ADrawThatIsGoneIsNotShown) {
  writeOutside("DELETE FROM EstrazioniLotto WHERE DataEstrazione = '1939-01-14'");
  check();
  EXPECT_EQ(found(), (Names{"|14/01/1939|tolta fuori dal programma", "2|21/01/1939|manca sabato 14/01/1939"}));
  a->Fg_Controllo.clickCell(2, 0);
  EXPECT_EQ(a->SSTab1.index(), Archivio::kCopie);
  EXPECT_EQ(status(), "L'estrazione del 14/01/1939 non è nell'archivio");
}

TEST_F(CheckTab, WhatAnotherProgramWroteIsReadUnderAllScreens) {
  writeOutside("DELETE FROM EstrazioniLotto WHERE DataEstrazione = '1939-01-14'");
  EXPECT_EQ(world.program->archive.NumEstrazioni(), 3);
  check();
  EXPECT_EQ(world.program->archive.NumEstrazioni(), 2);
  EXPECT_EQ(world.container().Cmd_Verifica.caption(), "1 estrazione da verificare");
  EXPECT_EQ(world.container().Lbl_Verifica.text(), "") << "the user has just seen it";
}

TEST_F(CheckTab, WhatAnotherProgramWroteIsMendedFromACopy) {
  correct(1);  // leaves a copy
  const std::string before = world.stored()[1].wheels[0];
  writeOutside(kForeign);
  check();
  EXPECT_EQ(found(), Names{"2|14/01/1939|BA cambiata fuori dal programma"}) << "the wheel, as the copy tells it";
  EXPECT_TRUE(a->Cmd_Accetta.enabled());
  EXPECT_FALSE(a->Cmd_RipristinaEstrazione.enabled());
  a->Fg_Controllo.moveTo(2, 0);
  ASSERT_TRUE(a->Cmd_RipristinaEstrazione.enabled());
  world.shell.clock.minute += 1;
  world.shell.answerNo();
  a->Cmd_RipristinaEstrazione.press();
  EXPECT_NE(world.stored()[1].wheels[0], before);
  world.shell.answerYes();
  a->Cmd_RipristinaEstrazione.press();
  EXPECT_EQ(world.stored()[1].wheels[0], before);
  EXPECT_EQ(found(), Names());
  EXPECT_FALSE(a->Cmd_RipristinaEstrazione.enabled());
  EXPECT_EQ(status(), "Ripresa dalla copia l'estrazione del 14/01/1939");
  EXPECT_EQ(reasons(), (Names{"ripristino", "correzione"}));
  EXPECT_EQ(a->Fg_Copie.dataRows(), 2) << "the list of copies follows";
  EXPECT_EQ(world.container().Cmd_Verifica.caption(), "");
}

TEST_F(CheckTab, ADrawThatAnotherProgramTookOutComesBack) {
  correct(1);
  writeOutside("DELETE FROM EstrazioniLotto WHERE DataEstrazione = '1939-01-14'");
  check();
  a->Fg_Controllo.moveTo(2, 0);
  world.shell.answerYes();
  a->Cmd_RipristinaEstrazione.press();
  EXPECT_EQ(world.storedDates(), (Names{"07/01/1939", "14/01/1939", "21/01/1939"}));
  EXPECT_EQ(found(), Names());
}

TEST_F(CheckTab, WhatAnotherProgramWroteIsAccepted) {
  writeOutside(kForeign);
  check();
  a->Cmd_Accetta.press();
  EXPECT_EQ(found(), Names());
  EXPECT_FALSE(a->Cmd_Accetta.enabled());
  EXPECT_EQ(status(), "Le estrazioni sono state accettate come stanno nell'archivio");
  EXPECT_EQ(world.stored()[1].wheels[0], "45-46-01-02-03");
  EXPECT_EQ(world.container().Cmd_Verifica.caption(), "");
}

TEST_F(CheckTab, WhatTheUserHasNotSeenIsNotAccepted) {
  writeOutside(kForeign);
  check();
  writeOutside("UPDATE EstrazioniLotto SET Ro = '45-46-01-02-03' WHERE DataEstrazione = '1939-01-07'");
  a->Cmd_Accetta.press();
  EXPECT_THAT(world.shell.lastBox().text, HasSubstr("guardare di nuovo l'elenco"));
  EXPECT_EQ(world.container().Cmd_Verifica.caption(), "2 estrazioni da verificare");
}

TEST_F(CheckTab, LooksAgainWhenDrawsHaveChangedMeanwhile) {
  writeOutside("UPDATE EstrazioniLotto SET Ba = '45-45-01-02-03' WHERE DataEstrazione = '1939-01-14'");
  check();
  a->Fg_Controllo.clickCell(2, 0);
  a->txtin[2].set("46");
  world.shell.answerYes();
  a->Command3.press();
  a->SSTab1.set(Archivio::kCopie);
  EXPECT_EQ(found(), Names());
}

TEST_F(CheckTab, ADamagedArchiveIsToldAndItsCopiesAreThere) {
  std::vector<DrawRow> rows;
  for (int draw = 1; draw <= 300; ++draw) rows.push_back(drawOf(dateOfDraw(draw), {{"BA", {1, 2, 3, 4, 5}}}));
  a = &world.openOn(rows);
  deleteShown();
  const std::string good = readBytes(archive());
  std::string bytes = good;
  bytes.replace(bytes.size() - 3 * 4096, 4096, std::string(4096, '\x7F'));
  writeBytes(archive(), bytes);
  writeOutside("PRAGMA user_version = 1");  // so that who holds it open reads it again
  check();
  EXPECT_EQ(found().front(), "||il file è danneggiato: ripristina una copia");
  EXPECT_EQ(column(a->Fg_Controllo, 3).back(), "non si può dire");
  a->Fg_Copie.clickCell(1, 0);
  world.shell.clock.minute += 1;
  world.shell.answerYes();
  a->Cmd_Ripristina.press();
  EXPECT_EQ(world.shell.lastBox().kind, ShownBox::Kind::Confirm) << "of what is damaged there is no copy";
  world.shell.answerYes();
  world.shell.answerYes();
  a->Cmd_Ripristina.press();
  EXPECT_EQ(world.stored().size(), 300u);
  EXPECT_EQ(world.program->archive.NumEstrazioni(), 300);
}

TEST_F(CheckTab, TheTableIsCopied) {
  check();
  a->Copia_Fg_Controllo.press();
  EXPECT_THAT(world.shell.clipboardText, HasSubstr("Integrità\t\t\tin ordine\r\n"));
  EXPECT_EQ(status(), "Tabella copiata: 6 righe");
}

}  // namespace
}  // namespace trv5
