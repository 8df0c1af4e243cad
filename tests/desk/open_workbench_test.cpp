#include <gtest/gtest.h>

#include <random>

#include "cases/case_rows.h"
#include "cases/selections.h"
#include "desk/equip_workbench.h"
#include "maintenance/archivio.h"
#include "maintenance/mini_list.h"
#include "support/archive_acts.h"
#include "support/program_world.h"
#include "support/whole_method.h"

namespace trv5 {
namespace {

// The archive's screen, the workbench and the mini list of one run, side by side.
struct OpenWorkbench : ::testing::Test {
  OpenWorkbench() {
    world.shell.addScreen("archivio", [this] {
      auto screen = std::make_unique<Archivio>(*world.program);
      screen->load();
      return screen;
    });
    world.shell.addScreen("Estrazioni_minielenco", [this] {
      auto screen = std::make_unique<MiniList>(*world.program);
      screen->load();
      return screen;
    });
    world.shell.addScreen("Sommativi1", [this] { return makeWorkbench(*world.program); });
  }

  void open(int draws) {
    std::mt19937 rng(11);
    world.makeBoth(randomRows(rng, draws));
    world.startAndProceed();
    a = static_cast<Archivio*>(&world.shell.show("archivio"));
    list = static_cast<MiniList*>(&world.shell.show("Estrazioni_minielenco"));
    w = static_cast<Workbench*>(&world.shell.show("Sommativi1"));
    ApreBanco(*w);
  }
  void press(const char* button) { w->button(button).press(); }
  // Cases listed, ambate searched, the best one taken over and verified.
  void listCases() {
    w->ComboFiltro.pick(0);
    w->ComboPar.pick(3);
    press("Command44");
  }
  void verify() {
    press("Command23");
    ASSERT_TRUE(w->FgF.hasData());
    w->FgF.setCurrent(1);
    w->Cmd_LaSorte[1].press();
    press("Command29");
  }
  void remove(int draw) { deleteDraw(*a, world.shell, draw); }
  void save(const std::string& date) { saveDraw(*a, world.shell, date); }
  void correct(int draw) { correctDraw(*a, world.shell, draw, "1 2 3 4 5"); }
  // Everything that a user might press next.
  void pressAll() {
    for (const char* const button : {"Command44", "Command23", "Command29", "Command39", "Command34", "Command86"})
      press(button);
    for (int row = 1; row < w->FgEv.rows(); ++row) w->FgEv.clickCell(row, 1);
  }
  void expectReference(int draw) {
    const Archive& archive = world.program->archive;
    EXPECT_EQ(w->EstrazioneRiferimento, draw);
    EXPECT_EQ(w->hs1.maximum(), archive.UltimaEstrazione());
    EXPECT_EQ(w->LabelRifE.text(), std::to_string(draw) + " " + archive.DateEstrazioni(draw) + "  M-" +
                                       std::to_string(archive.ProgMese(draw)));
  }

  ProgramWorld world;
  Archivio* a = nullptr;
  Workbench* w = nullptr;
  MiniList* list = nullptr;
};

TEST_F(OpenWorkbench, SeesASavedDrawAndKeepsItsReference) {
  open(120);
  const int reference = w->EstrazioneRiferimento;
  ASSERT_EQ(reference, 120);
  save("01/01/2020");
  expectReference(120);
  EXPECT_EQ(w->hs1.maximum(), 121);
  EXPECT_EQ(list->hs1.maximum(), 121);
  EXPECT_EQ(list->Label2.text(), "120");
}

TEST_F(OpenWorkbench, StepsBackToTheLastDrawWhenItsReferenceHasGone) {
  open(120);
  remove(120);
  expectReference(119);
  EXPECT_EQ(w->hs1.value(), 119);
  EXPECT_EQ(list->Label2.text(), "119");
  EXPECT_EQ(list->Label1.text(), world.program->archive.DateEstrazioni(119));
}

TEST_F(OpenWorkbench, TellsTheNewDateOfAReferenceThatStays) {
  open(120);
  w->hs1.set(50);
  const std::string next = world.program->archive.DateEstrazioni(51);
  remove(10);
  expectReference(50);
  EXPECT_EQ(world.program->archive.DateEstrazioni(50), next);
}

TEST_F(OpenWorkbench, ListedCasesStayAsTheyWereFoundAndAreVerifiedWithoutReadingBeyondTheArchive) {
  open(120);
  listCases();
  ASSERT_GT(w->FgEv.rows(), 2);
  const Grid cases = w->FgEv;
  const int newest = caseDraw(*w, 1);
  for (int draw = 120; draw >= newest; --draw) remove(draw);
  EXPECT_EQ(w->FgEv.grid(), cases);
  EXPECT_GT(newest, world.program->archive.UltimaEstrazione());
  expectReference(newest - 1);
  verify();
  pressAll();
}

TEST_F(OpenWorkbench, VerifiedHitsStayAndEachWritingLeavesThemReadable) {
  open(120);
  listCases();
  verify();
  const Grid hits = w->FgZ1;
  ASSERT_TRUE(hits.hasData());
  save("01/01/2020");
  correct(60);
  remove(1);
  remove(60);
  EXPECT_EQ(w->FgZ1.grid(), hits);
  press("Command29");
  pressAll();
}

TEST_F(OpenWorkbench, FollowsAnUpdateOfManyDrawsAtOnce) {
  open(120);
  listCases();
  verify();
  const auto line = [](const std::string& date) { return date + " 01-02-03-04-05" + std::string(151, ' ') + "pr\r\n"; };
  std::string file;
  for (int draw = 118; draw <= 120; ++draw) file += line(world.program->archive.DateEstrazioni(draw));
  for (int day = 1; day <= 9; ++day) file += line("0" + std::to_string(day) + "/02/1938");
  writeBytes(world.folder / "agg.txt", file);
  world.shell.answerFile(world.folder / "agg.txt");
  a->Command21.press();
  a->Check3.set(true);
  a->Command28.press();
  EXPECT_EQ(world.shell.lastBox().text, "Dati salvati correttamente.");
  EXPECT_EQ(world.program->archive.NumEstrazioni(), 129);
  EXPECT_EQ(world.program->archive.NumeriEstratti(129, 0, 5), 5);
  expectReference(120);
  EXPECT_EQ(list->hs1.maximum(), 129);
  pressAll();
}

TEST_F(OpenWorkbench, OutlivesTheDeletionOfAllDraws) {
  open(3);
  for (int left = 3; left > 0; --left) remove(left);
  EXPECT_EQ(world.program->archive.NumEstrazioni(), 0);
  expectReference(0);
  EXPECT_EQ(list->Label2.text(), "0");
  EXPECT_EQ(list->fG2.text(1, 1), "0");
  pressAll();
  w->hs1.set(5);
  expectReference(0);
}

TEST_F(OpenWorkbench, MarksOfTheMiniListStayOnADrawThatIsStillThere) {
  open(120);
  list->hs1.set(50);
  SegnaNumero(*list, 1, 1);
  save("01/01/2020");
  EXPECT_EQ(list->fG2.back(1, 1), Verde);
  correct(50);
  EXPECT_EQ(list->fG2.back(1, 1), Verde);
  EXPECT_EQ(list->fG2.text(1, 1), "1");
  remove(10);
  EXPECT_EQ(list->fG2.back(1, 1), kWhite);
}

TEST_F(OpenWorkbench, ThatWasClosedHearsOfNoReload) {
  open(120);
  world.shell.close("Estrazioni_minielenco");
  save("01/01/2020");
  expectReference(120);
}

}  // namespace
}  // namespace trv5
