#include "method/detection.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include "core/numbers.h"

namespace trv5 {
namespace {

constexpr std::array<std::string_view, 7> kKinds = {"Mensile", "Numeri", "Distanza", "Differenza",
                                                    "Somma",   "Ciclo",  "Num Pari"};

int distance(int a, int b) {
  const int d = std::abs(a - b);
  return d > 45 ? 90 - d : d;
}

// The value that a kind makes of two numbers 0..90; 0 is never a chosen number.
int pairValue(SituationKind kind, int a, int b) {
  switch (kind) {
    case SituationKind::Distanza:
      return distance(a, b);
    case SituationKind::Differenza:
      return std::abs(a - b);
    default:
      return fold90(a + b);
  }
}

bool isPairKind(SituationKind kind) {
  return kind == SituationKind::Distanza || kind == SituationKind::Differenza || kind == SituationKind::Somma;
}

class Detector {
 public:
  Detector(const Archive& archive, const Situation& situation, PositionFlags& struck)
      : m_archive(archive), m_s(situation), m_struck(struck) {}

  std::vector<FoundCase> run() {
    std::vector<FoundCase> found;
    for (int draw = m_s.reference; draw >= 1; --draw) {
      std::optional<FoundCase> hit = m_s.twoElements ? twoElements(draw) : oneElement(draw);
      if (!hit) continue;
      found.push_back(std::move(*hit));
      if (static_cast<int>(found.size()) >= m_s.maxCases) break;
    }
    return found;
  }

 private:
  int number(int draw, int wheel, int position) const { return m_archive.number(draw, wheel, position); }
  bool chosen(int n) const { return m_s.numbers[static_cast<std::size_t>(n)]; }
  bool plays(int position) const { return m_s.positions[static_cast<std::size_t>(position)]; }
  void strike(int position) { m_struck[static_cast<std::size_t>(position)] = true; }

  std::optional<FoundCase> oneElement(int draw) {
    if (m_s.kind != SituationKind::Ciclo) m_struck = {};
    if (!oneElementMatches(draw)) return std::nullopt;
    return FoundCase{{draw, m_s.wheel, m_struck}, std::nullopt};
  }

  bool oneElementMatches(int draw) {
    switch (m_s.kind) {
      case SituationKind::Mensile:
        return monthlyMatches(draw);
      case SituationKind::Ciclo:
        return cycleMatches();
      case SituationKind::Numeri: {
        const int count = strikeWhere(draw, [this](int n) { return n > 0 && chosen(n); });
        // Looking back, any match will do: users' saved methods rely on it.
        return m_s.back == 0 ? count >= m_s.quantity : count > 0;
      }
      case SituationKind::NumPari: {
        const int count = strikeWhere(draw, [](int n) { return n > 0 && n % 2 == 0; });
        const bool any = std::find(m_s.positions.begin(), m_s.positions.end(), true) != m_s.positions.end();
        return any && count == m_s.period;
      }
      default:
        return strikePairs(draw) >= m_s.quantity;
    }
  }

  bool monthlyMatches(int draw) const {
    if (m_s.period > 0) return m_archive.ProgMese(draw) == m_s.period;
    if (draw >= m_archive.UltimaEstrazione()) return m_s.forceLast;
    return m_archive.ProgMese(draw + 1) == 1;
  }

  bool cycleMatches() {
    if (m_s.period == 0) return false;
    if (m_cycle == m_s.period) m_cycle = 0;
    return m_cycle++ == 0;
  }

  template <class Test>
  int strikeWhere(int draw, Test test) {
    int count = 0;
    for (int p = 1; p <= kPositions; ++p) {
      if (!plays(p) || !test(number(draw, m_s.wheel, p))) continue;
      ++count;
      strike(p);
    }
    return count;
  }

  // A wheel not drawn is passed over at the pair's first number only.
  int strikePairs(int draw) {
    int count = 0;
    for (int p = 1; p < kPositions; ++p) {
      for (int q = p + 1; q <= kPositions; ++q) {
        if (!plays(p) || !plays(q) || number(draw, m_s.wheel, p) < 1) continue;
        if (!chosen(pairValue(m_s.kind, number(draw, m_s.wheel, p), number(draw, m_s.wheel, q)))) continue;
        ++count;
        strike(p);
        strike(q);
      }
    }
    return count;
  }

  // The first match in the order: wheel, first element's positions, second element, its positions.
  std::optional<FoundCase> twoElements(int draw) const {
    if (m_s.kind != SituationKind::Numeri && !isPairKind(m_s.kind)) return std::nullopt;
    for (int wheel = 0; wheel < kWheels; ++wheel) {
      if (!holds(m_s.wheels, wheel)) continue;
      const std::vector<FoundElement> seconds = secondElements(draw, wheel);
      const FoundElement first{draw, wheel, {}};
      std::optional<FoundCase> found = m_s.kind == SituationKind::Numeri ? matchNumbers(first, seconds)
                                       : m_s.oneToOne                    ? matchOneToOne(first, seconds)
                                                                         : matchPairs(first, seconds);
      if (found) return found;
    }
    return std::nullopt;
  }

  std::vector<FoundElement> secondElements(int draw, int wheel) const {
    std::vector<FoundElement> seconds;
    if (m_s.back > 0) {
      for (int d = draw - 1; d >= draw - m_s.back && d > 0; --d) seconds.push_back({d, wheel, {}});
    } else {
      for (int w = wheel + 1; w < kWheels; ++w)
        if (holds(m_s.wheels, w)) seconds.push_back({draw, w, {}});
    }
    return seconds;
  }

  int at(const FoundElement& e, int position) const { return number(e.draw, e.wheel, position); }

  std::optional<FoundCase> matchPairs(const FoundElement& first, const std::vector<FoundElement>& seconds) const {
    for (int a = 1; a < kPositions; ++a) {
      for (int b = a + 1; b <= kPositions; ++b) {
        if (!plays(a) || !plays(b) || at(first, a) < 1) continue;
        if (!chosen(pairValue(m_s.kind, at(first, a), at(first, b)))) continue;
        for (const FoundElement& second : seconds) {
          for (int c = 1; c < kPositions; ++c) {
            for (int d = c + 1; d <= kPositions; ++d) {
              if (!plays(c) || !plays(d) || (m_s.isotopes && (a != c || b != d))) continue;
              if (!chosen(pairValue(m_s.kind, at(second, c), at(second, d)))) continue;
              return marked(first, {a, b}, second, {c, d});
            }
          }
        }
      }
    }
    return std::nullopt;
  }

  std::optional<FoundCase> matchOneToOne(const FoundElement& first, const std::vector<FoundElement>& seconds) const {
    for (int a = 1; a <= kPositions; ++a) {
      if (!plays(a) || at(first, a) < 1) continue;
      for (const FoundElement& second : seconds) {
        for (int c = 1; c <= kPositions; ++c) {
          if (!plays(c) || (m_s.isotopes && a != c)) continue;
          if (!chosen(pairValue(m_s.kind, at(first, a), at(second, c)))) continue;
          return marked(first, {a}, second, {c});
        }
      }
    }
    return std::nullopt;
  }

  std::optional<FoundCase> matchNumbers(const FoundElement& first, const std::vector<FoundElement>& seconds) const {
    const PositionFlags inFirst = chosenPositions(first);
    if (std::count(inFirst.begin(), inFirst.end(), true) != m_s.quantity1) return std::nullopt;
    for (const FoundElement& second : seconds) {
      const PositionFlags inSecond = chosenPositions(second);
      if (std::count(inSecond.begin(), inSecond.end(), true) != m_s.quantity2) continue;
      if (m_s.isotopes && inFirst != inSecond) continue;
      FoundCase found{first, second};
      // Marked by number, not by match: also at positions that weren't asked for.
      for (FoundElement* element : {&found.first, &*found.second})
        for (int p = 1; p <= kPositions; ++p) element->marks[static_cast<std::size_t>(p)] = chosen(at(*element, p));
      return found;
    }
    return std::nullopt;
  }

  PositionFlags chosenPositions(const FoundElement& element) const {
    PositionFlags flags{};
    for (int p = 1; p <= kPositions; ++p) flags[static_cast<std::size_t>(p)] = plays(p) && chosen(at(element, p));
    return flags;
  }

  static FoundCase marked(FoundElement first, std::initializer_list<int> positions1, FoundElement second,
                          std::initializer_list<int> positions2) {
    for (int p : positions1) first.marks[static_cast<std::size_t>(p)] = true;
    for (int p : positions2) second.marks[static_cast<std::size_t>(p)] = true;
    return {first, second};
  }

  const Archive& m_archive;
  const Situation& m_s;
  PositionFlags& m_struck;
  int m_cycle = 0;
};

}  // namespace

std::optional<SituationKind> situationKindOf(std::string_view text) {
  const auto it = std::find(kKinds.begin(), kKinds.end(), text);
  if (it == kKinds.end()) return std::nullopt;
  return static_cast<SituationKind>(it - kKinds.begin());
}

std::string_view textOf(SituationKind kind) {
  return kKinds[static_cast<std::size_t>(kind)];
}

std::vector<FoundCase> detectCases(const Archive& archive, const Situation& situation, PositionFlags& struck) {
  return Detector(archive, situation, struck).run();
}

}  // namespace trv5
