#include "cases/origin.h"

#include <gtest/gtest.h>

namespace trv5 {
namespace {

FormulaRow formula(int wheel, int position, int fix) {
  FormulaRow row;
  row.elements[0] = {.wheel = wheel, .position = position, .given = true};
  row.fix = fix;
  row.fixGiven = true;
  row.nr = row.qn = 1;
  return row;
}

Origin verification() {
  Origin origin;
  origin.situation = Situation{.kind = SituationKind::Numeri, .reference = 7370, .maxCases = 20};
  origin.cases = {7370, 7364};
  origin.wheels = 1U << 2;
  origin.colpi = 10;
  origin.reference = 7370;
  origin.formulas[0] = {formula(0, 1, 29)};
  return origin;
}

std::string reason(const Origin& then, const Origin& now) {
  return reasonOf(then, now).value_or("");
}

TEST(Origin, FitsItself) {
  EXPECT_EQ(reasonOf(verification(), verification()), std::nullopt);
}

TEST(Origin, TellsHowManyFormulasThereWere) {
  Origin now = verification();
  now.formulas[0]->push_back(formula(1, 2, 5));
  EXPECT_EQ(reason(verification(), now), "Fatto con 1 formula, ora sono 2");
  EXPECT_EQ(reason(now, verification()), "Fatto con 2 formule, ora è 1");
  now.formulas[0]->clear();
  EXPECT_EQ(reason(verification(), now), "Fatto con 1 formula, ora nessuna");
}

TEST(Origin, TellsThatAFormulaIsAnother) {
  Origin now = verification();
  now.formulas[0] = {formula(0, 1, 30)};
  EXPECT_EQ(reason(verification(), now), "Le formule sono cambiate");
}

TEST(Origin, NamesTheTableOfAFormulaOfAnother) {
  Origin then = verification(), now = verification();
  then.table = Table::Ambi;
  now.formulas[0]->push_back(formula(1, 2, 5));
  EXPECT_EQ(reason(then, now), "Fatto con 1 formula delle ambate, ora sono 2");
}

TEST(Origin, TellsColpiReferenceWheelsAndCases) {
  Origin now = verification();
  now.colpi = 12;
  EXPECT_EQ(reason(verification(), now), "Fatto con 10 colpi, ora sono 12");
  now.wheels = 1U << 3;
  EXPECT_EQ(reason(verification(), now), "Le ruote di gioco sono cambiate");
  now.cases = {7370};
  EXPECT_EQ(reason(verification(), now), "L'elenco dei casi è cambiato");
  now.reference = 7353;
  EXPECT_EQ(reason(verification(), now), "Fatto sull'estrazione 7370, ora 7353");
}

TEST(Origin, TellsWhereTheCasesComeFrom) {
  Origin now = verification();
  now.situation->maxCases = 30;
  EXPECT_EQ(reason(verification(), now), "Fatto con N° casi 20, ora 30");
  now.situation->wheel = 5;
  EXPECT_EQ(reason(verification(), now), "La situazione scelta è cambiata");
  now.situation->reference = 7353;  // verified anew at the reference draw of now, on the cases of before
  EXPECT_EQ(reason(verification(), now), "I casi sono stati ricavati sull'estrazione 7370, ora 7353");
  Origin list;
  list.situation = verification().situation;
  EXPECT_EQ(reason(list, now), "Fatto sull'estrazione 7370, ora 7353");
}

TEST(Origin, TellsWhatASummaryWasAskedFor) {
  Origin then, now;
  then.summary = SummaryChoice{.ambate = true};
  now.summary = SummaryChoice{.ambate = true, .firstOnly = true};
  EXPECT_EQ(reason(then, now), "Fatto senza Stop 1° esito");
  now.summary->terni = true;
  EXPECT_EQ(reason(then, now), "Le sorti scelte sono cambiate");
}

TEST(Origin, CountsOnlyWhatItReads) {
  Origin now = verification();
  now.sorte = 3;
  now.archiveEnd = 8000;
  now.formulas[3] = {formula(0, 1, 1)};
  now.summary = SummaryChoice{.ambi = true};
  EXPECT_EQ(reasonOf(verification(), now), std::nullopt);
}

TEST(ShortFormula, JoinsElementsAndFix) {
  FormulaRow row = formula(0, 1, 29);
  EXPECT_EQ(shortFormula(row), "BA 1 + 29");
  row.fix = 90;  // which changes no number
  EXPECT_EQ(shortFormula(row), "BA 1");
  row.elements[1] = {.wheel = 1, .position = 2, .given = true};
  row.operation = "N1 - N2";
  EXPECT_EQ(shortFormula(row), "BA 1 - CA 2");
  row.operation = "N2 - N1";
  row.alteration = "VERT";
  EXPECT_EQ(shortFormula(row), "CA 2 - BA 1 (VERT)");
  row.operation = "D1 e U2";
  EXPECT_EQ(shortFormula(row), "BA 1, CA 2 (D1 e U2, VERT)");
  row.elements[2] = {.wheel = 2, .position = 3, .given = true};
  row.operation = "N1+N2+N3";
  row.alteration.clear();
  EXPECT_EQ(shortFormula(row), "BA 1 + CA 2 + FI 3");
}

TEST(ShortFormula, TellsAPureNumber) {
  FormulaRow row;
  row.fix = 29;
  EXPECT_EQ(shortFormula(row), "numero 29");
}

}  // namespace
}  // namespace trv5
