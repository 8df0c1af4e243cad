#include "maintenance/archivio.h"

#include <gtest/gtest.h>

#include "maintenance/archivio_world.h"

namespace trv5 {
namespace {

TEST(ArchivioOpening, ShowsTheLastDrawAndTheStateOfTheArchive) {
  ArchivioWorld world;
  const Archivio& a = world.openOn(threeDraws());
  EXPECT_EQ(a.SSTab1.index(), Archivio::kGestione);
  EXPECT_EQ(a.Label2.text(), "3");
  EXPECT_EQ(a.LBLAGGIORNATO.text(), "04/02/1939");
  EXPECT_EQ(a.pAN_DC.text(), "3");
  EXPECT_EQ(a.LBLESTRAZIONE.text(), "04/02/1939");
  EXPECT_EQ(a.LabelPM.text(), "1");
  EXPECT_EQ(a.LabelPA.text(), "3");
  EXPECT_EQ(a.HScrestrazione.minimum(), 1);
  EXPECT_EQ(a.HScrestrazione.maximum(), 3);
  EXPECT_EQ(a.HScrestrazione.value(), 3);
  EXPECT_EQ(a.txtin[1].text(), "90");
  EXPECT_EQ(a.txtin[6].text(), "00");
  EXPECT_EQ(a.Lbl_Controllo.text(), "");
}

TEST(ArchivioOpening, ListsTheWholeArchive) {
  ArchivioWorld world;
  const Archivio& a = world.openOn(threeDraws());
  EXPECT_EQ(a.FgDB.rows(), 4);
  EXPECT_EQ(a.FgDB.text(2, 1), "14/01/1939");
  EXPECT_EQ(a.FgDB.text(2, 2), "01-02-03-04-05");
  EXPECT_EQ(a.FgDB.text(2, 12), "06-07-08-09-10");
  EXPECT_EQ(a.FgDB.text(3, 12), "");
  EXPECT_EQ(a.Label9.text(), "3");
}

TEST(ArchivioOpening, SetsCalendarAndDateToTodayAndTheLastYear) {
  ArchivioWorld world;
  const Archivio& a = world.openOn(threeDraws());
  EXPECT_EQ(a.MonthView1.date(), "22/08/2026");
  EXPECT_EQ(a.Text1.text(), "22/08/2026");
  ASSERT_EQ(a.Combo1.items().size(), 88u);
  EXPECT_EQ(a.Combo1.items().front(), "1939");
  EXPECT_EQ(a.Combo1.text(), "2026");
  EXPECT_EQ(a.Fg1.rows(), 1);  // no draw in 2026
}

TEST(ArchivioOpening, ShowsAddressAndPathOfTheParameters) {
  ArchivioWorld world;
  world.makeMain({{.Parametro = "PercorsoArchivio", .Valore1 = world.makeArchive(threeDraws()).string()},
                  {.Parametro = "EstrazioneIniziale", .Valore1 = "2"},
                  {.Parametro = "indirizzoInternet", .Valore1 = "https://example.org/"},
                  {.Parametro = "PercorsoDati.iii", .Valore1 = "/tmp/Dati.iii"}});
  const Archivio& a = world.open();
  EXPECT_EQ(a.Label5.text(), "https://example.org/");
  EXPECT_EQ(a.Text2.text(), "https://example.org/");
  EXPECT_EQ(a.Label13.text(), "/tmp/Dati.iii");
}

TEST(ArchivioOpening, WritesFirstDrawAndLastIntoTheShell) {
  ArchivioWorld world;
  world.makeMain({{.Parametro = "PercorsoArchivio", .Valore1 = world.makeArchive(threeDraws()).string()},
                  {.Parametro = "EstrazioneIniziale", .Valore1 = "2"}});
  world.open();
  const Container& shell = world.container();
  EXPECT_EQ(shell.LblInizio.text(), "07/01/1939");
  EXPECT_EQ(shell.Lbl_inizioNE.text(), "1");
  EXPECT_EQ(shell.LblFine.text(), "04/02/1939");
  EXPECT_EQ(shell.Lbl_fineNE.text(), "3");
  EXPECT_EQ(shell.Lbl_Ev.text(), "2");  // the model archive, as it was counted at the start
}

TEST(ArchivioOpening, OnAnArchiveThatHasGoneTellsSoAndShowsTheDrawsInMemory) {
  ArchivioWorld world;
  world.makeBoth(threeDraws());
  world.startAndProceed();
  world.shell.shown.clear();
  std::filesystem::remove(world.folder / "Archivio.mdb");
  const auto& a = static_cast<Archivio&>(world.shell.show("archivio"));
  ASSERT_EQ(world.shell.shown.size(), 1u);
  EXPECT_EQ(world.shell.shown[0].icon, Icon::Critical);
  EXPECT_EQ(a.LBLESTRAZIONE.text(), "04/02/1939");
  EXPECT_EQ(a.Text1.text(), "22/08/2026");
  EXPECT_EQ(a.FgDB.rows(), 1);
}

TEST(ArchivioHelp, EachButtonOpensItsPage) {
  ArchivioWorld world;
  Archivio& a = world.openOn(threeDraws());
  EXPECT_EQ(a.helpContext(), 230);
  for (Button* const button : {&a.Command25, &a.Command23, &a.Command22, &a.CmDHelp}) button->press();
  EXPECT_EQ(world.shell.helpContexts, (std::vector<int>{260, 250, 240, 230}));
  EXPECT_EQ(a.helpContext(), 230);
}

TEST(ShowingADraw, FollowsTheScroller) {
  ArchivioWorld world;
  Archivio& a = world.openOn(threeDraws());
  a.HScrestrazione.set(2);
  EXPECT_EQ(a.pAN_DC.text(), "2");
  EXPECT_EQ(a.LBLESTRAZIONE.text(), "14/01/1939");
  EXPECT_EQ(a.LabelPM.text(), "2");
  EXPECT_EQ(a.LabelPA.text(), "2");
  EXPECT_EQ(a.txtin[5].text(), "05");
  EXPECT_EQ(a.txtin[55].text(), "10");
  EXPECT_EQ(a.Text1.text(), "22/08/2026");
}

TEST(ShowingADraw, OfATimeWithoutNationalWheelWritesZerosIntoItsBoxes) {
  ArchivioWorld world;
  Archivio& a = world.openOn(threeDraws());
  a.HScrestrazione.set(2);
  a.HScrestrazione.set(1);
  for (int box = 51; box <= 55; ++box) EXPECT_EQ(a.txtin[box].text(), "00");
}

TEST(ShowingADraw, EmptiesTheBoxesOfTheRegionalWheelsOnly) {
  ArchivioWorld world;
  Archivio& a = world.openOn(threeDraws());
  a.HScrestrazione.set(2);
  std::string seen50, seen51;
  a.txtin[50].set("12");
  a.txtin[51].set("12");
  a.txtin[50].setListener([&] { seen50 += "[" + a.txtin[50].text() + "]"; });
  a.txtin[51].setListener([&] { seen51 += "[" + a.txtin[51].text() + "]"; });
  a.HScrestrazione.set(1);
  EXPECT_EQ(seen50, "[][00]");
  EXPECT_EQ(seen51, "[00]");
}

TEST(ShowingADraw, WithNumbersAboveNinetyShowsNinetyNineAndLeavesTheOthersEmpty) {
  ArchivioWorld world;
  std::vector<DrawRow> rows = threeDraws();
  rows[2].wheels[0] = "91-99-95-90-00";
  const Archivio& a = world.openOn(rows);
  EXPECT_EQ(boxesOf(a).substr(0, 12), ". 99 . 90 00");
}

TEST(TheRemark, StandsWhileTheBoxesAreWrittenAndGoesWithTheNextDraw) {
  ArchivioWorld world;
  Archivio& a = world.openOn(threeDraws());
  a.Command1.press();
  EXPECT_EQ(a.Lbl_Controllo.text(), "mancano 50 numeri");
  a.HScrestrazione.set(1);
  EXPECT_EQ(a.Lbl_Controllo.text(), "");
}

TEST(TheList, AClickPaintsItsRowYellowAndTheRestWhite) {
  ArchivioWorld world;
  Archivio& a = world.openOn(threeDraws());
  a.FgDB.clickCell(1, 4);
  a.FgDB.clickCell(3, 2);
  for (int column = 0; column < a.FgDB.columns(); ++column) {
    EXPECT_EQ(a.FgDB.back(1, column), kWhite);
    EXPECT_EQ(a.FgDB.back(3, column), Giallo);
  }
  a.FgDB.clickCell(0, 2);
  EXPECT_EQ(a.FgDB.back(3, 1), Giallo);
}

TEST(TheList, SelezioneEstrazioneTakesTheRowAsTheDrawShown) {
  ArchivioWorld world;
  Archivio& a = world.openOn(threeDraws());
  a.SSTab1.set(Archivio::kElenco);
  a.FgDB.clickCell(2, 4);
  a.Command11.press();
  EXPECT_EQ(a.HScrestrazione.value(), 2);
  EXPECT_EQ(a.LBLESTRAZIONE.text(), "14/01/1939");
  EXPECT_EQ(a.MonthView1.date(), "14/01/1939");
  EXPECT_EQ(a.Text1.text(), "14/01/1939");
  EXPECT_EQ(a.SSTab1.index(), Archivio::kGestione);
}

TEST(TheList, EnterTakesTheRowToo) {
  ArchivioWorld world;
  Archivio& a = world.openOn(threeDraws());
  a.SSTab1.set(Archivio::kElenco);
  a.FgDB.setCurrent(1, 1);
  EXPECT_TRUE(a.FgDB.offerKey({.code = Key::Code::Enter}));
  EXPECT_EQ(a.LBLESTRAZIONE.text(), "07/01/1939");
}

TEST(TheList, GoesToItsFirstAndItsLastRow) {
  ArchivioWorld world;
  Archivio& a = world.openOn(threeDraws());
  a.Command13.press();
  EXPECT_EQ(a.FgDB.topRow(), 3);
  a.Command14.press();
  EXPECT_EQ(a.FgDB.topRow(), 1);
  EXPECT_EQ(a.HScrestrazione.value(), 3);
}

TEST(TheList, WithoutASelectedRowNothingIsTaken) {
  ArchivioWorld world;
  Archivio& a = world.openOn(threeDraws());
  a.SSTab1.set(Archivio::kElenco);
  a.Command11.press();
  EXPECT_EQ(a.SSTab1.index(), Archivio::kElenco);
  EXPECT_EQ(a.HScrestrazione.value(), 3);
}

TEST(CollegaAlSito, OpensTheAddressOfTheOpening) {
  ArchivioWorld world;
  Archivio& a = world.openOn(threeDraws());
  a.Text2.set("https://example.org/altro");
  a.Command5.press();
  EXPECT_EQ(world.shell.addresses, (std::vector<std::string>{"https://example.org/estrazioni.txt"}));
}

}  // namespace
}  // namespace trv5
