#include "engine/evaluation.h"

#include <gtest/gtest.h>

#include <string>

#include "method/formula.h"
#include "support/archive_builder.h"
#include "support/plain_evaluation.h"
#include "support/random_runs.h"
#include "support/workbench_world.h"

namespace trv5 {
namespace {

// The formulas work on Bari (first element at position 1, second at 2, third at 3) and Roma.
Archive archiveWith(int first, int second = 1, int third = 2) {
  return archiveOf({{{"BA", {first, second, third, 88, 77}}, {"RO", {10, 20, 30, 40, 50}}}});
}

ParametriFormula oneElement(const std::string& alteration, int fix = 0) {
  ParametriFormula p;
  p.Estr = 1;
  p.P1 = 1;
  p.P2 = 2;
  p.P3 = 3;
  p.Alteraz = alteration;
  p.Fix = fix;
  p.Nr = p.Qn = 1;
  return p;
}

ParametriFormula twoElements(const std::string& op, const std::string& alteration = "", int fix = 0) {
  ParametriFormula p = oneElement(alteration, fix);
  p.Operazione = op;
  p.Qn = 2;
  return p;
}

int resultOf(const Archive& archive, ParametriFormula p) {
  OttieneNumero(archive, p);
  return p.NumeroOttenuto;
}

int resultOf(int first, int second, const std::string& op, const std::string& alteration = "", int fix = 0) {
  return resultOf(archiveWith(first, second), twoElements(op, alteration, fix));
}

TEST(OttieneNumero, WorksOutTheOperators) {
  EXPECT_EQ(resultOf(80, 70, "N1 + N2"), 60);
  EXPECT_EQ(resultOf(45, 45, "N1 - N2"), 90);
  EXPECT_EQ(resultOf(7, 12, "N1 - N2"), 85);
  EXPECT_EQ(resultOf(7, 12, "N2 - N1"), 5);
  EXPECT_EQ(resultOf(7, 90, "N1 X N2"), 90);
  EXPECT_EQ(resultOf(25, 38, "D1 e U2"), 28);
  EXPECT_EQ(resultOf(25, 38, "D2 e U1"), 35);
  EXPECT_EQ(resultOf(90, 30, "D1 e U2"), 90);
  EXPECT_EQ(resultOf(5, 38, "D1 e U2"), 8);
}

TEST(OttieneNumero, AltersTheElementByEveryRule) {
  const Archive archive = archiveWith(47);
  EXPECT_EQ(resultOf(archive, oneElement("")), 47);
  EXPECT_EQ(resultOf(archive, oneElement("C91")), 44);
  EXPECT_EQ(resultOf(archive, oneElement("CAD")), 7);
  EXPECT_EQ(resultOf(archive, oneElement("DEC")), 4);
  EXPECT_EQ(resultOf(archive, oneElement("DIAM")), 2);
  EXPECT_EQ(resultOf(archive, oneElement("DIDE")), 42);
  EXPECT_EQ(resultOf(archive, oneElement("D x U")), 28);
  EXPECT_EQ(resultOf(archive, oneElement("FIG")), 2);
  EXPECT_EQ(resultOf(archive, oneElement("VERT")), 74);
}

TEST(OttieneNumero, ReadsASingleElementOfZeroAs90WithoutAFixAndAsTheFixAlone) {
  EXPECT_EQ(resultOf(archiveWith(10), oneElement("CAD")), 90);
  EXPECT_EQ(resultOf(archiveWith(10), oneElement("CAD", 7)), 7);
  EXPECT_EQ(resultOf(archiveWith(90), oneElement("D x U")), 90);
}

TEST(OttieneNumero, MakesTheProductOfDigitsOfTen90BeforeTheOperator) {
  EXPECT_EQ(resultOf(10, 51, "N1 + N2", "D x U"), 5);
  EXPECT_EQ(resultOf(51, 10, "N1 - N2", "D x U"), 5);
}

TEST(OttieneNumero, GivesTheFixOr90ForTheDifferenceOfEquals) {
  EXPECT_EQ(resultOf(33, 33, "N1 - N2"), 90);
  EXPECT_EQ(resultOf(33, 33, "N1 - N2", "", 12), 12);
}

TEST(OttieneNumero, AddsNothingWithAFixOf90) {
  EXPECT_EQ(resultOf(30, 25, "N1 + N2", "", 90), 55);
  EXPECT_EQ(resultOf(30, 60, "N1 + N2", "", 90), 90);
}

TEST(OttieneNumero, ReturnsTheFixOfAPureNumberUnfolded) {
  ParametriFormula p = oneElement("C91", 34);
  p.Nr = 0;
  p.NumeroOttenuto = 12;
  EXPECT_EQ(resultOf(archiveWith(5), p), 34);
  p.Fix = 0;
  EXPECT_EQ(resultOf(archiveWith(5), p), 0);
  p.Fix = 95;
  EXPECT_EQ(resultOf(archiveWith(5), p), 95);
}

TEST(OttieneNumero, AddsTheFixToTheNumberBeforeWhenItDoesNotKnowTheAlteration) {
  const Archive archive = archiveWith(5);
  ParametriFormula p = oneElement("CAPO", 30);
  p.NumeroOttenuto = 40;
  OttieneNumero(archive, p);
  EXPECT_EQ(p.NumeroOttenuto, 70);
  OttieneNumero(archive, p);
  EXPECT_EQ(p.NumeroOttenuto, 10);
}

TEST(OttieneNumero, KeepsTheElementsBeforeWhenItDoesNotKnowTheAlteration) {
  const Archive archive = archiveWith(5, 6, 7);
  ParametriFormula p = twoElements("N1 + N2", "XYZ", 1);
  p.Elem1 = 20;
  p.Elem2 = 30;
  p.Elem3 = 40;
  EXPECT_EQ(resultOf(archive, p), 51);
  p.Qn = 3;
  EXPECT_EQ(resultOf(archive, p), 1);
  p.Elem3 = 0;  // the zero rule holds for them too
  EXPECT_EQ(resultOf(archive, p), 51);
}

TEST(OttieneNumero, KeepsTheNumberBeforeWhenItDoesNotKnowTheOperator) {
  const Archive archive = archiveWith(5, 6);
  ParametriFormula p = twoElements("N1 / N2", "", 30);
  p.NumeroOttenuto = 80;
  OttieneNumero(archive, p);
  EXPECT_EQ(p.NumeroOttenuto, 20);
  EXPECT_EQ(p.N1, 5);
  EXPECT_EQ(p.N2, 6);
  p.Operazione = kSumOfThree;
  OttieneNumero(archive, p);
  EXPECT_EQ(p.NumeroOttenuto, 50);
}

TEST(OttieneNumero, IgnoresQnOnTwoWheels) {
  ParametriFormula p = twoElements("N1 + N2");
  p.Nr = 2;
  p.R2 = 7;  // Roma, position 2: 20
  for (int qn : {0, 1, 2, 3, 9}) {
    p.Qn = qn;
    EXPECT_EQ(resultOf(archiveWith(5), p), 25) << "Qn " << qn;
  }
}

TEST(OttieneNumero, SumsTheSameNumberThreeTimesWhenItsPositionStandsThreeTimes) {
  ParametriFormula p = twoElements("whatever stands here");
  p.Qn = 3;
  p.P2 = p.P3 = 1;
  EXPECT_EQ(resultOf(archiveWith(31), p), 3);
  EXPECT_EQ(resultOf(archiveWith(30), p), 90);
}

TEST(OttieneNumero, ChangesNothingForAnyOtherShape) {
  for (const auto& [nr, qn] : {std::pair(3, 1), std::pair(1, 0), std::pair(1, 4), std::pair(7, 7)}) {
    ParametriFormula p = twoElements("N1 + N2", "", 9);
    p.Nr = nr;
    p.Qn = qn;
    p.NumeroOttenuto = 55;
    p.Elem1 = 11;
    p.N2 = 13;
    const ParametriFormula before = p;
    OttieneNumero(archiveWith(5, 6), p);
    EXPECT_STREQ(differentField(p, before), "") << "Nr " << nr << ", Qn " << qn;
  }
}

TEST(OttieneNumero, TakesAWheelNotDrawnAsZeroThroughTheAlteration) {
  ParametriFormula p = oneElement("");
  p.R1 = 3;  // Genova isn't drawn
  EXPECT_EQ(resultOf(archiveWith(5), p), 90);
  p.Alteraz = "C91";
  EXPECT_EQ(resultOf(archiveWith(5), p), 1);
  p = twoElements("D1 e U2", "C91");
  p.R1 = p.R2 = 3;  // both elements are 91
  EXPECT_EQ(resultOf(archiveWith(5), p), 1);
}

TEST(OttieneNumero, CountsNumbersAbove90AsNotDrawn) {
  EXPECT_EQ(resultOf(archiveWith(95), oneElement("")), 90);
  EXPECT_EQ(resultOf(archiveWith(95, 3), twoElements("N1 + N2")), 3);
}

void loadInto(ParametriFormula& p, const FormulaCells& row) {
  Grid table("|1|R1|P1|2|R2|P2|3|R3|P3|Operazione|Fix|Pres|CC  |Nr|Qn|Formu|Alteraz|Ruota|Ruote|Ritardo|Sorte");
  WorkbenchWorld::addFormula(table, row);
  ParametriFormula plain = p;
  caricaParametri(readFormula(table, 1), p);
  plainCaricaParametri(table, 1, plain);
  EXPECT_STREQ(differentField(p, plain), "");
}

TEST(CaricaParametri, KeepsTheElementsThatTheRowDoesNotHave) {
  ParametriFormula p;
  loadInto(p, {.elements = {{1, 2}, {3, 4}, {5, 5}}, .op = "N1+N2+N3", .fix = 8, .qn = "3", .alteration = "FIG"});
  loadInto(p, {.elements = {{9, 1}}});
  EXPECT_EQ(p.R1, 9);
  EXPECT_EQ(p.P1, 1);
  EXPECT_EQ(p.R2, 3);
  EXPECT_EQ(p.P2, 4);
  EXPECT_EQ(p.R3, 5);
  EXPECT_EQ(p.P3, 5);
  EXPECT_EQ(p.Fix, 0);
  EXPECT_EQ(p.Operazione, "");
  EXPECT_EQ(p.Alteraz, "");
  EXPECT_EQ(p.Nr, 1);
  EXPECT_EQ(p.Qn, 1);
}

TEST(CaricaParametri, EmptiesTheFirstElementForAPureNumber) {
  ParametriFormula p;
  loadInto(p, {.elements = {{6, 2}, {3, 4}}, .op = "N1 + N2", .nr = "2"});
  loadInto(p, {.fix = 44, .nr = "0"});
  EXPECT_EQ(p.R1, 0);
  EXPECT_EQ(p.P1, 0);
  EXPECT_EQ(p.R2, 3);
  EXPECT_EQ(p.Fix, 44);
  EXPECT_EQ(p.Nr, 0);
}

// One record goes through many formulas and draws, as it does in the workbench: what one leaves the next one finds.
TEST(OttieneNumero, AgreesWithThePlainEvaluationOnOneLongLivedRecord) {
  for (unsigned seed = 1; seed <= static_cast<unsigned>(randomRuns(20)); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(seed);
    const Archive archive = randomArchive(rng, 60);
    ParametriFormula p;
    ParametriFormula plain;
    for (int setting = 0; setting < 400; ++setting) {
      SCOPED_TRACE("setting " + std::to_string(setting));
      loadInto(p, randomFormula(rng));
      if (rng() % 15 == 0) p.Nr = static_cast<int>(rng() % 5);
      if (rng() % 15 == 0) p.Qn = static_cast<int>(rng() % 5);
      if (p.Nr != 0 && p.P1 == 0) p.P1 = 1;
      if (p.P2 == 0) p.P2 = 1;
      if (p.P3 == 0) p.P3 = 1;
      p.Estr = 1 + static_cast<int>(rng() % 60);
      plain = p;
      OttieneNumero(archive, p);
      plainOttieneNumero(archive, plain);
      ASSERT_STREQ(differentField(p, plain), "") << p.Alteraz << ' ' << p.Operazione;
    }
  }
}

}  // namespace
}  // namespace trv5
