// A reload of the archive under a workbench on which everything stands that can stand there.
#include <gtest/gtest.h>

#include <random>
#include <set>

#include "cases/case_map.h"
#include "cases/case_rows.h"
#include "cases/selections.h"
#include "core/archive_load.h"
#include "core/dates.h"
#include "desk/equip_workbench.h"
#include "desk/workbench_buttons.h"
#include "engine/result_forms.h"
#include "maintenance/archivio.h"
#include "maintenance/mini_list.h"
#include "support/archive_acts.h"
#include "support/program_world.h"
#include "support/random_runs.h"
#include "support/workbench_snapshot.h"
#include "support/workbench_world.h"

namespace trv5 {
namespace {

constexpr int kDraws = 120;
constexpr int kReference = 118;  // with two draws behind it, so that there is something beyond the limit

std::vector<DrawRow> rows() {
  std::mt19937 rng(31);
  return randomRows(rng, kDraws);
}

// The screens that the workbench shows.
void addResultScreens(FakeShell& shell, const Archive& archive) {
  shell.addScreen("ElencoRiscontri", [&shell] { return std::make_unique<ElencoRiscontri>(shell); });
  shell.addScreen("Speciale", [&shell] { return std::make_unique<Speciale>(shell); });
  shell.addScreen("EvoluzioneGrafica", [&shell] { return std::make_unique<EvoluzioneGrafica>(shell); });
  shell.addScreen("Estrazioni_minielenco", [&] { return std::make_unique<MiniList>(archive, shell); });
}

struct ReloadedWorkbench : ::testing::Test {
  ReloadedWorkbench() {
    world.makeBoth(rows());
    world.startAndProceed();
    addResultScreens(world.shell, archive());
    world.shell.addScreen("archivio", [this] {
      auto screen = std::make_unique<Archivio>(*world.program);
      screen->load();
      return screen;
    });
    world.shell.addScreen("Sommativi1", [this] { return makeWorkbench(*world.program); });
    a = static_cast<Archivio*>(&world.shell.show("archivio"));
    w = static_cast<Workbench*>(&world.shell.show("Sommativi1"));
    ApreBanco(*w);
  }

  const Archive& archive() const { return world.program->archive; }
  void press(const char* button) { w->button(button).press(); }

  // Cases on the last draws, open and over, verified in all tables; a summary; live forecasts, also beyond the limit.
  void playMethod() {
    w->hs1.set(kReference);
    w->ComboFiltro.pick(0);
    w->ComboPar.pick(3);
    WorkbenchWorld::choose(w->ComboColpi, "18");
    press("Command44");
    for (GridControl* const table : {&w->Fg11, &w->Fg22, &w->Fg33, &w->Fg00})
      for (int fix = 1; fix <= 3; ++fix) {
        WorkbenchWorld::addFormula(*table, {.elements = {{fix, 1}}, .fix = 5 * fix});
      }
    press("Command23");
    for (const char* const button : {"Command29", "Command34", "Command48", "Command51", "Command90"}) press(button);
    for (Check* const sorte : {&w->ChA, &w->ChB, &w->ChC}) sorte->set(true);
    for (const char* const button : {"Command86", "Command35", "Command102", "Command63", "Command9"}) press(button);
  }
  // Two saved methods, grouped, and the convergences of their forecasts.
  void group() {
    for (const char* const name : {"Alfa", "Beta"}) {
      w->Txt_Denominazione.set(name);
      press("Command4");
    }
    for (const char* const button : {"Cmd_Elenco", "Command106", "Command114"}) press(button);
  }
  void fill() {
    playMethod();
    group();
    playMethod();
    press("Command103");
    w->FgEv.clickCell(1, 1);
    w->hs1.set(kReference);
    w->ComboColpi.pick(4);  // no result fits any more
    world.shell.shown.clear();
    ASSERT_GT(w->FgEv.dataRows(), 3);
    for (const GridControl* const grid : {&w->FgZ1, &w->FgZ2, &w->FgZ3, &w->FgZ0, &w->FgZZ, &w->FgF, &w->FgIC, &w->Fg15,
                                          &w->FgRagg, &w->FgConv, &w->FgRit})
      EXPECT_TRUE(grid->hasData()) << grid->name();
    EXPECT_EQ(w->get<Label>("LblStato_FgZ1").text(), "non aggiornato");
    ASSERT_GT(w->history.undoSteps(), 10U);
  }

  // The writing operations of the archive's screen.
  void save(const std::string& date) { saveDraw(*a, world.shell, date); }
  void correct(int draw) { correctDraw(*a, world.shell, draw, "90 89 88 87 86 85 84 83 82 81 80 79 78 77 76"); }
  void remove(int draw) { deleteDraw(*a, world.shell, draw); }
  void update(const std::vector<std::string>& dates) {
    std::string file;
    for (const std::string& date : dates) file += date + " 01-02-03-04-05" + std::string(151, ' ') + "pr\r\n";
    writeBytes(world.folder / "agg.txt", file);
    world.shell.answerFile(world.folder / "agg.txt");
    a->Command21.press();
    a->Check3.set(true);
    a->Command28.press();
  }
  // The newest copy back in the place of the archive.
  void restore() {
    a->SSTab1.set(Archivio::kCopie);
    a->Fg_Copie.clickCell(1, 0);
    world.shell.answerYes();
    a->Cmd_Ripristina.press();
  }
  // The results that say that they no longer fit.
  std::set<std::string> marked() const {
    std::set<std::string> found;
    for (const char* const grid :
         {"FgEv", "FgSSS", "FgZ1", "FgZ2", "FgZ3", "FgZ0", "Fg_Stat", "FgZZ", "FgIC", "FgRagg", "FgConv", "FgRit"})
      if (!w->get<Label>(std::string("LblStato_") + grid).text().empty()) found.insert(grid);
    return found;
  }
  int middleCase() const { return caseDraw(*w, w->FgEv.rows() / 2); }
  void expectLabels();
  void expectNothingToTakeBack();
  void expectAsOnAFreshArchive(unsigned seed);
  void expectOutlives(const std::function<void()>& write, int reference, int draws);

  ProgramWorld world;
  Archivio* a = nullptr;
  Workbench* w = nullptr;
};

// What the reference bar tells, by the archive as it is now.
void ReloadedWorkbench::expectLabels() {
  const int draw = w->EstrazioneRiferimento, last = archive().NumEstrazioni();
  EXPECT_EQ(archive().UltimaEstrazione(), last);
  EXPECT_EQ(w->hs1.maximum(), last);
  EXPECT_EQ(w->hs1.value(), draw);
  EXPECT_EQ(w->LabelRifE.text(), std::to_string(draw) + " " + archive().DateEstrazioni(draw) + "  M-" +
                                     std::to_string(archive().ProgMese(draw)));
  const std::string back = std::to_string(last - draw) + " prima dell'ultima";
  EXPECT_EQ(w->LblUltima.text(), std::to_string(draw) + " · " + (draw < last ? back : "ultima"));
  EXPECT_EQ(w->get<Label>("LblStato_FgZ1").text(), "non aggiornato");
}

void ReloadedWorkbench::expectNothingToTakeBack() {
  EXPECT_FALSE(w->button("Cmd_Annulla").enabled());
  EXPECT_FALSE(w->button("Cmd_Ripeti").enabled());
  EXPECT_EQ(world.shell.offered, "");
  const WorkbenchSnapshot now(*w);
  EXPECT_FALSE(w->history.undo());
  press("Cmd_Annulla");
  EXPECT_EQ(difference(now, *w), "");
  w->FgNu.clickCell(5, 5);
  press("Cmd_Annulla");
  EXPECT_EQ(difference(now, *w), "") << "what came after the reload is taken back";
  press("Cmd_Annulla");
  EXPECT_EQ(difference(now, *w), "") << "and nothing before it";
}

// The same workbench on an archive that was never longer nor other: drawn buttons do the same on both, so that nothing
// of the draws that are gone is left anywhere.
void ReloadedWorkbench::expectAsOnAFreshArchive(unsigned seed) {
  const Database file(world.program->PercorsoDbArchivio, FileKind::Archive);
  const Archive fresh = archiveOfRows(readDraws(file));
  FakeShell shell;
  addResultScreens(shell, fresh);
  Workbench other(fresh, shell);
  equipWorkbench(other);
  connectDatabase(other, *world.program);
  ApreBanco(other);
  other.hooks.listConfigurations = [] {};
  other.restore(w->state());
  other.FgPir1.grid() = w->FgPir1.grid();
  WorkbenchMemory::of(*w).putBack(other);
  ASSERT_EQ(difference(WorkbenchSnapshot(*w), other), "");
  const std::set<std::string> writing = {"Command4", "Command54", "Cmd_Riprendi", "Cmd_Annulla", "Cmd_Ripeti"};
  std::vector<std::string> buttons;
  for (const WorkbenchButtons& group : workbenchButtons())
    for (const WorkbenchButton& button : group.buttons)
      if (button.run != nullptr && !writing.contains(button.name)) buttons.emplace_back(button.name);
  std::mt19937 rng(seed);
  for (int run = 0; run < randomRuns(60); ++run) {
    const std::string& name = buttons[rng() % buttons.size()];
    SCOPED_TRACE(name);
    world.shell.answers.clear();
    for (Workbench* const bench : {w, &other}) bench->button(name).press();
    ASSERT_EQ(difference(WorkbenchSnapshot(*w), other), "");
  }
  for (int row = 1; row < w->FgEv.rows(); ++row) {
    for (Workbench* const bench : {w, &other}) bench->FgEv.clickCell(row, 1);
    ASSERT_EQ(difference(WorkbenchSnapshot(*w), other), "");
  }
}

void ReloadedWorkbench::expectOutlives(const std::function<void()>& write, int reference, int draws) {
  const WorkbenchSnapshot before(*w);
  write();
  ASSERT_EQ(archive().NumEstrazioni(), draws);
  EXPECT_EQ(w->EstrazioneRiferimento, reference);
  const WorkbenchSnapshot after(*w);
  for (const auto& [name, grid] : before.grids)
    EXPECT_EQ(difference(grid, after.grids.at(name)), "") << name << " is the user's until it is made anew";
  expectLabels();
  expectNothingToTakeBack();
  expectAsOnAFreshArchive(static_cast<unsigned>(draws));
}

TEST_F(ReloadedWorkbench, OutlivesASaveAtTheEnd) {
  fill();
  expectOutlives([&] { save("01/01/2030"); }, kReference, kDraws + 1);
}

TEST_F(ReloadedWorkbench, OutlivesASaveAmidTheCases) {
  fill();
  const Day day = *dayOfText(archive().DateEstrazioni(middleCase()));
  expectOutlives([&] { save(dateText(day + std::chrono::days(1))); }, kReference, kDraws + 1);
}

TEST_F(ReloadedWorkbench, OutlivesTheCorrectionOfACase) {
  fill();
  expectOutlives([&] { correct(middleCase()); }, kReference, kDraws);
}

TEST_F(ReloadedWorkbench, OutlivesTheDeletionOfTheFirstDraw) {
  fill();
  expectOutlives([&] { remove(1); }, kReference, kDraws - 1);
}

TEST_F(ReloadedWorkbench, OutlivesTheDeletionOfACaseAmidTheOthers) {
  fill();
  expectOutlives([&] { remove(middleCase()); }, kReference, kDraws - 1);
}

TEST_F(ReloadedWorkbench, OutlivesTheDeletionOfTheReferenceAndAllBehindIt) {
  fill();
  const auto removeAll = [&] {
    for (int draw = kDraws; draw >= kReference - 20; --draw) remove(draw);
    EXPECT_GT(std::max(caseDraw(*w, 1), caseDraw(*w, w->FgEv.dataRows())), archive().NumEstrazioni());
  };
  expectOutlives(removeAll, kReference - 21, kReference - 21);
}

TEST_F(ReloadedWorkbench, TellsWhatWasMadeFromDrawsThatAreOthersNow) {
  playMethod();
  group();
  playMethod();
  press("Command103");
  const std::set<std::string> upToTheReference = {"FgEv", "FgZ2", "FgZ3", "FgZ0", "FgIC", "FgRit"};
  const std::set<std::string> upToTheEnd = {"FgZ1", "FgRagg", "FgConv", "FgZZ", "Fg_Stat"};
  std::set<std::string> all = upToTheReference;
  all.insert(upToTheEnd.begin(), upToTheEnd.end());
  ASSERT_EQ(marked(), std::set<std::string>());

  correct(kDraws);
  EXPECT_EQ(marked(), upToTheEnd) << "the last draw, behind the reference draw";
  restore();
  EXPECT_EQ(marked(), std::set<std::string>()) << "the draws are again those that were";
  correct(2);
  EXPECT_EQ(marked(), all);
  EXPECT_EQ(w->get<Label>("LblStato_FgEv").toolTip(), "Nell'archivio sono cambiate estrazioni su cui è fatto");
  press("Command29");
  EXPECT_TRUE(marked().contains("FgZ1")) << "made anew, but from cases of before";
  press("Command44");
  EXPECT_FALSE(marked().contains("FgEv"));
  restore();
  save("01/01/2030");
  EXPECT_FALSE(marked().contains("FgZ2"));
  remove(1);
  EXPECT_TRUE(marked().contains("FgZ2")) << "the reference is the draw after";
}

TEST_F(ReloadedWorkbench, KeepsItsOperationsToBeTakenBackWhileTheArchiveIsOnlyLookedAt) {
  w->FgNu.clickCell(5, 5);
  const WorkbenchSnapshot before(*w);
  w->FgNu.clickCell(6, 6);
  world.shell.close("archivio");
  a = static_cast<Archivio*>(&world.shell.show("archivio"));
  press("Cmd_Annulla");
  EXPECT_EQ(difference(before, *w), "");
  a->FgImporta.appendRow();
  a->Command28.press();  // nothing to write, and the same draws are read again
  press("Cmd_Ripeti");
  EXPECT_NE(difference(before, *w), "");
}

TEST_F(ReloadedWorkbench, OutlivesAnUpdateThatAddsAndCorrects) {
  fill();
  expectOutlives(
      [&] {
        update({archive().DateEstrazioni(middleCase()), "01/02/1938", "02/02/2030"});
      },
      kReference, kDraws + 2);
}

TEST_F(ReloadedWorkbench, OutlivesTheRestoreOfACopy) {
  fill();
  const auto removeAndRestore = [&] {
    remove(middleCase());
    ASSERT_EQ(archive().NumEstrazioni(), kDraws - 1);
    restore();
  };
  expectOutlives(removeAndRestore, kReference, kDraws);
}

}  // namespace
}  // namespace trv5
