#include "engine/hit_sources.h"

#include <algorithm>
#include <array>
#include <utility>

#include "engine/hit_rows.h"

namespace trv5 {
namespace {

// A hit row left from a longer case list has no case any more: it counts as not covered.
bool leftOut(const Workbench& w, const HitSource& source, int caseRow) {
  if (!w.Ch_Scoperti.checked()) return false;
  if (source.coveredColumn != 0)
    return caseRow >= 1 && caseRow < w.FgEv.rows() && isCovered(w, caseRow, source.coveredColumn);
  return caseRow < 0 || caseRow > kMostCases || !w.CasiQuasi[static_cast<std::size_t>(caseRow)];
}

}  // namespace

const HitSource& hitSource(int sorte) {
  static constexpr std::array<HitSource, 3> kSources = {
      {{2, &Workbench::FgZ1, 18, 1, "Attenzione manca l'elaborazione per le ambate."},
       {3, &Workbench::FgZ2, 19, 2, "Attenzione manca l'elaborazione per gli ambi."},
       {6, &Workbench::FgZ100, 0, 5, nullptr}}};
  return *std::find_if(kSources.begin(), kSources.end(), [sorte](const HitSource& s) { return s.sorte == sorte; });
}

bool hitsAreThere(Workbench& w, const HitSource& source) {
  if (source.missingMessage == nullptr || (w.*source.hits).hasData()) return true;
  w.shell().message({.text = source.missingMessage});
  return false;
}

std::vector<SourceHit> countingHits(const Workbench& w, const HitSource& source) {
  using namespace hit_column;
  const Grid& hits = w.*source.hits;
  std::vector<SourceHit> found;
  for (int row = 1; row < hits.rows(); ++row) {
    SourceHit hit{hits.number(row, kCase), hits.number(row, kCaseDraw), hits.number(row, kDraw), {}};
    if (leftOut(w, source, hit.caseRow) || hit.hitDraw <= 0) continue;
    for (int column = kNumbers; column < kNumbers + source.numberColumns; ++column)
      if (const int n = hits.number(row, column); n > 0) hit.numbers.push_back(n);
    found.push_back(std::move(hit));
  }
  return found;
}

}  // namespace trv5
