#include "engine/pure_buttons.h"

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <set>
#include <string>

#include "cases/hit_rows.h"
#include "core/text.h"
#include "engine/colouring.h"
#include "engine/evaluation.h"
#include "engine/lunghetta.h"
#include "engine/verified_method.h"
#include "support/full_candidate_check.h"
#include "support/plain_search.h"
#include "support/random_runs.h"
#include "support/random_search.h"
#include "support/workbench_snapshot.h"

namespace trv5 {
namespace {

constexpr const char* kNow = "10:30:15";

// PresenzeCaso: counters over (case row 0..50, number 0..90).
using Presences = std::array<std::array<int, 91>, 51>;

void writeRow(Workbench& w, int row, int n, const Presences& PresenzeCaso) {
  int cc = 0, pres = 0;
  for (int i = 1; i < w.FgEv.rows(); ++i) {
    const int count = PresenzeCaso[static_cast<std::size_t>(i)][static_cast<std::size_t>(n)];
    pres += count;
    if (count > 0) ++cc;
  }
  w.FgF.setNumber(row, 11, n);
  w.FgF.setNumber(row, 13, cc);
  w.FgF.setNumber(row, 12, pres);
}

void startList(Workbench& w) {
  w.List1.clear();
  w.List1.add(kNow);
  w.Elenco = w.ComboEle.number();
  w.FgF.setRows(1);
  w.FgF.setRows(w.Elenco + 1);
  w.Colpi = w.ComboColpi.number();
}

// "NUM" of the tab Ambate and its three neighbours, step by step on the grid.
void plainNumbers(Workbench& w, int wheelsOfSet) {
  if (w.FgEv.rows() < 2) return;
  startList(w);
  for (const WheelSet set : wheelsOfSet == 0 ? std::vector<WheelSet>{w.RuoteGioco} : plainWheelSets(wheelsOfSet)) {
    Presences PresenzeCaso{};
    for (int i = 1; i < w.FgEv.rows(); ++i) {
      if (w.Ch_Scoperti.checked() && w.FgEv.back(i, w.Sorte + 16) == 0x00FF00) continue;
      const int E = w.FgEv.number(i, 1);
      for (int e = E + 1; e <= E + w.Colpi; ++e) {
        if (e > w.EstrazioneRiferimento) continue;
        for (int wheel = 0; wheel <= 10; ++wheel)
          for (int k = 1; k <= 5 && (set >> wheel & 1U) != 0; ++k)
            ++PresenzeCaso[static_cast<std::size_t>(i)][static_cast<std::size_t>(w.archive.number(e, wheel, k))];
      }
    }
    w.FgF.setRows(91);
    for (int n = 1; n <= 90; ++n) {
      writeRow(w, n, n, PresenzeCaso);
      std::string codes;
      for (int wheel = 0; wheel <= 10 && wheelsOfSet > 0; ++wheel)
        if ((set >> wheel & 1U) != 0)
          codes += (codes.empty() ? "" : "-") + std::string(CodiciRuote[static_cast<std::size_t>(wheel)]);
      w.FgF.setText(n, 18, codes);
      w.FgF.sortByNumber(13, true);
    }
  }
  for (int row = 1; row < w.FgF.rows(); ++row) {
    if (!w.ChFix1R.checked()) w.FgF.setText(row, 11, "");
    w.FgF.setText(row, 17, w.Combo1R_1N.text());
    w.FgF.setText(row, 14, "0");
    w.FgF.setText(row, 15, "1");
  }
  ColoraFgF(w);
  w.FgF.setCurrent(1, w.FgF.currentColumn());
  w.List1.add(kNow);
}

// "NUM" of the tabs Ambi (2), Terni (3), Lunghetta (6).
void plainCompanions(Workbench& w, int sorte) {
  const Grid& hits = sorte == 2 ? w.FgZ1.grid() : w.FgZ2.grid();
  if (sorte != 6 && hits.rows() < 2) return;
  startList(w);
  SettaggioFix(w);
  Presences PresenzeCaso{};
  if (sorte == 6) {
    PreparaPerScoperti(w);
    w.Sorte = w.ComboSorte.index() + 1;
  }
  for (int r = 1; r < hits.rows() && sorte != 6; ++r) {
    const int c = hits.number(r, 0), e = hits.number(r, 15);
    if (w.Ch_Scoperti.checked() && c < w.FgEv.rows() && w.FgEv.back(c, sorte == 2 ? 18 : 19) == 0x00FF00) continue;
    if (e <= 0) continue;
    NumberFlags NumeriEsito{};
    for (int column = 6; column <= (sorte == 2 ? 6 : 7); ++column)
      NumeriEsito[static_cast<std::size_t>(hits.number(r, column))] = true;
    for (int wheel = 0; wheel <= 10; ++wheel)
      for (int k = 1; k <= 5 && (w.RuoteGioco >> wheel & 1U) != 0; ++k) {
        const auto n = static_cast<std::size_t>(w.archive.number(e, wheel, k));
        if (!NumeriEsito[n]) ++PresenzeCaso[static_cast<std::size_t>(c)][n];
      }
  }
  w.FgF.setRows(1);
  w.FgF.setRows(91);
  for (int n = 1; n <= 90; ++n) writeRow(w, n, n, PresenzeCaso);
  w.FgF.sortByNumber(13, true);
  for (int row = 1; row < w.FgF.rows(); ++row) {
    w.FgF.setText(row, 14, "0");
    w.FgF.setText(row, 15, "0");
  }
  fullCandidateCheck(w, *tableOfCode(sorte));
  w.FgF.sortByNumber(13, true);
  ColoraFgF(w);
  w.FgF.setCurrent(1, w.FgF.currentColumn());
  w.List1.add(kNow);
}

void agrees(unsigned firstSeed, int seeds, const std::vector<const char*>& names,
            const std::function<void(Workbench&, const std::string&)>& plain) {
  for (unsigned seed = firstSeed; seed < firstSeed + static_cast<unsigned>(randomRuns(seeds)); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(seed);
    const Archive archive = randomMethodArchive(rng);
    std::mt19937 twinRng = rng;
    const auto world = verifiedMethod(rng, archive), twin = verifiedMethod(twinRng, archive);
    for (const char* name : names) {
      SCOPED_TRACE(name);
      for (Workbench* w : {&world->w, &twin->w}) {
        std::mt19937 inputs(seed * 31 + static_cast<unsigned>(name[7]));
        w->Combo1R_1N.pick(below(inputs, 9));
        w->ChFix1R.set(below(inputs, 3) != 0);
        w->Ch_Scoperti.set(below(inputs, 2) == 0);
        w->ComboColpi.pick(below(inputs, 20));
        w->Sorte = 1 + below(inputs, 3);
      }
      world->press(name);
      plain(twin->w, name);
      ASSERT_EQ(difference(WorkbenchSnapshot(twin->w), WorkbenchSnapshot(world->w)), "");
    }
  }
}

TEST(PureButtons, OnTheWheelsOfPlayAndOnEachWheelLeaveWhatTheirStepsLeave) {
  agrees(4100, 130, {"Command77", "Command101"},
         [](Workbench& w, const std::string& name) { plainNumbers(w, name == "Command77" ? 0 : 1); });
}

TEST(PureButtons, OnPairsAndTriplesOfWheelsLeaveWhatTheirStepsLeave) {
  agrees(4400, 4, {"Command100", "Command99"},
         [](Workbench& w, const std::string& name) { plainNumbers(w, name == "Command100" ? 2 : 3); });
}

TEST(PureButtons, ThatCompleteHitsLeaveWhatTheirStepsLeave) {
  agrees(4500, 260, {"Command105", "Command107", "Command108"}, [](Workbench& w, const std::string& name) {
    plainCompanions(w, name == "Command105" ? 2 : name == "Command107" ? 3 : 6);
  });
}

class PureButtonsOnAMethod : public testing::Test {
 protected:
  PureButtonsOnAMethod() : world(draws()), w(world.w) {
    w.Label17.click();
    world.setCases({50, 44, 38, 32, 26}, 8);
    w.ChFix1R.set(true);
  }
  static Archive draws() {
    std::mt19937 rng(78);
    return randomArchive(rng, 60);
  }
  int rowOf(int number) const {
    for (int row = 1; row < w.FgF.rows(); ++row)
      if (w.FgF.number(row, 11) == number) return row;
    return -1;
  }
  WorkbenchWorld world;
  Workbench& w;
};

TEST_F(PureButtonsOnAMethod, ListNinetyNumbersWhateverTheLengthOfTheList) {
  WorkbenchWorld::choose(w.ComboEle, "100");
  world.press("Command77");
  EXPECT_EQ(w.FgF.dataRows(), 90);
  EXPECT_EQ(w.FgF.text(1, 14), "0");
  EXPECT_EQ(w.FgF.text(1, 15), "1");
}

TEST_F(PureButtonsOnAMethod, ShowCountsWithoutNumbersWhenFixIsClear) {
  w.ChFix1R.set(false);
  world.press("Command77");
  for (int row = 1; row < w.FgF.rows(); ++row) EXPECT_EQ(w.FgF.text(row, 11), "");
  EXPECT_GT(w.FgF.number(1, 13), 0);
  w.FgF.setCurrent(1);
  world.press("Cmd_LaSorte_1");
  EXPECT_FALSE(w.Fg11.hasData());
}

TEST_F(PureButtonsOnAMethod, GiveRowsThatPlayTheirNumberInEveryCase) {
  world.press("Command77");
  w.FgF.setCurrent(1);
  const std::string number = w.FgF.text(1, 11);
  world.press("Cmd_LaSorte_1");
  ASSERT_EQ(w.Fg11.dataRows(), 1);
  EXPECT_EQ(w.Fg11.text(1, 14), "0");
  world.press("Command29");
  for (int row = 1; row < w.Fg15.rows(); ++row) EXPECT_EQ(numberOf(w.Fg15.text(row, 1)), numberOf(number));
}

TEST_F(PureButtonsOnAMethod, AreReplayedByTheRowOfTheTableAndNotByThatOfTheSearch) {
  world.press("Command77");
  w.FgF.setCurrent(1);
  world.press("Cmd_LaSorte_1");
  w.Fg11.setCurrent(1);
  world.press("Command21");
  EXPECT_EQ(w.FgZ1.number(1, 6), w.FgF.number(1, 11));
  w.Formula.NumeroOttenuto = 0;
  world.press("Command22");
  EXPECT_EQ(w.FgZ1.dataRows(), 5);
  for (int row = 1; row < w.FgZ1.rows(); ++row) EXPECT_EQ(w.FgZ1.text(row, 15), "");
}

TEST_F(PureButtonsOnAMethod, CountANumberOnTwoWheelsOfOneHitDrawTwiceAndItsCaseOnce) {
  const Archive archive =
      archiveOf({{{"BA", {1, 2, 3, 4, 5}}},
                 {{"BA", {1, 20, 30, 40, 50}}, {"CA", {6, 20, 1, 7, 8}}, {"FI", {9, 10, 11, 12, 13}}}});
  WorkbenchWorld own(archive);
  own.w.Label17.click();
  own.setCases({1}, 1);
  WorkbenchWorld::addFormula(own.w.Fg11, {.elements = {{0, 1}}});
  own.press("Command29");
  own.w.FgZ1.setRows(2);  // the first of its two hits alone
  const NumberCounts counts = countNumbersAtHits(archive, {{1, 2, {1}}}, own.w.RuoteGioco);
  EXPECT_EQ(counts[20], (NumberCount{1, 2}));
  EXPECT_EQ(counts[1], (NumberCount{0, 0})) << "the ambata itself, on another wheel too";
  EXPECT_EQ(counts[9], (NumberCount{1, 1})) << "a wheel without the ambata counts as well";
  own.press("Command105");
  EXPECT_EQ(own.w.FgF.dataRows(), 90);
}

TEST_F(PureButtonsOnAMethod, PassOverHitRowsWithoutHit) {
  WorkbenchWorld own(archiveOf({{{"BA", {1, 2, 3, 4, 5}}}, {{"BA", {1, 20, 30, 40, 50}}}}));
  own.w.Label17.click();
  own.setCases({1}, 1);
  WorkbenchWorld::addFormula(own.w.Fg11, {.elements = {{0, 1}}});
  own.press("Command29");
  own.w.Fg11.cutToHeading();  // without ambate no ambo hits: the closing verification leaves the order of the counts
  own.press("Command105");
  EXPECT_EQ(own.w.FgF.text(1, 11), "20");
  own.w.FgZ1.setText(1, 15, "");
  own.press("Command105");
  EXPECT_EQ(own.w.FgF.text(1, 11), "1");
}

TEST_F(PureButtonsOnAMethod, OfTheLunghettaCountNothingAndTakeTheSorteOfTheList) {
  w.ComboSorte.pick(2);
  w.Sorte = 1;
  world.press("Command108");
  EXPECT_EQ(w.Sorte, 1) << "the closing verification of each number elaborates, which leaves 1";
  EXPECT_EQ(w.FgF.dataRows(), 90);
  EXPECT_TRUE(world.shell.texts().empty());
}

TEST_F(PureButtonsOnAMethod, KeepSurvivorsOfEarlierWheelSets) {
  for (const char* name : {"Command101", "Command100", "Command99"}) {
    world.press(name);
    std::map<std::string, std::set<std::string>> wheels;  // by number
    for (int row = 1; row < w.FgF.rows(); ++row) wheels[w.FgF.text(row, 11)].insert(w.FgF.text(row, 18));
    bool twice = false;
    for (const auto& [number, sets] : wheels) twice = twice || sets.size() > 1;
    EXPECT_TRUE(twice) << name << ": no number stands in the list with two sets of wheels";
    EXPECT_LT(wheels.size(), 90U) << name << ": the number overwritten by a survivor is missing";
  }
}

}  // namespace
}  // namespace trv5
