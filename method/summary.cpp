#include "method/summary.h"

#include <algorithm>
#include <map>

namespace trv5 {
namespace {

constexpr int kBeyondEveryColpo = 1000;

bool canBe(int caseRow) {
  return caseRow >= 0 && caseRow <= kMostCases;
}

void keepFirstColpo(const std::vector<SummaryHit>& hits, std::vector<SummaryRow>& rows) {
  std::map<int, int> first;  // PrimoColpo, by case
  for (const SummaryHit& hit : hits) {
    if (hit.colpo <= 0 || !canBe(hit.caseRow)) continue;
    int& colpo = first.try_emplace(hit.caseRow, kBeyondEveryColpo).first->second;
    colpo = std::min(colpo, hit.colpo);
  }
  std::erase_if(rows, [&](const SummaryRow& row) {
    if (row.hit < 0) return false;
    const SummaryHit& hit = hits[static_cast<std::size_t>(row.hit)];
    return hit.colpo > 0 && canBe(hit.caseRow) && hit.colpo != first.at(hit.caseRow);
  });
}

}  // namespace

Summary summarize(const std::vector<SummaryHit>& hits, const std::vector<int>& numbering, const std::set<int>& open,
                  bool firstOnly) {
  Summary summary;
  std::set<int> withHit;  // CasoConEsito
  for (std::size_t i = 0; i < hits.size(); ++i) {
    summary.rows.push_back({hits[i].caseRow, static_cast<int>(i)});
    withHit.insert(hits[i].caseRow);
    summary.anomaly = summary.anomaly || !canBe(hits[i].caseRow);
  }
  for (std::size_t i = 0; i < numbering.size(); ++i) {
    summary.anomaly = summary.anomaly || !canBe(numbering[i]);
    if (!withHit.contains(numbering[i])) summary.rows.push_back({static_cast<int>(i) + 1, -1});
  }
  const auto colpo = [&](const SummaryRow& row) {
    return row.hit < 0 ? 0 : hits[static_cast<std::size_t>(row.hit)].colpo;
  };
  std::stable_sort(summary.rows.begin(), summary.rows.end(), [&](const SummaryRow& a, const SummaryRow& b) {
    return a.caseRow != b.caseRow ? a.caseRow < b.caseRow : colpo(a) < colpo(b);
  });
  if (firstOnly) keepFirstColpo(hits, summary.rows);
  for (const SummaryRow& row : summary.rows) {
    if (row.hit >= 0) {
      ++summary.bySorte[static_cast<std::size_t>(hits[static_cast<std::size_t>(row.hit)].sorte)];
      ++summary.positive;
    } else if (!open.contains(row.caseRow)) {
      ++summary.negative;
    }
  }
  return summary;
}

void joinHits(const Verification& verified, Table table, const std::vector<int>& caseDraws,
              std::vector<SummaryHit>& into) {
  for (std::size_t i = 0; i < verified.hits.size(); ++i) {
    if (verified.open[i]) continue;
    for (const Hit& hit : verified.hits[i])
      into.push_back({static_cast<int>(i) + 1, hit.draw - caseDraws[i], traitsOf(table).code});
  }
}

}  // namespace trv5
