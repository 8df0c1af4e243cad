#pragma once

#include <vector>

namespace trv5 {

/// The finite field of 2, 3, 4, 5, 7, 8 or 9 elements, named 0..order - 1: 0 and 1 are the neutral elements; for 4, 8
/// and 9 the digits of an element in base 2 or 3 are the coefficients of a polynomial.
class FiniteField {
 public:
  /// Throws std::invalid_argument for another order.
  explicit FiniteField(int order);

  int order() const { return m_order; }
  int add(int a, int b) const { return m_sum[index(a, b)]; }
  int multiply(int a, int b) const { return m_product[index(a, b)]; }

 private:
  std::size_t index(int a, int b) const { return static_cast<std::size_t>(a * m_order + b); }

  int m_order;
  std::vector<int> m_sum, m_product;  // by index()
};

}  // namespace trv5
