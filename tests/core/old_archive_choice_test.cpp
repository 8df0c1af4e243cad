#include <gtest/gtest.h>

#include "core/errors.h"
#include "support/program_world.h"

namespace trv5 {
namespace {

// The choice of an archive on the start screen, where files named "old.mdb" are in the format of older installations.
class OldArchiveChoice : public testing::Test {
 protected:
  OldArchiveChoice() {
    world.makeMainFor({});
    world.shell.answerCancel();
    inizio = &world.start();
    world.program->oldFiles = {
        .recognised = [](const std::filesystem::path& file) { return file.filename() == "old.mdb"; },
        .convertArchive =
            [this](const std::filesystem::path& from, const std::filesystem::path& to) {
              converted.emplace_back(from, to);
              if (fails) throw UserError("Il file è danneggiato.");
              createArchive(to, {drawOf("07/01/1939", {{"BA", {58, 22, 47, 49, 69}}})}, Existing::Replace);
              return OldFiles::Outcome{"archivio con una estrazione", notes};
            },
    };
    world.shell.shown.clear();
  }
  std::string stored() { return world.program->parameters().Valore1("PercorsoArchivio").value_or("(nessuno)"); }

  ProgramWorld world;
  Inizio* inizio = nullptr;
  const std::filesystem::path old = world.folder / "old.mdb", fresh = world.folder / "fresh.mdb";
  std::vector<std::pair<std::filesystem::path, std::filesystem::path>> converted;
  std::string notes;
  bool fails = false;
};

TEST_F(OldArchiveChoice, OffersToReadItIntoANewArchiveWhichIsTheOneChosen) {
  world.shell.answerFile(old);
  world.shell.answerYes();
  world.shell.answerFile(fresh);
  inizio->Command4.press();
  ASSERT_EQ(world.shell.shown.size(), 3u);
  EXPECT_EQ(world.shell.shown[1].kind, ShownBox::Kind::Confirm);
  EXPECT_EQ(world.shell.shown[2].kind, ShownBox::Kind::Save);
  EXPECT_EQ(converted.size(), 1u);
  EXPECT_EQ(stored(), fresh.string());
  EXPECT_EQ(inizio->Lbl_Archivio.text(), "Database: " + fresh.string());
  inizio->Command2.press();
  EXPECT_EQ(world.program->archive.NumEstrazioni(), 1);
}

TEST_F(OldArchiveChoice, TellsWhatTheUserShouldLookAt) {
  notes = "Ruote da controllare, riprese come sono:\n  07/01/1939, Bari: \"5-6\"\n";
  world.shell.answerFile(old);
  world.shell.answerYes();
  world.shell.answerFile(fresh);
  inizio->Command4.press();
  EXPECT_EQ(world.shell.lastBox().icon, Icon::Information);
  EXPECT_EQ(world.shell.reasons.back(), notes);
}

TEST_F(OldArchiveChoice, ChangesNothingWhenTheNewFileIsCancelledOrTheReadingFails) {
  world.shell.answerFile(old);
  world.shell.answerYes();
  world.shell.answerCancel();
  inizio->Command4.press();
  EXPECT_EQ(stored(), "");
  EXPECT_TRUE(converted.empty());

  fails = true;
  world.shell.answerFile(old);
  world.shell.answerYes();
  world.shell.answerFile(fresh);
  inizio->Command4.press();
  EXPECT_EQ(world.shell.lastBox().text, "Il file è danneggiato.");
  EXPECT_EQ(stored(), "");
  EXPECT_EQ(world.shell.hourglasses, 0);
}

TEST_F(OldArchiveChoice, TakesTheFileAsItIsWhenTheUserWantsSo) {
  world.shell.answerFile(old);
  world.shell.answerNo();
  inizio->Command4.press();
  EXPECT_EQ(stored(), old.string());
  EXPECT_TRUE(converted.empty());
}

TEST_F(OldArchiveChoice, AsksNothingForAnyOtherFile) {
  world.shell.answerFile(fresh);
  inizio->Command4.press();
  EXPECT_EQ(world.shell.shown.size(), 1u);
  EXPECT_EQ(stored(), fresh.string());
}

}  // namespace
}  // namespace trv5
