#include "method/formula_values.h"

#include <gtest/gtest.h>

#include "core/numbers.h"
#include "support/archive_builder.h"
#include "support/plain_search.h"

namespace trv5 {
namespace {

// The value of one element set in one draw.
int valueOf(const FormulaInput& formula, const Archive& archive, const ElementSet& set) {
  const FormulaValues values(archive, formula, {1}, {set});
  std::vector<std::uint8_t> row(values.rowLength());
  values.values(0, row.data());
  return row[0];
}

TEST(FormulaValues, OfTwoElementsAreThoseOfTheOperatorForAllPairsOfElements) {
  const ElementSet set{{0, 1, 0}, {1, 1, 0}};
  const Archive archive = archiveOf({{{"BA", {1, 2, 3, 4, 5}}, {"CA", {1, 2, 3, 4, 5}}}});
  for (int op = 0; op < 6; ++op)
    for (int a = 1; a <= 99; ++a)
      for (int b = 1; b <= 99; ++b) {
        FormulaInput formula = formulaInput({Shape::TwoTwoWheels, 0, 0, op});
        formula.elements[0] = constantTable(a);
        formula.elements[1] = constantTable(b);
        ASSERT_EQ(valueOf(formula, archive, set), combine(formula.op, a, b))
            << "operator " << op << " " << a << " " << b;
      }
}

TEST(FormulaValues, ReadAnElementThatComesOutNoughtAsNinety) {
  const Archive archive = archiveOf({{{"BA", {10, 5, 3, 4, 6}}}});
  FormulaInput formula = formulaInput({Shape::TwoOneWheel, 6});  // D x U: 10 gives 0, 5 gives 0
  EXPECT_EQ(valueOf(formula, archive, {{0, 0, 0}, {1, 2, 0}}), 0);
  formula.elements[1] = constantTable(5);
  EXPECT_EQ(valueOf(formula, archive, {{0, 0, 0}, {1, 2, 0}}), 5);
  formula.op = Operator::Tens1Units2;
  EXPECT_EQ(valueOf(formula, archive, {{0, 0, 0}, {1, 2, 0}}), 5);  // 90 and 05
}

TEST(FormulaValues, OfThreeElementsMayTakeTheSameNumberThreeTimes) {
  const Archive archive = archiveOf({{{"BA", {80, 5, 3, 4, 6}}}});
  EXPECT_EQ(valueOf(formulaInput({Shape::ThreeOneWheel}), archive, {{0, 0, 0}, {1, 1, 1}}), 240 - 180);
}

TEST(FormulaValues, OfADrawThatCannotBeAreThoseOfAWheelNotDrawn) {
  const Archive archive = archiveOf({{{"BA", {80, 5, 3, 4, 6}}}});
  const FormulaInput formula = formulaInput({Shape::OneNumber});
  const FormulaValues values(archive, formula, {1, -1, Archive::kMaxDraws + 1, 1}, {ElementSet{{0, 0, 0}, {1, 0, 0}}});
  std::vector<std::uint8_t> row(values.rowLength());
  values.values(0, row.data());
  EXPECT_EQ(row[0], 80);
  EXPECT_EQ(row[1], 0);
  EXPECT_EQ(row[2], 0);
  EXPECT_EQ(row[3], 80);
}

TEST(FormulaValues, OfAsManyCasesInAnotherOrderFollowThatOrder) {
  const Archive archive = archiveOf({{{"BA", {80, 5, 3, 4, 6}}}, {{"BA", {70, 5, 3, 4, 6}}}});
  const FormulaValues values(archive, formulaInput({Shape::OneNumber}), {1, 2}, {ElementSet{{0, 0, 0}, {1, 0, 0}}});
  std::vector<std::uint8_t> row(values.rowLength());
  values.of({1, 1}).values(0, row.data());
  EXPECT_EQ(row[0], 70);
  EXPECT_EQ(row[1], 70);
  values.of({0, 1}).values(0, row.data());
  EXPECT_EQ(row[0], 80);
}

TEST(ElementSets, CountAsTheShapesTell) {
  const TripleFlags triples = ascendingTriples();
  const auto count = [&](Shape shape) { return elementSets(shape, SetOrder::WheelsFirst, triples).size(); };
  EXPECT_EQ(count(Shape::OneNumber), 55U);
  EXPECT_EQ(count(Shape::TwoOneWheel), 110U);
  EXPECT_EQ(count(Shape::ThreeOneWheel), 385U);
  EXPECT_EQ(count(Shape::TwoTwoWheels), 1375U);
}

TEST(ElementSets, OfTwoWheelsFollowTheWheelsInOneOrderAndTheFirstElementInTheOther) {
  const auto byWheels = elementSets(Shape::TwoTwoWheels, SetOrder::WheelsFirst, {});
  EXPECT_EQ(byWheels[5], (ElementSet{{0, 1, 0}, {2, 1, 0}}));
  EXPECT_EQ(byWheels[25], (ElementSet{{0, 2, 0}, {1, 1, 0}}));
  const auto byElement = elementSets(Shape::TwoTwoWheels, SetOrder::ElementFirst, {});
  EXPECT_EQ(byElement[5], (ElementSet{{0, 2, 0}, {1, 1, 0}}));
  EXPECT_EQ(byElement[50], (ElementSet{{0, 1, 0}, {2, 1, 0}}));
}

}  // namespace
}  // namespace trv5
