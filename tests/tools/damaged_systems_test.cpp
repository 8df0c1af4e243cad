// Tables of systems that aren't as they should be: an error or an empty place, never a crash.
#include "systems_world.h"

namespace trv5 {
namespace {

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
