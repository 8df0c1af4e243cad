#include "support/plain_search.h"

#include <algorithm>
#include <string>

#include "core/numbers.h"

namespace trv5 {
namespace {

using std::size_t;

int altered(const PlainFormula& formula, int element, int n) {
  switch (formula.alteration) {
    case 0:
      return n;
    case 1:
      return 91 - n;
    case 2:
      return TabCadenza[static_cast<size_t>(n)];
    case 3:
      return TabDecina[static_cast<size_t>(n)];
    case 4:
      return TabDiametrale[static_cast<size_t>(n)];
    case 5:
      return TabDiametraleDecina[static_cast<size_t>(n)];
    case 6:
      return (n / 10) * (n % 10) % 90;
    case 7:
      return TabFigura[static_cast<size_t>(n)];
    case 8:
      return TabVertibile[static_cast<size_t>(n)];
    default:
      return formula.constants[static_cast<size_t>(element)];
  }
}

// Wheels 0..10 and positions 1..5 of an element set.
struct Elements {
  int w1 = 0, p1 = 0, w2 = 0, p2 = 0, w3 = 0, p3 = 0;
};

template <Shape kShape>
int rawValue(const Archive& archive, const PlainFormula& formula, int draw, const Elements& e) {
  int a = altered(formula, 0, archive.number(draw, e.w1, e.p1));
  if (a == 0) a = 90;
  int value = a % 90;
  if constexpr (kShape != Shape::OneNumber) {
    int b = altered(formula, 1, archive.number(draw, e.w2, e.p2));
    if (b == 0) b = 90;
    if constexpr (kShape == Shape::ThreeOneWheel) {
      int c = altered(formula, 2, archive.number(draw, e.w3, e.p3));
      if (c == 0) c = 90;
      value = (a + b + c) % 90;
    } else {
      switch (formula.op) {
        case 0:
          value = (a + b) % 90;
          break;
        case 1:
          value = (a - b + 90) % 90;
          break;
        case 2:
          value = (b - a + 90) % 90;
          break;
        case 3:
          value = a * b % 90;
          break;
        case 4:
          value = (a / 10 * 10 + b % 10) % 90;
          break;
        case 5:
          value = (b / 10 * 10 + a % 10) % 90;
          break;
      }
    }
  }
  if (value == 0) value = 90;
  return value;
}

template <Shape kShape, class Visit>
void forEachSet(SetOrder order, const TripleFlags& triples, Visit visit) {
  if constexpr (kShape == Shape::OneNumber) {
    for (int w = 0; w <= 10; ++w)
      for (int p = 1; p <= 5; ++p) visit(Elements{w, p});
  } else if constexpr (kShape == Shape::TwoOneWheel) {
    for (int w = 0; w <= 10; ++w)
      for (int p1 = 1; p1 <= 4; ++p1)
        for (int p2 = p1 + 1; p2 <= 5; ++p2) visit(Elements{w, p1, w, p2});
  } else if constexpr (kShape == Shape::ThreeOneWheel) {
    for (int w = 0; w <= 10; ++w)
      for (int p1 = 1; p1 <= 5; ++p1)
        for (int p2 = 1; p2 <= 5; ++p2)
          for (int p3 = 1; p3 <= 5; ++p3)
            if (triples[static_cast<size_t>(p1)][static_cast<size_t>(p2)][static_cast<size_t>(p3)])
              visit(Elements{w, p1, w, p2, w, p3});
  } else if (order == SetOrder::ElementFirst) {
    for (int w1 = 0; w1 <= 9; ++w1)
      for (int p1 = 1; p1 <= 5; ++p1)
        for (int w2 = w1 + 1; w2 <= 10; ++w2)
          for (int p2 = 1; p2 <= 5; ++p2) visit(Elements{w1, p1, w2, p2});
  } else {
    for (int w1 = 0; w1 <= 9; ++w1)
      for (int w2 = w1 + 1; w2 <= 10; ++w2)
        for (int p1 = 1; p1 <= 5; ++p1)
          for (int p2 = 1; p2 <= 5; ++p2) visit(Elements{w1, p1, w2, p2});
  }
}

// A table of counters by element set and fix 0..90, with the dimensions of the shape.
template <Shape kShape>
class Counters {
 public:
  Counters() : m_counts(kSets * 91) {}

  void clear() { std::fill(m_counts.begin(), m_counts.end(), 0); }
  int& at(const Elements& e, int d) { return m_counts[static_cast<size_t>(setOf(e) * 91 + d)]; }

 private:
  static constexpr size_t kSets = kShape == Shape::OneNumber       ? 5 * 11
                                  : kShape == Shape::TwoOneWheel   ? 5 * 5 * 11
                                  : kShape == Shape::ThreeOneWheel ? 5 * 5 * 5 * 11
                                                                   : 5 * 5 * 11 * 11;
  static int setOf(const Elements& e) {
    if constexpr (kShape == Shape::OneNumber) return (e.p1 - 1) * 11 + e.w1;
    if constexpr (kShape == Shape::TwoOneWheel) return ((e.p2 - 1) * 5 + e.p1 - 1) * 11 + e.w1;
    if constexpr (kShape == Shape::ThreeOneWheel) return (((e.p3 - 1) * 5 + e.p2 - 1) * 5 + e.p1 - 1) * 11 + e.w1;
    return (((e.p2 - 1) * 5 + e.p1 - 1) * 11 + e.w2) * 11 + e.w1;
  }
  std::vector<int> m_counts;
};

class PlainRanking {
 public:
  explicit PlainRanking(int keep) : m_rows(static_cast<size_t>(std::max(keep, 0))) {}

  bool beatsLast(int cc) const { return !m_rows.empty() && cc > m_rows.back().cc; }

  // Overwrites the last row; then the stable sort on CC, by insertion: all rows but the last are in order already.
  void enter(const Elements& e, int fix, int cc, int pres, int wheelSet) {
    const auto byte = [](int value) { return static_cast<std::uint8_t>(value); };
    m_rows.back() = {
        {{byte(e.w1), byte(e.w2), byte(e.w3)}, {byte(e.p1), byte(e.p2), byte(e.p3)}}, fix, cc, pres, wheelSet};
    for (size_t j = m_rows.size() - 1; j > 0 && m_rows[j].cc > m_rows[j - 1].cc; --j)
      std::swap(m_rows[j], m_rows[j - 1]);
  }

  // Without the blank rows.
  std::vector<Candidate> rows() const {
    std::vector<Candidate> rows;
    for (const Candidate& row : m_rows)
      if (row.cc != 0) rows.push_back(row);
    return rows;
  }

 private:
  std::vector<Candidate> m_rows;
};

template <Shape kShape>
void select(SetOrder order, const TripleFlags& triples, bool withFix, const NumberFlags& allowed, int wheelSet,
            Counters<kShape>& cases, Counters<kShape>& presences, PlainRanking& ranking) {
  for (int d = 0; d <= 90; ++d) {
    if (withFix ? !allowed[static_cast<size_t>(d)] : d != 0 && d != 90) continue;
    forEachSet<kShape>(order, triples, [&](const Elements& e) {
      const int cc = cases.at(e, d);
      if (ranking.beatsLast(cc)) ranking.enter(e, d, cc, presences.at(e, d), wheelSet);
    });
  }
}

template <Shape kShape>
std::vector<Candidate> ambate(const PlainFormula& formula, const AmbataRequest& request) {
  const Archive& archive = *request.archive;
  PlainRanking ranking(request.keep);
  Counters<kShape> cases, presences;
  for (size_t pass = 0; pass < request.wheelSets.size(); ++pass) {
    const WheelSet play = request.wheelSets[pass];
    cases.clear();
    presences.clear();
    for (const int E : request.cases)
      forEachSet<kShape>(SetOrder::ElementFirst, formula.triples, [&](const Elements& set) {
        const int V = rawValue<kShape>(archive, formula, E, set);
        NumberFlags seen{};
        for (int e = E + 1; e <= E + request.colpi; ++e) {
          if (e > request.lastDraw) continue;
          for (int w = 0; w <= 10; ++w) {
            if (!holds(play, w)) continue;
            for (int k = 1; k <= 5; ++k) {
              const int n = archive.number(e, w, k);
              int d = (n - V + 90) % 90;
              if (d == 0 && !(request.repeatsAtZeroGetLost && seen[static_cast<size_t>(n)])) d = 90;
              if (!seen[static_cast<size_t>(n)]) {
                seen[static_cast<size_t>(n)] = true;
                ++cases.at(set, d);
              }
              ++presences.at(set, d);
            }
          }
        }
      });
    select(SetOrder::WheelsFirst, formula.triples, request.withFix, request.allowedFix, static_cast<int>(pass), cases,
           presences, ranking);
  }
  return ranking.rows();
}

template <Shape kShape>
std::vector<Candidate> companions(const PlainFormula& formula, const CompanionRequest& request) {
  const Archive& archive = *request.archive;
  PlainRanking ranking(request.keep);
  Counters<kShape> cases, presences;
  std::vector<bool> used(Archive::kMaxDraws + 2);
  const auto countRow = [&](const CompanionRow& row, const Elements& set) {
    NumberFlags present{}, seen{};
    for (const int n : row.numbers) present[static_cast<size_t>(n)] = true;
    const int x = rawValue<kShape>(archive, formula, row.caseDraw, set);
    for (int w = 0; w <= 10; ++w) {
      if (!holds(request.wheels, w)) continue;
      int q = 0;
      for (int k = 1; k <= 5; ++k)
        if (present[static_cast<size_t>(archive.number(row.hitDraw, w, k))]) ++q;
      if (q < request.least || q > request.most) continue;
      used[static_cast<size_t>(row.hitDraw)] = true;
      for (int k = 1; k <= 5; ++k) {
        const int n = archive.number(row.hitDraw, w, k);
        if (present[static_cast<size_t>(n)]) continue;
        int f = (n - x + 90) % 90;
        if (f == 0) f = 90;
        if (!request.guarded || !seen[static_cast<size_t>(n)]) {
          seen[static_cast<size_t>(n)] = true;
          ++cases.at(set, f);
        }
        ++presences.at(set, f);
      }
    }
  };
  // With guards a row is dropped when its draw served an earlier row, and that is settled before its element sets.
  if (request.guarded || kShape == Shape::OneNumber) {
    for (const CompanionRow& row : request.rows) {
      if (request.guarded && used[static_cast<size_t>(row.hitDraw)]) continue;
      forEachSet<kShape>(SetOrder::ElementFirst, formula.triples, [&](const Elements& set) { countRow(row, set); });
    }
  } else {
    forEachSet<kShape>(SetOrder::ElementFirst, formula.triples, [&](const Elements& set) {
      for (const CompanionRow& row : request.rows) countRow(row, set);
    });
  }
  select(SetOrder::ElementFirst, formula.triples, request.withFix, request.allowedFix, 0, cases, presences, ranking);
  return ranking.rows();
}

using PresenzeCaso = std::vector<std::array<int, 91>>;

NumberCounts countsOf(const PresenzeCaso& presences) {
  NumberCounts counts{};
  for (size_t n = 0; n <= 90; ++n)
    for (const auto& row : presences) {
      if (row[n] > 0) ++counts[n].cc;
      counts[n].pres += row[n];
    }
  return counts;
}

}  // namespace

FormulaInput formulaInput(const PlainFormula& formula) {
  FormulaInput input;
  input.shape = formula.shape;
  for (size_t e = 0; e < input.elements.size(); ++e)
    input.elements[e] = formula.alteration == PlainFormula::kConstant
                            ? constantTable(formula.constants[e])
                            : *findElementTable(kAlterations[static_cast<size_t>(formula.alteration)]);
  input.op = *operatorOf(kOperators[static_cast<size_t>(formula.op)]);
  input.triples = formula.triples;
  return input;
}

std::vector<Candidate> plainSearchAmbate(const PlainFormula& formula, const AmbataRequest& request) {
  switch (formula.shape) {
    case Shape::OneNumber:
      return ambate<Shape::OneNumber>(formula, request);
    case Shape::TwoOneWheel:
      return ambate<Shape::TwoOneWheel>(formula, request);
    case Shape::ThreeOneWheel:
      return ambate<Shape::ThreeOneWheel>(formula, request);
    case Shape::TwoTwoWheels:
      return ambate<Shape::TwoTwoWheels>(formula, request);
  }
  return {};
}

std::vector<Candidate> plainSearchCompanions(const PlainFormula& formula, const CompanionRequest& request) {
  switch (formula.shape) {
    case Shape::OneNumber:
      return companions<Shape::OneNumber>(formula, request);
    case Shape::TwoOneWheel:
      return companions<Shape::TwoOneWheel>(formula, request);
    case Shape::ThreeOneWheel:
      return companions<Shape::ThreeOneWheel>(formula, request);
    case Shape::TwoTwoWheels:
      return companions<Shape::TwoTwoWheels>(formula, request);
  }
  return {};
}

std::vector<NumberCounts> plainCountNumbers(const Archive& archive, const std::vector<int>& cases, int colpi,
                                            int lastDraw, const std::vector<WheelSet>& wheelSets) {
  std::vector<NumberCounts> counts;
  for (const WheelSet play : wheelSets) {
    PresenzeCaso presences(cases.size());
    for (size_t i = 0; i < cases.size(); ++i)
      for (int e = cases[i] + 1; e <= cases[i] + colpi; ++e) {
        if (e > lastDraw) continue;
        for (int w = 0; w <= 10; ++w)
          if (holds(play, w))
            for (int k = 1; k <= 5; ++k) ++presences[i][static_cast<size_t>(archive.number(e, w, k))];
      }
    counts.push_back(countsOf(presences));
  }
  return counts;
}

NumberCounts plainCountNumbersAtHits(const Archive& archive, const std::vector<PureNumberRow>& rows, WheelSet wheels) {
  PresenzeCaso presences(51);
  for (const PureNumberRow& row : rows) {
    NumberFlags inPlay{};
    for (const int n : row.numbers) inPlay[static_cast<size_t>(n)] = true;
    for (int w = 0; w <= 10; ++w)
      if (holds(wheels, w))
        for (int k = 1; k <= 5; ++k) {
          const int n = archive.number(row.hitDraw, w, k);
          if (!inPlay[static_cast<size_t>(n)]) ++presences[static_cast<size_t>(row.caseRow)][static_cast<size_t>(n)];
        }
  }
  return countsOf(presences);
}

std::vector<WheelSet> plainWheelSets(int wheels) {
  std::vector<WheelSet> sets;
  for (unsigned a = 0; a < kWheels; ++a) {
    if (wheels == 1) sets.push_back(1U << a);
    for (unsigned b = a + 1; b < kWheels; ++b) {
      if (wheels == 2) sets.push_back(1U << a | 1U << b);
      for (unsigned c = b + 1; c < kWheels; ++c)
        if (wheels == 3) sets.push_back(1U << a | 1U << b | 1U << c);
    }
  }
  return sets;
}

TripleFlags ascendingTriples() {
  TripleFlags triples{};
  for (size_t a = 1; a <= 5; ++a)
    for (size_t b = a; b <= 5; ++b)
      for (size_t c = b; c <= 5; ++c) triples[a][b][c] = true;
  return triples;
}

NumberFlags everyFix() {
  NumberFlags fixes{};
  fixes.fill(true);
  fixes[0] = false;
  return fixes;
}

}  // namespace trv5
