#include <gtest/gtest.h>

#include "maintenance/copies_world.h"
#include "support/broken_world.h"

namespace trv5 {
namespace {

using CopyFirst = CopiesWorld;

TEST_F(CopyFirst, AnActThatIsCancelledOrWritesNothingCopiesNothing) {
  world.shell.answerNo();
  a->Command2.press();
  a->FgImporta.appendRow();
  a->Command28.press();
  EXPECT_EQ(reasons(), Names());
}

TEST_F(CopyFirst, WithoutACopyTheActIsDoneOnlyWhereTheUserWantsIt) {
  writeBytes(folder(), "a file where the folder should be");
  const std::string before = stored();
  const std::vector<std::function<void()>> acts = {[this] { save("28/01/1939"); }, [this] { correct(2); },
                                                   [this] { deleteShown(); }, [this] { update("04/02/1939"); }};
  for (const auto& act : acts) {
    act();
    EXPECT_EQ(world.shell.lastBox().kind, ShownBox::Kind::Confirm);
    EXPECT_EQ(world.shell.lastBox().text,
              "Non è stato possibile fare prima una copia dell'archivio. Proseguire senza?");
    EXPECT_EQ(world.shell.statusTexts.back(), "L'archivio è rimasto com'era: manca la copia da fare prima");
    EXPECT_EQ(stored(), before);
  }
  EXPECT_EQ(world.shell.unexpected, 4) << "the question of each, cancelled";
  world.shell.answerYes();
  world.shell.answerYes();
  a->Command2.press();
  EXPECT_EQ(world.stored().size(), 2u);
}

TEST_F(CopyFirst, AFullDiskAndAReadOnlyFolderAreToldAndNothingIsLost) {
  deleteShown();  // makes the folder
  const std::string before = stored();
  world.shell.clock.minute += 1;
  {
    const FullDisk full(8192);
    deleteShown();
    EXPECT_EQ(world.shell.lastBox().kind, ShownBox::Kind::Confirm);
  }
  {
    // Who may write the archive may not write the copies.
    std::filesystem::permissions(world.folder.path(), std::filesystem::perms::all);
    std::filesystem::permissions(archive(), std::filesystem::perms::all);
    const ReadOnlyFolder readOnly(folder());
    deleteShown();
    EXPECT_EQ(world.shell.lastBox().kind, ShownBox::Kind::Confirm);
  }
  EXPECT_EQ(stored(), before);
  EXPECT_EQ(reasons(), Names{"cancellazione"});
  deleteShown();
  EXPECT_EQ(world.stored().size(), 1u);
}

}  // namespace
}  // namespace trv5
