#include "method/method.h"

namespace trv5 {

std::vector<int> detect(const Archive& archive, const Method& method) {
  PositionFlags struck{};
  std::vector<int> draws;
  for (const FoundCase& found : detectCases(archive, method.situation, struck)) {
    if (static_cast<int>(draws.size()) == kMostCases) break;
    draws.push_back(found.first.draw);
  }
  return draws;
}

FormulaRow formulaOf(const Candidate& found, Shape shape, std::string_view alteration, std::string_view operation) {
  FormulaRow row;
  for (std::size_t e = 0; e < static_cast<std::size_t>(elementsOf(shape)); ++e)
    row.elements[e] = {found.elements.wheels[e], found.elements.positions[e], true};
  row.fix = found.fix;
  row.fixGiven = true;
  row.alteration = alteration;
  if (shape != Shape::OneNumber) row.operation = shape == Shape::ThreeOneWheel ? kSumOfThree : operation;
  row.nr = shape == Shape::TwoTwoWheels ? 2 : 1;
  row.qn = shape == Shape::TwoTwoWheels ? 1 : elementsOf(shape);
  return row;
}

}  // namespace trv5
