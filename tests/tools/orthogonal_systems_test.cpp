#include "tools/orthogonal_systems.h"

#include <SQLiteCpp/Database.h>
#include <gtest/gtest.h>

#include "core/database_files.h"
#include "provision/orthogonal_systems.h"
#include "support/fake_shell.h"
#include "support/temp_folder.h"

namespace trv5 {
namespace {

std::vector<OrthogonalSystem> threeSystems() {
  return {
      {"nove numeri", 3, 9, {{1, 2, 6}, {1, 3, 5}, {7, 8, 9}}},
      {"tre numeri", 2, 3, {{1, 2}, {1, 3}, {2, 3}}},
      {"due, con il 90", 2, 2, {{1, 90}}},
  };
}

struct SystemsWorld {
  /// `damage`: what another program did to the file.
  explicit SystemsWorld(const std::vector<OrthogonalSystem>& systems = threeSystems(), const std::string& damage = "") {
    createMainDatabase(folder / "DbTRV5.mdb", {.parameters = {}, .systems = systems}, Existing::Replace);
    if (!damage.empty()) SQLite::Database((folder / "DbTRV5.mdb").string(), SQLite::OPEN_READWRITE).exec(damage);
    program.openMainDatabase();
    form.load();
  }

  static std::string row(const Grid& grid, int row) {
    std::string text;
    for (int column = 0; column < grid.columns(); ++column)
      if (!grid.text(row, column).empty()) text += (text.empty() ? "" : " ") + grid.text(row, column);
    return text;
  }
  int rowOf(const std::string& name) const {
    for (int row = 1; row < form.FgSistemi.rows(); ++row)
      if (form.FgSistemi.text(row, 2) == name) return row;
    ADD_FAILURE() << name;
    return 0;
  }
  void loadSystem(const std::string& name) { form.FgSistemi.doubleClickCell(rowOf(name), 2); }
  void click(int number) { form.Fg99x.clickCell((number - 1) / 15, (number - 1) % 15); }
  bool picked(int number) const { return form.Fg99x.back((number - 1) / 15, (number - 1) % 15) == Giallo; }

  TempFolder folder;
  FakeShell shell;
  Program program{shell, folder.path(), {}, folder.path()};
  SistemiOrtogonali form{program};
};

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

// Tables as another program may have made them: the names are right, nothing keeps the rows in order.
constexpr const char* kLooseTables =
    "DROP TABLE Sist_OrtoSv; DROP TABLE Sist_Ortogonali;"
    "CREATE TABLE Sist_Ortogonali (IdOrto INTEGER PRIMARY KEY, Denominazione TEXT, sviluppo, Numeri);"
    "CREATE TABLE Sist_OrtoSv (RifOrto INTEGER, NuRiga, Qn, Num TEXT);";

TEST(DamagedSystems, ATextOfAnotherLengthGivesTheNumbersThatItHolds) {
  SystemsWorld world({}, std::string(kLooseTables) +
                             "INSERT INTO Sist_Ortogonali VALUES (1, 'corto', 2, 2);"
                             "INSERT INTO Sist_OrtoSv VALUES (1, 1, 2, 'X X'), (1, 2, 2, ''), (1, 3, 2, 'XX');");
  world.loadSystem("corto");
  EXPECT_TRUE(world.shell.shown.empty());
  EXPECT_EQ(world.row(world.form.FgSy, 1), "1 1 3");
  EXPECT_EQ(world.row(world.form.FgSy, 2), "2");
  world.form.Command36.press();
  EXPECT_EQ(world.form.fG88.dataRows(), 2) << "the row without numbers is left out";
}

TEST(DamagedSystems, AMissingNumIsAnEmptyPlace) {
  SystemsWorld world({}, std::string(kLooseTables) +
                             "INSERT INTO Sist_Ortogonali VALUES (1, 'senza', 2, 2);"
                             "INSERT INTO Sist_OrtoSv VALUES (1, 1, NULL, NULL), (1, NULL, NULL, 'XX');");
  world.loadSystem("senza");
  EXPECT_TRUE(world.shell.shown.empty());
  EXPECT_EQ(world.form.FgSy.text(2, 0), "1");
  EXPECT_EQ(world.row(world.form.FgSy, 1), "1 2") << "no number of its own, then the numbers 1 and 2";
  EXPECT_EQ(world.form.Fg99.dataRows(), 2);
}

TEST(DamagedSystems, AWidthOf0GivesRowsWithoutNumbers) {
  SystemsWorld world({}, std::string(kLooseTables) +
                             "INSERT INTO Sist_Ortogonali VALUES (1, 'zero', 0, 2), (2, 'lettere', 'x', 2),"
                             " (3, 'negativo', -3, 2), (4, 'nullo', NULL, 2);"
                             "INSERT INTO Sist_OrtoSv SELECT IdOrto, 1, 2, 'XX' FROM Sist_Ortogonali;");
  for (const char* const name : {"zero", "lettere", "negativo", "nullo"}) {
    world.loadSystem(name);
    world.form.Command36.press();
    ASSERT_EQ(world.form.fG88.dataRows(), 1) << name;
    EXPECT_EQ(world.row(world.form.fG88, 1), "1") << name;
  }
  EXPECT_TRUE(world.shell.shown.empty());
}

TEST(DamagedSystems, AWidthBeyondTheRowLeavesPlacesEmpty) {
  SystemsWorld world({}, std::string(kLooseTables) +
                             "INSERT INTO Sist_Ortogonali VALUES (1, 'largo', 30000, 2);"
                             "INSERT INTO Sist_OrtoSv VALUES (1, 1, 2, 'XX');");
  world.loadSystem("largo");
  world.form.Command36.press();
  EXPECT_EQ(world.row(world.form.fG88, 1), "1 0 0");
  EXPECT_LE(world.form.fG88.columns(), 91);
}

TEST(DamagedSystems, ARowOf90NumbersIsShownWhole) {
  SystemsWorld world({}, std::string(kLooseTables) +
                             "INSERT INTO Sist_Ortogonali VALUES (1, 'tutti', 90, 90);"
                             "INSERT INTO Sist_OrtoSv VALUES (1, 1, 90, '" +
                             std::string(90, 'X') + "');");
  world.loadSystem("tutti");
  EXPECT_EQ(world.form.FgSy.text(1, 90), "90");
  world.form.Command36.press();
  EXPECT_EQ(world.form.fG88.text(1, 90), "0");
}

TEST(DamagedSystems, AHundredthRowIsAnErrorAfter99RowsAreInAndNothingIsPrepared) {
  std::vector<OrthogonalSystem> systems = threeSystems();
  systems.push_back({"cento righe", 2, 50, std::vector<std::vector<int>>(100, {7, 8})});
  systems.push_back({"novantanove", 2, 51, std::vector<std::vector<int>>(99, {7, 8})});
  SystemsWorld world(systems);
  world.loadSystem("tre numeri");
  world.click(5);
  world.form.Command36.press();
  const Grid numbers = world.form.Fg99, result = world.form.fG88;
  world.loadSystem("cento righe");
  EXPECT_EQ(world.shell.texts(), std::vector<std::string>{"errore"});
  EXPECT_EQ(world.shell.lastBox().title, "Avviso");
  EXPECT_EQ(world.shell.lastBox().icon, Icon::Exclamation);
  EXPECT_EQ(world.row(world.form.FgSy, 99), "99 7 8");
  EXPECT_EQ(world.form.Fg99.grid(), numbers);
  EXPECT_EQ(world.form.fG88.grid(), result);
  EXPECT_TRUE(world.picked(5));
  EXPECT_EQ(world.form.Label20.text(), "1");
  world.loadSystem("novantanove");
  EXPECT_EQ(world.shell.shown.size(), 1U);
  EXPECT_EQ(world.form.Fg99.dataRows(), 2);
}

TEST(DamagedSystems, NumbersOfAnotherSystemThanThePreparedOneStayEmpty) {
  std::vector<OrthogonalSystem> systems = threeSystems();
  systems.push_back({"cento righe", 2, 50, std::vector<std::vector<int>>(100, {2, 8})});
  SystemsWorld world(systems);
  world.loadSystem("tre numeri");
  for (const int n : {5, 17}) world.click(n);
  world.loadSystem("cento righe");
  world.form.Command36.press();
  EXPECT_EQ(world.row(world.form.fG88, 1), "1 17") << "2 became 17, 8 isn't prepared";
}

TEST(DamagedSystems, ATableThatLacksAColumnIsAnError) {
  SystemsWorld world({}, std::string(kLooseTables) +
                             "DROP TABLE Sist_OrtoSv; CREATE TABLE Sist_OrtoSv (RifOrto INTEGER, NuRiga, Qn);"
                             "INSERT INTO Sist_Ortogonali VALUES (1, 'senza colonna', 2, 2);");
  world.form.FgSistemi.clickCell(1, 2);
  EXPECT_TRUE(world.shell.shown.empty());
  world.loadSystem("senza colonna");
  EXPECT_EQ(world.shell.texts(), std::vector<std::string>{"errore"});
  EXPECT_EQ(world.form.FgSy.rows(), 100);
}

TEST(DamagedSystems, ADatabaseWithoutTheTablesSaysSoAtOpening) {
  SystemsWorld world;
  SQLite::Database((world.folder / "DbTRV5.mdb").string(), SQLite::OPEN_READWRITE)
      .exec("DROP TABLE Sist_OrtoSv; DROP TABLE Sist_Ortogonali;");
  world.form.Command12.press();
  EXPECT_EQ(world.shell.shown.size(), 1U);
  EXPECT_NE(world.shell.lastBox().text.find("Sist_Ortogonali"), std::string::npos);
  world.form.FgSistemi.doubleClickCell(1, 2);
  EXPECT_EQ(world.shell.texts().back(), "errore");
}

}  // namespace
}  // namespace trv5
