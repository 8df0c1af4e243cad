#include "support/whole_method.h"

#include <algorithm>

#include "method/candidate_check.h"
#include "support/random_search.h"

namespace trv5 {
namespace {

constexpr int kKeep = 50;

FormulaInput sumOfTwo() {
  FormulaInput formula{.shape = Shape::TwoOneWheel};
  formula.elements.fill(*findElementTable(""));
  return formula;
}

FormulaRow rowOf(const Candidate& found) {
  return formulaOf(found, Shape::TwoOneWheel, "", "N1 + N2");
}

// Takes over the companion that a verification of all of them finds best.
void takeBest(const Archive& archive, WholeMethod& whole, Table table, const CompanionRequest& request) {
  const CandidateRequest checks{&archive, whole.method, table, whole.cases};
  const CandidateCounts counts(checks);
  std::vector<FormulaRow> found;
  for (const Candidate& candidate : searchCompanions(request)) found.push_back(rowOf(candidate));
  const auto best = std::max_element(found.begin(), found.end(), [&](const FormulaRow& a, const FormulaRow& b) {
    return counts.with(a).cases < counts.with(b).cases;
  });
  if (best != found.end()) whole.method.of(table).push_back(*best);
}

}  // namespace

std::vector<CompanionRow> companionRows(const std::vector<Hits>& hits, const std::vector<int>& caseDraws) {
  std::vector<CompanionRow> rows;
  for (std::size_t i = 0; i < hits.size(); ++i)
    for (const Hit& hit : hits[i])
      rows.push_back({caseDraws[i], hit.draw, {hit.numbers.begin(), hit.numbers.begin() + hit.named}});
  return rows;
}

WholeMethod playWholeMethod(const Archive& archive, Method method) {
  WholeMethod whole{.method = std::move(method)};
  Method& m = whole.method;
  ParametriFormula carry;
  const auto verifyTable = [&](Table table) {
    return whole.verified[indexOf(table)] = verify(archive, m, table, whole.cases, {}, carry);
  };
  whole.cases = detect(archive, m);
  const std::vector<Candidate> ambate =
      searchAmbate({&archive, sumOfTwo(), whole.cases, m.colpi, m.reference, {m.wheels}, everyFix(), true, kKeep});
  if (!ambate.empty()) m.of(Table::Ambate).push_back(rowOf(ambate.front()));
  CompanionRequest companions;
  companions.archive = &archive;
  companions.formula = sumOfTwo();
  companions.wheels = m.wheels;
  companions.allowedFix = everyFix();
  companions.withFix = true;
  companions.keep = kKeep;
  companions.rows = companionRows(verifyTable(Table::Ambate).hits, whole.cases);
  takeBest(archive, whole, Table::Ambi, companions);
  companions.rows = companionRows(verifyTable(Table::Ambi).hits, whole.cases);
  companions.least = companions.most = 2;
  companions.guarded = true;
  takeBest(archive, whole, Table::Terni, companions);
  verifyTable(Table::Terni);
  for (const Table table : {Table::Ambate, Table::Ambi, Table::Terni})
    m.of(Table::Lunghetta).insert(m.of(Table::Lunghetta).end(), m.of(table).begin(), m.of(table).end());
  companions.rows = companionRows(elaborate(archive, m, whole.cases, carry).hits, whole.cases);
  companions.least = std::max(1, m.sorte - 1);
  companions.most = kPositions;
  companions.guarded = false;
  takeBest(archive, whole, Table::Lunghetta, companions);
  verifyTable(Table::Lunghetta);
  whole.elaborated = elaborate(archive, m, whole.cases, carry);
  std::vector<SummaryHit> hits;
  std::set<int> open;
  std::vector<int> numbering;
  for (const Table table : {Table::Ambate, Table::Ambi, Table::Terni})
    joinHits(whole.verified[indexOf(table)], table, whole.cases, hits);
  for (std::size_t i = 0; i < whole.cases.size(); ++i) {
    numbering.push_back(static_cast<int>(i) + 1);
    // A case is known to be open from the first verification on.
    if (!m.of(Table::Ambate).empty() && whole.verified[0].open[i]) open.insert(static_cast<int>(i) + 1);
  }
  whole.summary = summarize(hits, numbering, open, false);
  return whole;
}

Method randomSituation(std::mt19937& rng, const Archive& archive) {
  Method method;
  method.reference = archive.NumEstrazioni() - below(rng, 3);
  method.wheels = randomWheelSet(rng);
  method.colpi = 1 + below(rng, 8);
  method.sorte = 1 + below(rng, 2);
  Situation& s = method.situation;
  s.kind = static_cast<SituationKind>(below(rng, 7));
  s.reference = method.reference;
  s.maxCases = 1 + below(rng, 20);
  s.wheel = below(rng, kWheels);
  for (std::size_t p = 1; p <= kPositions; ++p) s.positions[p] = below(rng, 5) != 0;
  s.numbers[static_cast<std::size_t>(1 + below(rng, 45))] = true;
  s.period = s.kind == SituationKind::NumPari ? below(rng, 5) : below(rng, 9);
  return method;
}

}  // namespace trv5
