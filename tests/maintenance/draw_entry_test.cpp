#include "maintenance/draw_entry.h"

#include <gtest/gtest.h>

#include "maintenance/archivio_world.h"

namespace trv5 {
namespace {

using Kind = ShownBox::Kind;

const std::string kFailure = "Attenzione probabilmente hai inserito una data già memorizzata...";

struct DrawEntry : ::testing::Test {
  // The numbers 1 to 55, typed.
  void typeAscending() {
    std::vector<std::string> numbers;
    for (int n = 1; n <= EntryBoxes::kBoxes; ++n) numbers.push_back(std::to_string(n));
    a.Command1.press();
    typeDraw(a, numbers);
  }
  void save(const std::string& date) {
    a.MonthView1.set(date);
    world.shell.answerYes();
    a.Command8.press();
  }
  void correct(int draw) {
    a.HScrestrazione.set(draw);
    typeAscending();
    world.shell.answerYes();
    a.Command3.press();
  }
  void remove(int draw) {
    a.HScrestrazione.set(draw);
    world.shell.answerYes();
    a.Command2.press();
  }
  std::string registered(const std::string& iso) const {
    const Database file(world.program->PercorsoDbArchivio, FileKind::Archive);
    Statement query = file.prepare("SELECT datareg, orareg FROM EstrazioniLotto WHERE DataEstrazione = ?");
    query.bind(1, iso);
    return query.step() ? query.text(0) + " " + query.text(1) : "none";
  }
  void expectShown(int draw, const std::string& date) {
    EXPECT_EQ(a.HScrestrazione.value(), draw);
    EXPECT_EQ(a.pAN_DC.text(), std::to_string(draw));
    EXPECT_EQ(a.LBLESTRAZIONE.text(), date);
  }
  void expectFailed(std::size_t boxes) {
    ASSERT_EQ(world.shell.shown.size(), boxes);
    EXPECT_EQ(world.shell.lastBox().text, kFailure);
    EXPECT_EQ(world.shell.lastBox().title, "Anomalia archivio");
    EXPECT_EQ(world.shell.lastBox().icon, Icon::Critical);
  }

  ArchivioWorld world;
  Archivio& a = world.openOn(threeDraws());
};

TEST_F(DrawEntry, AWholeDrawOfOneDigitNumbersTakesOneHundredAndTenKeys) {
  a.Command1.press();
  EXPECT_EQ(typeDraw(a, std::vector<std::string>(55, "7")), 110);
  EXPECT_EQ(boxesOf(a).substr(0, 8), "07 07 07");
  EXPECT_TRUE(a.txtin[1].hasFocus());
}

TEST_F(DrawEntry, SaveAsksWithTheDateOfTheCalendarWhateverTheBoxesShow) {
  a.MonthView1.set("05/03/1939");
  a.HScrestrazione.set(1);
  a.Command8.press();
  ASSERT_EQ(world.shell.shown.size(), 1u);
  EXPECT_EQ(world.shell.shown[0].kind, Kind::Confirm);
  EXPECT_EQ(world.shell.shown[0].title, "Salvataggio estrazione");
  EXPECT_EQ(world.shell.shown[0].text, "Confermi il salvataggio dell'estrazione del 05/03/1939 ?");
  EXPECT_EQ(world.stored().size(), 3u);  // not confirmed
}

TEST_F(DrawEntry, SaveAddsTheDrawTellsSoAndReloads) {
  typeAscending();
  save("05/03/1939");
  EXPECT_EQ(world.shell.lastBox().text, "Dati salvati correttamente. Ricarico archivio.");
  EXPECT_EQ(world.shell.lastBox().title, "Salvataggio estrazione");
  const std::vector<DrawRow> rows = world.stored();
  ASSERT_EQ(rows.size(), 4u);
  EXPECT_EQ(rows[3].date, "05/03/1939");
  EXPECT_EQ(rows[3].wheels[0], "01-02-03-04-05");
  EXPECT_EQ(rows[3].wheels[10], "51-52-53-54-55");
  EXPECT_EQ(registered("1939-03-05"), "2026-08-22 10:30:15");
  EXPECT_EQ(world.program->archive.NumEstrazioni(), 4);
  EXPECT_EQ(a.HScrestrazione.maximum(), 4);
  expectShown(4, "05/03/1939");
  EXPECT_EQ(a.Label2.text(), "4");
  EXPECT_EQ(a.LBLAGGIORNATO.text(), "05/03/1939");
  EXPECT_EQ(a.FgDB.rows(), 5);
  EXPECT_TRUE(world.program->drawDifferences.empty());
}

TEST_F(DrawEntry, ASavedDrawInTheMiddleLeavesTheScrollerAtTheEnd) {
  typeAscending();
  save("20/01/1939");
  EXPECT_EQ(world.storedDates(), (std::vector<std::string>{"07/01/1939", "14/01/1939", "20/01/1939", "04/02/1939"}));
  expectShown(4, "04/02/1939");
}

TEST_F(DrawEntry, TheReloadRewritesTheShellButForTheCountOfTheModel) {
  save("05/03/1939");
  const Container& shell = world.container();
  EXPECT_EQ(shell.LblInizio.text(), "07/01/1939");
  EXPECT_EQ(shell.Lbl_inizioNE.text(), "1");
  EXPECT_EQ(shell.LblFine.text(), "05/03/1939");
  EXPECT_EQ(shell.Lbl_fineNE.text(), "4");
  EXPECT_EQ(shell.Lbl_Ev.text(), "1");
  EXPECT_EQ(shell.FG5.rows(), 5);
  EXPECT_EQ(world.shell.progressValues.back(), (std::pair{0, 0}));
  EXPECT_EQ(world.shell.statusTexts.back().substr(0, 32), "Archivio caricato: 4 estrazioni;");
}

TEST_F(DrawEntry, ADateThatIsThereShowsTheFailureAndChangesNothing) {
  const std::vector<DrawRow> before = world.stored();
  typeAscending();
  save("14/01/1939");
  expectFailed(2);
  const std::vector<DrawRow> after = world.stored();
  ASSERT_EQ(after.size(), before.size());
  for (std::size_t i = 0; i < after.size(); ++i) EXPECT_EQ(after[i].wheels, before[i].wheels);
  EXPECT_EQ(world.program->archive.NumEstrazioni(), 3);
  EXPECT_EQ(a.txtin[1].text(), "01");  // what was typed isn't lost
}

TEST_F(DrawEntry, RepeatedMissingAndEmptyNumbersAreSavedAsTheyStand) {
  a.Command1.press();
  a.txtin[1].set("12");
  a.txtin[2].set("12");
  a.txtin[3].set("99");
  a.txtin[4].set("00");
  save("05/03/1939");
  const std::vector<DrawRow> rows = world.stored();
  ASSERT_EQ(rows.size(), 4u);
  EXPECT_EQ(rows[3].wheels[0], "12-12-99-00-");
  EXPECT_EQ(rows[3].wheels[1], "----");
  EXPECT_EQ(boxesOf(a).substr(0, 14), "12 12 99 00 00");
}

TEST_F(DrawEntry, TheBoxBeingWrittenIsSavedWithTwoDigits) {
  typeAscending();
  a.txtin[1].key({.text = "7"});
  ASSERT_EQ(a.txtin[1].text(), "7");
  save("05/03/1939");
  EXPECT_EQ(world.stored()[3].wheels[0], "07-02-03-04-05");
}

TEST_F(DrawEntry, SaveAndCorrectionEmptyTheGridOfTheUpdateAndDeletionDoesNot) {
  a.FgImporta.setRows(3);
  save("05/03/1939");
  EXPECT_EQ(a.FgImporta.rows(), 1);
  a.FgImporta.setRows(3);
  correct(4);
  EXPECT_EQ(a.FgImporta.rows(), 1);
  a.FgImporta.setRows(3);
  remove(4);
  EXPECT_EQ(a.FgImporta.rows(), 3);
}

TEST_F(DrawEntry, CorrectionOverwritesTheNumbersOfTheDrawShownAndKeepsItsDate) {
  a.MonthView1.set("05/03/1939");
  correct(2);
  ASSERT_EQ(world.shell.shown.size(), 2u);
  EXPECT_EQ(world.shell.shown[0].title, "Salvataggio estrazione");
  EXPECT_EQ(world.shell.shown[0].text,
            "Confermi la modifica dell'estrazione del 14/01/1939 ?  La modifica è relativa agli estratti e viene "
            "mantenuta la stessa data.");
  EXPECT_EQ(world.shell.shown[1].text, "Modifica effettuata. Ricarico archivio.");
  EXPECT_EQ(world.shell.shown[1].title, "Avviso");
  EXPECT_EQ(world.storedDates(), (std::vector<std::string>{"07/01/1939", "14/01/1939", "04/02/1939"}));
  EXPECT_EQ(world.stored()[1].wheels[0], "01-02-03-04-05");
  EXPECT_EQ(world.stored()[1].wheels[10], "51-52-53-54-55");
  EXPECT_EQ(registered("1939-01-14"), "2026-08-22 10:30:15");
  EXPECT_EQ(world.program->archive.NumeriEstratti(2, 10, 5), 55);
  EXPECT_TRUE(world.program->drawDifferences.empty());
}

TEST_F(DrawEntry, CorrectionGoesBackToItsDrawSetsTheCalendarAndLeavesTheDateTyped) {
  a.MonthView1.set("05/03/1939");
  correct(2);
  expectShown(2, "14/01/1939");
  EXPECT_EQ(a.txtin[55].text(), "55");
  EXPECT_EQ(a.MonthView1.date(), "14/01/1939");
  EXPECT_EQ(a.Text1.text(), "05/03/1939");
}

TEST_F(DrawEntry, CorrectionThatIsNotConfirmedDoesNothing) {
  a.HScrestrazione.set(2);
  a.Command1.press();
  world.shell.answerNo();
  a.Command3.press();
  EXPECT_EQ(world.stored()[1].wheels[0], "01-02-03-04-05");
  EXPECT_EQ(a.txtin[1].text(), "");
}

TEST_F(DrawEntry, CorrectionOfADrawThatHasGoneMeanwhileSaysSoAndLeavesTheTableAlone) {
  a.HScrestrazione.set(2);
  world.program->archiveToWrite().execute("DELETE FROM EstrazioniLotto WHERE DataEstrazione = '1939-01-14'");
  a.FgImporta.setRows(3);
  world.shell.answerYes();
  a.Command3.press();
  EXPECT_EQ(world.shell.lastBox().text, "Elemento non trovato. Possibile anomalia");
  EXPECT_EQ(world.stored().size(), 2u);
  EXPECT_EQ(world.program->archive.NumEstrazioni(), 3);  // not reloaded
  expectShown(2, "14/01/1939");
  EXPECT_EQ(a.MonthView1.date(), "14/01/1939");
  EXPECT_EQ(a.FgImporta.rows(), 1);
}

TEST_F(DrawEntry, DeletingTheLastDrawShortensTheScrollerByOne) {
  remove(3);
  ASSERT_EQ(world.shell.shown.size(), 2u);
  EXPECT_EQ(world.shell.shown[0].title, "Eliminazione record");
  EXPECT_EQ(world.shell.shown[0].text, "Attenzione: sarà eliminata l'estrazione del 04/02/1939.  Confermi ?");
  EXPECT_EQ(world.shell.shown[1].title, "Sistemazione Archivio estrazioni");
  EXPECT_EQ(world.shell.shown[1].text, "Estrazione cancellata. L'archivio verrà ricaricato.");
  EXPECT_EQ(world.storedDates(), (std::vector<std::string>{"07/01/1939", "14/01/1939"}));
  EXPECT_EQ(a.HScrestrazione.maximum(), 2);
  expectShown(2, "14/01/1939");
  EXPECT_EQ(a.txtin[1].text(), "01");
  EXPECT_EQ(world.container().FG5.rows(), 3);
  EXPECT_TRUE(world.program->drawDifferences.empty());
}

TEST_F(DrawEntry, DeletingAnEarlierDrawShowsTheLastOne) {
  remove(1);
  expectShown(2, "04/02/1939");
  EXPECT_EQ(a.txtin[1].text(), "90");
  EXPECT_EQ(world.container().LblInizio.text(), "14/01/1939");
}

TEST_F(DrawEntry, DeletingTheOnlyDrawLeavesAnEmptyScreen) {
  remove(3);
  remove(2);
  remove(1);
  EXPECT_TRUE(world.stored().empty());
  EXPECT_EQ(a.Label2.text(), "0");
  EXPECT_EQ(a.LBLAGGIORNATO.text(), "");
  EXPECT_EQ(a.pAN_DC.text(), "0");
  EXPECT_EQ(a.LBLESTRAZIONE.text(), "");
  EXPECT_EQ(a.txtin[1].text(), "00");
  EXPECT_EQ(a.FgDB.rows(), 1);
  EXPECT_EQ(world.container().Lbl_fineNE.text(), "0");
  // What follows on the empty archive: nothing to delete or to correct, and the next draw can be saved.
  world.shell.shown.clear();
  remove(1);
  EXPECT_EQ(world.shell.shown.size(), 1u);
  correct(1);
  EXPECT_EQ(world.shell.lastBox().text, "Elemento non trovato. Possibile anomalia");
  save("05/03/1939");
  EXPECT_EQ(world.stored().size(), 1u);
  expectShown(1, "05/03/1939");
}

TEST_F(DrawEntry, DeletionThatIsNotConfirmedDoesNothing) {
  a.Command2.press();
  EXPECT_EQ(world.stored().size(), 3u);
}

TEST_F(DrawEntry, DeletionOfADrawThatHasGoneMeanwhileSaysNothing) {
  a.HScrestrazione.set(2);
  world.program->archiveToWrite().execute("DELETE FROM EstrazioniLotto WHERE DataEstrazione = '1939-01-14'");
  world.shell.answerYes();
  a.Command2.press();
  EXPECT_EQ(world.shell.shown.size(), 1u);
  EXPECT_EQ(world.program->archive.NumEstrazioni(), 3);
}

TEST_F(DrawEntry, PasteTakesTheNumbersOfTheClipboardInTheOrderOfTheBoxes) {
  world.shell.clipboardText = "BA 05-71.13\t90\r\n2, 100 91 99 007 x";
  a.Command12.press();
  EXPECT_EQ(boxesOf(a).substr(0, 30), "05 71 13 90 02 . . 99 07 00 00");
  EXPECT_EQ(a.txtin[55].text(), "00");
}

TEST_F(DrawEntry, PasteOfATextWithoutNumbersWritesZeros) {
  a.Command12.press();
  for (int box = 1; box <= EntryBoxes::kBoxes; ++box) EXPECT_EQ(a.txtin[box].text(), "00");
}

TEST_F(DrawEntry, PasteOfAMegabyteTakesItsFirstNumbersAndEmptiesBoxesThatTheyDoNotFit) {
  for (int n = 0; n < 250000; ++n) world.shell.clipboardText += std::to_string(10 + n % 80) + "-\t";
  a.Command12.press();
  for (int box = 1; box <= EntryBoxes::kBoxes; ++box) EXPECT_EQ(a.txtin[box].text(), std::to_string(9 + box));
  world.shell.clipboardText = std::string(1 << 20, '9');
  a.Command12.press();
  EXPECT_EQ(boxesOf(a).substr(0, 7), ". 00 00");
  world.shell.clipboardText = std::string(1 << 20, '\xE8');
  a.Command12.press();
  EXPECT_EQ(boxesOf(a).substr(0, 8), "00 00 00");
}

TEST_F(DrawEntry, TheLastNumberOfThePastedTextCountsWithoutAnythingBehindIt) {
  world.shell.clipboardText = "7";
  a.Command12.press();
  EXPECT_EQ(a.txtin[1].text(), "07");
}

TEST(NumbersInText, AreTheFirstFiftyFiveRunsOfDigits) {
  std::string text;
  for (int n = 1; n <= 80; ++n) text += std::to_string(n) + "-";
  const auto numbers = numbersInText(text);
  for (int n = 1; n <= EntryBoxes::kBoxes; ++n) EXPECT_EQ(numbers[static_cast<std::size_t>(n - 1)], n);
}

TEST(NumbersInText, OfAMegabyteAreReadAsFarAsTheyGo) {
  EXPECT_EQ(numbersInText(std::string(1 << 20, '9'))[0], 1000);
  std::string text(1 << 20, ' ');
  text += "7";
  EXPECT_EQ(numbersInText(text)[0], 7);
  EXPECT_EQ(numbersInText("")[54], 0);
}

}  // namespace
}  // namespace trv5
