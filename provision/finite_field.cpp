#include "provision/finite_field.h"

#include <stdexcept>

namespace trv5 {
namespace {

// A field as polynomials over the integers modulo `prime`: x to the power of the number of coefficients equals the
// polynomial of these coefficients, the constant first.
struct Rule {
  int order;
  int prime;
  std::vector<int> power;
};

const Rule& ruleOf(int order) {
  static const std::vector<Rule> rules = {{2, 2, {1}}, {3, 3, {1}},       {4, 2, {1, 1}}, {5, 5, {1}},
                                          {7, 7, {1}}, {8, 2, {1, 1, 0}}, {9, 3, {2, 0}}};
  for (const Rule& rule : rules)
    if (rule.order == order) return rule;
  throw std::invalid_argument("no finite field of this order");
}

using Polynomial = std::vector<int>;  // coefficients, the constant first

Polynomial polynomialOf(int element, const Rule& rule) {
  Polynomial coefficients(rule.power.size());
  for (int& c : coefficients) {
    c = element % rule.prime;
    element /= rule.prime;
  }
  return coefficients;
}

int elementOf(const Polynomial& coefficients, const Rule& rule) {
  int element = 0;
  for (auto c = coefficients.rbegin(); c != coefficients.rend(); ++c) element = element * rule.prime + *c;
  return element;
}

Polynomial sum(const Polynomial& a, const Polynomial& b, int factorOfB, const Rule& rule) {
  Polynomial result(a);
  for (std::size_t i = 0; i < result.size(); ++i) result[i] = (result[i] + factorOfB * b[i]) % rule.prime;
  return result;
}

Polynomial timesX(const Polynomial& a, const Rule& rule) {
  Polynomial shifted(a.size());
  for (std::size_t i = 1; i < a.size(); ++i) shifted[i] = a[i - 1];
  return sum(shifted, rule.power, a.back(), rule);
}

Polynomial product(const Polynomial& a, const Polynomial& b, const Rule& rule) {
  if (rule.power.size() == 1) return {a[0] * b[0] % rule.prime};
  Polynomial result(a.size());
  for (auto digit = b.rbegin(); digit != b.rend(); ++digit) result = sum(timesX(result, rule), a, *digit, rule);
  return result;
}

}  // namespace

FiniteField::FiniteField(int order) : m_order(order) {
  const Rule& rule = ruleOf(order);
  for (int a = 0; a < order; ++a) {
    for (int b = 0; b < order; ++b) {
      const Polynomial p = polynomialOf(a, rule), q = polynomialOf(b, rule);
      m_sum.push_back(elementOf(sum(p, q, 1, rule), rule));
      m_product.push_back(elementOf(product(p, q, rule), rule));
    }
  }
}

}  // namespace trv5
