#include "method/evaluation.h"

#include <gtest/gtest.h>

#include <random>

#include "support/archive_builder.h"

namespace trv5 {
namespace {

FormulaRow rowOf(int nr, int qn, int elements, const std::string& operation, const std::string& alteration) {
  FormulaRow row{.fix = 10, .fixGiven = true, .operation = operation, .alteration = alteration, .nr = nr, .qn = qn};
  for (int i = 0; i < elements; ++i) row.elements[static_cast<std::size_t>(i)] = {i, i + 1, true};
  return row;
}

// What an evaluation before may have left.
ParametriFormula leftBy(int seed) {
  ParametriFormula left;
  left.NumeroOttenuto = 20 + seed;
  left.Elem1 = 31 + seed;
  left.Elem2 = 43 + seed;
  left.Elem3 = 57 + seed;
  left.R2 = left.R3 = 5 + seed;
  left.P2 = left.P3 = 1 + seed;
  return left;
}

TEST(Formula, StandsAloneWhenNothingLeftBeforeCounts) {
  std::mt19937 rng(4);
  const Archive archive = randomArchive(rng, 40);
  int alone = 0;
  for (int nr = 0; nr <= 3; ++nr)
    for (int qn = 1; qn <= 4; ++qn)
      for (int elements = 1; elements <= 3; ++elements)
        for (const char* operation : {"N1 + N2", "N1 ? N2"})
          for (const char* alteration : {"DIAM", "NIENTE"}) {
            const Formula formula(rowOf(nr, qn, elements, operation, alteration));
            bool same = true;
            for (int draw = 1; draw <= 40; ++draw) {
              ParametriFormula first = leftBy(0), second = leftBy(3);
              same = same && formula.evaluate(archive, draw, first) == formula.evaluate(archive, draw, second);
            }
            EXPECT_EQ(formula.standsAlone(), same)
                << nr << " " << qn << " " << elements << " " << operation << " " << alteration;
            alone += same ? 1 : 0;
          }
  EXPECT_EQ(alone, 48 + 10 + 8);  // pure numbers, of one wheel, of two
}

}  // namespace
}  // namespace trv5
