#include "method/formula_values.h"

#include <utility>

#include "core/numbers.h"

namespace trv5 {
namespace {

std::uint8_t byteOf(int residue) {
  return static_cast<std::uint8_t>(residue);
}

// What an element adds to the raw value, by the drawn number. A part of two elements is taken from the operator itself:
// the other element is held at 90, and what 90 with 90 gives is left to the first part alone.
ElementTable partTable(const FormulaInput& formula, int element) {
  ElementTable part{};
  for (std::size_t n = 0; n < part.size(); ++n) {
    const int value = zeroAs90(formula.elements[static_cast<std::size_t>(element)][n]);
    if (elementsOf(formula.shape) != 2 || formula.op == Operator::Product)
      part[n] = byteOf(residue90(value));
    else if (element == 0)
      part[n] = byteOf(combine(formula.op, value, 90));
    else
      part[n] = byteOf(residue90(combine(formula.op, 90, value) - combine(formula.op, 90, 90)));
  }
  return part;
}

std::size_t rowLengthOf(std::size_t cases) {
  return (cases + FormulaValues::kStep - 1) / FormulaValues::kStep * FormulaValues::kStep;
}

}  // namespace

FormulaValues::FormulaValues(const Archive& archive, const FormulaInput& formula, const std::vector<int>& draws,
                             std::vector<ElementSet> sets)
    : m_sets(std::make_shared<const std::vector<ElementSet>>(std::move(sets))),
      m_cases(draws.size()),
      m_rowLength(rowLengthOf(draws.size())) {
  if (formula.shape == Shape::ThreeOneWheel)
    m_kind = Kind::SumOfThree;
  else if (formula.shape != Shape::OneNumber)
    m_kind = formula.op == Operator::Product ? Kind::Product : Kind::Sum;

  const int elements = elementsOf(formula.shape);
  std::vector<std::uint8_t> parts(static_cast<std::size_t>(elements * Archive::kDrawBytes) * m_rowLength);
  for (int element = 0; element < elements; ++element) {
    const ElementTable part = partTable(formula, element);
    for (std::size_t i = 0; i < draws.size(); ++i) {
      const bool inside = draws[i] >= 0 && draws[i] <= Archive::kMaxDraws;
      const std::uint8_t* numbers = archive.wheelOf(inside ? draws[i] : 0, 0);
      std::uint8_t* out = &parts[static_cast<std::size_t>(element * Archive::kDrawBytes) * m_rowLength + i];
      for (int drawn = 0; drawn < Archive::kDrawBytes; ++drawn, out += m_rowLength) *out = part[numbers[drawn]];
    }
  }
  keep(std::move(parts));
}

void FormulaValues::keep(std::vector<std::uint8_t> parts) {
  m_parts = std::make_shared<const std::vector<std::uint8_t>>(std::move(parts));
  m_rows = m_parts->data();
}

FormulaValues FormulaValues::of(const std::vector<int>& cases) const {
  bool all = cases.size() == m_cases;
  for (std::size_t i = 0; all && i < cases.size(); ++i) all = cases[i] == static_cast<int>(i);
  FormulaValues some = *this;
  if (all) return some;
  some.m_cases = cases.size();
  some.m_rowLength = rowLengthOf(cases.size());
  const std::size_t rows = m_rowLength == 0 ? 0 : m_parts->size() / m_rowLength;
  std::vector<std::uint8_t> parts(rows * some.m_rowLength);
  for (std::size_t row = 0; row < rows; ++row)
    for (std::size_t i = 0; i < cases.size(); ++i)
      parts[row * some.m_rowLength + i] = m_rows[row * m_rowLength + static_cast<std::size_t>(cases[i])];
  some.keep(std::move(parts));
  return some;
}

}  // namespace trv5
