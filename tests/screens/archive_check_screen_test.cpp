#include <gtest/gtest.h>

#include "screens/VerificaArchivio.h"
#include "support/left_journal.h"
#include "window_world.h"

namespace trv5 {
namespace {

TEST(ArchiveCheckScreen, TheShellShowsNothingOfAnArchiveThatIsRight) {
  WindowWorld world;
  const ContainerScreen& window = world.proceed();
  EXPECT_TRUE(world.button("Container", "Cmd_Verifica").isHidden());
  EXPECT_EQ(window.findChild<QLabel*>(QStringLiteral("Lbl_Verifica"))->text(), QString());
}

TEST(ArchiveCheckScreen, TheShellSaysWhatIsToBeVerifiedAndItCanBeAccepted) {
  WindowWorld world;
  {
    const OtherProgram other(world.files.folder / "Archivio.mdb",
                             "UPDATE EstrazioniLotto SET Ba = '01-02-03-04-05' WHERE DataEstrazione = '1939-01-07'");
  }
  world.proceed();
  QAbstractButton& verify = world.button("Container", "Cmd_Verifica");
  EXPECT_TRUE(verify.isVisible());
  EXPECT_EQ(verify.text(), QStringLiteral("1 estrazione da verificare"));
  verify.click();
  settle();
  EXPECT_EQ(world.shell.openScreens().back(), "VerificaArchivio");
  world.button("VerificaArchivio", "Cmd_Accetta").click();
  settle();
  EXPECT_TRUE(verify.isHidden());
  EXPECT_EQ(world.shell.openScreens(), std::vector<std::string>{"Container"});
}

}  // namespace
}  // namespace trv5
