#include "maintenance/formats_tab.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "maintenance/archivio_world.h"
#include "support/broken_world.h"
#include "support/plain_exchange.h"

namespace trv5 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FormatsTabTest : public testing::Test {
 protected:
  FormatsTabTest() {
    std::mt19937 rng(4);
    world.makeMain({{.Parametro = "PercorsoArchivio", .Valore1 = world.makeArchive(randomRows(rng, 35)).string()},
                    {.Parametro = "EstrazioneIniziale", .Valore1 = "1"},
                    {.Parametro = "IndirizzoInternet", .Valore1 = "http://old/"},
                    {.Parametro = "PercorsoDati.iii"},
                    {.Parametro = "PercorsoRuotafast", .Valore1 = folder.string()}});
    archivio = &world.open();
  }
  Archivio& a() { return *archivio; }
  std::string parameter(const char* name) const {
    return world.program->parameters().Valore1(name).value_or("no such row");
  }
  void dropParameter(const char* name) {
    world.program->mainDatabase().execute(std::string("DELETE FROM ParametriProgramma WHERE Parametro = '") + name +
                                          "'");
  }

  ArchivioWorld world;
  std::filesystem::path folder = world.folder / "BRNT3";
  Archivio* archivio = nullptr;
};

TEST_F(FormatsTabTest, DatiIiiIsWrittenWhereTheUserSaysAndItsPathShown) {
  world.shell.answerFile(world.folder / "Dati.iii");
  world.shell.progressValues.clear();
  a().Command10.press();
  ASSERT_EQ(world.shell.shown.size(), 1U);
  EXPECT_EQ(world.shell.lastBox().folder, world.folder.path());
  EXPECT_EQ(world.shell.lastBox().defaultExtension, "iii");
  EXPECT_EQ(readBytes(world.folder / "Dati.iii"), plainDatiIii(world.program->archive));
  EXPECT_EQ(a().Label13.text(), (world.folder / "Dati.iii").string());
  EXPECT_EQ(parameter("PercorsoDati.iii"), "") << "kept by RENDE PREDEFINITA only";
  EXPECT_EQ(world.shell.progressValues, (std::vector<std::pair<int, int>>{{10, 35}, {20, 35}, {30, 35}}));
  EXPECT_EQ(world.shell.hourglassesShown, 1);
  EXPECT_EQ(world.shell.hourglasses, 0);
}

TEST_F(FormatsTabTest, TheNextDialogStartsAtThePathShown) {
  a().Label13.setText("/somewhere/Dati.iii");
  a().Command10.press();
  EXPECT_EQ(world.shell.lastBox().folder, "/somewhere/Dati.iii");
}

TEST_F(FormatsTabTest, ACancelledDialogIsSilentAndChangesNothing) {
  for (Button* const button : {&a().Command10, &a().Command34}) {
    world.shell.shown.clear();
    world.shell.answerCancel();
    button->press();
    EXPECT_EQ(world.shell.shown.size(), 1U) << "the dialog alone";
  }
  EXPECT_EQ(a().Label13.text(), "");
  EXPECT_EQ(world.shell.hourglasses, 0);
}

TEST_F(FormatsTabTest, AFailureIsSilentKeepsTheOldFileAndGivesThePointerBack) {
  writeBytes(world.folder / "Dati.iii", "old");
  for (Button* const button : {&a().Command10, &a().Command34}) {
    const FullDisk disk(1);
    world.shell.shown.clear();
    world.shell.answerFile(world.folder / "Dati.iii");
    button->press();
    EXPECT_EQ(world.shell.shown.size(), 1U);
    EXPECT_EQ(world.shell.hourglasses, 0);
  }
  EXPECT_EQ(world.shell.hourglassesShown, 2);
  EXPECT_EQ(readBytes(world.folder / "Dati.iii"), "old");
  EXPECT_EQ(a().Label13.text(), "");
}

TEST_F(FormatsTabTest, RuotafastGoesToTheFolderOfTheSettingsWithoutADialog) {
  std::filesystem::create_directory(folder);
  a().Command7.press();
  EXPECT_THAT(world.shell.shown, IsEmpty());
  EXPECT_EQ(readBytes(folder / "DATI32.III"), plainRuotafast(world.program->archive));
  EXPECT_EQ(world.shell.hourglasses, 0);
}

TEST_F(FormatsTabTest, WithoutItsFolderRuotafastIsNotThere) {
  for (const char* setting : {"missing", "empty", "no row"}) {
    SCOPED_TRACE(setting);
    if (setting == std::string("empty")) {
      a().Txt_CartellaRuotafast.set("");
      a().Cmd_Impostazioni.press();
    } else if (setting == std::string("no row")) {
      dropParameter("PercorsoRuotafast");
    }
    world.shell.shown.clear();
    a().Command7.press();
    ASSERT_EQ(world.shell.shown.size(), 1U);
    EXPECT_EQ(world.shell.lastBox().text, "Attenzione Ruotafast non presente.");
    EXPECT_EQ(world.shell.hourglasses, 0);
  }
  EXPECT_FALSE(std::filesystem::exists("DATI32.III"));
}

TEST_F(FormatsTabTest, TheNationalWheelIsWrittenAsText) {
  world.shell.answerFile(world.folder / "nazionale.txt");
  a().Command34.press();
  EXPECT_EQ(world.shell.lastBox().folder, world.folder.path());
  EXPECT_EQ(readBytes(world.folder / "nazionale.txt"), plainNazionale(world.program->archive));
  EXPECT_EQ(a().Label13.text(), "") << "that is the path of the other file";
}

TEST_F(FormatsTabTest, TheBoxOfTheAddedDrawChangesNoFile) {
  a().Check1.set(true);
  world.shell.answerFile(world.folder / "Dati.iii");
  a().Command10.press();
  EXPECT_EQ(readBytes(world.folder / "Dati.iii"), plainDatiIii(world.program->archive));
  EXPECT_EQ(a().Check1.toolTip(), "Nessun file ne tiene conto");
}

TEST_F(FormatsTabTest, DefaultsAreKeptAndLabel5KeepsTheOldAddressUntilTheScreenOpensAgain) {
  EXPECT_EQ(a().Label5.text() + a().Text2.text(), "http://old/http://old/");
  world.shell.clipboardText = "http://new/";
  a().Command16.press();
  a().Command15.press();
  EXPECT_EQ(world.shell.lastBox().text, "Salvataggio effettuato");
  EXPECT_EQ(world.shell.lastBox().title, "Salvataggio");
  EXPECT_EQ(parameter("Indirizzointernet"), "http://new/");
  a().Command5.press();
  EXPECT_THAT(world.shell.addresses, ElementsAre("http://old/"));
  Archivio again(*world.program);
  again.load();
  EXPECT_EQ(again.Label5.text(), "http://new/");
  a().Label13.setText("/somewhere/Dati.iii");
  a().Command35.press();
  EXPECT_EQ(parameter("percorsodati.III"), "/somewhere/Dati.iii");
}

TEST_F(FormatsTabTest, RendePredefinitoOnAMissingRowSaysNothingAndMakesNone) {
  dropParameter("IndirizzoInternet");
  dropParameter("PercorsoDati.iii");
  a().Command15.press();
  a().Command35.press();
  EXPECT_THAT(world.shell.shown, IsEmpty());
  EXPECT_EQ(parameter("IndirizzoInternet") + parameter("PercorsoDati.iii"), "no such rowno such row");
}

TEST_F(FormatsTabTest, ADoubleClickEmptiesTheAddress) {
  a().Text2.doubleClick();
  EXPECT_EQ(a().Text2.text(), "");
}

TEST_F(FormatsTabTest, AnEmptyClipboardIsTakenAndAnAddressOfAMegabyteIsNotKept) {
  a().Command16.press();
  EXPECT_EQ(a().Text2.text(), "");
  world.shell.clipboardText = std::string(1'000'000, 'x');
  a().Command16.press();
  a().Command15.press();
  EXPECT_TRUE(parameter("Indirizzointernet") == "http://old/");
  EXPECT_EQ(world.shell.lastBox().icon, Icon::Critical);
}

TEST_F(FormatsTabTest, SettingsAreKeptAlsoWhereTheDatabaseLacksTheirRows) {
  EXPECT_EQ(a().Txt_CartellaRuotafast.text(), folder.string());
  a().Txt_ServerWeb.set("  http://web ");
  a().Txt_ServerFtp.set("ftp://ftp");
  a().Txt_CartellaRuotafast.set("/elsewhere");
  a().Cmd_Impostazioni.press();
  EXPECT_EQ(parameter("HostWebAggiornamento"), "http://web");
  EXPECT_EQ(parameter("HostFtpAggiornamento"), "ftp://ftp");
  EXPECT_EQ(parameter("PercorsoRuotafast"), "/elsewhere");
  EXPECT_EQ(a().Txt_ServerWeb.text(), "http://web");
  EXPECT_THAT(world.shell.shown, IsEmpty());
}

TEST_F(FormatsTabTest, SettingsOfAReadOnlyDatabaseAreRefusedAsAWhole) {
  {
    const ReadOnlyFolder readOnly(world.folder.path());
    a().Txt_ServerWeb.set("http://web");
    a().Cmd_Impostazioni.press();
  }
  EXPECT_EQ(world.shell.lastBox().icon, Icon::Critical);
  EXPECT_EQ(parameter("HostWebAggiornamento"), "no such row");
}

}  // namespace
}  // namespace trv5
