#include <gtest/gtest.h>

#include "maintenance/archivio_world.h"
#include "support/broken_world.h"

namespace trv5 {
namespace {

std::vector<DrawRow> twoDraws() {
  return {drawOf("07/01/1939", {{"BA", {58, 22, 47, 49, 69}}}), drawOf("14/01/1939", {{"BA", {1, 2, 3, 4, 5}}})};
}

// Each of the three writing operations in a world where nothing can be written.
struct BrokenDrawEntry : ::testing::Test {
  void save() {
    a->MonthView1.set("05/03/1939");
    world.shell.answerYes();
    a->Command8.press();
  }
  void correct() {
    world.shell.answerYes();
    a->Command3.press();
  }
  void remove() {
    world.shell.answerYes();
    a->Command2.press();
  }
  void expectFailureBox() {
    EXPECT_EQ(world.shell.lastBox().text, "Attenzione probabilmente hai inserito una data già memorizzata...");
    EXPECT_EQ(world.shell.lastBox().title, "Anomalia archivio");
    EXPECT_EQ(world.shell.lastBox().icon, Icon::Critical);
    EXPECT_FALSE(world.shell.reasons.empty() || world.shell.reasons.back().empty());
  }
  // One of the fixed box for save and correction, the error's own for the deletion; nothing is reloaded.
  void expectAllRefused() {
    save();
    expectFailureBox();
    correct();
    expectFailureBox();
    const std::size_t before = world.shell.shown.size();
    remove();
    ASSERT_EQ(world.shell.shown.size(), before + 2);
    EXPECT_EQ(world.shell.lastBox().icon, Icon::Critical);
    EXPECT_NE(world.shell.lastBox().title, "Anomalia archivio");
    EXPECT_EQ(world.program->archive.NumEstrazioni(), 2);
    EXPECT_EQ(a->LBLESTRAZIONE.text(), "14/01/1939");
    EXPECT_EQ(world.shell.unexpected, 0);
  }
  void expectUntouched() {
    const std::vector<DrawRow> rows = world.stored();
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[1].wheels[0], "01-02-03-04-05");
  }

  ArchivioWorld world;
  Archivio* a = nullptr;
};

TEST_F(BrokenDrawEntry, AnArchiveThatIsReadOnlyRefusesAndStaysAsItWas) {
  world.makeBoth(twoDraws());
  {
    const ReadOnlyFolder readOnly(world.folder.path());
    a = &world.open();
    expectAllRefused();
  }
  expectUntouched();
}

TEST_F(BrokenDrawEntry, AnArchiveThatHasGoneMeanwhileRefuses) {
  a = &world.openOn(twoDraws());
  std::filesystem::remove(world.folder / "Archivio.mdb");
  expectAllRefused();
  EXPECT_FALSE(std::filesystem::exists(world.folder / "Archivio.mdb"));
}

TEST_F(BrokenDrawEntry, AnArchiveThatAnotherProgramHoldsRefusesAndStaysAsItWas) {
  a = &world.openOn(twoDraws());
  {
    Database other(world.folder / "Archivio.mdb", FileKind::Archive);
    const Database::Transaction writing(other);
    expectAllRefused();
  }
  expectUntouched();
}

TEST_F(BrokenDrawEntry, AFullDiskRefusesAtWhateverByteItIsFull) {
  a = &world.openOn(twoDraws());
  for (const rlim_t bytes : {0, 512, 4096, 8192, 12288, 20480}) {
    SCOPED_TRACE(bytes);
    {
      const FullDisk full(bytes);
      save();
      correct();
      remove();
    }
    const Database file(world.program->PercorsoDbArchivio, FileKind::Archive);
    file.checkIntegrity();
    const std::vector<DrawRow> rows = readDraws(file);
    EXPECT_TRUE(differencesFromSums(file, rows).empty());
    EXPECT_EQ(static_cast<int>(rows.size()), world.program->archive.NumEstrazioni());
  }
}

TEST_F(BrokenDrawEntry, AnotherArchiveChosenSinceTheStartIsNotWrittenTo) {
  world.makeBoth(twoDraws());
  const std::filesystem::path other = world.makeArchive({drawOf("21/01/1939", {})}, "Altro.mdb");
  world.start();
  world.shell.answerFile(other);
  world.inizio().Command4.press();
  world.inizio().Command2.press();
  a = static_cast<Archivio*>(&world.shell.show("archivio"));
  ASSERT_EQ(a->LBLESTRAZIONE.text(), "21/01/1939");
  for (const auto& write : {&BrokenDrawEntry::save, &BrokenDrawEntry::correct, &BrokenDrawEntry::remove}) {
    (this->*write)();
    EXPECT_EQ(world.shell.lastBox().text, kOtherArchive);
    EXPECT_EQ(world.shell.lastBox().title, "Avviso");
    EXPECT_EQ(world.shell.lastBox().icon, Icon::Critical);
  }
  EXPECT_EQ(world.stored().size(), 1u);
  const Database first(world.folder / "Archivio.mdb", FileKind::Archive);
  EXPECT_EQ(readDraws(first).size(), 2u);
}

TEST_F(BrokenDrawEntry, AFullArchiveTakesNoFurtherDraw) {
  std::vector<DrawRow> rows;
  for (int draw = 1; draw <= Archive::kMaxDraws; ++draw) rows.push_back(drawOf(dateOfDraw(draw), {}));
  a = &world.openOn(rows);
  a->MonthView1.set("01/01/2100");
  world.shell.answerYes();
  a->Command8.press();
  expectFailureBox();
  EXPECT_EQ(world.stored().size(), static_cast<std::size_t>(Archive::kMaxDraws));
}

}  // namespace
}  // namespace trv5
