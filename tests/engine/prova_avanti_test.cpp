#include "engine/prova_avanti.h"

#include <gtest/gtest.h>

#include <string>

#include "cases/chosen_situation.h"
#include "cases/situation_name.h"
#include "engine/forward_texts.h"
#include "support/workbench_world.h"

namespace trv5 {
namespace {

// Cases about every other draw, searched on two wheels; the screen of the test forward is there.
struct ForwardWorld : WorkbenchWorld {
  explicit ForwardWorld(int draws = 500)
      : WorkbenchWorld([draws] {
          std::mt19937 rng(7);
          return randomArchive(rng, draws);
        }()) {
    shell.addScreen("ProvaAvanti", [this] {
      auto made = std::make_unique<ProvaAvanti>(archive, shell);
      made->load();
      return made;
    });
    w.ComboFiltro.pick(1);
    w.TxtNumeri.set("03-14-25-36-47-58-69-80");
    positions({1, 2, 3, 4, 5});
    playOn({0, 1});
    choose(w.ComboColpi, "6");
    w.ChFix1R.set(true);
    press("Command44");
  }
  ProvaAvanti& open() {
    press("Cmd_Avanti");
    return dynamic_cast<ProvaAvanti&>(shell.show("ProvaAvanti"));
  }
  // What the screen should say, worked out beside it.
  ForwardFigures plain(int learnt) const {
    const LastSearch& search = *w.origins.lastSearch;
    return testForward({.search = search.request, .cases = allCases(archive, search.situation), .learnt = learnt});
  }
};

TEST(ProvaAvanti, WalksTheSearchRunLastThroughAllItsCases) {
  ForwardWorld world;
  world.press("Command23");
  ProvaAvanti& test = world.open();
  EXPECT_EQ(test.LblRicerca.text(), "Numeri 3-14-25-36-47-58-69-80 a BA · 2N 1R · N1+N2 · BA CA · 6 colpi");
  EXPECT_EQ(test.Fg_Prove.dataRows(), 0);
  test.Cmd_Prova.press();
  const ForwardFigures plain = world.plain(30);
  ASSERT_GT(plain.tests.size(), 20U);
  EXPECT_EQ(test.LblFrase.text(), forwardSentence(world.archive, plain, true, true));
  EXPECT_EQ(test.LblDettaglio.text(), forwardDetails(plain));
  ASSERT_EQ(test.Fg_Prove.dataRows(), static_cast<int>(plain.tests.size()));
  EXPECT_EQ(test.Fg_Prove.text(0, 3), "Su 30");
  for (std::size_t i = 0; i < plain.tests.size(); ++i) {
    const ForwardTest& told = plain.tests[plain.tests.size() - 1 - i];  // the newest first
    const int row = static_cast<int>(i) + 1;
    EXPECT_EQ(test.Fg_Prove.text(row, 0), world.archive.DateEstrazioni(told.draw));
    EXPECT_EQ(test.Fg_Prove.number(row, 2), told.formula.fix);
    EXPECT_EQ(test.Fg_Prove.number(row, 3), told.formula.cc);
    EXPECT_EQ(test.Fg_Prove.number(row, 4), told.number);
    EXPECT_EQ(test.Fg_Prove.number(row, 5), told.colpo);
    EXPECT_EQ(test.Fg_Prove.text(row, 5).empty(), told.colpo == 0);
    EXPECT_EQ(test.Fg_Prove.back(row, 5), told.colpo > 0 ? VerdeMedio : AranciaMedio);
  }
  EXPECT_EQ(world.shell.progressValues.back(), std::pair(0, 0));
  EXPECT_FALSE(test.Cmd_Ferma.enabled());
}

TEST(ProvaAvanti, LearnsFromAsManyCasesAsChosen) {
  ForwardWorld world;
  world.press("Command20");
  ProvaAvanti& test = world.open();
  EXPECT_EQ(test.ComboImpara.items(), (std::vector<std::string>{"10", "20", "30", "50"}));
  EXPECT_EQ(test.ComboImpara.text(), "30");
  test.ComboImpara.pick(0);
  test.Cmd_Prova.press();
  EXPECT_EQ(test.Fg_Prove.text(0, 3), "Su 10");
  EXPECT_EQ(test.LblFrase.text(), forwardSentence(world.archive, world.plain(10), true, true));
}

TEST(ProvaAvanti, OfABestWheelSearchTellsTheWheelsOfEachTest) {
  ForwardWorld world(200);
  world.press("Command20");
  ProvaAvanti& test = world.open();
  test.ComboImpara.pick(0);
  test.Cmd_Prova.press();
  EXPECT_TRUE(test.Fg_Prove.columnHidden(6));
  world.press("Command11");
  world.open();
  EXPECT_EQ(test.LblFrase.text(), "");  // of another search
  test.Cmd_Prova.press();
  EXPECT_FALSE(test.Fg_Prove.columnHidden(6));
  ASSERT_GT(test.Fg_Prove.dataRows(), 0);
  EXPECT_EQ(test.Fg_Prove.text(1, 6).size(), 2U);
}

TEST(ProvaAvanti, LearnsFromUncoveredCasesAloneWhereTheSearchDid) {
  ForwardWorld world;
  Workbench& w = world.w;
  WorkbenchWorld::addFormula(w.Fg11, {.elements = {{1, 2}}, .fix = 11});
  world.press("Command29");
  w.Ch_Scoperti.set(true);
  world.press("Command20");
  ProvaAvanti& test = world.open();
  EXPECT_NE(test.LblRicerca.text().find("casi scoperti"), std::string::npos);
  test.ComboImpara.pick(0);
  test.Cmd_Prova.press();
  const LastSearch& search = *w.origins.lastSearch;
  ForwardRequest request{.search = search.request, .cases = allCases(world.archive, search.situation), .learnt = 10};
  Method method;
  method.wheels = 0b11U;
  method.colpi = 6;
  method.reference = 500;
  method.of(Table::Ambate) = readFormulas(w.Fg11);
  ParametriFormula carry;
  const Verification verified = verify(world.archive, method, Table::Ambate, request.cases, {}, carry);
  for (std::size_t i = 0; i < request.cases.size(); ++i) request.passedOver.push_back(verified.covered(i));
  EXPECT_EQ(test.LblFrase.text(), forwardSentence(world.archive, testForward(request), true, true));
}

TEST(ProvaAvanti, StoppedTellsWhatIsKnownSoFar) {
  ForwardWorld world;
  world.press("Command20");
  world.shell.holdSteps = true;
  ProvaAvanti& test = world.open();
  test.slice = {};
  test.Cmd_Prova.press();
  EXPECT_TRUE(test.Cmd_Ferma.enabled());
  EXPECT_FALSE(test.Cmd_Prova.enabled());
  world.shell.runSteps();
  EXPECT_EQ(test.LblConto.text().substr(0, 5), "1 di ");
  EXPECT_EQ(test.LblFrase.text(), "");
  test.Cmd_Ferma.press();
  EXPECT_EQ(test.LblFrase.text().substr(0, 18), "Finora, in 1 prova");
  EXPECT_EQ(test.Fg_Prove.dataRows(), 1);
  EXPECT_TRUE(test.Cmd_Prova.enabled());
  EXPECT_FALSE(world.shell.runSteps());  // no step of the stopped run does anything
  const std::string told = test.LblFrase.text();
  test.Cmd_Prova.press();
  while (world.shell.runSteps()) {
  }
  EXPECT_NE(test.LblFrase.text(), told);
  EXPECT_EQ(test.LblFrase.text(), forwardSentence(world.archive, world.plain(30), true, true));
}

TEST(ProvaAvanti, AStepOfAClosedScreenDoesNothing) {
  ForwardWorld world;
  world.press("Command20");
  world.shell.holdSteps = true;
  world.open().Cmd_Prova.press();
  world.shell.forgetScreens();
  EXPECT_FALSE(world.shell.runSteps());
}

TEST(ProvaAvanti, MarksTheCasesAsSeen) {
  ForwardWorld world;
  Workbench& w = world.w;
  world.press("Command20");
  EXPECT_EQ(w.LblVisti.text(), "");
  ProvaAvanti& test = world.open();
  EXPECT_EQ(test.LblVisti.text(), "");
  test.Cmd_Prova.press();
  EXPECT_EQ(test.LblVisti.text(), "I casi dell'elenco valgono ora come già visti.");
  w.ComboEle.pick(1);
  EXPECT_EQ(w.LblVisti.text(), "già visti");
  // Fewer of them, or from an earlier draw, are the same cases; those of another situation aren't. Nothing undoes it.
  w.ComboNC.pick(3);
  w.hs1.set(300);
  world.press("Command44");
  EXPECT_EQ(w.LblVisti.text(), "già visti");
  world.press("Cmd_Annulla");
  world.press("Cmd_Ripeti");
  EXPECT_EQ(w.LblVisti.text(), "già visti");
  w.ComboR1.pick(5);
  world.press("Command44");
  EXPECT_EQ(w.LblVisti.text(), "");
  w.ComboR1.pick(0);
  world.press("Command44");
  EXPECT_EQ(w.LblVisti.text(), "già visti");
  world.press("Command41");
  EXPECT_EQ(w.LblVisti.text(), "");
}

TEST(ProvaAvanti, WithoutASearchOfAmbateSaysWhatToDo) {
  ForwardWorld world;
  ProvaAvanti& test = world.open();
  EXPECT_FALSE(test.Cmd_Prova.enabled());
  EXPECT_EQ(world.shell.statusTexts.back(), "Prova in avanti: prima cerca le ambate con 1N 1R, 2N 1R, 3N 1R o 2N 2R");
  for (const char* other : {"Command77", "Cmd_Totale"}) {
    world.press("Command20");
    world.open();
    EXPECT_TRUE(test.Cmd_Prova.enabled());
    world.press(other);
    world.open();
    EXPECT_FALSE(test.Cmd_Prova.enabled()) << other;
  }
}

TEST(ProvaAvanti, OfAnArchiveLoadedAnewKnowsNoSearch) {
  ForwardWorld world;
  world.press("Command20");
  std::mt19937 rng(8);
  world.archive = randomArchive(rng, 400);
  EXPECT_FALSE(world.open().Cmd_Prova.enabled());
}

TEST(ProvaAvanti, WithTooFewCasesSaysHowManyItNeeds) {
  ForwardWorld world(60);
  world.press("Command20");
  ProvaAvanti& test = world.open();
  test.ComboImpara.pick(3);
  test.Cmd_Prova.press();
  EXPECT_EQ(test.LblFrase.text(), "Troppo pochi casi: prima di ogni prova ne servono 50 già conclusi.");
  EXPECT_EQ(test.LblVisti.text(), "");
  EXPECT_EQ(test.Fg_Prove.dataRows(), 0);
}

TEST(ForwardTexts, SayInASentenceWhatCameOut) {
  const Archive archive = archiveOf(std::vector<WheelNumbers>(900));
  ForwardFigures figures{.tests = {}, .covered = 331, .expected = 326.58, .atLeast = 0.39, .share = {0.374, 0.442}};
  for (int i = 0; i < 812; ++i) figures.tests.push_back({.draw = i + 1, .formula = {}});
  const std::string from = std::to_string(yearOf(archive, figures.tests.front()));
  const std::string to = std::to_string(yearOf(archive, figures.tests.back()));
  EXPECT_EQ(forwardSentence(archive, figures, true, true),
            "In 812 prove dal " + from +
                " a oggi la formula scelta ogni volta ne ha coperte 331; il caso ne copre in media 326,6.");
  EXPECT_EQ(forwardSentence(archive, figures, false, false),
            "Finora, in 812 prove dal " + from + " al " + to +
                " la formula scelta ogni volta ne ha coperte 331; il caso ne copre in media 326,6.");
  EXPECT_EQ(forwardDetails(figures),
            "Almeno 331 riescono alla sola fortuna in 39 archivi su 100. Coperte 40,8 prove su 100 (fra 37,4 e 44,2); "
            "dal caso 40,2.");
  figures.atLeast = 0.004;
  EXPECT_NE(forwardDetails(figures).find("in 4 archivi su 1.000."), std::string::npos);
  figures.atLeast = 1e-9;
  EXPECT_NE(forwardDetails(figures).find("in meno di 1 archivio su 1.000."), std::string::npos);
  figures.atLeast = 1;
  EXPECT_NE(forwardDetails(figures).find("in quasi tutti gli archivi."), std::string::npos);
}

TEST(ForwardTexts, WriteAFormulaInAFewLetters) {
  const auto brief = [](Shape shape, Operator op, const ElementSet& elements) {
    FormulaInput formula;
    formula.shape = shape;
    formula.op = op;
    return briefFormula(formula, elements);
  };
  EXPECT_EQ(brief(Shape::OneNumber, Operator::Product, {{2, 0, 0}, {4, 0, 0}}), "FI 4");
  EXPECT_EQ(brief(Shape::TwoOneWheel, Operator::Sum, {{2, 2, 0}, {2, 5, 0}}), "FI 2+5");
  EXPECT_EQ(brief(Shape::TwoOneWheel, Operator::SecondLessFirst, {{2, 2, 0}, {2, 5, 0}}), "FI 5−2");
  EXPECT_EQ(brief(Shape::TwoOneWheel, Operator::Tens2Units1, {{2, 2, 0}, {2, 5, 0}}), "FI 5e2");
  EXPECT_EQ(brief(Shape::ThreeOneWheel, Operator::Sum, {{2, 2, 2}, {1, 2, 5}}), "FI 1+2+5");
  EXPECT_EQ(brief(Shape::TwoTwoWheels, Operator::Product, {{2, 1, 0}, {2, 5, 0}}), "FI 2×CA 5");
}

TEST(SituationName, TellsTheKindItsValueAndTheWheel) {
  Situation situation{.kind = SituationKind::Numeri, .wheel = 2};
  situation.numbers[7] = situation.numbers[17] = true;
  EXPECT_EQ(situationName(situation), "Numeri 7-17 a FI");
  EXPECT_EQ(situationName({.kind = SituationKind::Mensile}), "Mensile U a BA");
  EXPECT_EQ(situationName({.kind = SituationKind::Ciclo, .period = 7, .twoElements = true}), "Ciclo 7 su 2 ruote");
  EXPECT_EQ(situationName({.kind = SituationKind::NumPari, .period = 3}), "Num Pari 3 a BA");
}

TEST(ProvaAvanti, TheAxisNamesYearsAsFarApartAsTheTestsAllow) {
  ForwardWorld world;
  world.press("Command23");
  ProvaAvanti& test = world.open();
  EXPECT_TRUE(test.yearTicks().empty());
  test.Cmd_Prova.press();
  const std::vector<ForwardTest>& tests = test.figures().tests;
  const auto yearOf = [&](int draw) { return world.archive.DateEstrazioni(draw).substr(6); };
  const std::vector<ProvaAvanti::YearTick> ticks = test.yearTicks();
  ASSERT_FALSE(ticks.empty());
  for (std::size_t i = 0; i < ticks.size(); ++i) {
    ASSERT_GE(ticks[i].test, 1);
    ASSERT_LE(ticks[i].test, static_cast<int>(tests.size()));
    EXPECT_EQ(ticks[i].year, yearOf(tests[static_cast<std::size_t>(ticks[i].test - 1)].draw));
    if (ticks[i].test > 1) {  // the first test of its year
      EXPECT_NE(ticks[i].year, yearOf(tests[static_cast<std::size_t>(ticks[i].test - 2)].draw));
    }
    if (i > 0) {
      EXPECT_GT(ticks[i].year, ticks[i - 1].year);
    }
  }
}

}  // namespace
}  // namespace trv5
