#pragma once

#include <algorithm>
#include <cstdint>
#include <memory>
#include <vector>

#include "method/search.h"

namespace trv5 {

/// The raw values of all element sets in the draws of some cases.
///
/// Every operator but the product is a sum, modulo 90, of a part that only the first element makes and a part that only
/// the second makes. So what is kept is the part of each of the 55 drawn numbers in each case, a row of bytes over the
/// cases for each number, and the values of an element set in all cases are the byte-wise sum of two or three rows.
class FormulaValues {
 public:
  /// Rows are read and written in steps of so many cases; a row is as long as the cases filled up to a multiple.
  static constexpr std::size_t kStep = 32;

  /// `draws`: the draw of each case; one outside the archive has no number drawn.
  FormulaValues(const Archive& archive, const FormulaInput& formula, const std::vector<int>& draws,
                std::vector<ElementSet> sets);

  /// The values in some of the cases, by their places in `draws`, in this order: what has been worked out serves any
  /// choice of cases. All of them in their order cost nothing.
  FormulaValues of(const std::vector<int>& cases) const;

  std::size_t sets() const { return m_sets->size(); }
  const ElementSet& set(std::size_t index) const { return (*m_sets)[index]; }
  std::size_t rowLength() const { return m_rowLength; }

  /// The raw values, 0..89, of an element set in all cases: rowLength() bytes, those behind the last case 0 to 89 too.
  /// Inlined into the loops of the vote counter, so that they are compiled for the processor they run on.
  [[gnu::always_inline]] void values(std::size_t index, std::uint8_t* out) const {
    const ElementSet& set = (*m_sets)[index];
    const std::uint8_t* a = part(0, set);
    switch (m_kind) {
      case Kind::One:
        std::copy_n(a, m_rowLength, out);
        return;
      case Kind::Sum:
        add(out, a, part(1, set));
        return;
      case Kind::SumOfThree:
        add(out, a, part(1, set), part(2, set));
        return;
      case Kind::Product:
        multiply(out, a, part(1, set));
        return;
    }
  }

  /// The numbers of the formula with a fix 1..90, as residues: 0 is 90.
  void numbers(std::size_t index, int fix, std::uint8_t* out) const {
    values(index, out);
    const auto added = static_cast<std::uint8_t>(fix % 90);
    for (std::size_t i = 0; i < m_rowLength; ++i) out[i] = sum90(out[i], added);
  }

 private:
  enum class Kind : std::uint8_t { One, Sum, SumOfThree, Product };
  // Rows don't overlap and are whole steps long: with both known the loops are a few instructions a step.
  using Row = const std::uint8_t* __restrict;
  using NewRow = std::uint8_t* __restrict;

  const std::uint8_t* part(std::size_t element, const ElementSet& set) const {
    const std::size_t drawn = set.wheels[element] * std::size_t{kPositions} + set.positions[element] - 1U;
    return m_rows + (element * Archive::kDrawBytes + drawn) * m_rowLength;
  }

  // Two parts below 90 make a sum that fits a byte; less 90 it wraps around to something greater where it was below.
  [[gnu::always_inline]] static std::uint8_t sum90(std::uint8_t a, std::uint8_t b) {
    const auto sum = static_cast<std::uint8_t>(a + b);
    const auto less = static_cast<std::uint8_t>(sum - 90);
    return sum < less ? sum : less;
  }

  [[gnu::always_inline]] void add(NewRow out, Row a, Row b) const {
    for (std::size_t at = 0; at < m_rowLength; at += kStep)
      for (std::size_t i = at; i < at + kStep; ++i) out[i] = sum90(a[i], b[i]);
  }
  [[gnu::always_inline]] void add(NewRow out, Row a, Row b, Row c) const {
    for (std::size_t at = 0; at < m_rowLength; at += kStep)
      for (std::size_t i = at; i < at + kStep; ++i) out[i] = sum90(sum90(a[i], b[i]), c[i]);
  }
  [[gnu::always_inline]] void multiply(NewRow out, Row a, Row b) const {
    for (std::size_t at = 0; at < m_rowLength; at += kStep)
      for (std::size_t i = at; i < at + kStep; ++i)
        out[i] = static_cast<std::uint8_t>(static_cast<std::uint16_t>(a[i] * b[i]) % 90);
  }

  Kind m_kind = Kind::One;
  void keep(std::vector<std::uint8_t> parts);

  std::shared_ptr<const std::vector<ElementSet>> m_sets;
  std::size_t m_cases = 0, m_rowLength = 0;
  std::shared_ptr<const std::vector<std::uint8_t>> m_parts;  // by element, drawn number 0..54 (wheel by wheel), case
  const std::uint8_t* m_rows = nullptr;                      // the same, for the loops
};

}  // namespace trv5
