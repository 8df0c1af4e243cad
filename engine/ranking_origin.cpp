#include "engine/ranking_origin.h"

#include <algorithm>
#include <initializer_list>
#include <string>
#include <utility>

#include "cases/method_codec.h"
#include "cases/situation_name.h"
#include "core/text.h"
#include "engine/search_frame.h"

namespace trv5 {
namespace {

constexpr ByTable<const char*> kSections = {"Ambate", "Ambi", "Terni", "Lunghetta"};

const char* shapeText(const std::optional<Shape>& shape) {
  constexpr const char* kTexts[] = {"1N 1R", "2N 1R", "3N 1R", "2N 2R"};
  return shape ? kTexts[static_cast<std::size_t>(*shape)] : "NUM";
}

std::string operatorText(const Workbench& w, Shape shape) {
  if (elementsOf(shape) != 2) return {};
  std::string text(kOperators[static_cast<std::size_t>(operatorIndex(w))]);
  if (text.starts_with('N')) std::erase(text, ' ');
  return text;
}

std::string joinedParts(std::initializer_list<std::string> parts) {
  std::string text;
  for (const std::string& part : parts)
    if (!part.empty()) text += (text.empty() ? "" : " · ") + part;
  return text;
}

// Shape, operator, alteration, fix.
std::string rulesText(const Workbench& w, const std::optional<Shape>& shape) {
  if (!shape) return shapeText(shape);
  std::string fix = w.ComboFix.index() > 0 ? "fix " + w.ComboFix.text() : "";
  if (!w.ChFix1R.checked()) fix = "senza fix";
  return joinedParts({shapeText(shape), operatorText(w, *shape), w.Combo1R_1N.text(), fix});
}

std::string casesText(const Workbench& w, const RankingSearch& search) {
  if (!search.cases && w.Ch_Scoperti.checked()) return "casi scoperti";
  const int count = search.cases.value_or(w.FgEv.dataRows());
  return std::to_string(count) + (count == 1 ? " caso" : " casi") +
         (w.Ch_Scoperti.checked() ? (count == 1 ? " scoperto" : " scoperti") : "");
}

std::string wheelsText(const Workbench& w, int wheelsOfSet) {
  if (wheelsOfSet == 1) return "migliore ruota";
  if (wheelsOfSet > 1) return "migliori " + std::to_string(wheelsOfSet) + " ruote";
  std::string text;
  int count = 0;
  for (int wheel = 0; wheel < kWheels; ++wheel) {
    if (!holds(w.RuoteGioco, wheel)) continue;
    text += (text.empty() ? "" : " ") + std::string(CodiciRuote[static_cast<std::size_t>(wheel)]);
    ++count;
  }
  if (count == 0) return "nessuna ruota";
  return count == kWheels ? "tutte le ruote" : text;
}

}  // namespace

void noteRanking(Workbench& w, const RankingSearch& search) {
  w.origins.ranking = joinedParts({kSections[indexOf(search.table)], rulesText(w, search.shape), casesText(w, search),
                                   wheelsText(w, search.wheelsOfSet)});
  w.origins.lastSearch.reset();
}

void noteLastSearch(Workbench& w, const AmbataRequest& request, int wheelsOfSet) {
  const auto cases = w.origins.made.find(w.FgEv.name());
  if (cases == w.origins.made.end() || cases->second.empty() || !cases->second.front().situation) return;
  LastSearch search{.situation = *cases->second.front().situation, .request = request};
  search.name = joinedParts({situationName(search.situation), rulesText(w, request.formula.shape),
                             w.Ch_Scoperti.checked() ? "casi scoperti" : "", wheelsText(w, wheelsOfSet),
                             counted(request.colpi, "colpo", "colpi")});
  search.archive = w.archive.loadStamp();
  const int column = case_column::kHits + w.Sorte - 1;
  for (const TableTraits& table : kTables) {
    if (!w.Ch_Scoperti.checked() || table.markColumn != column) continue;
    search.coveredBy = methodOf(w);
    search.coveredTable = table.table;
  }
  w.origins.lastSearch = std::move(search);
}

void noteWholeRanking(Workbench& w, int cases) {
  w.origins.ranking = joinedParts({kSections[indexOf(Table::Ambate)], "TUTTE", w.ComboOrdine.text(),
                                   casesText(w, {.cases = cases}), "da 1 a 3 ruote"});
  w.origins.lastSearch.reset();
}

}  // namespace trv5
