#include "configs/draft.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "configs/configuration_world.h"
#include "support/broken_world.h"

namespace trv5 {
namespace {

namespace fs = std::filesystem;

class Draft : public testing::Test {
 protected:
  void work() {
    Workbench& w = world.w();
    w.ComboPar.pick(1);
    WorkbenchWorld::choose(w.ComboColpi, "60");
    WorkbenchWorld::choose(w.Combo1R_1N, "C91");
    w.ComboFix.pick(12);
    w.ChFix1R.set(true);
    w.FgRG.clickCell(0, 4);
    WorkbenchWorld::addFormula(w.Fg11, {.elements = {{0, 1}}, .fix = 7});
    w.button("Command44").press();
    w.button("Command29").press();
  }
  // The program ends and starts again.
  void endAndStart() {
    keepDraft(world.w());
    world.restart();
  }
  ConfigurationWorld world;
};

TEST_F(Draft, OfAnEmptyWorkbenchIsNeitherWrittenNorOffered) {
  endAndStart();
  EXPECT_FALSE(fs::exists(world.folder / "Bozza.mdb"));
  EXPECT_FALSE(world.w().button("Cmd_Riprendi").enabled());
}

TEST_F(Draft, IsOfferedWithItsTimeAndTakenUpWithTypedTexts) {
  work();
  const Grid cases = world.w().FgEv, hits = world.w().FgZ1;
  ASSERT_GT(cases.rows(), 1);
  endAndStart();
  Workbench& w = world.w();
  EXPECT_EQ(w.FgEv.rows(), 1);
  const Button& resume = w.button("Cmd_Riprendi");
  EXPECT_TRUE(resume.enabled());
  EXPECT_TRUE(resume.caption().starts_with("Riprendi il lavoro del ")) << resume.caption();
  world.press("Cmd_Riprendi");
  EXPECT_EQ(w.FgEv, cases);
  EXPECT_EQ(w.FgZ1, hits);
  EXPECT_EQ(w.ComboColpi.text(), "60");
  EXPECT_EQ(w.Combo1R_1N.text(), "C91");
  EXPECT_EQ(w.ComboFix.text(), "12");
  EXPECT_TRUE(w.ChFix1R.checked());
  EXPECT_FALSE(w.Ch_Scoperti.checked());
  EXPECT_EQ(w.Txt_Denominazione.text(), "");
}

TEST_F(Draft, KeepsTheNameOfTheMethodAndTouchesNoConfiguration) {
  work();
  world.save("la mia");
  endAndStart();
  world.press("Cmd_Riprendi");
  EXPECT_EQ(world.w().Txt_Denominazione.text(), "la mia");
  EXPECT_EQ(world.saved(), 1);
}

TEST_F(Draft, StaysWhereTheNextRunLeavesTheWorkbenchEmpty) {
  work();
  endAndStart();
  endAndStart();
  EXPECT_TRUE(world.w().button("Cmd_Riprendi").enabled());
}

TEST_F(Draft, ThatIsDamagedIsToldAndLeavesTheProgramRunning) {
  work();
  endAndStart();
  writeBytes(world.folder / "Bozza.mdb", "rovinata");
  world.press("Cmd_Riprendi");
  EXPECT_NE(world.shell.lastBox().text.find("Bozza.mdb"), std::string::npos);
  world.press("Command44");
}

TEST_F(Draft, OfAFullDiskLeavesTheOneBefore) {
  work();
  keepDraft(world.w());
  const std::string before = readBytes(world.folder / "Bozza.mdb");
  {
    const FullDisk disk(4096);
    EXPECT_ANY_THROW(keepDraft(world.w()));
  }
  EXPECT_EQ(readBytes(world.folder / "Bozza.mdb"), before);
}

}  // namespace
}  // namespace trv5
