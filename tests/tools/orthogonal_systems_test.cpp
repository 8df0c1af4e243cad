#include "provision/orthogonal_systems.h"

#include "systems_world.h"

namespace trv5 {
namespace {

TEST(OrthogonalSystemsForm, ListsTheSystemsByTheirNumbersWithKeyAndWidthHidden) {
  const SystemsWorld world;
  EXPECT_EQ(world.form.title(), "Sistemi ortogonali");
  EXPECT_EQ(world.form.helpContext(), 270);
  const Grid& list = world.form.FgSistemi;
  ASSERT_EQ(list.dataRows(), 3);
  EXPECT_EQ(world.row(list, 0), "Cod Denominazione sviluppo");
  EXPECT_EQ(world.row(list, 1), "3 due, con il 90 2");
  EXPECT_EQ(world.row(list, 2), "2 tre numeri 2");
  EXPECT_EQ(world.row(list, 3), "1 nove numeri 3");
  EXPECT_EQ(list.hiddenColumns(), (std::set<int>{1, 3}));
  EXPECT_EQ(list.current(), -1);
}

TEST(OrthogonalSystemsForm, OffersTheNumbers1To90FifteenToARow) {
  const SystemsWorld world;
  const Grid& pad = world.form.Fg99x;
  EXPECT_EQ(pad.rows(), 6);
  EXPECT_EQ(pad.columns(), 15);
  EXPECT_EQ(pad.headingRows(), 0);
  EXPECT_EQ(pad.text(0, 0), "1");
  EXPECT_EQ(pad.text(1, 0), "16");
  EXPECT_EQ(pad.text(5, 14), "90");
}

TEST(OrthogonalSystemsForm, ReloadsTheListAsItStandsInTheDatabase) {
  SystemsWorld world;
  SQLite::Database((world.folder / "DbTRV5.mdb").string(), SQLite::OPEN_READWRITE)
      .exec("INSERT INTO Sist_Ortogonali VALUES (50000, 'quattro', 2, 4)");
  world.form.Command12.press();
  EXPECT_EQ(world.form.FgSistemi.dataRows(), 4);
  world.loadSystem("quattro");
  EXPECT_TRUE(world.shell.shown.empty());
  EXPECT_EQ(world.form.Fg99.dataRows(), 0);
}

TEST(OrthogonalSystemsForm, ADoubleClickShowsTheRowsAndPreparesTheNumbers) {
  SystemsWorld world;
  world.loadSystem("nove numeri");
  EXPECT_EQ(world.form.FgSy.rows(), 100);
  EXPECT_EQ(world.row(world.form.FgSy, 1), "1 1 2 6");
  EXPECT_EQ(world.row(world.form.FgSy, 3), "3 7 8 9");
  EXPECT_EQ(world.row(world.form.FgSy, 4), "");
  EXPECT_EQ(world.form.Fg99.dataRows(), 8) << "4 stands in no row";
  EXPECT_EQ(world.row(world.form.Fg99, 4), "5");
  EXPECT_EQ(world.form.Label20.text(), "0");
  EXPECT_EQ(world.form.fG88.rows(), 1);
  EXPECT_EQ(world.row(world.form.FGSv1, 1).substr(0, 9), "1 3 XX   ");
  EXPECT_EQ(world.form.LblSistema.text(), "nove numeri");
}

TEST(OrthogonalSystemsForm, AnotherSystemTakesThePlaceOfTheOneShown) {
  SystemsWorld world;
  world.loadSystem("nove numeri");
  world.loadSystem("tre numeri");
  EXPECT_EQ(world.row(world.form.FgSy, 1), "1 1 2");
  EXPECT_EQ(world.form.FgSy.text(1, 3), "");
  EXPECT_EQ(world.form.Fg99.dataRows(), 3);
}

TEST(OrthogonalSystemsForm, AnXAtPosition90YieldsTheNumber90) {
  SystemsWorld world;
  world.loadSystem("due, con il 90");
  EXPECT_EQ(world.row(world.form.FgSy, 1), "1 1 90");
  EXPECT_EQ(world.row(world.form.Fg99, 2), "90");
}

TEST(OrthogonalSystemsForm, TwelveNumbersGiveTwelveRowsAndAreGreenAtExactlyTwelvePicks) {
  SystemsWorld world(shippedSystems());
  world.loadSystem("12 numeri in 16 terne (parziale)");
  ASSERT_EQ(world.form.Fg99.dataRows(), 12);
  for (int n = 1; n <= 11; ++n) {
    world.click(n * 7);
    EXPECT_EQ(world.form.Label20.text(), std::to_string(n));
    EXPECT_EQ(world.form.Label20.back(), Giallo);
  }
  world.click(90);
  EXPECT_EQ(world.form.Label20.text(), "12");
  EXPECT_EQ(world.form.Label20.back(), Verde);
}

TEST(OrthogonalSystemsForm, PickingStopsAtTheSystemsCountAndUnpickingTurnsTheLabelYellow) {
  SystemsWorld world;
  world.loadSystem("tre numeri");
  for (const int n : {5, 17, 30}) world.click(n);
  EXPECT_EQ(world.form.Label20.back(), Verde);
  world.click(31);
  EXPECT_FALSE(world.picked(31));
  EXPECT_EQ(world.form.Label20.text(), "3");
  EXPECT_EQ(world.form.Label20.back(), Verde);
  world.click(17);
  EXPECT_FALSE(world.picked(17));
  EXPECT_EQ(world.form.Label20.text(), "2");
  EXPECT_EQ(world.form.Label20.back(), Giallo);
  world.click(31);
  EXPECT_TRUE(world.picked(31));
}

TEST(OrthogonalSystemsForm, WithoutASystemNothingCanBePicked) {
  SystemsWorld world;
  world.click(5);
  EXPECT_FALSE(world.picked(5));
  EXPECT_EQ(world.form.Label20.text(), "0");
}

TEST(OrthogonalSystemsForm, TheSmallestPickReplacesTheSmallestNumberInWhateverOrderTheyWereClicked) {
  SystemsWorld world;
  world.loadSystem("tre numeri");
  for (const int n : {30, 5, 17}) world.click(n);
  world.form.Command36.press();
  EXPECT_EQ(world.row(world.form.Fg99, 1), "1 5");
  EXPECT_EQ(world.row(world.form.Fg99, 2), "2 17");
  EXPECT_EQ(world.row(world.form.Fg99, 3), "3 30");
  ASSERT_EQ(world.form.fG88.dataRows(), 3);
  EXPECT_EQ(world.row(world.form.fG88, 1), "1 5 17");
  EXPECT_EQ(world.row(world.form.fG88, 2), "2 5 30");
  EXPECT_EQ(world.row(world.form.fG88, 3), "3 17 30");
  EXPECT_EQ(world.shell.statusTexts.back(), "SOSTITUISCI: 3 righe con i 3 numeri scelti");
}

TEST(OrthogonalSystemsForm, ReplacingTwiceGivesTheSame) {
  SystemsWorld world;
  world.loadSystem("tre numeri");
  for (const int n : {30, 5, 17}) world.click(n);
  world.form.Command36.press();
  const Grid once = world.form.fG88, numbers = world.form.Fg99;
  world.form.Command36.press();
  EXPECT_EQ(world.form.fG88.grid(), once);
  EXPECT_EQ(world.form.Fg99.grid(), numbers);
}

TEST(OrthogonalSystemsForm, WithoutPicksTheRowsAreAll0) {
  SystemsWorld world;
  world.loadSystem("tre numeri");
  world.form.Command36.press();
  ASSERT_EQ(world.form.fG88.dataRows(), 3);
  for (int row = 1; row <= 3; ++row) EXPECT_EQ(world.row(world.form.fG88, row), std::to_string(row) + " 0 0");
  EXPECT_EQ(world.shell.statusTexts.back(), "SOSTITUISCI: 3 righe, mancano 3 numeri: al loro posto c'è 0");
}

TEST(OrthogonalSystemsForm, FewerPicksThanBeforeLeaveNoOldReplacement) {
  SystemsWorld world;
  world.loadSystem("tre numeri");
  for (const int n : {5, 17, 30}) world.click(n);
  world.form.Command36.press();
  world.click(5);
  world.form.Command36.press();
  EXPECT_EQ(world.row(world.form.Fg99, 1), "1 17");
  EXPECT_EQ(world.row(world.form.Fg99, 3), "3");
  EXPECT_EQ(world.row(world.form.fG88, 2), "2 17 0");
}

TEST(OrthogonalSystemsForm, TheWidthIsThatOfTheSystemSelectedInTheList) {
  SystemsWorld world;
  world.loadSystem("nove numeri");
  world.form.FgSistemi.clickCell(world.rowOf("tre numeri"), 2);
  EXPECT_EQ(world.row(world.form.FgSy, 1), "1 1 2 6") << "a single click loads nothing";
  world.form.Command36.press();
  EXPECT_EQ(world.row(world.form.fG88, 1), "1 0 0");
}

TEST(OrthogonalSystemsForm, WithNothingSelectedNothingIsRewritten) {
  SystemsWorld world;
  world.loadSystem("tre numeri");
  world.click(5);
  world.form.Command12.press();
  EXPECT_EQ(world.form.FgSistemi.current(), -1);
  world.form.Command36.press();
  EXPECT_EQ(world.form.fG88.rows(), 1);
  EXPECT_EQ(world.row(world.form.Fg99, 1), "1 5");
  EXPECT_TRUE(world.shell.shown.empty());
}

TEST(OrthogonalSystemsForm, PreparaResetsPicksAndResult) {
  SystemsWorld world;
  world.loadSystem("tre numeri");
  for (const int n : {5, 17, 30}) world.click(n);
  world.form.Command36.press();
  world.form.Command34.press();
  EXPECT_FALSE(world.picked(5));
  EXPECT_EQ(world.form.Label20.text(), "0");
  EXPECT_EQ(world.form.Label20.back(), Verde) << "the colour stays until the next pick";
  EXPECT_EQ(world.form.fG88.rows(), 1);
  EXPECT_EQ(world.row(world.form.Fg99, 1), "1");
}

TEST(OrthogonalSystemsForm, ADoubleClickOnTheHeadingDoesNothing) {
  SystemsWorld world;
  world.form.FgSistemi.doubleClickCell(0, 2);
  EXPECT_EQ(world.form.FgSy.rows(), 1);
  EXPECT_TRUE(world.shell.shown.empty());
}

TEST(OrthogonalSystemsForm, ThePrintHasItsTitleItsMarginsAndNoFreePlaces) {
  SystemsWorld world;
  world.loadSystem("tre numeri");
  for (const int n : {30, 5, 17}) world.click(n);
  world.form.Command36.press();
  world.form.Command9.press();
  ASSERT_EQ(world.shell.prints.size(), 1U);
  const PrintSetup& setup = world.shell.prints[0].setup;
  EXPECT_EQ(setup.title, "Sviluppo sistema selezionato");
  EXPECT_FALSE(setup.landscape);
  EXPECT_EQ(setup.horizontalMargin, 400);
  EXPECT_EQ(setup.verticalMargin, 400);
  EXPECT_EQ(setup.header, (std::vector<std::string>{"tre numeri", "Numeri: 5, 17, 30"}));
  EXPECT_EQ(world.shell.prints[0].grid.columns(), 3);
  EXPECT_EQ(world.row(world.shell.prints[0].grid, 3), "3 17 30");
}

TEST(OrthogonalSystemsForm, CopiaTabellaHasNoOperation) {
  SystemsWorld world;
  world.shell.clipboardText = "prima";
  world.form.Command44.press();
  EXPECT_FALSE(world.form.Command44.hasEvent());
  EXPECT_EQ(world.shell.clipboardText, "prima");
  EXPECT_EQ(world.form.Command44.caption(), "Copia tabella");
}

TEST(OrthogonalSystemsForm, AClickTellsWhatTheSystemPromises) {
  SystemsWorld world;
  world.form.FgSistemi.clickCell(world.rowOf("tre numeri"), 2);
  EXPECT_EQ(world.form.LblPromessa.text(), "3 numeri, 3 righe, 2 numeri a riga: ogni coppia esattamente una volta.");
  world.loadSystem("nove numeri");
  EXPECT_EQ(world.form.LblPromessa.text(), "8 numeri, 3 righe, 3 numeri a riga: ogni coppia al massimo una volta.");
  world.form.Command12.press();
  EXPECT_EQ(world.form.LblPromessa.text(), "");
}

TEST(OrthogonalSystemsForm, EveryShippedSystemFitsTheGridAndIsRewrittenWithItsOwnNumbers) {
  SystemsWorld world(shippedSystems());
  for (const OrthogonalSystem& system : shippedSystems()) {
    SCOPED_TRACE(system.Denominazione);
    world.loadSystem(system.Denominazione);
    EXPECT_EQ(world.form.Fg99.dataRows(), system.Numeri);
    for (int n = 1; n <= system.Numeri; ++n) world.click(n);
    EXPECT_EQ(world.form.Label20.back(), Verde);
    world.form.Command36.press();
    ASSERT_EQ(world.form.fG88.dataRows(), static_cast<int>(system.rows.size()));
    for (int row = 1; row <= world.form.fG88.dataRows(); ++row)
      EXPECT_EQ(world.row(world.form.fG88, row), world.row(world.form.FgSy, row));
  }
  EXPECT_TRUE(world.shell.shown.empty());
}

}  // namespace
}  // namespace trv5
