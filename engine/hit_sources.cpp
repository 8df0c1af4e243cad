#include "engine/hit_sources.h"

#include <algorithm>
#include <array>

#include "cases/case_rows.h"

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

const HitSource& hitSource(Table table) {
  static constexpr std::array<HitSource, 3> kSources = {
      {{Table::Ambi, &Workbench::FgZ1, 18, 1, "Attenzione manca l'elaborazione per le ambate."},
       {Table::Terni, &Workbench::FgZ2, 19, 2, "Attenzione manca l'elaborazione per gli ambi."},
       {Table::Lunghetta, &Workbench::FgZ100, 0, 5, nullptr}}};
  return *std::find_if(kSources.begin(), kSources.end(), [table](const HitSource& s) { return s.table == table; });
}

bool hitsAreThere(Workbench& w, const HitSource& source) {
  if (source.missingMessage == nullptr || (w.*source.hits).hasData()) return true;
  w.shell().message({.text = source.missingMessage});
  return false;
}

std::vector<HitRow> countingHits(const Workbench& w, const HitSource& source) {
  std::vector<HitRow> rows = readHits(w.*source.hits, source.numberColumns);
  std::erase_if(rows, [&](const HitRow& row) { return row.hitDraw <= 0 || leftOut(w, source, row.caseRow); });
  return rows;
}

}  // namespace trv5
