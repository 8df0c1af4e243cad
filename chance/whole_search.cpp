#include "chance/whole_search.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <tuple>

#include "chance/expected_cover.h"
#include "chance/hypergeometric.h"
#include "chance/repeated_search.h"
#include "method/drawn_numbers.h"
#include "method/formula_values.h"
#include "method/vote_counter.h"

namespace trv5 {
namespace {

constexpr std::array<Shape, 4> kShapes = {Shape::OneNumber, Shape::TwoOneWheel, Shape::ThreeOneWheel,
                                          Shape::TwoTwoWheels};

std::vector<WheelSet> makeWheelSets() {
  std::vector<WheelSet> sets;
  for (int a = 0; a < kWheels; ++a) sets.push_back(1U << a);
  for (int a = 0; a < kWheels; ++a)
    for (int b = a + 1; b < kWheels; ++b) sets.push_back(1U << a | 1U << b);
  for (int a = 0; a < kWheels; ++a)
    for (int b = a + 1; b < kWheels; ++b)
      for (int c = b + 1; c < kWheels; ++c) sets.push_back(1U << a | 1U << b | 1U << c);
  return sets;
}

// Wheel sets on which a formula has the same chance in each case, so that more cases covered are always rarer: those of
// one size, where all wheels were drawn.
struct Group {
  std::vector<int> sets;       // in wholeWheelSets()
  std::vector<double> rarity;  // by cases covered
  std::optional<VoteRings> rings;
};

class WholeSearch {
 public:
  explicit WholeSearch(const WholeRequest& request) : m_request(request), m_wheels(wheelsByNumber()) {
    makeGroups();
    for (const WholePass& pass : wholePasses()) m_passes.push_back(pass);
  }

  std::vector<WholeRow> run(const Workers& workers) const {
    // The last passes are the longest: they come first, so that no thread is left with one at the end.
    const int pieces = static_cast<int>(m_passes.size() * m_groups.size());
    std::vector<std::vector<WholeRow>> found(static_cast<std::size_t>(pieces));
    const int done = doAll(pieces, workers, [&]() -> Work {
      return [&](int index) {
        const auto piece = static_cast<std::size_t>(pieces - 1 - index);
        found[piece] = best(m_passes[piece / m_groups.size()], m_groups[piece % m_groups.size()]);
      };
    });
    std::vector<WholeRow> rows;
    if (done < pieces) return rows;
    for (const std::vector<WholeRow>& some : found) rows.insert(rows.end(), some.begin(), some.end());
    sort(rows);
    return rows;
  }

 private:
  std::vector<WheelsByNumber> wheelsByNumber() const {
    std::vector<WheelsByNumber> wheels(m_request.cases.size());
    for (std::size_t i = 0; i < wheels.size(); ++i) {
      const ColpiWindow window = windowAfter(m_request.cases[i], m_request.colpi, m_request.lastDraw);
      for (int draw = window.first; draw <= window.last; ++draw)
        for (int wheel = 0; wheel < kWheels; ++wheel)
          for (int k = 0; k < kPositions; ++k) {
            std::uint16_t& mask = wheels[i][m_request.archive->wheelOf(draw, wheel)[k]];
            mask = static_cast<std::uint16_t>(mask | 1U << wheel);
          }
      wheels[i][0] = 0;
    }
    return wheels;
  }

  std::vector<double> rarityOf(WheelSet set) const {
    const PlayWindow window{.colpi = m_request.colpi, .lastDraw = m_request.lastDraw, .wheels = set};
    std::vector<int> draws;
    for (const int draw : m_request.cases) draws.push_back(wheelDraws(*m_request.archive, draw, window));
    // Sorted, so that equal chances in another order give the same figures to the last digit.
    std::sort(draws.begin(), draws.end());
    PoissonBinomial luck;
    for (const int count : draws) luck.add(chanceOfDraws(chanceOfSet(1), count));
    std::vector<double> rarity;
    for (int covered = 0; covered <= luck.trials(); ++covered) rarity.push_back(luck.atLeast(covered));
    return rarity;
  }

  void makeGroups() {
    const std::vector<WheelSet>& sets = wholeWheelSets();
    for (std::size_t i = 0; i < sets.size(); ++i) {
      std::vector<double> rarity = rarityOf(sets[i]);
      const auto same =
          std::find_if(m_groups.begin(), m_groups.end(), [&](const Group& group) { return group.rarity == rarity; });
      Group& group = same != m_groups.end() ? *same : m_groups.emplace_back(Group{{}, std::move(rarity), {}});
      group.sets.push_back(static_cast<int>(i));
    }
    for (Group& group : m_groups) {
      if (group.sets.size() == 1) {
        group.rings.emplace(weights(sets[static_cast<std::size_t>(group.sets.front())]));
      } else {
        std::vector<WheelSet> wheelSets;
        for (const int set : group.sets) wheelSets.push_back(sets[static_cast<std::size_t>(set)]);
        group.rings.emplace(m_wheels, wheelSets);
      }
    }
  }

  std::vector<ResidueWeights> weights(WheelSet set) const {
    std::vector<ResidueWeights> weights(m_wheels.size());
    for (std::size_t i = 0; i < weights.size(); ++i)
      for (std::size_t n = 1; n <= kMostNumber; ++n) weights[i][n % kMostNumber] = (m_wheels[i][n] & set) != 0;
    return weights;
  }

  std::vector<WholeRow> best(const WholePass& pass, const Group& group) const {
    const FormulaInput formula = formulaOf(pass, m_request.triples);
    const FormulaValues all(*m_request.archive, formula, m_request.cases,
                            elementSets(formula.shape, SetOrder::WheelsFirst, formula.triples));
    const FormulaValues values = all.of(group.rings->cases());
    NumberFlags fixes{};
    std::fill(fixes.begin() + 1, fixes.end(), true);
    Ranking ranking(m_request.keep);
    rankVotes(*group.rings, values, fixes, ranking);
    std::vector<WholeRow> rows;
    for (const Ranking::Row& found : ranking.rows()) {
      const int set = group.sets[static_cast<std::size_t>(found.wheelSet)];
      rows.push_back({pass,
                      {values.set(static_cast<std::size_t>(found.set)), found.fix, found.count, 0, set},
                      wholeWheelSets()[static_cast<std::size_t>(set)],
                      group.rarity[static_cast<std::size_t>(found.count)]});
    }
    return rows;
  }

  void sort(std::vector<WholeRow>& rows) const {
    const bool byRarity = m_request.order == WholeOrder::Rarity;
    const auto key = [&](const WholeRow& row) {
      const double covered = -row.formula.cc;
      return std::tuple(byRarity ? row.rarity : covered, byRarity ? covered : row.rarity, row.pass.shape,
                        row.pass.alteration, row.pass.op, row.formula.wheelSet, row.formula.fix);
    };
    std::stable_sort(rows.begin(), rows.end(), [&](const WholeRow& a, const WholeRow& b) { return key(a) < key(b); });
    if (rows.size() > static_cast<std::size_t>(m_request.keep)) rows.resize(static_cast<std::size_t>(m_request.keep));
    for (WholeRow& row : rows) countPresences(row);
  }

  // How often the number of the row was drawn in its cases.
  void countPresences(WholeRow& row) const {
    const FormulaInput formula = formulaOf(row.pass, m_request.triples);
    for (const int draw : m_request.cases) {
      const ColpiWindow window = windowAfter(draw, m_request.colpi, m_request.lastDraw);
      DrawnNumbers drawn{};
      addDrawn(*m_request.archive, window, row.wheels, drawn);
      const int number = numberOf(*m_request.archive, formula, row.formula.elements, row.formula.fix, draw);
      row.formula.pres += static_cast<int>(drawn[static_cast<std::size_t>(number)]);
    }
  }

  WholeRequest m_request;
  std::vector<WheelsByNumber> m_wheels;  // by case, without the numbers 0 of wheels not drawn
  std::vector<Group> m_groups;
  std::vector<WholePass> m_passes;
};

}  // namespace

const std::vector<WheelSet>& wholeWheelSets() {
  static const std::vector<WheelSet> sets = makeWheelSets();
  return sets;
}

std::vector<WholePass> wholePasses() {
  std::vector<WholePass> passes;
  for (const Shape shape : kShapes)
    for (int alteration = 0; alteration < static_cast<int>(kAlterations.size()); ++alteration) {
      const std::size_t operators = elementsOf(shape) == 2 ? kOperators.size() : 1;
      for (std::size_t op = 0; op < operators; ++op) passes.push_back({shape, alteration, static_cast<Operator>(op)});
    }
  return passes;
}

std::int64_t wholeFormulas(const TripleFlags& triples) {
  std::int64_t formulas = 0;
  for (const WholePass& pass : wholePasses())
    formulas += static_cast<std::int64_t>(elementSets(pass.shape, SetOrder::WheelsFirst, triples).size());
  return formulas * kMostNumber * static_cast<std::int64_t>(wholeWheelSets().size());
}

FormulaInput formulaOf(const WholePass& pass, const TripleFlags& triples) {
  const ElementTable* const table = findElementTable(kAlterations[static_cast<std::size_t>(pass.alteration)]);
  return {.shape = pass.shape, .elements = {*table, *table, *table}, .op = pass.op, .triples = triples};
}

std::vector<WholeRow> searchEverything(const WholeRequest& request, const Workers& workers) {
  if (request.keep < 1 || request.cases.empty()) return {};
  return WholeSearch(request).run(workers);
}

}  // namespace trv5
